#pragma once

#include "model/scene.h"
#include "view/view_state.h"

#include <optional>

namespace tarnix {

struct Hit
{
    int part = 0;
    size_t triangle = 0;
    Vec3 point; ///< on the surface, in plate coordinates
    double distance = 0.0;
};

/// The nearest visible surface on a ray, with what the section hides left out.
std::optional<Hit> PickSurface(const PartList& parts, const Ray& ray, const Section& section);

/// The corner or the place on an edge of the hit triangle that is nearest to the hit.
Vec3 SnapHit(const Part& part, const Hit& hit, SnapMode mode);

/// Whether the section leaves a point visible.
bool IsShownBy(const Section& section, const Vec3& point);

} // namespace tarnix
