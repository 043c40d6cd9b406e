#include "ovk/units/suffix_label.h"

#include "ovk/core/observer.h"
#include "ovk/units/suffix_controller.h"

namespace ovk {

SuffixLabel::SuffixLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags),
      mp_suffix_observer(
          std::make_unique<ObserverProxy<SuffixLabel>>(this, &SuffixLabel::_OnVisibilityChanged))
{
    SuffixController::GetInstance().Attach(*mp_suffix_observer);
    _UpdateVisibility();
}

SuffixLabel::~SuffixLabel() = default;

bool SuffixLabel::dynamicVisibility() const
{
    return m_dynamic_visibility;
}

void SuffixLabel::setDynamicVisibility(bool dynamic)
{
    if (m_dynamic_visibility == dynamic)
        return;
    m_dynamic_visibility = dynamic;
    _UpdateVisibility();
}

void SuffixLabel::setVisible(bool visible)
{
    m_wanted_visible = visible;
    _UpdateVisibility();
}

void SuffixLabel::_OnVisibilityChanged()
{
    _UpdateVisibility();
}

void SuffixLabel::_UpdateVisibility()
{
    const bool inside = m_dynamic_visibility && SuffixController::GetInstance().IsInsideEditor();
    QLabel::setVisible(m_wanted_visible && !inside);
}

} // namespace ovk

#include "moc_suffix_label.cpp"
