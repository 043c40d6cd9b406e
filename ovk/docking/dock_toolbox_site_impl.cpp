#include "ovk/docking/dock_toolbox_site_p.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_widget_p.h"

#include <QtGui/QCursor>

namespace ovk {

using dock_space::Fit;

DockArea* DockToolboxSite::Impl::GetArea() const
{
    return dock_site->GetRootLayout()->GetArea();
}

DockManager* DockToolboxSite::Impl::GetManager() const
{
    return GetArea()->GetManager();
}

QList<DockWidget*> DockToolboxSite::Impl::GetPanels() const
{
    QList<DockWidget*> panels;
    for (int i = 0; i < site->count(); ++i) {
        if (auto* const panel = qobject_cast<DockWidget*>(site->itemAt(i)->widget()))
            panels.append(panel);
    }
    return panels;
}

dock_space::Panels DockToolboxSite::Impl::Describe(const QList<DockWidget*>& panels)
{
    dock_space::Panels result;
    result.reserve(panels.size());
    for (const DockWidget* panel : panels) {
        DockWidget::Impl* const impl = panel->_Impl();
        result.push_back({panel->IsVisible(), panel->IsCollapsible(), panel->IsCollapsed(),
                          panel->IsForcedCollapsed(), impl->GetCollapsedMin(),
                          impl->GetCurrentMin(), panel->size()});
    }
    return result;
}

int DockToolboxSite::Impl::GetLength() const
{
    const QRect rect = site->geometry();
    return site->IsVertical() ? rect.height() : rect.width();
}

dock_space::Space DockToolboxSite::Impl::CalcFreeSpace() const
{
    return dock_space::CalcFreeSpace(Describe(GetPanels()), GetLength(), site->IsVertical());
}

bool DockToolboxSite::Impl::EnsureSpace(DockWidget* exclude, int needed)
{
    const QList<DockWidget*> panels = GetPanels();
    const dock_space::Plan plan =
        dock_space::PlanSpace(Describe(panels), GetLength(), panels.indexOf(exclude), needed);
    for (const int victim : plan.victims)
        panels.at(victim)->SetCollapsed(true, true);
    return plan.fits;
}

bool DockToolboxSite::Impl::MakeRoomFor(DockWidget& panel)
{
    const int needed = panel._Impl()->GetCurrentMin().height();
    if (site->geometry().isNull()) {
        // A layout for every panel that appears would be one too many for each of them. As long as
        // nobody has to give way, the length of the last one is good enough.
        if (m_known_length > 0 && m_known_area == GetArea()->size()) {
            const QList<DockWidget*> panels = GetPanels();
            const dock_space::Plan plan = dock_space::PlanSpace(Describe(panels), m_known_length,
                                                                panels.indexOf(&panel), needed);
            if (plan.fits && plan.victims.empty())
                return true;
        }
        EnsureLaidOut();
    }
    if (GetLength() == 0 && !IsAreaSized())
        return true;
    return EnsureSpace(&panel, needed);
}

void DockToolboxSite::Impl::OnLaidOut()
{
    m_known_length = GetLength();
    m_known_area = GetArea()->size();
    EnsureSpace(nullptr, 0);
    ExpandForcedWidgets();
    const QList<DockWidget*> panels = GetPanels();
    UpdateExpandable(panels, Describe(panels));
}

void DockToolboxSite::Impl::UpdateExpandable(const QList<DockWidget*>& panels,
                                             const dock_space::Panels& described)
{
    const int length = GetLength();
    if (!site->IsVertical() || length == 0)
        return;
    const int minimal = dock_space::CalcFreeSpace(described, length, true).minimal;
    for (int i = 0; i < panels.size(); ++i) {
        const dock_space::Panel& panel = described[i];
        // Its own title is there already.
        const int room = minimal + (panel.visible ? panel.collapsed_min.height() : 0);
        panels.at(i)->_Impl()->SetExpandAvailable(!panel.collapsed ||
                                                  room >= panel.current_min.height());
    }
}

void DockToolboxSite::Impl::ExpandForcedWidgets()
{
    if (!site->IsVertical())
        return;
    const QList<DockWidget*> panels = GetPanels();
    dock_space::Panels described = Describe(panels);
    const int free = dock_space::CalcFreeSpace(described, GetLength(), true).free;
    bool any_forced = false;
    for (int i = 0; i < panels.size(); ++i) {
        described[i].visible = panels.at(i)->isVisible();
        any_forced |= described[i].forced;
    }
    if (!any_forced)
        return;
    // A page that becomes active runs code of the host, which may delete any panel.
    QList<QPointer<DockWidget>> to_open;
    for (const int index : dock_space::PlanExpansion(described, free))
        to_open.append(panels.at(index));
    for (const QPointer<DockWidget>& panel : qAsConst(to_open)) {
        if (panel)
            panel->SetCollapsed(false, false);
    }
}

Fit DockToolboxSite::Impl::CheckFit(DockWidget& panel) const
{
    if (panel.isHidden() || (GetLength() == 0 && !IsAreaSized()))
        return Fit::FitsAsIs;
    const dock_space::Panel described = Describe({&panel}).front();
    if (site->IsVertical())
        return dock_space::CheckFitVertical(described, CalcFreeSpace());
    return dock_space::CheckFitHorizontal(described, Describe(GetPanels()), spacer->width(),
                                          estimator ? estimator->width() : -1);
}

void DockToolboxSite::Impl::AggregateSizes(QSize& min, QSize& max) const
{
    const auto add = [](const DockWidget& panel, QSize& least, QSize& largest) {
        least = least.expandedTo(panel._Impl()->GetAllMin());
        largest = largest.expandedTo(panel._Impl()->GetAllMax());
    };
    if (!aggregate_valid) {
        // Valid before the sizes are asked for: computing one may invalidate it again.
        aggregate_valid = true;
        QSize least(0, 0);
        QSize largest(0, 0);
        const QList<DockWidget*> panels = GetPanels();
        for (const DockWidget* panel : panels)
            add(*panel, least, largest);
        aggregate_min = least;
        aggregate_max = largest;
    }
    min = aggregate_min;
    max = aggregate_max;
    if (estimator && estimator->GetPanel())
        add(*estimator->GetPanel(), min, max);
    if (max.width() == 0)
        max.setWidth(QWIDGETSIZE_MAX);
    if (max.height() == 0)
        max.setHeight(QWIDGETSIZE_MAX);
}

bool DockToolboxSite::Impl::HasVisibleItem() const
{
    for (int i = 0; i < site->count(); ++i) {
        const QWidget* const item = site->itemAt(i)->widget();
        if (item && item->isVisible() && !qobject_cast<const Spacer*>(item))
            return true;
    }
    return false;
}

void DockToolboxSite::Impl::EnsureLaidOut()
{
    // Qt forgets the rectangle of a layout when the layout is invalidated.
    if (!site->geometry().isNull() || !IsAreaSized())
        return;
    if (QLayout* const layout = GetArea()->layout())
        layout->activate();
}

bool DockToolboxSite::Impl::IsAreaSized() const
{
    const DockArea* const area = GetArea();
    if (area->isVisible())
        return true;
    // In a window that was never shown the size of what a layout manages is a first guess.
    const QWidget* const parent = area->isWindow() ? nullptr : area->parentWidget();
    if (parent && parent->layout() && parent->layout()->indexOf(const_cast<DockArea*>(area)) >= 0)
        return parent->isVisible();
    return area->testAttribute(Qt::WA_Resized);
}

void DockToolboxSite::Impl::ApplyMinimized(DockWidget& panel) const
{
    const DockWidget::Impl& impl = *panel._Impl();
    const bool vertical = site->IsVertical();
    if (minimized) {
        if (vertical)
            panel.setFixedWidth(0);
        else
            panel.setFixedHeight(0);
    } else if (vertical) {
        panel.setMinimumWidth(impl.GetCurrentMin().width());
        panel.setMaximumWidth(QWIDGETSIZE_MAX);
    } else {
        panel.setMinimumHeight(impl.GetCurrentMin().height());
        panel.setMaximumHeight(impl.GetCurrentMax().height());
    }
}

void DockToolboxSite::Impl::ResizeBy(int delta)
{
    EnsureLaidOut();
    DockLayout* const root = dock_site->GetRootLayout();
    const QWidget* const central = root->GetCentralWidget();
    if (!central)
        return;
    const bool vertical = site->IsVertical();

    // A central widget that asks for more than there is, or than it has, would hold the handle
    // fast, or even pull it back.
    const QSize room = GetArea()->size();
    const QSize hint = central->sizeHint();
    const QSize least = central->minimumSizeHint();
    const auto counts = [](int wish, int has, int there_is) {
        return wish < there_is && wish <= has;
    };
    QSize central_min(
        counts(hint.width(), central->width(), room.width()) ? hint.width() : least.width(),
        counts(hint.height(), central->height(), room.height()) ? hint.height() : least.height());
    central_min = central_min.expandedTo(central->minimumSize());
    using Sides = DockLayout::Side[2];
    const Sides vertical_others = {DockLayout::Top, DockLayout::Bottom};
    const Sides horizontal_others = {DockLayout::Left, DockLayout::Right};
    for (const DockLayout::Side other : vertical ? vertical_others : horizontal_others)
        central_min = central_min.expandedTo(root->GetSite(other)->minimumSize());

    QSize site_min;
    QSize site_max;
    AggregateSizes(site_min, site_max);
    site_max.setWidth(QWIDGETSIZE_MAX);

    const auto across = [vertical](const QSize& size) {
        return vertical ? size.width() : size.height();
    };
    dock_space::DragInput input;
    input.leading = site->GetSide() == DockLayout::Left || site->GetSide() == DockLayout::Top;
    input.delta = delta;
    input.central = across(central->size());
    input.central_min = across(central_min);
    input.site = across(site->geometry().size());
    input.site_max = across(site_max);
    spacer->SetCrossSize(dock_space::CrossSizeAfterDrag(input));
}

int DockToolboxSite::Impl::FindTarget(const QPoint& pos)
{
    target = nullptr;
    bool any_visible = false;
    for (int i = 0; i < site->count() && !any_visible; ++i) {
        const QWidget* const item = site->itemAt(i)->widget();
        any_visible = item && item != spacer && item->isVisible();
    }
    if (!any_visible) {
        target = spacer;
        return site->indexOf(spacer);
    }
    int index_found = 0;
    for (int i = 0; i < site->count(); ++i) {
        QWidget* const item = site->itemAt(i)->widget();
        if (item && item->isVisibleTo(GetArea()) && item->geometry().contains(pos)) {
            target = item;
            return index_found;
        }
        if (item != estimator)
            ++index_found;
    }
    return -1;
}

void DockToolboxSite::Impl::Evaluate(DockWidget& panel, const QPoint& pos)
{
    state |= DockToolboxSite::Evaluating;
    if (state & DockToolboxSite::Animating)
        return;

    int place = FindTarget(GetArea()->mapFromGlobal(pos));
    if (!target || place < 0 || place >= site->count()) {
        FinishEvaluation();
        return;
    }
    if (target == estimator)
        return;
    const QPoint inside = target->mapFromGlobal(pos);
    const bool second_half =
        site->IsVertical() ? inside.y() > target->height() / 2 : inside.x() > target->width() / 2;
    if (second_half)
        ++place;
    if (estimator && index == place)
        return;

    const QSize size = site->geometry().size(); // lost as soon as the box changes
    if (estimator) {
        // The site must not jump while the preview is out of the box.
        saved_cross_min = spacer->GetCrossSize();
        spacer->SetCrossSize(site->IsVertical() ? spacer->width() : spacer->height());
        site->removeWidget(estimator);
        estimator->SetHighlight(true);
    } else {
        estimator = new DockToolboxSiteEstimator(*site, panel, GetArea()); // a child of the area
    }
    InvalidateSizes();
    estimator->Start(size);
    dock_site->GetRootLayout()->FinishOtherEvaluation(site);
    index = place;
    if (estimator)
        site->insertWidget(place, estimator);
}

void DockToolboxSite::Impl::FinishEvaluation()
{
    if (estimator) {
        delete estimator;
        InvalidateSizes();
    }
    RestoreCrossMin();
    index = -1;
    target = nullptr;
    state &= ~DockToolboxSite::States(DockToolboxSite::Evaluating | DockToolboxSite::Animating);
}

void DockToolboxSite::Impl::OnEstimationDone()
{
    state &= ~DockToolboxSite::States(DockToolboxSite::Animating);
    if (auto* const panel = qobject_cast<DockWidget*>(target.data()))
        panel->_Impl()->ShowOverlay(QCursor::pos());
    RestoreCrossMin();
}

void DockToolboxSite::Impl::RestoreCrossMin()
{
    if (saved_cross_min == -1)
        return;
    spacer->SetCrossSize(std::exchange(saved_cross_min, -1));
}

QString DockToolboxSite::Impl::CheckConsistency() const
{
    int spacers = 0;
    int estimators = 0;
    for (int i = 0; i < site->count(); ++i) {
        const QWidget* const item = site->itemAt(i)->widget();
        if (!item)
            return QStringLiteral("an item of the box is no widget");
        spacers += item == spacer ? 1 : 0;
        estimators += qobject_cast<const DockToolboxSiteEstimator*>(item) ? 1 : 0;
        const auto* const panel = qobject_cast<const DockWidget*>(item);
        if (!panel)
            continue;
        if (panel->GetToolboxSite() != site)
            return QStringLiteral("a docked panel does not know its site");
        if (panel->IsFloated() || panel->isWindow())
            return QStringLiteral("a docked panel floats");
        if (panel->IsForcedCollapsed() && !panel->IsCollapsed())
            return QStringLiteral("an open panel counts as forced to collapse");
        const QSize min = panel->minimumSize();
        const QSize max = panel->maximumSize();
        if (min.width() > max.width() || min.height() > max.height())
            return QStringLiteral("the least size of a panel is above its largest");
    }
    if (spacers != 1)
        return QStringLiteral("the spacer is not exactly once in the box");
    if (estimators > 1 || (estimators == 1 && !estimator))
        return QStringLiteral("a preview is in the box that the site does not know");
    if (estimator && index < 0)
        return QStringLiteral("a preview without a place");
    if (!estimator && (state & DockToolboxSite::Animating))
        return QStringLiteral("an animation without a preview");
    if (!estimator && saved_cross_min != -1)
        return QStringLiteral("the cross size was not given back");
    return {};
}

QString DockToolboxSite::Impl::CheckLaidOut() const
{
    const bool vertical = site->IsVertical();
    const QRect rect = site->geometry();
    if (rect.isNull() || minimized || !GetArea()->isVisible())
        return {};
    const auto along = [vertical](const QSize& size) {
        return vertical ? size.height() : size.width();
    };
    const QList<DockWidget*> panels = GetPanels();
    const dock_space::Space space = CalcFreeSpace();
    const bool can_fit = along(site->minimumSize()) <= along(rect.size());
    if (vertical && can_fit && space.free < 0)
        return QStringLiteral("more is open than there is room for");
    // A window that is smaller than it may be squeezes everybody.
    const bool fits = can_fit && (!vertical || space.free >= 0);
    const auto begin = [vertical](const QRect& r) { return vertical ? r.top() : r.left(); };
    int end = begin(rect);
    for (const DockWidget* panel : panels) {
        if (!panel->isVisible())
            continue;
        const QRect geometry = panel->geometry();
        if (vertical && panel->IsCollapsed() &&
            panel->height() != panel->_Impl()->GetCollapsedMin().height())
            return panel->GetName() + QStringLiteral(" is folded and not as low as its title");
        if (!fits)
            continue;
        if (along(geometry.size()) < along(panel->minimumSize()))
            return panel->GetName() + QStringLiteral(" is smaller than it may be");
        if (begin(geometry) < end)
            return panel->GetName() + QStringLiteral(" lies over its neighbour");
        end = begin(geometry) + along(geometry.size());
    }
    if (end > begin(rect) + along(rect.size()))
        return QStringLiteral("the panels leave their site");
    return {};
}

} // namespace ovk
