#include "ovk/units/units_pair.h"

#include "ovk/units/units_controller.h"

namespace ovk {

UnitsPair::UnitsPair(double mm, double inch) : m_mm(mm), m_inch(inch), m_valid(true)
{
}

double UnitsPair::GetMm() const
{
    return m_mm;
}

double UnitsPair::GetInch() const
{
    return m_inch;
}

void UnitsPair::SetMm(double mm)
{
    m_mm = mm;
    m_valid = true;
}

void UnitsPair::SetInch(double inch)
{
    m_inch = inch;
    m_valid = true;
}

bool UnitsPair::IsValid() const
{
    return m_valid;
}

double UnitsPair::GetActual() const
{
    return UnitsController::GetCurrentUnits() == UnitsMM::GetInstance() ? m_mm : m_inch;
}

} // namespace ovk
