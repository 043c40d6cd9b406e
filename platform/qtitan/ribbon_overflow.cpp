#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_util_p.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace Qtitan {

RibbonQuickAccessClip::RibbonQuickAccessClip(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("quickAccessClip"));
}

void RibbonQuickAccessClip::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    update();
}

void RibbonQuickAccessClip::paintEvent(QPaintEvent*)
{
    if (m_picture.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
}

RibbonOverflowButton::RibbonOverflowButton(RibbonQuickAccessBar* bar, QWidget* parent)
    : QAbstractButton(parent), m_bar(bar)
{
    setObjectName(QStringLiteral("quickAccessOverflow"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    retranslate();
    connect(this, &QAbstractButton::clicked, this, &RibbonOverflowButton::openPopup);
}

void RibbonOverflowButton::retranslate()
{
    setToolTip(tr("More controls"));
    setAccessibleName(tr("More controls"));
}

void RibbonOverflowButton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

QSize RibbonOverflowButton::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return QSize(metrics.px(13), metrics.quickAccessButton);
}

bool RibbonOverflowButton::isPopupVisible() const
{
    return m_popup && m_popup->isVisible();
}

void RibbonOverflowButton::openPopup()
{
    if (isPopupVisible() || !m_bar->hasOverflow())
        return;
    if (!m_popup)
        m_popup = new RibbonOverflowPopup(m_bar, this);
    m_popup->open();
    update();
}

void RibbonOverflowButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (!RibbonKeyboard::handleKey(this, event))
        QAbstractButton::keyPressEvent(event);
}

void RibbonOverflowButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        openPopup();
}

void RibbonOverflowButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown() || isPopupVisible());
    option.state.setFlag(RibbonState::Open, isPopupVisible());
    RibbonPainter::drawQuickAccessOverflow(painter, option);
}

RibbonOverflowPopup::RibbonOverflowPopup(RibbonQuickAccessBar* bar, RibbonOverflowButton* button)
    : QWidget(button, Qt::Popup | Qt::FramelessWindowHint), m_bar(bar), m_button(button),
      m_clip(new QWidget(this))
{
    setObjectName(QStringLiteral("quickAccessPopup"));
    connect(bar, &QToolBar::actionTriggered, this, &QWidget::hide);
}

void RibbonOverflowPopup::open()
{
    RibbonQuickAccessBarPrivate* bar = RibbonQuickAccessBarPrivate::get(m_bar);
    const int frame = RibbonMetrics::of(this).px(3);
    const QSize full = bar->fullSize();
    const int cut = qMax(0, bar->cut);
    setLayoutDirection(m_bar->layoutDirection());

    bar->clip->setPicture(bar->clip->grab());
    m_bar->setParent(m_clip);
    const QSize rest(full.width() - cut, full.height());
    resize(rest + QSize(2 * frame, 2 * frame));
    m_clip->setGeometry(QRect(QPoint(frame, frame), rest));
    m_bar->setGeometry(QRect(QPoint(layoutDirection() == Qt::RightToLeft ? 0 : -cut, 0), full));
    m_bar->show();

    const QRect button(m_button->mapToGlobal(QPoint(0, 0)), m_button->size());
    QScreen* screen = QGuiApplication::screenAt(button.center());
    const QRect room = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    const int x =
        layoutDirection() == Qt::RightToLeft ? button.right() + 1 - width() : button.left();
    move(qBound(room.left(), x, qMax(room.left(), room.right() + 1 - width())),
         button.bottom() + 1);
    show();
}

void RibbonOverflowPopup::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    RibbonQuickAccessBarPrivate* bar = RibbonQuickAccessBarPrivate::get(m_bar);
    bar->clip->setPicture(QPixmap());
    m_bar->setParent(bar->clip);
    bar->placeIn(bar->clip, bar->clip->geometry());
    m_bar->show();
    m_button->update();
}

void RibbonOverflowPopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(event);
}

void RibbonOverflowPopup::mousePressEvent(QMouseEvent* event)
{
    if (rect().contains(event->pos()))
        return;
    // A press on the button closes only: replayed, it would open the popup again.
    const QRect button(m_button->mapToGlobal(QPoint(0, 0)), m_button->size());
    setAttribute(Qt::WA_NoMouseReplay, button.contains(event->globalPos()));
    hide();
}

void RibbonOverflowPopup::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    RibbonPainter::drawPopup(painter, option);
}

} // namespace Qtitan

#include "moc_ribbon_quick_access_bar_p.cpp"
