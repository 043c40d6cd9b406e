#pragma once

#include <ovk/core/export.h>

#include <QAbstractItemView>
#include <QPointer>
#include <QSet>
#include <QStyledItemDelegate>

#include <functional>

class QTreeView;

namespace ovk {

class SiteTreeModel;

/// The delegate of plain cells: rows with room for a pointer, the same in all lists of a page.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RowDelegate(QObject* parent = nullptr);
    ~RowDelegate() override;

    /// The height of a row in a font.
    static int RowHeight(const QFontMetrics& metrics);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    /// Repaints the view after a click on a check box: not every model tells of it.
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};

/// What an empty list says in its middle, for as long as it is empty.
class EmptyHint : public QObject
{
    Q_OBJECT

public:
    /// `text` is asked whenever the empty list is painted; an empty text says nothing.
    EmptyHint(QAbstractItemView& view, std::function<QString()> text);
    ~EmptyHint() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAbstractItemView& m_view;
    std::function<QString()> m_text;
};

/// Which containers of a site are open, and what is selected, kept over a reset of the model and
/// over a move. Nodes that are gone are passed over.
class TreeMemory
{
public:
    /// Remembers the view of a site model.
    void Keep(const QTreeView& view, const SiteTreeModel& model);
    /// The same for one row and what is below it.
    void KeepBelow(const QTreeView& view, const SiteTreeModel& model, const QModelIndex& index);
    /// Opens again what was open.
    void Restore(QTreeView& view, const SiteTreeModel& model) const;
    void RestoreBelow(QTreeView& view, const SiteTreeModel& model, const QModelIndex& index) const;
    void Clear() { *this = TreeMemory(); }

private:
    QSet<const void*> m_open;
    const void* mp_current = nullptr;
    int m_scroll = 0;
};

} // namespace ovk
