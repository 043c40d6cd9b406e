#pragma once

#include <ovk/core/export.h>

namespace ovk {

/// Makes the ribbon bar of the main window readable to accessibility clients: a menu bar named
/// "RibbonBar" whose children are the pages and, last, the quick access bar.
///
/// Called by the host once its RibbonWindow exists; without one it does nothing.
OVK_EXPORT void InitAccessibleWidgets();

} // namespace ovk
