#pragma once

#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

namespace ovk {

/// A row that is true or false: a check box. A click beside the box toggles it too.
class OVK_EXPORT CheckBoxDelegate : public TreeItemDelegateBase
{
    Q_OBJECT

public:
    CheckBoxDelegate();
    ~CheckBoxDelegate() override;

    /// One that all rows may share.
    static const CheckBoxDelegate* GetInstance();

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

protected:
    /// The state of the box for a value, and the value for a state; here the same.
    virtual bool _FilterValue(bool value) const;
};

/// A row whose box is checked while its value is false.
class OVK_EXPORT CheckBoxInvertedDelegate : public CheckBoxDelegate
{
    Q_OBJECT

public:
    CheckBoxInvertedDelegate();
    ~CheckBoxInvertedDelegate() override;

    /// One that all rows may share.
    static const CheckBoxInvertedDelegate* GetInstance();

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

protected:
    bool _FilterValue(bool value) const override;
};

} // namespace ovk
