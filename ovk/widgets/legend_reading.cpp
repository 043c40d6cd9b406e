#include "legend_reading_p.h"

#include <Qt>

#include <algorithm>
#include <cmath>

namespace ovk {

namespace {

enum class Stride
{
    Step,
    Entry,
    End
};

struct ReadingKey
{
    int key;
    int direction;
    Stride stride;
};

constexpr ReadingKey g_keys[] = {
    {Qt::Key_Left, -1, Stride::Step},      {Qt::Key_Down, -1, Stride::Step},
    {Qt::Key_Right, 1, Stride::Step},      {Qt::Key_Up, 1, Stride::Step},
    {Qt::Key_PageDown, -1, Stride::Entry}, {Qt::Key_PageUp, 1, Stride::Entry},
    {Qt::Key_Home, -1, Stride::End},       {Qt::Key_End, 1, Stride::End},
};

/// The number of whole pieces is found although a sum of steps is never quite exact.
constexpr double g_tolerance = 1e-6;

double ToNext(double reading, int direction, int pieces)
{
    if (pieces < 1)
        return direction < 0 ? 0.0 : 1.0;
    const double position = reading * pieces;
    const double next = direction < 0 ? std::ceil(position - g_tolerance) - 1.0
                                      : std::floor(position + g_tolerance) + 1.0;
    return next / pieces;
}

} // namespace

std::optional<double> MovedReading(double reading, int key, int entries)
{
    const auto* const known = std::find_if(std::begin(g_keys), std::end(g_keys),
                                           [key](const ReadingKey& row) { return row.key == key; });
    if (known == std::end(g_keys))
        return std::nullopt;
    double moved = reading;
    switch (known->stride) {
    case Stride::Step:
        moved =
            ToNext(reading, known->direction, static_cast<int>(std::lround(1.0 / g_reading_step)));
        break;
    case Stride::Entry:
        moved = ToNext(reading, known->direction, entries - 1);
        break;
    case Stride::End:
        moved = known->direction < 0 ? 0.0 : 1.0;
        break;
    }
    return std::clamp(moved, 0.0, 1.0);
}

} // namespace ovk
