#include "ovk/preferences/preference_chapter.h"

#include "ovk/preferences/preferences_controller.h"

#include <QHash>
#include <QString>
#include <QVector>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace ovk {

/// Which item is the first of its name. It is only as good as the names that it was made from, and
/// these are compared before it is believed: an item may be renamed behind the chapter's back.
struct PreferenceChapter::NameIndex
{
    /// The names as they were, which the keys below look into.
    QVector<QString> names;
    /// Positions and not items: those of a collection come and go.
    QHash<QStringView, int> first;
};

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
    if (!_IsIndexed())
        _Index();
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const QStringRef name = reader.name();
            if (name == GetName())
                ++level;
            else if (PreferenceBasics* const item = _FindItem(name))
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
    if (!_IsIndexed())
        _Index();
    return _FindItem(name);
}

PreferenceBasics* PreferenceChapter::_FindItem(QStringView name)
{
    int position = mp_index->first.value(name, -1);
    const auto is_stale = [&] { return position >= m_items.size() || m_items.at(position)->GetName() != name; };
    if (position < 0 ? !_IsIndexed() : is_stale()) {
        _Index();
        position = mp_index->first.value(name, -1);
    }
    return position < 0 ? nullptr : m_items.at(position);
}

bool PreferenceChapter::_IsIndexed() const
{
    if (!mp_index || mp_index->names.size() != m_items.size())
        return false;
    for (int i = 0; i < m_items.size(); ++i) {
        // The index shares the text of a name, so that the same text is at the same place.
        if (mp_index->names.at(i).constData() != m_items.at(i)->GetName().constData())
            return false;
    }
    return true;
}

void PreferenceChapter::_Index()
{
    mp_index = std::make_unique<NameIndex>();
    mp_index->names.reserve(m_items.size());
    mp_index->first.reserve(m_items.size());
    for (int i = 0; i < m_items.size(); ++i) {
        mp_index->names.append(m_items.at(i)->GetName());
        const QStringView name = mp_index->names.last();
        if (!mp_index->first.contains(name))
            mp_index->first.insert(name, i);
    }
}

} // namespace ovk
