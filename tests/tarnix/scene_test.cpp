#include "../support/test_main.h"

#include "model/arrange.h"
#include "model/build_file.h"
#include "model/checks.h"
#include "model/primitives.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tarnix;

namespace {

Part MakePart(const QString& name, const Vec3& at = {}, const Vec3& size = {10, 10, 10})
{
    Part part(name, std::make_shared<const Mesh>(MakeBox(size)), PartColor(0));
    part.SetPlacement(Transform::Translation(at));
    return part;
}

QStringList Names(const Scene& scene)
{
    QStringList names;
    for (const Part& part : scene.Parts())
        names << part.name;
    return names;
}

void Shift(Part& part, double x)
{
    part.Apply(Transform::Translation({x, 0, 0}));
}

} // namespace

class SceneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addedPartsAreSelectedAlone()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        scene.Add("Add", {MakePart("b"), MakePart("c")});
        QCOMPARE(scene.SelectedCount(), 2);
        QVERIFY(!scene.Parts()[0].selected);
        scene.CheckConsistency();
    }

    void everyEditCanBeTakenBackAndDoneAgain()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        scene.EditSelected("Move", [](Part& part) { Shift(part, 5); });
        scene.DeleteSelected("Delete");
        QCOMPARE(scene.Count(), 0);
        scene.Undo();
        QCOMPARE(scene.Parts()[0].Bounds().low.x, 0.0);
        scene.Undo();
        QCOMPARE(scene.Parts()[0].Bounds().low.x, -5.0);
        QCOMPARE(scene.RedoTitles(), QStringList({"Move", "Delete"}));
        scene.Redo(2);
        QCOMPARE(scene.Count(), 0);
        scene.Undo(3);
        QCOMPARE(scene.Count(), 0);
        QVERIFY(!scene.CanUndo());
        scene.CheckConsistency();
    }

    void aNewEditForgetsWhatWasTakenBack()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        scene.Undo();
        scene.Add("Add", {MakePart("b")});
        QVERIFY(!scene.CanRedo());
        QCOMPARE(Names(scene), QStringList("b"));
    }

    void aDragIsOneStep()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        for (int i = 0; i < 5; ++i)
            scene.EditSelectedMerged("Drag", 7, [](Part& part) { Shift(part, 1); });
        QCOMPARE(scene.UndoTitles(), QStringList({"Add", "Drag"}));
        scene.EndMerge();
        scene.EditSelectedMerged("Drag", 7, [](Part& part) { Shift(part, 1); });
        QCOMPARE(scene.UndoTitles().size(), 3);
        scene.Undo(2);
        QCOMPARE(scene.Parts()[0].Bounds().low.x, -5.0);
    }

    void lockedPartsStayAsTheyAre()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        scene.SetLocked([](const Part&) { return true; });
        QVERIFY(!scene.HasEditableSelection());
        QVERIFY(!scene.EditSelected("Move", [](Part& part) { Shift(part, 5); }));
        scene.DeleteSelected("Delete");
        QCOMPARE(scene.Count(), 1);
        QCOMPARE(scene.UndoTitles(), QStringList("Add"));
    }

    void anEditThatChangesNothingIsNoStep()
    {
        Scene scene;
        QSignalSpy history(&scene, &Scene::HistoryChanged);
        QVERIFY(!scene.Edit("Nothing", [](PartList&) { return false; }));
        QCOMPARE(history.count(), 0);
    }

    void hidingAPartTakesItOutOfTheSelection()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a"), MakePart("b")});
        scene.SetVisible([](const Part& part) { return part.name == "a"; });
        QCOMPARE(scene.SelectedCount(), 1);
        scene.SelectNext(+1);
        QCOMPARE(scene.Selected().front()->name, QString("a"));
    }

    void stepsThroughTheSelectionGoRound()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a"), MakePart("b"), MakePart("c")});
        scene.Select([](const Part&) { return false; });
        const char* const expected[] = {"a", "b", "c", "a"};
        for (const char* name : expected) {
            scene.SelectNext(+1);
            QCOMPARE(scene.Selected().front()->name, QString(name));
        }
        scene.SelectNext(-1);
        QCOMPARE(scene.Selected().front()->name, QString("c"));
    }

    void theOldestStepsFallOff()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        for (int i = 0; i < 300; ++i)
            scene.EditSelected("Move", [](Part& part) { Shift(part, 1); });
        QCOMPARE(scene.UndoTitles().size(), 200);
        scene.CheckConsistency();
    }

    void savedIsUnmodifiedUntilTheNextEdit()
    {
        Scene scene;
        QVERIFY(!scene.IsModified());
        scene.Add("Add", {MakePart("a")});
        QVERIFY(scene.IsModified());
        scene.SetSaved();
        QVERIFY(!scene.IsModified());
        scene.Undo();
        QVERIFY(scene.IsModified());
    }

    void renamingNeedsAName()
    {
        Scene scene;
        scene.Add("Add", {MakePart("a")});
        const int id = scene.Parts()[0].id;
        scene.Rename(id, "   ");
        QCOMPARE(Names(scene), QStringList("a"));
        scene.Rename(id, "  left   hinge ");
        QCOMPARE(Names(scene), QStringList("left hinge"));
    }
};

class ArrangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrangedPartsNeitherTouchNorLeaveThePlate()
    {
        std::vector<Box> boxes;
        for (int i = 0; i < 14; ++i)
            boxes.push_back(MakeBox({20.0 + 3 * i, 10.0 + 5 * (i % 4), 8}).Bounds());
        const Plate plate;
        const std::vector<Vec3> shifts = ArrangeOnPlate(boxes, plate, 5.0);
        PartList parts;
        for (size_t i = 0; i < boxes.size(); ++i) {
            Part part = MakePart("p", {}, boxes[i].Size());
            part.Apply(Transform::Translation(shifts[i]));
            QVERIFY(IsInside(part.Bounds(), plate));
            parts.push_back(part);
        }
        QVERIFY(Collisions(parts).empty());
    }

    void whatFindsNoRoomLiesBesideThePlate()
    {
        Plate plate;
        plate.width = plate.depth = 50.0;
        const std::vector<Box> boxes{MakeBox({40, 40, 5}).Bounds(), MakeBox({90, 10, 5}).Bounds()};
        const std::vector<Vec3> shifts = ArrangeOnPlate(boxes, plate, 5.0);
        QVERIFY(boxes[1].low.x + shifts[1].x > plate.width / 2.0);
    }

    void alignmentBringsTheChosenSidesTogether()
    {
        const Box target = MakeBox({10, 10, 10}).Bounds();
        Box box = target;
        box.low = box.low + Vec3{30, 0, 0};
        box.high = box.high + Vec3{34, 0, 0};
        QCOMPARE(AlignShift(box, target, 0, AlignTo::Low).x, -30.0);
        QCOMPARE(AlignShift(box, target, 0, AlignTo::High).x, -34.0);
        QCOMPARE(AlignShift(box, target, 0, AlignTo::Middle).x, -32.0);
    }

    void distributionMakesSpacesEqual()
    {
        std::vector<Box> boxes;
        for (const double at : {0.0, 11.0, 50.0}) {
            Box box;
            box.Add(Vec3{at, 0, 0});
            box.Add(Vec3{at + 10, 1, 1});
            boxes.push_back(box);
        }
        const std::vector<Vec3> shifts = Distribute(boxes, 0);
        QCOMPARE(shifts[0].x, 0.0);
        QCOMPARE(shifts[1].x, 14.0);
        QCOMPARE(shifts[2].x, 0.0);
        QCOMPARE(Distribute({boxes[0], boxes[1]}, 0)[1].x, 0.0);
    }
};

class BuildFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBuildComesBackAsItWas()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("one.tarnix");
        PartList parts{MakePart("left", {1, 2, 3}), MakePart("right", {4, 5, 6})};
        parts[1].SetMesh(parts[0].GetMesh());
        parts[1].locked = true;
        parts[0].Apply(Transform::Rotation(2, 30.0));
        Plate plate;
        plate.height = 333.0;
        QCOMPARE(BuildFile::Save(path, parts, plate), QString());
        const BuildFile::Result result = BuildFile::Load(path);
        QVERIFY2(result, qPrintable(result.error));
        QCOMPARE(result.parts.size(), size_t(2));
        QCOMPARE(result.plate.height, 333.0);
        QCOMPARE(result.parts[1].name, QString("right"));
        QVERIFY(result.parts[1].locked);
        QVERIFY(result.parts[0].GetPlacement() == parts[0].GetPlacement());
        QCOMPARE(result.parts[0].GetMesh(), result.parts[1].GetMesh());
    }

    void aDamagedBuildIsRefusedWithAWord()
    {
        const QByteArray whole = BuildFile::Write({MakePart("a")}, Plate());
        for (int length = 0; length < whole.size(); ++length) {
            const BuildFile::Result result = BuildFile::Read(whole.left(length));
            QVERIFY(!result);
            QVERIFY(result.parts.empty());
        }
        QVERIFY(BuildFile::Read(whole));
    }

    void changedBytesNeverCrash()
    {
        const QByteArray whole = BuildFile::Write({MakePart("a"), MakePart("b")}, Plate());
        for (int i = 0; i < whole.size(); ++i) {
            for (const char value : {'\xff', '\x7f'}) {
                QByteArray bytes = whole;
                bytes[i] = value;
                BuildFile::Read(bytes);
            }
        }
    }

    void aFolderThatIsNotThereIsToldAtSaving()
    {
        QTemporaryDir folder;
        QVERIFY(!BuildFile::Save(folder.filePath("no/where/a.tarnix"), {}, Plate()).isEmpty());
    }
};

class ChecksTest : public QObject
{
    Q_OBJECT

    static bool Finds(const Scene& scene, const QString& text)
    {
        for (const Finding& finding : CheckBuild(scene, 45.0, Formatter())) {
            if (finding.text.contains(text))
                return true;
        }
        return false;
    }

private Q_SLOTS:
    void aSoundBuildHasOneGoodFinding()
    {
        Scene scene;
        QVERIFY(Finds(scene, "no part"));
        scene.Add("Add", {MakePart("a")});
        QVERIFY(Finds(scene, "ready"));
    }

    void eachFaultIsFound()
    {
        Scene scene;
        scene.Add("Add", {MakePart("low", {0, 0, -3})});
        QVERIFY(Finds(scene, "below the plate"));
        scene.Add("Add", {MakePart("far", {500, 0, 0})});
        QVERIFY(Finds(scene, "out of the build volume"));
        scene.Add("Add", {MakePart("up", {50, 50, 20})});
        QVERIFY(Finds(scene, "floats 20.00 mm"));
        scene.Add("Add", {MakePart("twin", {52, 50, 20})});
        QVERIFY(Finds(scene, "runs into"));
        std::vector<Triangle> triangles = MakeBox({1, 1, 1}).Triangles();
        triangles.pop_back();
        scene.Add("Add",
                  {Part("open",
                        std::make_shared<const Mesh>(MakeBox({1, 1, 1}).Points(), triangles), 0)});
        QVERIFY(Finds(scene, "open edges: 3"));
    }

    void theReportNamesEveryPart()
    {
        Scene scene;
        scene.Add("Add", {MakePart("left hinge"), MakePart("right hinge", {40, 0, 0})});
        const QString report = BuildReport(scene, 45.0, 1.24, Formatter());
        QVERIFY(report.contains("left hinge"));
        QVERIFY(report.contains("right hinge"));
        QVERIFY(report.contains("1.00 cm"));
    }
};

OVK_TEST_CLASS(SceneTest)
OVK_TEST_CLASS(ArrangeTest)
OVK_TEST_CLASS(BuildFileTest)
OVK_TEST_CLASS(ChecksTest)

#include "scene_test.moc"
