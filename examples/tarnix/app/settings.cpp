#include "app/settings.h"

#include <ovk/core/convert.h>

#include <algorithm>
#include <cmath>

namespace tarnix {

IntPreference::IntPreference(ovk::PreferenceChapter& chapter, const QString& name, int value,
                             int low, int high)
    : TPreferenceBasics(chapter, name, value), m_low(low), m_high(high)
{
}

void IntPreference::_FromString(const QString& text)
{
    // A file may have been edited by hand: out of range is as good as absent.
    bool good = false;
    const int value = text.toInt(&good);
    if (good && value >= m_low && value <= m_high)
        SetData(value);
}

QString IntPreference::_ToString() const
{
    return QString::number(GetData());
}

DoublePreference::DoublePreference(ovk::PreferenceChapter& chapter, const QString& name,
                                   double value, double low, double high)
    : TPreferenceBasics(chapter, name, value), m_low(low), m_high(high)
{
}

void DoublePreference::_FromString(const QString& text)
{
    bool good = false;
    const double value = text.toDouble(&good);
    if (good && std::isfinite(value))
        SetData(std::clamp(value, m_low, m_high));
}

QString DoublePreference::_ToString() const
{
    return ovk::convert<double, QString>(GetData());
}

TextPreference::TextPreference(ovk::PreferenceChapter& chapter, const QString& name,
                               const QString& value)
    : TPreferenceBasics(chapter, name, value)
{
}

void TextPreference::_FromString(const QString& text)
{
    SetData(text);
}

QString TextPreference::_ToString() const
{
    return GetData();
}

SwitchPreference::SwitchPreference(ovk::PreferenceChapter& chapter, const QString& name, bool value)
    : Preference(chapter, name)
{
    SetDefault(value);
    _DoSetData(value);
}

Settings& Settings::GetInstance()
{
    static Settings settings;
    return settings;
}

void Settings::RestoreDefaults()
{
    for (ovk::PreferenceChapter* chapter : {&m_look, &m_work, &m_build, &m_view})
        chapter->RestoreDefault();
}

Settings::Settings()
    : m_files(QStringLiteral("TarnixFiles")), m_look(QStringLiteral("TarnixLook")),
      m_work(QStringLiteral("TarnixWork")), m_build(QStringLiteral("TarnixBuild")),
      m_view(QStringLiteral("TarnixView")), recent_files(m_files, QStringLiteral("Recent")),
      folder(m_files, QStringLiteral("Folder")), theme(m_look, QStringLiteral("Theme"), 8, 0, 10),
      light_theme(m_look, QStringLiteral("LightTheme"), 8, 0, 9),
      accent(m_look, QStringLiteral("Accent"), 0, 0, 9),
      group_titles(m_look, QStringLiteral("GroupTitles"), true),
      own_frame(m_look, QStringLiteral("OwnFrame"), false),
      status_bar(m_look, QStringLiteral("StatusBar"), true),
      ribbon_minimized(m_look, QStringLiteral("RibbonMinimized"), false),
      geometry(m_look, QStringLiteral("Geometry")),
      layout(m_look, QStringLiteral("Layout"), QStringLiteral("Prepare")),
      inches(m_work, QStringLiteral("Inches"), false),
      move_step(m_work, QStringLiteral("MoveStep"), 5.0, 0.01, 500.0),
      turn_step(m_work, QStringLiteral("TurnStep"), 45.0, 0.1, 180.0),
      gap(m_work, QStringLiteral("Gap"), 6.0, 0.0, 200.0),
      snap_to_grid(m_work, QStringLiteral("SnapToGrid"), false),
      plate_width(m_build, QStringLiteral("Width"), 250.0, 10.0, 5000.0),
      plate_depth(m_build, QStringLiteral("Depth"), 210.0, 10.0, 5000.0),
      plate_height(m_build, QStringLiteral("Height"), 220.0, 10.0, 5000.0),
      density(m_build, QStringLiteral("Density"), 1.24, 0.1, 25.0),
      overhang(m_build, QStringLiteral("Overhang"), 45.0, 5.0, 85.0),
      display(m_view, QStringLiteral("Display"), 1, 0, 5),
      plate(m_view, QStringLiteral("Plate"), true), grid(m_view, QStringLiteral("Grid"), true),
      volume(m_view, QStringLiteral("Volume"), true), axes(m_view, QStringLiteral("Axes"), true),
      labels(m_view, QStringLiteral("Labels"), false),
      view_cube(m_view, QStringLiteral("ViewCube"), true),
      shadows(m_view, QStringLiteral("Shadows"), true),
      perspective(m_view, QStringLiteral("Perspective"), true),
      layer_thickness(m_view, QStringLiteral("LayerThickness"), 0.2, 0.01, 5.0)
{
}

} // namespace tarnix
