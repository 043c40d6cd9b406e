#include "ribbon_key_tips_p.h"

#include "key_tip_assignment_p.h"
#include "ribbon_backstage.h"
#include "ribbon_bar_p.h"
#include "ribbon_group_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_page.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>

namespace Qtitan {

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
        // Whoever heard of the new page may have changed the ribbon and thereby ended the walk.
        if (!isActive() || !tip.page)
            return;
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
        // The walk goes on in the row of tabs; the end of the peek is not its end.
        m_level = Level::Bar;
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
        if (key->key() == Qt::Key_Alt && key->modifiers() == Qt::AltModifier &&
            !key->isAutoRepeat() && !isActive() && !QApplication::activePopupWidget())
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
        if (key->modifiers() == Qt::AltModifier && key->key() >= Qt::Key_0 &&
            key->key() <= Qt::Key_Z) {
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
