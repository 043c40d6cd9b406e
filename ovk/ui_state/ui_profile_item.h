#pragma once

#include <ovk/core/named.h>
#include <ovk/core/tree_item.h>
#include <ovk/ui_state/json_storable.h>

#include <QSet>

namespace ovk {

class UiLayout;

/// A node of the tree that describes the whole user interface: a profile, its layouts, their
/// suites, and all that these hold. The name of a node is its identifier; a parent owns its
/// children, and their order is significant.
///
/// A node can write itself to JSON, be cloned, and merge a newer default into itself without losing
/// what the user changed. This class itself has no children; the containers are TUiState, UiLayout
/// and UiProfile.
class OVK_EXPORT UiProfileItem : public Named, public IJsonStorable, public TreeItemBase
{
public:
    /// The occasion of an activation or a deactivation. Suites pass it on unchanged.
    enum ActivationMode : int
    {
        amOrdinary = 0, ///< A layout goes on or off screen.
        amRestore = 1   ///< A saved copy of the profile takes the place of the live one.
    };

    ~UiProfileItem() override;

    /// Whether the node is written with its parent.
    virtual bool IsStorable() const;
    /// Builds what the node shows. By default nothing.
    virtual void Activate(ActivationMode mode);
    /// Takes down what the node shows. By default nothing.
    virtual void Deactivate(ActivationMode mode);
    /// Looks up anew what stands behind the identifiers. \a changed carries the identifiers whose
    /// item changed through all suites of one pass. By default nothing.
    virtual void Validate(QSet<QString>& changed);
    /// Copies what the user changed in the live widgets into the node. By default nothing.
    virtual void Store();
    /// Whether the node has live widgets. Only suites and what they hold can be active.
    virtual bool IsActive() const;
    /// Whether the node is meant to be seen.
    virtual bool IsVisible() const;
    /// Whether the node has anything to show in the current product.
    virtual bool IsAvailable() const;
    /// Three-way merge by identifier: this is the user's tree, \a source the new default, \a base
    /// the old default that the user's tree grew from, or null.
    ///
    /// Children that all three know are merged in turn; what the new default dropped is deleted;
    /// the user's own children stay where they are; clones of what is new in the default come
    /// after them. What the user deleted stays deleted. A child that this node and \a source have
    /// and \a base does not stays, and its clone is appended beside it.
    virtual void Merge(const UiProfileItem& source, const UiProfileItem* base);
    /// A copy of the node with all that it holds. The caller owns it.
    virtual UiProfileItem* Clone() const = 0;
    /// The layout that the node belongs to; null outside a layout.
    virtual UiLayout* GetLayout();
    /// The last component of the run-time class name, such as "UiStateMenu".
    virtual QString GetTypeName();

    /// Stores the back link. A node without a name that comes into the layout of a profile gets one
    /// that is unique within the profile.
    void SetParent(ITreeItem* parent) override;

    using ITreeItem::GetChild;
    using ITreeItem::GetIndexOf;

    const ITreeItem* GetChild(int index) const override;
    int GetChildCount() const override;
    int GetIndexOf(ITreeItem* child) const override;

    /// Writes the name under "id". Derived classes start from it.
    QJsonObject ToJson() const override;
    /// Reads nothing (the name is read at construction) and answers true.
    bool FromJson(const QJsonObject& object) override;

    /// Visible and available.
    bool IsShown() const { return IsVisible() && IsAvailable(); }
    /// Deactivates and activates again, if active.
    void Reactivate();

protected:
    /// A node of that name; an empty name is replaced when the node comes into a layout.
    explicit UiProfileItem(const QString& name);
    /// A node named after "id" of \a object; empty if that is absent or no string.
    explicit UiProfileItem(const QJsonObject& object);
    /// A node named after \a number in base 16.
    explicit UiProfileItem(int number);
    /// Copies the name and the back link; the copy is in no list.
    UiProfileItem(const UiProfileItem& other);
    UiProfileItem& operator=(const UiProfileItem& other);

    /// Merges the fields of the node itself, by the rule: an own value that equals the one of
    /// \a base is replaced by that of \a source. \a base may be null. By default nothing.
    virtual void _MergeContent(const UiProfileItem& source, const UiProfileItem* base);

    void _InsertChild(int index, ITreeItem* child) override;
    ITreeItem* _RemoveChild(int index) override;

private:
    void _MergeChildren(const UiProfileItem& source, const UiProfileItem* base);
};

} // namespace ovk
