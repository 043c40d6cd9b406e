#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/units.h>
#include <ovk/widgets.h>
#include <ovk/widgets/color_marks_p.h>

#include <QLinearGradient>
#include <QPainter>

using namespace ovk;
using ovk_test::Picture;

namespace {

template <class Map> class Exposed : public Map
{
public:
    using Map::_drawMarks;
    using Map::_redraw;
    using Map::_renderColors;
    using Map::m_image;

    int redraws = 0;

protected:
    void _redraw(const QSize& size) override
    {
        ++redraws;
        Map::_redraw(size);
    }
};

class Labelled : public ColorMapHueWithLabels
{
public:
    using ColorMap::m_image;
    using ColorMapLabels::_GetLabelsFontHeight;
    using ColorMapLabels::_GetLabelStr;
    using ColorMapLabels::_GetLabelsWidth;
    using ColorMapLabels::m_labels;
    using ColorMapLabels::m_labels_image;
    using ColorMapLabels::ShowUserUnits;
};

QColor HueOfRow(const QColor& start, const QColor& end, int i, int height, bool interpolate)
{
    const double dh = double((end.hslHue() - start.hslHue() + 360) % 360) / height;
    const double ds = double(end.hslSaturation() - start.hslSaturation()) / height;
    const double dl = double(end.lightness() - start.lightness()) / height;
    const int hue = int(i * dh + start.hslHue()) % 360;
    const int s = interpolate ? int(i * ds + start.hslSaturation()) : 255;
    const int l = interpolate ? int(i * dl + start.lightness()) : 127;
    return QColor::fromHsl(hue, s, l, 255);
}

} // namespace

class ColorMapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aNewMapRunsFromGrayUpToWhite();
    void everySetterPaintsAnew();
    void anEvenRangeLiesAroundZero_data();
    void anEvenRangeLiesAroundZero();
    void marksStandAtHalfSteps_data();
    void marksStandAtHalfSteps();
    void marksAreBlackOnLightAndWhiteOnDark();
    void marksRunAlongTheHeightOfAFlatMapToo();
    void badStepsGiveNoMarks_data();
    void badStepsGiveNoMarks();
    void veryDenseMarksEndInTime();
    void theColoursAreThoseOfTheGradient_data();
    void theColoursAreThoseOfTheGradient();
    void theEndsOfManyColoursCanBeChanged();
    void aMapWithoutColoursDoesNoHarm();
    void aDisabledMapIsPlain();
    void aDisabledHueMapKeepsItsColours();
    void theHueSweepIsTheFormula_data();
    void theHueSweepIsTheFormula();
    void equalHuesGiveOneColour();
    void theMapHasTheSizeOfTheWidget();
    void theWholeRangeHasItsLabels_data();
    void theWholeRangeHasItsLabels();
    void labelsTakeRoomFromTheScale();
    void labelsFollowTheUnits();
    void theLargestLabelIsOnTop();
    void disabledLabelsFade();
    void aLabelHasSixDigits_data();
    void aLabelHasSixDigits();
};

void ColorMapTest::cleanup()
{
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
}

void ColorMapTest::aNewMapRunsFromGrayUpToWhite()
{
    ColorMap map;
    QCOMPARE(map.startColor(), QColor(Qt::gray));
    QCOMPARE(map.endColor(), QColor(Qt::white));
    QCOMPARE(map.property("startColor").value<QColor>(), QColor(Qt::gray));
    QCOMPARE(map.property("endColor").value<QColor>(), QColor(Qt::white));
    QCOMPARE(map.property("marks").toBool(), true);
    QCOMPARE(map.property("orientation").toInt(), int(ColorMap::Vertical));
    QCOMPARE(map.sizeHint(), QSize(-1, -1));
    map.resize(40, 100);
    const QImage image = Picture(map);
    QCOMPARE(image.pixelColor(0, 99), QColor(Qt::gray));
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
}

void ColorMapTest::everySetterPaintsAnew()
{
    Exposed<ColorMap> map;
    const auto painted = [&map] {
        const int count = map.redraws;
        map.redraws = 0;
        return count;
    };
    painted();
    map.setColors(Qt::red, Qt::green);
    QCOMPARE(painted(), 1);
    map.setColors(std::vector<QColor>{Qt::red, Qt::green, Qt::blue});
    QCOMPARE(painted(), 1);
    map.setStartColor(Qt::red);
    QCOMPARE(painted(), 1);
    map.setEndColor(Qt::black);
    QCOMPARE(painted(), 1);
    map.setRange(0.0f, 5.0f, 1.0f);
    QCOMPARE(painted(), 1);
    map.setRange(5.0f, 1.0f);
    QCOMPARE(painted(), 1);
    map.SetDrawMarks(true);
    QCOMPARE(painted(), 1);
    map.SetOrientation(ColorMap::Vertical);
    QCOMPARE(painted(), 0);
    map.SetOrientation(ColorMap::Horizontal);
    QCOMPARE(painted(), 1);
}

void ColorMapTest::anEvenRangeLiesAroundZero_data()
{
    QTest::addColumn<float>("range");
    QTest::newRow("positive") << 3.0f;
    QTest::newRow("negative") << -3.0f;
}

void ColorMapTest::anEvenRangeLiesAroundZero()
{
    QFETCH(float, range);
    Exposed<ColorMap> even;
    even.resize(40, 120);
    even.setRange(range, 1.0f);
    Exposed<ColorMap> full;
    full.resize(40, 120);
    full.setRange(-3.0f, 3.0f, 1.0f);
    QCOMPARE(Picture(even), Picture(full));
}

void ColorMapTest::marksStandAtHalfSteps_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("count");
    QTest::newRow("the range of a new map") << 0.0 << 10.0 << 1.0 << 100 << 19;
    QTest::newRow("one step") << 0.0 << 1.0 << 1.0 << 50 << 1;
    QTest::newRow("around zero") << -3.0 << 3.0 << 1.5 << 77 << 7;
    QTest::newRow("a step that does not divide the range") << 0.0 << 1.0 << 0.3 << 200 << 6;
    QTest::newRow("a step larger than twice the range") << 0.0 << 1.0 << 3.0 << 50 << 0;
    QTest::newRow("a range turned round") << 10.0 << 0.0 << 1.0 << 50 << 0;
    QTest::newRow("no range") << 1.0 << 1.0 << 1.0 << 50 << 0;
}

void ColorMapTest::marksStandAtHalfSteps()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, step);
    QFETCH(int, height);
    QFETCH(int, count);
    const std::vector<ColorMark> marks = ColorMarks(min, max, step, height);
    QCOMPARE(int(marks.size()), count);
    const double dy = step * 0.5 / (max - min) * height;
    double y = dy;
    for (int i = 0; i < count; ++i, y += dy) {
        QCOMPARE(marks[i].row, int(y));
        QCOMPARE(marks[i].divisor, i % 2 == 0 ? 4 : 2);
    }
}

void ColorMapTest::marksAreBlackOnLightAndWhiteOnDark()
{
    const struct
    {
        QColor color;
        bool black;
    } rows[] = {{QColor(134, 134, 133), true},
                {QColor(134, 133, 133), false},
                {Qt::white, true},
                {Qt::red, false}};
    for (const auto& row : rows) {
        Exposed<ColorMap> map;
        map.setColors(row.color, row.color);
        map.setRange(0.0f, 4.0f, 1.0f);
        map.resize(40, 80);
        const QImage image = Picture(map);
        const QColor mark = row.black ? Qt::black : Qt::white;
        for (int k = 1; k <= 7; ++k) {
            const int width = k % 2 == 1 ? 10 : 20;
            QCOMPARE(image.pixelColor(39, k * 10), mark);
            QCOMPARE(image.pixelColor(40 - width, k * 10), mark);
            QCOMPARE(image.pixelColor(40 - width - 1, k * 10), row.color);
            QCOMPARE(image.pixelColor(39, k * 10 + 1), row.color);
        }
        map.SetDrawMarks(false);
        QCOMPARE(Picture(map).pixelColor(39, 10), row.color);
    }
}

void ColorMapTest::marksRunAlongTheHeightOfAFlatMapToo()
{
    ColorMap map;
    map.setColors(Qt::white, Qt::white);
    map.SetOrientation(ColorMap::Horizontal);
    map.setRange(0.0f, 1.0f, 1.0f);
    map.resize(80, 40);
    const QImage image = Picture(map);
    QCOMPARE(image.pixelColor(79, 20), QColor(Qt::black));
    QCOMPARE(image.pixelColor(60, 20), QColor(Qt::black));
    QCOMPARE(image.pixelColor(59, 20), QColor(Qt::white));
}

void ColorMapTest::badStepsGiveNoMarks_data()
{
    QTest::addColumn<double>("step");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -1.0;
    QTest::newRow("no number") << qQNaN();
    QTest::newRow("infinite") << qInf();
}

void ColorMapTest::badStepsGiveNoMarks()
{
    QFETCH(double, step);
    QVERIFY(ColorMarks(0.0, 10.0, step, 100).empty());
    QVERIFY(ColorMarks(qQNaN(), 10.0, 1.0, 100).empty());
    ColorMap map;
    map.resize(20, 20);
    map.setRange(0.0f, 10.0f, float(step));
    QCOMPARE(Picture(map).size(), QSize(20, 20));
}

void ColorMapTest::veryDenseMarksEndInTime()
{
    const std::vector<ColorMark> marks = ColorMarks(0.0, 10.0, 1e-30, 100);
    QCOMPARE(int(marks.size()), 100);
    ColorMap map;
    map.setColors(Qt::white, Qt::white);
    map.resize(20, 20);
    map.setRange(0.0f, 10.0f, 1e-30f);
    QCOMPARE(Picture(map).pixelColor(19, 7), QColor(Qt::black));
}

void ColorMapTest::theColoursAreThoseOfTheGradient_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QVector<QColor>>("colors");
    const QVector<QColor> one{Qt::red};
    const QVector<QColor> two{Qt::red, Qt::blue};
    const QVector<QColor> seven{Qt::red,  Qt::yellow,  Qt::green, Qt::cyan,
                                Qt::blue, Qt::magenta, Qt::black};
    for (const ColorMap::Orientation orientation : {ColorMap::Vertical, ColorMap::Horizontal}) {
        QTest::addRow("one colour, %d", orientation) << int(orientation) << one;
        QTest::addRow("two colours, %d", orientation) << int(orientation) << two;
        QTest::addRow("seven colours, %d", orientation) << int(orientation) << seven;
    }
}

void ColorMapTest::theColoursAreThoseOfTheGradient()
{
    QFETCH(int, orientation);
    QFETCH(QVector<QColor>, colors);
    ColorMap map;
    map.SetDrawMarks(false);
    map.SetOrientation(ColorMap::Orientation(orientation));
    map.setColors(std::vector<QColor>(colors.begin(), colors.end()));
    map.resize(61, 91);

    QImage expected(61, 91, QImage::Format_RGB32);
    QLinearGradient gradient = orientation == ColorMap::Vertical ? QLinearGradient(30, 90, 30, 0)
                                                                 : QLinearGradient(0, 45, 60, 45);
    for (int k = 0; k < colors.size() && colors.size() > 1; ++k)
        gradient.setColorAt(k / double(colors.size() - 1), colors[k]);
    QPainter(&expected).fillRect(expected.rect(), gradient);
    QCOMPARE(Picture(map), expected);
    if (colors.size() > 1) {
        const QPoint start = orientation == ColorMap::Vertical ? QPoint(30, 90) : QPoint(0, 45);
        const QPoint end = orientation == ColorMap::Vertical ? QPoint(30, 0) : QPoint(60, 45);
        QVERIFY(qAbs(expected.pixelColor(start).red() - colors.first().red()) < 30);
        QVERIFY(qAbs(expected.pixelColor(end).blue() - colors.last().blue()) < 30);
    }
}

void ColorMapTest::theEndsOfManyColoursCanBeChanged()
{
    ColorMap map;
    map.setColors(std::vector<QColor>{Qt::red, Qt::green, Qt::blue});
    map.setProperty("startColor", QColor(Qt::white));
    map.setProperty("endColor", QColor(Qt::black));
    QCOMPARE(map.startColor(), QColor(Qt::white));
    QCOMPARE(map.endColor(), QColor(Qt::black));
    map.setColors(Qt::cyan, Qt::yellow);
    QCOMPARE(map.startColor(), QColor(Qt::cyan));
    QCOMPARE(map.endColor(), QColor(Qt::yellow));
}

void ColorMapTest::aMapWithoutColoursDoesNoHarm()
{
    ColorMap map;
    map.resize(10, 10);
    map.setColors(std::vector<QColor>());
    QVERIFY(!map.startColor().isValid());
    QVERIFY(!map.endColor().isValid());
    Picture(map);
    map.setStartColor(Qt::red);
    QCOMPARE(map.endColor(), QColor(Qt::red));
    map.setColors(std::vector<QColor>());
    map.setEndColor(Qt::blue);
    QCOMPARE(map.startColor(), QColor(Qt::blue));
    map.resize(0, 0);
    map.setColors(Qt::red, Qt::blue);
}

void ColorMapTest::aDisabledMapIsPlain()
{
    ColorMap map;
    map.SetDrawMarks(false);
    QPalette palette = map.palette();
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(12, 34, 56));
    map.setPalette(palette);
    map.resize(20, 30);
    const QImage enabled = Picture(map);
    map.setEnabled(false);
    QImage plain(20, 30, QImage::Format_RGB32);
    plain.fill(QColor(12, 34, 56));
    QCOMPARE(Picture(map), plain);
    map.setEnabled(true);
    QCOMPARE(Picture(map), enabled);
}

void ColorMapTest::aDisabledHueMapKeepsItsColours()
{
    ColorMapHue map;
    map.resize(20, 90);
    const QImage enabled = Picture(map);
    map.setEnabled(false);
    QCOMPARE(Picture(map), enabled);
}

void ColorMapTest::theHueSweepIsTheFormula_data()
{
    QTest::addColumn<QColor>("start");
    QTest::addColumn<QColor>("end");
    QTest::addColumn<bool>("interpolate");
    QTest::addColumn<int>("height");
    for (const bool interpolate : {false, true}) {
        const char* const how = interpolate ? "with lightness" : "hue alone";
        QTest::addRow("whole, %s", how)
            << QColor::fromHsl(0, 255, 127) << QColor::fromHsl(359, 255, 127) << interpolate << 100;
        QTest::addRow("through zero, %s", how)
            << QColor::fromHsl(300, 200, 60) << QColor::fromHsl(60, 90, 220) << interpolate << 77;
        QTest::addRow("short, %s", how) << QColor::fromHsl(200, 255, 127)
                                        << QColor::fromHsl(210, 10, 250) << interpolate << 300;
        QTest::addRow("one row, %s", how)
            << QColor::fromHsl(10, 255, 127) << QColor::fromHsl(210, 10, 250) << interpolate << 1;
        QTest::addRow("from gray, %s", how)
            << QColor(Qt::gray) << QColor(Qt::blue) << interpolate << 50;
    }
}

void ColorMapTest::theHueSweepIsTheFormula()
{
    QFETCH(QColor, start);
    QFETCH(QColor, end);
    QFETCH(bool, interpolate);
    QFETCH(int, height);
    ColorMapHue map;
    map.SetDrawMarks(false);
    map.setColors(start, end);
    map.setInterpolateLS(interpolate);
    map.SetOrientation(ColorMap::Horizontal);
    map.resize(7, height);
    const QImage image = Picture(map);
    for (int i = 0; i < height; ++i) {
        const QRgb expected = HueOfRow(start, end, i, height, interpolate).rgb();
        for (int x = 0; x < 7; ++x)
            QCOMPARE(image.pixel(x, height - 1 - i), expected);
    }
}

void ColorMapTest::equalHuesGiveOneColour()
{
    ColorMapHue map;
    map.SetDrawMarks(false);
    map.setColors(QColor::fromHsl(120, 255, 127), QColor::fromHsl(120, 10, 10));
    map.resize(5, 60);
    QImage plain(5, 60, QImage::Format_RGB32);
    plain.fill(QColor::fromHsl(120, 255, 127));
    QCOMPARE(Picture(map), plain);
    map.fillWithSpectrum();
    QCOMPARE(map.endColor().hslHue(), 359);
}

void ColorMapTest::theMapHasTheSizeOfTheWidget()
{
    Exposed<ColorMap> map;
    map.resize(33, 44);
    Picture(map);
    QCOMPARE(map.m_image.size(), QSize(33, 44));
    QCOMPARE(map.m_image.format(), QImage::Format_RGB32);
    map.resize(10, 80);
    Picture(map);
    QCOMPARE(map.m_image.size(), QSize(10, 80));
}

void ColorMapTest::theWholeRangeHasItsLabels_data()
{
    QTest::addColumn<QVector<float>>("range");
    QTest::addColumn<QVector<double>>("labels");
    QTest::newRow("up") << QVector<float>{1, 10, 1}
                        << QVector<double>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("down") << QVector<float>{3, 1, 1} << QVector<double>{1, 2, 3};
    QTest::newRow("upper end not reached")
        << QVector<float>{0, 1, 0.75f} << QVector<double>{0, 0.75};
    QTest::newRow("even") << QVector<float>{2, 1} << QVector<double>{-2, -1, 0, 1, 2};
    QTest::newRow("no step") << QVector<float>{0, 1, 0} << QVector<double>{};
    QTest::newRow("step downward") << QVector<float>{0, 1, -1} << QVector<double>{};
    QTest::newRow("step without end") << QVector<float>{0, 1, 1e-20f} << QVector<double>{};
    QTest::newRow("one label") << QVector<float>{0, 1, 2} << QVector<double>{0};
}

void ColorMapTest::theWholeRangeHasItsLabels()
{
    QFETCH(QVector<float>, range);
    QFETCH(QVector<double>, labels);
    Labelled map;
    QCOMPARE(int(map.m_labels.size()), 10);
    if (range.size() == 3)
        map.setRange(range[0], range[1], range[2]);
    else
        map.setRange(range[0], range[1]);
    QCOMPARE(QVector<double>(map.m_labels.begin(), map.m_labels.end()), labels);
    map.resize(60, 120);
    Picture(map);
}

void ColorMapTest::labelsTakeRoomFromTheScale()
{
    Labelled map;
    map.resize(80, 200);
    const QImage picture = Picture(map);
    const int width = map._GetLabelsWidth();
    const int height = map._GetLabelsFontHeight();
    QVERIFY(width > 0 && height > 0);
    QCOMPARE(map.m_image.size(), QSize(80 - width - 2, 200 - height));
    QCOMPARE(map.m_labels_image.size(), QSize(width, 200));
    QCOMPARE(map.m_labels_image.format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(picture.copy(QRect(QPoint(0, height / 2), map.m_image.size())), map.m_image);
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::magenta));
}

void ColorMapTest::labelsFollowTheUnits()
{
    Labelled map;
    map.resize(100, 200);
    Picture(map);
    const QImage plain = map.m_labels_image;
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(map.m_labels_image, plain);
    QCOMPARE(map._GetLabelStr(2.5), QString("2.5"));
    map.ShowUserUnits(true);
    QCOMPARE(map._GetLabelStr(2.5), QString("2.5 inch"));
    QVERIFY(map.m_labels_image.width() > plain.width());
    const QImage inches = map.m_labels_image;
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
    QCOMPARE(map._GetLabelStr(2.5), QString("2.5 mm"));
    QVERIFY(map.m_labels_image != inches);
    QCOMPARE(map.m_image.width() + 2 + map.m_labels_image.width(), 100);
}

void ColorMapTest::theLargestLabelIsOnTop()
{
    Labelled map;
    map.setRange(1.0f, 111.0f, 110.0f);
    map.resize(80, 200);
    Picture(map);
    const auto ink = [&map](int top) {
        int count = 0;
        for (int y = top; y < top + map._GetLabelsFontHeight(); ++y) {
            for (int x = 0; x < map.m_labels_image.width(); ++x)
                count += qAlpha(map.m_labels_image.pixel(x, y)) > 0;
        }
        return count;
    };
    QVERIFY(ink(0) > ink(200 - map._GetLabelsFontHeight()));
    QVERIFY(ink(200 - map._GetLabelsFontHeight()) > 0);
    QCOMPARE(ink(90), 0);
}

void ColorMapTest::disabledLabelsFade()
{
    class Labelled : public ColorMapHueWithLabels
    {
    public:
        using ColorMapHueWithLabels::m_labels_image;
    };
    Labelled map;
    QPalette palette = map.palette();
    palette.setColor(QPalette::Active, QPalette::WindowText, Qt::blue);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(200, 10, 10));
    map.setPalette(palette);
    map.resize(80, 120);
    const auto strongest = [&map] {
        QRgb found = 0;
        for (int y = 0; y < map.m_labels_image.height(); ++y) {
            for (int x = 0; x < map.m_labels_image.width(); ++x) {
                if (qAlpha(map.m_labels_image.pixel(x, y)) > qAlpha(found))
                    found = map.m_labels_image.pixel(x, y);
            }
        }
        return QColor(found);
    };
    QCOMPARE(strongest(), QColor(Qt::blue));
    map.setEnabled(false);
    QCOMPARE(strongest(), QColor(200, 10, 10));
}

void ColorMapTest::aLabelHasSixDigits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 10.0 << "10";
    QTest::newRow("third") << 1.0 / 3.0 << "0.333333";
    QTest::newRow("large") << 12345678.0 << "1.23457e+07";
}

void ColorMapTest::aLabelHasSixDigits()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(Labelled()._GetLabelStr(value), text);
}

OVK_TEST_CLASS(ColorMapTest)

#include "color_map_test.moc"
