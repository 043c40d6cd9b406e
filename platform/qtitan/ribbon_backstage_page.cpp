#include "draw_helpers.h"
#include "ribbon_backstage.h"
#include "ribbon_backstage_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_theme_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QPainter>

namespace Qtitan {

RibbonBackstagePage::RibbonBackstagePage(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
}

RibbonBackstagePage::~RibbonBackstagePage()
{
    // A page that the host deletes takes its row along.
    for (QWidget* w = parentWidget(); w; w = w->parentWidget())
        if (auto* view = qobject_cast<RibbonBackstageView*>(w)) {
            view->removePage(this);
            break;
        }
}

void RibbonBackstagePage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), RibbonTheme::current()[Element::BackstagePage].middle);
}

RibbonBackstageButton::RibbonBackstageButton(QWidget* parent) : QToolButton(parent)
{
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setFocusPolicy(Qt::StrongFocus);
    const int icon = RibbonMetrics::of(this).largeIcon;
    setIconSize(QSize(icon, icon));
}

RibbonBackstageButton::~RibbonBackstageButton() = default;

bool RibbonBackstageButton::isFlatStyle() const
{
    return m_flat;
}

void RibbonBackstageButton::setFlatStyle(bool flat)
{
    m_flat = flat;
    update();
}

QSize RibbonBackstageButton::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    if (toolButtonStyle() != Qt::ToolButtonTextUnderIcon)
        return QToolButton::sizeHint();
    RibbonButtonOption option;
    initPaintOption(option, this);
    option.large = true;
    option.text = defaultAction() ? defaultAction()->iconText() : plainText(text());
    option.icon = icon();
    option.iconSize = iconSize();
    option.style = toolButtonStyle();
    const int height = iconSize().height() + 2 * fontMetrics().height() + metrics.px(20);
    option.rect.setHeight(height);
    return QSize(qMax(RibbonPainter::buttonWidth(option) + metrics.px(8), metrics.px(86)), height);
}

QSize RibbonBackstageButton::minimumSizeHint() const
{
    return sizeHint();
}

void RibbonBackstageButton::paintEvent(QPaintEvent* event)
{
    if (toolButtonStyle() != Qt::ToolButtonTextUnderIcon) {
        QToolButton::paintEvent(event);
        return;
    }
    QPainter painter(this);
    RibbonButtonOption option;
    initPaintOption(option, this);
    option.style = toolButtonStyle();
    option.large = true;
    option.text = defaultAction() ? defaultAction()->iconText() : plainText(text());
    option.icon = icon();
    option.iconSize = iconSize();
    option.state.setFlag(RibbonState::Pressed, isDown());
    option.state.setFlag(RibbonState::Checked, isChecked());
    if (menu())
        option.menu =
            popupMode() == MenuButtonPopup ? RibbonMenuKind::Split : RibbonMenuKind::Whole;
    const bool plain = !option.has(RibbonState::Hover) && !option.has(RibbonState::Pressed) &&
                       !option.has(RibbonState::Checked);
    if (!m_flat && plain) {
        const RibbonTheme& theme = RibbonTheme::current();
        RibbonPainter::drawLook(painter, rect(), theme[Element::PushButton], theme.cornerRadius());
    }
    RibbonPainter::drawButton(painter, option);
}

RibbonBackstageRow::RibbonBackstageRow(QAction* action, QWidget* parent)
    : QAbstractButton(parent), m_action(action)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    follow();
}

void RibbonBackstageRow::follow()
{
    setText(m_action->text());
    setIcon(m_action->icon());
    setEnabled(m_action->isEnabled());
    setToolTip(toolTipBody(m_action->toolTip(), m_action->iconText()));
    update();
}

void RibbonBackstageRow::setCurrent(bool current)
{
    if (m_current == current)
        return;
    m_current = current;
    update();
}

QSize RibbonBackstageRow::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    int width = 2 * metrics.backstageInset + fontMetrics().horizontalAdvance(plainText(text()));
    if (!icon().isNull())
        width += metrics.smallIcon + metrics.px(8);
    return QSize(width, metrics.backstageRow);
}

void RibbonBackstageRow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.text = plainText(text());
    option.icon = icon();
    option.iconSize = QSize(metrics.smallIcon, metrics.smallIcon);
    option.state.setFlag(RibbonState::Pressed, isDown());
    option.state.setFlag(RibbonState::Checked, m_current);
    RibbonPainter::drawBackstageRow(painter, option);
}

RibbonBackstageBack::RibbonBackstageBack(QWidget* parent) : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("backstageBack"));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    retranslate();
}

void RibbonBackstageBack::retranslate()
{
    setText(tr("Back"));
    setToolTip(tr("Back"));
}

void RibbonBackstageBack::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void RibbonBackstageBack::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state.setFlag(RibbonState::Pressed, isDown());
    RibbonPainter::drawBackstageBack(painter, option);
}

} // namespace Qtitan

#include "moc_ribbon_backstage_p.cpp"
