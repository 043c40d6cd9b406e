#include "ovk/preferences/preference_chapter.h"

#include "ovk/core/named_p.h"
#include "ovk/preferences/preferences_controller.h"

#include <QHash>
#include <QString>
#include <QVector>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstring>

namespace ovk {

/// Which item is the first of its name.
struct PreferenceChapter::NameIndex
{
    /// The names as they were.
    QVector<QString> names;
    QString chapter_name;
    /// All names in one piece, one behind the other, which the views below look into: those of the
    /// items are all over the memory.
    QString text;
    /// The same, but null where the name finds the chapter itself or an earlier item.
    QVector<QStringView> first_names;
    /// Positions and not items: those of a collection come and go.
    QHash<QStringView, int> positions;
    /// Behind the item that was found last: files mostly have the order of the items.
    int next = 0;
    quint64 renames = 0;
};

namespace {

/// True for the same text, which is not empty; without the ceremony of a comparison by Qt.
bool IsSame(QStringView left, QStringView right)
{
    return left.size() == right.size() && !left.isEmpty() &&
           std::memcmp(left.utf16(), right.utf16(), size_t(left.size()) * sizeof(char16_t)) == 0;
}

} // namespace

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
            PreferenceBasics* const found = _FindByView(reader.name());
            if (found == this)
                ++level;
            else if (found)
                found->Load(reader);
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
    return _FindByView(name);
}

PreferenceBasics* PreferenceChapter::_FindByView(QStringView name)
{
    if (!_IsIndexed())
        _Index();
    NameIndex& index = *mp_index;
    int position = index.next;
    if (position >= index.first_names.size() || !IsSame(index.first_names.at(position), name)) {
        if (name == GetName())
            return this;
        position = index.positions.value(name, -1);
        if (position < 0)
            return nullptr;
    }
    index.next = position + 1;
    return m_items.at(position);
}

bool PreferenceChapter::_IsIndexed()
{
    if (!mp_index || mp_index->names.size() != m_items.size())
        return false;
    const quint64 renames = impl::CountOfRenames();
    if (mp_index->renames == renames)
        return true;
    // The index shares the text of a name, so that the same name is at the same place.
    if (mp_index->chapter_name.constData() != GetName().constData())
        return false;
    for (int i = 0; i < m_items.size(); ++i) {
        if (mp_index->names.at(i).constData() != m_items.at(i)->GetName().constData())
            return false;
    }
    mp_index->renames = renames;
    return true;
}

void PreferenceChapter::_Index()
{
    mp_index = std::make_unique<NameIndex>();
    NameIndex& index = *mp_index;
    index.renames = impl::CountOfRenames();
    index.chapter_name = GetName();
    index.names.reserve(m_items.size());
    index.first_names.reserve(m_items.size());
    index.positions.reserve(m_items.size());
    for (int i = 0; i < m_items.size(); ++i) {
        index.names.append(m_items.at(i)->GetName());
        index.text += index.names.last();
    }
    int begin = 0;
    for (int i = 0; i < m_items.size(); ++i) {
        const QStringView name = QStringView(index.text).mid(begin, index.names.at(i).size());
        begin += name.size();
        const bool is_first = name != GetName() && !index.positions.contains(name);
        index.first_names.append(is_first ? name : QStringView());
        if (is_first)
            index.positions.insert(name, i);
    }
}

} // namespace ovk
