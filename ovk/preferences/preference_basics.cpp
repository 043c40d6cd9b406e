#include "ovk/preferences/preference_basics.h"

#include "ovk/preferences/preference_chapter.h"

#include <QString>

namespace ovk {

PreferenceBasics::PreferenceBasics(PreferenceChapter* parent, const QString& name)
    : Named(name), mp_parent(parent)
{
    if (parent)
        parent->_RegisterItem(this);
}

PreferenceBasics::~PreferenceBasics() = default;

void PreferenceBasics::Print(int /*indent*/) const
{
}

QString PreferenceBasics::GetAbsolutePath() const
{
    QString path = GetName();
    for (const PreferenceChapter* chapter = mp_parent; chapter; chapter = chapter->GetParent())
        path.prepend(chapter->GetName() + QLatin1Char('/'));
    return path;
}

PreferenceChapter* PreferenceBasics::GetParent() const
{
    return mp_parent;
}

void PreferenceBasics::RestoreDefault()
{
    _DoRestoreDefault();
}

void PreferenceBasics::Load(QXmlStreamReader& reader)
{
    _DoLoad(reader);
    _SetLoaded();
}

void PreferenceBasics::Save(QXmlStreamWriter& writer)
{
    _DoSave(writer);
}

} // namespace ovk
