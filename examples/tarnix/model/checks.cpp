#include "model/checks.h"

#include "model/arrange.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Checks)
};

using Level = Finding::Level;

} // namespace

std::vector<Finding> CheckBuild(const Scene& scene, double overhang_degrees,
                                const Formatter& format)
{
    std::vector<Finding> findings;
    const auto report = [&findings](Level level, const Part& part, const QString& text) {
        findings.push_back({level, part.id, part.name, text});
    };
    for (const Part& part : scene.Parts()) {
        if (!part.visible)
            continue;
        const Topology& topology = part.GetMesh()->GetTopology();
        if (topology.open_edges > 0)
            report(Level::Fault, part,
                   Texts::tr("The surface is open; open edges: %n.", nullptr, topology.open_edges));
        if (topology.crowded_edges > 0)
            report(Level::Fault, part,
                   Texts::tr("More than two triangles meet at an edge; such edges: %n.", nullptr,
                             topology.crowded_edges));
        if (topology.reversed_edges > 0)
            report(Level::Fault, part,
                   Texts::tr("Triangles disagree about the outside; such edges: %n.", nullptr,
                             topology.reversed_edges));
        else if (topology.IsSolid() && part.GetMesh()->Volume() < 0.0)
            report(Level::Fault, part, Texts::tr("The part is inside out."));
        if (topology.degenerate > 0)
            report(Level::Note, part,
                   Texts::tr("Triangles without area: %n.", nullptr, topology.degenerate));
        if (topology.duplicates > 0)
            report(Level::Warning, part,
                   Texts::tr("Triangles that are there twice: %n.", nullptr, topology.duplicates));
        if (topology.shells > 1)
            report(Level::Note, part,
                   Texts::tr("The part is made of several shells: %n.", nullptr, topology.shells));
        const Box& box = part.Bounds();
        if (!IsInside(box, scene.GetPlate()))
            report(Level::Fault, part,
                   box.low.z < -1e-6 ? Texts::tr("The part reaches below the plate.")
                                     : Texts::tr("The part reaches out of the build volume."));
        else if (box.low.z > 0.01)
            report(Level::Warning, part,
                   Texts::tr("The part floats %1 above the plate.").arg(format.Length(box.low.z)));
        const double overhang =
            OverhangArea(*part.GetMesh(), part.GetPlacement(), overhang_degrees);
        if (overhang > 0.02 * part.Area())
            report(Level::Note, part,
                   Texts::tr("%1 of the surface need support.").arg(format.Area(overhang)));
    }
    for (const auto& [first, second] : Collisions(scene.Parts())) {
        const Part& a = scene.Parts()[static_cast<size_t>(first)];
        const Part& b = scene.Parts()[static_cast<size_t>(second)];
        report(Level::Warning, a, Texts::tr("Its box runs into that of %1.").arg(b.name));
    }
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding& a, const Finding& b) { return a.level > b.level; });
    if (findings.empty()) {
        findings.push_back({Level::Good, 0, QString(),
                            scene.Count() == 0
                                ? Texts::tr("There is no part on the plate yet.")
                                : Texts::tr("The build is ready: nothing to report.")});
    }
    return findings;
}

std::vector<std::pair<QString, QString>> PartFigures(const Part& part, double density,
                                                     const Formatter& format)
{
    const Mesh& mesh = *part.GetMesh();
    const Topology& topology = mesh.GetTopology();
    const Vec3 scale = part.GetPlacement().Scale();
    const Vec3 angles = part.GetPlacement().EulerAngles();
    const bool uniform = std::abs(scale.x - scale.y) < 1e-9 && std::abs(scale.y - scale.z) < 1e-9;
    const auto percent = [&format](double factor) {
        return format.Number(factor * 100.0, 1) + QStringLiteral(" %");
    };
    return {
        {Texts::tr("Name"), part.name},
        {Texts::tr("File"),
         part.file.isEmpty() ? Texts::tr("Made here") : QFileInfo(part.file).fileName()},
        {Texts::tr("Size"), format.Size(part.Bounds().Size())},
        {Texts::tr("Position"), format.Point(part.Bounds().Center())},
        {Texts::tr("Turned"), format.Angle(angles.x) + QStringLiteral("  ") +
                                  format.Angle(angles.y) + QStringLiteral("  ") +
                                  format.Angle(angles.z)},
        {Texts::tr("Scale"), uniform ? percent(scale.x)
                                     : percent(scale.x) + QStringLiteral("  ") + percent(scale.y) +
                                           QStringLiteral("  ") + percent(scale.z)},
        {Texts::tr("Volume"), format.Volume(part.Volume())},
        {Texts::tr("Surface"), format.Area(part.Area())},
        {Texts::tr("Weight"), format.Weight(part.Volume(), density)},
        {Texts::tr("Triangles"),
         QLocale().toString(static_cast<qlonglong>(mesh.Triangles().size()))},
        {Texts::tr("Points"), QLocale().toString(static_cast<qlonglong>(mesh.Points().size()))},
        {Texts::tr("Shells"), QLocale().toString(topology.shells)},
        {Texts::tr("Solid"), topology.IsSolid() ? Texts::tr("Yes") : Texts::tr("No, needs repair")},
    };
}

QString BuildReport(const Scene& scene, double overhang_degrees, double density,
                    const Formatter& format)
{
    QString text = Texts::tr("Build report") + QStringLiteral("\n\n");
    const Plate& plate = scene.GetPlate();
    text +=
        Texts::tr("Build volume: %1").arg(format.Size({plate.width, plate.depth, plate.height})) +
        QLatin1Char('\n');
    text += Texts::tr("Parts: %n", nullptr, scene.Count()) + QLatin1Char('\n');
    for (const Part& part : scene.Parts()) {
        text += QLatin1Char('\n');
        for (const auto& [title, value] : PartFigures(part, density, format))
            text += QStringLiteral("%1: %2\n").arg(title, value);
    }
    text += QLatin1Char('\n') + Texts::tr("Findings") + QLatin1Char('\n');
    for (const Finding& finding : CheckBuild(scene, overhang_degrees, format)) {
        text += finding.subject.isEmpty()
                    ? QStringLiteral("- %1\n").arg(finding.text)
                    : QStringLiteral("- %1: %2\n").arg(finding.subject, finding.text);
    }
    return text;
}

} // namespace tarnix
