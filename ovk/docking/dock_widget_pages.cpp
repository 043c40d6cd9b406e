#include "ovk/docking/dock_widget_p.h"

#include "ovk/docking/dock_manager_p.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QMenu>

namespace ovk {

const QList<IDockPage*>& DockWidget::Impl::Pages(PositionMode mode) const
{
    return mode == Visible ? visible_pages : all_pages;
}

QWidget* DockWidget::Impl::WidgetOf(const IDockPage* page) const
{
    return m_widgets.value(page, nullptr);
}

IDockPage* DockWidget::Impl::PageOf(const QWidget* widget) const
{
    if (!widget)
        return nullptr;
    for (IDockPage* page : all_pages) {
        if (WidgetOf(page) == widget)
            return page;
    }
    return nullptr;
}

IDockPage* DockWidget::Impl::GetCurrentPage() const
{
    return visible_pages.value(tab_bar->currentIndex(), nullptr);
}

void DockWidget::Impl::ShowTab(IDockPage* page)
{
    int index = 0;
    for (int i = all_pages.indexOf(page) - 1; i >= 0; --i) {
        const int before = visible_pages.indexOf(all_pages.at(i));
        if (before >= 0) {
            index = before + 1;
            break;
        }
    }
    visible_pages.insert(index, page);
    tab_bar->insertTab(index, WidgetOf(page)->windowTitle());
}

void DockWidget::Impl::HideTab(IDockPage* page)
{
    const int index = visible_pages.indexOf(page);
    if (index < 0)
        return;
    visible_pages.removeAt(index);
    tab_bar->removeTab(index);
}

bool DockWidget::Impl::SetPageShown(IDockPage* page, bool show, bool update_panel)
{
    const SimpleLock::ScopedMarker marker = update_lock.Acquire();
    if (!marker || destroying || !all_pages.contains(page))
        return false;
    const DockCallbackScope scope(manager);
    const bool wanted = show && page->IsAvailable();
    // The page may have left the panel when it was asked, or have taken it along.
    if (destroying || !all_pages.contains(page) || wanted == visible_pages.contains(page))
        return false;
    if (wanted)
        ShowTab(page);
    else
        HideTab(page);
    PostUpdate(UpdateTitleText | UpdateTabs | UpdateSizes);
    if (update_panel)
        window->QWidget::setVisible(!visible_pages.isEmpty() && !explicitly_hidden);
    return true;
}

bool DockWidget::Impl::AddPageImpl(IDockPage* page, int index, PositionMode mode, bool visible)
{
    if (!page || destroying || all_pages.contains(page))
        return false;
    QWidget* const widget = page->GetWidget();
    if (!widget)
        return false;
    int i = mode == All ? index : all_pages.indexOf(visible_pages.value(index, nullptr));
    if (i < 0 || i > all_pages.size())
        i = all_pages.size();

    const DockCallbackScope scope(manager);
    all_pages.insert(i, page);
    m_widgets.insert(page, widget);
    KeepParentPlain(*widget);
    widget->setParent(window);
    widget->hide();
    if (!visible)
        hidden_pages.append(page);
    SetPageShown(page, visible, false);
    PostUpdate(UpdateSizes);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this, page] {
        if (!page_destroy_guard)
            DropPage(page);
    });
    return true;
}

void DockWidget::Impl::DropPage(IDockPage* page)
{
    if (!all_pages.contains(page))
        return;
    const DockCallbackScope scope(manager);
    QWidget* const widget = m_widgets.value(page);
    disconnect(widget, &QObject::destroyed, this, nullptr);
    widget->removeEventFilter(this);
    hidden_pages.removeAll(page);
    all_pages.removeAll(page);
    const bool shown = visible_pages.contains(page);
    HideTab(page);
    m_widgets.remove(page);
    PostUpdate(UpdateTitleText | UpdateTabs | UpdateSizes);
    if (shown && !destroying)
        window->QWidget::setVisible(!visible_pages.isEmpty() && !explicitly_hidden);
}

bool DockWidget::Impl::RemovePage(IDockPage* page)
{
    if (destroying || !page || !all_pages.contains(page))
        return false;
    QWidget* const widget = WidgetOf(page);
    DropPage(page);
    if (widget->parentWidget() == window) {
        // Else a parent that is shown later would show it.
        widget->hide();
        widget->setParent(window->parentWidget());
    }
    return true;
}

void DockWidget::Impl::SetPageVisible(IDockPage* page, bool visible)
{
    if (!page || !all_pages.contains(page) || visible == !hidden_pages.contains(page))
        return;
    const DockCallbackScope scope(manager);
    const QPointer<DockWindow> guard(window);
    SetPageShown(page, visible, true);
    if (!guard || !all_pages.contains(page))
        return;
    if (visible)
        hidden_pages.removeAll(page);
    else if (!hidden_pages.contains(page))
        hidden_pages.append(page);
}

void DockWidget::Impl::ReleasePages()
{
    const QList<IDockPage*> pages = all_pages;
    const QHash<const IDockPage*, QWidget*> widgets = m_widgets;
    for (IDockPage* page : pages) {
        QWidget* const widget = widgets.value(page);
        disconnect(widget, &QObject::destroyed, this, nullptr);
        widget->removeEventFilter(this);
    }
    all_pages.clear();
    visible_pages.clear();
    hidden_pages.clear();
    m_widgets.clear();
    if (own_widgets)
        return;
    for (IDockPage* page : pages) {
        QWidget* const widget = widgets.value(page);
        if (widget->parentWidget() != window)
            continue;
        widget->hide();
        widget->setParent(window->parentWidget());
    }
}

void DockWidget::Impl::Merge(DockWidget& dragged)
{
    Impl* const other = dragged._Impl();
    const int first = Panel()->GetCurrentIndex();
    const int current = dragged.GetCurrentIndex();
    int index = first;
    const QPointer<DockWindow> guard(window);
    const QPointer<DockWidget> guard_other(&dragged);
    while (guard_other && !other->all_pages.isEmpty()) {
        IDockPage* const page = other->all_pages.first();
        const bool visible = !other->hidden_pages.contains(page);
        if (!AddPageImpl(page, index, All, visible))
            other->DropPage(page);
        if (!guard)
            return;
        ++index;
    }
    Panel()->SetCurrentIndex(current + first);
    if (!guard || !guard_other)
        return;
    if (delete_on_empty)
        dragged.deleteLater();
    else
        dragged.setVisible(false);
}

void DockWidget::Impl::OnTabClicked(int index)
{
    IDockPage* const page = GetCurrentPage();
    if (index < 0 || !page)
        return;
    const DockCallbackScope scope(manager);
    if (!collapsed)
        page->SetPrefferedSize(window->size());
    // The one who clicks on a tab wants to work in its page.
    m_focus_page = true;
    PostUpdate(UpdateGeometry);
    if (!collapsed)
        return;
    if (index == tab_bar->currentIndex())
        Panel()->SetCollapsed(false, false);
    else
        expand_on_tab_change = true;
}

void DockWidget::Impl::OnCurrentChanged(int index)
{
    if (destroying)
        return;
    const DockCallbackScope scope(manager);
    const QPointer<DockWindow> guard(window);
    if (index >= 0 && expand_on_tab_change) {
        sizes_dirty = true;
        Panel()->SetCollapsed(false, false);
        if (!guard)
            return;
    }
    expand_on_tab_change = false;
    PostUpdate(UpdateTitleText | UpdateSizes);
    if (IDockPage* const page = GetCurrentPage())
        page->OnActivated();
}

void DockWidget::Impl::OnTabMoved(int from, int to)
{
    if (from < 0 || to < 0 || from >= visible_pages.size() || to >= visible_pages.size())
        return;
    const int all_from = all_pages.indexOf(visible_pages.at(from));
    const int all_to = all_pages.indexOf(visible_pages.at(to));
    visible_pages.move(from, to);
    all_pages.move(all_from, all_to);
}

void DockWidget::Impl::ShowContextMenu(const QPoint& pos)
{
    if (all_pages.isEmpty() && pos.isNull())
        return;
    auto* const menu = new QMenu(window); // a child of the panel, deletes itself when closed
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setAccessibleName(TitleText());
    // A page that is asked may switch the layout: what is left of the panel then has no menu.
    const DockCallbackScope scope(manager);
    const QList<IDockPage*> pages = all_pages;
    for (IDockPage* page : pages) {
        if (!all_pages.contains(page))
            continue;
        const bool enabled = page->IsAvailable() && page->IsToggleable();
        if (destroying) {
            delete menu;
            return;
        }
        if (!all_pages.contains(page))
            continue;
        QAction* const action = menu->addAction(WidgetOf(page)->windowTitle());
        action->setCheckable(true);
        action->setEnabled(enabled);
        action->setChecked(visible_pages.contains(page));
        connect(action, &QAction::toggled, this, [this, page](bool checked) {
            if (!all_pages.contains(page))
                return;
            const DockCallbackScope scope(manager);
            SetPageVisible(page, checked);
            if (all_pages.contains(page))
                page->OnVisibilityToggled(checked);
        });
    }
    const QWidget* const origin = title ? static_cast<QWidget*>(title) : window;
    menu->popup(origin->mapToGlobal(pos));
}

void DockWidget::Impl::ShowMenuByKeyboard()
{
    if (context_menu_hidden)
        return;
    const int below = title ? title->height() : window->frameWidth();
    const int x = window->isRightToLeft() ? window->width() - 1 : 0;
    ShowContextMenu({x, below});
}

} // namespace ovk
