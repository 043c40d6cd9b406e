#pragma once

#include <ovk/core/export.h>

#include <optional>

namespace ovk {

/// Where a legend is read after a key: at a fraction of its length, 0 for the first value and 1 for
/// the last. Arrows go on by a hundredth, the page keys to the next of \a entries, which lie at
/// equal distances, Home and End to the ends. None for any other key.
OVK_TEST_EXPORT std::optional<double> MovedReading(double reading, int key, int entries);

/// The part of the length by which an arrow goes on.
constexpr double g_reading_step = 0.01;

} // namespace ovk
