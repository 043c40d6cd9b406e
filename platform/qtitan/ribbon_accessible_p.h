#pragma once

namespace Qtitan {

/// Makes Qt's accessibility find the interfaces of the ribbon's classes: tabs as a page tab list,
/// groups as groupings named by their titles, a minimised bar as collapsed. Does nothing after the
/// first call.
void installRibbonAccessibility();

} // namespace Qtitan
