#include "app/host.h"
#include "app/language.h"
#include "app/settings.h"
#include "preferences/apply_preferences.h"
#include "preferences/preference_delegates.h"
#include "preferences/preferences_page.h"
#include "view/scene_view.h"

#include <ovk/preferences/pref_ui.h>
#include <qtitan/style.h>

namespace tarnix {
namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(tarnix::Options)
};

const QString k_degrees = QString(QChar(0x00b0));

void FillUnits(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("Units and Steps"));
    form.AddSection(Texts::tr("Numbers"));
    form.AddWhole({Texts::tr("Decimals of lengths"),
                   Texts::tr("Digits behind the point in millimetres; two more in inches.")},
                  s.decimals);
    form.AddSwitch({Texts::tr("Unit inside the fields"),
                    Texts::tr("Shows the unit inside the fields of dialogs, and not beside them.")},
                   g_pref_suffix_in_editor);
    form.AddSection(Texts::tr("Moving and Turning"));
    form.AddLength(
        {Texts::tr("Step of moving"), Texts::tr("How far the arrows move the selected parts.")},
        s.move_step);
    form.AddSwitch({Texts::tr("Drag parts in steps"),
                    Texts::tr("Parts that are dragged go from step to step.")},
                   s.snap_to_grid);
    form.AddWhole({Texts::tr("Way until a drag begins"),
                   Texts::tr("How far the pointer moves before a press becomes a drag.")},
                  s.drag_pixels, Texts::tr(" px"));
    form.AddNumber({Texts::tr("Step of turning"),
                    Texts::tr("The angle of the commands that turn to the left and right.")},
                   s.turn_step, k_degrees, 2, 5.0);
    form.AddSwitch({Texts::tr("Turn in steps only"),
                    Texts::tr("Angles that are typed come to the nearest step.")},
                   s.snap_turns);
    form.AddLength(
        {Texts::tr("Gap between parts"), Texts::tr("Kept free when parts are arranged and added.")},
        s.gap);
    form.AddSection(Texts::tr("Undo"));
    form.AddWhole({Texts::tr("Steps that can be undone"), Texts::tr("Older steps are forgotten.")},
                  s.undo_steps);
}

void FillLook(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("Window"));
    form.AddSection(Texts::tr("Look"));
    form.AddChoice({Texts::tr("Theme"), Texts::tr("The colours of the window.")}, s.theme,
                   {QStringLiteral("Office 2007 Blue"), QStringLiteral("Office 2007 Black"),
                    QStringLiteral("Office 2007 Silver"), QStringLiteral("Office 2007 Aqua"),
                    QStringLiteral("Windows 7 Scenic"), QStringLiteral("Office 2010 Silver"),
                    QStringLiteral("Office 2010 Blue"), QStringLiteral("Office 2010 Black"),
                    QStringLiteral("Office 2013 White"), QStringLiteral("Office 2013 Gray"),
                    QStringLiteral("Office 2013 Dark")});
    form.AddChoice(
        {Texts::tr("Accent"), Texts::tr("The colour of the ribbon and of what is selected.")},
        s.accent,
        {Texts::tr("Blue"), Texts::tr("Brown"), Texts::tr("Green"), Texts::tr("Lime"),
         Texts::tr("Magenta"), Texts::tr("Orange"), Texts::tr("Pink"), Texts::tr("Purple"),
         Texts::tr("Red"), Texts::tr("Teal")});
    QStringList names{Texts::tr("As the system (%1)").arg(Language::NameOf(QString()))};
    QVariantList codes{QString()};
    for (const QString& code : Language::Available()) {
        names.append(Language::NameOf(code));
        codes.append(code);
    }
    form.AddRow(
        {Texts::tr("Language"), Texts::tr("Every text that is visible follows at once.")},
        new ChoiceDelegate(names, codes), [&s] { return QVariant(s.language.GetData()); },
        [&s](const QVariant& value) { s.language.SetData(value.toString()); }, &s.language);
    form.AddSection(Texts::tr("Parts of the Window"));
    form.AddSwitch(
        {Texts::tr("Show the titles of groups"), Texts::tr("Below the groups of the ribbon.")},
        s.group_titles);
    form.AddSwitch({Texts::tr("Ribbon in the caption of the window"),
                    Texts::tr("The window draws its own caption.")},
                   s.own_frame);
    form.AddSwitch(
        {Texts::tr("Status bar"), Texts::tr("Shows the pointer, the selection and the unit.")},
        s.status_bar);
    form.AddWhole(
        {Texts::tr("Messages stay for"), Texts::tr("How long a message stands in the status bar.")},
        s.message_seconds, Texts::tr(" s"));
}

void FillFiles(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("Files"));
    form.AddSection(Texts::tr("Opening and Leaving"));
    form.AddSwitch({Texts::tr("Open the last build at the start"),
                    Texts::tr("The program goes on where it was left.")},
                   s.reopen_last);
    form.AddInvertedSwitch({Texts::tr("Ask before unsaved parts are lost"),
                            Texts::tr("When the program is left or another build is opened.")},
                           s.dont_ask_unsaved);
    form.AddWhole(
        {Texts::tr("Recent files"), Texts::tr("How many files the program remembers from now on.")},
        s.recent_count);
    form.AddSection(Texts::tr("Import"));
    form.AddSwitch(
        {Texts::tr("Place new parts"), Texts::tr("Parts from files find a free place on the plate; "
                                                 "otherwise they stay where their file has them.")},
        s.place_at_import);
    form.AddSwitch({Texts::tr("Repair new parts"),
                    Texts::tr("Parts from files are joined, closed and turned right side out.")},
                   s.repair_at_import);
    form.AddWhole({Texts::tr("Inches if smaller than"),
                   Texts::tr("A part from a file whose longest side is shorter is taken to be in "
                             "inches; 0 for none.")},
                  s.inches_below, Texts::tr(" mm"));
    form.AddSection(Texts::tr("Saved Pictures"));
    form.AddWhole(
        {Texts::tr("Picture width"), Texts::tr("Of the pictures that are saved to a file.")},
        s.picture_width, Texts::tr(" px"));
    form.AddWhole(
        {Texts::tr("Picture height"), Texts::tr("Of the pictures that are saved to a file.")},
        s.picture_height, Texts::tr(" px"));
}

void FillView(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("View"));
    form.AddSection(Texts::tr("Parts"));
    form.AddChoice({Texts::tr("Display"), Texts::tr("How parts are drawn.")}, s.display,
                   {Texts::tr("Shaded"), Texts::tr("Shaded with edges"),
                    Texts::tr("Shaded with triangles"), Texts::tr("Wireframe"),
                    Texts::tr("Transparent"), Texts::tr("Boxes")});
    form.AddSwitch({Texts::tr("Smooth shading"), Texts::tr("Light runs smoothly over soft bends.")},
                   s.smooth_shading);
    form.AddSwitch({Texts::tr("Fine edges"), Texts::tr("A view at rest is drawn twice as fine.")},
                   s.fine_edges);
    form.AddSwitch({Texts::tr("Names of parts"), QString()}, s.labels);
    form.AddFont(
        {Texts::tr("Font of texts in the scene"), Texts::tr("Names, sizes and measurements.")},
        s.scene_font);
    form.AddSection(Texts::tr("Around the Parts"));
    form.AddSwitch({Texts::tr("Plate"), QString()}, s.plate);
    form.AddSwitch({Texts::tr("Shadows"), Texts::tr("Of the parts on the plate.")}, s.shadows);
    form.AddSwitch({Texts::tr("Build volume"), QString()}, s.volume);
    form.AddSwitch({Texts::tr("Axes"), QString()}, s.axes);
    form.AddSwitch({Texts::tr("View cube"), QString()}, s.view_cube);
    form.AddSection(Texts::tr("Grid"));
    form.AddSwitch({Texts::tr("Grid"), QString()}, s.grid);
    form.AddLength({Texts::tr("Distance of the lines"),
                    Texts::tr("0 for the usual one of the unit: 10 mm, half an inch.")},
                   s.grid_step);
    form.AddWhole({Texts::tr("Strong lines"), Texts::tr("Every so many lines is a strong one.")},
                  s.grid_major);

    form.AddPage(Texts::tr("Camera"));
    form.AddSection(Texts::tr("Mouse"));
    form.AddNumber({Texts::tr("Speed of turning"), Texts::tr("1 is the usual one.")}, s.orbit_speed,
                   Texts::tr(" times"), 1, 0.1);
    form.AddNumber({Texts::tr("Speed of zooming"), Texts::tr("1 is the usual one.")}, s.zoom_speed,
                   Texts::tr(" times"), 1, 0.1);
    form.AddSwitch({Texts::tr("Turn the wheel the other way"), QString()}, s.invert_wheel);
    form.AddSection(Texts::tr("Views"));
    form.AddSwitch({Texts::tr("Perspective"), Texts::tr("What is far away is smaller.")},
                   s.perspective);
    form.AddWhole({Texts::tr("Flight to another view"), Texts::tr("0 to be there at once.")},
                  s.flight_ms, Texts::tr(" ms"));
    form.AddWhole({Texts::tr("Views to go back to"), QString()}, s.former_views);
    form.AddRow(
        {Texts::tr("View at the start"),
         Texts::tr("From where the program looks at the plate when it starts.")},
        new ActionDelegate([&host] {
            if (host.view)
                host.settings.start_view.Set(host.view->GetCamera().azimuth,
                                             host.view->GetCamera().elevation);
        }),
        [&s] {
            return QVariant(
                Texts::tr("Take the present one (now %1, %2)")
                    .arg(QString::number(qRound(s.start_view.Azimuth())) + k_degrees,
                         QString::number(qRound(s.start_view.Elevation())) + k_degrees));
        },
        [](const QVariant&) {}, &s.start_view, &s.start_view);
}

void FillColors(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("Colours"));
    form.AddSection(Texts::tr("Scene"));
    form.AddColor({Texts::tr("Background, above"), QString()}, s.background_top,
                  Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Background, below"), QString()}, s.background_bottom,
                  Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Plate"), QString()}, s.plate_color, Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Build volume"), QString()}, s.envelope_color,
                  Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Grid"), QString()}, s.grid_color, Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Grid, strong lines"), QString()}, s.grid_axes_color,
                  Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Texts"), QString()}, s.text_color, Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Selection"), QString()}, s.selection_color,
                  Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Edges"), QString()}, s.edge_color, Texts::tr("As the theme"));
    form.AddSection(Texts::tr("New Parts"));
    for (int i = 0; i < 5; ++i)
        form.AddColor({Texts::tr("Colour %1").arg(i + 1), QString()}, s.part_colors[i],
                      Texts::tr("As the theme"));
    form.AddSwitch({Texts::tr("Take the colours in turn"),
                    Texts::tr("Otherwise all new parts have the first colour.")},
                   s.color_in_turn);
}

void FillMaterials(PreferenceForm& form, Host& host, const std::function<void()>& rebuild)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("Machine and Material"));
    form.AddSection(Texts::tr("Build Volume"));
    form.AddLength({Texts::tr("Width"), QString()}, s.plate_width);
    form.AddLength({Texts::tr("Depth"), QString()}, s.plate_depth);
    form.AddLength({Texts::tr("Height"), QString()}, s.plate_height);
    form.AddSection(Texts::tr("Material"));
    QStringList names{Texts::tr("Own figures")};
    QVariantList values{QString()};
    for (int i = 0; i < s.materials.Count(); ++i) {
        names.append(s.materials.At(i)->name);
        values.append(s.materials.At(i)->name.GetData());
    }
    form.AddRow(
        {Texts::tr("Material in use"), Texts::tr("Brings its figures along.")},
        new ChoiceDelegate(names, values), [&s] { return QVariant(s.material.GetData()); },
        [&s](const QVariant& value) {
            s.material.SetData(value.toString());
            UseMaterial(s, s.material);
        },
        &s.material, &s.material);
    form.AddNumber({Texts::tr("Density"), Texts::tr("For the weight of parts.")}, s.density,
                   QString::fromUtf8(" g/cm\u00b3"), 2, 0.01);
    form.AddNumber({Texts::tr("Overhang limit"), Texts::tr("Flatter surfaces need a support.")},
                   s.overhang, k_degrees, 1, 1.0);
    form.AddLength({Texts::tr("Layer thickness"), QString()}, s.layer_thickness);
    for (int i = 0; i < s.materials.Count(); ++i) {
        MaterialProfile& profile = *s.materials.At(i);
        // The figures of the material in use are in use.
        const auto use = [&s, &profile] {
            if (profile.name.GetData() == s.material.GetData())
                UseMaterial(s, s.material);
        };
        const auto number = [&form, use](const PreferenceForm::Title& title,
                                         DoublePreference& preference,
                                         ovk::TreeItemDelegateBase* delegate) {
            form.AddRow(
                title, delegate, [&preference] { return QVariant(preference.GetData()); },
                [&preference, use](const QVariant& value) {
                    preference.SetData(value.toDouble());
                    use();
                },
                &preference, &preference);
        };
        form.AddSection(Texts::tr("Profile \"%1\"").arg(profile.name));
        form.AddRow(
            {Texts::tr("Name"), QString()}, new TextDelegate,
            [&profile] { return QVariant(profile.name.GetData()); },
            [&s, &profile, rebuild](const QVariant& value) {
                const QString name = value.toString().simplified();
                // Two of one name could not be told apart.
                if (!name.isEmpty() && !s.materials.Find(name)) {
                    const bool used = profile.name.GetData() == s.material.GetData();
                    profile.name.SetData(name);
                    if (used)
                        s.material.SetData(name);
                }
                rebuild();
            },
            &profile.name);
        number({Texts::tr("Density"), QString()}, profile.density,
               new NumberDelegate(QString::fromUtf8(" g/cm\u00b3"), 0.1, 25.0, 2, 0.01));
        number({Texts::tr("Overhang limit"), QString()}, profile.overhang,
               new NumberDelegate(k_degrees, 5.0, 85.0, 1, 1.0));
        number({Texts::tr("Layer thickness"), QString()}, profile.layer_thickness,
               new LengthDelegate(0.01, 5.0));
        form.AddColor({Texts::tr("Colour of new parts"),
                       Texts::tr("Otherwise the colours of the options in turn.")},
                      profile.color, Texts::tr("In turn"));
        if (s.materials.Count() > 1)
            form.AddAction({Texts::tr("This profile"), QString()}, Texts::tr("Remove"),
                           [&s, i, rebuild] {
                               if (s.materials.At(i) &&
                                   s.materials.At(i)->name.GetData() == s.material.GetData())
                                   s.material.SetData(QString());
                               s.materials.Remove(i);
                               rebuild();
                           });
    }
    form.AddSection(Texts::tr("More Profiles"));
    form.AddAction({Texts::tr("A profile with the figures in use"), QString()},
                   Texts::tr("Add Profile"), [&s, rebuild] {
                       QString name;
                       for (int number = s.materials.Count() + 1;
                            name.isEmpty() || s.materials.Find(name); ++number)
                           name = Texts::tr("Material %1").arg(number);
                       s.materials.Add(name, s.density, s.overhang, s.layer_thickness);
                       rebuild();
                   });
}

void FillInspect(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("Measuring"));
    form.AddSection(Texts::tr("Snapping"));
    form.AddSwitch({Texts::tr("To points"), Texts::tr("A click takes the nearest corner.")},
                   s.snap_points);
    form.AddSwitch(
        {Texts::tr("To edges"),
         Texts::tr("A click takes the nearest place of an edge, unless it goes to points.")},
        s.snap_edges);
    form.AddColor({Texts::tr("Point that is taken"), QString()}, s.snap_color,
                  Texts::tr("As the theme"));
    form.AddSection(Texts::tr("Measurements"));
    form.AddColor({Texts::tr("Lines"), QString()}, s.measure_color, Texts::tr("As the theme"));
    form.AddColor({Texts::tr("Figures"), QString()}, s.measure_text_color,
                  Texts::tr("As the theme"));
    form.AddNumber({Texts::tr("Width of lines"), QString()}, s.measure_width, Texts::tr(" px"), 1,
                   0.2);

    form.AddPage(Texts::tr("Layers"));
    form.AddSection(Texts::tr("Hatching"));
    form.AddLength({Texts::tr("Distance of hatch lines"), QString()}, s.hatch_spacing);
    form.AddNumber({Texts::tr("Angle of hatch lines"), QString()}, s.hatch_angle, k_degrees, 1,
                   5.0);
    form.AddSwitch({Texts::tr("Cross every other layer"), QString()}, s.hatch_cross);
    form.AddSection(Texts::tr("Colours of Layers"));
    form.AddColor({Texts::tr("Contours"), Texts::tr("Otherwise the colour of each part.")},
                  s.contour_color, Texts::tr("As the part"));
    form.AddColor({Texts::tr("Hatch lines"), Texts::tr("Otherwise the colour of each part.")},
                  s.hatch_color, Texts::tr("As the part"));
    form.AddSection(Texts::tr("Playing"));
    form.AddWhole({Texts::tr("Time of a step"), Texts::tr("When the layers are run through.")},
                  s.play_interval, Texts::tr(" ms"));
}

void FillSolids(PreferenceForm& form, Host& host)
{
    Settings& s = host.settings;
    form.AddPage(Texts::tr("New Solids"));
    form.AddSection(Texts::tr("Box"));
    form.AddLength({Texts::tr("Width"), QString()}, s.box_x);
    form.AddLength({Texts::tr("Depth"), QString()}, s.box_y);
    form.AddLength({Texts::tr("Height"), QString()}, s.box_z);
    form.AddSection(Texts::tr("Cylinder"));
    form.AddLength({Texts::tr("Radius"), QString()}, s.cylinder_r);
    form.AddLength({Texts::tr("Height"), QString()}, s.cylinder_h);
    form.AddSection(Texts::tr("Cone"));
    form.AddLength({Texts::tr("Lower radius"), QString()}, s.cone_r1);
    form.AddLength({Texts::tr("Upper radius"), QString()}, s.cone_r2);
    form.AddLength({Texts::tr("Height"), QString()}, s.cone_h);
    form.AddSection(Texts::tr("Prism"));
    form.AddLength({Texts::tr("Radius over corners"), QString()}, s.prism_r);
    form.AddLength({Texts::tr("Height"), QString()}, s.prism_h);
    form.AddWhole({Texts::tr("Corners"), QString()}, s.prism_n);
    form.AddSection(Texts::tr("Sphere"));
    form.AddLength({Texts::tr("Radius"), QString()}, s.sphere_r);
    form.AddSection(Texts::tr("Ring"));
    form.AddLength({Texts::tr("Outer radius"), QString()}, s.torus_r1);
    form.AddLength({Texts::tr("Radius of the tube"), QString()}, s.torus_r2);
}

} // namespace

void FillPreferenceForm(PreferenceForm& form, Host& host, const std::function<void()>& rebuild)
{
    FillUnits(form, host);
    FillLook(form, host);
    FillFiles(form, host);
    FillView(form, host);
    FillColors(form, host);
    FillMaterials(form, host, rebuild);
    FillInspect(form, host);
    FillSolids(form, host);
}

} // namespace tarnix
