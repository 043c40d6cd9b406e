#include "ovk/core/observer.h"

#include "ovk/core/observable.h"

namespace ovk {

Observer::Observer(bool deleteOnDetach) : m_delete_on_detach(deleteOnDetach)
{
}

Observer::~Observer()
{
    m_destroying = true;
    _SetObservable(nullptr);
}

void Observer::_SetObservable(Observable* next)
{
    const bool was_attached = m_observable != nullptr;
    Observable::Walk* running = nullptr;
    if (was_attached) {
        running = m_observable->_InternalDetach(*this);
        m_observable = nullptr;
    }
    if (next) {
        m_observable = next;
        next->_InternalAttach(*this);
    } else if (was_attached && m_delete_on_detach && !m_destroying) {
        m_delete_on_detach = false;
        Observable::_Dispose(this, running);
    }
}

ObserverFunctor::ObserverFunctor(const std::function<void()>& function, bool deleteOnDetach)
    : Observer(deleteOnDetach), m_function(function)
{
}

ObserverFunctor::~ObserverFunctor() = default;

void ObserverFunctor::_DoOnNotify()
{
    m_function();
}

} // namespace ovk
