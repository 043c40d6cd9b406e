#include "preference_conversion_p.h"

#include "ovk/core/convert.h"

#include <vorsdk/units.h>

#include <QColor>
#include <QStringList>

#include <cmath>

namespace ovk {

namespace preference_converters {

namespace {

QString ColorText(QRgb rgb)
{
    return QLatin1Char('#') + QString::number(rgb, 16);
}

} // namespace

QString KeepText(const QString& text)
{
    return text;
}

QString InvertBool(const QString& text)
{
    return convert<bool, QString>(!convert<QString, bool>(text));
}

QString FloatToInt(const QString& text)
{
    return convert<int, QString>(convert<double, int>(static_cast<double>(text.toFloat())));
}

QString PairToStlUnits(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    if (parts.size() != 2)
        return text;
    const MUserUnit& unit = MUserUnit::GetInstance();
    const QString& part = parts.at(unit.GetUnit() == 0 ? 0 : 1);
    return convert<long, QString>(unit.ConvertFromUIToStlUnits(part.toDouble()));
}

QString MmToStlUnits(const QString& text)
{
    return convert<long, QString>(MUnit::ConvertFromMmToStlUnits(text.toDouble()));
}

QString RgbaFloatsToColor(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    if (parts.size() != 4)
        return text;
    double values[4] = {};
    for (int i = 0; i < 4; ++i) {
        bool ok = false;
        values[i] = parts.at(i).toDouble(&ok);
        if (!ok || !std::isfinite(values[i]))
            return text;
    }
    QColor color;
    // A colour of an impossible alpha is invalid, which reads as black; QColor says so on the
    // console as well.
    if (values[3] >= 0.0 && values[3] <= 1.0)
        color.setRgbF(qBound(0.0, values[0], 1.0), qBound(0.0, values[1], 1.0),
                      qBound(0.0, values[2], 1.0), values[3]);
    return ColorText(color.rgb());
}

QString ColorRefToColor(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    if (parts.size() != 5)
        return text;
    bool ok = false;
    const ulong value = parts.at(1).toULong(&ok, 10);
    if (!ok)
        return text;
    const auto byte = [value](int shift) { return static_cast<int>((value >> shift) & 0xff); };
    return ColorText(QColor(byte(0), byte(8), byte(16), byte(24)).rgba());
}

QString BoolToDigit(const QString& text)
{
    return convert<QString, bool>(text) ? QStringLiteral("1") : QStringLiteral("0");
}

QString DigitToBool(const QString& text)
{
    return convert<bool, QString>(text == QLatin1String("1"));
}

QString FloatToText(const QString& text)
{
    bool ok = false;
    const float value = text.toFloat(&ok);
    return ok ? convert<float, QString>(value) : text;
}

} // namespace preference_converters

namespace {

/// The paths of one row in the case in which they are compared.
struct LowerCasePaths
{
    QString oldPath;
    QString newPath;
};

const std::vector<LowerCasePaths>& LowerCaseConversions()
{
    static const std::vector<LowerCasePaths> s_paths = [] {
        std::vector<LowerCasePaths> paths;
        for (const PreferenceConversion& row : PreferenceConversions())
            paths.push_back({row.oldPath.toLower(), row.newPath.toLower()});
        return paths;
    }();
    return s_paths;
}

/// True if the piece of \a path from \a position on is a run of whole steps with a step behind it.
bool IsWholeSteps(const QString& path, int position, int length)
{
    return (position == 0 || path.at(position - 1) == QLatin1Char('/'))
           && path.at(position + length) == QLatin1Char('/');
}

} // namespace

PreferenceConverter& DefaultConverter()
{
    static PreferenceConverter s_converter = preference_converters::KeepText;
    return s_converter;
}

void MapPreferencePath(QString& path, PreferenceConverter& converter, PathDirection direction)
{
    const std::vector<LowerCasePaths>& rows = LowerCaseConversions();
    for (size_t i = 0; i < rows.size(); ++i) {
        const bool to_old = direction == PathDirection::NewToOld;
        const QString& key = to_old ? rows[i].newPath : rows[i].oldPath;
        const QString& replacement = to_old ? rows[i].oldPath : rows[i].newPath;
        const int position = path.indexOf(key);
        if (position < 0)
            continue;
        // At the end nothing is asked about what is in front: a row may match the tail of a word.
        if (position + key.size() == path.size()) {
            converter = PreferenceConversions()[i].converter;
            path.replace(position, key.size(), replacement);
        } else if (IsWholeSteps(path, position, key.size())) {
            path.replace(position, key.size(), replacement);
        }
    }
}

} // namespace ovk
