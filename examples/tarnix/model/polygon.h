#pragma once

#include "model/mesh.h"

namespace tarnix {

struct Point2
{
    double x = 0.0;
    double y = 0.0;
};

/// A closed line without a repeated last point. Counter-clockwise ones are outlines, clockwise
/// ones holes.
using Polygon = std::vector<Point2>;

/// Positive for a counter-clockwise polygon.
double SignedArea(const Polygon& polygon);
double Perimeter(const Polygon& polygon);
/// By the even-odd rule; points on the line may count either way.
bool Contains(const Polygon& polygon, const Point2& point);

/// Triangles that fill outlines less their holes, as indices into the concatenated points of
/// the polygons. Ears are cut off one by one; holes are joined to their outline by a bridge.
std::vector<Triangle> Triangulate(const std::vector<Polygon>& polygons);

/// Closes the open loops of a half that lie at the height `z`; the cover looks down under an
/// upper half and up over a lower one.
Mesh CloseFlat(const Mesh& half, double z, bool upper);

} // namespace tarnix
