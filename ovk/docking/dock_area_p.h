#pragma once

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_window_p.h"

namespace ovk {

class DockToolboxSite;

/// The private part of an area.
class OVK_TEST_EXPORT DockArea::Impl : public DockWindow::Impl
{
public:
    Impl();
    ~Impl() override;

    void OnTitleDoubleClick() override;
    DockTitle* CreateTitle() override;

    DockArea* Area() const { return static_cast<DockArea*>(window); }

    /// The toolbox site whose edge zone contains the global position; null if there is none.
    DockToolboxSite* FindEdgeSite(const QPoint& pos) const;
    /// The zone of a side in the coordinates of the area.
    QRect EdgeZone(int side) const;

    bool destroying = false;
    DockManager* manager = nullptr;
};

} // namespace ovk
