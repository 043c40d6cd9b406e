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

/// The last characters of a path, as one number.
quint64 Tail(const QString& path)
{
    quint64 tail = 0;
    for (int i = qMax(0, path.size() - 4); i < path.size(); ++i)
        tail = (tail << 16) | path.at(i).unicode();
    return tail;
}

/// A bit for each step of a path; steps may share one.
quint64 Steps(const QString& path)
{
    quint64 steps = 0;
    uint hash = 0;
    for (const QChar character : path) {
        if (character != QLatin1Char('/')) {
            hash = hash * 31 + character.unicode();
            continue;
        }
        steps |= quint64(1) << (hash % 64);
        hash = 0;
    }
    return steps | quint64(1) << (hash % 64);
}

/// A piece of a path in the case in which it is compared, and what tells at a glance that a path
/// does not have it. Of 280 rows hardly three touch a path.
struct Key
{
    explicit Key(const QString& path) : text(path.toLower()), tail(Tail(text)), steps(Steps(text))
    {
        if (text.size() < 4)
            tail_mask = (quint64(1) << (16 * text.size())) - 1;
    }

    /// False if the key is neither the end of the path nor a run of its steps.
    bool MayFit(quint64 path_tail, quint64 path_steps) const
    {
        return (path_tail & tail_mask) == tail || (steps & ~path_steps) == 0;
    }

    QString text;
    quint64 tail;
    quint64 tail_mask = ~quint64(0);
    quint64 steps;
};

/// The paths of one row.
struct Keys
{
    Key oldPath;
    Key newPath;
};

const std::vector<Keys>& ConversionKeys()
{
    static const std::vector<Keys> s_keys = [] {
        std::vector<Keys> keys;
        for (const PreferenceConversion& row : PreferenceConversions())
            keys.push_back({Key(row.oldPath), Key(row.newPath)});
        return keys;
    }();
    return s_keys;
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
    const std::vector<Keys>& rows = ConversionKeys();
    const bool to_old = direction == PathDirection::NewToOld;
    quint64 tail = Tail(path);
    quint64 steps = Steps(path);
    for (size_t i = 0; i < rows.size(); ++i) {
        const Key& key = to_old ? rows[i].newPath : rows[i].oldPath;
        if (!key.MayFit(tail, steps))
            continue;
        const int position = path.indexOf(key.text);
        if (position < 0)
            continue;
        // At the end nothing is asked about what is in front: a row may match the tail of a word.
        const bool at_end = position + key.text.size() == path.size();
        if (!at_end && !IsWholeSteps(path, position, key.text.size()))
            continue;
        if (at_end)
            converter = PreferenceConversions()[i].converter;
        path.replace(position, key.text.size(), (to_old ? rows[i].oldPath : rows[i].newPath).text);
        tail = Tail(path);
        steps = Steps(path);
    }
}

} // namespace ovk
