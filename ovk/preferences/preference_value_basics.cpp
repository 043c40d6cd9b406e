#include "ovk/preferences/preference_value_basics.h"

#include "preference_xml_p.h"

#include "ovk/preferences/preference_chapter.h"
#include "ovk/preferences/preference_customize.h"
#include "ovk/preferences/preferences_controller.h"

#include <QString>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace ovk {

namespace {

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

PreferenceValueBasics::PreferenceValueBasics(PreferenceChapter& parent, const QString& name)
    : PreferenceBasics(&parent, name)
{
}

PreferenceValueBasics::~PreferenceValueBasics() = default;

void PreferenceValueBasics::_DoSave(QXmlStreamWriter& writer)
{
    writer.writeTextElement(GetName(), WithoutForbiddenCharacters(_ToString()));
}

void PreferenceValueBasics::_DoLoad(QXmlStreamReader& reader)
{
    const QString text = reader.readElementText();
    if (PreferencesController::GetInstance()->IsPreferenceLoadable(this))
        _FromString(text);
}

void PreferenceValueBasics::_FromString(const QString& /*text*/)
{
}

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
