#pragma once

#include <ovk/core/export.h>

namespace ovk {

class ITreeItem;
class IUiItem;

/// A node some of whose children may not exist in the current product. Its positions count only
/// the children that do.
class OVK_EXPORT IStateAvailable
{
public:
    /// The number of available children.
    virtual int GetAvailableCount() const = 0;
    /// The available child at that position; null out of range.
    virtual ITreeItem* GetAvailableChild(int index) const = 0;
    /// The position of the available child that stands for \a item; -1 if there is none.
    virtual int GetAvailableIndexOf(const IUiItem* item) const = 0;

protected:
    IStateAvailable() = default;
    IStateAvailable(const IStateAvailable&) = default;
    IStateAvailable& operator=(const IStateAvailable&) = default;
    ~IStateAvailable() = default;
};

} // namespace ovk
