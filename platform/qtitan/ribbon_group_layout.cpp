#include "ribbon_group_layout_p.h"

#include <algorithm>

namespace Qtitan {
namespace {

constexpr int LinesPerColumn = 3;

int linesOf(const RibbonLayoutItem& item, RibbonItemSize size)
{
    if (item.kind == RibbonLayoutItem::Kind::Widget)
        return std::clamp(item.lines, 1, LinesPerColumn);
    return size == RibbonItemSize::Large ? LinesPerColumn : 1;
}

int widthOf(const RibbonLayoutItem& item, RibbonItemSize size)
{
    if (item.kind == RibbonLayoutItem::Kind::Widget)
        return size == RibbonItemSize::Icon && item.minWidth > 0 ? item.minWidth : item.width;
    switch (size) {
    case RibbonItemSize::Large:
        return item.largeWidth;
    case RibbonItemSize::Text:
        return item.textWidth;
    case RibbonItemSize::Icon:
        break;
    }
    return item.iconWidth > 0 ? item.iconWidth : item.textWidth;
}

bool isLargeButton(const RibbonLayoutItem& item, RibbonItemSize size)
{
    return item.kind == RibbonLayoutItem::Kind::Button && size == RibbonItemSize::Large;
}

/// Whether the item has a form without its text, or a narrower one.
bool shrinks(const RibbonLayoutItem& item, RibbonItemSize size)
{
    switch (item.kind) {
    case RibbonLayoutItem::Kind::Button:
        return size == RibbonItemSize::Text && item.iconWidth > 0;
    case RibbonLayoutItem::Kind::Widget:
        return size != RibbonItemSize::Icon && item.minWidth > 0 && item.minWidth < item.width;
    case RibbonLayoutItem::Kind::Separator:
        break;
    }
    return false;
}

/// Columns under construction: where the next item goes.
class Columns
{
public:
    explicit Columns(const RibbonLayoutMetrics& metrics) : m_metrics(metrics) {}

    QRect place(int lines, int width)
    {
        if (m_line > 0 && m_line + lines > LinesPerColumn)
            close();
        if (m_line == 0 && !m_first)
            m_x += m_metrics.columnSpacing;
        const QRect rect(m_x, m_line * m_metrics.lineHeight, width, lines * m_metrics.lineHeight);
        m_width = std::max(m_width, width);
        m_line += lines;
        m_first = false;
        return rect;
    }

    void close()
    {
        if (m_line == 0)
            return;
        m_x += m_width;
        m_width = 0;
        m_line = 0;
        ++m_index;
    }

    QRect separator()
    {
        close();
        const QRect rect(m_x, 0, m_metrics.separatorSpace, LinesPerColumn * m_metrics.lineHeight);
        m_x += m_metrics.separatorSpace;
        // The space of the line is spacing enough.
        m_first = true;
        return rect;
    }

    int index() const { return m_index; }
    int width() const { return m_x + m_width; }

private:
    const RibbonLayoutMetrics& m_metrics;
    int m_x = 0;
    int m_width = 0;
    int m_line = 0;
    int m_index = 0;
    bool m_first = true;
};

/// Makes the step and keeps it when it is narrower than the last one.
bool tryStep(std::vector<RibbonGroupStep>& steps, std::vector<RibbonItemSize> sizes,
             RibbonGroupStep::Stage stage, const std::vector<RibbonLayoutItem>& items,
             const RibbonLayoutMetrics& metrics, int minimumWidth)
{
    const int width = std::max(layoutRibbonGroup(items, sizes, metrics).width, minimumWidth);
    if (width >= steps.back().width)
        return false;
    steps.push_back({stage, std::move(sizes), width});
    return true;
}

} // namespace

RibbonGroupGeometry layoutRibbonGroup(const std::vector<RibbonLayoutItem>& items,
                                      const std::vector<RibbonItemSize>& sizes,
                                      const RibbonLayoutMetrics& metrics)
{
    RibbonGroupGeometry geometry;
    geometry.rects.reserve(items.size());
    geometry.columns.reserve(items.size());
    Columns columns(metrics);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].kind == RibbonLayoutItem::Kind::Separator) {
            geometry.rects.push_back(columns.separator());
            geometry.columns.push_back(-1);
            continue;
        }
        geometry.rects.push_back(
            columns.place(linesOf(items[i], sizes[i]), widthOf(items[i], sizes[i])));
        geometry.columns.push_back(columns.index());
    }
    geometry.width = columns.width();

    // Buttons with text in a column are equally wide, so that their grounds make one block under
    // the pointer. Icons alone keep to themselves, or they would drift into the middle of a wide
    // column.
    const auto grows = [&](std::size_t i) {
        return items[i].kind == RibbonLayoutItem::Kind::Button && sizes[i] == RibbonItemSize::Text;
    };
    std::vector<int> widths(static_cast<std::size_t>(columns.index()) + 1, 0);
    for (std::size_t i = 0; i < items.size(); ++i)
        if (grows(i)) {
            int& width = widths[static_cast<std::size_t>(geometry.columns[i])];
            width = std::max(width, geometry.rects[i].width());
        }
    for (std::size_t i = 0; i < items.size(); ++i)
        if (grows(i))
            geometry.rects[i].setWidth(widths[static_cast<std::size_t>(geometry.columns[i])]);
    return geometry;
}

std::vector<RibbonGroupStep> ribbonGroupSteps(const std::vector<RibbonLayoutItem>& items,
                                              const RibbonLayoutMetrics& metrics, int minimumWidth)
{
    std::vector<RibbonItemSize> sizes;
    sizes.reserve(items.size());
    for (const RibbonLayoutItem& item : items)
        sizes.push_back(item.wanted);

    std::vector<RibbonGroupStep> steps;
    steps.push_back({RibbonGroupStep::Full, sizes,
                     std::max(layoutRibbonGroup(items, sizes, metrics).width, minimumWidth)});

    // Large buttons, three neighbours at a time. Neighbours that gain nothing stay large, since
    // small buttons that are no narrower are only worse to hit.
    for (std::size_t end = items.size(); end > 0;) {
        if (!isLargeButton(items[end - 1], sizes[end - 1])) {
            --end;
            continue;
        }
        std::size_t begin = end;
        while (begin > 0 && end - begin < LinesPerColumn &&
               isLargeButton(items[begin - 1], sizes[begin - 1]))
            --begin;
        std::vector<RibbonItemSize> smaller = sizes;
        std::fill(smaller.begin() + static_cast<std::ptrdiff_t>(begin),
                  smaller.begin() + static_cast<std::ptrdiff_t>(end), RibbonItemSize::Text);
        if (tryStep(steps, smaller, RibbonGroupStep::Small, items, metrics, minimumWidth))
            sizes = smaller;
        end = begin;
    }

    const std::vector<int> columns = layoutRibbonGroup(items, sizes, metrics).columns;
    for (std::size_t end = items.size(); end > 0;) {
        std::size_t begin = end - 1;
        while (begin > 0 && columns[begin - 1] == columns[end - 1])
            --begin;
        std::vector<RibbonItemSize> smaller = sizes;
        for (std::size_t i = begin; i < end; ++i)
            if (shrinks(items[i], sizes[i]))
                smaller[i] = RibbonItemSize::Icon;
        if (smaller != sizes &&
            tryStep(steps, smaller, RibbonGroupStep::IconOnly, items, metrics, minimumWidth))
            sizes = smaller;
        end = begin;
    }
    return steps;
}

} // namespace Qtitan
