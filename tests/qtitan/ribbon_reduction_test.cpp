#include "platform/qtitan/ribbon_reduction_p.h"
#include "tests/support/test_main.h"

#include <numeric>
#include <random>

using namespace Qtitan;

namespace {

int WidthOf(const std::vector<ReducibleGroup>& groups, const std::vector<int>& steps, int spacing)
{
    int width = 0;
    int shown = 0;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (groups[i].steps.empty())
            continue;
        width += groups[i].steps[static_cast<std::size_t>(steps[i])].second;
        ++shown;
    }
    return width + std::max(0, shown - 1) * spacing;
}

std::vector<ReducibleGroup> RandomGroups(std::mt19937& random)
{
    const auto upTo = [&](int n) { return std::uniform_int_distribution<int>(0, n)(random); };
    std::vector<ReducibleGroup> groups(static_cast<std::size_t>(upTo(9)));
    for (ReducibleGroup& group : groups) {
        int width = 100 + upTo(400);
        int stage = 0;
        const int steps = 1 + upTo(6);
        for (int s = 0; s < steps && width > 20; ++s) {
            group.steps.emplace_back(stage, width);
            width -= 1 + upTo(80);
            stage = std::min(3, std::max(1, stage + upTo(1)));
        }
    }
    return groups;
}

} // namespace

class RibbonReductionTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsReducedWhileAllFits()
    {
        const RibbonReduction reduction({{{{0, 100}, {1, 60}}}, {{{0, 100}, {1, 60}}}}, 2);
        QCOMPARE(reduction.fullWidth(), 202);
        QCOMPARE(reduction.stepsFor(202), (std::vector<int>{0, 0}));
    }

    void theRightmostGroupGivesWayFirst()
    {
        const RibbonReduction reduction({{{{0, 100}, {1, 60}}}, {{{0, 100}, {1, 60}}}}, 2);
        QCOMPARE(reduction.stepsFor(201), (std::vector<int>{0, 1}));
        QCOMPARE(reduction.stepsFor(161), (std::vector<int>{1, 1}));
    }

    void aGroupTakesOneStepARound()
    {
        const ReducibleGroup group{{{0, 100}, {1, 80}, {1, 60}}};
        const RibbonReduction reduction({group, group}, 0);
        QCOMPARE(reduction.stepsFor(190), (std::vector<int>{0, 1}));
        QCOMPARE(reduction.stepsFor(170), (std::vector<int>{1, 1}));
        QCOMPARE(reduction.stepsFor(150), (std::vector<int>{1, 2}));
    }

    void noGroupBecomesAPopupWhileAnotherStillHasText()
    {
        const RibbonReduction reduction(
            {{{{0, 200}, {1, 150}, {2, 100}, {3, 50}}}, {{{0, 100}, {3, 50}}}}, 0);
        QCOMPARE(reduction.stepsFor(250), (std::vector<int>{1, 0}));
        QCOMPARE(reduction.stepsFor(200), (std::vector<int>{2, 0}));
        QCOMPARE(reduction.stepsFor(199), (std::vector<int>{2, 1}));
        QCOMPARE(reduction.stepsFor(100), (std::vector<int>{3, 1}));
        QCOMPARE(reduction.stepsFor(10), (std::vector<int>{3, 1}));
        QCOMPARE(reduction.minimumWidth(), 100);
    }

    void aPageWithoutGroupsIsFine()
    {
        const RibbonReduction reduction({}, 2);
        QCOMPARE(reduction.fullWidth(), 0);
        QVERIFY(reduction.stepsFor(100).empty());
    }

    void thousandsOfRandomPagesFitWheneverTheyCanAndGrowBackTheSameWay()
    {
        const unsigned seed = 7041776;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        for (int round = 0; round < 3000; ++round) {
            const std::vector<ReducibleGroup> groups = RandomGroups(random);
            const RibbonReduction reduction(groups, 2);
            std::vector<int> last;
            for (int available = reduction.fullWidth() + 5; available > 0; available -= 17) {
                const std::vector<int> steps = reduction.stepsFor(available);
                const int width = WidthOf(groups, steps, 2);
                QVERIFY(width <= available || width == reduction.minimumWidth());
                for (std::size_t i = 0; i < last.size(); ++i)
                    QVERIFY(steps[i] >= last[i]);
                last = steps;
            }
        }
    }
};

OVK_TEST_CLASS(RibbonReductionTest)

#include "ribbon_reduction_test.moc"
