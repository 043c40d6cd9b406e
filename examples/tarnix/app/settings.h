#pragma once

#include <ovk/preferences/preference.h>
#include <ovk/preferences/preference_chapter.h>

#include <QString>

namespace tarnix {

/// A whole number between two bounds, stored as decimal text.
class IntPreference : public ovk::TPreferenceBasics<int>
{
public:
    using ovk::TPreferenceBasics<int>::operator=;
    IntPreference(ovk::PreferenceChapter& chapter, const QString& name, int value, int low,
                  int high);

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;

private:
    int m_low;
    int m_high;
};

/// A number between two bounds.
class DoublePreference : public ovk::TPreferenceBasics<double>
{
public:
    using ovk::TPreferenceBasics<double>::operator=;
    DoublePreference(ovk::PreferenceChapter& chapter, const QString& name, double value, double low,
                     double high);

    double Low() const { return m_low; }
    double High() const { return m_high; }

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;

private:
    double m_low;
    double m_high;
};

class TextPreference : public ovk::TPreferenceBasics<QString>
{
public:
    using ovk::TPreferenceBasics<QString>::operator=;
    TextPreference(ovk::PreferenceChapter& chapter, const QString& name,
                   const QString& value = QString());

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;
};

/// A switch that may be on by default.
class SwitchPreference : public ovk::Preference<bool>
{
public:
    using ovk::Preference<bool>::operator=;
    SwitchPreference(ovk::PreferenceChapter& chapter, const QString& name, bool value);
};

/// All preferences of the program. One object, made before the controllers start.
class Settings
{
public:
    static Settings& GetInstance();

    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    /// Back to the defaults in all that the options show; recent files and the place of the window
    /// stay.
    void RestoreDefaults();

private:
    ovk::PreferenceChapter m_files;
    ovk::PreferenceChapter m_look;
    ovk::PreferenceChapter m_work;
    ovk::PreferenceChapter m_build;
    ovk::PreferenceChapter m_view;

public:
    ovk::Preference<QStringList> recent_files;
    TextPreference folder;

    IntPreference theme;       ///< a Qtitan::OfficeStyle::Theme
    IntPreference light_theme; ///< the theme to go back to from the dark one
    IntPreference accent;      ///< a Qtitan::OfficeStyle::AccentColor
    SwitchPreference group_titles;
    SwitchPreference own_frame; ///< the window draws its own caption
    SwitchPreference status_bar;
    SwitchPreference ribbon_minimized;
    ovk::Preference<QByteArray> geometry;
    TextPreference layout;

    SwitchPreference inches;
    DoublePreference move_step; ///< millimetres
    DoublePreference turn_step; ///< degrees
    DoublePreference gap;       ///< millimetres
    SwitchPreference snap_to_grid;

    DoublePreference plate_width;
    DoublePreference plate_depth;
    DoublePreference plate_height;
    DoublePreference density;  ///< grams a cubic centimetre
    DoublePreference overhang; ///< degrees

    IntPreference display;
    SwitchPreference plate;
    SwitchPreference grid;
    SwitchPreference volume;
    SwitchPreference axes;
    SwitchPreference labels;
    SwitchPreference view_cube;
    SwitchPreference shadows;
    SwitchPreference perspective;
    DoublePreference layer_thickness;

private:
    Settings();
};

} // namespace tarnix
