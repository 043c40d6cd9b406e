#include "../support/test_main.h"

#include "app/file_actions.h"
#include "host_fixture.h"
#include "model/primitives.h"
#include "preferences/apply_preferences.h"

#include <ovk/commands/ui_command.h>
#include <ovk/preferences/pref_ui.h>
#include <ovk/units/suffix_controller.h>

#include <QCryptographicHash>
#include <QDoubleSpinBox>
#include <QFile>
#include <QStatusBar>
#include <QTemporaryDir>

using namespace tarnix;
using tarnix_test::HostFixture;

namespace {

using Settings = tarnix::Settings;

/// A preference, what is done to it, and something in the program that must be another then.
struct Effect
{
    const char* name = nullptr;
    std::function<void(Settings&)> change;
    std::function<QString(HostFixture&)> look;
};

QString Picture(HostFixture& host)
{
    const QImage image = host.GetHost().view->Picture({240, 180});
    return QString::fromLatin1(
        QCryptographicHash::hash(
            QByteArray::fromRawData(reinterpret_cast<const char*>(image.constBits()),
                                    int(image.sizeInBytes())),
            QCryptographicHash::Md5)
            .toHex());
}

template <class Value> QString Text(const Value& value)
{
    return QVariant::fromValue(value).toString();
}

Mesh Plain()
{
    return MakeBox({1.0, 1.0, 1.0});
}

} // namespace

Q_DECLARE_METATYPE(Effect)

/// Every preference of the program beside what it changes: none is there for show.
class PreferenceEffectsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_host = std::make_unique<HostFixture>("Tarnix"); }
    void cleanupTestCase() { m_host.reset(); }
    void init()
    {
        m_host->CloseDialogs();
        S().RestoreDefaults();
        Apply();
    }
    void everyPreferenceDoesSomething_data();
    void everyPreferenceDoesSomething();
    void theStartViewIsOfTheNextStart();
    void partsFromFilesStayWhereTheyAreIfWanted();
    void unsavedPartsMayBeLostWithoutAQuestion();

private:
    Settings& S() { return m_host->GetHost().settings; }
    void Apply() { m_host->GetHost().ApplySettings(); }

    std::unique_ptr<HostFixture> m_host;
};

void PreferenceEffectsTest::everyPreferenceDoesSomething_data()
{
    static const auto toggle = [](ovk::Preference<bool>& preference) {
        preference.SetData(!preference.GetData());
    };
    static const QColor red(200, 10, 10);
    const std::vector<Effect> effects{
        {"theme", [](Settings& s) { s.theme.SetData(10); },
         [](HostFixture& h) { return Text(h.GetHost().view->Colors().top); }},
        {"accent", [](Settings& s) { s.accent.SetData(8); },
         [](HostFixture& h) { return Text(h.GetHost().view->Colors().accent); }},
        {"group titles", [](Settings& s) { toggle(s.group_titles); },
         [](HostFixture& h) { return Text(h.Window().ribbonBar()->isTitleGroupsVisible()); }},
        {"status bar", [](Settings& s) { toggle(s.status_bar); },
         [](HostFixture& h) { return Text(h.Window().statusBar()->isHidden()); }},
        {"decimals", [](Settings& s) { s.decimals.SetData(4); },
         [](HostFixture& h) { return h.GetWorkspace().Format().Length(1.0); }},
        {"font",
         [](Settings& s) {
             QFont font;
             font.setPointSize(20);
             s.scene_font.SetData(font);
         },
         Picture},
        {"unit", [](Settings& s) { toggle(s.inches); },
         [](HostFixture& h) { return h.GetWorkspace().Format().Length(1.0); }},
        {"move step", [](Settings& s) { s.move_step.SetData(7.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().move_step); }},
        {"turn step", [](Settings& s) { s.turn_step.SetData(7.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().turn_step); }},
        {"gap", [](Settings& s) { s.gap.SetData(7.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().arrange_gap); }},
        {"drag in steps", [](Settings& s) { toggle(s.snap_to_grid); },
         [](HostFixture& h) { return Text(h.GetWorkspace().snap_to_grid); }},
        {"snap to points", [](Settings& s) { toggle(s.snap_points); },
         [](HostFixture& h) { return Text(int(h.GetWorkspace().Snap())); }},
        {"snap to edges",
         [](Settings& s) {
             s.snap_points.SetData(false);
             s.snap_edges.SetData(true);
         },
         [](HostFixture& h) { return Text(int(h.GetWorkspace().Snap())); }},
        {"snap colour", [](Settings& s) { s.snap_color.SetData(red); },
         [](HostFixture& h) { return Text(h.GetHost().view->Colors().candidate); }},
        {"undo steps", [](Settings& s) { s.undo_steps.SetData(1); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetScene().UndoTitles().size()); }},
        {"plate width", [](Settings& s) { s.plate_width.SetData(100.0); }, Picture},
        {"plate depth", [](Settings& s) { s.plate_depth.SetData(100.0); }, Picture},
        {"plate height", [](Settings& s) { s.plate_height.SetData(100.0); }, Picture},
        {"density", [](Settings& s) { s.density.SetData(8.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().density); }},
        {"overhang", [](Settings& s) { s.overhang.SetData(60.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().overhang_degrees); }},
        {"material", [](Settings& s) { UseMaterial(s, "Resin"); },
         [](HostFixture& h) { return Text(h.GetWorkspace().density); }},
        {"material's colour",
         [](Settings& s) {
             s.materials.Find("PLA")->color.SetData(red);
             s.material.SetData("PLA");
         },
         [](HostFixture& h) { return Text(NewPartColor(h.GetHost().settings, 0)); }},
        {"display", [](Settings& s) { s.display.SetData(3); }, Picture},
        {"plate", [](Settings& s) { toggle(s.plate); }, Picture},
        {"grid", [](Settings& s) { toggle(s.grid); }, Picture},
        {"volume", [](Settings& s) { toggle(s.volume); }, Picture},
        {"axes", [](Settings& s) { toggle(s.axes); }, Picture},
        {"labels", [](Settings& s) { toggle(s.labels); }, Picture},
        {"view cube", [](Settings& s) { toggle(s.view_cube); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().view_cube); }},
        {"shadows", [](Settings& s) { toggle(s.shadows); }, Picture},
        {"perspective", [](Settings& s) { toggle(s.perspective); }, Picture},
        {"grid step", [](Settings& s) { s.grid_step.SetData(30.0); }, Picture},
        {"strong lines", [](Settings& s) { s.grid_major.SetData(3); }, Picture},
        {"smooth shading", [](Settings& s) { toggle(s.smooth_shading); }, Picture},
        {"fine edges", [](Settings& s) { toggle(s.fine_edges); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().fine); }},
        {"orbit speed", [](Settings& s) { s.orbit_speed.SetData(2.0); },
         [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().orbit_speed); }},
        {"zoom speed", [](Settings& s) { s.zoom_speed.SetData(2.0); },
         [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().zoom_speed); }},
        {"wheel", [](Settings& s) { toggle(s.invert_wheel); },
         [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().invert_wheel); }},
        {"drag pixels", [](Settings& s) { s.drag_pixels.SetData(9); },
         [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().drag_pixels); }},
        {"flight", [](Settings& s) { s.flight_ms.SetData(0); },
         [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().flight_ms); }},
        {"former views", [](Settings& s) { s.former_views.SetData(2); },
         [](HostFixture& h) { return Text(int(h.GetHost().view->GetHandling().former_views)); }},
        {"background above", [](Settings& s) { s.background_top.SetData(red); }, Picture},
        {"background below", [](Settings& s) { s.background_bottom.SetData(red); }, Picture},
        {"plate colour", [](Settings& s) { s.plate_color.SetData(red); }, Picture},
        {"volume colour", [](Settings& s) { s.envelope_color.SetData(red); }, Picture},
        {"grid colour", [](Settings& s) { s.grid_color.SetData(red); }, Picture},
        {"strong grid colour", [](Settings& s) { s.grid_axes_color.SetData(red); }, Picture},
        {"text colour", [](Settings& s) { s.text_color.SetData(red); }, Picture},
        {"selection colour", [](Settings& s) { s.selection_color.SetData(red); }, Picture},
        {"edge colour", [](Settings& s) { s.edge_color.SetData(red); }, Picture},
        {"part colour", [](Settings& s) { s.part_colors[2].SetData(red); },
         [](HostFixture& h) { return Text(NewPartColor(h.GetHost().settings, 2)); }},
        {"colours in turn", [](Settings& s) { toggle(s.color_in_turn); },
         [](HostFixture& h) { return Text(NewPartColor(h.GetHost().settings, 2)); }},
        {"measure colour", [](Settings& s) { s.measure_color.SetData(red); }, Picture},
        {"measure text colour", [](Settings& s) { s.measure_text_color.SetData(red); }, Picture},
        {"measure width", [](Settings& s) { s.measure_width.SetData(6.0); }, Picture},
        {"contour colour", [](Settings& s) { s.contour_color.SetData(red); },
         [](HostFixture& h) { return Text(h.GetHost().view->Colors().contour); }},
        {"hatch colour", [](Settings& s) { s.hatch_color.SetData(red); },
         [](HostFixture& h) { return Text(h.GetHost().view->Colors().hatch); }},
        {"layer thickness", [](Settings& s) { s.layer_thickness.SetData(1.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().Layers().Count()); }},
        {"hatch spacing", [](Settings& s) { s.hatch_spacing.SetData(3.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().layers.hatch_spacing); }},
        {"hatch angle", [](Settings& s) { s.hatch_angle.SetData(10.0); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().layers.hatch_degrees); }},
        {"hatch cross", [](Settings& s) { toggle(s.hatch_cross); },
         [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().layers.crossed); }},
        {"repair at import", [](Settings& s) { toggle(s.repair_at_import); },
         [](HostFixture& h) {
             Mesh mesh = Plain();
             std::vector<Triangle> triangles = mesh.Triangles();
             triangles.pop_back();
             return Text(int(PreparedForBuild(Mesh(mesh.Points(), triangles), h.GetHost().settings)
                                 .Triangles()
                                 .size()));
         }},
        {"inches below", [](Settings& s) { s.inches_below.SetData(3); },
         [](HostFixture& h) {
             return Text(PreparedForBuild(Plain(), h.GetHost().settings).Bounds().Size().x);
         }},
        {"recent files", [](Settings& s) { s.recent_count.SetData(1); },
         [](HostFixture& h) {
             h.GetHost().ClearRecent();
             h.GetHost().AddRecent("/one.stl");
             h.GetHost().AddRecent("/two.stl");
             return Text(h.GetHost().RecentFiles().size());
         }},
        {"box", [](Settings& s) { s.box_x.SetData(99.0); },
         [](HostFixture& h) {
             h.CloseDialogs();
             h.Run("Add.Box");
             auto* const dialog = h.Window().findChild<QDialog*>("numberDialog");
             return dialog ? dialog->findChildren<QDoubleSpinBox*>().front()->text() : QString();
         }},
        {"prism corners", [](Settings& s) { s.prism_n.SetData(9); },
         [](HostFixture& h) {
             h.CloseDialogs();
             h.Run("Add.Prism");
             auto* const dialog = h.Window().findChild<QDialog*>("numberDialog");
             return dialog ? dialog->findChildren<QDoubleSpinBox*>().back()->text() : QString();
         }},
        {"unit inside fields",
         [](Settings&) { g_pref_suffix_in_editor.SetData(!g_pref_suffix_in_editor.GetData()); },
         [](HostFixture&) { return Text(ovk::SuffixController::GetInstance().IsInsideEditor()); }},
    };
    QTest::addColumn<Effect>("effect");
    for (const Effect& effect : effects)
        QTest::newRow(effect.name) << effect;
}

void PreferenceEffectsTest::everyPreferenceDoesSomething()
{
    QFETCH(Effect, effect);
    m_host->PrepareScene();
    m_host->GetWorkspace().StopMeasuring();
    m_host->GetWorkspace().GetScene().SetMostSteps(200);
    m_host->GetWorkspace().ChangeView([](ViewState& state) {
        state.section.on = false;
        state.layers.shown = false;
        state.labels = false;
    });
    m_host->GetWorkspace().AddMeasurement(
        *Measure(MeasureKind::Distance, {{-50, 0, 40}, {50, 0, 40}}));
    Camera camera;
    camera.elevation = 60.0;
    camera.azimuth = 0.0;
    camera.height = 221.0;
    m_host->GetHost().view->GoTo(camera, true);
    Apply();
    const QString before = effect.look(*m_host);
    effect.change(S());
    Apply();
    QVERIFY2(effect.look(*m_host) != before, qPrintable(before));
    if (qstrcmp(effect.name, "unit inside fields") == 0)
        g_pref_suffix_in_editor.SetData(false);
}

void PreferenceEffectsTest::theStartViewIsOfTheNextStart()
{
    S().start_view.Set(400.0, -120.0);
    QCOMPARE(S().start_view.Azimuth(), 40.0);
    QCOMPARE(S().start_view.Elevation(), -90.0);
    SceneView view(m_host->GetWorkspace());
    view.SetStartView(S().start_view.Azimuth(), S().start_view.Elevation());
    QCOMPARE(view.GetCamera().azimuth, 40.0);
    QCOMPARE(view.GetCamera().elevation, -90.0);
}

void PreferenceEffectsTest::partsFromFilesStayWhereTheyAreIfWanted()
{
    Scene& scene = m_host->GetWorkspace().GetScene();
    QTemporaryDir folder;
    const QString path = folder.filePath("far.stl");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("solid far\nfacet normal 0 0 1\nouter loop\nvertex 60 60 1\nvertex 70 60 1\nvertex "
               "60 70 2\n"
               "endloop\nendfacet\nendsolid far\n");
    file.close();
    scene.Reset({});
    QVERIFY(ImportFiles(m_host->GetHost(), {path}));
    QVERIFY(scene.Parts()[0].Bounds().low.x < 10.0);
    scene.Reset({});
    S().place_at_import.SetData(false);
    QVERIFY(ImportFiles(m_host->GetHost(), {path}));
    QCOMPARE(scene.Parts()[0].Bounds().low.x, 60.0);
    QCOMPARE(scene.Parts()[0].Bounds().low.z, 1.0);
}

void PreferenceEffectsTest::unsavedPartsMayBeLostWithoutAQuestion()
{
    m_host->PrepareScene();
    QVERIFY(m_host->GetWorkspace().GetScene().IsModified());
    bool ran = false;
    UnlessUnsaved(m_host->GetHost(), "yes", [&] { ran = true; });
    QVERIFY(!ran);
    S().dont_ask_unsaved.SetData(true);
    UnlessUnsaved(m_host->GetHost(), "yes", [&] { ran = true; });
    QVERIFY(ran);
}

OVK_TEST_CLASS(PreferenceEffectsTest)

#include "preference_effects_test.moc"
