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
    void aPanelThatGoesEndsItsDrag_data();
    void aPanelThatGoesEndsItsDrag();
    void aTornTabThatDiesLetsGoOfTheMouse();
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

void DockDragEndTest::aPanelThatGoesEndsItsDrag_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"closed by its owner", "hidden", "its page deleted", "its page hidden",
                            "its page not available", "all floating panels hidden"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void DockDragEndTest::aPanelThatGoesEndsItsDrag()
{
    QFETCH(QString, way);
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a", QSize(150, 300));
    fixture.Left()->AddWidget(a);
    const QPointer<DockWidget> panel = fixture.Panel("panel");
    panel->SetFloated(QPoint(400, 300));
    DockFixture::Settle();
    TitleDrag drag(*panel);
    drag.To(QPoint(450, 350));
    drag.To(At(*a, 0.5, 0.1));
    QVERIFY(fixture.Left()->_pp()->estimator);
    FakePage* const page = DockFixture::Page(*panel);
    const QHash<QString, std::function<void()>> ways{
        {"closed by its owner",
         [&] {
             panel->SetDeleteOnClose(false);
             panel->Close();
         }},
        {"hidden", [&] { panel->setVisible(false); }},
        {"its page deleted", [&] { delete page; }},
        {"its page hidden", [&] { panel->SetPageVisible(static_cast<IDockPage*>(page), false); }},
        {"its page not available",
         [&] {
             page->available = false;
             panel->AvailabilityChanged();
         }},
        {"all floating panels hidden", [&] { fixture.manager->HideFloating(); }},
    };
    ways.value(way)();
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QVERIFY(!fixture.Left()->_pp()->estimator);
    QVERIFY(!a->_Impl()->overlay);
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!panel->_Impl()->dragging && !panel->_Impl()->armed);
    QCOMPARE(fixture.Inconsistency(), QString());
    // The release that comes late is nobody's drop.
    drag.Drop(At(*a, 0.5, 0.1));
    QVERIFY(panel->IsFloated());
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"a", "|"}));
}

void DockDragEndTest::aTornTabThatDiesLetsGoOfTheMouse()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    const QPoint on_tab = tabs->tabRect(0).center();
    const QPoint outside(on_tab.x(), 3 * tabs->height());
    QTest::mousePress(tabs, Qt::LeftButton, {}, on_tab);
    Send(*tabs, QEvent::MouseMove, outside, tabs->mapToGlobal(outside), Qt::LeftButton);
    QVERIFY(QWidget::mouseGrabber());
    delete fixture.manager->GetFloatedWidgets().first();
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!fixture.manager->_Impl()->controller->IsDragging());
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, on_tab);
    QCOMPARE(fixture.Inconsistency(), QString());
}

OVK_TEST_CLASS(DockDragEndTest)

#include "dock_drag_end_test.moc"
