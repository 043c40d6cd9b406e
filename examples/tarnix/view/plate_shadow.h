#pragma once

#include "model/scene.h"

#include <QImage>

namespace tarnix {

/// A picture of the plate seen from above with the soft shadows of the parts on it: black with
/// their strength as opacity. The left upper corner of the picture is the left back corner of the
/// plate; there are two pixels a millimetre, fewer for a large plate.
QImage PlateShadow(const PartList& parts, const Plate& plate);

} // namespace tarnix
