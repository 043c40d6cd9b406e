#include "dock_state_support.h"
#include "tests/support/test_main.h"

#include <QElapsedTimer>

using namespace ovk;
using namespace ovk_test;

class DockStateRestoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCaptureIsEqualToWhatWasBuilt();
    void aCaptureForgetsToolbarsAndCloseButtons();
    void aForcedFoldIsNotStored();
    void aPanelThatIsAwayForTheBackstageIsStoredAsShown();
    void buildingAHundredTimesChangesNothing();
    void restoringACopyLeavesThePanels();
    void aSwitchFromInsideAPageIsSafe();
    void aFoldedSiteIsRestored();
    void aHundredPanelsAreRestoredAtOnce();
    void aPanelThatFoundNoRoomIsStoredOpen();
    void aFoldedPanelThatFloatsIsStoredAsItIs();
};

void DockStateRestoreTest::aCaptureIsEqualToWhatWasBuilt()
{
    DockHost host;
    QJsonObject folded = Panel("b", {"B"});
    folded.insert("minimized", true);
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), folded}}, {"top", {Panel("c", {"C"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180))}, 150));
    const QByteArray first = Text(host.Captured());
    host.Load(host.Captured());
    QCOMPARE(Text(host.Captured()), first);
}

void DockStateRestoreTest::aCaptureForgetsToolbarsAndCloseButtons()
{
    DockHost host;
    QJsonObject json = Panel("a", {"A"});
    json.insert("closeable", false);
    host.Load(Docking({{"left", {json}}}));
    QList<UiStateDockWidget*> items;
    host.State().GetItems(items);
    QVERIFY(!items.first()->IsCloseable());
    QVERIFY(!Text(host.Captured()).contains("closeable"));
    auto* const area = dynamic_cast<UiStateAreas*>(host.State().GetItem(0))->GetItem(0);
    QCOMPARE(area->GetName(), QStringLiteral("manager.area"));
    QCOMPARE(ovk_test::ChildNames(*area), (QStringList{"left", "right", "top", "bottom"}));
    QCOMPARE(ovk_test::ChildNames(*static_cast<ITreeItem*>(area)->GetChild(0)),
             (QStringList{"toolboxes.site", "toolbars.inner", "toolbars.outter"}));
}

void DockStateRestoreTest::aForcedFoldIsNotStored()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), Panel("b", {"B"})}}}));
    host.Find("a")->SetCollapsed(true, false);
    host.Find("b")->SetCollapsed(true, true);
    host.State().Store();
    QList<UiStateDockWidget*> items;
    host.State().GetItems(items);
    QVERIFY(items.at(0)->IsMinimized());
    QVERIFY(!items.at(1)->IsMinimized());
}

void DockStateRestoreTest::aPanelThatIsAwayForTheBackstageIsStoredAsShown()
{
    DockHost host;
    host.Load(Docking({}, {Panel("f", {"F"}, QRect(300, 200, 250, 180)),
                           Panel("g", {"G"}, QRect(30, 200, 250, 180))}));
    host.Find("g")->setVisible(false);
    host.Manager().HideFloating();
    const QJsonObject captured = host.Captured();
    host.Load(captured);
    QVERIFY(host.Find("f")->isVisible());
    QVERIFY(!host.Find("g")->isVisible());
}

void DockStateRestoreTest::buildingAHundredTimesChangesNothing()
{
    DockHost host;
    QJsonObject folded = Panel("g", {"G1", "G2"}, QRect(80, 90, 240, 300));
    folded.insert("minimized", true);
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), c_spacer, Panel("b", {"B"})}},
                       {"bottom", {Panel("c", {"C"}), Panel("d", {"D"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180)), folded}, 160));
    const QByteArray first = Text(host.Captured());
    for (int i = 0; i < 100; ++i) {
        host.Load(host.Captured());
        if (i % 10 == 0)
            QCOMPARE(Text(host.Captured()), first);
    }
    QCOMPARE(Text(host.Captured()), first);
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockStateRestoreTest::restoringACopyLeavesThePanels()
{
    DockHost host;
    host.Load(
        Docking({{"left", {Panel("a", {"A"})}}}, {Panel("f", {"F"}, QRect(90, 90, 200, 150))}));
    // What the customise dialog does: a deep copy at open, which Cancel puts back.
    UiProfile* const backup = new UiProfile(*host.host.Controller().GetActualProfile());
    const QPointer<DockWidget> docked = host.Find("a");
    const QPointer<DockWidget> floating = host.Find("f");
    floating->setVisible(false);
    UiProfile* const live = host.host.Controller().GetProfile();
    host.host.Controller().RestoreProfile(backup);
    delete live;
    host.layout = host.host.Controller().GetActiveLayout();
    DockFixture::Settle();
    QVERIFY(docked && floating);
    QCOMPARE(host.Manager().GetWidgetsList().size(), 2);
    QVERIFY(docked->isVisible());
    QVERIFY(floating->isVisible());
    QVERIFY(host.Manager().isVisible());
}

void DockStateRestoreTest::aSwitchFromInsideAPageIsSafe()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"})}}}));
    const QPointer<DockWidget> panel = host.Find("a");
    host.Pages().keep.value("A2")->on_activated = [&] {
        host.host.Activate(QStringLiteral("Slice"));
    };
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    QVERIFY(host.Manager().GetWidgetsList().isEmpty());
    DockFixture::Settle();
    QVERIFY(panel.isNull());
    host.Pages().keep.value("A2")->on_activated = [&] {};
    // And there and back again inside of one callback.
    host.host.Activate(QStringLiteral("Model"));
    DockFixture::Settle();
    host.Pages().keep.value("A2")->on_activated = [&] {
        host.host.Activate(QStringLiteral("Slice"));
        host.host.Activate(QStringLiteral("Model"));
        host.Pages().keep.value("A2")->on_activated = [] {};
    };
    host.Find("a")->_Impl()->tab_bar->setCurrentIndex(1);
    DockFixture::Settle();
    QCOMPARE(host.Find("a")->GetCount(DockWidget::All), 2);
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockStateRestoreTest::aFoldedSiteIsRestored()
{
    DockHost host;
    host.Load(Docking({{"right", {Panel("a", {"A"})}}}, {}, 140));
    host.Site(DockLayout::Right).SetMinimized(true);
    DockFixture::Settle();
    const QJsonObject captured = host.Captured();
    host.Load(Docking({}));
    QVERIFY(!host.Site(DockLayout::Right).IsMinimized());
    host.Load(captured);
    QVERIFY(host.Site(DockLayout::Right).IsMinimized());
    QCOMPARE(host.Site(DockLayout::Right).geometry().width(), 0);
    host.Site(DockLayout::Right).SetMinimized(false);
    DockFixture::Settle();
    QCOMPARE(host.Site(DockLayout::Right).geometry().width(), 140);
}

void DockStateRestoreTest::aHundredPanelsAreRestoredAtOnce()
{
    DockHost host;
    QMap<QString, QJsonArray> docked;
    int counter = 0;
    for (const char* side : {"left", "right", "top", "bottom"}) {
        QJsonArray panels;
        for (int i = 0; i < 25; ++i, ++counter)
            panels.append(Panel(QStringLiteral("panel%1").arg(counter),
                                {QStringLiteral("page%1").arg(counter)}));
        docked.insert(QString::fromLatin1(side), panels);
    }
    const QJsonObject json = Docking(docked);
    host.Load(json);
    auto state = std::make_unique<UiStateDocking>();
    state->FromJson(json);
    QElapsedTimer timer;
    timer.start();
    host.layout->ReplaceState(&host.State(), state.release());
    const qint64 built = timer.nsecsElapsed();
    QCoreApplication::sendPostedEvents();
    const qint64 settled = timer.nsecsElapsed();
    QCOMPARE(host.Manager().GetWidgetsList().size(), 100);
    timer.restart();
    constexpr int steps = 50;
    for (int i = 0; i < steps; ++i)
        host.host.window->resize(1000 + i, 800 + i);
    QCoreApplication::sendPostedEvents();
    const qint64 resized = timer.nsecsElapsed() / steps;
    qInfo("100 panels: built in %.1f ms, at rest after %.1f ms; a resize step %.2f ms",
          double(built) / 1e6, double(settled) / 1e6, double(resized) / 1e6);
}

void DockStateRestoreTest::aPanelThatFoundNoRoomIsStoredOpen()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), Panel("b", {"B"})}}}));
    // A small screen: both can be shown, but not open.
    host.Pages().keep.value("A")->setMinimumSize(80, 600);
    host.Pages().keep.value("B")->setMinimumSize(80, 300);
    host.Find("a")->SetCollapsible(false);
    DockFixture::Settle();
    DockWidget* const panel = host.Find("b");
    panel->setVisible(false);
    DockFixture::Settle();
    panel->setVisible(true);
    DockFixture::Settle();
    QVERIFY(panel->IsCollapsed());
    host.State().Store();
    QList<UiStateDockWidget*> items;
    host.State().GetItems(items);
    QVERIFY(!items.at(1)->IsMinimized());
    // The user's own word counts.
    host.Pages().keep.value("A")->setMinimumSize(80, 50);
    DockFixture::Settle();
    panel->SetCollapsed(false, false);
    panel->SetCollapsed(true, false);
    host.State().Store();
    items.clear();
    host.State().GetItems(items);
    QVERIFY(items.at(1)->IsMinimized());
}

void DockStateRestoreTest::aFoldedPanelThatFloatsIsStoredAsItIs()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"})}}}));
    DockWidget* const panel = host.Find("a");
    panel->SetCollapsed(true, true);
    panel->SetFloated(QPoint(50, 50));
    host.State().Store();
    QList<UiStateDockWidget*> items;
    host.State().GetItems(items);
    QVERIFY(items.first()->IsMinimized());
}

OVK_TEST_CLASS(DockStateRestoreTest)

#include "dock_state_restore_test.moc"
