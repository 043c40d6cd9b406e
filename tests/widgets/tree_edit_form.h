#pragma once

#include <ovk/widgets.h>

#include <QVariant>
#include <QVector>

namespace ovk_test {

/// A value of a row, with all that was written to it.
class Value : public ovk::IItemDataProvider
{
public:
    explicit Value(const QVariant& initial = QVariant()) : value(initial) {}

    QVariant GetData() override { return value; }
    bool SetData(const QVariant& written) override
    {
        value = written;
        writes << written;
        return takes;
    }

    QVariant value;
    QVector<QVariant> writes;
    bool takes = true;
};

class Form : public ovk::TreeEdit
{
public:
    using TreeEdit::event;
    using TreeEdit::viewOptions;

    using TreeEdit::MoveDown;
    using TreeEdit::MoveEnd;
    using TreeEdit::MoveNext;
    using TreeEdit::MovePrevious;
    QModelIndex Move(CursorAction action) { return moveCursor(action, Qt::NoModifier); }

    QModelIndex Cell(int row, int column = 1, const QModelIndex& parent = QModelIndex()) const
    {
        return model()->index(row, column, parent);
    }
    QWidget* Editor(int row, const QModelIndex& parent = QModelIndex()) const
    {
        return GetItem(Cell(row, 1, parent))->GetEditor();
    }
};

} // namespace ovk_test
