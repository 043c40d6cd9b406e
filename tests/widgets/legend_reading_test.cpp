#include "tests/support/test_main.h"

#include <ovk/widgets.h>
#include <ovk/widgets/legend_reading_p.h>

#include <QAccessible>
#include <QLineEdit>
#include <QToolTip>

using namespace ovk;

namespace {

QAccessibleInterface* Interface(QObject& object)
{
    return QAccessible::queryAccessibleInterface(&object);
}

} // namespace

/// The legend is read with the keys, and by accessibility clients.
class LegendReadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theLegendIsReadByKeys_data();
    void theLegendIsReadByKeys();
    void anUnknownKeyIsNotRead();
    void theLegendTellsItsValue();
    void aClientMovesTheReading_data();
    void aClientMovesTheReading();
    void theReadingIsShownWithTheFocus();
    void theReadingIsTakenByTab();
};

void LegendReadingTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void LegendReadingTest::theLegendIsReadByKeys_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("entries");
    QTest::addColumn<double>("to");
    QTest::newRow("right") << 0.5 << int(Qt::Key_Right) << 3 << 0.51;
    QTest::newRow("up") << 0.5 << int(Qt::Key_Up) << 3 << 0.51;
    QTest::newRow("left") << 0.5 << int(Qt::Key_Left) << 3 << 0.49;
    QTest::newRow("down") << 0.5 << int(Qt::Key_Down) << 3 << 0.49;
    QTest::newRow("left from between") << 0.505 << int(Qt::Key_Left) << 3 << 0.5;
    QTest::newRow("right from between") << 0.505 << int(Qt::Key_Right) << 3 << 0.51;
    QTest::newRow("right at the end") << 1.0 << int(Qt::Key_Right) << 3 << 1.0;
    QTest::newRow("left at the start") << 0.0 << int(Qt::Key_Left) << 3 << 0.0;
    QTest::newRow("next entry") << 0.2 << int(Qt::Key_PageUp) << 3 << 0.5;
    QTest::newRow("entry after an entry") << 0.5 << int(Qt::Key_PageUp) << 3 << 1.0;
    QTest::newRow("entry before") << 0.5 << int(Qt::Key_PageDown) << 5 << 0.25;
    QTest::newRow("one entry, on") << 0.5 << int(Qt::Key_PageUp) << 1 << 1.0;
    QTest::newRow("one entry, back") << 0.5 << int(Qt::Key_PageDown) << 1 << 0.0;
    QTest::newRow("home") << 0.7 << int(Qt::Key_Home) << 3 << 0.0;
    QTest::newRow("end") << 0.7 << int(Qt::Key_End) << 3 << 1.0;
}

void LegendReadingTest::theLegendIsReadByKeys()
{
    QFETCH(double, from);
    QFETCH(int, key);
    QFETCH(int, entries);
    QFETCH(double, to);
    const std::optional<double> moved = MovedReading(from, key, entries);
    QVERIFY(moved);
    QCOMPARE(*moved, to);
}

void LegendReadingTest::anUnknownKeyIsNotRead()
{
    QVERIFY(!MovedReading(0.5, Qt::Key_A, 3));
    ColorLegend legend;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QApplication::sendEvent(&legend, &tab);
    QVERIFY(!tab.isAccepted());
    QCOMPARE(legend.GetReadingValue(), 0.0);
}

void LegendReadingTest::theLegendTellsItsValue()
{
    ColorLegend legend;
    legend.SetColorsAndLabels({{10.0, Qt::blue}, {20.0, Qt::white}, {30.0, Qt::red}});
    legend.resize(301, 40);
    QAccessibleInterface* const face = Interface(legend);
    QAccessibleValueInterface* const value = face->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toDouble(), 10.0);
    QCOMPARE(value->maximumValue().toDouble(), 30.0);
    QCOMPARE(value->minimumStepSize().toDouble(), 0.2);
    QCOMPARE(value->currentValue().toDouble(), 10.0);
    QCOMPARE(face->text(QAccessible::Value), QString("10, blue, #0000FF"));
    QCOMPARE(face->text(QAccessible::Description), QString("From blue, #0000FF to red, #FF0000"));
    QTest::keyClick(&legend, Qt::Key_PageUp);
    QCOMPARE(value->currentValue().toDouble(), 20.0);
    QCOMPARE(face->text(QAccessible::Value), QString("20, white, #FFFFFF"));
    QTest::keyClick(&legend, Qt::Key_Left);
    QCOMPARE(value->currentValue().toDouble(), 19.8);
    QTest::keyClick(&legend, Qt::Key_End);
    QCOMPARE(face->text(QAccessible::Value), QString("30, red, #FF0000"));
}

void LegendReadingTest::aClientMovesTheReading_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 15.0 << 15.0;
    QTest::newRow("below") << -5.0 << 10.0;
    QTest::newRow("above") << 99.0 << 30.0;
    QTest::newRow("no number") << qQNaN() << 20.0;
    QTest::newRow("infinity") << qInf() << 30.0;
}

void LegendReadingTest::aClientMovesTheReading()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    ColorLegend legend;
    legend.SetColorsAndLabels({{10.0, Qt::blue}, {30.0, Qt::red}});
    legend.SetReadingValue(20.0);
    Interface(legend)->valueInterface()->setCurrentValue(value);
    QCOMPARE(legend.GetReadingValue(), expected);
    legend.SetColorsAndLabels({{4.0, Qt::green}});
    legend.SetReadingValue(value);
    QCOMPARE(legend.GetReadingValue(), 4.0);
}

void LegendReadingTest::theReadingIsShownWithTheFocus()
{
    for (const auto orientation : {ColorMap::Horizontal, ColorMap::Vertical}) {
        ColorLegend legend;
        legend.SetOrientation(orientation);
        legend.SetColorsAndLabels({{0.0, Qt::red}, {1.0, Qt::red}});
        legend.resize(201, 101);
        legend.show();
        legend.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&legend));
        legend.clearFocus();
        const auto middle = [&] {
            const QImage picture = legend.grab().toImage();
            const QPoint at = orientation == ColorMap::Vertical ? QPoint(4, 50) : QPoint(100, 4);
            return picture.pixelColor(at);
        };
        QCOMPARE(middle(), QColor(Qt::red));
        legend.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&legend, Qt::Key_Home);
        QCOMPARE(QToolTip::text(), QString("0"));
        legend.SetReadingValue(0.5);
        QCOMPARE(QToolTip::text(), QString("0.5"));
        QCOMPARE(middle(), QColor(Qt::white));
        legend.clearFocus();
        QCOMPARE(middle(), QColor(Qt::red));
        QTRY_VERIFY(!QToolTip::isVisible());
    }
}

void LegendReadingTest::theReadingIsTakenByTab()
{
    QWidget window;
    QLineEdit before(&window);
    ColorLegend legend(&window);
    QWidget::setTabOrder(&before, &legend);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before.setFocus();
    QTest::keyClick(&before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&legend));
    QTest::keyClick(&legend, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&before));
    // A click reads under the pointer and takes no focus.
    QTest::mouseClick(&legend, Qt::LeftButton);
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&before));
}

OVK_TEST_CLASS(LegendReadingTest)

#include "legend_reading_test.moc"
