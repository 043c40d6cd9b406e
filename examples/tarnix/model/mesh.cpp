#include "model/mesh.h"

#include "model/mesh_topology.h"

#include <QtMath>

#include <cstring>
#include <unordered_map>

namespace tarnix {
namespace {

struct PointHash
{
    size_t operator()(const Vec3& p) const
    {
        uint64_t hash = 1469598103934665603ull;
        for (int axis = 0; axis < 3; ++axis) {
            // Plus zero folds -0.0 into 0.0, which compare equal but differ in bits.
            const double value = p[axis] + 0.0;
            uint64_t bits = 0;
            std::memcpy(&bits, &value, sizeof bits);
            hash = (hash ^ bits) * 1099511628211ull;
            hash ^= hash >> 29;
        }
        return static_cast<size_t>(hash);
    }
};

} // namespace

Mesh::Mesh(std::vector<Vec3> points, std::vector<Triangle> triangles)
    : m_points(std::move(points)), m_triangles(std::move(triangles))
{
    const size_t count = m_points.size();
    m_triangles.erase(std::remove_if(m_triangles.begin(), m_triangles.end(),
                                     [count](const Triangle& t) {
                                         return t.a >= count || t.b >= count || t.c >= count;
                                     }),
                      m_triangles.end());
    m_normals.reserve(m_triangles.size());
    for (const Triangle& t : m_triangles) {
        for (int corner = 0; corner < 3; ++corner)
            m_bounds.Add(m_points[t[corner]]);
    }
    // Volumes are summed about the middle of the box: far from the origin the sum would cancel.
    const Vec3 origin = m_bounds.Center();
    Vec3 moment;
    for (const Triangle& t : m_triangles) {
        const Vec3 a = m_points[t.a] - origin;
        const Vec3 b = m_points[t.b] - origin;
        const Vec3 c = m_points[t.c] - origin;
        const Vec3 cross = Cross(b - a, c - a);
        m_normals.push_back(Normalized(cross));
        m_area += 0.5 * Length(cross);
        const double volume = Dot(a, Cross(b, c)) / 6.0;
        m_volume += volume;
        moment = moment + (a + b + c) * (volume / 4.0);
    }
    m_center = std::abs(m_volume) > 1e-9 ? origin + moment / m_volume : origin;
}

Mesh Mesh::FromCorners(const std::vector<Vec3>& corners)
{
    const size_t count = corners.size() / 3;
    std::unordered_map<Vec3, uint32_t, PointHash> index;
    index.reserve(count);
    std::vector<Vec3> points;
    points.reserve(count);
    std::vector<Triangle> triangles;
    triangles.reserve(count);
    const auto find = [&](const Vec3& p) {
        const auto [it, added] = index.emplace(p, static_cast<uint32_t>(points.size()));
        if (added)
            points.push_back(p);
        return it->second;
    };
    for (size_t i = 0; i < count; ++i) {
        const uint32_t a = find(corners[3 * i]);
        const uint32_t b = find(corners[3 * i + 1]);
        const uint32_t c = find(corners[3 * i + 2]);
        triangles.push_back({a, b, c});
    }
    return Mesh(std::move(points), std::move(triangles));
}

const Topology& Mesh::GetTopology() const
{
    if (!m_topology)
        m_topology = std::make_shared<const Topology>(ComputeTopology(*this));
    return *m_topology;
}

const std::vector<Edge>& Mesh::FeatureEdges() const
{
    if (!m_features)
        m_features = std::make_shared<const std::vector<Edge>>(ComputeFeatureEdges(*this, 25.0));
    return *m_features;
}

Mesh Mesh::Mapped(const Transform& map) const
{
    std::vector<Vec3> points;
    points.reserve(m_points.size());
    for (const Vec3& p : m_points)
        points.push_back(map.Map(p));
    std::vector<Triangle> triangles = m_triangles;
    if (map.IsMirroring()) {
        for (Triangle& t : triangles)
            std::swap(t.b, t.c);
    }
    return Mesh(std::move(points), std::move(triangles));
}

Box MappedBounds(const Mesh& mesh, const Transform& map)
{
    // Points of no triangle do not count, so the triangles are walked where there are few of them.
    Box box;
    if (mesh.IsEmpty())
        return box;
    for (const Vec3& p : mesh.Points())
        box.Add(map.Map(p));
    return box;
}

bool IsOverhang(const Vec3& world_normal, double highest_z, double degrees)
{
    constexpr double k_on_plate = 0.05;
    return -world_normal.z > std::sin(qDegreesToRadians(degrees)) + 1e-9 && highest_z > k_on_plate;
}

double OverhangArea(const Mesh& mesh, const Transform& map, double degrees)
{
    double area = 0.0;
    for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
        const Triangle& t = mesh.Triangles()[i];
        const Vec3 a = map.Map(mesh.Points()[t.a]);
        const Vec3 b = map.Map(mesh.Points()[t.b]);
        const Vec3 c = map.Map(mesh.Points()[t.c]);
        if (IsOverhang(map.MapNormal(mesh.Normals()[i]), std::max({a.z, b.z, c.z}), degrees))
            area += 0.5 * Length(Cross(b - a, c - a));
    }
    return area;
}

} // namespace tarnix
