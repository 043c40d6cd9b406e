#pragma once

#include <ovk/preferences/pref_chap_build_risk_analysis.h>
#include <ovk/preferences/pref_ui.h>
#include <ovk/preferences/preference.h>
#include <ovk/preferences/preference_basics.h>
#include <ovk/preferences/preference_chapter.h>
#include <ovk/preferences/preference_collection.h>
#include <ovk/preferences/preference_customize.h>
#include <ovk/preferences/preference_value_basics.h>
#include <ovk/preferences/preferences_controller.h>
