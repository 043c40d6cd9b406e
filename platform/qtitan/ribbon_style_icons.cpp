#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QIcon>
#include <QIconEngine>
#include <QPixmap>

namespace Qtitan {
namespace style_draw {
namespace {

/// In a square of 16 around the origin.
void DrawGlyph(QPainter& painter, QStyle::StandardPixmap pixmap, const QColor& color)
{
    switch (pixmap) {
    case QStyle::SP_TitleBarMinButton:
        painter.drawLine(QPointF(-4, 3.5), QPointF(4, 3.5));
        break;
    case QStyle::SP_TitleBarMaxButton:
        painter.drawRect(QRectF(-4, -4, 8, 8));
        painter.drawLine(QPointF(-4, -3.2), QPointF(4, -3.2));
        break;
    case QStyle::SP_TitleBarNormalButton:
        painter.drawRect(QRectF(-4, -2, 6, 6));
        painter.drawPolyline(QPolygonF(QVector<QPointF>{{-2, -2}, {-2, -4}, {4, -4}, {4, 2}, {2, 2}}));
        break;
    case QStyle::SP_TitleBarShadeButton:
        DrawHelpers::drawChevron(painter, QRect(-6, -6, 12, 12), Qt::UpArrow, color, 8);
        break;
    case QStyle::SP_TitleBarUnshadeButton:
        DrawHelpers::drawChevron(painter, QRect(-6, -6, 12, 12), Qt::DownArrow, color, 8);
        break;
    case QStyle::SP_ArrowLeft:
    case QStyle::SP_ArrowBack:
        DrawHelpers::drawChevron(painter, QRect(-7, -6, 12, 12), Qt::LeftArrow, color, 9);
        break;
    case QStyle::SP_ArrowRight:
    case QStyle::SP_ArrowForward:
        DrawHelpers::drawChevron(painter, QRect(-5, -6, 12, 12), Qt::RightArrow, color, 9);
        break;
    case QStyle::SP_ArrowUp:
        DrawHelpers::drawChevron(painter, QRect(-6, -7, 12, 12), Qt::UpArrow, color, 9);
        break;
    case QStyle::SP_ArrowDown:
        DrawHelpers::drawChevron(painter, QRect(-6, -5, 12, 12), Qt::DownArrow, color, 9);
        break;
    case QStyle::SP_LineEditClearButton:
        painter.drawLine(QPointF(-3, -3), QPointF(3, 3));
        painter.drawLine(QPointF(3, -3), QPointF(-3, 3));
        break;
    case QStyle::SP_ToolBarHorizontalExtensionButton:
        painter.drawPolyline(QPolygonF(QVector<QPointF>{{-4, -3}, {-1, 0}, {-4, 3}}));
        painter.drawPolyline(QPolygonF(QVector<QPointF>{{0, -3}, {3, 0}, {0, 3}}));
        break;
    case QStyle::SP_ToolBarVerticalExtensionButton:
        painter.drawPolyline(QPolygonF(QVector<QPointF>{{-3, -4}, {0, -1}, {3, -4}}));
        painter.drawPolyline(QPolygonF(QVector<QPointF>{{-3, 0}, {0, 3}, {3, 0}}));
        break;
    default:
        painter.drawLine(QPointF(-3.5, -3.5), QPointF(3.5, 3.5));
        painter.drawLine(QPointF(3.5, -3.5), QPointF(-3.5, 3.5));
        break;
    }
}

/// Draws one of the window's signs in the colour of the theme in use.
class GlyphEngine : public QIconEngine
{
public:
    GlyphEngine(QStyle::StandardPixmap pixmap, bool highlighted)
        : m_pixmap(pixmap), m_highlighted(highlighted)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const ThemeLook& look = RibbonTheme::current()[Element::DockTitle];
        const QColor color = m_highlighted ? QApplication::palette().color(QPalette::HighlightedText)
                             : mode == QIcon::Disabled ? look.disabled
                                                       : look.text;
        DrawWindowGlyph(*painter, rect, m_pixmap, color);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }

    QIconEngine* clone() const override { return new GlyphEngine(m_pixmap, m_highlighted); }

private:
    QStyle::StandardPixmap m_pixmap;
    bool m_highlighted; ///< lies on the colour of selections
};

} // namespace

void DrawWindowGlyph(QPainter& painter, const QRect& rect, QStyle::StandardPixmap pixmap, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const qreal side = std::min(rect.width(), rect.height());
    painter.translate(QRectF(rect).center());
    painter.scale(side / 16.0, side / 16.0);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 1.3, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    DrawGlyph(painter, pixmap, color);
    painter.restore();
}

QIcon GlyphIcon(QStyle::StandardPixmap pixmap, const QWidget* widget)
{
    switch (pixmap) {
    case QStyle::SP_DockWidgetCloseButton:
    case QStyle::SP_TitleBarCloseButton:
    case QStyle::SP_TitleBarMinButton:
    case QStyle::SP_TitleBarMaxButton:
    case QStyle::SP_TitleBarNormalButton:
    case QStyle::SP_TitleBarShadeButton:
    case QStyle::SP_TitleBarUnshadeButton:
    case QStyle::SP_ArrowLeft:
    case QStyle::SP_ArrowRight:
    case QStyle::SP_ArrowUp:
    case QStyle::SP_ArrowDown:
    case QStyle::SP_ArrowBack:
    case QStyle::SP_ArrowForward:
    case QStyle::SP_LineEditClearButton:
    case QStyle::SP_ToolBarHorizontalExtensionButton:
    case QStyle::SP_ToolBarVerticalExtensionButton:
        return QIcon(new GlyphEngine(pixmap, qobject_cast<const QCalendarWidget*>(widget)));
    default:
        return QIcon();
    }
}

} // namespace style_draw
} // namespace Qtitan
