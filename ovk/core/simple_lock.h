#pragma once

#include <ovk/core/export.h>

namespace ovk {

/// A re-entrancy marker of one thread; not a mutex.
///
/// The marker is taken with Acquire() and given back when the returned ScopedMarker ends.
class SimpleLock
{
public:
    /// Holds the marker while it lives, if it was free at construction.
    class ScopedMarker
    {
    public:
        ScopedMarker(const ScopedMarker&) = delete;
        ScopedMarker& operator=(const ScopedMarker&) = delete;
        /// Takes the ownership over; the source then does nothing at its end.
        ScopedMarker(ScopedMarker&& other) noexcept : m_lock(other.m_lock), m_owns(other.m_owns)
        {
            other.m_owns = false;
        }
        ~ScopedMarker()
        {
            if (m_owns)
                m_lock._Unlock();
        }

        /// True if this marker took the lock; false if it was taken already.
        operator bool() const { return m_owns; }

    private:
        friend class SimpleLock;
        explicit ScopedMarker(SimpleLock& lock) : m_lock(lock), m_owns(lock._Lock()) {}

        SimpleLock& m_lock;
        bool m_owns;
    };

    /// Takes the marker if it is free; ask the result whether it was.
    [[nodiscard]] ScopedMarker Acquire() { return ScopedMarker(*this); }

    /// True while some ScopedMarker holds this lock.
    bool IsLocked() const { return m_locked; }

private:
    bool _Lock()
    {
        if (m_locked)
            return false;
        m_locked = true;
        return true;
    }

    bool _Unlock()
    {
        if (!m_locked)
            return false;
        m_locked = false;
        return true;
    }

    bool m_locked = false;
};

} // namespace ovk
