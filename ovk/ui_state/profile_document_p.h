#pragma once

#include <ovk/core/export.h>

#include <QByteArray>

#include <optional>

class QJsonObject;
class QString;

namespace ovk {

/// How the document of a profile file is stored.
enum class DocumentFormat
{
    Binary,
    Json
};

/// Whether a binary document is nested no deeper than a text may be, and no larger inside than its
/// bytes allow. Qt's validation follows the nesting by recursion and trusts that parts are not
/// shared, so a damaged or forged file could take its stack or its time. What else is wrong with
/// the document is left to Qt.
OVK_TEST_EXPORT bool IsSoundBinaryJson(const QByteArray& data);

/// The object of a document; nothing if the data is not such a document.
OVK_TEST_EXPORT std::optional<QJsonObject> ParseDocument(const QByteArray& data,
                                                         DocumentFormat format);

/// The bytes of a document; empty if the format cannot hold it.
OVK_TEST_EXPORT QByteArray FormatDocument(const QJsonObject& root, DocumentFormat format);

/// The object of a file; nothing if the file is missing, unreadable, or no such document.
OVK_TEST_EXPORT std::optional<QJsonObject> ReadDocument(const QString& path, DocumentFormat format);

/// What became of a write.
enum class WriteResult
{
    Written,
    NotOpened, ///< The file could not be opened for writing.
    Failed     ///< The write itself failed.
};

/// Writes a file so that a failure or a kill leaves the former one whole, wherever the folder takes
/// a new file; where it does not, directly.
OVK_TEST_EXPORT WriteResult WriteDocument(const QString& path, const QJsonObject& root,
                                          DocumentFormat format);

} // namespace ovk
