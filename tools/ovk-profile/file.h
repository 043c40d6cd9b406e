#pragma once

#include <QJsonObject>
#include <QString>

class QTextStream;

namespace ovk_profile {

/// The two forms of a file.
enum class Format
{
    Text,
    Binary
};

/// What a file describes.
enum class Kind
{
    Profile,  ///< Has "profile" at its root.
    Catalogue ///< Has "commands" or "products" at its root.
};

/// A file that was read.
struct File
{
    QString path;
    Format format = Format::Text;
    Kind kind = Kind::Profile;
    QJsonObject root;
};

/// Why a file could not be read or written, in words for the user.
struct FileError
{
    QString message;
};

/// Reads a file in either form, whatever its name; "-" is the standard input. Throws FileError.
File ReadFile(const QString& path);

/// As ReadFile(), for a file that must be a profile.
File ReadProfile(const QString& path);

/// Writes a file; with "-" or an empty path to `out` as text, or to the standard output in binary
/// form. A failure leaves a former file whole. Throws FileError.
void WriteFile(const QString& path, const QJsonObject& root, Format format, QTextStream& out);

/// The form that a file of that name has: binary for the extension "bin", else text.
Format FormatOfName(const QString& path);

} // namespace ovk_profile
