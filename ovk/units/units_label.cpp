#include "ovk/units/units_label.h"

#include "ovk/core/observer.h"
#include "ovk/units/units_controller.h"

#include <QRegularExpression>

namespace ovk {

namespace {

/// QString::arg complains on the console of a text without a place for its argument.
bool HasPlace(const QString& format)
{
    static const QRegularExpression s_place(QStringLiteral("%L?\\d"));
    return format.contains(s_place);
}

} // namespace

UnitsLabel::UnitsLabel(QWidget* parent, Qt::WindowFlags flags)
    : SuffixLabel(parent, flags),
      mp_units_observer(std::make_unique<ObserverProxy<UnitsLabel>>(this, &UnitsLabel::_OnUnitsChanged))
{
    UnitsController::GetInstance().Attach(*mp_units_observer);
    _UpdateText();
}

UnitsLabel::~UnitsLabel() = default;

QString UnitsLabel::formatString() const
{
    return m_format_string;
}

void UnitsLabel::setFormatString(const QString& format)
{
    if (m_format_string == format)
        return;
    m_format_string = format;
    _UpdateText();
}

UnitsLabel::PowerValue UnitsLabel::powerValue() const
{
    return m_power_value;
}

void UnitsLabel::setPowerValue(PowerValue power)
{
    if (m_power_value == power)
        return;
    m_power_value = power;
    _UpdateText();
}

void UnitsLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        _UpdateText();
}

void UnitsLabel::_OnUnitsChanged()
{
    _UpdateText();
}

void UnitsLabel::_UpdateText()
{
    QString text = UnitsController::GetCurrentUnits().GetAbbreviation();
    if (m_power_value == pvSquare)
        text += QChar(0x00b2);
    else if (m_power_value == pvVolume)
        text += QChar(0x00b3);
    if (!m_format_string.isEmpty())
        text = HasPlace(m_format_string) ? m_format_string.arg(text) : m_format_string;
    setText(text);
}

} // namespace ovk

#include "moc_units_label.cpp"
