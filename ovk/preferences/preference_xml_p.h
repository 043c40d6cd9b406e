#pragma once

#include <QString>

class QXmlStreamReader;
class QXmlStreamWriter;

namespace ovk {

/// \a text without the characters that no XML document can hold: one of them would make all
/// that follows it in the file unreadable.
QString WithoutForbiddenCharacters(const QString& text);

/// The text of the element on whose start \a reader stands: QXmlStreamReader::readElementText(), which
/// makes three texts of each. A child element is an error of the reader here, too.
QString ReadTextElement(QXmlStreamReader& reader);

/// Writes an element with a text that is read back as it is, but for characters that no XML
/// document can hold.
void WriteTextElement(QXmlStreamWriter& writer, const QString& name, const QString& text);

} // namespace ovk
