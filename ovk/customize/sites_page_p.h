#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observable.h>

class QWidget;

namespace ovk {

/// The main page of the customise dialog: it edits the sites of a layout of the active profile,
/// live. Notifies when HasChanges() may have changed.
class OVK_TEST_EXPORT UiCustomizeSitesWidget : public Observable
{
public:
    ~UiCustomizeSitesWidget() override;

    /// The page; made on first use, and deleted by the dialog.
    static UiCustomizeSitesWidget* GetInstance();
    /// The page if it exists, else null.
    static UiCustomizeSitesWidget* Existing();

    /// Takes the active profile under edit and keeps a copy of it. Shortcuts rest from here on.
    void BeginEdit();
    /// Saves the profile and ends. Does nothing when nothing is under edit.
    void Accept();
    /// Ends, with the profile as it was at BeginEdit().
    void Reject();
    /// Goes back to the profile as it was at BeginEdit() and stays under edit.
    void Restore();
    /// Lets the profile go without a change to it, for when it is about to be replaced.
    void Release();
    /// Whether the host put another profile in the place of the one under edit.
    bool IsStale() const;
    /// Whether something was edited, or group titles differ from how they were.
    bool HasChanges() const;

    QWidget* GetWidget() const;
    /// Puts the focus where the user begins: into the search over all commands.
    void FocusSearch();

private:
    class Impl;

    UiCustomizeSitesWidget();

    Impl* mp_impl;
};

} // namespace ovk
