#include "model/polygon.h"

#include "model/mesh_topology.h"

#include <numeric>

namespace tarnix {
namespace {

/// A corner of a ring under work: its place and the number of its point in the result.
struct Corner
{
    Point2 at;
    uint32_t number;
};

using Ring = std::vector<Corner>;

double Turn(const Point2& a, const Point2& b, const Point2& c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool Same(const Point2& a, const Point2& b)
{
    return a.x == b.x && a.y == b.y;
}

bool InTriangle(const Point2& p, const Point2& a, const Point2& b, const Point2& c)
{
    return Turn(a, b, p) >= 0.0 && Turn(b, c, p) >= 0.0 && Turn(c, a, p) >= 0.0;
}

/// Joins a hole to the ring about it: a ray to the right from the hole's rightmost corner meets
/// an edge; the bridge goes to that edge's end, or to a corner that stands in between.
void Bridge(Ring& ring, const Ring& hole)
{
    const auto rightmost = std::max_element(
        hole.begin(), hole.end(), [](const Corner& a, const Corner& b) { return a.at.x < b.at.x; });
    const Point2 from = rightmost->at;
    double nearest = std::numeric_limits<double>::max();
    size_t target = ring.size();
    for (size_t i = 0; i < ring.size(); ++i) {
        const Point2& a = ring[i].at;
        const Point2& b = ring[(i + 1) % ring.size()].at;
        if (!(a.y <= from.y && b.y > from.y) && !(b.y <= from.y && a.y > from.y))
            continue;
        const double x = a.x + (from.y - a.y) / (b.y - a.y) * (b.x - a.x);
        if (x < from.x || x >= nearest)
            continue;
        nearest = x;
        target = a.x > b.x ? i : (i + 1) % ring.size();
    }
    if (target == ring.size())
        return;
    const Point2 hit{nearest, from.y};
    const Point2 end = ring[target].at;
    double best_slope = std::numeric_limits<double>::max();
    for (size_t i = 0; i < ring.size(); ++i) {
        const Point2& p = ring[i].at;
        if (p.x < from.x || Same(p, end))
            continue;
        const bool inside =
            end.y > from.y ? InTriangle(p, from, hit, end) : InTriangle(p, from, end, hit);
        if (!inside)
            continue;
        const double slope = std::abs(p.y - from.y) / std::max(1e-12, p.x - from.x);
        if (slope < best_slope) {
            best_slope = slope;
            target = i;
        }
    }
    Ring joined(ring.begin(), ring.begin() + static_cast<std::ptrdiff_t>(target) + 1);
    joined.insert(joined.end(), rightmost, hole.end());
    joined.insert(joined.end(), hole.begin(), rightmost + 1);
    joined.insert(joined.end(), ring.begin() + static_cast<std::ptrdiff_t>(target), ring.end());
    ring = std::move(joined);
}

void CutEars(Ring ring, std::vector<Triangle>& triangles)
{
    std::vector<size_t> next(ring.size());
    std::vector<size_t> previous(ring.size());
    for (size_t i = 0; i < ring.size(); ++i) {
        next[i] = (i + 1) % ring.size();
        previous[i] = (i + ring.size() - 1) % ring.size();
    }
    size_t left = ring.size();
    size_t at = 0;
    size_t tried = 0;
    const auto is_ear = [&](size_t i) {
        const Point2& a = ring[previous[i]].at;
        const Point2& b = ring[i].at;
        const Point2& c = ring[next[i]].at;
        if (Turn(a, b, c) <= 0.0)
            return false;
        for (size_t k = next[next[i]]; k != previous[i]; k = next[k]) {
            const Point2& p = ring[k].at;
            // A bridge doubles corners: a twin of the ear's own corner is no obstacle.
            if (Same(p, a) || Same(p, b) || Same(p, c))
                continue;
            if (InTriangle(p, a, b, c))
                return false;
        }
        return true;
    };
    while (left >= 3) {
        // When no ear is left the polygon crosses itself; cutting on keeps the cover closed.
        if (tried < left && !is_ear(at)) {
            at = next[at];
            ++tried;
            continue;
        }
        triangles.push_back({ring[previous[at]].number, ring[at].number, ring[next[at]].number});
        next[previous[at]] = next[at];
        previous[next[at]] = previous[at];
        at = next[next[at]];
        --left;
        tried = 0;
    }
}

} // namespace

double SignedArea(const Polygon& polygon)
{
    double sum = 0.0;
    for (size_t i = 0; i < polygon.size(); ++i) {
        const Point2& a = polygon[i];
        const Point2& b = polygon[(i + 1) % polygon.size()];
        sum += a.x * b.y - b.x * a.y;
    }
    return sum * 0.5;
}

double Perimeter(const Polygon& polygon)
{
    double sum = 0.0;
    for (size_t i = 0; i < polygon.size(); ++i) {
        const Point2& a = polygon[i];
        const Point2& b = polygon[(i + 1) % polygon.size()];
        sum += std::hypot(b.x - a.x, b.y - a.y);
    }
    return sum;
}

bool Contains(const Polygon& polygon, const Point2& point)
{
    bool inside = false;
    for (size_t i = 0, k = polygon.size() - 1; i < polygon.size(); k = i++) {
        const Point2& a = polygon[i];
        const Point2& b = polygon[k];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

std::vector<Triangle> Triangulate(const std::vector<Polygon>& polygons)
{
    struct Shape
    {
        Ring ring;
        const Polygon* polygon;
        double area;
        std::vector<Ring> holes;
    };
    std::vector<Shape> shapes;
    std::vector<std::pair<Ring, double>> holes;
    uint32_t number = 0;
    for (const Polygon& polygon : polygons) {
        Ring ring;
        for (const Point2& p : polygon)
            ring.push_back({p, number++});
        const double area = SignedArea(polygon);
        if (ring.size() < 3 || area == 0.0)
            continue;
        if (area > 0.0)
            shapes.push_back({std::move(ring), &polygon, area, {}});
        else
            holes.emplace_back(std::move(ring), area);
    }
    for (auto& [ring, area] : holes) {
        Shape* owner = nullptr;
        for (Shape& shape : shapes) {
            if (Contains(*shape.polygon, ring.front().at) && (!owner || shape.area < owner->area))
                owner = &shape;
        }
        if (owner)
            owner->holes.push_back(std::move(ring));
    }
    std::vector<Triangle> triangles;
    for (Shape& shape : shapes) {
        const auto right_end = [](const Ring& ring) {
            double x = std::numeric_limits<double>::lowest();
            for (const Corner& corner : ring)
                x = std::max(x, corner.at.x);
            return x;
        };
        std::sort(shape.holes.begin(), shape.holes.end(),
                  [&](const Ring& a, const Ring& b) { return right_end(a) > right_end(b); });
        for (const Ring& hole : shape.holes)
            Bridge(shape.ring, hole);
        CutEars(std::move(shape.ring), triangles);
    }
    return triangles;
}

Mesh CloseFlat(const Mesh& half, double z, bool upper)
{
    std::vector<Polygon> polygons;
    std::vector<uint32_t> numbers;
    for (std::vector<uint32_t> loop : OpenLoops(half)) {
        const bool at_height = std::all_of(loop.begin(), loop.end(),
                                           [&](uint32_t i) { return half.Points()[i].z == z; });
        if (!at_height || loop.size() < 3)
            continue;
        // Open edges run with their triangles: the cover runs against them. Seen from above the
        // outlines of the cover of a lower half must be counter-clockwise.
        if (!upper)
            std::reverse(loop.begin(), loop.end());
        Polygon polygon;
        for (const uint32_t i : loop) {
            polygon.push_back({half.Points()[i].x, half.Points()[i].y});
            numbers.push_back(i);
        }
        polygons.push_back(std::move(polygon));
    }
    std::vector<Triangle> triangles = half.Triangles();
    for (const Triangle& t : Triangulate(polygons)) {
        const Triangle cover{numbers[t.a], numbers[t.b], numbers[t.c]};
        triangles.push_back(upper ? Triangle{cover.a, cover.c, cover.b} : cover);
    }
    return Mesh(half.Points(), std::move(triangles));
}

} // namespace tarnix
