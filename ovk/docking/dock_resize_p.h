#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>

#include <optional>

#include <ovk/core/export.h>

namespace ovk {

/// The part of a window's border that a resize pulls at.
enum class ResizeEdge
{
    TopLeft = 0,
    Left = 1,
    BottomLeft = 2,
    Bottom = 3,
    BottomRight = 4,
    Right = 5,
    TopRight = 6,
    Top = 7,
    None = 8
};

/// The edge of a window of that size under a position of its own coordinates.
OVK_TEST_EXPORT ResizeEdge HitTestEdge(const QPoint& pos, const QSize& size);

/// The cursor over an edge; the arrow for none.
OVK_TEST_EXPORT Qt::CursorShape ResizeCursor(ResizeEdge edge);

/// One step of a resize.
struct ResizeStep
{
    QRect geometry;       ///< What the window takes.
    bool refresh = false; ///< Does the step move the origin of the window's coordinates?
};

/// The step of a resize that began with a press at `press` on a window at `start`, while the cursor
/// is at `pos` and the window is of the size `live`; none for no edge. Positions are in the
/// coordinates of the window, which move with its left and top edges.
OVK_TEST_EXPORT std::optional<ResizeStep> ResizeByEdge(ResizeEdge edge, const QRect& start,
                                                       const QPoint& press, const QPoint& pos,
                                                       const QSize& live);

} // namespace ovk
