#include "ovk/preferences/pref_ui.h"

#include "ovk/preferences/preference_chapter.h"

ovk::PreferenceChapter& PrefUi()
{
    static ovk::PreferenceChapter s_chapter(QStringLiteral("UI"));
    return s_chapter;
}

// Made at load of the library, which makes the PreferencesController the first of all controllers.
ovk::Preference<bool> g_pref_suffix_in_editor(PrefUi(), QStringLiteral("SuffixInEditor"));
