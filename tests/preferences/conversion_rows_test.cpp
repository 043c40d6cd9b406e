#include "preference_test_support.h"

#include <ovk/preferences/preference_conversion_p.h>
#include <vorsdk/units.h>

#include <QFile>
#include <QMap>

using namespace ovk;

namespace {

QVector<QStringList> Lines(const char* path)
{
    QVector<QStringList> lines;
    QFile file(QString::fromUtf8(path));
    if (file.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (!line.isEmpty())
                lines.append(QString::fromUtf8(line).split('|'));
        }
    }
    return lines;
}

PreferenceConverter Converter(const QString& name)
{
    using namespace preference_converters;
    static const QMap<QString, PreferenceConverter> s_converters{
        {"KeepText", KeepText},
        {"InvertBool", InvertBool},
        {"FloatToInt", FloatToInt},
        {"PairToStlUnits", PairToStlUnits},
        {"MmToStlUnits", MmToStlUnits},
        {"RgbaFloatsToColor", RgbaFloatsToColor},
        {"ColorRefToColor", ColorRefToColor},
        {"BoolToDigit", BoolToDigit},
        {"DigitToBool", DigitToBool},
        {"FloatToText", FloatToText}};
    return s_converters.value(name);
}

/// Texts that tell the converters apart.
const QStringList& Probes()
{
    static const QStringList s_probes{"true",        "false",
                                      "1",           "1.5",
                                      "-2.75",       "1.5 0.06",
                                      "0 0 0 0",     "0.1 0.2 0.3 0.5",
                                      "0 255 0 0 0", "a 305419896 b c d",
                                      "1234567",     "text"};
    return s_probes;
}

} // namespace

/// Every row of the history of names beside a table and results that were made without the library.
class ConversionRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MUserUnit::GetInstance().SetUnit(MUserUnit::utMillimetre); }
    void everyRow_data();
    void everyRow();
};

void ConversionRowsTest::everyRow_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<QStringList>("result");
    const QVector<QStringList> rows = Lines(OVK_CONVERSION_ROWS);
    const QVector<QStringList> results = Lines(OVK_CONVERSION_RESULTS);
    QCOMPARE(rows.size(), 280);
    QCOMPARE(results.size(), 280);
    for (int i = 0; i < rows.size(); ++i)
        QTest::newRow(qPrintable(QString("%1: %2").arg(i).arg(rows.at(i).at(2))))
            << i << rows.at(i) << results.at(i);
}

void ConversionRowsTest::everyRow()
{
    QFETCH(int, number);
    QFETCH(QStringList, row);
    QFETCH(QStringList, result);
    const PreferenceConversion& conversion = PreferenceConversions().at(size_t(number));
    QCOMPARE(conversion.oldPath, row.at(1));
    QCOMPARE(conversion.newPath, row.at(2));

    for (const MUserUnit::UNIT_TYPE unit : {MUserUnit::utMillimetre, MUserUnit::utInch}) {
        MUserUnit::GetInstance().SetUnit(unit);
        for (const QString& probe : Probes()) {
            QCOMPARE(conversion.converter(probe), Converter(row.at(3))(probe));

            QString path = row.at(1).toLower();
            QString value = probe;
            PreferencesController::GetInstance()->ConvertOldPreferencePathToNew(path, value);
            QCOMPARE(path, result.at(1));
            QCOMPARE(value, Converter(result.at(2))(probe));

            path = row.at(2).toLower();
            PreferenceConverter converter = DefaultConverter();
            MapPreferencePath(path, converter, PathDirection::NewToOld);
            QCOMPARE(path, result.at(3));
            QCOMPARE(converter(probe), Converter(result.at(4))(probe));
        }
    }
}

OVK_TEST_CLASS(ConversionRowsTest)

#include "conversion_rows_test.moc"
