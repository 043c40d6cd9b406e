#include "units.h"

#include <cmath>
#include <limits>

namespace {

constexpr double StlUnitsPerMm = 10000.0;
constexpr double MmPerInch = 25.4;

/// The nearest whole number, half away from zero, within 32 bits.
long RoundToStlUnits(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double low = std::numeric_limits<qint32>::min();
    constexpr double high = std::numeric_limits<qint32>::max();
    return static_cast<long>(qBound(low, std::round(value), high));
}

} // namespace

MUserUnit& MUserUnit::GetInstance()
{
    static MUserUnit s_unit;
    return s_unit;
}

MUserUnit::UNIT_TYPE MUserUnit::GetUnit() const
{
    return m_unit;
}

void MUserUnit::SetUnit(UNIT_TYPE unit)
{
    m_unit = unit;
}

long MUserUnit::ConvertFromUIToStlUnits(double value) const
{
    return RoundToStlUnits(value * (m_unit == utMillimetre ? StlUnitsPerMm : StlUnitsPerMm * MmPerInch));
}

long MUnit::ConvertFromMmToStlUnits(double mm)
{
    return RoundToStlUnits(mm * StlUnitsPerMm);
}
