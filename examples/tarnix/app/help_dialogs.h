#pragma once

#include <QString>

namespace tarnix {

class Host;

/// A window that tells how the program is used. It does not block.
void ShowHelp(Host& host);
/// A window with all keys of the present layout.
void ShowKeys(Host& host);
/// Name and version of the program and of what it stands on.
QString VersionText();

} // namespace tarnix
