#pragma once

#include <ovk/core/application_controller.h>

#include <QList>

#include <memory>

namespace ovk {

/// Owns the application-level controllers and starts and stops them, both in the order of their
/// registration. The host calls OnAppStart() and OnAppShutdown() and deletes it at the end.
class OVK_EXPORT RootController : public IApplicationController
{
public:
    /// Deletes the controllers, the last one first.
    ~RootController() override;

    /// The one object; made on demand. Owned by the host once it is made.
    static RootController* GetInstance();

protected:
    void _DoOnAppStart() override;
    void _DoOnAppShutdown() override;

private:
    friend class IApplicationController;

    RootController();
    void _Register(IApplicationController& controller);
    static void _Unregister(IApplicationController& controller);

    std::unique_ptr<QList<IApplicationController*>> mp_controllers;
};

} // namespace ovk
