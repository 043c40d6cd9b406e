#pragma once

#include <ovk/core/export.h>

class QWidget;

namespace ovk {

/// Makes panels, titles and handles known to screen readers. Further calls do nothing.
OVK_TEST_EXPORT void InstallDockAccessibility();

/// Tells screen readers that the text of a panel's title is another one.
void AnnounceDockName(QWidget& panel);

/// Tells screen readers that a panel was folded or opened.
void AnnounceDockFolding(QWidget& panel);

} // namespace ovk
