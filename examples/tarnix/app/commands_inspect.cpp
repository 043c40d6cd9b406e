#include "app/host_command.h"

#include "app/main_window.h"
#include "view/scene_view.h"

#include <QApplication>
#include <QClipboard>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::InspectCommands)
};

template <MeasureKind Kind> void StartMeasuring(Host& host)
{
    // A second click on the same button ends it, as its checked look promises.
    if (host.workspace.Measuring() == Kind)
        host.workspace.StopMeasuring();
    else
        host.workspace.StartMeasuring(Kind);
}

template <MeasureKind Kind> bool IsMeasuring(const Host& host)
{
    return host.workspace.Measuring() == Kind;
}

template <SnapMode Mode> void ToggleSnap(Host& host)
{
    host.workspace.SetSnap(host.workspace.Snap() == Mode ? SnapMode::None : Mode);
}

template <SnapMode Mode> bool IsSnapping(const Host& host)
{
    return host.workspace.Snap() == Mode;
}

void MeasureSize(Host& host)
{
    Box box;
    QStringList names;
    for (const Part* part : host.GetScene().Selected()) {
        box.Add(part->Bounds());
        names.append(part->name);
    }
    host.workspace.AddMeasurement(MeasureBox(box, names.join(QStringLiteral(", "))));
}

void MeasureGapOfTwo(Host& host)
{
    const std::vector<const Part*> selected = host.GetScene().Selected();
    host.workspace.AddMeasurement(
        MeasureGap(selected[0]->Bounds(), selected[1]->Bounds(),
                   selected[0]->name + QStringLiteral(", ") + selected[1]->name));
}

void CopyMeasurements(Host& host)
{
    QStringList lines;
    for (const Measurement& entry : host.workspace.Measurements()) {
        QStringList fields{entry.Title(), entry.Text(host.workspace.Format()),
                           entry.Details(host.workspace.Format()), entry.subject};
        fields.removeAll(QString());
        lines.append(fields.join(QLatin1Char('\t')));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    host.Tell(Texts::tr("Measurements copied: %n",
                                          nullptr, lines.size()));
}

void RunChecks(Host& host)
{
    host.workspace.RunChecks();
    host.window->ShowPage(QStringLiteral("Page.Findings"));
    host.Refresh();
    const int count = host.GetFacts().findings;
    host.Tell(count == 0 ? Texts::tr("The build is ready: nothing to report.")
                         : Texts::tr("Findings: %n",
                                                       nullptr, count));
}

void ShowNextFinding(Host& host)
{
    const Finding* finding = host.workspace.NextFinding();
    if (!finding)
        return;
    host.GetScene().SelectOnly(finding->part);
    host.view->ZoomTo(host.GetScene().Bounds(true));
    host.Tell(finding->subject + QStringLiteral(": ") + finding->text);
}

void CopyReport(Host& host)
{
    QApplication::clipboard()->setText(
        BuildReport(host.GetScene(), host.workspace.GetViewState().overhang_degrees,
                    host.workspace.density, host.workspace.Format()));
    host.Tell(Texts::tr("The report is on the clipboard."));
}

template <bool ViewState::*Flag> void Toggle(Host& host)
{
    host.workspace.ChangeView([](ViewState& state) { state.*Flag = !(state.*Flag); });
}

template <bool ViewState::*Flag> bool IsOn(const Host& host)
{
    return host.workspace.GetViewState().*Flag;
}

void ChangeOverhang(Host& host, double step)
{
    host.workspace.ChangeView([step](ViewState& state) {
        state.overhang_degrees = std::clamp(state.overhang_degrees + step, 5.0, 85.0);
        state.overhangs = true;
    });
    host.Tell(
        Texts::tr("Overhang limit: %1")
            .arg(host.workspace.Format().Angle(host.workspace.GetViewState().overhang_degrees)));
}

double SectionMiddle(const Host& host, int axis)
{
    const Box box = host.GetScene().SelectedCount() > 0 ? host.GetScene().Bounds(true)
                                                        : host.GetScene().Bounds();
    return box.Center()[axis];
}

void SwitchSection(Host& host)
{
    host.workspace.ChangeView([&host](ViewState& state) {
        state.section.on = !state.section.on;
        // Switched on beside all parts it would show nothing: it starts in the middle.
        const Box box = host.GetScene().Bounds();
        const int axis = state.section.axis;
        if (state.section.on &&
            (state.section.at <= box.low[axis] || state.section.at >= box.high[axis]))
            state.section.at = SectionMiddle(host, axis);
    });
}

template <int Axis> void SetSectionAxis(Host& host)
{
    host.workspace.ChangeView([&host](ViewState& state) {
        state.section.on = true;
        state.section.axis = Axis;
        state.section.at = SectionMiddle(host, Axis);
    });
}

template <int Axis> bool IsSectionAxis(const Host& host)
{
    const Section& section = host.workspace.GetViewState().section;
    return section.on && section.axis == Axis;
}

template <int Sign> void MoveSection(Host& host)
{
    host.workspace.ChangeView([&host](ViewState& state) {
        const Box box = host.GetScene().Bounds();
        const int axis = state.section.axis;
        state.section.at += Sign * host.workspace.move_step;
        if (!box.IsEmpty())
            state.section.at = std::clamp(state.section.at, box.low[axis], box.high[axis]);
    });
}

const CommandSpec k_rows[] = {
    {"Measure.Point", Need::VisibleParts, StartMeasuring<MeasureKind::Point>,
     IsMeasuring<MeasureKind::Point>},
    {"Measure.Distance", Need::VisibleParts, StartMeasuring<MeasureKind::Distance>,
     IsMeasuring<MeasureKind::Distance>},
    {"Measure.Angle", Need::VisibleParts, StartMeasuring<MeasureKind::Angle>,
     IsMeasuring<MeasureKind::Angle>},
    {"Measure.Radius", Need::VisibleParts, StartMeasuring<MeasureKind::Radius>,
     IsMeasuring<MeasureKind::Radius>},
    {"Measure.Size", Need::Selection, MeasureSize},
    {"Measure.Gap", Need::ExactlyTwo, MeasureGapOfTwo},
    {"Measure.Stop", Need::Measuring, [](Host& host) { host.workspace.StopMeasuring(); }},
    {"Measure.SnapPoint", Need::Nothing, ToggleSnap<SnapMode::Points>,
     IsSnapping<SnapMode::Points>},
    {"Measure.SnapEdge", Need::Nothing, ToggleSnap<SnapMode::Edges>, IsSnapping<SnapMode::Edges>},
    {"Measure.RemoveLast", Need::Measurements,
     [](Host& host) {
         host.workspace.RemoveMeasurement(static_cast<int>(host.workspace.Measurements().size()) -
                                          1);
     }},
    {"Measure.Clear", Need::Measurements, [](Host& host) { host.workspace.ClearMeasurements(); }},
    {"Measure.Copy", Need::Measurements, CopyMeasurements},
    {"Check.Run", Need::VisibleParts, RunChecks},
    {"Check.SelectNext", Need::Findings, ShowNextFinding},
    {"Check.Copy", Need::Parts, CopyReport},
    {"Check.Overhang", Need::Nothing, Toggle<&ViewState::overhangs>, IsOn<&ViewState::overhangs>},
    {"Check.OverhangMore", Need::Nothing, [](Host& host) { ChangeOverhang(host, 5.0); }},
    {"Check.OverhangLess", Need::Nothing, [](Host& host) { ChangeOverhang(host, -5.0); }},
    {"Check.OpenEdges", Need::Nothing, Toggle<&ViewState::open_edges>,
     IsOn<&ViewState::open_edges>},
    {"Check.BackFaces", Need::Nothing, Toggle<&ViewState::back_faces>,
     IsOn<&ViewState::back_faces>},
    {"Check.CenterOfMass", Need::Nothing, Toggle<&ViewState::center_of_mass>,
     IsOn<&ViewState::center_of_mass>},
    {"Section.On", Need::VisibleParts, SwitchSection,
     [](const Host& host) { return host.workspace.GetViewState().section.on; }},
    {"Section.X", Need::VisibleParts, SetSectionAxis<0>, IsSectionAxis<0>},
    {"Section.Y", Need::VisibleParts, SetSectionAxis<1>, IsSectionAxis<1>},
    {"Section.Z", Need::VisibleParts, SetSectionAxis<2>, IsSectionAxis<2>},
    {"Section.Flip", Need::Section,
     [](Host& host) {
         host.workspace.ChangeView(
             [](ViewState& state) { state.section.flipped = !state.section.flipped; });
     },
     [](const Host& host) { return host.workspace.GetViewState().section.flipped; }},
    {"Section.Forward", Need::Section, MoveSection<1>},
    {"Section.Backward", Need::Section, MoveSection<-1>},
    {"Section.Center", Need::Section,
     [](Host& host) {
         host.workspace.ChangeView([&host](ViewState& state) {
             state.section.at = SectionMiddle(host, state.section.axis);
         });
     }},
};

} // namespace

CommandTable InspectCommands()
{
    return {k_rows, std::size(k_rows)};
}

} // namespace tarnix
