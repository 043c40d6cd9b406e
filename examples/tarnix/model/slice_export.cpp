#include "model/slice_export.h"

namespace tarnix {
namespace {

QByteArray N(double value)
{
    return QByteArray::number(value, 'f', 4);
}

/// Drawings run downwards, the plate upwards.
QByteArray XY(const Point2& p, const Plate& plate)
{
    return N(p.x + plate.width / 2.0) + ' ' + N(plate.depth / 2.0 - p.y);
}

} // namespace

std::vector<std::pair<int, Slice>> SliceScene(const PartList& parts, double z)
{
    std::vector<std::pair<int, Slice>> result;
    for (const Part& part : parts) {
        const Box& box = part.Bounds();
        if (!part.visible || box.low.z > z || box.high.z < z)
            continue;
        Slice slice = SliceMesh(*part.GetMesh(), part.GetPlacement(), z);
        if (!slice.IsEmpty())
            result.emplace_back(part.id, std::move(slice));
    }
    return result;
}

QByteArray SliceSvg(const std::vector<std::pair<int, Slice>>& slices, const Plate& plate,
                    double hatch_spacing, double hatch_degrees)
{
    QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + N(plate.width) +
                     "mm\" height=\"" + N(plate.depth) + "mm\" viewBox=\"0 0 " + N(plate.width) +
                     ' ' + N(plate.depth) + "\">\n" + "<rect width=\"" + N(plate.width) +
                     "\" height=\"" + N(plate.depth) +
                     "\" fill=\"none\" stroke=\"#999999\" stroke-width=\"0.2\"/>\n";
    for (const auto& [part, slice] : slices) {
        svg += "<g id=\"part" + QByteArray::number(part) + "\">\n";
        if (!slice.contours.empty()) {
            svg += "<path fill=\"#000000\" fill-opacity=\"0.15\" fill-rule=\"evenodd\" "
                   "stroke=\"#000000\" "
                   "stroke-width=\"0.1\" d=\"";
            for (const Polygon& contour : slice.contours) {
                for (size_t i = 0; i < contour.size(); ++i)
                    svg += (i == 0 ? "M" : "L") + XY(contour[i], plate);
                svg += 'Z';
            }
            svg += "\"/>\n";
        }
        for (const std::vector<Point2>& gap : slice.gaps) {
            svg += "<path fill=\"none\" stroke=\"#d00000\" stroke-width=\"0.2\" d=\"";
            for (size_t i = 0; i < gap.size(); ++i)
                svg += (i == 0 ? "M" : "L") + XY(gap[i], plate);
            svg += "\"/>\n";
        }
        const std::vector<Segment2> lines = Hatch(slice, hatch_spacing, hatch_degrees);
        if (!lines.empty()) {
            svg += "<path fill=\"none\" stroke=\"#000000\" stroke-width=\"0.05\" d=\"";
            for (const Segment2& line : lines)
                svg += 'M' + XY(line.from, plate) + 'L' + XY(line.to, plate);
            svg += "\"/>\n";
        }
        svg += "</g>\n";
    }
    return svg + "</svg>\n";
}

} // namespace tarnix
