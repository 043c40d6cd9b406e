#include "ovk/customize/shortcut_delegates_p.h"
#include "ovk/customize/site_tree_model_p.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace ovk {

namespace {

QComboBox* CreateStyleCombo(QWidget* parent, int rows, const ComboDelegate& delegate)
{
    auto owned = std::make_unique<QComboBox>(parent);
    QComboBox* combo = owned.get();
    for (int row = 0; row < rows; ++row)
        combo->addItem(ButtonStyleName(row));
    // What is chosen is seen at once, and not when the focus goes elsewhere.
    auto* finished = const_cast<ComboDelegate*>(&delegate);
    QObject::connect(combo, QOverload<int>::of(&QComboBox::activated), finished, [finished, combo] {
        Q_EMIT finished->commitData(combo);
        Q_EMIT finished->closeEditor(combo);
    });
    return owned.release();
}

} // namespace

ComboDelegate::ComboDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

ComboDelegate::~ComboDelegate() = default;

QWidget* ComboDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex&) const
{
    QComboBox* combo = CreateStyleCombo(parent, buttonStyles.size(), *this);
    combo->setMinimumWidth(combo->sizeHint().width());
    return combo;
}

void ComboDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* combo = qobject_cast<QComboBox*>(editor))
        combo->setCurrentIndex(combo->findText(index.data(Qt::EditRole).toString()));
}

void ComboDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const
{
    const auto* combo = qobject_cast<QComboBox*>(editor);
    if (!combo || combo->currentIndex() < 0)
        return;
    const QWidget* viewport = editor->parentWidget();
    const auto* view =
        viewport ? qobject_cast<QAbstractItemView*>(viewport->parentWidget()) : nullptr;
    if (!view || !view->selectionModel())
        return;
    for (const QModelIndex& selected : view->selectionModel()->selectedIndexes()) {
        if (selected.column() == index.column())
            model->setData(selected, combo->currentIndex(), Qt::EditRole);
    }
}

void ComboDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const
{
    editor->setGeometry(option.rect);
    if (auto* combo = qobject_cast<QComboBox*>(editor))
        combo->showPopup();
}

ComboDelegateQab::ComboDelegateQab(QObject* parent) : ComboDelegate(parent) {}

ComboDelegateQab::~ComboDelegateQab() = default;

QWidget* ComboDelegateQab::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex&) const
{
    return CreateStyleCombo(parent, buttonStyles.size() - 1, *this);
}

} // namespace ovk
