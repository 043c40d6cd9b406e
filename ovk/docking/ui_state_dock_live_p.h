#pragma once

namespace ovk {

class DockManager;

/// The dock manager of the ribbon window; null while there is none.
DockManager* LiveDockManager();

} // namespace ovk
