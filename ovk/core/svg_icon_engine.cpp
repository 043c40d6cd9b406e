#include "ovk/core/svg_icon_engine_p.h"

#include <QApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QtSvg/QSvgRenderer>

namespace ovk {

SvgIconEngine::SvgIconEngine(const QString& path)
    : m_path(path)
{
}

SvgIconEngine::~SvgIconEngine() = default;

QSvgRenderer& SvgIconEngine::Renderer() const
{
    if (!mp_renderer)
        mp_renderer = std::make_shared<QSvgRenderer>(m_path);
    return *mp_renderer;
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    QPixmap picture = pixmap(rect.size() * ratio, mode, state);
    picture.setDevicePixelRatio(ratio);
    const QSize size = picture.size() / ratio;
    const QPoint corner(rect.x() + (rect.width() - size.width()) / 2,
                        rect.y() + (rect.height() - size.height()) / 2);
    painter->drawPixmap(corner, picture);
}

QSize SvgIconEngine::actualSize(const QSize& size, QIcon::Mode, QIcon::State)
{
    QSize actual = Renderer().defaultSize();
    if (!actual.isEmpty())
        actual.scale(size, Qt::KeepAspectRatio);
    return actual;
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    const QString cache_key = QStringLiteral("ovk-svg:%1:%2x%3:%4")
                                  .arg(m_path)
                                  .arg(size.width())
                                  .arg(size.height())
                                  .arg(static_cast<int>(mode));
    QPixmap picture;
    // A disabled or selected picture is the style's, which may change.
    if (mode == QIcon::Normal && QPixmapCache::find(cache_key, &picture))
        return picture;
    const QSize actual = actualSize(size, mode, state);
    if (actual.isEmpty() || !Renderer().isValid())
        return {};
    QImage image(actual, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Renderer().render(&painter);
    painter.end();
    picture = QPixmap::fromImage(image);
    if (mode == QIcon::Normal) {
        QPixmapCache::insert(cache_key, picture);
    } else if (qobject_cast<QApplication*>(QCoreApplication::instance())) {
        QStyleOption option;
        option.palette = QApplication::palette();
        picture = QApplication::style()->generatedIconPixmap(mode, picture, &option);
    }
    return picture;
}

QIconEngine* SvgIconEngine::clone() const
{
    return std::make_unique<SvgIconEngine>(*this).release();
}

QString SvgIconEngine::key() const
{
    return QStringLiteral("svg");
}

} // namespace ovk
