#include "../support/test_main.h"

#include "model/measure.h"
#include "model/primitives.h"
#include "model/slice_export.h"
#include "model/stl_reader.h"

#include <QtMath>
#include <QXmlStreamReader>

using namespace tarnix;

namespace {

bool Near(double a, double b, double tolerance = 1e-6)
{
    return std::abs(a - b) <= tolerance * std::max(1.0, std::abs(b));
}

} // namespace

class SlicerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSliceHasTheAreaOfTheCrossSection_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<double>("z");
        QTest::addColumn<int>("contours");
        QTest::addColumn<double>("area");
        QTest::newRow("box") << 0 << 1.0 << 1 << 6.0;
        QTest::newRow("at the floor") << 0 << 0.0 << 0 << 0.0;
        QTest::newRow("at the ceiling") << 0 << 4.0 << 1 << 6.0;
        QTest::newRow("above") << 0 << 4.1 << 0 << 0.0;
        QTest::newRow("below") << 0 << -0.1 << 0 << 0.0;
        QTest::newRow("ring") << 1 << 2.0 << 2 << M_PI * (144.0 - 64.0);
        QTest::newRow("mirrored ring") << 2 << 2.0 << 2 << M_PI * (144.0 - 64.0);
        QTest::newRow("standing ring") << 3 << 0.0 << 2 << 2.0 * M_PI * 4.0;
    }

    void aSliceHasTheAreaOfTheCrossSection()
    {
        QFETCH(int, which);
        QFETCH(double, z);
        QFETCH(int, contours);
        QFETCH(double, area);
        const Mesh mesh = which == 0 ? MakeBox({2, 3, 4}) : MakeTorus(10, 2);
        Transform map;
        if (which == 2)
            map = Transform::Mirror(0);
        if (which == 3)
            map = Transform::Rotation(0, 90.0);
        const Slice slice = SliceMesh(mesh, map, z);
        QCOMPARE(int(slice.contours.size()), contours);
        QVERIFY(slice.gaps.empty());
        QVERIFY2(Near(slice.Area(), area, 0.03), qPrintable(QString::number(slice.Area())));
    }

    void outlinesRunLeftRoundAndHolesRightRound()
    {
        const Slice slice = SliceMesh(MakeTorus(10, 2), Transform(), 2.0);
        double high = 0.0, low = 0.0;
        for (const Polygon& contour : slice.contours) {
            high = std::max(high, SignedArea(contour));
            low = std::min(low, SignedArea(contour));
        }
        QVERIFY(high > 400.0);
        QVERIFY(low < -190.0);
    }

    void anOpenMeshGivesOneGap()
    {
        std::vector<Triangle> triangles = MakeBox({2, 3, 4}).Triangles();
        triangles.pop_back();
        const Slice slice =
            SliceMesh(Mesh(MakeBox({2, 3, 4}).Points(), triangles), Transform(), 1.0);
        QCOMPARE(slice.contours.size() + slice.gaps.size(), size_t(1));
        QCOMPARE(slice.gaps.size(), size_t(1));
    }

    void everyLayerOfTheSamplesCloses_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("bracket") << "bracket.stl";
        QTest::newRow("gear") << "gear.stl";
        QTest::newRow("vase") << "vase.stl";
    }

    void everyLayerOfTheSamplesCloses()
    {
        QFETCH(QString, file);
        const MeshPtr mesh = StlReader::ReadFile(QStringLiteral(TARNIX_SAMPLES "/") + file).mesh;
        const LayerStack stack(mesh->Bounds().Size().z, 0.5);
        double volume = 0.0;
        const Transform drop = Transform::Translation({0, 0, -mesh->Bounds().low.z});
        for (int layer = 0; layer < stack.Count(); ++layer) {
            const Slice slice = SliceMesh(*mesh, drop, stack.HeightOf(layer));
            QVERIFY(slice.gaps.empty());
            QVERIFY(!slice.contours.empty());
            volume += slice.Area() * stack.Thickness();
        }
        QVERIFY2(Near(volume, mesh->Volume(), 0.01),
                 qPrintable(QString::number(volume / mesh->Volume())));
    }

    void layersCoverTheHeight_data()
    {
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("thickness");
        QTest::addColumn<int>("count");
        QTest::newRow("even") << 10.0 << 0.2 << 50;
        QTest::newRow("a rest makes one more") << 10.1 << 0.2 << 51;
        QTest::newRow("thicker than the part") << 0.1 << 0.3 << 1;
        QTest::newRow("no height") << 0.0 << 0.2 << 0;
        QTest::newRow("no thickness") << 10.0 << 0.0 << 0;
        QTest::newRow("negative") << 10.0 << -1.0 << 0;
    }

    void layersCoverTheHeight()
    {
        QFETCH(double, height);
        QFETCH(double, thickness);
        QFETCH(int, count);
        const LayerStack stack(height, thickness);
        QCOMPARE(stack.Count(), count);
        QCOMPARE(stack.LayerAt(-5.0), count == 0 ? -1 : 0);
        QCOMPARE(stack.LayerAt(1e9), count - 1);
    }

    void hatchLinesStayInTheMaterial()
    {
        const Slice slice = SliceMesh(MakeTorus(10, 2), Transform(), 2.0);
        double length = 0.0;
        for (const Segment2& line : Hatch(slice, 0.25, 30.0)) {
            const double x = (line.from.x + line.to.x) / 2.0, y = (line.from.y + line.to.y) / 2.0;
            const double radius = std::hypot(x, y);
            QVERIFY(radius < 12.01 && radius > 7.0);
            length += std::hypot(line.to.x - line.from.x, line.to.y - line.from.y);
        }
        QVERIFY(Near(length * 0.25, slice.Area(), 0.02));
        QVERIFY(Hatch(slice, 0.0, 0.0).empty());
    }

    void theDrawingOfALayerIsWellFormed()
    {
        Part part("a", std::make_shared<const Mesh>(MakeTorus(10, 2)), 0);
        part.id = 3;
        const auto slices = SliceScene({part}, 2.0);
        QCOMPARE(slices.size(), size_t(1));
        QXmlStreamReader reader(SliceSvg(slices, Plate(), 1.0, 45.0));
        int paths = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            paths += reader.isStartElement() && reader.name() == QLatin1String("path");
        }
        QVERIFY(!reader.hasError());
        QCOMPARE(paths, 2);
    }
};

class MeasureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointsGiveTheirMeasure_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("distance") << int(MeasureKind::Distance) << 5.0 << "5.00 mm";
        QTest::newRow("angle") << int(MeasureKind::Angle) << 90.0 << QStringLiteral("90.0\u00b0");
        QTest::newRow("radius") << int(MeasureKind::Radius) << 6.5 << "R 6.50 mm";
        QTest::newRow("point") << int(MeasureKind::Point) << 0.0 << "(3.00; 4.00; 0.00) mm";
    }

    void pointsGiveTheirMeasure()
    {
        QLocale::setDefault(QLocale::c());
        QFETCH(int, kind);
        QFETCH(double, value);
        QFETCH(QString, text);
        const auto result = Measure(MeasureKind(kind), {{3, 4, 0}, {0, 0, 0}, {-9.6, 7.2, 0}});
        QVERIFY(result.has_value());
        QVERIFY(Near(result->value, value));
        QCOMPARE(result->Text(Formatter()), text);
    }

    void tooFewPointsSayNothing()
    {
        QVERIFY(!Measure(MeasureKind::Distance, {{0, 0, 0}}));
        QVERIFY(!Measure(MeasureKind::Radius, {{0, 0, 0}, {1, 1, 1}, {2, 2, 2}}));
        QVERIFY(!Measure(MeasureKind::Angle, {{0, 0, 0}, {0, 0, 0}, {2, 2, 2}}));
    }

    void theGapBetweenBoxesIsTheShortestWay()
    {
        Box first = MakeBox({2, 2, 2}).Bounds();
        Box second = first;
        second.low = second.low + Vec3{5, 6, 0};
        second.high = second.high + Vec3{5, 6, 0};
        QVERIFY(Near(MeasureGap(first, second, "").value, 5.0));
        QCOMPARE(MeasureGap(first, first, "").value, 0.0);
    }

    void lengthsAreShownInTheUnit_data()
    {
        QTest::addColumn<double>("mm");
        QTest::addColumn<QString>("metric");
        QTest::addColumn<QString>("imperial");
        QTest::newRow("an inch") << 25.4 << "25.40 mm"
                                 << "1.0000 inch";
        QTest::newRow("nothing") << -0.00001 << "0.00 mm"
                                 << "0.0000 inch";
        QTest::newRow("negative") << -1.234 << "-1.23 mm"
                                  << "-0.0486 inch";
    }

    void lengthsAreShownInTheUnit()
    {
        QLocale::setDefault(QLocale::c());
        QFETCH(double, mm);
        QFETCH(QString, metric);
        QFETCH(QString, imperial);
        QCOMPARE(Formatter(LengthUnit::Millimetre).Length(mm), metric);
        const Formatter inch(LengthUnit::Inch);
        QCOMPARE(inch.Length(mm), imperial);
        QVERIFY(Near(inch.FromUnit(inch.ToUnit(mm)), mm));
    }

    void weightsChangeToKilograms()
    {
        QLocale::setDefault(QLocale::c());
        QCOMPARE(Formatter().Weight(1000.0, 1.24), QString("1.2 g"));
        QCOMPARE(Formatter().Weight(1.0e6, 1.24), QString("1.24 kg"));
    }
};

OVK_TEST_CLASS(SlicerTest)
OVK_TEST_CLASS(MeasureTest)

#include "slicer_test.moc"
