#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"

#include <QPainterPath>
#include <QTabBar>

namespace Qtitan {
namespace style_draw {
namespace {

enum class Side { North, South, West, East };

Side SideOf(QTabBar::Shape shape)
{
    switch (shape) {
    case QTabBar::RoundedSouth:
    case QTabBar::TriangularSouth:
        return Side::South;
    case QTabBar::RoundedWest:
    case QTabBar::TriangularWest:
        return Side::West;
    case QTabBar::RoundedEast:
    case QTabBar::TriangularEast:
        return Side::East;
    default:
        return Side::North;
    }
}

/// Maps a tab that stands on its lower edge, with its left top at (0, 0), to where it is.
QTransform Placement(Side side, const QRect& rect)
{
    QTransform transform;
    switch (side) {
    case Side::North:
        transform.translate(rect.left(), rect.top());
        break;
    case Side::South:
        transform.translate(rect.left(), rect.bottom() + 1);
        transform.scale(1, -1);
        break;
    case Side::West:
        transform.translate(rect.left(), rect.bottom() + 1);
        transform.rotate(-90);
        break;
    case Side::East:
        transform.translate(rect.right() + 1, rect.top());
        transform.rotate(90);
        break;
    }
    return transform;
}

ThemeLook TabLook(const Canvas& canvas)
{
    if (canvas.has(QStyle::State_Selected))
        return canvas.look(Element::DocumentTabSelected);
    return canvas.look(canvas.hovered() ? Element::DocumentTabHover : Element::DocumentTab);
}

void DrawTabShape(const Canvas& canvas, const QStyleOptionTab& tab)
{
    const Side side = SideOf(tab.shape);
    const bool upright = side == Side::North || side == Side::South;
    const QSize size = upright ? canvas.rect().size() : canvas.rect().size().transposed();
    const bool selected = canvas.has(QStyle::State_Selected);
    const ThemeLook look = TabLook(canvas);
    const QColor border = canvas.look(selected ? Element::TabPane : Element::DocumentTab).border;
    QPainter& painter = *canvas.painter;
    painter.save();
    painter.setTransform(Placement(side, canvas.rect()), true);
    // A tab in the back is lower by a little and ends on the line of the page.
    const QRectF body(0, selected ? 0 : Px(canvas.widget, 2), size.width(),
                      size.height() - (selected ? 0 : Px(canvas.widget, 2) + 1));
    painter.setClipRect(body);
    painter.setRenderHint(QPainter::Antialiasing, canvas.theme.cornerRadius() > 0);
    QLinearGradient gradient(body.topLeft(), body.bottomLeft());
    gradient.setColorAt(0.0, look.top);
    gradient.setColorAt(0.5, look.middle);
    gradient.setColorAt(1.0, look.bottom);
    const QRectF outline = body.adjusted(0.5, 0.5, selected ? -0.5 : 0.5, 6);
    painter.setPen(QPen(border, 1));
    painter.setBrush(gradient);
    painter.drawRoundedRect(outline, canvas.theme.cornerRadius(), canvas.theme.cornerRadius());
    const bool last = tab.position == QStyleOptionTab::End || tab.position == QStyleOptionTab::OnlyOneTab;
    if (!selected && last)
        painter.fillRect(QRectF(body.right() - 1, body.top() + 1, 1, body.height()), border);
    // The accent above the tab in front.
    if (selected && canvas.theme.family() == RibbonTheme::Family::Office2013 && canvas.enabled())
        painter.fillRect(QRectF(body.left(), body.top(), body.width(), Px(canvas.widget, 2)),
                         canvas.theme.isHighContrast() ? look.text : canvas.theme.accent());
    painter.restore();
}

/// Icon and text of a tab, turned with it when it stands.
void DrawTabLabel(const Canvas& canvas, const QStyleOptionTab& tab)
{
    const QStyle* style = canvas.style->proxy();
    QPainter& painter = *canvas.painter;
    const Side side = SideOf(tab.shape);
    const bool stands = side == Side::West || side == Side::East;
    const ThemeLook look = TabLook(canvas);
    // A colour set for this tab alone stays.
    const auto* bar = qobject_cast<const QTabBar*>(canvas.widget);
    const int index = bar ? bar->tabAt(tab.rect.center()) : -1;
    const QColor own = bar && index >= 0 ? bar->tabTextColor(index) : QColor();
    const QColor ink = !canvas.enabled() ? look.disabled : own.isValid() ? own : look.text;
    QRect text = style->subElementRect(QStyle::SE_TabBarTabText, &tab, canvas.widget);
    painter.save();
    if (stands) {
        const bool east = side == Side::East;
        painter.translate(east ? tab.rect.right() + 1 : tab.rect.left(),
                          east ? tab.rect.top() : tab.rect.bottom() + 1);
        painter.rotate(east ? 90 : -90);
    }
    if (!tab.icon.isNull()) {
        const int usual = style->pixelMetric(QStyle::PM_TabBarIconSize, &tab, canvas.widget);
        const QSize size = tab.iconSize.isValid() ? tab.iconSize : QSize(usual, usual);
        // The base keeps the icon's place to itself: it ends a gap before the text.
        const bool mirrored = !stands && canvas.rightToLeft();
        const int gap = 4;
        const QRect icon(mirrored ? text.right() + 1 + gap : text.left() - gap - size.width(),
                         text.center().y() - size.height() / 2 + (size.height() % 2 ? 0 : 1), size.width(),
                         size.height());
        DrawHelpers::drawIcon(painter, icon, tab.icon, size,
                              canvas.enabled() ? QIcon::Normal : QIcon::Disabled,
                              canvas.has(QStyle::State_Selected) ? QIcon::On : QIcon::Off, ink);
    }
    const bool underline = style->styleHint(QStyle::SH_UnderlineShortcut, &tab, canvas.widget);
    painter.setPen(ink);
    painter.drawText(text, Qt::AlignCenter | (underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), tab.text);
    if (canvas.has(QStyle::State_HasFocus) && canvas.has(QStyle::State_KeyboardFocusChange)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(tab);
        const QSize words = tab.fontMetrics.size(Qt::TextShowMnemonic, tab.text);
        focus.rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, words + QSize(6, 2), text);
        focus.backgroundColor = look.middle;
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, canvas.widget);
    }
    painter.restore();
}

} // namespace

bool DrawTabControl(QStyle::ControlElement element, const Canvas& canvas)
{
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(canvas.option);
    if (!tab)
        return false;
    if (element == QStyle::CE_TabBarTabShape) {
        DrawTabShape(canvas, *tab);
        return true;
    }
    if (element == QStyle::CE_TabBarTabLabel) {
        DrawTabLabel(canvas, *tab);
        return true;
    }
    return false;
}

} // namespace style_draw
} // namespace Qtitan
