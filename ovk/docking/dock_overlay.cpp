#include "ovk/docking/dock_overlay_p.h"

#include "ovk/docking/dock_manager.h"
#include "ovk/docking/dock_toolbox_site.h"
#include "ovk/docking/dock_widget_p.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

#include <algorithm>

namespace ovk {

namespace {

constexpr int c_filled_alpha = 200;
constexpr int c_bleach_alpha = 128;

QRect ZoneOf(DockWidget& panel)
{
    if (const DockToolboxSite* const site = panel.GetToolboxSite()) {
        return DockOverlay::DockedZone(panel.rect(), site->IsVertical(),
                                       panel.GetManager()->GetDockInsideGap());
    }
    const DockTitle* const title = panel._Impl()->title;
    return DockOverlay::FloatingZone(panel.rect(), title ? title->sizeHint().height() : 0);
}

/// A native window within a page, a 3D view say, would hide a cover that is none.
void CoverNativeContent(QWidget& cover, const DockWidget& panel)
{
    const QList<QWidget*> inner = panel.findChildren<QWidget*>();
    const bool native = std::any_of(inner.begin(), inner.end(), [](const QWidget* widget) {
        return widget->testAttribute(Qt::WA_NativeWindow);
    });
    if (!native)
        return;
    cover.setAttribute(Qt::WA_DontCreateNativeAncestors);
    cover.setAttribute(Qt::WA_NativeWindow);
}

} // namespace

QPixmap GrabFromScreen(QWidget& widget, const QRect& rect)
{
    QWidget* const window = widget.window();
    const QWindow* const handle = window->windowHandle();
    QScreen* screen = handle ? handle->screen() : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    QPixmap pixmap;
    // The window of the panel, not the panel: asking for a native window of its own would give one
    // to every parent on the way.
    if (screen && handle && window->isVisible()) {
        const QPoint origin = widget.mapTo(window, rect.topLeft());
        pixmap = screen->grabWindow(window->internalWinId(), origin.x(), origin.y(), rect.width(),
                                    rect.height());
    }
    return pixmap.isNull() ? widget.grab(rect) : pixmap;
}

QRect DockOverlay::DockedZone(const QRect& rect, bool vertical, int gap)
{
    if (vertical) {
        const int m = (rect.height() - rect.height() * gap / 100) / 2;
        return rect.adjusted(1, m, -1, -m);
    }
    const int m = (rect.width() - rect.width() * gap / 100) / 2;
    return rect.adjusted(m, 1, -m, -1);
}

QRect DockOverlay::FloatingZone(const QRect& rect, int title)
{
    return rect.adjusted(1, title > 0 ? title : 1, -1, -1);
}

DockOverlay::DockOverlay(DockWidget& panel) : QWidget(&panel)
{
    setAttribute(Qt::WA_NoSystemBackground);
    CoverNativeContent(*this, panel);
    const QRect zone = ZoneOf(panel);
    setGeometry(zone);
    m_plain = GrabFromScreen(panel, zone);
    m_outlined = m_plain;
    m_filled = m_plain;
    const QRect frame(0, 0, zone.width() - 1, zone.height() - 1);
    QColor color = panel.GetManager()->GetEvaluationColor();
    if (!m_plain.isNull()) {
        QPainter outline(&m_outlined);
        outline.setPen(QPen(color, 1, Qt::DotLine));
        outline.drawRect(frame);
        outline.end();
        color.setAlpha(c_filled_alpha);
        QPainter fill(&m_filled);
        fill.fillRect(frame, color);
    }
    raise();
    show();
}

void DockOverlay::SetActive(bool active)
{
    m_active = active;
    update();
}

void DockOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_active ? m_filled : m_outlined);
}

BlockOverlay::BlockOverlay(DockWidget& panel)
    : QWidget(&panel, Qt::WindowDoesNotAcceptFocus | Qt::FramelessWindowHint),
      m_pixmap(GrabFromScreen(panel, panel.rect()))
{
    if (!m_pixmap.isNull()) {
        QPainter painter(&m_pixmap);
        painter.fillRect(panel.rect(), QColor(255, 255, 255, c_bleach_alpha));
    }
    CoverNativeContent(*this, panel);
    setGeometry(0, 0, panel.width() - 1, panel.height() - 1);
    raise();
    show();
}

void BlockOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_pixmap);
}

bool BlockOverlay::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        // Else they would go on to the panel.
        event->accept();
        return true;
    default:
        return QWidget::event(event);
    }
}

} // namespace ovk

#include "moc_dock_overlay_p.cpp"
