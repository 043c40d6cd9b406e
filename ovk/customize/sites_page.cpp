#include "ovk/customize/sites_page_p.h"

#include "ovk/commands/commands_generation_p.h"
#include "ovk/commands/ui_command.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/commands/updateable_ui.h"
#include "ovk/core/observer.h"
#include "ovk/customize/drag_source_p.h"
#include "ovk/customize/sites_page_impl_p.h"
#include "ovk/main_window/ribbon_window_settings.h"
#include "ovk/ui_state/layout_lifetime_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile.h"
#include "ovk/ui_state/ui_profile_controller.h"
#include "ovk/ui_state/ui_state_menus.h"
#include "ovk/ui_state/ui_state_shortcuts.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>

namespace ovk {

namespace {

QString LayoutTitle(const QString& name)
{
    return QCoreApplication::translate("Layouts", name.toUtf8().constData());
}

UiCustomizeSitesWidget* g_sites_page = nullptr;

/// Hears of every update cycle.
class UpdateWatch : public UpdateableUiBasics
{
public:
    explicit UpdateWatch(std::function<void()> updated) : m_updated(std::move(updated)) {}

protected:
    void _UpdateUi(const UpdatableContext*) override { m_updated(); }

private:
    std::function<void()> m_updated;
};

/// Whether the user is typing into a cell of the view.
bool IsEditing(const QAbstractItemView& view)
{
    const QWidget* focus = QApplication::focusWidget();
    return focus && focus != view.viewport() && view.viewport()->isAncestorOf(focus);
}

} // namespace

UiCustomizeSitesWidget::UiCustomizeSitesWidget() : mp_impl(new Impl(*this))
{
    g_sites_page = this;
}

UiCustomizeSitesWidget::~UiCustomizeSitesWidget()
{
    g_sites_page = nullptr;
    delete mp_impl;
}

UiCustomizeSitesWidget* UiCustomizeSitesWidget::GetInstance()
{
    if (!g_sites_page)
        new UiCustomizeSitesWidget; // kept in the static pointer, deleted by the dialog
    return g_sites_page;
}

UiCustomizeSitesWidget* UiCustomizeSitesWidget::Existing()
{
    return g_sites_page;
}

void UiCustomizeSitesWidget::BeginEdit()
{
    mp_impl->BeginEdit();
}

void UiCustomizeSitesWidget::Accept()
{
    mp_impl->Accept();
}

void UiCustomizeSitesWidget::Reject()
{
    mp_impl->Reject();
}

void UiCustomizeSitesWidget::Restore()
{
    mp_impl->Restore();
}

void UiCustomizeSitesWidget::Release()
{
    mp_impl->Release();
}

bool UiCustomizeSitesWidget::HasChanges() const
{
    return mp_impl->HasChanges();
}

bool UiCustomizeSitesWidget::IsStale() const
{
    return mp_impl->IsStale();
}

QWidget* UiCustomizeSitesWidget::GetWidget() const
{
    return mp_impl;
}

void UiCustomizeSitesWidget::FocusSearch()
{
    mp_impl->mp_ed_search_basic->setFocus();
}

UiCustomizeSitesWidget::Impl::Impl(UiCustomizeSitesWidget& owner)
    : PimplBasics<UiCustomizeSitesWidget>(owner)
{
    setupUi(this);
    const auto delete_from = [](auto& model) {
        return [&model](const QModelIndex& parent, int row) { model.DeleteRow(parent, row); };
    };
    m_sites = {
        {SitesTree::Ribbon, mp_view_ribbon, &m_ribbon, delete_from(m_ribbon)},
        {SitesTree::Qab, mp_view_qab, &m_qab, delete_from(m_qab)},
        {SitesTree::Toolbars, mp_view_toolbars, &m_toolbars, delete_from(m_toolbars)},
        {SitesTree::Menus, mp_view_menus, &m_menus, delete_from(m_menus)},
    };
    m_composite_site = {SitesTree::Composite, mp_view_composite, &m_composites, {}};
    CreateActions();
    ConnectViews();
    ConnectControls();
    CreateKeys();
    CreateEmptyHints();
    Retranslate();
    // Before the first layout: all buttons of a tab at once would ask for a very wide dialog.
    for (const Site& site : m_sites)
        OnSelectionChanged(site);
}

UiCustomizeSitesWidget::Impl::~Impl() = default;

void UiCustomizeSitesWidget::Impl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi(this);
        Retranslate();
        for (int i = 0; i < mp_combo_layout->count(); ++i)
            mp_combo_layout->setItemText(i, LayoutTitle(mp_combo_layout->itemData(i).toString()));
    }
    QWidget::changeEvent(event);
    // Not before the views are set up: the first style of the application comes early.
    if (!m_sites.empty() &&
        (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
        SizeColumns();
}

void UiCustomizeSitesWidget::Impl::SetShortcutsActive(bool active)
{
    UiController* controller = UiController::GetInstance();
    UiLayout* layout = controller ? controller->GetActiveLayout() : nullptr;
    UiState* shortcuts = layout ? layout->GetState(UiStateShortcuts::GetSuiteName()) : nullptr;
    if (!shortcuts)
        return;
    if (active)
        shortcuts->Activate(UiProfileItem::amOrdinary);
    else
        shortcuts->Deactivate(UiProfileItem::amOrdinary);
}

void UiCustomizeSitesWidget::Impl::BeginEdit()
{
    SetDragSource(nullptr);
    SetEdited(false);
    UiController* controller = UiController::GetInstance();
    mp_profile = controller ? controller->GetActualProfile() : nullptr;
    m_backup = mp_profile ? std::make_shared<UiProfile>(*mp_profile) : nullptr;
    mp_active_view = mp_view_ribbon;
    mp_btn_add_command->setEnabled(false);
    m_group_title_on_open = RibbonWindowSettings::GroupTitleVisible().GetData();
    FillLayouts();
    mp_tabs_sites->setCurrentIndex(0);
    SetEdited(false);
    SetShortcutsActive(false);
    if (mp_profile && !m_commands_watch) {
        m_commands_watch = std::make_unique<UpdateWatch>([this] { OnCommandsChanged(); });
        // A layout that the host puts on screen meanwhile comes with its shortcuts.
        m_controller_observer = std::make_unique<ObserverFunctor>(
            [this] {
                if (!m_restoring && Edited())
                    SetShortcutsActive(false);
            },
            false);
        controller->Attach(*m_controller_observer);
    }
}

void UiCustomizeSitesWidget::Impl::FillLayouts()
{
    const UiController* controller = UiController::GetInstance();
    const UiLayout* active = controller ? controller->GetActiveLayout() : nullptr;
    {
        const QSignalBlocker blocker(mp_combo_layout);
        mp_combo_layout->clear();
        if (UiProfile* profile = Edited()) {
            profile->ForEach([this](UiLayout* layout) {
                const QString& name = layout->GetName();
                mp_combo_layout->addItem(LayoutTitle(name), name);
                return true;
            });
        }
        mp_combo_layout->setCurrentIndex(active ? mp_combo_layout->findData(active->GetName()) : 0);
    }
    OnLayoutChosen();
}

UiProfile* UiCustomizeSitesWidget::Impl::Edited() const
{
    return mp_profile && !IsStale() ? mp_profile : nullptr;
}

bool UiCustomizeSitesWidget::Impl::IsStale() const
{
    const UiController* controller = UiController::GetInstance();
    return mp_profile && !m_restoring && (!controller || controller->GetProfile() != mp_profile);
}

UiLayout* UiCustomizeSitesWidget::Impl::ChosenLayout() const
{
    // By the shown text: a layout whose name has a translation is not found.
    UiProfile* profile = Edited();
    return profile ? profile->GetLayout(mp_combo_layout->currentText()) : nullptr;
}

void UiCustomizeSitesWidget::Impl::FollowLayout(UiLayout* layout)
{
    disconnect(m_layout_gone);
    if (!layout)
        return;
    // The models and delegates let go by themselves.
    m_layout_gone = connect(
        &impl::LifetimeOf(*layout), &QObject::destroyed, this,
        [this] {
            if (Edited())
                FillLayouts();
        },
        Qt::QueuedConnection);
}

void UiCustomizeSitesWidget::Impl::SetModelsLayout(UiLayout* layout)
{
    FollowLayout(layout);
    m_generation = impl::CommandsGeneration();
    m_commands.SetLayout(layout);
    m_ribbon.SetLayout(layout);
    m_qab.SetLayout(layout);
    m_toolbars.SetLayout(layout);
    m_menus.SetLayout(layout);
    m_composites.SetLayout(layout);
    m_command_delegate.SetLayout(layout);
    m_menu_delegate.SetLayout(layout);
}

void UiCustomizeSitesWidget::Impl::OnLayoutChosen()
{
    UiLayout* layout = ChosenLayout();
    SetModelsLayout(layout);
    mp_view_ribbon->expandAll();
    mp_view_toolbars->expandAll();
    mp_view_menus->expandAll();
    const QSignalBlocker blocker(p_check_shrink_menu);
    if (const UiStateMenus* menus = m_menus.GetMenus())
        p_check_shrink_menu->setChecked(menus->IsMenuAutosize());
    mp_cb_group_title->setChecked(RibbonWindowSettings::GroupTitleVisible().GetData());
    for (const Site& site : m_sites)
        OnSelectionChanged(site);
}

void UiCustomizeSitesWidget::Impl::OnCommandsChanged()
{
    const quint64 generation = impl::CommandsGeneration();
    if (generation == m_generation || IsEditing(*mp_view_commands) ||
        IsEditing(*mp_view_composite) || (mp_active_view && IsEditing(*mp_active_view)))
        return;
    m_generation = generation;
    m_commands.Refresh();
    m_composites.Refresh();
    RefreshSites();
    // Titles and icons may be others.
    mp_view_commands->viewport()->update();
    mp_view_composite->viewport()->update();
    if (mp_active_view)
        mp_active_view->viewport()->update();
}

void UiCustomizeSitesWidget::Impl::RefreshSites()
{
    for (const Site& site : m_sites)
        site.model->Refresh();
}

void UiCustomizeSitesWidget::Impl::SetEdited(bool edited)
{
    if (m_edited == edited)
        return;
    m_edited = edited;
    _pr()._Notify();
}

bool UiCustomizeSitesWidget::Impl::HasChanges() const
{
    return m_edited || RibbonWindowSettings::GroupTitleVisible().GetData() != m_group_title_on_open;
}

void UiCustomizeSitesWidget::Impl::Accept()
{
    if (!mp_profile)
        return;
    SetEdited(false);
    m_backup.reset();
    if (UiProfile* profile = Edited())
        UiProfileController::GetInstance()->Save(*profile);
    Release();
    SetShortcutsActive(true);
}

void UiCustomizeSitesWidget::Impl::Release()
{
    m_commands_watch.reset();
    m_controller_observer.reset();
    mp_profile = nullptr;
    SetModelsLayout(nullptr);
}

std::unique_ptr<UiProfile> UiCustomizeSitesWidget::Impl::SwapInBackup()
{
    // The models let go first: the nodes that they show die with the profile under edit.
    SetModelsLayout(nullptr);
    const QScopedValueRollback<bool> restoring(m_restoring, true);
    auto copy = std::make_unique<UiProfile>(*m_backup);
    std::unique_ptr<UiProfile> old(mp_profile);
    mp_profile = copy.get();
    UiController::GetInstance()->RestoreProfile(copy.release());
    return old;
}

void UiCustomizeSitesWidget::Impl::ShowGroupTitles(bool visible)
{
    mp_cb_group_title->setChecked(visible);
    RibbonWindowSettings::GroupTitleVisible().SetData(visible);
}

void UiCustomizeSitesWidget::Impl::Restore()
{
    if (!Edited() || !m_backup || !HasChanges())
        return;
    SwapInBackup().reset();
    // The restored layout woke its shortcuts.
    SetShortcutsActive(false);
    OnLayoutChosen();
    m_edited = false;
    ShowGroupTitles(m_group_title_on_open);
    _pr()._Notify();
}

void UiCustomizeSitesWidget::Impl::Reject()
{
    if (!mp_profile)
        return;
    if (Edited() && m_backup && HasChanges())
        SwapInBackup().reset();
    m_backup.reset();
    m_edited = false;
    ShowGroupTitles(m_group_title_on_open);
    Release();
    SetShortcutsActive(true);
}

} // namespace ovk
