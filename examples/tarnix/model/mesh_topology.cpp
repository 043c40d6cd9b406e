#include "model/mesh_topology.h"

#include <QtMath>

#include <array>
#include <numeric>
#include <unordered_map>

namespace tarnix {
namespace {

/// One side of a triangle, sorted by its edge so that the sides of an edge lie together.
struct Side
{
    uint64_t key;
    uint32_t triangle;
    bool forward;
};

uint64_t KeyOf(uint32_t a, uint32_t b)
{
    return (static_cast<uint64_t>(std::min(a, b)) << 32) | std::max(a, b);
}

std::vector<Side> SortedSides(const Mesh& mesh)
{
    std::vector<Side> sides;
    sides.reserve(mesh.Triangles().size() * 3);
    for (uint32_t i = 0; i < mesh.Triangles().size(); ++i) {
        const Triangle& t = mesh.Triangles()[i];
        for (int corner = 0; corner < 3; ++corner) {
            const uint32_t a = t[corner];
            const uint32_t b = t[(corner + 1) % 3];
            if (a != b)
                sides.push_back({KeyOf(a, b), i, a < b});
        }
    }
    std::sort(sides.begin(), sides.end(), [](const Side& x, const Side& y) {
        return x.key != y.key ? x.key < y.key : x.triangle < y.triangle;
    });
    return sides;
}

/// Calls `visit(first, last)` with the sides of each edge.
template <class Visit> void ForEachEdge(const std::vector<Side>& sides, Visit visit)
{
    for (size_t i = 0; i < sides.size();) {
        size_t end = i + 1;
        while (end < sides.size() && sides[end].key == sides[i].key)
            ++end;
        visit(i, end);
        i = end;
    }
}

Edge DirectedEdge(const Side& side)
{
    const auto low = static_cast<uint32_t>(side.key >> 32);
    const auto high = static_cast<uint32_t>(side.key & 0xffffffffu);
    return side.forward ? Edge{low, high} : Edge{high, low};
}

class DisjointSets
{
public:
    explicit DisjointSets(size_t count) : m_parent(count)
    {
        std::iota(m_parent.begin(), m_parent.end(), 0u);
    }
    uint32_t Find(uint32_t i)
    {
        while (m_parent[i] != i) {
            m_parent[i] = m_parent[m_parent[i]];
            i = m_parent[i];
        }
        return i;
    }
    void Join(uint32_t a, uint32_t b) { m_parent[Find(a)] = Find(b); }

private:
    std::vector<uint32_t> m_parent;
};

int CountDuplicates(const Mesh& mesh)
{
    std::vector<std::array<uint32_t, 3>> keys;
    keys.reserve(mesh.Triangles().size());
    for (const Triangle& t : mesh.Triangles()) {
        std::array<uint32_t, 3> key{t.a, t.b, t.c};
        std::sort(key.begin(), key.end());
        keys.push_back(key);
    }
    std::sort(keys.begin(), keys.end());
    int count = 0;
    for (size_t i = 1; i < keys.size(); ++i)
        count += keys[i] == keys[i - 1] ? 1 : 0;
    return count;
}

} // namespace

Topology ComputeTopology(const Mesh& mesh)
{
    Topology result;
    const std::vector<Side> sides = SortedSides(mesh);
    DisjointSets sets(mesh.Triangles().size());
    ForEachEdge(sides, [&](size_t first, size_t last) {
        for (size_t i = first + 1; i < last; ++i)
            sets.Join(sides[i].triangle, sides[first].triangle);
        const size_t count = last - first;
        if (count == 1) {
            ++result.open_edges;
            result.open.push_back(DirectedEdge(sides[first]));
        } else if (count > 2) {
            ++result.crowded_edges;
        } else if (sides[first].forward == sides[first + 1].forward) {
            ++result.reversed_edges;
        }
    });
    std::unordered_map<uint32_t, int> numbers;
    result.shell_of_triangle.reserve(mesh.Triangles().size());
    for (uint32_t i = 0; i < mesh.Triangles().size(); ++i) {
        const auto [it, added] = numbers.emplace(sets.Find(i), result.shells);
        if (added)
            ++result.shells;
        result.shell_of_triangle.push_back(it->second);
        if (mesh.Normals()[i] == Vec3{})
            ++result.degenerate;
    }
    result.duplicates = CountDuplicates(mesh);
    return result;
}

std::vector<Edge> ComputeFeatureEdges(const Mesh& mesh, double degrees)
{
    const double limit = std::cos(qDegreesToRadians(degrees));
    std::vector<Edge> edges;
    const std::vector<Side> sides = SortedSides(mesh);
    ForEachEdge(sides, [&](size_t first, size_t last) {
        const bool smooth =
            last - first == 2 && Dot(mesh.Normals()[sides[first].triangle],
                                     mesh.Normals()[sides[first + 1].triangle]) > limit;
        if (!smooth)
            edges.push_back(DirectedEdge(sides[first]));
    });
    return edges;
}

std::vector<std::vector<uint32_t>> OpenLoops(const Mesh& mesh)
{
    const std::vector<Edge>& open = mesh.GetTopology().open;
    std::unordered_multimap<uint32_t, size_t> by_start;
    for (size_t i = 0; i < open.size(); ++i)
        by_start.emplace(open[i].from, i);
    std::vector<bool> used(open.size(), false);
    const auto take_next = [&](uint32_t point, size_t& found) {
        const auto range = by_start.equal_range(point);
        for (auto it = range.first; it != range.second; ++it) {
            if (!used[it->second]) {
                found = it->second;
                return true;
            }
        }
        return false;
    };
    std::vector<std::vector<uint32_t>> loops;
    for (size_t i = 0; i < open.size(); ++i) {
        if (used[i])
            continue;
        std::vector<uint32_t> loop{open[i].from};
        size_t edge = i;
        for (;;) {
            used[edge] = true;
            const uint32_t end = open[edge].to;
            if (end == loop.front())
                break;
            loop.push_back(end);
            if (!take_next(end, edge))
                break;
        }
        loops.push_back(std::move(loop));
    }
    return loops;
}

} // namespace tarnix
