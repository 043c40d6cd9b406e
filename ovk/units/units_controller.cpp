#include "ovk/units/units_controller.h"

#include "ovk/units/units_pair.h"

#include <QObject>
#include <QString>

namespace ovk {

const UnitsMM& UnitsMM::GetInstance()
{
    static const UnitsMM s_units;
    return s_units;
}

bool UnitsMM::operator==(const IUnits& other) const
{
    return this == &other;
}

bool UnitsMM::operator!=(const IUnits& other) const
{
    return this != &other;
}

QString UnitsMM::GetAbbreviation() const
{
    return QObject::tr("mm");
}

int UnitsMM::GetDecimals() const
{
    return 3;
}

double UnitsMM::GetMinPositive() const
{
    return 0.001;
}

double UnitsMM::GetMaxPositive() const
{
    return 200000.0;
}

double UnitsMM::GetMinNegative() const
{
    return -200000.0;
}

const UnitsInch& UnitsInch::GetInstance()
{
    static const UnitsInch s_units;
    return s_units;
}

bool UnitsInch::operator==(const IUnits& other) const
{
    return this == &other;
}

bool UnitsInch::operator!=(const IUnits& other) const
{
    return this != &other;
}

QString UnitsInch::GetAbbreviation() const
{
    return QObject::tr("inch");
}

int UnitsInch::GetDecimals() const
{
    return 4;
}

double UnitsInch::GetMinPositive() const
{
    return 0.0001;
}

double UnitsInch::GetMaxPositive() const
{
    return 8000.0;
}

double UnitsInch::GetMinNegative() const
{
    return -8000.0;
}

UnitsController::UnitsController() : mp_current(&UnitsMM::GetInstance())
{
}

UnitsController& UnitsController::GetInstance()
{
    static UnitsController s_controller;
    return s_controller;
}

const IUnits& UnitsController::GetCurrentUnits()
{
    return *GetInstance().mp_current;
}

void UnitsController::SetCurrentUnits(const IUnits& units)
{
    UnitsController& controller = GetInstance();
    if (controller.mp_current == &units)
        return;
    controller.mp_current = &units;
    controller._Notify();
}

UnitsPair UnitsController::GetMinPositive()
{
    return UnitsPair(UnitsMM::GetInstance().GetMinPositive(), UnitsInch::GetInstance().GetMinPositive());
}

UnitsPair UnitsController::GetMaxPositive()
{
    return UnitsPair(UnitsMM::GetInstance().GetMaxPositive(), UnitsInch::GetInstance().GetMaxPositive());
}

UnitsPair UnitsController::GetMinNegative()
{
    return UnitsPair(UnitsMM::GetInstance().GetMinNegative(), UnitsInch::GetInstance().GetMinNegative());
}

} // namespace ovk
