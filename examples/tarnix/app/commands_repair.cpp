#include "app/host_command.h"

#include "app/main_window.h"
#include "app/number_dialog.h"
#include "model/mesh_edit.h"
#include "model/mesh_repair.h"

#include <QApplication>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::RepairCommands)

public:
    /// The title of a step that can be undone.
    static Phrase Step(const char* source, const QString& argument = QString())
    {
        return {"tarnix::RepairCommands", source, argument};
    }
};

/// An hourglass while a long edit runs.
class Busy
{
public:
    Busy() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Busy() { QApplication::restoreOverrideCursor(); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};

QString TextOf(const RepairReport& report)
{
    if (report.IsEmpty())
        return Texts::tr("There was nothing to repair.");
    QStringList parts;
    const auto add = [&parts](int count, const char* text) {
        if (count > 0)
            parts.append(
                QCoreApplication::translate("tarnix::RepairCommands", text, nullptr, count));
    };
    add(report.joined, QT_TRANSLATE_N_NOOP("tarnix::RepairCommands", "points joined: %n"));
    add(report.removed, QT_TRANSLATE_N_NOOP("tarnix::RepairCommands", "triangles removed: %n"));
    add(report.turned, QT_TRANSLATE_N_NOOP("tarnix::RepairCommands", "triangles turned: %n"));
    add(report.added, QT_TRANSLATE_N_NOOP("tarnix::RepairCommands", "triangles added: %n"));
    return parts.join(QStringLiteral(", "));
}

/// Runs a repair on the meshes of the selected parts; parts on which it changes nothing make no
/// undo step.
void Repair(Host& host, const Phrase& title, Mesh (*repair)(const Mesh&, RepairReport&))
{
    const Busy busy;
    RepairReport total;
    host.GetScene().Edit(title, [&](PartList& parts) {
        for (Part& part : parts) {
            if (!part.selected || part.locked)
                continue;
            RepairReport report;
            Mesh mesh = repair(*part.GetMesh(), report);
            if (!report.IsEmpty() && !mesh.IsEmpty())
                part.SetMesh(std::make_shared<const Mesh>(std::move(mesh)));
            total += report;
        }
        return !total.IsEmpty();
    });
    host.Tell(TextOf(total));
}

/// Replaces the meshes of the selected parts.
void ChangeMeshes(Host& host, const Phrase& title, const std::function<Mesh(const Part&)>& change)
{
    const Busy busy;
    host.GetScene().EditSelected(title, [&change](Part& part) {
        Mesh mesh = change(part);
        if (!mesh.IsEmpty())
            part.SetMesh(std::make_shared<const Mesh>(std::move(mesh)));
    });
    size_t triangles = 0;
    for (const Part* part : host.GetScene().Selected())
        triangles += part->GetMesh()->Triangles().size();
    host.Tell(Texts::tr("Triangles now: %n", nullptr, static_cast<int>(triangles)));
}

void Subdivide(Host& host)
{
    constexpr size_t k_most = 2000000;
    for (const Part* part : host.GetScene().Selected()) {
        if (part->GetMesh()->Triangles().size() * 4 > k_most) {
            host.Warn(Texts::tr("%1 has too many triangles to be refined.").arg(part->name));
            return;
        }
    }
    ChangeMeshes(host, Texts::Step("Refine"),
                 [](const Part& part) { return tarnix::Subdivide(*part.GetMesh()); });
}

void AskSimplify(Host& host)
{
    const Vec3 size = host.GetScene().Selected().front()->GetMesh()->Bounds().Size();
    NumberDialog::Ask(host.window, Texts::tr("Simplify"),
                      Texts::tr("Details smaller than this are lost."),
                      {{Texts::tr("Fineness:"), std::max({size.x, size.y, size.z}) / 60.0, 0.01,
                        100.0, NumberField::Length}},
                      host.workspace.Format(), [&host](const std::vector<double>& v) {
                          ChangeMeshes(host, Texts::Step("Simplify"), [&v](const Part& part) {
                              return Simplify(*part.GetMesh(), v[0]);
                          });
                      });
}

/// Replaces each selected part by several, made from its mesh; one piece changes nothing.
void Replace(Host& host, const Phrase& title, const std::function<PartList(const Part&)>& pieces_of)
{
    const Busy busy;
    bool changed = false;
    host.GetScene().Edit(title, [&](PartList& parts) {
        PartList result;
        for (Part& part : parts) {
            PartList pieces;
            if (part.selected && !part.locked)
                pieces = pieces_of(part);
            if (pieces.empty()) {
                result.push_back(std::move(part));
                continue;
            }
            changed = true;
            for (Part& piece : pieces)
                result.push_back(std::move(piece));
        }
        if (changed)
            parts = std::move(result);
        return changed;
    });
    if (!changed)
        host.Tell(Texts::tr("There was nothing to take apart."));
}

void Split(Host& host)
{
    Replace(host, Texts::Step("Split"), [](const Part& part) {
        PartList pieces;
        if (part.GetMesh()->GetTopology().shells < 2)
            return pieces;
        int number = 0;
        for (Mesh& mesh : SplitShells(*part.GetMesh())) {
            Part piece(part.name + QStringLiteral(" %1").arg(number + 1),
                       std::make_shared<const Mesh>(std::move(mesh)), PartColor(number));
            piece.SetPlacement(part.GetPlacement());
            piece.selected = true;
            pieces.push_back(std::move(piece));
            ++number;
        }
        return pieces;
    });
}

void MergeSelected(Host& host)
{
    const Busy busy;
    host.GetScene().Edit(Texts::Step("Merge"), [](PartList& parts) {
        std::vector<Mesh> meshes;
        PartList rest;
        Part merged;
        for (Part& part : parts) {
            if (part.selected && !part.locked) {
                meshes.push_back(part.PlacedMesh());
                if (meshes.size() == 1)
                    merged = part;
            } else {
                rest.push_back(std::move(part));
            }
        }
        merged.id = 0;
        merged.file.clear();
        merged.SetMesh(std::make_shared<const Mesh>(Merge(meshes)));
        merged.SetPlacement(Transform());
        rest.push_back(std::move(merged));
        parts = std::move(rest);
        return true;
    });
}

/// The halves of a part at the section plane, as parts.
PartList Halves(const Part& part, const Section& section, bool keep_below, bool keep_above)
{
    const Box& box = part.Bounds();
    PartList pieces;
    if (section.at <= box.low[section.axis] || section.at >= box.high[section.axis])
        return pieces;
    // Cutting is done level: the section's axis is turned into the height and back.
    Transform level;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            level.Set(row, column, (row + section.axis + 1) % 3 == column ? 1.0 : 0.0);
    }
    const Transform back = level.Inverted();
    const Mesh placed = part.GetMesh()->Mapped(level * part.GetPlacement());
    for (const bool above : {false, true}) {
        if (above ? !keep_above : !keep_below)
            continue;
        Mesh half = CutAt(placed, section.at, above).Mapped(back);
        if (half.IsEmpty())
            continue;
        Part piece(part.name, std::make_shared<const Mesh>(std::move(half)), part.color);
        piece.selected = true;
        if (keep_below && keep_above)
            piece.name += above ? QStringLiteral(" +") : QStringLiteral(" \u2212");
        pieces.push_back(std::move(piece));
    }
    return pieces;
}

void Cut(Host& host, const Phrase& title, bool keep_below, bool keep_above)
{
    const Section section = host.workspace.GetViewState().section;
    Replace(host, title,
            [&](const Part& part) { return Halves(part, section, keep_below, keep_above); });
}

const CommandSpec k_rows[] = {
    {"Repair.All", Need::Editable,
     [](Host& host) { Repair(host, Texts::Step("Repair"), RepairAll); }},
    {"Repair.Join", Need::Editable,
     [](Host& host) {
         Repair(host, Texts::Step("Join Points"), [](const Mesh& mesh, RepairReport& report) {
             return JoinPoints(mesh, 0.001, report);
         });
     }},
    {"Repair.Clean", Need::Editable,
     [](Host& host) {
         Repair(host, Texts::Step("Clean"), [](const Mesh& mesh, RepairReport& report) {
             return RemoveDuplicates(RemoveDegenerate(mesh, report), report);
         });
     }},
    {"Repair.Orient", Need::Editable,
     [](Host& host) { Repair(host, Texts::Step("Orient"), OrientNormals); }},
    {"Repair.Flip", Need::Editable,
     [](Host& host) {
         ChangeMeshes(host, Texts::Step("Turn Inside Out"),
                      [](const Part& part) { return FlipNormals(*part.GetMesh()); });
     }},
    {"Repair.CloseHoles", Need::Editable,
     [](Host& host) { Repair(host, Texts::Step("Close Holes"), CloseHoles); }},
    {"Repair.Split", Need::Editable, Split},
    {"Repair.KeepLargest", Need::Editable,
     [](Host& host) {
         ChangeMeshes(host, Texts::Step("Keep Largest"),
                      [](const Part& part) { return SplitShells(*part.GetMesh()).front(); });
     }},
    {"Repair.Merge", Need::TwoEditable, MergeSelected},
    {"Mesh.Subdivide", Need::Editable, Subdivide},
    {"Mesh.Smooth", Need::Editable,
     [](Host& host) {
         ChangeMeshes(host, Texts::Step("Smooth"),
                      [](const Part& part) { return Smooth(*part.GetMesh()); });
     }},
    {"Mesh.Simplify", Need::Editable, AskSimplify},
    {"Mesh.CutBelow", Need::SectionThroughPart,
     [](Host& host) { Cut(host, Texts::Step("Keep Below"), true, false); }},
    {"Mesh.CutAbove", Need::SectionThroughPart,
     [](Host& host) { Cut(host, Texts::Step("Keep Above"), false, true); }},
    {"Mesh.CutApart", Need::SectionThroughPart,
     [](Host& host) { Cut(host, Texts::Step("Cut Apart"), true, true); }},
};

} // namespace

CommandTable RepairCommands()
{
    return {k_rows, std::size(k_rows)};
}

} // namespace tarnix
