#include "ovk/customize/toolpages_page_p.h"

#include "ovk/commands/ui_controller.h"
#include "ovk/core/observable.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/customize/toolpages_model_p.h"
#include "ovk/customize/view_helpers_p.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/docking/dock_widget.h"
#include "ovk/docking/ui_state_docking.h"
#include "ovk/main_window/ribbon_window.h"
#include "ovk/main_window/ribbon_window_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile.h"

#include "ui_custimize_toolpages.h"

#include <QEvent>
#include <QWidget>

namespace ovk {

namespace {

UiCustomizeToolpagesWidget* g_toolpages_page = nullptr;

DockManager* Manager()
{
    const RibbonWindow* window = LiveRibbonWindow();
    return window ? window->GetDockManager() : nullptr;
}

UiLayout* ActiveLayout()
{
    UiController* controller = UiController::GetInstance();
    return controller ? controller->GetActiveLayout() : nullptr;
}

/// The docking of the active layout in the defaults that the profile grew from.
UiStateDocking* DefaultDocking()
{
    UiController* controller = UiController::GetInstance();
    UiProfile* profile = controller ? controller->GetProfile() : nullptr;
    UiProfile* defaults = profile ? profile->GetBase() : nullptr;
    const UiLayout* active = ActiveLayout();
    UiLayout* layout = defaults && active ? defaults->GetLayout(active->GetName()) : nullptr;
    return layout ? dynamic_cast<UiStateDocking*>(layout->GetState(UiStateDocking::GetSuiteName()))
                  : nullptr;
}

} // namespace

class UiCustomizeToolpagesWidget::Impl : public PimplBasics<UiCustomizeToolpagesWidget>,
                                         public QWidget,
                                         public Ui_UiCustimizeToolpages
{
public:
    explicit Impl(UiCustomizeToolpagesWidget& owner)
        : PimplBasics<UiCustomizeToolpagesWidget>(owner)
    {
        setupUi(this);
        mp_pages_view->setModel(&model);
        mp_pages_view->setItemDelegate(&m_row_delegate);
        connect(mp_btn_restore, &QPushButton::clicked, this, [this] { _pr().Restore(); });
        connect(mp_animated_docking, &QCheckBox::stateChanged, this, [](int state) {
            if (DockManager* manager = Manager())
                manager->SetAnimatedDocking(state == Qt::Checked);
        });
    }

    ToolpagesModel model;

private:
    RowDelegate m_row_delegate;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange)
            retranslateUi(this);
        QWidget::changeEvent(event);
    }
};

UiCustomizeToolpagesWidget::UiCustomizeToolpagesWidget() : mp_impl(new Impl(*this))
{
    g_toolpages_page = this;
}

UiCustomizeToolpagesWidget::~UiCustomizeToolpagesWidget()
{
    g_toolpages_page = nullptr;
    delete mp_impl;
}

UiCustomizeToolpagesWidget* UiCustomizeToolpagesWidget::GetInstance()
{
    if (!g_toolpages_page)
        new UiCustomizeToolpagesWidget; // kept in the static pointer, deleted by the dialog
    return g_toolpages_page;
}

UiCustomizeToolpagesWidget* UiCustomizeToolpagesWidget::Existing()
{
    return g_toolpages_page;
}

void UiCustomizeToolpagesWidget::BeginEdit()
{
    QList<UiStateDockWidget*> panels;
    if (const UiStateDocking* docking = DefaultDocking())
        docking->GetItems(panels);
    DockManager* manager = Manager();
    mp_impl->model.Reset(panels, manager ? manager->GetWidgetsList() : QList<DockWidget*>());
    mp_impl->mp_pages_view->expandAll();
    if (manager)
        mp_impl->mp_animated_docking->setChecked(manager->IsAnimatedDocking());
}

void UiCustomizeToolpagesWidget::Clear()
{
    mp_impl->model.Reset({}, {});
}

void UiCustomizeToolpagesWidget::Restore()
{
    UiLayout* layout = ActiveLayout();
    const UiStateDocking* defaults = DefaultDocking();
    UiState* current = layout ? layout->GetState(UiStateDocking::GetSuiteName()) : nullptr;
    if (!current || !defaults)
        return;
    auto copy = std::make_unique<UiStateDocking>(*defaults);
    Clear();
    layout->ReplaceState(current, copy.release());
    if (RibbonWindow* window = LiveRibbonWindow())
        window->UiCustomizedSignal()->Emit();
    BeginEdit();
}

QWidget* UiCustomizeToolpagesWidget::GetWidget() const
{
    return mp_impl;
}

QAbstractItemModel* UiCustomizeToolpagesWidget::GetModel() const
{
    return &mp_impl->model;
}

} // namespace ovk
