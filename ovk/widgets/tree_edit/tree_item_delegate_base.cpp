#include "ovk/widgets/tree_edit/tree_item_delegate_base.h"

#include "ovk/widgets/tree_edit/tree_edit.h"
#include "ovk/widgets/tree_edit/tree_edit_item.h"

#include <QPersistentModelIndex>

namespace ovk {

namespace {

/// Between the left edge of the cell and the editor.
constexpr int g_left_margin = 2;

} // namespace

TreeItemDelegateBase::TreeItemDelegateBase() = default;

TreeItemDelegateBase::~TreeItemDelegateBase() = default;

QVariant TreeItemDelegateBase::DecorateOutput(const QVariant& value) const
{
    return value;
}

void TreeItemDelegateBase::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                                const QModelIndex& index) const
{
    QStyleOptionViewItem own = option;
    own.rect.setLeft(own.rect.left() + g_left_margin);
    own.rect.setWidth(editor->sizeHint().width());
    QStyledItemDelegate::updateEditorGeometry(editor, own, index);
}

QVariant TreeItemDelegateBase::_ReadItem(const QModelIndex& index)
{
    const TreeEditItemBase* const item = TreeEdit::GetItem(index);
    return item ? item->GetData() : QVariant();
}

void TreeItemDelegateBase::_WriteModel(const QPersistentModelIndex& index, const QVariant& value)
{
    // Item models are written by their editors; only the views that hand them out see them const.
    if (auto* const model = const_cast<QAbstractItemModel*>(index.model()))
        model->setData(index, value, Qt::EditRole);
}

TreeItemDelegateWrapper::TreeItemDelegateWrapper() = default;

TreeItemDelegateWrapper::TreeItemDelegateWrapper(TreeItemDelegateBase* delegate)
    : m_owned(true), mp_delegate(delegate)
{
}

TreeItemDelegateWrapper::TreeItemDelegateWrapper(const TreeItemDelegateBase* delegate)
    : mp_delegate(const_cast<TreeItemDelegateBase*>(delegate))
{
}

TreeItemDelegateWrapper::TreeItemDelegateWrapper(TreeItemDelegateWrapper&& other) noexcept
    : m_owned(other.m_owned), mp_delegate(other.mp_delegate)
{
    other.m_owned = false;
    other.mp_delegate = nullptr;
}

TreeItemDelegateWrapper::~TreeItemDelegateWrapper()
{
    if (m_owned)
        delete mp_delegate;
}

TreeItemDelegateBase* TreeItemDelegateWrapper::Get() const
{
    return mp_delegate;
}

TreeItemDelegateBase* TreeItemDelegateWrapper::operator->() const
{
    return mp_delegate;
}

} // namespace ovk

#include "moc_tree_item_delegate_base.cpp"
