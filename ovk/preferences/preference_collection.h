#pragma once

#include <ovk/core/observable.h>
#include <ovk/preferences/preference_chapter.h>

namespace ovk {

/// A chapter whose items are made at run time; it owns them. Its default is to be empty. Observers
/// hear of every item that joins and of every Clear().
class OVK_EXPORT PreferenceCollectionBasics : public PreferenceChapter, public Observable
{
public:
    /// Clears.
    ~PreferenceCollectionBasics() override;

    /// Deletes all items and notifies, also if there were none.
    void Clear();

protected:
    PreferenceCollectionBasics(PreferenceChapter& parent, const QString& name);

    void _DoLoad(QXmlStreamReader& reader) override;
    void _DoRestoreDefault() override;
    /// Appends \a item, takes it over and notifies.
    void _RegisterItem(PreferenceBasics* item) override;

    /// Makes a new item whose parent is this collection.
    virtual PreferenceBasics* _CreateItem() = 0;
};

} // namespace ovk
