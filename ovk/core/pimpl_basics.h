#pragma once

namespace ovk {

/// The base of a private implementation class: holds the way back to its owner \a T.
///
/// Inside an `Impl`, `_pr()` is the owner; inside the owner, `_pr()` is the `Impl`.
template <class T>
class PimplBasics
{
public:
    /// The owner.
    T* _pp() { return mp_owner; }
    /// The owner.
    const T* _pp() const { return mp_owner; }
    /// The owner.
    T& _pr() { return *mp_owner; }
    /// The owner.
    const T& _pr() const { return *mp_owner; }
    /// The owner.
    T& owner() { return *mp_owner; }
    /// The owner.
    const T& owner() const { return *mp_owner; }

protected:
    explicit PimplBasics(T& owner) : mp_owner(&owner) {}
    PimplBasics(const PimplBasics&) = default;
    PimplBasics& operator=(const PimplBasics&) = default;
    virtual ~PimplBasics() = default;

    /// Points to another owner, after a copy or a move of the owner.
    void ResetOwner(T& owner) { mp_owner = &owner; }

private:
    T* mp_owner;
};

} // namespace ovk
