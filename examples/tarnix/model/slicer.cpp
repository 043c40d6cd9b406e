#include "model/slicer.h"

#include <QtMath>

#include <unordered_map>

namespace tarnix {
namespace {

uint64_t EdgeKey(uint32_t a, uint32_t b)
{
    return (static_cast<uint64_t>(std::min(a, b)) << 32) | std::max(a, b);
}

/// A piece of contour across one triangle, between two edges of the mesh.
struct Piece
{
    uint64_t from;
    uint64_t to;
    bool used = false;
};

} // namespace

double Slice::Area() const
{
    double sum = 0.0;
    for (const Polygon& contour : contours)
        sum += SignedArea(contour);
    return std::abs(sum);
}

double Slice::ContourLength() const
{
    double sum = 0.0;
    for (const Polygon& contour : contours)
        sum += Perimeter(contour);
    return sum;
}

Slice SliceMesh(const Mesh& mesh, const Transform& placement, double z)
{
    Slice slice;
    slice.z = z;
    std::vector<Vec3> points;
    points.reserve(mesh.Points().size());
    for (const Vec3& p : mesh.Points())
        points.push_back(placement.Map(p));
    const bool mirrored = placement.IsMirroring();

    // A point at the very height counts as above: every triangle is then crossed at two edges
    // or at none, and contours close wherever the solid does.
    std::unordered_map<uint64_t, Point2> crossings;
    std::vector<Piece> pieces;
    const auto cross = [&](uint32_t a, uint32_t b) {
        const uint64_t key = EdgeKey(a, b);
        if (crossings.find(key) == crossings.end()) {
            const Vec3& p = points[std::min(a, b)];
            const Vec3& q = points[std::max(a, b)];
            const double t = (z - p.z) / (q.z - p.z);
            crossings.emplace(key, Point2{p.x + (q.x - p.x) * t, p.y + (q.y - p.y) * t});
        }
        return key;
    };
    for (const Triangle& t : mesh.Triangles()) {
        const bool above[3] = {points[t.a].z >= z, points[t.b].z >= z, points[t.c].z >= z};
        const int count = int(above[0]) + int(above[1]) + int(above[2]);
        if (count == 0 || count == 3)
            continue;
        int lone = 0;
        while (above[lone] != (count == 1))
            ++lone;
        const uint32_t a = t[lone], b = t[(lone + 1) % 3], c = t[(lone + 2) % 3];
        // Material to the left: down the side that the outside normal looks at from the right.
        const bool forward = above[lone] != mirrored;
        const uint64_t ab = cross(a, b), ca = cross(c, a);
        pieces.push_back(forward ? Piece{ab, ca} : Piece{ca, ab});
    }

    std::unordered_multimap<uint64_t, size_t> by_start;
    std::unordered_multimap<uint64_t, size_t> by_end;
    for (size_t i = 0; i < pieces.size(); ++i) {
        by_start.emplace(pieces[i].from, i);
        by_end.emplace(pieces[i].to, i);
    }
    const auto unused = [&pieces](const std::unordered_multimap<uint64_t, size_t>& map,
                                  uint64_t key) {
        const auto range = map.equal_range(key);
        for (auto it = range.first; it != range.second; ++it) {
            if (!pieces[it->second].used)
                return &pieces[it->second];
        }
        return static_cast<Piece*>(nullptr);
    };
    for (Piece& start : pieces) {
        if (start.used)
            continue;
        start.used = true;
        std::vector<uint64_t> chain{start.from, start.to};
        bool closed = false;
        while (!closed) {
            Piece* next = unused(by_start, chain.back());
            if (!next)
                break;
            next->used = true;
            closed = next->to == chain.front();
            if (!closed)
                chain.push_back(next->to);
        }
        // An open line may have been entered in its middle: follow it back as well.
        while (!closed) {
            Piece* before = unused(by_end, chain.front());
            if (!before)
                break;
            before->used = true;
            chain.insert(chain.begin(), before->from);
        }
        std::vector<Point2> line;
        for (const uint64_t key : chain) {
            const Point2& p = crossings[key];
            if (line.empty() || line.back().x != p.x || line.back().y != p.y)
                line.push_back(p);
        }
        while (closed && line.size() > 1 && line.front().x == line.back().x &&
               line.front().y == line.back().y)
            line.pop_back();
        if (closed && line.size() >= 3)
            slice.contours.push_back(std::move(line));
        else if (!closed)
            slice.gaps.push_back(std::move(line));
    }
    return slice;
}

std::vector<Segment2> Hatch(const Slice& slice, double spacing, double degrees)
{
    std::vector<Segment2> lines;
    if (spacing <= 0.0)
        return lines;
    const double c = std::cos(qDegreesToRadians(degrees));
    const double s = std::sin(qDegreesToRadians(degrees));
    // In the turned frame the lines are level: u runs along them, v across.
    const auto turned = [c, s](const Point2& p) {
        return Point2{p.x * c + p.y * s, p.y * c - p.x * s};
    };
    const auto back = [c, s](double u, double v) { return Point2{u * c - v * s, u * s + v * c}; };
    std::unordered_map<int64_t, std::vector<double>> rows;
    for (const Polygon& contour : slice.contours) {
        for (size_t i = 0; i < contour.size(); ++i) {
            Point2 a = turned(contour[i]);
            Point2 b = turned(contour[(i + 1) % contour.size()]);
            if (a.y > b.y)
                std::swap(a, b);
            // Half-open at the top, so that a corner on a line counts once.
            for (auto row = static_cast<int64_t>(std::ceil(a.y / spacing)); row * spacing < b.y;
                 ++row)
                rows[row].push_back(a.x + (row * spacing - a.y) / (b.y - a.y) * (b.x - a.x));
        }
    }
    std::vector<int64_t> order;
    for (const auto& entry : rows)
        order.push_back(entry.first);
    std::sort(order.begin(), order.end());
    for (const int64_t row : order) {
        std::vector<double>& hits = rows[row];
        std::sort(hits.begin(), hits.end());
        for (size_t i = 0; i + 1 < hits.size(); i += 2) {
            if (hits[i + 1] > hits[i])
                lines.push_back({back(hits[i], row * spacing), back(hits[i + 1], row * spacing)});
        }
    }
    return lines;
}

LayerStack::LayerStack(double height, double thickness)
{
    if (!(thickness > 0.0) || !(height > 0.0))
        return;
    constexpr double k_most = 1.0e6;
    m_thickness = thickness;
    // A rest of less than a thousandth of a layer comes from rounding, not from the part.
    m_count =
        static_cast<int>(std::min(k_most, std::max(1.0, std::ceil(height / thickness - 1e-3))));
}

int LayerStack::LayerAt(double z) const
{
    if (m_count == 0)
        return -1;
    return static_cast<int>(std::clamp(std::floor(z / m_thickness), 0.0, m_count - 1.0));
}

} // namespace tarnix
