#include "ovk/customize/sites_page_p.h"

#include "ovk/commands/ui_controller.h"
#include "ovk/customize/drag_source_p.h"
#include "ovk/customize/sites_page_impl_p.h"
#include "ovk/main_window/ribbon_window_settings.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile.h"
#include "ovk/ui_state/ui_profile_controller.h"
#include "ovk/ui_state/ui_state_menus.h"
#include "ovk/ui_state/ui_state_shortcuts.h"

#include <QEvent>
#include <QHeaderView>

namespace ovk {

namespace {

UiCustomizeSitesWidget* g_sites_page = nullptr;

} // namespace

UiCustomizeSitesWidget::UiCustomizeSitesWidget()
    : mp_impl(new Impl(*this))
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

QWidget* UiCustomizeSitesWidget::GetWidget() const
{
    return mp_impl;
}

UiCustomizeSitesWidget::Impl::Impl(UiCustomizeSitesWidget& owner)
    : PimplBasics<UiCustomizeSitesWidget>(owner)
{
    setupUi(this);
    setFocusProxy(mp_ed_search_basic);
    const auto delete_from = [](auto& model) {
        return [&model](const QModelIndex& parent, int row) { model.DeleteRow(parent, row); };
    };
    m_sites = {
        {SitesTree::Ribbon, mp_view_ribbon, &m_ribbon, delete_from(m_ribbon)},
        {SitesTree::Qab, mp_view_qab, &m_qab, delete_from(m_qab)},
        {SitesTree::Toolbars, mp_view_toolbars, &m_toolbars, delete_from(m_toolbars)},
        {SitesTree::Menus, mp_view_menus, &m_menus, delete_from(m_menus)},
    };
    CreateActions();
    ConnectViews();
    ConnectControls();
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
    }
    QWidget::changeEvent(event);
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
    mp_profile = controller->GetActualProfile();
    m_backup = mp_profile ? std::make_shared<UiProfile>(*mp_profile) : nullptr;
    {
        const QSignalBlocker blocker(mp_combo_layout);
        mp_combo_layout->clear();
        if (mp_profile) {
            mp_profile->ForEach([this](UiLayout* layout) {
                const QString& name = layout->GetName();
                mp_combo_layout->addItem(
                    QCoreApplication::translate("Layouts", name.toUtf8().constData()), name);
                return true;
            });
        }
        const UiLayout* active = controller->GetActiveLayout();
        mp_combo_layout->setCurrentIndex(
            active ? mp_combo_layout->findData(active->GetName()) : 0);
    }
    mp_active_view = mp_view_ribbon;
    mp_btn_add_command->setEnabled(false);
    m_group_title_on_open = RibbonWindowSettings::GroupTitleVisible().GetData();
    OnLayoutChosen();
    mp_tabs_sites->setCurrentIndex(0);
    SetEdited(false);
    SetShortcutsActive(false);
}

UiLayout* UiCustomizeSitesWidget::Impl::ChosenLayout() const
{
    // By the shown text: a layout whose name has a translation is not found.
    return mp_profile ? mp_profile->GetLayout(mp_combo_layout->currentText()) : nullptr;
}

void UiCustomizeSitesWidget::Impl::SetModelsLayout(UiLayout* layout)
{
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
    UiProfileController::GetInstance()->Save(*mp_profile);
    Release();
    SetShortcutsActive(true);
}

void UiCustomizeSitesWidget::Impl::Release()
{
    mp_profile = nullptr;
    SetModelsLayout(nullptr);
}

std::unique_ptr<UiProfile> UiCustomizeSitesWidget::Impl::SwapInBackup()
{
    // The models let go first: the nodes that they show die with the profile under edit.
    SetModelsLayout(nullptr);
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
    if (!mp_profile || !m_backup || !HasChanges())
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
    if (m_backup && HasChanges())
        SwapInBackup().reset();
    m_backup.reset();
    m_edited = false;
    ShowGroupTitles(m_group_title_on_open);
    Release();
    SetShortcutsActive(true);
}

} // namespace ovk
