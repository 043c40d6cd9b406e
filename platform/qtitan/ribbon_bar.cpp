#include "ribbon_bar.h"

#include "ribbon_accessible_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_key_tips_p.h"
#include "ribbon_keyboard_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_quick_access_bar_p.h"
#include "ribbon_system_button.h"
#include "ribbon_tab_bar_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QActionEvent>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace Qtitan {

RibbonBarPrivate::RibbonBarPrivate(RibbonBar* bar) : q(bar) {}

RibbonBarPrivate::~RibbonBarPrivate() = default;

void RibbonBarPrivate::create()
{
    installRibbonAccessibility();
    qRegisterMetaType<Qtitan::RibbonPage*>();
    q->setObjectName(QStringLiteral("ribbonBar"));
    q->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    q->setFocusPolicy(Qt::NoFocus);
    q->setAttribute(Qt::WA_OpaquePaintEvent);
    parking = new QWidget(q);
    parking->hide();
    tabBar = new RibbonTabBar(q);
    area = new RibbonPageArea(q);
    quickAccessClip = new RibbonQuickAccessClip(q);
    quickAccessClip->hide();
    quickAccess = new RibbonQuickAccessBar(quickAccessClip);
    overflow = new RibbonOverflowButton(quickAccess, q);
    overflow->hide();
    keyTips = std::make_unique<RibbonKeyTips>(q);
}

RibbonBar::RibbonBar(QWidget* parent) : QWidget(parent), d(std::make_unique<RibbonBarPrivate>(this))
{
    d->create();
    d->watchWindow();
    d->layout();
}

RibbonBar::~RibbonBar()
{
    d->destroying = true;
    d->keyTips.reset();
    qApp->removeEventFilter(this);
    const QList<RibbonPage*> pages = d->pages;
    d->pages.clear();
    d->current = nullptr;
    for (RibbonPage* page : pages) {
        RibbonPagePrivate::get(page)->bar = nullptr;
        RibbonPagePrivate::get(page)->holder = nullptr;
    }
    // A peeking area is a child of the window.
    delete d->area;
    for (const RibbonBarPrivate::Corner& corner : d->corner)
        delete corner.button;
    d->corner.clear();
}

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

void RibbonBarPrivate::takeOut(RibbonPage* page)
{
    const int index = pages.indexOf(page);
    RibbonPagePrivate* pd = RibbonPagePrivate::get(page);
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
    if (current == page) {
        current = nullptr;
        tabBar->setPages(shownPages());
        makeCurrent(nearestShown(index));
    }
    tabsChanged();
}

void RibbonBarPrivate::pageGone(RibbonPage* page)
{
    const int index = pages.indexOf(page);
    if (index < 0)
        return;
    pages.removeAt(index);
    RibbonPagePrivate* pd = RibbonPagePrivate::get(page);
    RibbonPageHolder* holder = pd->holder;
    pd->holder = nullptr;
    pd->bar = nullptr;
    if (holder) {
        // The page dies by itself, not with its holder.
        page->setParent(nullptr);
        delete holder;
    }
    if (current == page) {
        current = nullptr;
        tabBar->setPages(shownPages());
        makeCurrent(nearestShown(index));
    }
    tabsChanged();
}

QList<RibbonPage*> RibbonBarPrivate::shownPages() const
{
    QList<RibbonPage*> shown;
    for (RibbonPage* page : pages)
        if (!page->isHidden())
            shown.append(page);
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

QAction* RibbonBar::addAction(const QIcon& icon, const QString& text, Qt::ToolButtonStyle style,
                              QMenu* menu)
{
    auto* action = new QAction(icon, text, this);
    d->pending = {action, style, menu};
    QWidget::addAction(action);
    d->pending = {};
    return action;
}

QAction* RibbonBar::addAction(QAction* action, Qt::ToolButtonStyle style)
{
    if (!action)
        return nullptr;
    d->pending = {action, style, nullptr};
    QWidget::addAction(action);
    d->pending = {};
    return action;
}

QToolButton* RibbonBar::buttonForAction(const QAction* action) const
{
    for (const RibbonBarPrivate::Corner& corner : d->corner)
        if (corner.action == action)
            return corner.button;
    return nullptr;
}

void RibbonBarPrivate::insertCorner(QAction* action, QAction* before)
{
    auto* button = new RibbonButton(RibbonGround::Strip, this, q);
    button->setToolButtonStyle(pending.action == action ? pending.style : Qt::ToolButtonIconOnly);
    if (pending.action == action && pending.menu)
        button->setMenu(pending.menu);
    button->setDefaultAction(action);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setAccessibleName(plainText(action->text()));
    const auto it = std::find_if(corner.begin(), corner.end(),
                                 [before](const Corner& c) { return c.action == before; });
    corner.insert(it, {action, button});
    layout();
}

void RibbonBarPrivate::removeCorner(QAction* action)
{
    const auto it = std::find_if(corner.begin(), corner.end(),
                                 [action](const Corner& c) { return c.action == action; });
    if (it == corner.end())
        return;
    RibbonButton* button = it->button;
    corner.erase(it);
    delete button;
    layout();
}

void RibbonBarPrivate::buttonChanged()
{
    if (!destroying)
        layout();
}

void RibbonBar::actionEvent(QActionEvent* event)
{
    if (event->type() == QEvent::ActionAdded)
        d->insertCorner(event->action(), event->before());
    else if (event->type() == QEvent::ActionRemoved)
        d->removeCorner(event->action());
    QWidget::actionEvent(event);
}

QAction* RibbonBar::addSystemButton(const QIcon& icon, const QString& text)
{
    if (!d->systemButton) {
        d->systemButton = new RibbonSystemButton(this);
        auto* action = new QAction(icon, text, d->systemButton);
        d->systemButton->setDefaultAction(action);
        d->systemButton->show();
    } else {
        d->systemButton->defaultAction()->setIcon(icon);
        d->systemButton->defaultAction()->setText(text);
    }
    d->layout();
    return d->systemButton->defaultAction();
}

QAction* RibbonBar::addSystemButton(const QString& text)
{
    return addSystemButton(QIcon(), text);
}

void RibbonBar::removeSystemButton()
{
    delete d->systemButton;
    d->systemButton = nullptr;
    d->layout();
}

RibbonSystemButton* RibbonBar::getSystemButton() const
{
    return d->systemButton;
}

RibbonQuickAccessBar* RibbonBar::quickAccessBar() const
{
    return d->quickAccess;
}

void RibbonBar::showQuickAccess(bool show)
{
    if (d->quickAccessVisible == show)
        return;
    d->quickAccessVisible = show;
    d->heightChanged();
}

bool RibbonBar::isQuickAccessVisible() const
{
    return d->quickAccessVisible;
}

bool RibbonBar::isMinimized() const
{
    return d->minimized;
}

void RibbonBar::setMinimized(bool minimized)
{
    if (d->minimized == minimized)
        return;
    d->endPeek();
    d->minimized = minimized;
    d->area->setVisible(!minimized);
    d->heightChanged();
    Q_EMIT minimizationChanged(minimized);
}

bool RibbonBar::isMaximized() const
{
    return !d->minimized;
}

void RibbonBar::setMaximized(bool maximized)
{
    setMinimized(!maximized);
}

bool RibbonBar::isPeeking() const
{
    return d->peeking;
}

void RibbonBar::endPeek()
{
    d->endPeek();
}

bool RibbonBar::isTitleGroupsVisible() const
{
    return d->titlesVisible;
}

void RibbonBar::setTitleGroupsVisible(bool visible)
{
    if (d->titlesVisible == visible)
        return;
    d->titlesVisible = visible;
    for (RibbonPage* page : qAsConst(d->pages))
        RibbonPagePrivate::get(page)->setTitlesVisible(visible);
    d->heightChanged();
}

bool RibbonBar::isFrameThemeEnabled() const
{
    return d->frameThemed;
}

void RibbonBar::setFrameThemeEnabled(bool enabled)
{
    d->setFrameThemed(enabled);
}

bool RibbonBar::isKeyTipsVisible() const
{
    return d->keyTips->isActive();
}

void RibbonBar::showKeyTips()
{
    d->keyTips->start();
}

void RibbonBar::hideKeyTips()
{
    d->keyTips->stop();
}

void RibbonBar::setKeyTip(QAction* action, const QString& keyTip)
{
    if (!action)
        return;
    if (keyTip.isEmpty())
        d->wantedKeyTips.remove(action);
    else
        d->wantedKeyTips.insert(action, keyTip);
}

void RibbonBar::setKeyTip(RibbonPage* page, const QString& keyTip)
{
    if (page)
        RibbonPagePrivate::get(page)->keyTip = keyTip;
}

QSize RibbonBar::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    return QSize(qMax(metrics.px(300), d->tabBar->fullWidth()), d->barHeight());
}

QSize RibbonBar::minimumSizeHint() const
{
    return QSize(RibbonMetrics::of(this).px(120), d->barHeight());
}

bool RibbonBar::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        d->watchWindow();
        break;
    case QEvent::LayoutRequest:
        d->layout();
        break;
    case QEvent::WindowTitleChange:
        update();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool RibbonBar::eventFilter(QObject* watched, QEvent* event)
{
    if (d->peeking && d->filterPeek(watched, event))
        return true;
    if (watched == d->watchedWindow) {
        switch (event->type()) {
        case QEvent::WindowTitleChange:
        case QEvent::ModifiedChange:
            update(d->captionRect());
            break;
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate:
            update();
            break;
        case QEvent::WindowStateChange:
            d->layout();
            break;
        case QEvent::Show:
        case QEvent::WinIdChange:
            d->watchWindow();
            break;
        case QEvent::Resize:
            if (d->peeking)
                d->placeArea();
            break;
        default:
            break;
        }
        if (d->keyTips && d->keyTips->windowEvent(event))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

bool RibbonBar::focusNextPrevChild(bool next)
{
    return RibbonKeyboard::moveFocus(QApplication::focusWidget(), next)
        || QWidget::focusNextPrevChild(next);
}

void RibbonBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutDirectionChange:
        d->relayoutAll();
        break;
    case QEvent::ActivationChange:
    case QEvent::PaletteChange:
        update();
        break;
    default:
        break;
    }
}

void RibbonBar::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    QAction* minimize = menu.addAction(tr("Minimize the Ribbon"));
    minimize->setCheckable(true);
    minimize->setChecked(d->minimized);
    connect(minimize, &QAction::triggered, this, &RibbonBar::setMinimized);
    menu.exec(event->globalPos());
}

void RibbonBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    d->paint(painter);
}

void RibbonBar::resizeEvent(QResizeEvent*)
{
    d->layout();
}

void RibbonBar::showEvent(QShowEvent*)
{
    d->watchWindow();
    d->layout();
}

void RibbonBar::wheelEvent(QWheelEvent* event)
{
    d->wheel(event);
}

} // namespace Qtitan

#include "moc_ribbon_bar.cpp"
