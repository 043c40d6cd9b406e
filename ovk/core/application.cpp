#include "ovk/core/application.h"

#include "ovk/core/pimpl_basics.h"
#include "ovk/core/version_info.h"

#include <windows/file_version.h>

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QString>

namespace ovk {

namespace {

Application* g_application = nullptr;

QString DataLocation()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

/// \a path, made if \a create asks for it; empty if that fails.
QString Folder(const QString& path, bool create)
{
    return !create || QDir().mkpath(path) ? path : QString();
}

} // namespace

class Application::Impl : public PimplBasics<Application>
{
public:
    explicit Impl(Application& owner) : PimplBasics<Application>(owner) {}

    /// Makes the user folder once; a failure is tried again at the next call.
    void EnsureUserPath()
    {
        if (!m_user_path_created)
            m_user_path_created = QDir(DataLocation()).mkpath(QStringLiteral("."));
    }

private:
    bool m_user_path_created = false;
};

Application::Application() : mp_impl(std::make_unique<Impl>(*this))
{
    g_application = this;
}

Application::~Application() = default;

Application& Application::GetInstance()
{
    return *g_application;
}

QString Application::GetUserPath() const
{
    mp_impl->EnsureUserPath();
    return DataLocation();
}

QString Application::GetAppPath() const
{
    return QCoreApplication::applicationDirPath();
}

QString Application::GetUiProfilesPath() const
{
    return DataLocation() + QStringLiteral("/GuiProfiles/");
}

QString Application::GetUiProfilePath(bool create) const
{
    return Folder(GetUiProfilesPath() + GetVersionInfo().ToString(), create);
}

QString Application::GetPreferencesPath() const
{
    return DataLocation() + QStringLiteral("/Preferences/");
}

QString Application::GetPreferencesPath(bool create) const
{
    return Folder(GetPreferencesPath() + GetVersionInfo().ToString(), create);
}

VersionInfo Application::GetVersionInfo() const
{
    return ReadFileVersion(GetAppPath() + QStringLiteral("//" OVK_HOST_EXECUTABLE));
}

} // namespace ovk
