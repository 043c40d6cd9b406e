#include "app/host_command.h"

#include "app/main_window.h"
#include "app/number_dialog.h"
#include "app/solids.h"
#include "model/arrange.h"
#include "model/build_file.h"
#include "view/scene_view.h"

#include <ovk/main_window/ribbon_window.h>

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QInputDialog>
#include <QMimeData>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::EditCommands)

public:
    /// The title of a step that can be undone.
    static Phrase Step(const char* source, const QString& argument = QString())
    {
        return {"tarnix::EditCommands", source, argument};
    }
};

PartList SelectedParts(const Host& host)
{
    PartList parts;
    for (const Part* part : host.GetScene().Selected())
        parts.push_back(*part);
    return parts;
}

void Copy(Host& host)
{
    const PartList parts = SelectedParts(host);
    auto* data = new QMimeData;
    data->setData(QLatin1String(BuildFile::MimeType()),
                  BuildFile::Write(parts, host.GetScene().GetPlate()));
    QStringList names;
    for (const Part& part : parts)
        names.append(part.name);
    data->setText(names.join(QLatin1Char('\n')));
    QApplication::clipboard()->setMimeData(data);
    host.Tell(Texts::tr("Parts copied: %n", nullptr,
                                          static_cast<int>(parts.size())));
}

void Paste(Host& host)
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    if (!data)
        return;
    BuildFile::Result result = BuildFile::Read(data->data(QLatin1String(BuildFile::MimeType())));
    if (!result) {
        host.Warn(Texts::tr("The parts on the clipboard cannot be read."), QStringList(result.error));
        return;
    }
    // Beside where they were, so that the copy is seen.
    for (Part& part : result.parts) {
        part.locked = false;
        part.Apply(
            Transform::Translation({host.workspace.move_step, -host.workspace.move_step, 0.0}));
    }
    host.GetScene().Add(Texts::Step("Paste"), std::move(result.parts));
}

void Duplicate(Host& host)
{
    PartList parts = SelectedParts(host);
    Box box;
    for (const Part& part : parts)
        box.Add(part.Bounds());
    for (Part& part : parts) {
        part.locked = false;
        part.Apply(Transform::Translation({box.Size().x + host.workspace.arrange_gap, 0.0, 0.0}));
    }
    host.GetScene().Add(Texts::Step("Duplicate"), std::move(parts));
}

void Rename(Host& host)
{
    const Part* part = host.GetScene().Selected().front();
    const int id = part->id;
    auto* dialog = new QInputDialog(host.window);
    dialog->setObjectName(QStringLiteral("renameDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(Texts::tr("Rename"));
    dialog->setLabelText(Texts::tr("Name of the part:"));
    dialog->setTextValue(part->name);
    QObject::connect(dialog, &QInputDialog::textValueSelected, &host,
                     [&host, id](const QString& name) { host.GetScene().Rename(id, name); });
    dialog->open();
}

void Recolor(Host& host)
{
    auto* dialog =
        new QColorDialog(QColor::fromRgb(host.GetScene().Selected().front()->color), host.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    QObject::connect(dialog, &QColorDialog::colorSelected, &host, [&host](const QColor& color) {
        host.GetScene().EditSelected(Texts::Step("Part Colour"),
                                     [&color](Part& part) { part.color = color.rgb(); });
    });
    dialog->open();
}

/// Adds copies of the selected part at each of the shifts.
void AddCopies(Host& host, const Phrase& title, const std::vector<Vec3>& shifts)
{
    const Part source = *host.GetScene().Selected().front();
    PartList parts;
    for (const Vec3& shift : shifts) {
        Part part = source;
        part.locked = false;
        part.Apply(Transform::Translation(shift));
        parts.push_back(std::move(part));
    }
    host.GetScene().Add(title, std::move(parts));
}

void Row(Host& host)
{
    const Vec3 size = host.GetScene().Selected().front()->Bounds().Size();
    NumberDialog::Ask(host.window, Texts::tr("Row of Copies"),
                      Texts::tr("Copies of the selected part, one after another at these steps."),
                      {{Texts::tr("Number of copies:"), 3, 1, 200, NumberField::Count},
                       {Texts::tr("Step along X:"), size.x + host.workspace.arrange_gap, -2000, 2000,
                        NumberField::Length},
                       {Texts::tr("Step along Y:"), 0, -2000, 2000, NumberField::Length},
                       {Texts::tr("Step along Z:"), 0, -2000, 2000, NumberField::Length}},
                      host.workspace.Format(), [&host](const std::vector<double>& v) {
                          std::vector<Vec3> shifts;
                          for (int i = 1; i <= int(v[0]); ++i)
                              shifts.push_back({v[1] * i, v[2] * i, v[3] * i});
                          AddCopies(host, Texts::Step("Row of Copies"), shifts);
                      });
}

void Grid(Host& host)
{
    const Vec3 size = host.GetScene().Selected().front()->Bounds().Size();
    const double gap = host.workspace.arrange_gap;
    NumberDialog::Ask(host.window, Texts::tr("Grid of Copies"),
                      Texts::tr("Columns and rows count the selected part itself."),
                      {{Texts::tr("Columns:"), 3, 1, 50, NumberField::Count},
                       {Texts::tr("Rows:"), 2, 1, 50, NumberField::Count},
                       {Texts::tr("Column step:"), size.x + gap, -2000, 2000, NumberField::Length},
                       {Texts::tr("Row step:"), size.y + gap, -2000, 2000, NumberField::Length}},
                      host.workspace.Format(), [&host](const std::vector<double>& v) {
                          std::vector<Vec3> shifts;
                          for (int row = 0; row < int(v[1]); ++row) {
                              for (int column = 0; column < int(v[0]); ++column) {
                                  if (row > 0 || column > 0)
                                      shifts.push_back({v[2] * column, v[3] * row, 0.0});
                              }
                          }
                          AddCopies(host, Texts::Step("Grid of Copies"), shifts);
                      });
}

const CommandSpec k_edit_rows[] = {
    {"Edit.Undo", Need::Undo, [](Host& host) { host.GetScene().Undo(); }},
    {"Edit.Redo", Need::Redo, [](Host& host) { host.GetScene().Redo(); }},
    {"Edit.Cut", Need::Editable,
     [](Host& host) {
         Copy(host);
         host.GetScene().DeleteSelected(Texts::Step("Cut"));
     }},
    {"Edit.Copy", Need::Selection, Copy},
    {"Edit.Paste", Need::ClipboardParts, Paste},
    {"Edit.Duplicate", Need::Selection, Duplicate},
    {"Edit.Delete", Need::Editable,
     [](Host& host) { host.GetScene().DeleteSelected(Texts::Step("Delete")); }},
    {"Edit.Rename", Need::OneEditable, Rename},
    {"Edit.Recolor", Need::Editable, Recolor},
    {"Edit.Row", Need::OneSelected, Row},
    {"Edit.Grid", Need::OneSelected, Grid},
    {"Edit.Preferences", Need::Nothing, [](Host& host) { host.window->ShowOptions(); }},
    {"Edit.CustomizeUI", Need::Nothing, [](Host&) { ovk::RibbonWindow::OnCustomizeUI(); }},
    {"Edit.CustomizeUI.Style", Need::Nothing, [](Host&) { ovk::RibbonWindow::OnCustomizeUI(); }},
};

// ---- selection

const CommandSpec k_select_rows[] = {
    {"Select.All", Need::VisibleParts,
     [](Host& host) { host.GetScene().Select([](const Part& part) { return part.visible; }); }},
    {"Select.None", Need::Selection,
     [](Host& host) { host.GetScene().Select([](const Part&) { return false; }); }},
    {"Select.Invert", Need::VisibleParts,
     [](Host& host) {
         host.GetScene().Select([](const Part& part) { return part.visible && !part.selected; });
     }},
    {"Select.Next", Need::VisibleParts, [](Host& host) { host.GetScene().SelectNext(+1); }},
    {"Select.Previous", Need::VisibleParts, [](Host& host) { host.GetScene().SelectNext(-1); }},
    {"Select.Faulty", Need::VisibleParts,
     [](Host& host) {
         host.GetScene().Select([](const Part& part) {
             return part.visible && !part.GetMesh()->GetTopology().IsSolid();
         });
         host.Tell(Texts::tr("Faulty parts: %n", nullptr,
                                               host.GetScene().SelectedCount()));
     }},
    {"Select.Outside", Need::VisibleParts,
     [](Host& host) {
         const Plate plate = host.GetScene().GetPlate();
         host.GetScene().Select([&plate](const Part& part) {
             return part.visible && !IsInside(part.Bounds(), plate);
         });
         host.Tell(Texts::tr("Parts outside: %n", nullptr,
                                               host.GetScene().SelectedCount()));
     }},
    {"Select.Similar", Need::Selection,
     [](Host& host) {
         std::vector<MeshPtr> meshes;
         for (const Part* part : host.GetScene().Selected())
             meshes.push_back(part->GetMesh());
         host.GetScene().Select([&meshes](const Part& part) {
             return part.visible &&
                    std::find(meshes.begin(), meshes.end(), part.GetMesh()) != meshes.end();
         });
     }},
    {"Select.Hide", Need::Selection,
     [](Host& host) {
         host.GetScene().SetVisible(
             [](const Part& part) { return part.visible && !part.selected; });
     }},
    {"Select.Isolate", Need::Selection,
     [](Host& host) {
         host.GetScene().SetVisible([](const Part& part) { return part.selected; });
     }},
    {"Select.ShowAll", Need::Hidden,
     [](Host& host) { host.GetScene().SetVisible([](const Part&) { return true; }); }},
    {"Select.Lock", Need::Editable,
     [](Host& host) {
         host.GetScene().SetLocked([](const Part& part) { return part.locked || part.selected; });
     }},
    {"Select.Unlock", Need::Locked,
     [](Host& host) { host.GetScene().SetLocked([](const Part&) { return false; }); }},
};

// ---- new solids

template <int Index> void AskSolid(Host& host)
{
    const Solid solid = Solids()[Index];
    NumberDialog::Ask(host.window, solid.title, QString(), solid.fields, host.workspace.Format(),
                      [&host, solid](const std::vector<double>& values) {
                          AddSolid(host, solid.title, solid.make(values));
                      });
}

// In the order of Solids().
const CommandSpec k_add_rows[] = {
    {"Add.Box", Need::Nothing, AskSolid<0>},    {"Add.Cylinder", Need::Nothing, AskSolid<1>},
    {"Add.Cone", Need::Nothing, AskSolid<2>},   {"Add.Sphere", Need::Nothing, AskSolid<3>},
    {"Add.Torus", Need::Nothing, AskSolid<4>},  {"Add.Prism", Need::Nothing, AskSolid<5>},
};

} // namespace

CommandTable EditCommands()
{
    return {k_edit_rows, std::size(k_edit_rows)};
}

CommandTable SelectCommands()
{
    return {k_select_rows, std::size(k_select_rows)};
}

CommandTable AddCommands()
{
    return {k_add_rows, std::size(k_add_rows)};
}

} // namespace tarnix
