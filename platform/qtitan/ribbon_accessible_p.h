#pragma once

#include <ovk/core/export.h>

QT_BEGIN_NAMESPACE
class QAccessibleEvent;
class QWidget;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonTabBar;

/// Makes Qt's accessibility find the interfaces of the ribbon's classes: tabs as a page tab list,
/// groups as groupings named by their titles, a minimised bar as collapsed. Does nothing after the
/// first call.
void installRibbonAccessibility();
/// Tells assistive programs that another tab is the current one, or that the tabs got the focus.
void tellCurrentTab(RibbonTabBar* tabs);
/// Tells them that a bar was minimised or restored, or that the popup of a group closed or opened.
void tellExpanded(QWidget* widget);

/// Who takes what they are told; null is Qt. For tests: Qt hands nothing on while no assistive
/// program runs.
using RibbonAnnouncer = void (*)(QAccessibleEvent*);
OVK_TEST_EXPORT void setRibbonAnnouncer(RibbonAnnouncer announcer);

} // namespace Qtitan
