#pragma once

#include "model/format.h"

#include <ovk/ui_state/storable_ui.h>

#include <QDialog>

#include <functional>
#include <vector>

class QDoubleSpinBox;

namespace tarnix {

/// A number that a dialog asks for. Lengths come and go in millimetres and are shown in the unit;
/// a density has grams a cubic centimetre.
struct NumberField
{
    enum Kind
    {
        Length,
        Degrees,
        Percent,
        Count,
        Density
    };

    QString label;
    double value = 0.0;
    double low = 0.0;
    double high = 100.0;
    Kind kind = Length;
};

/// A small dialog for a handful of numbers. It does not block: the answer comes by a function.
class NumberDialog : public QDialog
{
    Q_OBJECT

public:
    using Accepted = std::function<void(const std::vector<double>&)>;

    /// Shows a dialog that deletes itself. `note` stands above the fields.
    static void Ask(QWidget* parent, const QString& title, const QString& note,
                    const std::vector<NumberField>& fields, const Formatter& format,
                    const Accepted& accepted);

private:
    NumberDialog(QWidget* parent, const QString& title, const QString& note,
                 const std::vector<NumberField>& fields, const Formatter& format);
    std::vector<double> Values() const;

    std::vector<NumberField> m_fields;
    std::vector<QDoubleSpinBox*> m_editors;
    Formatter m_format;
    ovk::StorableUI m_storable;
};

/// A spin box for one number of a kind, in the unit of `format`.
QDoubleSpinBox* MakeNumberEditor(QWidget* parent, const NumberField& field,
                                 const Formatter& format);

} // namespace tarnix
