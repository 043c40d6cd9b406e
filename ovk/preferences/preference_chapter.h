#pragma once

#include <ovk/preferences/preference_basics.h>

#include <QList>
#include <QStringView>

#include <memory>

namespace ovk {

/// A named list of preferences and chapters. An element of a file that the chapter does not know
/// is skipped with all that is inside it.
///
/// No item may have the name of its chapter: the chapter would hide it.
class OVK_EXPORT PreferenceChapter : public PreferenceBasics
{
public:
    /// Makes a child of the root chapter.
    explicit PreferenceChapter(const QString& name);
    /// Does not delete the items.
    ~PreferenceChapter() override;

    /// The items in the order of their construction; not owned.
    const QList<PreferenceBasics*>& Items() const;

protected:
    /// Makes a child of \a parent; a root if null.
    PreferenceChapter(PreferenceChapter* parent, const QString& name);
    /// Makes a child of \a parent.
    PreferenceChapter(PreferenceChapter& parent, const QString& name);

    void _AfterLoad() override;
    void _DoSave(QXmlStreamWriter& writer) override;
    void _DoLoad(QXmlStreamReader& reader) override;
    void _DoRestoreDefault() override;

    /// Appends \a item, which is being constructed.
    virtual void _RegisterItem(PreferenceBasics* item);

    /// This chapter if it has that name, else its first item of that name, else null.
    PreferenceBasics* _Find(const QString& name);

private:
    friend class PreferenceBasics;
    friend class PreferenceCollectionBasics;

    struct NameIndex;

    PreferenceBasics* _FindByView(QStringView name);
    bool _IsIndexed();
    void _Index();

    QList<PreferenceBasics*> m_items;
    std::unique_ptr<NameIndex> mp_index;
};

} // namespace ovk
