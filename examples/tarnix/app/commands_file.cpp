#include "app/host_command.h"

#include "app/file_actions.h"
#include "app/main_window.h"
#include "app/settings.h"
#include "app/report.h"
#include "model/build_file.h"
#include "model/mesh_repair.h"
#include "model/stl_reader.h"
#include "view/scene_view.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::FileCommands)

public:
    /// The title of a step that can be undone.
    static Phrase Step(const char* source, const QString& argument = QString())
    {
        return {"tarnix::FileCommands", source, argument};
    }
};

Mesh MergedSelection(const Host& host)
{
    std::vector<Mesh> meshes;
    for (const Part* part : host.GetScene().Selected())
        meshes.push_back(part->PlacedMesh());
    return Merge(meshes);
}

/// A name that a file may have on any system.
QString FileNameOf(const QString& title)
{
    QString name;
    for (const QChar c : title)
        name += c.isLetterOrNumber() || QStringLiteral(" -_.()").contains(c) ? c : QLatin1Char('_');
    return name.trimmed().isEmpty() ? QStringLiteral("part") : name.trimmed();
}

QString SelectionName(const Host& host)
{
    const auto selected = host.GetScene().Selected();
    return selected.size() == 1 ? FileNameOf(selected.front()->name)
                                : FileNameOf(host.workspace.BuildName());
}

void NewBuild(Host& host)
{
    UnlessUnsaved(host, Texts::tr("Clear without saving"), [&host] {
        host.GetScene().Reset({});
        host.workspace.ClearMeasurements();
        host.workspace.SetBuildPath(QString());
        host.view->ZoomTo(Box());
    });
}

void SaveAs(Host& host)
{
    AskSavePath(host, Texts::tr("Save Build As"), BuildFilter(),
                FileNameOf(host.workspace.BuildName()) + QStringLiteral(".tarnix"),
                [&host](const QString& path) { SaveBuild(host, path); });
}

void Save(Host& host)
{
    if (host.workspace.BuildPath().isEmpty())
        SaveAs(host);
    else
        SaveBuild(host, host.workspace.BuildPath());
}

void Reload(Host& host)
{
    QStringList errors;
    int count = 0;
    host.GetScene().Edit(Texts::Step("Reload"), [&](PartList& parts) {
        for (Part& part : parts) {
            if (!part.selected || part.locked || part.file.isEmpty())
                continue;
            const StlReader::Result result = StlReader::ReadFile(part.file);
            if (!result) {
                errors.append(part.name + QStringLiteral(": ") + result.error);
                continue;
            }
            part.SetMesh(result.mesh);
            ++count;
        }
        return count > 0;
    });
    host.Tell(Texts::tr("Parts read again: %n", nullptr, count));
    if (!errors.isEmpty())
        host.Warn(Texts::tr("Some parts could not be read again; they stay as they were."), errors);
}

void ExportSelection(Host& host, bool ascii)
{
    AskSavePath(
        host, ascii ? Texts::tr("Export as Text") : Texts::tr("Export STL"), StlFilter(),
        SelectionName(host) + QStringLiteral(".stl"), [&host, ascii](const QString& path) {
            const Mesh mesh = MergedSelection(host);
            const QString name = QFileInfo(path).completeBaseName();
            if (WriteFile(host, path,
                          ascii ? StlWriter::Ascii(mesh, name) : StlWriter::Binary(mesh, name)))
                host.Tell(Texts::tr("Exported to %1.").arg(QFileInfo(path).fileName()));
        });
}

void ExportEach(Host& host)
{
    AskFolder(host, Texts::tr("Export Each Part"), [&host](const QString& folder) {
        QStringList used;
        for (const Part& part : host.GetScene().Parts()) {
            QString name = FileNameOf(part.name);
            for (int number = 2; used.contains(name, Qt::CaseInsensitive); ++number)
                name = FileNameOf(part.name) + QStringLiteral(" (%1)").arg(number);
            used.append(name);
            if (!WriteFile(host, QDir(folder).filePath(name + QStringLiteral(".stl")),
                           StlWriter::Binary(part.PlacedMesh(), part.name)))
                return;
        }
        host.Tell(Texts::tr("Parts exported: %n", nullptr, used.size()));
    });
}

void ExportPicture(Host& host)
{
    AskSavePath(host, Texts::tr("Save Picture"), Texts::tr("Pictures (*.png)"),
                FileNameOf(host.workspace.BuildName()) + QStringLiteral(".png"),
                [&host](const QString& path) {
                    QByteArray bytes;
                    QBuffer buffer(&bytes);
                    buffer.open(QIODevice::WriteOnly);
                    host.view->Picture({host.settings.picture_width, host.settings.picture_height})
                        .save(&buffer, "PNG");
                    if (WriteFile(host, path, bytes))
                        host.Tell(
                            Texts::tr("Picture saved as %1.").arg(QFileInfo(path).fileName()));
                });
}

void CopyPicture(Host& host)
{
    QApplication::clipboard()->setImage(host.view->Picture(host.view->size()));
    host.Tell(Texts::tr("The picture is on the clipboard."));
}

void PrintReport(Host& host)
{
    AskSavePath(host, Texts::tr("Print Report"), Texts::tr("PDF documents (*.pdf)"),
                FileNameOf(host.workspace.BuildName()) + QStringLiteral(".pdf"),
                [&host](const QString& path) {
                    if (WriteFile(host, path, ReportPdf(host)))
                        host.Tell(
                            Texts::tr("Report written to %1.").arg(QFileInfo(path).fileName()));
                });
}

const CommandSpec k_rows[] = {
    {"File.New", Need::Nothing, NewBuild},
    {"File.Open", Need::Nothing,
     [](Host& host) {
         AskOpenPaths(host, Texts::tr("Open Build"), Texts::tr("Builds and parts (*.tarnix *.stl)"),
                      [&host](const QStringList& paths) { OpenFiles(host, paths); });
     }},
    {"File.Import", Need::Nothing,
     [](Host& host) {
         AskOpenPaths(host, Texts::tr("Add Parts"), StlFilter(),
                      [&host](const QStringList& paths) { ImportFiles(host, paths); });
     }},
    {"File.Save", Need::Parts, Save},
    {"File.SaveAs", Need::Parts, SaveAs},
    {"File.Reload", Need::EditableWithFile, Reload},
    {"File.ExportStl", Need::Selection, [](Host& host) { ExportSelection(host, false); }},
    {"File.ExportAscii", Need::Selection, [](Host& host) { ExportSelection(host, true); }},
    {"File.ExportEach", Need::Parts, ExportEach},
    {"File.ExportPicture", Need::Nothing, ExportPicture},
    {"File.CopyPicture", Need::Nothing, CopyPicture},
    {"File.PrintReport", Need::Parts, PrintReport},
    {"File.Bracket", Need::Nothing,
     [](Host& host) { AddSample(host, QStringLiteral("bracket.stl"), Texts::tr("Bracket")); }},
    {"File.Gear", Need::Nothing,
     [](Host& host) { AddSample(host, QStringLiteral("gear.stl"), Texts::tr("Gear wheel")); }},
    {"File.Vase", Need::Nothing,
     [](Host& host) { AddSample(host, QStringLiteral("vase.stl"), Texts::tr("Vase")); }},
    {"File.ClearRecent", Need::Recent, [](Host& host) { host.ClearRecent(); }},
    {"File.Exit", Need::Nothing, [](Host& host) { host.window->close(); }},
};

} // namespace

CommandTable FileCommands()
{
    return {k_rows, std::size(k_rows)};
}

} // namespace tarnix
