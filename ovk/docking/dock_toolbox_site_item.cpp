#include "ovk/docking/dock_toolbox_site_item.h"

#include "ovk/docking/dock_toolbox_site.h"

namespace ovk {

DockToolboxSiteDragTarget::DockToolboxSiteDragTarget(DockToolboxSite* site)
    : DockToolboxSiteItem(site)
{
}

void DockToolboxSiteDragTarget::OnDragEnter(DockWidget& widget, const QPoint& pos)
{
    if (GetToolboxSite())
        GetToolboxSite()->OnDragEnter(this, widget, pos);
}

void DockToolboxSiteDragTarget::OnDragLeave(DockWidget& widget, IDockDragTarget* next,
                                            const QPoint& pos)
{
    if (GetToolboxSite())
        GetToolboxSite()->OnDragLeave(this, widget, next, pos);
}

void DockToolboxSiteDragTarget::OnDragOver(DockWidget& widget, const QPoint& pos)
{
    if (GetToolboxSite())
        GetToolboxSite()->OnDragOver(this, widget, pos);
}

void DockToolboxSiteDragTarget::OnDragDrop(DockWidget& widget, const QPoint& pos)
{
    if (GetToolboxSite())
        GetToolboxSite()->OnDragDrop(this, widget, pos);
}

void DockToolboxSiteDragTarget::OnDragCancel(DockWidget&, const QPoint&)
{
    if (GetToolboxSite())
        GetToolboxSite()->_FinishEvaluation();
}

} // namespace ovk
