#include "model/transform.h"

#include <QtMath>

namespace tarnix {

Transform::Transform() : m_rows{Vec3{1, 0, 0}, Vec3{0, 1, 0}, Vec3{0, 0, 1}} {}

Transform Transform::Translation(const Vec3& shift)
{
    Transform result;
    result.m_shift = shift;
    return result;
}

Transform Transform::Rotation(int axis, double degrees)
{
    // Quarter turns are exact, or a part turned four times would have moved.
    const double quarters = degrees / 90.0;
    double c = std::cos(qDegreesToRadians(degrees));
    double s = std::sin(qDegreesToRadians(degrees));
    if (quarters == std::floor(quarters)) {
        c = std::round(c);
        s = std::round(s);
    }
    const int u = (axis + 1) % 3;
    const int v = (axis + 2) % 3;
    Transform result;
    result.Set(u, u, c);
    result.Set(u, v, -s);
    result.Set(v, u, s);
    result.Set(v, v, c);
    return result;
}

Transform Transform::RotationBetween(const Vec3& from, const Vec3& to)
{
    const Vec3 a = Normalized(from);
    const Vec3 b = Normalized(to);
    const double cosine = Dot(a, b);
    if (cosine > 1.0 - 1e-12)
        return Transform();
    if (cosine < -1.0 + 1e-12) {
        // Opposite: half a turn about any axis that stands on both, 2*u*u^T - 1.
        const Vec3 u = Normalized(Cross(a, std::abs(a.x) < 0.9 ? Vec3{1, 0, 0} : Vec3{0, 1, 0}));
        Transform half;
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column)
                half.Set(row, column, 2.0 * u[row] * u[column] - (row == column ? 1.0 : 0.0));
        }
        return half;
    }
    const Vec3 axis = Cross(a, b);
    const double k = 1.0 / (1.0 + cosine);
    Transform result;
    result.m_rows[0] = {axis.x * axis.x * k + cosine, axis.x * axis.y * k - axis.z,
                        axis.x * axis.z * k + axis.y};
    result.m_rows[1] = {axis.y * axis.x * k + axis.z, axis.y * axis.y * k + cosine,
                        axis.y * axis.z * k - axis.x};
    result.m_rows[2] = {axis.z * axis.x * k - axis.y, axis.z * axis.y * k + axis.x,
                        axis.z * axis.z * k + cosine};
    return result;
}

Transform Transform::Scaling(const Vec3& factors)
{
    Transform result;
    for (int axis = 0; axis < 3; ++axis)
        result.Set(axis, axis, factors[axis]);
    return result;
}

Transform Transform::Mirror(int axis)
{
    Transform result;
    result.Set(axis, axis, -1.0);
    return result;
}

Transform Transform::About(const Vec3& center, const Transform& map)
{
    return Translation(center) * map * Translation(-center);
}

Vec3 Transform::Map(const Vec3& point) const
{
    return MapDirection(point) + m_shift;
}

Vec3 Transform::MapDirection(const Vec3& direction) const
{
    return {Dot(m_rows[0], direction), Dot(m_rows[1], direction), Dot(m_rows[2], direction)};
}

Vec3 Transform::MapNormal(const Vec3& normal) const
{
    // The matrix of cofactors: the inverse transposed without its division, so that it also
    // serves flattening maps; its sign keeps outward normals outward under a mirror.
    const Vec3 c0 = Cross(m_rows[1], m_rows[2]);
    const Vec3 c1 = Cross(m_rows[2], m_rows[0]);
    const Vec3 c2 = Cross(m_rows[0], m_rows[1]);
    const Vec3 image = {Dot(c0, normal), Dot(c1, normal), Dot(c2, normal)};
    return Normalized(IsMirroring() ? -image : image);
}

Transform Transform::operator*(const Transform& first) const
{
    Transform result;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            double sum = 0.0;
            for (int k = 0; k < 3; ++k)
                sum += At(row, k) * first.At(k, column);
            result.Set(row, column, sum);
        }
    }
    result.m_shift = Map(first.m_shift);
    return result;
}

Transform Transform::Inverted() const
{
    const double determinant = Determinant();
    if (determinant == 0.0 || !std::isfinite(determinant))
        return Transform();
    const Vec3 c0 = Cross(m_rows[1], m_rows[2]) / determinant;
    const Vec3 c1 = Cross(m_rows[2], m_rows[0]) / determinant;
    const Vec3 c2 = Cross(m_rows[0], m_rows[1]) / determinant;
    Transform result;
    result.m_rows[0] = {c0.x, c1.x, c2.x};
    result.m_rows[1] = {c0.y, c1.y, c2.y};
    result.m_rows[2] = {c0.z, c1.z, c2.z};
    result.m_shift = -result.MapDirection(m_shift);
    return result;
}

double Transform::Determinant() const
{
    return Dot(m_rows[0], Cross(m_rows[1], m_rows[2]));
}

bool Transform::IsIdentity() const
{
    return *this == Transform();
}

Vec3 Transform::Scale() const
{
    Vec3 result;
    for (int column = 0; column < 3; ++column)
        result[column] = Length({At(0, column), At(1, column), At(2, column)});
    return result;
}

Vec3 Transform::EulerAngles() const
{
    const Vec3 scale = Scale();
    if (scale.x == 0.0 || scale.y == 0.0 || scale.z == 0.0)
        return {};
    const double flip = IsMirroring() ? -1.0 : 1.0;
    const double r00 = flip * At(0, 0) / scale.x;
    const double r10 = flip * At(1, 0) / scale.x;
    const double r20 = flip * At(2, 0) / scale.x;
    const double r21 = At(2, 1) / scale.y;
    const double r22 = At(2, 2) / scale.z;
    const double r12 = At(1, 2) / scale.z;
    const double r11 = At(1, 1) / scale.y;
    const double flat = std::hypot(r00, r10);
    Vec3 angles;
    if (flat > 1e-9)
        angles = {std::atan2(r21, r22), std::atan2(-r20, flat), std::atan2(r10, r00)};
    else
        angles = {std::atan2(-r12, r11), std::atan2(-r20, flat), 0.0};
    for (int axis = 0; axis < 3; ++axis) {
        angles[axis] = qRadiansToDegrees(angles[axis]);
        if (std::abs(angles[axis]) < 1e-9)
            angles[axis] = 0.0;
    }
    return angles;
}

} // namespace tarnix
