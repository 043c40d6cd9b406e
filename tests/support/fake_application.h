#pragma once

#include "test_main.h"

#include <ovk/core/application.h>
#include <ovk/core/version_info.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace ovk_test {

/// The host's Application. Its folders are under DataHome(), its version is that of the host's
/// executable beside the tests.
class FakeApplication : public ovk::Application
{
public:
    FakeApplication() = default;

    /// The writable location itself, without making it.
    static QString DataFolder()
    {
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    }

    /// The host's version with \a difference added to its last part.
    ovk::VersionInfo Version(int difference) const
    {
        int major = 0, minor = 0, patch = 0, build = 0;
        GetVersionInfo().GetVersionInfo(major, minor, patch, build);
        return ovk::VersionInfo(major, minor, patch, build + difference);
    }

    /// Removes all that the application wrote.
    static void RemoveData() { QDir(DataFolder()).removeRecursively(); }
};

/// Writes \a content to the file \a path, whose folder is made.
inline bool WriteFile(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The content of the file \a path; null if it cannot be read.
inline QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll().append("", 0);
}

} // namespace ovk_test
