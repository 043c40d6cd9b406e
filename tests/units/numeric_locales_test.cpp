#include "tests/support/test_main.h"

#include <ovk/preferences.h>
#include <ovk/units.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QToolTip>

using namespace ovk;

Q_DECLARE_METATYPE(QLocale)

namespace {

QLineEdit* LineOf(QAbstractSpinBox& editor)
{
    return editor.findChild<QLineEdit*>();
}

/// What becomes of "1.5" or "1,5" on its way in: the system decides which keys are the point.
QString OnThisSystem(QString text)
{
    const QChar point = QLocale::system().decimalPoint();
    return text.replace(point == '.' ? ',' : '.', point);
}

void SetUp(QDoubleSpinBox& editor, const QLocale& locale)
{
    editor.setLocale(locale);
    editor.setRange(-5000.0, 5000.0);
    editor.setDecimals(2);
    editor.setValue(7.0);
    editor.selectAll();
}

void Type(EditDblSuffix& editor, const QString& text)
{
    editor.spinBox()->selectAll();
    for (const QChar c : text) // key events for letters of any script
        QApplication::postEvent(&editor, new QKeyEvent(QEvent::KeyPress, 0, Qt::NoModifier, QString(c)));
    QApplication::sendPostedEvents();
}

void Paste(EditDblSuffix& editor, const QString& text)
{
    editor.spinBox()->selectAll();
    QApplication::clipboard()->setText(text);
    // Not interpretText(): that would read what the editor shows by the rules for what is typed,
    // which takes the 7,00 of a German editor for 700 on a system that writes 7.00.
    LineOf(editor)->paste();
}

} // namespace

/// Editors in the languages of the world, on systems of others; the class is run on several
/// systems. And what programs for input and for the blind see of an editor: what they see of Qt's.
class NumericLocalesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void separators_data();
    void separators();
    void whatTheEditorShowsIsTakenBack_data();
    void whatTheEditorShowsIsTakenBack();
    void groupsArePasted_data();
    void groupsArePasted();
    void digitsOfTheLanguageAreTaken();
    void digitsOfOtherLanguagesAreRefused();
    void inputMethodsSeeASpinBox();
    void inputMethodsCommit();
    void textInTheMakingIsNoValue();
    void accessibilitySeesASpinBox();
    void accessibilityChangesTheValue();

private:
    static void Locales();
};

void NumericLocalesTest::Locales()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
    QTest::newRow("French") << QLocale(QLocale::French, QLocale::France);
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
    QTest::newRow("Hindi") << QLocale(QLocale::Hindi, QLocale::India);
    QTest::newRow("the system's") << QLocale::system();
}

void NumericLocalesTest::initTestCase()
{
    qInfo("system %s, point %s", qPrintable(QLocale::system().name()), qPrintable(QString(QLocale::system().decimalPoint())));
}

void NumericLocalesTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void NumericLocalesTest::separators_data()
{
    Locales();
}

void NumericLocalesTest::separators()
{
    QFETCH(QLocale, locale);
    EditDblSuffix editor;
    SetUp(editor, locale);
    for (const QString text : {"1.5", "1,5"}) {
        const QString arrived = OnThisSystem(text);
        const QChar separator = arrived.at(1);
        bool readable = false;
        const double number = locale.toDouble(arrived, &readable);
        const bool is_group = separator == locale.groupSeparator();
        const bool is_point = separator == locale.decimalPoint();
        QCOMPARE(readable, is_point);
        // A separator that the editor's language does not have is refused as it is typed, and one
        // of groups is passed over: the digits stay.
        Type(editor, text);
        QCOMPARE(editor.value(), is_point ? number : 15.0);
        // A text that is pasted is taken whole or not at all.
        editor.setValue(7.0);
        Paste(editor, text);
        QCOMPARE(editor.value(), is_point ? number : is_group ? 15.0 : 7.0);
    }
}

void NumericLocalesTest::whatTheEditorShowsIsTakenBack_data()
{
    Locales();
}

void NumericLocalesTest::whatTheEditorShowsIsTakenBack()
{
    QFETCH(QLocale, locale);
    if (locale.decimalPoint() != QLocale::system().decimalPoint())
        return; // such an editor is for showing
    for (const double value : {0.0, 1.5, -1.5, 1234.25, -1234.25, 0.07}) {
        EditDblSuffix editor;
        SetUp(editor, locale);
        editor.setValue(value);
        const QString shown = LineOf(editor)->text();
        editor.setValue(7.0);
        Type(editor, shown);
        QCOMPARE(editor.value(), value);
        editor.setValue(7.0);
        Paste(editor, shown);
        QCOMPARE(editor.value(), value);
        QCOMPARE(editor.valueFromText(editor.textFromValue(value)), value);
    }
}

void NumericLocalesTest::groupsArePasted_data()
{
    Locales();
}

void NumericLocalesTest::groupsArePasted()
{
    QFETCH(QLocale, locale);
    EditDblSuffix editor;
    SetUp(editor, locale);
    const QString grouped = locale.toString(1234.5, 'f', 2);
    // Where the group separator is the other key of the keypad it becomes the point, too.
    bool readable = false;
    double number = locale.toDouble(OnThisSystem(grouped), &readable);
    if (!readable) {
        QString ungrouped = OnThisSystem(grouped);
        number = locale.toDouble(ungrouped.remove(locale.groupSeparator()), &readable);
    }
    Paste(editor, grouped);
    QCOMPARE(editor.value(), readable && number <= 5000.0 ? number : 7.0);
    if (locale == QLocale(QLocale::French, QLocale::France) && QLocale::system().decimalPoint() == ',')
        QCOMPARE(editor.value(), 1234.5);
    if (locale == QLocale(QLocale::Arabic, QLocale::Egypt) && QLocale::system().decimalPoint() != '.')
        QCOMPARE(editor.value(), 1234.5);
}

void NumericLocalesTest::digitsOfTheLanguageAreTaken()
{
    const QLocale arabic(QLocale::Arabic, QLocale::Egypt);
    EditDblSuffix editor;
    SetUp(editor, arabic);
    const QString digits = QString(QChar(0x0661)) + QChar(0x0662) + arabic.decimalPoint() + QChar(0x0665);
    Type(editor, digits);
    QCOMPARE(editor.value(), 12.5);
    editor.setValue(7.0);
    Paste(editor, digits);
    QCOMPARE(editor.value(), 12.5);
}

void NumericLocalesTest::digitsOfOtherLanguagesAreRefused()
{
    EditDblSuffix editor;
    SetUp(editor, QLocale(QLocale::English, QLocale::UnitedStates));
    Type(editor, QString("4") + QChar(0x0661) + QChar(0x0967) + "2");
    QCOMPARE(editor.value(), 42.0);
    Paste(editor, QString(QChar(0x0661)));
    QCOMPARE(editor.value(), 42.0);
}

void NumericLocalesTest::inputMethodsSeeASpinBox()
{
    EditDblSuffix editor;
    QDoubleSpinBox plain;
    for (QDoubleSpinBox* box : {editor.spinBox(), &plain}) {
        box->resize(120, 30);
        SetUp(*box, QLocale::system());
        LineOf(*box)->setCursorPosition(2);
    }
    QCOMPARE(editor.testAttribute(Qt::WA_InputMethodEnabled), plain.testAttribute(Qt::WA_InputMethodEnabled));
    QCOMPARE(editor.inputMethodHints(), plain.inputMethodHints());
    QCOMPARE(LineOf(editor)->inputMethodHints(), LineOf(plain)->inputMethodHints());
    for (const Qt::InputMethodQuery query :
         {Qt::ImEnabled, Qt::ImCursorRectangle, Qt::ImCursorPosition, Qt::ImSurroundingText, Qt::ImCurrentSelection,
          Qt::ImMaximumTextLength, Qt::ImAnchorPosition, Qt::ImHints, Qt::ImTextBeforeCursor, Qt::ImTextAfterCursor})
        QCOMPARE(editor.inputMethodQuery(query), plain.inputMethodQuery(query));
}

void NumericLocalesTest::inputMethodsCommit()
{
    EditDblSuffix editor;
    SetUp(editor, QLocale::system());
    QInputMethodEvent commit;
    commit.setCommitString("12");
    QApplication::sendEvent(LineOf(editor), &commit);
    QCOMPARE(editor.value(), 12.0);
    QInputMethodEvent rest;
    rest.setCommitString(".5");
    QApplication::sendEvent(LineOf(editor), &rest);
    QCOMPARE(editor.value(), 12.5);
    QInputMethodEvent word;
    word.setCommitString("abc");
    QApplication::sendEvent(LineOf(editor), &word);
    QCOMPARE(editor.value(), 12.5);
}

void NumericLocalesTest::textInTheMakingIsNoValue()
{
    EditDblSuffix editor;
    SetUp(editor, QLocale::system());
    QInputMethodEvent making("99", {});
    QApplication::sendEvent(LineOf(editor), &making);
    QCOMPARE(editor.value(), 7.0);
    QInputMethodEvent given_up;
    QApplication::sendEvent(LineOf(editor), &given_up);
    QCOMPARE(editor.value(), 7.0);
}

void NumericLocalesTest::accessibilitySeesASpinBox()
{
    EditDblUnits editor;
    QDoubleSpinBox plain;
    editor.setDynamicDecimals(false);
    for (QDoubleSpinBox* box : {editor.spinBox(), &plain}) {
        SetUp(*box, QLocale::system());
        box->setAccessibleName("Thickness");
        box->setSingleStep(0.5);
    }
    QAccessibleInterface* const ours = QAccessible::queryAccessibleInterface(&editor);
    QAccessibleInterface* const theirs = QAccessible::queryAccessibleInterface(&plain);
    QVERIFY(ours && theirs);
    QCOMPARE(int(ours->role()), int(QAccessible::SpinBox));
    for (const QAccessible::Text text : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
        QCOMPARE(ours->text(text), theirs->text(text));
    QCOMPARE(ours->childCount(), theirs->childCount());
    QCOMPARE(ours->state().focusable, theirs->state().focusable);
    QCOMPARE(ours->state().editable, theirs->state().editable);
    QVERIFY(ours->valueInterface() && theirs->valueInterface());
    QCOMPARE(ours->valueInterface()->currentValue(), theirs->valueInterface()->currentValue());
    QCOMPARE(ours->valueInterface()->minimumValue(), theirs->valueInterface()->minimumValue());
    QCOMPARE(ours->valueInterface()->maximumValue(), theirs->valueInterface()->maximumValue());
    QCOMPARE(ours->valueInterface()->minimumStepSize(), theirs->valueInterface()->minimumStepSize());
    QCOMPARE(!ours->textInterface(), !theirs->textInterface());
    QCOMPARE(!ours->actionInterface(), !theirs->actionInterface());
    if (ours->actionInterface())
        QCOMPARE(ours->actionInterface()->actionNames(), theirs->actionInterface()->actionNames());
}

void NumericLocalesTest::accessibilityChangesTheValue()
{
    EditDblSuffix editor;
    SetUp(editor, QLocale::system());
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&editor);
    QVERIFY(interface && interface->valueInterface());
    interface->valueInterface()->setCurrentValue(12.5);
    QCOMPARE(editor.value(), 12.5);
    interface->valueInterface()->setCurrentValue(1e9);
    QCOMPARE(editor.value(), 5000.0);
}

OVK_TEST_CLASS(NumericLocalesTest)

#include "numeric_locales_test.moc"
