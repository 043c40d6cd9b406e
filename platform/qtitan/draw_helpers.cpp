#include "draw_helpers.h"

#include "ribbon_theme_p.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <cmath>

namespace Qtitan {
namespace {

qreal LinearChannel(qreal value)
{
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

qreal LeastContrast(const QColor& text, const QVector<QColor>& grounds)
{
    qreal least = 21.0;
    for (const QColor& ground : grounds)
        least = std::min(least, DrawHelpers::contrast(text, ground));
    return least;
}

/// The angle by which a figure that points down is turned to point as asked.
qreal ArrowAngle(Qt::ArrowType type)
{
    switch (type) {
    case Qt::UpArrow:
        return 180;
    case Qt::LeftArrow:
        return 90;
    case Qt::RightArrow:
        return -90;
    default:
        return 0;
    }
}

qreal DeviceRatio(const QPainter& painter)
{
    return painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
}

} // namespace

QColor DrawHelpers::mix(const QColor& from, const QColor& to, qreal amount)
{
    const qreal part = std::clamp(amount, 0.0, 1.0);
    const auto channel = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return QColor(channel(from.red(), to.red()), channel(from.green(), to.green()),
                  channel(from.blue(), to.blue()), channel(from.alpha(), to.alpha()));
}

qreal DrawHelpers::luminance(const QColor& color)
{
    return 0.2126 * LinearChannel(color.redF()) + 0.7152 * LinearChannel(color.greenF())
           + 0.0722 * LinearChannel(color.blueF());
}

qreal DrawHelpers::contrast(const QColor& a, const QColor& b)
{
    const qreal first = luminance(a) + 0.05;
    const qreal second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

QColor DrawHelpers::textOn(const QColor& ground)
{
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    // White is what people expect on a strong colour, so it wins as soon as it reads well.
    if (contrast(white, ground) >= 4.5)
        return white;
    return contrast(black, ground) >= contrast(white, ground) ? black : white;
}

QColor DrawHelpers::legible(const QColor& text, const QVector<QColor>& grounds, qreal ratio)
{
    if (grounds.isEmpty() || LeastContrast(text, grounds) >= ratio)
        return text;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    // Small steps from the wanted colour outwards, so that the hue survives as far as it can.
    for (int step = 1; step <= 50; ++step) {
        const QColor darker = mix(text, black, step / 50.0);
        const QColor lighter = mix(text, white, step / 50.0);
        const qreal dark = LeastContrast(darker, grounds);
        const qreal light = LeastContrast(lighter, grounds);
        if (dark >= ratio || light >= ratio)
            return dark >= light ? darker : lighter;
    }
    return LeastContrast(black, grounds) >= LeastContrast(white, grounds) ? black : white;
}

QPainterPath DrawHelpers::roundedPath(const QRectF& rect, qreal radius)
{
    QPainterPath path;
    if (radius <= 0)
        path.addRect(rect);
    else
        path.addRoundedRect(rect, radius, radius);
    return path;
}

void DrawHelpers::drawFrame(QPainter& painter, const QRect& rect, const QColor& border,
                            const QBrush& fill, qreal radius)
{
    if (rect.isEmpty())
        return;
    painter.save();
    const bool has_border = border.isValid() && border.alpha() > 0;
    const bool has_fill = fill.style() != Qt::NoBrush;
    if (radius <= 0) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        if (has_fill)
            painter.fillRect(rect, fill);
        if (has_border) {
            // Four filled bars stay sharp whatever the device pixel ratio is.
            painter.fillRect(rect.left(), rect.top(), rect.width(), 1, border);
            painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, border);
            painter.fillRect(rect.left(), rect.top() + 1, 1, rect.height() - 2, border);
            painter.fillRect(rect.right(), rect.top() + 1, 1, rect.height() - 2, border);
        }
    } else {
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(has_border ? QPen(border, 1) : QPen(Qt::NoPen));
        painter.setBrush(fill);
        const QRectF outline =
            has_border ? QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5) : QRectF(rect);
        painter.drawRoundedRect(outline, radius, radius);
    }
    painter.restore();
}

void DrawHelpers::drawArrow(QPainter& painter, const QRect& rect, Qt::ArrowType type,
                            const QColor& color, int size)
{
    if (type == Qt::NoArrow || size <= 0)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const qreal half = size / 2.0;
    const qreal depth = std::ceil(half);
    // On whole pixels: an arrow between them has a blurred base.
    painter.translate(std::floor(rect.x() + rect.width() / 2.0) + (size % 2 ? 0.5 : 0.0),
                      std::floor(rect.y() + rect.height() / 2.0));
    painter.rotate(ArrowAngle(type));
    QPolygonF triangle;
    triangle << QPointF(-half, -std::floor(depth / 2)) << QPointF(half, -std::floor(depth / 2))
             << QPointF(0, depth - std::floor(depth / 2));
    painter.drawPolygon(triangle);
    painter.restore();
}

void DrawHelpers::drawChevron(QPainter& painter, const QRect& rect, Qt::ArrowType type,
                              const QColor& color, int size, qreal width)
{
    if (type == Qt::NoArrow || size <= 0)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.translate(rect.x() + rect.width() / 2.0, rect.y() + rect.height() / 2.0);
    painter.rotate(ArrowAngle(type));
    const qreal half = size / 2.0;
    QPolygonF angle;
    angle << QPointF(-half, -half / 2) << QPointF(0, half / 2) << QPointF(half, -half / 2);
    painter.drawPolyline(angle);
    painter.restore();
}

void DrawHelpers::drawCheckMark(QPainter& painter, const QRectF& rect, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const qreal size = std::min(rect.width(), rect.height());
    painter.setPen(QPen(color, std::max(1.5, size / 7.0), Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    QPolygonF mark;
    mark << QPointF(0.18, 0.52) << QPointF(0.41, 0.75) << QPointF(0.82, 0.27);
    for (QPointF& point : mark)
        point = QPointF(rect.x() + point.x() * rect.width(), rect.y() + point.y() * rect.height());
    painter.drawPolyline(mark);
    painter.restore();
}

void DrawHelpers::drawShadow(QPainter& painter, const QRect& rect, int width, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < width; ++i) {
        const qreal part = 1.0 - (i + 0.5) / width;
        QColor ring = color;
        ring.setAlphaF(color.alphaF() * part * part);
        painter.setPen(QPen(ring, 1));
        painter.drawRoundedRect(QRectF(rect).adjusted(-i - 0.5, -i - 0.5, i + 0.5, i + 0.5), i + 1,
                                i + 1);
    }
    painter.restore();
}

QImage DrawHelpers::disabledImage(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    result.setDevicePixelRatio(image.devicePixelRatio());
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            // A middle grey that keeps the drawing's lights and darks, half transparent: it reads
            // as absent on a white page and on a dark one.
            const int grey = 98 + qGray(line[x]) * 105 / 255;
            line[x] = qRgba(grey, grey, grey, qAlpha(line[x]) * 140 / 255);
        }
    }
    return result;
}

QImage DrawHelpers::visibleSign(const QImage& image, const QColor& ink)
{
    if (image.isNull() || !ink.isValid())
        return image;
    const qreal ink_light = luminance(ink);
    if (ink_light > 0.2 && ink_light < 0.35)
        return image;
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    qint64 weight = 0;
    qint64 coloured = 0;
    qint64 light = 0;
    for (int y = 0; y < result.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(result.constScanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int alpha = qAlpha(line[x]);
            const auto channels = {qRed(line[x]), qGreen(line[x]), qBlue(line[x])};
            weight += alpha;
            coloured += std::max(channels) - std::min(channels) > 40 ? alpha : 0;
            light += static_cast<qint64>(alpha) * qGray(line[x]);
        }
    }
    // Something with colours, or with dark and light in it, is a picture and speaks for itself.
    if (weight == 0 || coloured * 50 > weight)
        return image;
    const qreal grey = static_cast<qreal>(light) / weight;
    if (ink_light >= 0.35 ? grey > 120 : grey < 215)
        return image;
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            line[x] = qRgba(ink.red(), ink.green(), ink.blue(), qAlpha(line[x]));
    }
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}

QIcon DrawHelpers::visibleIcon(const QIcon& icon, const QSize& size, qreal device_pixel_ratio,
                               const QColor& ink)
{
    const QPixmap plain = iconPixmap(icon, size, device_pixel_ratio);
    const QPixmap seen = iconPixmap(icon, size, device_pixel_ratio, QIcon::Normal, QIcon::Off, ink);
    if (plain.cacheKey() == seen.cacheKey())
        return icon;
    QIcon result;
    for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
        result.addPixmap(iconPixmap(icon, size, device_pixel_ratio, QIcon::Normal, state, ink),
                         QIcon::Normal, state);
        result.addPixmap(iconPixmap(icon, size, device_pixel_ratio, QIcon::Disabled, state, ink),
                         QIcon::Disabled, state);
    }
    return result;
}

QPixmap DrawHelpers::iconPixmap(const QIcon& icon, const QSize& size, qreal device_pixel_ratio,
                                QIcon::Mode mode, QIcon::State state, const QColor& ink)
{
    if (icon.isNull() || size.isEmpty())
        return {};
    const qreal ratio = std::max(1.0, device_pixel_ratio);
    const RibbonTheme& theme = RibbonTheme::current();
    // Some icons draw themselves in the theme's colours.
    const QString key = QStringLiteral("qtitan-icon-%1-%2x%3-%4-%5-%6-%7-%8")
                            .arg(icon.cacheKey())
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ratio)
                            .arg(mode)
                            .arg(state)
                            .arg(theme[Element::DockTitle].text.rgb(), 0, 16)
                            .arg(ink.isValid() ? ink.rgb() : 0, 0, 16);
    QPixmap result;
    if (QPixmapCache::find(key, &result))
        return result;

    // The disabled picture is our own: the platform's is often too faint on a dark ground.
    const QIcon::Mode source = mode == QIcon::Disabled ? QIcon::Normal : mode;
    const QSize wanted = (QSizeF(size) * ratio).toSize();
    QPixmap picture = icon.pixmap(wanted, source, state);
    // What the icon engine made of the application's own ratio counts in device pixels here.
    QImage image = picture.toImage();
    image.setDevicePixelRatio(1.0);
    if (image.width() > wanted.width() || image.height() > wanted.height())
        image = image.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    else if (ratio > 1.0 && image.width() <= size.width() && image.height() <= size.height()
             && !image.isNull()) {
        // A picture drawn for one dot a pixel keeps its size on a screen of several.
        image = image.scaled((QSizeF(image.size()) * ratio).toSize(), Qt::KeepAspectRatio,
                             Qt::SmoothTransformation);
    }
    if (image.isNull())
        return {};
    const QImage seen = visibleSign(image, ink);
    if (ink.isValid() && seen.cacheKey() == image.cacheKey()) {
        // The same picture as without an ink, so that callers can tell.
        result = iconPixmap(icon, size, device_pixel_ratio, mode, state);
        QPixmapCache::insert(key, result);
        return result;
    }
    image = seen;
    if (mode == QIcon::Disabled)
        image = disabledImage(image);
    image.setDevicePixelRatio(ratio);
    result = QPixmap::fromImage(image);
    QPixmapCache::insert(key, result);
    return result;
}

void DrawHelpers::drawIcon(QPainter& painter, const QRect& rect, const QIcon& icon,
                           const QSize& size, QIcon::Mode mode, QIcon::State state,
                           const QColor& ink)
{
    const qreal ratio = DeviceRatio(painter);
    const QPixmap pixmap = iconPixmap(icon, size, ratio, mode, state, ink);
    if (pixmap.isNull())
        return;
    const QSizeF extent = QSizeF(pixmap.size()) / pixmap.devicePixelRatio();
    // On whole device pixels, or the smooth transform of the painter would blur it.
    const auto snap = [ratio](qreal value) { return std::floor(value * ratio) / ratio; };
    painter.drawPixmap(QPointF(snap(rect.x() + (rect.width() - extent.width()) / 2),
                               snap(rect.y() + (rect.height() - extent.height()) / 2)),
                       pixmap);
}

int DrawHelpers::smallIconSize(qreal logical_dpi)
{
    if (logical_dpi >= 192)
        return 32;
    if (logical_dpi >= 144)
        return 24;
    return logical_dpi >= 120 ? 20 : 16;
}

int DrawHelpers::largeIconSize(qreal logical_dpi)
{
    return 2 * smallIconSize(logical_dpi);
}

} // namespace Qtitan
