#pragma once

#include <ovk/units/data_binding.h>
#include <ovk/units/data_binding_controller.h>
#include <ovk/units/edit_dbl_suffix.h>
#include <ovk/units/edit_dbl_units.h>
#include <ovk/units/status_label.h>
#include <ovk/units/suffix_controller.h>
#include <ovk/units/suffix_label.h>
#include <ovk/units/units_controller.h>
#include <ovk/units/units_label.h>
#include <ovk/units/units_pair.h>
