#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observable_value.h>

#include <qtitan/style.h>

namespace ovk {

/// The look of every ribbon window of the process, as values that can be watched.
///
/// An open window follows a change at once. The library does not store the values; a host that
/// wants them kept binds them to preferences.
class OVK_EXPORT RibbonWindowSettings
{
public:
    RibbonWindowSettings() = delete;

    /// Whether groups show their titles. Initially false.
    static ObservableValue<bool>& GroupTitleVisible();

    /// Initially 0, "Office 2007 Blue". The value -1 leaves an open window's theme as it is.
    static ObservableValue<Qtitan::OfficeStyle::Theme>& OfficeTheme();

    /// Initially 0, "Blue". 0 to 9 are the named accents, -1 the default colour, and every other
    /// value is a packed QRgb.
    static ObservableValue<Qtitan::OfficeStyle::AccentColor>& AccentColor();
};

} // namespace ovk
