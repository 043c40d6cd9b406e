#pragma once

#include <ovk/core/export.h>

#include <QStyledItemDelegate>

namespace ovk {

/// What a row of a TreeEdit is: it makes the editor of the row and keeps the editor and the item in
/// step. It can serve many rows, as all that belongs to one row comes from the index.
class OVK_EXPORT TreeItemDelegateBase : public QStyledItemDelegate
{
    Q_OBJECT

public:
    ~TreeItemDelegateBase() override;

    /// \a value in the form in which it is given out; here as it is.
    virtual QVariant DecorateOutput(const QVariant& value) const;

    /// The editor is as wide as it wishes to be and does not stretch across the column.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    TreeItemDelegateBase();

    /// The value of the item at \a index of a TreeEdit.
    static QVariant _ReadItem(const QModelIndex& index);
    /// Gives \a value to the model of \a index; nothing if the row is gone.
    static void _WriteModel(const QPersistentModelIndex& index, const QVariant& value);
};

/// Holds the delegate of a row, which it owns or not.
class OVK_EXPORT TreeItemDelegateWrapper
{
public:
    /// Holds none.
    TreeItemDelegateWrapper();
    /// Owns \a delegate.
    TreeItemDelegateWrapper(TreeItemDelegateBase* delegate);
    /// Does not own \a delegate: this is for those that many rows share.
    TreeItemDelegateWrapper(const TreeItemDelegateBase* delegate);
    /// Takes all from \a other, which is left with none.
    TreeItemDelegateWrapper(TreeItemDelegateWrapper&& other) noexcept;
    TreeItemDelegateWrapper(const TreeItemDelegateWrapper&) = delete;
    TreeItemDelegateWrapper& operator=(const TreeItemDelegateWrapper&) = delete;
    /// Deletes the delegate if it is owned.
    ~TreeItemDelegateWrapper();

    /// The delegate; null if there is none.
    TreeItemDelegateBase* Get() const;
    /// Get().
    TreeItemDelegateBase* operator->() const;

private:
    bool m_owned = false;
    TreeItemDelegateBase* mp_delegate = nullptr;
};

} // namespace ovk
