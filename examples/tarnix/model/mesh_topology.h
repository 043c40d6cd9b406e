#pragma once

#include "model/mesh.h"

namespace tarnix {

/// Finds shells and faulty edges by one pass over the edges.
Topology ComputeTopology(const Mesh& mesh);

/// Edges whose two faces bend by more than `degrees`, and edges without two faces.
std::vector<Edge> ComputeFeatureEdges(const Mesh& mesh, double degrees);

/// The open edges joined to chains of point indices, each in the direction of its triangles.
/// A chain that comes back to its start does not repeat the first point.
std::vector<std::vector<uint32_t>> OpenLoops(const Mesh& mesh);

} // namespace tarnix
