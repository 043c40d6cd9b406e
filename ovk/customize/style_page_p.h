#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observable.h>

class QWidget;

namespace ovk {

/// The page of the customise dialog on which theme and accent are chosen. Every choice is seen at
/// once. Notifies when HasChanges() may have changed.
class OVK_TEST_EXPORT UiCustomizeStyleWidget : public Observable
{
public:
    ~UiCustomizeStyleWidget() override;

    /// The page; made on first use, and deleted by the dialog.
    static UiCustomizeStyleWidget* GetInstance();
    /// The page if it exists, else null.
    static UiCustomizeStyleWidget* Existing();

    /// Remembers theme and accent as they are and shows them.
    void BeginEdit();
    /// Does nothing: the settings are as chosen.
    void Accept();
    /// Puts back what BeginEdit() remembered.
    void Restore();
    /// Whether theme or accent differ from what BeginEdit() remembered.
    bool HasChanges() const;

    QWidget* GetWidget() const;

private:
    class Impl;

    UiCustomizeStyleWidget();

    Impl* mp_impl;
};

} // namespace ovk
