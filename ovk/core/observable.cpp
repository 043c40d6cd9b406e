#include "ovk/core/observable.h"

#include <memory>

namespace ovk {

/// One walk over the observers. The link that the walk stands on is kept here, so that it can step
/// back when that observer leaves, and stop when the Observable goes.
struct Observable::Walk
{
    explicit Walk(Observable& observable)
        : owner(observable), at(&observable.m_observers), outer(observable.mp_walk)
    {
        observable.mp_walk = this;
    }
    ~Walk()
    {
        if (at)
            owner.mp_walk = outer;
    }
    Q_DISABLE_COPY(Walk)

    Observable& owner;
    impl::ObserverLink* at;
    Walk* outer;
    /// The first observer that moved to the end from inside its own notification. The walk ends
    /// there, or it would not end at all.
    impl::ObserverLink* last = nullptr;
    /// An observer that belonged to itself and left from inside its own notification. It lives
    /// until that has returned.
    std::unique_ptr<Observer> leaving;
};

Observable::Observable() = default;

Observable::~Observable()
{
    while (m_observers.next != &m_observers)
        Detach(*static_cast<Observer*>(m_observers.next));
    for (Walk* walk = mp_walk; walk; walk = walk->outer)
        walk->at = nullptr;
}

void Observable::Attach(Observer& observer)
{
    observer._SetObservable(this);
}

void Observable::Attach(Observer* observer)
{
    if (observer)
        observer->_SetObservable(this);
}

Observer* Observable::Attach(const std::function<void()>& function)
{
    // Owned by itself from here on: Detach and the destructor delete it.
    auto* const observer = new ObserverFunctor(function, true);
    Attach(*observer);
    return observer;
}

void Observable::Detach(Observer& observer)
{
    observer._SetObservable(nullptr);
}

bool Observable::SuspendNotify()
{
    if (IsNotifySuspended())
        return false;
    m_state = nsSuspended;
    return true;
}

bool Observable::ResumeNotify(bool notifyIfPending)
{
    if (!IsNotifySuspended())
        return false;
    const bool pending = m_state == nsSuspendedPending;
    m_state = nsActive;
    if (notifyIfPending && pending)
        _Notify();
    return true;
}

void Observable::_Notify()
{
    if (IsNotifySuspended()) {
        m_state = nsSuspendedPending;
        return;
    }
    Walk walk(*this);
    impl::ObserverLink* const end = &m_observers;
    for (impl::ObserverLink* link = end->next; link != end && link != walk.last; link = walk.at->next) {
        walk.at = link;
        static_cast<Observer*>(link)->_OnNotify();
        if (walk.leaving)
            walk.leaving.reset();
        if (!walk.at)
            return;
    }
}

void Observable::_InternalAttach(Observer& observer)
{
    impl::ObserverLink& link = observer;
    link.previous = m_observers.previous;
    link.next = &m_observers;
    m_observers.previous->next = &link;
    m_observers.previous = &link;
}

Observable::Walk* Observable::_InternalDetach(Observer& observer)
{
    impl::ObserverLink& link = observer;
    Walk* running = nullptr;
    for (Walk* walk = mp_walk; walk; walk = walk->outer) {
        if (walk->last == &link)
            walk->last = nullptr;
        if (walk->at == &link) {
            walk->at = link.previous;
            if (!walk->last)
                walk->last = &link;
            running = walk;
        }
    }
    link.previous->next = link.next;
    link.next->previous = link.previous;
    link.previous = link.next = &link;
    return running;
}

void Observable::_Dispose(Observer* observer, Walk* running)
{
    if (running)
        running->leaving.reset(observer);
    else
        delete observer;
}

} // namespace ovk
