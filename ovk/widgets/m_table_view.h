#pragma once

#include <ovk/core/export.h>

#include <QPoint>
#include <QTableView>

namespace ovk {

/// A table whose rows are dragged as a pale picture of themselves, with a line across the whole
/// width where they would land.
class OVK_EXPORT MTableView : public QTableView
{
    Q_OBJECT

public:
    explicit MTableView(QWidget* parent = nullptr);
    ~MTableView() override;

Q_SIGNALS:
    /// A drag moved over the table.
    void startDragging();
    /// Something was dropped on the table.
    void endDragging();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

    /// The picture of the seen ones of \a indexes; \a rect gets the place of it in the viewport.
    /// Null if none of them is seen.
    QPixmap _RenderToPixmap(const QModelIndexList& indexes, QRect& rect) const;

private:
    QPoint _ScrollOffsets() const;

    QPoint m_press_position;
};

} // namespace ovk
