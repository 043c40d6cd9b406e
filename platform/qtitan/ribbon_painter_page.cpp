#include "ribbon_paint_util_p.h"

#include "draw_helpers.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace Qtitan {

using namespace paint_util;
using Family = RibbonTheme::Family;

namespace {

/// The ground of a page: with a sheen in the 2007 family, whose lowest tone is the edge below it.
QBrush PageBrush(const ThemeLook& look, const QRect& rect)
{
    if (RibbonTheme::current().family() != Family::Office2007)
        return SurfaceBrush(look, rect);
    constexpr qreal edge = 0.17;
    QLinearGradient gradient(rect.topLeft(), QPointF(rect.left(), rect.bottom() + 1));
    gradient.setColorAt(0.0, look.top);
    gradient.setColorAt(edge, DrawHelpers::mix(look.top, look.bottom, 0.45));
    gradient.setColorAt(edge + 0.01, look.bottom);
    gradient.setColorAt(1.0, look.middle);
    return gradient;
}

/// A vertical line that fades at its ends, with a line of light beside it where the theme has one.
void DrawFadingLine(QPainter& painter, const QRect& rect, const QColor& dark, const QColor& light)
{
    const auto draw = [&painter](const QRect& line, QColor color) {
        if (color.alpha() == 0)
            return;
        QLinearGradient fade(line.topLeft(), line.bottomLeft());
        QColor clear = color;
        clear.setAlpha(0);
        fade.setColorAt(0.0, clear);
        fade.setColorAt(0.15, color);
        fade.setColorAt(0.85, color);
        fade.setColorAt(1.0, clear);
        painter.fillRect(line, fade);
    };
    draw(QRect(rect.left(), rect.top(), 1, rect.height()), dark);
    draw(QRect(rect.left() + 1, rect.top(), 1, rect.height()), light);
}

} // namespace

void RibbonPainter::drawPage(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const ThemeLook look = option.contextColor.isValid()
                                   && theme.family() != Family::Office2013
                               ? theme.tinted(Element::Page, option.contextColor, 0.04)
                               : theme[Element::Page];
    const QRect& rect = option.rect;
    painter.save();
    if (theme.family() == Family::Office2007) {
        const int radius = theme.cornerRadius();
        painter.fillRect(rect, theme[Element::TabStrip].middle);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(look.border, 1));
        painter.setBrush(PageBrush(look, rect));
        // The rounding at the top is hidden: the line of the tab row is the page's upper edge.
        painter.setClipRect(rect);
        painter.drawRoundedRect(QRectF(rect).adjusted(0.5, -radius - 0.5, -0.5, -0.5), radius, radius);
    } else {
        painter.fillRect(rect, PageBrush(look, rect));
        painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, look.border);
        if (option.has(RibbonState::Peek)) {
            painter.fillRect(rect.left(), rect.top(), 1, rect.height(), look.border);
            painter.fillRect(rect.right(), rect.top(), 1, rect.height(), look.border);
        }
    }
    painter.restore();
}

void RibbonPainter::drawGroup(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    if (theme.family() != Family::Office2007)
        return;
    const bool hover = option.has(RibbonState::Hover) && !option.has(RibbonState::Disabled);
    const ThemeLook& look = theme[hover ? Element::GroupHover : Element::Group];
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -1.5, -1.5);
    const int radius = theme.cornerRadius();
    // The frame is pressed into the page: its light lies to the right and below.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, theme[Element::TabStrip].text == Qt::white ? 130 : 190), 1));
    painter.drawRoundedRect(outline.translated(1, 1), radius, radius);
    painter.setPen(QPen(look.border, 1));
    painter.setBrush(hover ? PageBrush({look.bottom, look.bottom, look.top, {}, {}, {}}, option.rect)
                           : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(outline, radius, radius);
    painter.restore();
}

void RibbonPainter::drawGroupTitle(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool hover = option.has(RibbonState::Hover) && !option.has(RibbonState::Disabled);
    const Element element = hover ? Element::GroupTitleHover : Element::GroupTitle;
    const ThemeLook& look = theme[element];
    painter.save();
    QRect text = option.rect;
    if (!look.isTransparent()) {
        // Inside the group's frame, round where the frame is.
        const QRect strip = option.rect.adjusted(1, 0, -2, -2);
        painter.setClipRect(strip, Qt::IntersectClip);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(Qt::NoPen);
        painter.setBrush(SurfaceBrush(look, strip));
        const int radius = std::max(0, theme.cornerRadius() - 1);
        painter.drawRoundedRect(QRectF(strip).adjusted(0, -radius, 0, 0), radius, radius);
        text = strip;
    }
    DrawLine(painter, text.adjusted(Px(option, 2), 0, -Px(option, 2), 0), Qt::AlignCenter, option.text,
             textColor(element, option), option);
    painter.restore();
}

void RibbonPainter::drawGroupSeparator(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    // Frames part the groups of the 2007 looks.
    if (theme.family() == Family::Office2007)
        return;
    const ThemeLook& look = theme[Element::GroupSeparator];
    const QRect line(option.rect.left(), option.rect.top(), 2, option.rect.height());
    if (theme.family() == Family::Office2013)
        painter.fillRect(line.left(), line.top() + Px(option, 2), 1, line.height() - Px(option, 4),
                         look.middle);
    else
        DrawFadingLine(painter, line, look.middle, look.border);
}

void RibbonPainter::drawSeparator(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const ThemeLook& look = theme[Element::GroupSeparator];
    const QRect line(option.rect.center().x(), option.rect.top(), 2, option.rect.height());
    if (theme.family() == Family::Office2007 || theme.family() == Family::Office2013)
        painter.fillRect(line.left(), line.top(), 1, line.height(), look.middle);
    else
        DrawFadingLine(painter, line, look.middle, look.border);
    if (theme.family() == Family::Office2007)
        painter.fillRect(line.left() + 1, line.top(), 1, line.height(), look.border);
}

void RibbonPainter::drawLauncher(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const Element element =
        ByState(option, Element::GroupTitle, Element::ButtonHover, Element::ButtonPressed);
    painter.save();
    if (element != Element::GroupTitle)
        drawLook(painter, option.rect, theme[element], std::max(0, theme.cornerRadius() - 1));
    const QColor color = textColor(element, option);
    const int line = Px(option, 1);
    const int size = Px(option, 7);
    const QRect box(option.rect.center().x() - size / 2, option.rect.center().y() - size / 2, size, size);
    if (option.direction == Qt::RightToLeft) {
        painter.translate(2 * box.left() + box.width(), 0);
        painter.scale(-1, 1);
    }
    // A corner and an arrow that leaves it.
    painter.fillRect(box.left(), box.top(), size - 2 * line, line, color);
    painter.fillRect(box.left(), box.top(), line, size - 2 * line, color);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(color, line * 1.2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(box.left() + 2.5 * line, box.top() + 2.5 * line),
                     QPointF(box.right() - 0.5 * line, box.bottom() - 0.5 * line));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const QPointF tip(box.right() + 1, box.bottom() + 1);
    const qreal wing = 4.0 * line;
    const QPointF head[] = {tip, tip - QPointF(wing, 0), tip - QPointF(0, wing)};
    painter.drawPolygon(head, 3);
    painter.restore();
    if (option.has(RibbonState::Focus))
        drawFocus(painter, option);
}

void RibbonPainter::drawCollapsedGroup(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const Element element = ByState(option, Element::Button, Element::CollapsedGroupHover,
                                    Element::CollapsedGroupPressed);
    const bool framed = theme.family() == Family::Office2007;
    painter.save();
    const QRect body = framed ? option.rect.adjusted(0, 0, -1, -1) : option.rect;
    if (element != Element::Button)
        drawLook(painter, body, theme[element], theme.cornerRadius());
    else if (framed)
        drawLook(painter, body, theme[Element::CollapsedGroup], theme.cornerRadius());

    // The icon stands in a small frame of its own, so that it is told from a button of a group.
    const QFontMetrics metrics(option.font);
    const int side = Px(option, 32);
    const int text_height = 2 * metrics.height();
    const int top = body.top() + std::max(Px(option, 4), (body.height() - side - text_height) / 4);
    const QRect frame(body.left() + (body.width() - side) / 2, top, side, side);
    ThemeLook frame_look = theme[Element::CollapsedGroup];
    drawLook(painter, frame, frame_look, theme.cornerRadius());
    const bool disabled = option.has(RibbonState::Disabled);
    DrawHelpers::drawIcon(painter, frame, option.icon, option.iconSize,
                          disabled ? QIcon::Disabled : QIcon::Normal, QIcon::Off, frame_look.text);

    const QColor ink = disabled ? theme[Element::Button].disabled : theme[element].text;
    const QStringList lines = splitText(option.text, option.font, Px(option, 9));
    const int text_top = frame.bottom() + 1 + Px(option, 3);
    const int arrow_size = std::max(Px(option, 5), metrics.height() / 3) | 1;
    for (int i = 0; i < lines.size(); ++i) {
        QRect line(body.left() + 1, text_top + i * metrics.height(), body.width() - 2, metrics.height());
        if (i == 1) {
            const int width =
                std::min(metrics.horizontalAdvance(lines[1]) + Px(option, 9), line.width());
            const QRect block(line.left() + (line.width() - width) / 2, line.top(), width, line.height());
            const QRect text = Visual(option, block, block.adjusted(0, 0, -Px(option, 9), 0));
            const QRect arrow = Visual(option, block, QRect(block.right() - Px(option, 9) + 1, block.top(),
                                                            Px(option, 9), block.height()));
            DrawLine(painter, text, Qt::AlignCenter, lines[1], ink, option);
            DrawHelpers::drawArrow(painter, arrow, Qt::DownArrow, ink, arrow_size);
        } else {
            DrawLine(painter, line, Qt::AlignCenter, lines[0], ink, option);
        }
    }
    if (lines.size() < 2)
        DrawHelpers::drawArrow(painter,
                               QRect(body.left(), text_top + metrics.height(), body.width(),
                                     metrics.height()),
                               Qt::DownArrow, ink, arrow_size);
    painter.restore();
    if (option.has(RibbonState::Focus))
        drawFocus(painter, option);
}

void RibbonPainter::drawPopup(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const ThemeLook& look = theme[Element::Page];
    DrawHelpers::drawFrame(painter, option.rect,
                           DrawHelpers::mix(look.border, theme[Element::Menu].border, 0.5),
                           PageBrush(look, option.rect));
}

} // namespace Qtitan
