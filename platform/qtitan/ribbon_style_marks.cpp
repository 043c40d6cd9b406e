#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "ribbon_painter_p.h"

#include <QPainterPath>

namespace Qtitan {
namespace style_draw {

Element BoxElement(const Canvas& canvas)
{
    if (!canvas.enabled())
        return Element::EditDisabled;
    if (canvas.has(QStyle::State_Sunken))
        return Element::BoxPressed;
    return canvas.hovered() ? Element::BoxHover : Element::Box;
}

namespace {

QColor MarkColor(const Canvas& canvas, const ThemeLook& look)
{
    if (!canvas.enabled())
        return look.disabled;
    if (canvas.theme.family() == RibbonTheme::Family::Office2013 && !canvas.theme.isHighContrast())
        return DrawHelpers::legible(canvas.theme.accent(), look.grounds(), RibbonTheme::TextContrast);
    return look.text;
}

void DrawCheckBox(const Canvas& canvas)
{
    ThemeLook look = canvas.look(BoxElement(canvas));
    if (canvas.has(QStyle::State_Sunken) && canvas.enabled())
        look.border = canvas.look(Element::BoxHover).border;
    const QRect& rect = canvas.rect();
    DrawHelpers::drawFrame(*canvas.painter, rect, look.border, look.middle,
                           canvas.theme.cornerRadius() > 0 ? 1.5 : 0);
    const QColor mark = MarkColor(canvas, look);
    if (canvas.has(QStyle::State_NoChange)) {
        const int inset = std::max(3, rect.width() / 4);
        canvas.painter->fillRect(rect.adjusted(inset, inset, -inset, -inset), mark);
    } else if (canvas.has(QStyle::State_On)) {
        DrawHelpers::drawCheckMark(*canvas.painter, QRectF(rect).adjusted(1, 1, -1, -1), mark);
    }
}

void DrawRadioButton(const Canvas& canvas)
{
    ThemeLook look = canvas.look(BoxElement(canvas));
    if (canvas.has(QStyle::State_Sunken) && canvas.enabled())
        look.border = canvas.look(Element::BoxHover).border;
    QPainter& painter = *canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(look.border, 1));
    painter.setBrush(look.middle);
    const qreal side = std::min(canvas.rect().width(), canvas.rect().height());
    QRectF circle(0, 0, side - 1, side - 1);
    circle.moveCenter(QRectF(canvas.rect()).center());
    painter.drawEllipse(circle);
    if (canvas.has(QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(MarkColor(canvas, look));
        const qreal inset = side * 0.27;
        painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
}

void DrawArrowMark(const Canvas& canvas, Qt::ArrowType type)
{
    const QPalette& palette = canvas.option->palette;
    const int size = std::min({canvas.rect().width(), canvas.rect().height(), Px(canvas.widget, 7)});
    DrawHelpers::drawArrow(*canvas.painter, canvas.rect(), type,
                           palette.color(canvas.enabled() ? QPalette::Active : QPalette::Disabled,
                                         QPalette::ButtonText),
                           std::max(5, size));
}

QColor HeaderInk(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(!canvas.enabled()                  ? Element::Header
                                        : canvas.has(QStyle::State_Sunken) ? Element::HeaderPressed
                                        : canvas.hovered()                 ? Element::HeaderHover
                                                                           : Element::Header);
    return canvas.enabled() ? look.text : look.disabled;
}

/// Opens or closes a row of a tree.
void DrawBranch(const Canvas& canvas)
{
    if (!canvas.has(QStyle::State_Children))
        return;
    const bool open = canvas.has(QStyle::State_Open);
    const bool flat = canvas.theme.family() != RibbonTheme::Family::Office2007;
    const QColor text = canvas.option->palette.color(
        canvas.enabled() ? QPalette::Active : QPalette::Disabled,
        canvas.has(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text);
    const QColor ink = canvas.has(QStyle::State_Selected)
                           ? canvas.look(canvas.has(QStyle::State_Active) ? Element::ItemSelected
                                                                          : Element::ItemSelectedInactive)
                                 .text
                           : text;
    if (flat) {
        const Qt::ArrowType side = canvas.rightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
        DrawHelpers::drawChevron(*canvas.painter, canvas.rect(), open ? Qt::DownArrow : side, ink,
                                 Px(canvas.widget, 7), 1.4 * Scale(canvas.widget));
        return;
    }
    const int size = Px(canvas.widget, 9) | 1;
    QRect box(0, 0, size, size);
    box.moveCenter(canvas.rect().center());
    DrawHelpers::drawFrame(*canvas.painter, box, canvas.look(Element::PushButton).border,
                           canvas.look(Element::View).middle, 1.5);
    const int line = Px(canvas.widget, 1);
    const QColor sign = canvas.look(Element::View).text;
    canvas.painter->fillRect(box.left() + 2, box.center().y(), size - 4, line, sign);
    if (!open)
        canvas.painter->fillRect(box.center().x(), box.top() + 2, line, size - 4, sign);
}

void DrawHandleDots(const Canvas& canvas, const QRect& rect, Qt::Orientation along, int count,
                    const QColor& color)
{
    const int dot = Px(canvas.widget, 2);
    const int step = dot * 2;
    QPoint at = rect.center();
    if (along == Qt::Vertical)
        at -= QPoint(dot / 2, (count * step - dot) / 2);
    else
        at -= QPoint((count * step - dot) / 2, dot / 2);
    for (int i = 0; i < count; ++i) {
        const QPoint spot = along == Qt::Vertical ? at + QPoint(0, i * step) : at + QPoint(i * step, 0);
        canvas.painter->fillRect(QRect(spot, QSize(dot, dot)), color);
    }
}

void DrawToolBarHandle(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(Element::ToolBar);
    const QColor dots = DrawHelpers::mix(look.middle, look.text, 0.45);
    // A tool bar that lies has a handle that stands.
    const bool lies = canvas.has(QStyle::State_Horizontal);
    const int room = lies ? canvas.rect().height() : canvas.rect().width();
    const int count = std::max(2, (room - Px(canvas.widget, 8)) / (2 * Px(canvas.widget, 2)));
    DrawHandleDots(canvas, canvas.rect(), lies ? Qt::Vertical : Qt::Horizontal, count, dots);
}

void DrawToolBarSeparator(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(Element::ToolBar);
    const QColor line = DrawHelpers::mix(look.middle, look.text, 0.28);
    const QRect& rect = canvas.rect();
    const int inset = Px(canvas.widget, 3);
    if (canvas.has(QStyle::State_Horizontal))
        canvas.painter->fillRect(rect.center().x(), rect.top() + inset, 1, rect.height() - 2 * inset, line);
    else
        canvas.painter->fillRect(rect.left() + inset, rect.center().y(), rect.width() - 2 * inset, 1, line);
}

void DrawTabClose(const Canvas& canvas)
{
    const bool over = canvas.hovered() || canvas.has(QStyle::State_Raised);
    if (canvas.enabled() && over)
        DrawPanel(canvas, canvas.rect(), canvas.look(Element::ButtonHover), 2);
    const ThemeLook& look = canvas.look(over && canvas.enabled() ? Element::ButtonHover
                                                                 : Element::DocumentTabSelected);
    QPainter& painter = *canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(canvas.enabled() ? look.text : look.disabled, 1.3 * Scale(canvas.widget)));
    const qreal half = Px(canvas.widget, 7) / 2.0;
    const QPointF centre = QRectF(canvas.rect()).center();
    painter.drawLine(centre - QPointF(half, half), centre + QPointF(half, half));
    painter.drawLine(centre + QPointF(-half, half), centre + QPointF(half, -half));
    painter.restore();
}

} // namespace

bool DrawMarkPrimitive(QStyle::PrimitiveElement element, const Canvas& canvas)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
        DrawCheckBox(canvas);
        return true;
    case QStyle::PE_IndicatorRadioButton:
        DrawRadioButton(canvas);
        return true;
    case QStyle::PE_IndicatorArrowUp:
    case QStyle::PE_IndicatorSpinUp:
        DrawArrowMark(canvas, Qt::UpArrow);
        return true;
    case QStyle::PE_IndicatorArrowDown:
    case QStyle::PE_IndicatorSpinDown:
    case QStyle::PE_IndicatorButtonDropDown:
        DrawArrowMark(canvas, Qt::DownArrow);
        return true;
    case QStyle::PE_IndicatorArrowLeft:
        DrawArrowMark(canvas, Qt::LeftArrow);
        return true;
    case QStyle::PE_IndicatorArrowRight:
        DrawArrowMark(canvas, Qt::RightArrow);
        return true;
    case QStyle::PE_IndicatorHeaderArrow: {
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(canvas.option);
        if (header && header->sortIndicator != QStyleOptionHeader::None)
            DrawHelpers::drawArrow(*canvas.painter, canvas.rect(),
                                   header->sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow
                                                                                       : Qt::DownArrow,
                                   HeaderInk(canvas), Px(canvas.widget, 7));
        return true;
    }
    case QStyle::PE_IndicatorBranch:
        DrawBranch(canvas);
        return true;
    case QStyle::PE_IndicatorToolBarHandle:
        DrawToolBarHandle(canvas);
        return true;
    case QStyle::PE_IndicatorToolBarSeparator:
        DrawToolBarSeparator(canvas);
        return true;
    case QStyle::PE_IndicatorTabClose:
        DrawTabClose(canvas);
        return true;
    case QStyle::PE_IndicatorDockWidgetResizeHandle: {
        const ThemeLook& look = canvas.look(canvas.hovered() ? Element::ButtonHover : Element::Splitter);
        canvas.painter->fillRect(canvas.rect(), look.middle);
        // This one's orientation is that of the line it moves along.
        DrawHandleDots(canvas, canvas.rect(),
                       canvas.has(QStyle::State_Horizontal) ? Qt::Horizontal : Qt::Vertical, 5, look.text);
        return true;
    }
    default:
        return false;
    }
}

} // namespace style_draw
} // namespace Qtitan
