#pragma once

#include <ovk/core/application.h>

namespace tarnix {

/// The process-wide frame of the program: paths and version.
class HostApplication : public ovk::Application
{
public:
    HostApplication() = default;
};

} // namespace tarnix
