#include "ovk/customize/view_helpers_p.h"

#include "ovk/customize/site_tree_model_p.h"
#include "ovk/ui_state/ui_state_command_spots.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTreeView>

namespace ovk {

namespace {

constexpr int c_row_padding = 8;
constexpr int c_hint_margin = 16;

/// Whether what is below an index are spots. They are not looked at: a reset may have been called
/// for because they are gone.
bool HoldsSpots(const SiteTreeModel& model, const QModelIndex& index)
{
    return dynamic_cast<UiStateCommandSpots*>(model.GetItem(index));
}

} // namespace

RowDelegate::RowDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

RowDelegate::~RowDelegate() = default;

int RowDelegate::RowHeight(const QFontMetrics& metrics)
{
    return metrics.height() + c_row_padding;
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    return {hint.width(), qMax(hint.height(), RowHeight(option.fontMetrics))};
}

bool RowDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                              const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool changed = QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (changed && view)
        view->viewport()->update();
    return changed;
}

EmptyHint::EmptyHint(QAbstractItemView& view, std::function<QString()> text)
    : QObject(&view), m_view(view), m_text(std::move(text))
{
    view.viewport()->installEventFilter(this);
}

EmptyHint::~EmptyHint() = default;

bool EmptyHint::eventFilter(QObject* watched, QEvent* event)
{
    // Other events come while the view dies, when it is no view any more.
    if (event->type() != QEvent::Paint)
        return false;
    const QAbstractItemModel* model = m_view.model();
    if (!model || model->rowCount() > 0)
        return false;
    const QString text = m_text();
    if (text.isEmpty())
        return false;
    // The view's own painting comes first; it paints nothing over an empty list but a drop line.
    auto* viewport = static_cast<QWidget*>(watched);
    watched->removeEventFilter(this);
    QCoreApplication::sendEvent(watched, event);
    watched->installEventFilter(this);
    QPainter painter(viewport);
    painter.setPen(m_view.palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(
        viewport->rect().adjusted(c_hint_margin, c_hint_margin, -c_hint_margin, -c_hint_margin),
        Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
    return true;
}

void TreeMemory::Keep(const QTreeView& view, const SiteTreeModel& model)
{
    Clear();
    for (int row = 0; row < model.rowCount(); ++row)
        KeepBelow(view, model, model.index(row, 0));
    mp_current = view.currentIndex().internalPointer();
    m_scroll = view.verticalScrollBar()->value();
}

void TreeMemory::KeepBelow(const QTreeView& view, const SiteTreeModel& model,
                           const QModelIndex& index)
{
    if (!view.isExpanded(index))
        return;
    m_open.insert(index.internalPointer());
    if (HoldsSpots(model, index))
        return;
    for (int row = 0; row < model.rowCount(index); ++row)
        KeepBelow(view, model, model.index(row, 0, index));
}

void TreeMemory::Restore(QTreeView& view, const SiteTreeModel& model) const
{
    for (int row = 0; row < model.rowCount(); ++row)
        RestoreBelow(view, model, model.index(row, 0));
    view.verticalScrollBar()->setValue(m_scroll);
}

void TreeMemory::RestoreBelow(QTreeView& view, const SiteTreeModel& model,
                              const QModelIndex& index) const
{
    const bool open = m_open.contains(index.internalPointer());
    if (open && !view.isExpanded(index))
        view.expand(index);
    for (int row = 0;
         (open || index.internalPointer() == mp_current) && row < model.rowCount(index); ++row)
        RestoreBelow(view, model, model.index(row, 0, index));
    if (mp_current && index.internalPointer() == mp_current)
        view.setCurrentIndex(index);
}

} // namespace ovk

#include "moc_view_helpers_p.cpp"
