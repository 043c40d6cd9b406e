#pragma once

#include <ovk/core/export.h>
#include <ovk/preferences/preference.h>

namespace ovk {
class PreferenceChapter;
}

/// The chapter "UI" of the root chapter.
OVK_EXPORT ovk::PreferenceChapter& PrefUi();

/// Whether numeric editors show the unit inside themselves: "SuffixInEditor" of PrefUi(), false by
/// default.
extern OVK_EXPORT ovk::Preference<bool> g_pref_suffix_in_editor;

namespace ovk {
using ::g_pref_suffix_in_editor;
using ::PrefUi;
}
