#include "ovk/preferences/preference.h"

#include "preference_xml_p.h"

#include "ovk/core/convert.h"
#include "ovk/preferences/preference_chapter.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace ovk {

Preference<bool>::Preference(PreferenceChapter& parent, const QString& name)
    : TPreferenceBasics<bool>(parent, name, false)
{
}

Preference<bool>::~Preference() = default;

void Preference<bool>::_DoRestoreDefault()
{
    _SetLoaded();
    _DoSetData(_GetDefault());
}

void Preference<bool>::_FromString(const QString& text)
{
    _SetLoaded();
    _DoSetData(convert<QString, bool>(text));
}

QString Preference<bool>::_ToString() const
{
    return convert<bool, QString>(GetData());
}

Preference<QByteArray>::Preference(PreferenceChapter& parent, const QString& name)
    : TPreferenceBasics<QByteArray>(parent, name, QByteArray())
{
}

Preference<QByteArray>::~Preference() = default;

void Preference<QByteArray>::_DoSave(QXmlStreamWriter& writer)
{
    writer.writeTextElement(GetName(), QString::fromLatin1(GetData().toBase64()));
}

void Preference<QByteArray>::_DoLoad(QXmlStreamReader& reader)
{
    SetData(QByteArray::fromBase64(ElementText(reader).Get().toUtf8()));
}

void Preference<QByteArray>::_DoRestoreDefault() {}

Preference<QStringList>::Preference(PreferenceChapter& parent, const QString& name)
    : TPreferenceBasics<QStringList>(parent, name, QStringList())
{
}

Preference<QStringList>::~Preference() = default;

void Preference<QStringList>::_DoSave(QXmlStreamWriter& writer)
{
    writer.writeStartElement(GetName());
    for (const QString& item : GetData())
        WriteTextElement(writer, QStringLiteral("item"), item);
    writer.writeEndElement();
}

void Preference<QStringList>::_DoLoad(QXmlStreamReader& reader)
{
    // As long as the file says what stands here already, the list is shared and not made anew.
    const QStringList present = GetData();
    QStringList items;
    int same = 0;
    bool differs = false;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (reader.name() == QLatin1String("item")) {
                const ElementText text(reader);
                if (!differs && same < present.size() &&
                    impl::IsSameValue(present.at(same), text.Get())) {
                    ++same;
                    break;
                }
                if (!differs)
                    items = present.mid(0, same);
                differs = true;
                items.append(text.Get());
            }
            break;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::StartDocument:
        case QXmlStreamReader::EndDocument:
            if (!differs)
                items = present.mid(0, same);
            SetData(items);
            return;
        default:
            break;
        }
    }
}

void Preference<QStringList>::_DoRestoreDefault() {}

} // namespace ovk
