#include "ribbon_style_draw_p.h"

#include "draw_helpers.h"

#include <QIcon>
#include <QIconEngine>
#include <QPainterPath>
#include <QPixmap>

namespace Qtitan {
namespace style_draw {
namespace {

/// Draws the sign of a message, a folder or a file, sharp at every size.
class SignEngine : public QIconEngine
{
public:
    explicit SignEngine(QStyle::StandardPixmap pixmap) : m_pixmap(pixmap) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect.topLeft(), pixmap(rect.size(), mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, true);
        const qreal side = std::min(size.width(), size.height());
        painter.translate(size.width() / 2.0, size.height() / 2.0);
        painter.scale(side / 32.0, side / 32.0);
        Draw(painter);
        painter.end();
        return QPixmap::fromImage(mode == QIcon::Disabled ? DrawHelpers::disabledImage(image)
                                                          : image);
    }

    QIconEngine* clone() const override { return new SignEngine(m_pixmap); }

private:
    /// In a square of 32 around the origin.
    void Draw(QPainter& painter) const
    {
        switch (m_pixmap) {
        case QStyle::SP_MessageBoxInformation:
            Disc(painter, QColor(0x1F, 0x6F, 0xC4));
            painter.drawEllipse(QPointF(0, -7), 2, 2);
            painter.drawRoundedRect(QRectF(-1.7, -3, 3.4, 11), 1, 1);
            break;
        case QStyle::SP_MessageBoxQuestion:
            Disc(painter, QColor(0x1F, 0x6F, 0xC4));
            QuestionMark(painter);
            break;
        case QStyle::SP_MessageBoxCritical: {
            Disc(painter, QColor(0xC8, 0x36, 0x2B));
            painter.setPen(QPen(Qt::white, 3.2, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(-5, -5), QPointF(5, 5));
            painter.drawLine(QPointF(5, -5), QPointF(-5, 5));
            break;
        }
        case QStyle::SP_MessageBoxWarning:
            Triangle(painter);
            break;
        case QStyle::SP_FileIcon:
            Sheet(painter);
            break;
        default:
            Folder(painter);
            break;
        }
    }

    static void Disc(QPainter& painter, const QColor& color)
    {
        painter.setPen(QPen(color.darker(120), 1));
        painter.setBrush(color);
        painter.drawEllipse(QRectF(-13.5, -13.5, 27, 27));
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
    }

    static void QuestionMark(QPainter& painter)
    {
        QPainterPath hook;
        hook.moveTo(-4.6, -4.2);
        hook.cubicTo(-4.4, -9.8, 4.8, -9.6, 4.6, -4.2);
        hook.cubicTo(4.5, -1.0, 0, -0.6, 0, 3.2);
        painter.save();
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        painter.drawPath(hook);
        painter.restore();
        painter.drawEllipse(QPointF(0, 7.2), 2, 2);
    }

    static void Triangle(QPainter& painter)
    {
        const QPointF corners[] = {{0, -12}, {13.4, 11.5}, {-13.4, 11.5}};
        painter.setPen(
            QPen(QColor(0xC8, 0x8A, 0x00), 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(QColor(0xFF, 0xC8, 0x2E));
        painter.drawPolygon(corners, 3);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x30, 0x24, 0x00));
        painter.drawRoundedRect(QRectF(-1.6, -5.5, 3.2, 9), 1, 1);
        painter.drawEllipse(QPointF(0, 7.4), 1.9, 1.9);
    }

    static void Sheet(QPainter& painter)
    {
        painter.setPen(
            QPen(QColor(0x70, 0x78, 0x82), 1.6, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.setBrush(Qt::white);
        const QPointF edge[] = {{-9, -13}, {4, -13}, {9, -8}, {9, 13}, {-9, 13}};
        painter.drawPolygon(edge, 5);
        painter.setBrush(Qt::NoBrush);
        const QPointF fold[] = {{4, -13}, {4, -8}, {9, -8}};
        painter.drawPolyline(fold, 3);
    }

    static void Folder(QPainter& painter)
    {
        painter.setPen(
            QPen(QColor(0xB8, 0x86, 0x20), 1.6, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.setBrush(QColor(0xE8, 0xB8, 0x4C));
        const QPointF back[] = {{-13, -10}, {-4, -10}, {-1, -7}, {13, -7}, {13, 11}, {-13, 11}};
        painter.drawPolygon(back, 6);
        painter.setBrush(QColor(0xFF, 0xD9, 0x76));
        painter.drawRect(QRectF(-13, -3, 26, 14));
    }

    QStyle::StandardPixmap m_pixmap;
};

} // namespace

QIcon SignIcon(QStyle::StandardPixmap pixmap)
{
    switch (pixmap) {
    case QStyle::SP_MessageBoxInformation:
    case QStyle::SP_MessageBoxQuestion:
    case QStyle::SP_MessageBoxCritical:
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_FileIcon:
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
        return QIcon(new SignEngine(pixmap));
    default:
        return QIcon();
    }
}

} // namespace style_draw
} // namespace Qtitan
