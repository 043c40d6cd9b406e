#include "ovk/customize/site_models_p.h"

#include "ovk/ui_state/ui_spot.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_menu.h"
#include "ovk/ui_state/ui_state_menus.h"

#include <windows/native_keys.h>

namespace ovk {

namespace {

/// A menu may also be read as a plain pointer.
void RegisterMenuPointer()
{
    if (!QMetaType::hasRegisteredConverterFunction<UiStateMenu*, void*>())
        QMetaType::registerConverter<UiStateMenu*, void*>(
            [](UiStateMenu* menu) { return static_cast<void*>(menu); });
}

} // namespace

MenusModel::MenusModel(QObject* parent) : TSiteModel(2, parent)
{
    RegisterMenuPointer();
}

MenusModel::~MenusModel() = default;

int MenusModel::GetMaxItems() const
{
    return 12;
}

QVariant MenusModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    ITreeItem* item = GetItem(index);
    auto* menu = dynamic_cast<UiStateMenu*>(item);
    if (!menu)
        return index.column() == 0 || dynamic_cast<UiSpotSeparator*>(item)
                   ? _SpotData(item, index.column(), role)
                   : QVariant();
    if (role == MenuRole)
        return QVariant::fromValue(menu);
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    if (index.column() == 0)
        return menu->GetTitle();
    const QString key = KeyName(menu->GetKey());
    return key.isEmpty() ? key : key + tr(" + RMB");
}

bool MenusModel::setData(const QModelIndex& index, const QVariant& value, int)
{
    if (!index.isValid())
        return false;
    ITreeItem* item = GetItem(index);
    if (auto* menu = dynamic_cast<UiStateMenu*>(item)) {
        if (index.column() == 0)
            menu->SetTitle(value.toString());
        else
            menu->SetKey(value.toInt());
    } else if (auto* command = dynamic_cast<UiSpotCommand*>(item)) {
        command->SetStyle(static_cast<Qt::ToolButtonStyle>(value.toInt()));
    }
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags MenusModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    ITreeItem* item = GetItem(index);
    Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled | Qt::ItemIsEnabled;
    const auto* menu = dynamic_cast<UiStateMenu*>(item);
    if (menu && menu->GetPersistence() == UiStateItem::ipOrdinary)
        flags |= Qt::ItemIsEditable;
    else if (!menu)
        flags |= Qt::ItemNeverHasChildren;
    return flags;
}

const SiteTreeModel::DropRules& MenusModel::_Rules() const
{
    static const DropRules rules = _SpotRules(NodeKind::Menu, false);
    return rules;
}

void MenusModel::AddMenu(int row)
{
    if (!mp_root)
        return;
    if (row < 0 || row > mp_root->GetChildCount())
        row = mp_root->GetChildCount();
    auto menu = std::make_unique<UiStateMenu>();
    menu->SetTitle(tr("New Menu"));
    beginInsertRows({}, row, row);
    mp_root->InsertMenu(menu.release(), row);
    _EndInsert();
}

void MenusModel::DeleteRow(const QModelIndex& parent, int row)
{
    if (!_HasRow(parent, row))
        return;
    if (auto* menu = dynamic_cast<UiStateMenu*>(GetItem(parent))) {
        _DeleteSpot(*menu, parent, row);
        return;
    }
    const auto* menu = dynamic_cast<UiStateMenu*>(mp_root->GetChild(row));
    if (!menu || !menu->IsDeleteable())
        return;
    _BeginDelete(parent, row);
    mp_root->DeleteItem(row);
    _EndRemove();
}

void MenusModel::MoveSpots(const QModelIndexList& indexes, const QModelIndex& menu, int row)
{
    _MoveSpots(indexes, menu, row);
}

} // namespace ovk
