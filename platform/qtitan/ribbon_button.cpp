#include "ribbon_button_p.h"

#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QActionEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>

#include <utility>

namespace Qtitan {
namespace {

int g_measurements = 0;

} // namespace

RibbonButton::RibbonButton(RibbonGround ground, RibbonButtonHost* host, QWidget* parent)
    : QToolButton(parent), m_ground(ground), m_host(host)
{
    setAutoRaise(true);
    setMouseTracking(true);
    // The keyboard comes by key tips and arrows; Tab from the content must not walk hundreds of
    // buttons.
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

RibbonButton::~RibbonButton()
{
    if (m_host)
        m_host->buttonGone(this);
}

void RibbonButton::setUp(QAction* action, Qt::ToolButtonStyle style, ToolButtonPopupMode mode,
                         QMenu* menu)
{
    // What is being made has no size that could change.
    RibbonButtonHost* host = std::exchange(m_host, nullptr);
    setToolButtonStyle(style);
    if (menu)
        setMenu(menu);
    setDefaultAction(action);
    // Last: an action with a menu of its own makes the button change its mode.
    setPopupMode(mode);
    m_host = host;
    contentsChanged();
}

void RibbonButton::contentsChanged()
{
    m_contents = contents();
    invalidate();
    // A button that shows only an icon and has no text is told by what its tool tip says.
    if (m_contents.text.isEmpty())
        setAccessibleName(toolTip());
}

RibbonItemSize RibbonButton::wantedSize() const
{
    switch (toolButtonStyle()) {
    case Qt::ToolButtonTextUnderIcon:
        return RibbonItemSize::Large;
    case Qt::ToolButtonIconOnly:
        // A button that shows neither icon nor text could not be found.
        return icon().isNull() ? RibbonItemSize::Text : RibbonItemSize::Icon;
    case Qt::ToolButtonTextOnly:
    case Qt::ToolButtonTextBesideIcon:
    case Qt::ToolButtonFollowStyle:
        break;
    }
    return RibbonItemSize::Text;
}

void RibbonButton::setDisplaySize(RibbonItemSize size)
{
    if (m_size == size)
        return;
    m_size = size;
    update();
}

void RibbonButton::setWantedStyle(Qt::ToolButtonStyle style)
{
    if (toolButtonStyle() == style)
        return;
    setToolButtonStyle(style);
    invalidate();
    if (m_host)
        m_host->buttonChanged();
}

QString RibbonButton::label() const
{
    return defaultAction() ? shortened(defaultAction()->iconText()) : plainText(text());
}

bool RibbonButton::hasMenu() const
{
    return menu() || (defaultAction() && defaultAction()->menu());
}

bool RibbonButton::canHideText() const
{
    return toolButtonStyle() != Qt::ToolButtonTextOnly && !icon().isNull();
}

RibbonMenuKind RibbonButton::menuKind() const
{
    if (!hasMenu())
        return RibbonMenuKind::None;
    return popupMode() == MenuButtonPopup ? RibbonMenuKind::Split : RibbonMenuKind::Whole;
}

RibbonButtonOption RibbonButton::optionFor(RibbonItemSize size) const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    RibbonButtonOption option;
    initPaintOption(option, this);
    option.text = label();
    option.icon = icon();
    option.ground = m_ground;
    option.large = size == RibbonItemSize::Large;
    const int extent = option.large ? metrics.largeIcon : metrics.smallIcon;
    option.iconSize = QSize(extent, extent);
    switch (size) {
    case RibbonItemSize::Large:
        option.style = Qt::ToolButtonTextUnderIcon;
        break;
    case RibbonItemSize::Text:
        option.style = toolButtonStyle() == Qt::ToolButtonTextOnly || icon().isNull()
                           ? Qt::ToolButtonTextOnly
                           : Qt::ToolButtonTextBesideIcon;
        break;
    case RibbonItemSize::Icon:
        option.style = Qt::ToolButtonIconOnly;
        break;
    }
    option.menu = menuKind();
    option.state.setFlag(RibbonState::Checked, isChecked());
    option.state.setFlag(RibbonState::Pressed, isDown() && !m_menuOpen);
    option.menuHovered = m_menuHovered;
    option.menuPressed = m_menuOpen;
    return option;
}

int RibbonButton::widthFor(RibbonItemSize size) const
{
    int& width = m_widths[static_cast<int>(size)];
    if (width < 0) {
        ++g_measurements;
        const RibbonMetrics& metrics = RibbonMetrics::of(this);
        RibbonButtonOption option = optionFor(size);
        option.rect = QRect(0, 0, 0, option.large ? metrics.largeHeight : metrics.lineHeight);
        width = RibbonPainter::buttonWidth(option);
        // A label that is longer than any should be is elided rather than given the whole page.
        width = qBound(option.large ? metrics.largeMinWidth : 0, width, metrics.maxButtonWidth);
    }
    return width;
}

int RibbonButton::measurements()
{
    return g_measurements;
}

void RibbonButton::invalidate()
{
    for (int& width : m_widths)
        width = -1;
}

QSize RibbonButton::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return QSize(widthFor(m_size),
                 m_size == RibbonItemSize::Large ? metrics.largeHeight : metrics.lineHeight);
}

QSize RibbonButton::minimumSizeHint() const
{
    return sizeHint();
}

QRect RibbonButton::menuRect() const
{
    return menuKind() == RibbonMenuKind::Split ? RibbonPainter::buttonLayout(optionFor(m_size)).menu
                                               : QRect();
}

RibbonButton::Contents RibbonButton::contents() const
{
    return {label(), !icon().isNull(), hasMenu(), !defaultAction() || defaultAction()->isVisible()};
}

void RibbonButton::actionEvent(QActionEvent* event)
{
    QToolButton::actionEvent(event);
    if (event->action() != defaultAction() && event->type() != QEvent::ActionRemoved)
        return;
    if (contents() == m_contents)
        return;
    contentsChanged();
    if (m_host)
        m_host->buttonChanged();
}

void RibbonButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::ApplicationFontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        invalidate();
        break;
    case QEvent::EnabledChange:
        m_menuHovered = false;
        break;
    default:
        break;
    }
}

bool RibbonButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const QString text = label();
        const QString body = toolTipBody(toolTip(), text);
        RibbonToolTip::showToolTip(static_cast<QHelpEvent*>(event)->globalPos() + QPoint(2, 20),
                                   toolTipTitle(text, defaultAction()), body, icon(), this);
        return true;
    }
    return QToolButton::event(event);
}

void RibbonButton::openMenu()
{
    if (!hasMenu() || !isEnabled())
        return;
    const QPointer<RibbonButton> guard(this);
    m_menuOpen = menuKind() == RibbonMenuKind::Split;
    update();
    showMenu();
    // A command of the menu may have rebuilt the group.
    if (!guard)
        return;
    m_menuOpen = false;
    m_menuHovered = false;
    update();
}

void RibbonButton::activate()
{
    if (menuKind() == RibbonMenuKind::Whole && popupMode() == InstantPopup)
        openMenu();
    else
        click();
}

void RibbonButton::mousePressEvent(QMouseEvent* event)
{
    RibbonToolTip::hideToolTip();
    if (event->button() == Qt::LeftButton && menuRect().contains(event->pos())) {
        event->accept();
        openMenu();
        return;
    }
    // QToolButton takes a strip at the side for the menu's; ours lies where it is drawn.
    QAbstractButton::mousePressEvent(event);
}

void RibbonButton::mouseReleaseEvent(QMouseEvent* event)
{
    // Not QToolButton's: it writes to itself after a click that may have deleted the button.
    QAbstractButton::mouseReleaseEvent(event);
}

void RibbonButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void RibbonButton::mouseMoveEvent(QMouseEvent* event)
{
    QAbstractButton::mouseMoveEvent(event);
    const bool hovered = menuRect().contains(event->pos());
    if (hovered != m_menuHovered) {
        m_menuHovered = hovered;
        update();
    }
}

void RibbonButton::leaveEvent(QEvent* event)
{
    m_menuHovered = false;
    QToolButton::leaveEvent(event);
}

bool RibbonButton::hitButton(const QPoint& position) const
{
    return rect().contains(position) && !menuRect().contains(position);
}

void RibbonButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activate();
        return;
    case Qt::Key_F4:
        openMenu();
        return;
    case Qt::Key_Down:
        if (event->modifiers() & Qt::AltModifier) {
            openMenu();
            return;
        }
        break;
    default:
        break;
    }
    if (!RibbonKeyboard::handleKey(this, event))
        QToolButton::keyPressEvent(event);
}

void RibbonButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPainter::drawButton(painter, optionFor(m_size));
}

} // namespace Qtitan

#include "moc_ribbon_button_p.cpp"
