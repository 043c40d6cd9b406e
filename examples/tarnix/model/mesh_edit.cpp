#include "model/mesh_edit.h"

#include "model/mesh_repair.h"
#include "model/polygon.h"

#include <array>
#include <map>
#include <unordered_map>

namespace tarnix {
namespace {

uint64_t EdgeKey(uint32_t a, uint32_t b)
{
    return (static_cast<uint64_t>(std::min(a, b)) << 32) | std::max(a, b);
}

void Relax(std::vector<Vec3>& points, const std::vector<std::vector<uint32_t>>& neighbours,
           double factor)
{
    std::vector<Vec3> moved = points;
    for (size_t i = 0; i < points.size(); ++i) {
        if (neighbours[i].empty())
            continue;
        Vec3 sum;
        for (const uint32_t other : neighbours[i])
            sum = sum + points[other];
        moved[i] =
            points[i] + (sum / static_cast<double>(neighbours[i].size()) - points[i]) * factor;
    }
    points.swap(moved);
}

} // namespace

Mesh Subdivide(const Mesh& mesh)
{
    std::vector<Vec3> points = mesh.Points();
    std::vector<Triangle> triangles;
    triangles.reserve(mesh.Triangles().size() * 4);
    std::unordered_map<uint64_t, uint32_t> middles;
    middles.reserve(mesh.Triangles().size() * 2);
    const auto middle = [&](uint32_t a, uint32_t b) {
        const auto [it, added] =
            middles.emplace(EdgeKey(a, b), static_cast<uint32_t>(points.size()));
        if (added)
            points.push_back((points[a] + points[b]) * 0.5);
        return it->second;
    };
    for (const Triangle& t : mesh.Triangles()) {
        const uint32_t ab = middle(t.a, t.b), bc = middle(t.b, t.c), ca = middle(t.c, t.a);
        triangles.insert(triangles.end(),
                         {{t.a, ab, ca}, {ab, t.b, bc}, {ca, bc, t.c}, {ab, bc, ca}});
    }
    return Mesh(std::move(points), std::move(triangles));
}

Mesh Smooth(const Mesh& mesh)
{
    std::vector<std::vector<uint32_t>> neighbours(mesh.Points().size());
    for (const Triangle& t : mesh.Triangles()) {
        for (int corner = 0; corner < 3; ++corner)
            neighbours[t[corner]].push_back(t[(corner + 1) % 3]);
    }
    std::vector<Vec3> points = mesh.Points();
    Relax(points, neighbours, 0.5);
    Relax(points, neighbours, -0.53);
    return Mesh(std::move(points), mesh.Triangles());
}

Mesh Simplify(const Mesh& mesh, double cell)
{
    struct Cluster
    {
        Vec3 sum;
        int count = 0;
        uint32_t number = 0;
    };
    std::map<std::array<int64_t, 3>, Cluster> clusters;
    std::vector<Cluster*> of_point;
    for (const Vec3& p : mesh.Points()) {
        std::array<int64_t, 3> key;
        for (int axis = 0; axis < 3; ++axis)
            key[static_cast<size_t>(axis)] =
                static_cast<int64_t>(std::floor((p[axis] - mesh.Bounds().low[axis]) / cell + 0.5));
        Cluster& cluster = clusters[key];
        cluster.sum = cluster.sum + p;
        ++cluster.count;
        of_point.push_back(&cluster);
    }
    std::vector<Vec3> points;
    for (auto& entry : clusters) {
        entry.second.number = static_cast<uint32_t>(points.size());
        points.push_back(entry.second.sum / entry.second.count);
    }
    std::vector<Triangle> triangles;
    for (const Triangle& t : mesh.Triangles())
        triangles.push_back({of_point[t.a]->number, of_point[t.b]->number, of_point[t.c]->number});
    RepairReport report;
    const Mesh joined(std::move(points), std::move(triangles));
    return RemoveDuplicates(RemoveDegenerate(joined, report), report);
}

Vec3 BestBottom(const Mesh& mesh)
{
    struct Side
    {
        Vec3 sum;
        double area = 0.0;
    };
    // Faces of one flat side agree in their normal and in their distance from the origin.
    std::map<std::array<int64_t, 4>, Side> sides;
    const double reach = std::max(1e-9, Length(mesh.Bounds().Size()));
    for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
        const Vec3& n = mesh.Normals()[i];
        const Triangle& t = mesh.Triangles()[i];
        const Vec3& a = mesh.Points()[t.a];
        const double area = 0.5 * Length(Cross(mesh.Points()[t.b] - a, mesh.Points()[t.c] - a));
        Side& side = sides[{std::llround(n.x * 200), std::llround(n.y * 200),
                            std::llround(n.z * 200), std::llround(Dot(n, a) / reach * 500)}];
        side.sum = side.sum + n * area;
        side.area += area;
    }
    std::vector<Side> ranked;
    for (const auto& entry : sides)
        ranked.push_back(entry.second);
    std::sort(ranked.begin(), ranked.end(),
              [](const Side& x, const Side& y) { return x.area > y.area; });
    if (ranked.empty())
        return {};
    constexpr size_t k_tried = 24;
    for (size_t i = 0; i < std::min(ranked.size(), k_tried); ++i) {
        const Vec3 n = Normalized(ranked[i].sum);
        double farthest = std::numeric_limits<double>::lowest();
        double area_there = 0.0;
        for (const Vec3& p : mesh.Points())
            farthest = std::max(farthest, Dot(n, p));
        for (size_t k = 0; k < mesh.Triangles().size(); ++k) {
            const Triangle& t = mesh.Triangles()[k];
            if (Dot(mesh.Normals()[k], n) > 0.999 &&
                Dot(n, mesh.Points()[t.a]) > farthest - 1e-3 * reach)
                area_there += 0.5 * Length(Cross(mesh.Points()[t.b] - mesh.Points()[t.a],
                                                 mesh.Points()[t.c] - mesh.Points()[t.a]));
        }
        if (area_there > 0.9 * ranked[i].area)
            return n;
    }
    return Normalized(ranked.front().sum);
}

Mesh CutAt(const Mesh& mesh, double z, bool upper)
{
    // Points are wholly above or below: one at the very height counts as above, so that every
    // triangle is cut in two points or in none.
    std::vector<Vec3> points = mesh.Points();
    std::vector<Triangle> triangles;
    std::unordered_map<uint64_t, uint32_t> cuts;
    const auto above = [&](uint32_t i) { return mesh.Points()[i].z >= z; };
    const auto cut = [&](uint32_t a, uint32_t b) {
        const auto [it, added] = cuts.emplace(EdgeKey(a, b), static_cast<uint32_t>(points.size()));
        if (added) {
            const Vec3& p = mesh.Points()[std::min(a, b)];
            const Vec3& q = mesh.Points()[std::max(a, b)];
            Vec3 at = p + (q - p) * ((z - p.z) / (q.z - p.z));
            at.z = z;
            points.push_back(at);
        }
        return it->second;
    };
    for (const Triangle& t : mesh.Triangles()) {
        const int count = int(above(t.a)) + int(above(t.b)) + int(above(t.c));
        if (count == 0 || count == 3) {
            if ((count == 3) == upper)
                triangles.push_back(t);
            continue;
        }
        int lone = 0;
        while (above(t[lone]) != (count == 1))
            ++lone;
        const uint32_t a = t[lone], b = t[(lone + 1) % 3], c = t[(lone + 2) % 3];
        const uint32_t ab = cut(a, b), ac = cut(a, c);
        if (above(a) == upper) {
            triangles.push_back({a, ab, ac});
        } else {
            triangles.push_back({ab, b, c});
            triangles.push_back({ab, c, ac});
        }
    }
    if (triangles.empty())
        return Mesh();
    Mesh half(std::move(points), std::move(triangles));
    if (cuts.empty())
        return half;
    return CloseFlat(half, z, upper);
}

} // namespace tarnix
