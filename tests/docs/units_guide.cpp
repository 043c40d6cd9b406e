#include "tests/support/test_main.h"

#include <ovk/preferences.h>
#include <ovk/units.h>
#include <vorsdk/units.h>

#include <QHBoxLayout>

namespace {

double g_thickness = 2.0; // of a part, in millimetres

class ThicknessBinding : public ovk::DataBinding
{
public:
    explicit ThicknessBinding(ovk::EditDblUnits& editor) : m_editor(editor)
    {
        QObject::connect(&m_editor, qOverload<double>(&QDoubleSpinBox::valueChanged), &m_context, [this] {
            m_modified = true;
            _NotifyOnValueChanged();
        });
        QObject::connect(&m_editor, &ovk::EditDblSuffix::validityChanged, &m_context, [this](bool valid) {
            m_valid = valid;
            _NotifyOnValidityChanged();
        });
    }

protected:
    void _LoadFromSource() override
    {
        m_editor.setValue(g_thickness);
        m_modified = false;
    }
    void _ReloadFromSource() override { _LoadFromSource(); }
    void _CommitToSource() override
    {
        g_thickness = m_editor.value();
        m_modified = false;
    }

private:
    ovk::EditDblUnits& m_editor;
    QObject m_context; // the connections end with the binding
};

class DialogController : public ovk::DataBindingController
{
public:
    bool can_apply = false;

protected:
    void _OnValueChanged(ovk::DataBinding*) override { can_apply = IsValid() && IsModified(); }
    void _OnValidityChanged(ovk::DataBinding*) override { can_apply = IsValid() && IsModified(); }
};

} // namespace

/// The code of docs/units.md.
class UnitsGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void unitsAreChanged();
    void aLengthIsEdited();
    void aNumberIsEdited();
    void labelsStandBesideEditors();
    void aDialogIsBound();
};

void UnitsGuideTest::cleanup()
{
    ovk::UnitsController::SetCurrentUnits(ovk::UnitsMM::GetInstance());
    ovk::SuffixController::GetInstance().SetInsideEditor(false);
    ovk::g_pref_suffix_in_editor = false;
    MUserUnit::GetInstance().SetUnit(MUserUnit::utMillimetre);
}

void UnitsGuideTest::unitsAreChanged()
{
    ovk::UnitsController::SetCurrentUnits(ovk::UnitsInch::GetInstance());
    MUserUnit::GetInstance().SetUnit(MUserUnit::utInch); // only for old files

    const ovk::UnitsPair gap(0.5, 0.02);
    QCOMPARE(gap.GetActual(), 0.02);
}

void UnitsGuideTest::aLengthIsEdited()
{
    ovk::EditDblUnits editor;
    editor.setMin(ovk::UnitsPair(0.1, 0.004));
    editor.setMax(ovk::UnitsController::GetMaxPositive());
    editor.setStep(ovk::UnitsPair(0.5, 0.02));
    editor.setValue(2.0);

    QCOMPARE(editor.minimum(), 0.1);
    QCOMPARE(editor.maximum(), 200000.0);
    QCOMPARE(editor.decimals(), 3);
}

void UnitsGuideTest::aNumberIsEdited()
{
    ovk::EditDblSuffix editor;
    editor.setRange(0.0, 90.0);
    editor.setDecimals(1);
    editor.setSuffix(QString(QChar(0x00b0)));
    editor.setSuffixVisible(ovk::EditDblSuffix::spVisible);

    QCOMPARE(editor.spinBox()->suffix(), QString(QChar(0x00b0)));

    const bool inside = true;
    ovk::SuffixController::GetInstance().SetInsideEditor(inside);
    ovk::g_pref_suffix_in_editor = inside; // in this order: editors listen to the preference

    ovk::EditDblUnits length;
    QCOMPARE(length.spinBox()->suffix(), QString("mm"));
}

void UnitsGuideTest::labelsStandBesideEditors()
{
    QWidget page;

    auto* row = new QHBoxLayout(&page);
    row->addWidget(new ovk::EditDblUnits);
    auto* label = new ovk::UnitsLabel;
    label->setPowerValue(ovk::UnitsLabel::pvSquare);
    label->setFormatString("[%1]");
    row->addWidget(label);

    QCOMPARE(label->text(), QString("[mm") + QChar(0x00b2) + ']');
}

void UnitsGuideTest::aDialogIsBound()
{
    ovk::EditDblUnits editor;
    editor.setMin(ovk::UnitsPair(0.1, 0.004));

    DialogController controller;
    auto* binding = new ThicknessBinding(editor); // the controller's from the next line on
    binding->SetController(controller);
    controller.LoadFromSources();

    QCOMPARE(editor.value(), 2.0);
    QVERIFY(!controller.IsModified());
    editor.setValue(3.0);
    QVERIFY(controller.can_apply);

    const bool is_done = controller.CommitToSources(); // or the dialog stays open

    QVERIFY(is_done);
    QCOMPARE(g_thickness, 3.0);
    g_thickness = 2.0;
}

OVK_TEST_CLASS(UnitsGuideTest)

#include "units_guide.moc"
