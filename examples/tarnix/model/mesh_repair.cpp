#include "model/mesh_repair.h"

#include "model/mesh_topology.h"

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <unordered_map>

namespace tarnix {
namespace {

/// Drops points that no triangle uses.
Mesh Compact(const std::vector<Vec3>& points, const std::vector<Triangle>& triangles)
{
    std::vector<uint32_t> number(points.size(), UINT32_MAX);
    std::vector<Vec3> kept;
    std::vector<Triangle> result;
    result.reserve(triangles.size());
    const auto find = [&](uint32_t point) {
        if (number[point] == UINT32_MAX) {
            number[point] = static_cast<uint32_t>(kept.size());
            kept.push_back(points[point]);
        }
        return number[point];
    };
    for (const Triangle& t : triangles) {
        const uint32_t a = find(t.a), b = find(t.b), c = find(t.c);
        result.push_back({a, b, c});
    }
    return Mesh(std::move(kept), std::move(result));
}

Mesh KeepTriangles(const Mesh& mesh, const std::vector<bool>& keep, RepairReport& report)
{
    std::vector<Triangle> triangles;
    for (size_t i = 0; i < keep.size(); ++i) {
        if (keep[i])
            triangles.push_back(mesh.Triangles()[i]);
        else
            ++report.removed;
    }
    return triangles.size() == keep.size() ? mesh : Compact(mesh.Points(), triangles);
}

uint64_t DirectedKey(uint32_t from, uint32_t to)
{
    return (static_cast<uint64_t>(from) << 32) | to;
}

} // namespace

RepairReport& RepairReport::operator+=(const RepairReport& other)
{
    removed += other.removed;
    turned += other.turned;
    added += other.added;
    joined += other.joined;
    return *this;
}

Mesh RemoveDegenerate(const Mesh& mesh, RepairReport& report)
{
    std::vector<bool> keep;
    for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
        const Triangle& t = mesh.Triangles()[i];
        keep.push_back(t.a != t.b && t.b != t.c && t.c != t.a && mesh.Normals()[i] != Vec3{});
    }
    return KeepTriangles(mesh, keep, report);
}

Mesh RemoveDuplicates(const Mesh& mesh, RepairReport& report)
{
    std::set<std::array<uint32_t, 3>> seen;
    std::vector<bool> keep;
    for (const Triangle& t : mesh.Triangles()) {
        std::array<uint32_t, 3> key{t.a, t.b, t.c};
        std::sort(key.begin(), key.end());
        keep.push_back(seen.insert(key).second);
    }
    return KeepTriangles(mesh, keep, report);
}

Mesh JoinPoints(const Mesh& mesh, double tolerance, RepairReport& report)
{
    using Cell = std::array<int64_t, 3>;
    std::map<Cell, std::vector<uint32_t>> cells;
    std::vector<uint32_t> target(mesh.Points().size());
    int joined = 0;
    for (uint32_t i = 0; i < mesh.Points().size(); ++i) {
        const Vec3& p = mesh.Points()[i];
        Cell cell;
        for (int axis = 0; axis < 3; ++axis)
            cell[static_cast<size_t>(axis)] = static_cast<int64_t>(std::floor(p[axis] / tolerance));
        target[i] = i;
        for (int n = 0; n < 27 && target[i] == i; ++n) {
            const auto near =
                cells.find({cell[0] + n % 3 - 1, cell[1] + n / 3 % 3 - 1, cell[2] + n / 9 - 1});
            if (near == cells.end())
                continue;
            for (const uint32_t other : near->second) {
                if (Length(mesh.Points()[other] - p) <= tolerance) {
                    target[i] = other;
                    ++joined;
                    break;
                }
            }
        }
        if (target[i] == i)
            cells[cell].push_back(i);
    }
    if (joined == 0)
        return mesh;
    report.joined += joined;
    std::vector<Triangle> triangles;
    for (const Triangle& t : mesh.Triangles())
        triangles.push_back({target[t.a], target[t.b], target[t.c]});
    return Compact(mesh.Points(), triangles);
}

Mesh OrientNormals(const Mesh& mesh, RepairReport& report)
{
    std::vector<Triangle> triangles = mesh.Triangles();
    const size_t count = triangles.size();
    std::unordered_map<uint64_t, std::vector<uint32_t>> by_edge;
    by_edge.reserve(count * 2);
    const auto edge_key = [](uint32_t a, uint32_t b) {
        return DirectedKey(std::min(a, b), std::max(a, b));
    };
    for (uint32_t i = 0; i < count; ++i) {
        for (int corner = 0; corner < 3; ++corner)
            by_edge[edge_key(triangles[i][corner], triangles[i][(corner + 1) % 3])].push_back(i);
    }
    const auto runs = [&](uint32_t i, uint32_t a, uint32_t b) {
        const Triangle& t = triangles[i];
        return (t.a == a && t.b == b) || (t.b == a && t.c == b) || (t.c == a && t.a == b);
    };
    std::vector<bool> seen(count, false);
    std::vector<bool> turned(count, false);
    const auto turn = [&](uint32_t i) {
        std::swap(triangles[i].b, triangles[i].c);
        turned[i] = !turned[i];
    };
    for (uint32_t start = 0; start < count; ++start) {
        if (seen[start])
            continue;
        std::vector<uint32_t> shell{start};
        seen[start] = true;
        for (size_t at = 0; at < shell.size(); ++at) {
            const Triangle t = triangles[shell[at]];
            for (int corner = 0; corner < 3; ++corner) {
                const uint32_t a = t[corner];
                const uint32_t b = t[(corner + 1) % 3];
                const std::vector<uint32_t>& faces = by_edge[edge_key(a, b)];
                // Where more than two faces meet, there is no telling which is the neighbour.
                if (faces.size() != 2)
                    continue;
                const uint32_t other = faces[0] == shell[at] ? faces[1] : faces[0];
                if (seen[other])
                    continue;
                seen[other] = true;
                if (runs(other, a, b))
                    turn(other);
                shell.push_back(other);
            }
        }
        double volume = 0.0;
        const Vec3 origin = mesh.Bounds().Center();
        for (const uint32_t i : shell) {
            const Triangle& t = triangles[i];
            volume += Dot(mesh.Points()[t.a] - origin,
                          Cross(mesh.Points()[t.b] - origin, mesh.Points()[t.c] - origin));
        }
        if (volume < 0.0) {
            for (const uint32_t i : shell)
                turn(i);
        }
    }
    const auto changes = static_cast<int>(std::count(turned.begin(), turned.end(), true));
    if (changes == 0)
        return mesh;
    report.turned += changes;
    return Mesh(mesh.Points(), std::move(triangles));
}

Mesh FlipNormals(const Mesh& mesh)
{
    std::vector<Triangle> triangles = mesh.Triangles();
    for (Triangle& t : triangles)
        std::swap(t.b, t.c);
    return Mesh(mesh.Points(), std::move(triangles));
}

Mesh CloseHoles(const Mesh& mesh, RepairReport& report)
{
    std::vector<Vec3> points = mesh.Points();
    std::vector<Triangle> triangles = mesh.Triangles();
    const auto starts_again = [&mesh](const std::vector<uint32_t>& loop) {
        for (const Edge& edge : mesh.GetTopology().open) {
            if (edge.from == loop.back() && edge.to == loop.front())
                return true;
        }
        return false;
    };
    for (const std::vector<uint32_t>& loop : OpenLoops(mesh)) {
        if (loop.size() < 3 || !starts_again(loop))
            continue;
        if (loop.size() == 3) {
            triangles.push_back({loop[0], loop[2], loop[1]});
            ++report.added;
            continue;
        }
        Vec3 middle;
        for (const uint32_t i : loop)
            middle = middle + points[i];
        const auto center = static_cast<uint32_t>(points.size());
        points.push_back(middle / static_cast<double>(loop.size()));
        for (size_t i = 0; i < loop.size(); ++i) {
            triangles.push_back({loop[(i + 1) % loop.size()], loop[i], center});
            ++report.added;
        }
    }
    if (triangles.size() == mesh.Triangles().size())
        return mesh;
    return Mesh(std::move(points), std::move(triangles));
}

Mesh RepairAll(const Mesh& mesh, RepairReport& report)
{
    const Vec3 size = mesh.Bounds().Size();
    const double tolerance = std::max(1e-6, 1e-6 * std::max({size.x, size.y, size.z}));
    Mesh result = JoinPoints(mesh, tolerance, report);
    result = RemoveDegenerate(result, report);
    result = RemoveDuplicates(result, report);
    result = OrientNormals(result, report);
    result = CloseHoles(result, report);
    // A shell that was open has its volume only now.
    return OrientNormals(result, report);
}

std::vector<Mesh> SplitShells(const Mesh& mesh)
{
    const Topology& topology = mesh.GetTopology();
    std::vector<std::vector<Triangle>> shells(static_cast<size_t>(topology.shells));
    for (size_t i = 0; i < mesh.Triangles().size(); ++i)
        shells[static_cast<size_t>(topology.shell_of_triangle[i])].push_back(mesh.Triangles()[i]);
    std::vector<Mesh> result;
    for (const std::vector<Triangle>& shell : shells)
        result.push_back(Compact(mesh.Points(), shell));
    std::stable_sort(result.begin(), result.end(),
                     [](const Mesh& a, const Mesh& b) { return a.Area() > b.Area(); });
    return result;
}

Mesh Merge(const std::vector<Mesh>& meshes)
{
    std::vector<Vec3> points;
    std::vector<Triangle> triangles;
    for (const Mesh& mesh : meshes) {
        const auto first = static_cast<uint32_t>(points.size());
        points.insert(points.end(), mesh.Points().begin(), mesh.Points().end());
        for (const Triangle& t : mesh.Triangles())
            triangles.push_back({t.a + first, t.b + first, t.c + first});
    }
    return Mesh(std::move(points), std::move(triangles));
}

} // namespace tarnix
