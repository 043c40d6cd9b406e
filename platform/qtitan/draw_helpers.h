#pragma once

#include <QBrush>
#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QRect>
#include <QVector>
#include <ovk/core/export.h>

class QPainter;
class QPainterPath;

namespace Qtitan {

/// Arithmetic of colours and small drawings that the style and widgets of its look share.
/// All colours are opaque sRGB unless said otherwise.
class OVK_EXPORT DrawHelpers
{
public:
    DrawHelpers() = delete;

    /// The colour `amount` of the way (0 to 1, clamped) from `from` to `to`, alpha included.
    static QColor mix(const QColor& from, const QColor& to, qreal amount);

    /// Relative luminance, 0 for black to 1 for white.
    static qreal luminance(const QColor& color);

    /// Contrast ratio of two colours, 1 to 21, the same both ways round.
    static qreal contrast(const QColor& a, const QColor& b);

    /// Black or white, whichever reads better on `ground`.
    static QColor textOn(const QColor& ground);

    /// `text` itself where its contrast with every ground reaches `ratio`; otherwise the nearest
    /// colour on the way to black or to white that does, or the better of the two.
    static QColor legible(const QColor& text, const QVector<QColor>& grounds, qreal ratio);

    /// A path round `rect` with corners of `radius`; 0 gives the rectangle.
    static QPainterPath roundedPath(const QRectF& rect, qreal radius);

    /// Fills `rect` with a border line of one logical pixel that stays sharp at every device pixel
    /// ratio. An invalid or transparent colour leaves its part out.
    static void drawFrame(QPainter& painter, const QRect& rect, const QColor& border,
                          const QBrush& fill, qreal radius = 0);

    /// A solid triangle that points as `type` says, centred in `rect`; `size` is its base.
    static void drawArrow(QPainter& painter, const QRect& rect, Qt::ArrowType type,
                          const QColor& color, int size);

    /// An open angle that points as `type` says, centred in `rect`.
    static void drawChevron(QPainter& painter, const QRect& rect, Qt::ArrowType type,
                            const QColor& color, int size, qreal width = 1.5);

    /// A check mark that fills `rect`.
    static void drawCheckMark(QPainter& painter, const QRectF& rect, const QColor& color);

    /// A soft shadow around `rect`, `width` pixels deep, drawn outside of it.
    static void drawShadow(QPainter& painter, const QRect& rect, int width,
                           const QColor& color = QColor(0, 0, 0, 70));

    /// The icon's picture for that size and device pixel ratio, never scaled up blurred: a smaller
    /// picture keeps its size. Disabled pictures are made from the normal one, faded so that they
    /// read on dark and on light. With `ink`, the colour of the text beside it, a picture that is a
    /// plain dark (or plain light) sign takes that colour where it would not be seen otherwise.
    static QPixmap iconPixmap(const QIcon& icon, const QSize& size, qreal device_pixel_ratio,
                              QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off,
                              const QColor& ink = QColor());

    /// Draws the icon centred in `rect`; `ink` as in iconPixmap.
    static void drawIcon(QPainter& painter, const QRect& rect, const QIcon& icon, const QSize& size,
                         QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off,
                         const QColor& ink = QColor());

    /// The icon with plain signs in the colour of `ink` where they would not be seen otherwise, for
    /// code that draws icons by itself; the icon as it is where nothing needs to change.
    static QIcon visibleIcon(const QIcon& icon, const QSize& size, qreal device_pixel_ratio,
                             const QColor& ink);

    /// A copy of the picture in one colour with its alpha when it is a plain sign of the other
    /// lightness than `ink`; the picture itself otherwise.
    static QImage visibleSign(const QImage& image, const QColor& ink);

    /// A copy of the picture greyed and faded for a disabled item.
    static QImage disabledImage(const QImage& image);

    /// The small and large icon sizes for a logical resolution: 16/32 at 96 dpi, 20/40 from 120,
    /// 24/48 from 144, 32/64 from 192.
    static int smallIconSize(qreal logical_dpi);
    static int largeIconSize(qreal logical_dpi);
};

} // namespace Qtitan
