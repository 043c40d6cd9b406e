#include "ovk/main_window/ribbon_window_settings.h"

namespace ovk {

ObservableValue<bool>& RibbonWindowSettings::GroupTitleVisible()
{
    static ObservableValue<bool> value(false);
    return value;
}

ObservableValue<Qtitan::OfficeStyle::Theme>& RibbonWindowSettings::OfficeTheme()
{
    static ObservableValue<Qtitan::OfficeStyle::Theme> value(
        static_cast<Qtitan::OfficeStyle::Theme>(0));
    return value;
}

ObservableValue<Qtitan::OfficeStyle::AccentColor>& RibbonWindowSettings::AccentColor()
{
    static ObservableValue<Qtitan::OfficeStyle::AccentColor> value(
        static_cast<Qtitan::OfficeStyle::AccentColor>(0));
    return value;
}

} // namespace ovk
