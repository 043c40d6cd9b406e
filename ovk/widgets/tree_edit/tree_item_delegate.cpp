#include "ovk/widgets/tree_edit/tree_item_delegate.h"

#include "ovk/widgets/tree_edit/tree_edit.h"
#include "ovk/widgets/tree_edit/tree_edit_item.h"

#include <QPainter>

#include <cstdlib>

namespace ovk {

namespace {

constexpr int g_value_column = 1;
constexpr int g_cell_margin = 1;
/// The margins of a cell above and below its editor, and as much again as air.
constexpr int g_additional_height = 4;
constexpr int g_current_lightness = 150;
constexpr int g_current_bar_width = 3;
/// Grays that are nearer to each other are not told apart.
constexpr int g_least_difference = 16;
/// What text needs to its ground.
constexpr int g_legible_difference = 100;
/// A form whose titles change all the time keeps no more of them than this.
constexpr int g_most_sizes = 10000;

QRect WithoutMargin(const QRect& rect)
{
    return rect.adjusted(g_cell_margin, g_cell_margin, -g_cell_margin, -g_cell_margin);
}

int Difference(const QColor& a, const QColor& b)
{
    return std::abs(qGray(a.rgb()) - qGray(b.rgb()));
}

/// Fills the cell of the current title, and sees to it that the title reads on that and that a pale
/// fill is seen.
void PaintCurrent(QPainter& painter, QStyleOptionViewItem& option)
{
    const QColor highlight = option.palette.color(QPalette::Highlight);
    const QColor fill = highlight.lighter(g_current_lightness);
    painter.fillRect(option.rect, fill);
    if (Difference(fill, option.palette.color(QPalette::Base)) < g_least_difference) {
        QRect bar = option.rect;
        bar.setWidth(g_current_bar_width);
        painter.fillRect(QStyle::visualRect(option.direction, option.rect, bar), highlight);
    }
    if (Difference(fill, option.palette.color(QPalette::Text)) < g_legible_difference)
        option.palette.setColor(QPalette::Text,
                                qGray(fill.rgb()) < g_legible_difference ? Qt::white : Qt::black);
}

} // namespace

TreeItemDelegate::TreeItemDelegate(TreeEdit* parent) : QStyledItemDelegate(parent) {}

TreeItemDelegate::~TreeItemDelegate() = default;

QWidget* TreeItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    TreeEditItemBase* const item = TreeEdit::GetItem(index);
    if (!item || item->IsSection() || index.column() == 0)
        return nullptr;
    QWidget* editor = nullptr;
    if (const TreeItemDelegateBase* const delegate = item->_GetDelegate()) {
        editor = delegate->createEditor(parent, option, index);
        if (editor)
            editor->setFocusPolicy(Qt::ClickFocus);
    } else {
        editor = QStyledItemDelegate::createEditor(parent, option, index);
    }
    item->SetEditor(editor);
    return editor;
}

void TreeItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (const TreeItemDelegateBase* const delegate = TreeEdit::GetItem(index)->_GetDelegate())
        delegate->setEditorData(editor, index);
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void TreeItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    if (const TreeItemDelegateBase* const delegate = TreeEdit::GetItem(index)->_GetDelegate())
        delegate->setModelData(editor, model, index);
    else
        QStyledItemDelegate::setModelData(editor, model, index);
}

void TreeItemDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    QStyleOptionViewItem own = option;
    own.rect = WithoutMargin(own.rect);
    if (const TreeItemDelegateBase* const delegate = TreeEdit::GetItem(index)->_GetDelegate())
        delegate->updateEditorGeometry(editor, own, index);
    else
        QStyledItemDelegate::updateEditorGeometry(editor, own, index);
}

QSize TreeItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto measured = [&] {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, g_additional_height);
    };
    // Wrapped texts have the size that their column allows, and values change all the time.
    if (index.column() == g_value_column ||
        option.features.testFlag(QStyleOptionViewItem::WrapText))
        return measured();
    if (m_sizes_font != option.font || m_sizes.size() > g_most_sizes) {
        m_sizes.clear();
        m_sizes_font = option.font;
    }
    QSize& size = m_sizes[index.data().toString()];
    if (!size.isValid())
        size = measured();
    return size;
}

void TreeItemDelegate::_ForgetSizes()
{
    m_sizes.clear();
}

bool TreeItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
    // Public there, and protected in the class that this one derives from.
    QAbstractItemDelegate* const delegate = TreeEdit::GetItem(index)->_GetDelegate();
    if (delegate)
        return delegate->editorEvent(event, model, option, index);
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

bool TreeItemDelegate::_IsCurrentTitle(const QModelIndex& index) const
{
    const auto* const view = qobject_cast<const TreeEdit*>(parent());
    if (!view || index.column() != 0)
        return false;
    const QModelIndex current = view->currentIndex();
    return current.isValid() && current.sibling(current.row(), 0) == index;
}

void TreeItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    const TreeEditItemBase& item = *TreeEdit::GetItem(index);
    QStyleOptionViewItem opt = option;

    const QColor lines = option.palette.color(QPalette::AlternateBase);
    if (item.IsSection()) {
        painter->fillRect(option.rect, lines);
    } else {
        painter->save();
        painter->setPen(lines);
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        if (index.column() == g_value_column)
            painter->drawLine(option.rect.topLeft(), option.rect.bottomLeft());
        painter->restore();
        if (option.state.testFlag(QStyle::State_Active) && _IsCurrentTitle(index))
            PaintCurrent(*painter, opt);
    }

    if (!item.IsEnabled()) {
        opt.state &= ~QStyle::State_Enabled;
        opt.palette.setColor(QPalette::Disabled, QPalette::Text, opt.palette.color(QPalette::Mid));
    }

    if (!item.IsSection() && index.column() == g_value_column) {
        opt.rect = WithoutMargin(opt.rect);
        // The title says which row is the current one; beside an open editor the ground of a
        // selected cell would be a patch without a meaning.
        if (item.GetEditor())
            opt.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        if (const TreeItemDelegateBase* const delegate = item._GetDelegate()) {
            delegate->paint(painter, opt, index);
            return;
        }
    }
    QStyledItemDelegate::paint(painter, opt, index);
}

} // namespace ovk

#include "moc_tree_item_delegate.cpp"
