#include "ovk/customize/site_models_p.h"

#include "ovk/commands/ui_item.h"
#include "ovk/ui_state/ui_state_composite.h"
#include "ovk/ui_state/ui_state_composites.h"

namespace ovk {

namespace {

UiStateComposite* CompositeOf(ITreeItem* item)
{
    auto* composite = dynamic_cast<UiStateComposite*>(item);
    return composite || !item ? composite : dynamic_cast<UiStateComposite*>(item->GetParent());
}

/// A drop-down without a title of its own goes by that of its first command, as its button does.
QString ShownTitle(const UiStateComposite& composite)
{
    const QString title = composite.GetTitle();
    if (!title.isEmpty() || !dynamic_cast<const UiStateCompositeCommand*>(&composite))
        return title;
    const auto* first = dynamic_cast<UiStateCompositeItem*>(composite.GetAvailableChild(0));
    IUiItem* command = first ? first->GetUiItem() : nullptr;
    return command ? command->GetTitle() : title;
}

/// Whether one more item fits, when those that are in the composite already do not count.
bool FitsOneMore(const SiteTreeModel& model, const DropRequest& drop)
{
    UiStateComposite* composite = CompositeOf(drop.target);
    int count = composite->GetChildCount();
    for (const ITreeItem* item : drop.items) {
        if (item->GetParent() == composite) {
            --count;
            break;
        }
    }
    return count < model.GetMaxItems();
}

bool FitCommands(const SiteTreeModel& model, const DropRequest& drop)
{
    return CompositeOf(drop.target)->GetChildCount() + drop.commands.size() <= model.GetMaxItems();
}

} // namespace

CompositeModel::CompositeModel(QObject* parent) : TSiteModel(2, parent, DragReading::FirstOnly) {}

CompositeModel::~CompositeModel() = default;

int CompositeModel::GetMaxItems() const
{
    return 32;
}

QVariant CompositeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    ITreeItem* item = GetItem(index);
    if (auto* composite = dynamic_cast<UiStateComposite*>(item)) {
        if (index.column() == 0 && role == Qt::EditRole)
            return composite->GetTitle();
        if (index.column() == 0 && role == Qt::DisplayRole)
            return ShownTitle(*composite);
        if (index.column() == 1 && role == Qt::DisplayRole)
            return dynamic_cast<UiStateCompositeMenu*>(composite) ? tr("Menu")
                                                                  : tr("Composite command");
        return {};
    }
    auto* composite_item = dynamic_cast<UiStateCompositeItem*>(item);
    IUiItem* command = composite_item ? composite_item->GetUiItem() : nullptr;
    if (!command || index.column() != 0)
        return {};
    if (role == Qt::DisplayRole)
        return command->GetTitle();
    return role == Qt::DecorationRole ? QVariant(command->GetIcon()) : QVariant();
}

bool CompositeModel::setData(const QModelIndex& index, const QVariant& value, int)
{
    auto* composite = index.isValid() ? dynamic_cast<UiStateComposite*>(GetItem(index)) : nullptr;
    if (!composite)
        return false;
    composite->SetTitle(value.toString());
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags CompositeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = QAbstractItemModel::flags(index) | Qt::ItemIsSelectable |
                          Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled | Qt::ItemIsEnabled;
    if (index.column() == 0 && dynamic_cast<UiStateComposite*>(GetItem(index)))
        flags |= Qt::ItemIsEditable;
    return flags;
}

const SiteTreeModel::DropRules& CompositeModel::_Rules() const
{
    static const DropRules rules = {
        {NodeKind::Composite, NodeKind::Composite, false, nullptr,
         [](SiteTreeModel& model, const DropRequest& drop) {
             static_cast<CompositeModel&>(model).SwapComposites(drop);
         }},
        {NodeKind::Composite, NodeKind::CompositeItem, true, FitsOneMore,
         [](SiteTreeModel& model, const DropRequest& drop) {
             const QModelIndex& source = drop.indexes.first();
             static_cast<CompositeModel&>(model).MoveItem(source.parent(), source.row(), drop.index,
                                                          drop.row);
         }},
        {NodeKind::Composite, NodeKind::Commands, true, FitCommands,
         [](SiteTreeModel& model, const DropRequest& drop) {
             static_cast<CompositeModel&>(model).InsertCompositeItems(drop.index, drop.commands,
                                                                      drop.row);
         }},
        {NodeKind::CompositeItem, NodeKind::CompositeItem, false, FitsOneMore,
         [](SiteTreeModel& model, const DropRequest& drop) {
             const QModelIndex& source = drop.indexes.first();
             static_cast<CompositeModel&>(model).MoveItem(
                 source.parent(), source.row(), drop.index.parent(), drop.index.row() + 1);
         }},
        {NodeKind::CompositeItem, NodeKind::Commands, true, FitCommands,
         [](SiteTreeModel& model, const DropRequest& drop) {
             static_cast<CompositeModel&>(model).InsertCompositeItems(drop.index, drop.commands,
                                                                      -1);
         }},
    };
    return rules;
}

void CompositeModel::AddComposite(std::unique_ptr<UiStateComposite> composite, const QString& title,
                                  int row)
{
    if (!mp_root)
        return;
    if (row < 0 || row > mp_root->GetChildCount())
        row = mp_root->GetChildCount();
    composite->SetTitle(title);
    beginInsertRows({}, row, row);
    mp_root->InsertComposite(composite.release(), row);
    _EndInsert();
}

void CompositeModel::AddMenu(int row)
{
    AddComposite(std::unique_ptr<UiStateComposite>(UiStateComposites::CreateMenu()), tr("New Menu"),
                 row);
}

void CompositeModel::AddCommand(int row)
{
    AddComposite(std::unique_ptr<UiStateComposite>(UiStateComposites::CreateCommand()),
                 tr("New Command"), row);
}

int CompositeModel::DeleteRow(const QModelIndex& parent, int row)
{
    if (!_HasRow(parent, row))
        return 0;
    auto* composite = dynamic_cast<UiStateComposite*>(GetItem(parent));
    _BeginDelete(parent, row);
    // Not DeleteItem, which counts twice: the row that is announced is the one that goes.
    if (composite)
        delete composite->RemoveItem(row);
    else
        mp_root->DeleteComposite(row);
    _EndRemove();
    return composite ? 2 : 1;
}

void CompositeModel::InsertCompositeItems(const QModelIndex& index, const QList<IUiItem*>& commands,
                                          int row)
{
    QModelIndex target = RowIndex(index);
    ITreeItem* item = GetItem(index);
    if (dynamic_cast<UiStateCompositeItem*>(item)) {
        row = index.row() + 1;
        target = index.parent();
        item = item->GetParent();
    }
    auto* composite = dynamic_cast<UiStateComposite*>(item);
    if (!composite)
        return;
    const int available = composite->GetAvailableCount();
    if (row < 0 || row >= available)
        row = available;
    QList<IUiItem*> wanted;
    for (IUiItem* command : commands) {
        if (command && !composite->IsContains(command) && !wanted.contains(command))
            wanted.append(command);
    }
    if (wanted.isEmpty())
        return;
    beginInsertRows(target, row, row + wanted.size() - 1);
    for (IUiItem* command : wanted)
        composite->InsertItem(std::make_unique<UiStateCompositeItem>(*command).release(), row);
    _EndInsert();
}

void CompositeModel::MoveItem(const QModelIndex& sourceParent, int sourceRow,
                              const QModelIndex& targetParent, int row)
{
    auto* source = dynamic_cast<UiStateComposite*>(GetItem(sourceParent));
    auto* target = dynamic_cast<UiStateComposite*>(GetItem(targetParent));
    if (!source || !target || !_HasRow(RowIndex(sourceParent), sourceRow))
        return;
    const bool same = source == target;
    const int last = target->GetAvailableCount() - (same ? 1 : 0);
    if (row < 0 || row > last)
        row = last;
    if (same && row == sourceRow)
        return;
    const auto* item = dynamic_cast<UiStateCompositeItem*>(source->GetAvailableChild(sourceRow));
    if (!same && target->IsContains(item->GetUiItem()))
        return;
    // The row counts after the item was taken out, and the announcement before.
    const int announced = same && row > sourceRow ? row + 1 : row;
    if (!beginMoveRows(RowIndex(sourceParent), sourceRow, sourceRow, RowIndex(targetParent),
                       announced))
        return;
    target->InsertItem(source->RemoveItem(sourceRow), row);
    _EndMove();
}

void CompositeModel::SwapComposites(const DropRequest& request)
{
    const int first = request.indexes.first().row();
    const int second = request.index.row();
    const int larger = qMax(first, second);
    const int smaller = qMin(first, second);
    // A swap told as a move: the views that are used with this model keep their selection by it.
    beginMoveRows({}, larger, larger, {}, smaller);
    mp_root->Swap(larger, smaller);
    _EndMove();
}

} // namespace ovk
