#pragma once

#include <QWidget>

/// A table of every control in every state, painted by the application's style.
class StateSheet : public QWidget
{
    Q_OBJECT

public:
    explicit StateSheet(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect CellRect(int row, int column) const;
    int RowHeight() const;
    int ColumnWidth() const;
    int HeadWidth() const;
};
