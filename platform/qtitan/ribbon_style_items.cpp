#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"

#include <QApplication>
#include <QTreeView>

namespace Qtitan {
namespace style_draw {
namespace {

/// The look of a cell, or of a row's ground, in its state; View for a plain one.
Element ItemElement(const Canvas& canvas)
{
    if (canvas.has(QStyle::State_Selected))
        return canvas.enabled() && canvas.has(QStyle::State_Active) ? Element::ItemSelected
                                                                    : Element::ItemSelectedInactive;
    return canvas.hovered() ? Element::ItemHover : Element::View;
}

/// Frames the cells of a row as one: lines above and below, at the sides only at its ends.
void DrawItemGround(const Canvas& canvas, const ThemeLook& look,
                    QStyleOptionViewItem::ViewItemPosition position)
{
    FillGround(canvas, canvas.rect(), look);
    if (look.border.alpha() == 0)
        return;
    const QRect& rect = canvas.rect();
    QPainter& painter = *canvas.painter;
    painter.fillRect(rect.left(), rect.top(), rect.width(), 1, look.border);
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, look.border);
    const bool mirrored = canvas.rightToLeft();
    const bool starts = position != QStyleOptionViewItem::Middle && position != QStyleOptionViewItem::End;
    const bool ends = position != QStyleOptionViewItem::Middle && position != QStyleOptionViewItem::Beginning;
    if (mirrored ? ends : starts)
        painter.fillRect(rect.left(), rect.top(), 1, rect.height(), look.border);
    if (mirrored ? starts : ends)
        painter.fillRect(rect.right(), rect.top(), 1, rect.height(), look.border);
}

void DrawItemPanel(const Canvas& canvas)
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(canvas.option);
    if (!item)
        return;
    if (item->backgroundBrush.style() != Qt::NoBrush)
        canvas.painter->fillRect(item->rect, item->backgroundBrush);
    const Element element = ItemElement(canvas);
    if (element == Element::View)
        return;
    // A tree's row begins before its first cell, with what DrawItemRow draws.
    using Position = QStyleOptionViewItem;
    Position::ViewItemPosition position = item->viewItemPosition;
    if (qobject_cast<const QTreeView*>(canvas.widget)) {
        if (position == Position::Beginning)
            position = Position::Middle;
        else if (position == Position::OnlyOne)
            position = Position::End;
    }
    DrawItemGround(canvas, canvas.look(element), position);
}

void DrawItemRow(const Canvas& canvas)
{
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(canvas.option);
    if (!item)
        return;
    if (item->features & QStyleOptionViewItem::Alternate)
        canvas.painter->fillRect(item->rect, item->palette.brush(QPalette::AlternateBase));
    // What lies before the first cell of a tree belongs to the row.
    const Element element = ItemElement(canvas);
    if (element != Element::View && qobject_cast<const QTreeView*>(canvas.widget))
        DrawItemGround(canvas, canvas.look(element), QStyleOptionViewItem::Beginning);
}

void DrawDropMark(const Canvas& canvas)
{
    const QColor line = DrawHelpers::legible(canvas.theme.family() == RibbonTheme::Family::Office2013
                                                 ? canvas.theme.accent()
                                                 : canvas.look(Element::EditFocus).border,
                                             {canvas.look(Element::View).middle}, 3.0);
    const QRect& rect = canvas.rect();
    QPainter& painter = *canvas.painter;
    painter.save();
    if (rect.height() == 0) {
        painter.fillRect(rect.left(), rect.top() - 1, rect.width(), 2, line);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(line, 1.5));
        painter.setBrush(canvas.look(Element::View).middle);
        painter.drawEllipse(QPointF(rect.left() + 3, rect.top()), 2.5, 2.5);
    } else {
        painter.setPen(QPen(line, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect.adjusted(0, 0, -1, -1));
    }
    painter.restore();
}

void DrawHeaderSection(const Canvas& canvas)
{
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(canvas.option);
    const bool sunken = canvas.has(QStyle::State_Sunken);
    const ThemeLook& look = canvas.look(!canvas.enabled() ? Element::Header
                                        : sunken          ? Element::HeaderPressed
                                        : canvas.hovered() ? Element::HeaderHover
                                                           : Element::Header);
    const QColor line = canvas.look(Element::Header).border;
    const QRect& rect = canvas.rect();
    FillGround(canvas, rect, look);
    QPainter& painter = *canvas.painter;
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, line);
    const bool vertical = header && header->orientation == Qt::Vertical;
    const bool last = header
                      && (header->position == QStyleOptionHeader::End
                          || header->position == QStyleOptionHeader::OnlyOneSection);
    if (last && !vertical)
        return;
    const int inset = vertical ? 0 : std::min(Px(canvas.widget, 3), rect.height() / 4);
    const int edge = canvas.rightToLeft() ? rect.left() : rect.right();
    painter.fillRect(edge, rect.top() + inset, 1, rect.height() - 2 * inset, line);
}

} // namespace

QRect HeaderRect(const QStyleOptionHeader& header, QStyle::SubElement element, const QStyle* style,
                 const QWidget* widget)
{
    const int margin = style->pixelMetric(QStyle::PM_HeaderMargin, &header, widget);
    const int arrow = header.sortIndicator == QStyleOptionHeader::None ? 0 : Px(widget, 9);
    const QRect inner = header.rect.adjusted(margin, 0, -margin, 0);
    QRect rect = inner;
    if (element == QStyle::SE_HeaderArrow) {
        // On the middle of the text's small letters.
        rect.setLeft(std::max(inner.left(), inner.right() + 1 - arrow));
        rect.adjust(0, 2, 0, 0);
    } else if (arrow > 0) {
        rect.setRight(std::max(inner.left(), inner.right() - arrow - margin / 2));
    }
    return QStyle::visualRect(header.direction, header.rect, rect);
}

bool DrawItemPrimitive(QStyle::PrimitiveElement element, const Canvas& canvas)
{
    switch (element) {
    case QStyle::PE_PanelItemViewItem:
        DrawItemPanel(canvas);
        return true;
    case QStyle::PE_PanelItemViewRow:
        DrawItemRow(canvas);
        return true;
    case QStyle::PE_IndicatorItemViewItemDrop:
        // Views ask for it without a place too, while nothing may be dropped where the pointer is.
        if (!canvas.option->rect.isNull())
            DrawDropMark(canvas);
        return true;
    default:
        return false;
    }
}

bool DrawItemControl(QStyle::ControlElement element, const Canvas& canvas)
{
    switch (element) {
    case QStyle::CE_ItemViewItem: {
        const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(canvas.option);
        if (!item)
            return false;
        QStyleOptionViewItem cell = *item;
        const Element state = ItemElement(canvas);
        if (state != Element::View) {
            const ThemeLook& look = canvas.look(state);
            cell.palette = TextPalette(cell.palette, QPalette::HighlightedText, look);
            // A colour that the model gave to the text stays as long as it reads.
            const QPalette::ColorGroup group = canvas.enabled() ? QPalette::Active : QPalette::Disabled;
            const QColor own = cell.palette.color(group, QPalette::Text);
            const bool usual = canvas.enabled() && own == QApplication::palette().color(QPalette::Text);
            const QColor text = DrawHelpers::legible(usual ? look.text : own, look.grounds(),
                                                     canvas.enabled() ? RibbonTheme::TextContrast
                                                                      : RibbonTheme::DisabledContrast);
            for (const QPalette::ColorGroup each : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
                cell.palette.setColor(each, QPalette::Text, text);
        }
        if (!cell.icon.isNull())
            cell.icon = DrawHelpers::visibleIcon(
                cell.icon, cell.decorationSize, canvas.painter->device()->devicePixelRatioF(),
                state == Element::View ? cell.palette.color(QPalette::Active, QPalette::Text)
                                       : canvas.look(state).text);
        canvas.style->drawControl(element, &cell, canvas.painter, canvas.widget);
        return true;
    }
    case QStyle::CE_HeaderSection:
        DrawHeaderSection(canvas);
        return true;
    case QStyle::CE_HeaderEmptyArea: {
        const ThemeLook& look = canvas.look(Element::Header);
        FillGround(canvas, canvas.rect(), look);
        canvas.painter->fillRect(canvas.rect().left(), canvas.rect().bottom(), canvas.rect().width(), 1,
                                 look.border);
        return true;
    }
    case QStyle::CE_HeaderLabel: {
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(canvas.option);
        if (!header)
            return false;
        QStyleOptionHeader label = *header;
        const bool sunken = canvas.has(QStyle::State_Sunken);
        label.palette = TextPalette(label.palette, QPalette::ButtonText,
                                    canvas.look(sunken             ? Element::HeaderPressed
                                                : canvas.hovered() ? Element::HeaderHover
                                                                   : Element::Header));
        canvas.style->drawControl(element, &label, canvas.painter, canvas.widget);
        return true;
    }
    default:
        return false;
    }
}

} // namespace style_draw
} // namespace Qtitan
