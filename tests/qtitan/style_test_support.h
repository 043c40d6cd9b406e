#pragma once

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QVector>
#include <functional>
#include <qtitan/ribbon_style.h>
#include <qtitan/ribbon_theme_p.h>

namespace style_test {

/// Sets a ribbon style for the time of a test class and the ordinary one after it.
class ApplicationStyle
{
public:
    ApplicationStyle() : m_style(new Qtitan::RibbonStyle) { QApplication::setStyle(m_style); }
    ~ApplicationStyle() { QApplication::setStyle(QStringLiteral("fusion")); }
    Q_DISABLE_COPY(ApplicationStyle)

    Qtitan::RibbonStyle* operator->() const { return m_style; }
    Qtitan::RibbonStyle* get() const { return m_style; }

private:
    Qtitan::RibbonStyle* m_style; ///< the application's
};

/// The ten accents and colours that are hard on a theme: extremes and the middle of the greys.
inline QVector<QColor> Accents()
{
    QVector<QColor> colors;
    for (int i = 0; i < 10; ++i)
        colors.append(Qtitan::OfficeStyle::accentColor(static_cast<Qtitan::OfficeStyle::AccentColor>(i)));
    colors << QColor(41, 152, 255) << QColor(0, 0, 0) << QColor(255, 255, 255) << QColor(118, 118, 118)
           << QColor(0, 0, 10) << QColor(255, 255, 0) << QColor(0, 0, 255);
    return colors;
}

constexpr int ThemeCount = 11;

/// What a system sets for high contrast, with disabled texts in a colour of their own.
inline QPalette HighContrast(bool black)
{
    const QColor ground = black ? Qt::black : Qt::white;
    QPalette palette(ground);
    for (const QPalette::ColorRole role :
         {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::AlternateBase, QPalette::ToolTipBase})
        palette.setColor(role, ground);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, black ? Qt::white : Qt::black);
        palette.setColor(QPalette::Disabled, role, black ? QColor(0x3F, 0xF2, 0x3F) : QColor(0x60, 0, 0));
    }
    palette.setColor(QPalette::Highlight, black ? QColor(0x1A, 0xEB, 0xFF) : QColor(0x37, 0, 0x6E));
    palette.setColor(QPalette::HighlightedText, ground);
    return palette;
}

/// The font of painted texts, the same on every system that has it.
inline QFont TestFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    return font;
}

/// A picture of that size in logical pixels, made by `draw`.
inline QImage Picture(const QSize& size, qreal ratio, const QColor& ground,
                      const std::function<void(QPainter&)>& draw)
{
    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(ground);
    QPainter painter(&image);
    draw(painter);
    painter.end();
    return image;
}

} // namespace style_test
