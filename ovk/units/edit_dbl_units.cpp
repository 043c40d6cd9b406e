#include "ovk/units/edit_dbl_units.h"

#include "edit_dbl_suffix_p.h"

#include "ovk/units/units_controller.h"
#include "ovk/units/units_pair.h"

namespace ovk {

class EditDblUnits::Impl : public EditDblSuffixPrivate
{
public:
    explicit Impl(EditDblUnits& owner) : EditDblSuffixPrivate(owner) {}

    void Observe()
    {
        mp_units_observer = std::make_unique<ObserverProxy<Impl>>(this, &Impl::Update);
        UnitsController::GetInstance().Attach(*mp_units_observer);
    }

    /// Brings the editor in line with the current units. Its value is nobody's concern here, so the
    /// clamping is silent.
    void Update()
    {
        EditDblSuffix& editor = _pr();
        const IUnits& units = UnitsController::GetCurrentUnits();
        editor.blockSignals(true);
        if (m_dynamic_decimals)
            editor.spinBox()->setDecimals(units.GetDecimals());
        if (m_min.IsValid())
            editor.setMinimum(m_min.GetActual());
        if (m_max.IsValid())
            editor.setMaximum(m_max.GetActual());
        if (m_step.IsValid())
            editor.setSingleStep(m_step.GetActual());
        editor.blockSignals(false);
        UpdateSuffix();
    }

    void UpdateSuffix()
    {
        if (m_dynamic_suffix)
            _pr().setSuffix(UnitsController::GetCurrentUnits().GetAbbreviation());
    }

    std::unique_ptr<ObserverProxy<Impl>> mp_units_observer;
    UnitsPair m_min;
    UnitsPair m_max;
    UnitsPair m_step;
    bool m_dynamic_suffix = true;
    bool m_dynamic_decimals = true;
};

EditDblUnits::EditDblUnits(QWidget* parent) : EditDblSuffix(new Impl(*this), parent)
{
    _Units().Observe();
    _Units().Update();
}

EditDblUnits::~EditDblUnits() = default;

void EditDblUnits::changeEvent(QEvent* event)
{
    EditDblSuffix::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        _Units().UpdateSuffix();
}

EditDblUnits::Impl& EditDblUnits::_Units()
{
    return static_cast<Impl&>(_pr());
}

const EditDblUnits::Impl& EditDblUnits::_Units() const
{
    return static_cast<const Impl&>(_pr());
}

double EditDblUnits::minMm() const
{
    return _Units().m_min.GetMm();
}

double EditDblUnits::minInch() const
{
    return _Units().m_min.GetInch();
}

double EditDblUnits::maxMm() const
{
    return _Units().m_max.GetMm();
}

double EditDblUnits::maxInch() const
{
    return _Units().m_max.GetInch();
}

void EditDblUnits::setMinMm(double mm)
{
    _Units().m_min.SetMm(mm);
    _Units().Update();
}

void EditDblUnits::setMinInch(double inch)
{
    _Units().m_min.SetInch(inch);
    _Units().Update();
}

void EditDblUnits::setMaxMm(double mm)
{
    _Units().m_max.SetMm(mm);
    _Units().Update();
}

void EditDblUnits::setMaxInch(double inch)
{
    _Units().m_max.SetInch(inch);
    _Units().Update();
}

const UnitsPair& EditDblUnits::min() const
{
    return _Units().m_min;
}

const UnitsPair& EditDblUnits::max() const
{
    return _Units().m_max;
}

const UnitsPair& EditDblUnits::step() const
{
    return _Units().m_step;
}

void EditDblUnits::setMin(const UnitsPair& min)
{
    _Units().m_min = min;
    _Units().Update();
}

void EditDblUnits::setMax(const UnitsPair& max)
{
    _Units().m_max = max;
    _Units().Update();
}

void EditDblUnits::setStep(const UnitsPair& step)
{
    _Units().m_step = step;
    _Units().Update();
}

bool EditDblUnits::dynamicSuffix() const
{
    return _Units().m_dynamic_suffix;
}

void EditDblUnits::setDynamicSuffix(bool dynamic)
{
    if (_Units().m_dynamic_suffix == dynamic)
        return;
    _Units().m_dynamic_suffix = dynamic;
    _Units().Update();
}

bool EditDblUnits::dynamicDecimals() const
{
    return _Units().m_dynamic_decimals;
}

void EditDblUnits::setDynamicDecimals(bool dynamic)
{
    if (_Units().m_dynamic_decimals == dynamic)
        return;
    _Units().m_dynamic_decimals = dynamic;
    _Units().Update();
}

void EditDblUnits::setDecimals(int decimals)
{
    if (!_Units().m_dynamic_decimals)
        EditDblSuffix::setDecimals(decimals);
}

} // namespace ovk

#include "moc_edit_dbl_units.cpp"
