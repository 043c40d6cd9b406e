#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QFontMetrics>
#include <QToolTip>

using namespace ovk;
using ovk_test::Picture;

namespace {

class Legend : public ColorLegend
{
public:
    using ColorLegend::_EstimateLabelsSize;
    using ColorLegend::_GetCurrentValue;
    using ColorLegend::m_image;
    using ColorLegend::m_labels_image;
    using ColorLegend::m_range_max;
    using ColorLegend::m_range_min;
    using ColorLegend::m_step;
};

int Ink(const QImage& image, const QRect& rect)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0;
    }
    return count;
}

} // namespace

class ColorLegendTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aNewLegendLiesFlat();
    void theMapGivesRangeStepAndColours();
    void aSingleEntryDividesByZero();
    void anEmptyMapIsIgnored();
    void theColoursAreThinAndTheLabelsBeside_data();
    void theColoursAreThinAndTheLabelsBeside();
    void thicknessAndDistanceAreProperties();
    void aLayoutLeavesRoomForIt_data();
    void aLayoutLeavesRoomForIt();
    void onlyTheEndsAreLabelled_data();
    void onlyTheEndsAreLabelled();
    void aDisabledLegendFades();
    void thePointShowsItsValue_data();
    void thePointShowsItsValue();
    void theToolTipFollowsThePointer();
};

void ColorLegendTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void ColorLegendTest::aNewLegendLiesFlat()
{
    Legend legend;
    QVERIFY(legend.hasMouseTracking());
    QCOMPARE(legend.property("marks").toBool(), false);
    QCOMPARE(legend.property("orientation").toInt(), int(ColorMap::Horizontal));
    QCOMPARE(legend.property("offset").toInt(), 2);
    QCOMPARE(legend.property("colorSize").toInt(), 8);
    QCOMPARE(legend.startColor(), QColor(Qt::white));
    QCOMPARE(legend.endColor(), QColor(Qt::black));
    QCOMPARE(legend.m_range_max, 1.0f);
    QCOMPARE(legend.m_step, 0.5f);
}

void ColorLegendTest::theMapGivesRangeStepAndColours()
{
    Legend legend;
    legend.SetColorsAndLabels(
        {{-2.0, Qt::blue}, {0.0, Qt::green}, {3.0, Qt::yellow}, {10.0, Qt::red}});
    QCOMPARE(legend.m_range_min, -2.0f);
    QCOMPARE(legend.m_range_max, 10.0f);
    QCOMPARE(legend.m_step, 4.0f);
    QCOMPARE(legend.startColor(), QColor(Qt::blue));
    QCOMPARE(legend.endColor(), QColor(Qt::red));
}

void ColorLegendTest::aSingleEntryDividesByZero()
{
    Legend legend;
    legend.SetDrawMarks(true);
    legend.SetColorsAndLabels({{4.0, Qt::green}});
    QVERIFY(qIsNaN(legend.m_step));
    legend.resize(60, 30);
    Picture(legend);
    QCOMPARE(legend._GetCurrentValue(QPointF(20, 0)), 4.0);
}

void ColorLegendTest::anEmptyMapIsIgnored()
{
    Legend legend;
    legend.SetColorsAndLabels({});
    QCOMPARE(legend.endColor(), QColor(Qt::black));
    QCOMPARE(legend.m_range_max, 1.0f);
}

void ColorLegendTest::theColoursAreThinAndTheLabelsBeside_data()
{
    QTest::addColumn<int>("orientation");
    QTest::newRow("vertical") << int(ColorMap::Vertical);
    QTest::newRow("horizontal") << int(ColorMap::Horizontal);
}

void ColorLegendTest::theColoursAreThinAndTheLabelsBeside()
{
    QFETCH(int, orientation);
    Legend legend;
    legend.SetOrientation(ColorMap::Orientation(orientation));
    legend.resize(120, 90);
    const QImage picture = Picture(legend);
    const QFontMetrics metrics(QApplication::font());
    const QSize labels =
        metrics.boundingRect("0").size().expandedTo(metrics.boundingRect("1").size());
    QCOMPARE(legend._EstimateLabelsSize(), labels);
    QCOMPARE(picture.copy(legend.m_image.rect()), legend.m_image);
    if (orientation == ColorMap::Vertical) {
        QCOMPARE(legend.m_image.size(), QSize(8, 90));
        QCOMPARE(legend.m_labels_image.size(), QSize(labels.width(), 90));
        QCOMPARE(legend.minimumWidth(), labels.width() + 2 + 8);
        QCOMPARE(picture.pixelColor(8, 40), QColor(Qt::magenta));
        QVERIFY(picture.pixelColor(0, 0).red() < 10);
    } else {
        QCOMPARE(legend.m_image.size(), QSize(120, 8));
        QCOMPARE(legend.m_labels_image.size(), QSize(120, labels.height()));
        QCOMPARE(legend.minimumHeight(), labels.height() + 2 + 8);
        QCOMPARE(picture.pixelColor(60, 8), QColor(Qt::magenta));
        QVERIFY(picture.pixelColor(119, 0).red() < 10);
    }
}

void ColorLegendTest::thicknessAndDistanceAreProperties()
{
    Legend legend;
    QVERIFY(legend.setProperty("offset", 5));
    QVERIFY(legend.setProperty("colorSize", 20));
    legend.resize(100, 60);
    Picture(legend);
    QCOMPARE(legend.m_image.height(), 20);
    QCOMPARE(legend.minimumHeight(), legend._EstimateLabelsSize().height() + 25);
}

void ColorLegendTest::aLayoutLeavesRoomForIt_data()
{
    theColoursAreThinAndTheLabelsBeside_data();
}

void ColorLegendTest::aLayoutLeavesRoomForIt()
{
    QFETCH(int, orientation);
    Legend legend;
    legend.SetOrientation(ColorMap::Orientation(orientation));
    // Before it was ever painted, when it has no minimum of its own.
    QCOMPARE(legend.minimumSize(), QSize(0, 0));
    QCOMPARE(legend.sizeHint(), QSize(-1, -1));
    const QSize labels = legend._EstimateLabelsSize();
    const bool vertical = orientation == ColorMap::Vertical;
    QCOMPARE(legend.minimumSizeHint(), vertical ? QSize(10 + labels.width(), 2 * labels.height())
                                                : QSize(2 * labels.width(), 10 + labels.height()));
    legend.setProperty("colorSize", 20);
    QCOMPARE(vertical ? legend.minimumSizeHint().width() : legend.minimumSizeHint().height(),
             22 + (vertical ? labels.width() : labels.height()));
}

void ColorLegendTest::onlyTheEndsAreLabelled_data()
{
    theColoursAreThinAndTheLabelsBeside_data();
}

void ColorLegendTest::onlyTheEndsAreLabelled()
{
    QFETCH(int, orientation);
    Legend legend;
    legend.SetColorsAndLabels({{1.0, Qt::white}, {5.0, Qt::red}, {1111.0, Qt::black}});
    legend.SetOrientation(ColorMap::Orientation(orientation));
    legend.resize(200, 150);
    const QSize label = legend._EstimateLabelsSize();
    const QRect whole = legend.m_labels_image.rect();
    QRect first(QPoint(0, 0), label), last = first;
    if (orientation == ColorMap::Vertical)
        first.moveBottom(whole.bottom());
    else
        last.moveRight(whole.right());
    // Hints of glyphs may lie a pixel outside of their estimate.
    first.adjust(0, -1, 1, 0);
    last.adjust(-1, 0, 0, 1);
    first &= whole;
    last &= whole;
    QVERIFY(Ink(legend.m_labels_image, first) > 0);
    QVERIFY(Ink(legend.m_labels_image, last) > Ink(legend.m_labels_image, first));
    QCOMPARE(Ink(legend.m_labels_image, whole),
             Ink(legend.m_labels_image, first) + Ink(legend.m_labels_image, last));
}

void ColorLegendTest::aDisabledLegendFades()
{
    Legend legend;
    QPalette palette = legend.palette();
    palette.setColor(QPalette::Active, QPalette::WindowText, Qt::blue);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(200, 10, 10));
    legend.setPalette(palette);
    legend.resize(80, 40);
    const auto labelColor = [&legend] {
        QRgb strongest = 0;
        for (int y = 0; y < legend.m_labels_image.height(); ++y) {
            for (int x = 0; x < legend.m_labels_image.width(); ++x) {
                const QRgb pixel = legend.m_labels_image.pixel(x, y);
                if (qAlpha(pixel) > qAlpha(strongest))
                    strongest = pixel;
            }
        }
        return QColor(strongest);
    };
    QCOMPARE(labelColor(), QColor(Qt::blue));
    legend.setEnabled(false);
    QCOMPARE(labelColor(), QColor(200, 10, 10));
    QCOMPARE(legend.m_image.pixelColor(40, 4), QColor(200, 10, 10));
    legend.setEnabled(true);
    QCOMPARE(labelColor(), QColor(Qt::blue));
}

void ColorLegendTest::thePointShowsItsValue_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<double>("value");
    QTest::newRow("left") << 1 << QPointF(0, 5) << 10.0;
    QTest::newRow("middle") << 1 << QPointF(100, 5) << 20.0;
    QTest::newRow("right") << 1 << QPointF(200, 5) << 30.0;
    QTest::newRow("top") << 0 << QPointF(3, 0) << 30.0;
    QTest::newRow("a quarter down") << 0 << QPointF(3, 25) << 25.0;
    QTest::newRow("bottom") << 0 << QPointF(3, 100) << 10.0;
}

void ColorLegendTest::thePointShowsItsValue()
{
    QFETCH(int, orientation);
    QFETCH(QPointF, point);
    QFETCH(double, value);
    Legend legend;
    legend.SetOrientation(ColorMap::Orientation(orientation));
    legend.SetColorsAndLabels({{10.0, Qt::white}, {30.0, Qt::black}});
    legend.resize(201, 101);
    QCOMPARE(legend._GetCurrentValue(point), value);
}

void ColorLegendTest::theToolTipFollowsThePointer()
{
    Legend legend;
    legend.resize(201, 40);
    legend.show();
    QVERIFY(QTest::qWaitForWindowExposed(&legend));
    const auto move = [&legend](const QPoint& point) {
        QMouseEvent event(QEvent::MouseMove, point, legend.mapToGlobal(point), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&legend, &event);
    };
    move(QPoint(50, 3));
    QCOMPARE(QToolTip::text(), QString("0.25"));
    move(QPoint(100, 3));
    QCOMPARE(QToolTip::text(), QString("0.5"));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&legend, &leave);
    QTRY_VERIFY(!QToolTip::isVisible());
    legend.setEnabled(false);
    QMouseEvent event(QEvent::MouseMove, QPoint(50, 3), legend.mapToGlobal(QPoint(50, 3)),
                      Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QVERIFY(!legend.eventFilter(&legend, &event));
    QVERIFY(!QToolTip::isVisible());
}

OVK_TEST_CLASS(ColorLegendTest)

#include "color_legend_test.moc"
