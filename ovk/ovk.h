#pragma once

/// Everything that a host may use.
#include <ovk/commands.h>
#include <ovk/core.h>
#include <ovk/customize.h>
#include <ovk/docking.h>
#include <ovk/main_window.h>
#include <ovk/preferences.h>
#include <ovk/ui_state.h>
#include <ovk/units.h>
#include <ovk/widgets.h>
