#pragma once

#include <functional>
#include <type_traits>

namespace ovk {

/// What can be walked in order. `T` is a pointer type; the walker owns nothing of what it visits.
template <typename T>
class IEnumerable
{
public:
    static_assert(std::is_pointer_v<T>, "the items of an enumeration are pointers");

    using Item = T;
    using ConstItem = const std::remove_pointer_t<T>*;

    /// Calls `visit` on the items in order and stops at the first for which it answers false.
    /// Returns that item, or null when all were visited. An empty `visit` raises the standard
    /// bad-function-call error as soon as there is an item.
    virtual T ForEach(std::function<bool(T)> visit) = 0;

    /// The same over items that the visitor only reads.
    virtual ConstItem ForEach(std::function<bool(ConstItem)> visit) const = 0;

protected:
    IEnumerable() = default;
    IEnumerable(const IEnumerable&) = default;
    IEnumerable& operator=(const IEnumerable&) = default;
    ~IEnumerable() = default;
};

/// An enumeration whose items can also be counted and reached by position.
template <typename T>
class IContainer : public IEnumerable<T>
{
public:
    /// Number of items.
    virtual int GetCount() const = 0;

    /// The item at that position; null out of range.
    virtual T GetItem(int index) const = 0;

protected:
    IContainer() = default;
    IContainer(const IContainer&) = default;
    IContainer& operator=(const IContainer&) = default;
    ~IContainer() = default;
};

} // namespace ovk
