#pragma once

#include <ovk/core/export.h>

#include <QColor>
#include <QFont>
#include <QMap>
#include <QString>

#include <string>
#include <type_traits>

namespace ovk {

namespace impl {

/// Class types are passed by const reference, all else by value.
template <class T>
using ConvertArgument = std::conditional_t<std::is_class<T>::value, const T&, T>;

} // namespace impl

/// Converts a value to text and text to a value, and numbers to one another.
///
/// There is one specialisation for each pair; any other pair does not compile. Text forms know no
/// locale. What cannot be parsed gives 0, false, an empty value or an invalid colour.
template <class From, class To>
To convert(impl::ConvertArgument<From> value) = delete;

/// \name Text
/// @{
template <> OVK_EXPORT QString convert<const char*, QString>(const char* text);
template <> OVK_EXPORT QString convert<const wchar_t*, QString>(const wchar_t* text);
template <> OVK_EXPORT QString convert<std::string, QString>(const std::string& text);
template <> OVK_EXPORT QString convert<std::wstring, QString>(const std::wstring& text);
template <> OVK_EXPORT std::wstring convert<QString, std::wstring>(const QString& text);
template <> OVK_EXPORT QString convert<QString, QString>(const QString& text);
/// @}

/// \name Truth values: "true" and "false"; any text but "true" reads as false
/// @{
template <> OVK_EXPORT QString convert<bool, QString>(bool value);
template <> OVK_EXPORT bool convert<QString, bool>(const QString& text);
/// @}

/// \name Colours: "default" for the invalid colour, else "#" and eight hexadecimal digits
/// The alpha value is lost: it is always written as ff and never read.
/// @{
template <> OVK_EXPORT QString convert<QColor, QString>(const QColor& color);
template <> OVK_EXPORT QColor convert<QString, QColor>(const QString& text);
/// @}

/// \name Maps: "key,value;" for each pair in key order, with nothing escaped
/// Repeated keys keep the last value. A last pair without its ";" ends at the end of the text.
/// @{
using StringMap = QMap<QString, QString>;
template <> OVK_EXPORT QString convert<StringMap, QString>(const StringMap& map);
template <> OVK_EXPORT StringMap convert<QString, StringMap>(const QString& text);
/// @}

/// \name Fonts: QFont::toString(); a text that is no font gives the default font
/// @{
template <> OVK_EXPORT QString convert<QFont, QString>(const QFont& font);
template <> OVK_EXPORT QFont convert<QString, QFont>(const QString& text);
/// @}

/// \name Numbers and text: floating point numbers with six significant digits
/// @{
template <> OVK_EXPORT QString convert<int, QString>(int value);
template <> OVK_EXPORT QString convert<long, QString>(long value);
template <> OVK_EXPORT QString convert<long long, QString>(long long value);
template <> OVK_EXPORT QString convert<double, QString>(double value);
template <> OVK_EXPORT QString convert<float, QString>(float value);
template <> OVK_EXPORT int convert<QString, int>(const QString& text);
template <> OVK_EXPORT long convert<QString, long>(const QString& text);
template <> OVK_EXPORT long long convert<QString, long long>(const QString& text);
template <> OVK_EXPORT double convert<QString, double>(const QString& text);
template <> OVK_EXPORT float convert<QString, float>(const QString& text);
/// @}

/// \name Numbers: floating point numbers are truncated toward zero
/// A number that does not fit (or is none) gives 0. `unsigned short` keeps the low 16 bits.
/// @{
template <> OVK_EXPORT int convert<bool, int>(bool value);
template <> OVK_EXPORT bool convert<int, bool>(int value);
template <> OVK_EXPORT int convert<int, int>(int value);
template <> OVK_EXPORT long convert<int, long>(int value);
template <> OVK_EXPORT int convert<long, int>(long value);
template <> OVK_EXPORT long convert<long, long>(long value);
template <> OVK_EXPORT int convert<unsigned short, int>(unsigned short value);
template <> OVK_EXPORT unsigned short convert<int, unsigned short>(int value);
template <> OVK_EXPORT double convert<double, double>(double value);
template <> OVK_EXPORT double convert<float, double>(float value);
template <> OVK_EXPORT float convert<double, float>(double value);
template <> OVK_EXPORT int convert<double, int>(double value);
template <> OVK_EXPORT long convert<double, long>(double value);
template <> OVK_EXPORT double convert<int, double>(int value);
template <> OVK_EXPORT double convert<long, double>(long value);
template <> OVK_EXPORT double convert<unsigned short, double>(unsigned short value);
template <> OVK_EXPORT unsigned short convert<double, unsigned short>(double value);
/// @}

} // namespace ovk
