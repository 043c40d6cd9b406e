#pragma once

#include "model/transform.h"
#include "model/vec3.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tarnix {

/// Three indices of points, counter-clockwise seen from outside.
struct Triangle
{
    uint32_t a = 0;
    uint32_t b = 0;
    uint32_t c = 0;

    uint32_t operator[](int corner) const { return corner == 0 ? a : corner == 1 ? b : c; }
};

inline bool operator==(const Triangle& x, const Triangle& y)
{
    return x.a == y.a && x.b == y.b && x.c == y.c;
}

/// An edge as a pair of point indices, the lower first where direction does not matter.
struct Edge
{
    uint32_t from = 0;
    uint32_t to = 0;
};

inline bool operator==(const Edge& x, const Edge& y)
{
    return x.from == y.from && x.to == y.to;
}

/// What a mesh's neighbourhoods look like; a part can be built when IsSolid().
struct Topology
{
    int shells = 0;                     ///< connected pieces
    int open_edges = 0;                 ///< edges of one triangle only
    int crowded_edges = 0;              ///< edges of more than two triangles
    int reversed_edges = 0;             ///< edges whose two triangles disagree about the outside
    int degenerate = 0;                 ///< triangles of no area
    int duplicates = 0;                 ///< triangles that are there twice
    std::vector<int> shell_of_triangle; ///< 0 ... shells-1 for each triangle
    std::vector<Edge> open;             ///< the open edges, in the direction of their triangle

    bool IsSolid() const { return open_edges == 0 && crowded_edges == 0 && reversed_edges == 0; }
};

/// Triangles over shared points. A mesh never changes: an edit makes a new one, so that parts,
/// copies and undo steps share it by pointer.
class Mesh
{
public:
    Mesh() = default;
    /// Indices out of range are a fault of the caller and make the triangle be left out.
    Mesh(std::vector<Vec3> points, std::vector<Triangle> triangles);

    /// Three corners a triangle, with equal corners joined; a rest of one or two is dropped.
    static Mesh FromCorners(const std::vector<Vec3>& corners);

    const std::vector<Vec3>& Points() const { return m_points; }
    const std::vector<Triangle>& Triangles() const { return m_triangles; }
    /// Unit normals of the triangles; zero for one of no area.
    const std::vector<Vec3>& Normals() const { return m_normals; }
    bool IsEmpty() const { return m_triangles.empty(); }

    const Box& Bounds() const { return m_bounds; }
    /// The surface in square millimetres.
    double Area() const { return m_area; }
    /// The volume in cubic millimetres; negative when the mesh is inside out.
    double Volume() const { return m_volume; }
    /// The middle of the volume, or of the box when there is no volume.
    Vec3 CenterOfMass() const { return m_center; }

    /// Computed at the first call. Not for use from several threads.
    const Topology& GetTopology() const;
    /// Edges where the surface bends by more than 25 degrees, and open ones: what a drawing
    /// shows of the part. Computed at the first call.
    const std::vector<Edge>& FeatureEdges() const;

    /// The mesh with every point mapped; triangles are turned where the map mirrors.
    Mesh Mapped(const Transform& map) const;

private:
    std::vector<Vec3> m_points;
    std::vector<Triangle> m_triangles;
    std::vector<Vec3> m_normals;
    Box m_bounds;
    double m_area = 0.0;
    double m_volume = 0.0;
    Vec3 m_center;
    mutable std::shared_ptr<const Topology> m_topology;
    mutable std::shared_ptr<const std::vector<Edge>> m_features;
};

using MeshPtr = std::shared_ptr<const Mesh>;

/// The box of the points after a map, without making the mapped mesh.
Box MappedBounds(const Mesh& mesh, const Transform& map);

/// A triangle of the mesh taken as an overhang: it looks down more steeply than `degrees` from
/// the vertical (0 ... 90) after the map, and does not lie on the plate.
bool IsOverhang(const Vec3& world_normal, double highest_z, double degrees);

/// The surface in square millimetres that hangs over, after the map.
double OverhangArea(const Mesh& mesh, const Transform& map, double degrees);

} // namespace tarnix
