#pragma once

#include <ovk/preferences/preference.h>
#include <ovk/preferences/preference_chapter.h>
#include <ovk/preferences/preference_collection.h>
#include <ovk/preferences/preference_customize.h>

#include <QColor>
#include <QFont>

namespace tarnix {

/// A chapter inside another one.
class Chapter : public ovk::PreferenceChapter
{
public:
    Chapter(ovk::PreferenceChapter& parent, const QString& name) : PreferenceChapter(parent, name)
    {
    }
};

/// A whole number between two bounds, stored as decimal text.
class IntPreference : public ovk::TPreferenceBasics<int>
{
public:
    using ovk::TPreferenceBasics<int>::operator=;
    IntPreference(ovk::PreferenceChapter& chapter, const QString& name, int value, int low,
                  int high);

    int Low() const { return m_low; }
    int High() const { return m_high; }

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

/// A length in millimetres that is stored as a whole number of the internal unit, 10,000 a
/// millimetre: the form into which the lengths of old files are converted.
class LengthPreference : public DoublePreference
{
public:
    using DoublePreference::operator=;
    using DoublePreference::DoublePreference;

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;
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

/// Inches or not, stored as the old files have it: "Inches" or "Millimeters".
class UnitPreference : public SwitchPreference
{
public:
    using SwitchPreference::operator=;
    UnitPreference(ovk::PreferenceChapter& chapter, const QString& name)
        : SwitchPreference(chapter, name, false)
    {
    }

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;
};

/// A colour; the invalid one leaves the choice to the theme.
class ColorPreference : public ovk::TPreferenceBasics<QColor>
{
public:
    using ovk::TPreferenceBasics<QColor>::operator=;
    ColorPreference(ovk::PreferenceChapter& chapter, const QString& name,
                    const QColor& value = QColor());

    /// The colour, or the one of the theme.
    QColor Or(const QColor& of_theme) const { return GetData().isValid() ? GetData() : of_theme; }

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;
};

/// A font; the one of the program unless the user took another.
class FontPreference : public ovk::TPreferenceBasics<QFont>
{
public:
    using ovk::TPreferenceBasics<QFont>::operator=;
    FontPreference(ovk::PreferenceChapter& chapter, const QString& name);

protected:
    void _FromString(const QString& text) override;
    QString _ToString() const override;
};

/// From where a new build is looked at. It has a storage form of its own: an element with one
/// element for each angle.
class DirectionPreference : public ovk::PreferenceCustomize, public ovk::Observable
{
public:
    DirectionPreference(ovk::PreferenceChapter& chapter, const QString& name, double azimuth,
                        double elevation);

    double Azimuth() const { return m_azimuth; }
    double Elevation() const { return m_elevation; }
    /// Degrees; the azimuth comes to lie between -180 and 180, the elevation between -90 and 90.
    void Set(double azimuth, double elevation);

protected:
    void _AfterLoad() override;
    void _DoSave(QXmlStreamWriter& writer) override;
    void _DoLoad(QXmlStreamReader& reader) override;
    void _DoRestoreDefault() override;
    /// Old files have both angles in one text, "32 28".
    void _LoadFromLegacyMap(const QString& path, QMap<QString, QString>& values) override;

private:
    double m_default_azimuth;
    double m_default_elevation;
    double m_azimuth;
    double m_elevation;
};

/// What the program knows of a material.
class MaterialProfile : public ovk::PreferenceChapter
{
public:
    explicit MaterialProfile(ovk::PreferenceChapter& collection);

    TextPreference name;
    DoublePreference density;         ///< grams a cubic centimetre
    DoublePreference overhang;        ///< degrees
    LengthPreference layer_thickness; ///< millimetres
    ColorPreference color;            ///< of new parts; invalid for the colours in turn
};

/// The materials that the user may print with.
class MaterialProfiles : public ovk::PreferenceCollectionBasics
{
public:
    MaterialProfiles(ovk::PreferenceChapter& parent, const QString& name);

    int Count() const { return Items().size(); }
    MaterialProfile* At(int index) const;
    /// The one of a name; null when there is none.
    MaterialProfile* Find(const QString& name) const;
    /// Adds a material at the end. The collection owns it.
    MaterialProfile& Add(const QString& name, double density, double overhang, double thickness);
    /// Takes one material out.
    void Remove(int index);
    /// The materials that a new user finds.
    void AddUsual();

protected:
    ovk::PreferenceBasics* _CreateItem() override;
    /// The default of the program is not to have no materials.
    void _DoRestoreDefault() override;
};

} // namespace tarnix
