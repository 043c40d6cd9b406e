#pragma once

#include <ovk/ui_state/ui_state_command_spots.h>

#include <QtCore/QPointer>
#include <QtWidgets/QToolBar>

namespace ovk {

/// The quick access bar of a layout: fills the bar that the ribbon bar owns.
class OVK_EXPORT UiStateQAB : public UiStateCommandSpots
{
public:
    UiStateQAB();
    explicit UiStateQAB(const QJsonObject& json);
    UiStateQAB(const UiStateQAB& other);
    ~UiStateQAB() override;

    /// "quick access bar".
    static const QString& GetSuiteName();

    UiProfileItem* Clone() const override;

    /// Fills the bar anew, the quick search edit at its end.
    void SpotsChanged() override;

protected:
    void _Activate(ActivationMode mode) override;
    void _Deactivate(ActivationMode mode) override;
    /// Nothing: the user cannot change the bar behind the tree's back.
    void _Store() override;

private:
    void _Build();

    /// The bar that was filled; the main window may be gone before the layout is left.
    QPointer<QToolBar> mp_bar;
};

} // namespace ovk
