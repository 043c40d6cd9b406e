#pragma once

#include <QtCore/QRect>

#include <ovk/core/export.h>

#include <vector>

namespace Qtitan {

/// How a button of a group is shown at present.
enum class RibbonItemSize { Large, Text, Icon };

/// One item of a group as far as its place is concerned. Widths are pixels.
struct RibbonLayoutItem
{
    enum class Kind {
        Button,
        Widget,   ///< as wide as `width`, `lines` lines high; wanted is Large, shrunk is Icon
        Separator ///< a vertical line, which ends a column
    };
    Kind kind = Kind::Button;
    RibbonItemSize wanted = RibbonItemSize::Text; ///< by the style that the host gave
    int largeWidth = 0;
    int textWidth = 0;
    int iconWidth = 0; ///< 0 when the button cannot go without its text
    int width = 0;     ///< of a widget
    int minWidth = 0;  ///< to which a widget can shrink; 0 when it cannot
    int lines = 1;     ///< of a widget: 1 or 2 stack, 3 takes the full height
};

/// The lengths that the arithmetic of a group needs.
struct RibbonLayoutMetrics
{
    int lineHeight = 22;
    int columnSpacing = 1;
    int separatorSpace = 7;
};

/// Where the items of a group are. Rectangles start at (0, 0), left to right.
struct RibbonGroupGeometry
{
    std::vector<QRect> rects;
    std::vector<int> columns; ///< of each item, -1 for a separator
    int width = 0;
};

/// One step of a group's reduction.
struct RibbonGroupStep
{
    enum Stage { Full, Small, IconOnly, Popup };
    Stage stage = Full;
    std::vector<RibbonItemSize> sizes;
    int width = 0;
};

/// Stacks small items three a column; large and full-height ones have columns of their own.
OVK_TEST_EXPORT RibbonGroupGeometry layoutRibbonGroup(const std::vector<RibbonLayoutItem>& items,
                                                      const std::vector<RibbonItemSize>& sizes,
                                                      const RibbonLayoutMetrics& metrics);

/// The ways to show a group, each narrower than the one before. The first is as the host wants it.
/// Then large buttons become columns of small ones with text, from the right, three at a time; then
/// columns lose their texts, from the right. `minimumWidth` is what the title needs.
OVK_TEST_EXPORT std::vector<RibbonGroupStep>
ribbonGroupSteps(const std::vector<RibbonLayoutItem>& items, const RibbonLayoutMetrics& metrics,
                 int minimumWidth);

} // namespace Qtitan
