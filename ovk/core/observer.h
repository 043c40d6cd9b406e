#pragma once

#include <ovk/core/export.h>
#include <ovk/core/simple_lock.h>

#include <functional>

namespace ovk {

class Observable;

namespace impl {

/// A link of the ring of observers that an Observable holds. A free link points to itself.
struct ObserverLink
{
    ObserverLink* previous = this;
    ObserverLink* next = this;
};

} // namespace impl

/// Is told of the changes of the one Observable that it is attached to.
///
/// An observer leaves its Observable when it is destroyed, and is left detached when its
/// Observable is destroyed first. While it is being notified, further notifications of it are
/// dropped. One thread only.
class OVK_EXPORT Observer : private impl::ObserverLink
{
public:
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    /// Detaches.
    virtual ~Observer();

    /// The Observable that this is attached to; null when detached.
    Observable* GetObservable() { return m_observable; }
    /// The Observable that this is attached to; null when detached.
    const Observable* GetObservable() const { return m_observable; }

protected:
    /// Creates a detached observer. With \a deleteOnDetach it belongs to nobody but itself and
    /// deletes itself when it is detached.
    explicit Observer(bool deleteOnDetach = false);

    /// Called on a change, once at a time. An observer should not leave its Observable from here.
    virtual void _DoOnNotify() = 0;

    /// The marker that is held during _DoOnNotify(). A subclass may take it around a write of its
    /// own, so that the write's notification does not come back to it.
    SimpleLock& _GetLocker() { return m_locker; }

private:
    friend class Observable;

    void _SetObservable(Observable* next);
    void _OnNotify()
    {
        if (const auto marker = m_locker.Acquire())
            _DoOnNotify();
    }

    Observable* m_observable = nullptr;
    SimpleLock m_locker;
    bool m_delete_on_detach;
    bool m_destroying = false;
};

/// An observer that calls a function. An empty function raises std::bad_function_call when called.
class OVK_EXPORT ObserverFunctor : public Observer
{
public:
    /// \a function is called on each notification; see Observer for \a deleteOnDetach.
    ObserverFunctor(const std::function<void()>& function, bool deleteOnDetach);
    ~ObserverFunctor() override;

protected:
    void _DoOnNotify() override;

private:
    std::function<void()> m_function;
};

/// An observer that calls a member function of an object: a widget holds its observers as members
/// with no allocation and no closure.
template <class T>
class ObserverProxy : public Observer
{
public:
    /// A member function without arguments.
    using Member = void (T::*)();

    /// Calls \a member of \a target, which must outlive the proxy's attachment; not owned. With a
    /// null target or member a notification does nothing.
    ObserverProxy(T* target, Member member, bool deleteOnDetach = false)
        : Observer(deleteOnDetach), mp_target(target), m_member(member)
    {
    }

protected:
    void _DoOnNotify() override
    {
        if (mp_target && m_member)
            (mp_target->*m_member)();
    }

private:
    T* mp_target;
    Member m_member;
};

} // namespace ovk
