#include "color_marks_p.h"

#include <cmath>

namespace ovk {

namespace {

constexpr int g_short_mark = 4;
constexpr int g_long_mark = 2;
/// Where more marks than this fall on one row, every row has a long one.
constexpr double g_most_marks_of_a_row = 64.0;

} // namespace

std::vector<ColorMark> ColorMarks(double min, double max, double step, int height)
{
    std::vector<ColorMark> marks;
    const double half = step * 0.5;
    if (!(half > 0.0) || !std::isfinite(max - min) || height <= 0)
        return marks;

    const double dy = half / (max - min) * height;
    if (max > min && dy * g_most_marks_of_a_row < 1.0) {
        for (int row = 0; row < height; ++row)
            marks.push_back({row, g_long_mark});
        return marks;
    }

    double y = dy;
    int divisor = g_short_mark;
    for (double v = max - half; v > min && y < height; v -= half) {
        marks.push_back({static_cast<int>(y), divisor});
        y += dy;
        divisor = divisor == g_short_mark ? g_long_mark : g_short_mark;
    }
    return marks;
}

} // namespace ovk
