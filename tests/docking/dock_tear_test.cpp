#include "dock_drag_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

class DockTearTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTornTabBecomesAPanel();
    void aTabThatStaysNearItsBarIsNotTorn();
    void tabsOfAFixedPanelAreNotTorn();
};

void DockTearTest::aTornTabBecomesAPanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("b");
    panel->AddPage(second);
    panel->SetDeleteOnClose(false);
    panel->SetFitToCurrent(true);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCurrentIndex(1);
    second->setEnabled(false);
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    const QPoint on_tab = tabs->tabRect(1).center();
    QTest::mousePress(tabs, Qt::LeftButton, {}, on_tab);
    QVERIFY(panel->_Impl()->tab_tear_armed);
    const QPoint outside(on_tab.x(), 2 * tabs->height() + 1);
    QTest::mouseMove(tabs, outside);
    Send(*tabs, QEvent::MouseMove, outside, tabs->mapToGlobal(outside), Qt::LeftButton);
    QVERIFY(!panel->_Impl()->tab_tear_armed);
    QCOMPARE(fixture.manager->GetFloatedWidgets().size(), 1);
    DockWidget* const torn = fixture.manager->GetFloatedWidgets().first();
    QCOMPARE(torn->GetCurrentPage(), static_cast<IDockPage*>(second));
    QVERIFY(!second->isEnabled());
    QVERIFY(!torn->IsDeleteOnClose());
    QVERIFY(torn->IsFitToCurrent());
    QVERIFY(!torn->GetName().isEmpty());
    QVERIFY(torn->GetName() != panel->GetName());
    QVERIFY(torn->isVisible());
    QCOMPARE(panel->GetCount(DockWidget::All), 1);
    QVERIFY(torn->_Impl()->title);
    QVERIFY(torn->_Impl()->armed);
    QCOMPARE(QWidget::mouseGrabber(), static_cast<QWidget*>(torn->_Impl()->title));
    Send(*torn->_Impl()->title, QEvent::MouseMove, {5, 5}, QPoint(600, 500), Qt::LeftButton);
    QVERIFY(fixture.manager->_Impl()->controller->IsDragging());
    Send(*torn->_Impl()->title, QEvent::MouseButtonRelease, {5, 5}, QPoint(600, 500), Qt::NoButton);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QTest::mouseRelease(tabs, Qt::LeftButton);
    DockFixture::Settle();
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockTearTest::aTabThatStaysNearItsBarIsNotTorn()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    const QPoint on_tab = tabs->tabRect(0).center();
    QTest::mousePress(tabs, Qt::LeftButton, {}, on_tab);
    const QPoint near(on_tab.x(), 2 * tabs->height() - 1);
    Send(*tabs, QEvent::MouseMove, near, tabs->mapToGlobal(near), Qt::LeftButton);
    QVERIFY(panel->_Impl()->tab_tear_armed);
    QVERIFY(fixture.manager->GetFloatedWidgets().isEmpty());
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, on_tab);
    QVERIFY(!panel->_Impl()->tab_tear_armed);
}

void DockTearTest::tabsOfAFixedPanelAreNotTorn()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    panel->SetMovable(false);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mousePress(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QVERIFY(!panel->_Impl()->tab_tear_armed);
    QTest::mouseRelease(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
}

OVK_TEST_CLASS(DockTearTest)

#include "dock_tear_test.moc"
