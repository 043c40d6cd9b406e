#pragma once

#include <ovk/core/export.h>
#include <ovk/customize/sites_page_p.h>
#include <ovk/customize/style_page_p.h>
#include <ovk/customize/toolpages_page_p.h>

#include <memory>

class QDialog;

namespace ovk {

/// The customise dialog: one for the process, modeless, kept between uses.
class OVK_TEST_EXPORT UiCustomizeDialog
{
public:
    ~UiCustomizeDialog();
    UiCustomizeDialog(const UiCustomizeDialog&) = delete;
    UiCustomizeDialog& operator=(const UiCustomizeDialog&) = delete;

    /// The dialog if it exists, else null.
    static UiCustomizeDialog* GetInstance();
    /// Makes the dialog if there is none, puts the active profile under edit and shows it.
    static void Open();
    /// Deletes the dialog and its pages.
    static void Destroy();

    QDialog* GetDialog() const;

private:
    class Impl;

    UiCustomizeDialog();

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
