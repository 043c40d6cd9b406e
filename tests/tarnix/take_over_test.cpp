#include "../support/test_main.h"

#include "host_fixture.h"
#include "preferences/take_over.h"

#include <ovk/core/version_info.h>
#include <ovk/preferences/preferences_controller.h>
#include <ovk/units/units_controller.h>
#include <vorsdk/units.h>

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

using namespace tarnix;
using tarnix_test::HostFixture;

namespace {

/// Writes a file into the folder of a version of the program.
void WriteOld(const QString& version, const QString& name, const QByteArray& document)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                           QStringLiteral("/Preferences/") + version;
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + '/' + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(document), qint64(document.size()));
}

/// Presses a button of the question that the start is going to ask, and keeps its text.
class Answer : public QObject
{
public:
    explicit Answer(QMessageBox::StandardButton button) : m_button(button)
    {
        m_timer.setInterval(10);
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                questions.append(box->text());
                box->button(m_button)->click();
            }
        });
        m_timer.start();
    }

    QStringList questions;

private:
    QMessageBox::StandardButton m_button;
    QTimer m_timer;
};

const QByteArray k_former =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><PreferencesRoot>"
    "<General><Other><application_units>Inches</application_units></Other></General>"
    "<TarnixBuild><Width>300</Width><OfNoVersion>1</OfNoVersion></TarnixBuild>"
    "<TarnixView><Grid>false</Grid><GridStep>250000</GridStep></TarnixView>"
    "<TarnixCamera><StartView><azimuth>70</azimuth><elevation>15</elevation></StartView></"
    "TarnixCamera>"
    "<Colors><color_scenes>#ff102030</color_scenes></Colors>"
    "<TarnixFiles><Recent><item>/a.stl</item><item>/b.stl</item></Recent></TarnixFiles>"
    "<TarnixMaterials><Current>Nylon</Current><Profiles>"
    "<Material><Name>Nylon</Name><Density>1.15</Density><LayerThickness>1000</LayerThickness></"
    "Material>"
    "<Material><Name>Wax</Name></Material></Profiles></TarnixMaterials></PreferencesRoot>";

} // namespace

/// A start beside the folder of an older version, which the user takes over.
class TakeOverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOptionsOfTheVersionBeforeAreTakenOver()
    {
        WriteOld("0.8.0.0", "preferences.xml",
                 "<PreferencesRoot><TarnixBuild><Width>77</Width></TarnixBuild></PreferencesRoot>");
        WriteOld("0.9.0.0", "preferences.xml", k_former);
        WriteOld("99.0.0.0", "preferences.xml", "<PreferencesRoot/>");
        Answer answer(QMessageBox::Yes);
        SetUpPreferences();
        HostFixture host("Tarnix");
        QCOMPARE(answer.questions, QStringList("Take over the options of the version before?"));
        Settings& s = host.GetHost().settings;
        QVERIFY(&ovk::UnitsController::GetCurrentUnits() == &ovk::UnitsInch::GetInstance());
        QCOMPARE(MUserUnit::GetInstance().GetUnit(), MUserUnit::utInch);
        QCOMPARE(host.GetWorkspace().Format().Suffix(), QString("inch"));
        QCOMPARE(host.GetWorkspace().GetScene().GetPlate().width, 300.0);
        QCOMPARE(host.GetWorkspace().GetScene().GetPlate().depth, 210.0);
        QVERIFY(!host.GetWorkspace().GetViewState().grid);
        QCOMPARE(host.GetWorkspace().GetViewState().grid_step, 25.0);
        QCOMPARE(host.GetHost().view->Colors().top, QColor(0x10, 0x20, 0x30));
        QCOMPARE(host.GetHost().view->GetCamera().azimuth, 70.0);
        QCOMPARE(host.GetHost().view->GetCamera().elevation, 15.0);
        QCOMPARE(host.GetHost().RecentFiles(), (QStringList{"/a.stl", "/b.stl"}));
        QCOMPARE(s.materials.Count(), 2);
        QCOMPARE(s.materials.At(0)->density.GetData(), 1.15);
        QCOMPARE(s.materials.At(0)->layer_thickness.GetData(), 0.1);
        QCOMPARE(s.materials.At(1)->density.GetData(), 1.24);
        QCOMPARE(s.material.GetData(), QString("Nylon"));
    }

    void afterThatTheyAreTheOptionsOfThisVersion()
    {
        // The fixture of the function before has stopped the controllers, which wrote the file.
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                               QStringLiteral("/Preferences/1.0.0.0/preferences.xml");
        QFile file(folder);
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(folder));
        const QByteArray document = file.readAll();
        QVERIFY(document.contains("<application_units>Inches</application_units>"));
        QVERIFY(document.contains("<Width>300</Width>"));
        QVERIFY(!document.contains("OfNoVersion"));
        QVERIFY(document.contains("<Name>Nylon</Name><Density>1.15</Density>"));
    }
};

OVK_TEST_CLASS(TakeOverTest)

/// The same, but the user does not want them.
class NotTakeOverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNoLeavesTheDefaults()
    {
        WriteOld("0.9.0.0", "preferences.xml", k_former);
        Answer answer(QMessageBox::No);
        SetUpPreferences();
        HostFixture host("Tarnix");
        QCOMPARE(answer.questions.size(), 1);
        QCOMPARE(host.GetWorkspace().Format().Suffix(), QString("mm"));
        QCOMPARE(host.GetWorkspace().GetScene().GetPlate().width, 250.0);
        QVERIFY(host.GetHost().settings.materials.Count() > 2);
        QVERIFY(host.GetHost().settings.materials.Find("PLA"));
    }
};

OVK_TEST_CLASS(NotTakeOverTest)

/// The file of an installation of long ago, through the history of names.
class LegacyFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theValuesComeThroughTheHistoryOfNames()
    {
        WriteOld(
            "0.5.0.0", "xpf_defaults.xml",
            "<Preferences>\n"
            "  <General><Other><application_units>Inches</application_units></Other></General>\n"
            "  <Snapping><points_immediate_snapping>false</points_immediate_snapping>"
            "<lines_immediate_snapping>true</lines_immediate_snapping>"
            "<color_snap>0 1 0 1</color_snap></Snapping>\n"
            "  <translate_part><translate_step_size>10 0.5</translate_step_size>"
            "<enable_translate_snaping>true</enable_translate_snaping></translate_part>\n"
            "  <rotate_part><rotate_step_size>30</rotate_step_size>"
            "<enable_rotate_snapping>true</enable_rotate_snapping></rotate_part>\n"
            "  <MiniTarnix><wall_angle>37.5</wall_angle></MiniTarnix>\n"
            "  <background_scenes/>\n"
            "  <Colors><background_scenes>0 0 1 0.5</background_scenes><Other>"
            "<grid_secondary>1 0 0 1</grid_secondary><build_envelope>0 1 1 "
            "1</build_envelope></Other>"
            "<STL><marked_triangles>1 1 0 1</marked_triangles></STL></Colors>\n"
            "  <materials><material1>x 4278190335 0 0 0</material1>"
            "<allow_autocolor_reset>false</allow_autocolor_reset></materials>\n"
            "  <measurements><color_measurement>0 0 0 1</color_measurement></measurements>\n"
            "  <create_part><createpart_box><x>50.8 2</x><y>10</y></createpart_box>"
            "<createpart_prism><n>5</n></createpart_prism></create_part>\n"
            "  <import_options><is_auto_repair>true</is_auto_repair></import_options>\n"
            "  "
            "<Import_Import><inch_to_mm_if_size_less_than>2.7</inch_to_mm_if_size_less_than></"
            "Import_Import>\n"
            "  <Dialog_Settings><Save_Files><m_show_on_disk_warning_on_exit_tarnix>false"
            "</m_show_on_disk_warning_on_exit_tarnix></Save_Files></Dialog_Settings>\n"
            "  "
            "<Visualisation><General><enable_smooth_shading>false</enable_smooth_shading></"
            "General></Visualisation>\n"
            "  <TarnixCamera><StartView>60 12</StartView></TarnixCamera>\n"
            "  <mouse_shortcuts><Mouse_Shortcut><key>1</key></Mouse_Shortcut></mouse_shortcuts>\n"
            "</Preferences>\n");
        Answer answer(QMessageBox::Yes);
        SetUpPreferences();
        HostFixture host("Tarnix");
        QCOMPARE(answer.questions.size(), 1);
        const Settings& s = host.GetHost().settings;
        const Workspace& workspace = host.GetWorkspace();
        QCOMPARE(workspace.Format().Suffix(), QString("inch"));
        QCOMPARE(int(workspace.Snap()), int(SnapMode::Edges));
        QCOMPARE(host.GetHost().view->Colors().candidate, QColor(0, 255, 0));
        QCOMPARE(workspace.move_step, 12.7);
        QVERIFY(workspace.snap_to_grid);
        QCOMPARE(workspace.turn_step, 30.0);
        QVERIFY(s.snap_turns);
        QCOMPARE(workspace.GetViewState().overhang_degrees, 37.5);
        QCOMPARE(host.GetHost().view->Colors().top, QColor(0, 0, 255));
        QCOMPARE(host.GetHost().view->Colors().grid, QColor(255, 0, 0));
        QCOMPARE(host.GetHost().view->Colors().volume, QColor(0, 255, 255));
        QCOMPARE(host.GetHost().view->Colors().accent, QColor(255, 255, 0));
        QCOMPARE(host.GetHost().view->Colors().measure, QColor(0, 0, 0));
        QCOMPARE(s.part_colors[0].GetData().rgb(), qRgb(255, 0, 0));
        QVERIFY(!s.color_in_turn);
        QCOMPARE(s.box_x.GetData(), 50.8);
        // One number alone is taken for what it is: a length of the internal unit.
        QCOMPARE(s.box_y.GetData(), 0.1);
        QCOMPARE(s.prism_n.GetData(), 5);
        QVERIFY(s.repair_at_import);
        QCOMPARE(s.inches_below.GetData(), 2);
        QVERIFY(s.dont_ask_unsaved);
        QVERIFY(!workspace.GetViewState().smooth);
        QCOMPARE(host.GetHost().view->GetCamera().azimuth, 60.0);
        QCOMPARE(host.GetHost().view->GetCamera().elevation, 12.0);
    }
};

OVK_TEST_CLASS(LegacyFileTest)

#include "take_over_test.moc"
