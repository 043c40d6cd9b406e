#include "ovk/core/application_controller.h"

#include "ovk/core/root_controller.h"

namespace ovk {

IApplicationController::IApplicationController(bool registerWithRoot)
{
    if (registerWithRoot)
        RootController::GetInstance()->_Register(*this);
}

IApplicationController::~IApplicationController()
{
    RootController::_Unregister(*this);
}

void IApplicationController::OnAppStart()
{
    _DoOnAppStart();
    m_started = true;
}

void IApplicationController::OnAppShutdown()
{
    if (m_started)
        _DoOnAppShutdown();
}

} // namespace ovk
