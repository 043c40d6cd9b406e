#pragma once

#include "ribbon_painter_p.h"

#include <QBrush>
#include <algorithm>

namespace Qtitan {
namespace paint_util {

/// A length at 96 dpi in the option's resolution, at least 1.
int Px(const RibbonPaintOption& option, int length);

/// The brush of a wide ground: the look's three colours one after another.
QBrush SurfaceBrush(const ThemeLook& look, const QRect& rect);

/// The brush of something that can be pressed: glass in the 2007 family.
QBrush ButtonBrush(const ThemeLook& look, const QRect& rect);

/// Fills without a border.
void FillSurface(QPainter& painter, const QRect& rect, const ThemeLook& look);

/// One line of text, elided; with its mnemonic underlined when the option says so.
void DrawLine(QPainter& painter, const QRect& rect, int alignment, const QString& text,
              const QColor& color, const RibbonPaintOption& option);

/// The rectangle mirrored inside `bounds` for right to left.
QRect Visual(const RibbonPaintOption& option, const QRect& bounds, const QRect& rect);

/// A path with rounded top corners only.
QPainterPath TopRounded(const QRectF& rect, qreal radius);

/// Which of three states' elements is drawn: pressed before hover before normal.
Element ByState(const RibbonPaintOption& option, Element normal, Element hover, Element pressed);

} // namespace paint_util
} // namespace Qtitan
