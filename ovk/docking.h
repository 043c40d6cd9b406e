#pragma once

// The docking system and its stored state.
#include <ovk/docking/dock_area.h>
#include <ovk/docking/dock_drag_target.h>
#include <ovk/docking/dock_layout.h>
#include <ovk/docking/dock_manager.h>
#include <ovk/docking/dock_page.h>
#include <ovk/docking/dock_settings.h>
#include <ovk/docking/dock_site.h>
#include <ovk/docking/dock_toolbar_site.h>
#include <ovk/docking/dock_toolbox_site.h>
#include <ovk/docking/dock_toolbox_site_item.h>
#include <ovk/docking/dock_widget.h>
#include <ovk/docking/dock_window.h>
#include <ovk/docking/overlay_window.h>
#include <ovk/docking/ui_state_dock_area.h>
#include <ovk/docking/ui_state_dock_widget.h>
#include <ovk/docking/ui_state_docking.h>
