#include "app/transform_bindings.h"

#include <ovk/units/units_controller.h>

#include <QLineEdit>
#include <QScopedValueRollback>

#include <cmath>

namespace tarnix {

NumberBinding::NumberBinding(ovk::EditDblSuffix& editor, double& source)
    : m_editor(editor), m_source(source)
{
    QObject::connect(&editor, QOverload<double>::of(&QDoubleSpinBox::valueChanged), &m_context,
                     [this](double value) {
                         if (m_showing)
                             return;
                         m_value = value * _Factor();
                         m_modifier = mdUser;
                         m_modified = std::abs(m_value - m_source) > 1e-9;
                         SetValid(m_editor.hasAcceptableInput());
                         _NotifyOnValueChanged();
                     });
    // A field that is emptied or half typed keeps its value; its text is not valid all the same.
    if (auto* const line = editor.findChild<QLineEdit*>()) {
        QObject::connect(line, &QLineEdit::textChanged, &m_context, [this] {
            if (!m_showing)
                SetValid(m_editor.hasAcceptableInput());
        });
    }
}

void NumberBinding::SelectAll()
{
    m_editor.setFocus();
    m_editor.selectAll();
}

void NumberBinding::_LoadFromSource()
{
    m_value = m_source;
    m_modified = false;
    m_modifier = mdProgram;
    Show();
}

void NumberBinding::_ReloadFromSource()
{
    if (!m_modified)
        m_value = m_source;
    Show();
}

void NumberBinding::_CommitToSource()
{
    m_source = m_value;
    m_modified = false;
}

void NumberBinding::Show()
{
    {
        const QScopedValueRollback<bool> showing(m_showing, true);
        m_editor.setValue(m_value / _Factor());
    }
    SetValid(true);
}

void NumberBinding::SetValid(bool valid)
{
    if (m_valid == valid)
        return;
    m_valid = valid;
    _NotifyOnValidityChanged();
}

double LengthBinding::_Factor() const
{
    return ovk::UnitsController::GetCurrentUnits() == ovk::UnitsInch::GetInstance() ? k_mm_per_inch
                                                                                    : 1.0;
}

void CheckBinding::SetValid(bool valid)
{
    if (m_valid == valid)
        return;
    m_valid = valid;
    _NotifyOnValidityChanged();
}

} // namespace tarnix
