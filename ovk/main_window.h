#pragma once

/// All of the main window that a host may use.
#include <ovk/main_window/accessible_widgets.h>
#include <ovk/main_window/backstage_page_base.h>
#include <ovk/main_window/clipboard_manager.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <ovk/main_window/work_area.h>
