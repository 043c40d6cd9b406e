#pragma once

#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>

namespace ovk {

/// A row that is a colour: a ColorEdit.
class OVK_EXPORT ColorEditDelegate : public TreeItemDelegateBase
{
    Q_OBJECT

public:
    ColorEditDelegate();
    ~ColorEditDelegate() override;

    /// One that all rows may share.
    static const ColorEditDelegate* GetInstance();

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /// Does nothing: every change has been written already.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

protected:
    /// What an editor does once it has its colour.
    enum PendingAction : int
    {
        paNone = 0,
        paDialog = 1,
        paPopup = 2
    };

    /// For subclasses: set to a PendingAction before an editor is made.
    mutable int m_pending_action = paNone;
    mutable bool m_loading = false;
    /// The width of the arrow of a menu button in the style of the application.
    int m_indicator_width = 0;
};

} // namespace ovk
