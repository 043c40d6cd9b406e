#pragma once

#include "model/mesh.h"
#include "model/polygon.h"

namespace tarnix {

/// The outline of a solid at one height, in plate coordinates.
struct Slice
{
    double z = 0.0;
    std::vector<Polygon> contours;         ///< closed; outlines counter-clockwise, holes clockwise
    std::vector<std::vector<Point2>> gaps; ///< lines that do not close: the solid is open there

    bool IsEmpty() const { return contours.empty() && gaps.empty(); }
    /// Square millimetres of material.
    double Area() const;
    /// Millimetres of all contours together.
    double ContourLength() const;
};

/// Cuts a placed mesh at a height above the plate.
Slice SliceMesh(const Mesh& mesh, const Transform& placement, double z);

struct Segment2
{
    Point2 from;
    Point2 to;
};

/// Parallel lines that fill a slice: `spacing` millimetres apart, at `degrees` from the x axis.
/// The pattern has its origin at the plate's, so that layers lie in register.
std::vector<Segment2> Hatch(const Slice& slice, double spacing, double degrees);

/// The layers of a height: heights are cut in the middle of each layer.
class LayerStack
{
public:
    LayerStack() = default;
    /// `height` and `thickness` in millimetres; a thickness of 0 or less gives no layers.
    LayerStack(double height, double thickness);

    int Count() const { return m_count; }
    double Thickness() const { return m_thickness; }
    /// The height at which layer 0 ... Count()-1 is cut.
    double HeightOf(int layer) const { return (layer + 0.5) * m_thickness; }
    /// The layer that holds a height, within range; -1 when there are no layers.
    int LayerAt(double z) const;

private:
    double m_thickness = 0.0;
    int m_count = 0;
};

} // namespace tarnix
