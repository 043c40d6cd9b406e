#include "ovk/units/data_binding.h"

#include "ovk/units/data_binding_controller.h"

namespace ovk {

DataBinding::DataBinding() = default;

DataBinding::~DataBinding() = default;

void DataBinding::SetController(DataBindingController& controller)
{
    mp_controller = &controller;
    controller._Attach(this);
}

bool DataBinding::IsValid() const
{
    return m_valid;
}

bool DataBinding::IsModified() const
{
    return m_modified;
}

DataBinding::Modifier DataBinding::GetModifier() const
{
    return m_modifier;
}

void DataBinding::_NotifyOnValueChanged()
{
    _Notify();
    if (mp_controller)
        mp_controller->_ValueChanged(this);
}

void DataBinding::_NotifyOnValidityChanged()
{
    if (mp_controller)
        mp_controller->_ValidityChanged(this);
}

} // namespace ovk
