#include "tests/support/test_main.h"

#include <ovk/docking/animator_p.h>
#include <ovk/docking/dock_overlay_p.h>
#include <ovk/docking/dock_resize_p.h>
#include <ovk/docking/dock_title_p.h>
#include <ovk/docking/overlay_window_p.h>

using ovk::ResizeEdge;

Q_DECLARE_METATYPE(ResizeEdge)
Q_DECLARE_METATYPE(QMargins)

class DockResizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEdgeUnderTheCursor_data();
    void theEdgeUnderTheCursor();
    void everyEdgeHasItsNumber();
    void anEdgePullsItsSides_data();
    void anEdgePullsItsSides();
    void noEdgePullsNothing();
};

void DockResizeTest::theEdgeUnderTheCursor_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<ResizeEdge>("edge");
    QTest::addColumn<Qt::CursorShape>("cursor");

    // The window is 200 by 100.
    const auto row = [](const char* name, QPoint pos, ResizeEdge edge, Qt::CursorShape cursor) {
        QTest::newRow(name) << pos << edge << cursor;
    };
    row("middle", {100, 50}, ResizeEdge::None, Qt::ArrowCursor);
    row("top left", {0, 0}, ResizeEdge::TopLeft, Qt::SizeFDiagCursor);
    row("top left, outermost", {12, 12}, ResizeEdge::TopLeft, Qt::SizeFDiagCursor);
    row("top left, outside", {-12, -12}, ResizeEdge::TopLeft, Qt::SizeFDiagCursor);
    row("beside the top left", {13, 12}, ResizeEdge::None, Qt::ArrowCursor);
    row("bottom left", {0, 100}, ResizeEdge::BottomLeft, Qt::SizeBDiagCursor);
    row("bottom left, inner", {12, 88}, ResizeEdge::BottomLeft, Qt::SizeBDiagCursor);
    row("top right", {200, 0}, ResizeEdge::TopRight, Qt::SizeBDiagCursor);
    row("top right, inner", {188, 12}, ResizeEdge::TopRight, Qt::SizeBDiagCursor);
    row("bottom right", {199, 99}, ResizeEdge::BottomRight, Qt::SizeFDiagCursor);
    row("left", {3, 50}, ResizeEdge::Left, Qt::SizeHorCursor);
    row("left, too far in", {4, 50}, ResizeEdge::None, Qt::ArrowCursor);
    row("left, outside", {-3, 50}, ResizeEdge::Left, Qt::SizeHorCursor);
    row("right", {197, 50}, ResizeEdge::Right, Qt::SizeHorCursor);
    row("right, too far in", {196, 50}, ResizeEdge::None, Qt::ArrowCursor);
    row("top", {100, 3}, ResizeEdge::Top, Qt::SizeVerCursor);
    row("top, too far in", {100, 4}, ResizeEdge::None, Qt::ArrowCursor);
    row("bottom", {100, 97}, ResizeEdge::Bottom, Qt::SizeVerCursor);
    row("bottom, outside", {100, 103}, ResizeEdge::Bottom, Qt::SizeVerCursor);
    row("beside the left, too low", {3, 113}, ResizeEdge::None, Qt::ArrowCursor);
}

void DockResizeTest::theEdgeUnderTheCursor()
{
    QFETCH(QPoint, pos);
    QFETCH(Qt::CursorShape, cursor);
    const ResizeEdge edge = ovk::HitTestEdge(pos, QSize(200, 100));
    QTEST(edge, "edge");
    QCOMPARE(ovk::ResizeCursor(edge), cursor);
}

void DockResizeTest::everyEdgeHasItsNumber()
{
    QCOMPARE(int(ResizeEdge::TopLeft), 0);
    QCOMPARE(int(ResizeEdge::Left), 1);
    QCOMPARE(int(ResizeEdge::BottomLeft), 2);
    QCOMPARE(int(ResizeEdge::Bottom), 3);
    QCOMPARE(int(ResizeEdge::BottomRight), 4);
    QCOMPARE(int(ResizeEdge::Right), 5);
    QCOMPARE(int(ResizeEdge::TopRight), 6);
    QCOMPARE(int(ResizeEdge::Top), 7);
    QCOMPARE(int(ResizeEdge::None), 8);
}

void DockResizeTest::anEdgePullsItsSides_data()
{
    QTest::addColumn<ResizeEdge>("edge");
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("refresh");

    // The window stands at (50, 60) and is 200 by 100.
    QTest::newRow("top left") << ResizeEdge::TopLeft << QPoint(2, 3) << QPoint(-8, -7)
                              << QRect(40, 50, 210, 110) << true;
    QTest::newRow("left") << ResizeEdge::Left << QPoint(2, 50) << QPoint(12, 70)
                          << QRect(60, 60, 190, 100) << true;
    QTest::newRow("bottom left") << ResizeEdge::BottomLeft << QPoint(2, 99) << QPoint(-8, 120)
                                 << QRect(40, 60, 210, 120) << true;
    QTest::newRow("bottom") << ResizeEdge::Bottom << QPoint(90, 99) << QPoint(300, 120)
                            << QRect(50, 60, 200, 120) << false;
    QTest::newRow("bottom right") << ResizeEdge::BottomRight << QPoint(199, 99) << QPoint(250, 80)
                                  << QRect(50, 60, 250, 80) << false;
    QTest::newRow("right") << ResizeEdge::Right << QPoint(199, 50) << QPoint(180, 90)
                           << QRect(50, 60, 180, 100) << false;
    QTest::newRow("top right") << ResizeEdge::TopRight << QPoint(199, 1) << QPoint(220, 11)
                               << QRect(50, 70, 220, 90) << true;
    QTest::newRow("top") << ResizeEdge::Top << QPoint(90, 1) << QPoint(10, -9)
                         << QRect(50, 50, 200, 110) << true;
}

void DockResizeTest::anEdgePullsItsSides()
{
    QFETCH(ResizeEdge, edge);
    QFETCH(QPoint, press);
    QFETCH(QPoint, pos);
    const auto step = ovk::ResizeByEdge(edge, QRect(50, 60, 200, 100), press, pos, QSize(200, 100));
    QVERIFY(step);
    QTEST(step->geometry, "geometry");
    QTEST(step->refresh, "refresh");
}

void DockResizeTest::noEdgePullsNothing()
{
    QVERIFY(!ovk::ResizeByEdge(ResizeEdge::None, QRect(0, 0, 9, 9), {}, {5, 5}, {9, 9}));
}

OVK_TEST_CLASS(DockResizeTest)

class DockFormulaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePreviewGrowsAlongAndAcross_data();
    void thePreviewGrowsAlongAndAcross();
    void theMergeZoneIsTheMiddleOfAPanel_data();
    void theMergeZoneIsTheMiddleOfAPanel();
    void theMergeZoneOfAFloatingPanelLeavesItsTitle();
    void theGripFillsTheMiddleOfTheTitle();
    void theCutOfAnOverlayKeepsItsOldFormula_data();
    void theCutOfAnOverlayKeepsItsOldFormula();
};

void DockFormulaTest::thePreviewGrowsAlongAndAcross_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<QSize>("max");
    QTest::addColumn<QSize>("size");

    // The dragged panel is at least 80 by 60, the site 120 by 400.
    const QSize bounded(300, 200);
    const QSize unbounded(0xFFFFFF, 0xFFFFFF);
    QTest::newRow("vertical, begin") << 0 << true << bounded << QSize(0, 0);
    QTest::newRow("vertical, half way") << 100 << true << bounded << QSize(60, 100);
    QTest::newRow("vertical, end") << 200 << true << bounded << QSize(120, 200);
    QTest::newRow("vertical, unbounded") << 100 << true << unbounded << QSize(60, 200);
    QTest::newRow("vertical, rounded down") << 33 << true << bounded << QSize(19, 33);
    QTest::newRow("horizontal, half way") << 100 << false << bounded << QSize(150, 200);
    QTest::newRow("horizontal, unbounded") << 200 << false << unbounded << QSize(120, 400);
}

void DockFormulaTest::thePreviewGrowsAlongAndAcross()
{
    QFETCH(int, time);
    QFETCH(bool, vertical);
    QFETCH(QSize, max);
    QTEST(ovk::Animator::SizeAt(time, vertical, QSize(80, 60), max, QSize(120, 400)), "size");
}

void DockFormulaTest::theMergeZoneIsTheMiddleOfAPanel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<QRect>("zone");

    QTest::newRow("vertical") << QSize(100, 200) << true << QRect(1, 70, 98, 60);
    QTest::newRow("vertical, odd") << QSize(100, 201) << true << QRect(1, 70, 98, 61);
    QTest::newRow("horizontal") << QSize(200, 100) << false << QRect(70, 1, 60, 98);
}

void DockFormulaTest::theMergeZoneIsTheMiddleOfAPanel()
{
    QFETCH(QSize, size);
    QFETCH(bool, vertical);
    QTEST(ovk::DockOverlay::DockedZone(QRect(QPoint(0, 0), size), vertical, 30), "zone");
}

void DockFormulaTest::theMergeZoneOfAFloatingPanelLeavesItsTitle()
{
    const QRect rect(0, 0, 100, 200);
    QCOMPARE(ovk::DockOverlay::FloatingZone(rect, 22), QRect(1, 22, 98, 177));
    QCOMPARE(ovk::DockOverlay::FloatingZone(rect, 0), QRect(1, 1, 98, 198));
}

void DockFormulaTest::theGripFillsTheMiddleOfTheTitle()
{
    const QRect grip = ovk::DockWidgetTitle::GripRect(QSize(200, 24), 3, 20, 50, 45);
    QCOMPARE(grip, QRect(QPoint(20 + 6 + 50, 9), QPoint(199 - 45, 23 - (24 - 9 - 6))));
    QCOMPARE(grip.height(), 6);
}

void DockFormulaTest::theCutOfAnOverlayKeepsItsOldFormula_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QMargins>("margins");

    QTest::newRow("all of it") << QRect(0, 0, 100, 50) << QMargins(0, 0, 0, 0);
    QTest::newRow("a part") << QRect(10, 5, 60, 30) << QMargins(10, 5, -40, -20);
}

void DockFormulaTest::theCutOfAnOverlayKeepsItsOldFormula()
{
    QFETCH(QRect, rect);
    QTEST(ovk::OverlayWindow::Impl::CutMargins(rect, QRect(0, 0, 100, 50)), "margins");
}

OVK_TEST_CLASS(DockFormulaTest)

#include "dock_resize_test.moc"
