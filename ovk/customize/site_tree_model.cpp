#include "ovk/customize/site_tree_model_p.h"

#include "ovk/commands/composite_command.h"
#include "ovk/commands/ui_command.h"
#include "ovk/core/icons_controller.h"
#include "ovk/customize/drag_source_p.h"
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

#include <typeinfo>

namespace ovk {

namespace {

bool IsOfOneKind(const ITreeItem& a, const ITreeItem& b)
{
    return typeid(a) == typeid(b) ||
           (dynamic_cast<const UiSpot*>(&a) && dynamic_cast<const UiSpot*>(&b));
}

} // namespace

const QStringList buttonStyles = {QStringLiteral("Icon Only"), QStringLiteral("Text Only"),
                                  QStringLiteral("Text Beside Icon"),
                                  QStringLiteral("Text Under Icon")};

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

QModelIndex SiteTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    ITreeItem* item = GetItem(parent);
    auto* available = dynamic_cast<IStateAvailable*>(item);
    ITreeItem* child = available ? available->GetAvailableChild(row) : item->GetChild(row);
    return child ? createIndex(row, column, child) : QModelIndex();
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
    if (parent.column() > 0)
        return 0;
    ITreeItem* item = GetItem(parent);
    if (!item)
        return 0;
    auto* available = dynamic_cast<IStateAvailable*>(item);
    return available ? available->GetAvailableCount() : item->GetChildCount();
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
    beginInsertRows(parent, row, row);
    spots->InsertSpot(row, spots->CreateSeparatorSpot());
    endInsertRows();
}

bool SiteTreeModel::_IsLocked(ITreeItem* item)
{
    const auto* state = dynamic_cast<UiStateItem*>(item);
    return state && !state->IsDeleteable() && !dynamic_cast<const UiStateMenu*>(state);
}

bool SiteTreeModel::CanInsert(const QModelIndex& index, int count) const
{
    ITreeItem* item = GetItem(index);
    ITreeItem* container = dynamic_cast<UiSpot*>(item) ? item->GetParent() : item;
    if (!dynamic_cast<UiStateCommandSpots*>(container) || _IsLocked(item))
        return false;
    return container->GetChildCount() + count <= GetMaxItems();
}

bool SiteTreeModel::CanMove(const QModelIndex& index, const QModelIndexList& indexes) const
{
    ITreeItem* item = GetItem(index);
    ITreeItem* container = dynamic_cast<UiSpot*>(item) ? item->GetParent() : item;
    int count = 0;
    for (const QModelIndex& moved : indexes) {
        if (!moved.isValid() || GetItem(moved)->GetParent() != container)
            ++count;
    }
    return CanInsert(index, count);
}

void SiteTreeModel::InsertCommands(const QModelIndex& index, const QList<IUiItem*>& commands, int row)
{
    QModelIndex target = index;
    ITreeItem* item = GetItem(index);
    if (dynamic_cast<UiSpot*>(item)) {
        row = index.row() + 1;
        target = index.parent();
        item = item->GetParent();
    }
    auto* spots = dynamic_cast<UiStateCommandSpots*>(item);
    if (!spots)
        return;
    const int available = spots->GetAvailableCount();
    if (row < 0 || row >= available)
        row = available;

    QList<IUiItem*> wanted;
    for (IUiItem* command : commands) {
        if (command && !spots->IsContains(command) && !wanted.contains(command))
            wanted.append(command);
    }
    if (wanted.isEmpty())
        return;
    beginInsertRows(target, row, row + wanted.size() - 1);
    for (IUiItem* command : wanted) {
        UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(*command);
        spot->SetStyle(GetDefaultButtonStyle());
        spots->InsertSpot(row, spot);
    }
    endInsertRows();
}

void SiteTreeModel::InsertCompositeCommand(UiStateComposite& composite, const QModelIndex& index,
                                           int row)
{
    // A composite that no spot shows so far has no button yet.
    composite.Activate(UiProfileItem::amOrdinary);
    if (ICompositeCommand* command = composite.GetCommand())
        InsertCommands(index, {command}, row);
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
        {NodeKind::Group, [](ITreeItem* node) { return dynamic_cast<UiStateRibbonGroup*>(node) != nullptr; }},
        {NodeKind::Page, [](ITreeItem* node) { return dynamic_cast<UiStateRibbonPage*>(node) != nullptr; }},
        {NodeKind::Toolbar, [](ITreeItem* node) { return dynamic_cast<UiStateToolbar*>(node) != nullptr; }},
        {NodeKind::Menu, [](ITreeItem* node) { return dynamic_cast<UiStateMenu*>(node) != nullptr; }},
        {NodeKind::QuickAccessBar, [](ITreeItem* node) { return dynamic_cast<UiStateQAB*>(node) != nullptr; }},
        {NodeKind::Composite, [](ITreeItem* node) { return dynamic_cast<UiStateComposite*>(node) != nullptr; }},
        {NodeKind::CompositeItem, [](ITreeItem* node) { return dynamic_cast<UiStateCompositeItem*>(node) != nullptr; }},
        {NodeKind::Ribbon, [](ITreeItem* node) { return dynamic_cast<UiStateRibbon*>(node) != nullptr; }},
        {NodeKind::Toolbars, [](ITreeItem* node) { return dynamic_cast<UiStateToolbars*>(node) != nullptr; }},
        {NodeKind::Menus, [](ITreeItem* node) { return dynamic_cast<UiStateMenus*>(node) != nullptr; }},
        {NodeKind::Composites, [](ITreeItem* node) { return dynamic_cast<UiStateComposites*>(node) != nullptr; }},
    };
    for (const Row& row : c_rows) {
        if (item && row.is(item))
            return row.kind;
    }
    return NodeKind::None;
}

bool SiteTreeModel::_ReadDrag(const QModelIndex& parent, int row, DropRequest& request,
                              DragReading reading) const
{
    request.index = parent;
    request.row = row;
    request.target = GetItem(parent);
    request.target_kind = KindOf(request.target);
    if (!request.target)
        return false;

    IDragSource* source = GetDragSource();
    if (auto* one = dynamic_cast<DragSource<QModelIndex>*>(source)) {
        request.indexes.append(*one->GetPayload());
    } else if (auto* list = dynamic_cast<DragSource<QModelIndexList>*>(source)) {
        request.indexes = *list->GetPayload();
    } else if (auto* commands = dynamic_cast<DragSource<QList<IUiItem*>>*>(source)) {
        request.commands = *commands->GetPayload();
        request.first = NodeKind::Commands;
        return true;
    }
    for (const QModelIndex& index : request.indexes) {
        auto* item = static_cast<ITreeItem*>(index.internalPointer());
        if (!index.isValid() || !item)
            return false;
        const bool counts = reading == DragReading::All;
        if (counts && request.First() && !IsOfOneKind(*request.First(), *item))
            return false;
        request.items.append(item);
    }
    request.first = KindOf(request.First());
    return true;
}

const SiteTreeModel::DropRule* SiteTreeModel::_FindRule(const DropRules& rules,
                                                        const DropRequest& request) const
{
    // Nodes move inside their own tree only; a composite becomes a button anywhere.
    if (request.first != NodeKind::Composite) {
        for (const QModelIndex& index : request.indexes) {
            if (index.model() != this)
                return nullptr;
        }
    }
    for (const DropRule& rule : rules) {
        if (rule.target == request.target_kind && rule.first == request.first)
            return rule.on_itself || !request.items.contains(request.target) ? &rule : nullptr;
    }
    return nullptr;
}

bool SiteTreeModel::_CanDrop(const DropRules& rules, const DropRequest& request) const
{
    const DropRule* rule = _FindRule(rules, request);
    return rule && (!rule->allowed || rule->allowed(*this, request));
}

bool SiteTreeModel::_Drop(const DropRules& rules, const QMimeData* data, Qt::DropAction action,
                          int row, const QModelIndex& parent, DragReading reading)
{
    if (action == Qt::IgnoreAction)
        return true;
    if (!data || !data->hasFormat(CustomizeMimeType()))
        return false;
    DropRequest request;
    if (!_ReadDrag(parent, row, request, reading))
        return false;
    const DropRule* rule = _FindRule(rules, request);
    if (!rule)
        return false;
    const QScopedValueRollback<bool> dropping(m_dropping, true);
    rule->effect(*this, request);
    return true;
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

SiteTreeModel::DropRules SiteTreeModel::_SpotRules(NodeKind container, bool takes_composites)
{
    DropRules rules = {
        {container, NodeKind::Commands, true,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanInsert(drop.index, drop.commands.size());
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model.InsertCommands(drop.index, drop.commands, drop.row);
         }},
        {container, NodeKind::Spot, true,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanMove(drop.index, drop.indexes);
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model._MoveSpots(drop.indexes, drop.index, drop.row);
         }},
        {NodeKind::Spot, NodeKind::Commands, true,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanInsert(drop.index.parent(), drop.commands.size());
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model.InsertCommands(drop.index, drop.commands, -1);
         }},
        {NodeKind::Spot, NodeKind::Spot, false,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanMove(drop.index.parent(), drop.indexes);
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model._MoveSpots(drop.indexes, drop.index.parent(), drop.index.row() + 1);
         }},
    };
    if (!takes_composites)
        return rules;
    rules += DropRules{
        {container, NodeKind::Composite, true,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanInsert(drop.index, 1);
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model.InsertCompositeCommand(*dynamic_cast<UiStateComposite*>(drop.First()), drop.index,
                                          drop.row);
         }},
        {NodeKind::Spot, NodeKind::Composite, true,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanInsert(drop.index.parent(), 1);
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model.InsertCompositeCommand(*dynamic_cast<UiStateComposite*>(drop.First()), drop.index,
                                          -1);
         }},
    };
    return rules;
}

void SiteTreeModel::_MoveNodes(const QModelIndexList& indexes, const QModelIndex& target, int row,
                               const std::function<ITreeItem*(ITreeItem&, int)>& take,
                               const std::function<void(ITreeItem&, int)>& put)
{
    ITreeItem* container = GetItem(target);
    const int count = rowCount(target);
    if (row < 0 || row > count)
        row = count;

    QList<ITreeItem*> kept;
    int shift = 0;
    for (const QModelIndex& index : indexes) {
        ITreeItem* item = GetItem(index);
        ITreeItem* source = item->GetParent();
        const int source_row = source ? _RowOf(*source, *item) : -1;
        if (source_row < 0)
            continue;
        beginRemoveRows(index.parent(), source_row, source_row);
        kept.append(take(*source, source_row));
        endRemoveRows();
        if (source == container && source_row < row)
            ++shift;
    }
    if (kept.isEmpty())
        return;
    // Later rows were kept first, so that inserting each at the same row restores the order.
    beginInsertRows(target, row - shift, row - shift + kept.size() - 1);
    for (ITreeItem* item : kept)
        put(*item, row - shift);
    endInsertRows();
}

void SiteTreeModel::_MoveSpots(const QModelIndexList& indexes, const QModelIndex& target, int row)
{
    auto* spots = dynamic_cast<UiStateCommandSpots*>(GetItem(target));
    if (!spots)
        return;
    QModelIndexList movable;
    for (const QModelIndex& index : indexes) {
        ITreeItem* item = GetItem(index);
        if (!dynamic_cast<UiSpot*>(item))
            continue;
        const auto* command = dynamic_cast<UiSpotCommand*>(item);
        if (item->GetParent() == spots || !command || !spots->IsContains(command->GetUiItem()))
            movable.append(index);
    }
    _MoveNodes(
        movable, target, row,
        [](ITreeItem& source, int at) -> ITreeItem* {
            return dynamic_cast<UiStateCommandSpots&>(source).RemoveSpot(at);
        },
        [spots](ITreeItem& spot, int at) { spots->InsertSpot(at, dynamic_cast<UiSpot*>(&spot)); });
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
    beginRemoveRows(parent, row, row);
    spots.DeleteSpot(row);
    endRemoveRows();
}

void SiteTreeModel::_BeginReset()
{
    const auto* list = dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource());
    const auto* one = dynamic_cast<DragSource<QModelIndex>*>(GetDragSource());
    if ((list && !list->GetPayload()->isEmpty() && list->GetPayload()->first().model() == this) ||
        (one && one->GetPayload()->model() == this))
        SetDragSource(nullptr);
    beginResetModel();
}

void SiteTreeModel::_EndReset()
{
    endResetModel();
}

} // namespace ovk

#include "moc_site_tree_model_p.cpp"
