#include "ribbon_reduction_p.h"

#include <algorithm>

namespace Qtitan {

RibbonReduction::RibbonReduction(const std::vector<ReducibleGroup>& groups, int spacing)
    : m_groups(static_cast<int>(groups.size()))
{
    std::vector<std::size_t> taken(groups.size(), 0);
    int visible = 0;
    int last_stage = 0;
    for (const ReducibleGroup& group : groups) {
        if (group.steps.empty())
            continue;
        m_fullWidth += group.steps.front().second;
        last_stage = std::max(last_stage, group.steps.back().first);
        ++visible;
    }
    if (visible > 1)
        m_fullWidth += (visible - 1) * spacing;

    int width = m_fullWidth;
    for (int stage = 1; stage <= last_stage; ++stage) {
        for (bool progress = true; progress;) {
            progress = false;
            for (std::size_t g = groups.size(); g-- > 0;) {
                const auto& steps = groups[g].steps;
                if (taken[g] + 1 >= steps.size() || steps[taken[g] + 1].first > stage)
                    continue;
                width -= steps[taken[g]].second - steps[taken[g] + 1].second;
                ++taken[g];
                m_order.emplace_back(static_cast<int>(g), width);
                progress = true;
            }
        }
    }
}

std::vector<int> RibbonReduction::stepsFor(int available) const
{
    std::vector<int> steps(static_cast<std::size_t>(m_groups), 0);
    if (m_fullWidth <= available)
        return steps;
    for (const auto& step : m_order) {
        ++steps[static_cast<std::size_t>(step.first)];
        if (step.second <= available)
            break;
    }
    return steps;
}

int RibbonReduction::fullWidth() const
{
    return m_fullWidth;
}

int RibbonReduction::minimumWidth() const
{
    return m_order.empty() ? m_fullWidth : m_order.back().second;
}

} // namespace Qtitan
