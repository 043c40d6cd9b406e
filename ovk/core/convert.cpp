#include "ovk/core/convert.h"

#include <cmath>
#include <limits>

namespace ovk {

namespace {

/// Truncates toward zero; 0 for what does not fit, which the bare cast leaves undefined.
template <class Integer>
Integer Truncate(double value)
{
    const double truncated = std::trunc(value);
    // Both bounds are exact powers of two as doubles, also for 64 bits; a NaN fails both tests.
    const double low = static_cast<double>(std::numeric_limits<Integer>::min());
    if (truncated >= low && truncated < -low)
        return static_cast<Integer>(truncated);
    return 0;
}

/// The number in "-12.375" and the like. Up to 15 digits are exact in a double, and so is the power
/// of ten by which they are divided: the result is the nearest double, as that of the long way.
/// False for all else, which is not to say that it is no number.
bool ReadPlainNumber(const QString& text, double& value)
{
    constexpr int MaxDigits = 15;
    static constexpr double PowersOfTen[MaxDigits + 1] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                          1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const QChar* at = text.constData();
    const QChar* const end = at + text.size();
    const bool negative = at != end && *at == QLatin1Char('-');
    if (negative)
        ++at;
    qint64 digits = 0;
    int count = 0;
    int fraction = -1; // digits behind the point
    for (; at != end; ++at) {
        const int digit = at->unicode() - '0';
        if (digit >= 0 && digit <= 9) {
            digits = digits * 10 + digit;
            if (++count > MaxDigits)
                return false;
            if (fraction >= 0)
                ++fraction;
        } else if (*at == QLatin1Char('.') && fraction < 0 && count > 0) {
            fraction = 0;
        } else {
            return false;
        }
    }
    if (count == 0 || fraction == 0)
        return false;
    const double number = static_cast<double>(digits) / PowersOfTen[qMax(fraction, 0)];
    value = negative ? -number : number;
    return true;
}

/// The forms that QFont reads without a complaint on the console.
bool IsFontDescription(const QString& text)
{
    const QStringList fields = text.trimmed().split(QLatin1Char(','));
    const int count = fields.size();
    return !fields.first().isEmpty() && (count <= 2 || (count >= 9 && count <= 11));
}

} // namespace

template <> QString convert<const char*, QString>(const char* text)
{
    return QString(text);
}

template <> QString convert<const wchar_t*, QString>(const wchar_t* text)
{
    return text ? QString::fromWCharArray(text, -1) : QString();
}

template <> QString convert<std::string, QString>(const std::string& text)
{
    return QString::fromStdString(text);
}

template <> QString convert<std::wstring, QString>(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

template <> std::wstring convert<QString, std::wstring>(const QString& text)
{
    return text.toStdWString();
}

template <> QString convert<QString, QString>(const QString& text)
{
    return text;
}

template <> QString convert<bool, QString>(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

template <> bool convert<QString, bool>(const QString& text)
{
    return text == QLatin1String("true");
}

template <> QString convert<QColor, QString>(const QColor& color)
{
    return color.isValid() ? QLatin1Char('#') + QString::number(color.rgb(), 16)
                           : QStringLiteral("default");
}

template <> QColor convert<QString, QColor>(const QString& text)
{
    if (text == QLatin1String("default"))
        return QColor();
    // The first character is not tested: "#" and any other read alike.
    return QColor(static_cast<QRgb>(text.midRef(1).toUInt(nullptr, 16)));
}

template <> QString convert<StringMap, QString>(const StringMap& map)
{
    QString text;
    for (auto pair = map.cbegin(); pair != map.cend(); ++pair)
        text += pair.key() + QLatin1Char(',') + pair.value() + QLatin1Char(';');
    return text;
}

template <> StringMap convert<QString, StringMap>(const QString& text)
{
    StringMap map;
    int position = 0;
    while (position < text.length() - 1) {
        const int comma = text.indexOf(QLatin1Char(','), position);
        const QString key = text.mid(position, comma - position);
        int semicolon = text.indexOf(QLatin1Char(';'), position);
        if (semicolon < 0)
            semicolon = text.length();
        map.insert(key, text.mid(comma + 1, semicolon - comma - 1));
        position = semicolon + 1;
    }
    return map;
}

template <> QString convert<QFont, QString>(const QFont& font)
{
    return font.toString();
}

template <> QFont convert<QString, QFont>(const QString& text)
{
    QFont font;
    if (IsFontDescription(text))
        font.fromString(text);
    return font;
}

template <> QString convert<int, QString>(int value)
{
    return QString::number(value, 10);
}

template <> QString convert<long, QString>(long value)
{
    return QString::number(value, 10);
}

template <> QString convert<long long, QString>(long long value)
{
    return QString::number(value, 10);
}

template <> QString convert<double, QString>(double value)
{
    return QString::number(value, 'g', 6);
}

template <> QString convert<float, QString>(float value)
{
    return QString::number(static_cast<double>(value), 'g', 6);
}

template <> int convert<QString, int>(const QString& text)
{
    return text.toInt(nullptr, 10);
}

template <> long convert<QString, long>(const QString& text)
{
    return text.toLong(nullptr, 10);
}

template <> long long convert<QString, long long>(const QString& text)
{
    return text.toLongLong(nullptr, 10);
}

template <> double convert<QString, double>(const QString& text)
{
    double value = 0.0;
    return ReadPlainNumber(text, value) ? value : text.toDouble(nullptr);
}

template <> float convert<QString, float>(const QString& text)
{
    return text.toFloat(nullptr);
}

template <> int convert<bool, int>(bool value)
{
    return value ? 1 : 0;
}

template <> bool convert<int, bool>(int value)
{
    return value != 0;
}

template <> int convert<int, int>(int value)
{
    return value;
}

template <> long convert<int, long>(int value)
{
    return value;
}

template <> int convert<long, int>(long value)
{
    return static_cast<int>(value);
}

template <> long convert<long, long>(long value)
{
    return value;
}

template <> int convert<unsigned short, int>(unsigned short value)
{
    return value;
}

template <> unsigned short convert<int, unsigned short>(int value)
{
    return static_cast<unsigned short>(value);
}

template <> double convert<double, double>(double value)
{
    return value;
}

template <> double convert<float, double>(float value)
{
    return static_cast<double>(value);
}

template <> float convert<double, float>(double value)
{
    return static_cast<float>(value);
}

template <> int convert<double, int>(double value)
{
    return Truncate<int>(value);
}

template <> long convert<double, long>(double value)
{
    return Truncate<long>(value);
}

template <> double convert<int, double>(int value)
{
    return value;
}

template <> double convert<long, double>(long value)
{
    return static_cast<double>(value);
}

template <> double convert<unsigned short, double>(unsigned short value)
{
    return value;
}

template <> unsigned short convert<double, unsigned short>(double value)
{
    return static_cast<unsigned short>(Truncate<qint64>(value));
}

} // namespace ovk
