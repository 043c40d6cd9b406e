#include "platform/qtitan/ribbon_gallery_layout_p.h"
#include "tests/support/test_main.h"

using namespace Qtitan;

namespace {

std::vector<GalleryCell> Palette()
{
    std::vector<GalleryCell> cells{{QSize(), true}};
    cells.insert(cells.end(), 48, {QSize(17, 17), false});
    cells.push_back({QSize(), true});
    cells.insert(cells.end(), 16, {QSize(17, 17), false});
    return cells;
}

} // namespace

class RibbonGalleryLayoutTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsHoldNoMoreThanTheMaximum()
    {
        const GalleryGeometry geometry = layoutGallery(Palette(), 1000, 8, 20, true);
        QCOMPARE(geometry.rowCount, 6 + 2);
        QCOMPARE(geometry.height, 8 * 17 + 2 * 20);
        QCOMPARE(geometry.rects[1], QRect(0, 20, 17, 17));
        QCOMPARE(geometry.rects[9], QRect(0, 37, 17, 17));
        QCOMPARE(geometry.rects[49], QRect(0, 20 + 6 * 17, 1000, 20));
    }

    void aNarrowGalleryBreaksRowsEarlier()
    {
        QCOMPARE(layoutGallery(Palette(), 4 * 17, 8, 20, true).rowCount, 12 + 4);
    }

    void hiddenHeadingsTakeNoRoomButStillEndRows()
    {
        const GalleryGeometry geometry = layoutGallery(
            {{QSize(17, 17), false}, {QSize(), true}, {QSize(17, 17), false}}, 1000, 8, 20, false);
        QVERIFY(geometry.rects[1].isEmpty());
        QCOMPARE(geometry.rects[2], QRect(0, 17, 17, 17));
    }

    void arrowsWalkTheCells_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("to");
        QTest::newRow("right") << 1 << int(Qt::Key_Right) << 2;
        QTest::newRow("right over the end of a row") << 8 << int(Qt::Key_Right) << 9;
        QTest::newRow("right over a heading") << 48 << int(Qt::Key_Right) << 50;
        QTest::newRow("left over a heading") << 50 << int(Qt::Key_Left) << 48;
        QTest::newRow("left at the first") << 1 << int(Qt::Key_Left) << -1;
        QTest::newRow("down") << 3 << int(Qt::Key_Down) << 11;
        QTest::newRow("down over a heading") << 43 << int(Qt::Key_Down) << 52;
        QTest::newRow("up") << 11 << int(Qt::Key_Up) << 3;
        QTest::newRow("up at the top") << 3 << int(Qt::Key_Up) << -1;
        QTest::newRow("down at the bottom") << 60 << int(Qt::Key_Down) << -1;
        QTest::newRow("from nowhere") << -1 << int(Qt::Key_Down) << -1;
    }

    void arrowsWalkTheCells()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(int, to);
        QCOMPARE(galleryNeighbour(layoutGallery(Palette(), 1000, 8, 20, true), from, key), to);
    }
};

OVK_TEST_CLASS(RibbonGalleryLayoutTest)

#include "ribbon_gallery_layout_test.moc"
