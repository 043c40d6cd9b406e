#pragma once

#include "model/scene.h"

#include <QColor>

#include <array>
#include <vector>

namespace tarnix {

/// What the colours of the parts tell.
enum class ColorBy
{
    Part,    ///< each part its own
    Height,  ///< millimetres over the plate
    Overhang ///< degrees that a surface leans over, 0 for a wall or a top
};

/// Values from low to high with colours at equal distances.
struct ColorScale
{
    double low = 0.0;
    double high = 1.0;
    std::vector<QColor> colors;

    /// The value of a colour.
    double ValueOf(size_t color) const;
    /// Where a value lies, 0 to 1.
    double PlaceOf(double value) const;
    QRgb At(double value) const;
    /// 256 colours from low to high.
    std::array<QRgb, 256> Table() const;
};

/// The scale for a quantity of the visible parts; without colours for ColorBy::Part.
ColorScale ScaleOf(ColorBy quantity, const PartList& parts);

/// Degrees that a surface of that normal leans over.
double LeanOf(const Vec3& world_normal);

/// The surface of the visible parts in square millimetres between the values of the scale's
/// colours: one figure less than it has colours. Surfaces that lean over nothing, or lie on the
/// plate, are left out of ColorBy::Overhang.
std::vector<double> AreasOf(ColorBy quantity, const ColorScale& scale, const PartList& parts);

} // namespace tarnix
