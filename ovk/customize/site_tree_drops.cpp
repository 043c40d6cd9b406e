#include "ovk/customize/site_tree_model_p.h"

#include "ovk/commands/composite_command.h"
#include "ovk/customize/drag_source_p.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_command_spots.h"
#include "ovk/ui_state/ui_state_composite.h"

#include <QMimeData>
#include <QScopedValueRollback>

#include <typeinfo>

// What may be dropped where in the trees of the sites, and what a drop does.

namespace ovk {

namespace {

bool IsOfOneKind(const ITreeItem& a, const ITreeItem& b)
{
    return typeid(a) == typeid(b) ||
           (dynamic_cast<const UiSpot*>(&a) && dynamic_cast<const UiSpot*>(&b));
}

} // namespace

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

void SiteTreeModel::InsertCommands(const QModelIndex& index, const QList<IUiItem*>& commands,
                                   int row)
{
    QModelIndex target = RowIndex(index);
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
    _EndInsert();
}

void SiteTreeModel::InsertCompositeCommand(UiStateComposite& composite, const QModelIndex& index,
                                           int row)
{
    // A composite that no spot shows so far has no button yet.
    composite.Activate(UiProfileItem::amOrdinary);
    if (ICompositeCommand* command = composite.GetCommand())
        InsertCommands(index, {command}, row);
}

bool SiteTreeModel::_ReadDrag(const QModelIndex& parent, int row, DropRequest& request,
                              DragReading reading) const
{
    request.index = RowIndex(parent);
    request.row = row;
    request.first_only = reading == DragReading::FirstOnly;
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
            return rule.on_itself || !request.IsOnItself() ? &rule : nullptr;
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
             model.InsertCompositeCommand(*dynamic_cast<UiStateComposite*>(drop.First()),
                                          drop.index, drop.row);
         }},
        {NodeKind::Spot, NodeKind::Composite, true,
         [](const SiteTreeModel& model, const DropRequest& drop) {
             return model.CanInsert(drop.index.parent(), 1);
         },
         [](SiteTreeModel& model, const DropRequest& drop) {
             model.InsertCompositeCommand(*dynamic_cast<UiStateComposite*>(drop.First()),
                                          drop.index, -1);
         }},
    };
    return rules;
}

void SiteTreeModel::_MoveNodes(const QModelIndexList& indexes, const QModelIndex& wanted, int row,
                               const std::function<ITreeItem*(ITreeItem&, int)>& take,
                               const std::function<void(ITreeItem&, int)>& put)
{
    const QModelIndex target = RowIndex(wanted);
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
        _EndRemove();
        if (source == container && source_row < row)
            ++shift;
    }
    if (kept.isEmpty())
        return;
    // Later rows were kept first, so that inserting each at the same row restores the order.
    beginInsertRows(target, row - shift, row - shift + kept.size() - 1);
    for (ITreeItem* item : kept)
        put(*item, row - shift);
    _EndInsert();
}

void SiteTreeModel::_MoveSpots(const QModelIndexList& indexes, const QModelIndex& target, int row)
{
    auto* spots = dynamic_cast<UiStateCommandSpots*>(GetItem(target));
    if (!spots)
        return;
    QModelIndexList movable;
    QList<const IUiItem*> arriving;
    for (const QModelIndex& index : indexes) {
        ITreeItem* item = GetItem(index);
        if (!dynamic_cast<UiSpot*>(item))
            continue;
        const auto* command = dynamic_cast<UiSpotCommand*>(item);
        const IUiItem* arrived = command ? command->GetUiItem() : nullptr;
        if (item->GetParent() != spots && arrived) {
            // Each command at most once, also when two groups send the same one.
            if (spots->IsContains(arrived) || arriving.contains(arrived))
                continue;
            arriving.append(arrived);
        }
        movable.append(index);
    }
    _MoveNodes(
        movable, target, row,
        [](ITreeItem& source, int at) -> ITreeItem* {
            return dynamic_cast<UiStateCommandSpots&>(source).RemoveSpot(at);
        },
        [spots](ITreeItem& spot, int at) { spots->InsertSpot(at, dynamic_cast<UiSpot*>(&spot)); });
}

} // namespace ovk
