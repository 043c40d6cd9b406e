#pragma once

#include <ovk/core/export.h>

class QObject;

namespace ovk {

class UiLayout;

namespace impl {

/// An object that is destroyed when the layout is, before anything of the layout goes: who looks
/// into a layout that it does not own connects to its `destroyed` and lets go in time.
OVK_TEST_EXPORT QObject& LifetimeOf(const UiLayout& layout);

} // namespace impl
} // namespace ovk
