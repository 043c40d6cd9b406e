#include "form_widgets.h"

#include <ovk/units.h>
#include <ovk/widgets.h>

#include <memory>

namespace ovk_designer {

namespace {

template <class Widget> QWidget* Create(QWidget* parent)
{
    return std::make_unique<Widget>(parent).release();
}

/// Its constructor takes no parent.
template <> QWidget* Create<ovk::StatusLabel>(QWidget* parent)
{
    auto label = std::make_unique<ovk::StatusLabel>();
    label->setParent(parent);
    return label.release();
}

constexpr char g_editors[] = "Ovk Editors";
constexpr char g_colors[] = "Ovk Colors";
constexpr char g_buttons[] = "Ovk Buttons";
constexpr char g_views[] = "Ovk Views";

constexpr char g_group_title[] = R"(<property name="title"><string>GroupBox</string></property>)";
constexpr char g_button_text[] = R"(<property name="text"><string>Action</string></property>)";
constexpr char g_check_text[] = R"(<property name="text"><string>CheckBox</string></property>)";
constexpr char g_expander_text[] = R"(<property name="text"><string>Details</string></property>)";
constexpr char g_status_text[] = R"(<property name="text"><string>Status</string></property>)";
constexpr char g_suffix_text[] = R"(<property name="text"><string>%</string></property>)";
/// A layout would stretch its track.
constexpr char g_fixed_size[] =
    R"(<property name="sizePolicy"><sizepolicy hsizetype="Fixed" vsizetype="Fixed"/></property>)";
constexpr char g_tooltip_text[] = R"(<property name="text"><string>Tooltip</string></property>)";

} // namespace

const std::vector<FormWidget>& FormWidgets()
{
    using namespace ovk;
    static const std::vector<FormWidget> widgets = {
        {"ovk::EditDblSuffix", "ovk/units/edit_dbl_suffix.h", g_editors, "Number with a suffix",
         "A spin box that shows a suffix inside or beside it, as the whole application does, takes "
         "either decimal separator and tells the allowed range while the input is outside it.",
         QSize(90, 23), "editDblSuffix", false, nullptr, &Create<EditDblSuffix>},
        {"ovk::EditDblUnits", "ovk/units/edit_dbl_units.h", g_editors, "Length",
         "An editor of a length. Its limits are given in millimetres and in inches; digits and "
         "suffix follow the units of the application.",
         QSize(90, 23), "editDblUnits", false, nullptr, &Create<EditDblUnits>},
        {"ovk::CheckComboBox", "ovk/widgets/check_combo_box.h", g_editors,
         "Combo box of check boxes",
         "A combo box whose rows are checked and unchecked. It shows the texts of the checked "
         "rows, "
         "or a text that stands for none.",
         QSize(120, 23), "checkComboBox", false, nullptr, &Create<CheckComboBox>},
        {"ovk::SuffixLabel", "ovk/units/suffix_label.h", g_editors, "Suffix beside an editor",
         "A label that is seen exactly while suffixes are not shown inside the editors.",
         QSize(40, 23), "suffixLabel", false, g_suffix_text, &Create<SuffixLabel>},
        {"ovk::UnitsLabel", "ovk/units/units_label.h", g_editors, "Units beside an editor",
         "A suffix label with the current units as a length, an area or a volume.", QSize(40, 23),
         "unitsLabel", false, nullptr, &Create<UnitsLabel>},
        {"ovk::StatusLabel", "ovk/units/status_label.h", g_editors, "Status text",
         "A label whose text is painted at once, also while the application works.", QSize(120, 23),
         "statusLabel", false, g_status_text, &Create<StatusLabel>},

        {"ovk::ColorEdit", "ovk/widgets/color_edit.h", g_colors, "Color button",
         "A button that shows a color. A click opens the standard and the custom colors, from "
         "which "
         "the full dialog is reached.",
         QSize(59, 23), "colorEdit", false, nullptr, &Create<ColorEdit>},
        {"ovk::ColorRangeSelection", "ovk/widgets/color_range_selection.h", g_colors, "Color range",
         "Two color buttons beside the sweep of hues between them.", QSize(200, 110),
         "colorRangeSelection", false, nullptr, &Create<ColorRangeSelection>},
        {"ovk::ColorMap", "ovk/widgets/color_map.h", g_colors, "Color scale",
         "A scale from one color to another with tick marks along its side.", QSize(40, 160),
         "colorMap", false, nullptr, &Create<ColorMap>},
        {"ovk::ColorMapHue", "ovk/widgets/color_map_hue.h", g_colors, "Scale of hues",
         "A color scale that sweeps the hues from its start to its end.", QSize(40, 160),
         "colorMapHue", false, nullptr, &Create<ColorMapHue>},
        {"ovk::ColorMapHueWithLabels", "ovk/widgets/color_map_hue_with_labels.h", g_colors,
         "Scale of hues with numbers", "A sweep of hues with the numbers of its range beside it.",
         QSize(70, 180), "colorMapHueWithLabels", false, nullptr, &Create<ColorMapHueWithLabels>},
        {"ovk::ColorLegend", "ovk/widgets/color_legend.h", g_colors, "Color legend",
         "A narrow scale of values and their colors. The value under the pointer is told in a tool "
         "tip; the arrow keys read it from the keyboard.",
         QSize(180, 28), "colorLegend", false, nullptr, &Create<ColorLegend>},

        {"ovk::ActionButton", "ovk/widgets/action_button.h", g_buttons, "Button of an action",
         "A push button that takes its text, icon and state from an action and triggers it.",
         QSize(90, 26), "actionButton", false, g_button_text, &Create<ActionButton>},
        {"ovk::CheckBox", "ovk/widgets/check_box.h", g_buttons, "Check box of two states",
         "A check box whose partial state is set by the program alone.", QSize(120, 27), "checkBox",
         false, g_check_text, &Create<CheckBox>},
        {"ovk::MSwitcher", "ovk/widgets/m_switcher.h", g_buttons, "Switch",
         "A switch with a thumb that moves to the right while it is on.", QSize(30, 18), "switcher",
         false, g_fixed_size, &Create<MSwitcher>},
        {"ovk::ExpanderButton", "ovk/widgets/expander_button.h", g_buttons, "Expander",
         "A flat button with an arrow, which points down while it is expanded.", QSize(120, 28),
         "expanderButton", false, g_expander_text, &Create<ExpanderButton>},
        {"ovk::GroupBox", "ovk/widgets/group_box.h", g_buttons, "Group box that collapses",
         "A group box whose check box hides and shows what is in it.", QSize(180, 110), "groupBox",
         true, g_group_title, &Create<GroupBox>},
        {"ovk::Tooltip", "ovk/widgets/tooltip.h", g_buttons, "Label with a rich tool tip",
         "A label that tells a picture and a text in a tool tip while the pointer is over it.",
         QSize(90, 23), "tooltipLabel", false, g_tooltip_text, &Create<Tooltip>},

        {"ovk::MTableView", "ovk/widgets/m_table_view.h", g_views, "Table with a drop line",
         "A table whose rows are dragged as a pale picture of themselves, with a line where they "
         "would land.",
         QSize(220, 150), "tableView", false, nullptr, &Create<MTableView>},
        {"ovk::MTreeView", "ovk/widgets/m_tree_view.h", g_views, "Tree with drop lines",
         "A tree whose subclasses choose how it shows where a drag would land.", QSize(220, 150),
         "treeView", false, nullptr, &Create<MTreeView>},
        {"ovk::TreeEdit", "ovk/widgets/tree_edit/tree_edit.h", g_views, "Property tree",
         "A property editor: titles on the left, one editor each on the right. The program adds "
         "the "
         "rows.",
         QSize(260, 200), "treeEdit", false, nullptr, &Create<TreeEdit>},
    };
    return widgets;
}

} // namespace ovk_designer
