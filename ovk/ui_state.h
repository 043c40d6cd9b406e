#pragma once

#include <ovk/ui_state/json_storable.h>
#include <ovk/ui_state/legacy_profile.h>
#include <ovk/ui_state/state_available.h>
#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_profile_item.h>
#include <ovk/ui_state/ui_state.h>
#include <ovk/ui_state/ui_state_item.h>
