#include "color_text_p.h"

#include <QColor>
#include <QCoreApplication>

namespace ovk {

namespace {

/// A hue's name up to and without a degree.
struct HueName
{
    int end;
    const char* name;
};

constexpr HueName g_hues[] = {
    {15, QT_TRANSLATE_NOOP("ovk::ColorText", "red")},
    {45, QT_TRANSLATE_NOOP("ovk::ColorText", "orange")},
    {70, QT_TRANSLATE_NOOP("ovk::ColorText", "yellow")},
    {165, QT_TRANSLATE_NOOP("ovk::ColorText", "green")},
    {195, QT_TRANSLATE_NOOP("ovk::ColorText", "cyan")},
    {255, QT_TRANSLATE_NOOP("ovk::ColorText", "blue")},
    {285, QT_TRANSLATE_NOOP("ovk::ColorText", "violet")},
    {330, QT_TRANSLATE_NOOP("ovk::ColorText", "magenta")},
    {360, QT_TRANSLATE_NOOP("ovk::ColorText", "red")},
};

constexpr int g_black_lightness = 20;
constexpr int g_dark_lightness = 85;
constexpr int g_light_lightness = 175;
constexpr int g_white_lightness = 240;
constexpr int g_gray_saturation = 30;

QString Translated(const char* text)
{
    return QCoreApplication::translate("ovk::ColorText", text);
}

QString HueOf(const QColor& color)
{
    if (color.hslSaturation() < g_gray_saturation)
        return Translated(QT_TRANSLATE_NOOP("ovk::ColorText", "gray"));
    for (const HueName& hue : g_hues) {
        if (color.hslHue() < hue.end)
            return Translated(hue.name);
    }
    return QString();
}

QString Words(const QColor& color)
{
    const int lightness = color.lightness();
    if (lightness < g_black_lightness)
        return Translated(QT_TRANSLATE_NOOP("ovk::ColorText", "black"));
    if (lightness >= g_white_lightness)
        return Translated(QT_TRANSLATE_NOOP("ovk::ColorText", "white"));
    if (lightness < g_dark_lightness)
        return Translated(QT_TRANSLATE_NOOP("ovk::ColorText", "dark %1")).arg(HueOf(color));
    if (lightness >= g_light_lightness)
        return Translated(QT_TRANSLATE_NOOP("ovk::ColorText", "light %1")).arg(HueOf(color));
    return HueOf(color);
}

} // namespace

QString ColorText(const QColor& color)
{
    if (!color.isValid())
        return Translated(QT_TRANSLATE_NOOP("ovk::ColorText", "no color"));
    return QStringLiteral("%1, %2").arg(Words(color), color.name().toUpper());
}

} // namespace ovk
