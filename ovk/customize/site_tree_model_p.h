#pragma once

#include <ovk/core/export.h>

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>
#include <QList>
#include <QStringList>
#include <QVector>

#include <functional>

namespace ovk {

class ITreeItem;
class IUiItem;
class UiLayout;
class UiStateCommandSpots;
class UiStateComposite;

/// The MIME type of drags inside the customise dialog.
OVK_TEST_EXPORT const QString& CustomizeMimeType();

/// Names of the button styles; the row is the Qt::ToolButtonStyle.
OVK_TEST_EXPORT extern const QStringList buttonStyles;

/// The translated name of a button style; a number past the end counts modulo the list.
OVK_TEST_EXPORT QString ButtonStyleName(int style);

/// What a node of a site's tree, or a dragged thing, is to the drop rules.
enum class NodeKind
{
    None,
    Ribbon,
    Page,
    Group,
    QuickAccessBar,
    Toolbars,
    Toolbar,
    Menus,
    Menu,
    Spot,
    Composites,
    Composite,
    CompositeItem,
    Commands ///< not a node: commands of the command table
};

/// One drop as a rule sees it.
struct DropRequest
{
    ITreeItem* target = nullptr;
    NodeKind target_kind = NodeKind::None;
    NodeKind first = NodeKind::None;
    QModelIndex index;        ///< the index of the target, invalid for the root
    int row = -1;             ///< where in the target, -1 on it
    QList<ITreeItem*> items;  ///< the dragged nodes
    QModelIndexList indexes;  ///< and their indexes, later rows first
    QList<IUiItem*> commands; ///< or the dragged commands
    bool first_only = false;  ///< the first of the nodes decides alone
    ITreeItem* First() const { return items.isEmpty() ? nullptr : items.first(); }
    bool IsOnItself() const { return first_only ? First() == target : items.contains(target); }
};

/// A tree over one suite of the layout under edit. It shows what resolves in the current product
/// and writes straight into the nodes; the nodes are owned by the layout.
class OVK_TEST_EXPORT SiteTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    ~SiteTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    /// The most children that one container takes.
    virtual int GetMaxItems() const = 0;
    /// The node at the root; null without a layout.
    virtual ITreeItem* GetRootItem() const = 0;
    /// The style of buttons that are dropped here.
    virtual Qt::ToolButtonStyle GetDefaultButtonStyle() const;

    /// The node of a valid index, else the root.
    ITreeItem* GetItem(const QModelIndex& index) const;

    /// Adds a separator to a container of spots; row -1 appends. Other parents are left alone.
    void AddSeparator(const QModelIndex& parent, int row);

    /// Whether `count` more spots fit into the container at `index` (or that of the spot there)
    /// and that is not locked.
    bool CanInsert(const QModelIndex& index, int count) const;
    /// The same for a move: rows that are in that container already do not count.
    bool CanMove(const QModelIndex& index, const QModelIndexList& indexes) const;

    /// Adds the commands that the container lacks, all at one row, so that the last comes first;
    /// on a spot they go behind it. A row out of range appends.
    void InsertCommands(const QModelIndex& index, const QList<IUiItem*>& commands, int row);
    /// The same for the button of a composite.
    void InsertCompositeCommand(UiStateComposite& composite, const QModelIndex& index, int row);

    /// Shows what came to be offered, or is no longer, without an edit: a command of the host, or a
    /// composite by what it holds now. Resets the model when something did.
    void Refresh();

    /// Whether a drop is being carried out: what it inserts is not opened for renaming.
    bool IsDropping() const { return m_dropping; }

    /// The index in column 0, below which the children of a row lie. A pointer may point at any.
    static QModelIndex RowIndex(const QModelIndex& index) { return index.siblingAtColumn(0); }

    /// The order in which rows are taken out, so that none moves before its turn: later rows
    /// first, rows of different parents by their parents.
    static bool ComesFirst(const QModelIndex& a, const QModelIndex& b);

    /// What a node is to the drop rules.
    static NodeKind KindOf(ITreeItem* item);

protected:
    explicit SiteTreeModel(int columns, QObject* parent = nullptr);

    using Test = bool (*)(const SiteTreeModel&, const DropRequest&);
    using Effect = void (*)(SiteTreeModel&, const DropRequest&);

    /// A row of a table of drop rules.
    struct DropRule
    {
        NodeKind target;
        NodeKind first;
        bool on_itself; ///< whether the target may be among the dragged nodes
        Test allowed;   ///< null: always
        Effect effect;
    };
    using DropRules = QVector<DropRule>;

    /// How many of the dragged rows count.
    enum class DragReading
    {
        All,      ///< all, which must be of one kind
        FirstOnly ///< the first decides alone
    };

    /// Reads the drag source for a drop on `parent`. Answers false when it may be dropped nowhere.
    bool _ReadDrag(const QModelIndex& parent, int row, DropRequest& request,
                   DragReading reading = DragReading::All) const;
    const DropRule* _FindRule(const DropRules& rules, const DropRequest& request) const;
    bool _CanDrop(const DropRules& rules, const DropRequest& request) const;
    /// The fixed steps of dropMimeData around the rule's effect.
    bool _Drop(const DropRules& rules, const QMimeData* data, Qt::DropAction action, int row,
               const QModelIndex& parent, DragReading reading = DragReading::All);

    /// The rules of a container of spots and of the spots in it, the same on every site.
    static DropRules _SpotRules(NodeKind container, bool takes_composites);

    /// Takes nodes out of their parents, later rows first, and puts them into `target` as one
    /// block that keeps its order. `row` counts before anything was taken out; out of range
    /// appends.
    void _MoveNodes(const QModelIndexList& indexes, const QModelIndex& target, int row,
                    const std::function<ITreeItem*(ITreeItem& parent, int row)>& take,
                    const std::function<void(ITreeItem& node, int row)>& put);
    /// The same for spots; a command that the target holds already stays where it was.
    void _MoveSpots(const QModelIndexList& indexes, const QModelIndex& target, int row);

    /// What all spots show, in column 0 the item, in column 1 the style.
    QVariant _SpotData(ITreeItem* item, int column, int role) const;
    static QVariant _CheckState(ITreeItem* item);
    static QVariant _LockedForeground(ITreeItem* item);
    /// Deletes the spot at `row` of the container at `parent`.
    void _DeleteSpot(UiStateCommandSpots& spots, const QModelIndex& parent, int row);
    /// Whether the row may be removed below that parent.
    bool _HasRow(const QModelIndex& parent, int row) const;

    /// To be called around a change of the root; indexes of a drag from here become void.
    void _BeginReset();
    void _EndReset();
    /// Calls `gone` when the layout goes, in place of what was called for the former layout.
    void _Follow(UiLayout* layout, const std::function<void()>& gone);
    /// To be called in place of beginRemoveRows where the node is deleted.
    void _BeginDelete(const QModelIndex& parent, int row);
    /// To be called in place of Qt's functions of these names, after the tree was changed.
    void _EndInsert();
    void _EndRemove();
    void _EndMove();

    static bool _IsLocked(ITreeItem* item);

private:
    /// The children of a node that are shown; asking for each anew would cost a walk over all.
    struct Rows
    {
        int children = -1;      ///< how many there were, shown or not
        quint64 generation = 0; ///< of the commands that they were looked up in
        QVector<ITreeItem*> shown;
    };

    int _RowOf(ITreeItem& parent, ITreeItem& child) const;
    const QVector<ITreeItem*>& _Rows(ITreeItem* item) const;
    bool _IsAsShown(ITreeItem* item) const;

    mutable QHash<ITreeItem*, Rows> m_rows; // until the next change
    mutable bool m_changed_unheard = false; // rows came or went that nobody announced

    QIcon m_composite_icon;
    int m_columns;
    bool m_dropping = false;
    QMetaObject::Connection m_layout_gone;
};

} // namespace ovk
