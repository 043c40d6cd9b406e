#pragma once

#include "ovk/docking/dock_site.h"

namespace ovk {

class DockToolboxSiteHandle;

/// The private part of a site. All parts are items of the box, which owns them.
class OVK_TEST_EXPORT DockSite::Impl
{
public:
    DockSite* site = nullptr;
    DockToolboxSiteHandle* handle = nullptr;
    DockToolbarSiteInner* inner = nullptr;
    DockToolboxSite* toolbox = nullptr;
    DockToolbarSiteOutter* outter = nullptr;
    DockLayout* root = nullptr;
    DockLayout::Side side = DockLayout::Left;

    /// From the edge of the window inward.
    void AddOutsideIn();
    /// The other way round.
    void AddInsideOut();
};

} // namespace ovk
