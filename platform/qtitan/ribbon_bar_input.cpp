#include "ribbon_accessible_p.h"
#include "ribbon_backstage.h"
#include "ribbon_bar_p.h"
#include "ribbon_key_tips_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWindow>

namespace Qtitan {
namespace {

/// A child over a native window must be native too, or the window system draws it below.
bool hasNativeNeighbour(const QWidget* window, const QWidget* bar)
{
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    return std::any_of(children.begin(), children.end(), [bar](const QWidget* child) {
        return !child->isWindow() && child->internalWinId() && child != bar &&
               !bar->isAncestorOf(child);
    });
}

} // namespace

void RibbonBarPrivate::closeBackstage()
{
    if (backstage)
        backstage->setVisible(false);
}

void RibbonBarPrivate::tabPressed(RibbonPage* page)
{
    closeBackstage();
    keyTips->stop();
    if (!minimized) {
        makeCurrent(page);
        return;
    }
    if (peeking && page == current) {
        endPeek();
        return;
    }
    makeCurrent(page);
    beginPeek();
}

void RibbonBarPrivate::tabDoubleClicked()
{
    toggleMinimized();
}

void RibbonBarPrivate::toggleMinimized()
{
    q->setMinimized(!minimized);
}

void RibbonBarPrivate::wheel(QWheelEvent* event)
{
    event->accept();
    if (minimized && !peeking)
        return;
    const QPoint delta = event->angleDelta();
    wheelDelta += delta.y() != 0 ? delta.y() : delta.x();
    const int notch = QWheelEvent::DefaultDeltasPerStep;
    const int steps = wheelDelta / notch;
    if (steps == 0)
        return;
    wheelDelta -= steps * notch;
    const QList<RibbonPage*>& tabs = tabBar->pages();
    const int index = tabs.indexOf(current);
    if (index < 0)
        return;
    keyTips->stop();
    makeCurrent(tabs.at(qBound(0, index - steps, tabs.size() - 1)));
}

void RibbonBarPrivate::hidePopups()
{
    if (current)
        RibbonPagePrivate::get(current)->hidePopups();
}

void RibbonBarPrivate::commandRan()
{
    hidePopups();
    // The command may be in the middle of a click of a button on the page.
    if (peeking)
        QMetaObject::invokeMethod(
            q, [this] { endPeek(); }, Qt::QueuedConnection);
}

void RibbonBarPrivate::beginPeek()
{
    if (peeking || !minimized || !current)
        return;
    QWidget* window = q->window();
    if (window == q)
        return;
    peeking = true;
    area->setAttribute(Qt::WA_NativeWindow, hasNativeNeighbour(window, q));
    area->setParent(window);
    placeArea();
    area->show();
    area->raise();
    qApp->installEventFilter(q);
    tellExpanded(tabBar);
    tabBar->update();
    updateArea();
}

void RibbonBarPrivate::endPeek()
{
    if (!peeking)
        return;
    peeking = false;
    if (keyTips->isOnPage())
        keyTips->stop();
    qApp->removeEventFilter(q);
    hidePopups();
    const bool had_focus = area->isAncestorOf(QApplication::focusWidget());
    area->hide();
    area->setParent(q);
    placeArea();
    area->setVisible(!minimized);
    if (had_focus && focusBefore)
        focusBefore->setFocus(Qt::OtherFocusReason);
    tellExpanded(tabBar);
    tabBar->update();
    updateArea();
}

bool RibbonBarPrivate::filterPeek(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (!widget)
            return false;
        // Menus and drop-down lists that were opened from the page are part of it, and the tabs
        // decide for themselves.
        const bool inside = widget == area || area->isAncestorOf(widget) || widget == tabBar ||
                            tabBar->isAncestorOf(widget) || QApplication::activePopupWidget() ||
                            ribbonBarOf(widget) == q;
        if (!inside)
            endPeek();
        return false;
    }
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape || keyTips->isActive() ||
            QApplication::activePopupWidget() || !qobject_cast<QWidget*>(watched))
            return false;
        if (event->type() == QEvent::ShortcutOverride) {
            event->accept();
            return true;
        }
        endPeek();
        return true;
    case QEvent::WindowDeactivate:
        // What takes over is known only afterwards: a popup of the page is part of it.
        if (watched == watchedWindow)
            QMetaObject::invokeMethod(
                q,
                [this] {
                    if (!QApplication::activePopupWidget() &&
                        QApplication::activeWindow() != watchedWindow)
                        endPeek();
                },
                Qt::QueuedConnection);
        return false;
    default:
        return false;
    }
}

} // namespace Qtitan
