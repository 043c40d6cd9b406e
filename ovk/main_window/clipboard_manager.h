#pragma once

#include <ovk/core/export.h>

class QMimeData;

namespace ovk {

/// What the host does with data that the user drops on the work area.
///
/// Implemented by the host and given to WorkArea::SetClipboardManager.
class OVK_EXPORT IClipboardManager
{
public:
    /// Takes the dropped data. `data` is owned by the drop and valid only during the call.
    virtual void DropData(const QMimeData* data) = 0;

    /// Whether DropData would take the data; asked when a drag enters the work area.
    virtual bool CanDropData(const QMimeData* data) = 0;

    virtual ~IClipboardManager() = default;
};

} // namespace ovk
