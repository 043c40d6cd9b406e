#pragma once

#include <QtGlobal>

namespace ovk::impl {

/// How often any object got another name so far: whoever keeps an index of names makes it again
/// when this has changed.
quint64 CountOfRenames();

} // namespace ovk::impl
