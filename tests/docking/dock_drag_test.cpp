#include "dock_drag_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

class DockDragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragByTheTitleFloatsThePanel();
    void aPanelDropsAtEveryEdge_data();
    void aPanelDropsAtEveryEdge();
    void aFoldedSiteTakesNoDropAtItsEdge();
    void edgesAreTriedInTheirOrder();
    void aDropOnTheUpperEndInsertsAbove();
    void aDropInTheMiddleMergesIntoTabs();
    void hiddenPagesStayHiddenAfterAMerge();
    void aMergedPanelIsDeletedOrHidden_data();
    void aMergedPanelIsDeletedOrHidden();
    void aFloatingPanelTakesOnlyMerges();
    void aPanelThatDoesNotFitStaysFloating();
    void aPanelThatMayNotMoveStaysDocked();
};

void DockDragTest::aDragByTheTitleFloatsThePanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    TitleDrag drag(*panel);
    const QPoint start = panel->_Impl()->title->mapToGlobal(QPoint(50, 6));
    drag.To(start + QPoint(2 * QApplication::startDragDistance() - 1, 0));
    QVERIFY(!panel->IsFloated());
    drag.To(start + QPoint(2 * QApplication::startDragDistance(), 0));
    QVERIFY(panel->IsFloated());
    QVERIFY(fixture.manager->_Impl()->controller->IsDragging());
    drag.To(QPoint(500, 400));
    QCOMPARE(panel->pos(), QPoint(450, 394));
    drag.Drop(QPoint(500, 400));
    QVERIFY(panel->IsFloated());
    QCOMPARE(panel->pos(), QPoint(450, 394));
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aPanelDropsAtEveryEdge_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPointF>("at");
    QTest::newRow("left") << 0 << QPointF(0.01, 0.5);
    QTest::newRow("right") << 1 << QPointF(0.99, 0.5);
    QTest::newRow("top") << 2 << QPointF(0.5, 0.01);
    QTest::newRow("bottom") << 3 << QPointF(0.5, 0.99);
}

void DockDragTest::aPanelDropsAtEveryEdge()
{
    QFETCH(int, side);
    QFETCH(QPointF, at);
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->SetFloated(QPoint(300, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*fixture.manager, at.x(), at.y()); });
    QVERIFY(!panel->IsFloated());
    QCOMPARE(DockFixture::Order(*fixture.Site(DockLayout::Side(side))).count("a"), 1);
    QVERIFY(panel->isVisible());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aFoldedSiteTakesNoDropAtItsEdge()
{
    DockFixture fixture;
    fixture.Left()->SetMinimized(true);
    DockFixture::Settle();
    const DockArea::Impl& area = *fixture.manager->DockArea::_Impl();
    QCOMPARE(area.FindEdgeSite(At(*fixture.manager, 0.01, 0.5)), nullptr);
    // The corner falls through to the next site.
    QCOMPARE(area.FindEdgeSite(At(*fixture.manager, 0.01, 0.01)), fixture.Top());
}

void DockDragTest::edgesAreTriedInTheirOrder()
{
    DockFixture fixture;
    const DockArea::Impl& area = *fixture.manager->DockArea::_Impl();
    const auto at = [&](double x, double y) {
        return area.FindEdgeSite(At(*fixture.manager, x, y));
    };
    QCOMPARE(at(0.01, 0.01), fixture.Left());
    QCOMPARE(at(0.99, 0.99), fixture.Right());
    QCOMPARE(at(0.5, 0.01), fixture.Top());
    QCOMPARE(at(0.5, 0.99), fixture.Bottom());
    QCOMPARE(at(0.5, 0.5), nullptr);
    // 7 percent of 800 are 56 pixels.
    QCOMPARE(area.EdgeZone(DockLayout::Left), QRect(0, 0, 56, 600));
    QCOMPARE(area.EdgeZone(DockLayout::Right), QRect(744, 0, 56, 600));
    QCOMPARE(area.EdgeZone(DockLayout::Top), QRect(0, 0, 800, 42));
    QCOMPARE(area.EdgeZone(DockLayout::Bottom), QRect(0, 558, 800, 42));
}

void DockDragTest::aDropOnTheUpperEndInsertsAbove()
{
    DockFixture fixture;
    DockWidget* const below = fixture.Panel("below", QSize(150, 200));
    fixture.Left()->AddWidget(below);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*below, 0.5, 0.1); });
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"panel", "below", "|"}));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aDropInTheMiddleMergesIntoTabs()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(150, 300));
    docked->AddPage(new FakePage("second"));
    docked->SetCurrentIndex(1);
    fixture.Left()->AddWidget(docked);
    const QPointer<DockWidget> panel = fixture.Panel("panel");
    panel->AddPage(new FakePage("dragged2"));
    panel->SetCurrentIndex(1);
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*docked, 0.5, 0.5); });
    QVERIFY(panel.isNull());
    QStringList pages;
    for (int i = 0; i < docked->GetCount(DockWidget::All); ++i)
        pages.append(docked->GetPageAt(i, DockWidget::All)->GetId());
    QCOMPARE(pages, (QStringList{"docked.page", "panel.page", "dragged2", "second"}));
    QCOMPARE(docked->GetCurrentPage()->GetId(), QStringLiteral("dragged2"));
    QVERIFY(!docked->_Impl()->overlay);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::hiddenPagesStayHiddenAfterAMerge()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(150, 300));
    DockWidget* const panel = fixture.Panel("panel");
    auto* const hidden = new FakePage("hidden");
    panel->AddPage(hidden);
    panel->SetPageVisible(static_cast<IDockPage*>(hidden), false);
    docked->_Impl()->Merge(*panel);
    QCOMPARE(docked->GetCount(DockWidget::All), 3);
    QCOMPARE(docked->GetCount(DockWidget::Visible), 2);
    QVERIFY(docked->IsExplicitlyHidden(static_cast<IDockPage*>(hidden)));
}

void DockDragTest::aMergedPanelIsDeletedOrHidden_data()
{
    QTest::addColumn<bool>("target_deletes");
    QTest::addColumn<bool>("dragged_deletes");
    QTest::newRow("the target's word counts") << true << false;
    QTest::newRow("and not the dragged one's") << false << true;
}

void DockDragTest::aMergedPanelIsDeletedOrHidden()
{
    QFETCH(bool, target_deletes);
    QFETCH(bool, dragged_deletes);
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked");
    const QPointer<DockWidget> panel = fixture.Panel("panel");
    docked->SetDeleteOnEmpty(target_deletes);
    panel->SetDeleteOnEmpty(dragged_deletes);
    panel->SetFloated(QPoint(9, 9));
    docked->_Impl()->Merge(*panel);
    QCOMPARE(docked->GetCount(DockWidget::All), 2);
    DockFixture::Settle();
    QCOMPARE(panel.isNull(), target_deletes);
    if (panel)
        QVERIFY(!panel->isVisible());
}

void DockDragTest::aFloatingPanelTakesOnlyMerges()
{
    DockFixture fixture;
    DockWidget* const target = fixture.Panel("target", QSize(200, 200));
    target->SetFloated(QPoint(1000, 300));
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    fixture.manager->_Impl()->controller->SetWidgetAt(
        [&](const QPoint&) -> QWidget* { return target; });
    TitleDrag by_title(*panel);
    by_title.Take([&] { return target->mapToGlobal(QPoint(100, 3)); });
    QVERIFY(panel->IsFloated());
    QCOMPARE(target->GetCount(DockWidget::All), 1);
    QVERIFY(!target->_Impl()->overlay);
    TitleDrag by_middle(*panel);
    by_middle.Take([&] { return At(*target, 0.5, 0.6); });
    QCOMPARE(target->GetCount(DockWidget::All), 2);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aPanelThatDoesNotFitStaysFloating()
{
    DockFixture fixture;
    DockWidget* const rigid = fixture.Panel("rigid", QSize(150, 580));
    rigid->SetCollapsible(false);
    fixture.Left()->AddWidget(rigid);
    DockWidget* const panel = fixture.Panel("panel", QSize(100, 200));
    panel->SetCollapsible(false);
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.Take([&] { return At(*rigid, 0.5, 0.05); });
    QVERIFY(panel->IsFloated());
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"rigid", "|"}));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragTest::aPanelThatMayNotMoveStaysDocked()
{
    DockFixture fixture;
    DockWidget* const fixed = fixture.Panel("fixed");
    DockWidget* const pinned = fixture.Panel("pinned");
    fixed->SetMovable(false);
    pinned->SetCollapsible(false);
    fixture.Left()->AddWidget(fixed);
    fixture.Left()->AddWidget(pinned);
    DockFixture::Settle();
    for (DockWidget* panel : {fixed, pinned}) {
        QVERIFY(!panel->_Impl()->CanDrag());
        TitleDrag drag(*panel);
        drag.To(QPoint(700, 500));
        QVERIFY(!panel->IsFloated());
    }
    fixed->SetFloated(QPoint(300, 300));
    QVERIFY(fixed->_Impl()->CanDrag());
}

OVK_TEST_CLASS(DockDragTest)

#include "dock_drag_test.moc"
