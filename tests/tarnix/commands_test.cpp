#include "../support/test_main.h"

#include "app/file_actions.h"
#include "app/number_dialog.h"
#include "host_fixture.h"

#include <ovk/commands/ui_command.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>
#include <qtitan/ribbon.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QPushButton>
#include <QStatusBar>
#include <QTemporaryDir>

using namespace tarnix;
using tarnix_test::HostFixture;

namespace {

QJsonObject ReadJson(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

QJsonObject Catalogue()
{
    return ReadJson(QStringLiteral(":/features.definition.default.json"));
}

QJsonObject Product(const QString& name)
{
    for (const QJsonValue& product : Catalogue()["products"].toObject()["product"].toArray()) {
        if (product.toObject()["id"].toString() == name)
            return product.toObject();
    }
    return {};
}

QStringList CommandsOf(const QString& product, const QString& layout)
{
    QStringList ids;
    for (const QJsonValue& entry : Product(product)["layout"].toArray()) {
        if (entry.toObject()["id"].toString() != layout)
            continue;
        for (const QJsonValue& id : entry.toObject()["command_ids"].toArray())
            ids.append(id.toString());
    }
    return ids;
}

bool IsSwitch(const QString& id)
{
    return id.startsWith("Ui.Ribbon.") || id == "Edit.CustomizeUI.Style" ||
           id.startsWith("DynamicCommands.");
}

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The tables, the catalogue and the icons against each other; no window.
class CatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreMoreThanEnoughCommands()
    {
        QVERIFY(Catalogue()["commands"].toObject()["command"].toArray().size() >= 120);
        QCOMPARE(Catalogue()["products"].toObject()["product"].toArray().size(), 2);
        QVERIFY(Product("Tarnix")["layout"].toArray().size() >= 3);
    }

    void everyCommandHasTextsARowAndAnIconOfItsOwn()
    {
        QSet<QString> titles;
        QSet<QByteArray> pictures;
        for (const QJsonValue& value : Catalogue()["commands"].toObject()["command"].toArray()) {
            const QJsonObject command = value.toObject();
            const QString id = command["id"].toString();
            QVERIFY2(CommandFactory::FindSpec(id), qPrintable(id));
            if (IsSwitch(id))
                continue;
            for (const char* key : {"title", "tooltip", "statustip"})
                QVERIFY2(!command[QLatin1String(key)].toString().isEmpty(),
                         qPrintable(id + " has no " + key));
            QVERIFY2(command["visual"].toBool(), qPrintable(id));
            QVERIFY2(!titles.contains(command["title"].toString()),
                     qPrintable(command["title"].toString()));
            titles.insert(command["title"].toString());
            const QByteArray picture = ContentOf(":/tarnix/icons/" + id + ".svg");
            QVERIFY2(picture.startsWith("<svg"), qPrintable(id + " has no icon"));
            QVERIFY2(!pictures.contains(picture), qPrintable(id + " has the icon of another"));
            pictures.insert(picture);
        }
    }

    void everyRowOfTheTablesIsInTheCatalogueOnce()
    {
        QStringList ids;
        for (const QJsonValue& value : Catalogue()["commands"].toObject()["command"].toArray())
            ids.append(value.toObject()["id"].toString());
        const QStringList rows = CommandFactory::AllIds();
        QCOMPARE(QSet<QString>(rows.begin(), rows.end()).size(), rows.size());
        for (const QString& id : rows)
            QVERIFY2(ids.contains(id), qPrintable(id));
    }

    void theIconsAreDrawnInOneStyle()
    {
        for (const QString& id : CommandFactory::AllIds()) {
            if (IsSwitch(id))
                continue;
            const QByteArray picture = ContentOf(":/tarnix/icons/" + id + ".svg");
            QVERIFY2(picture.contains("viewBox=\"0 0 32 32\""), qPrintable(id));
            // Every width of line is of the one set.
            QVERIFY2(!picture.contains("stroke-width=\"0\""), qPrintable(id));
        }
    }

    void whatScriptsMadeIsWhatTheirTablesSay_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("catalogue and profiles") << "catalogue/make_catalogue.py";
        QTest::newRow("texts for the translator") << "catalogue/make_texts.py";
        QTest::newRow("icons") << "icons/make_icons.py";
    }

    void whatScriptsMadeIsWhatTheirTablesSay()
    {
        QFETCH(QString, script);
        QProcess python;
        python.start("python3", {QStringLiteral(TARNIX_SOURCES "/") + script, "--check"});
        QVERIFY(python.waitForFinished(60000));
        QVERIFY2(python.exitCode() == 0, python.readAllStandardOutput());
    }

    void everyNeedHasAReason()
    {
        for (int need = 1; need <= int(Need::FormerView); ++need)
            QVERIFY(!ReasonOf(Need(need)).isEmpty());
        QVERIFY(ReasonOf(Need::Nothing).isEmpty());
        QVERIFY(IsMet(Need::Nothing, Facts()));
    }
};

/// The whole program with the larger product.
class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_host = std::make_unique<HostFixture>("Tarnix"); }
    void cleanupTestCase() { m_host.reset(); }

    void noButtonIsDead_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("id");
        QSet<QString> seen;
        for (const char* layout : {"Prepare", "Inspect", "Slice"}) {
            for (const QString& id : CommandsOf("Tarnix", layout)) {
                if (IsSwitch(id) || seen.contains(id))
                    continue;
                seen.insert(id);
                QTest::newRow(qPrintable(id)) << layout << id;
            }
        }
    }

    void noButtonIsDead()
    {
        QFETCH(QString, layout);
        QFETCH(QString, id);
        m_host->Window().ActivateLayout(layout);
        m_host->PrepareScene();
        Prepare(id);
        const QString before = m_host->Fingerprint();
        QVERIFY2(m_host->Run(id), qPrintable("disabled: " + m_host->Command(id)->toolTip()));
        QTRY_VERIFY2(m_host->Fingerprint() != before, qPrintable(before));
        m_host->GetWorkspace().GetScene().CheckConsistency();
        Restore(id);
    }

    void aDisabledCommandSaysWhy_data() { everyLayoutFillsItsRibbon_data(); }

    void aDisabledCommandSaysWhy()
    {
        QFETCH(QString, layout);
        m_host->CloseDialogs();
        m_host->Window().ActivateLayout(layout);
        m_host->GetWorkspace().GetScene().Reset({});
        m_host->GetWorkspace().ClearMeasurements();
        m_host->GetWorkspace().StopMeasuring();
        m_host->GetWorkspace().copied_placement.reset();
        m_host->GetWorkspace().RunChecks();
        ovk::UiController::GetInstance()->UpdateUi();
        int disabled = 0;
        for (const QString& id : CommandsOf("Tarnix", layout)) {
            if (IsSwitch(id))
                continue;
            const ovk::UiCommand* command = m_host->Command(id);
            const QString reason = ReasonOf(CommandFactory::FindSpec(id)->need);
            if (command->isEnabled()) {
                QVERIFY2(reason.isEmpty() || !command->toolTip().contains(reason), qPrintable(id));
            } else {
                QVERIFY2(!reason.isEmpty() && command->toolTip().contains(reason), qPrintable(id));
                ++disabled;
            }
        }
        QVERIFY(disabled > 20);
    }

    void commandsOnPartsNeedOne()
    {
        m_host->Window().ActivateLayout("Prepare");
        m_host->GetWorkspace().GetScene().Reset({});
        ovk::UiController::GetInstance()->UpdateUi();
        for (const char* id : {"Edit.Delete", "Move.Left", "Turn.By", "Repair.All", "Select.All",
                               "File.Save", "Edit.Undo"})
            QVERIFY2(!m_host->Command(id)->isEnabled(), id);
        for (const char* id : {"File.Import", "Add.Box", "View.Top", "Help.About"})
            QVERIFY2(m_host->Command(id)->isEnabled(), id);
    }

    void aStepAndItsUndoBringTheBuildBack_data()
    {
        QTest::addColumn<QString>("id");
        for (const char* id :
             {"Move.Left",   "Turn.XPlus",     "Turn.LayFlat", "Turn.Over",      "Scale.Double",
              "Scale.ToFit", "Mirror.Y",       "Move.Arrange", "Align.Left",     "Align.SpreadX",
              "Repair.All",  "Repair.Split",   "Repair.Merge", "Mesh.Subdivide", "Mesh.CutApart",
              "Edit.Delete", "Edit.Duplicate", "Move.Bake",    "Move.Reset",     "File.Gear"})
            QTest::newRow(id) << id;
    }

    void aStepAndItsUndoBringTheBuildBack()
    {
        QFETCH(QString, id);
        m_host->Window().ActivateLayout("Prepare");
        m_host->PrepareScene();
        const Scene& scene = m_host->GetWorkspace().GetScene();
        std::vector<std::pair<int, Transform>> before;
        for (const Part& part : scene.Parts())
            before.emplace_back(part.id, part.GetPlacement());
        QVERIFY(m_host->Run(id));
        QVERIFY(m_host->Run("Edit.Undo"));
        QCOMPARE(size_t(scene.Count()), before.size());
        for (size_t i = 0; i < before.size(); ++i) {
            QCOMPARE(scene.Parts()[i].id, before[i].first);
            QVERIFY(scene.Parts()[i].GetPlacement() == before[i].second);
        }
    }

    void whatIsLockedOrHiddenStays()
    {
        m_host->Window().ActivateLayout("Prepare");
        m_host->PrepareScene();
        Scene& scene = m_host->GetWorkspace().GetScene();
        const Transform locked = scene.Parts()[5].GetPlacement();
        m_host->Run("Select.All");
        m_host->Run("Move.Left");
        QVERIFY(scene.Parts()[5].GetPlacement() == locked);
        QVERIFY(!scene.Parts()[4].selected);
    }

    void aBrokenFileIsToldAndChangesNothing()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("broken.stl");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("solid broken\nfacet normal 0 0 1\nouter loop\nvertex 0 0 zero\n");
        file.close();
        m_host->PrepareScene();
        const QString before = m_host->Fingerprint();
        QVERIFY(!ImportFiles(m_host->GetHost(), {path}));
        auto* box = m_host->Window().findChild<QDialog*>("warning");
        QVERIFY(box);
        QVERIFY(box->property("informativeText").toString().contains("broken.stl: Line 4"));
        m_host->CloseDialogs();
        QCOMPARE(m_host->Fingerprint(), before);
        QVERIFY(!OpenFilesNow(m_host->GetHost(), {path}));
        m_host->CloseDialogs();
        QCOMPARE(m_host->Fingerprint(), before);
    }

    void aSavedBuildComesBack()
    {
        QTemporaryDir folder;
        m_host->PrepareScene();
        const QString path = folder.filePath("kept.tarnix");
        QVERIFY(SaveBuild(m_host->GetHost(), path));
        QVERIFY(!m_host->GetWorkspace().GetScene().IsModified());
        m_host->GetWorkspace().GetScene().Reset({});
        QVERIFY(OpenFilesNow(m_host->GetHost(), {path}));
        QCOMPARE(m_host->GetWorkspace().GetScene().Count(), 6);
        QCOMPARE(m_host->GetWorkspace().BuildName(), QString("kept"));
        QCOMPARE(m_host->GetHost().RecentFiles().front(), path);
        m_host->GetWorkspace().SetBuildPath(QString());
    }

    void aNumberDialogSpeaksTheUnit()
    {
        m_host->PrepareScene();
        m_host->GetHost().settings.inches.SetData(true);
        m_host->GetHost().ApplySettings();
        m_host->Window().ActivateLayout("Prepare");
        const double before = m_host->GetWorkspace().GetScene().Parts()[0].Bounds().low.x;
        QVERIFY(m_host->Run("Move.By"));
        auto* dialog = m_host->Window().findChild<QDialog*>("transformDialog");
        QVERIFY(dialog);
        // The parts of this scene lie outside the build volume.
        dialog->findChild<QCheckBox*>("keepInside")->setChecked(false);
        dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(2.0);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        QCoreApplication::processEvents();
        const double after = m_host->GetWorkspace().GetScene().Parts()[0].Bounds().low.x;
        QVERIFY(std::abs(after - before - 50.8) < 1e-6);
        m_host->GetHost().settings.inches.SetData(false);
        m_host->GetHost().ApplySettings();
    }

    void everyLayoutFillsItsRibbon_data()
    {
        QTest::addColumn<QString>("layout");
        for (const char* layout : {"Prepare", "Inspect", "Slice"})
            QTest::newRow(layout) << layout;
    }

    void everyLayoutFillsItsRibbon()
    {
        QFETCH(QString, layout);
        m_host->CloseDialogs();
        m_host->GetHost().AddRecent("/somewhere/left.stl");
        m_host->Window().ActivateLayout(layout);
        CheckRibbon(layout, 4);
    }

    void recentFilesAreOfferedAsTheyComeAndGo()
    {
        m_host->GetHost().ClearRecent();
        QVERIFY(!m_host->Command("Recent.1")->IsVisual());
        m_host->GetHost().AddRecent("/somewhere/left.stl");
        m_host->GetHost().AddRecent("/somewhere/right.stl");
        QCOMPARE(m_host->Command("Recent.1")->GetTitle(), QString("right.stl"));
        QCOMPARE(m_host->Command("Recent.2")->GetTitle(), QString("left.stl"));
        m_host->GetHost().AddRecent("/somewhere/left.stl");
        QCOMPARE(m_host->Command("Recent.1")->GetTitle(), QString("left.stl"));
        QVERIFY(!m_host->Command("Recent.3")->IsVisual());
        m_host->GetHost().ClearRecent();
    }

private:
    static void CheckRibbon(const QString& layout_name, int least_pages)
    {
        ovk::UiLayout* layout = ovk::UiController::GetInstance()->GetActiveLayout();
        QVERIFY(layout);
        QCOMPARE(layout->GetName(), layout_name);
        auto* ribbon =
            dynamic_cast<ovk::UiStateRibbon*>(layout->GetState(ovk::UiStateRibbon::GetSuiteName()));
        QVERIFY(ribbon);
        QVERIFY(ribbon->GetCount() >= least_pages);
        for (int p = 0; p < ribbon->GetCount(); ++p) {
            ovk::UiStateRibbonPage* page = ribbon->GetPage(p);
            QVERIFY2(page->IsVisible() && page->IsAvailable(), qPrintable(page->GetName()));
            for (int g = 0; g < page->GetCount(); ++g) {
                auto* group = dynamic_cast<ovk::UiStateRibbonGroup*>(page->GetItem(g));
                QVERIFY(group);
                QCOMPARE(group->GetAvailableCount(), group->GetCount());
            }
        }
    }

    /// What some commands want otherwise than the scene that serves the rest.
    void Prepare(const QString& id)
    {
        Scene& scene = m_host->GetWorkspace().GetScene();
        const auto select = [&scene](std::initializer_list<int> rows) {
            scene.Select([&](const Part& part) {
                for (const int row : rows) {
                    if (part.id == scene.Parts()[size_t(row)].id)
                        return true;
                }
                return false;
            });
        };
        static const QStringList k_one{"Edit.Rename",        "Edit.Row",           "Edit.Grid",
                                       "Move.CopyPlacement", "Repair.KeepLargest", "Repair.Split",
                                       "Repair.Join",        "Select.Similar"};
        if (k_one.contains(id))
            select({id == "Select.Similar" ? 2 : 1});
        if (id == "Measure.Gap")
            select({0, 1});
        if (id == "Edit.Paste") {
            m_host->Run("Edit.Copy");
            m_host->Window().statusBar()->clearMessage();
        }
        if (id == "Units.Mm") {
            m_host->GetHost().settings.inches.SetData(true);
            m_host->GetHost().ApplySettings();
        }
        // The check box of a layout that is active already stays on.
        if (id.startsWith("Layout.") && m_host->Window().LayoutName() == id.mid(7))
            m_host->Window().ActivateLayout(id == "Layout.Prepare" ? "Inspect" : "Prepare");
        if (id == "View.QuickSearch")
            m_host->GetHost().view->setFocus();
        QCoreApplication::processEvents();
    }

    void Restore(const QString& id)
    {
        m_host->CloseDialogs();
        m_host->GetHost().SetPlaying(false);
        if (id.startsWith("Units.")) {
            m_host->GetHost().settings.inches.SetData(false);
            m_host->GetHost().ApplySettings();
        }
        if (id == "Window.Dark")
            m_host->GetHost().SetDark(false);
        if (id.startsWith("Window.") && id != "Window.Dark")
            m_host->Run(id);
        if (id == "File.Exit")
            m_host->Window().show();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<HostFixture> m_host;
};

/// The smaller product: fewer commands, the same frame.
class LiteProductTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_host = std::make_unique<HostFixture>("Tarnix Lite"); }
    void cleanupTestCase() { m_host.reset(); }

    void itOffersFewerCommands()
    {
        for (const char* layout : {"Prepare", "Inspect", "Slice"})
            QVERIFY(CommandsOf("Tarnix Lite", layout).size() < CommandsOf("Tarnix", layout).size());
        QVERIFY(!m_host->Command("Repair.Split"));
        QVERIFY(!m_host->Command("File.PrintReport"));
        QVERIFY(m_host->Command("Repair.All"));
    }

    void itsRibbonShowsNothingThatIsMissing()
    {
        // The menu of recent files is there as soon as there is one.
        m_host->GetHost().AddRecent("/somewhere/left.stl");
        for (const char* layout_name : {"Prepare", "Inspect", "Slice"}) {
            m_host->Window().ActivateLayout(layout_name);
            ovk::UiLayout* layout = ovk::UiController::GetInstance()->GetActiveLayout();
            auto* ribbon = dynamic_cast<ovk::UiStateRibbon*>(
                layout->GetState(ovk::UiStateRibbon::GetSuiteName()));
            QVERIFY(ribbon->GetCount() >= 4);
            for (int p = 0; p < ribbon->GetCount(); ++p) {
                QVERIFY(ribbon->GetPage(p)->IsAvailable());
                for (int g = 0; g < ribbon->GetPage(p)->GetCount(); ++g) {
                    auto* group =
                        dynamic_cast<ovk::UiStateRibbonGroup*>(ribbon->GetPage(p)->GetItem(g));
                    QCOMPARE(group->GetAvailableCount(), group->GetCount());
                }
            }
        }
    }

    void theBackstageLeavesOutWhatIsMissing()
    {
        Qtitan::RibbonBackstageView* backstage = m_host->Window().GetBackstage();
        QVERIFY(backstage);
        QVERIFY(!backstage->findChild<QWidget*>("File.PrintReport"));
        QVERIFY(backstage->findChild<QWidget*>("File.ExportStl"));
    }

private:
    std::unique_ptr<HostFixture> m_host;
};

OVK_TEST_CLASS(CatalogueTest)
OVK_TEST_CLASS(CommandsTest)
OVK_TEST_CLASS(LiteProductTest)

#include "commands_test.moc"
