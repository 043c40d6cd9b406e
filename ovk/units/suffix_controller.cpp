#include "ovk/units/suffix_controller.h"

namespace ovk {

SuffixController& SuffixController::GetInstance()
{
    static SuffixController s_controller;
    return s_controller;
}

bool SuffixController::IsInsideEditor() const
{
    return m_inside_editor;
}

void SuffixController::SetInsideEditor(bool inside)
{
    if (m_inside_editor == inside)
        return;
    m_inside_editor = inside;
    _Notify();
}

} // namespace ovk
