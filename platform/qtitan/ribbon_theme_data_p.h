#pragma once

#include "ribbon_theme_p.h"

#include <cstddef>

namespace Qtitan {
namespace theme_data {

/// One colour of a table: a fixed one, the accent mixed over the page, or a rule that is worked
/// out when the theme is made.
struct Tone
{
    enum Kind : quint8 {
        Fixed,
        None,    ///< transparent, no line
        Middle,  ///< half way between top and bottom
        Ink,     ///< the text of the page
        Contrast ///< black or white by the luminance of the ground
    };

    constexpr Tone(quint32 rgb_) : rgb(rgb_) {}
    constexpr Tone(quint32 rgb_, quint8 accent_) : rgb(rgb_), accent(accent_) {}
    constexpr Tone(Kind kind_) : kind(kind_) {}

    quint32 rgb = 0;
    quint8 accent = 0; ///< percent of the accent over rgb
    Kind kind = Fixed;
};

/// One line of a theme's table.
struct LookRow
{
    Element element;
    Tone top;
    Tone middle;
    Tone bottom;
    Tone border;
    Tone text;
};

constexpr LookRow Flat(Element element, Tone ground, Tone border, Tone text)
{
    return {element, ground, ground, ground, border, text};
}

constexpr LookRow Shade(Element element, Tone top, Tone bottom, Tone border, Tone text)
{
    return {element, top, Tone(Tone::Middle), bottom, border, text};
}

/// A run of rows.
struct Rows
{
    const LookRow* first;
    std::size_t count;

    const LookRow* begin() const { return first; }
    const LookRow* end() const { return first + count; }
};

template <std::size_t N>
constexpr Rows All(const LookRow (&rows)[N])
{
    return {rows, N};
}

/// A theme's own table and the one that its family shares.
struct ThemeRows
{
    RibbonTheme::Family family;
    Rows own;
    Rows shared;
};

ThemeRows Rows2007(OfficeStyle::Theme theme);
ThemeRows Rows2010(OfficeStyle::Theme theme); ///< Scenic too
ThemeRows Rows2013(OfficeStyle::Theme theme);

} // namespace theme_data
} // namespace Qtitan
