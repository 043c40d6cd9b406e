#include "ovk/docking/dock_resize_p.h"

#include <cstdlib>

namespace ovk {

namespace {

constexpr int c_corner = 13; // pixels around a corner that pull both edges
constexpr int c_border = 4;  // pixels around an edge

bool IsNear(int value, int line, int distance)
{
    return std::abs(value - line) < distance;
}

} // namespace

ResizeEdge HitTestEdge(const QPoint& pos, const QSize& size)
{
    const int x = pos.x();
    const int y = pos.y();
    const int w = size.width();
    const int h = size.height();
    if (IsNear(x, 0, c_corner) && IsNear(y, 0, c_corner))
        return ResizeEdge::TopLeft;
    if (IsNear(x, 0, c_corner) && IsNear(y, h, c_corner))
        return ResizeEdge::BottomLeft;
    if (IsNear(x, w, c_corner) && IsNear(y, 0, c_corner))
        return ResizeEdge::TopRight;
    if (IsNear(x, w, c_corner) && IsNear(y, h, c_corner))
        return ResizeEdge::BottomRight;
    const bool within_height = y >= 0 && y <= h - 1;
    const bool within_width = x >= 0 && x <= w - 1;
    if (IsNear(x, 0, c_border) && within_height)
        return ResizeEdge::Left;
    if (IsNear(x, w, c_border) && within_height)
        return ResizeEdge::Right;
    if (IsNear(y, 0, c_border) && within_width)
        return ResizeEdge::Top;
    if (IsNear(y, h, c_border) && within_width)
        return ResizeEdge::Bottom;
    return ResizeEdge::None;
}

Qt::CursorShape ResizeCursor(ResizeEdge edge)
{
    switch (edge) {
    case ResizeEdge::TopLeft:
    case ResizeEdge::BottomRight:
        return Qt::SizeFDiagCursor;
    case ResizeEdge::BottomLeft:
    case ResizeEdge::TopRight:
        return Qt::SizeBDiagCursor;
    case ResizeEdge::Left:
    case ResizeEdge::Right:
        return Qt::SizeHorCursor;
    case ResizeEdge::Top:
    case ResizeEdge::Bottom:
        return Qt::SizeVerCursor;
    case ResizeEdge::None:
        break;
    }
    return Qt::ArrowCursor;
}

std::optional<ResizeStep> ResizeByEdge(ResizeEdge edge, const QRect& start, const QPoint& press,
                                       const QPoint& pos, const QSize& live)
{
    const int px = press.x();
    const int py = press.y();
    const int x1 = start.left();
    const int y1 = start.top();
    const int ex = pos.x();
    const int ey = pos.y();
    const int lw = live.width();
    const int lh = live.height();
    const int left = x1 - px + ex;
    const int top = y1 - py + ey;
    const int left_width = start.right() - x1 + px - ex + 1;
    const int top_height = lh + py - ey;

    switch (edge) {
    case ResizeEdge::TopLeft:
        return ResizeStep{QRect(left, top, left_width, top_height), true};
    case ResizeEdge::Left:
        return ResizeStep{QRect(left, y1, left_width, lh), true};
    case ResizeEdge::BottomLeft:
        return ResizeStep{QRect(left, y1, left_width, ey), true};
    case ResizeEdge::Bottom:
        return ResizeStep{QRect(x1, y1, lw, ey), false};
    case ResizeEdge::BottomRight:
        return ResizeStep{QRect(x1, y1, ex, ey), false};
    case ResizeEdge::Right:
        return ResizeStep{QRect(x1, y1, ex, lh), false};
    case ResizeEdge::TopRight:
        return ResizeStep{QRect(x1, top, ex, top_height), true};
    case ResizeEdge::Top:
        return ResizeStep{QRect(x1, top, start.right() - x1 + 1, top_height), true};
    case ResizeEdge::None:
        break;
    }
    return std::nullopt;
}

} // namespace ovk
