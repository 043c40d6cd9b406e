#pragma once

#include <ovk/core/export.h>

class QIODevice;

namespace ovk {

class VersionInfo;

/// Finds the fixed file information in an executable, without the system's help. Every offset and
/// count in the file is taken for hostile: what points outside is as if it were not there.
VersionInfo ReadVersionBlock(QIODevice& device);

} // namespace ovk
