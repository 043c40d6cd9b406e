#include "updateable_ui.h"

#include "ovk/commands/ui_controller.h"

namespace ovk {

IUpdateableUi::~IUpdateableUi() = default;

void IUpdateableUi::DoUpdateUi(const UpdatableContext* context)
{
    if (!context) {
        if (UiController* const controller = UiController::GetInstance())
            context = controller->GetUpdatableContext(true);
    }
    _UpdateUi(context);
}

void IUpdateableUi::_Register(UiController& controller)
{
    controller._RegisterUpdateableUi(*this);
}

void IUpdateableUi::_Unregister(UiController& controller)
{
    controller._UnregisterUpdateableUi(*this);
}

UpdateableUiBasics::UpdateableUiBasics()
{
    if (UiController* const controller = UiController::GetInstance())
        _Register(*controller);
}

UpdateableUiBasics::~UpdateableUiBasics()
{
    if (UiController* const controller = UiController::GetInstance())
        _Unregister(*controller);
}

} // namespace ovk
