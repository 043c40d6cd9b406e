#pragma once

#include "model/vec3.h"

namespace tarnix {

/// A move of the selected parts and a turn about the upright through their middle.
struct MoveTurn
{
    Vec3 shift;           ///< millimetres
    double degrees = 0.0; ///< to the left
};

} // namespace tarnix
