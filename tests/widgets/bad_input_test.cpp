#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QStandardItemModel>
#include <QToolTip>

#include <limits>

using namespace ovk;
using ovk_test::Picture;

namespace {

constexpr double g_inf = std::numeric_limits<double>::infinity();
constexpr double g_nan = std::numeric_limits<double>::quiet_NaN();
constexpr float g_inf_f = std::numeric_limits<float>::infinity();
constexpr float g_nan_f = std::numeric_limits<float>::quiet_NaN();

using Entries = std::map<double, QColor>;

class Legend : public ColorLegend
{
public:
    using ColorLegend::_GetCurrentValue;
    using ColorLegend::m_colors_and_labels;
};

/// A picture, where there is anything to draw on.
void Paint(QWidget& widget)
{
    if (!widget.size().isEmpty())
        Picture(widget);
}

/// Paints the legend, and reads it with the pointer and the keys.
void ReadAll(Legend& legend)
{
    for (const auto orientation : {ColorMap::Horizontal, ColorMap::Vertical}) {
        legend.SetOrientation(orientation);
        for (const QSize size : {QSize(120, 60), QSize(1, 1), QSize(0, 40)}) {
            legend.resize(size);
            Paint(legend);
            legend._GetCurrentValue(QPointF(3, 3));
            for (const int key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_End}) {
                QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
                QApplication::sendEvent(&legend, &press);
                QVERIFY(!legend.GetReadingText().isEmpty());
            }
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(Entries)

class BadInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aLegendTakesAnyMap_data();
    void aLegendTakesAnyMap();
    void equalKeysAreOne();
    void theHeldMapMayBeGivenAgain();
    void aScaleTakesAnyRange_data();
    void aScaleTakesAnyRange();
    void aScaleTakesAnyColours();
    void aLegendTakesAnyThickness_data();
    void aLegendTakesAnyThickness();
    void aComboWithoutRowsTakesEverything();
    void aComboTakesAForeignModel();
    void aSwitchTakesAnySize();
};

void BadInputTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void BadInputTest::aLegendTakesAnyMap_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::newRow("empty") << Entries{};
    QTest::newRow("one entry") << Entries{{3.0, Qt::green}};
    QTest::newRow("one entry at infinity") << Entries{{g_inf, Qt::green}};
    QTest::newRow("one entry that is no number") << Entries{{g_nan, Qt::green}};
    QTest::newRow("up to infinity") << Entries{{0.0, Qt::green}, {g_inf, Qt::red}};
    QTest::newRow("from minus infinity") << Entries{{-g_inf, Qt::green}, {0.0, Qt::red}};
    QTest::newRow("all numbers") << Entries{{-g_inf, Qt::green}, {g_inf, Qt::red}};
    QTest::newRow("larger than a float") << Entries{{-3e38, Qt::green}, {3e38, Qt::red}};
    QTest::newRow("too close for a float") << Entries{{1.0, Qt::green}, {1.0 + 1e-15, Qt::red}};
    QTest::newRow("colours that are none") << Entries{{0.0, QColor()}, {1.0, QColor()}};
    Entries many;
    for (int i = 0; i < 5000; ++i)
        many[i] = QColor::fromHsv(i % 360, 255, 255);
    QTest::newRow("more colours than pixels") << many;
}

void BadInputTest::aLegendTakesAnyMap()
{
    QFETCH(Entries, entries);
    Legend legend;
    legend.SetDrawMarks(true);
    legend.SetColorsAndLabels(entries);
    ReadAll(legend);
}

void BadInputTest::equalKeysAreOne()
{
    Legend legend;
    Entries entries{{0.0, Qt::white}, {1.0, Qt::red}};
    entries.insert({1.0, Qt::blue});
    entries.insert({-0.0, Qt::black});
    legend.SetColorsAndLabels(entries);
    QCOMPARE(legend.startColor(), QColor(Qt::white));
    QCOMPARE(legend.endColor(), QColor(Qt::red));
    ReadAll(legend);
}

void BadInputTest::theHeldMapMayBeGivenAgain()
{
    Legend legend;
    legend.setStartColor(Qt::green);
    legend.SetColorsAndLabels(legend.m_colors_and_labels);
    QCOMPARE(legend.m_colors_and_labels.size(), std::size_t(3));
    QCOMPARE(legend.startColor(), QColor(Qt::white));
}

void BadInputTest::aScaleTakesAnyRange_data()
{
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::addColumn<float>("step");
    QTest::newRow("upside down") << 10.0f << 0.0f << 1.0f;
    QTest::newRow("empty") << 5.0f << 5.0f << 1.0f;
    QTest::newRow("step of zero") << 0.0f << 10.0f << 0.0f;
    QTest::newRow("step of minus zero") << 0.0f << 10.0f << -0.0f;
    QTest::newRow("step below zero") << 0.0f << 10.0f << -1.0f;
    QTest::newRow("step that is no number") << 0.0f << 10.0f << g_nan_f;
    QTest::newRow("infinite step") << 0.0f << 10.0f << g_inf_f;
    QTest::newRow("least step") << 0.0f << 10.0f << std::numeric_limits<float>::denorm_min();
    QTest::newRow("step lost in the range") << 1e30f << 1.1e30f << 1e-3f;
    QTest::newRow("infinite range") << -g_inf_f << g_inf_f << 1.0f;
    QTest::newRow("infinite end") << 0.0f << g_inf_f << 1.0f;
    QTest::newRow("start that is no number") << g_nan_f << 10.0f << 1.0f;
    QTest::newRow("whole range of floats")
        << std::numeric_limits<float>::lowest() << std::numeric_limits<float>::max() << 1.0f;
}

void BadInputTest::aScaleTakesAnyRange()
{
    QFETCH(float, min);
    QFETCH(float, max);
    QFETCH(float, step);
    ColorMap plain;
    ColorMapHue hue;
    ColorMapHueWithLabels labels;
    for (ColorMap* const map :
         {&plain, static_cast<ColorMap*>(&hue), static_cast<ColorMap*>(&labels)}) {
        map->resize(60, 90);
        map->setRange(min, max, step);
        Picture(*map);
        map->setRange(max, step);
        Picture(*map);
    }
    labels.ShowUserUnits(true);
    Picture(labels);
}

void BadInputTest::aScaleTakesAnyColours()
{
    ColorMap plain;
    ColorMapHue hue;
    for (ColorMap* const map : {&plain, static_cast<ColorMap*>(&hue)}) {
        map->resize(30, 60);
        for (const std::vector<QColor>& colors : {std::vector<QColor>{},
                                                  {QColor()},
                                                  {Qt::black},
                                                  {QColor(), Qt::white},
                                                  {Qt::gray, Qt::gray},
                                                  std::vector<QColor>(10000, Qt::red)}) {
            map->setColors(colors);
            Picture(*map);
        }
        map->setStartColor(QColor());
        map->setEndColor(QColor());
        Picture(*map);
    }
    hue.setInterpolateLS(true);
    Picture(hue);
}

void BadInputTest::aLegendTakesAnyThickness_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("below zero") << -5 << -5;
    QTest::newRow("more than there is") << 5000 << 2;
}

void BadInputTest::aLegendTakesAnyThickness()
{
    QFETCH(int, size);
    QFETCH(int, offset);
    Legend legend;
    legend.setProperty("colorSize", size);
    legend.setProperty("offset", offset);
    ReadAll(legend);
}

void BadInputTest::aComboWithoutRowsTakesEverything()
{
    CheckComboBox combo;
    combo.setCheckedItems({"x", QString()});
    combo.setSeparator(QString());
    combo.setChecked(std::numeric_limits<int>::max(), true);
    combo.setItemCheckState(std::numeric_limits<int>::min(), Qt::Checked);
    combo.setCurrentIndex(5);
    combo.showPopup();
    combo.hidePopup();
    QCOMPARE(combo.checkedItems(), QStringList());
    QCOMPARE(combo.currentText(), QString());
}

void BadInputTest::aComboTakesAForeignModel()
{
    CheckComboBox combo;
    QStandardItemModel model(2, 1);
    model.setItem(0, new QStandardItem("one"));
    model.setItem(1, new QStandardItem("two"));
    combo.setModel(&model);
    Q_EMIT combo.activated(0);
    QCOMPARE(combo.checkedItems(), QStringList());
    combo.setChecked(1, true);
    QCOMPARE(combo.checkedItems(), QStringList{"two"});
}

void BadInputTest::aSwitchTakesAnySize()
{
    MSwitcher switcher{QColor()};
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(5, 300), QSize(3000, 4)}) {
        switcher.resize(size);
        switcher.setToggle(!switcher.isToggled());
        for (int i = 0; i < 20; ++i)
            switcher.timercall();
        Paint(switcher);
    }
}

OVK_TEST_CLASS(BadInputTest)

#include "bad_input_test.moc"
