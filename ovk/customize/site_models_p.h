#pragma once

#include <ovk/customize/drag_source_p.h>
#include <ovk/customize/t_site_model_p.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_menu.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_toolbars.h>

#include <QAbstractTableModel>
#include <QMetaType>

#include <memory>

namespace ovk {

class UiCommand;
class UiLayout;
class UiStateComposite;
class UiStateShortcuts;

/// Pages, groups and spots of the ribbon.
class OVK_TEST_EXPORT RibbonModel : public TSiteModel<UiStateRibbon>
{
    Q_OBJECT

public:
    explicit RibbonModel(QObject* parent = nullptr);
    ~RibbonModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;
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

protected:
    const DropRules& _Rules() const override;
    /// A fixed item moves only inside its own parent; a fixed page anywhere in the ribbon.
    bool _MayDrop(const DropRequest& request) const override;
};

/// The spots of the quick access bar.
class OVK_TEST_EXPORT QABModel : public TSiteModel<UiStateQAB>
{
    Q_OBJECT

public:
    explicit QABModel(QObject* parent = nullptr);
    ~QABModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;

    void DeleteRow(const QModelIndex& parent, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& target, int row);

protected:
    const DropRules& _Rules() const override;
};

/// Tool bars and their spots.
class OVK_TEST_EXPORT ToolbarsModel : public TSiteModel<UiStateToolbars>
{
    Q_OBJECT

public:
    explicit ToolbarsModel(QObject* parent = nullptr);
    ~ToolbarsModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;

    /// Adds a tool bar titled "New Toolbar"; row -1 appends.
    void AddToolbar(int row);
    void DeleteRow(const QModelIndex& parent, int row);
    void MoveToolbars(const QModelIndexList& indexes, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& toolbar, int row);

protected:
    const DropRules& _Rules() const override;
};

/// Context menus, their keys and spots.
class OVK_TEST_EXPORT MenusModel : public TSiteModel<UiStateMenus>
{
    Q_OBJECT

public:
    /// The role that gives the `UiStateMenu*`.
    static constexpr int MenuRole = Qt::UserRole + 1;

    explicit MenusModel(QObject* parent = nullptr);
    ~MenusModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;

    /// The suite at the root; null without a layout.
    UiStateMenus* GetMenus() const { return mp_root; }

    /// Adds a menu titled "New Menu"; row -1 appends.
    void AddMenu(int row);
    /// Deletes a spot, or a menu that may be deleted.
    void DeleteRow(const QModelIndex& parent, int row);
    void MoveSpots(const QModelIndexList& indexes, const QModelIndex& menu, int row);

protected:
    const DropRules& _Rules() const override;
};

/// Composite commands and their items.
class OVK_TEST_EXPORT CompositeModel : public TSiteModel<UiStateComposites>
{
    Q_OBJECT

public:
    explicit CompositeModel(QObject* parent = nullptr);
    ~CompositeModel() override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    int GetMaxItems() const override;

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

protected:
    const DropRules& _Rules() const override;

private:
    void AddComposite(std::unique_ptr<UiStateComposite> composite, const QString& title, int row);
    void SwapComposites(const DropRequest& request);
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
    /// Lists what the layout offers now; resets the model when that is not what it lists.
    void Refresh();

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
    /// Watches the commands of the list, in place of those of the former one.
    void Watch();
    void Forget(UiCommand* dead);
    QList<UiCommand*> Offered() const;

    UiLayout* mp_layout = nullptr;
    UiStateShortcuts* mp_shortcuts = nullptr;
    QMetaObject::Connection m_layout_gone;
    std::unique_ptr<QObject> m_watch; // the receiver of all that is heard of commands
};

} // namespace ovk

Q_DECLARE_METATYPE(ovk::UiStateMenu*)
