#include "tests/support/test_main.h"

#include <vorsdk/units.h>

#include <limits>

class VorsdkUnitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MUserUnit::GetInstance().SetUnit(MUserUnit::utMillimetre); }
    void theUnitIsMillimetresAtTheStart();
    void lengthsAreRounded_data();
    void lengthsAreRounded();
    void inchesAreTheOtherUnits();
    void whatDoesNotFitIsTheEndOfTheRange();
};

void VorsdkUnitsTest::theUnitIsMillimetresAtTheStart()
{
    QCOMPARE(int(MUserUnit::GetInstance().GetUnit()), 0);
    QVERIFY(&MUserUnit::GetInstance() == &MUserUnit::GetInstance());
}

void VorsdkUnitsTest::lengthsAreRounded_data()
{
    QTest::addColumn<double>("mm");
    QTest::addColumn<int>("length");
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("one") << 1.0 << 10000;
    QTest::newRow("half up") << 0.00005 << 1;
    QTest::newRow("half down") << -0.00005 << -1;
    QTest::newRow("below half") << 0.00004 << 0;
    QTest::newRow("the largest") << 200000.0 << 2000000000;
    QTest::newRow("the least") << -200000.0 << -2000000000;
}

void VorsdkUnitsTest::lengthsAreRounded()
{
    QFETCH(double, mm);
    QFETCH(int, length);
    QCOMPARE(MUnit::ConvertFromMmToStlUnits(mm), long(length));
    QCOMPARE(MUserUnit::GetInstance().ConvertFromUIToStlUnits(mm), long(length));
}

void VorsdkUnitsTest::inchesAreTheOtherUnits()
{
    MUserUnit& unit = MUserUnit::GetInstance();
    unit.SetUnit(MUserUnit::utInch);
    QCOMPARE(int(unit.GetUnit()), 1);
    QCOMPARE(unit.ConvertFromUIToStlUnits(1.0), 254000L);
    QCOMPARE(unit.ConvertFromUIToStlUnits(-0.5), -127000L);
    QCOMPARE(MUnit::ConvertFromMmToStlUnits(1.0), 10000L);
}

void VorsdkUnitsTest::whatDoesNotFitIsTheEndOfTheRange()
{
    QCOMPARE(MUnit::ConvertFromMmToStlUnits(1e12), 2147483647L);
    QCOMPARE(MUnit::ConvertFromMmToStlUnits(-std::numeric_limits<double>::infinity()), -2147483647L - 1);
    QCOMPARE(MUnit::ConvertFromMmToStlUnits(std::numeric_limits<double>::quiet_NaN()), 0L);
}

OVK_TEST_CLASS(VorsdkUnitsTest)

#include "vorsdk_units_test.moc"
