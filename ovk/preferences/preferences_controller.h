#pragma once

#include <ovk/core/application_controller.h>

#include <QMap>
#include <QString>

#include <functional>
#include <memory>

class QDir;

namespace ovk {

class PreferenceBasics;
class PreferenceChapter;
class VersionInfo;

/// Owns the root of the preference tree, reads it at the start of the application and writes it
/// at the end.
///
/// Every version of the application has a folder of its own. Where it has no file yet, the newest
/// older folder is taken over if the user agrees.
class OVK_EXPORT PreferencesController : public IApplicationController
{
public:
    ~PreferencesController() override;

    /// The one object; made on demand and owned by the RootController.
    static PreferencesController* GetInstance();

    /// The root chapter, "PreferencesRoot".
    PreferenceChapter& GetRootChapter();
    /// The name of the file, without a folder.
    QString GetFileName() const;

    /// Writes the file of the current version. Nothing happens if it cannot be written; the old
    /// file then stays whole.
    void Save();
    /// Reads the file of the current version again.
    void Reload();
    /// Reads the files of \a folder: the current form, then the legacy form over it.
    void LoadFromPath(const QString& folder);
    /// Reads \a file as a legacy file.
    void LoadVisualisationFromGUIFile(const QString& file);
    /// Writes the values of the legacy file \a source to \a target, a line "path=value" each.
    /// False if one of them cannot be opened.
    bool SavePreferencesToMapFile(const QString& source, const QString& target);
    /// Translates a lower-case path of a legacy file, and the value there, to today's.
    void ConvertOldPreferencePathToNew(QString& path, QString& value);

    /// True if \a preference may be loaded: the answer of the ignore load method, or true.
    bool IsPreferenceLoadable(PreferenceBasics* preference) const;

    /// Receives a line when the preferences of an older version are taken over.
    void SetLogger(const std::function<void(const QString&)>& logger);
    /// Asks the user whether to take over the preferences of an older version: yes if the answer
    /// has bit 1 or bit 2 set. Without it older versions are ignored.
    void SetUserQuery(const std::function<int()>& query);
    /// Is asked for each preference before it takes a text from a file. In spite of the name, true
    /// means that the preference is read.
    void SetIgnoreLoadMethod(const std::function<bool(PreferenceBasics*)>& method);

protected:
    void _DoOnAppStart() override;
    void _DoOnAppShutdown() override;

private:
    class RootChapter;

    PreferencesController();
    bool _LoadCurrentFile(const QString& path);
    bool _LoadLegacyFile(const QString& path);
    bool _LoadFolder(const QDir& folder);
    bool _UpdateFromOlderVersion();
    bool _ApplyLegacyValues(PreferenceChapter& chapter, QMap<QString, QString>& values);
    void _ApplyLegacyValue(PreferenceBasics& item, QMap<QString, QString>& values);

    std::unique_ptr<RootChapter> mp_root;
};

} // namespace ovk
