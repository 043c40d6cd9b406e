#include "tests/support/test_main.h"

#include <ovk/units/number_input_p.h>

using namespace ovk;

namespace {

constexpr auto Invalid = int(QValidator::Invalid);
constexpr auto Intermediate = int(QValidator::Intermediate);
constexpr auto Acceptable = int(QValidator::Acceptable);

NumberInputRules Rules(double minimum, double maximum, int decimals)
{
    NumberInputRules rules;
    rules.minimum = minimum;
    rules.maximum = maximum;
    rules.decimals = decimals;
    rules.locale = QLocale(QLocale::English, QLocale::UnitedStates);
    return rules;
}

} // namespace

Q_DECLARE_METATYPE(ovk::NumberInputRules)

class NumberInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eitherSeparatorIsTheDecimalPoint();
    void inputIsJudged_data();
    void inputIsJudged();
    void acceptedInputGetsItsFinalForm_data();
    void acceptedInputGetsItsFinalForm();
    void aPointTypedBeforeThePointIsAStepOverIt();
    void theCursorNeverStandsBehindTheText();
    void germanNumbers_data();
    void germanNumbers();
    void aSmallIntegerIsEnlarged_data();
    void aSmallIntegerIsEnlarged();
};

void NumberInputTest::eitherSeparatorIsTheDecimalPoint()
{
    QString text = "1.5,2";
    UnifyDecimalPoint(text, ',');
    QCOMPARE(text, QString("1,5,2"));
    text = "1.5,2";
    UnifyDecimalPoint(text, '.');
    QCOMPARE(text, QString("1.5.2"));
}

void NumberInputTest::inputIsJudged_data()
{
    QTest::addColumn<NumberInputRules>("rules");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("tip");
    const NumberInputRules wide = Rules(-200000.0, 200000.0, 3);
    const NumberInputRules positive = Rules(10.0, 500.0, 2);
    const NumberInputRules whole = Rules(0.0, 100.0, 0);
    const NumberInputRules fixed = Rules(5.0, 5.0, 2);
    const NumberInputRules negative = Rules(-10.0, -1.0, 2);
    const auto row = [](const char* name, const NumberInputRules& rules, const char* text, int state, bool tip = true) {
        QTest::newRow(name) << rules << QString(text) << state << tip;
    };
    row("empty", wide, "", Intermediate);
    row("blanks alone", wide, "   ", Intermediate);
    row("empty where one number is allowed", fixed, "", Invalid);
    row("plus", wide, "+", Intermediate);
    row("minus", wide, "-", Intermediate);
    row("minus where all is positive", positive, "-", Invalid);
    row("plus where all is negative", negative, "+", Invalid);
    row("minus where zero is the least", whole, "-", Intermediate);
    row("a point", wide, ".", Intermediate, false);
    row("a point without decimals", whole, ".", Invalid, false);
    row("minus point", wide, "-.", Intermediate);
    row("plus point", wide, "+.", Intermediate);
    row("minus point where all is positive", positive, "-.", Invalid);
    row("a group separator first", wide, ",5", Invalid);
    row("a number", wide, "12.5", Acceptable);
    row("the minimum", positive, "10", Acceptable);
    row("the maximum", positive, "500", Acceptable);
    row("a point without decimals behind a digit", whole, "5.", Invalid, false);
    row("a blank behind the point", wide, "1. 5", Invalid);
    row("a group separator behind the point", wide, "1.5,0", Invalid);
    row("too many digits are cut", wide, "1.23456", Acceptable);
    row("two group separators at the end", wide, "1,,", Invalid);
    row("a blank inside", wide, "1 5", Invalid);
    row("007", wide, "007", Invalid);
    row("00", wide, "00", Invalid);
    row("-00.5", wide, "-00.5", Invalid);
    row("+00", wide, "+00", Invalid);
    row("0.07", wide, "0.07", Acceptable);
    row("0", wide, "0", Acceptable);
    row("-0.5", wide, "-0.5", Acceptable);
    row("100", wide, "100", Acceptable);
    row("1,000", wide, "1,000", Acceptable);
    row("groups in wrong places are read", wide, "1,00", Acceptable);
    row("groups where no number has them", Rules(0.0, 999.0, 2), "1,0", Invalid);
    row("two group separators inside", wide, "1,,000", Invalid);
    row("words", wide, "abc", Invalid);
    row("two signs", wide, "--5", Invalid);
    row("two points", wide, "1.2.3", Invalid);
    row("too small so far", positive, "5", Intermediate);
    row("too small so far, with a point", positive, "5.", Intermediate);
    row("too small so far, with one digit", positive, "5.1", Intermediate);
    row("too small, and no digit can help", positive, "5.12", Invalid);
    row("too large", positive, "501", Invalid);
    row("negative where all is positive", positive, "-5", Invalid);
    row("not yet negative enough", negative, "-0.5", Intermediate);
    row("positive where all is negative", negative, "5", Invalid);
    row("too small without decimals", Rules(10.0, 100.0, 0), "5", Invalid);
    row("another number than the only one", fixed, "4", Invalid);
    row("the only number", fixed, "5", Acceptable);
    row("infinity", wide, "inf", Invalid);
}

void NumberInputTest::inputIsJudged()
{
    QFETCH(NumberInputRules, rules);
    QFETCH(QString, text);
    QFETCH(int, state);
    QFETCH(bool, tip);
    int pos = text.size();
    const NumberInput result = InterpretNumberInput(rules, text, pos);
    QCOMPARE(int(result.state), state);
    QCOMPARE(result.show_tip, tip);
    QVERIFY(!result.enlarged);
    QVERIFY(pos <= text.size());
}

void NumberInputTest::acceptedInputGetsItsFinalForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("showSuffix");
    QTest::addColumn<QString>("result");
    QTest::newRow("plain") << "1.5" << false << "~1.5";
    QTest::newRow("surplus digits are cut") << "1.23456" << false << "~1.234";
    QTest::newRow("prefix and suffix come off") << "~1.5 mm" << false << "~1.5";
    QTest::newRow("the suffix comes back") << "~1.5 mm" << true << "~1.5mm";
    QTest::newRow("the suffix is added") << "1.5" << true << "~1.5mm";
    QTest::newRow("the shown form stays") << "1.5 [mm]" << true << "~1.5 [mm]";
    QTest::newRow("the shown form comes off") << "1.5 [mm]" << false << "~1.5";
    QTest::newRow("the suffix alone is stripped") << "1.5mm" << true << "~1.5mm";
    QTest::newRow("blanks come off") << "  1.5  " << false << "~1.5";
    QTest::newRow("a point at the end stays") << "1." << false << "~1.";
    QTest::newRow("groups stay") << "1,000.5" << false << "~1,000.5";
}

void NumberInputTest::acceptedInputGetsItsFinalForm()
{
    QFETCH(QString, text);
    QFETCH(bool, showSuffix);
    QFETCH(QString, result);
    NumberInputRules rules = Rules(-200000.0, 200000.0, 3);
    rules.prefix = "~";
    rules.shown_suffix = " [mm]";
    rules.suffix = "mm";
    rules.show_suffix = showSuffix;
    int pos = text.size();
    QCOMPARE(int(InterpretNumberInput(rules, text, pos).state), Acceptable);
    QCOMPARE(text, result);
}

void NumberInputTest::aPointTypedBeforeThePointIsAStepOverIt()
{
    const NumberInputRules rules = Rules(0.0, 100.0, 2);
    QString text = "1..5";
    int pos = 2;
    QCOMPARE(int(InterpretNumberInput(rules, text, pos).state), Acceptable);
    QCOMPARE(text, QString("1.5"));
    QCOMPARE(pos, 2);
    text = "1..5";
    pos = 3; // behind the second point: it was not typed there
    QCOMPARE(int(InterpretNumberInput(rules, text, pos).state), Invalid);
}

void NumberInputTest::theCursorNeverStandsBehindTheText()
{
    NumberInputRules rules = Rules(0.0, 100.0, 2);
    rules.suffix = "mm";
    rules.show_suffix = true;
    QString text = "1.2345";
    int pos = 6;
    InterpretNumberInput(rules, text, pos);
    QCOMPARE(text, QString("1.23mm"));
    QCOMPARE(pos, 4);
}

void NumberInputTest::germanNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("result");
    QTest::newRow("a comma") << "1,2345" << Acceptable << "1,23";
    QTest::newRow("a group") << "1.000" << Acceptable << "1.000";
    QTest::newRow("a group first") << ".5" << Invalid << ".5";
    QTest::newRow("a comma alone") << "," << Intermediate << ",";
    QTest::newRow("a group behind the comma") << "1,0.0" << Invalid << "1,0.0";
}

void NumberInputTest::germanNumbers()
{
    QFETCH(QString, text);
    QFETCH(int, state);
    QFETCH(QString, result);
    NumberInputRules rules = Rules(0.0, 5000.0, 2);
    rules.locale = QLocale(QLocale::German, QLocale::Germany);
    int pos = text.size();
    QCOMPARE(int(InterpretNumberInput(rules, text, pos).state), state);
    QCOMPARE(text, result);
}

void NumberInputTest::aSmallIntegerIsEnlarged_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("result");
    QTest::newRow("once and again") << 0 << "5" << Acceptable << "500";
    QTest::newRow("once") << 0 << "42" << Acceptable << "420";
    QTest::newRow("with decimals it is only incomplete") << 2 << "5" << Intermediate << "5";
    QTest::newRow("zero stays too small") << 0 << "0" << Invalid << "0";
    QTest::newRow("negative numbers stay too small") << 0 << "-5" << Invalid << "-5";
    QTest::newRow("large enough") << 0 << "123" << Acceptable << "123";
}

void NumberInputTest::aSmallIntegerIsEnlarged()
{
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QFETCH(int, state);
    QFETCH(QString, result);
    NumberInputRules rules = Rules(100.0, 10000.0, decimals);
    rules.smart_mode = true;
    int pos = text.size();
    const QString typed = text;
    const NumberInput input = InterpretNumberInput(rules, text, pos);
    QCOMPARE(int(input.state), state);
    QCOMPARE(text, result);
    QCOMPARE(input.enlarged, text != typed);
    if (input.enlarged)
        QCOMPARE(input.number, result.toDouble());
}

OVK_TEST_CLASS(NumberInputTest)

#include "number_input_test.moc"
