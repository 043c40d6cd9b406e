#pragma once

#include "model/scene.h"
#include "model/slicer.h"

#include <QByteArray>

namespace tarnix {

/// All visible parts at one height: each part's slice, by the id of the part.
std::vector<std::pair<int, Slice>> SliceScene(const PartList& parts, double z);

/// A drawing of one layer in true size: the plate's outline, contours filled by the even-odd
/// rule, hatch lines where a spacing is given.
QByteArray SliceSvg(const std::vector<std::pair<int, Slice>>& slices, const Plate& plate,
                    double hatch_spacing, double hatch_degrees);

} // namespace tarnix
