#include "app/file_actions.h"

#include "app/host.h"
#include "app/main_window.h"
#include "app/settings.h"
#include "model/arrange.h"
#include "model/build_file.h"
#include "model/stl_reader.h"
#include "preferences/apply_preferences.h"
#include "view/scene_view.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::FileActions)

public:
    /// The title of a step that can be undone.
    static Phrase Step(const char* source, const QString& argument = QString())
    {
        return {"tarnix::FileActions", source, argument};
    }
};

bool IsBuild(const QString& path)
{
    return QFileInfo(path).suffix().compare(BuildFile::Extension(), Qt::CaseInsensitive) == 0;
}

/// Places parts that were just read on the plate: one alone in the middle, more in rows; in a
/// build that has parts already, to the right of them.
void PlaceNewParts(const Host& host, PartList& parts)
{
    if (!host.settings.place_at_import)
        return;
    std::vector<Box> boxes;
    for (const Part& part : parts)
        boxes.push_back(part.Bounds());
    const std::vector<Vec3> shifts =
        ArrangeOnPlate(boxes, host.GetScene().GetPlate(), host.workspace.arrange_gap);
    Box placed;
    for (size_t i = 0; i < parts.size(); ++i) {
        parts[i].Apply(Transform::Translation(shifts[i]));
        placed.Add(parts[i].Bounds());
    }
    const Box present = host.GetScene().Bounds();
    if (present.IsEmpty())
        return;
    const double right = present.high.x + host.workspace.arrange_gap;
    const Plate& plate = host.GetScene().GetPlate();
    // Where there is room beside them; else they stay in the middle for the user to arrange.
    if (right + placed.Size().x > plate.width / 2.0)
        return;
    for (Part& part : parts)
        part.Apply(Transform::Translation({right - placed.low.x, 0.0, 0.0}));
}

struct Loaded
{
    PartList parts;
    QStringList errors;
};

Loaded ReadParts(Host& host, const QStringList& paths)
{
    Loaded loaded;
    int number = host.GetScene().Count();
    for (const QString& path : paths) {
        const StlReader::Result result = StlReader::ReadFile(path);
        if (!result) {
            loaded.errors.append(QFileInfo(path).fileName() + QStringLiteral(": ") + result.error);
            continue;
        }
        Part part(QFileInfo(path).completeBaseName(),
                  std::make_shared<const Mesh>(PreparedForBuild(*result.mesh, host.settings)),
                  NewPartColor(host.settings, number++));
        part.file = QFileInfo(path).absoluteFilePath();
        loaded.parts.push_back(std::move(part));
    }
    return loaded;
}

void Remember(Host& host, const QString& path)
{
    host.settings.folder.SetData(QFileInfo(path).absolutePath());
}

void Show(QFileDialog* dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The program's own dialog looks like the rest of it, on every system.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->open();
}

} // namespace

QString StlFilter()
{
    return Texts::tr("STL files (*.stl)");
}

QString BuildFilter()
{
    return Texts::tr("Builds (*.tarnix)");
}

bool ImportFiles(Host& host, const QStringList& paths)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Loaded loaded = ReadParts(host, paths);
    QApplication::restoreOverrideCursor();
    const int count = static_cast<int>(loaded.parts.size());
    if (count > 0) {
        PlaceNewParts(host, loaded.parts);
        const Phrase title = count == 1 ? Texts::Step("Add %1", loaded.parts.front().name)
                                        : Texts::Step("Add parts");
        for (const Part& part : loaded.parts)
            host.AddRecent(part.file);
        host.GetScene().Add(title, std::move(loaded.parts));
        if (host.view)
            host.view->ZoomTo(host.GetScene().Bounds());
        host.Tell(
            Texts::tr("Parts added: %n", nullptr, count));
    }
    if (!loaded.errors.isEmpty())
        host.Warn(count > 0 ? Texts::tr("Some files could not be read.")
                            : Texts::tr("The file could not be read; nothing was changed."),
                  loaded.errors);
    return count > 0;
}

bool OpenFilesNow(Host& host, const QStringList& paths)
{
    if (paths.size() == 1 && IsBuild(paths.front())) {
        BuildFile::Result result = BuildFile::Load(paths.front());
        if (!result) {
            host.Warn(Texts::tr("The build could not be opened; nothing was changed."),
                      QStringList(QFileInfo(paths.front()).fileName() + QStringLiteral(": ") +
                                  result.error));
            return false;
        }
        host.GetScene().SetPlate(result.plate);
        host.GetScene().Reset(std::move(result.parts));
        host.GetScene().SetNote(0, result.note);
        for (int i = 0; i < result.notes.size(); ++i)
            host.GetScene().SetNote(host.GetScene().Parts()[static_cast<size_t>(i)].id,
                                    result.notes.at(i));
        host.GetScene().SetSaved();
        host.workspace.ClearMeasurements();
        host.workspace.SetBuildPath(paths.front());
        host.AddRecent(paths.front());
        if (host.view)
            host.view->ZoomTo(host.GetScene().Bounds());
        return true;
    }
    // Read first: when no file is good, the present build stays.
    Loaded loaded = ReadParts(host, paths);
    if (!loaded.errors.isEmpty())
        host.Warn(loaded.parts.empty() ? Texts::tr("The file could not be read; nothing was changed.")
                                       : Texts::tr("Some files could not be read."),
                  loaded.errors);
    if (loaded.parts.empty())
        return false;
    host.GetScene().Reset({});
    host.workspace.ClearMeasurements();
    host.workspace.SetBuildPath(QString());
    PlaceNewParts(host, loaded.parts);
    for (const Part& part : loaded.parts)
        host.AddRecent(part.file);
    host.GetScene().Add(Texts::Step("Add parts"), std::move(loaded.parts));
    // What lies in files is not lost when the program is left.
    host.GetScene().SetSaved();
    if (host.view)
        host.view->ZoomTo(host.GetScene().Bounds());
    return true;
}

void OpenFiles(Host& host, const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    Remember(host, paths.front());
    UnlessUnsaved(host, Texts::tr("Open without saving"), [&host, paths] { OpenFilesNow(host, paths); });
}

bool SaveBuild(Host& host, const QString& path)
{
    const QString error =
        BuildFile::Save(path, host.GetScene().Parts(), host.GetScene().GetPlate(),
                        [&host](int id) { return host.GetScene().Note(id); });
    if (!error.isEmpty()) {
        host.Warn(Texts::tr("The build could not be saved."), QStringList(error));
        return false;
    }
    Remember(host, path);
    host.workspace.SetBuildPath(path);
    host.GetScene().SetSaved();
    host.AddRecent(path);
    host.Tell(Texts::tr("Saved as %1.").arg(QFileInfo(path).fileName()));
    return true;
}

void UnlessUnsaved(Host& host, const QString& yes_text, const std::function<void()>& next)
{
    if (!host.GetScene().IsModified() || host.GetScene().Count() == 0 || host.settings.dont_ask_unsaved) {
        next();
        return;
    }
    host.Ask(Texts::tr("The build \"%1\" has not been saved.").arg(host.workspace.BuildName()), yes_text,
             next);
}

void AddSample(Host& host, const QString& file_name, const QString& title)
{
    const StlReader::Result result =
        StlReader::ReadFile(QStringLiteral(":/tarnix/samples/") + file_name);
    if (!result) {
        host.Warn(Texts::tr("The sample part could not be read."), QStringList(result.error));
        return;
    }
    PartList parts{Part(title, result.mesh, NewPartColor(host.settings, host.GetScene().Count()))};
    PlaceNewParts(host, parts);
    host.GetScene().Add(Texts::Step("Add %1", title), std::move(parts));
    if (host.view)
        host.view->ZoomTo(host.GetScene().Bounds());
}

void AskOpenPaths(Host& host, const QString& title, const QString& filter,
                  const std::function<void(const QStringList&)>& paths)
{
    auto* dialog = new QFileDialog(host.window, title, host.settings.folder.GetData(), filter);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    QObject::connect(dialog, &QFileDialog::filesSelected, &host, paths);
    Show(dialog);
}

void AskSavePath(Host& host, const QString& title, const QString& filter, const QString& suggestion,
                 const std::function<void(const QString&)>& path)
{
    auto* dialog = new QFileDialog(host.window, title, host.settings.folder.GetData(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(QFileInfo(suggestion).suffix());
    dialog->selectFile(suggestion);
    QObject::connect(dialog, &QFileDialog::fileSelected, &host,
                     [&host, path](const QString& chosen) {
                         Remember(host, chosen);
                         path(chosen);
                     });
    Show(dialog);
}

void AskFolder(Host& host, const QString& title, const std::function<void(const QString&)>& path)
{
    auto* dialog = new QFileDialog(host.window, title, host.settings.folder.GetData());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    QObject::connect(dialog, &QFileDialog::fileSelected, &host, path);
    Show(dialog);
}

bool WriteFile(Host& host, const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
        if (file.commit())
            return true;
    }
    host.Warn(
        Texts::tr("The file could not be written."),
        QStringList(QDir::toNativeSeparators(path) + QStringLiteral(": ") + file.errorString()));
    return false;
}

} // namespace tarnix
