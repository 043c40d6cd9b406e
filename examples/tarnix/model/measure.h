#pragma once

#include "model/format.h"
#include "model/vec3.h"

#include <QString>

#include <optional>
#include <vector>

namespace tarnix {

/// What a measurement says; the number of points that it takes differs.
enum class MeasureKind
{
    Point,
    Distance,
    Angle,
    Radius,
    Box,
    Gap
};

/// Points that the user must pick for a kind; 0 for the kinds that take parts.
int PointsNeeded(MeasureKind kind);

struct Measurement
{
    MeasureKind kind = MeasureKind::Point;
    std::vector<Vec3> points; ///< in the order of picking; for boxes the low and the high corner
    double value = 0.0;       ///< millimetres, or degrees for an angle
    QString subject;          ///< names of the parts, for kinds that take parts

    /// The title of the kind, for lists.
    QString Title() const;
    /// The value for people.
    QString Text(const Formatter& format) const;
    /// Further lines: the point, the steps along the axes, the diameter.
    QString Details(const Formatter& format) const;
};

/// Nothing when points are missing or say nothing (three in one line have no radius).
std::optional<Measurement> Measure(MeasureKind kind, const std::vector<Vec3>& points);
Measurement MeasureBox(const Box& box, const QString& subject);
/// The shortest way between two boxes; 0 when they touch.
Measurement MeasureGap(const Box& first, const Box& second, const QString& subject);

/// The middle of the circle through three points.
std::optional<Vec3> CircleCenter(const Vec3& a, const Vec3& b, const Vec3& c);

} // namespace tarnix
