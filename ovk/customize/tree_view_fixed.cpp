#include "ovk/customize/tree_view_fixed_p.h"

QTreeViewFixed::QTreeViewFixed(QWidget* parent)
    : QTreeView(parent)
{
}

QTreeViewFixed::~QTreeViewFixed() = default;

void QTreeViewFixed::dragEnterEvent(QDragEnterEvent* event)
{
    event->accept();
    setState(DraggingState);
}

#include "moc_tree_view_fixed_p.cpp"
