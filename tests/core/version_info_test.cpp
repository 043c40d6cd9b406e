#include "tests/support/test_main.h"

#include <ovk/core/version_info.h>

using namespace ovk;

class VersionInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheMajorPartMakesAVersionValid();
    void textIsReadInFourParts_data();
    void textIsReadInFourParts();
    void theFirstDifferenceDecides_data();
    void theFirstDifferenceDecides();
    void partsAreSetAndRead();
};

void VersionInfoTest::onlyTheMajorPartMakesAVersionValid()
{
    QVERIFY(!VersionInfo().IsValid());
    QVERIFY(!VersionInfo(0, 5, 0, 0).IsValid());
    QVERIFY(VersionInfo(1, 0, 0, 0).IsValid());
    QVERIFY(VersionInfo(-1, 0, 0, 0).IsValid());
    QCOMPARE(VersionInfo().ToString(), QString("0.0.0.0"));
}

void VersionInfoTest::textIsReadInFourParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("four") << "1.2.3.4" << "1.2.3.4";
    QTest::newRow("three keep the value") << "1.2.3" << "9.8.7.6";
    QTest::newRow("five keep the value") << "1.2.3.4.5" << "9.8.7.6";
    QTest::newRow("empty keeps the value") << "" << "9.8.7.6";
    QTest::newRow("a folder's name keeps the value") << "backup" << "9.8.7.6";
    QTest::newRow("no number") << "1.2.3.x" << "1.2.3.0";
    QTest::newRow("an empty part") << "1..3.4" << "1.0.3.4";
    QTest::newRow("dots alone") << "..." << "0.0.0.0";
    QTest::newRow("negative") << "-1.2.3.4" << "-1.2.3.4";
    QTest::newRow("too large") << "99999999999.2.3.4" << "0.2.3.4";
}

void VersionInfoTest::textIsReadInFourParts()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    VersionInfo version(9, 8, 7, 6);
    version.FromString(text);
    QCOMPARE(version.ToString(), result);
}

void VersionInfoTest::theFirstDifferenceDecides_data()
{
    QTest::addColumn<QString>("less");
    QTest::addColumn<QString>("greater");
    QTest::newRow("major") << "1.99.99.99" << "2.0.0.0";
    QTest::newRow("minor") << "1.1.99.99" << "1.2.0.0";
    QTest::newRow("patch") << "1.1.1.99" << "1.1.2.0";
    QTest::newRow("build") << "1.1.1.9" << "1.1.1.10";
    QTest::newRow("signed") << "-1.0.0.0" << "0.0.0.0";
}

void VersionInfoTest::theFirstDifferenceDecides()
{
    QFETCH(QString, less);
    QFETCH(QString, greater);
    VersionInfo a, b;
    a.FromString(less);
    b.FromString(greater);
    QVERIFY(a < b);
    QVERIFY(b > a);
    QVERIFY(!(a > b));
    QVERIFY(!(b < a));
    QVERIFY(!(a == b));
    QVERIFY(a == a && !(a < a) && !(a > a));
}

void VersionInfoTest::partsAreSetAndRead()
{
    VersionInfo version;
    version.SetVersionInfo(1, 2, 3, 4);
    int parts[4] = {};
    version.GetVersionInfo(parts[0], parts[1], parts[2], parts[3]);
    QCOMPARE(parts[0], 1);
    QCOMPARE(parts[3], 4);
    VersionInfo read;
    read.FromString(version.ToString());
    QVERIFY(read == version);
}

OVK_TEST_CLASS(VersionInfoTest)

#include "version_info_test.moc"
