#include "app/host_command.h"

#include "app/main_window.h"
#include "app/number_dialog.h"
#include "app/settings.h"
#include "app/transform_dialog.h"
#include "model/arrange.h"
#include "model/mesh_edit.h"

#include <QCoreApplication>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::PlaceCommands)

public:
    /// The title of a step that can be undone.
    static Phrase Step(const char* source, const QString& argument = QString())
    {
        return {"tarnix::PlaceCommands", source, argument};
    }
};

/// Steps of one key are one undo step as long as nothing else comes between.
enum MergeKey
{
    MergeMove = 1,
    MergeTurn,
    MergeScale
};

Vec3 SelectionCenter(const Host& host)
{
    Box box;
    for (const Part* part : host.GetScene().Selected()) {
        if (!part->locked)
            box.Add(part->Bounds());
    }
    return box.Center();
}

void MoveBy(Host& host, const Phrase& title, const Vec3& shift, int merge = 0)
{
    const Transform map = Transform::Translation(shift);
    host.GetScene().EditSelectedMerged(title, merge, [&map](Part& part) { part.Apply(map); });
}

template <int Axis, int Sign> void Step(Host& host)
{
    Vec3 shift;
    shift[Axis] = Sign * host.workspace.move_step;
    MoveBy(host, Texts::Step("Move"), shift, MergeMove);
}

/// Turns, scales or mirrors the selected parts together about their middle. What stood on the
/// plate stands on it again.
void ApplyAboutCenter(Host& host, const Phrase& title, const Transform& map, int merge = 0)
{
    const Transform about = Transform::About(SelectionCenter(host), map);
    host.GetScene().EditSelectedMerged(title, merge, [&about](Part& part) {
        const bool stood = std::abs(part.Bounds().low.z) < 0.01;
        part.Apply(about);
        if (stood)
            part.Apply(Transform::Translation(DropShift(part.Bounds())));
    });
}

template <int Axis, int Sign> void QuarterTurn(Host& host)
{
    ApplyAboutCenter(host, Texts::Step("Turn"), Transform::Rotation(Axis, 90.0 * Sign), MergeTurn);
}

template <int Sign> void TurnStep(Host& host)
{
    ApplyAboutCenter(host, Texts::Step("Turn"),
                     Transform::Rotation(2, host.workspace.turn_step * Sign), MergeTurn);
}

void ScaleAll(Host& host, const Phrase& title, double factor, int merge = 0)
{
    ApplyAboutCenter(host, title, Transform::Scaling({factor, factor, factor}), merge);
}

template <int Axis> void MirrorAlong(Host& host)
{
    ApplyAboutCenter(host, Texts::Step("Mirror"), Transform::Mirror(Axis));
}

void Drop(Host& host)
{
    host.GetScene().EditSelected(Texts::Step("Drop to Plate"), [](Part& part) {
        part.Apply(Transform::Translation(DropShift(part.Bounds())));
    });
}

void Center(Host& host)
{
    const Vec3 middle = SelectionCenter(host);
    MoveBy(host, Texts::Step("Centre on Plate"), {-middle.x, -middle.y, 0.0});
}

void Arrange(Host& host)
{
    host.GetScene().Edit(Texts::Step("Arrange"), [&host](PartList& parts) {
        std::vector<Part*> movable;
        std::vector<Box> boxes;
        for (Part& part : parts) {
            if (part.visible && !part.locked) {
                movable.push_back(&part);
                boxes.push_back(part.Bounds());
            }
        }
        const std::vector<Vec3> shifts =
            ArrangeOnPlate(boxes, host.GetScene().GetPlate(), host.workspace.arrange_gap);
        for (size_t i = 0; i < movable.size(); ++i)
            movable[i]->Apply(Transform::Translation(shifts[i]));
        return !movable.empty();
    });
}

/// An angle that was typed, in steps if the options say so.
double Stepped(const Host& host, double degrees)
{
    const double step = host.settings.turn_step;
    return host.settings.snap_turns ? std::round(degrees / step) * step : degrees;
}

/// Moves the selection and turns it to the left about its middle.
Transform MapOf(const Host& host, const MoveTurn& move)
{
    return Transform::Translation(move.shift) *
           Transform::About(SelectionCenter(host),
                            Transform::Rotation(2, Stepped(host, move.degrees)));
}

bool StaysInside(const Host& host, const MoveTurn& move)
{
    constexpr double k_tolerance = 0.01;
    const Transform map = MapOf(host, move);
    const Box room = host.GetScene().GetPlate().Bounds();
    for (const Part* part : host.GetScene().Selected()) {
        if (part->locked)
            continue;
        const Box box = MappedBounds(*part->GetMesh(), map * part->GetPlacement());
        for (int axis = 0; axis < 3; ++axis) {
            if (box.low[axis] < room.low[axis] - k_tolerance ||
                box.high[axis] > room.high[axis] + k_tolerance)
                return false;
        }
    }
    return true;
}

void AskMove(Host& host)
{
    TransformDialog::Job job;
    job.source = &host.workspace.last_move;
    job.angle_step = host.settings.snap_turns ? host.settings.turn_step.GetData() : 5.0;
    job.fits = [&host](const MoveTurn& move) { return StaysInside(host, move); };
    job.apply = [&host](const MoveTurn& move) {
        const Transform map = MapOf(host, move);
        host.GetScene().EditSelected(Texts::Step("Move"), [&map](Part& part) { part.Apply(map); });
    };
    TransformDialog::Ask(host.window, Texts::tr("Move By"), job);
}

void AskTurn(Host& host)
{
    NumberDialog::Ask(
        host.window, Texts::tr("Turn By"),
        Texts::tr("Turns about the middle of the selection: first about X, then Y, then Z."),
        {{Texts::tr("About X:"), 0, -360, 360, NumberField::Degrees},
         {Texts::tr("About Y:"), 0, -360, 360, NumberField::Degrees},
         {Texts::tr("About Z:"), 0, -360, 360, NumberField::Degrees}},
        host.workspace.Format(), [&host](const std::vector<double>& v) {
            ApplyAboutCenter(host, Texts::Step("Turn"),
                             Transform::Rotation(2, Stepped(host, v[2])) *
                                 Transform::Rotation(1, Stepped(host, v[1])) *
                                 Transform::Rotation(0, Stepped(host, v[0])));
        });
}

void AskScale(Host& host)
{
    NumberDialog::Ask(
        host.window, Texts::tr("Scale By"),
        Texts::tr("Factors about the middle of the selection; 100 % is the present size."),
        {{Texts::tr("Along X:"), 100, 0.1, 10000, NumberField::Percent},
         {Texts::tr("Along Y:"), 100, 0.1, 10000, NumberField::Percent},
         {Texts::tr("Along Z:"), 100, 0.1, 10000, NumberField::Percent}},
        host.workspace.Format(), [&host](const std::vector<double>& v) {
            ApplyAboutCenter(host, Texts::Step("Scale"),
                             Transform::Scaling({v[0] / 100, v[1] / 100, v[2] / 100}));
        });
}

void LayFlat(Host& host)
{
    host.GetScene().EditSelected(Texts::Step("Lay Flat"), [](Part& part) {
        const Vec3 bottom = BestBottom(*part.GetMesh());
        if (bottom == Vec3{})
            return;
        const Vec3 normal = part.GetPlacement().MapNormal(bottom);
        part.Apply(Transform::About(part.Bounds().Center(),
                                    Transform::RotationBetween(normal, {0, 0, -1})));
        part.Apply(Transform::Translation(DropShift(part.Bounds())));
    });
}

/// Rebuilds the placement of the selected parts from some of its parts, and keeps the middle of
/// the footprint and the height of the floor.
void Rebuild(Host& host, const Phrase& title, Transform (*keep)(const Transform&))
{
    host.GetScene().EditSelected(title, [keep](Part& part) {
        const Box before = part.Bounds();
        part.SetPlacement(keep(part.GetPlacement()));
        const Box after = part.Bounds();
        part.Apply(Transform::Translation({before.Center().x - after.Center().x,
                                           before.Center().y - after.Center().y,
                                           before.low.z - after.low.z}));
    });
}

Transform WithoutScale(const Transform& placement)
{
    const Vec3 scale = placement.Scale();
    if (scale.x == 0.0 || scale.y == 0.0 || scale.z == 0.0)
        return Transform();
    return placement * Transform::Scaling({1.0 / scale.x, 1.0 / scale.y, 1.0 / scale.z});
}

Transform WithoutTurn(const Transform& placement)
{
    return Transform::Scaling(placement.Scale());
}

void FillPlate(Host& host)
{
    Box box;
    for (const Part* part : host.GetScene().Selected()) {
        if (!part->locked)
            box.Add(part->Bounds());
    }
    const Vec3 size = box.Size();
    const Plate& plate = host.GetScene().GetPlate();
    const auto ratio = [](double room, double length) {
        return length > 0.0 ? room / length : 1e9;
    };
    const double factor = std::min(
        {ratio(plate.width, size.x), ratio(plate.depth, size.y), ratio(plate.height, size.z), 1e4});
    const Transform map = Transform::Translation({0, 0, size.z * factor / 2.0}) *
                          Transform::Scaling({factor, factor, factor}) *
                          Transform::Translation(-box.Center());
    host.GetScene().EditSelected(Texts::Step("Fill the Plate"),
                                 [&map](Part& part) { part.Apply(map); });
}

template <int Axis, AlignTo Where> void Align(Host& host)
{
    Box target;
    for (const Part* part : host.GetScene().Selected()) {
        target = part->Bounds();
        break;
    }
    host.GetScene().EditSelected(Texts::Step("Align"), [&target](Part& part) {
        part.Apply(Transform::Translation(AlignShift(part.Bounds(), target, Axis, Where)));
    });
}

template <int Axis> void Spread(Host& host)
{
    host.GetScene().Edit(Texts::Step("Spread"), [](PartList& parts) {
        std::vector<Part*> chosen;
        std::vector<Box> boxes;
        for (Part& part : parts) {
            if (part.selected && !part.locked) {
                chosen.push_back(&part);
                boxes.push_back(part.Bounds());
            }
        }
        const std::vector<Vec3> shifts = Distribute(boxes, Axis);
        for (size_t i = 0; i < chosen.size(); ++i)
            chosen[i]->Apply(Transform::Translation(shifts[i]));
        return true;
    });
}

void CopyPlacement(Host& host)
{
    host.workspace.copied_placement = host.GetScene().Selected().front()->GetPlacement();
    host.Tell(Texts::tr("The placement is copied."));
}

const CommandSpec k_place_rows[] = {
    {"Move.Left", Need::Editable, Step<0, -1>},
    {"Move.Right", Need::Editable, Step<0, 1>},
    {"Move.Front", Need::Editable, Step<1, -1>},
    {"Move.Back", Need::Editable, Step<1, 1>},
    {"Move.Up", Need::Editable, Step<2, 1>},
    {"Move.Down", Need::Editable, Step<2, -1>},
    {"Move.By", Need::Editable, AskMove},
    {"Move.ToPlate", Need::Editable, Drop},
    {"Move.ToCenter", Need::Editable, Center},
    {"Move.Arrange", Need::VisibleParts, Arrange},
    {"Move.CopyPlacement", Need::OneSelected, CopyPlacement},
    {"Move.PastePlacement", Need::Placement,
     [](Host& host) {
         const Transform placement = *host.workspace.copied_placement;
         host.GetScene().EditSelected(Texts::Step("Paste Placement"),
                                      [&placement](Part& part) { part.SetPlacement(placement); });
     }},
    {"Move.Reset", Need::Editable,
     [](Host& host) {
         host.GetScene().EditSelected(Texts::Step("Reset Placement"),
                                      [](Part& part) { part.SetPlacement(Transform()); });
     }},
    {"Move.Bake", Need::Editable,
     [](Host& host) {
         host.GetScene().EditSelected(Texts::Step("Work In"), [](Part& part) {
             part.SetMesh(std::make_shared<const Mesh>(part.PlacedMesh()));
             part.SetPlacement(Transform());
         });
     }},
    {"Align.Left", Need::TwoEditable, Align<0, AlignTo::Low>},
    {"Align.CenterX", Need::TwoEditable, Align<0, AlignTo::Middle>},
    {"Align.Right", Need::TwoEditable, Align<0, AlignTo::High>},
    {"Align.Front", Need::TwoEditable, Align<1, AlignTo::Low>},
    {"Align.CenterY", Need::TwoEditable, Align<1, AlignTo::Middle>},
    {"Align.Back", Need::TwoEditable, Align<1, AlignTo::High>},
    {"Align.Top", Need::TwoEditable, Align<2, AlignTo::High>},
    {"Align.Bottom", Need::TwoEditable, Align<2, AlignTo::Low>},
    {"Align.SpreadX", Need::ThreeEditable, Spread<0>},
    {"Align.SpreadY", Need::ThreeEditable, Spread<1>},
};

const CommandSpec k_turn_scale_rows[] = {
    {"Turn.XPlus", Need::Editable, QuarterTurn<0, 1>},
    {"Turn.XMinus", Need::Editable, QuarterTurn<0, -1>},
    {"Turn.YPlus", Need::Editable, QuarterTurn<1, 1>},
    {"Turn.YMinus", Need::Editable, QuarterTurn<1, -1>},
    {"Turn.ZPlus", Need::Editable, TurnStep<1>},
    {"Turn.ZMinus", Need::Editable, TurnStep<-1>},
    {"Turn.By", Need::Editable, AskTurn},
    {"Turn.LayFlat", Need::Editable, LayFlat},
    {"Turn.Over", Need::Editable,
     [](Host& host) {
         ApplyAboutCenter(host, Texts::Step("Turn Over"), Transform::Rotation(0, 180.0));
     }},
    {"Turn.Reset", Need::Editable,
     [](Host& host) { Rebuild(host, Texts::Step("Reset Turn"), WithoutTurn); }},
    {"Scale.By", Need::Editable, AskScale},
    {"Scale.Up", Need::Editable,
     [](Host& host) { ScaleAll(host, Texts::Step("Larger"), 1.1, MergeScale); }},
    {"Scale.Down", Need::Editable,
     [](Host& host) { ScaleAll(host, Texts::Step("Smaller"), 0.9, MergeScale); }},
    {"Scale.Double", Need::Editable,
     [](Host& host) { ScaleAll(host, Texts::Step("Double"), 2.0); }},
    {"Scale.Half", Need::Editable, [](Host& host) { ScaleAll(host, Texts::Step("Halve"), 0.5); }},
    {"Scale.ToFit", Need::Editable, FillPlate},
    {"Scale.InchToMm", Need::Editable,
     [](Host& host) { ScaleAll(host, Texts::Step("Inch to mm"), k_mm_per_inch); }},
    {"Scale.MmToInch", Need::Editable,
     [](Host& host) { ScaleAll(host, Texts::Step("mm to Inch"), 1.0 / k_mm_per_inch); }},
    {"Scale.Reset", Need::Editable,
     [](Host& host) { Rebuild(host, Texts::Step("Reset Scale"), WithoutScale); }},
    {"Mirror.X", Need::Editable, MirrorAlong<0>},
    {"Mirror.Y", Need::Editable, MirrorAlong<1>},
    {"Mirror.Z", Need::Editable, MirrorAlong<2>},
};

} // namespace

CommandTable PlaceCommands()
{
    return {k_place_rows, std::size(k_place_rows)};
}

CommandTable TurnScaleCommands()
{
    return {k_turn_scale_rows, std::size(k_turn_scale_rows)};
}

} // namespace tarnix
