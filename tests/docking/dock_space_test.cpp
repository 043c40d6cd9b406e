#include "tests/support/test_main.h"

#include <ovk/docking/dock_space_p.h>

#include <QRandomGenerator>

#include <algorithm>

using namespace ovk::dock_space;

namespace {

constexpr int c_title = 20;

Panel Make(int height, bool collapsible = true, bool collapsed = false, bool forced = false)
{
    Panel panel;
    panel.collapsible = collapsible;
    panel.collapsed = collapsed;
    panel.forced = forced;
    panel.collapsed_min = QSize(100, collapsible ? c_title : height);
    panel.current_min = QSize(100, height);
    panel.size = QSize(100, collapsed ? c_title : height);
    return panel;
}

using Ints = std::vector<int>;

} // namespace

Q_DECLARE_METATYPE(Panel)
Q_DECLARE_METATYPE(Panels)
Q_DECLARE_METATYPE(Ints)
Q_DECLARE_METATYPE(Fit)

class DockSpaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freeSpaceCountsWhatIsOpenAndWhatCouldFold_data();
    void freeSpaceCountsWhatIsOpenAndWhatCouldFold();
    void roomIsMadeByTheFewestSmallestPanels_data();
    void roomIsMadeByTheFewestSmallestPanels();
    void aHorizontalSiteMeasuresHeightsAgainstItsWidth();
    void forcedPanelsOpenInOrderWhileThereIsRoom_data();
    void forcedPanelsOpenInOrderWhileThereIsRoom();
    void aPanelFitsIntoAVerticalSite_data();
    void aPanelFitsIntoAVerticalSite();
    void aPanelFitsIntoAHorizontalSite_data();
    void aPanelFitsIntoAHorizontalSite();
    void aVerticalSiteCanBeSqueezedToItsTitles();
    void aDraggedHandleStopsAtTheCentralWidget_data();
    void aDraggedHandleStopsAtTheCentralWidget();
    void plansKeepTheirPromises();
};

void DockSpaceTest::freeSpaceCountsWhatIsOpenAndWhatCouldFold_data()
{
    QTest::addColumn<Panels>("panels");
    QTest::addColumn<int>("free");
    QTest::addColumn<int>("minimal");

    Panel hidden = Make(200);
    hidden.visible = false;
    QTest::newRow("empty") << Panels{} << 300 << 300;
    QTest::newRow("one open") << Panels{Make(100)} << 200 << 280;
    QTest::newRow("one folded") << Panels{Make(100, true, true)} << 280 << 280;
    QTest::newRow("one that cannot fold") << Panels{Make(100, false)} << 200 << 200;
    QTest::newRow("a hidden one takes no room") << Panels{hidden} << 300 << 300;
    QTest::newRow("too little room") << Panels{Make(200), Make(150)} << -50 << 260;
}

void DockSpaceTest::freeSpaceCountsWhatIsOpenAndWhatCouldFold()
{
    QFETCH(Panels, panels);
    const Space space = CalcFreeSpace(panels, 300, true);
    QTEST(space.free, "free");
    QTEST(space.minimal, "minimal");
}

void DockSpaceTest::roomIsMadeByTheFewestSmallestPanels_data()
{
    QTest::addColumn<Panels>("panels");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("exclude");
    QTest::addColumn<int>("needed");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<Ints>("victims");

    const Panels two{Make(200), Make(150)};
    QTest::newRow("a box that was not laid out") << two << 0 << -1 << 0 << false << Ints{};
    QTest::newRow("room enough") << two << 350 << -1 << 0 << true << Ints{};
    QTest::newRow("the smaller one folds") << two << 300 << -1 << 0 << true << Ints{1};
    QTest::newRow("only the larger one is enough")
        << Panels{Make(200), Make(50)} << 150 << -1 << 0 << true << Ints{0};
    QTest::newRow("equals fold in layout order")
        << Panels{Make(100), Make(100)} << 150 << -1 << 0 << true << Ints{0};
    QTest::newRow("both, the last chosen first")
        << Panels{Make(200), Make(150)} << 60 << -1 << 0 << true << Ints{0, 1};
    QTest::newRow("not even folded") << two << 30 << -1 << 0 << false << Ints{};
    QTest::newRow("one that cannot fold is spared")
        << Panels{Make(100, false), Make(200)} << 150 << -1 << 0 << true << Ints{1};
    QTest::newRow("nothing that can fold")
        << Panels{Make(100, false), Make(100, false)} << 150 << -1 << 0 << false << Ints{};
    QTest::newRow("a folded one counts as folded")
        << Panels{Make(200, true, true), Make(150)} << 170 << -1 << 0 << true << Ints{};
    QTest::newRow("the one that asks is left out")
        << Panels{Make(200), Make(150)} << 300 << 1 << 150 << true << Ints{0};
    QTest::newRow("room for a newcomer") << two << 400 << -1 << 100 << true << Ints{1};
    QTest::newRow("more than all titles leave") << two << 400 << -1 << 361 << false << Ints{};
    QTest::newRow("exactly what the titles leave") << two << 400 << -1 << 360 << true << Ints{0, 1};
}

void DockSpaceTest::roomIsMadeByTheFewestSmallestPanels()
{
    QFETCH(Panels, panels);
    QFETCH(int, length);
    QFETCH(int, exclude);
    QFETCH(int, needed);
    const Plan plan = PlanSpace(panels, length, exclude, needed);
    QTEST(plan.fits, "fits");
    QTEST(plan.victims, "victims");
}

void DockSpaceTest::aHorizontalSiteMeasuresHeightsAgainstItsWidth()
{
    // Kept as it always was: a site 300 wide counts the heights of its panels.
    Panel wide = Make(50);
    wide.current_min.setWidth(1000);
    QVERIFY(PlanSpace({wide, wide}, 300, -1, 0).fits);
    QVERIFY(PlanSpace({wide, wide}, 300, -1, 0).victims.empty());
    QCOMPARE(CalcFreeSpace({wide}, 300, false).free, -700);
}

void DockSpaceTest::forcedPanelsOpenInOrderWhileThereIsRoom_data()
{
    QTest::addColumn<Panels>("panels");
    QTest::addColumn<int>("free");
    QTest::addColumn<Ints>("opened");

    const Panel forced = Make(100, true, true, true);
    const Panel large = Make(300, true, true, true);
    const Panel by_hand = Make(100, true, true, false);
    Panel hidden = forced;
    hidden.visible = false;
    QTest::newRow("room for one") << Panels{forced, forced} << 100 << Ints{0};
    QTest::newRow("room for both") << Panels{forced, forced} << 160 << Ints{0, 1};
    QTest::newRow("exactly") << Panels{forced} << 80 << Ints{0};
    QTest::newRow("one pixel short") << Panels{forced} << 79 << Ints{};
    QTest::newRow("the large one is passed over") << Panels{large, forced} << 100 << Ints{1};
    QTest::newRow("what the user folded stays") << Panels{by_hand, forced} << 500 << Ints{1};
    QTest::newRow("a hidden one stays") << Panels{hidden, forced} << 500 << Ints{1};
    QTest::newRow("none while room is wanting") << Panels{forced} << -1 << Ints{};
}

void DockSpaceTest::forcedPanelsOpenInOrderWhileThereIsRoom()
{
    QFETCH(Panels, panels);
    QFETCH(int, free);
    const Ints opened = PlanExpansion(panels, free);
    QTEST(opened, "opened");
}

void DockSpaceTest::aPanelFitsIntoAVerticalSite_data()
{
    QTest::addColumn<Panel>("panel");
    QTest::addColumn<int>("free");
    QTest::addColumn<int>("minimal");
    QTest::addColumn<Fit>("fit");

    QTest::newRow("as it is") << Make(100) << 100 << 100 << Fit::FitsAsIs;
    QTest::newRow("folded") << Make(100) << 99 << 200 << Fit::FitsCollapsed;
    QTest::newRow("folded, exactly") << Make(100) << 20 << 20 << Fit::FitsCollapsed;
    QTest::newRow("after others fold") << Make(100) << 19 << 20 << Fit::FitsAfterCollapsingOthers;
    QTest::newRow("not at all") << Make(100) << 19 << 19 << Fit::DoesNotFit;
    QTest::newRow("rigid, after others fold")
        << Make(100, false) << 99 << 100 << Fit::FitsAfterCollapsingOthers;
    QTest::newRow("rigid, not at all") << Make(100, false) << 99 << 99 << Fit::DoesNotFit;
}

void DockSpaceTest::aPanelFitsIntoAVerticalSite()
{
    QFETCH(Panel, panel);
    QFETCH(int, free);
    QFETCH(int, minimal);
    QTEST(CheckFitVertical(panel, {free, minimal}), "fit");
}

void DockSpaceTest::aPanelFitsIntoAHorizontalSite_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("spacer");
    QTest::addColumn<int>("estimator");
    QTest::addColumn<Fit>("fit");

    // The other panel is 150 wide and needs 100, so it has 50 to give.
    QTest::newRow("into spacer and slack") << 150 << 100 << -1 << Fit::FitsAsIs;
    QTest::newRow("one pixel too wide") << 151 << 100 << -1 << Fit::DoesNotFit;
    QTest::newRow("the preview gives its room") << 180 << 100 << 30 << Fit::FitsAsIs;
    QTest::newRow("and no more") << 181 << 100 << 30 << Fit::DoesNotFit;
}

void DockSpaceTest::aPanelFitsIntoAHorizontalSite()
{
    QFETCH(int, width);
    QFETCH(int, spacer);
    QFETCH(int, estimator);
    Panel panel;
    panel.current_min = QSize(width, 10);
    Panel other;
    other.current_min = QSize(100, 10);
    other.size = QSize(150, 10);
    QTEST(CheckFitHorizontal(panel, {other}, spacer, estimator), "fit");
}

void DockSpaceTest::aVerticalSiteCanBeSqueezedToItsTitles()
{
    Panel hidden = Make(70);
    hidden.visible = false;
    QCOMPARE(MinimumHeight({Make(100), Make(50, false), hidden}), c_title + 50);
    QCOMPARE(MinimumHeight({}), 0);
}

void DockSpaceTest::aDraggedHandleStopsAtTheCentralWidget_data()
{
    QTest::addColumn<bool>("leading");
    QTest::addColumn<int>("delta");
    QTest::addColumn<int>("size");

    // The site is 200, the central widget 500 and needs 450.
    QTest::newRow("left, wider") << true << 30 << 230;
    QTest::newRow("left, as wide as can be") << true << 50 << 250;
    QTest::newRow("left, too wide") << true << 300 << 250;
    QTest::newRow("left, narrower") << true << -80 << 120;
    QTest::newRow("right, wider") << false << -30 << 230;
    QTest::newRow("right, too wide") << false << -300 << 250;
    QTest::newRow("right, narrower") << false << 80 << 120;
}

void DockSpaceTest::aDraggedHandleStopsAtTheCentralWidget()
{
    QFETCH(bool, leading);
    QFETCH(int, delta);
    DragInput input;
    input.leading = leading;
    input.delta = delta;
    input.central = 500;
    input.central_min = 450;
    input.site = 200;
    input.site_max = 0xFFFFFF;
    QTEST(CrossSizeAfterDrag(input), "size");
    input.site_max = 180;
    QVERIFY(CrossSizeAfterDrag(input) <= 180);
}

void DockSpaceTest::plansKeepTheirPromises()
{
    constexpr quint32 seed = 20260301;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 20000; ++round) {
        Panels panels;
        const int count = random.bounded(8);
        for (int i = 0; i < count; ++i) {
            const bool collapsible = random.bounded(4) != 0;
            const bool collapsed = collapsible && random.bounded(3) == 0;
            panels.push_back(Make(c_title + random.bounded(200), collapsible, collapsed,
                                  collapsed && random.bounded(2)));
            panels.back().visible = random.bounded(5) != 0;
        }
        const int length = random.bounded(600);
        const int exclude = random.bounded(count + 2) - 1;
        const int needed = random.bounded(300);
        const Plan plan = PlanSpace(panels, length, exclude, needed);

        // Nobody folds in vain, and only who may.
        if (!plan.fits)
            QVERIFY(plan.victims.empty());
        for (const int victim : plan.victims) {
            QVERIFY(victim != exclude);
            QVERIFY(panels[victim].visible && panels[victim].collapsible);
            QVERIFY(!panels[victim].collapsed);
            QCOMPARE(std::count(plan.victims.begin(), plan.victims.end(), victim), 1);
        }
        if (length == 0)
            QVERIFY(!plan.fits);

        // What opens again never takes more than there is.
        const int free = random.bounded(400);
        int left = free;
        for (const int index : PlanExpansion(panels, free)) {
            QVERIFY(panels[index].forced);
            left += panels[index].collapsed_min.height() - panels[index].current_min.height();
            QVERIFY(left >= 0);
        }
    }
}

OVK_TEST_CLASS(DockSpaceTest)

#include "dock_space_test.moc"
