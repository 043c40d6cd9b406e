#include "view/picker.h"

namespace tarnix {
namespace {

bool HitsBox(const Ray& ray, const Box& box)
{
    double near = 0.0;
    double far = std::numeric_limits<double>::max();
    for (int axis = 0; axis < 3; ++axis) {
        const double d = ray.direction[axis];
        if (std::abs(d) < 1e-15) {
            if (ray.origin[axis] < box.low[axis] || ray.origin[axis] > box.high[axis])
                return false;
            continue;
        }
        double t0 = (box.low[axis] - ray.origin[axis]) / d;
        double t1 = (box.high[axis] - ray.origin[axis]) / d;
        if (t0 > t1)
            std::swap(t0, t1);
        near = std::max(near, t0);
        far = std::min(far, t1);
    }
    // A flat part has a box of no thickness.
    return near <= far + 1e-9;
}

/// The parameter along the ray, or a negative number.
double HitTriangle(const Vec3& origin, const Vec3& direction, const Vec3& a, const Vec3& b,
                   const Vec3& c)
{
    const Vec3 ab = b - a;
    const Vec3 ac = c - a;
    const Vec3 p = Cross(direction, ac);
    const double determinant = Dot(ab, p);
    if (determinant == 0.0)
        return -1.0;
    const Vec3 s = origin - a;
    const double u = Dot(s, p) / determinant;
    if (u < 0.0 || u > 1.0)
        return -1.0;
    const Vec3 q = Cross(s, ab);
    const double v = Dot(direction, q) / determinant;
    if (v < 0.0 || u + v > 1.0)
        return -1.0;
    return Dot(ac, q) / determinant;
}

Vec3 NearestOnSegment(const Vec3& p, const Vec3& a, const Vec3& b)
{
    const Vec3 ab = b - a;
    const double square = Dot(ab, ab);
    const double t = square > 0.0 ? std::clamp(Dot(p - a, ab) / square, 0.0, 1.0) : 0.0;
    return a + ab * t;
}

} // namespace

bool IsShownBy(const Section& section, const Vec3& point)
{
    if (!section.on)
        return true;
    const double above = point[section.axis] - section.at;
    return section.flipped ? above >= 0.0 : above <= 0.0;
}

std::optional<Hit> PickSurface(const PartList& parts, const Ray& ray, const Section& section)
{
    std::optional<Hit> best;
    for (const Part& part : parts) {
        if (!part.visible || !HitsBox(ray, part.Bounds()))
            continue;
        // The ray is brought to the mesh, not the mesh to the ray; its direction keeps its
        // length, so that parameters compare between parts.
        const Transform inverse = part.GetPlacement().Inverted();
        const Vec3 origin = inverse.Map(ray.origin);
        const Vec3 direction = inverse.MapDirection(ray.direction);
        const Mesh& mesh = *part.GetMesh();
        for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
            const Triangle& t = mesh.Triangles()[i];
            const double at = HitTriangle(origin, direction, mesh.Points()[t.a], mesh.Points()[t.b],
                                          mesh.Points()[t.c]);
            if (at <= 0.0 || (best && at >= best->distance))
                continue;
            const Vec3 point = ray.origin + ray.direction * at;
            if (IsShownBy(section, point))
                best = Hit{part.id, i, point, at};
        }
    }
    return best;
}

Vec3 SnapHit(const Part& part, const Hit& hit, SnapMode mode)
{
    if (mode == SnapMode::None)
        return hit.point;
    const Mesh& mesh = *part.GetMesh();
    const Triangle& t = mesh.Triangles()[hit.triangle];
    Vec3 best = hit.point;
    double nearest = std::numeric_limits<double>::max();
    for (int corner = 0; corner < 3; ++corner) {
        const Vec3 a = part.GetPlacement().Map(mesh.Points()[t[corner]]);
        const Vec3 b = part.GetPlacement().Map(mesh.Points()[t[(corner + 1) % 3]]);
        const Vec3 candidate = mode == SnapMode::Points ? a : NearestOnSegment(hit.point, a, b);
        const double distance = Length(candidate - hit.point);
        if (distance < nearest) {
            nearest = distance;
            best = candidate;
        }
    }
    return best;
}

} // namespace tarnix
