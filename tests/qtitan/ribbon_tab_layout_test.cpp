#include "platform/qtitan/ribbon_tab_layout_p.h"
#include "tests/support/test_main.h"

#include <numeric>
#include <random>

using namespace Qtitan;

namespace {

const RibbonTabMetrics metrics{13, 4, 21, 2, 13};

std::vector<int> TextWidths(const RibbonTabGeometry& geometry)
{
    std::vector<int> widths;
    for (const RibbonTabGeometry::Tab& tab : geometry.tabs)
        widths.push_back(tab.textWidth);
    return widths;
}

} // namespace

class RibbonTabLayoutTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void wideTabsHaveTheirFullPadding()
    {
        const RibbonTabGeometry geometry = layoutRibbonTabs({40, 60}, 500, metrics);
        QCOMPARE(geometry.padding, 13);
        QCOMPARE(geometry.tabs[0].width, 66);
        QCOMPARE(geometry.tabs[1].x, 68);
        QVERIFY(!geometry.elided && !geometry.scrolls);
    }

    void thePaddingShrinksFirst()
    {
        const RibbonTabGeometry geometry = layoutRibbonTabs({40, 60}, 130, metrics);
        QVERIFY(geometry.padding < 13 && geometry.padding >= 4);
        QVERIFY(!geometry.elided);
        QVERIFY(geometry.contentWidth <= 130);
    }

    void thenTheWidestTitlesAreElidedUntilTheyAreEqual()
    {
        const RibbonTabGeometry geometry =
            layoutRibbonTabs({30, 100, 80}, 30 + 2 * 60 + 24 + 4, metrics);
        QCOMPARE(TextWidths(geometry), (std::vector<int>{30, 60, 60}));
        QVERIFY(geometry.elided && !geometry.scrolls);
    }

    void titlesKeepAboutThreeCharactersAndThenTheTabsScroll()
    {
        const RibbonTabGeometry geometry = layoutRibbonTabs({15, 100, 80, 90}, 60, metrics);
        QCOMPARE(TextWidths(geometry), (std::vector<int>{15, 21, 21, 21}));
        QVERIFY(geometry.scrolls);
        QCOMPARE(geometry.maxScroll, geometry.contentWidth - (60 - 26));
    }

    void theCurrentTabIsScrolledIntoView()
    {
        const RibbonTabGeometry geometry = layoutRibbonTabs({100, 100, 100, 100, 100}, 90, metrics);
        const int view = 90 - 26;
        const int offset = geometry.offsetFor(4, 0, view);
        QVERIFY(geometry.tabs[4].x >= offset);
        QVERIFY(geometry.tabs[4].x + geometry.tabs[4].width <= offset + view);
        QCOMPARE(geometry.offsetFor(0, offset, view), 0);
        QCOMPARE(geometry.offsetFor(-1, 10000, view), geometry.maxScroll);
    }

    void noTabsNeedNothing()
    {
        const RibbonTabGeometry geometry = layoutRibbonTabs({}, 100, metrics);
        QVERIFY(geometry.tabs.empty());
        QVERIFY(!geometry.scrolls);
    }

    void aRowOfNoWidthDoesNotFail()
    {
        const RibbonTabGeometry geometry = layoutRibbonTabs({10, 20}, 0, metrics);
        QVERIFY(geometry.scrolls);
        QVERIFY(geometry.maxScroll > 0);
    }

    void thousandsOfRandomRowsKeepOrderAndRoom()
    {
        const unsigned seed = 1969;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const auto upTo = [&](int n) { return std::uniform_int_distribution<int>(0, n)(random); };
        for (int round = 0; round < 5000; ++round) {
            std::vector<int> titles(static_cast<std::size_t>(1 + upTo(14)));
            for (int& title : titles)
                title = 5 + upTo(150);
            const int available = upTo(1500);
            const RibbonTabGeometry geometry = layoutRibbonTabs(titles, available, metrics);
            QVERIFY(geometry.scrolls || geometry.contentWidth <= available);
            int end = -metrics.spacing;
            int cap = 0;
            for (std::size_t i = 0; i < titles.size(); ++i) {
                QCOMPARE(geometry.tabs[i].x, end + metrics.spacing);
                end = geometry.tabs[i].x + geometry.tabs[i].width;
                QVERIFY(geometry.tabs[i].textWidth <= titles[i]);
                QVERIFY(geometry.tabs[i].textWidth >= std::min(titles[i], metrics.minText));
                if (geometry.tabs[i].textWidth < titles[i]) {
                    QVERIFY(cap == 0 || cap == geometry.tabs[i].textWidth);
                    cap = geometry.tabs[i].textWidth;
                }
            }
            QVERIFY(geometry.padding == metrics.padding || !geometry.elided ||
                    geometry.padding == metrics.minPadding);
        }
    }

    void tabsOfAContextGrowToTheirTitleWhereThereIsRoom()
    {
        const RibbonTabMetrics metrics;
        const std::vector<int> titles{50, 40, 40, 60};
        const RibbonTabGeometry before = layoutRibbonTabs(titles, 1000, metrics);
        RibbonTabGeometry after = before;
        widenRibbonTabs(after, {{1, 2, 301}}, 1000);
        QCOMPARE(after.tabs[0].width, before.tabs[0].width);
        QCOMPARE(after.tabs[2].x + after.tabs[2].width - after.tabs[1].x, 301);
        QCOMPARE(after.tabs[1].textWidth, before.tabs[1].textWidth);
        QCOMPARE(after.tabs[2].x, after.tabs[1].x + after.tabs[1].width + metrics.spacing);
        QCOMPARE(after.tabs[3].x, after.tabs[2].x + after.tabs[2].width + metrics.spacing);
        QCOMPARE(after.contentWidth, after.tabs[3].x + after.tabs[3].width);
        // Only into what is free.
        RibbonTabGeometry tight = layoutRibbonTabs(titles, before.contentWidth + 10, metrics);
        widenRibbonTabs(tight, {{1, 2, 301}}, before.contentWidth + 10);
        QCOMPARE(tight.contentWidth, before.contentWidth + 10);
        RibbonTabGeometry full = layoutRibbonTabs(titles, 200, metrics);
        const int width = full.contentWidth;
        widenRibbonTabs(full, {{1, 2, 301}, {3, 1, 50}, {3, 4, 900}}, 200);
        QCOMPARE(full.contentWidth, width);
    }
};

OVK_TEST_CLASS(RibbonTabLayoutTest)

#include "ribbon_tab_layout_test.moc"
