#include "../support/test_main.h"

#include "host_fixture.h"
#include "model/build_file.h"
#include "model/primitives.h"
#include "view/color_scale.h"
#include "view/part_renderer.h"

#include <ovk/docking/dock_layout.h>
#include <ovk/docking/dock_manager.h>
#include <ovk/docking/dock_site.h>
#include <ovk/docking/dock_toolbox_site.h>
#include <ovk/docking/dock_widget.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "app/file_actions.h"

using namespace tarnix;
using tarnix_test::HostFixture;

namespace {

Part Standing(const QString& name, Mesh mesh, QRgb color = 0xff808080)
{
    return Part(name, std::make_shared<const Mesh>(std::move(mesh)), color);
}

/// A page of the window, wherever it lies.
QWidget* PageOf(HostFixture& host, const QString& id)
{
    for (ovk::DockWidget* panel : host.Window().GetDockManager()->GetWidgetsList()) {
        for (int i = 0; i < panel->GetCount(ovk::DockWidget::All); ++i) {
            ovk::IDockPage* page = panel->GetPageAt(i, ovk::DockWidget::All);
            if (page->GetId() == id)
                return page->GetWidget();
        }
    }
    return nullptr;
}

template <class Widget> Widget* Inner(HostFixture& host, const char* page, const char* name)
{
    QWidget* widget = PageOf(host, QLatin1String(page));
    return widget ? widget->findChild<Widget*>(QLatin1String(name)) : nullptr;
}

void Go(HostFixture& host, const char* layout)
{
    host.Window().ActivateLayout(QLatin1String(layout));
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int PanelsAt(HostFixture& host, ovk::DockLayout::Side side)
{
    int shown = 0;
    const ovk::DockToolboxSite* site =
        host.Window().GetDockManager()->GetLayout()->GetSite(side)->GetToolboxSite();
    for (int i = 0; i < site->count(); ++i) {
        const auto* panel = qobject_cast<ovk::DockWidget*>(site->itemAt(i)->widget());
        shown += panel && panel->isVisible();
    }
    return shown;
}

} // namespace

/// What pages and colours are computed from; no window.
class ColorScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorsRunFromLowToHigh()
    {
        const ColorScale scale{0.0, 10.0, {Qt::black, Qt::white}};
        QCOMPARE(scale.At(0), qRgb(0, 0, 0));
        QCOMPARE(scale.At(10), qRgb(255, 255, 255));
        QCOMPARE(scale.At(-5), qRgb(0, 0, 0));
        QCOMPARE(scale.At(50), qRgb(255, 255, 255));
        QCOMPARE(qRed(scale.At(5)), 128);
        QCOMPARE(scale.ValueOf(1), 10.0);
        QCOMPARE(scale.Table()[0], scale.At(0));
        QCOMPARE(scale.Table()[255], scale.At(10));
        QVERIFY(ColorScale().At(3) == 0);
    }

    void theScaleOfHeightsEndsAboveTheHighestPart()
    {
        Part low = Standing("low", MakeBox({10, 10, 12.2}));
        Part hidden = Standing("hidden", MakeBox({10, 10, 50}));
        hidden.visible = false;
        QCOMPARE(ScaleOf(ColorBy::Height, {low, hidden}).high, 13.0);
        QCOMPARE(ScaleOf(ColorBy::Height, {}).high, 1.0);
        QCOMPARE(ScaleOf(ColorBy::Overhang, {low}).high, 90.0);
        QVERIFY(ScaleOf(ColorBy::Part, {low}).colors.empty());
    }

    void theSurfaceIsSharedOutByHeight()
    {
        const Part box = Standing("box", MakeBox({10, 20, 30}));
        const ColorScale scale{0.0, 30.0, {Qt::red, Qt::green, Qt::blue, Qt::white}};
        const std::vector<double> areas = AreasOf(ColorBy::Height, scale, {box});
        QCOMPARE(areas.size(), size_t(3));
        // A third of the walls each, the floor to the lowest, the top to the highest.
        QCOMPARE(areas[0], 600.0 + 200.0);
        QCOMPARE(areas[1], 600.0);
        QCOMPARE(areas[2], 600.0 + 200.0);
    }

    void onlyWhatLeansOverCountsAsOverhang()
    {
        const ColorScale scale = ScaleOf(ColorBy::Overhang, PartList());
        Part box = Standing("box", MakeBox({10, 20, 30}));
        for (const double area : AreasOf(ColorBy::Overhang, scale, {box}))
            QCOMPARE(area, 0.0);
        box.Apply(Transform::Translation({0, 0, 5}));
        const std::vector<double> lifted = AreasOf(ColorBy::Overhang, scale, {box});
        QCOMPARE(lifted.back(), 200.0);
        box.visible = false;
        QCOMPARE(AreasOf(ColorBy::Overhang, scale, {box}).back(), 0.0);
    }

    void aPartIsDrawnInTheColoursOfItsHeights()
    {
        const PartList parts{Standing("box", MakeBox({40, 40, 40}), 0xff000000)};
        ViewState state;
        state.mode = DisplayMode::Shaded;
        state.color_by = ColorBy::Height;
        Camera camera;
        camera.perspective = false;
        camera.azimuth = 0;
        camera.elevation = 0;
        camera.target = {0, 0, 20};
        camera.height = 60;
        PartRenderer renderer;
        const QImage image =
            renderer.Draw(parts, camera, state, ViewColors::Light(Qt::blue), QSize(120, 120), 1);
        const ColorScale scale = ScaleOf(ColorBy::Height, parts);
        for (const double z : {4.0, 20.0, 36.0}) {
            const QColor seen = image.pixelColor(60, int(60 - (z - 20) * 2));
            const QColor told = QColor::fromRgb(scale.At(z));
            // Light makes it darker or paler; the hue is that of the legend.
            QVERIFY2(std::abs(seen.hslHue() - told.hslHue()) <= 12,
                     qPrintable(seen.name() + " " + told.name()));
        }
    }
};

/// Notes in scenes and their files.
class NotesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNoteComesBackWithItsPart()
    {
        Scene scene;
        scene.Add(QStringLiteral("Add"), {Standing("a", MakeBox({5, 5, 5}))});
        const int id = scene.Parts()[0].id;
        scene.SetSaved();
        scene.SetNote(id, "thin wall");
        QVERIFY(scene.IsModified());
        scene.DeleteSelected(QStringLiteral("Delete"));
        scene.Undo();
        QCOMPARE(scene.Note(id), QString("thin wall"));
        scene.SetNote(id, QString());
        QVERIFY(scene.Note(id).isEmpty());
        scene.SetNote(0, "for Monday");
        scene.Reset({});
        QVERIFY(scene.Note(0).isEmpty());
    }

    void aFileKeepsTheNotes()
    {
        Part a = Standing("a", MakeBox({5, 5, 5})), b = Standing("b", MakeBox({6, 5, 5}));
        a.id = 7;
        b.id = 9;
        const QByteArray bytes = BuildFile::Write({a, b}, Plate(), [](int id) {
            return id == 0 ? QString("build") : id == 9 ? QString("second\nline") : QString();
        });
        const BuildFile::Result result = BuildFile::Read(bytes);
        QVERIFY(result);
        QCOMPARE(result.note, QString("build"));
        QCOMPARE(result.notes, (QStringList{QString(), "second\nline"}));
    }

    void anOlderFileHasNoNotes()
    {
        QByteArray bytes = BuildFile::Write({Standing("a", MakeBox({5, 5, 5}))}, Plate());
        // The older form ends with the parts; null texts take four bytes each, the list's length
        // four more.
        bytes.chop(4 + 4 + 4);
        bytes[5] = 1;
        const BuildFile::Result result = BuildFile::Read(bytes);
        QVERIFY2(result, qPrintable(result.error));
        QCOMPARE(result.parts.size(), size_t(1));
        QVERIFY(result.notes.isEmpty());
    }
};

/// The pages of the panels in the whole program.
class PagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_host = std::make_unique<HostFixture>(QStringLiteral("Tarnix")); }
    void cleanupTestCase() { m_host.reset(); }
    void init()
    {
        m_host->GetHost().GetScene().Reset({});
        Go(*m_host, "Prepare");
    }

    void eachLayoutHasPanelsOnThreeSidesAndOneThatFloats_data()
    {
        QTest::addColumn<QByteArray>("layout");
        for (const char* layout : {"Prepare", "Inspect", "Slice"})
            QTest::newRow(layout) << QByteArray(layout);
    }

    void eachLayoutHasPanelsOnThreeSidesAndOneThatFloats()
    {
        QFETCH(QByteArray, layout);
        Go(*m_host, layout.constData());
        using ovk::DockLayout;
        QVERIFY(PanelsAt(*m_host, DockLayout::Left) >= 1);
        QVERIFY(PanelsAt(*m_host, DockLayout::Right) >= 2);
        QVERIFY(PanelsAt(*m_host, DockLayout::Bottom) >= 1);
        const QList<ovk::DockWidget*> floating =
            m_host->Window().GetDockManager()->GetFloatedWidgets();
        QCOMPARE(floating.size(), 1);
        QVERIFY(floating.first()->isVisible());
    }

    void thereAreEightPagesAndMore()
    {
        QVERIFY(ovk::IWidgetFactory::GetInstance()->GetPageIds().size() >= 10);
    }

    void aPageThatTheLayoutDoesNotOfferWaitsUnseen()
    {
        const auto shown = [this](const char* page) {
            return m_host->Window().IsPageShown(QLatin1String(page));
        };
        QVERIFY(PageOf(*m_host, "Page.Layers"));
        QVERIFY(!shown("Page.Layers"));
        QVERIFY(!shown("Page.Measurements"));
        QVERIFY(shown("Page.Primitives"));
        Go(*m_host, "Slice");
        QVERIFY(shown("Page.Layers"));
        QVERIFY(!shown("Page.Primitives"));
        QVERIFY(PageOf(*m_host, "Page.Findings"));
        QVERIFY(!shown("Page.Findings"));
        Go(*m_host, "Inspect");
        QVERIFY(shown("Page.Measurements"));
        QVERIFY(PageOf(*m_host, "Page.Primitives"));
        QVERIFY(!shown("Page.Primitives"));
    }

    void aSolidIsChosenSizedAndInserted()
    {
        auto* cylinder = Inner<QAbstractButton>(*m_host, "Page.Primitives", "solid.Add.Cylinder");
        QVERIFY(cylinder);
        cylinder->click();
        QVERIFY(cylinder->isChecked());
        auto* diameter = Inner<QDoubleSpinBox>(*m_host, "Page.Primitives", "solidField0");
        auto* height = Inner<QDoubleSpinBox>(*m_host, "Page.Primitives", "solidField1");
        QVERIFY(diameter && height);
        diameter->setValue(24);
        height->setValue(18);
        Inner<QAbstractButton>(*m_host, "Page.Primitives", "insertSolid")->click();
        const Scene& scene = m_host->GetHost().GetScene();
        QCOMPARE(scene.Count(), 1);
        QVERIFY(std::abs(scene.Bounds().Size().z - 18) < 1e-6);
        QVERIFY(std::abs(scene.Bounds().Size().x - 24) < 0.1);
        Inner<QAbstractButton>(*m_host, "Page.Primitives", "insertSolid")->click();
        QCOMPARE(scene.Count(), 2);
        // The second one stands beside the first.
        QVERIFY(!scene.Parts()[0].Bounds().Intersects(scene.Parts()[1].Bounds()));
        // Six solids, each with a picture and a name.
        const QWidget* page = PageOf(*m_host, "Page.Primitives");
        int solids = 0;
        for (const QAbstractButton* button : page->findChildren<QAbstractButton*>()) {
            if (!button->objectName().startsWith("solid."))
                continue;
            ++solids;
            QVERIFY(!button->icon().isNull() && !button->text().isEmpty());
        }
        QCOMPARE(solids, 6);
    }

    void notesBelongToThePartOrToTheBuild()
    {
        Scene& scene = m_host->GetHost().GetScene();
        scene.Add(QStringLiteral("Add"), {Standing("a", MakeBox({5, 5, 5}))});
        scene.Add(QStringLiteral("Add"), {Standing("b", MakeBox({5, 5, 5}))});
        auto* text = Inner<QPlainTextEdit>(*m_host, "Page.Notes", "noteText");
        auto* subject = Inner<QLabel>(*m_host, "Page.Notes", "noteSubject");
        QVERIFY(text && subject);
        QCOMPARE(subject->text(), QString("About b"));
        text->setPlainText("of b");
        scene.Select([](const Part&) { return false; });
        QCOMPARE(subject->text(), QString("About the build"));
        QVERIFY(text->toPlainText().isEmpty());
        text->setPlainText("of the build");
        scene.SelectOnly(scene.Parts()[0].id);
        QVERIFY(text->toPlainText().isEmpty());
        scene.SelectOnly(scene.Parts()[1].id);
        QCOMPARE(text->toPlainText(), QString("of b"));

        QTemporaryDir folder;
        const QString path = folder.filePath("noted.tarnix");
        QVERIFY(SaveBuild(m_host->GetHost(), path));
        scene.Reset({});
        QVERIFY(OpenFilesNow(m_host->GetHost(), {path}));
        QVERIFY(!scene.IsModified());
        QCOMPARE(text->toPlainText(), QString("of the build"));
        scene.SelectOnly(scene.Parts()[1].id);
        QCOMPARE(text->toPlainText(), QString("of b"));
    }

    void theLogTellsWhatHappened()
    {
        auto* list = Inner<QTreeWidget>(*m_host, "Page.Log", "logList");
        auto* kind = Inner<QComboBox>(*m_host, "Page.Log", "logKind");
        auto* search = Inner<QLineEdit>(*m_host, "Page.Log", "logSearch");
        QVERIFY(list && kind && search);
        Host& host = m_host->GetHost();
        host.log.Clear();
        QCOMPARE(list->topLevelItemCount(), 0);
        host.SetQuiet(true);
        host.Tell("a word");
        host.Warn("a warning", {"a detail"});
        host.GetScene().Add(QStringLiteral("A step"), {Standing("a", MakeBox({5, 5, 5}))});
        host.GetScene().Undo();
        host.GetScene().Redo();
        host.SetQuiet(false);
        QStringList texts;
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            texts.append(list->topLevelItem(i)->text(2));
        QCOMPARE(texts, (QStringList{"a word", "a warning", "a detail", "A step", "Undone: A step",
                                     "Again: A step"}));
        kind->setCurrentIndex(2);
        QCOMPARE(list->topLevelItemCount(), 2);
        search->setText("DETAIL");
        QCOMPARE(list->topLevelItemCount(), 1);
        for (QAbstractButton* button :
             PageOf(*m_host, "Page.Log")->findChildren<QAbstractButton*>()) {
            if (button->text() == "Copy")
                button->click();
        }
        QVERIFY(QApplication::clipboard()->text().endsWith("a detail"));
        search->clear();
        kind->setCurrentIndex(0);
        host.log.Clear();
        QCOMPARE(list->topLevelItemCount(), 0);
        for (size_t i = 0; i < EventLog::k_most + 20; ++i)
            host.log.Add(EventLog::Kind::Message, QString::number(i));
        QCOMPARE(host.log.Entries().size(), EventLog::k_most);
        QCOMPARE(list->topLevelItemCount(), int(EventLog::k_most));
        host.log.Clear();
    }

    void theLegendTellsTheColoursOfTheView()
    {
        Go(*m_host, "Inspect");
        m_host->GetHost().GetScene().Add(QStringLiteral("Add"),
                                         {Standing("a", MakeBox({20, 20, 30}))});
        auto* quantity = Inner<QComboBox>(*m_host, "Page.Legend", "colorBy");
        auto* table = Inner<QTreeWidget>(*m_host, "Page.Legend", "colorAreas");
        auto* legend = Inner<QWidget>(*m_host, "Page.Legend", "colorLegend");
        QVERIFY(quantity && table && legend);
        QVERIFY(legend->inherits("ovk::ColorLegend"));
        QVERIFY(legend->isHidden());
        QCOMPARE(table->topLevelItemCount(), 1);
        quantity->setCurrentIndex(1);
        QCOMPARE(m_host->GetWorkspace().GetViewState().color_by, ColorBy::Height);
        QVERIFY(!legend->isHidden());
        QCOMPARE(table->topLevelItemCount(), 5);
        QCOMPARE(table->topLevelItem(0)->text(0), QStringLiteral("24.00 \u2013 30.00"));
        quantity->setCurrentIndex(2);
        QCOMPARE(m_host->GetWorkspace().GetViewState().color_by, ColorBy::Overhang);
        QCOMPARE(table->topLevelItemCount(), 4);
        // A layer has a height, but no slope.
        Go(*m_host, "Slice");
        quantity = Inner<QComboBox>(*m_host, "Page.Legend", "colorBy");
        const auto* items = qobject_cast<QStandardItemModel*>(quantity->model());
        QVERIFY(!items->item(2)->isEnabled());
        QVERIFY(items->item(1)->isEnabled());
        // Where no legend is to be had, the parts have their own colours again.
        Go(*m_host, "Prepare");
        QCOMPARE(m_host->GetWorkspace().GetViewState().color_by, ColorBy::Part);
    }

private:
    std::unique_ptr<HostFixture> m_host;
};

OVK_TEST_CLASS(ColorScaleTest)
OVK_TEST_CLASS(NotesTest)
OVK_TEST_CLASS(PagesTest)

#include "pages_test.moc"
