#pragma once

#include <ovk/core/export.h>

class QKeySequence;

namespace ovk {

class UiProfile;

namespace legacy_profile {
struct Profile;
struct Shortcut;
} // namespace legacy_profile

/// Puts what an old profile holds into one that has the current defaults: its tool bars come beside
/// the default ones, its menus and shortcuts in their place. A layout takes from every old layout
/// of its name; commands that the product does not have are dropped.
OVK_TEST_EXPORT void ConvertLegacyProfile(const legacy_profile::Profile& old, UiProfile& profile);

/// The keys of an old shortcut.
OVK_TEST_EXPORT QKeySequence LegacyKeySequence(const legacy_profile::Shortcut& shortcut);

} // namespace ovk
