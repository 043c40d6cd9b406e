#pragma once

#include "model/vec3.h"

#include <array>

namespace tarnix {

/// An affine map of space: a 3x3 matrix and a shift after it.
class Transform
{
public:
    /// The identity.
    Transform();

    static Transform Translation(const Vec3& shift);
    /// A turn by `degrees` about an axis (0, 1, 2) through the origin, counter-clockwise when
    /// the axis points at the viewer.
    static Transform Rotation(int axis, double degrees);
    /// The shortest turn that takes direction `from` into direction `to`.
    static Transform RotationBetween(const Vec3& from, const Vec3& to);
    static Transform Scaling(const Vec3& factors);
    /// A reflection along an axis (0, 1, 2) at the origin.
    static Transform Mirror(int axis);
    /// `map` done about `center` in place of the origin.
    static Transform About(const Vec3& center, const Transform& map);

    Vec3 Map(const Vec3& point) const;
    /// Maps a direction: without the shift.
    Vec3 MapDirection(const Vec3& direction) const;
    /// The unit normal of a face with the given unit normal after the map.
    Vec3 MapNormal(const Vec3& normal) const;

    /// This after `first`.
    Transform operator*(const Transform& first) const;
    /// The inverse; the identity when there is none.
    Transform Inverted() const;

    double Determinant() const;
    bool IsMirroring() const { return Determinant() < 0.0; }
    bool IsIdentity() const;
    Vec3 Shift() const { return m_shift; }
    /// Lengths of the images of the three unit vectors.
    Vec3 Scale() const;
    /// Angles in degrees of the turns about x, y and z, done in this order, that give the
    /// orientation (a reflection is taken out along x first).
    Vec3 EulerAngles() const;

    double At(int row, int column) const { return m_rows[static_cast<size_t>(row)][column]; }
    void Set(int row, int column, double value)
    {
        m_rows[static_cast<size_t>(row)][column] = value;
    }
    void SetShift(const Vec3& shift) { m_shift = shift; }

    friend bool operator==(const Transform& a, const Transform& b)
    {
        return a.m_rows == b.m_rows && a.m_shift == b.m_shift;
    }

private:
    std::array<Vec3, 3> m_rows;
    Vec3 m_shift;
};

inline bool operator!=(const Transform& a, const Transform& b)
{
    return !(a == b);
}

} // namespace tarnix
