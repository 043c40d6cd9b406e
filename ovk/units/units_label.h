#pragma once

#include <ovk/units/suffix_label.h>

#include <QString>

namespace ovk {

/// A label that shows the current units, as a length, an area or a volume.
class OVK_EXPORT UnitsLabel : public SuffixLabel
{
    Q_OBJECT
    Q_PROPERTY(QString formatString READ formatString WRITE setFormatString)
    Q_PROPERTY(PowerValue powerValue READ powerValue WRITE setPowerValue)

public:
    /// The power of the unit.
    enum PowerValue {
        pvSingle = 0,
        pvSquare = 1,
        pvVolume = 2
    };
    Q_ENUM(PowerValue)

    explicit UnitsLabel(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~UnitsLabel() override;

    /// The text in which "%1" stands for the unit; empty for the unit alone.
    QString formatString() const;
    /// Changes the text around the unit.
    void setFormatString(const QString& format);
    /// The power of the unit.
    PowerValue powerValue() const;
    /// Changes the power of the unit.
    void setPowerValue(PowerValue power);

protected:
    /// In another language the unit is abbreviated anew.
    void changeEvent(QEvent* event) override;

private:
    void _OnUnitsChanged();
    void _UpdateText();

    QString m_format_string;
    PowerValue m_power_value = pvSingle;
    std::unique_ptr<ObserverProxy<UnitsLabel>> mp_units_observer;
};

} // namespace ovk
