#pragma once

#include <ovk/core/export.h>

#include <QTreeView>

namespace ovk {

/// How a tree shows where a drag would land.
enum DropIndicatorDrawingType
{
    /// As the style does.
    diStandard = 0,
    /// One thick line at the top of the row.
    diTopLine = 1,
    /// Thin lines at the top and the bottom of the row.
    diTwoLines = 2
};

/// A tree whose subclasses choose how it shows where a drag would land.
class OVK_EXPORT MTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit MTreeView(QWidget* parent = nullptr);
    ~MTreeView() override;

    /// How to show where the present drag would land; asked whenever that is drawn.
    virtual DropIndicatorDrawingType DrawCustomLinesOnDrag();

Q_SIGNALS:
    /// A drag moved over the tree.
    void startDragging();
    /// Something was dropped on the tree.
    void endDragging();

protected:
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};

} // namespace ovk
