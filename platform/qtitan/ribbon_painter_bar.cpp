#include "ribbon_paint_util_p.h"

#include "draw_helpers.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace Qtitan {

using namespace paint_util;
using Family = RibbonTheme::Family;

namespace {

QColor WithAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

/// A pen line of the window buttons: as thick as the resolution asks, on whole pixels.
void DrawCaptionGlyph(QPainter& painter, const RibbonPaintOption& option, RibbonCaptionButton button,
                      const QColor& color)
{
    const int size = Px(option, 10);
    const qreal width = Px(option, 1);
    const QPointF centre = QRectF(option.rect).center();
    const QRectF box(std::floor(centre.x() - size / 2.0), std::floor(centre.y() - size / 2.0), size, size);
    const QRectF inner = box.adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int step = Px(option, 2);
    switch (button) {
    case RibbonCaptionButton::Minimize:
        painter.fillRect(QRectF(box.left(), std::floor(box.center().y()), size, width), color);
        break;
    case RibbonCaptionButton::Maximize:
        painter.drawRect(inner);
        break;
    case RibbonCaptionButton::Restore: {
        painter.drawRect(inner.adjusted(0, step, -step, 0));
        QPainterPath back;
        back.moveTo(inner.left() + step, inner.top() + step);
        back.lineTo(inner.left() + step, inner.top());
        back.lineTo(inner.right(), inner.top());
        back.lineTo(inner.right(), inner.bottom() - step);
        back.lineTo(inner.right() - step, inner.bottom() - step);
        painter.drawPath(back);
        break;
    }
    case RibbonCaptionButton::Close:
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(color, width * 1.15, Qt::SolidLine, Qt::SquareCap));
        painter.drawLine(inner.topLeft(), inner.bottomRight());
        painter.drawLine(inner.topRight(), inner.bottomLeft());
        break;
    case RibbonCaptionButton::Help: {
        QFont font = option.font;
        font.setBold(true);
        font.setPixelSize(Px(option, 13));
        painter.setFont(font);
        painter.drawText(option.rect, Qt::AlignCenter, QStringLiteral("?"));
        break;
    }
    }
}

const ThemeLook& CaptionLook(const RibbonPaintOption& option)
{
    return RibbonTheme::current()[option.has(RibbonState::Inactive) ? Element::CaptionInactive
                                                                    : Element::Caption];
}

/// The look of a tab in its state; of a contextual one in its colour.
ThemeLook TabLook(const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool selected = option.has(RibbonState::Checked);
    const bool hover = (option.has(RibbonState::Hover) || option.has(RibbonState::Pressed))
                       && !option.has(RibbonState::Disabled);
    const Element element = selected ? hover ? Element::TabSelectedHover : Element::TabSelected
                            : hover  ? Element::TabHover
                                     : Element::TabStrip;
    if (!option.contextColor.isValid())
        return theme[element];
    if (theme.isHighContrast())
        return theme[element];
    if (theme.family() != Family::Office2013)
        return theme.tinted(element, option.contextColor, selected ? 0.12 : hover ? 0.30 : 0.20);
    // The flat themes write the colour instead of wearing it.
    ThemeLook look = theme.tinted(element, option.contextColor, selected ? 0.0 : hover ? 0.14 : 0.0);
    if (!selected && !hover)
        look.top = look.middle = look.bottom = QColor(0, 0, 0, 0);
    const ThemeLook& ground = look.isTransparent() ? theme[Element::TabStrip] : look;
    look.text = DrawHelpers::legible(option.contextColor, ground.grounds(), RibbonTheme::TextContrast);
    look.border = selected ? theme[element].border : QColor(0, 0, 0, 0);
    return look;
}

void DrawTabGround(QPainter& painter, const RibbonPaintOption& option, const ThemeLook& look)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool selected = option.has(RibbonState::Checked);
    const bool hover = option.has(RibbonState::Hover) || option.has(RibbonState::Pressed);
    const int radius = theme.cornerRadius();
    const bool context = option.contextColor.isValid();
    if (!selected && !context && (!hover || option.has(RibbonState::Disabled) || look.isTransparent()))
        return;
    // A tab that is not selected stands on the line of the page, the selected one opens it. One of a
    // context hangs together with the title above it.
    const QRect rect = selected ? option.rect : option.rect.adjusted(0, context ? 0 : Px(option, 1), 0, -1);
    if (!selected && context) {
        // The colour comes from above and fades towards the page.
        if (!look.isTransparent()) {
            const ThemeLook& strip = theme[Element::TabStrip];
            QLinearGradient fade(rect.topLeft(), QPointF(rect.left(), rect.bottom() + 1));
            fade.setColorAt(0.0, look.top);
            fade.setColorAt(1.0, radius > 0 ? DrawHelpers::mix(look.bottom, strip.bottom, 0.35) : look.bottom);
            painter.fillRect(rect, fade);
        }
        if (radius > 0 && look.border.alpha()) {
            painter.fillRect(rect.left(), rect.top(), 1, rect.height(), look.border);
            painter.fillRect(rect.right(), rect.top(), 1, rect.height(), look.border);
        }
    } else {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, radius > 0);
        painter.setClipRect(rect, Qt::IntersectClip);
        const QRectF outline = QRectF(rect).adjusted(0.5, 0.5, -0.5, 0.5);
        painter.setBrush(SurfaceBrush(look, rect));
        painter.setPen(look.border.alpha() ? QPen(look.border, 1) : QPen(Qt::NoPen));
        if (radius > 0) {
            painter.drawPath(TopRounded(outline, radius));
        } else {
            painter.fillRect(rect, SurfaceBrush(look, rect));
            if (look.border.alpha()) {
                painter.fillRect(rect.left(), rect.top(), rect.width(), 1, look.border);
                painter.fillRect(rect.left(), rect.top(), 1, rect.height(), look.border);
                painter.fillRect(rect.right(), rect.top(), 1, rect.height(), look.border);
            }
        }
        painter.restore();
    }
}

} // namespace

void RibbonPainter::drawCaption(QPainter& painter, const RibbonPaintOption& option)
{
    const ThemeLook& look = CaptionLook(option);
    painter.save();
    FillSurface(painter, option.rect, look);
    const QRect title = option.anchor.isNull() ? option.rect : option.anchor;
    DrawLine(painter, title.adjusted(Px(option, 6), 0, -Px(option, 6), 0), Qt::AlignCenter,
             option.text, look.text, option);
    painter.restore();
}

void RibbonPainter::drawCaptionButton(QPainter& painter, const RibbonPaintOption& option,
                                      RibbonCaptionButton button)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool close = button == RibbonCaptionButton::Close;
    const Element normal = option.has(RibbonState::Inactive) ? Element::CaptionInactive : Element::Caption;
    const Element element =
        ByState(option, normal, close ? Element::CaptionCloseHover : Element::CaptionButtonHover,
                close ? Element::CaptionClosePressed : Element::CaptionButtonPressed);
    painter.save();
    if (element != normal) {
        const bool flat = theme.family() == Family::Office2013;
        drawLook(painter, flat ? option.rect : option.rect.adjusted(1, 1, -1, -1), theme[element],
                 theme.cornerRadius());
    }
    DrawCaptionGlyph(painter, option, button, textColor(element, option));
    painter.restore();
}

void RibbonPainter::drawWindowFrame(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool accent = theme.family() == Family::Office2013 && !option.has(RibbonState::Inactive);
    DrawHelpers::drawFrame(painter, option.rect, accent ? theme.accent() : CaptionLook(option).border,
                           Qt::NoBrush);
}

void RibbonPainter::drawTabStrip(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    FillSurface(painter, option.rect, theme[Element::TabStrip]);
    if (!option.has(RibbonState::Minimized))
        painter.fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1,
                         theme[Element::Page].border);
}

void RibbonPainter::drawTab(QPainter& painter, const RibbonPaintOption& option)
{
    const ThemeLook look = TabLook(option);
    painter.save();
    DrawTabGround(painter, option, look);
    const int inset = Px(option, 2);
    DrawLine(painter, option.rect.adjusted(inset, Px(option, 1), -inset, 0), Qt::AlignCenter,
             option.text, option.has(RibbonState::Disabled) ? look.disabled : look.text, option);
    painter.restore();
    if (option.has(RibbonState::Focus)) {
        RibbonPaintOption focus = option;
        focus.rect = option.rect.adjusted(3, 3, -3, -2);
        focus.contextColor = look.text;
        drawFocus(painter, focus);
    }
}

void RibbonPainter::drawTabSeparator(QPainter& painter, const RibbonPaintOption& option)
{
    const QRect line(option.rect.center().x(), option.rect.top() + Px(option, 4), 1,
                     option.rect.height() - Px(option, 7));
    QLinearGradient fade(line.topLeft(), line.bottomLeft());
    const ThemeLook& strip = RibbonTheme::current()[Element::TabStrip];
    const QColor color = DrawHelpers::mix(strip.middle, strip.text, 0.35);
    fade.setColorAt(0.0, WithAlpha(color, 0));
    fade.setColorAt(0.4, color);
    fade.setColorAt(1.0, color);
    painter.fillRect(line, fade);
}

void RibbonPainter::drawContextTitle(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool flat = theme.family() == Family::Office2013;
    const ThemeLook look = theme.tinted(Element::Caption, option.contextColor, flat ? 0.14 : 0.3);
    painter.save();
    FillSurface(painter, option.rect, look);
    const QColor color = option.contextColor.isValid() ? option.contextColor : look.border;
    painter.fillRect(option.rect.left(), option.rect.top(), option.rect.width(), Px(option, flat ? 4 : 3), color);
    if (!flat) {
        painter.fillRect(option.rect.left(), option.rect.top(), 1, option.rect.height(), look.border);
        painter.fillRect(option.rect.right(), option.rect.top(), 1, option.rect.height(), look.border);
    }
    DrawLine(painter, option.rect.adjusted(Px(option, 6), Px(option, 3), -Px(option, 6), 0),
             Qt::AlignCenter, option.text, look.text, option);
    painter.restore();
}

void RibbonPainter::drawScrollButton(QPainter& painter, const RibbonPaintOption& option,
                                     Qt::ArrowType arrow)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const Element element = ByState(option, Element::ScrollButton, Element::ScrollButtonHover,
                                    Element::ScrollButtonPressed);
    ThemeLook look = theme[element];
    if (look.border.alpha() == 0)
        look.border = theme[Element::ScrollButton].border;
    drawLook(painter, option.rect, look, theme.cornerRadius());
    DrawHelpers::drawArrow(painter, option.rect, arrow, textColor(element, option), Px(option, 5));
}

void RibbonPainter::drawMinimizeButton(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const Element element =
        ByState(option, Element::TabStrip, Element::StripHover, Element::StripPressed);
    painter.save();
    if (element != Element::TabStrip)
        drawLook(painter, option.rect, theme[element], theme.cornerRadius());
    const QColor color = textColor(element, option);
    if (option.has(RibbonState::Peek)) {
        // A pin: keep the page that peeks open.
        const int size = Px(option, 9);
        const QRect box(option.rect.center().x() - size / 2, option.rect.center().y() - size / 2, size, size);
        const int line = Px(option, 1);
        painter.fillRect(box.left() + size / 4, box.top(), size - 2 * (size / 4), line, color);
        painter.fillRect(box.left() + size / 3, box.top(), line, size / 2 + 1, color);
        painter.fillRect(box.right() - size / 3 - line, box.top(), 2 * line, size / 2 + 1, color);
        painter.fillRect(box.left(), box.top() + size / 2 + 1, size, line, color);
        painter.fillRect(box.center().x(), box.top() + size / 2 + 1, line, size - size / 2, color);
    } else {
        DrawHelpers::drawChevron(painter, option.rect,
                                 option.has(RibbonState::Minimized) ? Qt::DownArrow : Qt::UpArrow,
                                 color, Px(option, 8), 1.5 * option.scale);
    }
    painter.restore();
    if (option.has(RibbonState::Focus))
        drawFocus(painter, option);
}

void RibbonPainter::drawSystemButton(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const Element element = ByState(option, Element::SystemButton, Element::SystemButtonHover,
                                    Element::SystemButtonPressed);
    const ThemeLook& look = theme[element];
    const QColor ink = textColor(element, option);
    const bool text = !option.text.isEmpty();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, theme.cornerRadius() > 0);
    painter.setBrush(ButtonBrush(look, option.rect));
    painter.setPen(look.border.alpha() ? QPen(look.border, 1) : QPen(Qt::NoPen));
    // The word stands on the line of the tabs' titles.
    const int lowered = text ? Px(option, 2) : 0;
    QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (theme.family() == Family::Office2007) {
        if (text)
            outline.adjust(0, lowered, 0, 0);
        // A drop of glass: round for an icon alone, a pill for text.
        const qreal radius = text ? theme.cornerRadius() + 1 : outline.height() / 2;
        QRectF round = outline;
        if (!text) {
            const qreal side = std::min(outline.width(), outline.height());
            round = QRectF(outline.center() - QPointF(side / 2, side / 2), QSizeF(side, side));
        }
        painter.drawRoundedRect(round, radius, radius);
        painter.setPen(QPen(QColor(255, 255, 255, 120), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(round.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    } else if (theme.cornerRadius() > 0) {
        painter.drawPath(TopRounded(outline.adjusted(0, 0, 0, 1), theme.cornerRadius()));
    } else {
        painter.fillRect(option.rect, look.middle);
    }
    QRect content = option.rect.adjusted(0, 2 * lowered, 0, 0);
    if (!option.icon.isNull()) {
        QRect icon(QPoint(), option.iconSize);
        icon.moveCenter(content.center());
        if (text) {
            icon.moveLeft(content.left() + Px(option, 5));
            content.setLeft(icon.right() + Px(option, 3));
            icon = Visual(option, option.rect, icon);
            content = Visual(option, option.rect, content);
        }
        DrawHelpers::drawIcon(painter, icon, option.icon, option.iconSize,
                              option.has(RibbonState::Disabled) ? QIcon::Disabled : QIcon::Normal,
                              QIcon::Off, ink);
    } else if (!text) {
        // Without either, the three bars that everybody knows for a menu.
        const int width = Px(option, 12);
        const int line = Px(option, 2);
        const int left = content.center().x() - width / 2;
        const int top = content.center().y() - line * 2 - line / 2;
        for (int i = 0; i < 3; ++i)
            painter.fillRect(left, top + i * 2 * line, width, line, ink);
    }
    DrawLine(painter, content, Qt::AlignCenter, option.text, ink, option);
    painter.restore();
    if (option.has(RibbonState::Focus)) {
        RibbonPaintOption focus = option;
        focus.rect = option.rect.adjusted(2, 2, -2, -2);
        focus.contextColor = ink;
        drawFocus(painter, focus);
    }
}

void RibbonPainter::drawQuickAccessBar(QPainter& painter, const RibbonPaintOption& option)
{
    if (!option.has(RibbonState::Themed))
        FillSurface(painter, option.rect, CaptionLook(option));
}

void RibbonPainter::drawQuickAccessOverflow(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const bool flat = theme.family() == Family::Office2013;
    const Element element =
        ByState(option, Element::Caption, flat ? Element::CaptionButtonHover : Element::ButtonHover,
                flat ? Element::CaptionButtonPressed : Element::ButtonPressed);
    painter.save();
    if (element != Element::Caption)
        drawLook(painter, option.rect, theme[element], theme.cornerRadius());
    const QColor color = textColor(element, option);
    const int size = Px(option, 5);
    const QRect below = option.rect.translated(0, Px(option, 2));
    DrawHelpers::drawArrow(painter, below, Qt::DownArrow, color, size);
    painter.fillRect(QRectF(option.rect.center().x() + 0.5 - size / 2.0,
                            option.rect.center().y() - Px(option, 3), size, Px(option, 1)),
                     color);
    painter.restore();
    if (option.has(RibbonState::Focus))
        drawFocus(painter, option);
}

} // namespace Qtitan
