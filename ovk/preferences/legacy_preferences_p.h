#pragma once

#include <ovk/core/export.h>

#include <QMap>
#include <QString>

class QTextStream;
class QXmlStreamReader;

namespace ovk {

/// Flattens a legacy document into a map from the lower-case path of an element to its text; the
/// texts of elements of the same path are joined. With a \a stream, writes a line "path=value" for
/// each entry to it.
OVK_TEST_EXPORT void FlattenLegacyDocument(QXmlStreamReader& reader, QMap<QString, QString>& values,
                                           QTextStream* stream);

} // namespace ovk
