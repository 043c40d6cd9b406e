#pragma once

#include <ovk/core/export.h>

#include <memory>

class QString;

namespace ovk {

class VersionInfo;

/// The process-wide holder of paths and version. The host derives from it and constructs it once.
class OVK_EXPORT Application
{
public:
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    virtual ~Application();

    /// The host's object, which must have been constructed.
    static Application& GetInstance();

    /// The writable folder of the application's data; it is made if it does not exist.
    QString GetUserPath() const;
    /// The folder of the executable.
    QString GetAppPath() const;
    /// The folder of the GUI profiles of all versions, with a separator at its end.
    QString GetUiProfilesPath() const;
    /// The folder of the GUI profiles of this version. With \a create it is made; empty if that
    /// fails.
    QString GetUiProfilePath(bool create) const;
    /// The folder of the preferences of all versions, with a separator at its end.
    QString GetPreferencesPath() const;
    /// The folder of the preferences of this version. With \a create it is made; empty if that
    /// fails.
    QString GetPreferencesPath(bool create) const;

    /// The version of the host's executable, read anew at each call; 0.0.0.0 if it has none.
    VersionInfo GetVersionInfo() const;

protected:
    Application();

private:
    class Impl;
    Impl* _pp() const { return mp_impl.get(); }
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
