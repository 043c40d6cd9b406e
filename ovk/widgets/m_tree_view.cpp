#include "ovk/widgets/m_tree_view.h"

#include "borrowed_style_p.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include <memory>

namespace ovk {

namespace {

class DropProxyStyle : public QProxyStyle
{
public:
    explicit DropProxyStyle(MTreeView& view)
        : QProxyStyle(std::make_unique<BorrowedStyle>(view.style()).release()), mp_view(&view)
    {
        setParent(&view);
        connect(&view, &MTreeView::startDragging, this, [this] { m_dragging = true; });
        connect(&view, &MTreeView::endDragging, this, [this] { m_dragging = false; });
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        const bool indicator = element == PE_IndicatorItemViewItemDrop && !option->rect.isNull();
        const DropIndicatorDrawingType type =
            indicator ? mp_view->DrawCustomLinesOnDrag() : diStandard;
        if (type == diStandard) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        const auto* const view = qobject_cast<const QTreeView*>(widget);
        if (!view || !m_dragging)
            return;
        painter->setPen(QPen(Qt::black, type == diTopLine ? 2.0 : 1.0, Qt::SolidLine, Qt::SquareCap,
                             Qt::BevelJoin));
        int width = 0;
        for (int section = 0; section < view->header()->count(); ++section)
            width += view->header()->sectionSize(section);
        const QRect& rect = option->rect;
        painter->drawLine(0, rect.top(), width, rect.top());
        if (type == diTwoLines)
            painter->drawLine(0, rect.bottom(), width, rect.bottom());
    }

private:
    bool m_dragging = false;
    MTreeView* mp_view;
};

} // namespace

MTreeView::MTreeView(QWidget* parent) : QTreeView(parent)
{
    setStyle(new DropProxyStyle(*this));
}

MTreeView::~MTreeView() = default;

DropIndicatorDrawingType MTreeView::DrawCustomLinesOnDrag()
{
    return diStandard;
}

void MTreeView::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeView::dragMoveEvent(event);
    Q_EMIT startDragging();
}

void MTreeView::dropEvent(QDropEvent* event)
{
    QAbstractItemView::dropEvent(event);
    Q_EMIT endDragging();
}

} // namespace ovk

#include "moc_m_tree_view.cpp"
