#pragma once

#include <ovk/core/export.h>

#include <QColorDialog>

#include <functional>

namespace ovk {

/// The full colour dialog. Custom colours are the host's to keep: one hook loads them before a
/// dialog or a popup is seen, another saves them after the user accepted a dialog.
class OVK_EXPORT DlgSelectColor : public QColorDialog
{
    Q_OBJECT

public:
    /// Loads the custom colours.
    explicit DlgSelectColor(QWidget* parent = nullptr);
    ~DlgSelectColor() override;

    /// Runs the hook that loads the custom colours, if there is one.
    static void UpdateCustomColors();
    /// Changes the hook that loads the custom colours; empty for none.
    static void SetDialogUpdater(const std::function<void()>& updater);
    /// Changes the hook that saves the custom colours once a dialog was accepted; empty for none.
    static void SetNativeDialogUpdater(const std::function<void()>& updater);

private:
    static std::function<void()> mp_func_native_dialog_updater;
    static std::function<void()> mp_func_dialog_updater;
};

} // namespace ovk
