#include "ribbon_backstage.h"
#include "ribbon_backstage_p.h"
#include "ribbon_bar_p.h"
#include "ribbon_key_tips_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_util_p.h"

#include <QAction>
#include <QActionEvent>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace Qtitan {

RibbonBackstageView::RibbonBackstageView(RibbonBar* bar)
    : QWidget(bar ? bar->window() : nullptr), d(std::make_unique<RibbonBackstageViewPrivate>(this))
{
    qRegisterMetaType<Qtitan::RibbonBackstagePage*>();
    d->bar = bar;
    setObjectName(QStringLiteral("ribbonBackstage"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::ClickFocus);
    // Closed by word of ours, or the first show of the window would open it.
    QWidget::setVisible(false);
    d->backButton = new RibbonBackstageBack(this);
    connect(d->backButton, &QAbstractButton::clicked, this, [this] { setVisible(false); });
}

RibbonBackstageView::~RibbonBackstageView()
{
    // Pages outlive their rows: nobody asks for rows any more.
    for (RibbonBackstageViewPrivate::Entry& entry : d->entries)
        if (entry.page)
            entry.page->removeEventFilter(this);
    d->entries.clear();
    d->active = nullptr;
}

void RibbonBackstageView::addPage(RibbonBackstagePage* page)
{
    insertPage(nullptr, page);
}

void RibbonBackstageView::insertPage(QAction* before, RibbonBackstagePage* page)
{
    if (!page || pageAction(page))
        return;
    auto* action = new QAction(page->windowIcon(), page->windowTitle(), this);
    d->inserting = page;
    QWidget::insertAction(before, action);
    d->inserting = nullptr;
}

void RibbonBackstageView::removePage(RibbonBackstagePage* page)
{
    QAction* action = pageAction(page);
    if (!action)
        return;
    page->removeEventFilter(this);
    d->find(page)->page = nullptr;
    delete action;
    if (d->active == page) {
        d->active = nullptr;
        d->openPage(d->firstPage());
    }
    page->hide();
    page->setParent(nullptr);
}

QAction* RibbonBackstageView::pageAction(RibbonBackstagePage* page) const
{
    const auto it = d->find(page);
    return page && it != d->entries.end() ? it->action : nullptr;
}

QList<RibbonBackstagePage*> RibbonBackstageView::pages() const
{
    QList<RibbonBackstagePage*> result;
    for (const RibbonBackstageViewPrivate::Entry& entry : d->entries)
        if (entry.page)
            result.append(entry.page);
    return result;
}

QAction* RibbonBackstageView::addAction(const QIcon& icon, const QString& text)
{
    auto* action = new QAction(icon, text, this);
    QWidget::addAction(action);
    return action;
}

QAction* RibbonBackstageView::addSeparator()
{
    auto* action = new QAction(this);
    action->setSeparator(true);
    QWidget::addAction(action);
    return action;
}

RibbonBackstagePage* RibbonBackstageView::activePage() const
{
    return d->active;
}

void RibbonBackstageView::setActivePage(RibbonBackstagePage* page)
{
    if (pageAction(page))
        d->openPage(page);
}

RibbonBar* RibbonBackstageView::ribbonBar() const
{
    return d->bar;
}

void RibbonBackstageView::setVisible(bool visible)
{
    if (visible == !isHidden()) {
        QWidget::setVisible(visible);
        return;
    }
    if (!visible) {
        Q_EMIT aboutToHide();
        const bool had_focus = hasFocus() || isAncestorOf(QApplication::focusWidget());
        QWidget::setVisible(false);
        if (d->bar) {
            RibbonBarPrivate::get(d->bar)->backstage = nullptr;
            d->bar->update();
        }
        if (d->watched)
            d->watched->removeEventFilter(this);
        if (had_focus && d->focusBefore)
            d->focusBefore->setFocus(Qt::OtherFocusReason);
        return;
    }

    Q_EMIT aboutToShow();
    if (d->bar) {
        RibbonBarPrivate* bar = RibbonBarPrivate::get(d->bar);
        bar->endPeek();
        bar->keyTips->stop();
        bar->backstage = this;
        QWidget* window = d->bar->window();
        if (parentWidget() != window && window != this)
            setParent(window);
        d->watched = window;
        window->installEventFilter(this);
        setGeometry(bar->backstageRect());
        d->bar->update();
    }
    QWidget* focus = QApplication::focusWidget();
    if (focus && !isAncestorOf(focus) && (!d->bar || ribbonBarOf(focus) != d->bar))
        d->focusBefore = focus;
    if (!d->active)
        d->openPage(d->firstPage());
    d->layout();
    raise();
    QWidget::setVisible(true);
    setFocus(Qt::OtherFocusReason);
}

bool RibbonBackstageView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Wheel: {
        auto* wheel = static_cast<QWheelEvent*>(event);
        if (d->columnRect().contains(wheel->position().toPoint()))
            d->scrollBy(-wheel->angleDelta().y() / 2);
        wheel->accept();
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
        // What lies below is covered.
        event->accept();
        return true;
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            event->accept();
        break;
    case QEvent::ScreenChangeInternal:
        d->columnCache = -1;
        d->layout();
        update();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

bool RibbonBackstageView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->watched && event->type() == QEvent::Resize && d->bar && !isHidden())
        setGeometry(RibbonBarPrivate::get(d->bar)->backstageRect());
    switch (event->type()) {
    case QEvent::WindowTitleChange:
    case QEvent::WindowIconChange:
    case QEvent::EnabledChange:
        if (auto* page = qobject_cast<RibbonBackstagePage*>(watched))
            if (QAction* action = pageAction(page)) {
                action->setText(page->windowTitle());
                action->setIcon(page->windowIcon());
            }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void RibbonBackstageView::actionEvent(QActionEvent* event)
{
    QAction* action = event->action();
    switch (event->type()) {
    case QEvent::ActionAdded: {
        RibbonBackstageViewPrivate::Entry entry;
        entry.action = action;
        entry.page = d->inserting;
        if (!action->isSeparator()) {
            entry.row = new RibbonBackstageRow(action, this);
            connect(entry.row, &QAbstractButton::clicked, action,
                    [this, action] { d->rowClicked(action); });
            entry.row->show();
        }
        d->entries.insert(d->find(event->before()), entry);
        if (entry.page) {
            entry.page->setParent(this);
            entry.page->hide();
            entry.page->installEventFilter(this);
        }
        break;
    }
    case QEvent::ActionRemoved: {
        const auto it = d->find(action);
        if (it != d->entries.end()) {
            delete it->row;
            d->entries.erase(it);
        }
        break;
    }
    case QEvent::ActionChanged: {
        const auto it = d->find(action);
        if (it != d->entries.end() && it->row)
            it->row->follow();
        break;
    }
    default:
        break;
    }
    d->columnCache = -1;
    // Otherwise it is laid out when it is shown.
    if (!isHidden())
        d->layout();
    QWidget::actionEvent(event);
}

void RibbonBackstageView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        d->columnCache = -1;
        d->layout();
        update();
        break;
    default:
        break;
    }
}

void RibbonBackstageView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        setVisible(false);
        break;
    case Qt::Key_Up:
        d->moveRow(-1);
        break;
    case Qt::Key_Down:
        d->moveRow(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()))
            button->click();
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

bool RibbonBackstageView::focusNextPrevChild(bool next)
{
    // Tab stays inside: what is covered must not get the focus.
    const QList<QAbstractButton*> rows = d->rowButtons();
    QList<QWidget*> stops;
    for (QAbstractButton* row : rows)
        stops.append(row);
    if (d->active) {
        for (QWidget* w = d->active->nextInFocusChain(); w && w != d->active;
             w = w->nextInFocusChain())
            if (d->active->isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus) && w->isVisible() &&
                w->isEnabled() && !w->focusProxy())
                stops.append(w);
    }
    if (stops.isEmpty())
        return true;
    const int index = stops.indexOf(QApplication::focusWidget());
    const int count = stops.size();
    const int target =
        index < 0 ? (next ? 0 : count - 1) : (index + (next ? 1 : count - 1)) % count;
    stops.at(target)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void RibbonBackstageView::resizeEvent(QResizeEvent*)
{
    d->layout();
}

void RibbonBackstageView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    option.state = RibbonState::Normal;
    RibbonPainter::drawBackstage(painter, option);
    option.rect = d->columnRect();
    RibbonPainter::drawBackstageColumn(painter, option);
    for (const RibbonBackstageViewPrivate::Entry& entry : d->entries) {
        if (entry.row || !entry.action->isVisible())
            continue;
        option.rect = entry.rect;
        RibbonPainter::drawBackstageSeparator(painter, option);
    }
}

std::vector<RibbonBackstageViewPrivate::Entry>::iterator
RibbonBackstageViewPrivate::find(const QAction* action)
{
    return std::find_if(entries.begin(), entries.end(),
                        [action](const Entry& entry) { return entry.action == action; });
}

std::vector<RibbonBackstageViewPrivate::Entry>::iterator
RibbonBackstageViewPrivate::find(const RibbonBackstagePage* page)
{
    return std::find_if(entries.begin(), entries.end(),
                        [page](const Entry& entry) { return entry.page && entry.page == page; });
}

RibbonBackstagePage* RibbonBackstageViewPrivate::firstPage() const
{
    for (const Entry& entry : entries)
        if (entry.page && entry.action->isVisible())
            return entry.page;
    return nullptr;
}

QList<QAbstractButton*> RibbonBackstageViewPrivate::rowButtons() const
{
    QList<QAbstractButton*> result{backButton};
    for (const Entry& entry : entries)
        if (entry.row && entry.action->isVisible() && entry.action->isEnabled())
            result.append(entry.row);
    return result;
}

int RibbonBackstageViewPrivate::columnWidth() const
{
    if (columnCache < 0) {
        columnCache = RibbonMetrics::of(q).backstageMinColumn;
        for (const Entry& entry : entries)
            if (entry.row && entry.action->isVisible())
                columnCache = qMax(columnCache, entry.row->sizeHint().width());
    }
    return qMin(columnCache, qMax(0, q->width() / 2));
}

QRect RibbonBackstageViewPrivate::columnRect() const
{
    return directed(QRect(0, 0, columnWidth(), q->height()), q->width(), q->layoutDirection());
}

void RibbonBackstageViewPrivate::layout()
{
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    const int column = columnWidth();
    const Qt::LayoutDirection direction = q->layoutDirection();
    const int width = q->width();

    int content = metrics.backstageBackRow + metrics.px(8);
    const int line = metrics.px(9);
    for (const Entry& entry : entries)
        if (entry.action->isVisible())
            content += entry.row ? metrics.backstageRow : line;
    maximumScroll = qMax(0, content - q->height());
    scroll = qBound(0, scroll, maximumScroll);

    int y = -scroll;
    backButton->setGeometry(
        directed(QRect(0, y, column, metrics.backstageBackRow), width, direction));
    y += metrics.backstageBackRow + metrics.px(8);
    for (Entry& entry : entries) {
        const bool visible = entry.action->isVisible();
        const int height = entry.row ? metrics.backstageRow : line;
        entry.rect = directed(QRect(0, y, column, height), width, direction);
        if (entry.row) {
            entry.row->setVisible(visible);
            entry.row->setGeometry(entry.rect);
            entry.row->setCurrent(entry.page && entry.page == active);
        }
        if (visible)
            y += height;
    }
    if (active)
        active->setGeometry(
            directed(QRect(column, 0, qMax(0, width - column), q->height()), width, direction));
}

void RibbonBackstageViewPrivate::openPage(RibbonBackstagePage* page)
{
    if (page == active)
        return;
    RibbonBackstagePage* old = active;
    active = page;
    layout();
    if (page)
        page->show();
    if (old)
        old->hide();
    Q_EMIT q->activePageChanged(page);
}

void RibbonBackstageViewPrivate::rowClicked(QAction* action)
{
    const auto it = find(action);
    if (it == entries.end())
        return;
    if (it->page) {
        openPage(it->page);
        layout();
        return;
    }
    // Closed first: a command that opens a window of its own must not find this in the way.
    q->setVisible(false);
    action->trigger();
}

void RibbonBackstageViewPrivate::moveRow(int step)
{
    const QList<QAbstractButton*> rows = rowButtons();
    int index = -1;
    for (int i = 0; i < rows.size(); ++i)
        if (rows.at(i)->hasFocus())
            index = i;
    const int target =
        index < 0 ? (step > 0 ? 0 : rows.size() - 1) : (index + step + rows.size()) % rows.size();
    rows.at(target)->setFocus(Qt::TabFocusReason);
    const QRect rect = rows.at(target)->geometry();
    if (rect.bottom() >= q->height())
        scrollBy(rect.bottom() + 1 - q->height());
    else if (rect.top() < 0)
        scrollBy(rect.top());
}

void RibbonBackstageViewPrivate::scrollBy(int distance)
{
    const int before = scroll;
    scroll = qBound(0, scroll + distance, maximumScroll);
    if (scroll == before)
        return;
    layout();
    q->update();
}

} // namespace Qtitan

#include "moc_ribbon_backstage.cpp"
