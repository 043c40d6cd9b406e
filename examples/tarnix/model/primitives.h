#pragma once

#include "model/mesh.h"

namespace tarnix {

/// Simple solids that stand on the plate, centred on the origin; lengths in millimetres.
Mesh MakeBox(const Vec3& size);
Mesh MakeCylinder(double radius, double height, int sides = 64);
Mesh MakeCone(double bottom_radius, double top_radius, double height, int sides = 64);
Mesh MakeSphere(double radius, int rings = 32);
/// A ring that lies flat: `radius` to the middle of the tube.
Mesh MakeTorus(double radius, double tube_radius, int sides = 64);
/// A prism over a regular polygon: 3 for a wedge, 6 for a nut blank.
Mesh MakePrism(double radius, double height, int corners);

} // namespace tarnix
