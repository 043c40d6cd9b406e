#include "model/format.h"

#include <QLocale>
#include <QObject>

namespace tarnix {

QString Formatter::Suffix() const
{
    return m_unit == LengthUnit::Inch ? QObject::tr("inch") : QObject::tr("mm");
}

double Formatter::ToUnit(double mm) const
{
    return m_unit == LengthUnit::Inch ? mm / k_mm_per_inch : mm;
}

double Formatter::FromUnit(double value) const
{
    return m_unit == LengthUnit::Inch ? value * k_mm_per_inch : value;
}

QString Formatter::Number(double value, int decimals) const
{
    // Minus zero is no value that a person knows.
    const double scale = std::pow(10.0, decimals);
    if (std::abs(value) * scale < 0.5)
        value = 0.0;
    return QLocale().toString(value, 'f', decimals);
}

QString Formatter::LengthNumber(double mm) const
{
    // An inch is 25 times as long: two more digits show the same fineness.
    return Number(ToUnit(mm), m_unit == LengthUnit::Inch ? m_decimals + 2 : m_decimals);
}

QString Formatter::Length(double mm) const
{
    return LengthNumber(mm) + QLatin1Char(' ') + Suffix();
}

QString Formatter::Size(const Vec3& size) const
{
    const QString times = QStringLiteral(" \u00d7 ");
    return LengthNumber(size.x) + times + LengthNumber(size.y) + times + LengthNumber(size.z) +
           QLatin1Char(' ') + Suffix();
}

QString Formatter::Point(const Vec3& point) const
{
    return QStringLiteral("(%1; %2; %3) %4")
        .arg(LengthNumber(point.x), LengthNumber(point.y), LengthNumber(point.z), Suffix());
}

QString Formatter::Area(double mm2) const
{
    const double factor = m_unit == LengthUnit::Inch ? k_mm_per_inch * k_mm_per_inch : 100.0;
    const QString suffix =
        m_unit == LengthUnit::Inch ? QObject::tr("in\u00b2") : QObject::tr("cm\u00b2");
    return Number(mm2 / factor, 2) + QLatin1Char(' ') + suffix;
}

QString Formatter::Volume(double mm3) const
{
    const double factor = m_unit == LengthUnit::Inch ? std::pow(k_mm_per_inch, 3.0) : 1000.0;
    const QString suffix =
        m_unit == LengthUnit::Inch ? QObject::tr("in\u00b3") : QObject::tr("cm\u00b3");
    return Number(mm3 / factor, 2) + QLatin1Char(' ') + suffix;
}

QString Formatter::Angle(double degrees) const
{
    return Number(degrees, 1) + QChar(0x00b0);
}

QString Formatter::Weight(double mm3, double density) const
{
    const double grams = mm3 / 1000.0 * density;
    if (grams >= 1000.0)
        return Number(grams / 1000.0, 2) + QLatin1Char(' ') + QObject::tr("kg");
    return Number(grams, 1) + QLatin1Char(' ') + QObject::tr("g");
}

} // namespace tarnix
