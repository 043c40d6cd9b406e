#pragma once

#include <ovk/core/export.h>

#include <functional>

class QIODevice;
class QString;

namespace ovk {

/// Writes the file \a path with \a write, which answers whether all went well. A crash or a full
/// disk leaves the old file whole: the new one is written beside it and put in its place at the
/// end. Only where no file can be made beside it is it written directly. False if nothing was
/// written.
OVK_TEST_EXPORT bool SaveFile(const QString& path, const std::function<bool(QIODevice&)>& write);

} // namespace ovk
