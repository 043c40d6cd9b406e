#include "ui_profile_controller.h"

#include "legacy_conversion_p.h"
#include "legacy_profile.h"
#include "ovk/commands/ui_controller.h"
#include "ovk/core/application.h"
#include "ovk/core/pimpl_basics.h"
#include "ovk/core/version_info.h"
#include "profile_document_p.h"
#include "profile_log_p.h"
#include "ui_profile.h"

#include <QDebug>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

namespace ovk {
namespace {

const QLatin1String BASE_NAME("uiprofile");
const QLatin1String EXTENSION_BINARY("bin");
const QLatin1String EXTENSION_JSON("json");
const QLatin1String EXTENSION_LEGACY("uip");
const QLatin1String KEY_PROFILE("profile");

UiProfileController* g_instance = nullptr;

QString& ProfileSuffix()
{
    static QString suffix;
    return suffix;
}

QString ResourcePath()
{
    return QStringLiteral(":/%1.%2.%3").arg(BASE_NAME, ProfileSuffix(), EXTENSION_JSON);
}

QString UserPath(const QString& folder, UiProfileController::FileFormat format)
{
    return QStringLiteral("%1/%2.%3.%4")
        .arg(folder, BASE_NAME, ProfileSuffix(),
             format == UiProfileController::ffJson ? EXTENSION_JSON : EXTENSION_BINARY);
}

DocumentFormat DocumentFormatOf(UiProfileController::FileFormat format)
{
    return format == UiProfileController::ffJson ? DocumentFormat::Json : DocumentFormat::Binary;
}

UiProfileController::FileFormat FormatOf(const QString& extension)
{
    return extension == EXTENSION_JSON ? UiProfileController::ffJson
                                       : UiProfileController::ffBinary;
}

QString ExtensionOf(const QString& path)
{
    return QFileInfo(path).suffix();
}

enum class Extent
{
    Whole,
    HeaderOnly
};

bool ReadFile(UiProfile& profile, const QString& path, UiProfileController::FileFormat format,
              Extent extent)
{
    const auto root = ReadDocument(path, DocumentFormatOf(format));
    if (!root)
        return false;
    const QJsonValue value = root->value(KEY_PROFILE);
    if (!value.isObject())
        return false;
    if (extent == Extent::HeaderOnly)
        profile.ReadHeader(value.toObject());
    else
        profile.FromJson(value.toObject());
    return true;
}

void WriteFile(const UiProfile& profile, const QString& folder,
               UiProfileController::FileFormat format)
{
    // An empty folder is one that could not be made; its file would land at the root of the disk.
    WriteResult result = WriteResult::NotOpened;
    if (!folder.isEmpty()) {
        QJsonObject root;
        root.insert(KEY_PROFILE, profile.ToJson());
        result = WriteDocument(UserPath(folder, format), root, DocumentFormatOf(format));
    }
    if (result == WriteResult::NotOpened)
        qWarning("Unable to open profile file for writing");
}

bool LoadUser(UiProfile& profile)
{
    const QString folder = Application::GetInstance().GetUiProfilePath(false);
    for (const auto format : {UiProfileController::ffJson, UiProfileController::ffBinary}) {
        if (ReadFile(profile, UserPath(folder, format), format, Extent::Whole))
            return true;
    }
    return false;
}

/// Moves a file that is about to be replaced although it could not be read out of the way: what the
/// user made may still be got out of it.
void KeepUnreadable(const QString& path)
{
    if (!QFile::exists(path))
        return;
    QString kept = path + QStringLiteral(".damaged");
    for (int i = 1; QFile::exists(kept); ++i)
        kept = QStringLiteral("%1.damaged.%2").arg(path).arg(i);
    QFile::rename(path, kept);
}

} // namespace

class UiProfileController::Impl : public PimplBasics<UiProfileController>
{
public:
    explicit Impl(UiProfileController& owner) : PimplBasics(owner) {}
    ~Impl() override = default;

    void Log(const QString& line) const
    {
        if (logger)
            logger(line);
    }

    bool Header(const QString& path, VersionInfo& version, QString& product) const
    {
        const QString extension = ExtensionOf(path);
        if (extension == EXTENSION_LEGACY) {
            if (!loader)
                return false;
            legacy_profile::Profile old;
            old.headerOnly = true;
            if (!loader(path, old))
                return false;
            version = old.version;
            product = QString::fromStdWString(old.product);
        } else if (extension == EXTENSION_BINARY || extension == EXTENSION_JSON) {
            UiProfile scratch;
            if (!ReadFile(scratch, path, FormatOf(extension), Extent::HeaderOnly))
                return false;
            version = scratch.GetVersion();
            product = scratch.GetProduct();
        } else {
            return false;
        }
        return version.IsValid();
    }

    bool LoadLegacy(UiProfile& profile, const QString& path)
    {
        _pr().LoadDefault(profile);
        legacy_profile::Profile old;
        if (!loader || !loader(path, old))
            return false;
        ConvertLegacyProfile(old, profile);
        return true;
    }

    /// Reads an older file into the profile. `needs_merge` tells that it must still be brought onto
    /// the present defaults. False if the file may not be used; a failure of the read itself counts
    /// as true.
    bool ReadForUpgrade(const QString& path, UiProfile& profile, bool& needs_merge)
    {
        VersionInfo version;
        QString product;
        if (!Header(path, version, product))
            return false;
        if (version > Application::GetInstance().GetVersionInfo())
            return false;
        const QString extension = ExtensionOf(path);
        needs_merge = extension != EXTENSION_LEGACY || !loader;
        if (!needs_merge) {
            if (LoadLegacy(profile, path))
                Log(QStringLiteral("Update Gui profile from old format version: ") +
                    version.ToString());
        } else if (ReadFile(profile, path, FormatOf(extension), Extent::Whole)) {
            Log(QStringLiteral("Update Gui profile from version: ") + version.ToString());
        }
        return true;
    }

    /// The file of the newest version older than this program's; empty if there is none.
    QString FindOlder() const
    {
        const Application& application = Application::GetInstance();
        const VersionInfo current = application.GetVersionInfo();
        const QString pattern = QStringLiteral("*.%1");
        QDirIterator files(application.GetUiProfilesPath(),
                           {pattern.arg(EXTENSION_LEGACY), pattern.arg(EXTENSION_BINARY)},
                           QDir::Files, QDirIterator::Subdirectories);
        QString best;
        VersionInfo best_version;
        while (files.hasNext()) {
            const QString path = files.next();
            VersionInfo version;
            QString product;
            if (Header(path, version, product) && product == product_name && current > version &&
                version > best_version) {
                best = path;
                best_version = version;
            }
        }
        return best;
    }

    std::function<void(const QString&)> logger;
    std::function<bool()> user_query;
    std::function<bool(const QString&, legacy_profile::Profile&)> loader;
    QString product_name;
    bool block_preference_question = false;
    bool save_while_loading = true;
};

void LogProfile(const QString& line)
{
    if (g_instance)
        g_instance->_Log(line);
}

UiProfileController::UiProfileController() : mp_impl(std::make_unique<Impl>(*this))
{
    g_instance = this;
}

UiProfileController::~UiProfileController()
{
    g_instance = nullptr;
}

UiProfileController* UiProfileController::GetInstance()
{
    return g_instance;
}

bool UiProfileController::LoadFromFile(const QString& path)
{
    UiController* const controller = UiController::GetInstance();
    if (!controller)
        return false;
    auto profile = std::make_unique<UiProfile>();
    bool needs_merge = false;
    if (!_pr().ReadForUpgrade(path, *profile, needs_merge))
        return false;
    if (needs_merge && controller->GetProfile())
        profile->Rebase(*controller->GetProfile());
    UiProfile& loaded = *profile.release();
    controller->ResetProfile(&loaded);
    if (_pr().save_while_loading)
        Save(loaded);
    return true;
}

bool UiProfileController::Load(UiProfile& profile)
{
    if (LoadUser(profile))
        return true;

    const QString older = _pr().FindOlder();
    if (!older.isEmpty() && _pr().user_query && _pr().user_query()) {
        bool needs_merge = false;
        if (!_pr().ReadForUpgrade(older, profile, needs_merge))
            return false;
        UiProfile current_default;
        if (needs_merge && LoadDefault(current_default))
            profile.Rebase(current_default);
    } else if (!LoadUser(profile) && !LoadDefault(profile)) {
        return false;
    }

    KeepUnreadable(GetBinaryFilePath(Application::GetInstance().GetUiProfilePath(false)));
    Save(profile);
    return true;
}

bool UiProfileController::Load(UiProfile& profile, const QString& path, FileFormat format)
{
    return ReadFile(profile, path, format, Extent::Whole);
}

bool UiProfileController::LoadDefault(UiProfile& profile)
{
    // A resource of that extension may hold either form.
    return ReadFile(profile, ResourcePath(), ffJson, Extent::Whole) ||
           ReadFile(profile, ResourcePath(), ffBinary, Extent::Whole);
}

void UiProfileController::Save(UiProfile& profile)
{
    Save(profile, Application::GetInstance().GetUiProfilePath(true), ffBinary);
}

void UiProfileController::Save(const UiProfile& profile, const QString& folder, FileFormat format)
{
    WriteFile(profile, folder, format);
}

QString UiProfileController::GetBinaryFilePath(const QString& folder)
{
    return UserPath(folder, ffBinary);
}

void UiProfileController::SetLogger(const std::function<void(const QString&)>& logger)
{
    _pr().logger = logger;
}

void UiProfileController::SetUserQuery(const std::function<bool()>& query)
{
    _pr().user_query = query;
}

void UiProfileController::SetLoader(
    const std::function<bool(const QString&, legacy_profile::Profile&)>& loader)
{
    _pr().loader = loader;
}

void UiProfileController::SetProductName(const QString& name)
{
    _pr().product_name = name;
}

void UiProfileController::SetProfileSuffix(const QString& suffix)
{
    if (!suffix.isEmpty())
        ProfileSuffix() = suffix;
}

void UiProfileController::SetBlockPreferenceQuestion(bool block)
{
    _pr().block_preference_question = block;
}

bool UiProfileController::IsBlockPreferenceQuestion() const
{
    return _pr().block_preference_question;
}

void UiProfileController::SetSaveWhileLoading(bool save)
{
    _pr().save_while_loading = save;
}

void UiProfileController::_DoOnAppStart() {}

void UiProfileController::_DoOnAppShutdown() {}

void UiProfileController::_Log(const QString& line) const
{
    _pr().Log(line);
}

} // namespace ovk
