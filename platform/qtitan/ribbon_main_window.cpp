#include "ribbon_main_window.h"

#include "ribbon_bar.h"
#include "ribbon_metrics_p.h"
#include "ribbon_util_p.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace Qtitan {

class RibbonMainWindowPrivate
{
public:
    explicit RibbonMainWindowPrivate(RibbonMainWindow* window) : q(window) {}

    bool isThemed() const { return bar && bar->isFrameThemeEnabled(); }
    /// The edges of the window near a position; none while it cannot be resized.
    Qt::Edges edgesAt(const QPoint& position) const;
    void showCursor(Qt::Edges edges);
    bool handleMouse(QMouseEvent* event);
    void resizeByHand(const QPoint& global);
    void updateMargins();
    void watchHandle();

    RibbonMainWindow* const q;
    RibbonBar* bar = nullptr;
    QWindow* handle = nullptr;
    bool cursorShown = false;
    Qt::CursorShape cursor = Qt::ArrowCursor;
    Qt::Edges resizing;
    QRect startGeometry;
    QPoint startPosition;
};

Qt::Edges RibbonMainWindowPrivate::edgesAt(const QPoint& position) const
{
    if (!isThemed() || q->isMaximized() || q->isFullScreen())
        return {};
    const int border = RibbonMetrics::of(q).resizeBorder;
    const QRect rect = q->rect();
    if (!rect.contains(position))
        return {};
    // Corners reach further than edges, so that they can be hit.
    const int corner = 3 * border;
    Qt::Edges edges;
    const bool left = position.x() < border;
    const bool right = position.x() >= rect.width() - border;
    const bool top = position.y() < border;
    const bool bottom = position.y() >= rect.height() - border;
    const bool vertical = left || right;
    const bool horizontal = top || bottom;
    if (left || (horizontal && position.x() < corner))
        edges |= Qt::LeftEdge;
    else if (right || (horizontal && position.x() >= rect.width() - corner))
        edges |= Qt::RightEdge;
    if (top || (vertical && position.y() < corner))
        edges |= Qt::TopEdge;
    else if (bottom || (vertical && position.y() >= rect.height() - corner))
        edges |= Qt::BottomEdge;
    if (q->minimumWidth() == q->maximumWidth())
        edges &= ~Qt::Edges(Qt::LeftEdge | Qt::RightEdge);
    if (q->minimumHeight() == q->maximumHeight())
        edges &= ~Qt::Edges(Qt::TopEdge | Qt::BottomEdge);
    return edges;
}

void RibbonMainWindowPrivate::showCursor(Qt::Edges edges)
{
    Qt::CursorShape shape = Qt::ArrowCursor;
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        shape = Qt::SizeFDiagCursor;
    else if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        shape = Qt::SizeBDiagCursor;
    else if (edges & (Qt::LeftEdge | Qt::RightEdge))
        shape = Qt::SizeHorCursor;
    else if (edges & (Qt::TopEdge | Qt::BottomEdge))
        shape = Qt::SizeVerCursor;
    if (!edges) {
        if (cursorShown)
            QGuiApplication::restoreOverrideCursor();
        cursorShown = false;
    } else if (!cursorShown) {
        QGuiApplication::setOverrideCursor(shape);
        cursorShown = true;
    } else if (shape != cursor) {
        QGuiApplication::changeOverrideCursor(shape);
    }
    cursor = shape;
}

bool RibbonMainWindowPrivate::handleMouse(QMouseEvent* event)
{
    const QPoint position = q->mapFromGlobal(event->globalPos());
    switch (event->type()) {
    case QEvent::MouseMove:
        if (resizing) {
            resizeByHand(event->globalPos());
            return true;
        }
        if (event->buttons() == Qt::NoButton)
            showCursor(edgesAt(position));
        return cursorShown;
    case QEvent::MouseButtonPress: {
        const Qt::Edges edges = edgesAt(position);
        if (event->button() != Qt::LeftButton || !edges)
            return false;
        if (!handle || !handle->startSystemResize(edges)) {
            resizing = edges;
            startGeometry = q->geometry();
            startPosition = event->globalPos();
        }
        return true;
    }
    case QEvent::MouseButtonRelease:
        if (!resizing)
            return false;
        resizing = {};
        showCursor(edgesAt(position));
        return true;
    default:
        return false;
    }
}

void RibbonMainWindowPrivate::resizeByHand(const QPoint& global)
{
    const QPoint moved = global - startPosition;
    const QSize least = q->minimumSize().expandedTo(q->minimumSizeHint());
    QRect rect = startGeometry;
    if (resizing & Qt::LeftEdge)
        rect.setLeft(qMin(rect.left() + moved.x(), rect.right() + 1 - least.width()));
    if (resizing & Qt::RightEdge)
        rect.setRight(qMax(rect.right() + moved.x(), rect.left() - 1 + least.width()));
    if (resizing & Qt::TopEdge)
        rect.setTop(qMin(rect.top() + moved.y(), rect.bottom() + 1 - least.height()));
    if (resizing & Qt::BottomEdge)
        rect.setBottom(qMax(rect.bottom() + moved.y(), rect.top() - 1 + least.height()));
    q->setGeometry(rect);
}

void RibbonMainWindowPrivate::updateMargins()
{
    const bool framed = isThemed() && !q->isMaximized() && !q->isFullScreen();
    const int line = framed ? 1 : 0;
    q->setContentsMargins(line, line, line, line);
    q->update();
}

void RibbonMainWindowPrivate::watchHandle()
{
    QWindow* now = q->windowHandle();
    if (now == handle)
        return;
    // The old handle is gone; the new one hears of the mouse before any child does.
    handle = now;
    if (handle)
        handle->installEventFilter(q);
}

RibbonMainWindow::RibbonMainWindow(QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), d(std::make_unique<RibbonMainWindowPrivate>(this))
{
    d->bar = new RibbonBar(this);
    setMenuWidget(d->bar);
}

RibbonMainWindow::~RibbonMainWindow()
{
    d->showCursor({});
    // The bar's elements reach into the window; they go while it is still one.
    RibbonBar* bar = d->bar;
    d->bar = nullptr;
    delete bar;
}

RibbonBar* RibbonMainWindow::ribbonBar() const
{
    return d->bar;
}

bool RibbonMainWindow::event(QEvent* event)
{
    const bool result = QMainWindow::event(event);
    switch (event->type()) {
    case QEvent::WinIdChange:
    case QEvent::Show:
        d->watchHandle();
        d->updateMargins();
        break;
    case QEvent::Leave:
        if (!d->resizing)
            d->showCursor({});
        break;
    default:
        break;
    }
    return result;
}

bool RibbonMainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->handle && d->isThemed()) {
        switch (event->type()) {
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
            if (d->handleMouse(static_cast<QMouseEvent*>(event)))
                return true;
            break;
        default:
            break;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void RibbonMainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        d->updateMargins();
    else if (event->type() == QEvent::ActivationChange)
        update();
}

void RibbonMainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    if (!d->isThemed() || isMaximized() || isFullScreen())
        return;
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    RibbonPainter::drawWindowFrame(painter, option);
}

} // namespace Qtitan

#include "moc_ribbon_main_window.cpp"
