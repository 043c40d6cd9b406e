#include "ovk/preferences/preference_chapter.h"

#include "ovk/preferences/preferences_controller.h"

#include <QString>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace ovk {

PreferenceChapter::PreferenceChapter(const QString& name)
    : PreferenceChapter(PreferencesController::GetInstance()->GetRootChapter(), name)
{
}

PreferenceChapter::PreferenceChapter(PreferenceChapter* parent, const QString& name)
    : PreferenceBasics(parent, name)
{
}

PreferenceChapter::PreferenceChapter(PreferenceChapter& parent, const QString& name)
    : PreferenceBasics(&parent, name)
{
}

PreferenceChapter::~PreferenceChapter() = default;

const QList<PreferenceBasics*>& PreferenceChapter::Items() const
{
    return m_items;
}

void PreferenceChapter::_AfterLoad()
{
    for (int i = 0; i < m_items.size(); ++i)
        m_items.at(i)->_AfterLoad();
}

void PreferenceChapter::_DoSave(QXmlStreamWriter& writer)
{
    writer.writeStartElement(GetName());
    for (int i = 0; i < m_items.size(); ++i)
        m_items.at(i)->Save(writer);
    writer.writeEndElement();
}

void PreferenceChapter::_DoLoad(QXmlStreamReader& reader)
{
    // Elements of the chapter's own name are the same chapter, a level deeper. They are counted
    // and not recursed into: a file decides how many there are.
    int level = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            PreferenceBasics* const item = _Find(reader.name().toString());
            if (item == this)
                ++level;
            else if (item)
                item->Load(reader);
            else
                reader.skipCurrentElement();
        } else if (token == QXmlStreamReader::EndElement) {
            if (level == 0)
                return;
            --level;
        }
    }
}

void PreferenceChapter::_DoRestoreDefault()
{
    for (int i = 0; i < m_items.size(); ++i)
        m_items.at(i)->RestoreDefault();
}

void PreferenceChapter::_RegisterItem(PreferenceBasics* item)
{
    m_items.append(item);
}

PreferenceBasics* PreferenceChapter::_Find(const QString& name)
{
    if (name == GetName())
        return this;
    for (PreferenceBasics* item : qAsConst(m_items)) {
        if (item->GetName() == name)
            return item;
    }
    return nullptr;
}

} // namespace ovk
