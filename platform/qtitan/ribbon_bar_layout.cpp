#include "ribbon_backstage.h"
#include "ribbon_bar_p.h"
#include "ribbon_key_tips_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWindow>

namespace Qtitan {

int RibbonBarPrivate::captionHeight() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    if (frameThemed)
        return qMax(metrics.captionHeight,
                    quickAccessVisible
                        ? RibbonQuickAccessBarPrivate::get(quickAccess)->fullSize().height()
                        : 0);
    if (!quickAccessVisible)
        return 0;
    return qMax(metrics.quickAccessHeight,
                RibbonQuickAccessBarPrivate::get(quickAccess)->fullSize().height());
}

int RibbonBarPrivate::tabRowHeight() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    return metrics.tabHeight + metrics.px(1);
}

int RibbonBarPrivate::barHeight() const
{
    int height = captionHeight() + tabRowHeight();
    if (!minimized)
        height += RibbonMetrics::of(q).pageHeightFor(titlesVisible);
    return height;
}

QRect RibbonBarPrivate::captionRect() const
{
    return QRect(0, 0, q->width(), captionHeight());
}

QRect RibbonBarPrivate::tabRowRect() const
{
    return QRect(0, captionHeight(), q->width(), tabRowHeight());
}

QRect RibbonBarPrivate::currentTabRect() const
{
    if (!current || (minimized && !peeking))
        return QRect();
    return tabBar->visibleTabRect(current).translated(tabBar->pos());
}

QRect RibbonBarPrivate::backstageRect() const
{
    const QWidget* window = q->window();
    const QPoint top = q->mapTo(window, QPoint(0, captionHeight()));
    const QRect client = window->contentsRect();
    return QRect(client.left(), top.y(), client.width(), client.bottom() + 1 - top.y());
}

/// Everything is worked out left to right and mirrored at the end.
void RibbonBarPrivate::layout()
{
    if (inLayout || destroying)
        return;
    const QScopedValueRollback<bool> guard(inLayout, true);
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    const Qt::LayoutDirection direction = q->layoutDirection();
    const int width = q->width();
    const auto put = [&](QWidget* widget, const QRect& rect) {
        widget->setGeometry(directed(rect, width, direction));
    };

    const QRect caption_row = captionRect();
    const QRect tab_row = tabRowRect();
    int caption_left = metrics.px(4);
    int tab_left = metrics.px(1);
    int caption_right = width;

    if (systemButton) {
        const QSize size = systemButton->sizeHint();
        if (systemButton->isRound() && caption_row.height() > 0) {
            const int space = metrics.px(3);
            put(systemButton, QRect(space, space, size.width(), size.height()));
            caption_left = tab_left = size.width() + 2 * space;
        } else {
            put(systemButton, QRect(0, tab_row.top(), size.width(), tab_row.height() - 1));
            tab_left = size.width() + metrics.px(2);
        }
        systemButton->raise();
    }

    if (caption) {
        caption->follow(q->window());
        // In a narrow window the buttons become narrower before they push the rest out of the row.
        const int caption_width = qMin(caption->sizeHint().width(), width / 2);
        caption_right = width - caption_width;
        put(caption, QRect(caption_right, 0, caption_width, caption_row.height()));
    }

    const QSize button = overflow->sizeHint();
    const bool has_room = caption_right - caption_left >= button.width();
    quickAccessClip->setVisible(quickAccessVisible && has_room);
    if (quickAccessVisible && has_room) {
        RibbonQuickAccessBarPrivate* bar = RibbonQuickAccessBarPrivate::get(quickAccess);
        // The title keeps a little of the row.
        const int title = frameThemed ? qMin(metrics.px(80), width / 4) : 0;
        const int room = qMax(button.width(), caption_right - caption_left - title);
        const int taken = bar->fitInto(room, button.width());
        bar->placeIn(
            static_cast<RibbonQuickAccessClip*>(quickAccessClip),
            directed(QRect(caption_left, 0, taken, caption_row.height()), width, direction));
        overflow->setVisible(quickAccess->hasOverflow());
        put(overflow, QRect(caption_left + taken, (caption_row.height() - button.height()) / 2,
                            button.width(), button.height()));
    } else {
        overflow->hide();
    }

    // The corner gives way before the tabs become unreadable, beginning with its first button.
    const int button_height =
        qMin(metrics.minimizeButton.height(), tab_row.height() - metrics.px(2));
    for (const Corner& entry : corner)
        entry.button->setDisplaySize(entry.button->wantedSize() == RibbonItemSize::Large
                                         ? RibbonItemSize::Text
                                         : entry.button->wantedSize());
    int room = qMax(0, width - tab_left - qMin(tabBar->usableWidth(), width / 2));
    int x = width - metrics.px(2);
    for (auto it = corner.rbegin(); it != corner.rend(); ++it) {
        const int button_width =
            qMax(it->button->widthFor(it->button->displaySize()), metrics.minimizeButton.width());
        const bool fits = it->action->isVisible() && button_width <= room;
        it->button->setVisible(fits);
        if (!fits)
            continue;
        room -= button_width;
        x -= button_width;
        put(it->button, QRect(x, tab_row.top() + (tab_row.height() - 1 - button_height) / 2,
                              button_width, button_height));
    }
    put(tabBar, QRect(tab_left, tab_row.top() + tab_row.height() - metrics.tabHeight,
                      qMax(0, x - metrics.px(2) - tab_left), metrics.tabHeight));
    placeArea();
    if (backstage)
        backstage->setGeometry(backstageRect());
}

void RibbonBarPrivate::placeArea()
{
    const int height = RibbonMetrics::of(q).pageHeightFor(titlesVisible);
    const QRect rect(0, tabRowRect().bottom() + 1, q->width(), height);
    if (!peeking) {
        area->setGeometry(rect);
        return;
    }
    QWidget* window = q->window();
    area->setGeometry(QRect(q->mapTo(window, rect.topLeft()), rect.size()));
}

void RibbonBarPrivate::placeHolders()
{
    // The border of the page is the area's own.
    const QRect inner = area->rect().adjusted(1, 0, -1, -1);
    for (RibbonPage* page : qAsConst(pages))
        if (RibbonPageHolder* holder = RibbonPagePrivate::get(page)->holder)
            holder->setGeometry(inner);
}

void RibbonBarPrivate::updateArea()
{
    area->update();
    q->update(tabRowRect());
}

void RibbonBarPrivate::relayoutAll()
{
    for (RibbonPage* page : qAsConst(pages))
        RibbonPagePrivate::get(page)->invalidateAll();
    for (const Corner& entry : corner)
        entry.button->invalidate();
    heightChanged();
}

void RibbonBarPrivate::screenChanged()
{
    if (destroying)
        return;
    keyTips->stop();
    hidePopups();
    tabBar->measureAnew();
    RibbonQuickAccessBarPrivate::get(quickAccess)->fitIcons();
    // Pages that are out of the bar come back with what they knew.
    const QList<RibbonPage*> parked =
        parking->findChildren<RibbonPage*>(QString(), Qt::FindDirectChildrenOnly);
    for (RibbonPage* page : parked)
        RibbonPagePrivate::get(page)->invalidateAll();
    relayoutAll();
}

void RibbonBarPrivate::heightChanged()
{
    if (destroying)
        return;
    q->updateGeometry();
    layout();
    q->update();
}

QRect RibbonBarPrivate::titleRect() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    const QRect row = captionRect();
    int left = metrics.px(4);
    if (systemButton && systemButton->isRound())
        left += systemButton->width() + metrics.px(6);
    if (quickAccessVisible) {
        const QRect clip = directed(quickAccessClip->geometry(), q->width(), q->layoutDirection());
        left = clip.right() + 1;
        if (!overflow->isHidden())
            left += overflow->width();
    }
    int right = q->width() - (caption ? caption->width() : 0);
    // The headings of contexts take a part of the row: the title goes to the larger side of them.
    for (const ContextHeading& heading : contextHeadings()) {
        const QRect rect = directed(heading.rect, q->width(), q->layoutDirection());
        if (rect.left() - left >= right - rect.right())
            right = qMin(right, rect.left());
        else
            left = qMax(left, rect.right() + 1);
    }
    // In the middle of the window where that is free, otherwise in the middle of what is left.
    const int middle = row.width() / 2;
    const int reach = qMin(middle - left, right - middle);
    const QString title = shortened(q->window()->windowTitle());
    const int wanted = q->fontMetrics().horizontalAdvance(title) + metrics.px(16);
    if (2 * reach >= wanted)
        return directed(QRect(middle - reach, 0, 2 * reach, row.height()), q->width(),
                        q->layoutDirection());
    return directed(QRect(left, 0, qMax(0, right - left), row.height()), q->width(),
                    q->layoutDirection());
}

void RibbonBarPrivate::paint(QPainter& painter)
{
    RibbonPaintOption base;
    initPaintOption(base, q);
    base.state.setFlag(RibbonState::Hover, false);
    base.state.setFlag(RibbonState::Focus, false);
    base.state.setFlag(RibbonState::Themed, frameThemed);
    base.state.setFlag(RibbonState::Minimized, minimized && !peeking);
    base.state.setFlag(RibbonState::Peek, peeking);

    if (captionHeight() > 0) {
        RibbonPaintOption option = base;
        option.rect = captionRect();
        option.text = shortened(q->window()->windowTitle());
        option.text.remove(QLatin1String("[*]"));
        option.anchor = titleRect();
        RibbonPainter::drawCaption(painter, option);
        if (quickAccessVisible) {
            option.rect = quickAccessClip->geometry();
            option.text.clear();
            RibbonPainter::drawQuickAccessBar(painter, option);
        }
    }
    RibbonPaintOption strip = base;
    strip.rect = tabRowRect();
    strip.anchor = currentTabRect();
    RibbonPainter::drawTabStrip(painter, strip);
    for (const ContextHeading& heading : contextHeadings()) {
        RibbonPaintOption option = base;
        option.rect = heading.rect;
        option.text = heading.text;
        option.contextColor = heading.color;
        RibbonPainter::drawContextTitle(painter, option);
    }
}

/// The titles of contexts stand in the caption above their tabs.
QVector<RibbonBarPrivate::ContextHeading> RibbonBarPrivate::contextHeadings() const
{
    QVector<ContextHeading> headings;
    // Their tabs are covered while the backstage is open.
    if (captionHeight() == 0 || backstage)
        return headings;
    const QList<RibbonPage*>& tabs = tabBar->pages();
    for (int i = 0; i < tabs.size();) {
        const RibbonPage* first = tabs.at(i);
        QRect rect;
        int end = i;
        while (end < tabs.size() && tabs.at(end)->isContextual() == first->isContextual() &&
               tabs.at(end)->contextTitle() == first->contextTitle() &&
               tabs.at(end)->contextColor() == first->contextColor())
            rect |= tabBar->visibleTabRect(tabs.at(end++));
        i = end;
        if (!first->isContextual() || rect.isEmpty())
            continue;
        rect.translate(tabBar->pos());
        // Down to its tabs, which begin a little below the upper edge of their row.
        rect.setBottom(std::max(captionHeight(), rect.top()) - 1);
        rect.setTop(RibbonMetrics::of(q).px(2));
        // Buttons of the quick access bar are more use than a heading behind them.
        const bool covered = (quickAccessVisible && rect.intersects(quickAccessClip->geometry())) ||
                             (!overflow->isHidden() && rect.intersects(overflow->geometry())) ||
                             (caption && rect.intersects(caption->geometry()));
        if (!covered)
            headings.append({rect, plainText(first->contextTitle()), first->contextColor()});
    }
    return headings;
}

void RibbonBarPrivate::watchWindow()
{
    QWidget* window = q->window();
    if (watchedWindow != window) {
        if (watchedWindow)
            watchedWindow->removeEventFilter(q);
        watchedWindow = window;
        if (window != q)
            window->installEventFilter(q);
    }
    QObject::disconnect(screenConnection);
    QObject::disconnect(dpiConnection);
    QWindow* handle = window->windowHandle();
    if (!handle)
        return;
    // That the window came to another screen is told to every widget; here only whose resolution
    // is watched changes.
    screenConnection =
        QObject::connect(handle, &QWindow::screenChanged, q, [this](QScreen*) { watchWindow(); });
    if (handle->screen())
        dpiConnection = QObject::connect(handle->screen(), &QScreen::logicalDotsPerInchChanged, q,
                                         [this] { screenChanged(); });
}

} // namespace Qtitan
