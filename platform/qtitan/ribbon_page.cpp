#include "ribbon_page.h"

#include "ribbon_bar_p.h"
#include "ribbon_group.h"
#include "ribbon_group_p.h"
#include "ribbon_metrics_p.h"
#include "ribbon_page_area_p.h"
#include "ribbon_page_p.h"
#include "ribbon_util_p.h"

#include <QEvent>
#include <QPainter>

namespace Qtitan {
namespace {

int g_layouts = 0;
int g_reductions = 0;

} // namespace

RibbonPage::RibbonPage(RibbonBar* bar, const QString& title)
    : QWidget(bar ? RibbonBarPrivate::get(bar)->parking : nullptr),
      d(std::make_unique<RibbonPagePrivate>(this))
{
    d->title = title;
    // The bar gives it its size. Without this, Qt measures it anew each time it is shown.
    setAttribute(Qt::WA_Resized);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(plainText(title));
}

RibbonPage::~RibbonPage()
{
    if (d->bar)
        RibbonBarPrivate::get(d->bar)->pageGone(this);
    const QList<RibbonGroup*> groups = d->groups;
    d->groups.clear();
    for (RibbonGroup* group : groups) {
        RibbonGroupPrivate::get(group)->page = nullptr;
        delete group;
    }
}

QString RibbonPage::title() const
{
    return d->title;
}

void RibbonPage::setTitle(const QString& title)
{
    if (d->title == title)
        return;
    d->title = title;
    setAccessibleName(plainText(title));
    if (d->bar)
        RibbonBarPrivate::get(d->bar)->tabsChanged();
    Q_EMIT titleChanged(title);
}

RibbonGroup* RibbonPage::addGroup(const QString& title)
{
    return insertGroup(-1, title);
}

RibbonGroup* RibbonPage::insertGroup(int index, const QString& title)
{
    auto* group = new RibbonGroup(this, title);
    insertGroup(index, group);
    return group;
}

void RibbonPage::insertGroup(int index, RibbonGroup* group)
{
    if (!group)
        return;
    RibbonGroupPrivate* gd = RibbonGroupPrivate::get(group);
    if (gd->page && gd->page != this)
        RibbonPagePrivate::get(gd->page)->detach(group);
    d->groups.removeOne(group);
    if (index < 0 || index > d->groups.size())
        index = d->groups.size();
    d->groups.insert(index, group);
    gd->page = this;
    const bool hidden = group->isHidden() && group->testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (group->parentWidget() != this)
        group->setParent(this);
    gd->setTitleVisible(d->titlesVisible);
    group->setVisible(!hidden);
    d->groupChanged();
}

void RibbonPage::removeGroup(RibbonGroup* group)
{
    if (!group || !d->groups.contains(group))
        return;
    d->detach(group);
    group->hide();
    group->setParent(nullptr);
}

void RibbonPage::clearGroups()
{
    const QList<RibbonGroup*> groups = d->groups;
    for (RibbonGroup* group : groups)
        delete group;
}

QList<RibbonGroup*> RibbonPage::groups() const
{
    return d->groups;
}

int RibbonPage::groupCount() const
{
    return d->groups.size();
}

RibbonGroup* RibbonPage::getGroup(int index) const
{
    return d->groups.value(index, nullptr);
}

int RibbonPage::indexOfGroup(const RibbonGroup* group) const
{
    return d->groups.indexOf(const_cast<RibbonGroup*>(group));
}

RibbonBar* RibbonPage::ribbonBar() const
{
    return d->bar;
}

void RibbonPage::setContext(const QString& contextTitle, const QColor& color)
{
    if (d->contextTitle == contextTitle && d->contextColor == color)
        return;
    d->contextTitle = contextTitle;
    d->contextColor = color;
    if (d->bar)
        RibbonBarPrivate::get(d->bar)->tabsChanged();
}

QString RibbonPage::contextTitle() const
{
    return d->contextTitle;
}

QColor RibbonPage::contextColor() const
{
    return d->contextColor;
}

bool RibbonPage::isContextual() const
{
    return d->contextColor.isValid();
}

QSize RibbonPage::sizeHint() const
{
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    int width = 2 * metrics.pageMargin;
    const QList<RibbonGroup*> shown = d->shownGroups();
    for (const RibbonGroup* group : shown)
        width += group->sizeHint().width();
    if (shown.size() > 1)
        width += (shown.size() - 1) * metrics.groupSpacing;
    return QSize(width, metrics.pageHeightFor(d->titlesVisible));
}

QSize RibbonPage::minimumSizeHint() const
{
    return QSize(0, RibbonMetrics::of(this).pageHeightFor(d->titlesVisible));
}

bool RibbonPage::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Hide:
        // Before Qt hands the focus on to whatever comes next.
        if (d->bar && isHidden())
            RibbonBarPrivate::get(d->bar)->prepareToGo(this);
        break;
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (d->bar)
            RibbonBarPrivate::get(d->bar)->pageVisibilityChanged(this);
        break;
    case QEvent::LayoutRequest:
        if (d->holder)
            d->holder->relayout();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void RibbonPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        d->invalidateAll();
        break;
    default:
        break;
    }
}

void RibbonPage::resizeEvent(QResizeEvent*)
{
    d->place();
}

void RibbonPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const RibbonMetrics& metrics = RibbonMetrics::of(this);
    RibbonPaintOption option;
    initPaintOption(option, this);
    const QList<RibbonGroup*> shown = d->shownGroups();
    for (int i = 0; i + 1 < shown.size(); ++i) {
        const QRect left = shown.at(i)->geometry();
        const QRect right = shown.at(i + 1)->geometry();
        const int x = qMin(left.right(), right.right()) + 1;
        option.rect = QRect(x, left.top(), qMax(left.left(), right.left()) - x, left.height());
        option.rect.setWidth(qMax(option.rect.width(), metrics.separatorWidth));
        RibbonPainter::drawGroupSeparator(painter, option);
    }
}

void RibbonPagePrivate::groupChanged()
{
    reduction.reset();
    fullWidth = -1;
    dirty = true;
    if (holder)
        holder->requestRelayout();
}

void RibbonPagePrivate::groupGone(RibbonGroup* group)
{
    RibbonGroupPrivate::get(group)->stopKeyTips();
    groups.removeOne(group);
    groupChanged();
}

void RibbonPagePrivate::detach(RibbonGroup* group)
{
    group->hidePopup();
    RibbonGroupPrivate::get(group)->stopKeyTips();
    groups.removeOne(group);
    RibbonGroupPrivate::get(group)->page = nullptr;
    groupChanged();
}

void RibbonPagePrivate::invalidateAll()
{
    for (RibbonGroup* group : qAsConst(groups))
        RibbonGroupPrivate::get(group)->invalidateAll();
    groupChanged();
}

void RibbonPagePrivate::hidePopups()
{
    for (RibbonGroup* group : qAsConst(groups))
        group->hidePopup();
}

void RibbonPagePrivate::setTitlesVisible(bool visible)
{
    if (titlesVisible == visible)
        return;
    titlesVisible = visible;
    for (RibbonGroup* group : qAsConst(groups))
        RibbonGroupPrivate::get(group)->setTitleVisible(visible);
    groupChanged();
}

QList<RibbonGroup*> RibbonPagePrivate::shownGroups() const
{
    QList<RibbonGroup*> shown;
    for (RibbonGroup* group : groups)
        if (!group->isHidden())
            shown.append(group);
    return shown;
}

int RibbonPagePrivate::reduceTo(int width)
{
    ++g_layouts;
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    const int available = width - 2 * metrics.pageMargin;
    const QList<RibbonGroup*> shown = shownGroups();
    if (fullWidth < 0) {
        fullWidth = qMax(0, shown.size() - 1) * metrics.groupSpacing;
        for (const RibbonGroup* group : shown)
            fullWidth += RibbonGroupPrivate::get(group)->panel->fullWidth();
    }
    int taken = fullWidth;
    if (fullWidth <= available) {
        steps.assign(static_cast<std::size_t>(shown.size()), 0);
    } else {
        if (!reduction) {
            ++g_reductions;
            std::vector<ReducibleGroup> reducible;
            for (const RibbonGroup* group : shown)
                reducible.push_back({RibbonGroupPrivate::get(group)->reductionSteps()});
            reduction.emplace(reducible, metrics.groupSpacing);
        }
        steps = reduction->stepsFor(available);
        taken = qMax(reduction->minimumWidth(), qMin(available, fullWidth));
    }
    for (int i = 0; i < shown.size(); ++i)
        RibbonGroupPrivate::get(shown.at(i))->applyStep(steps[static_cast<std::size_t>(i)]);
    dirty = false;
    return taken + 2 * metrics.pageMargin;
}

void RibbonPagePrivate::place()
{
    if (dirty)
        return;
    const RibbonMetrics& metrics = RibbonMetrics::of(q);
    const QList<RibbonGroup*> shown = shownGroups();
    int x = metrics.pageMargin;
    for (int i = 0; i < shown.size(); ++i) {
        RibbonGroupPrivate* gd = RibbonGroupPrivate::get(shown.at(i));
        int width = gd->panel->fullWidth();
        if (steps[static_cast<std::size_t>(i)] > 0)
            width =
                gd->reductionSteps()[static_cast<std::size_t>(steps[static_cast<std::size_t>(i)])]
                    .second;
        const QRect rect(x, metrics.pageTop, width, metrics.groupHeightFor(titlesVisible));
        shown.at(i)->setGeometry(directed(rect, q->width(), q->layoutDirection()));
        if (!gd->collapsed) {
            // A group that is not seen yet gets its resize event only when it is shown.
            gd->fitPanel();
            gd->panel->ensurePlaced();
        }
        x += width + metrics.groupSpacing;
    }
    q->update();
}

int RibbonPagePrivate::layouts()
{
    return g_layouts;
}

int RibbonPagePrivate::reductions()
{
    return g_reductions;
}

} // namespace Qtitan

#include "moc_ribbon_page.cpp"
