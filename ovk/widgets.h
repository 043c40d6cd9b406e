#pragma once

/// All widgets that a host may use.
#include <ovk/core.h>
#include <ovk/units.h>

#include <ovk/widgets/color_edit.h>
#include <ovk/widgets/color_legend.h>
#include <ovk/widgets/color_map.h>
#include <ovk/widgets/color_map_hue.h>
#include <ovk/widgets/color_map_hue_with_labels.h>
#include <ovk/widgets/color_map_labels.h>
#include <ovk/widgets/color_range_selection.h>
#include <ovk/widgets/dlg_select_color.h>
#include <ovk/widgets/gallery_item_color.h>
