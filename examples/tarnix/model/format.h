#pragma once

#include "model/vec3.h"

#include <QString>

namespace tarnix {

enum class LengthUnit
{
    Millimetre,
    Inch
};

/// Numbers for people, in a unit of length; all values come in millimetres.
class Formatter
{
public:
    explicit Formatter(LengthUnit unit = LengthUnit::Millimetre, int decimals = 2)
        : m_unit(unit), m_decimals(decimals)
    {
    }

    LengthUnit Unit() const { return m_unit; }
    int Decimals() const { return m_decimals; }
    /// "mm" or "inch".
    QString Suffix() const;
    /// Millimetres in the unit, and back.
    double ToUnit(double mm) const;
    double FromUnit(double value) const;

    QString Number(double value, int decimals) const;
    QString Length(double mm) const;
    /// Without the suffix.
    QString LengthNumber(double mm) const;
    /// "12.00 x 8.50 x 3.00 mm".
    QString Size(const Vec3& size) const;
    /// "(12.00, 8.50, 3.00) mm".
    QString Point(const Vec3& point) const;
    QString Area(double mm2) const;
    QString Volume(double mm3) const;
    QString Angle(double degrees) const;
    /// Grams of a volume at a density in grams a cubic centimetre.
    QString Weight(double mm3, double density) const;

private:
    LengthUnit m_unit;
    int m_decimals;
};

constexpr double k_mm_per_inch = 25.4;

} // namespace tarnix
