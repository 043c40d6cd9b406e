#include "dock_fixture.h"
#include "tests/support/test_main.h"

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

class DockWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewPanelStandsAtItsDefaults();
    void aBurstOfChangesIsOneEvent();
    void settersPostOnlyWhatChanged_data();
    void settersPostOnlyWhatChanged();
    void theLayoutOfThePanelIsTitleTabsPage();
};

void DockWidgetTest::aNewPanelStandsAtItsDefaults()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    QCOMPARE(panel->parentWidget(), static_cast<QWidget*>(fixture.manager));
    QCOMPARE(panel->frameShape(), QFrame::Box);
    QCOMPARE(panel->_Impl()->pending_updates, 54);
    QVERIFY(panel->IsCollapsible());
    QVERIFY(!panel->IsOwnWidgets());
    QVERIFY(panel->IsTabsEnabled());
    QVERIFY(panel->IsHideLastTab());
    QVERIFY(panel->IsTitleEnabled());
    QVERIFY(!panel->IsFitToCurrent());
    QVERIFY(!panel->IsCollapsed());
    QVERIFY(!panel->IsForcedCollapsed());
    QVERIFY(panel->IsDeleteOnClose());
    QVERIFY(panel->IsDeleteOnEmpty());
    QVERIFY(panel->IsClosable());
    QVERIFY(panel->IsMovable());
    QVERIFY(panel->IsEnabled());
    QVERIFY(!panel->IsFloated());
    QVERIFY(!panel->IsAvailable());
    QVERIFY(!panel->IsExplicitlyHidden());
    QCOMPARE(panel->GetCurrentPage(), nullptr);
    QCOMPARE(panel->GetCurrentIndex(), -1);
    QCOMPARE(panel->GetManager(), fixture.manager);
    QCOMPARE(panel->GetToolboxSite(), nullptr);
}

void DockWidgetTest::aBurstOfChangesIsOneEvent()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    class Counter : public QObject
    {
    public:
        int events = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            events += event->type() == DockUpdateEvent::GetType() ? 1 : 0;
            return false;
        }
    } counter;
    DockFixture::Settle();
    panel->_Impl()->installEventFilter(&counter);
    panel->SetForcedTitle("x");
    panel->SetClosable(false);
    panel->HideContextMenu(true);
    panel->SetHideLastTab(false);
    QCOMPARE(panel->_Impl()->pending_updates, 2 | 16 | 4);
    QCoreApplication::sendPostedEvents(panel->_Impl(), 0);
    QCOMPARE(counter.events, 1);
    QCOMPARE(panel->_Impl()->pending_updates, 0);

    // However many, and whatever was carried out at once in between.
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    counter.events = 0;
    for (int i = 0; i < 50; ++i) {
        panel->AddPage(new FakePage(QString::number(i)));
        panel->SetForcedTitle(QString::number(i));
        panel->SetTabsEnabled(i % 2);
        panel->SetCollapsed(i % 2, false);
        panel->setVisible(i % 3);
        panel->SetTitleEnabled(i % 5);
    }
    QCoreApplication::sendPostedEvents(panel->_Impl(), 0);
    QCOMPARE(counter.events, 1);
}

void DockWidgetTest::settersPostOnlyWhatChanged_data()
{
    QTest::addColumn<int>("setter");
    QTest::addColumn<int>("flags");
    QTest::newRow("hide last tab") << 0 << 4;
    QTest::newRow("hide last tab, same") << 1 << 0;
    QTest::newRow("tabs") << 2 << 4;
    QTest::newRow("title") << 3 << 32;
    QTest::newRow("closable") << 4 << 16;
    QTest::newRow("closable, same") << 5 << 0;
    QTest::newRow("menu, same") << 6 << 16;
    QTest::newRow("forced title, same") << 7 << 2;
    QTest::newRow("collapsible") << 8 << 16;
    QTest::newRow("collapsible, same") << 9 << 0;
    QTest::newRow("fold") << 10 << 24;
    QTest::newRow("fold, same") << 11 << 0;
}

void DockWidgetTest::settersPostOnlyWhatChanged()
{
    QFETCH(int, setter);
    const std::function<void(DockWidget&)> setters[] = {
        [](DockWidget& w) { w.SetHideLastTab(false); },
        [](DockWidget& w) { w.SetHideLastTab(true); },
        [](DockWidget& w) { w.SetTabsEnabled(false); },
        [](DockWidget& w) { w.SetTitleEnabled(false); },
        [](DockWidget& w) { w.SetClosable(false); },
        [](DockWidget& w) { w.SetClosable(true); },
        [](DockWidget& w) { w.HideContextMenu(false); },
        [](DockWidget& w) { w.SetForcedTitle(w.GetForcedTitle()); },
        [](DockWidget& w) { w.SetCollapsible(false); },
        [](DockWidget& w) { w.SetCollapsible(true); },
        [](DockWidget& w) { w.SetCollapsed(true, false); },
        [](DockWidget& w) { w.SetCollapsed(false, false); },
    };
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    DockFixture::Settle();
    QCOMPARE(panel->_Impl()->pending_updates, 0);
    setters[setter](*panel);
    QTEST(panel->_Impl()->pending_updates, "flags");
}

void DockWidgetTest::theLayoutOfThePanelIsTitleTabsPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    panel->SetFloated(QPoint(50, 50));
    DockFixture::Settle();
    panel->resize(300, 250);
    const int f = panel->frameWidth();
    const DockTitle* const title = panel->_Impl()->title;
    const QTabBar* const tabs = panel->_Impl()->tab_bar;
    const int t = title->sizeHint().height();
    const int b = tabs->sizeHint().height();
    QCOMPARE(title->geometry(), QRect(0, 0, 300, t));
    QCOMPARE(tabs->geometry(), QRect(f, f + t, 300 - 2 * f, b));
    QCOMPARE(DockFixture::Page(*panel)->geometry(),
             QRect(f, f + t + b, 300 - 2 * f, 250 - 2 * f - t - b));
    QCOMPARE(t,
             qMax(title->fontMetrics().height(), title->GetRight().first()->height()) +
                 2 * title->style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, title));
}

OVK_TEST_CLASS(DockWidgetTest)

#include "dock_widget_test.moc"
