#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnix {

/// A point or a direction; lengths are millimetres.
struct Vec3
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    /// 0, 1, 2 for x, y, z.
    double operator[](int axis) const { return axis == 0 ? x : axis == 1 ? y : z; }
    double& operator[](int axis) { return axis == 0 ? x : axis == 1 ? y : z; }
};

inline Vec3 operator+(const Vec3& a, const Vec3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator-(const Vec3& a, const Vec3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3 operator-(const Vec3& a)
{
    return {-a.x, -a.y, -a.z};
}
inline Vec3 operator*(const Vec3& a, double f)
{
    return {a.x * f, a.y * f, a.z * f};
}
inline Vec3 operator/(const Vec3& a, double f)
{
    return {a.x / f, a.y / f, a.z / f};
}
inline bool operator==(const Vec3& a, const Vec3& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
inline bool operator!=(const Vec3& a, const Vec3& b)
{
    return !(a == b);
}

inline double Dot(const Vec3& a, const Vec3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vec3 Cross(const Vec3& a, const Vec3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vec3& a)
{
    return std::sqrt(Dot(a, a));
}
inline bool IsFinite(const Vec3& a)
{
    return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z);
}

/// The direction of `a`; a vector of no length stays as it is.
inline Vec3 Normalized(const Vec3& a)
{
    const double length = Length(a);
    return length > 0.0 ? a / length : a;
}

/// A box along the axes. A default one holds nothing, and grows by Add().
struct Box
{
    Vec3 low{std::numeric_limits<double>::max(), std::numeric_limits<double>::max(),
             std::numeric_limits<double>::max()};
    Vec3 high{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::lowest(),
              std::numeric_limits<double>::lowest()};

    bool IsEmpty() const { return low.x > high.x || low.y > high.y || low.z > high.z; }
    /// The lengths of its sides; zero for an empty box.
    Vec3 Size() const { return IsEmpty() ? Vec3{} : high - low; }
    Vec3 Center() const { return IsEmpty() ? Vec3{} : (low + high) * 0.5; }

    void Add(const Vec3& p)
    {
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(low[axis], p[axis]);
            high[axis] = std::max(high[axis], p[axis]);
        }
    }
    void Add(const Box& box)
    {
        if (box.IsEmpty())
            return;
        Add(box.low);
        Add(box.high);
    }
    bool Intersects(const Box& other) const
    {
        for (int axis = 0; axis < 3; ++axis) {
            if (low[axis] > other.high[axis] || high[axis] < other.low[axis])
                return false;
        }
        return !IsEmpty() && !other.IsEmpty();
    }
};

} // namespace tarnix
