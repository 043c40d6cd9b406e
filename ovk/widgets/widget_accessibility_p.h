#pragma once

namespace ovk {

/// Teaches accessibility clients the widgets of this folder that Qt cannot describe. Called by
/// their constructors; only the first call does something.
void InstallWidgetAccessibility();

} // namespace ovk
