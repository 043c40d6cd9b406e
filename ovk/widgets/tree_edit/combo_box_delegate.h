#pragma once

#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

#include <QStringList>

namespace ovk {

/// A row that is one of several texts: a combo box. The value is the number of the text; subclasses
/// may map it to another one.
class OVK_EXPORT ComboBoxDelegate : public TreeItemDelegateBase
{
    Q_OBJECT

public:
    explicit ComboBoxDelegate(const QStringList& items);
    ~ComboBoxDelegate() override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Does nothing: every change has been written already.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

protected:
    /// The value of the text number \a itemIndex.
    virtual QVariant _ItemIndexToData(int itemIndex) const;
    /// The number of the text of a value.
    virtual int _DataToItemIndex(const QVariant& data) const;

private:
    QStringList m_items;
    mutable bool m_loading = false;
    mutable bool m_writing = false;
};

} // namespace ovk
