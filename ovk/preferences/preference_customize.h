#pragma once

#include <ovk/preferences/preference_basics.h>

#include <QMap>
#include <QString>

namespace ovk {

/// The base of a preference with a storage form of its own.
class OVK_EXPORT PreferenceCustomize : public PreferenceBasics
{
public:
    ~PreferenceCustomize() override;

protected:
    PreferenceCustomize(PreferenceChapter& parent, const QString& name);

    /// Takes the value from a legacy file: \a path is the path that the preference had in it, in
    /// lower case; \a values are all values of the file by their paths.
    virtual void _LoadFromLegacyMap(const QString& path, QMap<QString, QString>& values) = 0;

private:
    friend class PreferencesController;
};

} // namespace ovk
