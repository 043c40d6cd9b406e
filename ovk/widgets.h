#pragma once

/// All widgets that a host may use.
#include <ovk/core.h>
#include <ovk/units.h>

#include <ovk/widgets/action_button.h>
#include <ovk/widgets/check_box.h>
#include <ovk/widgets/check_combo_box.h>
#include <ovk/widgets/color_edit.h>
#include <ovk/widgets/color_legend.h>
#include <ovk/widgets/color_map.h>
#include <ovk/widgets/color_map_hue.h>
#include <ovk/widgets/color_map_hue_with_labels.h>
#include <ovk/widgets/color_map_labels.h>
#include <ovk/widgets/color_range_selection.h>
#include <ovk/widgets/dlg_select_color.h>
#include <ovk/widgets/expander_button.h>
#include <ovk/widgets/gallery_item_color.h>
#include <ovk/widgets/group_box.h>
#include <ovk/widgets/m_switcher.h>
#include <ovk/widgets/m_table_view.h>
#include <ovk/widgets/m_tree_view.h>
#include <ovk/widgets/tooltip.h>
#include <ovk/widgets/tree_edit/check_box_delegate.h>
#include <ovk/widgets/tree_edit/color_edit_delegate.h>
#include <ovk/widgets/tree_edit/combo_box_delegate.h>
#include <ovk/widgets/tree_edit/item_data_provider.h>
#include <ovk/widgets/tree_edit/settings_items_model.h>
#include <ovk/widgets/tree_edit/spin_box_delegate.h>
#include <ovk/widgets/tree_edit/tree_edit.h>
#include <ovk/widgets/tree_edit/tree_edit_item.h>
#include <ovk/widgets/tree_edit/tree_item_delegate.h>
#include <ovk/widgets/tree_edit/tree_item_delegate_base.h>
