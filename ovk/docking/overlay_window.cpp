#include "ovk/docking/overlay_window.h"

#include "ovk/docking/dock_overlay_p.h"
#include "ovk/docking/overlay_window_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QPainter>

namespace ovk {

namespace {

constexpr int c_duration = 6000;     // milliseconds
constexpr int c_step_duration = 250; // milliseconds
constexpr int c_first_steps = 4;     // steps of time before the first one of fading
constexpr int c_steps = 20;

} // namespace

RegrabEvent::RegrabEvent() : QEvent(GetType()) {}

QEvent::Type RegrabEvent::GetType()
{
    static const auto s_type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return s_type;
}

OverlayWindow::Impl::Impl(OverlayWindow& overlay) : window(&overlay) {}

OverlayWindow::Impl::~Impl() = default;

int OverlayWindow::Impl::duration() const
{
    return c_duration;
}

QMargins OverlayWindow::Impl::CutMargins(const QRect& rect, const QRect& parent)
{
    return {rect.left() - parent.left(), rect.top() - parent.top(),
            (rect.right() - rect.left()) - (parent.right() - parent.left()),
            (rect.bottom() - rect.top()) - (parent.bottom() - parent.top())};
}

void OverlayWindow::Impl::Snapshot()
{
    QWidget* const parent = window->parentWidget();
    if (!parent || m_grabbing)
        return;
    m_grabbing = true;
    const QPointer<OverlayWindow> guard(window);
    // The parent must have painted what the picture is to show.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!guard)
        return;
    m_grabbing = false;
    const QRect rect = parent->rect().marginsRemoved(margins);
    snapshot = GrabFromScreen(*parent, rect);
    faded = snapshot;
    window->setGeometry(rect);
    window->raise();
    window->QWidget::setVisible(true);
}

void OverlayWindow::Impl::updateCurrentTime(int time)
{
    if (time <= (step + c_first_steps) * c_step_duration)
        return;
    ++step;
    QColor color = fading_color;
    color.setAlpha(qBound(0, fading_color.alpha() * step / c_steps, 255));
    faded = snapshot;
    if (!faded.isNull()) {
        QPainter painter(&faded);
        painter.fillRect(faded.rect(), color);
    }
    window->update();
}

OverlayWindow::OverlayWindow(QWidget* parent)
    : OverlayWindow(parent, parent ? parent->rect() : QRect())
{
}

OverlayWindow::OverlayWindow(QWidget* parent, const QRect& rect)
    : QWidget(parent, Qt::WindowDoesNotAcceptFocus), mp_impl(std::make_unique<Impl>(*this))
{
    if (!parent) {
        deleteLater();
        return;
    }
    mp_impl->margins = Impl::CutMargins(rect, parent->rect());
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_TranslucentBackground);
    parent->installEventFilter(this);
}

OverlayWindow::~OverlayWindow() = default;

QColor OverlayWindow::GetFadingColor() const
{
    return mp_impl->fading_color;
}

void OverlayWindow::SetFadingColor(const QColor& color)
{
    mp_impl->fading_color = color;
}

void OverlayWindow::setVisible(bool visible)
{
    if (visible && !isVisible() && parentWidget()) {
        const QPointer<OverlayWindow> guard(this);
        mp_impl->Snapshot();
        if (!guard)
            return;
        mp_impl->start(QAbstractAnimation::KeepWhenStopped);
    } else if (!visible) {
        // The owner's word: a snapshot that is due after a resize must not bring the window back.
        QCoreApplication::removePostedEvents(this, RegrabEvent::GetType());
    }
    QWidget::setVisible(visible);
}

bool OverlayWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget()) {
        if (event->type() == QEvent::Resize) {
            if (isVisible()) {
                hide();
                QCoreApplication::postEvent(this, new RegrabEvent, Qt::NormalEventPriority);
            }
        } else if (event->type() == QEvent::ChildAdded) {
            raise();
        }
    }
    return QObject::eventFilter(watched, event);
}

void OverlayWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), mp_impl->faded);
}

void OverlayWindow::customEvent(QEvent* event)
{
    if (event->type() == RegrabEvent::GetType())
        mp_impl->Snapshot();
}

} // namespace ovk

#include "moc_overlay_window.cpp"
