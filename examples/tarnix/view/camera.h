#pragma once

#include "model/vec3.h"

#include <QPointF>
#include <QSizeF>

namespace tarnix {

/// A half line into the scene.
struct Ray
{
    Vec3 origin;
    Vec3 direction; ///< unit length
};

/// Where the scene is seen from. Azimuth 0 is the front (from -y), 90 the right side; elevation 90
/// is above. The height is the length at the target, in millimetres, that fills the view from top
/// to bottom.
struct Camera
{
    Vec3 target;
    double azimuth = 32.0;
    double elevation = 28.0;
    double height = 260.0;
    bool perspective = true;

    /// Axes of the view: right, up, and towards the viewer.
    Vec3 Right() const;
    Vec3 Up() const;
    Vec3 Back() const;
    /// From the target to the eye, for perspective.
    double EyeDistance() const;
    /// Pixels a millimetre at the target.
    double Scale(const QSizeF& size) const { return size.height() / height; }

    /// The place on the screen and a depth that grows towards the viewer; `depth` of 0 or less
    /// lies behind the eye in perspective.
    QPointF Project(const Vec3& point, const QSizeF& size, double* depth = nullptr) const;
    Ray RayAt(const QPointF& at, const QSizeF& size) const;
    /// Where the ray meets the level plane at `z`; false when it runs along or away.
    bool HitPlane(const QPointF& at, const QSizeF& size, double z, Vec3& hit) const;

    void Orbit(double azimuth_step, double elevation_step);
    /// Moves the scene with the pointer, by pixels.
    void Pan(const QPointF& pixels, const QSizeF& size);
    /// Zooms by a factor above 1 to come nearer, with the point under `at` staying there.
    void Zoom(double factor, const QPointF& at, const QSizeF& size);
    /// Centres a box and makes it fill the view.
    void Fit(const Box& box, const QSizeF& size);
};

bool operator==(const Camera& a, const Camera& b);
inline bool operator!=(const Camera& a, const Camera& b)
{
    return !(a == b);
}

} // namespace tarnix
