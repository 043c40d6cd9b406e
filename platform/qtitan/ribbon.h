#pragma once

/// The ribbon: everything a host may use. Its look is in <qtitan/style.h>.
#include <qtitan/office_popup_menu.h>
#include <qtitan/ribbon_backstage.h>
#include <qtitan/ribbon_bar.h>
#include <qtitan/ribbon_gallery.h>
#include <qtitan/ribbon_group.h>
#include <qtitan/ribbon_main_window.h>
#include <qtitan/ribbon_page.h>
#include <qtitan/ribbon_quick_access_bar.h>
#include <qtitan/ribbon_system_button.h>
#include <qtitan/ribbon_tool_tip.h>
