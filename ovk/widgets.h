#pragma once

/// All widgets that a host may use.
#include <ovk/core.h>
#include <ovk/units.h>
