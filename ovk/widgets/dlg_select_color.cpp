#include "ovk/widgets/dlg_select_color.h"

namespace ovk {

std::function<void()> DlgSelectColor::mp_func_native_dialog_updater;
std::function<void()> DlgSelectColor::mp_func_dialog_updater;

DlgSelectColor::DlgSelectColor(QWidget* parent) : QColorDialog(parent)
{
    connect(this, &QDialog::accepted, this, [] {
        if (mp_func_native_dialog_updater)
            mp_func_native_dialog_updater();
    });
    UpdateCustomColors();
}

DlgSelectColor::~DlgSelectColor() = default;

void DlgSelectColor::UpdateCustomColors()
{
    if (mp_func_dialog_updater)
        mp_func_dialog_updater();
}

void DlgSelectColor::SetDialogUpdater(const std::function<void()>& updater)
{
    mp_func_dialog_updater = updater;
}

void DlgSelectColor::SetNativeDialogUpdater(const std::function<void()>& updater)
{
    mp_func_native_dialog_updater = updater;
}

} // namespace ovk

#include "moc_dlg_select_color.cpp"
