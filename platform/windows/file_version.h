#pragma once

#include <ovk/core/export.h>

class QByteArray;
class QString;

namespace ovk {

class VersionInfo;

/// The version of the executable \a path: the file version of its fixed file information. Read
/// with the system's functions on Windows. Elsewhere it is read from the version resource of a PE
/// file or from the section ".ovk.version" of an ELF file. 0.0.0.0 if there is none or the file is
/// damaged.
OVK_EXPORT VersionInfo ReadFileVersion(const QString& path);

/// The same from the bytes of a PE or ELF file, on every system.
OVK_EXPORT VersionInfo ReadFileVersion(const QByteArray& image);

} // namespace ovk
