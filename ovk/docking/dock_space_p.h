#pragma once

#include <QtCore/QSize>

#include <vector>

#include <ovk/core/export.h>

namespace ovk {

/// The arithmetic of a toolbox site: how much room there is, who collapses when it runs out and
/// who opens again when it returns. It knows panels only by their sizes.
namespace dock_space {

/// What counts of a panel. Panels are named by their position in the list.
struct Panel
{
    bool visible = true;
    bool collapsible = true;
    bool collapsed = false;
    bool forced = false; ///< Collapsed for want of room.
    QSize collapsed_min;
    QSize current_min;
    QSize size; ///< The present size.
};
using Panels = std::vector<Panel>;

/// Room in pixels along a site; negative for too little.
struct Space
{
    int free = 0;    ///< What is left as the panels are.
    int minimal = 0; ///< What would be left if all that can were collapsed.
};

/// The room of a site of that length.
OVK_TEST_EXPORT Space CalcFreeSpace(const Panels& panels, int length, bool vertical);

/// The answer of PlanSpace().
struct Plan
{
    bool fits = false;
    std::vector<int> victims; ///< Panels to collapse, in this order.
};

/// How to make room for `needed` pixels by collapsing panels other than `exclude` (-1 for none).
/// Heights count on every side, in a horizontal site too, whose length is a width.
OVK_TEST_EXPORT Plan PlanSpace(const Panels& panels, int length, int exclude, int needed);

/// The panels of a vertical site that can open again, in this order, with `free` pixels left.
OVK_TEST_EXPORT std::vector<int> PlanExpansion(const Panels& panels, int free);

/// The least height of a vertical site.
OVK_TEST_EXPORT int MinimumHeight(const Panels& panels);

/// Does a panel fit, and how?
enum class Fit
{
    FitsAsIs = 0,
    FitsCollapsed = 1,
    FitsAfterCollapsingOthers = 2,
    DoesNotFit = 3
};

/// In a vertical site.
OVK_TEST_EXPORT Fit CheckFitVertical(const Panel& panel, const Space& space);

/// In a horizontal site; `estimator` is the width of the preview, -1 for none.
OVK_TEST_EXPORT Fit CheckFitHorizontal(const Panel& panel, const Panels& panels, int spacer,
                                       int estimator);

/// The heights of the central widget and a site while its handle is dragged, along one axis.
struct DragInput
{
    bool leading = true; ///< Left or top: the site grows with the cursor.
    int delta = 0;       ///< How far the cursor went.
    int central = 0;     ///< Present size of the central widget.
    int central_min = 0; ///< Its least size.
    int site = 0;        ///< Present size of the site.
    int site_max = 0;    ///< Its largest size.
};

/// The new cross size of a site whose handle was dragged.
OVK_TEST_EXPORT int CrossSizeAfterDrag(const DragInput& input);

} // namespace dock_space
} // namespace ovk
