#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observable.h>

class QAbstractItemModel;
class QWidget;

namespace ovk {

/// The page of the customise dialog that lists the panels of the default layout with their pages,
/// to show and hide them, and brings the default arrangement back. Acts at once.
class OVK_TEST_EXPORT UiCustomizeToolpagesWidget : public Observable
{
public:
    ~UiCustomizeToolpagesWidget() override;

    /// The page; made on first use, and deleted by the dialog.
    static UiCustomizeToolpagesWidget* GetInstance();
    /// The page if it exists, else null.
    static UiCustomizeToolpagesWidget* Existing();

    /// Lists the panels of the active layout's defaults and their present state.
    void BeginEdit();
    /// Lists nothing.
    void Clear();
    /// Brings the default arrangement of the active layout back; there is no way back from it.
    void Restore();

    QWidget* GetWidget() const;
    QAbstractItemModel* GetModel() const;

private:
    class Impl;

    UiCustomizeToolpagesWidget();

    Impl* mp_impl;
};

} // namespace ovk
