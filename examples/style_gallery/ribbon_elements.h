#pragma once

namespace Qtitan {
class OfficePopupMenu;
class RibbonBar;
class RibbonPage;
} // namespace Qtitan

/// Fills a page with one of each kind of element; gives the popup with the gallery of colours.
Qtitan::OfficePopupMenu* FillElements(Qtitan::RibbonPage& page);
/// Fills a page with buttons, a group for each kind and a button for each state.
void FillStates(Qtitan::RibbonPage& page);
/// Puts the buttons of such a page into their states, once they are there.
void ForceStates(Qtitan::RibbonPage& page);
