#pragma once

#include "model/scene.h"

namespace tarnix {

/// Where parts stand against each other: 0 for x, 1 for y, 2 for z.
enum class AlignTo
{
    Low,
    Middle,
    High
};

/// Shifts that place the footprints of the boxes in rows on the plate, `gap` millimetres apart,
/// largest first, the whole centred. Boxes that find no room keep a shift that puts them beside
/// the plate. One shift for each box, in their order.
std::vector<Vec3> ArrangeOnPlate(const std::vector<Box>& boxes, const Plate& plate, double gap);

/// Shift that brings `box` in line with `target` along an axis.
Vec3 AlignShift(const Box& box, const Box& target, int axis, AlignTo where);

/// Shifts along an axis that make the spaces between the boxes equal; the outermost stay.
std::vector<Vec3> Distribute(const std::vector<Box>& boxes, int axis);

/// Shift that puts the box on the plate (lowest point at height 0).
Vec3 DropShift(const Box& box);

bool IsInside(const Box& box, const Plate& plate);

/// Pairs of visible parts whose boxes run into each other, as indices into the list.
std::vector<std::pair<int, int>> Collisions(const PartList& parts);

} // namespace tarnix
