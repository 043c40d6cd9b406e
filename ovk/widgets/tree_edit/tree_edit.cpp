#include "ovk/widgets/tree_edit/tree_edit.h"

#include "ovk/core/utilities.h"
#include "ovk/widgets/tree_edit/settings_items_model.h"
#include "ovk/widgets/tree_edit/tree_edit_item.h"
#include "ovk/widgets/tree_edit/tree_item_delegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace ovk {

namespace {

constexpr int g_value_column = 1;

} // namespace

TreeEdit::TreeEdit(QWidget* parent)
    : QTreeView(parent), mp_model(new SettingsItemsModel(this)),
      mp_delegate(new TreeItemDelegate(this))
{
    setItemDelegate(mp_delegate);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
    header()->hide();
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    setFrameStyle(0);
    setModel(mp_model);
    setAllColumnsShowFocus(true);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TreeEdit::_OnCurrentChanged);
    setTabKeyNavigation(true);
}

TreeEdit::~TreeEdit() = default;

TreeEditItem* TreeEdit::AddItem(const QString& title, TreeItemDelegateWrapper delegate)
{
    return mp_model->GetRoot().AddItem(title, std::move(delegate));
}

TreeEditSectionItem* TreeEdit::AddSection(const QString& title, const QString& hint)
{
    return mp_model->GetRoot().AddSection(title, hint);
}

TreeEditItemBase* TreeEdit::GetItem(const QModelIndex& index)
{
    return static_cast<TreeEditItemBase*>(index.internalPointer());
}

void TreeEdit::_OpenEditor(const QModelIndex& index)
{
    if (dynamic_cast<TreeEditItem*>(GetItem(index)))
        openPersistentEditor(index.sibling(index.row(), g_value_column));
}

void TreeEdit::CreateEditors()
{
    m_editors_created = true;
    Utilities::ForEach(*mp_model, [this](const QModelIndex& index) {
        _OpenEditor(index);
        return true;
    });
}

void TreeEdit::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const
{
    if (GetItem(index)->IsSection())
        painter->fillRect(rect, palette().color(QPalette::AlternateBase));
    QTreeView::drawBranches(painter, rect, index);
}

void TreeEdit::reset()
{
    QTreeView::reset();
    if (m_editors_created)
        CreateEditors();
}

void TreeEdit::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QTreeView::rowsInserted(parent, start, end);
    if (!m_editors_created)
        return;
    for (int row = start; row <= end; ++row) {
        Utilities::ForEach(mp_model->index(row, 0, parent), [this](const QModelIndex& index) {
            _OpenEditor(index);
            return true;
        });
    }
}

/// True if the editor of the row, or of one below it, has the focus.
bool TreeEdit::_HasFocusBelow(const QModelIndex& index) const
{
    const QWidget* const focus = window()->focusWidget();
    return !Utilities::ForEach(index, [focus](const QModelIndex& row) {
        const QWidget* const editor = GetItem(row)->GetEditor();
        return !editor || (editor != focus && !editor->isAncestorOf(focus));
    });
}

void TreeEdit::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    for (int row = start; row <= end; ++row) {
        // An editor that is hidden hands the focus on, and the view would open another one in a row
        // that goes with it.
        if (_HasFocusBelow(mp_model->index(row, 0, parent))) {
            setFocus();
            break;
        }
    }
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

void TreeEdit::SetFirstActive()
{
    QModelIndex index = mp_model->index(0, 0);
    while (index.isValid() && !(GetItem(index)->IsEditable() && GetItem(index)->IsEnabled()))
        index = indexBelow(index);
    if (!index.isValid())
        return;
    const QModelIndex value = index.sibling(index.row(), g_value_column);
    setCurrentIndex(value);
    edit(value);
}

QModelIndex TreeEdit::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex present = currentIndex();
    const QModelIndex result = QTreeView::moveCursor(action, modifiers);
    if ((action == MoveNext || action == MovePrevious) && result.parent() == present.parent() &&
        result.row() == present.row()) {
        _HandFocusOn(action == MoveNext);
        return QModelIndex();
    }
    return mp_model->index(result.row(), g_value_column, result.parent());
}

/// The item view's own way would come back to the view: it moves among the rows.
void TreeEdit::_HandFocusOn(bool next)
{
    const QWidget* const before = window()->focusWidget();
    QWidget::focusNextPrevChild(next);
    // Backward from an editor, the view itself is the first stop; the user means to leave it.
    if (!next && before != this && window()->focusWidget() == this)
        QWidget::focusNextPrevChild(next);
}

void TreeEdit::_OnCurrentChanged(const QModelIndex& current, const QModelIndex&)
{
    if (!current.isValid() || current.parent().isValid() || current.column() == 0)
        return;
    selectionModel()->select(current.sibling(current.row(), 0),
                             QItemSelectionModel::Select | QItemSelectionModel::Current);
}

void TreeEdit::changeEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
        mp_delegate->_ForgetSizes();
        break;
    default:
        break;
    }
    QTreeView::changeEvent(event);
}

bool TreeEdit::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        // The key is for the default button of the dialog.
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return false;
    }
    return QAbstractItemView::event(event);
}

} // namespace ovk

#include "moc_tree_edit.cpp"
