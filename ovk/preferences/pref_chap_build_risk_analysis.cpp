#include "ovk/preferences/pref_chap_build_risk_analysis.h"

namespace ovk {

PrefChapBuildRiskAnalysis::PrefChapBuildRiskAnalysis(const QString& name) : PreferenceChapter(name)
{
}

PrefChapBuildRiskAnalysis::PrefChapBuildRiskAnalysis(PreferenceChapter& parent, const QString& name)
    : PreferenceChapter(parent, name)
{
}

PrefChapBuildRiskAnalysis::PrefChapBuildRiskAnalysis(PreferenceChapter* parent, const QString& name)
    : PreferenceChapter(parent, name)
{
}

PrefChapBuildRiskAnalysis::~PrefChapBuildRiskAnalysis() = default;

} // namespace ovk
