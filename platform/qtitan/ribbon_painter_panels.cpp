#include "ribbon_paint_util_p.h"

#include "draw_helpers.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace Qtitan {

using namespace paint_util;
using Family = RibbonTheme::Family;

void RibbonPainter::drawBackstage(QPainter& painter, const RibbonPaintOption& option)
{
    FillSurface(painter, option.rect, RibbonTheme::current()[Element::BackstagePage]);
}

void RibbonPainter::drawBackstageColumn(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    FillSurface(painter, option.rect, theme[Element::BackstageColumn]);
    if (theme.isHighContrast()) {
        const int edge = option.direction == Qt::RightToLeft ? option.rect.left() : option.rect.right();
        painter.fillRect(edge, option.rect.top(), 1, option.rect.height(),
                         theme[Element::BackstageColumn].border);
    }
}

void RibbonPainter::drawBackstageBack(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const Element element = ByState(option, Element::BackstageColumn, Element::BackstageHover,
                                    Element::BackstagePressed);
    const int side = std::min({Px(option, 34), option.rect.width(), option.rect.height()});
    QRect circle(option.rect.left(), option.rect.top() + (option.rect.height() - side) / 2, side, side);
    if (option.rect.width() > 2 * option.rect.height())
        circle.moveLeft(option.rect.left() + Px(option, 25));
    else
        circle.moveLeft(option.rect.left() + (option.rect.width() - side) / 2);
    circle = Visual(option, option.rect, circle);
    const QColor ink = textColor(element, option);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const qreal width = 2.0 * option.scale;
    const QRectF ring = QRectF(circle).adjusted(width / 2 + 0.5, width / 2 + 0.5, -width / 2 - 0.5,
                                                -width / 2 - 0.5);
    painter.setPen(QPen(ink, width * 0.85));
    painter.setBrush(element == Element::BackstageColumn ? QBrush(Qt::NoBrush)
                                                         : QBrush(theme[element].middle));
    painter.drawEllipse(ring);
    painter.translate(ring.center());
    if (option.direction == Qt::RightToLeft)
        painter.scale(-1, 1);
    const qreal reach = side * 0.22;
    painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawLine(QPointF(-reach * 0.85, 0), QPointF(reach, 0));
    const QPointF head[] = {QPointF(0, -reach), QPointF(-reach, 0), QPointF(0, reach)};
    painter.drawPolyline(head, 3);
    painter.restore();
    if (option.has(RibbonState::Focus)) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ink, 1, Qt::DotLine));
        painter.drawEllipse(QRectF(circle).adjusted(-2.5, -2.5, 2.5, 2.5));
        painter.restore();
    }
}

void RibbonPainter::drawBackstageRow(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    Element element = ByState(option, Element::BackstageColumn, Element::BackstageHover,
                              Element::BackstagePressed);
    if (option.has(RibbonState::Checked) && element != Element::BackstagePressed)
        element = Element::BackstageSelected;
    painter.save();
    if (element != Element::BackstageColumn)
        FillSurface(painter, option.rect, theme[element]);
    const QColor ink = textColor(element, option);
    const int inset = Px(option, 25);
    QRect text = option.rect.adjusted(inset, 0, -Px(option, 8), 0);
    if (!option.icon.isNull()) {
        QRect icon(QPoint(text.left(), 0), option.iconSize);
        icon.moveTop(option.rect.top() + (option.rect.height() - icon.height()) / 2);
        text.setLeft(icon.right() + 1 + Px(option, 8));
        DrawHelpers::drawIcon(painter, Visual(option, option.rect, icon), option.icon, option.iconSize,
                              option.has(RibbonState::Disabled) ? QIcon::Disabled : QIcon::Normal,
                              QIcon::Off, ink);
    }
    DrawLine(painter, Visual(option, option.rect, text), Qt::AlignLeading | Qt::AlignVCenter,
             option.text, ink, option);
    if (option.has(RibbonState::Focus))
        DrawHelpers::drawFrame(painter, option.rect.adjusted(2, 2, -2, -2), ink, Qt::NoBrush);
    painter.restore();
}

void RibbonPainter::drawBackstageSeparator(QPainter& painter, const RibbonPaintOption& option)
{
    const ThemeLook& look = RibbonTheme::current()[Element::BackstageColumn];
    const int inset = Px(option, 25);
    painter.fillRect(option.rect.left() + inset, option.rect.center().y(),
                     option.rect.width() - 2 * inset, 1, DrawHelpers::mix(look.middle, look.text, 0.35));
}

void RibbonPainter::drawKeyTip(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const ThemeLook& look = theme[Element::KeyTip];
    painter.save();
    // Round in every family: a badge is told from what it lies on by its shape.
    DrawHelpers::drawFrame(painter, option.rect, look.border, ButtonBrush(look, option.rect),
                           Px(option, 2));
    DrawLine(painter, option.rect, Qt::AlignCenter, option.text,
             option.has(RibbonState::Disabled) ? look.disabled : look.text, option);
    painter.restore();
}

QSize RibbonPainter::keyTipSize(const QString& text, const QFont& font)
{
    const QFontMetrics metrics(font);
    const int height = metrics.height() + 2;
    return QSize(std::max(height, metrics.horizontalAdvance(text) + metrics.averageCharWidth() + 2),
                 height);
}

void RibbonPainter::drawToolTipPanel(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    const ThemeLook& look = theme[Element::ToolTip];
    DrawHelpers::drawFrame(painter, option.rect, look.border, SurfaceBrush(look, option.rect));
}

void RibbonPainter::drawGallery(QPainter& painter, const RibbonPaintOption& option)
{
    const ThemeLook& look = RibbonTheme::current()[Element::Gallery];
    DrawHelpers::drawFrame(painter, option.rect, look.border, look.middle);
}

void RibbonPainter::drawGalleryHeading(QPainter& painter, const RibbonPaintOption& option)
{
    const ThemeLook& look = RibbonTheme::current()[Element::GalleryHeading];
    painter.save();
    FillSurface(painter, option.rect, look);
    if (look.border.alpha())
        painter.fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, look.border);
    RibbonPaintOption bold = option;
    bold.font.setBold(true);
    DrawLine(painter, option.rect.adjusted(Px(option, 6), 0, -Px(option, 6), 0),
             Qt::AlignLeading | Qt::AlignVCenter, option.text,
             option.has(RibbonState::Disabled) ? look.disabled : look.text, bold);
    painter.restore();
}

void RibbonPainter::drawGalleryCell(QPainter& painter, const RibbonPaintOption& option)
{
    const RibbonTheme& theme = RibbonTheme::current();
    if (option.has(RibbonState::Disabled))
        return;
    const bool hover = option.has(RibbonState::Hover);
    const bool checked = option.has(RibbonState::Checked);
    if (!hover && !checked && !option.has(RibbonState::Pressed) && !option.has(RibbonState::Focus))
        return;
    const Element element = option.has(RibbonState::Pressed) ? Element::ButtonPressed
                            : hover && !checked              ? Element::GalleryHover
                            : checked                        ? Element::GallerySelected
                                                             : Element::Gallery;
    ThemeLook look = theme[element];
    // A cell is mostly covered by what it shows, so its frame has to carry the message.
    if (theme.family() == Family::Office2013 && !theme.isHighContrast())
        look.border = DrawHelpers::legible(
            checked ? theme.accent() : DrawHelpers::mix(theme[Element::Gallery].middle, theme.accent(), 0.7),
            {theme[Element::Gallery].middle}, checked ? 3.0 : 2.0);
    DrawHelpers::drawFrame(painter, option.rect, look.border, ButtonBrush(look, option.rect));
    if (checked && hover)
        DrawHelpers::drawFrame(painter, option.rect.adjusted(1, 1, -1, -1), look.border, Qt::NoBrush);
    if (option.has(RibbonState::Focus))
        drawFocus(painter, option);
}

void RibbonPainter::drawGalleryButton(QPainter& painter, const RibbonPaintOption& option,
                                      Qt::ArrowType arrow)
{
    drawScrollButton(painter, option, arrow);
}

} // namespace Qtitan
