#include "model/measure.h"

#include <QCoreApplication>
#include <QtMath>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Measurement)
};

} // namespace

int PointsNeeded(MeasureKind kind)
{
    switch (kind) {
    case MeasureKind::Point:
        return 1;
    case MeasureKind::Distance:
        return 2;
    case MeasureKind::Angle:
    case MeasureKind::Radius:
        return 3;
    case MeasureKind::Box:
    case MeasureKind::Gap:
        break;
    }
    return 0;
}

QString Measurement::Title() const
{
    switch (kind) {
    case MeasureKind::Point:
        return Texts::tr("Point");
    case MeasureKind::Distance:
        return Texts::tr("Distance");
    case MeasureKind::Angle:
        return Texts::tr("Angle");
    case MeasureKind::Radius:
        return Texts::tr("Radius");
    case MeasureKind::Box:
        return Texts::tr("Size");
    case MeasureKind::Gap:
        return Texts::tr("Gap");
    }
    return QString();
}

QString Measurement::Text(const Formatter& format) const
{
    switch (kind) {
    case MeasureKind::Point:
        return format.Point(points.front());
    case MeasureKind::Angle:
        return format.Angle(value);
    case MeasureKind::Radius:
        return QStringLiteral("R ") + format.Length(value);
    case MeasureKind::Box:
        return format.Size(points[1] - points[0]);
    case MeasureKind::Distance:
    case MeasureKind::Gap:
        break;
    }
    return format.Length(value);
}

QString Measurement::Details(const Formatter& format) const
{
    switch (kind) {
    case MeasureKind::Distance:
    case MeasureKind::Gap: {
        const Vec3 step = points[1] - points[0];
        return QStringLiteral("\u0394 ") + format.Point(step);
    }
    case MeasureKind::Radius:
        return QStringLiteral("\u2300 ") + format.Length(2.0 * value);
    case MeasureKind::Box:
        return format.Point((points[0] + points[1]) * 0.5);
    case MeasureKind::Point:
    case MeasureKind::Angle:
        break;
    }
    return QString();
}

std::optional<Vec3> CircleCenter(const Vec3& a, const Vec3& b, const Vec3& c)
{
    const Vec3 ab = b - a;
    const Vec3 ac = c - a;
    const Vec3 normal = Cross(ab, ac);
    const double square = Dot(normal, normal);
    if (square < 1e-12 * Dot(ab, ab) * Dot(ac, ac) || square == 0.0)
        return std::nullopt;
    const Vec3 shift =
        (Cross(normal, ab) * Dot(ac, ac) + Cross(ac, normal) * Dot(ab, ab)) / (2.0 * square);
    return a + shift;
}

std::optional<Measurement> Measure(MeasureKind kind, const std::vector<Vec3>& points)
{
    const int needed = PointsNeeded(kind);
    if (needed == 0 || static_cast<int>(points.size()) < needed)
        return std::nullopt;
    Measurement result;
    result.kind = kind;
    result.points.assign(points.begin(), points.begin() + needed);
    if (kind == MeasureKind::Distance) {
        result.value = Length(points[1] - points[0]);
    } else if (kind == MeasureKind::Angle) {
        // The corner is the second point.
        const Vec3 first = points[0] - points[1];
        const Vec3 second = points[2] - points[1];
        if (Length(first) == 0.0 || Length(second) == 0.0)
            return std::nullopt;
        result.value =
            qRadiansToDegrees(std::atan2(Length(Cross(first, second)), Dot(first, second)));
    } else if (kind == MeasureKind::Radius) {
        const std::optional<Vec3> center = CircleCenter(points[0], points[1], points[2]);
        if (!center)
            return std::nullopt;
        result.value = Length(points[0] - *center);
    }
    return result;
}

Measurement MeasureBox(const Box& box, const QString& subject)
{
    Measurement result;
    result.kind = MeasureKind::Box;
    result.points = {box.low, box.high};
    result.value = Length(box.Size());
    result.subject = subject;
    return result;
}

Measurement MeasureGap(const Box& first, const Box& second, const QString& subject)
{
    Measurement result;
    result.kind = MeasureKind::Gap;
    result.subject = subject;
    Vec3 from, to;
    for (int axis = 0; axis < 3; ++axis) {
        if (first.high[axis] < second.low[axis]) {
            from[axis] = first.high[axis];
            to[axis] = second.low[axis];
        } else if (second.high[axis] < first.low[axis]) {
            from[axis] = first.low[axis];
            to[axis] = second.high[axis];
        } else {
            const double low = std::max(first.low[axis], second.low[axis]);
            const double high = std::min(first.high[axis], second.high[axis]);
            from[axis] = to[axis] = (low + high) / 2.0;
        }
    }
    result.points = {from, to};
    result.value = Length(to - from);
    return result;
}

} // namespace tarnix
