#include "ovk/customize/site_models_p.h"

#include "ovk/ui_state/ui_spot.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_ribbon.h"
#include "ovk/ui_state/ui_state_ribbon_group.h"
#include "ovk/ui_state/ui_state_ribbon_page.h"

namespace ovk {

namespace {

constexpr Qt::ItemFlags c_node_flags =
    Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled | Qt::ItemIsEnabled;

RibbonModel& Model(SiteTreeModel& model)
{
    return static_cast<RibbonModel&>(model);
}

} // namespace

RibbonModel::RibbonModel(QObject* parent) : TSiteModel(3, parent) {}

RibbonModel::~RibbonModel() = default;

int RibbonModel::GetMaxItems() const
{
    return 128;
}

Qt::ToolButtonStyle RibbonModel::GetDefaultButtonStyle() const
{
    return Qt::ToolButtonTextUnderIcon;
}

QVariant RibbonModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    ITreeItem* item = GetItem(index);
    if (role == Qt::CheckStateRole)
        return index.column() == 0 ? _CheckState(item) : QVariant();
    if (role == Qt::ForegroundRole)
        return _LockedForeground(item);
    const bool title = index.column() == 0 && (role == Qt::DisplayRole || role == Qt::EditRole);
    if (auto* page = dynamic_cast<UiStateRibbonPage*>(item))
        return title ? QVariant(page->GetTitle()) : QVariant();
    if (auto* group = dynamic_cast<UiStateRibbonGroup*>(item))
        return title ? QVariant(group->GetTitle()) : QVariant();
    return _SpotData(item, index.column(), role);
}

bool RibbonModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid())
        return false;
    ITreeItem* item = GetItem(index);
    auto* page = dynamic_cast<UiStateRibbonPage*>(item);
    auto* group = dynamic_cast<UiStateRibbonGroup*>(item);
    auto* command = dynamic_cast<UiSpotCommand*>(item);
    if (role == Qt::CheckStateRole)
        dynamic_cast<UiStateItem*>(item)->SetVisible(value.toInt() == Qt::Checked);
    else if (page && index.column() == 0)
        page->SetTitle(value.toString());
    else if (group && index.column() == 0)
        group->SetTitle(value.toString());
    else if (command && index.column() == 1)
        command->SetStyle(static_cast<Qt::ToolButtonStyle>(value.toInt()));
    else
        return false;
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags RibbonModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    ITreeItem* item = GetItem(index);
    const auto* state = dynamic_cast<UiStateItem*>(item);
    const NodeKind kind = KindOf(item);
    Qt::ItemFlags flags = c_node_flags;
    if (index.column() == 0 && state && state->IsHideable())
        flags |= Qt::ItemIsUserCheckable;
    if (kind == NodeKind::Spot) {
        flags |= Qt::ItemNeverHasChildren;
        if (index.column() == 1 && dynamic_cast<UiSpotCommand*>(item))
            flags |= Qt::ItemIsEditable;
    } else if (index.column() == 0 && state && !state->IsPersistent()) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

const SiteTreeModel::DropRules& RibbonModel::_Rules() const
{
    static const DropRules rules = {
        {NodeKind::Ribbon, NodeKind::Page, true, nullptr,
         [](SiteTreeModel& model, const DropRequest& drop) {
             Model(model).MovePages(drop.indexes, drop.row);
         }},
        {NodeKind::Page, NodeKind::Page, false, nullptr,
         [](SiteTreeModel& model, const DropRequest& drop) {
             Model(model).MovePages(drop.indexes, drop.index.row() + 1);
         }},
        {NodeKind::Page, NodeKind::Group, true, nullptr,
         [](SiteTreeModel& model, const DropRequest& drop) {
             Model(model).MoveGroups(drop.indexes, drop.index, drop.row);
         }},
        {NodeKind::Group, NodeKind::Group, false,
         [](const SiteTreeModel&, const DropRequest& drop) { return !_IsLocked(drop.target); },
         [](SiteTreeModel& model, const DropRequest& drop) {
             Model(model).MoveGroups(drop.indexes, drop.index.parent(), drop.index.row() + 1);
         }},
    };
    static const DropRules all = rules + _SpotRules(NodeKind::Group, true);
    return all;
}

bool RibbonModel::_MayDrop(const DropRequest& request) const
{
    for (ITreeItem* item : request.items) {
        const auto* state = dynamic_cast<UiStateItem*>(item);
        const bool fixed = state && !state->IsDeleteable() && KindOf(item) != NodeKind::Page;
        const ITreeItem* parent = item->GetParent();
        if (fixed && request.target != parent && request.target->GetParent() != parent)
            return false;
    }
    return true;
}

void RibbonModel::AddPage(int row)
{
    if (!mp_root)
        return;
    if (row < 0 || row > mp_root->GetChildCount())
        row = mp_root->GetChildCount();
    auto page = std::make_unique<UiStateRibbonPage>();
    page->SetTitle(tr("New page"));
    beginInsertRows({}, row, row);
    mp_root->InsertPage(page.release(), row);
    _EndInsert();
}

void RibbonModel::AddGroup(const QModelIndex& page_index, int row)
{
    auto* page = dynamic_cast<UiStateRibbonPage*>(GetItem(page_index));
    if (!page)
        return;
    if (row < 0 || row > page->GetChildCount())
        row = page->GetChildCount();
    auto group = std::make_unique<UiStateRibbonGroup>();
    group->SetTitle(tr("New group"));
    beginInsertRows(RowIndex(page_index), row, row);
    page->InsertGroup(group.release(), row);
    _EndInsert();
}

void RibbonModel::DeleteRow(const QModelIndex& parent, int row)
{
    if (!_HasRow(parent, row))
        return;
    ITreeItem* item = GetItem(parent);
    if (auto* group = dynamic_cast<UiStateRibbonGroup*>(item)) {
        _DeleteSpot(*group, parent, row);
        return;
    }
    _BeginDelete(parent, row);
    if (auto* page = dynamic_cast<UiStateRibbonPage*>(item))
        page->DeleteGroup(row);
    else
        mp_root->DeletePage(row);
    _EndRemove();
}

void RibbonModel::MovePages(const QModelIndexList& indexes, int row)
{
    _MoveNodes(
        indexes, {}, row,
        [this](ITreeItem&, int at) -> ITreeItem* { return mp_root->RemovePage(at); },
        [this](ITreeItem& page, int at) {
            mp_root->InsertPage(static_cast<UiStateRibbonPage*>(&page), at);
        });
}

void RibbonModel::MoveGroups(const QModelIndexList& indexes, const QModelIndex& page_index, int row)
{
    auto* page = dynamic_cast<UiStateRibbonPage*>(GetItem(page_index));
    if (!page)
        return;
    _MoveNodes(
        indexes, page_index, row,
        [](ITreeItem& source, int at) -> ITreeItem* {
            return static_cast<UiStateRibbonPage&>(source).RemoveGroup(at);
        },
        [page](ITreeItem& group, int at) {
            page->InsertGroup(static_cast<UiStateRibbonGroup*>(&group), at);
        });
}

void RibbonModel::MoveSpots(const QModelIndexList& indexes, const QModelIndex& group, int row)
{
    _MoveSpots(indexes, group, row);
}

} // namespace ovk
