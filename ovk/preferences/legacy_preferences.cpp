#include "legacy_preferences_p.h"

#include "preference_conversion_p.h"

#include "ovk/preferences/pref_chap_build_risk_analysis.h"
#include "ovk/preferences/preference_customize.h"
#include "ovk/preferences/preference_value_basics.h"
#include "ovk/preferences/preferences_controller.h"

#include <QStringList>
#include <QTextStream>
#include <QXmlStreamReader>

namespace ovk {

namespace {

/// Texts of elements deeper than this are dropped: no preference is that deep, and each would
/// cost a key as long as all names above it.
constexpr int MaxDepth = 256;

/// Nor are there ever this many names: a file that makes more of them than this, all keys taken
/// together, has no further paths. Its memory would grow far beyond its size.
constexpr int MaxKeyCharacters = 1 << 24;

/// The document in the making.
class Flattener
{
public:
    explicit Flattener(QMap<QString, QString>& values) : m_values(values) {}

    void Start(const QString& name)
    {
        m_names.append(name.toLower());
        if (name == QLatin1String("mouse_shortcuts"))
            m_in_mouse_shortcuts = true;
    }

    void End(const QString& name)
    {
        if (!m_names.isEmpty())
            m_names.removeLast();
        if (name == QLatin1String("Mouse_Shortcut")) {
            m_separator = QStringLiteral(";");
        } else if (name == QLatin1String("mouse_shortcuts")) {
            m_separator = QStringLiteral(";;");
            m_in_mouse_shortcuts = false;
        }
    }

    void Text(const QString& text)
    {
        if (m_names.size() > MaxDepth)
            return;
        QString key = m_names.join(QLatin1Char('/'));
        if (key.endsWith(QLatin1Char('/')))
            key.chop(1);
        const auto value = m_values.find(key);
        if (value == m_values.end()) {
            m_key_characters += key.size();
            if (m_key_characters <= MaxKeyCharacters)
                m_values.insert(key, text);
        } else {
            *value += (m_in_mouse_shortcuts ? m_separator : QStringLiteral(";")) + text;
        }
    }

private:
    QMap<QString, QString>& m_values;
    QStringList m_names;
    QString m_separator;
    qint64 m_key_characters = 0;
    bool m_in_mouse_shortcuts = false;
};

} // namespace

void FlattenLegacyDocument(QXmlStreamReader& reader, QMap<QString, QString>& values, QTextStream* stream)
{
    Flattener flattener(values);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            flattener.Start(reader.name().toString());
            break;
        case QXmlStreamReader::EndElement:
            flattener.End(reader.name().toString());
            break;
        case QXmlStreamReader::Characters:
            flattener.Text(reader.text().toString());
            break;
        default:
            break;
        }
    }
    if (!stream)
        return;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        *stream << value.key() << '=' << value.value() << '\n';
}

bool PreferencesController::_ApplyLegacyValues(PreferenceChapter& chapter, QMap<QString, QString>& values)
{
    bool result = false;
    // By index: what a preference does with its value may make others.
    for (int i = 0; i < chapter.Items().size(); ++i) {
        PreferenceBasics* const item = chapter.Items().at(i);
        if (auto* const risks = dynamic_cast<PrefChapBuildRiskAnalysis*>(item)) {
            QString path = item->GetAbsolutePath().toLower();
            // The shared default itself: a match at the end of this path replaces it for good, on
            // which installations rely.
            MapPreferencePath(path, DefaultConverter(), PathDirection::NewToOld);
            result = risks->_LoadFromLegacyMap(path, values);
        } else if (auto* const child = dynamic_cast<PreferenceChapter*>(item)) {
            if (_ApplyLegacyValues(*child, values))
                result = true;
        } else if (IsPreferenceLoadable(item)) {
            _ApplyLegacyValue(*item, values);
            result = true;
        }
    }
    return result;
}

void PreferencesController::_ApplyLegacyValue(PreferenceBasics& item, QMap<QString, QString>& values)
{
    QString path = item.GetAbsolutePath().toLower();
    PreferenceConverter converter = DefaultConverter();
    MapPreferencePath(path, converter, PathDirection::NewToOld);
    const QString text = values.value(path);
    if (auto* const value = dynamic_cast<PreferenceValueBasics*>(&item)) {
        if (!text.isEmpty())
            value->_FromString(converter(text));
    } else if (auto* const custom = dynamic_cast<PreferenceCustomize*>(&item)) {
        custom->_LoadFromLegacyMap(path, values);
    }
}

void PreferencesController::ConvertOldPreferencePathToNew(QString& path, QString& value)
{
    PreferenceConverter converter = DefaultConverter();
    MapPreferencePath(path, converter, PathDirection::OldToNew);
    value = converter(value);
}

} // namespace ovk
