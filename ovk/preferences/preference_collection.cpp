#include "ovk/preferences/preference_collection.h"

#include <QXmlStreamReader>

namespace ovk {

PreferenceCollectionBasics::PreferenceCollectionBasics(PreferenceChapter& parent, const QString& name)
    : PreferenceChapter(parent, name)
{
}

PreferenceCollectionBasics::~PreferenceCollectionBasics()
{
    Clear();
}

void PreferenceCollectionBasics::Clear()
{
    // The list is empty before anything dies, so that nobody meets a dead item in it.
    QList<PreferenceBasics*> items;
    items.swap(m_items);
    qDeleteAll(items);
    _Notify();
}

void PreferenceCollectionBasics::_DoLoad(QXmlStreamReader& reader)
{
    Clear();
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (PreferenceBasics* const item = _CreateItem())
                item->Load(reader);
            else
                reader.skipCurrentElement();
        } else if (token == QXmlStreamReader::EndElement) {
            return;
        }
    }
}

void PreferenceCollectionBasics::_DoRestoreDefault()
{
    Clear();
}

void PreferenceCollectionBasics::_RegisterItem(PreferenceBasics* item)
{
    PreferenceChapter::_RegisterItem(item);
    _Notify();
}

} // namespace ovk
