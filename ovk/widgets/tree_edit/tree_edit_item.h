#pragma once

#include <ovk/core/tree_item.h>
#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

namespace ovk {

class IItemDataProvider;
class SettingsItemsModel;
class TreeEditItem;
class TreeEditSectionItem;

/// A row of a TreeEdit. To the tree and its positions only visible rows count. Rows may come and go
/// at any time: the view hears of each that is inserted, removed or deleted.
class OVK_EXPORT TreeEditItemBase : public TreeItem<TreeEditItemBase>
{
public:
    /// A root: no title, no delegate.
    explicit TreeEditItemBase(SettingsItemsModel& model);
    /// Belongs to \a model once it is a child of one of its items.
    TreeEditItemBase(const QString& title, const QString& hint, TreeItemDelegateWrapper delegate,
                     SettingsItemsModel& model);
    TreeEditItemBase(const TreeEditItemBase&) = delete;
    TreeEditItemBase& operator=(const TreeEditItemBase&) = delete;
    /// Leaves the parent and deletes the children, hidden ones too.
    ~TreeEditItemBase() override;

    using TreeItem<TreeEditItemBase>::GetChild;
    using TreeItem<TreeEditItemBase>::GetIndexOf;
    /// The number of visible children.
    int GetChildCount() const override;
    /// The visible child number \a index; null if there is none.
    const ITreeItem* GetChild(int index) const override;
    /// The position of \a child among the visible children; that of the last visible one if it is
    /// none of them, -1 if there are none.
    int GetIndexOf(ITreeItem* child) const override;

    /// The value of the row.
    virtual QVariant GetData() const;
    /// Changes the value of the row; answers whether it was taken.
    virtual bool SetData(const QVariant& value);
    /// True for a band between rows.
    virtual bool IsSection() const;
    /// True if the row has a value to edit.
    virtual bool IsEditable() const;

    /// The text on the left.
    const QString& GetTitle() const;
    /// Changes the text on the left.
    void SetTitle(const QString& title);
    /// The tool tip of the row.
    const QString& GetHint() const;
    /// Changes the tool tip of the row.
    void SetHint(const QString& hint);

    /// Remembers the widget that edits the row; not owned.
    void SetEditor(QWidget* editor);
    /// The widget that edits the row; null if there is none.
    QWidget* GetEditor() const;

    /// False if this row or one above it is disabled.
    bool IsEnabled() const;
    /// Enables or disables this row and its editor. Rows below answer accordingly, but their
    /// editors stay as they are.
    void SetEnabled(bool enabled);
    /// True unless the row itself is hidden.
    bool IsVisible() const;
    /// Hides or shows the row; a hidden one keeps its data and comes back in its place.
    void SetVisible(bool visible);

    /// Tells the view that the row is to be read again.
    void Updated();

    /// Appends a row below this one, which owns it.
    TreeEditItem* AddItem(const QString& title, TreeItemDelegateWrapper delegate);
    /// Appends a section below this row, which owns it.
    TreeEditSectionItem* AddSection(const QString& title, const QString& hint);

protected:
    /// The delegate of the row; null if there is none.
    TreeItemDelegateBase* _GetDelegate() const;

    void _InsertChild(int index, ITreeItem* child) override;
    ITreeItem* _RemoveChild(int index) override;

private:
    friend class SettingsItemsModel;
    friend class TreeItemDelegate;

    const std::vector<TreeEditItemBase*>& _Shown() const;
    int _ListPosition(int visibleIndex) const;
    TreeEditItemBase* _TakeFromList(int position);
    void _StoreVisible(bool visible);
    bool _IsShownByModel() const;

    QString m_title;
    QString m_hint;
    TreeItemDelegateWrapper m_delegate;
    bool m_enabled = true;
    bool m_visible = true;
    SettingsItemsModel* mp_model;
    QPointer<QWidget> mp_editor;
    /// While it is set, hidden children count too.
    bool m_counts_hidden = false;
    /// It is being deleted, with all below it.
    bool m_dying = false;
    /// The visible children in order, made anew on demand: views ask for positions all the time.
    mutable std::vector<TreeEditItemBase*> m_shown;
    mutable bool m_shown_known = false;
    /// The place among those of the parent; means nothing unless it is verified there.
    mutable int m_shown_position = -1;
};

/// A row with a value.
class OVK_EXPORT TreeEditItem : public TreeEditItemBase
{
public:
    TreeEditItem(const QString& title, TreeItemDelegateWrapper delegate, SettingsItemsModel& model);
    ~TreeEditItem() override;

    /// The provider's value; an invalid one without a provider.
    QVariant GetData() const override;
    /// Gives \a value to the provider; false without a provider.
    bool SetData(const QVariant& value) override;

    /// Changes where the value comes from; not owned, it must outlive the row or the view.
    void SetDataProvider(IItemDataProvider* provider);

private:
    IItemDataProvider* mp_provider = nullptr;
};

/// A band between rows.
class OVK_EXPORT TreeEditSectionItem : public TreeEditItemBase
{
public:
    TreeEditSectionItem(const QString& title, const QString& hint, SettingsItemsModel& model);
    ~TreeEditSectionItem() override;

    bool IsSection() const override;
    bool IsEditable() const override;
};

} // namespace ovk
