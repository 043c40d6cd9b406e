#pragma once

#include <ovk/preferences/preference_basics.h>

namespace ovk {

/// A preference that is one text in the file.
class OVK_EXPORT PreferenceValueBasics : public PreferenceBasics
{
public:
    ~PreferenceValueBasics() override;

protected:
    PreferenceValueBasics(PreferenceChapter& parent, const QString& name);

    void _DoSave(QXmlStreamWriter& writer) override;
    /// Reads the element's text and takes it unless the host refuses to have this preference
    /// loaded (PreferencesController::SetIgnoreLoadMethod()).
    void _DoLoad(QXmlStreamReader& reader) override;

    /// Takes the value from its text form; does nothing here.
    virtual void _FromString(const QString& text);
    /// The text form of the value; empty here.
    virtual QString _ToString() const;

private:
    friend class PreferencesController;
};

} // namespace ovk
