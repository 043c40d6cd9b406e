#pragma once

#include <QDragEnterEvent>
#include <QTableView>
#include <QTreeView>

/// A tree that takes every drag that enters it; what may be dropped where is the model's answer,
/// asked while the drag moves.
class QTreeViewFixed : public QTreeView
{
    Q_OBJECT

public:
    explicit QTreeViewFixed(QWidget* parent = nullptr);
    ~QTreeViewFixed() override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    /// Also takes a drop between top rows, or below them, that the model allows while the flags of
    /// its root do not speak of drops.
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    void SetDropLine(const QRect& line);

    QRect m_drop_line; // where such a drop would land
};

/// A table whose drags look like those of the trees beside it.
class QTableViewFixed : public QTableView
{
    Q_OBJECT

public:
    explicit QTableViewFixed(QWidget* parent = nullptr);
    ~QTableViewFixed() override;

protected:
    void startDrag(Qt::DropActions actions) override;
};
