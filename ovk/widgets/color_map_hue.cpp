#include "ovk/widgets/color_map_hue.h"

#include <algorithm>

namespace ovk {

namespace {

constexpr int g_full_circle = 360;
constexpr int g_full_saturation = 255;
constexpr int g_middle_lightness = 127;

} // namespace

ColorMapHue::ColorMapHue(QWidget* parent) : ColorMap(parent)
{
    fillWithSpectrum();
}

ColorMapHue::~ColorMapHue() = default;

void ColorMapHue::setInterpolateLS(bool interpolate)
{
    m_interpolate_ls = interpolate;
    _redraw(size());
}

void ColorMapHue::fillWithSpectrum()
{
    setColors(QColor::fromHsl(0, 255, 127, 255), QColor::fromHsl(359, 255, 127, 255));
}

void ColorMapHue::_renderColors(QImage& image)
{
    int h1 = 0, s1 = 0, l1 = 0, h2 = 0, s2 = 0, l2 = 0;
    startColor().getHsl(&h1, &s1, &l1);
    endColor().getHsl(&h2, &s2, &l2);
    const int height = image.height();
    const double dh = static_cast<double>((h2 - h1 + g_full_circle) % g_full_circle) / height;
    const double ds = static_cast<double>(s2 - s1) / height;
    const double dl = static_cast<double>(l2 - l1) / height;
    for (int i = 0; i < height; ++i) {
        const int hue = static_cast<int>(i * dh + h1) % g_full_circle;
        const int saturation = m_interpolate_ls ? static_cast<int>(i * ds + s1) : g_full_saturation;
        const int lightness = m_interpolate_ls ? static_cast<int>(i * dl + l1) : g_middle_lightness;
        const QRgb color = QColor::fromHsl(hue, saturation, lightness, 255).rgb();
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(height - 1 - i));
        std::fill_n(row, image.width(), color);
    }
}

} // namespace ovk

#include "moc_color_map_hue.cpp"
