#include "ovk/widgets/tree_edit/color_edit_delegate.h"

#include "ovk/widgets/color_edit.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QStyleOptionToolButton>
#include <QToolButton>

#include <utility>

namespace ovk {

namespace {

QColor ToColor(const QVariant& value)
{
    return value.canConvert<QColor>() ? value.value<QColor>() : QColor();
}

} // namespace

ColorEditDelegate::ColorEditDelegate()
{
    // Only measured: a button that lived as long as the shared delegate would outlive the
    // application.
    const QToolButton button;
    const QStyleOptionToolButton option;
    m_indicator_width =
        QApplication::style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button);
}

ColorEditDelegate::~ColorEditDelegate() = default;

const ColorEditDelegate* ColorEditDelegate::GetInstance()
{
    static const ColorEditDelegate instance;
    return &instance;
}

QWidget* ColorEditDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex& index) const
{
    auto* const editor = new ColorEdit(parent);
    editor->setAutoFillBackground(true);
    editor->setMargins(QMargins(0, 0, 1, 0));
    connect(editor, &ColorEdit::colorChanged, this,
            [this, row = QPersistentModelIndex(index)](const QColor& color) {
                if (!m_loading)
                    _WriteModel(row, color);
            });
    return editor;
}

void ColorEditDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const edit = qobject_cast<ColorEdit*>(editor);
    if (!edit)
        return;
    {
        const QScopedValueRollback<bool> loading(m_loading, true);
        edit->setColor(ToColor(_ReadItem(index)));
    }
    switch (std::exchange(m_pending_action, static_cast<int>(paNone))) {
    case paPopup:
        edit->invokePopup();
        break;
    case paDialog:
        edit->invokeDialog();
        break;
    default:
        break;
    }
}

void ColorEditDelegate::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {}

} // namespace ovk

#include "moc_color_edit_delegate.cpp"
