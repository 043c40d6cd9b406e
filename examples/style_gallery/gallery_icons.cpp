#include "gallery_icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace {

/// A coloured sheet with a sign, drawn for whatever size is asked.
class SheetEngine : public QIconEngine
{
public:
    explicit SheetEngine(int index) : m_index(index) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        static const QRgb colors[] = {0xFF3B7DD8, 0xFFD9822B, 0xFF3E9B4F, 0xFFB23A48, 0xFF7A5BB5};
        const QColor color = mode == QIcon::Disabled ? QColor(Qt::gray)
                                                     : QColor::fromRgb(colors[m_index % 5]);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, true);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        painter->setPen(QPen(color.darker(150), 1));
        painter->setBrush(color.lighter(165));
        painter->drawRoundedRect(QRectF(2.5, 1.5, 11, 13), 1, 1);
        painter->setPen(Qt::NoPen);
        painter->setBrush(color);
        switch (m_index % 5) {
        case 0:
            painter->drawRect(QRectF(5, 4, 6, 2));
            painter->drawRect(QRectF(5, 7, 6, 2));
            painter->drawRect(QRectF(5, 10, 4, 2));
            break;
        case 1:
            painter->drawEllipse(QRectF(4.5, 4.5, 7, 7));
            break;
        case 2:
            painter->drawRect(QRectF(7, 4, 2, 8));
            painter->drawRect(QRectF(4, 7, 8, 2));
            break;
        case 3: {
            const QPointF corner[] = {{8, 4}, {12, 12}, {4, 12}};
            painter->drawPolygon(corner, 3);
            break;
        }
        default:
            painter->drawRect(QRectF(4.5, 4.5, 3, 3));
            painter->drawRect(QRectF(8.5, 8.5, 3, 3));
            break;
        }
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }

    QIconEngine* clone() const override { return new SheetEngine(m_index); }

private:
    int m_index;
};

} // namespace

QIcon GalleryIcon(int index)
{
    return QIcon(new SheetEngine(index));
}
