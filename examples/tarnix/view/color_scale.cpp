#include "view/color_scale.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace tarnix {
namespace {

constexpr double k_on_plate = 1e-3; // millimetres

const std::vector<QColor>& HeightColors()
{
    static const std::vector<QColor> s_colors{QColor(0x2f, 0x4b, 0x9c), QColor(0x1f, 0x8f, 0xb8),
                                              QColor(0x3d, 0xae, 0x6b), QColor(0xe3, 0xc2, 0x34),
                                              QColor(0xe0, 0x7b, 0x2c), QColor(0xc4, 0x31, 0x2f)};
    return s_colors;
}

const std::vector<QColor>& OverhangColors()
{
    static const std::vector<QColor> s_colors{QColor(0x9f, 0xb0, 0xbf), QColor(0x6f, 0xb0, 0x8a),
                                              QColor(0xd9, 0xc0, 0x3c), QColor(0xe0, 0x86, 0x2c),
                                              QColor(0xc4, 0x31, 0x2f)};
    return s_colors;
}

/// The part of a triangle's area that lies below a height; `z` are its corners' heights, rising.
double ShareBelow(const std::array<double, 3>& z, double height)
{
    if (height <= z[0])
        return 0.0;
    if (height >= z[2])
        return 1.0;
    if (height < z[1])
        return (height - z[0]) * (height - z[0]) / ((z[1] - z[0]) * (z[2] - z[0]));
    return 1.0 - (z[2] - height) * (z[2] - height) / ((z[2] - z[1]) * (z[2] - z[0]));
}

template <class Visit> void EachTriangle(const PartList& parts, const Visit& visit)
{
    for (const Part& part : parts) {
        if (!part.visible)
            continue;
        const Mesh mesh = part.PlacedMesh();
        for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
            const Triangle& t = mesh.Triangles()[i];
            const Vec3& a = mesh.Points()[t.a];
            const Vec3& b = mesh.Points()[t.b];
            const Vec3& c = mesh.Points()[t.c];
            const double area = Length(Cross(b - a, c - a)) / 2.0;
            std::array<double, 3> z{a.z, b.z, c.z};
            std::sort(z.begin(), z.end());
            visit(area, z, mesh.Normals()[i]);
        }
    }
}

} // namespace

double ColorScale::ValueOf(size_t color) const
{
    return low + (high - low) * static_cast<double>(color) /
                     static_cast<double>(std::max<size_t>(1, colors.size() - 1));
}

double ColorScale::PlaceOf(double value) const
{
    return high > low ? std::clamp((value - low) / (high - low), 0.0, 1.0) : 0.0;
}

QRgb ColorScale::At(double value) const
{
    if (colors.empty())
        return 0;
    const double at = PlaceOf(value) * static_cast<double>(colors.size() - 1);
    const size_t i = std::min(static_cast<size_t>(at), colors.size() - 1);
    const size_t k = std::min(i + 1, colors.size() - 1);
    const double t = at - static_cast<double>(i);
    const auto mix = [t](int a, int b) { return qRound(a + (b - a) * t); };
    return qRgb(mix(colors[i].red(), colors[k].red()), mix(colors[i].green(), colors[k].green()),
                mix(colors[i].blue(), colors[k].blue()));
}

std::array<QRgb, 256> ColorScale::Table() const
{
    std::array<QRgb, 256> table{};
    for (size_t i = 0; i < table.size(); ++i)
        table[i] = At(low + (high - low) * static_cast<double>(i) / 255.0);
    return table;
}

ColorScale ScaleOf(ColorBy quantity, const PartList& parts)
{
    switch (quantity) {
    case ColorBy::Height: {
        double top = 0.0;
        for (const Part& part : parts) {
            if (part.visible)
                top = std::max(top, part.Bounds().high.z);
        }
        // A round figure at the upper end; never a scale of no length.
        return {0.0, std::max(1.0, std::ceil(top - k_on_plate)), HeightColors()};
    }
    case ColorBy::Overhang:
        return {0.0, 90.0, OverhangColors()};
    case ColorBy::Part:
        break;
    }
    return {};
}

double LeanOf(const Vec3& world_normal)
{
    return qRadiansToDegrees(std::asin(std::clamp(-world_normal.z, 0.0, 1.0)));
}

std::vector<double> AreasOf(ColorBy quantity, const ColorScale& scale, const PartList& parts)
{
    if (scale.colors.size() < 2)
        return {};
    const size_t count = scale.colors.size() - 1;
    std::vector<double> areas(count, 0.0);
    EachTriangle(parts, [&](double area, const std::array<double, 3>& z, const Vec3& normal) {
        if (quantity == ColorBy::Overhang) {
            const double lean = LeanOf(normal);
            if (lean <= 0.0 || z[2] < k_on_plate)
                return;
            const auto at = static_cast<size_t>(scale.PlaceOf(lean) * static_cast<double>(count));
            areas[std::min(at, count - 1)] += area;
            return;
        }
        if (z[2] - z[0] < 1e-9) {
            const auto at = static_cast<size_t>(scale.PlaceOf(z[0]) * static_cast<double>(count));
            areas[std::min(at, count - 1)] += area;
            return;
        }
        double below = 0.0;
        for (size_t i = 0; i < count; ++i) {
            const double to = i + 1 == count ? 1.0 : ShareBelow(z, scale.ValueOf(i + 1));
            areas[i] += area * (to - below);
            below = to;
        }
    });
    return areas;
}

} // namespace tarnix
