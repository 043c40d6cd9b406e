#pragma once

#include <ovk/ui_state/ui_profile_item.h>

namespace ovk {

/// A node that can be hidden, and that knows what the user may do with it.
class OVK_EXPORT UiStateItem : public UiProfileItem
{
public:
    /// What the user may do with a node. The files hold the numbers.
    enum ItemPersitence : int
    {
        ipFixed = 0,           ///< Written; can neither be hidden nor deleted.
        ipOrdinary = 1,        ///< Written; can be hidden and deleted. The default.
        ipRunTime = 2,         ///< Exists while the program runs, never written.
        ipBuiltInHideable = 3, ///< Built in, written; can be hidden.
        ipBuiltIn = 4          ///< Built in, written; always there.
    };

    ~UiStateItem() override;

    bool IsStorable() const override;
    /// The stored visibility, unless a derived class knows more.
    bool IsVisible() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& object) override;

    /// Shows or hides the node, and its live widget if it has one.
    virtual void SetVisible(bool visible);

    /// Built in, so that its title comes from the default profile.
    bool IsPersistent() const;
    /// The user may hide it.
    bool IsHideable() const;
    /// The user may delete it.
    bool IsDeleteable() const;
    /// What the user may do with the node; a number of a file outside the enumeration is kept, and
    /// allows nothing but writing.
    ItemPersitence GetPersistence() const { return m_persistence; }
    void SetPersistence(ItemPersitence persistence) { m_persistence = persistence; }

    /// Notes that the user gave the node its own title, which is then never translated.
    void _SetChangedByUser(bool changed) { m_changed_by_user = changed; }
    /// Whether the user gave the node its own title.
    bool _IsChangedByUser() const { return m_changed_by_user; }

protected:
    explicit UiStateItem(const QString& name);
    explicit UiStateItem(const QJsonObject& object);
    explicit UiStateItem(int number);
    UiStateItem(const UiStateItem& other);
    UiStateItem& operator=(const UiStateItem& other);

    /// Called after the stored visibility changed. By default nothing.
    virtual void _OnChangeVisibility(bool visible);

    void _MergeContent(const UiProfileItem& source, const UiProfileItem* base) override;

    /// Reads the fields of this class from an object in which the derived class found
    /// \a otherKeys keys of its own. Most nodes have nothing but these and their "id", and are then
    /// done without a search for each field.
    void _ReadState(const QJsonObject& object, int otherKeys);

    /// The visibility as it is written and merged, whatever IsVisible() answers.
    bool _IsStoredVisible() const { return m_visible; }

private:
    ItemPersitence m_persistence = ipOrdinary;
    bool m_visible = true;
    bool m_changed_by_user = false;
};

} // namespace ovk
