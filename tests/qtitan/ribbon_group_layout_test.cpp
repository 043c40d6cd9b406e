#include "platform/qtitan/ribbon_group_layout_p.h"
#include "tests/support/test_main.h"

#include <random>

using namespace Qtitan;

namespace {

using Kind = RibbonLayoutItem::Kind;
using Size = RibbonItemSize;

const RibbonLayoutMetrics metrics{22, 1, 7};

RibbonLayoutItem Button(Size wanted, int large = 60, int text = 80, int icon = 22)
{
    RibbonLayoutItem item;
    item.wanted = wanted;
    item.largeWidth = large;
    item.textWidth = text;
    item.iconWidth = icon;
    return item;
}

RibbonLayoutItem Separator()
{
    RibbonLayoutItem item;
    item.kind = Kind::Separator;
    return item;
}

RibbonLayoutItem Widget(int width, int lines, int minimum = 0)
{
    RibbonLayoutItem item;
    item.kind = Kind::Widget;
    item.wanted = Size::Large;
    item.width = width;
    item.minWidth = minimum;
    item.lines = lines;
    return item;
}

std::vector<Size> Wanted(const std::vector<RibbonLayoutItem>& items)
{
    std::vector<Size> sizes;
    for (const RibbonLayoutItem& item : items)
        sizes.push_back(item.wanted);
    return sizes;
}

RibbonGroupGeometry Layout(const std::vector<RibbonLayoutItem>& items)
{
    return layoutRibbonGroup(items, Wanted(items), metrics);
}

std::vector<RibbonLayoutItem> RandomItems(std::mt19937& random)
{
    const auto upTo = [&](int n) { return std::uniform_int_distribution<int>(0, n)(random); };
    std::vector<RibbonLayoutItem> items;
    const int count = upTo(14);
    for (int i = 0; i < count; ++i) {
        switch (upTo(9)) {
        case 0:
            items.push_back(Separator());
            break;
        case 1:
            items.push_back(Widget(30 + upTo(150), 1 + upTo(2), upTo(1) ? 20 : 0));
            break;
        default: {
            const int text = 30 + upTo(120);
            items.push_back(Button(static_cast<Size>(upTo(2)), 42 + upTo(60), text,
                                   upTo(4) ? 22 + 13 * upTo(1) : 0));
        }
        }
    }
    return items;
}

} // namespace

class RibbonGroupLayoutTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void smallButtonsStackThreeToAColumn()
    {
        const RibbonGroupGeometry geometry =
            Layout({Button(Size::Text), Button(Size::Text, 60, 100), Button(Size::Text),
                    Button(Size::Icon)});
        QCOMPARE(geometry.rects[0], QRect(0, 0, 100, 22));
        QCOMPARE(geometry.rects[1], QRect(0, 22, 100, 22));
        QCOMPARE(geometry.rects[2], QRect(0, 44, 100, 22));
        QCOMPARE(geometry.rects[3], QRect(101, 0, 22, 22));
        QCOMPARE(geometry.width, 123);
    }

    void aLargeButtonTakesTheFullHeightAndAColumnOfItsOwn()
    {
        const RibbonGroupGeometry geometry =
            Layout({Button(Size::Icon), Button(Size::Large), Button(Size::Icon)});
        QCOMPARE(geometry.rects[0], QRect(0, 0, 22, 22));
        QCOMPARE(geometry.rects[1], QRect(23, 0, 60, 66));
        QCOMPARE(geometry.rects[2], QRect(84, 0, 22, 22));
    }

    void aSeparatorEndsAColumnAndIsSpacingEnough()
    {
        const RibbonGroupGeometry geometry =
            Layout({Button(Size::Icon), Separator(), Button(Size::Icon)});
        QCOMPARE(geometry.rects[1], QRect(22, 0, 7, 66));
        QCOMPARE(geometry.rects[2], QRect(29, 0, 22, 22));
        QCOMPARE(geometry.columns[1], -1);
        QCOMPARE(geometry.width, 51);
    }

    void iconsUnderAWideWidgetKeepTheirWidth()
    {
        const RibbonGroupGeometry geometry =
            Layout({Widget(130, 1), Button(Size::Icon), Button(Size::Icon)});
        QCOMPARE(geometry.rects[1], QRect(0, 22, 22, 22));
        QCOMPARE(geometry.rects[2], QRect(0, 44, 22, 22));
        QCOMPARE(geometry.width, 130);
    }

    void aWidgetOfTwoLinesLeavesRoomForOneButton()
    {
        const RibbonGroupGeometry geometry =
            Layout({Widget(50, 2), Button(Size::Icon), Button(Size::Icon)});
        QCOMPARE(geometry.columns, (std::vector<int>{0, 0, 1}));
    }

    void anEmptyGroupHasNoWidth() { QCOMPARE(Layout({}).width, 0); }

    void threeLargeNeighboursBecomeOneColumnFromTheRight()
    {
        std::vector<RibbonLayoutItem> items(7, Button(Size::Large, 60, 90));
        const std::vector<RibbonGroupStep> steps = ribbonGroupSteps(items, metrics, 0);
        QCOMPARE(steps[0].width, 7 * 60 + 6);
        QCOMPARE(steps[1].stage, RibbonGroupStep::Small);
        QCOMPARE(steps[1].sizes,
                 (std::vector<Size>{Size::Large, Size::Large, Size::Large, Size::Large, Size::Text,
                                    Size::Text, Size::Text}));
        QCOMPARE(steps[2].sizes[0], Size::Large);
        QCOMPARE(steps[2].sizes[1], Size::Text);
        // The first alone would be wider as a small button with text.
        QCOMPARE(steps[3].stage, RibbonGroupStep::IconOnly);
        QCOMPARE(steps[3].sizes[0], Size::Large);
    }

    void textGoesColumnByColumnFromTheRight()
    {
        std::vector<RibbonLayoutItem> items(6, Button(Size::Text));
        const std::vector<RibbonGroupStep> steps = ribbonGroupSteps(items, metrics, 0);
        QCOMPARE(int(steps.size()), 3);
        QCOMPARE(steps[1].sizes, (std::vector<Size>{Size::Text, Size::Text, Size::Text, Size::Icon,
                                                    Size::Icon, Size::Icon}));
        QCOMPARE(steps[2].width, 45);
    }

    void aButtonWithoutAnIconKeepsItsText()
    {
        const std::vector<RibbonGroupStep> steps =
            ribbonGroupSteps({Button(Size::Text, 60, 80, 0)}, metrics, 0);
        QCOMPARE(int(steps.size()), 1);
    }

    void aGalleryGivesWidthBeforeTheGroupBecomesAButton()
    {
        const std::vector<RibbonGroupStep> steps =
            ribbonGroupSteps({Widget(300, 3, 120)}, metrics, 0);
        QCOMPARE(int(steps.size()), 2);
        QCOMPARE(steps[1].width, 120);
    }

    void aLongTitleStopsReductionThatGainsNothing()
    {
        std::vector<RibbonLayoutItem> items(3, Button(Size::Text));
        QCOMPARE(int(ribbonGroupSteps(items, metrics, 90).size()), 1);
        QCOMPARE(ribbonGroupSteps(items, metrics, 90)[0].width, 90);
    }

    void thousandsOfRandomGroupsNeverOverlapAndOnlyGetNarrower()
    {
        const unsigned seed = 20250117;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        for (int round = 0; round < 4000; ++round) {
            const std::vector<RibbonLayoutItem> items = RandomItems(random);
            const std::vector<RibbonGroupStep> steps = ribbonGroupSteps(items, metrics, 0);
            QVERIFY(!steps.empty());
            QCOMPARE(steps[0].sizes, Wanted(items));
            for (std::size_t s = 0; s < steps.size(); ++s) {
                if (s > 0) {
                    QVERIFY(steps[s].width < steps[s - 1].width);
                    QVERIFY(steps[s].stage >= steps[s - 1].stage);
                }
                const RibbonGroupGeometry geometry =
                    layoutRibbonGroup(items, steps[s].sizes, metrics);
                QCOMPARE(geometry.width, steps[s].width);
                for (std::size_t i = 0; i < items.size(); ++i) {
                    const QRect& rect = geometry.rects[i];
                    QVERIFY(rect.left() >= 0 && rect.right() < geometry.width);
                    QVERIFY(rect.top() >= 0 && rect.bottom() < 3 * metrics.lineHeight);
                    for (std::size_t j = i + 1; j < items.size(); ++j)
                        QVERIFY(!rect.intersects(geometry.rects[j]));
                    // Nothing is ever shown larger than it was asked to be.
                    QVERIFY(steps[s].sizes[i] >= items[i].wanted);
                }
            }
        }
    }
};

OVK_TEST_CLASS(RibbonGroupLayoutTest)

#include "ribbon_group_layout_test.moc"
