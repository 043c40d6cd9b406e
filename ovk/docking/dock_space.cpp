#include "ovk/docking/dock_space_p.h"

#include <algorithm>
#include <deque>

namespace ovk {
namespace dock_space {

namespace {

int Along(const QSize& size, bool vertical)
{
    return vertical ? size.height() : size.width();
}

const QSize& Least(const Panel& panel)
{
    return panel.collapsible ? panel.collapsed_min : panel.current_min;
}

const QSize& Present(const Panel& panel)
{
    return panel.collapsed ? panel.collapsed_min : panel.current_min;
}

Space CalcFreeSpace(const Panels& panels, int length, bool vertical, int exclude)
{
    Space space{length, length};
    for (int i = 0; i < static_cast<int>(panels.size()); ++i) {
        if (i == exclude || !panels[i].visible)
            continue;
        space.minimal -= Along(Least(panels[i]), vertical);
        space.free -= Along(Present(panels[i]), vertical);
    }
    return space;
}

/// Panels that could collapse, by rising height; equals stay in layout order.
std::deque<int> Candidates(const Panels& panels, int exclude)
{
    std::deque<int> candidates;
    for (int i = 0; i < static_cast<int>(panels.size()); ++i) {
        const Panel& panel = panels[i];
        if (i != exclude && panel.visible && panel.collapsible && !panel.collapsed)
            candidates.push_back(i);
    }
    std::stable_sort(candidates.begin(), candidates.end(), [&panels](int a, int b) {
        return panels[a].current_min.height() < panels[b].current_min.height();
    });
    return candidates;
}

} // namespace

Space CalcFreeSpace(const Panels& panels, int length, bool vertical)
{
    return CalcFreeSpace(panels, length, vertical, -1);
}

Plan PlanSpace(const Panels& panels, int length, int exclude, int needed)
{
    if (length == 0)
        return {};
    const Space space = CalcFreeSpace(panels, length, true, exclude);
    if (space.free >= needed)
        return {true, {}};
    if (space.minimal < needed)
        return {};

    std::deque<int> candidates = Candidates(panels, exclude);
    std::vector<int> victims;
    int free = space.free;
    while (!candidates.empty()) {
        // One panel that is enough by itself spares the others.
        const auto enough = std::find_if(candidates.begin(), candidates.end(), [&](int i) {
            const Panel& panel = panels[i];
            return panel.size.height() - panel.collapsed_min.height() + free >= needed;
        });
        if (enough != candidates.end()) {
            free += panels[*enough].size.height() - panels[*enough].collapsed_min.height();
            victims.push_back(*enough);
            candidates.erase(enough);
        }
        if (free >= needed)
            break;
        // The whole height counts here, not less the title: part of the behaviour.
        const int first = candidates.front();
        candidates.pop_front();
        victims.push_back(first);
        free += panels[first].size.height();
    }
    if (free < needed)
        return {};
    std::reverse(victims.begin(), victims.end());
    return {true, std::move(victims)};
}

std::vector<int> PlanExpansion(const Panels& panels, int free)
{
    std::vector<int> result;
    for (int i = 0; i < static_cast<int>(panels.size()) && free >= 0; ++i) {
        const Panel& panel = panels[i];
        if (!panel.visible || !panel.forced)
            continue;
        const int title = panel.collapsed_min.height();
        const int open = panel.current_min.height();
        if (open > title + free)
            continue;
        result.push_back(i);
        free += title - open;
    }
    return result;
}

int MinimumHeight(const Panels& panels)
{
    int height = 0;
    for (const Panel& panel : panels) {
        if (panel.visible)
            height += Least(panel).height();
    }
    return height;
}

Fit CheckFitVertical(const Panel& panel, const Space& space)
{
    if (panel.current_min.height() <= space.free)
        return Fit::FitsAsIs;
    if (panel.collapsible && panel.collapsed_min.height() <= space.free)
        return Fit::FitsCollapsed;
    return Least(panel).height() > space.minimal ? Fit::DoesNotFit : Fit::FitsAfterCollapsingOthers;
}

Fit CheckFitHorizontal(const Panel& panel, const Panels& panels, int spacer, int estimator)
{
    const int extra = estimator < 0 ? 1 : estimator + 1;
    int total = spacer - 1 + extra;
    for (const Panel& other : panels)
        total += other.size.width() - other.current_min.width();
    return panel.current_min.width() > total ? Fit::DoesNotFit : Fit::FitsAsIs;
}

int CrossSizeAfterDrag(const DragInput& input)
{
    // Mirrored for the far side, so that growing is always positive.
    int growth = input.leading ? input.delta : -input.delta;
    if (input.central - growth < input.central_min)
        growth = input.central - input.central_min;
    return std::min(input.site_max, input.site + growth);
}

} // namespace dock_space
} // namespace ovk
