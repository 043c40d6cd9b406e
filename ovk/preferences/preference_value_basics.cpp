#include "ovk/preferences/preference_value_basics.h"

#include "preference_xml_p.h"

#include "ovk/preferences/preference_chapter.h"
#include "ovk/preferences/preference_customize.h"
#include "ovk/preferences/preferences_controller.h"

#include <QString>
#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <cstring>

namespace ovk {

namespace {

/// Memory for the text of the next element; in a load inside a load it is in use.
QString g_spare_text;

/// In characters. Whoever keeps a text may keep memory for this many.
constexpr int MaxSpareText = 64;

bool IsForbidden(QChar character)
{
    const ushort code = character.unicode();
    return (code < 0x20 && code != 0x09 && code != 0x0a && code != 0x0d) || code >= 0xfffe;
}

/// True for nearly every text there is: nothing in it but needs no second look.
bool IsHarmless(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar character) {
        return !character.isSurrogate() && !IsForbidden(character);
    });
}

} // namespace

QString WithoutForbiddenCharacters(const QString& text)
{
    if (IsHarmless(text))
        return text;
    QString allowed;
    allowed.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            allowed += character;
            allowed += text.at(++i);
        } else if (!character.isSurrogate() && !IsForbidden(character)) {
            allowed += character;
        }
    }
    return allowed;
}

ElementText::ElementText(QXmlStreamReader& reader)
{
    if (!reader.isStartElement())
        return;
    for (;;) {
        switch (reader.readNext()) {
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (m_text.isEmpty())
                _Set(reader.text());
            else
                m_text += reader.text();
            break;
        case QXmlStreamReader::ProcessingInstruction:
        case QXmlStreamReader::Comment:
            break;
        case QXmlStreamReader::EndElement:
            return;
        default:
            if (!reader.hasError())
                reader.raiseError(QStringLiteral("Expected character data."));
            return;
        }
    }
}

ElementText::~ElementText()
{
    if (m_text.isDetached() && m_text.capacity() <= MaxSpareText)
        m_text.swap(g_spare_text);
}

void ElementText::_Set(const QStringRef& text)
{
    // Not the reader's own text: sharing it would have the reader make a new one each time.
    if (g_spare_text.capacity() < text.size()) {
        m_text = QString(text.unicode(), text.size());
        return;
    }
    m_text.swap(g_spare_text);
    m_text.resize(text.size());
    std::memcpy(m_text.data(), text.unicode(), size_t(text.size()) * sizeof(QChar));
}

void WriteTextElement(QXmlStreamWriter& writer, const QString& name, const QString& text)
{
    const QString allowed = WithoutForbiddenCharacters(text);
    if (!allowed.contains(QLatin1Char('\r'))) {
        writer.writeTextElement(name, allowed);
        return;
    }
    // A reader takes a bare carriage return for a line feed.
    writer.writeStartElement(name);
    const QStringList parts = allowed.split(QLatin1Char('\r'));
    for (int i = 0; i < parts.size(); ++i) {
        if (i > 0)
            writer.writeEntityReference(QStringLiteral("#13"));
        writer.writeCharacters(parts.at(i));
    }
    writer.writeEndElement();
}

PreferenceValueBasics::PreferenceValueBasics(PreferenceChapter& parent, const QString& name)
    : PreferenceBasics(&parent, name)
{
}

PreferenceValueBasics::~PreferenceValueBasics() = default;

void PreferenceValueBasics::_DoSave(QXmlStreamWriter& writer)
{
    WriteTextElement(writer, GetName(), _ToString());
}

void PreferenceValueBasics::_DoLoad(QXmlStreamReader& reader)
{
    const ElementText text(reader);
    if (PreferencesController::GetInstance()->IsPreferenceLoadable(this))
        _FromString(text.Get());
}

void PreferenceValueBasics::_FromString(const QString& /*text*/) {}

QString PreferenceValueBasics::_ToString() const
{
    return QString();
}

PreferenceCustomize::PreferenceCustomize(PreferenceChapter& parent, const QString& name)
    : PreferenceBasics(&parent, name)
{
}

PreferenceCustomize::~PreferenceCustomize() = default;

} // namespace ovk
