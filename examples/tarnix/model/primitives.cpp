#include "model/primitives.h"

#include <QtMath>

namespace tarnix {
namespace {

/// A surface of revolution over a profile of (radius, height) from bottom to top. A profile
/// point on the axis becomes one point.
Mesh Revolve(const std::vector<std::pair<double, double>>& profile, int sides, bool closed,
             double phase = 0.0)
{
    std::vector<Vec3> points;
    std::vector<uint32_t> first;
    std::vector<bool> pole;
    for (const auto& [radius, height] : profile) {
        first.push_back(static_cast<uint32_t>(points.size()));
        pole.push_back(radius == 0.0);
        for (int i = 0; i < (radius == 0.0 ? 1 : sides); ++i) {
            const double angle = phase + 2.0 * M_PI * i / sides;
            points.push_back({radius * std::cos(angle), radius * std::sin(angle), height});
        }
    }
    std::vector<Triangle> triangles;
    const size_t bands = closed ? profile.size() : profile.size() - 1;
    for (size_t band = 0; band < bands; ++band) {
        const size_t next = (band + 1) % profile.size();
        for (int i = 0; i < sides; ++i) {
            const auto at = [&](size_t ring, int k) {
                return pole[ring] ? first[ring] : first[ring] + static_cast<uint32_t>(k % sides);
            };
            const uint32_t a = at(band, i), b = at(band, i + 1), c = at(next, i + 1),
                           d = at(next, i);
            if (a != b)
                triangles.push_back({a, b, c});
            if (c != d)
                triangles.push_back({a, c, d});
        }
    }
    return Mesh(std::move(points), std::move(triangles));
}

} // namespace

Mesh MakeBox(const Vec3& size)
{
    std::vector<Vec3> points;
    for (int i = 0; i < 8; ++i)
        points.push_back({((i & 1) ? 0.5 : -0.5) * size.x, ((i & 2) ? 0.5 : -0.5) * size.y,
                          (i & 4) ? size.z : 0.0});
    return Mesh(std::move(points), {{0, 2, 3},
                                    {0, 3, 1},
                                    {4, 5, 7},
                                    {4, 7, 6},
                                    {0, 1, 5},
                                    {0, 5, 4},
                                    {2, 6, 7},
                                    {2, 7, 3},
                                    {0, 4, 6},
                                    {0, 6, 2},
                                    {1, 3, 7},
                                    {1, 7, 5}});
}

Mesh MakeCylinder(double radius, double height, int sides)
{
    return MakeCone(radius, radius, height, sides);
}

Mesh MakeCone(double bottom_radius, double top_radius, double height, int sides)
{
    std::vector<std::pair<double, double>> profile{{0.0, 0.0}, {bottom_radius, 0.0}};
    if (top_radius > 0.0)
        profile.emplace_back(top_radius, height);
    profile.emplace_back(0.0, height);
    return Revolve(profile, sides, false);
}

Mesh MakeSphere(double radius, int rings)
{
    std::vector<std::pair<double, double>> profile;
    for (int i = 0; i <= rings; ++i) {
        const double angle = M_PI * i / rings;
        const bool end = i == 0 || i == rings;
        profile.emplace_back(end ? 0.0 : radius * std::sin(angle),
                             radius - radius * std::cos(angle));
    }
    return Revolve(profile, rings * 2, false);
}

Mesh MakeTorus(double radius, double tube_radius, int sides)
{
    std::vector<std::pair<double, double>> profile;
    const int around = std::max(sides / 2, 8);
    for (int i = 0; i < around; ++i) {
        const double angle = 2.0 * M_PI * i / around;
        profile.emplace_back(radius + tube_radius * std::cos(angle),
                             tube_radius + tube_radius * std::sin(angle));
    }
    return Revolve(profile, sides, true);
}

Mesh MakePrism(double radius, double height, int corners)
{
    return Revolve({{0.0, 0.0}, {radius, 0.0}, {radius, height}, {0.0, height}}, corners, false,
                   -M_PI / 2.0);
}

} // namespace tarnix
