#pragma once

#include "model/mesh.h"

namespace tarnix {

/// Cuts each triangle into four at the middles of its edges; the shape stays.
Mesh Subdivide(const Mesh& mesh);
/// Smooths by one round of alternating inward and outward relaxation, which keeps the size.
Mesh Smooth(const Mesh& mesh);
/// Joins points that share a cell of `cell` millimetres, and drops what falls flat.
Mesh Simplify(const Mesh& mesh, double cell);

/// A direction in mesh space to be turned down so that the part stands well: the outward
/// normal of the largest flat side on which the part can rest, or of the largest flat side at
/// all. Zero for an empty mesh.
Vec3 BestBottom(const Mesh& mesh);

/// The part of the mesh below (`upper` false) or above a level height in its own coordinates,
/// with the cut closed. Empty when nothing lies on that side.
Mesh CutAt(const Mesh& mesh, double z, bool upper);

} // namespace tarnix
