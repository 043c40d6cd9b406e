#pragma once

#include <ovk/core/export.h>

namespace ovk {

/// The same quantity in millimetres and in inches. Both numbers are the caller's; nothing is
/// converted.
class OVK_EXPORT UnitsPair
{
public:
    /// Both numbers 0, not valid.
    UnitsPair() = default;
    /// Valid.
    UnitsPair(double mm, double inch);

    /// The number in millimetres.
    double GetMm() const;
    /// The number in inches.
    double GetInch() const;
    /// Sets the number in millimetres; the pair is valid from then on.
    void SetMm(double mm);
    /// Sets the number in inches; the pair is valid from then on.
    void SetInch(double inch);
    /// True once any number was given.
    bool IsValid() const;
    /// The number in the current units.
    double GetActual() const;

private:
    double m_mm = 0.0;
    double m_inch = 0.0;
    bool m_valid = false;
};

} // namespace ovk
