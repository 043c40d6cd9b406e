#pragma once

#include <ovk/core/export.h>

#include <QString>

#include <functional>
#include <vector>

namespace ovk {

/// Makes a value of today from the text of an old one.
using PreferenceConverter = std::function<QString(const QString&)>;

/// One step of the history of the preferences' names.
struct PreferenceConversion
{
    /// A piece of a path in an old file, as it was declared: one element name or more.
    QString oldPath;
    /// The piece of today's path that corresponds to it.
    QString newPath;
    /// How an old value becomes one of today.
    PreferenceConverter converter;
};

enum class PathDirection {
    NewToOld,
    OldToNew
};

/// The whole history. The order counts: a later row sees the path as the earlier ones left it.
OVK_TEST_EXPORT const std::vector<PreferenceConversion>& PreferenceConversions();

/// The converter of a path that no row matches at its end; shared by the whole process.
OVK_TEST_EXPORT PreferenceConverter& DefaultConverter();

/// Translates the lower-case \a path. \a converter becomes that of the last row that matched at the
/// end of the path.
OVK_TEST_EXPORT void MapPreferencePath(QString& path, PreferenceConverter& converter,
                                       PathDirection direction);

/// The ways in which old values became new ones. A text of another form passes as it stands, or
/// becomes a default where the result is no free text.
namespace preference_converters {

OVK_TEST_EXPORT QString KeepText(const QString& text);
OVK_TEST_EXPORT QString InvertBool(const QString& text);
OVK_TEST_EXPORT QString FloatToInt(const QString& text);
/// A length in millimetres and in inches, "1.5 0.06": the one of the user's unit.
OVK_TEST_EXPORT QString PairToStlUnits(const QString& text);
OVK_TEST_EXPORT QString MmToStlUnits(const QString& text);
/// Four numbers from 0 to 1. The alpha value is lost.
OVK_TEST_EXPORT QString RgbaFloatsToColor(const QString& text);
/// Five numbers, of which the second is a colour with red in its low byte and alpha in its top one.
OVK_TEST_EXPORT QString ColorRefToColor(const QString& text);
OVK_TEST_EXPORT QString BoolToDigit(const QString& text);
OVK_TEST_EXPORT QString DigitToBool(const QString& text);
OVK_TEST_EXPORT QString FloatToText(const QString& text);

} // namespace preference_converters

} // namespace ovk
