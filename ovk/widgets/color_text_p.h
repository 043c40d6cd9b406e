#pragma once

#include <ovk/core/export.h>

#include <QString>

class QColor;

namespace ovk {

/// A colour in words, for those who cannot see it: "dark green, #00552A". "no color" for an invalid
/// one.
OVK_TEST_EXPORT QString ColorText(const QColor& color);

} // namespace ovk
