#include "tests/support/test_main.h"

#include <ovk/units.h>

using namespace ovk;

class UnitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void eachUnitHasItsFigures();
    void aUnitEqualsOnlyItself();
    void aPairIsValidOnceANumberIsGiven();
    void thePairFollowsTheCurrentUnits();
    void onlyAChangeOfUnitsNotifies();
    void limitsComeInBothUnits();
    void theSuffixNotifiesOnAChange();
};

void UnitsTest::cleanup()
{
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
    SuffixController::GetInstance().SetInsideEditor(false);
}

void UnitsTest::eachUnitHasItsFigures()
{
    const IUnits& mm = UnitsMM::GetInstance();
    QCOMPARE(mm.GetAbbreviation(), QString("mm"));
    QCOMPARE(mm.GetDecimals(), 3);
    QCOMPARE(mm.GetMinPositive(), 0.001);
    QCOMPARE(mm.GetMaxPositive(), 200000.0);
    QCOMPARE(mm.GetMinNegative(), -200000.0);
    const IUnits& inch = UnitsInch::GetInstance();
    QCOMPARE(inch.GetAbbreviation(), QString("inch"));
    QCOMPARE(inch.GetDecimals(), 4);
    QCOMPARE(inch.GetMinPositive(), 0.0001);
    QCOMPARE(inch.GetMaxPositive(), 8000.0);
    QCOMPARE(inch.GetMinNegative(), -8000.0);
}

void UnitsTest::aUnitEqualsOnlyItself()
{
    const IUnits& mm = UnitsMM::GetInstance();
    const IUnits& inch = UnitsInch::GetInstance();
    QVERIFY(mm == mm && inch == inch);
    QVERIFY(!(mm == inch) && !(inch == mm));
    QVERIFY(mm != inch && !(mm != mm));
    const UnitsMM copy = UnitsMM::GetInstance();
    QVERIFY(copy != mm);
}

void UnitsTest::aPairIsValidOnceANumberIsGiven()
{
    UnitsPair pair;
    QVERIFY(!pair.IsValid());
    QCOMPARE(pair.GetMm(), 0.0);
    pair.SetInch(1.0);
    QVERIFY(pair.IsValid());
    QCOMPARE(pair.GetMm(), 0.0);
    QCOMPARE(pair.GetInch(), 1.0);
    UnitsPair other;
    other.SetMm(2.0);
    QVERIFY(other.IsValid());
    QVERIFY(UnitsPair(1.0, 2.0).IsValid());
}

void UnitsTest::thePairFollowsTheCurrentUnits()
{
    const UnitsPair pair(10.0, 0.4);
    QCOMPARE(pair.GetActual(), 10.0);
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(pair.GetActual(), 0.4);
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
    QCOMPARE(pair.GetActual(), 10.0);
}

void UnitsTest::onlyAChangeOfUnitsNotifies()
{
    int changes = 0;
    Observer* const observer = UnitsController::GetInstance().Attach([&] { ++changes; });
    QVERIFY(UnitsController::GetCurrentUnits() == UnitsMM::GetInstance());
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
    QCOMPARE(changes, 0);
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(changes, 1);
    UnitsController::GetInstance().Detach(*observer);
}

void UnitsTest::limitsComeInBothUnits()
{
    QCOMPARE(UnitsController::GetMinPositive().GetMm(), 0.001);
    QCOMPARE(UnitsController::GetMinPositive().GetInch(), 0.0001);
    QCOMPARE(UnitsController::GetMaxPositive().GetMm(), 200000.0);
    QCOMPARE(UnitsController::GetMaxPositive().GetInch(), 8000.0);
    QCOMPARE(UnitsController::GetMinNegative().GetMm(), -200000.0);
    QCOMPARE(UnitsController::GetMinNegative().GetInch(), -8000.0);
}

void UnitsTest::theSuffixNotifiesOnAChange()
{
    SuffixController& suffix = SuffixController::GetInstance();
    int changes = 0;
    Observer* const observer = suffix.Attach([&] { ++changes; });
    QVERIFY(!suffix.IsInsideEditor());
    suffix.SetInsideEditor(false);
    QCOMPARE(changes, 0);
    suffix.SetInsideEditor(true);
    QVERIFY(suffix.IsInsideEditor());
    QCOMPARE(changes, 1);
    suffix.Detach(*observer);
}

OVK_TEST_CLASS(UnitsTest)

#include "units_test.moc"
