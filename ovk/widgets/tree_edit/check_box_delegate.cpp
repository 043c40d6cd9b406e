#include "ovk/widgets/tree_edit/check_box_delegate.h"

#include "ovk/widgets/tree_edit/tree_edit.h"
#include "ovk/widgets/tree_edit/tree_edit_item.h"

#include <QCheckBox>
#include <QEvent>
#include <QSignalBlocker>

namespace ovk {

CheckBoxDelegate::CheckBoxDelegate() = default;

CheckBoxDelegate::~CheckBoxDelegate() = default;

const CheckBoxDelegate* CheckBoxDelegate::GetInstance()
{
    static const CheckBoxDelegate instance;
    return &instance;
}

bool CheckBoxDelegate::_FilterValue(bool value) const
{
    return value;
}

QWidget* CheckBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const
{
    auto* const editor = new QCheckBox(parent);
    connect(editor, &QCheckBox::stateChanged, this,
            [this, row = QPersistentModelIndex(index)](int state) {
                _WriteModel(row, _FilterValue(state == Qt::Checked));
            });
    return editor;
}

void CheckBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const box = qobject_cast<QCheckBox*>(editor);
    if (!box)
        return;
    // What the program shows is not written back.
    const QSignalBlocker blocker(box);
    box->setChecked(_FilterValue(_ReadItem(index).toBool()));
}

void CheckBoxDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    QStyleOptionViewItem own = option;
    own.rect.translate(1, 0);
    TreeItemDelegateBase::updateEditorGeometry(editor, own, index);
}

bool CheckBoxDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const TreeEditItemBase* const item = TreeEdit::GetItem(index);
    if (event->type() == QEvent::MouseButtonRelease && index.column() == 1 && item &&
        item->IsEnabled()) {
        model->setData(index, !item->GetData().toBool(), Qt::EditRole);
        return true;
    }
    return TreeItemDelegateBase::editorEvent(event, model, option, index);
}

CheckBoxInvertedDelegate::CheckBoxInvertedDelegate() = default;

CheckBoxInvertedDelegate::~CheckBoxInvertedDelegate() = default;

const CheckBoxInvertedDelegate* CheckBoxInvertedDelegate::GetInstance()
{
    static const CheckBoxInvertedDelegate instance;
    return &instance;
}

bool CheckBoxInvertedDelegate::_FilterValue(bool value) const
{
    return !value;
}

void CheckBoxInvertedDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                            const QModelIndex& index) const
{
    if (const auto* const box = qobject_cast<QCheckBox*>(editor))
        model->setData(index, _FilterValue(box->isChecked()), Qt::EditRole);
}

} // namespace ovk

#include "moc_check_box_delegate.cpp"
