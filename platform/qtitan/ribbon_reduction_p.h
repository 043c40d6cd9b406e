#pragma once

#include <ovk/core/export.h>

#include <utility>
#include <vector>

namespace Qtitan {

/// A group of a page as far as reduction is concerned: its ways to be shown, widest first, each as
/// stage (RibbonGroupStep::Stage) and width.
struct ReducibleGroup
{
    std::vector<std::pair<int, int>> steps;
};

/// In which order the groups of a page give way. All groups take the steps of one stage before any
/// takes the next: rounds from right to left, one step a group and round. What is shown at a width
/// is a prefix of the order, so that a page that grows goes back the way that it came.
class OVK_TEST_EXPORT RibbonReduction
{
public:
    RibbonReduction() = default;
    /// `spacing` lies between neighbours.
    RibbonReduction(const std::vector<ReducibleGroup>& groups, int spacing);

    /// The step of each group that makes the page as wide as possible within `available`; the
    /// narrowest when nothing fits.
    std::vector<int> stepsFor(int available) const;
    /// The width of the page with nothing, and with everything reduced.
    int fullWidth() const;
    int minimumWidth() const;
    /// All steps in order: the group that takes it, and the width of the page after it.
    const std::vector<std::pair<int, int>>& order() const { return m_order; }

private:
    int m_fullWidth = 0;
    int m_groups = 0;
    std::vector<std::pair<int, int>> m_order;
};

} // namespace Qtitan
