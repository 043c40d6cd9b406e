#pragma once

#include <ovk/core/export.h>

#include <QTreeView>

namespace ovk {

class SettingsItemsModel;
class TreeEditItem;
class TreeEditItemBase;
class TreeEditSectionItem;
class TreeItemDelegate;
class TreeItemDelegateWrapper;

/// A property editor: titles on the left, one editor each on the right, sections as bands between
/// them. The host adds the rows, gives each a delegate and a provider, and calls CreateEditors().
class OVK_EXPORT TreeEdit : public QTreeView
{
    Q_OBJECT

public:
    explicit TreeEdit(QWidget* parent = nullptr);
    ~TreeEdit() override;

    /// Appends a row at the top level. The tree owns it.
    TreeEditItem* AddItem(const QString& title, TreeItemDelegateWrapper delegate);
    /// Appends a section at the top level. The tree owns it.
    TreeEditSectionItem* AddSection(const QString& title, const QString& hint);
    /// The item of an index of a TreeEdit's model; null for an invalid index.
    static TreeEditItemBase* GetItem(const QModelIndex& index);

    /// Opens the editors of all rows. From then on rows that come, or come back, open theirs.
    void CreateEditors();
    /// Goes to the first row that can be edited and edits it.
    void SetFirstActive();

    /// Lets go of all editors, and opens them anew if they were open.
    void reset() override;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;
    /// The band of a section begins at the edge of the view.
    void drawBranches(QPainter* painter, const QRect& rect,
                      const QModelIndex& index) const override;

private:
    void _OnCurrentChanged(const QModelIndex& current, const QModelIndex& previous);
    void _OpenEditor(const QModelIndex& index);
    bool _HasFocusBelow(const QModelIndex& index) const;
    void _HandFocusOn(bool next);

    SettingsItemsModel* mp_model;
    TreeItemDelegate* mp_delegate;
    bool m_editors_created = false;
};

} // namespace ovk
