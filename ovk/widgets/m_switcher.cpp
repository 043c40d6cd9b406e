#include "ovk/widgets/m_switcher.h"

#include "widget_accessibility_p.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFocusRect>

namespace ovk {

namespace {

constexpr char g_track_color[] = "#2196F3";
constexpr char g_thumb_off_color[] = "#C8C8C8";
constexpr char g_thumb_disabled_color[] = "#BDBDBD";
constexpr char g_track_off_color[] = "#000000";

constexpr double g_track_disabled_opacity = 0.12;
constexpr double g_track_on_opacity = 0.5;
constexpr double g_track_off_opacity = 0.38;

/// The time in which the thumb moves by one pixel.
constexpr int g_step_milliseconds = 10;

} // namespace

MSwitcher::MSwitcher(QWidget* parent) : MSwitcher(QColor(g_track_color), parent) {}

MSwitcher::MSwitcher(const QColor& trackColor, QWidget* parent)
    : QAbstractButton(parent), m_thumb_brush(QColor(g_thumb_off_color)), m_track_color(trackColor)
{
    InstallWidgetAccessibility();
    connect(&m_timer, &QTimer::timeout, this, &MSwitcher::timercall);
}

MSwitcher::~MSwitcher() = default;

bool MSwitcher::isToggled() const
{
    return m_toggled;
}

void MSwitcher::setToggle(bool toggle)
{
    if (m_toggled == toggle)
        return;
    m_toggled = toggle;
    _MoveThumb();
    _TellState();
}

bool MSwitcher::isDisable() const
{
    return m_disabled;
}

void MSwitcher::setDisable(bool disable)
{
    m_disabled = disable;
}

void MSwitcher::_MoveThumb()
{
    m_thumb_brush = QBrush(m_toggled ? m_track_color : QColor(g_thumb_off_color));
    m_timer.start(g_step_milliseconds);
}

QSize MSwitcher::minimumSizeHint() const
{
    return QSize((m_height + m_margin) * 2, m_height + m_margin * 2);
}

QSize MSwitcher::sizeHint() const
{
    return minimumSizeHint();
}

void MSwitcher::mousePressEvent(QMouseEvent* event)
{
    if (m_disabled)
        return;
    event->setAccepted(event->buttons().testFlag(Qt::LeftButton));
}

void MSwitcher::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_disabled)
        return;
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    _Switch();
}

void MSwitcher::_Switch()
{
    m_toggled = !m_toggled;
    Q_EMIT toggled();
    _MoveThumb();
    _TellState();
}

void MSwitcher::_TellState()
{
#ifndef QT_NO_ACCESSIBILITY
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
#endif
}

void MSwitcher::nextCheckState()
{
    if (!m_disabled)
        _Switch();
}

void MSwitcher::keyPressEvent(QKeyEvent* event)
{
    // Not that of the base: its click has a signal that the mouse does not give.
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Select)
        QAbstractButton::keyPressEvent(event);
    else if (!m_disabled && !event->isAutoRepeat())
        setDown(true);
}

void MSwitcher::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Select) {
        QAbstractButton::keyReleaseEvent(event);
    } else if (isDown() && !event->isAutoRepeat()) {
        setDown(false);
        _Switch();
    }
}

void MSwitcher::enterEvent(QEvent*)
{
    setCursor(Qt::PointingHandCursor);
}

void MSwitcher::resizeEvent(QResizeEvent* event)
{
    // In the on position too: the thumb is at the left until the next switch.
    m_thumb_x = m_height / 2;
    m_thumb_y = m_height / 2;
    QAbstractButton::resizeEvent(event);
}

void MSwitcher::timercall()
{
    if (m_toggled) {
        if (++m_thumb_x >= width() - m_height)
            m_timer.stop();
    } else {
        if (--m_thumb_x <= m_height / 2)
            m_timer.stop();
    }
    repaint();
}

void MSwitcher::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);

    QPainterPath track;
    track.addRoundedRect(QRectF(rect()).adjusted(m_margin, m_margin, -m_margin, -m_margin),
                         m_corner_radius, m_corner_radius, Qt::AbsoluteSize);
    const bool disabled = m_disabled || !isEnabled();
    if (disabled) {
        painter.setBrush(QColor(g_track_off_color));
        painter.setOpacity(g_track_disabled_opacity);
    } else {
        painter.setBrush(m_toggled ? m_track_color : QColor(g_track_off_color));
        painter.setOpacity(m_toggled ? g_track_on_opacity : g_track_off_opacity);
    }
    painter.drawPath(track.simplified());

    painter.setOpacity(1.0);
    painter.setBrush(disabled ? QBrush(QColor(g_thumb_disabled_color)) : m_thumb_brush);
    painter.drawEllipse(
        QRectF(m_thumb_x - m_height / 2, m_thumb_y - m_height / 2, height(), height()));

    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace ovk

#include "moc_m_switcher.cpp"
