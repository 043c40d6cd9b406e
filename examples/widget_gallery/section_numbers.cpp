#include "sections.h"

#include <ovk/core.h>
#include <ovk/units.h>

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using namespace ovk;

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("WidgetGallery", text);
}

constexpr double g_mm_per_inch = 25.4;

/// An editor that loads its length anew when the units change, as the owner of a value does.
class LengthEdit : public EditDblUnits
{
public:
    explicit LengthEdit(double mm) : m_mm(mm), m_units_observer([this] { Load(); }, false)
    {
        setMin(UnitsPair(0.0, 0.0));
        setMax(UnitsPair(400.0, 400.0 / g_mm_per_inch));
        setStep(UnitsPair(1.0, 0.05));
        setSuffixFormat(QStringLiteral(" %"));
        Load();
        // Behind the editor itself, which first takes the limits of the new units.
        UnitsController::GetInstance().Attach(m_units_observer);
    }

private:
    void Load()
    {
        const bool inch = UnitsController::GetCurrentUnits() == UnitsInch::GetInstance();
        setValue(inch ? m_mm / g_mm_per_inch : m_mm);
    }

    double m_mm;
    ObserverFunctor m_units_observer;
};

struct SuffixRow
{
    const char* label;
    EditDblSuffix::SuffixVisibility visible;
    const char* suffix;
    const char* format;
};

constexpr SuffixRow g_suffix_rows[] = {
    {QT_TRANSLATE_NOOP("WidgetGallery", "As the application says"), EditDblSuffix::spAuto, " %",
     ""},
    {QT_TRANSLATE_NOOP("WidgetGallery", "Suffix always inside"), EditDblSuffix::spVisible,
     "\u00B0C", " %"},
    {QT_TRANSLATE_NOOP("WidgetGallery", "Suffix in brackets"), EditDblSuffix::spVisible, "kg",
     " [%]"},
    {QT_TRANSLATE_NOOP("WidgetGallery", "Suffix never inside"), EditDblSuffix::spHidden, " s", ""},
};

class Rows
{
public:
    explicit Rows(QGridLayout& layout) : m_layout(layout) {}

    void Add(const QString& label, QWidget* editor, QWidget* suffix = nullptr)
    {
        auto* const text = new QLabel(label);
        text->setBuddy(editor);
        m_layout.addWidget(text, m_row, 0);
        m_layout.addWidget(editor, m_row, 1);
        if (suffix)
            m_layout.addWidget(suffix, m_row, 2);
        ++m_row;
    }

private:
    QGridLayout& m_layout;
    int m_row = 0;
};

} // namespace

QWidget* MakeNumbers()
{
    auto* const box = new QGroupBox(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Numbers and units")));
    auto* const layout = new QGridLayout(box);
    layout->setColumnStretch(1, 1);
    Rows rows(*layout);

    auto* const single = new UnitsLabel;
    rows.Add(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Height")), new LengthEdit(42.125), single);
    auto* const square = new UnitsLabel;
    square->setPowerValue(UnitsLabel::pvSquare);
    rows.Add(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Area")), new LengthEdit(120.5), square);
    auto* const volume = new UnitsLabel;
    volume->setPowerValue(UnitsLabel::pvVolume);
    volume->setFormatString(QStringLiteral("(%1)"));
    rows.Add(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Volume")), new LengthEdit(333.0), volume);

    for (const SuffixRow& row : g_suffix_rows) {
        auto* const edit = new EditDblSuffix;
        edit->setSuffix(QString::fromUtf8(row.suffix));
        edit->setSuffixFormat(QString::fromUtf8(row.format));
        edit->setSuffixVisible(row.visible);
        edit->setMaximum(500.0);
        edit->setValue(87.5);
        SuffixLabel* suffix = nullptr;
        if (row.visible == EditDblSuffix::spAuto) {
            suffix = new SuffixLabel;
            suffix->setText(QStringLiteral("%"));
        }
        rows.Add(Tr(row.label), edit, suffix);
    }
    auto* const disabled = new EditDblSuffix;
    disabled->setEnabled(false);
    disabled->setValue(3.0);
    rows.Add(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Disabled")), disabled);

    auto* const status = new StatusLabel;
    status->setText(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Ready: 12 parts, 480 layers")));
    rows.Add(Tr(QT_TRANSLATE_NOOP("WidgetGallery", "Status")), status);
    layout->setRowStretch(layout->rowCount(), 1);
    return box;
}
