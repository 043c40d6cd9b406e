#include "ribbon_paint_util_p.h"

#include "draw_helpers.h"

#include <QPainter>
#include <QPainterPath>

namespace Qtitan {

using Family = RibbonTheme::Family;

namespace paint_util {

int Px(const RibbonPaintOption& option, int length)
{
    return std::max(1, qRound(length * option.scale));
}

QBrush SurfaceBrush(const ThemeLook& look, const QRect& rect)
{
    if (look.isTransparent())
        return Qt::NoBrush;
    if (look.top == look.middle && look.middle == look.bottom)
        return look.middle;
    QLinearGradient gradient(rect.topLeft(), QPointF(rect.left(), rect.bottom() + 1));
    gradient.setColorAt(0.0, look.top);
    gradient.setColorAt(0.5, look.middle);
    gradient.setColorAt(1.0, look.bottom);
    return gradient;
}

QBrush ButtonBrush(const ThemeLook& look, const QRect& rect)
{
    if (RibbonTheme::current().family() != Family::Office2007 || look.isTransparent()
        || look.top == look.bottom)
        return SurfaceBrush(look, rect);
    // A sheen over the upper part, its edge, and light that comes up from the foot.
    constexpr qreal edge = 0.42;
    QLinearGradient gradient(rect.topLeft(), QPointF(rect.left(), rect.bottom() + 1));
    gradient.setColorAt(0.0, look.bottom);
    gradient.setColorAt(edge, look.middle);
    gradient.setColorAt(edge + 0.01, look.top);
    gradient.setColorAt(1.0, look.bottom);
    return gradient;
}

void FillSurface(QPainter& painter, const QRect& rect, const ThemeLook& look)
{
    if (!look.isTransparent())
        painter.fillRect(rect, SurfaceBrush(look, rect));
}

void DrawLine(QPainter& painter, const QRect& rect, int alignment, const QString& text,
              const QColor& color, const RibbonPaintOption& option)
{
    if (text.isEmpty() || rect.width() <= 0)
        return;
    painter.setFont(option.font);
    painter.setPen(color);
    const int mnemonic = option.has(RibbonState::Mnemonics) ? Qt::TextShowMnemonic : 0;
    const QFontMetrics metrics(option.font, painter.device());
    // Eliding measures in fractions: a text that was given exactly its width stays whole.
    const QString shown = metrics.horizontalAdvance(text) > rect.width()
                              ? metrics.elidedText(text, Qt::ElideRight, rect.width(), mnemonic)
                              : text;
    const Qt::LayoutDirection before = painter.layoutDirection();
    painter.setLayoutDirection(option.direction);
    painter.drawText(rect, alignment | Qt::TextSingleLine | mnemonic, shown);
    painter.setLayoutDirection(before);
}

QRect Visual(const RibbonPaintOption& option, const QRect& bounds, const QRect& rect)
{
    if (option.direction != Qt::RightToLeft || rect.isNull())
        return rect;
    return QRect(bounds.left() + bounds.right() - rect.right(), rect.top(), rect.width(),
                 rect.height());
}

QPainterPath TopRounded(const QRectF& rect, qreal radius)
{
    QPainterPath path;
    path.moveTo(rect.bottomLeft());
    path.lineTo(rect.left(), rect.top() + radius);
    if (radius > 0)
        path.arcTo(rect.left(), rect.top(), 2 * radius, 2 * radius, 180, -90);
    path.lineTo(rect.right() - radius, rect.top());
    if (radius > 0)
        path.arcTo(rect.right() - 2 * radius, rect.top(), 2 * radius, 2 * radius, 90, -90);
    path.lineTo(rect.bottomRight());
    return path;
}

Element ByState(const RibbonPaintOption& option, Element normal, Element hover, Element pressed)
{
    if (option.has(RibbonState::Disabled))
        return normal;
    if (option.has(RibbonState::Pressed) || option.has(RibbonState::Open))
        return pressed;
    return option.has(RibbonState::Hover) ? hover : normal;
}

} // namespace paint_util

using namespace paint_util;

void RibbonPainter::drawLook(QPainter& painter, const QRect& rect, const ThemeLook& look, int radius)
{
    if (rect.isEmpty())
        return;
    DrawHelpers::drawFrame(painter, rect, look.border, ButtonBrush(look, rect), radius);
    // A line of light inside the border gives the older families their depth.
    const Family family = RibbonTheme::current().family();
    const bool deep = family == Family::Office2007 || family == Family::Office2010;
    if (!deep || look.isTransparent() || look.border.alpha() == 0 || rect.height() < 8
        || DrawHelpers::luminance(look.middle) < 0.15)
        return;
    QColor light(Qt::white);
    light.setAlpha(family == Family::Office2007 ? 110 : 90);
    DrawHelpers::drawFrame(painter, rect.adjusted(1, 1, -1, -1), light, Qt::NoBrush,
                           std::max(0, radius - 1));
}

QColor RibbonPainter::textColor(Element element, const RibbonPaintOption& option)
{
    const ThemeLook& look = RibbonTheme::current()[element];
    return option.has(RibbonState::Disabled) ? look.disabled : look.text;
}

void RibbonPainter::drawFocus(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const QColor line = option.contextColor.isValid() ? option.contextColor
                        : theme.family() == Family::Office2013 || theme.isHighContrast()
                            ? theme[Element::Page].text
                            : DrawHelpers::legible(theme[Element::EditFocus].border,
                                                   {theme[Element::Page].middle}, 3.0);
    DrawHelpers::drawFrame(painter, option.rect, line, Qt::NoBrush, theme.cornerRadius());
}

} // namespace Qtitan
