#include "ovk/customize/tree_view_fixed_p.h"

#include <QDrag>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QStyleOption>

namespace {

constexpr int c_label_padding = 6;
constexpr int c_label_width = 260;
constexpr int c_label_gap = 14; // to the pointer, so that the drop line is seen
constexpr qreal c_label_opacity = 0.9;

/// A label that goes along with the pointer and hides nothing of where it points.
QPixmap DragLabel(const QWidget& view, const QModelIndex& first, int rows)
{
    const QFontMetrics metrics = view.fontMetrics();
    const int icon_size = view.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &view);
    const auto icon = first.data(Qt::DecorationRole).value<QIcon>();
    QString text =
        metrics.elidedText(first.data().toString().simplified(), Qt::ElideRight, c_label_width);
    if (rows > 1)
        text += QStringLiteral(" +%1").arg(rows - 1);
    const int icon_room = icon.isNull() ? 0 : icon_size + c_label_padding;
    const QSize size(metrics.horizontalAdvance(text) + icon_room + 2 * c_label_padding,
                     qMax(metrics.height(), icon_size) + c_label_padding);
    QPixmap pixmap(size * view.devicePixelRatioF());
    pixmap.setDevicePixelRatio(view.devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(c_label_opacity);
    painter.setFont(view.font());
    const QRect rect({}, size);
    painter.fillRect(rect, view.palette().color(QPalette::Active, QPalette::Highlight));
    painter.setPen(view.palette().color(QPalette::Active, QPalette::HighlightedText));
    const QRect inner = rect.adjusted(c_label_padding, 0, -c_label_padding, 0);
    const QRect icon_rect = QStyle::alignedRect(
        view.layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter, {icon_size, icon_size}, inner);
    if (icon_room)
        icon.paint(&painter, icon_rect);
    const QRect text_rect = QStyle::visualRect(view.layoutDirection(), inner,
                                               QRect(inner).adjusted(icon_room, 0, 0, 0));
    painter.drawText(text_rect, Qt::AlignVCenter, text);
    return pixmap;
}

void StartLabelledDrag(QAbstractItemView& view, Qt::DropActions actions)
{
    QModelIndexList dragged;
    int rows = 0;
    for (const QModelIndex& index : view.selectionModel()->selectedIndexes()) {
        if (!(index.flags() & Qt::ItemIsDragEnabled))
            continue;
        dragged.append(index);
        rows += index.column() == 0 ? 1 : 0;
    }
    QMimeData* data = dragged.isEmpty() ? nullptr : view.model()->mimeData(dragged);
    if (!data)
        return;
    auto* drag = new QDrag(&view); // goes by itself when the drag is over
    drag->setMimeData(data);
    drag->setPixmap(DragLabel(view, dragged.first().siblingAtColumn(0), rows));
    drag->setHotSpot({-c_label_gap, -c_label_gap});
    drag->exec(actions, Qt::CopyAction);
}

} // namespace

QTreeViewFixed::QTreeViewFixed(QWidget* parent) : QTreeView(parent) {}

QTreeViewFixed::~QTreeViewFixed() = default;

void QTreeViewFixed::dragEnterEvent(QDragEnterEvent* event)
{
    event->accept();
    setState(DraggingState);
}

void QTreeViewFixed::SetDropLine(const QRect& line)
{
    if (m_drop_line == line)
        return;
    m_drop_line = line;
    viewport()->update();
}

void QTreeViewFixed::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeView::dragMoveEvent(event);
    QRect line;
    const QModelIndex index = indexAt(event->pos());
    const bool between =
        dropIndicatorPosition() == AboveItem || dropIndicatorPosition() == BelowItem;
    const bool among_top = index.isValid() && !index.parent().isValid() && between;
    if (!event->isAccepted() && model() && (among_top || !index.isValid())) {
        const bool above = dropIndicatorPosition() == AboveItem;
        const int row = index.isValid() ? index.row() + (above ? 0 : 1) : -1;
        if (model()->canDropMimeData(event->mimeData(), event->dropAction(), row, row < 0 ? -1 : 0,
                                     {})) {
            event->acceptProposedAction();
            if (index.isValid()) {
                const QRect rect = visualRect(index);
                line = QRect(0, above ? rect.top() : rect.bottom(), viewport()->width(), 0);
            }
        }
    }
    SetDropLine(line);
}

void QTreeViewFixed::dragLeaveEvent(QDragLeaveEvent* event)
{
    SetDropLine({});
    QTreeView::dragLeaveEvent(event);
}

void QTreeViewFixed::dropEvent(QDropEvent* event)
{
    SetDropLine({});
    QTreeView::dropEvent(event);
}

void QTreeViewFixed::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (m_drop_line.width() <= 0)
        return;
    QPainter painter(viewport());
    QStyleOption option;
    option.initFrom(this);
    option.rect = m_drop_line;
    style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, &painter, this);
}

void QTreeViewFixed::startDrag(Qt::DropActions actions)
{
    StartLabelledDrag(*this, actions);
}

QTableViewFixed::QTableViewFixed(QWidget* parent) : QTableView(parent) {}

QTableViewFixed::~QTableViewFixed() = default;

void QTableViewFixed::startDrag(Qt::DropActions actions)
{
    StartLabelledDrag(*this, actions);
}

#include "moc_tree_view_fixed_p.cpp"
