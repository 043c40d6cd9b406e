#include "ovk/docking/dock_window.h"

#include "ovk/docking/dock_window_p.h"

#include <QtCore/QEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QResizeEvent>

#include <memory>

namespace ovk {

DockWindow::Impl::Impl() = default;
DockWindow::Impl::~Impl() = default;

void DockWindow::Impl::OnResized(const QSize&)
{
    LayoutTitle();
}

void DockWindow::Impl::BeginDrag(const QPoint&, const QPoint&) {}

bool DockWindow::Impl::CanDrag() const
{
    return true;
}

void DockWindow::Impl::EndDrag(const QPoint&) {}

void DockWindow::Impl::DragTo(const QPoint&) {}

bool DockWindow::Impl::CanResize() const
{
    return true;
}

int DockWindow::Impl::GetDragThreshold() const
{
    return 0;
}

void DockWindow::Impl::CancelDrag() {}

void DockWindow::Impl::SetTitleVisible(bool visible)
{
    if (visible == !title.isNull())
        return;
    if (!visible) {
        // Forgotten first: while it dies it is no title any more, and still sends events.
        const std::unique_ptr<DockTitle> going(title);
        title.clear();
        going->removeEventFilter(this);
        return;
    }
    title = CreateTitle();
    title->installEventFilter(this);
    LayoutTitle();
    title->show();
}

void DockWindow::Impl::LayoutTitle()
{
    if (title)
        title->setGeometry(0, 0, window->width(), title->sizeHint().height());
}

void DockWindow::Impl::AbortDrag()
{
    if (!dragging)
        return;
    armed = false;
    dragging = false;
    if (title)
        title->releaseMouse();
    CancelDrag();
}

bool DockWindow::Impl::OnTitlePress(const QMouseEvent& event)
{
    // The border of a floating window lies over its title: the press is for the window then.
    if (resize_edge != ResizeEdge::None)
        return false;
    title_press = event.pos();
    armed = true;
    return true;
}

bool DockWindow::Impl::OnTitleMove(QMouseEvent& event)
{
    if (!window->isEnabled())
        return true;
    if (dragging) {
        const QPoint global = event.globalPos();
        window->move(global - title_press);
        DragTo(global);
        return true;
    }
    if (!armed) {
        window->mouseMoveEvent(&event);
        return true;
    }
    if (!CanDrag() || (event.pos() - title_press).manhattanLength() < GetDragThreshold())
        return true;
    dragging = true;
    BeginDrag(event.globalPos(), title_press);
    return true;
}

bool DockWindow::Impl::OnTitleRelease(const QMouseEvent& event)
{
    if (!dragging)
        return false;
    armed = false;
    dragging = false;
    const QPointer<DockTitle> pressed = title;
    EndDrag(event.globalPos());
    if (pressed)
        pressed->releaseMouse();
    return true;
}

bool DockWindow::Impl::eventFilter(QObject* watched, QEvent* event)
{
    if (!title || watched != title)
        return QObject::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto& mouse = static_cast<const QMouseEvent&>(*event);
        if (mouse.buttons() & Qt::LeftButton)
            return OnTitlePress(mouse);
        break;
    }
    case QEvent::MouseButtonDblClick:
        OnTitleDoubleClick();
        return true;
    case QEvent::MouseMove: {
        auto& mouse = static_cast<QMouseEvent&>(*event);
        if (mouse.buttons() & Qt::LeftButton)
            return OnTitleMove(mouse);
        // The release went to another program or to a message box.
        AbortDrag();
        break;
    }
    case QEvent::MouseButtonRelease:
        if (OnTitleRelease(static_cast<const QMouseEvent&>(*event)))
            return true;
        break;
    case QEvent::Resize:
        // A narrowed title would slip away from under the cursor.
        if (dragging) {
            const int width = static_cast<const QResizeEvent&>(*event).size().width();
            if (title_press.x() > width)
                title_press.setX(width - 1);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void DockWindow::Impl::HitTest(const QPoint& pos)
{
    resize_edge = HitTestEdge(pos, window->size());
    if (resize_edge == ResizeEdge::None) {
        window->releaseMouse();
        window->unsetCursor();
        return;
    }
    window->setCursor(ResizeCursor(resize_edge));
    // Else the window would not hear that the cursor has left it.
    window->grabMouse();
}

void DockWindow::Impl::StoreResizeStart(const QPoint& pos)
{
    resize_press = pos;
    resize_start = window->geometry();
}

void DockWindow::Impl::ResizeTo(const QMouseEvent& event)
{
    // What comes from a window system may be late: it was measured from where the window was then,
    // and the window may not be yet where it was put last. The border would run away from the
    // pointer, were it not for the place that was asked for.
    const bool real = event.spontaneous();
    const QPoint pos = real ? event.globalPos() - resize_start.topLeft() : event.pos();
    const QSize live = real ? resize_start.size() : window->size();
    const auto step = ResizeByEdge(resize_edge, resize_start, resize_press, pos, live);
    if (!step)
        return;
    window->setGeometry(step->geometry);
    if (step->refresh)
        resize_start = window->geometry();
}

DockWindow::DockWindow(Impl* impl, QWidget* parent)
    : QFrame(parent, Qt::FramelessWindowHint | Qt::CustomizeWindowHint), mp_impl(impl)
{
    mp_impl->window = this;
}

DockWindow::~DockWindow()
{
    delete std::exchange(mp_impl, nullptr);
}

void DockWindow::SetTitleVisible(bool visible)
{
    mp_impl->SetTitleVisible(visible);
}

bool DockWindow::IsTitleVisible() const
{
    return !mp_impl->title.isNull();
}

bool DockWindow::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (!isEnabled())
            return true;
        break;
    case QEvent::Resize:
        mp_impl->OnResized(static_cast<const QResizeEvent&>(*event).size());
        break;
    default:
        break;
    }
    return QFrame::event(event);
}

void DockWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (!mp_impl->CanResize())
        return;
    if (event->buttons() & Qt::LeftButton)
        mp_impl->ResizeTo(*event);
    else
        mp_impl->HitTest(event->pos());
}

void DockWindow::mousePressEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && mp_impl->CanResize())
        mp_impl->StoreResizeStart(event->pos());
}

} // namespace ovk

#include "moc_dock_window.cpp"
