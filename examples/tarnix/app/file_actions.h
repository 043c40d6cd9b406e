#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace tarnix {

class Host;

/// Reads STL files and adds what could be read as one step. What could not is told; when nothing
/// could be read, nothing changes. Answers whether any part was added.
bool ImportFiles(Host& host, const QStringList& paths);
/// Opens a build in place of the present one, after asking when that was not saved. STL files
/// become a new build.
void OpenFiles(Host& host, const QStringList& paths);
/// As OpenFiles, without asking; for the command line.
bool OpenFilesNow(Host& host, const QStringList& paths);
/// Saves the build under a path; answers whether it could.
bool SaveBuild(Host& host, const QString& path);
/// Runs `next` at once, or after the user agreed to lose what was not saved.
void UnlessUnsaved(Host& host, const QString& yes_text, const std::function<void()>& next);
/// Adds a sample part, which lies in the program's resources.
void AddSample(Host& host, const QString& file_name, const QString& title);

/// A file dialog that does not block. `path` is called with the choice.
void AskOpenPaths(Host& host, const QString& title, const QString& filter,
                  const std::function<void(const QStringList&)>& paths);
void AskSavePath(Host& host, const QString& title, const QString& filter, const QString& suggestion,
                 const std::function<void(const QString&)>& path);
void AskFolder(Host& host, const QString& title, const std::function<void(const QString&)>& path);
/// Writes a file whole or not at all, and tells when it could not.
bool WriteFile(Host& host, const QString& path, const QByteArray& bytes);

QString StlFilter();
QString BuildFilter();

} // namespace tarnix
