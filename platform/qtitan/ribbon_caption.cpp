#include "ribbon_bar_p.h"
#include "ribbon_main_window.h"
#include "ribbon_metrics_p.h"
#include "ribbon_util_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace Qtitan {

RibbonCaptionWidget::RibbonCaptionWidget(RibbonCaptionButton kind, QWidget* parent)
    : QAbstractButton(parent), m_kind(kind)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setKind(kind);
}

void RibbonCaptionWidget::setKind(RibbonCaptionButton kind)
{
    m_kind = kind;
    QString name;
    switch (kind) {
    case RibbonCaptionButton::Minimize:
        name = tr("Minimize");
        break;
    case RibbonCaptionButton::Maximize:
        name = tr("Maximize");
        break;
    case RibbonCaptionButton::Restore:
        name = tr("Restore");
        break;
    case RibbonCaptionButton::Close:
        name = tr("Close");
        break;
    case RibbonCaptionButton::Help:
        name = tr("Help");
        break;
    }
    setToolTip(name);
    setAccessibleName(name);
    update();
}

void RibbonCaptionWidget::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setKind(m_kind);
}

void RibbonCaptionWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown());
    RibbonPainter::drawCaptionButton(painter, option, m_kind);
}

RibbonCaptionBox::RibbonCaptionBox(QWidget* parent)
    : QWidget(parent), m_minimize(new RibbonCaptionWidget(RibbonCaptionButton::Minimize, this)),
      m_maximize(new RibbonCaptionWidget(RibbonCaptionButton::Maximize, this)),
      m_close(new RibbonCaptionWidget(RibbonCaptionButton::Close, this))
{
    setObjectName(QStringLiteral("ribbonCaptionBox"));
    m_minimize->setObjectName(QStringLiteral("captionMinimize"));
    m_maximize->setObjectName(QStringLiteral("captionMaximize"));
    m_close->setObjectName(QStringLiteral("captionClose"));
    connect(m_minimize, &QAbstractButton::clicked, this, [this] { window()->showMinimized(); });
    connect(m_maximize, &QAbstractButton::clicked, this,
            [this] { window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized); });
    connect(
        m_close, &QAbstractButton::clicked, this, [this] { window()->close(); },
        Qt::QueuedConnection);
}

QSize RibbonCaptionBox::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    int count = 0;
    for (const RibbonCaptionWidget* button : {m_minimize, m_maximize, m_close})
        count += button->isHidden() ? 0 : 1;
    return QSize(count * metrics.captionButtonWidth, metrics.captionHeight);
}

void RibbonCaptionBox::follow(const QWidget* window)
{
    m_maximize->setKind(window->isMaximized() ? RibbonCaptionButton::Restore
                                              : RibbonCaptionButton::Maximize);
    const Qt::WindowFlags flags = window->windowFlags();
    const bool chosen = flags & Qt::CustomizeWindowHint;
    m_minimize->setVisible(!chosen || (flags & Qt::WindowMinimizeButtonHint));
    const bool fixed = window->minimumSize() == window->maximumSize();
    m_maximize->setVisible(!fixed && (!chosen || (flags & Qt::WindowMaximizeButtonHint)));
    m_close->setEnabled(!chosen || (flags & Qt::WindowCloseButtonHint));
}

void RibbonCaptionBox::resizeEvent(QResizeEvent*)
{
    int left = 0;
    for (const RibbonCaptionWidget* button : {m_minimize, m_maximize, m_close})
        left += button->isHidden() ? 0 : 1;
    int x = 0;
    for (RibbonCaptionWidget* button : {m_minimize, m_maximize, m_close}) {
        if (button->isHidden())
            continue;
        const int share = (width() - x) / left--;
        button->setGeometry(directed(QRect(x, 0, share, height()), width(), layoutDirection()));
        x += share;
    }
}

void RibbonBarPrivate::setFrameThemed(bool themed)
{
    if (frameThemed == themed)
        return;
    frameThemed = themed;
    if (themed) {
        caption = new RibbonCaptionBox(q);
        caption->show();
    } else {
        delete caption;
        caption = nullptr;
    }
    heightChanged();
    if (auto* window = qobject_cast<RibbonMainWindow*>(q->window())) {
        // A change of the flags hides the window; what was seen stays seen.
        const bool visible = window->isVisible();
        window->setWindowFlag(Qt::FramelessWindowHint, themed);
        if (visible)
            window->show();
    }
    watchWindow();
}

void RibbonBar::mousePressEvent(QMouseEvent* event)
{
    if (!d->frameThemed || event->button() != Qt::LeftButton ||
        !d->captionRect().contains(event->pos())) {
        event->ignore();
        return;
    }
    d->captionPressed = true;
    d->pressedAt = event->pos();
}

void RibbonBar::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->captionPressed ||
        (event->pos() - d->pressedAt).manhattanLength() < QApplication::startDragDistance())
        return;
    QWidget* top = window();
    QWindow* handle = top->windowHandle();
    if (handle && handle->startSystemMove()) {
        d->captionPressed = false;
        return;
    }
    // Window systems that do not move windows at request: by hand, out of the maximised state too.
    if (top->isMaximized()) {
        const qreal part = qreal(d->pressedAt.x()) / qMax(1, width());
        top->showNormal();
        d->pressedAt.setX(int(part * width()));
    }
    top->move(top->pos() + event->pos() - d->pressedAt);
}

void RibbonBar::mouseReleaseEvent(QMouseEvent*)
{
    d->captionPressed = false;
}

void RibbonBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!d->frameThemed || event->button() != Qt::LeftButton ||
        !d->captionRect().contains(event->pos())) {
        event->ignore();
        return;
    }
    d->captionPressed = false;
    window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized);
}

} // namespace Qtitan

#include "moc_ribbon_bar_p.cpp"
