#pragma once

#include <ovk/preferences/preference_chapter.h>

#include <QMap>
#include <QString>

namespace ovk {

/// The base of the host's chapter of build risks, whose legacy form is a matter of the host: a
/// legacy file is handed to it whole.
class OVK_EXPORT PrefChapBuildRiskAnalysis : public PreferenceChapter
{
public:
    /// Makes a child of the root chapter.
    explicit PrefChapBuildRiskAnalysis(const QString& name);
    /// Makes a child of \a parent.
    PrefChapBuildRiskAnalysis(PreferenceChapter& parent, const QString& name);
    /// Makes a child of \a parent; a root if null.
    PrefChapBuildRiskAnalysis(PreferenceChapter* parent, const QString& name);
    ~PrefChapBuildRiskAnalysis() override;

protected:
    /// Takes the values of the chapter from a legacy file: \a path is the path that the chapter
    /// had in it, in lower case; \a values are all values of the file by their paths. Answers
    /// whether anything was read.
    virtual bool _LoadFromLegacyMap(const QString& path, QMap<QString, QString>& values) = 0;

private:
    friend class PreferencesController;
};

} // namespace ovk
