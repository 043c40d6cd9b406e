#include "app/solids.h"

#include "app/host.h"
#include "app/settings.h"
#include "model/primitives.h"
#include "preferences/apply_preferences.h"

#include <algorithm>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::EditCommands)
};

/// A field that starts with what the preferences say; radii are asked for as diameters.
NumberField Length(const QString& label, const LengthPreference& preference, double factor = 1.0)
{
    return {label, preference * factor, preference.Low() * factor, preference.High() * factor, NumberField::Length};
}

} // namespace

std::vector<Solid> Solids()
{
    using Values = std::vector<double>;
    const Settings& now = Settings::GetInstance();
    return {
        {"Add.Box",
         Texts::tr("Box"),
         {Length(Texts::tr("Width:"), now.box_x), Length(Texts::tr("Depth:"), now.box_y),
          Length(Texts::tr("Height:"), now.box_z)},
         [](const Values& v) {
             return MakeBox({v[0], v[1], v[2]});
         }},
        {"Add.Cylinder",
         Texts::tr("Cylinder"),
         {Length(Texts::tr("Diameter:"), now.cylinder_r, 2.0), Length(Texts::tr("Height:"), now.cylinder_h)},
         [](const Values& v) { return MakeCylinder(v[0] / 2, v[1], 96); }},
        {"Add.Cone",
         Texts::tr("Cone"),
         {Length(Texts::tr("Lower diameter:"), now.cone_r1, 2.0),
          Length(Texts::tr("Upper diameter:"), now.cone_r2, 2.0),
          Length(Texts::tr("Height:"), now.cone_h)},
         [](const Values& v) { return MakeCone(v[0] / 2, v[1] / 2, v[2], 96); }},
        {"Add.Sphere",
         Texts::tr("Sphere"),
         {Length(Texts::tr("Diameter:"), now.sphere_r, 2.0)},
         [](const Values& v) { return MakeSphere(v[0] / 2, 48); }},
        {"Add.Torus",
         Texts::tr("Ring"),
         {Length(Texts::tr("Outer diameter:"), now.torus_r1, 2.0), Length(Texts::tr("Thickness:"), now.torus_r2, 2.0)},
         [](const Values& v) {
             const double tube = std::min(v[1] / 2, v[0] / 4 * 0.98);
             return MakeTorus(v[0] / 2 - tube, tube, 96);
         }},
        {"Add.Prism",
         Texts::tr("Prism"),
         {Length(Texts::tr("Diameter over corners:"), now.prism_r, 2.0),
          Length(Texts::tr("Height:"), now.prism_h),
          {Texts::tr("Corners:"), double(now.prism_n), 3, 64, NumberField::Count}},
         [](const Values& v) { return MakePrism(v[0] / 2, v[1], int(v[2])); }},
    };
}

void AddSolid(Host& host, const QString& name, Mesh mesh)
{
    Part part(name, std::make_shared<const Mesh>(std::move(mesh)),
              NewPartColor(host.settings, host.GetScene().Count()));
    const Box present = host.GetScene().Bounds();
    if (!present.IsEmpty() && present.Intersects(part.Bounds()))
        part.Apply(Transform::Translation(
            {present.high.x + host.workspace.arrange_gap - part.Bounds().low.x, 0.0, 0.0}));
    host.GetScene().Add(Phrase("tarnix::EditCommands", QT_TRANSLATE_NOOP("tarnix::EditCommands", "Add %1"), name),
                        {part});
}

} // namespace tarnix
