#pragma once

#include <ovk/units/edit_dbl_suffix.h>

namespace ovk {

class UnitsPair;

/// An editor of a length: its limits, step, digits and suffix follow the current units. Its value
/// is not converted when they change; the owner of the value loads it again.
class OVK_EXPORT EditDblUnits : public EditDblSuffix
{
    Q_OBJECT
    Q_PROPERTY(double minMm READ minMm WRITE setMinMm)
    Q_PROPERTY(double minInch READ minInch WRITE setMinInch)
    Q_PROPERTY(double maxMm READ maxMm WRITE setMaxMm)
    Q_PROPERTY(double maxInch READ maxInch WRITE setMaxInch)
    Q_PROPERTY(bool dynamicSuffix READ dynamicSuffix WRITE setDynamicSuffix)
    Q_PROPERTY(bool dynamicDecimals READ dynamicDecimals WRITE setDynamicDecimals)

public:
    explicit EditDblUnits(QWidget* parent = nullptr);
    ~EditDblUnits() override;

    /// The least length in millimetres.
    double minMm() const;
    /// The least length in inches.
    double minInch() const;
    /// The largest length in millimetres.
    double maxMm() const;
    /// The largest length in inches.
    double maxInch() const;
    /// Changes the least length in millimetres.
    void setMinMm(double mm);
    /// Changes the least length in inches.
    void setMinInch(double inch);
    /// Changes the largest length in millimetres.
    void setMaxMm(double mm);
    /// Changes the largest length in inches.
    void setMaxInch(double inch);

    /// The least length; a pair that is not valid leaves the editor's own minimum.
    const UnitsPair& min() const;
    /// The largest length; a pair that is not valid leaves the editor's own maximum.
    const UnitsPair& max() const;
    /// The step of the arrows; a pair that is not valid leaves the editor's own.
    const UnitsPair& step() const;
    /// Changes the least length.
    void setMin(const UnitsPair& min);
    /// Changes the largest length.
    void setMax(const UnitsPair& max);
    /// Changes the step of the arrows.
    void setStep(const UnitsPair& step);

    /// True if the suffix is the abbreviation of the current units.
    bool dynamicSuffix() const;
    /// Changes whether the suffix follows the current units.
    void setDynamicSuffix(bool dynamic);
    /// True if the number of digits is that of the current units.
    bool dynamicDecimals() const;
    /// Changes whether the number of digits follows the current units.
    void setDynamicDecimals(bool dynamic);

    /// Changes the number of digits; ignored while it follows the current units.
    void setDecimals(int decimals);

protected:
    /// In another language the unit is abbreviated anew.
    void changeEvent(QEvent* event) override;

private:
    class Impl;
    Impl& _Units();
    const Impl& _Units() const;
};

} // namespace ovk
