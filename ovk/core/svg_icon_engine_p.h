#pragma once

#include <QIconEngine>
#include <QPixmap>
#include <QString>

#include <memory>

class QSvgRenderer;

namespace ovk {

/// Draws an SVG file at any size. The file is read when the icon is first seen: a program names
/// hundreds of icons at its start, and shows a few dozen.
class SvgIconEngine : public QIconEngine
{
public:
    explicit SvgIconEngine(const QString& path);
    ~SvgIconEngine() override;

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;

private:
    /// The file's drawing; invalid when the file is not an SVG document.
    QSvgRenderer& Renderer() const;

    QString m_path;
    mutable std::shared_ptr<QSvgRenderer> mp_renderer;
};

} // namespace ovk
