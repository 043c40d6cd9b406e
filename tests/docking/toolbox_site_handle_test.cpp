#include "dock_state_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::DockHost;
using ovk_test::Docking;

namespace {

constexpr const char* c_sides[] = {"left", "right", "top", "bottom"};

} // namespace

class ToolboxSiteHandleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theButtonOfTheHandleFoldsTheSite();
    void theHandleIsThereWhileThereIsAPanel();
    void theHandleCanBeTakenAway();
    void draggingTheHandleResizesTheSite_data();
    void draggingTheHandleResizesTheSite();
    void aGreedyCentralWidgetDoesNotHoldTheHandle();
    void aCentralWidgetThatHasLessThanItWantsDoesNotPullTheHandle();
    void theHandlesOfAHostsWindowGoBothWays_data();
    void theHandlesOfAHostsWindowGoBothWays();
    void aMoveThatComesBeforeTheLayoutCountsOnce();
};

void ToolboxSiteHandleTest::theButtonOfTheHandleFoldsTheSite()
{
    DockFixture fixture;
    fixture.Left()->AddWidget(fixture.Panel("a"));
    DockFixture::Settle();
    DockToolboxSiteHandle* const handle = fixture.Left()->GetDockSite()->_pp()->handle;
    QCOMPARE(handle->GetButton()->pos(), QPoint(0, (handle->height() - 17) / 2));
    QTest::mouseClick(handle->GetButton(), Qt::LeftButton);
    QVERIFY(fixture.Left()->IsMinimized());
    QTest::mouseClick(handle->GetButton(), Qt::LeftButton);
    QVERIFY(!fixture.Left()->IsMinimized());
}

void ToolboxSiteHandleTest::theHandleIsThereWhileThereIsAPanel()
{
    DockFixture fixture;
    DockToolboxSiteHandle* const handle = fixture.Left()->GetDockSite()->_pp()->handle;
    QVERIFY(handle->isHidden());
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QVERIFY(!handle->isHidden());
    panel->setVisible(false);
    QVERIFY(handle->isHidden());
    panel->setVisible(true);
    QVERIFY(!handle->isHidden());
    delete panel;
    QVERIFY(handle->isHidden());
}

void ToolboxSiteHandleTest::theHandleCanBeTakenAway()
{
    DockFixture fixture;
    fixture.Left()->AddWidget(fixture.Panel("a"));
    DockFixture::Settle();
    QVERIFY(fixture.Left()->IsMinimizeAvailable());
    fixture.Left()->SetMinimizeAvailable(false);
    QVERIFY(fixture.Left()->GetDockSite()->_pp()->handle->isHidden());
    fixture.Left()->SetMinimizeAvailable(true);
    QVERIFY(!fixture.Left()->GetDockSite()->_pp()->handle->isHidden());
}

void ToolboxSiteHandleTest::draggingTheHandleResizesTheSite_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("delta");
    QTest::addColumn<int>("size");
    QTest::newRow("left, wider") << 0 << 40 << 200;
    QTest::newRow("right, wider") << 1 << -40 << 200;
    QTest::newRow("top, higher") << 2 << 40 << 200;
    QTest::newRow("bottom, higher") << 3 << -40 << 200;
    QTest::newRow("left, narrower") << 0 << -30 << 130;
    QTest::newRow("bottom, lower") << 3 << 30 << 130;
    // 800 wide, the handle 5, the central widget at least 300.
    QTest::newRow("left, too wide") << 0 << 700 << 800 - 5 - 300;
    QTest::newRow("right, too wide") << 1 << -700 << 800 - 5 - 300;
    QTest::newRow("top, too high") << 2 << 700 << 600 - 5 - 200;
}

void ToolboxSiteHandleTest::draggingTheHandleResizesTheSite()
{
    QFETCH(int, side);
    QFETCH(int, delta);
    QFETCH(int, size);
    DockFixture fixture;
    fixture.central->setMinimumSize(300, 200);
    DockToolboxSite* const site = fixture.Site(DockLayout::Side(side));
    site->AddWidget(fixture.Panel("a"));
    site->SetCrossSize(160);
    DockFixture::Settle();
    DockToolboxSiteHandle* const handle = site->GetDockSite()->_pp()->handle;
    const bool vertical = site->IsVertical();
    const QPoint press(2, 2);
    const QPoint moved = press + (vertical ? QPoint(delta, 0) : QPoint(0, delta));
    QTest::mousePress(handle, Qt::LeftButton, {}, press);
    QVERIFY(handle->IsPressed());
    QMouseEvent move(QEvent::MouseMove, moved, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &move);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, moved);
    QVERIFY(!handle->IsPressed());
    QCOMPARE(site->GetCrossSize(), size);
    DockFixture::Settle();
    QCOMPARE(vertical ? site->geometry().width() : site->geometry().height(), size);
}

void ToolboxSiteHandleTest::aGreedyCentralWidgetDoesNotHoldTheHandle()
{
    class Greedy : public QWidget
    {
    public:
        using QWidget::QWidget;
        QSize sizeHint() const override { return {3000, 2000}; }
        QSize minimumSizeHint() const override { return {200, 100}; }
    };
    DockFixture fixture;
    auto* const greedy = new Greedy(fixture.manager); // a child of the manager
    delete fixture.central;
    fixture.manager->GetLayout()->SetCentralWidget(greedy);
    fixture.Left()->AddWidget(fixture.Panel("a"));
    DockFixture::Settle();
    fixture.Left()->_pp()->ResizeBy(100);
    DockFixture::Settle();
    QCOMPARE(fixture.Left()->geometry().width(), 200);
    fixture.Left()->_pp()->ResizeBy(1000);
    DockFixture::Settle();
    QCOMPARE(fixture.Left()->geometry().width(), 800 - 5 - 200);
}

void ToolboxSiteHandleTest::aCentralWidgetThatHasLessThanItWantsDoesNotPullTheHandle()
{
    class Wishful : public QWidget
    {
    public:
        using QWidget::QWidget;
        QSize sizeHint() const override { return {700, 100}; }
        QSize minimumSizeHint() const override { return {150, 100}; }
    };
    DockFixture fixture;
    auto* const wishful = new Wishful(fixture.manager); // a child of the manager
    delete fixture.central;
    fixture.manager->GetLayout()->SetCentralWidget(wishful);
    fixture.Left()->AddWidget(fixture.Panel("a", QSize(60, 80)));
    fixture.Left()->SetCrossSize(80);
    DockFixture::Settle();
    // It has more than it wants: it keeps what it wants.
    QCOMPARE(wishful->width(), 800 - 5 - 80);
    fixture.Left()->_pp()->ResizeBy(60);
    DockFixture::Settle();
    QCOMPARE(wishful->width(), 700);
    // It has less already, so its wish is no limit.
    fixture.manager->resize(760, 600);
    DockFixture::Settle();
    QCOMPARE(wishful->width(), 660);
    fixture.Left()->_pp()->ResizeBy(60);
    DockFixture::Settle();
    QCOMPARE(fixture.Left()->geometry().width(), 95 + 60);
    fixture.Left()->_pp()->ResizeBy(-30);
    DockFixture::Settle();
    QCOMPARE(fixture.Left()->geometry().width(), 95 + 30);
}

void ToolboxSiteHandleTest::theHandlesOfAHostsWindowGoBothWays_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QSize>("window");
    for (const QSize& size : {QSize(700, 600), QSize(1000, 900), QSize(1300, 1000)}) {
        for (int side = 0; side < 4; ++side)
            QTest::addRow("%s of %d", c_sides[side], size.width()) << side << size;
    }
}

void ToolboxSiteHandleTest::theHandlesOfAHostsWindowGoBothWays()
{
    QFETCH(int, side);
    QFETCH(QSize, window);
    DockHost host;
    host.host.window->resize(window);
    QMap<QString, QJsonArray> docked;
    for (const char* name : c_sides)
        docked.insert(name, {ovk_test::Panel(name, {QString(name) + ".page"})});
    host.Load(Docking(docked, {}, 120));
    DockToolboxSite& site = host.Site(DockLayout::Side(side));
    const auto thickness = [&site] {
        return site.IsVertical() ? site.geometry().width() : site.geometry().height();
    };
    const auto drag = [&site](int growth) {
        const bool far =
            site.GetSide() == DockLayout::Right || site.GetSide() == DockLayout::Bottom;
        const int delta = far ? -growth : growth;
        DockToolboxSiteHandle* const handle = site.GetDockSite()->_pp()->handle;
        const QPoint press(2, 2);
        const QPoint end = press + (site.IsVertical() ? QPoint(delta, 0) : QPoint(0, delta));
        QTest::mousePress(handle, Qt::LeftButton, {}, press);
        QMouseEvent move(QEvent::MouseMove, end, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(handle, &move);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, end);
        DockFixture::Settle();
    };
    QCOMPARE(thickness(), 120);
    drag(40);
    QCOMPARE(thickness(), 160);
    drag(-25);
    QCOMPARE(thickness(), 135);
    drag(30);
    QCOMPARE(thickness(), 165);
}

void ToolboxSiteHandleTest::aMoveThatComesBeforeTheLayoutCountsOnce()
{
    DockFixture fixture;
    fixture.Left()->AddWidget(fixture.Panel("a"));
    fixture.Left()->SetCrossSize(160);
    DockFixture::Settle();
    DockToolboxSiteHandle* const handle = fixture.Left()->GetDockSite()->_pp()->handle;
    const QPoint origin = handle->pos();
    QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(2, 2));
    // Three moves in one turn of the event loop: each is told where the handle seemed to be.
    for (const int x : {12, 25, 40}) {
        const QPoint local = origin + QPoint(x + 2, 2) - handle->pos();
        QMouseEvent move(QEvent::MouseMove, local, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(handle, &move);
    }
    QTest::mouseRelease(handle, Qt::LeftButton);
    DockFixture::Settle();
    QCOMPARE(fixture.Left()->GetCrossSize(), 200);
    QCOMPARE(handle->pos(), origin + QPoint(40, 0));
}

OVK_TEST_CLASS(ToolboxSiteHandleTest)

#include "toolbox_site_handle_test.moc"
