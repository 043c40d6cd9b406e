#include "preferences/preference_types.h"

#include <ovk/core/convert.h>
#include <vorsdk/units.h>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>

namespace tarnix {
namespace {

constexpr double k_units_per_mm = 10000.0;

} // namespace

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

void LengthPreference::_FromString(const QString& text)
{
    bool good = false;
    const qlonglong units = text.toLongLong(&good);
    if (good)
        SetData(std::clamp(double(units) / k_units_per_mm, Low(), High()));
}

QString LengthPreference::_ToString() const
{
    return ovk::convert<long, QString>(MUnit::ConvertFromMmToStlUnits(GetData()));
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

void UnitPreference::_FromString(const QString& text)
{
    SetData(text == QLatin1String("Inches"));
}

QString UnitPreference::_ToString() const
{
    return GetData() ? QStringLiteral("Inches") : QStringLiteral("Millimeters");
}

ColorPreference::ColorPreference(ovk::PreferenceChapter& chapter, const QString& name,
                                 const QColor& value)
    : TPreferenceBasics(chapter, name, value)
{
}

void ColorPreference::_FromString(const QString& text)
{
    SetData(ovk::convert<QString, QColor>(text));
}

QString ColorPreference::_ToString() const
{
    return ovk::convert<QColor, QString>(GetData());
}

FontPreference::FontPreference(ovk::PreferenceChapter& chapter, const QString& name)
    : TPreferenceBasics(chapter, name, QFont())
{
}

void FontPreference::_FromString(const QString& text)
{
    SetData(ovk::convert<QString, QFont>(text));
}

QString FontPreference::_ToString() const
{
    return ovk::convert<QFont, QString>(GetData());
}

DirectionPreference::DirectionPreference(ovk::PreferenceChapter& chapter, const QString& name,
                                         double azimuth, double elevation)
    : PreferenceCustomize(chapter, name), m_default_azimuth(azimuth),
      m_default_elevation(elevation), m_azimuth(azimuth), m_elevation(elevation)
{
}

void DirectionPreference::Set(double azimuth, double elevation)
{
    if (!std::isfinite(azimuth) || !std::isfinite(elevation))
        return;
    m_azimuth = std::remainder(azimuth, 360.0);
    m_elevation = std::clamp(elevation, -90.0, 90.0);
    _SetLoaded();
    _Notify();
}

void DirectionPreference::_AfterLoad()
{
    if (!IsLoaded())
        _Notify();
}

void DirectionPreference::_DoSave(QXmlStreamWriter& writer)
{
    writer.writeStartElement(GetName());
    writer.writeTextElement(QStringLiteral("azimuth"), ovk::convert<double, QString>(m_azimuth));
    writer.writeTextElement(QStringLiteral("elevation"),
                            ovk::convert<double, QString>(m_elevation));
    writer.writeEndElement();
}

void DirectionPreference::_DoLoad(QXmlStreamReader& reader)
{
    double azimuth = m_azimuth;
    double elevation = m_elevation;
    while (reader.readNextStartElement()) {
        double* const angle = reader.name() == QLatin1String("azimuth")     ? &azimuth
                              : reader.name() == QLatin1String("elevation") ? &elevation
                                                                            : nullptr;
        bool good = false;
        const double value =
            reader.readElementText(QXmlStreamReader::SkipChildElements).toDouble(&good);
        if (angle && good)
            *angle = value;
    }
    Set(azimuth, elevation);
}

void DirectionPreference::_DoRestoreDefault()
{
    Set(m_default_azimuth, m_default_elevation);
}

void DirectionPreference::_LoadFromLegacyMap(const QString& path, QMap<QString, QString>& values)
{
    const QStringList angles = values.value(path).simplified().split(QLatin1Char(' '));
    if (angles.size() != 2)
        return;
    bool good_azimuth = false;
    bool good_elevation = false;
    const double azimuth = angles.at(0).toDouble(&good_azimuth);
    const double elevation = angles.at(1).toDouble(&good_elevation);
    if (good_azimuth && good_elevation)
        Set(azimuth, elevation);
}

MaterialProfile::MaterialProfile(ovk::PreferenceChapter& collection)
    : PreferenceChapter(collection, QStringLiteral("Material")),
      name(*this, QStringLiteral("Name")),
      density(*this, QStringLiteral("Density"), 1.24, 0.1, 25.0),
      overhang(*this, QStringLiteral("Overhang"), 45.0, 5.0, 85.0),
      layer_thickness(*this, QStringLiteral("LayerThickness"), 0.2, 0.01, 5.0),
      color(*this, QStringLiteral("Color"))
{
}

MaterialProfiles::MaterialProfiles(ovk::PreferenceChapter& parent, const QString& name)
    : PreferenceCollectionBasics(parent, name)
{
}

MaterialProfile* MaterialProfiles::At(int index) const
{
    return index >= 0 && index < Count() ? static_cast<MaterialProfile*>(Items().at(index))
                                         : nullptr;
}

MaterialProfile* MaterialProfiles::Find(const QString& name) const
{
    for (int i = 0; i < Count(); ++i) {
        if (At(i)->name.GetData() == name)
            return At(i);
    }
    return nullptr;
}

MaterialProfile& MaterialProfiles::Add(const QString& name, double density, double overhang,
                                       double thickness)
{
    auto* const profile = static_cast<MaterialProfile*>(_CreateItem());
    profile->name.SetData(name);
    profile->density.SetData(density);
    profile->overhang.SetData(overhang);
    profile->layer_thickness.SetData(thickness);
    return *profile;
}

void MaterialProfiles::Remove(int index)
{
    // A collection is emptied as a whole only: the others are made anew.
    struct Values
    {
        QString name;
        double density, overhang, thickness;
        QColor color;
    };
    QList<Values> kept;
    for (int i = 0; i < Count(); ++i) {
        const MaterialProfile& profile = *At(i);
        if (i != index)
            kept.append({profile.name, profile.density, profile.overhang, profile.layer_thickness,
                         profile.color});
    }
    Clear();
    for (const Values& values : kept)
        Add(values.name, values.density, values.overhang, values.thickness)
            .color.SetData(values.color);
}

void MaterialProfiles::AddUsual()
{
    Add(QStringLiteral("PLA"), 1.24, 45.0, 0.2);
    Add(QStringLiteral("PETG"), 1.27, 45.0, 0.2);
    Add(QStringLiteral("ABS"), 1.04, 40.0, 0.2);
    Add(QStringLiteral("PA 12"), 1.01, 50.0, 0.1);
    Add(QStringLiteral("Resin"), 1.12, 30.0, 0.05);
}

ovk::PreferenceBasics* MaterialProfiles::_CreateItem()
{
    return new MaterialProfile(*this); // owned by the collection, with which it registers
}

void MaterialProfiles::_DoRestoreDefault()
{
    Clear();
    AddUsual();
}

} // namespace tarnix
