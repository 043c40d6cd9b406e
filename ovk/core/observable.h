#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observer.h>

#include <functional>

namespace ovk {

/// Something that tells its observers of a change.
///
/// A notification is a chain of direct calls in the order of attachment, made before the changing
/// call returns. The walk is over the live list: an observer attached meanwhile is reached in the
/// same pass, and one detached ahead of the walk is not. There is no queue and no coalescing
/// except SuspendNotify(). One thread only.
class OVK_EXPORT Observable
{
public:
    Observable();
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    /// Detaches all observers, the first one first, with no notification.
    virtual ~Observable();

    /// Attaches \a observer at the end of the list; it leaves the Observable it had. Not owned.
    void Attach(Observer& observer);
    /// The same; null is ignored.
    void Attach(Observer* observer);
    /// Attaches a new observer that calls \a function. It belongs to itself and lives until it is
    /// detached or this is destroyed.
    Observer* Attach(const std::function<void()>& function);
    /// Detaches \a observer from whichever Observable it is attached to. This deletes an observer
    /// that belongs to itself.
    void Detach(Observer& observer);

    /// Holds notifications back. Answers false, and changes nothing, if they are held back
    /// already: the answer tells whether ResumeNotify() is the caller's to call.
    bool SuspendNotify();
    /// Lets notifications through again; notifies once if one was swallowed and
    /// \a notifyIfPending. Answers false if nothing was held back.
    bool ResumeNotify(bool notifyIfPending);
    /// True while notifications are held back, with or without one pending.
    bool IsNotifySuspended() const { return m_state != nsActive; }

protected:
    /// Notifies all observers, or remembers that there is something to notify while suspended.
    void _Notify();

private:
    friend class Observer;

    enum NotifyState : int {
        nsActive = 0,
        nsSuspended = 1,
        nsSuspendedPending = 2
    };

    struct Walk;

    void _InternalAttach(Observer& observer);
    /// Answers the walk that is calling the observer, if there is one.
    Walk* _InternalDetach(Observer& observer);
    /// Deletes an observer that belonged to itself, as soon as \a running no longer calls it.
    static void _Dispose(Observer* observer, Walk* running);

    impl::ObserverLink m_observers;
    NotifyState m_state = nsActive;
    Walk* mp_walk = nullptr;
};

/// An Observable that anybody may trigger.
class OVK_EXPORT Signal : public Observable
{
public:
    /// Notifies all observers.
    void Emit() { _Notify(); }
};

} // namespace ovk
