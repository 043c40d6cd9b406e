#include "app/number_dialog.h"

#include <ovk/units/edit_dbl_units.h>
#include <ovk/units/units_pair.h>

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tarnix {

QDoubleSpinBox* MakeNumberEditor(QWidget* parent, const NumberField& field, const Formatter& format)
{
    ovk::EditDblSuffix* editor = nullptr;
    if (field.kind == NumberField::Length) {
        auto* units = new ovk::EditDblUnits(parent);
        const auto pair = [](double mm) { return ovk::UnitsPair(mm, mm / k_mm_per_inch); };
        units->setMin(pair(field.low));
        units->setMax(pair(field.high));
        units->setStep(ovk::UnitsPair(1.0, 0.1));
        editor = units;
    } else {
        editor = new ovk::EditDblSuffix(parent);
        editor->setDecimals(field.kind == NumberField::Count ? 0 : 2);
        editor->setRange(field.low, field.high);
        editor->setSingleStep(field.kind == NumberField::Degrees ? 5.0 : 1.0);
        static const char* const k_suffixes[] = {"", "\u00b0", "%", "", "g/cm\u00b3"};
        editor->setSuffix(QString::fromUtf8(k_suffixes[field.kind]));
    }
    editor->setSuffixFormat(field.kind == NumberField::Degrees ? QStringLiteral("%")
                                                               : QStringLiteral(" %"));
    editor->setSuffixVisible(ovk::EditDblSuffix::spVisible);
    editor->setValue(field.kind == NumberField::Length ? format.ToUnit(field.value) : field.value);
    editor->setAlignment(Qt::AlignRight);
    editor->setAccelerated(true);
    editor->setKeyboardTracking(false);
    return editor;
}

NumberDialog::NumberDialog(QWidget* parent, const QString& title, const QString& note,
                           const std::vector<NumberField>& fields, const Formatter& format)
    : QDialog(parent), m_fields(fields), m_format(format),
      m_storable(this, QStringLiteral("NumberDialog"))
{
    setObjectName(QStringLiteral("numberDialog"));
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (!note.isEmpty()) {
        auto* label = new QLabel(note, this);
        label->setWordWrap(true);
        label->setMinimumWidth(280);
        layout->addWidget(label);
    }
    auto* form = new QFormLayout;
    for (const NumberField& field : fields) {
        m_editors.push_back(MakeNumberEditor(this, field, format));
        form->addRow(field.label, m_editors.back());
    }
    layout->addLayout(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    if (!m_editors.empty()) {
        m_editors.front()->setFocus();
        m_editors.front()->selectAll();
    }
}

std::vector<double> NumberDialog::Values() const
{
    std::vector<double> values;
    for (size_t i = 0; i < m_fields.size(); ++i) {
        const double value = m_editors[i]->value();
        values.push_back(m_fields[i].kind == NumberField::Length ? m_format.FromUnit(value)
                                                                 : value);
    }
    return values;
}

void NumberDialog::Ask(QWidget* parent, const QString& title, const QString& note,
                       const std::vector<NumberField>& fields, const Formatter& format,
                       const Accepted& accepted)
{
    auto* dialog = new NumberDialog(parent, title, note, fields, format);
    connect(dialog, &QDialog::accepted, dialog, [dialog, accepted] { accepted(dialog->Values()); });
    dialog->open();
}

} // namespace tarnix

#include "moc_number_dialog.cpp"
