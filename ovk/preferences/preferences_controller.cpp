#include "ovk/preferences/preferences_controller.h"

#include "legacy_preferences_p.h"

#include "ovk/core/application.h"
#include "ovk/core/save_file_p.h"
#include "ovk/core/version_info.h"
#include "ovk/preferences/preference_chapter.h"

#include <vorsdk/units.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace ovk {

namespace {

PreferencesController* g_preferences = nullptr;

/// The bits of the user's answer that mean yes.
constexpr int AnswerYes = 6;

constexpr char FileName[] = "preferences.xml";
constexpr char LegacyFileName[] = "xpf_defaults.xml";

QString CurrentFile(bool create)
{
    return QDir(Application::GetInstance().GetPreferencesPath(create)).filePath(QLatin1String(FileName));
}

struct OlderVersion
{
    QDir folder;
    VersionInfo version;
};

/// The newest folder of a version below the current one that holds an XML file.
bool FindNewestOlderVersion(OlderVersion& newest)
{
    const Application& application = Application::GetInstance();
    const VersionInfo current = application.GetVersionInfo();
    QDirIterator files(application.GetPreferencesPath(), {QStringLiteral("*.xml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    bool found = false;
    while (files.hasNext()) {
        const QDir folder = QFileInfo(files.next()).dir();
        VersionInfo version;
        version.FromString(folder.dirName());
        if (version < current && version > newest.version) {
            newest = {folder, version};
            found = true;
        }
    }
    return found;
}

/// The converters of lengths depend on the unit that the old installation had.
void SetUserUnit(const QMap<QString, QString>& values)
{
    const QString unit = values.value(QStringLiteral("preferences/general/other/application_units"));
    if (!unit.isEmpty())
        MUserUnit::GetInstance().SetUnit(
            static_cast<MUserUnit::UNIT_TYPE>(unit == QLatin1String("Inches") ? 1 : 0));
}

} // namespace

class PreferencesController::RootChapter : public PreferenceChapter
{
public:
    RootChapter() : PreferenceChapter(nullptr, QStringLiteral("PreferencesRoot")) {}

    bool m_load_blocked = false;
    std::function<void(const QString&)> m_logger;
    std::function<int()> m_user_query;
    std::function<bool(PreferenceBasics*)> m_ignore_load_method;
};

PreferencesController::PreferencesController()
{
    // First of all: the root chapter's own construction may come back here.
    g_preferences = this;
    mp_root = std::make_unique<RootChapter>();
}

PreferencesController::~PreferencesController()
{
    g_preferences = nullptr;
}

PreferencesController* PreferencesController::GetInstance()
{
    if (!g_preferences)
        new PreferencesController; // owned by the RootController, with which it registers
    return g_preferences;
}

PreferenceChapter& PreferencesController::GetRootChapter()
{
    return *mp_root;
}

QString PreferencesController::GetFileName() const
{
    return QLatin1String(FileName);
}

void PreferencesController::Save()
{
    SaveFile(CurrentFile(true), [this](QIODevice& file) {
        // Into a text: a writer over a device encodes and hands over each bracket by itself. It
        // would not name the encoding there, so the declaration is written for it.
        QString document = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        QXmlStreamWriter writer(&document);
        static_cast<PreferenceBasics&>(*mp_root).Save(writer);
        writer.writeEndDocument();
        const QByteArray bytes = document.toUtf8();
        return file.write(bytes) == bytes.size();
    });
}

void PreferencesController::Reload()
{
    mp_root->m_load_blocked = false;
    _LoadCurrentFile(CurrentFile(false));
    mp_root->m_load_blocked = true;
}

void PreferencesController::LoadFromPath(const QString& folder)
{
    mp_root->m_load_blocked = false;
    QDir directory;
    directory.setPath(folder);
    _LoadFolder(directory);
    mp_root->m_load_blocked = true;
}

void PreferencesController::LoadVisualisationFromGUIFile(const QString& file)
{
    mp_root->m_load_blocked = false;
    _LoadLegacyFile(file);
    mp_root->m_load_blocked = true;
}

bool PreferencesController::SavePreferencesToMapFile(const QString& source, const QString& target)
{
    QFile input(source);
    if (!input.exists() || !input.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader reader(&input);
    QMap<QString, QString> values;
    QFile output(target);
    if (output.exists())
        output.remove();
    if (!output.open(QIODevice::WriteOnly))
        return false;
    QTextStream stream(&output);
    FlattenLegacyDocument(reader, values, &stream);
    return true;
}

bool PreferencesController::IsPreferenceLoadable(PreferenceBasics* preference) const
{
    return !mp_root->m_ignore_load_method || mp_root->m_ignore_load_method(preference);
}

void PreferencesController::SetLogger(const std::function<void(const QString&)>& logger)
{
    mp_root->m_logger = logger;
}

void PreferencesController::SetUserQuery(const std::function<int()>& query)
{
    mp_root->m_user_query = query;
}

void PreferencesController::SetIgnoreLoadMethod(const std::function<bool(PreferenceBasics*)>& method)
{
    mp_root->m_ignore_load_method = method;
}

void PreferencesController::_DoOnAppStart()
{
    if (!_LoadCurrentFile(CurrentFile(false)))
        _UpdateFromOlderVersion();
}

void PreferencesController::_DoOnAppShutdown()
{
    Save();
}

bool PreferencesController::_LoadCurrentFile(const QString& path)
{
    if (mp_root->m_load_blocked)
        return false;
    PreferenceBasics& root = *mp_root;
    QFile file(path);
    // The reader has a buffer of its own.
    const bool opened = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (opened) {
        QXmlStreamReader reader(&file);
        root.Load(reader);
    }
    // Also without a file: observers hear of every preference that kept its default.
    root._AfterLoad();
    return opened;
}

bool PreferencesController::_LoadLegacyFile(const QString& path)
{
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader reader(&file);
    QMap<QString, QString> values;
    FlattenLegacyDocument(reader, values, nullptr);
    SetUserUnit(values);
    return _ApplyLegacyValues(*mp_root, values);
}

bool PreferencesController::_LoadFolder(const QDir& folder)
{
    // The legacy file comes second: its values win.
    const bool current = _LoadCurrentFile(folder.filePath(QLatin1String(FileName)));
    const bool legacy = _LoadLegacyFile(folder.filePath(QLatin1String(LegacyFileName)));
    return current || legacy;
}

bool PreferencesController::_UpdateFromOlderVersion()
{
    OlderVersion older;
    if (!FindNewestOlderVersion(older) || !mp_root->m_user_query)
        return false;
    if ((mp_root->m_user_query() & AnswerYes) == 0)
        return false;
    if (!_LoadFolder(older.folder))
        return false;
    mp_root->m_logger(QStringLiteral("Update preferences from version: ") + older.version.ToString());
    return true;
}

} // namespace ovk
