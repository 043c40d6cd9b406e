#include "ovk/customize/site_models_p.h"

#include "ovk/ui_state/ui_spot.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_toolbar.h"
#include "ovk/ui_state/ui_state_toolbars.h"

namespace ovk {

ToolbarsModel::ToolbarsModel(QObject* parent) : TSiteModel(3, parent) {}

ToolbarsModel::~ToolbarsModel() = default;

int ToolbarsModel::GetMaxItems() const
{
    return 64;
}

QVariant ToolbarsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    ITreeItem* item = GetItem(index);
    if (role == Qt::CheckStateRole)
        return index.column() == 0 ? _CheckState(item) : QVariant();
    if (role == Qt::ForegroundRole)
        return _LockedForeground(item);
    if (auto* toolbar = dynamic_cast<UiStateToolbar*>(item)) {
        const bool title = index.column() == 0 && (role == Qt::DisplayRole || role == Qt::EditRole);
        return title ? QVariant(toolbar->GetTitle()) : QVariant();
    }
    return _SpotData(item, index.column(), role);
}

bool ToolbarsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid())
        return false;
    ITreeItem* item = GetItem(index);
    if (role == Qt::CheckStateRole) {
        dynamic_cast<UiStateItem*>(item)->SetVisible(value.toInt() == Qt::Checked);
        return true;
    }
    auto* toolbar = dynamic_cast<UiStateToolbar*>(item);
    auto* command = dynamic_cast<UiSpotCommand*>(item);
    if (toolbar && index.column() == 0)
        toolbar->SetTitle(value.toString());
    else if (command && index.column() == 1)
        command->SetStyle(static_cast<Qt::ToolButtonStyle>(value.toInt()));
    else
        return false;
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags ToolbarsModel::flags(const QModelIndex& index) const
{
    // Tool bars are dropped on the empty part of the view.
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    ITreeItem* item = GetItem(index);
    Qt::ItemFlags flags =
        Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled | Qt::ItemIsEnabled;
    if (index.column() == 0)
        flags |= Qt::ItemIsUserCheckable;
    switch (KindOf(item)) {
    case NodeKind::Toolbar:
        if (index.column() == 0)
            flags |= Qt::ItemIsEditable;
        break;
    case NodeKind::Spot:
        flags |= Qt::ItemNeverHasChildren;
        if (index.column() == 1 && dynamic_cast<UiSpotCommand*>(item))
            flags |= Qt::ItemIsEditable;
        break;
    default:
        break;
    }
    return flags;
}

const SiteTreeModel::DropRules& ToolbarsModel::_Rules() const
{
    static const DropRules rules =
        DropRules{
            {NodeKind::Toolbars, NodeKind::Toolbar, true, nullptr,
             [](SiteTreeModel& model, const DropRequest& drop) {
                 static_cast<ToolbarsModel&>(model).MoveToolbars(drop.indexes, drop.row);
             }},
            {NodeKind::Toolbar, NodeKind::Toolbar, false, nullptr,
             [](SiteTreeModel& model, const DropRequest& drop) {
                 static_cast<ToolbarsModel&>(model).MoveToolbars(drop.indexes,
                                                                 drop.index.row() + 1);
             }},
        } +
        _SpotRules(NodeKind::Toolbar, true);
    return rules;
}

void ToolbarsModel::AddToolbar(int row)
{
    if (!mp_root)
        return;
    if (row < 0 || row > mp_root->GetChildCount())
        row = mp_root->GetChildCount();
    auto toolbar = std::make_unique<UiStateToolbar>();
    toolbar->SetTitle(tr("New Toolbar"));
    beginInsertRows({}, row, row);
    UiStateToolbar* added = toolbar.release();
    mp_root->InsertChild(row, added);
    if (mp_root->IsActive())
        added->Activate(UiProfileItem::amOrdinary);
    _EndInsert();
}

void ToolbarsModel::DeleteRow(const QModelIndex& parent, int row)
{
    if (!_HasRow(parent, row))
        return;
    if (auto* toolbar = dynamic_cast<UiStateToolbar*>(GetItem(parent))) {
        _DeleteSpot(*toolbar, parent, row);
        return;
    }
    _BeginDelete(parent, row);
    mp_root->DeleteItem(row);
    _EndRemove();
}

void ToolbarsModel::MoveToolbars(const QModelIndexList& indexes, int row)
{
    if (!mp_root)
        return;
    _MoveNodes(
        indexes, {}, row, [this](ITreeItem&, int at) { return mp_root->RemoveChild(at); },
        [this](ITreeItem& toolbar, int at) { mp_root->InsertChild(at, &toolbar); });
}

void ToolbarsModel::MoveSpots(const QModelIndexList& indexes, const QModelIndex& toolbar, int row)
{
    _MoveSpots(indexes, toolbar, row);
}

} // namespace ovk
