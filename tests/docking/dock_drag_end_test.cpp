#include "dock_drag_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

class DockDragEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPanelThatDiesInItsDragLeavesNothing();
    void aLayoutThatIsSwitchedInADragLeavesNothing();
    void aLostFocusEndsTheDrag_data();
    void aLostFocusEndsTheDrag();
};

void DockDragEndTest::aPanelThatDiesInItsDragLeavesNothing()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    QVERIFY(fixture.Left()->_pp()->estimator);
    delete panel;
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QVERIFY(!a->_Impl()->overlay);
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragEndTest::aLayoutThatIsSwitchedInADragLeavesNothing()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    fixture.manager->Clear();
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QCOMPARE(DockFixture::Order(*fixture.Left()), QStringList{"|"});
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockDragEndTest::aLostFocusEndsTheDrag_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("another application") << 0;
    QTest::newRow("another window") << 1;
    QTest::newRow("a message box") << 2;
    QTest::newRow("a move without the button") << 3;
}

void DockDragEndTest::aLostFocusEndsTheDrag()
{
    QFETCH(int, way);
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    DockWidget* const panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    QVERIFY(fixture.Left()->_pp()->estimator);
    QVERIFY(a->_Impl()->overlay);
    if (way == 0) {
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
    } else if (way < 3) {
        QEvent event(way == 1 ? QEvent::WindowDeactivate : QEvent::WindowBlocked);
        QCoreApplication::sendEvent(panel, &event);
    } else {
        Send(*panel->_Impl()->title, QEvent::MouseMove, {5, 5}, QPoint(500, 500), Qt::NoButton);
    }
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QVERIFY(!a->_Impl()->overlay);
    QVERIFY(!panel->_Impl()->dragging && !panel->_Impl()->armed);
    QVERIFY(panel->IsFloated());
    QCOMPARE(fixture.Inconsistency(), QString());
}

OVK_TEST_CLASS(DockDragEndTest)

#include "dock_drag_end_test.moc"
