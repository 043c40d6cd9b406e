#include "ovk/customize/sites_page_impl_p.h"

#include "ovk/commands/ui_command.h"
#include "ovk/ui_state/ui_spot.h"
#include "ovk/ui_state/ui_state_composite.h"

#include <QMenu>

namespace ovk {

namespace {

bool IsDeleteable(const SiteTreeModel& model, const QModelIndex& index)
{
    const auto* state = dynamic_cast<UiStateItem*>(model.GetItem(index));
    return state && state->IsDeleteable();
}

bool HasSelectedAncestor(const QModelIndex& index, const QModelIndexList& selected)
{
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent()) {
        if (selected.contains(parent))
            return true;
    }
    return false;
}

} // namespace

const UiCustomizeSitesWidget::Impl::Site* UiCustomizeSitesWidget::Impl::ActiveSite() const
{
    for (const Site& site : m_sites) {
        if (site.view == mp_active_view)
            return &site;
    }
    return nullptr;
}

void UiCustomizeSitesWidget::Impl::OnTabChanged()
{
    SetDragSource(nullptr);
    const int tab = mp_tabs_sites->currentIndex();
    mp_active_view =
        tab >= 0 && tab < static_cast<int>(m_sites.size()) ? m_sites[tab].view : nullptr;
    UpdateAddButton();
}

TreeMemory& UiCustomizeSitesWidget::Impl::MemoryOf(const Site& site)
{
    return m_memories[static_cast<int>(site.tree)];
}

void UiCustomizeSitesWidget::Impl::KeepRows(const Site& site, const QModelIndex& parent, int first,
                                            int last)
{
    // What a drop takes out, it puts in somewhere else.
    for (int row = first; site.model->IsDropping() && row <= last; ++row)
        MemoryOf(site).KeepBelow(*site.view, *site.model, site.model->index(row, 0, parent));
}

void UiCustomizeSitesWidget::Impl::OnRowsDropped(const Site& site, const QModelIndex& parent,
                                                 int first, int last)
{
    if (!site.model->IsDropping())
        return;
    for (int row = first; row <= last; ++row)
        MemoryOf(site).RestoreBelow(*site.view, *site.model, site.model->index(row, 0, parent));
    MemoryOf(site).Clear();
    // What was dropped is what is seen and worked on next.
    const QModelIndex top = site.model->index(first, 0, parent);
    site.view->selectionModel()->setCurrentIndex(top, QItemSelectionModel::NoUpdate);
    site.view->selectionModel()->select(
        QItemSelection(top, site.model->index(last, site.model->columnCount() - 1, parent)),
        QItemSelectionModel::ClearAndSelect);
}

void UiCustomizeSitesWidget::Impl::OnRowsInserted(const Site& site, const QModelIndex& parent,
                                                  int first, int last)
{
    SetEdited(true);
    const auto shown = [this, &site](const QModelIndex& index) {
        return site.tree == SitesTree::Composite ? m_composites_proxy.mapFromSource(index) : index;
    };
    const QModelIndex above = shown(parent);
    if (above.isValid() && !site.view->isExpanded(above))
        site.view->expand(above);
    if (site.tree != SitesTree::Composite)
        OnRowsDropped(site, parent, first, last);
    const QModelIndex inserted = shown(site.model->index(first, 0, parent));
    if (site.model->IsDropping() || !inserted.isValid())
        return;
    site.view->scrollTo(inserted);
    // The user types the name of what was added at once. What was being edited is finished
    // first, and what the buttons act on is what was added.
    if (inserted.flags() & Qt::ItemIsEditable) {
        site.view->selectionModel()->setCurrentIndex(inserted, QItemSelectionModel::ClearAndSelect |
                                                                   QItemSelectionModel::Rows);
        Edit(*site.view, inserted);
    }
}

void UiCustomizeSitesWidget::Impl::Edit(QAbstractItemView& view, const QModelIndex& cell)
{
    // What is being edited elsewhere ends with its focus.
    view.setFocus();
    view.edit(cell);
}

SitesSelection UiCustomizeSitesWidget::Impl::SelectionOf(const Site& site) const
{
    const QModelIndexList rows = site.view->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return SitesSelection::None;
    if (rows.size() > 1)
        return SitesSelection::Several;
    ITreeItem* item = site.model->GetItem(rows.first());
    switch (SiteTreeModel::KindOf(item)) {
    case NodeKind::Page:
        return SitesSelection::Page;
    case NodeKind::Group:
        return SitesSelection::Group;
    case NodeKind::Toolbar:
        return SitesSelection::Toolbar;
    case NodeKind::Menu:
        return SitesSelection::Menu;
    default:
        return dynamic_cast<UiSpotSeparator*>(item) ? SitesSelection::Separator
                                                    : SitesSelection::Command;
    }
}

void UiCustomizeSitesWidget::Impl::EnableDeletes(const Site& site)
{
    const QModelIndexList rows = site.view->selectionModel()->selectedRows();
    const bool all = std::all_of(rows.begin(), rows.end(), [&site](const QModelIndex& row) {
        return IsDeleteable(*site.model, row);
    });
    const SitesOffer* offer = FindSitesOffer(site.tree, SelectionOf(site));
    if (!offer)
        return;
    for (SitesAction action : offer->menu) {
        if (IsSitesDelete(action))
            Action(action).setEnabled(all);
    }
}

void UiCustomizeSitesWidget::Impl::OnSelectionChanged(const Site& site)
{
    const SitesOffer* offer = FindSitesOffer(site.tree, SelectionOf(site));
    const QWidget* tab = site.view->parentWidget();
    for (const SitesButton& entry : SitesButtons()) {
        auto* button = tab->findChild<QToolButton*>(QLatin1String(entry.object_name));
        if (!button)
            continue;
        const bool offered = offer && std::find(offer->buttons.begin(), offer->buttons.end(),
                                                entry.action) != offer->buttons.end();
        button->setVisible(offered);
    }
    EnableDeletes(site);
    UpdateAddButton();
}

QList<int> UiCustomizeSitesWidget::Impl::SelectedCommandRows() const
{
    QList<int> rows;
    for (const QModelIndex& index : mp_view_commands->selectionModel()->selectedIndexes()) {
        const int row = m_commands_proxy.mapToSource(index).row();
        if (row >= 0 && row < m_commands.size() && !rows.contains(row))
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

UiStateComposite* UiCustomizeSitesWidget::Impl::SelectedComposite() const
{
    for (const QModelIndex& row : mp_view_composite->selectionModel()->selectedRows()) {
        const QModelIndex source = m_composites_proxy.mapToSource(row);
        if (auto* composite = dynamic_cast<UiStateComposite*>(m_composites.GetItem(source)))
            return composite;
    }
    return nullptr;
}

void UiCustomizeSitesWidget::Impl::SearchCommands(const QString& text)
{
    // The selection is the user's, not the filter's.
    const QList<int> selected = SelectedCommandRows();
    const int current = m_commands_proxy.mapToSource(mp_view_commands->currentIndex()).row();
    const int column = mp_view_commands->currentIndex().column();
    m_commands_proxy.SetSearch(text);
    QItemSelection selection;
    for (int row : selected) {
        const QModelIndex index = m_commands_proxy.mapFromSource(m_commands.index(row, 0));
        if (index.isValid())
            selection.select(index, index.sibling(index.row(), m_commands.columnCount() - 1));
    }
    const QModelIndex again =
        m_commands_proxy.mapFromSource(m_commands.index(current, qMax(column, 0)));
    QItemSelectionModel& model = *mp_view_commands->selectionModel();
    if (again.isValid())
        model.setCurrentIndex(again, QItemSelectionModel::NoUpdate);
    model.select(selection, QItemSelectionModel::ClearAndSelect);
    UpdateAddButton();
}

void UiCustomizeSitesWidget::Impl::UpdateAddButton()
{
    const Site* site = ActiveSite();
    bool enabled = false;
    if (site) {
        const QModelIndexList rows = site->view->selectionModel()->selectedRows();
        const int commands = SelectedCommandRows().size();
        const int composites = SelectedComposite() ? 1 : 0;
        const bool refused = composites > 0 && site->tree == SitesTree::Menus;
        enabled = rows.size() == 1 && commands + composites > 0 && !refused &&
                  site->model->CanInsert(rows.first(), commands > 0 ? commands : 1);
    }
    mp_btn_add_command->setEnabled(enabled);
}

void UiCustomizeSitesWidget::Impl::AddToSite()
{
    const Site* site = ActiveSite();
    const QModelIndexList rows =
        site ? site->view->selectionModel()->selectedRows() : QModelIndexList();
    if (rows.size() != 1)
        return;
    const QPersistentModelIndex target = rows.first();
    QList<IUiItem*> commands;
    for (int row : SelectedCommandRows())
        commands.append(m_commands.at(row));
    if (!commands.isEmpty()) {
        site->model->InsertCommands(target, commands, -1);
    } else {
        if (UiStateComposite* composite = SelectedComposite())
            site->model->InsertCompositeCommand(*composite, target, -1);
    }
    site->view->expand(target);
}

void UiCustomizeSitesWidget::Impl::DeleteItems(const Site& site)
{
    const QModelIndexList selected = site.view->selectionModel()->selectedRows();
    QModelIndexList rows;
    for (const QModelIndex& index : selected) {
        if (!HasSelectedAncestor(index, selected))
            rows.append(index);
    }
    std::stable_sort(rows.begin(), rows.end(), SiteTreeModel::ComesFirst);
    // A live site may rebuild on a removal, so that plain indexes are not enough.
    QList<QPersistentModelIndex> going;
    for (const QModelIndex& row : rows)
        going.append(row);
    for (const QPersistentModelIndex& row : going) {
        if (row.isValid())
            site.delete_row(row.parent(), row.row());
    }
}

void UiCustomizeSitesWidget::Impl::DeleteComposite()
{
    const QModelIndex index = m_composites_proxy.mapToSource(m_composite_menu_index);
    if (!index.isValid())
        return;
    if (m_composites.DeleteRow(index.parent(), index.row()) != 1)
        return;
    // The spots that showed it went with it.
    UiLayout* layout = ChosenLayout();
    m_ribbon.SetLayout(layout);
    m_qab.SetLayout(layout);
    m_toolbars.SetLayout(layout);
    m_menus.SetLayout(layout);
}

void UiCustomizeSitesWidget::Impl::Run(SitesAction action)
{
    using A = SitesAction;
    const Site* site = ActiveSite();
    const QModelIndex current =
        site ? SiteTreeModel::RowIndex(site->view->currentIndex()) : QModelIndex();
    const QModelIndex parent = current.parent();
    const int row = current.row();
    const int composite_row = m_composites_proxy.mapToSource(m_composite_menu_index).row();
    switch (action) {
    case A::RibbonAddPage:
        m_ribbon.AddPage(-1);
        break;
    case A::RibbonInsertPageAfter:
        m_ribbon.AddPage(row + 1);
        break;
    case A::RibbonInsertPageBefore:
        m_ribbon.AddPage(row);
        break;
    case A::RibbonAddGroup:
        m_ribbon.AddGroup(current, -1);
        break;
    case A::RibbonInsertGroupAfter:
        m_ribbon.AddGroup(parent, row + 1);
        break;
    case A::RibbonInsertGroupBefore:
        m_ribbon.AddGroup(parent, row);
        break;
    case A::RibbonAddSeparator:
        m_ribbon.AddSeparator(current, -1);
        break;
    case A::RibbonInsertSeparatorAfter:
        m_ribbon.AddSeparator(parent, row + 1);
        break;
    case A::RibbonInsertSeparatorBefore:
        m_ribbon.AddSeparator(parent, row);
        break;
    case A::QabAddSeparator:
        m_qab.AddSeparator({}, 0);
        break;
    case A::QabInsertSeparatorAfter:
        m_qab.AddSeparator({}, row + 1);
        break;
    case A::QabInsertSeparatorBefore:
        m_qab.AddSeparator({}, row);
        break;
    case A::ToolbarsAddSeparator:
        m_toolbars.AddSeparator(current, -1);
        break;
    case A::ToolbarsInsertSeparatorAfter:
        m_toolbars.AddSeparator(parent, row + 1);
        break;
    case A::ToolbarsInsertSeparatorBefore:
        m_toolbars.AddSeparator(parent, row);
        break;
    case A::ToolbarsAddToolbar:
        m_toolbars.AddToolbar(-1);
        break;
    case A::ToolbarsInsertToolbarAfter:
        m_toolbars.AddToolbar(row + 1);
        break;
    case A::ToolbarsInsertToolbarBefore:
        m_toolbars.AddToolbar(row);
        break;
    case A::MenusAddMenu:
        m_menus.AddMenu(-1);
        break;
    case A::MenusInsertMenuAfter:
        m_menus.AddMenu(row + 1);
        break;
    case A::MenusInsertMenuBefore:
        m_menus.AddMenu(row);
        break;
    case A::RibbonDeleteSeparator:
    case A::RibbonDeletePage:
    case A::RibbonDeleteGroup:
    case A::RibbonDeleteCommand:
    case A::QabDeleteCommand:
    case A::QabDeleteSeparator:
    case A::ToolbarsDeleteCommand:
    case A::ToolbarsDeleteSeparator:
    case A::ToolbarsDeleteToolbar:
    case A::MenusDeleteCommand:
    case A::MenusDeleteMenu:
        if (site && current.isValid())
            site->delete_row(parent, row);
        break;
    case A::RibbonDeleteItems:
    case A::QabDeleteItems:
    case A::ToolbarsDeleteItems:
    case A::MenusDeleteItems:
        if (site)
            DeleteItems(*site);
        break;
    case A::CompositeCreateCommand:
        m_composites.AddCommand(composite_row);
        break;
    case A::CompositeCreateMenu:
        m_composites.AddMenu(composite_row);
        break;
    case A::CompositeDelete:
        DeleteComposite();
        break;
    case A::DeleteShortcut:
        mp_view_commands->model()->setData(m_commands_menu_index, QVariant(), Qt::EditRole);
        break;
    case A::AssignShortcut:
        if (m_commands_menu_index.isValid())
            Edit(*mp_view_commands, m_commands_menu_index);
        break;
    case A::ExpandAll:
    case A::CollapseAll:
        if (auto* tree = qobject_cast<QTreeView*>(mp_active_view)) {
            if (action == A::ExpandAll)
                tree->expandAll();
            else
                tree->collapseAll();
        }
        break;
    case A::Count:
        break;
    }
}

void UiCustomizeSitesWidget::Impl::AppendExpandActions(QMenu& menu) const
{
    if (!menu.isEmpty())
        menu.addSeparator();
    menu.addAction(&Action(SitesAction::ExpandAll));
    menu.addAction(&Action(SitesAction::CollapseAll));
}

void UiCustomizeSitesWidget::Impl::ShowContextMenu(const Site& site, const QPoint& position)
{
    QMenu menu;
    EnableDeletes(site);
    if (const SitesOffer* offer = FindSitesOffer(site.tree, SelectionOf(site))) {
        for (SitesAction action : offer->menu) {
            if (action == SitesAction::Count)
                menu.addSeparator();
            else
                menu.addAction(&Action(action));
        }
    }
    if (site.tree != SitesTree::Qab)
        AppendExpandActions(menu);
    if (!menu.isEmpty())
        menu.exec(site.view->viewport()->mapToGlobal(position));
}

void UiCustomizeSitesWidget::Impl::ShowCompositeMenu(const QPoint& position)
{
    const QModelIndex index = mp_view_composite->indexAt(position);
    m_composite_menu_index = index;
    ITreeItem* item =
        index.isValid() ? m_composites.GetItem(m_composites_proxy.mapToSource(index)) : nullptr;
    const bool on_item = dynamic_cast<UiStateCompositeItem*>(item) != nullptr;
    QMenu menu;
    if (!on_item) {
        menu.addAction(&Action(SitesAction::CompositeCreateCommand));
        menu.addAction(&Action(SitesAction::CompositeCreateMenu));
    }
    if (dynamic_cast<UiStateComposite*>(item))
        menu.addSeparator();
    if (item)
        menu.addAction(&Action(SitesAction::CompositeDelete));
    const QScopedValueRollback<QAbstractItemView*> active(mp_active_view, mp_view_composite);
    AppendExpandActions(menu);
    menu.exec(mp_view_composite->viewport()->mapToGlobal(position));
}

void UiCustomizeSitesWidget::Impl::ShowCommandsMenu(const QPoint& position)
{
    const QModelIndex index = mp_view_commands->indexAt(position);
    if (!index.isValid() || index.column() != 1)
        return;
    m_commands_menu_index = index;
    QMenu menu;
    if (!index.data().toString().isEmpty())
        menu.addAction(&Action(SitesAction::DeleteShortcut));
    menu.addAction(&Action(SitesAction::AssignShortcut));
    menu.exec(mp_view_commands->viewport()->mapToGlobal(position));
}

} // namespace ovk
