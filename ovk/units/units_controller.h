#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observable.h>

class QString;

namespace ovk {

class UnitsPair;

/// A unit of length as the user sees it. There are two objects, and equality means the same one.
class OVK_EXPORT IUnits
{
public:
    virtual bool operator==(const IUnits& other) const = 0;
    virtual bool operator!=(const IUnits& other) const = 0;
    /// The translated abbreviation.
    virtual QString GetAbbreviation() const = 0;
    /// The number of digits behind the decimal point.
    virtual int GetDecimals() const = 0;
    /// The smallest length above 0.
    virtual double GetMinPositive() const = 0;
    /// The largest length.
    virtual double GetMaxPositive() const = 0;
    /// The least length.
    virtual double GetMinNegative() const = 0;

protected:
    ~IUnits() = default;
};

/// Millimetres.
class OVK_EXPORT UnitsMM final : public IUnits
{
public:
    /// The one object.
    static const UnitsMM& GetInstance();

    bool operator==(const IUnits& other) const override;
    bool operator!=(const IUnits& other) const override;
    QString GetAbbreviation() const override;
    int GetDecimals() const override;
    double GetMinPositive() const override;
    double GetMaxPositive() const override;
    double GetMinNegative() const override;

private:
    UnitsMM() = default;
};

/// Inches.
class OVK_EXPORT UnitsInch final : public IUnits
{
public:
    /// The one object.
    static const UnitsInch& GetInstance();

    bool operator==(const IUnits& other) const override;
    bool operator!=(const IUnits& other) const override;
    QString GetAbbreviation() const override;
    int GetDecimals() const override;
    double GetMinPositive() const override;
    double GetMaxPositive() const override;
    double GetMinNegative() const override;

private:
    UnitsInch() = default;
};

/// Holds which unit is the current one, and notifies when it changes.
class OVK_EXPORT UnitsController : public Observable
{
public:
    /// The one object.
    static UnitsController& GetInstance();

    /// The current units: millimetres at the start.
    static const IUnits& GetCurrentUnits();
    /// Changes the current units. \a units must live on: UnitsMM or UnitsInch.
    static void SetCurrentUnits(const IUnits& units);
    /// The smallest length above 0 in both units.
    static UnitsPair GetMinPositive();
    /// The largest length in both units.
    static UnitsPair GetMaxPositive();
    /// The least length in both units.
    static UnitsPair GetMinNegative();

private:
    UnitsController();

    const IUnits* mp_current;
};

} // namespace ovk
