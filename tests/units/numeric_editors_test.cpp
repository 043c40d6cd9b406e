#include "tests/support/test_main.h"

#include <ovk/preferences.h>
#include <ovk/units.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolTip>

using namespace ovk;

namespace {

/// The editor's text as the base shows it, with its suffix.
QString Shown(const EditDblSuffix& editor)
{
    return static_cast<const QDoubleSpinBox&>(editor).text();
}

QString BaseSuffix(EditDblSuffix& editor)
{
    return editor.spinBox()->suffix();
}

/// \a text with the decimal point of the system.
QString Local(const QString& text)
{
    return QString(text).replace('.', QLocale::system().decimalPoint());
}

void Type(EditDblSuffix& editor, const QString& text)
{
    editor.spinBox()->selectAll();
    QTest::keyClicks(&editor, text);
}

} // namespace

class NumericEditorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theSuffixFollowsTheModeOfTheApplication();
    void aChangeOfThePreferenceShowsTheControllersFlag();
    void theSuffixIsShownInItsFormat();
    void theRawSuffixIsRead();
    void propertiesAndTheirDefaults();
    void eitherSeparatorOfTheKeypadWorks();
    void surplusDigitsAreCutWithoutATip();
    void aNumberTypedBehindAFormattedSuffixIsTheValue();
    void aLonePointWithoutDecimalsIsRefusedSilently();
    void theRangeIsToldWhileTheInputIsOutside();
    void theRangeIsNotToldWhenThatIsOff();
    void anEmptyFieldTellsTheRange();
    void validityIsToldWhenItChanges();
    void smartModeEnlarges();
    void aDoubleClickSelectsAll();
    void otherClicksAreTheLineEdits();
    void lengthsFollowTheUnits();
    void aChangeOfUnitsKeepsTheNumberAndClampsSilently();
    void decimalsAreFixedWhileTheyFollowTheUnits();
    void theSuffixMayStayWhatItIs();
    void pairsAndNumbersAreTheSameLimits();
    void anEditorThatDiedIsNotCalled();
    void theLabelIsSeenWhileTheSuffixIsOutside();
    void showingTheLabelNeverOverrulesTheMode();
    void aLabelOfItsOwnMindIsSeenAlways();
    void theUnitsLabelShowsTheUnit_data();
    void theUnitsLabelShowsTheUnit();
    void theUnitsLabelFollowsTheUnits();
    void theStatusLabelTakesItsSize();
};

void NumericEditorsTest::cleanup()
{
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
    SuffixController::GetInstance().SetInsideEditor(false);
    g_pref_suffix_in_editor = false;
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void NumericEditorsTest::theSuffixFollowsTheModeOfTheApplication()
{
    EditDblSuffix editor;
    editor.setSuffix("mm");
    QCOMPARE(BaseSuffix(editor), QString());
    SuffixController::GetInstance().SetInsideEditor(true);
    g_pref_suffix_in_editor = true;
    QCOMPARE(BaseSuffix(editor), QString("mm"));
    editor.setSuffixVisible(EditDblSuffix::spHidden);
    QCOMPARE(BaseSuffix(editor), QString());
    SuffixController::GetInstance().SetInsideEditor(false);
    g_pref_suffix_in_editor = false;
    editor.setSuffixVisible(EditDblSuffix::spVisible);
    QCOMPARE(BaseSuffix(editor), QString("mm"));
}

void NumericEditorsTest::aChangeOfThePreferenceShowsTheControllersFlag()
{
    EditDblSuffix editor;
    editor.setSuffix("mm");
    SuffixController::GetInstance().SetInsideEditor(true);
    QCOMPARE(BaseSuffix(editor), QString()); // the editor does not listen to it
    g_pref_suffix_in_editor = false;         // notifies, though it is no change
    QCOMPARE(BaseSuffix(editor), QString("mm"));
}

void NumericEditorsTest::theSuffixIsShownInItsFormat()
{
    EditDblSuffix editor;
    editor.setSuffixVisible(EditDblSuffix::spVisible);
    editor.setSuffix("mm");
    editor.setSuffixFormat(" [%/%]");
    QCOMPARE(BaseSuffix(editor), QString(" [mm/mm]"));
    editor.setSuffixFormat("");
    QCOMPARE(BaseSuffix(editor), QString("mm"));
}

void NumericEditorsTest::theRawSuffixIsRead()
{
    EditDblSuffix editor;
    editor.setSuffix("mm");
    editor.setSuffixFormat(" %");
    QCOMPARE(editor.suffix(), QString("mm"));
    QCOMPARE(editor.suffixFormat(), QString(" %"));
    QVERIFY(editor.spinBox() == &editor);
}

void NumericEditorsTest::propertiesAndTheirDefaults()
{
    EditDblUnits editor;
    QCOMPARE(editor.property("suffixVisible").toInt(), 0);
    QCOMPARE(editor.property("showValidationError").toBool(), true);
    QCOMPARE(editor.property("dynamicSuffix").toBool(), true);
    QCOMPARE(editor.property("dynamicDecimals").toBool(), true);
    QVERIFY(editor.setProperty("suffix", "x"));
    QCOMPARE(editor.suffix(), QString("x"));
    QVERIFY(editor.setProperty("suffixFormat", "(%)"));
    QVERIFY(editor.setProperty("suffixVisible", 2));
    QCOMPARE(BaseSuffix(editor), QString("(x)"));
    QVERIFY(editor.setProperty("minMm", 2.0) && editor.setProperty("maxMm", 8.0));
    QVERIFY(editor.setProperty("minInch", 0.1) && editor.setProperty("maxInch", 0.3));
    QCOMPARE(editor.minimum(), 2.0);
    QCOMPARE(editor.maximum(), 8.0);
    SuffixLabel label;
    QCOMPARE(label.property("dynamicVisibility").toBool(), true);
    UnitsLabel units;
    QCOMPARE(units.property("powerValue").toInt(), 0);
    QCOMPARE(units.property("formatString").toString(), QString());
    for (const char* slot : {"setSuffixVisible(SuffixVisibility)", "setSuffix(QString)", "setSuffixFormat(QString)",
                             "setShowValidationError(bool)", "setValidationSmartMode(bool)"})
        QVERIFY2(EditDblSuffix::staticMetaObject.indexOfSlot(slot) >= 0, slot);
    QVERIFY(EditDblSuffix::staticMetaObject.indexOfSignal("validityChanged(bool)") >= 0);
    QVERIFY(StatusLabel::staticMetaObject.indexOfSlot("UpdateStatusText(QString)") >= 0);
}

void NumericEditorsTest::eitherSeparatorOfTheKeypadWorks()
{
    EditDblSuffix editor;
    Type(editor, "1,5");
    QCOMPARE(editor.value(), 1.5);
    Type(editor, "2.5");
    QCOMPARE(editor.value(), 2.5);
    QString text = "3,5";
    int pos = 3;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Acceptable));
    QCOMPARE(text, "3" + QString(QLocale::system().decimalPoint()) + "5");
}

void NumericEditorsTest::surplusDigitsAreCutWithoutATip()
{
    EditDblSuffix editor;
    editor.setDecimals(3);
    QString text = "1.23456";
    int pos = 7;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Acceptable));
    QCOMPARE(text, Local("1.234"));
    QVERIFY(!QToolTip::isVisible());
    Type(editor, "1.23456");
    QCOMPARE(editor.value(), 1.234);
}

void NumericEditorsTest::aNumberTypedBehindAFormattedSuffixIsTheValue()
{
    EditDblSuffix editor;
    editor.setSuffixVisible(EditDblSuffix::spVisible);
    editor.setSuffix("mm");
    editor.setSuffixFormat(" %");
    Type(editor, "42");
    QCOMPARE(editor.value(), 42.0);
    editor.interpretText();
    QCOMPARE(editor.value(), 42.0);
    QCOMPARE(editor.valueFromText("5mm"), 5.0);
    QCOMPARE(editor.valueFromText("5 mm"), 5.0);
    QCOMPARE(editor.valueFromText("5"), 5.0);
    editor.setValue(7.0);
    QCOMPARE(Shown(editor), Local("7.00 mm"));
    editor.setSuffixFormat(" [%]");
    QCOMPARE(Shown(editor), Local("7.00 [mm]"));
    Type(editor, "8");
    QCOMPARE(editor.value(), 8.0);
    // Typed without it, the suffix comes alone.
    QString text = "5";
    int pos = 1;
    editor.validate(text, pos);
    QCOMPARE(text, QString("5mm"));
}

void NumericEditorsTest::aLonePointWithoutDecimalsIsRefusedSilently()
{
    EditDblSuffix editor;
    editor.setDecimals(0);
    QString text = ".";
    int pos = 1;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Invalid));
    QVERIFY(!QToolTip::isVisible());
}

void NumericEditorsTest::theRangeIsToldWhileTheInputIsOutside()
{
    EditDblSuffix editor;
    editor.setRange(10.0, 5000.0);
    editor.setDecimals(2);
    QSignalSpy spy(&editor, &EditDblSuffix::validityChanged);
    QString text = "5";
    int pos = 1;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Intermediate));
    QCOMPARE(QToolTip::text(), QString("Please enter value between 10.00 and 5000.00"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.takeFirst().first().toBool(), true);
    text = "50";
    pos = 2;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Acceptable));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void NumericEditorsTest::theRangeIsNotToldWhenThatIsOff()
{
    EditDblSuffix editor;
    editor.setRange(10.0, 500.0);
    editor.setShowValidationError(false);
    QVERIFY(!editor.showValidationError());
    QString text = "5";
    int pos = 1;
    editor.validate(text, pos);
    QVERIFY(!QToolTip::isVisible());
}

void NumericEditorsTest::anEmptyFieldTellsTheRange()
{
    EditDblSuffix editor;
    editor.setRange(1.0, 2.0);
    QString text;
    int pos = 0;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Intermediate));
    QCOMPARE(QToolTip::text(), QString("Please enter value between 1.00 and 2.00"));
    editor.setRange(2.0, 2.0);
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Invalid));
}

void NumericEditorsTest::validityIsToldWhenItChanges()
{
    EditDblSuffix editor;
    editor.setRange(10.0, 500.0);
    QList<bool> told;
    connect(&editor, &EditDblSuffix::validityChanged, this, [&told](bool valid) { told << valid; });
    int pos = 0;
    for (const char* input : {"50", "501", "502", "5", "50"}) {
        QString text = input;
        editor.validate(text, pos);
    }
    QCOMPARE(told, (QList<bool>{false, true, true}));
}

void NumericEditorsTest::smartModeEnlarges()
{
    EditDblSuffix editor;
    editor.setDecimals(0);
    editor.setRange(100.0, 10000.0);
    editor.setValidationSmartMode(true);
    QString text = "5";
    int pos = 1;
    QCOMPARE(int(editor.validate(text, pos)), int(QValidator::Acceptable));
    QCOMPARE(text, QString("500"));
    QCOMPARE(editor.value(), 500.0);
}

void NumericEditorsTest::aDoubleClickSelectsAll()
{
    EditDblSuffix editor;
    editor.setRange(-1000.0, 1000.0);
    editor.setValue(-12.5);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    auto* const line = editor.findChild<QLineEdit*>();
    line->deselect();
    QTest::mouseDClick(line, Qt::LeftButton, Qt::NoModifier, line->rect().center());
    QCOMPARE(line->selectedText(), line->text());
}

void NumericEditorsTest::otherClicksAreTheLineEdits()
{
    EditDblSuffix editor;
    editor.setValue(12.5);
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    auto* const line = editor.findChild<QLineEdit*>();
    line->deselect();
    QTest::mouseDClick(line, Qt::RightButton, Qt::NoModifier, line->rect().center());
    QCOMPARE(line->selectedText(), QString());
    QTest::mouseClick(line, Qt::LeftButton, Qt::NoModifier, QPoint(2, line->height() / 2));
    QCOMPARE(line->selectedText(), QString());
}

void NumericEditorsTest::lengthsFollowTheUnits()
{
    EditDblUnits editor;
    editor.setMin(UnitsPair(1.0, 0.05));
    editor.setMax(UnitsPair(100.0, 4.0));
    editor.setStep(UnitsPair(0.5, 0.02));
    QCOMPARE(editor.minimum(), 1.0);
    QCOMPARE(editor.maximum(), 100.0);
    QCOMPARE(editor.singleStep(), 0.5);
    QCOMPARE(editor.decimals(), 3);
    QCOMPARE(editor.suffix(), QString("mm"));
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(editor.minimum(), 0.05);
    QCOMPARE(editor.maximum(), 4.0);
    QCOMPARE(editor.singleStep(), 0.02);
    QCOMPARE(editor.decimals(), 4);
    QCOMPARE(editor.suffix(), QString("inch"));
}

void NumericEditorsTest::aChangeOfUnitsKeepsTheNumberAndClampsSilently()
{
    EditDblUnits editor;
    editor.setMax(UnitsPair(100.0, 4.0));
    editor.setValue(3.0);
    QSignalSpy spy(&editor, qOverload<double>(&QDoubleSpinBox::valueChanged));
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(editor.value(), 3.0);
    UnitsController::SetCurrentUnits(UnitsMM::GetInstance());
    editor.setValue(50.0);
    spy.clear();
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(editor.value(), 4.0);
    QCOMPARE(spy.size(), 0);
}

void NumericEditorsTest::decimalsAreFixedWhileTheyFollowTheUnits()
{
    EditDblUnits editor;
    editor.setDecimals(1);
    QCOMPARE(editor.decimals(), 3);
    editor.setDynamicDecimals(false);
    editor.setDecimals(1);
    QCOMPARE(editor.decimals(), 1);
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(editor.decimals(), 1);
    editor.setDynamicDecimals(true);
    QCOMPARE(editor.decimals(), 4);
}

void NumericEditorsTest::theSuffixMayStayWhatItIs()
{
    EditDblUnits editor;
    editor.setDynamicSuffix(false);
    editor.setSuffix("pieces");
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(editor.suffix(), QString("pieces"));
    editor.setDynamicSuffix(true);
    QCOMPARE(editor.suffix(), QString("inch"));
}

void NumericEditorsTest::pairsAndNumbersAreTheSameLimits()
{
    EditDblUnits editor;
    QVERIFY(!editor.min().IsValid() && !editor.max().IsValid() && !editor.step().IsValid());
    QCOMPARE(editor.minimum(), 0.0); // the editor's own
    editor.setMinInch(0.5);
    QVERIFY(editor.min().IsValid());
    QCOMPARE(editor.minMm(), 0.0);
    QCOMPARE(editor.minInch(), 0.5);
    editor.setMaxMm(7.0);
    QCOMPARE(editor.maximum(), 7.0);
    QCOMPARE(editor.maxInch(), 0.0);
}

void NumericEditorsTest::anEditorThatDiedIsNotCalled()
{
    auto editor = std::make_unique<EditDblUnits>();
    auto label = std::make_unique<UnitsLabel>();
    editor.reset();
    label.reset();
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    SuffixController::GetInstance().SetInsideEditor(true);
    g_pref_suffix_in_editor = true;
}

void NumericEditorsTest::theLabelIsSeenWhileTheSuffixIsOutside()
{
    QWidget window;
    SuffixLabel label(&window);
    window.show();
    QVERIFY(label.isVisible());
    SuffixController::GetInstance().SetInsideEditor(true);
    QVERIFY(!label.isVisible());
    SuffixController::GetInstance().SetInsideEditor(false);
    QVERIFY(label.isVisible());
}

void NumericEditorsTest::showingTheLabelNeverOverrulesTheMode()
{
    QWidget window;
    SuffixController::GetInstance().SetInsideEditor(true);
    SuffixLabel label(&window);
    window.show();
    label.show();
    QVERIFY(!label.isVisible());
    SuffixController::GetInstance().SetInsideEditor(false);
    QVERIFY(label.isVisible());
    label.hide();
    SuffixController::GetInstance().SetInsideEditor(true);
    SuffixController::GetInstance().SetInsideEditor(false);
    QVERIFY(!label.isVisible());
}

void NumericEditorsTest::aLabelOfItsOwnMindIsSeenAlways()
{
    QWidget window;
    SuffixController::GetInstance().SetInsideEditor(true);
    SuffixLabel label(&window);
    window.show();
    label.setDynamicVisibility(false);
    QVERIFY(!label.dynamicVisibility());
    QVERIFY(label.isVisible());
}

void NumericEditorsTest::theUnitsLabelShowsTheUnit_data()
{
    QTest::addColumn<int>("power");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    QTest::newRow("a length") << 0 << "" << "mm";
    QTest::newRow("an area") << 1 << "" << QString("mm") + QChar(0x00b2);
    QTest::newRow("a volume") << 2 << "" << QString("mm") + QChar(0x00b3);
    QTest::newRow("in a format") << 1 << "(%1)" << QString("(mm") + QChar(0x00b2) + ")";
    QTest::newRow("a format without a place") << 0 << "unit" << "unit";
    QTest::newRow("a percent sign is no place") << 0 << "100 %" << "100 %";
}

void NumericEditorsTest::theUnitsLabelShowsTheUnit()
{
    QFETCH(int, power);
    QFETCH(QString, format);
    QFETCH(QString, text);
    UnitsLabel label;
    label.setPowerValue(static_cast<UnitsLabel::PowerValue>(power));
    label.setFormatString(format);
    QCOMPARE(label.text(), text);
    QCOMPARE(int(label.powerValue()), power);
    QCOMPARE(label.formatString(), format);
}

void NumericEditorsTest::theUnitsLabelFollowsTheUnits()
{
    UnitsLabel label;
    UnitsController::SetCurrentUnits(UnitsInch::GetInstance());
    QCOMPARE(label.text(), QString("inch"));
}

void NumericEditorsTest::theStatusLabelTakesItsSize()
{
    StatusLabel label;
    QVERIFY(!label.parent());
    label.UpdateStatusText("a text that is much wider than nothing");
    QCOMPARE(label.text(), QString("a text that is much wider than nothing"));
    QCOMPARE(label.size(), label.sizeHint());
}

OVK_TEST_CLASS(NumericEditorsTest)

#include "numeric_editors_test.moc"
