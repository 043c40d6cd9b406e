#pragma once

#include <ovk/core/export.h>

#include <vector>

namespace ovk {

/// One tick mark of a colour scale.
struct ColorMark
{
    /// The row of pixels, from the top.
    int row;
    /// The mark takes this part of the width: 2 for a half, 4 for a quarter.
    int divisor;
};

/// The marks of a scale \a height pixels high: every half of \a step, short and long in turn, the
/// first one half a step below \a max. None for a step that is not above 0 or no number.
OVK_TEST_EXPORT std::vector<ColorMark> ColorMarks(double min, double max, double step, int height);

} // namespace ovk
