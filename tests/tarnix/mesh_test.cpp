#include "../support/test_main.h"

#include "model/mesh_edit.h"
#include "model/mesh_repair.h"
#include "model/mesh_topology.h"
#include "model/polygon.h"
#include "model/primitives.h"
#include "model/stl_reader.h"

#include <QtMath>

using namespace tarnix;

namespace {

bool Near(double a, double b, double tolerance = 1e-6)
{
    return std::abs(a - b) <= tolerance * std::max(1.0, std::abs(b));
}

bool Near(const Vec3& a, const Vec3& b)
{
    return Length(a - b) < 1e-9 * std::max(1.0, Length(b)) + 1e-9;
}

Mesh Without(const Mesh& mesh, size_t triangle)
{
    std::vector<Triangle> triangles = mesh.Triangles();
    triangles.erase(triangles.begin() + static_cast<std::ptrdiff_t>(triangle));
    return Mesh(mesh.Points(), triangles);
}

} // namespace

class MeshTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void primitivesAreClosedAndHaveTheirVolume_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<double>("volume");
        QTest::addColumn<double>("tolerance");
        QTest::newRow("box") << 0 << 24.0 << 1e-9;
        QTest::newRow("cylinder") << 1 << M_PI * 25.0 * 8.0 << 0.01;
        QTest::newRow("cone") << 2 << M_PI * 25.0 * 9.0 / 3.0 << 0.01;
        QTest::newRow("cut cone") << 3 << M_PI * 9.0 / 3.0 * (25.0 + 10.0 + 4.0) << 0.01;
        QTest::newRow("sphere") << 4 << 4.0 / 3.0 * M_PI * 125.0 << 0.01;
        QTest::newRow("torus") << 5 << 2.0 * M_PI * M_PI * 10.0 * 4.0 << 0.02;
        QTest::newRow("prism") << 6 << 1.5 * std::sqrt(3.0) * 25.0 * 4.0 << 1e-9;
    }

    void primitivesAreClosedAndHaveTheirVolume()
    {
        QFETCH(int, which);
        QFETCH(double, volume);
        QFETCH(double, tolerance);
        const Mesh meshes[] = {MakeBox({2, 3, 4}), MakeCylinder(5, 8), MakeCone(5, 0, 9),
                               MakeCone(5, 2, 9),  MakeSphere(5),      MakeTorus(10, 2),
                               MakePrism(5, 4, 6)};
        const Mesh& mesh = meshes[which];
        QVERIFY(mesh.GetTopology().IsSolid());
        QCOMPARE(mesh.GetTopology().shells, 1);
        QCOMPARE(mesh.GetTopology().degenerate, 0);
        QVERIFY2(Near(mesh.Volume(), volume, tolerance),
                 qPrintable(QString::number(mesh.Volume())));
        QVERIFY(Near(mesh.Bounds().low.z, 0.0));
    }

    void aBoxHasTwelveFeatureEdges()
    {
        QCOMPARE(MakeBox({1, 1, 1}).FeatureEdges().size(), size_t(12));
    }

    void volumesFarFromTheOriginStayExact()
    {
        const Mesh box = MakeBox({2, 3, 4}).Mapped(Transform::Translation({1e5, -1e5, 1e5}));
        QVERIFY(Near(box.Volume(), 24.0, 1e-9));
        QVERIFY(Near(box.CenterOfMass(), {1e5, -1e5, 1e5 + 2.0}));
    }

    void aMirroredMeshKeepsItsOutside()
    {
        const Mesh mirrored = MakeCone(4, 1, 6).Mapped(Transform::Mirror(0));
        QVERIFY(mirrored.Volume() > 0.0);
        QVERIFY(mirrored.GetTopology().IsSolid());
    }

    void anIndexOutOfRangeLeavesTheTriangleOut()
    {
        const Mesh mesh({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 1, 2}, {0, 1, 3}});
        QCOMPARE(mesh.Triangles().size(), size_t(1));
    }

    void topologyTellsWhatIsWrong()
    {
        const Mesh box = MakeBox({1, 1, 1});
        QCOMPARE(Without(box, 0).GetTopology().open_edges, 3);
        std::vector<Triangle> reversed = box.Triangles();
        std::swap(reversed[4].b, reversed[4].c);
        QCOMPARE(Mesh(box.Points(), reversed).GetTopology().reversed_edges, 3);
        std::vector<Triangle> twice = box.Triangles();
        twice.push_back(twice[0]);
        const Mesh doubled(box.Points(), twice);
        QCOMPARE(doubled.GetTopology().duplicates, 1);
        QCOMPARE(doubled.GetTopology().crowded_edges, 3);
        const Mesh two = Merge({box, box.Mapped(Transform::Translation({5, 0, 0}))});
        QCOMPARE(two.GetTopology().shells, 2);
    }

    void repairMakesABrokenBoxWhole()
    {
        Mesh broken = Without(MakeBox({2, 3, 4}), 3);
        std::vector<Triangle> triangles = broken.Triangles();
        std::swap(triangles[5].a, triangles[5].b);
        triangles.push_back(triangles[0]);
        triangles.push_back({1, 1, 2});
        broken = Mesh(broken.Points(), triangles);
        QVERIFY(!broken.GetTopology().IsSolid());
        RepairReport report;
        const Mesh whole = RepairAll(broken, report);
        QVERIFY(whole.GetTopology().IsSolid());
        QVERIFY(Near(whole.Volume(), 24.0));
        QCOMPARE(report.removed, 2);
        QVERIFY(report.added >= 1);
        QVERIFY(report.turned >= 1);
    }

    void aPartInsideOutIsTurned()
    {
        RepairReport report;
        const Mesh box = FlipNormals(MakeBox({1, 1, 1}));
        QVERIFY(box.Volume() < 0.0);
        QVERIFY(OrientNormals(box, report).Volume() > 0.0);
        QCOMPARE(report.turned, 12);
    }

    void aSoundMeshIsLeftAsItIs()
    {
        RepairReport report;
        const Mesh sphere = MakeSphere(7, 16);
        QCOMPARE(RepairAll(sphere, report).Triangles().size(), sphere.Triangles().size());
        QVERIFY(report.IsEmpty());
    }

    void aCornerSoupWithSmallCracksIsJoined()
    {
        std::vector<Vec3> corners;
        const Mesh box = MakeBox({1, 1, 1});
        double shift = 0.0;
        for (const Triangle& t : box.Triangles()) {
            for (int corner = 0; corner < 3; ++corner)
                corners.push_back(box.Points()[t[corner]] + Vec3{shift, 0, 0});
            shift += 1e-8;
        }
        const Mesh soup = Mesh::FromCorners(corners);
        QVERIFY(!soup.GetTopology().IsSolid());
        RepairReport report;
        QVERIFY(RepairAll(soup, report).GetTopology().IsSolid());
        QVERIFY(report.joined > 0);
    }

    void shellsComeApartAndGoTogether()
    {
        const Mesh two = Merge(
            {MakeSphere(2, 8), MakeBox({9, 9, 9}).Mapped(Transform::Translation({20, 0, 0}))});
        const std::vector<Mesh> shells = SplitShells(two);
        QCOMPARE(shells.size(), size_t(2));
        QVERIFY(Near(shells[0].Volume(), 729.0));
    }

    void subdivisionKeepsTheShape()
    {
        const Mesh box = MakeBox({2, 3, 4});
        const Mesh finer = Subdivide(box);
        QCOMPARE(finer.Triangles().size(), box.Triangles().size() * 4);
        QVERIFY(Near(finer.Volume(), 24.0));
        QVERIFY(finer.GetTopology().IsSolid());
    }

    void smoothingKeepsTheSolidClosedAndItsSize()
    {
        const Mesh sphere = MakeSphere(10, 24);
        const Mesh smooth = Smooth(sphere);
        QVERIFY(smooth.GetTopology().IsSolid());
        QVERIFY(Near(smooth.Volume(), sphere.Volume(), 0.03));
    }

    void simplifyingTakesTrianglesAway()
    {
        const Mesh sphere = MakeSphere(10, 48);
        const Mesh simple = Simplify(sphere, 2.0);
        QVERIFY(simple.Triangles().size() < sphere.Triangles().size() / 2);
        QVERIFY(Near(simple.Volume(), sphere.Volume(), 0.1));
    }

    void theBestBottomIsALargeFlatSideToStandOn()
    {
        QVERIFY(Near(BestBottom(MakeCone(5, 2, 3)), {0, 0, -1}));
        const Vec3 side = BestBottom(MakeBox({10, 2, 9}));
        QVERIFY(Near(std::abs(side.y), 1.0));
        QCOMPARE(BestBottom(Mesh()), Vec3{});
    }

    void aCutGivesTwoClosedHalves_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<double>("z");
        QTest::newRow("box") << 0 << 1.3;
        QTest::newRow("box at a corner height") << 0 << 4.0;
        QTest::newRow("ring: an outline with a hole") << 1 << 2.0;
        QTest::newRow("standing ring: two outlines") << 2 << 8.0;
        QTest::newRow("sphere at its points") << 3 << 5.0;
        QTest::newRow("bracket through its holes") << 4 << 14.0;
        QTest::newRow("bracket through the bore") << 4 << 38.0;
        QTest::newRow("vase") << 5 << 33.3;
        QTest::newRow("gear") << 6 << 6.0;
    }

    void aCutGivesTwoClosedHalves()
    {
        QFETCH(int, which);
        QFETCH(double, z);
        const auto sample = [](const char* name) {
            return *StlReader::ReadFile(QStringLiteral(TARNIX_SAMPLES "/") + QLatin1String(name))
                        .mesh;
        };
        const auto make = [&]() -> Mesh {
            switch (which) {
            case 0:
                return MakeBox({2, 3, 4});
            case 1:
                return MakeTorus(10, 2);
            case 2:
                return MakeTorus(10, 2)
                    .Mapped(Transform::Rotation(0, 90.0))
                    .Mapped(Transform::Translation({0, 0, 8.5}));
            case 3:
                return MakeSphere(5, 16);
            case 4:
                return sample("bracket.stl");
            case 5:
                return sample("vase.stl");
            default:
                return sample("gear.stl");
            }
        };
        const Mesh whole = make();
        const Mesh lower = CutAt(whole, z, false);
        const Mesh upper = CutAt(whole, z, true);
        double volume = 0.0;
        for (const Mesh& half : {lower, upper}) {
            if (half.IsEmpty())
                continue;
            QCOMPARE(half.GetTopology().open_edges, 0);
            QCOMPARE(half.GetTopology().reversed_edges, 0);
            volume += half.Volume();
        }
        QVERIFY2(Near(volume, whole.Volume(), 1e-6),
                 qPrintable(QStringLiteral("%1 of %2").arg(volume).arg(whole.Volume())));
        if (!upper.IsEmpty())
            QVERIFY(upper.Bounds().low.z >= z - 1e-9);
        if (!lower.IsEmpty())
            QVERIFY(lower.Bounds().high.z <= z + 1e-9);
    }

    void aCutBesideThePartKeepsItWholeOrLeavesNothing()
    {
        const Mesh box = MakeBox({2, 3, 4});
        QVERIFY(CutAt(box, 9.0, true).IsEmpty());
        QCOMPARE(CutAt(box, 9.0, false).Triangles().size(), size_t(12));
    }

    void polygonsWithHolesAreFilledExactly()
    {
        const Polygon outline{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
        const Polygon first{{2, 2}, {2, 4}, {4, 4}, {4, 2}};
        const Polygon second{{6, 5}, {6, 8}, {8, 8}, {8, 5}};
        const std::vector<Polygon> all{outline, first, second};
        std::vector<Point2> points;
        for (const Polygon& polygon : all)
            points.insert(points.end(), polygon.begin(), polygon.end());
        double area = 0.0;
        for (const Triangle& t : Triangulate(all))
            area += SignedArea({points[t.a], points[t.b], points[t.c]});
        QVERIFY(Near(area, 100.0 - 4.0 - 6.0));
    }

    void overhangsAreFacesThatLookDownSteeply()
    {
        const Mesh cone = MakeCone(2, 10, 5); // leans out by more than 45 degrees
        QVERIFY(OverhangArea(cone, Transform(), 45.0) > 100.0);
        QCOMPARE(OverhangArea(MakeCylinder(5, 10), Transform(), 45.0), 0.0);
        QVERIFY(OverhangArea(MakeCylinder(5, 10), Transform::Translation({0, 0, 4}), 45.0) > 70.0);
        QCOMPARE(OverhangArea(cone, Transform(), 90.0), 0.0);
    }
};

class TransformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fourQuarterTurnsAreExactlyNone()
    {
        for (int axis = 0; axis < 3; ++axis) {
            const Transform quarter = Transform::Rotation(axis, 90.0);
            QVERIFY((quarter * quarter * quarter * quarter).IsIdentity());
        }
    }

    void theInverseUndoes()
    {
        const Transform map = Transform::Translation({1, 2, 3}) * Transform::Rotation(1, 33.0) *
                              Transform::Scaling({2, 0.5, 3}) * Transform::Mirror(2);
        QVERIFY(Near(map.Inverted().Map(map.Map({7, -8, 9})), {7, -8, 9}));
        QVERIFY(map.IsMirroring());
    }

    void aFlatMapHasNoInverse() { QVERIFY(Transform::Scaling({1, 1, 0}).Inverted().IsIdentity()); }

    void oneDirectionIsTurnedIntoAnother_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("z");
        QTest::newRow("same") << 0.0 << 0.0 << -1.0;
        QTest::newRow("opposite") << 0.0 << 0.0 << 1.0;
        QTest::newRow("across") << 1.0 << 0.0 << 0.0;
        QTest::newRow("oblique") << 0.3 << -0.5 << 0.7;
        QTest::newRow("nearly opposite") << 1e-4 << 0.0 << 1.0;
    }

    void oneDirectionIsTurnedIntoAnother()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, z);
        const Transform map = Transform::RotationBetween({x, y, z}, {0, 0, -1});
        QVERIFY(Near(map.Map(Normalized({x, y, z})), {0, 0, -1}));
        QVERIFY(Near(map.Determinant(), 1.0));
    }

    void oppositeDirectionsOfEveryAxisAreTurned()
    {
        for (const Vec3& v :
             {Vec3{1, 0, 0}, Vec3{0, 1, 0}, Vec3{-0.6, 0.8, 0}, Vec3{0.5, 0.5, 0.7}}) {
            const Transform map = Transform::RotationBetween(v, -v);
            QVERIFY(Near(map.Map(v), -v));
            QVERIFY(Near(map.Determinant(), 1.0));
        }
    }

    void normalsStandOnTheirFacesUnderAnyMap()
    {
        const Transform map = Transform::Scaling({1, 4, 1}) * Transform::Mirror(0);
        const Mesh box = MakeCone(3, 1, 4, 12);
        const Mesh mapped = box.Mapped(map);
        for (size_t i = 0; i < box.Triangles().size(); ++i)
            QVERIFY(Near(map.MapNormal(box.Normals()[i]), mapped.Normals()[i]));
    }

    void anglesComeBackFromATurn()
    {
        const Transform map = Transform::Rotation(2, 30.0) * Transform::Rotation(1, -20.0) *
                              Transform::Rotation(0, 10.0) * Transform::Scaling({2, 2, 2});
        QVERIFY(Near(map.EulerAngles(), {10, -20, 30}));
        QVERIFY(Near(map.Scale(), {2, 2, 2}));
    }
};

OVK_TEST_CLASS(MeshTest)
OVK_TEST_CLASS(TransformTest)

#include "mesh_test.moc"
