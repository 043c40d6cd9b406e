#include "tests/support/test_main.h"

#include <ovk/core/convert.h>

#include <cmath>
#include <limits>
#include <random>

using namespace ovk;

class ConvertTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textTypesBecomeText();
    void onlyTheExactWordIsTrue_data();
    void onlyTheExactWordIsTrue();
    void coloursBecomeText_data();
    void coloursBecomeText();
    void textBecomesColours_data();
    void textBecomesColours();
    void mapsBecomeTextAndBack_data();
    void mapsBecomeTextAndBack();
    void brokenMapsEndAtTheEndOfTheText_data();
    void brokenMapsEndAtTheEndOfTheText();
    void fontsSurvive();
    void aTextThatIsNoFontIsTheDefaultFont_data();
    void aTextThatIsNoFontIsTheDefaultFont();
    void numbersBecomeText();
    void textBecomesNumbers_data();
    void textBecomesNumbers();
    void plainNumbersAreReadToTheLastBit();
    void numbersBecomeNumbers();
    void numbersThatDoNotFitAreZero();
};

void ConvertTest::textTypesBecomeText()
{
    const QString text = QString::fromUtf8("gr\xc3\xb6\xc3\x9f" "e");
    QCOMPARE((convert<const char*, QString>("gr\xc3\xb6\xc3\x9f" "e")), text);
    QCOMPARE((convert<const char*, QString>(nullptr)), QString());
    QCOMPARE((convert<const wchar_t*, QString>(text.toStdWString().c_str())), text);
    QCOMPARE((convert<const wchar_t*, QString>(nullptr)), QString());
    QCOMPARE((convert<std::string, QString>(text.toStdString())), text);
    QCOMPARE((convert<std::wstring, QString>(text.toStdWString())), text);
    QVERIFY((convert<QString, std::wstring>(text) == text.toStdWString()));
    QCOMPARE((convert<QString, QString>(text)), text);
}

void ConvertTest::onlyTheExactWordIsTrue_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << "true" << true;
    QTest::newRow("capital") << "True" << false;
    QTest::newRow("upper case") << "TRUE" << false;
    QTest::newRow("false") << "false" << false;
    QTest::newRow("digit") << "1" << false;
    QTest::newRow("blank behind") << "true " << false;
    QTest::newRow("empty") << "" << false;
}

void ConvertTest::onlyTheExactWordIsTrue()
{
    QFETCH(QString, text);
    QFETCH(bool, value);
    QCOMPARE((convert<QString, bool>(text)), value);
    QCOMPARE((convert<bool, QString>(value)), value ? QString("true") : QString("false"));
}

void ConvertTest::coloursBecomeText_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("invalid") << QColor() << "default";
    QTest::newRow("black") << QColor(0, 0, 0) << "#ff000000";
    QTest::newRow("lower case digits") << QColor(0xab, 0xcd, 0xef) << "#ffabcdef";
    QTest::newRow("alpha is lost") << QColor(1, 2, 3, 4) << "#ff010203";
}

void ConvertTest::coloursBecomeText()
{
    QFETCH(QColor, color);
    QFETCH(QString, text);
    QCOMPARE((convert<QColor, QString>(color)), text);
}

void ConvertTest::textBecomesColours_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("default") << "default" << QColor();
    QTest::newRow("Default is a valid black") << "Default" << QColor(0, 0, 0);
    QTest::newRow("eight digits") << "#ffabcdef" << QColor(0xab, 0xcd, 0xef);
    QTest::newRow("alpha is not read") << "#10abcdef" << QColor(0xab, 0xcd, 0xef);
    QTest::newRow("six digits") << "#ABCDEF" << QColor(0xab, 0xcd, 0xef);
    QTest::newRow("any first character") << "xabcdef" << QColor(0xab, 0xcd, 0xef);
    QTest::newRow("too many digits") << "#1ffabcdef" << QColor(0, 0, 0);
    QTest::newRow("empty") << "" << QColor(0, 0, 0);
    QTest::newRow("one character") << "#" << QColor(0, 0, 0);
}

void ConvertTest::textBecomesColours()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    const QColor result = convert<QString, QColor>(text);
    QCOMPARE(result.isValid(), color.isValid());
    QCOMPARE(result, color);
}

void ConvertTest::mapsBecomeTextAndBack_data()
{
    QTest::addColumn<StringMap>("map");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << StringMap() << "";
    QTest::newRow("key order") << StringMap{{"b", "2"}, {"a", "1"}} << "a,1;b,2;";
    QTest::newRow("empty value") << StringMap{{"a", ""}} << "a,;";
}

void ConvertTest::mapsBecomeTextAndBack()
{
    QFETCH(StringMap, map);
    QFETCH(QString, text);
    QCOMPARE((convert<StringMap, QString>(map)), text);
    QCOMPARE((convert<QString, StringMap>(text)), map);
}

void ConvertTest::brokenMapsEndAtTheEndOfTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<StringMap>("map");
    QTest::newRow("last one wins") << "a,1;a,2;" << StringMap{{"a", "2"}};
    QTest::newRow("a character behind the end") << "a,1;x" << StringMap{{"a", "1"}};
    QTest::newRow("no closing separator") << "a,1;b,2" << StringMap{{"a", "1"}, {"b", "2"}};
    QTest::newRow("no separator at all") << "a,1" << StringMap{{"a", "1"}};
    QTest::newRow("one character") << ";" << StringMap();
    QTest::newRow("no comma") << "ab;" << StringMap{{"ab;", "ab"}};
    QTest::newRow("neither") << "ab" << StringMap{{"ab", "ab"}};
}

void ConvertTest::brokenMapsEndAtTheEndOfTheText()
{
    QFETCH(QString, text);
    QFETCH(StringMap, map);
    QCOMPARE((convert<QString, StringMap>(text)), map);
}

void ConvertTest::fontsSurvive()
{
    QFont font("Courier", 13);
    font.setBold(true);
    font.setItalic(true);
    QCOMPARE((convert<QFont, QString>(font)), font.toString());
    QCOMPARE((convert<QString, QFont>(font.toString())), font);
}

void ConvertTest::aTextThatIsNoFontIsTheDefaultFont_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("commas") << ",,,";
    QTest::newRow("five fields") << "Courier,1,2,3,4";
    QTest::newRow("twelve fields") << "Courier,1,2,3,4,5,6,7,8,9,10,11";
    QTest::newRow("no family") << ",12";
}

void ConvertTest::aTextThatIsNoFontIsTheDefaultFont()
{
    QFETCH(QString, text);
    QCOMPARE((convert<QString, QFont>(text)), QFont()); // and no warning, which would fail this test
}

void ConvertTest::numbersBecomeText()
{
    QCOMPARE((convert<int, QString>(-42)), QString("-42"));
    QCOMPARE((convert<long, QString>(42L)), QString("42"));
    QCOMPARE((convert<long long, QString>(std::numeric_limits<long long>::min())), QString("-9223372036854775808"));
    QCOMPARE((convert<double, QString>(0.1 + 0.2)), QString("0.3"));
    QCOMPARE((convert<double, QString>(1234567.0)), QString("1.23457e+06"));
    QCOMPARE((convert<float, QString>(0.5f)), QString("0.5"));
}

void ConvertTest::textBecomesNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::addColumn<double>("real");
    QTest::newRow("plain") << "12" << 12 << 12.0;
    QTest::newRow("negative") << "-3" << -3 << -3.0;
    QTest::newRow("real") << "1.5" << 0 << 1.5;
    QTest::newRow("comma") << "1,5" << 0 << 0.0;
    QTest::newRow("hexadecimal") << "0x10" << 0 << 0.0;
    QTest::newRow("empty") << "" << 0 << 0.0;
    QTest::newRow("words") << "twelve" << 0 << 0.0;
}

void ConvertTest::textBecomesNumbers()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    QFETCH(double, real);
    QCOMPARE((convert<QString, int>(text)), number);
    QCOMPARE((convert<QString, long>(text)), long(number));
    QCOMPARE((convert<QString, long long>(text)), static_cast<long long>(number));
    QCOMPARE((convert<QString, double>(text)), real);
    QCOMPARE((convert<QString, float>(text)), float(real));
}

void ConvertTest::plainNumbersAreReadToTheLastBit()
{
    // The short way for plain numbers beside the one of Qt.
    QStringList texts{"0",    "-0",  "0.0", "-0.0", "00012.50", "1.",  ".5",  "-.5", "-",       ".",
                      "",     " 1",  "1 ",  "+1",   "1e3",      "1.5e-3", "1..2", "1-2", "--1",   "inf",
                      "-inf", "nan", "1,5", "0.1",  "0.3",      "123456789012345", "1234567890123456",
                      "0.000000000000001", "0.0000000000000001", "999999999999999", "9007199254740993",
                      QString::fromUtf8("\u0661"), "0x10", "1.7976931348623157e308"};
    constexpr unsigned Seed = 20261121;
    qInfo("seed %u", Seed);
    std::mt19937 random(Seed);
    for (int i = 0; i < 20000; ++i) {
        const int digits = 1 + int(random() % 18);
        QString text = random() % 3 == 0 ? "-" : "";
        const int point = int(random() % 20);
        for (int k = 0; k < digits; ++k) {
            if (k == point)
                text += '.';
            text += QChar('0' + int(random() % 10));
        }
        texts.append(text);
    }
    for (const QString& text : texts) {
        const double quick = convert<QString, double>(text);
        const double slow = text.toDouble();
        if (std::isnan(slow)) {
            QVERIFY(std::isnan(quick));
            continue;
        }
        QVERIFY2(quick == slow && std::signbit(quick) == std::signbit(slow), qPrintable(text));
    }
}

void ConvertTest::numbersBecomeNumbers()
{
    QCOMPARE((convert<bool, int>(true)), 1);
    QCOMPARE((convert<bool, int>(false)), 0);
    QCOMPARE((convert<int, bool>(-1)), true);
    QCOMPARE((convert<int, bool>(0)), false);
    QCOMPARE((convert<int, int>(-5)), -5);
    QCOMPARE((convert<int, long>(-5)), -5L);
    QCOMPARE((convert<long, int>(-5L)), -5);
    QCOMPARE((convert<long, long>(-5L)), -5L);
    QCOMPARE((convert<unsigned short, int>(65535)), 65535);
    QCOMPARE(int(convert<int, unsigned short>(-1)), 65535);
    QCOMPARE(int(convert<int, unsigned short>(0x12345)), 0x2345);
    QCOMPARE((convert<double, double>(1.25)), 1.25);
    QCOMPARE((convert<float, double>(1.25f)), 1.25);
    QCOMPARE((convert<double, float>(1.25)), 1.25f);
    QCOMPARE((convert<double, int>(2.9)), 2);
    QCOMPARE((convert<double, int>(-2.9)), -2);
    QCOMPARE((convert<double, long>(-2.9)), -2L);
    QCOMPARE((convert<int, double>(7)), 7.0);
    QCOMPARE((convert<long, double>(7L)), 7.0);
    QCOMPARE((convert<unsigned short, double>(7)), 7.0);
    QCOMPARE(int(convert<double, unsigned short>(65537.9)), 1);
    QCOMPARE(int(convert<double, unsigned short>(-1.5)), 65535);
    QCOMPARE((convert<double, int>(2147483647.5)), 2147483647);
    QCOMPARE((convert<double, int>(-2147483648.5)), std::numeric_limits<int>::min());
}

void ConvertTest::numbersThatDoNotFitAreZero()
{
    QCOMPARE((convert<double, int>(1e10)), 0);
    QCOMPARE((convert<double, int>(-1e10)), 0);
    QCOMPARE((convert<double, int>(std::numeric_limits<double>::quiet_NaN())), 0);
    QCOMPARE((convert<double, long>(1e30)), 0L);
    QCOMPARE(int(convert<double, unsigned short>(std::numeric_limits<double>::infinity())), 0);
}

OVK_TEST_CLASS(ConvertTest)

#include "convert_test.moc"
#include <cmath>
#include <random>
