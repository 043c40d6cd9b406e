#include "ribbon_key_tips_p.h"

#include "key_tip_assignment_p.h"
#include "ribbon_backstage.h"
#include "ribbon_backstage_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_gallery.h"
#include "ribbon_group_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace Qtitan {

struct RibbonKeyTips::Requests
{
    std::vector<KeyTipRequest> list;
};

RibbonKeyTipOverlay::RibbonKeyTipOverlay(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("ribbonKeyTips"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
}

void RibbonKeyTipOverlay::setBadges(const QList<Badge>& badges)
{
    QRect all;
    for (const Badge& badge : badges)
        all |= badge.rect;
    m_badges = badges;
    setGeometry(all);
    setVisible(!all.isEmpty());
    raise();
    update();
}

void RibbonKeyTipOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    for (const Badge& badge : qAsConst(m_badges)) {
        option.rect = badge.rect.translated(-pos());
        option.text = badge.text;
        option.state = badge.enabled ? RibbonState::Normal : RibbonState::Disabled;
        RibbonPainter::drawKeyTip(painter, option);
    }
}

RibbonKeyTips::RibbonKeyTips(RibbonBar* bar) : m_bar(bar) {}

RibbonKeyTips::~RibbonKeyTips()
{
    qApp->removeEventFilter(this);
    delete m_overlay;
}

void RibbonKeyTips::start()
{
    if (isActive() || !m_bar->isVisible() || !m_bar->isEnabled())
        return;
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    qApp->installEventFilter(this);
    enter(bar->backstage ? Level::Backstage : Level::Bar);
}

void RibbonKeyTips::stop()
{
    if (!isActive())
        return;
    m_level = Level::Away;
    m_tips.clear();
    m_typed.clear();
    if (!m_altDown)
        qApp->removeEventFilter(this);
    delete m_overlay;
}

void RibbonKeyTips::enter(Level level)
{
    m_level = level;
    m_typed.clear();
    collect();
    if (m_tips.isEmpty() && level == Level::Bar) {
        stop();
        return;
    }
    showBadges();
}

void RibbonKeyTips::add(QWidget* widget, const QString& title, const QString& wanted, int place)
{
    Tip tip;
    tip.widget = widget;
    m_tips.append(tip);
    m_requests->list.push_back({title, wanted, static_cast<KeyTipRequest::Place>(place)});
}

void RibbonKeyTips::collect()
{
    Requests requests;
    m_requests = &requests;
    m_tips.clear();
    switch (m_level) {
    case Level::Bar:
        collectBar();
        break;
    case Level::Page:
        collectPage();
        break;
    case Level::Popup:
        collectPopup();
        break;
    case Level::Backstage:
        collectBackstage();
        break;
    case Level::Away:
        break;
    }
    const QStringList texts = assignKeyTips(requests.list);
    for (int i = 0; i < m_tips.size(); ++i)
        m_tips[i].text = texts.at(i);
    m_requests = nullptr;
}

void RibbonKeyTips::collectBar()
{
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (bar->systemButton && bar->systemButton->isVisible())
        add(bar->systemButton, bar->systemButton->text(),
            bar->wantedKeyTips.value(bar->systemButton->defaultAction()), KeyTipRequest::SystemButton);
    if (bar->quickAccessVisible) {
        const QList<QAction*> hidden = bar->quickAccess->overflowActions();
        for (QAction* action : bar->quickAccess->actions()) {
            QWidget* widget = bar->quickAccess->widgetForAction(action);
            if (!widget || !action->isVisible() || action->isSeparator() || hidden.contains(action))
                continue;
            add(widget, action->iconText(), bar->wantedKeyTips.value(action), KeyTipRequest::QuickAccess);
        }
        if (bar->overflow->isVisible())
            add(bar->overflow, bar->overflow->accessibleName(), QStringLiteral("00"),
                KeyTipRequest::QuickAccess);
    }
    for (RibbonPage* page : bar->tabBar->pages()) {
        const QString wanted = RibbonPagePrivate::get(page)->keyTip;
        add(bar->tabBar, plainText(page->title()),
            wanted.isEmpty() ? mnemonicOf(page->title()) : wanted, KeyTipRequest::Ordinary);
        m_tips.last().page = page;
        m_tips.last().isTab = true;
    }
    for (const RibbonBarPrivate::Corner& corner : bar->corner)
        if (corner.button->isVisible())
            add(corner.button, corner.button->label(), bar->wantedKeyTips.value(corner.action),
                KeyTipRequest::Ordinary);
}

void RibbonKeyTips::collectPage()
{
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (!bar->current)
        return;
    for (RibbonGroup* group : bar->current->groups()) {
        if (!group->isVisible())
            continue;
        if (group->isReducedToPopup()) {
            add(group, plainText(group->title()), QString(), KeyTipRequest::Ordinary);
            continue;
        }
        m_popupGroup = group;
        collectPopup();
    }
    m_popupGroup = nullptr;
}

void RibbonKeyTips::collectPopup()
{
    if (!m_popupGroup)
        return;
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    const RibbonGroupPanel* panel = RibbonGroupPrivate::get(m_popupGroup.data())->panel;
    for (const RibbonGroupPanel::Item& item : panel->items()) {
        if (!item.widget || !item.widget->isVisible())
            continue;
        const QString wanted = bar->wantedKeyTips.value(item.action);
        const QString mnemonic = mnemonicOf(item.action->text());
        add(item.widget, item.button ? item.button->label() : item.action->iconText(),
            wanted.isEmpty() ? mnemonic : wanted, KeyTipRequest::Ordinary);
    }
    if (panel->launcher() && panel->launcher()->isVisible())
        add(panel->launcher(), plainText(m_popupGroup->title()),
            bar->wantedKeyTips.value(m_popupGroup->optionButtonAction()), KeyTipRequest::Ordinary);
}

void RibbonKeyTips::collectBackstage()
{
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (!bar->backstage)
        return;
    const QList<QAbstractButton*> rows = RibbonBackstageViewPrivate::get(bar->backstage)->rowButtons();
    for (QAbstractButton* row : rows)
        if (row->isVisible())
            add(row, plainText(row->text()), mnemonicOf(row->text()), KeyTipRequest::Ordinary);
}

QRect RibbonKeyTips::badgeRect(const Tip& tip, const QWidget* parent) const
{
    if (!tip.widget || !tip.widget->isVisible())
        return QRect();
    const RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    const RibbonMetrics& metrics = RibbonMetrics::of(m_bar);
    QRect element = tip.widget->rect();
    if (tip.isTab)
        element = bar->tabBar->tabRect(tip.page.data());
    if (element.isEmpty())
        return QRect();
    element.translate(tip.widget->mapToGlobal(QPoint(0, 0)) - parent->mapToGlobal(QPoint(0, 0)));
    const QSize size = RibbonPainter::keyTipSize(tip.text, m_bar->font());
    QRect rect(QPoint(), size);
    const auto* button = qobject_cast<const RibbonButton*>(tip.widget.data());
    const bool stacked = m_level != Level::Bar && m_level != Level::Backstage
        && element.height() <= 2 * metrics.lineHeight && (button || element.width() > metrics.lineHeight);
    if (stacked) {
        // Over the icon: the text beside it stays readable.
        const int x = metrics.px(2) + metrics.smallIcon / 2;
        rect.moveCenter(QPoint(parent->layoutDirection() == Qt::RightToLeft
                                       || m_bar->layoutDirection() == Qt::RightToLeft
                                   ? element.right() - x
                                   : element.left() + x,
                               element.bottom() - size.height() / 2 + metrics.px(2)));
    } else if (m_level == Level::Backstage) {
        rect.moveCenter(QPoint(element.left() + metrics.px(14), element.center().y()));
    } else {
        rect.moveCenter(QPoint(element.center().x(),
                               element.bottom() + size.height() / 2 - metrics.keyTipOverlap));
    }
    const QRect room = parent->rect();
    if (rect.right() > room.right())
        rect.moveRight(room.right());
    if (rect.bottom() > room.bottom())
        rect.moveBottom(room.bottom());
    rect.moveLeft(qMax(rect.left(), 0));
    rect.moveTop(qMax(rect.top(), 0));
    return rect;
}

void RibbonKeyTips::showBadges()
{
    QWidget* parent = m_bar->window();
    if (m_level == Level::Popup && m_popupGroup)
        parent = RibbonGroupPrivate::get(m_popupGroup.data())->popup;
    if (!parent)
        return;
    if (!m_overlay || m_overlay->parentWidget() != parent) {
        delete m_overlay;
        m_overlay = new RibbonKeyTipOverlay(parent);
        m_overlay->setFont(m_bar->font());
    }
    QList<RibbonKeyTipOverlay::Badge> badges;
    for (const Tip& tip : qAsConst(m_tips)) {
        if (tip.text.isEmpty() || !tip.text.startsWith(m_typed))
            continue;
        const QRect rect = badgeRect(tip, parent);
        if (!rect.isEmpty())
            badges.append({tip.text, rect, tip.widget->isEnabled()});
    }
    m_overlay->setBadges(badges);
}

bool RibbonKeyTips::type(const QString& character)
{
    const QString typed = m_typed + character.toUpper();
    QStringList texts;
    for (const Tip& tip : qAsConst(m_tips))
        texts.append(tip.text);
    const KeyTipMatch match = matchKeyTips(texts, typed);
    if (match.matches.empty())
        return false;
    m_typed = typed;
    if (match.chosen >= 0) {
        const Tip tip = m_tips.at(match.chosen);
        if (tip.widget && tip.widget->isEnabled())
            choose(tip);
        else
            m_typed.chop(character.size());
    }
    if (isActive())
        showBadges();
    return true;
}

void RibbonKeyTips::choose(const Tip& tip)
{
    RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    if (tip.isTab) {
        if (!tip.page)
            return;
        RibbonKeyboard::enter(m_bar);
        bar->makeCurrent(tip.page);
        bar->beginPeek();
        enter(Level::Page);
        return;
    }
    if (tip.widget == bar->systemButton) {
        const QPointer<RibbonKeyTips> guard(this);
        stop();
        bar->systemButton->click();
        if (guard && bar->backstage)
            start();
        return;
    }
    chooseOnPage(tip.widget);
}

void RibbonKeyTips::chooseOnPage(QWidget* widget)
{
    if (auto* group = qobject_cast<RibbonGroup*>(widget)) {
        group->showPopup();
        m_popupGroup = group;
        enter(Level::Popup);
        return;
    }
    // What is chosen may take the ribbon down with it, so nothing of ours is touched afterwards.
    const bool from_backstage = m_level == Level::Backstage;
    RibbonBar* bar = m_bar;
    stop();
    if (auto* button = qobject_cast<RibbonButton*>(widget)) {
        if (!button->hasMenu())
            RibbonKeyboard::leave(bar);
        button->activate();
    } else if (auto* overflow = qobject_cast<RibbonOverflowButton*>(widget)) {
        overflow->openPopup();
    } else if (auto* abstract = qobject_cast<QAbstractButton*>(widget)) {
        if (!from_backstage)
            RibbonKeyboard::leave(bar);
        auto* tool = qobject_cast<QToolButton*>(widget);
        if (tool && tool->menu() && tool->popupMode() == QToolButton::InstantPopup)
            tool->showMenu();
        else
            abstract->click();
    } else {
        if (!(widget->focusPolicy() & Qt::TabFocus))
            for (QWidget* child : widget->findChildren<QWidget*>())
                if (child->focusPolicy() & Qt::TabFocus) {
                    widget = child;
                    break;
                }
        widget->setFocus(Qt::ShortcutFocusReason);
    }
}

void RibbonKeyTips::back()
{
    RibbonBarPrivate* bar = RibbonBarPrivate::get(m_bar);
    switch (m_level) {
    case Level::Popup:
        if (m_popupGroup) {
            delete m_overlay;
            m_popupGroup->hidePopup();
        }
        m_popupGroup = nullptr;
        enter(Level::Page);
        break;
    case Level::Page:
        bar->endPeek();
        enter(Level::Bar);
        break;
    case Level::Bar:
    case Level::Backstage:
        stop();
        RibbonKeyboard::leave(m_bar);
        break;
    case Level::Away:
        break;
    }
}

/// While Alt is down alone, every other event of the user cancels what its release would do.
void RibbonKeyTips::altTracking(bool on)
{
    if (m_altDown == on)
        return;
    m_altDown = on;
    if (on)
        qApp->installEventFilter(this);
    else if (!isActive())
        qApp->removeEventFilter(this);
}

bool RibbonKeyTips::windowEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Alt && key->modifiers() == Qt::AltModifier && !key->isAutoRepeat()
            && !isActive() && !QApplication::activePopupWidget())
            altTracking(true);
        break;
    }
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (isActive())
            break;
        if (key->key() == Qt::Key_F10 && key->modifiers() == Qt::NoModifier) {
            start();
            return isActive();
        }
        // Alt and a letter at once, which nobody else wanted.
        if (key->modifiers() == Qt::AltModifier && key->key() >= Qt::Key_0 && key->key() <= Qt::Key_Z) {
            altTracking(false);
            start();
            if (isActive() && type(QString(QChar(key->key()))))
                return true;
            stop();
        }
        break;
    }
    case QEvent::WindowDeactivate:
    case QEvent::Resize:
    case QEvent::Hide:
        altTracking(false);
        if (!(m_level == Level::Popup && event->type() == QEvent::WindowDeactivate))
            stop();
        break;
    default:
        break;
    }
    return false;
}

bool RibbonKeyTips::handleKey(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Alt:
    case Qt::Key_F10:
        stop();
        RibbonKeyboard::leave(m_bar);
        return true;
    case Qt::Key_Escape:
        back();
        return true;
    case Qt::Key_Backspace:
        m_typed.chop(1);
        showBadges();
        return true;
    case Qt::Key_Control:
    case Qt::Key_Shift:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return false;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: {
        // The tips go, the walk goes on from where they were.
        const Level level = m_level;
        const QPointer<RibbonGroup> group = m_popupGroup;
        stop();
        if (level == Level::Backstage)
            return false;
        if (level == Level::Popup && group && RibbonGroupPrivate::get(group.data())->popup) {
            RibbonKeyboard::moveFocus(RibbonGroupPrivate::get(group.data())->popup, true);
            return true;
        }
        RibbonKeyboard::enter(m_bar);
        if (level == Level::Page)
            RibbonKeyboard::handleKey(RibbonBarPrivate::get(m_bar)->tabBar, event);
        return true;
    }
    default:
        break;
    }
    const QString text = event->text();
    if (event->modifiers() & Qt::ControlModifier) {
        stop();
        return false;
    }
    if (!text.isEmpty() && text.at(0).isLetterOrNumber())
        type(text);
    else if (event->key() >= Qt::Key_0 && event->key() <= Qt::Key_Z)
        type(QString(QChar(event->key())));
    return true;
}

bool RibbonKeyTips::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    if (m_altDown) {
        switch (event->type()) {
        case QEvent::KeyRelease:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) {
                altTracking(false);
                start();
                return isActive();
            }
            break;
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Alt)
                altTracking(false);
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::Wheel:
        case QEvent::FocusIn:
        case QEvent::ActivationChange:
            altTracking(false);
            break;
        default:
            break;
        }
        return false;
    }
    if (!isActive())
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // No shortcut of the application runs on a letter that is typed for a tip.
        if (!(static_cast<QKeyEvent*>(event)->modifiers() & Qt::ControlModifier)) {
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
        return handleKey(static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        stop();
        return false;
    default:
        return false;
    }
}

} // namespace Qtitan

#include "moc_ribbon_key_tips_p.cpp"
