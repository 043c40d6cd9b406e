#pragma once

#include <ovk/core/export.h>

#include <QLocale>
#include <QString>
#include <QValidator>

namespace ovk {

/// What a numeric editor allows.
struct NumberInputRules
{
    double minimum = 0.0;
    double maximum = 99.99;
    int decimals = 2;
    QLocale locale;
    QString prefix;
    QString suffix;
    /// The form of the suffix that the editor shows itself; empty if it shows none.
    QString shown_suffix;
    QString special_value_text;
    /// The suffix is put behind an accepted number: in the shown form if it was there in that form.
    bool show_suffix = false;
    bool smart_mode = false;
};

struct NumberInput
{
    QValidator::State state = QValidator::Invalid;
    /// The allowed range may be told for this input.
    bool show_tip = true;
    /// The input is too small and was made larger: the number to set.
    bool enlarged = false;
    double number = 0.0;
};

/// Makes the separator of \a input that is not \a decimalPoint the decimal point: either key of the
/// keypad gives the one of the system.
OVK_TEST_EXPORT void UnifyDecimalPoint(QString& input, QChar decimalPoint);

/// Judges \a input, in which the cursor is at \a pos. Accepted input gets its final form: surplus
/// digits are cut off, the suffix is put behind it, and the cursor stays inside the number.
OVK_TEST_EXPORT NumberInput InterpretNumberInput(const NumberInputRules& rules, QString& input, int& pos);

} // namespace ovk
