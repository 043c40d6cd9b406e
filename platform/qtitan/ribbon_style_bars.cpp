#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"
#include "ribbon_painter_p.h"

#include <QDockWidget>
#include <QToolBar>

namespace Qtitan {
namespace style_draw {
namespace {

void DrawGroove(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(Element::ProgressGroove);
    DrawHelpers::drawFrame(*canvas.painter, canvas.rect(), look.border, look.middle,
                           canvas.theme.cornerRadius() > 0 ? 2 : 0);
}

bool Runs(const QStyleOptionProgressBar& bar)
{
    return bar.minimum == 0 && bar.maximum == 0;
}

/// What is filled of a progress bar.
QRect ProgressRect(const QStyleOptionProgressBar& bar)
{
    const qint64 span = std::max<qint64>(1, static_cast<qint64>(bar.maximum) - bar.minimum);
    const qreal part = std::clamp((static_cast<qint64>(bar.progress) - bar.minimum) / static_cast<qreal>(span),
                                  0.0, 1.0);
    const QRect inner = bar.rect.adjusted(1, 1, -1, -1);
    if (bar.orientation == Qt::Vertical) {
        const int length = qRound(inner.height() * part);
        return bar.invertedAppearance ? QRect(inner.left(), inner.top(), inner.width(), length)
                                      : QRect(inner.left(), inner.bottom() + 1 - length, inner.width(), length);
    }
    const int length = qRound(inner.width() * part);
    const bool from_right = (bar.direction == Qt::RightToLeft) != bar.invertedAppearance;
    return from_right ? QRect(inner.right() + 1 - length, inner.top(), length, inner.height())
                      : QRect(inner.left(), inner.top(), length, inner.height());
}

bool DrawProgressContents(const Canvas& canvas, const QStyleOptionProgressBar& bar)
{
    const ThemeLook& look = canvas.look(Element::ProgressChunk);
    if (Runs(bar)) {
        // The base has the animation; it takes our colour.
        QStyleOptionProgressBar running = bar;
        running.palette.setColor(QPalette::Highlight, look.middle);
        canvas.style->drawControl(QStyle::CE_ProgressBarContents, &running, canvas.painter, canvas.widget);
        return true;
    }
    const QRect filled = ProgressRect(bar);
    if (!filled.isEmpty())
        FillGround(canvas, filled, look,
                   bar.orientation == Qt::Vertical ? Qt::Vertical : Qt::Horizontal);
    return true;
}

/// The text lies half on the groove and half on what is filled, and takes the colour of each.
void DrawProgressText(const Canvas& canvas, const QStyleOptionProgressBar& bar)
{
    if (!bar.textVisible || bar.text.isEmpty())
        return;
    QPainter& painter = *canvas.painter;
    const QRect filled = Runs(bar) ? QRect() : ProgressRect(bar);
    const auto draw = [&](const QRegion& clip, const ThemeLook& look) {
        painter.save();
        painter.setClipRegion(clip, Qt::IntersectClip);
        painter.setPen(canvas.enabled() ? look.text : look.disabled);
        if (bar.orientation == Qt::Vertical) {
            QRect turned(0, 0, bar.rect.height(), bar.rect.width());
            if (bar.bottomToTop) {
                painter.translate(bar.rect.left(), bar.rect.bottom() + 1);
                painter.rotate(-90);
            } else {
                painter.translate(bar.rect.right() + 1, bar.rect.top());
                painter.rotate(90);
            }
            painter.drawText(turned, Qt::AlignCenter | Qt::TextSingleLine, bar.text);
        } else {
            painter.drawText(bar.rect, Qt::AlignCenter | Qt::TextSingleLine, bar.text);
        }
        painter.restore();
    };
    draw(QRegion(bar.rect) - filled, canvas.look(Element::ProgressGroove));
    if (!filled.isEmpty())
        draw(filled, canvas.look(Element::ProgressChunk));
}

void DrawToolBar(const Canvas& canvas)
{
    const auto* bar = qstyleoption_cast<const QStyleOptionToolBar*>(canvas.option);
    const bool lies = canvas.has(QStyle::State_Horizontal);
    const ThemeLook& look = canvas.look(Element::ToolBar);
    FillGround(canvas, canvas.rect(), look, lies ? Qt::Horizontal : Qt::Vertical);
    const QRect& rect = canvas.rect();
    const bool floats = bar && bar->toolBarArea == Qt::NoToolBarArea;
    if (floats)
        DrawHelpers::drawFrame(*canvas.painter, rect, look.border, Qt::NoBrush);
    else if (lies)
        canvas.painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, look.border);
    else
        canvas.painter->fillRect(canvas.rightToLeft() ? rect.left() : rect.right(), rect.top(), 1,
                                 rect.height(), look.border);
}

void DrawDockTitle(const Canvas& canvas, const QStyleOptionDockWidget& dock)
{
    const ThemeLook& look = canvas.look(Element::DockTitle);
    QPainter& painter = *canvas.painter;
    painter.save();
    QRect rect = canvas.rect();
    if (dock.verticalTitleBar) {
        painter.translate(rect.left(), rect.bottom() + 1);
        painter.rotate(-90);
        rect = QRect(0, 0, rect.height(), rect.width());
    }
    QLinearGradient gradient(rect.topLeft(), QPointF(rect.left(), rect.bottom() + 1));
    gradient.setColorAt(0.0, look.top);
    gradient.setColorAt(0.5, look.middle);
    gradient.setColorAt(1.0, look.bottom);
    DrawHelpers::drawFrame(painter, rect, look.border, gradient);
    QRect text = rect.adjusted(Px(canvas.widget, 6), 0, -Px(canvas.widget, 6), 0);
    if (!dock.verticalTitleBar)
        text = canvas.style->proxy()
                   ->subElementRect(QStyle::SE_DockWidgetTitleBarText, &dock, canvas.widget)
                   .adjusted(Px(canvas.widget, 2), 0, 0, 0);
    painter.setPen(canvas.enabled() ? look.text : look.disabled);
    const QString title = painter.fontMetrics().elidedText(dock.title, Qt::ElideRight, text.width());
    painter.drawText(text,
                     static_cast<int>(QStyle::visualAlignment(dock.direction, Qt::AlignLeft))
                         | Qt::AlignVCenter | Qt::TextShowMnemonic,
                     title);
    painter.restore();
}

void DrawSplitter(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(canvas.hovered() ? Element::ButtonHover : Element::Splitter);
    canvas.painter->fillRect(canvas.rect(), look.middle);
    const int dot = Px(canvas.widget, 2);
    const bool stands = canvas.has(QStyle::State_Horizontal);
    const QColor color = DrawHelpers::mix(look.middle, look.text, 0.7);
    for (int i = -2; i <= 2; ++i) {
        const QPoint centre = canvas.rect().center() + (stands ? QPoint(0, 2 * i * dot) : QPoint(2 * i * dot, 0));
        canvas.painter->fillRect(QRect(centre - QPoint(dot / 2, dot / 2), QSize(dot, dot)), color);
    }
}

void DrawSizeGrip(const Canvas& canvas)
{
    const ThemeLook& look = canvas.look(Element::StatusBar);
    const QColor color = DrawHelpers::mix(look.middle, look.text, 0.5);
    const auto* grip = qstyleoption_cast<const QStyleOptionSizeGrip*>(canvas.option);
    const bool left = grip && (grip->corner == Qt::BottomLeftCorner || grip->corner == Qt::TopLeftCorner);
    const int dot = Px(canvas.widget, 2);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column <= row; ++column) {
            const int across = (2 - row + column) * 2 * dot;
            const int x = left ? canvas.rect().left() + 2 + (4 * dot - across)
                               : canvas.rect().right() - 2 - 4 * dot + across - dot;
            const int y = canvas.rect().bottom() - 2 - 4 * dot + row * 2 * dot - dot;
            canvas.painter->fillRect(x, y, dot, dot, color);
        }
    }
}

void DrawRubberBand(const Canvas& canvas)
{
    QColor fill = canvas.option->palette.color(QPalette::Highlight);
    QColor line = fill.darker(130);
    fill.setAlpha(70);
    DrawHelpers::drawFrame(*canvas.painter, canvas.rect(), line, fill);
}

} // namespace

bool DrawBarControl(QStyle::ControlElement element, const Canvas& canvas)
{
    const auto* progress = qstyleoption_cast<const QStyleOptionProgressBar*>(canvas.option);
    switch (element) {
    case QStyle::CE_ProgressBarGroove:
        DrawGroove(canvas);
        return true;
    case QStyle::CE_ProgressBarContents:
        return progress && DrawProgressContents(canvas, *progress);
    case QStyle::CE_ProgressBarLabel:
        if (!progress)
            return false;
        DrawProgressText(canvas, *progress);
        return true;
    case QStyle::CE_ToolBar:
        DrawToolBar(canvas);
        return true;
    case QStyle::CE_DockWidgetTitle:
        if (const auto* dock = qstyleoption_cast<const QStyleOptionDockWidget*>(canvas.option)) {
            DrawDockTitle(canvas, *dock);
            return true;
        }
        return false;
    case QStyle::CE_Splitter:
        DrawSplitter(canvas);
        return true;
    case QStyle::CE_SizeGrip:
        DrawSizeGrip(canvas);
        return true;
    case QStyle::CE_RubberBand:
        DrawRubberBand(canvas);
        return true;
    default:
        return false;
    }
}

} // namespace style_draw
} // namespace Qtitan
