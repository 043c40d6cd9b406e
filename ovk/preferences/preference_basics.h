#pragma once

#include <ovk/core/export.h>
#include <ovk/core/named.h>

class QXmlStreamReader;
class QXmlStreamWriter;

namespace ovk {

class PreferenceChapter;

/// A node of the preference tree. It joins its chapter by being constructed, and does not leave it
/// by being destroyed: it must outlive its chapter's use of it, or belong to a collection.
class OVK_EXPORT PreferenceBasics : public Named
{
public:
    PreferenceBasics(const PreferenceBasics&) = delete;
    PreferenceBasics& operator=(const PreferenceBasics&) = delete;
    ~PreferenceBasics() override;

    /// A diagnostic hook that does nothing.
    virtual void Print(int indent) const;

    /// The names from the root chapter down to this node, joined with "/".
    QString GetAbsolutePath() const;
    /// The chapter of this node; null for the root chapter.
    PreferenceChapter* GetParent() const;
    /// True once the preference has got a value from somewhere since the process began.
    bool IsLoaded() const { return m_loaded; }
    /// Gives the node its default.
    void RestoreDefault();

protected:
    /// Registers with \a parent, if there is one. Not owned, either way.
    PreferenceBasics(PreferenceChapter* parent, const QString& name);

    /// Called when the whole tree has been loaded.
    virtual void _AfterLoad() = 0;
    /// Writes the node's element.
    virtual void _DoSave(QXmlStreamWriter& writer) = 0;
    /// Reads the node; the reader stands on its start element.
    virtual void _DoLoad(QXmlStreamReader& reader) = 0;
    /// Gives the node its default.
    virtual void _DoRestoreDefault() = 0;

    /// Marks the node as loaded, for good.
    void _SetLoaded() { m_loaded = true; }
    /// Reads the node and marks it as loaded.
    void Load(QXmlStreamReader& reader);
    /// Writes the node.
    void Save(QXmlStreamWriter& writer);

private:
    friend class PreferenceChapter;
    friend class PreferenceCollectionBasics;
    friend class PreferencesController;

    PreferenceChapter* mp_parent;
    bool m_loaded = false;
};

} // namespace ovk
