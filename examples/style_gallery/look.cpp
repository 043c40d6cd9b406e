#include "look.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QMetaEnum>
#include <QPalette>
#include <ovk/core/observable_value.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <qtitan/style.h>

using Qtitan::OfficeStyle;

namespace {

const QString k_theme = QStringLiteral("theme");
const QString k_accent = QStringLiteral("accent");
const QString k_scale = QStringLiteral("scale");
const QString k_mirrored = QStringLiteral("right-to-left");
const QString k_plain = QStringLiteral("system-frame");
const QString k_contrast = QStringLiteral("high-contrast");

constexpr const char* k_theme_names[] = {
    "Office 2007 Blue",  "Office 2007 Black",  "Office 2007 Silver", "Office 2007 Aqua",
    "Windows 7 Scenic",  "Office 2010 Silver", "Office 2010 Blue",   "Office 2010 Black",
    "Office 2013 White", "Office 2013 Gray",   "Office 2013 Dark"};

/// What a system sets that its user wants high contrast.
QPalette ContrastPalette(bool black)
{
    const QColor ground = black ? Qt::black : Qt::white;
    const QColor text = black ? Qt::white : Qt::black;
    QPalette palette(ground);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button,
                                           QPalette::AlternateBase, QPalette::ToolTipBase})
        palette.setColor(role, ground);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
          QPalette::BrightText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role,
                         black ? QColor(0x3F, 0xF2, 0x3F) : QColor(0x60, 0, 0));
    }
    palette.setColor(QPalette::Highlight,
                     black ? QColor(0x1A, 0xEB, 0xFF) : QColor(0x37, 0x00, 0x6E));
    palette.setColor(QPalette::HighlightedText, ground);
    palette.setColor(QPalette::Link, black ? QColor(0xFF, 0xFF, 0) : QColor(0, 0, 0x9F));
    return palette;
}

bool g_contrasted = false; ///< a contrast palette is set

/// A colour as the setting of the accent holds it: a number for a named one, its packed value
/// otherwise. White with its alpha would be the number of the default.
OfficeStyle::AccentColor Packed(const QColor& color)
{
    for (int i = 0; i < AccentNames().size(); ++i) {
        if (!color.isValid() ||
            color == OfficeStyle::accentColor(static_cast<OfficeStyle::AccentColor>(i)))
            return static_cast<OfficeStyle::AccentColor>(i);
    }
    const QRgb plain = color.rgb() & 0xFFFFFFu;
    return static_cast<OfficeStyle::AccentColor>(
        static_cast<int>(plain < 10 ? color.rgb() : plain));
}

} // namespace

const QVector<int>& Look::Scales()
{
    static const QVector<int> scales{100, 125, 150, 175, 200};
    return scales;
}

QStringList ThemeNames()
{
    QStringList names;
    for (const char* name : k_theme_names)
        names.append(QLatin1String(name));
    return names;
}

QStringList AccentNames()
{
    QStringList names;
    const QMetaEnum meta = QMetaEnum::fromType<OfficeStyle::AccentColor>();
    for (int i = 0; i < meta.keyCount(); ++i)
        names.append(QString::fromLatin1(meta.key(i)).mid(int(qstrlen("AccentColor"))));
    return names;
}

void Look::AddOptions(QCommandLineParser& parser)
{
    parser.addOption(
        {k_theme, QStringLiteral("Starts with theme 0 to 10."), QStringLiteral("number")});
    parser.addOption({k_accent, QStringLiteral("The accent: a number from 0 to 9 or #rrggbb."),
                      QStringLiteral("colour")});
    parser.addOption(
        {k_scale, QStringLiteral("The scale in percent, 100 to 200."), QStringLiteral("percent")});
    parser.addOption({k_mirrored, QStringLiteral("Lays everything out from right to left.")});
    parser.addOption(
        {k_plain, QStringLiteral("Leaves the frame of the window to the window system.")});
    parser.addOption({k_contrast, QStringLiteral("Uses a high contrast palette: black or white."),
                      QStringLiteral("ground")});
}

Look Look::Read(const QCommandLineParser& parser)
{
    Look look;
    bool number = false;
    const int theme = parser.value(k_theme).toInt(&number);
    if (number && theme >= 0 && theme < ThemeNames().size())
        look.theme = theme;
    const QString accent = parser.value(k_accent);
    const int named = accent.toInt(&number);
    look.accent = number ? OfficeStyle::accentColor(static_cast<OfficeStyle::AccentColor>(named))
                         : QColor(accent);
    const int scale = parser.value(k_scale).toInt(&number);
    if (number && Scales().contains(scale))
        look.scale = scale;
    look.rightToLeft = parser.isSet(k_mirrored);
    look.framed = !parser.isSet(k_plain);
    const QString contrast = parser.value(k_contrast);
    if (!contrast.isEmpty())
        look.contrast = contrast == QLatin1String("white") ? HighWhite : HighBlack;
    return look;
}

QStringList Look::Arguments() const
{
    QStringList arguments{QStringLiteral("--%1=%2").arg(k_theme).arg(theme),
                          QStringLiteral("--%1=%2").arg(k_scale).arg(scale)};
    if (accent.isValid())
        arguments.append(QStringLiteral("--%1=%2").arg(k_accent, accent.name()));
    if (rightToLeft)
        arguments.append(QStringLiteral("--") + k_mirrored);
    if (!framed)
        arguments.append(QStringLiteral("--") + k_plain);
    if (contrast != Ordinary)
        arguments.append(QStringLiteral("--%1=%2").arg(
            k_contrast, contrast == HighWhite ? QStringLiteral("white") : QStringLiteral("black")));
    return arguments;
}

void Look::Apply() const
{
    // Through the settings, so that the window and the customise dialog know of it.
    using Settings = ovk::RibbonWindowSettings;
    Settings::OfficeTheme().SetData(static_cast<OfficeStyle::Theme>(theme));
    Settings::AccentColor().SetData(Packed(accent));
    const QPalette palette =
        contrast == Ordinary ? QPalette() : ContrastPalette(contrast == HighBlack);
    const bool contrasting = g_contrasted;
    g_contrasted = contrast != Ordinary;
    if (contrasting || g_contrasted)
        QApplication::setPalette(palette);
    const Qt::LayoutDirection direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
    if (QApplication::layoutDirection() != direction)
        QApplication::setLayoutDirection(direction);
}
