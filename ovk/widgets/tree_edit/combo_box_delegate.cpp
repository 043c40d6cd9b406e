#include "ovk/widgets/tree_edit/combo_box_delegate.h"

#include <QComboBox>
#include <QScopedValueRollback>

namespace ovk {

ComboBoxDelegate::ComboBoxDelegate(const QStringList& items) : m_items(items) {}

ComboBoxDelegate::~ComboBoxDelegate() = default;

QVariant ComboBoxDelegate::_ItemIndexToData(int itemIndex) const
{
    return itemIndex;
}

int ComboBoxDelegate::_DataToItemIndex(const QVariant& data) const
{
    return data.toInt();
}

QWidget* ComboBoxDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const
{
    auto* const editor = new QComboBox(parent);
    editor->addItems(m_items);
    editor->setFrame(false);
    connect(editor, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, row = QPersistentModelIndex(index)](int itemIndex) {
                if (m_loading)
                    return;
                const QScopedValueRollback<bool> writing(m_writing, true);
                _WriteModel(row, _ItemIndexToData(itemIndex));
            });
    return editor;
}

void ComboBoxDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const box = qobject_cast<QComboBox*>(editor);
    if (!box)
        return;
    const QScopedValueRollback<bool> loading(m_loading, true);
    box->setCurrentIndex(_DataToItemIndex(_ReadItem(index)));
}

void ComboBoxDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {}

} // namespace ovk

#include "moc_combo_box_delegate.cpp"
