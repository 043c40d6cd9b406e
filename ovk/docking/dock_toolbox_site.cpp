#include "ovk/docking/dock_toolbox_site.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_site_p.h"
#include "ovk/docking/dock_toolbox_site_handle_p.h"
#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/dock_widget_p.h"

#include <QtWidgets/QSizePolicy>

namespace ovk {

using dock_space::Fit;

DockToolboxSite::DockToolboxSite(DockSite& site)
    : QBoxLayout(site.IsVertical() ? TopToBottom : LeftToRight), mp_impl(std::make_unique<Impl>())
{
    mp_impl->site = this;
    mp_impl->dock_site = &site;
    mp_impl->spacer = new DockToolboxSiteSpacer(*this, mp_impl->GetArea()); // a child of the area
    setSpacing(0);
    addWidget(mp_impl->spacer, 0);
}

DockToolboxSite::~DockToolboxSite() = default;

bool DockToolboxSite::AddWidget(DockWidget* widget)
{
    return InsertWidget(count() - 1, widget);
}

bool DockToolboxSite::InsertWidget(int index, DockWidget* widget)
{
    if (!widget)
        return false;
    if (widget->GetToolboxSite() == this) {
        insertWidget(index, widget);
        return true;
    }
    if (!widget->isHidden())
        mp_impl->EnsureLaidOut();
    switch (mp_impl->CheckFit(*widget)) {
    case Fit::DoesNotFit:
        return false;
    case Fit::FitsCollapsed:
        widget->SetCollapsed(true, false);
        break;
    case Fit::FitsAfterCollapsingOthers:
        widget->SetCollapsed(true, false);
        mp_impl->EnsureSpace(widget, widget->_Impl()->GetCurrentMin().height());
        break;
    case Fit::FitsAsIs:
        break;
    }

    widget->_Impl()->OnDocked(*this);
    insertWidget(index, widget);
    if (IsVertical())
        widget->setMaximumWidth(QWIDGETSIZE_MAX);
    else
        widget->setMaximumHeight(QWIDGETSIZE_MAX);
    if (mp_impl->minimized)
        mp_impl->ApplyMinimized(*widget);
    mp_impl->InvalidateSizes();
    // A panel that comes straight from another site is visible already and will not say so.
    _UpdateSizer();
    return true;
}

void DockToolboxSite::RemoveWidget(DockWidget* widget)
{
    if (!widget || widget->GetToolboxSite() != this)
        return;
    removeWidget(widget);
    widget->_SetToolboxSite(nullptr);
    mp_impl->InvalidateSizes();

    bool empty = true;
    for (int i = 0; i < count() && empty; ++i) {
        const QWidget* const item = itemAt(i)->widget();
        empty = !item || qobject_cast<const Spacer*>(item) || !item->isVisibleTo(parentWidget());
    }
    if (empty)
        mp_impl->spacer->setMinimumSize(0, 0);
    mp_impl->ExpandForcedWidgets();
    _UpdateSizer();
}

bool DockToolboxSite::IsMinimized() const
{
    return mp_impl->minimized;
}

void DockToolboxSite::SetMinimized(bool minimized)
{
    if (mp_impl->minimized == minimized)
        return;
    mp_impl->minimized = minimized;
    for (int i = 0; i < count(); ++i) {
        QWidget* const item = itemAt(i)->widget();
        if (auto* const panel = qobject_cast<DockWidget*>(item))
            mp_impl->ApplyMinimized(*panel);
        else if (item)
            item->setVisible(!minimized);
    }
    _UpdateSizer();
}

bool DockToolboxSite::IsMinimizeAvailable() const
{
    return mp_impl->minimize_available;
}

void DockToolboxSite::SetMinimizeAvailable(bool available)
{
    if (mp_impl->minimize_available == available)
        return;
    mp_impl->minimize_available = available;
    _UpdateSizer();
}

QSize DockToolboxSite::minimumSize() const
{
    QSize size = QBoxLayout::minimumSize();
    // All panels can be squeezed to their titles, so the window may become that small.
    if (IsVertical())
        size.setHeight(dock_space::MinimumHeight(Impl::Describe(mp_impl->GetPanels())));
    return size;
}

QSize DockToolboxSite::maximumSize() const
{
    return QBoxLayout::maximumSize();
}

void DockToolboxSite::setGeometry(const QRect& rect)
{
    QBoxLayout::setGeometry(rect);
    mp_impl->OnLaidOut();
}

DockLayout::Side DockToolboxSite::GetSide() const
{
    return mp_impl->dock_site->GetSide();
}

bool DockToolboxSite::IsVertical() const
{
    return mp_impl->dock_site->IsVertical();
}

int DockToolboxSite::GetCrossSize() const
{
    return mp_impl->spacer->GetCrossSize();
}

void DockToolboxSite::SetCrossSize(int size)
{
    mp_impl->spacer->SetCrossSize(size);
}

DockSite* DockToolboxSite::GetDockSite() const
{
    return mp_impl->dock_site;
}

void DockToolboxSite::Clear()
{
    QList<QPointer<DockWidget>> doomed;
    const QList<DockWidget*> panels = mp_impl->GetPanels();
    for (DockWidget* panel : panels)
        doomed.append(panel);
    for (const QPointer<DockWidget>& panel : qAsConst(doomed)) {
        // A page that comes back to its owner may take other panels along.
        if (panel)
            mp_impl->GetManager()->_Impl()->DeletePanel(panel);
    }
    mp_impl->spacer->setMinimumSize(0, 0);
    _UpdateSizer();
}

bool DockToolboxSite::IsState(State state) const
{
    return mp_impl->state & state;
}

void DockToolboxSite::OnDragEnter(IDockDragTarget*, DockWidget& widget, const QPoint& pos)
{
    mp_impl->EnsureLaidOut();
    if (mp_impl->CheckFit(widget) != Fit::DoesNotFit && !IsState(Evaluating))
        mp_impl->Evaluate(widget, pos);
}

void DockToolboxSite::OnDragLeave(IDockDragTarget*, DockWidget&, IDockDragTarget* next,
                                  const QPoint& pos)
{
    mp_impl->EnsureLaidOut();
    const DockArea* const area = mp_impl->GetArea();
    if (next && next == static_cast<const IDockDragTarget*>(area) &&
        geometry().contains(area->mapFromGlobal(pos)))
        return;
    const auto* const item = dynamic_cast<DockToolboxSiteDragTarget*>(next);
    if (item && item->GetToolboxSite() == this)
        return;
    mp_impl->FinishEvaluation();
}

void DockToolboxSite::OnDragOver(IDockDragTarget*, DockWidget& widget, const QPoint& pos)
{
    mp_impl->EnsureLaidOut();
    if (mp_impl->CheckFit(widget) != Fit::DoesNotFit)
        mp_impl->Evaluate(widget, pos);
}

void DockToolboxSite::OnDragDrop(IDockDragTarget*, DockWidget&, const QPoint&)
{
    if (mp_impl->estimator) {
        InsertWidget(mp_impl->index, mp_impl->estimator->GetPanel());
        delete mp_impl->estimator;
    }
    mp_impl->FinishEvaluation();
}

void DockToolboxSite::OnDragCancel(IDockDragTarget*, DockWidget&, const QPoint&)
{
    mp_impl->FinishEvaluation();
}

void DockToolboxSite::_AdjustWidgetMinMax(QSize& min, QSize& max, QSizePolicy& policy)
{
    if (!IsVertical()) {
        policy.setVerticalPolicy(QSizePolicy::Expanding);
        if (mp_impl->minimized) {
            min.setHeight(0);
            max.setHeight(0);
        } else {
            max.setHeight(QWIDGETSIZE_MAX);
        }
        return;
    }
    policy.setHorizontalPolicy(QSizePolicy::Expanding);
    if (mp_impl->minimized) {
        min.setWidth(0);
        max.setWidth(0);
        return;
    }
    QSize site_min;
    QSize site_max;
    mp_impl->AggregateSizes(site_min, site_max);
    max.setWidth(QWIDGETSIZE_MAX);
    min = min.expandedTo(QSize(site_min.width(), 0));
}

void DockToolboxSite::_FinishEvaluation()
{
    mp_impl->FinishEvaluation();
}

void DockToolboxSite::_UpdateSizer()
{
    mp_impl->dock_site->_pp()->handle->Update();
}

void DockToolboxSite::_SetEstimatorHighlight(bool highlight)
{
    if (mp_impl->estimator)
        mp_impl->estimator->SetHighlight(highlight);
}

void DockToolboxSite::_UpdateCollapsibility(DockWidget* exclude)
{
    if (!IsVertical())
        return;
    const int minimal = mp_impl->CalcFreeSpace().minimal;
    const QList<DockWidget*> panels = mp_impl->GetPanels();
    for (DockWidget* panel : panels) {
        if (panel != exclude) {
            DockWidget::Impl* const impl = panel->_Impl();
            impl->SetExpandAvailable(minimal - panel->height() >= impl->GetCurrentMin().height());
        }
    }
}

} // namespace ovk

#include "moc_dock_toolbox_site.cpp"
