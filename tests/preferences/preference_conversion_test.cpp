#include "preference_test_support.h"

#include <ovk/preferences/preference_conversion_p.h>
#include <vorsdk/units.h>

using namespace ovk;
using namespace ovk_test;

class PreferenceConversionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { MUserUnit::GetInstance().SetUnit(MUserUnit::utMillimetre); }
    void theHistoryIsWhole();
    void everyConverterHasItsRows_data();
    void everyConverterHasItsRows();
    void valuesAreConverted_data();
    void valuesAreConverted();
    void pairsFollowTheUsersUnit_data();
    void pairsFollowTheUsersUnit();
    void oldPathsBecomeNew_data();
    void oldPathsBecomeNew();
    void newPathsBecomeOld_data();
    void newPathsBecomeOld();
    void whatMatchesNoRowStaysAsItIs();
    void everyRowMatchesAtTheEndOfItsOwnPath();
};

void PreferenceConversionTest::theHistoryIsWhole()
{
    const auto& rows = PreferenceConversions();
    QCOMPARE(int(rows.size()), 280);
    QCOMPARE(rows[0].oldPath, QString("preferences"));
    QCOMPARE(rows[0].newPath, QString("PreferencesRoot"));
    QCOMPARE(rows[186].oldPath, rows[187].oldPath);
    QCOMPARE(rows[187].oldPath, rows[188].oldPath);
    QCOMPARE(rows[220].newPath, rows[222].newPath);
    QCOMPARE(rows[20].oldPath, rows[23].oldPath);
    QCOMPARE(rows[209].newPath, QString("label/label_drw_trough"));
    QCOMPARE(rows[279].newPath, QString("MiniTarnix/mt_wta_colors_thinner_than"));
}

void PreferenceConversionTest::everyConverterHasItsRows_data()
{
    QTest::addColumn<QStringList>("probes");
    QTest::addColumn<QStringList>("results");
    QTest::addColumn<int>("rows");
    // Texts that tell the converters apart.
    const QStringList probes{"true", "1.5", "1 2", "1", "0 0 0 0", "0 1 0 0 0", "1234567"};
    const auto row = [&](const char* name, QString (*converter)(const QString&), int rows) {
        QStringList results;
        for (const QString& probe : probes)
            results << converter(probe);
        QTest::newRow(name) << probes << results << rows;
    };
    using namespace preference_converters;
    row("KeepText", KeepText, 73);
    row("InvertBool", InvertBool, 19);
    row("FloatToInt", FloatToInt, 18);
    row("PairToStlUnits", PairToStlUnits, 78);
    row("MmToStlUnits", MmToStlUnits, 1);
    row("RgbaFloatsToColor", RgbaFloatsToColor, 69);
    row("ColorRefToColor", ColorRefToColor, 5);
    row("BoolToDigit", BoolToDigit, 6);
    row("DigitToBool", DigitToBool, 1);
    row("FloatToText", FloatToText, 10);
}

void PreferenceConversionTest::everyConverterHasItsRows()
{
    QFETCH(QStringList, probes);
    QFETCH(QStringList, results);
    QFETCH(int, rows);
    int count = 0;
    for (const PreferenceConversion& conversion : PreferenceConversions()) {
        QStringList answers;
        for (const QString& probe : qAsConst(probes))
            answers << conversion.converter(probe);
        count += answers == results;
    }
    QCOMPARE(count, rows);
}

void PreferenceConversionTest::valuesAreConverted_data()
{
    QTest::addColumn<QString>("converter");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* converter, const char* text, const char* result) {
        QTest::addRow("%s of \"%s\"", converter, text) << QString(converter) << QString(text) << QString(result);
    };
    row("KeepText", "", "");
    row("KeepText", "any text", "any text");
    row("InvertBool", "true", "false");
    row("InvertBool", "false", "true");
    row("InvertBool", "", "true");
    row("InvertBool", "True", "true");
    row("FloatToInt", "1.9", "1");
    row("FloatToInt", "-1.9", "-1");
    row("FloatToInt", "no number", "0");
    row("FloatToInt", "", "0");
    row("FloatToInt", "1e20", "0");
    row("FloatToInt", "nan", "0");
    row("MmToStlUnits", "1.5", "15000");
    row("MmToStlUnits", "no number", "0");
    row("RgbaFloatsToColor", "1 0 0.5 1", "#ffff0080");
    row("RgbaFloatsToColor", "1 1 1 0.5", "#ffffffff");
    row("RgbaFloatsToColor", "0 0 0 0", "#ff000000");
    row("RgbaFloatsToColor", "1 0 0", "1 0 0");
    row("RgbaFloatsToColor", "1 0 0 x", "1 0 0 x");
    row("RgbaFloatsToColor", "1 0  0", "1 0  0");
    row("RgbaFloatsToColor", "nan 0 0 1", "nan 0 0 1");
    row("RgbaFloatsToColor", "0 0 0 2", "#ff000000");
    row("RgbaFloatsToColor", "2 -1 0.5 1", "#ffff0080");
    row("ColorRefToColor", "0 255 0 0 0", "#ff0000");
    row("ColorRefToColor", "0 4278190335 0 0 0", "#ffff0000");
    row("ColorRefToColor", "x 16711680 x x x", "#ff");
    row("ColorRefToColor", "0 0 0 0 0", "#0");
    row("ColorRefToColor", "0 -1 0 0 0", "0 -1 0 0 0");
    row("ColorRefToColor", "0 x 0 0 0", "0 x 0 0 0");
    row("ColorRefToColor", "255", "255");
    row("BoolToDigit", "true", "1");
    row("BoolToDigit", "1", "0");
    row("BoolToDigit", "", "0");
    row("DigitToBool", "1", "true");
    row("DigitToBool", "true", "false");
    row("DigitToBool", "", "false");
    row("FloatToText", "1.23456789", "1.23457");
    row("FloatToText", "45", "45");
    row("FloatToText", "45 degrees", "45 degrees");
    row("FloatToText", "", "");
}

void PreferenceConversionTest::valuesAreConverted()
{
    QFETCH(QString, converter);
    QFETCH(QString, text);
    QFETCH(QString, result);
    using namespace preference_converters;
    const QMap<QString, PreferenceConverter> converters{
        {"KeepText", KeepText},           {"InvertBool", InvertBool},
        {"FloatToInt", FloatToInt},       {"MmToStlUnits", MmToStlUnits},
        {"RgbaFloatsToColor", RgbaFloatsToColor}, {"ColorRefToColor", ColorRefToColor},
        {"BoolToDigit", BoolToDigit},     {"DigitToBool", DigitToBool},
        {"FloatToText", FloatToText}};
    QCOMPARE(converters.value(converter)(text), result);
}

void PreferenceConversionTest::pairsFollowTheUsersUnit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mm");
    QTest::addColumn<QString>("inch");
    QTest::newRow("a pair") << "10 0.5" << "100000" << "127000";
    QTest::newRow("one number") << "10" << "10" << "10";
    QTest::newRow("three numbers") << "1 2 3" << "1 2 3" << "1 2 3";
    QTest::newRow("two blanks") << "10  0.5" << "10  0.5" << "10  0.5";
    QTest::newRow("no numbers") << "a b" << "0" << "0";
    QTest::newRow("a blank alone") << " " << "0" << "0";
    QTest::newRow("negative") << "-10 -0.5" << "-100000" << "-127000";
    QTest::newRow("empty") << "" << "" << "";
}

void PreferenceConversionTest::pairsFollowTheUsersUnit()
{
    QFETCH(QString, text);
    QFETCH(QString, mm);
    QFETCH(QString, inch);
    QCOMPARE(preference_converters::PairToStlUnits(text), mm);
    MUserUnit::GetInstance().SetUnit(MUserUnit::utInch);
    QCOMPARE(preference_converters::PairToStlUnits(text), inch);
}

void PreferenceConversionTest::oldPathsBecomeNew_data()
{
    QTest::addColumn<QString>("oldPath");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("newPath");
    QTest::addColumn<QString>("newValue");
    QTest::newRow("the root") << "preferences/general/x" << "v" << "preferencesroot/general/x" << "v";
    QTest::newRow("a name and its value")
        << "preferences/general/warn_about_bad_edges" << "true"
        << "preferencesroot/general/dont_warn_about_bad_edges" << "false";
    QTest::newRow("a run of steps in the middle")
        << "preferences/visualisation/renderer/part_analysis/x" << "v"
        << "preferencesroot/features/part_analysis/x" << "v";
    QTest::newRow("the tail of a longer word") << "preferences/my_undo_file_size" << "3.7"
                                               << "preferencesroot/my_undo_file_size" << "3";
    QTest::newRow("the middle of a longer word") << "preferences/my_snapping_x/y" << "v"
                                                 << "preferencesroot/my_snapping_x/y" << "v";
    QTest::newRow("the start of a longer word") << "preferences/snappings/y" << "v"
                                                << "preferencesroot/snappings/y" << "v";
    QTest::newRow("a misspelling") << "dublicate_part/spacing_value_x" << "1 2"
                                   << "dlg.duplicate/spacing_x" << "10000";
    QTest::newRow("rescale x") << "rescale_part/center_x" << "1 2" << "rescale_part/center_x" << "10000";
    QTest::newRow("rescale y") << "rescale_part/center_y" << "1 2" << "rescale_part/center_x" << "10000";
    QTest::newRow("rescale z") << "rescale_part/center_z" << "1 2" << "rescale_part/center_x" << "10000";
    QTest::newRow("the row alone counts") << "support/skipnone" << "1" << "support/skipnone" << "true";
    QTest::newRow("translate x") << "advanced_translate/to_x" << "1 2"
                                 << "qt.dlg.translate/advanced/to_x" << "10000";
    QTest::newRow("the earlier of two rows") << "dialog_settings/save_rename/ask" << "true"
                                             << "features/move_part_points/dont_ask" << "false";
}

void PreferenceConversionTest::oldPathsBecomeNew()
{
    QFETCH(QString, oldPath);
    QFETCH(QString, value);
    QFETCH(QString, newPath);
    QFETCH(QString, newValue);
    PreferencesController::GetInstance()->ConvertOldPreferencePathToNew(oldPath, value);
    QCOMPARE(oldPath, newPath);
    QCOMPARE(value, newValue);
}

void PreferenceConversionTest::newPathsBecomeOld_data()
{
    QTest::addColumn<QString>("newPath");
    QTest::addColumn<QString>("oldPath");
    QTest::newRow("the library's own") << "preferencesroot/ui/suffixineditor" << "preferences/ui/suffixineditor";
    QTest::newRow("a name") << "preferencesroot/general/dont_warn_about_bad_edges"
                            << "preferences/general/warn_about_bad_edges";
    QTest::newRow("rescale is taken on by the next row") << "rescale_part/center_x" << "rescale_part/center_y";
    QTest::newRow("translate y") << "qt.dlg.translate/advanced/to_y" << "advanced_translate/to_x";
    QTest::newRow("translate z") << "qt.dlg.translate/advanced/to_z" << "advanced_translate/to_x";
    QTest::newRow("hollow part") << "hollowpart/other" << "hollow_part/other";
}

void PreferenceConversionTest::newPathsBecomeOld()
{
    QFETCH(QString, newPath);
    QFETCH(QString, oldPath);
    PreferenceConverter converter = DefaultConverter();
    MapPreferencePath(newPath, converter, PathDirection::NewToOld);
    QCOMPARE(newPath, oldPath);
}

void PreferenceConversionTest::whatMatchesNoRowStaysAsItIs()
{
    QString path = "nothing/of/this";
    QString value = "v";
    PreferencesController::GetInstance()->ConvertOldPreferencePathToNew(path, value);
    QCOMPARE(path, QString("nothing/of/this"));
    QCOMPARE(value, QString("v"));
    path.clear();
    value.clear();
    PreferencesController::GetInstance()->ConvertOldPreferencePathToNew(path, value);
    QVERIFY(path.isEmpty() && value.isEmpty());
}

void PreferenceConversionTest::everyRowMatchesAtTheEndOfItsOwnPath()
{
    // One row at a time, by the rules alone: the rest of the table must not be in its way.
    for (const PreferenceConversion& row : PreferenceConversions()) {
        QVERIFY(!row.oldPath.isEmpty() && !row.newPath.isEmpty());
        QVERIFY(!row.oldPath.startsWith('/') && !row.newPath.startsWith('/'));
        QVERIFY(!row.oldPath.endsWith('/') && !row.newPath.endsWith('/'));
        QVERIFY(row.converter);
    }
}

OVK_TEST_CLASS(PreferenceConversionTest)

#include "preference_conversion_test.moc"
