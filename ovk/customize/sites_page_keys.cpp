#include "ovk/customize/sites_page_impl_p.h"

#include "ovk/customize/drag_source_p.h"

#include <QKeySequence>
#include <QMimeData>
#include <QTreeView>

// What the pointer does in the lists, by the keyboard: Delete, F2 for the name or the style and
// Shift+F2 for the key of a menu, Ctrl+X or Ctrl+C and Ctrl+V for a drag and its drop, Alt+Up and
// Alt+Down for a move among neighbours.

namespace ovk {

namespace {

std::unique_ptr<QMimeData> DragData()
{
    auto data = std::make_unique<QMimeData>();
    data->setData(CustomizeMimeType(), QByteArray());
    return data;
}

/// Drops what is lifted as the pointer would. Answers whether it could be.
bool Drop(QAbstractItemModel& model, int row, const QModelIndex& parent)
{
    const std::unique_ptr<QMimeData> data = DragData();
    const int column = row < 0 ? -1 : 0; // as views say: on the parent itself
    return model.canDropMimeData(data.get(), Qt::CopyAction, row, column, parent) &&
           model.dropMimeData(data.get(), Qt::CopyAction, row, column, parent);
}

} // namespace

void UiCustomizeSitesWidget::Impl::AddKey(QAbstractItemView& view, const QKeySequence& keys,
                                          KeyHandler handler)
{
    auto* action = new QAction(&view);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, &view, handler] { (this->*handler)(view); });
    view.addAction(action);
}

void UiCustomizeSitesWidget::Impl::CreateKeys()
{
    using I = UiCustomizeSitesWidget::Impl;
    struct Row
    {
        QKeySequence keys;
        KeyHandler handler;
        bool commands; ///< whether the table of commands has it too
    };
    const Row rows[] = {
        {QKeySequence(Qt::Key_Delete), &I::DeleteByKey, true},
        {QKeySequence(Qt::Key_F2), &I::RenameByKey, true},
        {QKeySequence(Qt::SHIFT + Qt::Key_F2), &I::EditSecondByKey, false},
        {QKeySequence(Qt::CTRL + Qt::Key_X), &I::LiftByKey, true},
        {QKeySequence(Qt::CTRL + Qt::Key_C), &I::LiftByKey, true},
        {QKeySequence(Qt::CTRL + Qt::Key_V), &I::DropByKey, false},
        {QKeySequence(Qt::ALT + Qt::Key_Up), &I::MoveUpByKey, false},
        {QKeySequence(Qt::ALT + Qt::Key_Down), &I::MoveDownByKey, false},
    };
    for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{
             mp_view_commands, mp_view_composite, mp_view_ribbon, mp_view_qab, mp_view_toolbars,
             mp_view_menus}) {
        for (const Row& row : rows) {
            if (row.commands || view != mp_view_commands)
                AddKey(*view, row.keys, row.handler);
        }
    }
}

void UiCustomizeSitesWidget::Impl::DeleteByKey(QAbstractItemView& view)
{
    if (&view == mp_view_commands) {
        m_commands_menu_index = view.currentIndex().siblingAtColumn(1);
        if (m_commands_menu_index.isValid())
            Run(SitesAction::DeleteShortcut);
        return;
    }
    if (&view == mp_view_composite) {
        m_composite_menu_index = view.currentIndex();
        Run(SitesAction::CompositeDelete);
        return;
    }
    const Site* site = ActiveSite();
    const SitesOffer* offer = site ? FindSitesOffer(site->tree, SelectionOf(*site)) : nullptr;
    for (SitesAction action : offer ? offer->buttons : std::vector<SitesAction>()) {
        if (IsSitesDelete(action) && Action(action).isEnabled()) {
            Run(action);
            return;
        }
    }
}

void UiCustomizeSitesWidget::Impl::EditCell(QAbstractItemView& view, int which)
{
    const QModelIndex current = view.currentIndex();
    for (int column = 0; current.isValid() && column < view.model()->columnCount(); ++column) {
        const QModelIndex cell = current.siblingAtColumn(column);
        if ((cell.flags() & Qt::ItemIsEditable) && which-- == 0) {
            view.scrollTo(cell);
            Edit(view, cell);
            return;
        }
    }
}

void UiCustomizeSitesWidget::Impl::RenameByKey(QAbstractItemView& view)
{
    EditCell(view, 0);
}

void UiCustomizeSitesWidget::Impl::EditSecondByKey(QAbstractItemView& view)
{
    EditCell(view, 1);
}

void UiCustomizeSitesWidget::Impl::LiftByKey(QAbstractItemView& view)
{
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    if (!rows.isEmpty())
        delete view.model()->mimeData(rows);
}

void UiCustomizeSitesWidget::Impl::DropByKey(QAbstractItemView& view)
{
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    // Onto the row, or behind it where it does not take what is lifted, as between two rows.
    const QModelIndex target = rows.isEmpty() ? QModelIndex() : rows.last();
    if (!Drop(*view.model(), -1, target) && target.isValid())
        Drop(*view.model(), target.row() + 1, target.parent());
}

void UiCustomizeSitesWidget::Impl::MoveUpByKey(QAbstractItemView& view)
{
    MoveByKey(view, true);
}

void UiCustomizeSitesWidget::Impl::MoveDownByKey(QAbstractItemView& view)
{
    MoveByKey(view, false);
}

void UiCustomizeSitesWidget::Impl::MoveByKey(QAbstractItemView& view, bool up)
{
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    const QPersistentModelIndex parent = rows.first().parent();
    int first = rows.first().row();
    int last = first;
    for (const QModelIndex& row : rows) {
        if (row.parent() != parent)
            return;
        first = qMin(first, row.row());
        last = qMax(last, row.row());
    }
    QAbstractItemModel& model = *view.model();
    const int neighbour = up ? first - 1 : last + 1;
    if (neighbour < 0 || neighbour >= model.rowCount(parent))
        return;
    delete model.mimeData(rows);
    if (&view != mp_view_composite) {
        Drop(model, up ? neighbour : neighbour + 1, parent);
        return;
    }
    // A composite changes places with its neighbour; of a composite one item moves, and its row
    // counts after it was taken out.
    if (parent.isValid())
        Drop(model, neighbour, parent);
    else
        Drop(model, -1, model.index(neighbour, 0));
    view.selectionModel()->setCurrentIndex(model.index(neighbour, 0, parent),
                                           QItemSelectionModel::ClearAndSelect |
                                               QItemSelectionModel::Rows);
}

} // namespace ovk
