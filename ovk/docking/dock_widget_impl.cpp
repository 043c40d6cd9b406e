#include "ovk/docking/dock_widget_p.h"

#include "ovk/docking/dock_accessible_p.h"
#include "ovk/docking/dock_drag_controller_p.h"
#include "ovk/docking/dock_layout.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_toolbox_site_p.h"

#include <QtCore/QCoreApplication>

namespace ovk {

namespace {

constexpr int c_update_priority = 1;

/// The bits of a window's type that a docked panel loses.
constexpr int c_window_type_bits = 0x13;

/// Where the work in a page goes on: where it was, or where Tab would go first.
QWidget& FirstToFocus(QWidget& page)
{
    if (QWidget* const inner = page.focusWidget())
        return *inner;
    if (page.focusPolicy() != Qt::NoFocus)
        return page;
    for (QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && page.isAncestorOf(next) &&
            next->isVisible() && next->isEnabled())
            return *next;
    }
    return page;
}

} // namespace

DockUpdateEvent::DockUpdateEvent() : QEvent(GetType()) {}

QEvent::Type DockUpdateEvent::GetType()
{
    static const auto s_type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return s_type;
}

DockWidget::Impl::Impl(DockManager& owner) : manager(&owner) {}

DockWidget::Impl::~Impl() = default;

void DockWidget::Impl::Init()
{
    tab_bar = new QTabBar(window); // a child of the panel
    KeepParentPlain(*tab_bar);
    tab_bar->setMovable(true);
    tab_bar->setContextMenuPolicy(Qt::CustomContextMenu);
    tab_bar->hide();
    tab_bar->installEventFilter(this);
    window->installEventFilter(this);
    connect(tab_bar, &QTabBar::tabBarClicked, this, [this](int index) { OnTabClicked(index); });
    connect(tab_bar, &QTabBar::currentChanged, this, [this](int i) { OnCurrentChanged(i); });
    connect(tab_bar, &QTabBar::tabMoved, this, [this](int from, int to) { OnTabMoved(from, to); });
    connect(tab_bar, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& pos) { ShowContextMenu(pos); });
    PostUpdate(UpdateTitleText | UpdateTabs | UpdateButtons | UpdateTitleOnOff);
}

void DockWidget::Impl::KeepParentPlain(QWidget& child)
{
    child.setAttribute(Qt::WA_DontCreateNativeAncestors);
}

DockTitle* DockWidget::Impl::CreateTitle()
{
    auto* const made = new DockWidgetTitle(window); // a child of the panel
    KeepParentPlain(*made);
    connect(made->GetMinimizeButton(), &QToolButton::clicked, this, [this] {
        const DockCallbackScope scope(manager);
        Panel()->SetCollapsed(!collapsed, false);
    });
    connect(made->GetCollapsibleButton(), &QToolButton::clicked, this, [this] {
        const DockCallbackScope scope(manager);
        Panel()->SetCollapsible(!Panel()->IsCollapsible());
    });
    connect(made->GetCloseButton(), &QToolButton::clicked, this, [this] {
        const DockCallbackScope scope(manager);
        Panel()->Close();
    });
    connect(made, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& pos) { ShowContextMenu(pos); });
    made->setMouseTracking(floated);
    made->setAttribute(Qt::WA_Hover, floated);
    return made;
}

void DockWidget::Impl::OnResized(const QSize& size)
{
    const DockCallbackScope scope(manager);
    DockWindow::Impl::OnResized(size);
    LayoutChildren();
    if (block_overlay)
        block_overlay->setGeometry(0, 0, size.width() - 1, size.height() - 1);
    IDockPage* const page = GetCurrentPage();
    // Only the user's sizes count, not the limits that the panel takes on the way.
    if (page && floated && !collapsed && !m_applying_sizes)
        page->SetPrefferedSize(size);
}

void DockWidget::Impl::PostUpdate(int flags)
{
    if (destroying)
        return;
    if (flags & (UpdateSizes | UpdateTabs | UpdateTitleOnOff | UpdateTitleText))
        sizes_dirty = true;
    // What setVisible() carried out meanwhile leaves its event in the queue, which will do.
    if (pending_updates == 0 && !m_update_posted) {
        m_update_posted = true;
        QCoreApplication::postEvent(this, new DockUpdateEvent, c_update_priority);
    }
    pending_updates |= flags;
}

bool DockWidget::Impl::event(QEvent* event)
{
    if (event->type() == DockUpdateEvent::GetType()) {
        m_update_posted = false;
        ProcessUpdate();
        return true;
    }
    return DockWindow::Impl::event(event);
}

void DockWidget::Impl::ProcessUpdate()
{
    if (pending_updates == 0 || destroying)
        return;
    const DockCallbackScope scope(manager);
    // What is asked for meanwhile gets an event of its own.
    int flags = std::exchange(pending_updates, 0);

    if ((flags & UpdateTitleOnOff) && title_enabled == title.isNull()) {
        SetTitleVisible(title_enabled);
        flags |= UpdateSizes | UpdateTitleText;
    }
    if ((flags & UpdateTitleText) && title) {
        UpdateTitle();
        flags |= UpdateButtons | UpdateSizes;
    }
    if (flags & UpdateButtons)
        UpdateTitleButtons();
    if ((flags & UpdateTabs) && tab_bar->isHidden() == TabsShown()) {
        tab_bar->setVisible(TabsShown());
        flags |= UpdateSizes;
    }
    if (flags & UpdateSizes) {
        ApplySizes();
        flags |= UpdateGeometry;
    }
    if (destroying)
        return;
    if (flags & UpdateGeometry)
        LayoutChildren();

    const QPointer<DockWindow> guard(window);
    ShowCurrentPage();
    if (guard && !destroying && std::exchange(m_focus_page, false))
        FocusCurrentPage(Qt::MouseFocusReason);
}

QString DockWidget::Impl::TitleText() const
{
    const IDockPage* const page = GetCurrentPage();
    if (page && (forced_title.isEmpty() || visible_pages.size() == 1))
        return WidgetOf(page)->windowTitle();
    return forced_title;
}

void DockWidget::Impl::UpdateTitle()
{
    const QString text = TitleText();
    if (title->GetTitle() == text)
        return;
    title->SetTitle(text);
    // What the window manager lists while the panel floats.
    window->setWindowTitle(text);
    AnnounceDockName(*window);
}

void DockWidget::Impl::UpdateTitleButtons()
{
    const auto policy = context_menu_hidden ? Qt::NoContextMenu : Qt::CustomContextMenu;
    tab_bar->setContextMenuPolicy(policy);
    if (title)
        title->setContextMenuPolicy(policy);
    auto* const panel_title = qobject_cast<DockWidgetTitle*>(title.data());
    if (!panel_title)
        return;
    if (panel_title->GetMinimizeButton()->IsCollapsed() != collapsed) {
        panel_title->GetMinimizeButton()->SetCollapsed(collapsed);
        AnnounceDockFolding(*window);
    }
    panel_title->GetMinimizeButton()->setEnabled(collapsible && (!collapsed || expand_available));
    panel_title->GetCollapsibleButton()->setVisible(!collapsed);
    panel_title->GetCollapsibleButton()->SetCollapsible(collapsible);
    panel_title->GetCloseButton()->setVisible(closable);
    panel_title->LayoutButtons();
}

bool DockWidget::Impl::TabsShown() const
{
    return (tabs_enabled && visible_pages.size() > 1) ||
           (visible_pages.size() == 1 && !hide_last_tab);
}

void DockWidget::Impl::ShowCurrentPage()
{
    const QPointer<DockWindow> guard(window);
    const IDockPage* const current = collapsed ? nullptr : GetCurrentPage();
    const QList<IDockPage*> pages = all_pages;
    for (const IDockPage* page : pages) {
        QWidget* const widget = WidgetOf(page);
        if (page != current && widget && !widget->isHidden())
            widget->hide();
        if (!guard || destroying)
            return;
    }
    QWidget* const shown = current ? WidgetOf(current) : nullptr;
    if (shown && shown->isHidden())
        shown->show();
}

void DockWidget::Impl::FocusCurrentPage(Qt::FocusReason reason)
{
    const IDockPage* const page = GetCurrentPage();
    QWidget* const widget = page ? WidgetOf(page) : nullptr;
    if (!widget || !widget->isVisible())
        return;
    FirstToFocus(*widget).setFocus(reason);
}

void DockWidget::Impl::OnDocked(DockToolboxSite& site)
{
    if (Site() && Site() != &site)
        Site()->RemoveWidget(Panel());
    floated = false;
    manager->_Impl()->floating.removeAll(window);
    window->setWindowFlags(window->windowFlags() & ~Qt::WindowFlags(c_window_type_bits));
    window->setMouseTracking(false);
    window->setAttribute(Qt::WA_Hover, false);
    window->unsetCursor();
    resize_edge = ResizeEdge::None;
    if (title) {
        title->setMouseTracking(false);
        title->setAttribute(Qt::WA_Hover, false);
    }
    HideOverlay();
    EndWaiting();
    SetExpandAvailable(true); // until the site knows better
    Panel()->_SetToolboxSite(&site);
    // The site has a say in the sizes and the policy.
    PostUpdate(UpdateSizes);
    site._UpdateSizer();
}

void DockWidget::Impl::SetFloated(const QPoint& pos)
{
    if (floated)
        return;
    const bool show = !explicitly_hidden;
    floated = true;
    QList<DockWindow*>& floating = manager->_Impl()->floating;
    if (!floating.contains(window))
        floating.append(window);
    HideOverlay();
    if (Site())
        Site()->RemoveWidget(Panel());
    window->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    window->setFrameShape(QFrame::Box);
    window->setMouseTracking(true);
    window->setAttribute(Qt::WA_Hover, true);
    if (title) {
        title->setMouseTracking(true);
        title->setAttribute(Qt::WA_Hover, true);
    }
    expand_available = true;
    PostUpdate(UpdateButtons);
    PostUpdate(UpdateSizes | UpdateButtons);
    window->move(pos);
    m_put_at = pos;
    window->setVisible(show);
}

void DockWidget::Impl::WaitForWindow()
{
    if (!floated || manager->window()->isVisible())
        return;
    m_waiting = true;
    window->setAttribute(Qt::WA_DontShowOnScreen);
}

void DockWidget::Impl::EndWaiting()
{
    if (!std::exchange(m_waiting, false))
        return;
    window->setAttribute(Qt::WA_DontShowOnScreen, false);
    if (!floated || !window->isVisible())
        return;
    window->QWidget::setVisible(false);
    window->QWidget::setVisible(true);
}

void DockWidget::Impl::SetExpandAvailable(bool available)
{
    if (expand_available == available)
        return;
    expand_available = available;
    PostUpdate(UpdateButtons);
}

void DockWidget::Impl::BringOnScreen()
{
    const QPoint corner = window->pos();
    const QList<QRect> screens = manager->_Impl()->screens();
    for (const QRect& screen : screens) {
        if (screen.contains(corner, true))
            return;
    }
    const QRect around(manager->mapToGlobal(QPoint(0, 0)), manager->size());
    QRect rect = window->geometry();
    rect.moveCenter(around.center());
    window->move(rect.topLeft());
}

void DockWidget::Impl::Retire()
{
    if (destroying)
        return;
    destroying = true;
    HideOverlay();
    DockManager::Impl* const registry = manager->_Impl();
    if (registry->controller->GetWidget() == window)
        registry->controller->Cancel();
    ReleasePages();
    registry->floating.removeAll(window);
    registry->hidden.removeAll(window);
    registry->disabled.removeAll(window);
    if (Site())
        Site()->RemoveWidget(Panel());
}

void DockWidget::Impl::OnShown()
{
    DockToolboxSite* const site = Site();
    if (!site || destroying)
        return;
    // A folded panel has all the room that it takes.
    if (!collapsed && !site->_pp()->MakeRoomFor(*Panel())) {
        Panel()->SetCollapsed(true, false);
        folded_for_room = collapsed;
    }
    site->_UpdateSizer();
}

void DockWidget::Impl::OnHidden()
{
    DockToolboxSite* const site = Site();
    if (!site || destroying)
        return;
    site->_pp()->ExpandForcedWidgets();
    site->_UpdateSizer();
}

void DockWidget::Impl::SetBlocked(bool block)
{
    if (block == !block_overlay.isNull())
        return;
    if (!block) {
        delete block_overlay;
        blocked = false;
        PostUpdate(UpdateSizes);
        return;
    }
    blocked = true;
    if (QWidget* const focus = window->focusWidget())
        focus->clearFocus();
    block_overlay = new BlockOverlay(*Panel()); // a child of the panel
}

} // namespace ovk
