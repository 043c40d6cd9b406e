#include "ovk/customize/site_tree_model_p.h"

#include "ovk/commands/commands_generation_p.h"
#include "ovk/commands/composite_command.h"
#include "ovk/commands/ui_command.h"
#include "ovk/core/icons_controller.h"
#include "ovk/customize/drag_source_p.h"
#include "ovk/ui_state/layout_lifetime_p.h"
#include "ovk/ui_state/features/ui_features_controller.h"
#include "ovk/ui_state/ui_spot.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_command_spots.h"
#include "ovk/ui_state/ui_state_composite.h"
#include "ovk/ui_state/ui_state_composites.h"
#include "ovk/ui_state/ui_state_menu.h"
#include "ovk/ui_state/ui_state_menus.h"
#include "ovk/ui_state/ui_state_quick_access_bar.h"
#include "ovk/ui_state/ui_state_ribbon.h"
#include "ovk/ui_state/ui_state_ribbon_group.h"
#include "ovk/ui_state/ui_state_ribbon_page.h"
#include "ovk/ui_state/ui_state_toolbar.h"
#include "ovk/ui_state/ui_state_toolbars.h"

#include <QApplication>
#include <QDataStream>
#include <QMimeData>
#include <QPalette>

#include <algorithm>
#include <cstdlib>

namespace ovk {

// The rows of the list are the values of Qt::ToolButtonStyle.
const QStringList buttonStyles = {QT_TRANSLATE_NOOP("buttonStyles", "Icon Only"),
                                  QT_TRANSLATE_NOOP("buttonStyles", "Text Only"),
                                  QT_TRANSLATE_NOOP("buttonStyles", "Text Beside Icon"),
                                  QT_TRANSLATE_NOOP("buttonStyles", "Text Under Icon")};

namespace {

/// Whether a node is shown: what is not offered in this product stays in the tree, unseen.
bool IsOffered(ITreeItem* child)
{
    if (const auto* spot = dynamic_cast<UiSpotCommand*>(child))
        return spot->GetUiItem();
    if (const auto* item = dynamic_cast<UiStateCompositeItem*>(child))
        return item->GetUiItem();
    return child;
}

QVector<ITreeItem*> OfferedChildren(ITreeItem* item)
{
    QVector<ITreeItem*> offered;
    const int count = item->GetChildCount();
    offered.reserve(count);
    for (int i = 0; i < count; ++i) {
        ITreeItem* child = item->GetChild(i);
        if (IsOffered(child))
            offered.append(child);
    }
    return offered;
}

} // namespace

const QString& CustomizeMimeType()
{
    static const QString type = QStringLiteral("corvantique/ovk.commands.customize");
    return type;
}

QString ButtonStyleName(int style)
{
    const int row = std::abs(style % buttonStyles.size());
    return QCoreApplication::translate("buttonStyles", buttonStyles.at(row).toUtf8().constData());
}

bool SiteTreeModel::ComesFirst(const QModelIndex& a, const QModelIndex& b)
{
    const QModelIndex parent_a = a.parent();
    const QModelIndex parent_b = b.parent();
    if (parent_a == parent_b || !parent_a.isValid() || !parent_b.isValid())
        return a.row() > b.row();
    return ComesFirst(parent_a, parent_b);
}

SiteTreeModel::SiteTreeModel(int columns, QObject* parent)
    : QAbstractItemModel(parent),
      m_composite_icon(IconsController::Load(QStringLiteral("dockFold"))), m_columns(columns)
{
}

SiteTreeModel::~SiteTreeModel() = default;

ITreeItem* SiteTreeModel::GetItem(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<ITreeItem*>(index.internalPointer()) : GetRootItem();
}

const QVector<ITreeItem*>& SiteTreeModel::_Rows(ITreeItem* item) const
{
    const int children = item->GetChildCount();
    const quint64 generation = impl::CommandsGeneration();
    Rows& rows = m_rows[item];
    if (rows.children == children && rows.generation == generation)
        return rows.shown;
    QVector<ITreeItem*> shown = OfferedChildren(item);
    m_changed_unheard = m_changed_unheard || (rows.children >= 0 && rows.shown != shown);
    rows = {children, generation, std::move(shown)};
    return rows.shown;
}

bool SiteTreeModel::_IsAsShown(ITreeItem* item) const
{
    const auto known = m_rows.constFind(item);
    if (known == m_rows.constEnd())
        return true;
    const QVector<ITreeItem*> present = OfferedChildren(item);
    return present == known->shown &&
           std::all_of(present.cbegin(), present.cend(),
                       [this](ITreeItem* child) { return _IsAsShown(child); });
}

void SiteTreeModel::Refresh()
{
    ITreeItem* root = GetRootItem();
    if (!root || (!m_changed_unheard && _IsAsShown(root)))
        return;
    _BeginReset();
    _EndReset();
}

QModelIndex SiteTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    ITreeItem* item = parent.column() > 0 ? nullptr : GetItem(parent);
    if (!item || row < 0 || column < 0 || column >= m_columns)
        return {};
    const QVector<ITreeItem*>& rows = _Rows(item);
    return row < rows.size() ? createIndex(row, column, rows.at(row)) : QModelIndex();
}

QModelIndex SiteTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    ITreeItem* parent = GetItem(index)->GetParent();
    if (!parent || parent == GetRootItem())
        return {};
    return createIndex(static_cast<const ITreeItem*>(parent)->GetIndexOf(), 0, parent);
}

int SiteTreeModel::rowCount(const QModelIndex& parent) const
{
    ITreeItem* item = parent.column() > 0 ? nullptr : GetItem(parent);
    return item ? _Rows(item).size() : 0;
}

int SiteTreeModel::columnCount(const QModelIndex&) const
{
    return m_columns;
}

QStringList SiteTreeModel::mimeTypes() const
{
    return {CustomizeMimeType()};
}

QMimeData* SiteTreeModel::mimeData(const QModelIndexList& indexes) const
{
    auto rows = std::make_unique<QModelIndexList>();
    for (const QModelIndex& index : indexes) {
        const QModelIndex first = index.sibling(index.row(), 0);
        if (first.isValid() && !rows->contains(first))
            rows->append(first);
    }
    std::stable_sort(rows->begin(), rows->end(), ComesFirst);
    SetDragSource(std::make_unique<DragSource<QModelIndexList>>(rows.release()));
    auto data = std::make_unique<QMimeData>();
    data->setData(CustomizeMimeType(), QByteArray());
    return data.release();
}

bool SiteTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                 const QModelIndex& parent)
{
    if (action == Qt::IgnoreAction)
        return true;
    if (!data || !data->hasFormat(CustomizeMimeType()))
        return false;
    const QByteArray bytes = data->data(CustomizeMimeType());
    QDataStream stream(bytes);
    UiFeaturesController* features = UiFeaturesController::GetInstance();
    QList<IUiItem*> commands;
    while (features && !stream.atEnd()) {
        QString id;
        stream >> id;
        if (stream.status() != QDataStream::Ok)
            break;
        if (UiCommand* command = features->GetAvailableCommandFromActiveLayout(id, 0))
            commands.append(command);
    }
    InsertCommands(parent, commands, -1);
    return true;
}

Qt::ToolButtonStyle SiteTreeModel::GetDefaultButtonStyle() const
{
    return Qt::ToolButtonIconOnly;
}

void SiteTreeModel::AddSeparator(const QModelIndex& parent, int row)
{
    auto* spots = dynamic_cast<UiStateCommandSpots*>(GetItem(parent));
    if (!spots)
        return;
    const int count = spots->GetAvailableCount();
    if (row < 0 || row > count)
        row = count;
    beginInsertRows(RowIndex(parent), row, row);
    spots->InsertSpot(row, spots->CreateSeparatorSpot());
    _EndInsert();
}

bool SiteTreeModel::_IsLocked(ITreeItem* item)
{
    const auto* state = dynamic_cast<UiStateItem*>(item);
    return state && !state->IsDeleteable() && !dynamic_cast<const UiStateMenu*>(state);
}

NodeKind SiteTreeModel::KindOf(ITreeItem* item)
{
    struct Row
    {
        NodeKind kind;
        bool (*is)(ITreeItem*);
    };
    static const Row c_rows[] = {
        {NodeKind::Spot, [](ITreeItem* node) { return dynamic_cast<UiSpot*>(node) != nullptr; }},
        {NodeKind::Group,
         [](ITreeItem* node) { return dynamic_cast<UiStateRibbonGroup*>(node) != nullptr; }},
        {NodeKind::Page,
         [](ITreeItem* node) { return dynamic_cast<UiStateRibbonPage*>(node) != nullptr; }},
        {NodeKind::Toolbar,
         [](ITreeItem* node) { return dynamic_cast<UiStateToolbar*>(node) != nullptr; }},
        {NodeKind::Menu,
         [](ITreeItem* node) { return dynamic_cast<UiStateMenu*>(node) != nullptr; }},
        {NodeKind::QuickAccessBar,
         [](ITreeItem* node) { return dynamic_cast<UiStateQAB*>(node) != nullptr; }},
        {NodeKind::Composite,
         [](ITreeItem* node) { return dynamic_cast<UiStateComposite*>(node) != nullptr; }},
        {NodeKind::CompositeItem,
         [](ITreeItem* node) { return dynamic_cast<UiStateCompositeItem*>(node) != nullptr; }},
        {NodeKind::Ribbon,
         [](ITreeItem* node) { return dynamic_cast<UiStateRibbon*>(node) != nullptr; }},
        {NodeKind::Toolbars,
         [](ITreeItem* node) { return dynamic_cast<UiStateToolbars*>(node) != nullptr; }},
        {NodeKind::Menus,
         [](ITreeItem* node) { return dynamic_cast<UiStateMenus*>(node) != nullptr; }},
        {NodeKind::Composites,
         [](ITreeItem* node) { return dynamic_cast<UiStateComposites*>(node) != nullptr; }},
    };
    for (const Row& row : c_rows) {
        if (item && row.is(item))
            return row.kind;
    }
    return NodeKind::None;
}

int SiteTreeModel::_RowOf(ITreeItem& parent, ITreeItem& child) const
{
    if (auto* available = dynamic_cast<IStateAvailable*>(&parent)) {
        for (int row = 0; row < available->GetAvailableCount(); ++row) {
            if (available->GetAvailableChild(row) == &child)
                return row;
        }
        return -1;
    }
    return parent.GetIndexOf(&child);
}

QVariant SiteTreeModel::_CheckState(ITreeItem* item)
{
    const auto* state = dynamic_cast<UiProfileItem*>(item);
    return state && state->IsVisible() ? Qt::Checked : Qt::Unchecked;
}

QVariant SiteTreeModel::_LockedForeground(ITreeItem* item)
{
    const auto* state = dynamic_cast<UiStateItem*>(item);
    if (!state || state->IsDeleteable())
        return {};
    return QApplication::palette().color(QPalette::Disabled, QPalette::Text);
}

QVariant SiteTreeModel::_SpotData(ITreeItem* item, int column, int role) const
{
    if (dynamic_cast<UiSpotSeparator*>(item))
        return role == Qt::DisplayRole ? QVariant(QStringLiteral("--")) : QVariant();
    auto* spot = dynamic_cast<UiSpotCommand*>(item);
    IUiItem* command = spot ? spot->GetUiItem() : nullptr;
    if (!command)
        return {};
    if (column == 0 && role == Qt::DisplayRole)
        return command->GetTitle();
    if (column == 0 && role == Qt::DecorationRole)
        return command->GetIcon();
    if (column == 1 && (role == Qt::DisplayRole || role == Qt::EditRole))
        return ButtonStyleName(spot->GetStyle());
    if (column == 2 && role == Qt::DecorationRole && dynamic_cast<ICompositeCommand*>(command))
        return m_composite_icon;
    return {};
}

bool SiteTreeModel::_HasRow(const QModelIndex& parent, int row) const
{
    return row >= 0 && row < rowCount(parent);
}

void SiteTreeModel::_DeleteSpot(UiStateCommandSpots& spots, const QModelIndex& parent, int row)
{
    _BeginDelete(parent, row);
    spots.DeleteSpot(row);
    _EndRemove();
}

void SiteTreeModel::_BeginReset()
{
    ForgetDraggedRows(*this);
    beginResetModel();
}

void SiteTreeModel::_EndReset()
{
    m_rows.clear();
    m_changed_unheard = false;
    endResetModel();
}

void SiteTreeModel::_EndInsert()
{
    m_rows.clear();
    endInsertRows();
}

void SiteTreeModel::_EndRemove()
{
    m_rows.clear();
    endRemoveRows();
}

void SiteTreeModel::_EndMove()
{
    m_rows.clear();
    endMoveRows();
}

void SiteTreeModel::_Follow(UiLayout* layout, const std::function<void()>& gone)
{
    disconnect(m_layout_gone);
    if (layout)
        m_layout_gone = connect(&impl::LifetimeOf(*layout), &QObject::destroyed, this, gone);
}

void SiteTreeModel::_BeginDelete(const QModelIndex& parent, int row)
{
    // What was dragged last may be what goes, or lie below it.
    ForgetDraggedRows(*this);
    beginRemoveRows(parent, row, row);
}

} // namespace ovk

#include "moc_site_tree_model_p.cpp"
