#include "ribbon_system_button.h"

#include "ribbon_backstage.h"
#include "ribbon_bar_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_theme_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QActionEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace Qtitan {

RibbonSystemButton::RibbonSystemButton(RibbonBar* bar) : QToolButton(bar), m_bar(bar)
{
    setObjectName(QStringLiteral("ribbonSystemButton"));
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    setToolButtonStyle(Qt::ToolButtonFollowStyle);
    setPopupMode(InstantPopup);
    connect(this, &QAbstractButton::clicked, this, &RibbonSystemButton::toggleBackstage);
}

RibbonSystemButton::~RibbonSystemButton() = default;

void RibbonSystemButton::setBackstage(RibbonBackstageView* backstage)
{
    m_backstage = backstage;
}

RibbonBackstageView* RibbonSystemButton::backstage() const
{
    return m_backstage;
}

void RibbonSystemButton::toggleBackstage()
{
    if (m_backstage)
        m_backstage->setVisible(m_backstage->isHidden());
}

bool RibbonSystemButton::isRound() const
{
    return toolButtonStyle() == Qt::ToolButtonFollowStyle &&
           RibbonTheme::current().family() == RibbonTheme::Family::Office2007;
}

QSize RibbonSystemButton::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    if (isRound()) {
        const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
        const int diameter = bar->captionHeight() > 0
                                 ? bar->captionHeight() + bar->tabRowHeight() - metrics.px(6)
                                 : bar->tabRowHeight();
        return QSize(diameter, diameter);
    }
    const QString text =
        defaultAction() ? shortened(defaultAction()->iconText()) : plainText(this->text());
    int width = fontMetrics().horizontalAdvance(text) + 2 * metrics.px(14);
    if (toolButtonStyle() != Qt::ToolButtonTextOnly && !icon().isNull())
        width = text.isEmpty() || toolButtonStyle() == Qt::ToolButtonIconOnly
                    ? metrics.smallIcon + 2 * metrics.px(14)
                    : width + metrics.smallIcon + metrics.px(4);
    return QSize(qMax(width, metrics.systemButtonMinWidth), metrics.tabHeight);
}

QSize RibbonSystemButton::minimumSizeHint() const
{
    return sizeHint();
}

bool RibbonSystemButton::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const QString text = defaultAction() ? defaultAction()->iconText() : QString();
        const QString body = toolTipBody(toolTip(), text);
        // The word is on the button; a tip that only repeats it would be noise.
        if (!isRound() && body.isEmpty())
            return true;
        RibbonToolTip::showToolTip(static_cast<QHelpEvent*>(event)->globalPos() + QPoint(2, 20),
                                   toolTipTitle(text, defaultAction()), body, QIcon(), this);
        return true;
    }
    case QEvent::StyleChange:
    case QEvent::FontChange:
        RibbonBarPrivate::get(m_bar)->layout();
        break;
    default:
        break;
    }
    return QToolButton::event(event);
}

void RibbonSystemButton::actionEvent(QActionEvent* event)
{
    QToolButton::actionEvent(event);
    setAccessibleName(defaultAction() ? defaultAction()->iconText() : QString());
    RibbonBarPrivate::get(m_bar)->layout();
}

void RibbonSystemButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else if (!RibbonKeyboard::handleKey(this, event))
        QToolButton::keyPressEvent(event);
}

void RibbonSystemButton::mousePressEvent(QMouseEvent* event)
{
    RibbonToolTip::hideToolTip();
    QAbstractButton::mousePressEvent(event);
}

void RibbonSystemButton::mouseReleaseEvent(QMouseEvent* event)
{
    // Not QToolButton's: it writes to itself after a click that may have deleted the button.
    QAbstractButton::mouseReleaseEvent(event);
}

void RibbonSystemButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    // Not two clicks: the second would close what the first opened.
    event->accept();
}

void RibbonSystemButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown());
    option.state.setFlag(RibbonState::Open, m_backstage && !m_backstage->isHidden());
    if (toolButtonStyle() != Qt::ToolButtonTextOnly)
        option.icon = icon();
    if (!isRound() && (toolButtonStyle() != Qt::ToolButtonIconOnly || icon().isNull()))
        option.text = defaultAction() ? shortened(defaultAction()->iconText()) : plainText(text());
    const int extent = isRound() && rect().height() > metrics.largeIcon ? metrics.largeIcon * 3 / 4
                                                                        : metrics.smallIcon;
    option.iconSize = QSize(extent, extent);
    RibbonPainter::drawSystemButton(painter, option);
}

} // namespace Qtitan

#include "moc_ribbon_system_button.cpp"
