#pragma once

#include "ovk/core/pimpl_basics.h"
#include "ovk/customize/search_proxy_p.h"
#include "ovk/customize/shortcut_delegates_p.h"
#include "ovk/customize/site_models_p.h"
#include "ovk/customize/sites_actions_p.h"
#include "ovk/customize/sites_page_p.h"
#include "ovk/customize/view_helpers_p.h"

#include "ui_customize_sites_layout.h"

#include <QAction>
#include <QPersistentModelIndex>
#include <QWidget>

#include <array>
#include <memory>

namespace ovk {

class Observer;
class UiLayout;
class UiProfile;
class UpdateableUiBasics;

/// The widget of the sites page: models over the layout that the combo names, and the actions that
/// edit them.
class UiCustomizeSitesWidget::Impl : public PimplBasics<UiCustomizeSitesWidget>,
                                     public QWidget,
                                     public Ui_UiCustomizeSitesLayout
{
public:
    explicit Impl(UiCustomizeSitesWidget& owner);
    ~Impl() override;

    void BeginEdit();
    void Accept();
    void Restore();
    void Reject();
    void Release();
    bool HasChanges() const;
    bool IsStale() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// A tree of the page with its model, its tab where it has one, and how its rows go.
    struct Site
    {
        SitesTree tree;
        QTreeViewFixed* view;
        SiteTreeModel* model;
        std::function<void(const QModelIndex& parent, int row)> delete_row;
    };

    // Set-up
    void CreateActions();
    void CreateKeys();
    void CreateEmptyHints();
    void ConnectViews();
    void ConnectControls();
    void ConnectModel(QAbstractItemModel& model);
    void Retranslate();
    void SizeColumns();

    // Layout and edited flag
    void FillLayouts();
    void FollowLayout(UiLayout* layout);
    void OnCommandsChanged();
    void RefreshSites();
    UiProfile* Edited() const;
    void OnLayoutChosen();
    void SetModelsLayout(UiLayout* layout);
    void SetEdited(bool edited);
    void SetShortcutsActive(bool active);
    void OnRowsInserted(const Site& site, const QModelIndex& parent, int first, int last);
    void OnRowsDropped(const Site& site, const QModelIndex& parent, int first, int last);
    void KeepRows(const Site& site, const QModelIndex& parent, int first, int last);
    TreeMemory& MemoryOf(const Site& site);
    UiLayout* ChosenLayout() const;
    std::unique_ptr<UiProfile> SwapInBackup();
    void ShowGroupTitles(bool visible);

    // Selection
    const Site* ActiveSite() const;
    void OnTabChanged();
    void OnSelectionChanged(const Site& site);
    SitesSelection SelectionOf(const Site& site) const;
    void EnableDeletes(const Site& site);
    void UpdateAddButton();
    void SearchCommands(const QString& text);
    QList<int> SelectedCommandRows() const;
    UiStateComposite* SelectedComposite() const;

    // Actions
    void Run(SitesAction action);
    void AddToSite();
    static void Edit(QAbstractItemView& view, const QModelIndex& cell);
    void DeleteItems(const Site& site);
    void DeleteComposite();
    void ShowContextMenu(const Site& site, const QPoint& position);
    void ShowCompositeMenu(const QPoint& position);
    void ShowCommandsMenu(const QPoint& position);

    // Keys
    using KeyHandler = void (UiCustomizeSitesWidget::Impl::*)(QAbstractItemView&);
    void AddKey(QAbstractItemView& view, const QKeySequence& keys, KeyHandler handler);
    void DeleteByKey(QAbstractItemView& view);
    void RenameByKey(QAbstractItemView& view);
    void EditSecondByKey(QAbstractItemView& view);
    void LiftByKey(QAbstractItemView& view);
    void DropByKey(QAbstractItemView& view);
    void MoveUpByKey(QAbstractItemView& view);
    void MoveDownByKey(QAbstractItemView& view);
    void MoveByKey(QAbstractItemView& view, bool up);
    void EditCell(QAbstractItemView& view, int which);
    void AppendExpandActions(QMenu& menu) const;
    QAction& Action(SitesAction action) const;

    UiProfile* mp_profile = nullptr; // under edit; the UiController's
    std::shared_ptr<UiProfile> m_backup;
    CommandsModel m_commands;
    CompositeModel m_composites;
    SearchProxy m_commands_proxy;
    SearchProxy m_composites_proxy;
    RibbonModel m_ribbon;
    ToolbarsModel m_toolbars;
    MenusModel m_menus;
    QABModel m_qab;
    QPersistentModelIndex m_composite_menu_index;
    bool m_edited = false;
    QAbstractItemView* mp_active_view = nullptr;
    QPersistentModelIndex m_commands_menu_index;
    bool m_group_title_on_open = true;
    std::array<QAction*, c_sites_action_count> m_actions = {};
    ComboDelegate m_combo_delegate;
    ComboDelegateQab m_combo_delegate_qab;
    CommandShortcutDelegate m_command_delegate;
    MenuShortcutDelegate m_menu_delegate;
    RowDelegate m_row_delegate;
    std::vector<Site> m_sites; // the tabs in their order
    Site m_composite_site;
    std::array<TreeMemory, 5> m_memories; // by SitesTree
    QMetaObject::Connection m_layout_gone;
    std::unique_ptr<Observer> m_controller_observer; // while a profile is under edit
    std::unique_ptr<UpdateableUiBasics> m_commands_watch;
    quint64 m_generation = 0; // of the commands that are listed
    bool m_restoring = false;
};

} // namespace ovk
