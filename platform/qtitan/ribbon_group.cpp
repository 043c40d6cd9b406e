#include "ribbon_group.h"

#include "ribbon_accessible_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_gallery.h"
#include "ribbon_group_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_p.h"
#include "ribbon_tool_tip.h"
#include "ribbon_util_p.h"

#include <QActionEvent>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QWidgetAction>

namespace Qtitan {

RibbonGroup::RibbonGroup(QWidget* parent, const QString& title)
    : QWidget(parent), d(std::make_unique<RibbonGroupPrivate>(this))
{
    d->title = title;
    d->panel = new RibbonGroupPanel(this);
    // The page gives it its size. Without this, Qt measures it anew each time it is shown.
    setAttribute(Qt::WA_Resized);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(plainText(title));
}

RibbonGroup::~RibbonGroup()
{
    // The panel comes home before its popup goes.
    hidePopup();
    delete d->popup;
    if (d->page)
        RibbonPagePrivate::get(d->page)->groupGone(this);
    d->page = nullptr;
    // The panel's buttons refer to actions that the base deletes as children.
    clear();
    delete d->panel;
    d->panel = nullptr;
}

QString RibbonGroup::title() const
{
    return d->title;
}

void RibbonGroup::setTitle(const QString& title)
{
    if (d->title == title)
        return;
    d->title = title;
    setAccessibleName(plainText(title));
    d->collapsedCache = -1;
    d->panel->invalidate();
    d->panel->update();
    update();
    Q_EMIT titleChanged(title);
}

QIcon RibbonGroup::icon() const
{
    return d->icon;
}

void RibbonGroup::setIcon(const QIcon& icon)
{
    d->icon = icon;
    if (d->collapsed)
        update();
}

QAction* RibbonGroup::addAction(QAction* action, Qt::ToolButtonStyle style, QMenu* menu,
                                QToolButton::ToolButtonPopupMode mode)
{
    if (!action)
        return nullptr;
    d->pending = {action, style, menu, mode};
    QWidget::addAction(action);
    d->pending = {};
    return action;
}

QAction* RibbonGroup::addAction(const QIcon& icon, const QString& title, Qt::ToolButtonStyle style,
                                QMenu* menu, QToolButton::ToolButtonPopupMode mode)
{
    return addAction(new QAction(icon, title, this), style, menu, mode);
}

QAction* RibbonGroup::addSeparator()
{
    auto* action = new QAction(this);
    action->setSeparator(true);
    QWidget::addAction(action);
    return action;
}

QAction* RibbonGroup::addWidget(QWidget* widget)
{
    if (!widget)
        return nullptr;
    auto* action = new QWidgetAction(this);
    action->setDefaultWidget(widget);
    QWidget::addAction(action);
    return action;
}

QAction* RibbonGroup::addGallery(RibbonGallery* gallery)
{
    return addWidget(gallery);
}

void RibbonGroup::clear()
{
    hidePopup();
    const QList<QAction*> all = actions();
    for (QAction* action : all) {
        removeAction(action);
        if (action->parent() == this)
            delete action;
    }
}

QWidget* RibbonGroup::widgetForAction(const QAction* action) const
{
    const int index = d->panel->indexOf(action);
    if (index < 0)
        return nullptr;
    d->panel->button(index);
    return d->panel->items()[static_cast<std::size_t>(index)].widget;
}

QToolButton* RibbonGroup::buttonForAction(const QAction* action) const
{
    return d->panel->button(d->panel->indexOf(action));
}

Qt::ToolButtonStyle RibbonGroup::styleForAction(const QAction* action) const
{
    const int index = d->panel->indexOf(action);
    if (index < 0)
        return Qt::ToolButtonTextBesideIcon;
    const RibbonGroupPanel::Item& item = d->panel->items()[static_cast<std::size_t>(index)];
    return item.button ? item.button->toolButtonStyle() : item.style;
}

void RibbonGroup::setStyleForAction(const QAction* action, Qt::ToolButtonStyle style)
{
    const int index = d->panel->indexOf(action);
    if (index >= 0)
        d->panel->setStyle(index, style);
}

bool RibbonGroup::isOptionButtonVisible() const
{
    return d->panel->launcher() != nullptr;
}

void RibbonGroup::setOptionButtonVisible(bool visible)
{
    d->panel->setLauncher(visible ? optionButtonAction() : nullptr);
}

QAction* RibbonGroup::optionButtonAction() const
{
    if (!d->optionAction) {
        d->optionAction = std::make_unique<QAction>(plainText(d->title));
        d->optionAction->setObjectName(QStringLiteral("optionButtonAction"));
    }
    return d->optionAction.get();
}

RibbonPage* RibbonGroup::page() const
{
    return d->page;
}

bool RibbonGroup::isReducedToPopup() const
{
    return d->collapsed;
}

bool RibbonGroup::isPopupVisible() const
{
    return d->popup && d->popup->isVisible();
}

void RibbonGroup::showPopup()
{
    if (!d->collapsed || isPopupVisible() || !isEnabled())
        return;
    if (!d->popup)
        d->popup = new RibbonGroupPopup(this, d->panel);
    d->popup->openAt(QRect(mapToGlobal(QPoint(0, 0)), size()));
    tellExpanded(this);
    update();
}

void RibbonGroup::hidePopup()
{
    if (d->popup)
        d->popup->hide();
}

QSize RibbonGroup::sizeHint() const
{
    return QSize(d->panel->fullWidth(), d->panel->fullHeight());
}

QSize RibbonGroup::minimumSizeHint() const
{
    return QSize(qMin(d->collapsedWidth(), d->panel->fullWidth()), d->panel->fullHeight());
}

void RibbonGroup::actionEvent(QActionEvent* event)
{
    switch (event->type()) {
    case QEvent::ActionAdded:
        d->insertAction(event->action(), event->before());
        break;
    case QEvent::ActionRemoved:
        d->panel->removeItem(event->action());
        break;
    case QEvent::ActionChanged:
        // Buttons follow their actions by themselves; separators and widgets do not.
        d->actionChanged(event->action());
        break;
    default:
        break;
    }
    QWidget::actionEvent(event);
}

bool RibbonGroup::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (event->type() == QEvent::HideToParent)
            hidePopup();
        if (d->page)
            RibbonPagePrivate::get(d->page)->groupChanged();
        break;
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        if (d->collapsed)
            update();
        break;
    case QEvent::ToolTip:
        if (d->collapsed) {
            RibbonToolTip::showToolTip(static_cast<QHelpEvent*>(event)->globalPos() + QPoint(2, 20),
                                       plainText(d->title), QString(), d->icon, this);
            return true;
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (d->collapsed && mouse->button() == Qt::LeftButton && isEnabled()) {
            RibbonToolTip::hideToolTip();
            showPopup();
            return true;
        }
        break;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool opens = key->key() == Qt::Key_Space || key->key() == Qt::Key_Return ||
                           key->key() == Qt::Key_Enter || key->key() == Qt::Key_F4 ||
                           (key->key() == Qt::Key_Down && (key->modifiers() & Qt::AltModifier));
        if (d->collapsed && opens) {
            showPopup();
            if (d->popup) {
                const QList<QWidget*> elements = RibbonKeyboard::elements(d->popup);
                if (!elements.isEmpty())
                    elements.first()->setFocus(Qt::TabFocusReason);
            }
            return true;
        }
        if (d->collapsed && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab))
            return RibbonKeyboard::moveFocus(this, key->key() == Qt::Key_Tab);
        if (d->collapsed && RibbonKeyboard::handleKey(this, key))
            return true;
        break;
    }
    default:
        break;
    }
    return QWidget::event(event);
}

void RibbonGroup::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
        d->collapsedCache = -1;
        break;
    default:
        break;
    }
}

void RibbonGroup::resizeEvent(QResizeEvent*)
{
    d->fitPanel();
}

void RibbonGroup::paintEvent(QPaintEvent*)
{
    if (!d->collapsed)
        return;
    QPainter painter(this);
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.text = plainText(d->title);
    option.icon = d->icon;
    option.iconSize = QSize(metrics.smallIcon, metrics.smallIcon);
    option.state.setFlag(RibbonState::Pressed, isPopupVisible());
    option.state.setFlag(RibbonState::Open, isPopupVisible());
    RibbonPainter::drawCollapsedGroup(painter, option);
}

void RibbonGroupPrivate::insertAction(QAction* action, QAction* before)
{
    using Kind = RibbonGroupPanel::Item::Kind;
    RibbonGroupPanel::Item item;
    item.action = action;
    if (action->isSeparator())
        item.kind = Kind::Separator;
    else if (auto* widget_action = qobject_cast<QWidgetAction*>(action))
        item.widget = widget_action->requestWidget(panel);
    if (item.widget)
        item.kind = Kind::Widget;
    if (pending.action == action) {
        item.style = pending.style;
        item.mode = pending.mode;
        item.menu = pending.menu;
    }
    panel->insertItem(before ? panel->indexOf(before) : -1, item);
}

void RibbonGroupPrivate::actionChanged(const QAction* action)
{
    const int index = panel->indexOf(action);
    if (index < 0)
        return;
    const RibbonGroupPanel::Item& item = panel->items()[static_cast<std::size_t>(index)];
    // Buttons follow their actions by themselves, and one that was not made yet cannot have been
    // laid out.
    if (item.kind != RibbonGroupPanel::Item::Kind::Button)
        panel->invalidate();
}

void RibbonGroupPrivate::invalidateAll()
{
    collapsedCache = -1;
    panel->invalidateAll();
}

/// Tips of elements that go would stay on the screen.
void RibbonGroupPrivate::stopKeyTips()
{
    RibbonBar* bar = page ? page->ribbonBar() : nullptr;
    if (bar && bar->isKeyTipsVisible())
        bar->hideKeyTips();
}

void RibbonGroupPrivate::panelChanged()
{
    if (page)
        RibbonPagePrivate::get(page)->groupChanged();
    if (popup && popup->isVisible())
        popup->fit();
}

int RibbonGroupPrivate::collapsedWidth() const
{
    if (collapsedCache < 0) {
        const RibbonMetrics& metrics = RibbonMetrics::of(q);
        int text = 0;
        const QFontMetrics font = q->fontMetrics();
        const QStringList lines =
            RibbonPainter::splitText(plainText(title), q->font(), metrics.px(9));
        for (int i = 0; i < lines.size(); ++i)
            text = qMax(text, font.horizontalAdvance(lines.at(i)) +
                                  (i + 1 == lines.size() && i > 0 ? metrics.px(9) : 0));
        text = qMin(text, metrics.maxTitleWidth);
        collapsedCache = qMax(metrics.collapsedMinWidth, text + 2 * metrics.px(5));
    }
    return collapsedCache;
}

std::vector<std::pair<int, int>> RibbonGroupPrivate::reductionSteps() const
{
    std::vector<std::pair<int, int>> result;
    for (const RibbonGroupStep& step : panel->steps())
        result.emplace_back(step.stage, step.width);
    if (panel->isWorthPopup() && collapsedWidth() < result.back().second)
        result.emplace_back(RibbonGroupStep::Popup, collapsedWidth());
    return result;
}

void RibbonGroupPrivate::applyStep(int step)
{
    const bool to_popup = step > 0 && step >= static_cast<int>(panel->steps().size());
    setCollapsed(to_popup);
    if (!to_popup)
        panel->setStep(step);
}

void RibbonGroupPrivate::setCollapsed(bool on)
{
    if (collapsed == on)
        return;
    collapsed = on;
    if (on && panel->isAncestorOf(QApplication::focusWidget())) {
        // Qt would hand it on to whatever comes next in the window.
        q->setFocus(Qt::OtherFocusReason);
    } else if (!on) {
        q->hidePopup();
        panel->setGeometry(q->rect());
    }
    panel->setVisible(!on);
    RibbonBar* bar = ribbonBarOf(q);
    if (!on && q->hasFocus() && bar)
        RibbonKeyboard::leave(bar);
    q->update();
}

void RibbonGroupPrivate::fitPanel()
{
    if (panel->parentWidget() == q)
        panel->setGeometry(q->rect());
}

void RibbonGroupPrivate::setTitleVisible(bool visible)
{
    panel->setTitleVisible(visible);
}

void RibbonGroupPrivate::popupHidden()
{
    if (panel->parentWidget() != q) {
        panel->setParent(q);
        panel->setGeometry(q->rect());
        panel->setVisible(!collapsed);
    }
    tellExpanded(q);
    q->update();
}

} // namespace Qtitan

#include "moc_ribbon_group.cpp"
