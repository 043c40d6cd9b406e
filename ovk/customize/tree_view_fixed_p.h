#pragma once

#include <QDragEnterEvent>
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
};
