#include "ovk/core/root_controller.h"

namespace ovk {

namespace {

RootController* g_root = nullptr;

} // namespace

RootController::RootController()
    : IApplicationController(false), mp_controllers(std::make_unique<QList<IApplicationController*>>())
{
    g_root = this;
}

RootController::~RootController()
{
    g_root = nullptr;
    while (!mp_controllers->isEmpty())
        delete mp_controllers->takeLast();
}

RootController* RootController::GetInstance()
{
    if (!g_root)
        g_root = new RootController; // the host deletes it
    return g_root;
}

void RootController::_Register(IApplicationController& controller)
{
    if (&controller != this)
        mp_controllers->append(&controller);
}

void RootController::_Unregister(IApplicationController& controller)
{
    // Not through GetInstance: the end of a controller makes no root.
    if (g_root && g_root != &controller)
        g_root->mp_controllers->removeAll(&controller);
}

void RootController::_DoOnAppStart()
{
    // By index: a controller may be constructed, and so registered, by the start of another.
    for (int i = 0; i < mp_controllers->size(); ++i)
        mp_controllers->at(i)->OnAppStart();
}

void RootController::_DoOnAppShutdown()
{
    for (int i = 0; i < mp_controllers->size(); ++i)
        mp_controllers->at(i)->OnAppShutdown();
}

} // namespace ovk
