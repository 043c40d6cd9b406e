#include "ovk/units/data_binding_controller.h"

#include "ovk/units/data_binding.h"

#include <QSet>

#include <algorithm>

namespace ovk {

DataBindingController::DataBindingController() = default;

DataBindingController::DataBindingController(const DataBindingController&) = default;

DataBindingController& DataBindingController::operator=(const DataBindingController&) = default;

DataBindingController::~DataBindingController()
{
    // A binding that was attached twice stands in the list twice.
    QSet<DataBinding*> deleted;
    for (DataBinding* binding : qAsConst(m_bindings)) {
        if (!deleted.contains(binding)) {
            deleted.insert(binding);
            delete binding;
        }
    }
}

bool DataBindingController::IsValid() const
{
    return std::all_of(m_bindings.begin(), m_bindings.end(),
                       [](const DataBinding* binding) { return binding->IsValid(); })
           && std::all_of(m_sub_controllers.begin(), m_sub_controllers.end(),
                          [](const DataBindingController* sub) { return sub->IsValid(); });
}

bool DataBindingController::IsModified() const
{
    return std::any_of(m_bindings.begin(), m_bindings.end(),
                       [](const DataBinding* binding) { return binding->IsModified(); })
           || std::any_of(m_sub_controllers.begin(), m_sub_controllers.end(),
                          [](const DataBindingController* sub) { return sub->IsModified(); });
}

bool DataBindingController::CommitToSources()
{
    if (!IsValid())
        return false;
    for (DataBindingController* sub : qAsConst(m_sub_controllers))
        sub->CommitToSources();
    for (DataBinding* binding : qAsConst(m_bindings))
        binding->_CommitToSource();
    _OnCommit();
    return true;
}

void DataBindingController::LoadFromSources()
{
    for (DataBindingController* sub : qAsConst(m_sub_controllers))
        sub->LoadFromSources();
    for (DataBinding* binding : qAsConst(m_bindings))
        binding->_LoadFromSource();
    _OnLoad();
}

void DataBindingController::ReloadFromSources()
{
    for (DataBindingController* sub : qAsConst(m_sub_controllers))
        sub->ReloadFromSources();
    for (DataBinding* binding : qAsConst(m_bindings))
        binding->_ReloadFromSource();
    _OnLoad();
}

void DataBindingController::SetTopController(DataBindingController* top)
{
    if (top == mp_top)
        return;
    if (mp_top)
        mp_top->RemoveSubController(this);
    if (top)
        top->AddSubController(this);
}

void DataBindingController::AddSubController(DataBindingController* sub)
{
    if (!sub || m_sub_controllers.contains(sub))
        return;
    for (const DataBindingController* above = this; above; above = above->mp_top) {
        if (above == sub)
            return; // a circle would never end
    }
    m_sub_controllers.append(sub);
    sub->mp_top = this;
}

void DataBindingController::RemoveSubController(DataBindingController* sub)
{
    if (!sub || sub->mp_top != this)
        return;
    m_sub_controllers.removeAll(sub);
    sub->mp_top = nullptr;
}

void DataBindingController::_OnValueChanged(DataBinding* /*binding*/)
{
}

void DataBindingController::_OnValidityChanged(DataBinding* /*binding*/)
{
}

void DataBindingController::_OnCommit()
{
}

void DataBindingController::_OnLoad()
{
}

void DataBindingController::_ValueChanged(DataBinding* binding)
{
    for (DataBindingController* controller = this; controller; controller = controller->mp_top)
        controller->_OnValueChanged(binding);
}

void DataBindingController::_ValidityChanged(DataBinding* binding)
{
    for (DataBindingController* controller = this; controller; controller = controller->mp_top)
        controller->_OnValidityChanged(binding);
}

void DataBindingController::_Attach(DataBinding* binding)
{
    m_bindings.append(binding);
}

} // namespace ovk
