#include "view/camera.h"

#include <QtMath>

namespace tarnix {
namespace {

constexpr double k_half_view_degrees = 15.0;
constexpr double k_least_height = 0.05;
constexpr double k_most_height = 20000.0;

} // namespace

Vec3 Camera::Right() const
{
    const double a = qDegreesToRadians(azimuth);
    return {std::cos(a), std::sin(a), 0.0};
}

Vec3 Camera::Up() const
{
    return Cross(Back(), Right());
}

Vec3 Camera::Back() const
{
    const double a = qDegreesToRadians(azimuth);
    const double e = qDegreesToRadians(elevation);
    return {std::sin(a) * std::cos(e), -std::cos(a) * std::cos(e), std::sin(e)};
}

double Camera::EyeDistance() const
{
    return height / 2.0 / std::tan(qDegreesToRadians(k_half_view_degrees));
}

QPointF Camera::Project(const Vec3& point, const QSizeF& size, double* depth) const
{
    const Vec3 p = point - target;
    const double z = Dot(p, Back());
    double scale = Scale(size);
    if (perspective) {
        const double distance = EyeDistance() - z;
        if (depth)
            *depth = distance > 0.0 ? 1.0 / distance : -1.0;
        scale *= EyeDistance() / std::max(distance, 1e-6);
    } else if (depth) {
        *depth = z + 1e6;
    }
    return {size.width() / 2.0 + Dot(p, Right()) * scale,
            size.height() / 2.0 - Dot(p, Up()) * scale};
}

Ray Camera::RayAt(const QPointF& at, const QSizeF& size) const
{
    const double scale = Scale(size);
    const double x = (at.x() - size.width() / 2.0) / scale;
    const double y = (size.height() / 2.0 - at.y()) / scale;
    const Vec3 on_plane = target + Right() * x + Up() * y;
    if (!perspective)
        return {on_plane + Back() * 1e5, -Back()};
    const Vec3 eye = target + Back() * EyeDistance();
    return {eye, Normalized(on_plane - eye)};
}

bool Camera::HitPlane(const QPointF& at, const QSizeF& size, double z, Vec3& hit) const
{
    const Ray ray = RayAt(at, size);
    if (std::abs(ray.direction.z) < 1e-6)
        return false;
    const double t = (z - ray.origin.z) / ray.direction.z;
    if (t <= 0.0)
        return false;
    hit = ray.origin + ray.direction * t;
    return true;
}

void Camera::Orbit(double azimuth_step, double elevation_step)
{
    azimuth = std::remainder(azimuth + azimuth_step, 360.0);
    elevation = std::clamp(elevation + elevation_step, -90.0, 90.0);
}

void Camera::Pan(const QPointF& pixels, const QSizeF& size)
{
    const double scale = Scale(size);
    target = target - Right() * (pixels.x() / scale) + Up() * (pixels.y() / scale);
}

void Camera::Zoom(double factor, const QPointF& at, const QSizeF& size)
{
    const double new_height = std::clamp(height / factor, k_least_height, k_most_height);
    const double shift = (1.0 - new_height / height) / Scale(size);
    const double x = at.x() - size.width() / 2.0;
    const double y = size.height() / 2.0 - at.y();
    target = target + Right() * (x * shift) + Up() * (y * shift);
    height = new_height;
}

void Camera::Fit(const Box& box, const QSizeF& size)
{
    if (box.IsEmpty() || size.isEmpty())
        return;
    target = box.Center();
    double half_width = 0.0, half_height = 0.0, front = 0.0;
    for (int corner = 0; corner < 8; ++corner) {
        const Vec3 p =
            Vec3{(corner & 1) ? box.high.x : box.low.x, (corner & 2) ? box.high.y : box.low.y,
                 (corner & 4) ? box.high.z : box.low.z} -
            target;
        half_width = std::max(half_width, std::abs(Dot(p, Right())));
        half_height = std::max(half_height, std::abs(Dot(p, Up())));
        front = std::max(front, Dot(p, Back()));
    }
    constexpr double k_margin = 1.12;
    const double aspect = size.width() / size.height();
    height = 2.0 * k_margin * std::max(half_height, half_width / aspect);
    // What stands nearer looks larger: step back by as much.
    if (perspective)
        height += 2.0 * front * std::tan(qDegreesToRadians(k_half_view_degrees));
    height = std::clamp(height, k_least_height, k_most_height);
}

bool operator==(const Camera& a, const Camera& b)
{
    return a.target == b.target && a.azimuth == b.azimuth && a.elevation == b.elevation &&
           a.height == b.height && a.perspective == b.perspective;
}

} // namespace tarnix
