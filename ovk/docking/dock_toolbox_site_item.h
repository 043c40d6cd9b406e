#pragma once

#include <ovk/core/export.h>
#include <ovk/docking/dock_drag_target.h>

namespace ovk {

class DockToolboxSite;

/// What lies in a toolbox site knows its site.
class OVK_EXPORT DockToolboxSiteItem
{
public:
    explicit DockToolboxSiteItem(DockToolboxSite* site = nullptr) : mp_toolbox_site(site) {}

    /// The site that the item lies in; null for a floating panel.
    DockToolboxSite* GetToolboxSite() const { return mp_toolbox_site; }

    /// Called by the site.
    void _SetToolboxSite(DockToolboxSite* site) { mp_toolbox_site = site; }

protected:
    ~DockToolboxSiteItem() = default;

private:
    DockToolboxSite* mp_toolbox_site;
};

/// A drag target that lies in a toolbox site and hands every operation on to it. Without a site
/// it does nothing.
class OVK_EXPORT DockToolboxSiteDragTarget : public IDockDragTarget, public DockToolboxSiteItem
{
public:
    explicit DockToolboxSiteDragTarget(DockToolboxSite* site = nullptr);

    void OnDragEnter(DockWidget& widget, const QPoint& pos) override;
    void OnDragLeave(DockWidget& widget, IDockDragTarget* next, const QPoint& pos) override;
    void OnDragOver(DockWidget& widget, const QPoint& pos) override;
    void OnDragDrop(DockWidget& widget, const QPoint& pos) override;
    void OnDragCancel(DockWidget& widget, const QPoint& pos) override;
};

} // namespace ovk
