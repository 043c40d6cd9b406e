#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace ovk_test {

/// The widget as it paints itself now, without its background.
inline QImage Picture(QWidget& widget, const QColor& background = Qt::magenta)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(background);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

} // namespace ovk_test
