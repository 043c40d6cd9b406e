#include "ovk/docking/dock_widget_p.h"

#include "ovk/docking/dock_drag_controller_p.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_toolbox_site_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

namespace ovk {

void DockWidget::Impl::OnTitleDoubleClick()
{
    const DockCallbackScope scope(manager);
    Panel()->SetCollapsed(!collapsed, false);
}

void DockWidget::Impl::BeginDrag(const QPoint& global, const QPoint& press)
{
    const QPointer<DockWindow> guard(window);
    SetFloated(global);
    if (!guard)
        return;
    DockDragController* const controller = manager->_Impl()->controller.get();
    controller->Begin(*Panel(), press);
    controller->Update(press);
}

bool DockWidget::Impl::CanDrag() const
{
    return floated || (Panel()->IsCollapsible() && movable);
}

void DockWidget::Impl::EndDrag(const QPoint& global)
{
    manager->_Impl()->controller->End(global);
}

void DockWidget::Impl::DragTo(const QPoint& global)
{
    manager->_Impl()->controller->Update(global);
}

bool DockWidget::Impl::CanResize() const
{
    return floated;
}

int DockWidget::Impl::GetDragThreshold() const
{
    return floated ? 0 : 2 * QApplication::startDragDistance();
}

void DockWidget::Impl::CancelDrag()
{
    if (manager->_Impl()->controller->GetWidget() == window)
        manager->_Impl()->controller->Cancel();
}

bool DockWidget::Impl::eventFilter(QObject* watched, QEvent* event)
{
    if (destroying)
        return DockWindow::Impl::eventFilter(watched, event);
    const DockCallbackScope scope(manager);
    if (watched == window) {
        FilterPanel(*event);
    } else if (watched == tab_bar) {
        FilterTabBar(*event);
    } else if (auto* const widget = qobject_cast<QWidget*>(watched)) {
        if (PageOf(widget))
            FilterPage(*widget, *event);
    }
    return DockWindow::Impl::eventFilter(watched, event);
}

void DockWidget::Impl::FilterPanel(QEvent& event)
{
    switch (event.type()) {
    case QEvent::Show:
        if (!event.spontaneous())
            OnShown();
        break;
    case QEvent::Hide:
        if (!event.spontaneous())
            OnHidden();
        break;
    case QEvent::WindowActivate:
        // The focus of a floating panel goes into its page first, not to a button of the title.
        if (floated && !window->focusWidget())
            FocusCurrentPage(Qt::ActiveWindowFocusReason);
        break;
    case QEvent::Move:
        if (event.spontaneous())
            OnMoved();
        break;
    case QEvent::ContextMenu:
        // The mouse has title and tabs for it; with the key it opens from anywhere in the panel
        // that has no menu of its own.
        if (static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard) {
            ShowMenuByKeyboard();
            event.accept();
        }
        break;
    case QEvent::LayoutRequest:
        if (!blocked)
            PostUpdate(UpdateSizes);
        break;
    case QEvent::StyleChange:
    case QEvent::FontChange:
        PostUpdate(UpdateSizes);
        break;
    case QEvent::ChildRemoved: {
        // A child that dies is no widget any more; its page left when it said so.
        const QObject* const child = static_cast<const QChildEvent&>(event).child();
        IDockPage* gone = nullptr;
        for (IDockPage* page : qAsConst(all_pages)) {
            if (WidgetOf(page) == child)
                gone = page;
        }
        if (gone && !page_destroy_guard)
            DropPage(gone);
        break;
    }
    default:
        break;
    }
}

void DockWidget::Impl::OnMoved()
{
    // A window that was part of another, and has native children, may be reported at the corner of
    // the screen while a window manager takes it over, and never again where it is.
    const QPoint put_at = std::exchange(m_put_at, QPoint());
    if (!floated || dragging || put_at.isNull() || !window->pos().isNull())
        return;
    QTimer::singleShot(0, this, [this, put_at] {
        if (floated && !dragging && window->pos().isNull())
            window->move(put_at);
    });
}

void DockWidget::Impl::FilterPage(QWidget& widget, QEvent& event)
{
    if (event.type() != QEvent::WindowTitleChange)
        return;
    const int index = visible_pages.indexOf(PageOf(&widget));
    if (index >= 0)
        tab_bar->setTabText(index, widget.windowTitle());
    PostUpdate(UpdateTitleText);
}

void DockWidget::Impl::FilterTabBar(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        const IDockPage* const page = GetCurrentPage();
        if (QGuiApplication::mouseButtons() == Qt::LeftButton && tab_bar->tabAt(mouse.pos()) >= 0 &&
            page && movable)
            tab_tear_armed = true;
        break;
    }
    case QEvent::MouseButtonRelease:
        tab_tear_armed = false;
        break;
    case QEvent::MouseMove: {
        if (!tab_tear_armed)
            break;
        const auto& mouse = static_cast<const QMouseEvent&>(event);
        const int height = tab_bar->height();
        const QRect band = tab_bar->rect().adjusted(0, -height, 0, height);
        if (band.contains(mouse.pos()))
            break;
        tab_tear_armed = false;
        if (QGuiApplication::mouseButtons() == Qt::LeftButton)
            TearOff(mouse.pos());
        break;
    }
    default:
        break;
    }
}

void DockWidget::Impl::TearOff(const QPoint& pos)
{
    const QPointer<DockWindow> guard(window);
    QMouseEvent release(QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(tab_bar, &release);
    IDockPage* const page = guard ? GetCurrentPage() : nullptr;
    if (!page)
        return;

    DockWidget* const torn = manager->CreateDockWidget();
    torn->setVisible(false);
    torn->SetName(manager->_Impl()->UniqueName());
    torn->SetDeleteOnClose(delete_on_close);
    torn->SetFitToCurrent(fit_to_current);
    const QPoint offset = title ? title->pos() : window->pos();
    const QPoint global = tab_bar->mapToGlobal(pos) - offset;
    QWidget* const widget = WidgetOf(page);
    const bool enabled = widget->isEnabled();
    torn->resize(window->size());
    torn->AddPage(page);
    widget->setEnabled(enabled);
    torn->SetFloated(global);
    torn->setVisible(true);
    Impl* const torn_impl = torn->_Impl();
    if (all_pages.isEmpty() && delete_on_empty)
        Panel()->deleteLater();
    if (!torn_impl->title)
        return;

    QMouseEvent press(QEvent::MouseButtonPress, offset, offset + QPoint(1, 1), global + offset,
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(torn_impl->title, &press);
    // The implicit grab is with the old tab bar.
    if (torn_impl->title)
        torn_impl->title->grabMouse();
}

void DockWidget::Impl::ShowOverlay(const QPoint& pos)
{
    bool inside = false;
    const QPoint p = window->mapFromGlobal(pos);
    if (window->rect().contains(p)) {
        if (!overlay)
            overlay = new DockOverlay(*Panel()); // a child of the panel
        inside = overlay->geometry().contains(p);
        overlay->SetActive(inside);
    } else {
        HideOverlay();
    }
    if (Site())
        Site()->_SetEstimatorHighlight(!inside);
}

void DockWidget::Impl::HideOverlay()
{
    delete overlay;
}

void DockWidget::OnDragEnter(DockWidget& widget, const QPoint& pos)
{
    DockToolboxSiteDragTarget::OnDragEnter(widget, pos);
}

void DockWidget::OnDragLeave(DockWidget& widget, IDockDragTarget* next, const QPoint& pos)
{
    DockToolboxSiteDragTarget::OnDragLeave(widget, next, pos);
    _Impl()->HideOverlay();
}

void DockWidget::OnDragOver(DockWidget& widget, const QPoint& pos)
{
    DockToolboxSiteDragTarget::OnDragOver(widget, pos);
    if (!GetToolboxSite() || !GetToolboxSite()->IsState(DockToolboxSite::Animating))
        _Impl()->ShowOverlay(pos);
}

void DockWidget::OnDragCancel(DockWidget& widget, const QPoint& pos)
{
    DockToolboxSiteDragTarget::OnDragCancel(widget, pos);
    _Impl()->HideOverlay();
}

void DockWidget::OnDragDrop(DockWidget& dragged, const QPoint& pos)
{
    Impl* const impl = _Impl();
    const QPointer<DockWidget> guard(this);
    if (impl->overlay && impl->overlay->geometry().contains(mapFromGlobal(pos))) {
        impl->Merge(dragged);
        if (guard && GetToolboxSite())
            GetToolboxSite()->_FinishEvaluation();
    } else {
        DockToolboxSiteDragTarget::OnDragDrop(dragged, pos);
    }
    if (guard)
        impl->HideOverlay();
}

} // namespace ovk
