#pragma once

#include "view/view_state.h"

#include <QPainter>

#include <array>
#include <optional>

namespace tarnix {

/// A direction from which to look.
struct ViewDirection
{
    double azimuth;
    double elevation;
};

/// The small cube in a corner of the view that shows how the view is turned, and turns it by a
/// click on one of its sides.
class ViewCube
{
public:
    /// The six sides in the order front, right, back, left, top, bottom.
    static QString SideName(int side);
    static ViewDirection SideDirection(int side);

    /// `area` is the square that it is painted in; `hovered` a side or -1.
    void Paint(QPainter& painter, const QRectF& area, const Camera& camera,
               const ViewColors& colors, int hovered) const;
    /// The side under a place, or -1.
    int SideAt(const QPointF& at, const QRectF& area, const Camera& camera) const;

private:
    std::array<QPointF, 4> Corners(int side, const QRectF& area, const Camera& camera) const;
    static Vec3 Normal(int side);
};

} // namespace tarnix
