#include "ribbon_tab_layout_p.h"

#include <algorithm>
#include <numeric>

namespace Qtitan {
namespace {

/// The largest cap, at least `least`, under which the widths sum up to no more than `budget`.
int capFor(std::vector<int> widths, int budget, int least)
{
    std::sort(widths.begin(), widths.end());
    int rest = budget;
    int count = static_cast<int>(widths.size());
    for (const int width : widths) {
        const int share = rest / count;
        if (width > share)
            return std::max(share, least);
        rest -= width;
        --count;
    }
    return widths.empty() ? least : std::max(widths.back(), least);
}

} // namespace

int RibbonTabGeometry::offsetFor(int index, int offset, int viewWidth) const
{
    if (index < 0 || index >= static_cast<int>(tabs.size()))
        return std::clamp(offset, 0, maxScroll);
    const Tab& tab = tabs[static_cast<std::size_t>(index)];
    if (tab.x + tab.width > offset + viewWidth)
        offset = tab.x + tab.width - viewWidth;
    if (tab.x < offset)
        offset = tab.x;
    return std::clamp(offset, 0, maxScroll);
}

RibbonTabGeometry layoutRibbonTabs(const std::vector<int>& titles, int available,
                                   const RibbonTabMetrics& metrics)
{
    RibbonTabGeometry geometry;
    const int count = static_cast<int>(titles.size());
    if (count == 0)
        return geometry;

    const int text = std::accumulate(titles.begin(), titles.end(), 0);
    const int spacing = (count - 1) * metrics.spacing;
    int cap = *std::max_element(titles.begin(), titles.end());
    const int padding = (available - text - spacing) / (2 * count);
    geometry.padding = std::clamp(padding, metrics.minPadding, metrics.padding);
    // Integer division rounds towards zero, so a negative remainder must not count as fitting.
    if (text + spacing + 2 * count * geometry.padding > available) {
        geometry.padding = metrics.minPadding;
        cap = capFor(titles, available - spacing - 2 * count * metrics.minPadding, metrics.minText);
    }

    int x = 0;
    for (const int title : titles) {
        RibbonTabGeometry::Tab tab;
        tab.x = x;
        tab.textWidth = std::min(title, cap);
        tab.width = tab.textWidth + 2 * geometry.padding;
        geometry.elided = geometry.elided || tab.textWidth < title;
        geometry.tabs.push_back(tab);
        x += tab.width + metrics.spacing;
    }
    geometry.contentWidth = x - metrics.spacing;
    geometry.scrolls = geometry.contentWidth > available;
    if (geometry.scrolls)
        geometry.maxScroll =
            std::max(0, geometry.contentWidth - std::max(1, available - 2 * metrics.scrollButton));
    return geometry;
}

void widenRibbonTabs(RibbonTabGeometry& geometry, const std::vector<RibbonTabRun>& runs,
                     int available)
{
    for (const RibbonTabRun& run : runs) {
        if (run.count <= 0 || run.first + run.count > static_cast<int>(geometry.tabs.size()))
            continue;
        const auto at = [&geometry](int i) -> RibbonTabGeometry::Tab& {
            return geometry.tabs[static_cast<std::size_t>(i)];
        };
        const RibbonTabGeometry::Tab& last = at(run.first + run.count - 1);
        const int missing = std::min(run.wanted - (last.x + last.width - at(run.first).x),
                                     available - geometry.contentWidth);
        if (missing <= 0)
            continue;
        int given = 0;
        for (int i = run.first; i < static_cast<int>(geometry.tabs.size()); ++i) {
            at(i).x += given;
            const int place = i - run.first + 1;
            const int share = place <= run.count ? missing * place / run.count - given : 0;
            at(i).width += share;
            given += share;
        }
        geometry.contentWidth += missing;
    }
}

} // namespace Qtitan
