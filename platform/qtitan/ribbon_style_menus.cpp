#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "ribbon_painter_p.h"

#include <QMenu>

namespace Qtitan {
namespace style_draw {
namespace {

constexpr int ItemPadding = 3;    ///< above and below
constexpr int TextGap = 8;        ///< between the column of icons and the text
constexpr int ShortcutGap = 24;
constexpr int ArrowSpace = 20;    ///< at the end: the arrow of a submenu, or air

int ColumnWidth(const QStyleOptionMenuItem& item, const QWidget* widget)
{
    return std::max(item.maxIconWidth, DrawHelpers::smallIconSize(96 * Scale(widget)))
           + Px(widget, 8);
}

QRect Mirrored(const Canvas& canvas, const QRect& rect)
{
    return QStyle::visualRect(canvas.option->direction, canvas.rect(), rect);
}

void DrawColumn(const Canvas& canvas, int width)
{
    const ThemeLook& column = canvas.look(Element::MenuColumn);
    const ThemeLook& menu = canvas.look(Element::Menu);
    canvas.painter->fillRect(canvas.rect(), menu.middle);
    if (column.middle == menu.middle)
        return;
    const QRect strip = Mirrored(canvas, QRect(canvas.rect().left(), canvas.rect().top(), width,
                                               canvas.rect().height()));
    canvas.painter->fillRect(strip, column.middle);
    canvas.painter->fillRect(canvas.rightToLeft() ? strip.left() : strip.right(), strip.top(), 1,
                             strip.height(), column.border);
}

void DrawSeparatorItem(const Canvas& canvas, const QStyleOptionMenuItem& item, int column)
{
    const QRect& rect = canvas.rect();
    if (!item.text.isEmpty() || !item.icon.isNull()) {
        const ThemeLook& look = canvas.look(Element::MenuHeading);
        canvas.painter->fillRect(rect, look.middle);
        if (look.border.alpha())
            canvas.painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, look.border);
        QFont font = item.font;
        font.setBold(true);
        canvas.painter->setFont(font);
        canvas.painter->setPen(look.text);
        QRect text = rect.adjusted(Px(canvas.widget, 6), 0, -Px(canvas.widget, 6), 0);
        if (!item.icon.isNull()) {
            const int extent = DrawHelpers::smallIconSize(96 * Scale(canvas.widget));
            const QRect icon(text.left(), rect.top(), extent, rect.height());
            DrawHelpers::drawIcon(*canvas.painter, Mirrored(canvas, icon), item.icon, QSize(extent, extent));
            text.setLeft(icon.right() + Px(canvas.widget, 4));
        }
        canvas.painter->drawText(Mirrored(canvas, text),
                                 static_cast<int>(QStyle::visualAlignment(item.direction, Qt::AlignLeft))
                                     | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic,
                                 item.text);
        return;
    }
    DrawColumn(canvas, column);
    const ThemeLook& look = canvas.look(Element::MenuColumn);
    const QRect line(rect.left() + column + Px(canvas.widget, 2), rect.center().y(),
                     rect.width() - column - Px(canvas.widget, 4), 1);
    canvas.painter->fillRect(Mirrored(canvas, line), look.border);
}

void DrawItemIcon(const Canvas& canvas, const QStyleOptionMenuItem& item, int column, const QColor& ink)
{
    const bool checkable = item.checkType != QStyleOptionMenuItem::NotCheckable;
    const bool checked = checkable && item.checked;
    const int extent = DrawHelpers::smallIconSize(96 * Scale(canvas.widget));
    const int side = std::min(extent + Px(canvas.widget, 6), canvas.rect().height() - 2);
    QRect box(0, 0, side, side);
    box.moveCenter(QPoint(canvas.rect().left() + column / 2, canvas.rect().center().y()));
    box = Mirrored(canvas, box);
    QColor mark = ink;
    if (checked) {
        ThemeLook look = canvas.look(Element::MenuChecked);
        if (!canvas.enabled()) {
            look = canvas.look(Element::Menu);
            look.border = look.disabled;
            mark = look.disabled;
        } else {
            mark = look.text;
        }
        DrawPanel(canvas, box, look, canvas.theme.cornerRadius());
    }
    if (!item.icon.isNull()) {
        DrawHelpers::drawIcon(*canvas.painter, box, item.icon, QSize(extent, extent),
                              !canvas.enabled()                     ? QIcon::Disabled
                              : canvas.has(QStyle::State_Selected) ? QIcon::Active
                                                                   : QIcon::Normal,
                              checked ? QIcon::On : QIcon::Off, mark);
        return;
    }
    if (!checked)
        return;
    if (item.checkType == QStyleOptionMenuItem::Exclusive) {
        canvas.painter->save();
        canvas.painter->setRenderHint(QPainter::Antialiasing, true);
        canvas.painter->setPen(Qt::NoPen);
        canvas.painter->setBrush(mark);
        const qreal radius = side / 6.0;
        canvas.painter->drawEllipse(QRectF(box).center(), radius, radius);
        canvas.painter->restore();
    } else {
        const int inset = side / 6;
        DrawHelpers::drawCheckMark(*canvas.painter, QRectF(box).adjusted(inset, inset, -inset, -inset), mark);
    }
}

void DrawMenuItem(const Canvas& canvas, const QStyleOptionMenuItem& item)
{
    QPainter& painter = *canvas.painter;
    const int column = ColumnWidth(item, canvas.widget);
    painter.save();
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        DrawSeparatorItem(canvas, item, column);
        painter.restore();
        return;
    }
    DrawColumn(canvas, column);
    const bool selected = canvas.has(QStyle::State_Selected);
    const bool enabled = canvas.enabled();
    const ThemeLook& look = canvas.look(selected && enabled ? Element::MenuItem : Element::Menu);
    if (selected && enabled)
        DrawPanel(canvas, canvas.rect().adjusted(1, 0, -1, 0), look, canvas.theme.cornerRadius());
    else if (selected)
        // Shows where the keyboard is, without promising anything.
        DrawHelpers::drawFrame(painter, canvas.rect().adjusted(1, 0, -1, 0),
                               canvas.look(Element::MenuColumn).border, Qt::NoBrush,
                               canvas.theme.cornerRadius());
    const QColor ink = enabled ? look.text : look.disabled;
    DrawItemIcon(canvas, item, column, ink);

    const QRect& rect = canvas.rect();
    const QRect text_rect(rect.left() + column + Px(canvas.widget, TextGap), rect.top(),
                          rect.width() - column - Px(canvas.widget, TextGap + ArrowSpace), rect.height());
    QFont font = item.font;
    if (item.menuItemType == QStyleOptionMenuItem::DefaultItem)
        font.setBold(true);
    painter.setFont(font);
    painter.setPen(ink);
    const int tab = item.text.indexOf(QLatin1Char('\t'));
    const bool underline = canvas.style->styleHint(QStyle::SH_UnderlineShortcut, &item, canvas.widget);
    const int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip
                      | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    const auto aligned = [&item](Qt::Alignment side) {
        return static_cast<int>(QStyle::visualAlignment(item.direction, side));
    };
    painter.drawText(Mirrored(canvas, text_rect), flags | aligned(Qt::AlignLeft),
                     tab < 0 ? item.text : item.text.left(tab));
    if (tab >= 0) {
        painter.setFont(item.font);
        painter.setPen(enabled ? DrawHelpers::legible(DrawHelpers::mix(ink, look.middle, 0.25),
                                                      look.grounds(), RibbonTheme::TextContrast)
                               : ink);
        painter.drawText(Mirrored(canvas, text_rect), flags | aligned(Qt::AlignRight),
                         item.text.mid(tab + 1));
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRect arrow(rect.right() - Px(canvas.widget, ArrowSpace - 4), rect.top(), Px(canvas.widget, 12),
                          rect.height());
        DrawHelpers::drawArrow(painter, Mirrored(canvas, arrow),
                               canvas.rightToLeft() ? Qt::LeftArrow : Qt::RightArrow, ink,
                               Px(canvas.widget, 7));
    }
    painter.restore();
}

void DrawMenuBarItem(const Canvas& canvas, const QStyleOptionMenuItem& item)
{
    const bool down = canvas.has(QStyle::State_Sunken);
    const bool over = canvas.has(QStyle::State_Selected);
    canvas.painter->fillRect(canvas.rect(), canvas.look(Element::Window).middle);
    const ThemeLook& look = canvas.look(!canvas.enabled() ? Element::Window
                                        : down            ? Element::ButtonPressed
                                        : over            ? Element::ButtonHover
                                                          : Element::Window);
    if (canvas.enabled() && (down || over))
        DrawPanel(canvas, canvas.rect(), look, canvas.theme.cornerRadius());
    canvas.painter->save();
    canvas.painter->setPen(canvas.enabled() ? look.text : look.disabled);
    const bool underline = canvas.style->styleHint(QStyle::SH_UnderlineShortcut, &item, canvas.widget);
    const int flags = Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip
                      | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    if (item.icon.isNull()) {
        canvas.painter->drawText(canvas.rect(), flags, item.text);
    } else {
        const int extent = DrawHelpers::smallIconSize(96 * Scale(canvas.widget));
        DrawHelpers::drawIcon(*canvas.painter, canvas.rect(), item.icon, QSize(extent, extent),
                              canvas.enabled() ? QIcon::Normal : QIcon::Disabled);
    }
    canvas.painter->restore();
}

} // namespace

QSize MenuItemSize(const QStyleOptionMenuItem& item, const QSize& contents, const QWidget* widget)
{
    const QFontMetrics metrics(item.font);
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        if (item.text.isEmpty() && item.icon.isNull())
            return QSize(Px(widget, 10), Px(widget, 5));
        QFont bold = item.font;
        bold.setBold(true);
        return QSize(QFontMetrics(bold).horizontalAdvance(item.text) + Px(widget, 32),
                     metrics.height() + Px(widget, 2 * ItemPadding));
    }
    int width = contents.width() + ColumnWidth(item, widget) + Px(widget, TextGap + ArrowSpace);
    if (item.text.contains(QLatin1Char('\t')))
        width += Px(widget, ShortcutGap);
    if (item.menuItemType == QStyleOptionMenuItem::DefaultItem) {
        QFont bold = item.font;
        bold.setBold(true);
        width += QFontMetrics(bold).horizontalAdvance(item.text) - metrics.horizontalAdvance(item.text);
    }
    const int icon = DrawHelpers::smallIconSize(96 * Scale(widget)) + Px(widget, 6);
    return QSize(width, std::max({contents.height(), metrics.height() + Px(widget, 2 * ItemPadding), icon}));
}

bool DrawMenuControl(QStyle::ControlElement element, const Canvas& canvas)
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(canvas.option);
    switch (element) {
    case QStyle::CE_MenuItem:
        if (!item)
            return false;
        DrawMenuItem(canvas, *item);
        return true;
    case QStyle::CE_MenuBarItem:
        if (!item)
            return false;
        DrawMenuBarItem(canvas, *item);
        return true;
    case QStyle::CE_MenuBarEmptyArea:
        canvas.painter->fillRect(canvas.rect(), canvas.look(Element::Window).middle);
        return true;
    case QStyle::CE_MenuEmptyArea:
    case QStyle::CE_MenuHMargin:
    case QStyle::CE_MenuVMargin:
        canvas.painter->fillRect(canvas.rect(), canvas.look(Element::Menu).middle);
        return true;
    case QStyle::CE_MenuScroller:
        canvas.painter->fillRect(canvas.rect(), canvas.look(Element::Menu).middle);
        DrawHelpers::drawArrow(*canvas.painter, canvas.rect(),
                               canvas.has(QStyle::State_DownArrow) ? Qt::DownArrow : Qt::UpArrow,
                               canvas.look(Element::Menu).text, Px(canvas.widget, 7));
        return true;
    default:
        return false;
    }
}

} // namespace style_draw
} // namespace Qtitan
