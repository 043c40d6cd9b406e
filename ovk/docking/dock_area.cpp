#include "ovk/docking/dock_area.h"

#include "ovk/docking/dock_area_p.h"
#include "ovk/docking/dock_layout_p.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/dock_widget.h"

#include <QtCore/QEvent>

namespace ovk {

namespace {

struct SideZone
{
    DockLayout::Side side;
    Qt::Edge edge;
};

constexpr SideZone c_zones[] = {
    {DockLayout::Left, Qt::LeftEdge},
    {DockLayout::Right, Qt::RightEdge},
    {DockLayout::Top, Qt::TopEdge},
    {DockLayout::Bottom, Qt::BottomEdge},
};

} // namespace

DockArea::Impl::Impl() = default;
DockArea::Impl::~Impl() = default;

void DockArea::Impl::OnTitleDoubleClick()
{
    if (auto* const site_title = qobject_cast<DockSiteTitle*>(title.data()))
        site_title->ToggleMaximized();
}

DockTitle* DockArea::Impl::CreateTitle()
{
    return new DockSiteTitle(window);
}

QRect DockArea::Impl::EdgeZone(int side) const
{
    const SideZone& zone = c_zones[side];
    QRect rect = Area()->GetLayout()->GetSite(zone.side)->GetToolboxSite()->geometry();
    const int gap = manager->CalcDockEdgeGap(zone.edge);
    switch (zone.side) {
    case DockLayout::Left:
        rect.setWidth(gap);
        break;
    case DockLayout::Right:
        rect.setWidth(gap);
        rect.moveRight(window->rect().right());
        break;
    case DockLayout::Top:
        rect.setHeight(gap);
        break;
    case DockLayout::Bottom:
        rect.setHeight(gap);
        rect.moveBottom(window->rect().bottom());
        break;
    }
    return rect;
}

DockToolboxSite* DockArea::Impl::FindEdgeSite(const QPoint& pos) const
{
    const QPoint p = window->mapFromGlobal(pos);
    // Qt forgets the rectangles of a layout that was invalidated.
    window->layout()->activate();
    for (const SideZone& zone : c_zones) {
        DockToolboxSite* const site = Area()->GetLayout()->GetSite(zone.side)->GetToolboxSite();
        if (!site->IsMinimized() && EdgeZone(zone.side).contains(p))
            return site;
    }
    return nullptr;
}

DockArea::DockArea(DockManager& manager) : DockArea(new Impl, &manager)
{
    _Impl()->manager = &manager;
    manager._Impl()->areas.append(this);
}

DockArea::DockArea(Impl* impl, QWidget* parent) : DockWindow(impl, parent)
{
    // A manager is its own first area. Who it is it can only say when it is whole.
    if (auto* const own = dynamic_cast<DockManager::Impl*>(impl))
        own->areas.append(this);
    auto layout = std::make_unique<DockLayout>(*this);
    setLayout(layout.get());
    layout.release()->_pp()->UpdateDirection();
}

DockArea::~DockArea()
{
    Impl* const impl = _Impl();
    impl->destroying = true;
    // Panels must go while the layout and the lists that know them are whole.
    if (DockLayout* const layout = GetLayout()) {
        layout->FinishOtherEvaluation(nullptr);
        layout->Clear();
    }
    if (!dynamic_cast<DockManager::Impl*>(impl))
        impl->manager->_Impl()->areas.removeAll(this);
}

DockArea::Impl* DockArea::_Impl() const
{
    return static_cast<Impl*>(DockWindow::_pp());
}

bool DockArea::IsManager() const
{
    return static_cast<const QObject*>(this) == static_cast<const QObject*>(_Impl()->manager);
}

DockLayout* DockArea::GetLayout() const
{
    return qobject_cast<DockLayout*>(layout());
}

DockManager* DockArea::GetManager() const
{
    return _Impl()->manager;
}

void DockArea::GetWidgetsList(QList<DockWidget*>& widgets) const
{
    for (const SideZone& zone : c_zones)
        widgets += GetLayout()->GetSite(zone.side)->GetToolboxSite()->_pp()->GetPanels();
}

void DockArea::OnDragEnter(DockWidget&, const QPoint&) {}

void DockArea::OnDragLeave(DockWidget&, IDockDragTarget* next, const QPoint&)
{
    if (!next)
        GetLayout()->FinishOtherEvaluation(nullptr);
}

void DockArea::OnDragOver(DockWidget& widget, const QPoint& pos)
{
    if (DockToolboxSite* const site = _Impl()->FindEdgeSite(pos))
        site->OnDragEnter(nullptr, widget, pos);
    else
        GetLayout()->FinishOtherEvaluation(nullptr);
}

void DockArea::OnDragDrop(DockWidget& widget, const QPoint& pos)
{
    if (DockToolboxSite* const site = _Impl()->FindEdgeSite(pos))
        site->OnDragDrop(nullptr, widget, pos);
    GetLayout()->FinishOtherEvaluation(nullptr);
}

void DockArea::OnDragCancel(DockWidget&, const QPoint&) {}

void DockArea::changeEvent(QEvent* event)
{
    DockWindow::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange && GetLayout())
        GetLayout()->_pp()->UpdateDirection();
}

} // namespace ovk

#include "moc_dock_area.cpp"
