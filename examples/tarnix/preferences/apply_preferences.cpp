#include "preferences/apply_preferences.h"

#include "app/host.h"
#include "app/settings.h"
#include "model/mesh_repair.h"
#include "view/scene_view.h"

#include <ovk/preferences/pref_ui.h>
#include <ovk/units/suffix_controller.h>
#include <ovk/units/units_controller.h>
#include <vorsdk/units.h>

#include <algorithm>
#include <type_traits>

namespace tarnix {
namespace {

/// A preference notifies whenever it is set: only what is new is set.
template <class Preference, class Value> void Keep(Preference& preference, const Value& value)
{
    if (!(preference.GetData() == value))
        preference.SetData(value);
}

void ApplyUnits(const Settings& settings)
{
    const bool inches = settings.inches;
    ovk::UnitsController::SetCurrentUnits(
        inches ? static_cast<const ovk::IUnits&>(ovk::UnitsInch::GetInstance())
               : ovk::UnitsMM::GetInstance());
    MUserUnit::GetInstance().SetUnit(inches ? MUserUnit::utInch : MUserUnit::utMillimetre);
    const bool inside = g_pref_suffix_in_editor.GetData();
    if (ovk::SuffixController::GetInstance().IsInsideEditor() != inside) {
        ovk::SuffixController::GetInstance().SetInsideEditor(inside);
        // The editors look at the controller when the preference changes, and that was before.
        g_pref_suffix_in_editor.ForceSetData(inside);
    }
}

void ApplyToView(const Settings& settings, ViewState& state)
{
    state.mode = static_cast<DisplayMode>(settings.display.GetData());
    state.plate = settings.plate;
    state.grid = settings.grid;
    state.volume = settings.volume;
    state.axes = settings.axes;
    state.labels = settings.labels;
    state.view_cube = settings.view_cube;
    state.shadows = settings.shadows;
    state.overhang_degrees = settings.overhang;
    state.grid_step = settings.grid_step;
    state.grid_major = settings.grid_major;
    state.smooth = settings.smooth_shading;
    state.fine = settings.fine_edges;
    state.measure_width = settings.measure_width;
    state.font = settings.scene_font;
    state.layers.thickness = settings.layer_thickness;
    state.layers.hatch_spacing = settings.hatch_spacing;
    state.layers.hatch_degrees = settings.hatch_angle;
    state.layers.crossed = settings.hatch_cross;
}

} // namespace

void ApplyPreferences(Host& host)
{
    Settings& settings = host.settings;
    Workspace& workspace = host.workspace;
    if (settings.materials.Count() == 0)
        settings.materials.AddUsual();
    workspace.move_step = settings.move_step;
    workspace.turn_step = settings.turn_step;
    workspace.arrange_gap = settings.gap;
    workspace.density = settings.density;
    workspace.snap_to_grid = settings.snap_to_grid;
    host.GetScene().SetPlate({settings.plate_width, settings.plate_depth, settings.plate_height});
    host.GetScene().SetMostSteps(static_cast<size_t>(settings.undo_steps.GetData()));
    ApplyUnits(settings);
    workspace.SetFormat(
        Formatter(settings.inches ? LengthUnit::Inch : LengthUnit::Millimetre, settings.decimals));
    workspace.ChangeView([&settings](ViewState& state) { ApplyToView(settings, state); });
    const SnapMode snap = settings.snap_points  ? SnapMode::Points
                          : settings.snap_edges ? SnapMode::Edges
                                                : SnapMode::None;
    if (snap != workspace.Snap())
        workspace.SetSnap(snap);
    if (!host.view)
        return;
    host.view->SetHandling({settings.orbit_speed, settings.zoom_speed, settings.invert_wheel,
                            settings.drag_pixels, settings.flight_ms,
                            static_cast<size_t>(settings.former_views.GetData())});
    host.view->SetStartView(settings.start_view.Azimuth(), settings.start_view.Elevation());
    if (host.view->GetCamera().perspective != settings.perspective)
        host.view->SetPerspective(settings.perspective);
}

void StorePreferences(Host& host)
{
    Settings& settings = host.settings;
    const ViewState& state = host.workspace.GetViewState();
    Keep(settings.display, static_cast<int>(state.mode));
    Keep(settings.plate, state.plate);
    Keep(settings.grid, state.grid);
    Keep(settings.volume, state.volume);
    Keep(settings.axes, state.axes);
    Keep(settings.labels, state.labels);
    Keep(settings.view_cube, state.view_cube);
    Keep(settings.shadows, state.shadows);
    Keep(settings.overhang, state.overhang_degrees);
    Keep(settings.layer_thickness, state.layers.thickness);
    Keep(settings.hatch_spacing, state.layers.hatch_spacing);
    Keep(settings.hatch_angle, state.layers.hatch_degrees);
    Keep(settings.hatch_cross, state.layers.crossed);
    const SnapMode snap = host.workspace.Snap();
    Keep(settings.snap_points, snap == SnapMode::Points);
    // With points on, what edges are set to waits its turn.
    if (snap != SnapMode::Points)
        Keep(settings.snap_edges, snap == SnapMode::Edges);
    Keep(settings.last_build, host.workspace.BuildPath());
    if (host.view)
        Keep(settings.perspective, host.view->GetCamera().perspective);
}

void UseOwnColors(ViewColors& colors, const Settings& settings)
{
    colors.top = settings.background_top.Or(colors.top);
    colors.bottom = settings.background_bottom.Or(colors.bottom);
    colors.plate = settings.plate_color.Or(colors.plate);
    colors.volume = settings.envelope_color.Or(colors.volume);
    colors.grid = settings.grid_color.Or(colors.grid);
    colors.strong_grid = settings.grid_axes_color.Or(colors.strong_grid);
    colors.text = settings.text_color.Or(colors.text);
    colors.accent = settings.selection_color.Or(colors.accent);
    colors.edge = settings.edge_color.Or(colors.edge);
    colors.measure = settings.measure_color.Or(colors.measure);
    colors.measure_text = settings.measure_text_color.Or(colors.text);
    colors.candidate = settings.snap_color.Or(colors.candidate);
    colors.contour = settings.contour_color;
    colors.hatch = settings.hatch_color;
}

QRgb NewPartColor(const Settings& settings, int number)
{
    const MaterialProfile* const material = settings.materials.Find(settings.material);
    if (material && material->color.GetData().isValid())
        return material->color.GetData().rgb();
    constexpr int k_count = int(std::extent_v<decltype(Settings::part_colors)>);
    const int index = settings.color_in_turn ? number % k_count : 0;
    return settings.part_colors[index].Or(QColor::fromRgb(PartColor(index))).rgb();
}

Mesh PreparedForBuild(const Mesh& mesh, const Settings& settings)
{
    Mesh prepared = mesh;
    const Vec3 size = prepared.Bounds().Size();
    if (std::max({size.x, size.y, size.z}) < settings.inches_below)
        prepared =
            prepared.Mapped(Transform::Scaling({k_mm_per_inch, k_mm_per_inch, k_mm_per_inch}));
    if (settings.repair_at_import) {
        RepairReport report;
        prepared = RepairAll(prepared, report);
    }
    return prepared;
}

void UseMaterial(Settings& settings, const QString& name)
{
    const MaterialProfile* const material = settings.materials.Find(name);
    if (!material)
        return;
    Keep(settings.material, name);
    Keep(settings.density, material->density.GetData());
    Keep(settings.overhang, material->overhang.GetData());
    Keep(settings.layer_thickness, material->layer_thickness.GetData());
}

} // namespace tarnix
