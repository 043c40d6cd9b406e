#pragma once

#include <QString>

class QXmlStreamReader;
class QXmlStreamWriter;

namespace ovk {

/// \a text without the characters that no XML document can hold: one of them would make all
/// that follows it in the file unreadable.
QString WithoutForbiddenCharacters(const QString& text);

/// The text of the element on whose start \a reader stands, read as by
/// QXmlStreamReader::readElementText(): a child element is an error of the reader here, too.
///
/// Most values only look at their text, so that one piece of memory serves one after the other. Who
/// keeps a copy of the text gets that piece with it.
class ElementText
{
public:
    explicit ElementText(QXmlStreamReader& reader);
    ~ElementText();
    ElementText(const ElementText&) = delete;
    ElementText& operator=(const ElementText&) = delete;

    const QString& Get() const { return m_text; }

private:
    void _Set(const QStringRef& text);

    QString m_text;
};

/// Writes an element with a text that is read back as it is, but for characters that no XML
/// document can hold.
void WriteTextElement(QXmlStreamWriter& writer, const QString& name, const QString& text);

} // namespace ovk
