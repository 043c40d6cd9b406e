#include "app/host_command.h"

#include "app/settings.h"
#include "view/scene_view.h"

namespace tarnix {
namespace {

constexpr double k_orbit_degrees = 15.0;
constexpr double k_zoom = 1.3;

template <int Azimuth, int Elevation> void LookFrom(Host& host)
{
    host.view->LookFrom({double(Azimuth), double(Elevation)});
}

template <int Azimuth, int Elevation> void Orbit(Host& host)
{
    host.view->Orbit(Azimuth * k_orbit_degrees, Elevation * k_orbit_degrees);
}

template <DisplayMode Mode> void SetMode(Host& host)
{
    host.workspace.ChangeView([](ViewState& state) {
        state.mode = Mode;
        state.layers.shown = false;
    });
    host.StoreSettings();
}

template <DisplayMode Mode> bool IsMode(const Host& host)
{
    return host.workspace.GetViewState().mode == Mode &&
           !host.workspace.GetViewState().layers.shown;
}

template <bool ViewState::*Flag> void Toggle(Host& host)
{
    host.workspace.ChangeView([](ViewState& state) { state.*Flag = !(state.*Flag); });
    host.StoreSettings();
}

template <bool ViewState::*Flag> bool IsOn(const Host& host)
{
    return host.workspace.GetViewState().*Flag;
}

void SetUnits(Host& host, bool inches)
{
    host.settings.inches.SetData(inches);
    host.ApplySettings();
}

const CommandSpec k_rows[] = {
    {"View.Home", Need::Nothing,
     [](Host& host) {
         Camera camera = host.view->GetCamera();
         const Camera start;
         camera.azimuth = start.azimuth;
         camera.elevation = start.elevation;
         const Box box = host.GetScene().Bounds();
         camera.Fit(box.IsEmpty() ? host.GetScene().GetPlate().Bounds() : box, host.view->size());
         host.view->GoTo(camera);
     }},
    {"View.Front", Need::Nothing, LookFrom<0, 0>},
    {"View.Back", Need::Nothing, LookFrom<180, 0>},
    {"View.Left", Need::Nothing, LookFrom<-90, 0>},
    {"View.Right", Need::Nothing, LookFrom<90, 0>},
    {"View.Top", Need::Nothing, LookFrom<0, 90>},
    {"View.Bottom", Need::Nothing, LookFrom<0, -90>},
    {"View.RotateLeft", Need::Nothing, Orbit<-1, 0>},
    {"View.RotateRight", Need::Nothing, Orbit<1, 0>},
    {"View.RotateUp", Need::Nothing, Orbit<0, 1>},
    {"View.RotateDown", Need::Nothing, Orbit<0, -1>},
    {"View.Previous", Need::FormerView, [](Host& host) { host.view->GoBack(); }},
    {"View.ZoomIn", Need::Nothing, [](Host& host) { host.view->Zoom(k_zoom); }},
    {"View.ZoomOut", Need::Nothing, [](Host& host) { host.view->Zoom(1.0 / k_zoom); }},
    {"View.ZoomAll", Need::VisibleParts,
     [](Host& host) { host.view->ZoomTo(host.GetScene().Bounds()); }},
    {"View.ZoomSelection", Need::Selection,
     [](Host& host) { host.view->ZoomTo(host.GetScene().Bounds(true)); }},
    {"View.ZoomPlate", Need::Nothing, [](Host& host) { host.view->ZoomTo(Box()); }},
    {"View.Perspective", Need::Nothing,
     [](Host& host) {
         host.view->SetPerspective(!host.view->GetCamera().perspective);
         host.StoreSettings();
     },
     [](const Host& host) { return host.view && host.view->GetCamera().perspective; }},
    {"Display.Shaded", Need::Nothing, SetMode<DisplayMode::Shaded>, IsMode<DisplayMode::Shaded>},
    {"Display.Edges", Need::Nothing, SetMode<DisplayMode::Edges>, IsMode<DisplayMode::Edges>},
    {"Display.Triangles", Need::Nothing, SetMode<DisplayMode::Triangles>,
     IsMode<DisplayMode::Triangles>},
    {"Display.Wireframe", Need::Nothing, SetMode<DisplayMode::Wireframe>,
     IsMode<DisplayMode::Wireframe>},
    {"Display.Transparent", Need::Nothing, SetMode<DisplayMode::Transparent>,
     IsMode<DisplayMode::Transparent>},
    {"Display.Boxes", Need::Nothing, SetMode<DisplayMode::Boxes>, IsMode<DisplayMode::Boxes>},
    {"Show.Plate", Need::Nothing, Toggle<&ViewState::plate>, IsOn<&ViewState::plate>},
    {"Show.Grid", Need::Nothing, Toggle<&ViewState::grid>, IsOn<&ViewState::grid>},
    {"Show.Volume", Need::Nothing, Toggle<&ViewState::volume>, IsOn<&ViewState::volume>},
    {"Show.Axes", Need::Nothing, Toggle<&ViewState::axes>, IsOn<&ViewState::axes>},
    {"Show.Labels", Need::Nothing, Toggle<&ViewState::labels>, IsOn<&ViewState::labels>},
    {"Show.Bounds", Need::Nothing, Toggle<&ViewState::bounds>, IsOn<&ViewState::bounds>},
    {"Show.ViewCube", Need::Nothing, Toggle<&ViewState::view_cube>, IsOn<&ViewState::view_cube>},
    {"Show.Shadows", Need::Nothing, Toggle<&ViewState::shadows>, IsOn<&ViewState::shadows>},
    {"Units.Mm", Need::Nothing, [](Host& host) { SetUnits(host, false); },
     [](const Host& host) { return !host.settings.inches.GetData(); }},
    {"Units.Inch", Need::Nothing, [](Host& host) { SetUnits(host, true); },
     [](const Host& host) { return host.settings.inches.GetData(); }},
};

} // namespace

CommandTable ViewCommands()
{
    return {k_rows, std::size(k_rows)};
}

} // namespace tarnix
