#pragma once

#include <ovk/core/export.h>

#include <vector>

namespace Qtitan {

/// The lengths that the arithmetic of the tab row needs.
struct RibbonTabMetrics
{
    int padding = 13;
    int minPadding = 4;
    int minText = 21;
    int spacing = 2;
    int scrollButton = 13;
};

/// Where the tabs are, left to right, from 0 on.
struct OVK_TEST_EXPORT RibbonTabGeometry
{
    struct Tab
    {
        int x = 0;
        int width = 0;
        int textWidth = 0; ///< room for the title; less than it wants when it is elided
    };
    std::vector<Tab> tabs;
    int padding = 0;      ///< each side of a title
    bool elided = false;  ///< some titles are
    bool scrolls = false; ///< the tabs need scroll buttons
    int contentWidth = 0;
    int maxScroll = 0; ///< how far the tabs can be moved

    /// The scroll offset nearest to `offset` at which tab `index` is seen in full.
    int offsetFor(int index, int offset, int viewWidth) const;
};

/// Lays out tabs of the given title widths: padding shrinks first, then the widest titles are
/// elided until they are equal, at least to `minText`, then the tabs scroll.
OVK_TEST_EXPORT RibbonTabGeometry layoutRibbonTabs(const std::vector<int>& titles, int available,
                                                   const RibbonTabMetrics& metrics);

/// Tabs that stand below a title of their own.
struct RibbonTabRun
{
    int first = 0;
    int count = 0;
    int wanted = 0; ///< how wide they must be together for the title to be read
};

/// Makes the tabs of each run as wide as it wants, as far as there is room left in `available`.
OVK_TEST_EXPORT void widenRibbonTabs(RibbonTabGeometry& geometry,
                                     const std::vector<RibbonTabRun>& runs, int available);

} // namespace Qtitan
