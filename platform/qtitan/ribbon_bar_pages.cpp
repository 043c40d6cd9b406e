#include "ribbon_bar.h"

#include "ribbon_accessible_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_key_tips_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_tab_bar_p.h"

#include <QApplication>

#include <algorithm>

namespace Qtitan {

RibbonPage* RibbonBar::addPage(const QString& title)
{
    return insertPage(-1, title);
}

RibbonPage* RibbonBar::insertPage(int index, const QString& title)
{
    auto* page = new RibbonPage(this, title);
    insertPage(index, page);
    return page;
}

RibbonPage* RibbonBar::addContextualPage(const QString& title, const QString& contextTitle,
                                         const QColor& color)
{
    auto* page = new RibbonPage(this, title);
    page->setContext(contextTitle, color);
    insertPage(-1, page);
    return page;
}

void RibbonBar::insertPage(int index, RibbonPage* page)
{
    if (!page)
        return;
    RibbonPagePrivate* pd = RibbonPagePrivate::get(page);
    if (pd->bar == this) {
        const int last = d->pages.size() - 1;
        movePage(indexOfPage(page), index < 0 || index > last ? last : index);
        return;
    }
    if (pd->bar)
        pd->bar->detachPage(page);
    if (index < 0 || index > d->pages.size())
        index = d->pages.size();
    const bool hidden = page->isHidden() && page->testAttribute(Qt::WA_WState_ExplicitShowHide);
    d->pages.insert(index, page);
    pd->bar = this;
    pd->holder = new RibbonPageHolder(page, d->area);
    pd->holder->hide();
    page->setParent(pd->holder);
    page->setVisible(!hidden);
    pd->setTitlesVisible(d->titlesVisible);
    d->placeHolders();
    d->tabsChanged();
    if (!d->current && !hidden)
        d->makeCurrent(page);
}

void RibbonBar::movePage(int from, int to)
{
    if (from == to || from < 0 || to < 0 || from >= d->pages.size() || to >= d->pages.size())
        return;
    d->pages.move(from, to);
    d->tabsChanged();
}

void RibbonBar::detachPage(RibbonPage* page)
{
    if (page && d->pages.contains(page))
        d->takeOut(page);
}

void RibbonBar::removePage(RibbonPage* page)
{
    if (!page || !d->pages.contains(page))
        return;
    d->takeOut(page);
    delete page;
}

void RibbonBar::clearPages()
{
    while (!d->pages.isEmpty())
        removePage(d->pages.last());
}

void RibbonBarPrivate::prepareToGo(RibbonPage* page)
{
    keyTips->stop();
    RibbonPagePrivate::get(page)->hidePopups();
    // The focus goes back to the content, not on to whatever comes next in the ribbon.
    if (page->isAncestorOf(QApplication::focusWidget()))
        RibbonKeyboard::leave(q);
}

void RibbonBarPrivate::takeOut(RibbonPage* page)
{
    const int index = pages.indexOf(page);
    RibbonPagePrivate* pd = RibbonPagePrivate::get(page);
    prepareToGo(page);
    const bool hidden = page->isHidden();
    const bool explicitly = page->testAttribute(Qt::WA_WState_ExplicitShowHide);
    pages.removeAt(index);
    pd->bar = nullptr;
    RibbonPageHolder* holder = pd->holder;
    pd->holder = nullptr;
    page->setParent(parking);
    // A new parent hides; what the host said about the page must outlive its stay in the parking.
    if (explicitly)
        page->setVisible(!hidden);
    delete holder;
    if (current == page)
        currentGone(index);
    tabsChanged();
}

void RibbonBarPrivate::currentGone(int index)
{
    current = nullptr;
    tabBar->setPages(shownPages());
    RibbonPage* next = nearestShown(index);
    if (next) {
        makeCurrent(next);
        return;
    }
    endPeek();
    Q_EMIT q->currentPageChanged(nullptr);
}

void RibbonBarPrivate::pageGone(RibbonPage* page)
{
    const int index = pages.indexOf(page);
    if (index < 0)
        return;
    RibbonPagePrivate* pd = RibbonPagePrivate::get(page);
    prepareToGo(page);
    pages.removeAt(index);
    RibbonPageHolder* holder = pd->holder;
    pd->holder = nullptr;
    pd->bar = nullptr;
    if (holder) {
        // The page dies by itself, not with its holder.
        page->setParent(nullptr);
        delete holder;
    }
    if (current == page)
        currentGone(index);
    tabsChanged();
}

QList<RibbonPage*> RibbonBarPrivate::shownPages() const
{
    QList<RibbonPage*> shown;
    for (RibbonPage* page : pages)
        if (!page->isHidden())
            shown.append(page);
    // Tabs of contexts come and go: behind the others they move nothing.
    std::stable_partition(shown.begin(), shown.end(),
                          [](const RibbonPage* page) { return !page->isContextual(); });
    return shown;
}

RibbonPage* RibbonBarPrivate::nearestShown(int index) const
{
    for (int distance = 0; distance <= pages.size(); ++distance) {
        for (const int i : {index + distance, index - distance - 1})
            if (i >= 0 && i < pages.size() && !pages.at(i)->isHidden())
                return pages.at(i);
    }
    return nullptr;
}

void RibbonBarPrivate::tabsChanged()
{
    if (destroying)
        return;
    tabBar->setPages(shownPages());
    layout();
    tabBar->showCurrent();
    updateArea();
    q->update();
}

void RibbonBarPrivate::pageVisibilityChanged(RibbonPage* page)
{
    if (destroying)
        return;
    keyTips->stop();
    tabsChanged();
    if (page->isHidden() && page == current)
        makeCurrent(nearestShown(pages.indexOf(page) + 1));
    else if (!page->isHidden() && !current)
        makeCurrent(page);
}

void RibbonBarPrivate::makeCurrent(RibbonPage* page)
{
    if (page == current)
        return;
    if (current) {
        RibbonPagePrivate::get(current)->hidePopups();
        // The walk goes on from the tab of the new page.
        if (page && current->isAncestorOf(QApplication::focusWidget()))
            tabBar->setFocus(Qt::OtherFocusReason);
    }
    RibbonPageHolder* old = current ? RibbonPagePrivate::get(current)->holder : nullptr;
    current = page;
    // The new page is there before the old one goes, or the ground would flash between them.
    if (page) {
        RibbonPagePrivate::get(page)->holder->show();
        RibbonPagePrivate::get(page)->holder->raise();
    } else {
        endPeek();
    }
    if (old)
        old->hide();
    tabBar->showCurrent();
    tabBar->update();
    updateArea();
    tellCurrentTab(tabBar);
    Q_EMIT q->currentPageChanged(page);
}

QList<RibbonPage*> RibbonBar::pages() const
{
    return d->pages;
}

int RibbonBar::pageCount() const
{
    return d->pages.size();
}

RibbonPage* RibbonBar::getPage(int index) const
{
    return d->pages.value(index, nullptr);
}

int RibbonBar::indexOfPage(const RibbonPage* page) const
{
    return d->pages.indexOf(const_cast<RibbonPage*>(page));
}

int RibbonBar::currentPageIndex() const
{
    return indexOfPage(d->current);
}

RibbonPage* RibbonBar::currentPage() const
{
    return d->current;
}

void RibbonBar::setCurrentPage(int index)
{
    setCurrentPage(getPage(index));
}

void RibbonBar::setCurrentPage(RibbonPage* page)
{
    if (page && d->pages.contains(page) && !page->isHidden())
        d->makeCurrent(page);
}

} // namespace Qtitan
