#pragma once

#include <ovk/core/export.h>

namespace ovk {

/// An application-level singleton that starts and stops with the application.
class OVK_EXPORT IApplicationController
{
public:
    IApplicationController(const IApplicationController&) = delete;
    IApplicationController& operator=(const IApplicationController&) = delete;
    /// Leaves the RootController, if that still lives.
    virtual ~IApplicationController();

    /// Runs the start hook. Calling it again runs it again.
    void OnAppStart();
    /// Runs the stop hook if the controller was ever started.
    void OnAppShutdown();

protected:
    /// Registers with the RootController, which then owns this object.
    explicit IApplicationController(bool registerWithRoot = true);

    /// The start of this controller.
    virtual void _DoOnAppStart() = 0;
    /// The stop of this controller.
    virtual void _DoOnAppShutdown() = 0;

private:
    bool m_started = false;
};

} // namespace ovk
