#include "ribbon_keyboard_p.h"

#include "ribbon_backstage.h"
#include "ribbon_bar_p.h"
#include "ribbon_group_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QApplication>
#include <QKeyEvent>

#include <cstdlib>

namespace Qtitan {
namespace {

bool isUsable(const QWidget* widget)
{
    return widget && widget->isVisible() && widget->isEnabled();
}

/// What takes the focus for a widget of the host's: itself, or the first child that can.
QWidget* focusTarget(QWidget* widget)
{
    if (qobject_cast<RibbonButton*>(widget) || widget->focusPolicy() & Qt::TabFocus)
        return widget;
    const QList<QWidget*> children = widget->findChildren<QWidget*>();
    for (QWidget* child : children)
        if ((child->focusPolicy() & Qt::TabFocus) && isUsable(child))
            return child;
    return nullptr;
}

void appendPanel(QList<QWidget*>& list, const RibbonGroupPanel* panel)
{
    for (const RibbonGroupPanel::Item& item : panel->items()) {
        if (!isUsable(item.widget))
            continue;
        if (QWidget* target = focusTarget(item.widget))
            list.append(target);
    }
    if (isUsable(panel->launcher()))
        list.append(panel->launcher());
}

void appendGroup(QList<QWidget*>& list, RibbonGroup* group)
{
    if (!isUsable(group))
        return;
    if (group->isReducedToPopup())
        list.append(group);
    else
        appendPanel(list, RibbonGroupPrivate::get(group)->panel);
}

QList<QWidget*> pageElements(const RibbonBarPrivate* bar)
{
    QList<QWidget*> list;
    if (bar->current && (!bar->minimized || bar->peeking))
        for (RibbonGroup* group : bar->current->groups())
            appendGroup(list, group);
    return list;
}

/// The rows above the page, in reading order, without the tabs.
QList<QWidget*> rowElements(const RibbonBarPrivate* bar)
{
    QList<QWidget*> list;
    if (isUsable(bar->systemButton))
        list.append(bar->systemButton);
    if (bar->quickAccessVisible && isUsable(bar->quickAccess)) {
        const QList<QAction*> hidden = bar->quickAccess->overflowActions();
        for (QAction* action : bar->quickAccess->actions()) {
            QWidget* widget = bar->quickAccess->widgetForAction(action);
            if (isUsable(widget) && !action->isSeparator() && !hidden.contains(action))
                list.append(widget);
        }
        if (isUsable(bar->overflow))
            list.append(bar->overflow);
    }
    return list;
}

QList<QWidget*> cornerElements(const RibbonBarPrivate* bar)
{
    QList<QWidget*> list;
    for (const RibbonBarPrivate::Corner& corner : bar->corner)
        if (isUsable(corner.button))
            list.append(corner.button);
    return list;
}

const RibbonGroupPopup* popupOf(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget())
        if (const auto* popup = qobject_cast<const RibbonGroupPopup*>(w))
            return popup;
    return nullptr;
}

QRect globalRect(const QWidget* widget)
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

void focus(QWidget* widget)
{
    // Qt notices by itself only that Tab was pressed; without this the style would not show where
    // an arrow has led.
    widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    widget->setFocus(Qt::TabFocusReason);
    for (QWidget* w = widget; w; w = w->parentWidget())
        if (auto* holder = qobject_cast<RibbonPageHolder*>(w)) {
            holder->ensureVisible(widget);
            break;
        }
}

/// The nearest element in the direction of the key, null when there is none.
QWidget* nearest(const QWidget* from, const QList<QWidget*>& elements, int key)
{
    const QRect start = globalRect(from);
    QWidget* best = nullptr;
    int best_distance = 0;
    for (QWidget* candidate : elements) {
        if (candidate == from)
            continue;
        const QRect rect = globalRect(candidate);
        int along = 0;
        int across = 0;
        switch (key) {
        case Qt::Key_Left:
            along = start.left() - rect.right();
            across = std::abs(start.center().y() - rect.center().y());
            break;
        case Qt::Key_Right:
            along = rect.left() - start.right();
            across = std::abs(start.center().y() - rect.center().y());
            break;
        case Qt::Key_Up:
            along = start.top() - rect.bottom();
            across = std::abs(start.center().x() - rect.center().x());
            break;
        default:
            along = rect.top() - start.bottom();
            across = std::abs(start.center().x() - rect.center().x());
            break;
        }
        if (along < 0)
            continue;
        // Sideways a large button reaches over all three lines; up and down stays in its column.
        const bool vertical = key == Qt::Key_Up || key == Qt::Key_Down;
        if (vertical && (rect.right() < start.left() || rect.left() > start.right()))
            continue;
        const int distance = 4 * along + across;
        if (!best || distance < best_distance) {
            best = candidate;
            best_distance = distance;
        }
    }
    return best;
}

const RibbonGroup* groupOf(const QWidget* widget)
{
    for (const QWidget* w = widget; w; w = w->parentWidget())
        if (const auto* group = qobject_cast<const RibbonGroup*>(w))
            return group;
    return nullptr;
}

bool jumpGroup(QWidget* from, const QList<QWidget*>& elements, bool forward)
{
    const RibbonGroup* current = groupOf(from);
    const int index = elements.indexOf(from);
    if (index < 0)
        return false;
    QWidget* target = nullptr;
    for (int i = index; i >= 0 && i < elements.size(); i += forward ? 1 : -1) {
        if (groupOf(elements.at(i)) == current)
            continue;
        target = elements.at(i);
        break;
    }
    if (!target)
        return false;
    // Backwards as well, the first element of the group is where one lands.
    const RibbonGroup* group = groupOf(target);
    for (QWidget* element : elements)
        if (groupOf(element) == group) {
            focus(element);
            return true;
        }
    return false;
}

bool handleTabs(RibbonBarPrivate* bar, QKeyEvent* event)
{
    const QList<RibbonPage*>& tabs = bar->tabBar->pages();
    const int index = bar->tabBar->currentIndex();
    const bool mirrored = bar->q->layoutDirection() == Qt::RightToLeft;
    int target = -1;
    switch (event->key()) {
    case Qt::Key_Left:
        target = index + (mirrored ? 1 : -1);
        break;
    case Qt::Key_Right:
        target = index + (mirrored ? -1 : 1);
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = tabs.size() - 1;
        break;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: {
        bar->beginPeek();
        const QList<QWidget*> elements = pageElements(bar);
        if (!elements.isEmpty())
            focus(elements.first());
        return true;
    }
    case Qt::Key_Up: {
        const QList<QWidget*> row = rowElements(bar);
        if (!row.isEmpty())
            focus(row.first());
        return true;
    }
    default:
        return false;
    }
    if (!tabs.isEmpty())
        bar->makeCurrent(tabs.at(qBound(0, target, tabs.size() - 1)));
    return true;
}

bool handlePage(RibbonBarPrivate* bar, QWidget* from, const QList<QWidget*>& elements,
                QKeyEvent* event, bool in_popup)
{
    const bool mirrored = from->layoutDirection() == Qt::RightToLeft;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (event->modifiers() & Qt::ControlModifier) {
            jumpGroup(from, elements, (event->key() == Qt::Key_Right) != mirrored);
            return true;
        }
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        break;
    case Qt::Key_Home:
    case Qt::Key_End:
        if (!elements.isEmpty())
            focus(event->key() == Qt::Key_Home ? elements.first() : elements.last());
        return true;
    default:
        return false;
    }
    if (QWidget* target = nearest(from, elements, event->key()))
        focus(target);
    else if (event->key() == Qt::Key_Up && !in_popup)
        bar->tabBar->setFocus(Qt::BacktabFocusReason);
    return true;
}

} // namespace

QList<QWidget*> RibbonKeyboard::elements(const QWidget* within)
{
    QList<QWidget*> list;
    if (const RibbonGroupPopup* popup = popupOf(within)) {
        appendPanel(list, RibbonGroupPrivate::get(popup->group())->panel);
        return list;
    }
    const RibbonBar* bar = ribbonBarOf(within);
    if (!bar)
        return list;
    const RibbonBarPrivate* d = RibbonBarPrivate::get(bar);
    list = rowElements(d);
    if (isUsable(d->tabBar))
        list.append(d->tabBar);
    list += cornerElements(d);
    list += pageElements(d);
    return list;
}

bool RibbonKeyboard::moveFocus(QWidget* from, bool next)
{
    if (!from)
        return false;
    const QList<QWidget*> list = elements(from);
    if (list.isEmpty())
        return false;
    int index = -1;
    for (QWidget* w = from; w && index < 0; w = w->parentWidget())
        index = list.indexOf(w);
    const int count = list.size();
    // From nowhere the first or the last is next.
    index = index < 0 ? (next ? 0 : count - 1) : (index + (next ? 1 : count - 1)) % count;
    focus(list.at(index));
    return true;
}

bool RibbonKeyboard::handleKey(QWidget* from, QKeyEvent* event)
{
    RibbonBar* bar = ribbonBarOf(from);
    if (!bar)
        return false;
    RibbonBarPrivate* d = RibbonBarPrivate::get(bar);
    const bool in_popup = popupOf(from) != nullptr;
    if (event->key() == Qt::Key_Escape) {
        if (in_popup)
            return false; // the popup closes itself
        leave(bar);
        return true;
    }
    if (from == d->tabBar)
        return handleTabs(d, event);

    if (!in_popup) {
        const QList<QWidget*> row = rowElements(d) + cornerElements(d);
        if (row.contains(from)) {
            switch (event->key()) {
            case Qt::Key_Left:
            case Qt::Key_Right:
                moveFocus(from, (event->key() == Qt::Key_Right) ==
                                    (from->layoutDirection() == Qt::LeftToRight));
                return true;
            case Qt::Key_Down:
                d->tabBar->setFocus(Qt::TabFocusReason);
                return true;
            case Qt::Key_Home:
            case Qt::Key_End:
                focus(event->key() == Qt::Key_Home ? row.first() : row.last());
                return true;
            default:
                return false;
            }
        }
    }
    QList<QWidget*> list;
    if (in_popup)
        list = elements(from);
    else
        list = pageElements(d);
    return handlePage(d, from, list, event, in_popup);
}

void RibbonKeyboard::enter(RibbonBar* bar)
{
    RibbonBarPrivate* d = RibbonBarPrivate::get(bar);
    QWidget* now = QApplication::focusWidget();
    if (now && ribbonBarOf(now) != bar)
        d->focusBefore = now;
    d->tabBar->setFocus(Qt::TabFocusReason);
}

void RibbonKeyboard::leave(RibbonBar* bar)
{
    RibbonBarPrivate* d = RibbonBarPrivate::get(bar);
    d->endPeek();
    QWidget* now = QApplication::focusWidget();
    if (!now || ribbonBarOf(now) != bar)
        return;
    if (d->focusBefore && d->focusBefore->isVisible())
        d->focusBefore->setFocus(Qt::OtherFocusReason);
    else
        now->clearFocus();
    d->focusBefore = nullptr;
}

} // namespace Qtitan
