#pragma once

#include <ovk/customize/drag_source_p.h>
#include <ovk/customize/site_tree_model_p.h>
#include <ovk/ui_state/ui_state_menu.h>

#include <QAbstractTableModel>
#include <QMetaType>

namespace ovk {

class UiCommand;
class UiLayout;
class UiStateComposite;
class UiStateComposites;
class UiStateMenus;
class UiStateQAB;
class UiStateRibbon;
class UiStateShortcuts;
class UiStateToolbars;

/// Pages, groups and spots of the ribbon.
class OVK_TEST_EXPORT RibbonModel : public SiteTreeModel
{
    Q_OBJECT

public:
    explicit RibbonModel(QObject* parent = nullptr);
    ~RibbonModel() override;

    /// Shows a layout's ribbon; null shows nothing.
    void SetLayout(UiLayout* layout);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;
    ITreeItem* GetRootItem() const override;
    Qt::ToolButtonStyle GetDefaultButtonStyle() const override;

    /// Adds a page titled "New page"; row -1 appends.
    void AddPage(int row);
    /// Adds a group titled "New group" to a page; row -1 appends.
    void AddGroup(const QModelIndex& page, int row);
    /// Deletes a page, group or spot.
    void DeleteRow(const QModelIndex& parent, int row);

    void MovePages(const QModelIndexList& indexes, int row);
    void MoveGroups(const QModelIndexList& indexes, const QModelIndex& page, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& group, int row);

private:
    static const DropRules& Rules();
    bool MovesFixedItemAway(const DropRequest& request) const;

    UiStateRibbon* mp_root = nullptr;
};

/// The spots of the quick access bar.
class OVK_TEST_EXPORT QABModel : public SiteTreeModel
{
    Q_OBJECT

public:
    explicit QABModel(QObject* parent = nullptr);
    ~QABModel() override;

    void SetLayout(UiLayout* layout);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;
    ITreeItem* GetRootItem() const override;

    void DeleteRow(const QModelIndex& parent, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& target, int row);

private:
    static const DropRules& Rules();

    UiStateQAB* mp_root = nullptr;
};

/// Tool bars and their spots.
class OVK_TEST_EXPORT ToolbarsModel : public SiteTreeModel
{
    Q_OBJECT

public:
    explicit ToolbarsModel(QObject* parent = nullptr);
    ~ToolbarsModel() override;

    void SetLayout(UiLayout* layout);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;
    ITreeItem* GetRootItem() const override;

    /// Adds a tool bar titled "New Toolbar"; row -1 appends.
    void AddToolbar(int row);
    void DeleteRow(const QModelIndex& parent, int row);
    void MoveToolbars(const QModelIndexList& indexes, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& toolbar, int row);

private:
    static const DropRules& Rules();

    UiStateToolbars* mp_root = nullptr;
};

/// Context menus, their keys and spots.
class OVK_TEST_EXPORT MenusModel : public SiteTreeModel
{
    Q_OBJECT

public:
    /// The role that gives the `UiStateMenu*`.
    static constexpr int MenuRole = Qt::UserRole + 1;

    explicit MenusModel(QObject* parent = nullptr);
    ~MenusModel() override;

    void SetLayout(UiLayout* layout);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;
    ITreeItem* GetRootItem() const override;

    /// The suite at the root; null without a layout.
    UiStateMenus* GetMenus() const { return mp_root; }

    /// Adds a menu titled "New Menu"; row -1 appends.
    void AddMenu(int row);
    /// Deletes a spot, or a menu that may be deleted.
    void DeleteRow(const QModelIndex& parent, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& menu, int row);

private:
    static const DropRules& Rules();

    UiStateMenus* mp_root = nullptr;
};

/// Composite commands and their items.
class OVK_TEST_EXPORT CompositeModel : public SiteTreeModel
{
    Q_OBJECT

public:
    explicit CompositeModel(QObject* parent = nullptr);
    ~CompositeModel() override;

    void SetLayout(UiLayout* layout);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;
    ITreeItem* GetRootItem() const override;

    /// Adds a composite titled "New Menu" that opens its list; row -1 appends.
    void AddMenu(int row);
    /// Adds a composite titled "New Command" that runs its first item; row -1 appends.
    void AddCommand(int row);
    /// Answers 1 when a whole composite went, 2 when an item of one went, else 0.
    int DeleteRow(const QModelIndex& parent, int row);

    /// Adds the commands that a composite lacks, all at one row; on an item they go behind it.
    void InsertCompositeItems(const QModelIndex& index, const QList<IUiItem*>& commands, int row);
    /// Moves an item to `row` of a composite, counted after it was taken out of its own.
    void MoveItem(const QModelIndex& sourceParent, int sourceRow, const QModelIndex& targetParent,
                  int row);

private:
    static const DropRules& Rules();
    void AddComposite(std::unique_ptr<UiStateComposite> composite, const QString& title, int row);
    void SwapComposites(const DropRequest& request);

    UiStateComposites* mp_root = nullptr;
};

/// The commands that a layout offers, with their shortcuts in column 1.
class OVK_TEST_EXPORT CommandsModel : public QAbstractTableModel, public QList<UiCommand*>
{
    Q_OBJECT

public:
    /// The role that gives the `UiCommand*` as a `void*`, in column 1.
    static constexpr int CommandRole = Qt::UserRole + 1;

    explicit CommandsModel(QObject* parent = nullptr);
    ~CommandsModel() override;

    /// Lists a layout's commands but for those generated at run time; null lists none.
    void SetLayout(UiLayout* layout);
    /// Lists nothing.
    void Clear();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QVariant ShortcutData(UiCommand& command, int role) const;

    UiStateShortcuts* mp_shortcuts = nullptr;
};

} // namespace ovk

Q_DECLARE_METATYPE(ovk::UiStateMenu*)
