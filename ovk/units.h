#pragma once

#include <ovk/units/suffix_controller.h>
#include <ovk/units/units_controller.h>
#include <ovk/units/units_pair.h>
