#include "../support/test_main.h"

#include "app/file_actions.h"
#include "app/transform_dialog.h"
#include "host_fixture.h"
#include "model/primitives.h"
#include "preferences/apply_preferences.h"
#include "preferences/preferences_page.h"

#include <ovk/commands/ui_command.h>
#include <ovk/preferences/pref_ui.h>
#include <ovk/preferences/preferences_controller.h>
#include <ovk/units/edit_dbl_suffix.h>
#include <ovk/units/suffix_controller.h>
#include <ovk/units/units_controller.h>
#include <ovk/widgets/tree_edit/tree_edit.h>
#include <ovk/widgets/tree_edit/tree_edit_item.h>

#include <QCheckBox>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

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
        QCryptographicHash::hash(QByteArray::fromRawData(reinterpret_cast<const char*>(image.constBits()),
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

/// The preferences of the program, and the page on which the user changes them.
class PreferencesPageTest : public QObject
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

    void thereAreManyInManyChapters()
    {
        int preferences = 0;
        int chapters = 0;
        Count(ovk::PreferencesController::GetInstance()->GetRootChapter(), preferences, chapters);
        QVERIFY2(preferences >= 60, qPrintable(QString::number(preferences)));
        QVERIFY2(chapters >= 12, qPrintable(QString::number(chapters)));
    }

    void everyPreferenceDoesSomething_data();
    void everyPreferenceDoesSomething();
    void theStartViewIsOfTheNextStart();
    void theProgramReadsWhatItWrites();
    void restoringBringsEverythingBack();
    void commandsAreNotUndoneByOtherChanges();

    void thePageShowsOneOfItsPages();
    void aSearchFindsRowsOfAllPages();
    void lengthsFollowTheUnit();
    void aChangeIsSeenAtOnce();
    void whatIsShownIsRestored();
    void materialsComeAndGo();
    void anInvertedRowIsShownInverted();
    void theUnitGoesIntoTheFields();
    void thePageComesBackAsItWas();
    void partsFromFilesStayWhereTheyAreIfWanted();
    void unsavedPartsMayBeLostWithoutAQuestion();
    void oldFilesAreTakenOverOnThePage();

    void theDialogOfMovesLoadsAndCommits();
    void theDialogOfMovesRefusesWhatLeavesTheVolume();
    void theDialogOfMovesKeepsChangesWhenTheUnitChanges();
    void anEmptyFieldIsNotCommitted();

private:
    Settings& S() { return m_host->GetHost().settings; }
    void Apply() { m_host->GetHost().ApplySettings(); }
    static void Count(const ovk::PreferenceChapter& chapter, int& preferences, int& chapters)
    {
        for (const ovk::PreferenceBasics* item : chapter.Items()) {
            if (auto* const child = dynamic_cast<const ovk::PreferenceChapter*>(item)) {
                ++chapters;
                Count(*child, preferences, chapters);
            } else {
                ++preferences;
            }
        }
    }
    PreferencesPage* OpenPage(int page)
    {
        m_host->Window().ShowOptions();
        QCoreApplication::processEvents();
        auto* const options = m_host->Window().findChild<PreferencesPage*>("options");
        options->findChild<QLineEdit*>("optionsSearch")->clear();
        options->findChild<QListWidget*>("optionsPages")->setCurrentRow(page);
        QCoreApplication::processEvents();
        return options;
    }
    static ovk::TreeEdit* Tree(PreferencesPage* page) { return page->findChild<ovk::TreeEdit*>("optionsTree"); }
    static QStringList Sections(PreferencesPage* page)
    {
        QStringList titles;
        const QAbstractItemModel* const model = Tree(page)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            titles << model->index(row, 0).data().toString();
        return titles;
    }
    /// The editor of the first row that is seen of that title.
    template <class Editor> static Editor* EditorOf(PreferencesPage* page, const QString& title)
    {
        const QAbstractItemModel* const model = Tree(page)->model();
        for (int section = 0; section < model->rowCount(); ++section) {
            const QModelIndex parent = model->index(section, 0);
            for (int row = 0; row < model->rowCount(parent); ++row) {
                if (model->index(row, 0, parent).data().toString() == title)
                    return qobject_cast<Editor*>(
                        ovk::TreeEdit::GetItem(model->index(row, 0, parent))->GetEditor());
            }
        }
        return nullptr;
    }
    QDialog* OpenMoves()
    {
        m_host->CloseDialogs();
        Scene& scene = m_host->GetWorkspace().GetScene();
        scene.Reset({});
        scene.Add(QStringLiteral("Add"), {Part("box", std::make_shared<const Mesh>(MakeBox({20, 10, 5})), PartColor(0))});
        m_host->GetWorkspace().last_move = MoveTurn();
        return m_host->Run("Move.By") ? m_host->Window().findChild<QDialog*>("transformDialog") : nullptr;
    }

    std::unique_ptr<HostFixture> m_host;
};

void PreferencesPageTest::everyPreferenceDoesSomething_data()
{
    static const auto toggle = [](ovk::Preference<bool>& preference) { preference.SetData(!preference.GetData()); };
    static const QColor red(200, 10, 10);
    const std::vector<Effect> effects{
        {"theme", [](Settings& s) { s.theme.SetData(10); }, [](HostFixture& h) { return Text(h.GetHost().view->Colors().top); }},
        {"accent", [](Settings& s) { s.accent.SetData(8); }, [](HostFixture& h) { return Text(h.GetHost().view->Colors().accent); }},
        {"group titles", [](Settings& s) { toggle(s.group_titles); }, [](HostFixture& h) { return Text(h.Window().ribbonBar()->isTitleGroupsVisible()); }},
        {"status bar", [](Settings& s) { toggle(s.status_bar); }, [](HostFixture& h) { return Text(h.Window().statusBar()->isHidden()); }},
        {"decimals", [](Settings& s) { s.decimals.SetData(4); }, [](HostFixture& h) { return h.GetWorkspace().Format().Length(1.0); }},
        {"font", [](Settings& s) { QFont font; font.setPointSize(20); s.scene_font.SetData(font); }, Picture},
        {"unit", [](Settings& s) { toggle(s.inches); }, [](HostFixture& h) { return h.GetWorkspace().Format().Length(1.0); }},
        {"move step", [](Settings& s) { s.move_step.SetData(7.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().move_step); }},
        {"turn step", [](Settings& s) { s.turn_step.SetData(7.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().turn_step); }},
        {"gap", [](Settings& s) { s.gap.SetData(7.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().arrange_gap); }},
        {"drag in steps", [](Settings& s) { toggle(s.snap_to_grid); }, [](HostFixture& h) { return Text(h.GetWorkspace().snap_to_grid); }},
        {"snap to points", [](Settings& s) { toggle(s.snap_points); }, [](HostFixture& h) { return Text(int(h.GetWorkspace().Snap())); }},
        {"snap to edges", [](Settings& s) { s.snap_points.SetData(false); s.snap_edges.SetData(true); }, [](HostFixture& h) { return Text(int(h.GetWorkspace().Snap())); }},
        {"snap colour", [](Settings& s) { s.snap_color.SetData(red); }, [](HostFixture& h) { return Text(h.GetHost().view->Colors().candidate); }},
        {"undo steps", [](Settings& s) { s.undo_steps.SetData(1); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetScene().UndoTitles().size()); }},
        {"plate width", [](Settings& s) { s.plate_width.SetData(100.0); }, Picture},
        {"plate depth", [](Settings& s) { s.plate_depth.SetData(100.0); }, Picture},
        {"plate height", [](Settings& s) { s.plate_height.SetData(100.0); }, Picture},
        {"density", [](Settings& s) { s.density.SetData(8.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().density); }},
        {"overhang", [](Settings& s) { s.overhang.SetData(60.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().overhang_degrees); }},
        {"material", [](Settings& s) { UseMaterial(s, "Resin"); }, [](HostFixture& h) { return Text(h.GetWorkspace().density); }},
        {"material's colour", [](Settings& s) { s.materials.Find("PLA")->color.SetData(red); s.material.SetData("PLA"); }, [](HostFixture& h) { return Text(NewPartColor(h.GetHost().settings, 0)); }},
        {"display", [](Settings& s) { s.display.SetData(3); }, Picture},
        {"plate", [](Settings& s) { toggle(s.plate); }, Picture},
        {"grid", [](Settings& s) { toggle(s.grid); }, Picture},
        {"volume", [](Settings& s) { toggle(s.volume); }, Picture},
        {"axes", [](Settings& s) { toggle(s.axes); }, Picture},
        {"labels", [](Settings& s) { toggle(s.labels); }, Picture},
        {"view cube", [](Settings& s) { toggle(s.view_cube); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().view_cube); }},
        {"shadows", [](Settings& s) { toggle(s.shadows); }, Picture},
        {"perspective", [](Settings& s) { toggle(s.perspective); }, Picture},
        {"grid step", [](Settings& s) { s.grid_step.SetData(30.0); }, Picture},
        {"strong lines", [](Settings& s) { s.grid_major.SetData(3); }, Picture},
        {"smooth shading", [](Settings& s) { toggle(s.smooth_shading); }, Picture},
        {"fine edges", [](Settings& s) { toggle(s.fine_edges); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().fine); }},
        {"orbit speed", [](Settings& s) { s.orbit_speed.SetData(2.0); }, [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().orbit_speed); }},
        {"zoom speed", [](Settings& s) { s.zoom_speed.SetData(2.0); }, [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().zoom_speed); }},
        {"wheel", [](Settings& s) { toggle(s.invert_wheel); }, [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().invert_wheel); }},
        {"drag pixels", [](Settings& s) { s.drag_pixels.SetData(9); }, [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().drag_pixels); }},
        {"flight", [](Settings& s) { s.flight_ms.SetData(0); }, [](HostFixture& h) { return Text(h.GetHost().view->GetHandling().flight_ms); }},
        {"former views", [](Settings& s) { s.former_views.SetData(2); }, [](HostFixture& h) { return Text(int(h.GetHost().view->GetHandling().former_views)); }},
        {"background above", [](Settings& s) { s.background_top.SetData(red); }, Picture},
        {"background below", [](Settings& s) { s.background_bottom.SetData(red); }, Picture},
        {"plate colour", [](Settings& s) { s.plate_color.SetData(red); }, Picture},
        {"volume colour", [](Settings& s) { s.envelope_color.SetData(red); }, Picture},
        {"grid colour", [](Settings& s) { s.grid_color.SetData(red); }, Picture},
        {"strong grid colour", [](Settings& s) { s.grid_axes_color.SetData(red); }, Picture},
        {"text colour", [](Settings& s) { s.text_color.SetData(red); }, Picture},
        {"selection colour", [](Settings& s) { s.selection_color.SetData(red); }, Picture},
        {"edge colour", [](Settings& s) { s.edge_color.SetData(red); }, Picture},
        {"part colour", [](Settings& s) { s.part_colors[2].SetData(red); }, [](HostFixture& h) { return Text(NewPartColor(h.GetHost().settings, 2)); }},
        {"colours in turn", [](Settings& s) { toggle(s.color_in_turn); }, [](HostFixture& h) { return Text(NewPartColor(h.GetHost().settings, 2)); }},
        {"measure colour", [](Settings& s) { s.measure_color.SetData(red); }, Picture},
        {"measure text colour", [](Settings& s) { s.measure_text_color.SetData(red); }, Picture},
        {"measure width", [](Settings& s) { s.measure_width.SetData(6.0); }, Picture},
        {"contour colour", [](Settings& s) { s.contour_color.SetData(red); }, [](HostFixture& h) { return Text(h.GetHost().view->Colors().contour); }},
        {"hatch colour", [](Settings& s) { s.hatch_color.SetData(red); }, [](HostFixture& h) { return Text(h.GetHost().view->Colors().hatch); }},
        {"layer thickness", [](Settings& s) { s.layer_thickness.SetData(1.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().Layers().Count()); }},
        {"hatch spacing", [](Settings& s) { s.hatch_spacing.SetData(3.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().layers.hatch_spacing); }},
        {"hatch angle", [](Settings& s) { s.hatch_angle.SetData(10.0); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().layers.hatch_degrees); }},
        {"hatch cross", [](Settings& s) { toggle(s.hatch_cross); }, [](HostFixture& h) { return Text(h.GetWorkspace().GetViewState().layers.crossed); }},
        {"repair at import", [](Settings& s) { toggle(s.repair_at_import); },
         [](HostFixture& h) {
             Mesh mesh = Plain();
             std::vector<Triangle> triangles = mesh.Triangles();
             triangles.pop_back();
             return Text(int(PreparedForBuild(Mesh(mesh.Points(), triangles), h.GetHost().settings).Triangles().size()));
         }},
        {"inches below", [](Settings& s) { s.inches_below.SetData(3); },
         [](HostFixture& h) { return Text(PreparedForBuild(Plain(), h.GetHost().settings).Bounds().Size().x); }},
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
        {"unit inside fields", [](Settings&) { g_pref_suffix_in_editor.SetData(!g_pref_suffix_in_editor.GetData()); },
         [](HostFixture&) { return Text(ovk::SuffixController::GetInstance().IsInsideEditor()); }},
    };
    QTest::addColumn<Effect>("effect");
    for (const Effect& effect : effects)
        QTest::newRow(effect.name) << effect;
}

void PreferencesPageTest::everyPreferenceDoesSomething()
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
    m_host->GetWorkspace().AddMeasurement(*Measure(MeasureKind::Distance, {{-50, 0, 40}, {50, 0, 40}}));
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

void PreferencesPageTest::theStartViewIsOfTheNextStart()
{
    S().start_view.Set(400.0, -120.0);
    QCOMPARE(S().start_view.Azimuth(), 40.0);
    QCOMPARE(S().start_view.Elevation(), -90.0);
    SceneView view(m_host->GetWorkspace());
    view.SetStartView(S().start_view.Azimuth(), S().start_view.Elevation());
    QCOMPARE(view.GetCamera().azimuth, 40.0);
    QCOMPARE(view.GetCamera().elevation, -90.0);
}

void PreferencesPageTest::theProgramReadsWhatItWrites()
{
    Settings& s = S();
    s.background_top.SetData(QColor(1, 2, 3));
    s.move_step.SetData(12.3456);
    s.scene_font.SetData(QFont("Monospace", 17));
    s.start_view.Set(-20.5, 33.25);
    s.recent_files.SetData({"a", "b \r\n c"});
    s.options_state.SetData(QByteArray("\0\1\2\xff", 4));
    s.materials.Remove(0);
    s.materials.At(0)->name.SetData("New & old");
    s.materials.At(0)->layer_thickness.SetData(0.3);
    ovk::PreferencesController& controller = *ovk::PreferencesController::GetInstance();
    controller.Save();
    const int count = s.materials.Count();
    s.background_top.SetData(QColor());
    s.move_step.SetData(1.0);
    s.scene_font.SetData(QFont());
    s.start_view.RestoreDefault();
    s.recent_files.SetData({});
    s.options_state.SetData({});
    s.materials.Clear();
    controller.Reload();
    QCOMPARE(s.background_top.GetData(), QColor(1, 2, 3));
    QCOMPARE(s.move_step.GetData(), 12.3456);
    QCOMPARE(s.scene_font.GetData(), QFont("Monospace", 17));
    QCOMPARE(s.start_view.Azimuth(), -20.5);
    QCOMPARE(s.start_view.Elevation(), 33.25);
    QCOMPARE(s.recent_files.GetData(), (QStringList{"a", "b \r\n c"}));
    QCOMPARE(s.options_state.GetData(), QByteArray("\0\1\2\xff", 4));
    QCOMPARE(s.materials.Count(), count);
    QCOMPARE(s.materials.At(0)->name.GetData(), QString("New & old"));
    QCOMPARE(s.materials.At(0)->layer_thickness.GetData(), 0.3);
}

void PreferencesPageTest::restoringBringsEverythingBack()
{
    Settings& s = S();
    s.recent_files.SetData({"kept"});
    s.geometry.SetData("kept");
    s.layout.SetData("Inspect");
    s.grid_step.SetData(3.0);
    s.materials.Clear();
    s.start_view.Set(1.0, 2.0);
    s.RestoreDefaults();
    QCOMPARE(s.grid_step.GetData(), 0.0);
    QVERIFY(s.materials.Find("PETG"));
    QCOMPARE(s.start_view.Azimuth(), 32.0);
    QCOMPARE(s.recent_files.GetData(), QStringList("kept"));
    QCOMPARE(s.geometry.GetData(), QByteArray("kept"));
    QCOMPARE(s.layout.GetData(), QString("Inspect"));
}

void PreferencesPageTest::commandsAreNotUndoneByOtherChanges()
{
    QVERIFY(m_host->GetWorkspace().GetViewState().grid);
    QVERIFY(m_host->Run("Show.Grid"));
    QVERIFY(!m_host->GetWorkspace().GetViewState().grid);
    PreferencesPage* const page = OpenPage(0);
    auto* const editor = EditorOf<QDoubleSpinBox>(page, "Step of moving");
    QVERIFY(editor);
    editor->setValue(8.0);
    QTRY_COMPARE(m_host->GetWorkspace().move_step, 8.0);
    QVERIFY(!m_host->GetWorkspace().GetViewState().grid);
}

void PreferencesPageTest::thePageShowsOneOfItsPages()
{
    PreferencesPage* page = OpenPage(0);
    QVERIFY(page->RowCount() >= 60);
    auto* const list = page->findChild<QListWidget*>("optionsPages");
    QVERIFY(list->count() >= 10);
    QStringList seen;
    for (int i = 0; i < list->count(); ++i) {
        page = OpenPage(i);
        QVERIFY(!Sections(page).isEmpty());
        for (const QString& section : Sections(page)) {
            QVERIFY2(!seen.contains(section), qPrintable(section));
            seen << section;
        }
    }
}

void PreferencesPageTest::aSearchFindsRowsOfAllPages()
{
    PreferencesPage* const page = OpenPage(0);
    auto* const search = page->findChild<QLineEdit*>("optionsSearch");
    search->setText("grid");
    QVERIFY(Sections(page).join('\n').contains("Colours"));
    QVERIFY(Sections(page).join('\n').contains("View"));
    QVERIFY(EditorOf<QCheckBox>(page, "Grid"));
    QCOMPARE(page->findChild<QListWidget*>("optionsPages")->currentRow(), -1);
    search->setText("lines STRONG");
    QVERIFY(EditorOf<QWidget>(page, "Strong lines"));
    QVERIFY(!EditorOf<QWidget>(page, "Density"));
    search->setText("of no row");
    QVERIFY(Tree(page)->isHidden());
    QVERIFY(!page->findChild<QLabel*>("optionsNothing")->isHidden());
    QVERIFY(!page->findChild<QPushButton*>("restorePage")->isEnabled());
    search->clear();
    QVERIFY(!Tree(page)->isHidden());
    QCOMPARE(page->findChild<QListWidget*>("optionsPages")->currentRow(), 0);
    QCOMPARE(Sections(page).first(), QString("Numbers"));
}

void PreferencesPageTest::lengthsFollowTheUnit()
{
    PreferencesPage* const page = OpenPage(0);
    S().move_step.SetData(25.4);
    auto* const editor = EditorOf<QDoubleSpinBox>(page, "Step of moving");
    QCOMPARE(editor->value(), 25.4);
    auto* const unit = page->findChild<QComboBox*>("optionsUnit");
    unit->setCurrentIndex(1);
    Q_EMIT unit->activated(1);
    QTRY_COMPARE(editor->value(), 1.0);
    QVERIFY(editor->text().endsWith("inch"));
    QCOMPARE(editor->decimals(), 4);
    QCOMPARE(S().move_step.GetData(), 25.4);
    editor->setValue(2.0);
    QCOMPARE(S().move_step.GetData(), 50.8);
    unit->setCurrentIndex(0);
    Q_EMIT unit->activated(0);
    QTRY_COMPARE(editor->value(), 50.8);
}

void PreferencesPageTest::aChangeIsSeenAtOnce()
{
    PreferencesPage* const page = OpenPage(3);
    auto* const grid = EditorOf<QCheckBox>(page, "Grid");
    QVERIFY(grid && grid->isChecked());
    grid->click();
    QTRY_VERIFY(!m_host->GetWorkspace().GetViewState().grid);
    // The other way round: the row follows the preference.
    S().grid.SetData(true);
    QVERIFY(grid->isChecked());
}

void PreferencesPageTest::whatIsShownIsRestored()
{
    S().move_step.SetData(9.0);
    S().hatch_spacing.SetData(9.0);
    Apply();
    PreferencesPage* const page = OpenPage(0);
    page->findChild<QPushButton*>("restorePage")->click();
    QCOMPARE(S().move_step.GetData(), 5.0);
    QCOMPARE(S().hatch_spacing.GetData(), 9.0);
    QTRY_COMPARE(m_host->GetWorkspace().move_step, 5.0);
    page->findChild<QPushButton*>("restoreDefaults")->click();
    QCOMPARE(S().hatch_spacing.GetData(), 1.2);
    QCoreApplication::processEvents();
}

void PreferencesPageTest::materialsComeAndGo()
{
    PreferencesPage* const page = OpenPage(6);
    const int count = S().materials.Count();
    auto* choice = EditorOf<QComboBox>(page, "Material in use");
    QVERIFY(choice);
    QCOMPARE(choice->count(), count + 1);
    choice->setCurrentIndex(choice->findText("Resin"));
    QCOMPARE(S().material.GetData(), QString("Resin"));
    QCOMPARE(S().density.GetData(), 1.12);
    QTRY_COMPARE(m_host->GetWorkspace().GetViewState().layers.thickness, 0.05);

    EditorOf<QPushButton>(page, "A profile with the figures in use")->click();
    QTRY_COMPARE(S().materials.Count(), count + 1);
    QCOMPARE(S().materials.At(count)->density.GetData(), 1.12);
    QTRY_COMPARE(EditorOf<QComboBox>(page, "Material in use")->count(), count + 2);

    // Of several rows "Name" the first one is that of the first profile.
    auto* const name = EditorOf<QLineEdit>(page, "Name");
    name->setText("Resin");
    name->setModified(true);
    Q_EMIT name->editingFinished();
    QTRY_COMPARE(EditorOf<QLineEdit>(page, "Name")->text(), S().materials.At(0)->name.GetData());
    QVERIFY(S().materials.At(0)->name.GetData() != "Resin");

    EditorOf<QPushButton>(page, "This profile")->click();
    QTRY_COMPARE(S().materials.Count(), count);
    QVERIFY(!S().materials.Find("PLA"));
    QTRY_COMPARE(EditorOf<QComboBox>(page, "Material in use")->count(), count + 1);
    QCOMPARE(S().material.GetData(), QString("Resin"));
}

void PreferencesPageTest::anInvertedRowIsShownInverted()
{
    PreferencesPage* const page = OpenPage(2);
    auto* const ask = EditorOf<QCheckBox>(page, "Ask before unsaved parts are lost");
    QVERIFY(ask && ask->isChecked());
    ask->click();
    QVERIFY(S().dont_ask_unsaved);
    QVERIFY(!ask->isChecked());
}

void PreferencesPageTest::theUnitGoesIntoTheFields()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const editor = dialog->findChild<QDoubleSpinBox*>("moveX");
    QVERIFY(!editor->text().contains("mm"));
    g_pref_suffix_in_editor.SetData(true);
    Apply();
    QVERIFY(editor->text().endsWith("mm"));
    g_pref_suffix_in_editor.SetData(false);
    Apply();
    QVERIFY(!editor->text().contains("mm"));
}

void PreferencesPageTest::thePageComesBackAsItWas()
{
    PreferencesPage* const page = OpenPage(4);
    page->findChild<QLineEdit*>("optionsSearch")->setText("grid colour");
    for (const bool damaged : {false, true}) {
        if (damaged)
            S().options_state.SetData("no state");
        QScopedPointer<QWidget> parent(new QWidget);
        auto* const next = new PreferencesPage(m_host->GetHost(), parent.data());
        QCOMPARE(next->RowCount(), 0);
        parent->show();
        QCOMPARE(next->findChild<QLineEdit*>("optionsSearch")->text(), QString(damaged ? "" : "grid colour"));
        next->findChild<QLineEdit*>("optionsSearch")->clear();
        QCOMPARE(next->findChild<QListWidget*>("optionsPages")->currentRow(), damaged ? 0 : 4);
    }
}

void PreferencesPageTest::partsFromFilesStayWhereTheyAreIfWanted()
{
    Scene& scene = m_host->GetWorkspace().GetScene();
    QTemporaryDir folder;
    const QString path = folder.filePath("far.stl");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("solid far\nfacet normal 0 0 1\nouter loop\nvertex 60 60 1\nvertex 70 60 1\nvertex 60 70 2\n"
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

void PreferencesPageTest::unsavedPartsMayBeLostWithoutAQuestion()
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

void PreferencesPageTest::oldFilesAreTakenOverOnThePage()
{
    PreferencesPage* const page = OpenPage(0);
    QTemporaryDir folder;
    const QString path = folder.filePath("old.xml");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<preferences><rotate_part><rotate_step_size>12.5</rotate_step_size></rotate_part></preferences>");
    file.close();
    page->findChild<QPushButton*>("importOptions")->click();
    auto* const dialog = page->findChild<QFileDialog*>();
    QVERIFY(dialog);
    Q_EMIT dialog->fileSelected(path);
    dialog->reject();
    QTRY_COMPARE(m_host->GetWorkspace().turn_step, 12.5);
    QTRY_COMPARE(EditorOf<QDoubleSpinBox>(page, "Step of turning")->value(), 12.5);
}

void PreferencesPageTest::theDialogOfMovesLoadsAndCommits()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    Scene& scene = m_host->GetWorkspace().GetScene();
    const int steps = scene.UndoTitles().size();
    auto* const buttons = dialog->findChild<QDialogButtonBox*>();
    QVERIFY(!buttons->button(QDialogButtonBox::Reset)->isEnabled());
    dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(30.0);
    dialog->findChild<QDoubleSpinBox*>("moveZ")->setValue(4.0);
    dialog->findChild<QDoubleSpinBox*>("turnZ")->setValue(90.0);
    QVERIFY(buttons->button(QDialogButtonBox::Reset)->isEnabled());
    QCOMPARE(scene.UndoTitles().size(), steps);
    buttons->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(scene.UndoTitles().size(), steps + 1);
    const Box box = scene.Parts()[0].Bounds();
    QVERIFY(std::abs(box.Center().x - 30.0) < 1e-6);
    QVERIFY(std::abs(box.low.z - 4.0) < 1e-6);
    QVERIFY(std::abs(box.Size().x - 10.0) < 1e-6);
    QVERIFY(std::abs(box.Size().y - 20.0) < 1e-6);
    QCOMPARE(m_host->GetWorkspace().last_move.shift.x, 30.0);

    // The next dialog starts with what the last one was told; Cancel tells nobody.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_host->Run("Move.By"));
    auto* const next = m_host->Window().findChild<QDialog*>("transformDialog");
    QCOMPARE(next->findChild<QDoubleSpinBox*>("moveX")->value(), 30.0);
    next->findChild<QDoubleSpinBox*>("moveX")->setValue(1.0);
    next->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Reset)->click();
    QCOMPARE(next->findChild<QDoubleSpinBox*>("moveX")->value(), 30.0);
    next->findChild<QDoubleSpinBox*>("moveX")->setValue(1.0);
    next->reject();
    QCOMPARE(m_host->GetWorkspace().last_move.shift.x, 30.0);
    QCOMPARE(scene.UndoTitles().size(), steps + 1);
}

void PreferencesPageTest::theDialogOfMovesRefusesWhatLeavesTheVolume()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(400.0);
    QVERIFY(!ok->isEnabled());
    dialog->findChild<QCheckBox*>("keepInside")->setChecked(false);
    QVERIFY(ok->isEnabled());
    dialog->findChild<QCheckBox*>("keepInside")->setChecked(true);
    QVERIFY(!ok->isEnabled());
    dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(40.0);
    QVERIFY(ok->isEnabled());
}

void PreferencesPageTest::theDialogOfMovesKeepsChangesWhenTheUnitChanges()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const editor = dialog->findChild<QDoubleSpinBox*>("moveY");
    editor->setValue(50.8);
    S().inches.SetData(true);
    Apply();
    QCOMPARE(editor->value(), 2.0);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->click();
    QVERIFY(std::abs(m_host->GetWorkspace().GetScene().Parts()[0].Bounds().Center().y - 50.8) < 1e-6);
    QVERIFY(std::abs(m_host->GetWorkspace().last_move.shift.y - 50.8) < 1e-6);
}

void PreferencesPageTest::anEmptyFieldIsNotCommitted()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    auto* const line = dialog->findChild<QDoubleSpinBox*>("moveX")->findChild<QLineEdit*>();
    line->clear();
    QVERIFY(!ok->isEnabled());
    line->setText("12");
    QVERIFY(ok->isEnabled());
}

OVK_TEST_CLASS(PreferencesPageTest)

#include "preferences_test.moc"
