#include "ovk/widgets/m_table_view.h"

#include "borrowed_style_p.h"

#include <QDrag>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>
#include <QVector>
#include <QWindow>

#include <memory>

namespace ovk {

namespace {

constexpr double g_drag_opacity = 0.5;

class DropProxyStyle : public QProxyStyle
{
public:
    explicit DropProxyStyle(MTableView& view)
        : QProxyStyle(std::make_unique<BorrowedStyle>(view.style()).release())
    {
        setParent(&view);
        connect(&view, &MTableView::startDragging, this, [this] { m_dragging = true; });
        connect(&view, &MTableView::endDragging, this, [this] { m_dragging = false; });
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element != PE_IndicatorItemViewItemDrop || option->rect.isNull()) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        painter->setPen(QPen(Qt::black, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        const auto* const view = qobject_cast<const QTableView*>(widget);
        if (!view || !m_dragging)
            return;
        int width = 0;
        for (int section = 0; section < view->horizontalHeader()->count(); ++section)
            width += view->horizontalHeader()->sectionSize(section);
        const int row = view->rowAt(option->rect.center().y());
        if (row == -1)
            return;
        // A row that is dragged downward lands below its target, one dragged upward above.
        const int y =
            row >= view->currentIndex().row() ? option->rect.bottom() : option->rect.top();
        painter->drawLine(0, y, width, y);
    }

private:
    bool m_dragging = false;
};

} // namespace

MTableView::MTableView(QWidget* parent) : QTableView(parent)
{
    setStyle(new DropProxyStyle(*this));
}

MTableView::~MTableView() = default;

QPoint MTableView::_ScrollOffsets() const
{
    return QPoint(isRightToLeft() ? -horizontalOffset() : horizontalOffset(), verticalOffset());
}

void MTableView::mousePressEvent(QMouseEvent* event)
{
    m_press_position = event->pos() + _ScrollOffsets();
    QAbstractItemView::mousePressEvent(event);
}

void MTableView::dragMoveEvent(QDragMoveEvent* event)
{
    QTableView::dragMoveEvent(event);
    Q_EMIT startDragging();
}

void MTableView::dropEvent(QDropEvent* event)
{
    QTableView::dropEvent(event);
    Q_EMIT endDragging();
}

void MTableView::startDrag(Qt::DropActions actions)
{
    const QModelIndexList indexes = selectedIndexes();
    if (indexes.isEmpty())
        return;
    std::unique_ptr<QMimeData> data(model()->mimeData(indexes));
    if (!data)
        return;
    QRect rect;
    const QPixmap pixmap = _RenderToPixmap(indexes, rect);
    rect.translate(_ScrollOffsets());
    // The drag deletes itself when it is over.
    auto* const drag = new QDrag(this);
    drag->setPixmap(pixmap);
    drag->setMimeData(data.release());
    drag->setHotSpot(m_press_position - rect.topLeft());
    drag->exec(actions);
}

QPixmap MTableView::_RenderToPixmap(const QModelIndexList& indexes, QRect& rect) const
{
    QVector<QPair<QRect, QModelIndex>> cells;
    const QRect seen = viewport()->rect();
    for (const QModelIndex& index : indexes) {
        const QRect cell = visualRect(index);
        if (!cell.intersects(seen))
            continue;
        cells.append({cell, index});
        rect |= cell;
    }
    rect &= seen;
    if (cells.isEmpty())
        return QPixmap();

    const QWindow* const handle = window()->windowHandle();
    const qreal ratio = handle ? handle->devicePixelRatio() : 1.0;
    QPixmap pixmap((QSizeF(rect.size()) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);

    QPainter painter(&pixmap);
    painter.setOpacity(g_drag_opacity);
    QStyleOptionViewItem option = viewOptions();
    option.state |= QStyle::State_Selected;
    for (const auto& cell : cells) {
        option.rect = cell.first.translated(-rect.topLeft());
        itemDelegate(cell.second)->paint(&painter, option, cell.second);
    }
    return pixmap;
}

} // namespace ovk

#include "moc_m_table_view.cpp"
