#pragma once

#include <ovk/core/export.h>

/// The user's unit of length, apart from the one that the interface shows.
class OVK_EXPORT MUserUnit
{
public:
    /// The units; any value but utMillimetre means inches.
    enum UNIT_TYPE : int {
        utMillimetre = 0,
        utInch = 1
    };

    MUserUnit(const MUserUnit&) = delete;
    MUserUnit& operator=(const MUserUnit&) = delete;

    /// The one object.
    static MUserUnit& GetInstance();

    /// The user's unit: millimetres at the start.
    UNIT_TYPE GetUnit() const;
    /// Changes the user's unit.
    void SetUnit(UNIT_TYPE unit);
    /// The internal integer length of \a value, which is in the user's unit: 10,000 a millimetre,
    /// 254,000 an inch, rounded half away from zero. What does not fit in 32 bits gives the
    /// nearest end of the range; what is no number gives 0.
    long ConvertFromUIToStlUnits(double value) const;

private:
    MUserUnit() = default;

    UNIT_TYPE m_unit = utMillimetre;
};

/// Lengths in fixed units.
class OVK_EXPORT MUnit
{
public:
    /// The internal integer length of \a mm millimetres; see MUserUnit::ConvertFromUIToStlUnits().
    static long ConvertFromMmToStlUnits(double mm);
};
