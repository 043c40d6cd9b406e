#pragma once

#include <ovk/core/export.h>
#include <ovk/core/observable.h>

namespace ovk {

/// Holds whether unit suffixes are shown inside numeric editors or beside them in a SuffixLabel,
/// and notifies when that changes.
class OVK_EXPORT SuffixController : public Observable
{
public:
    /// The one object.
    static SuffixController& GetInstance();

    /// True if suffixes are shown inside the editors; false at the start.
    bool IsInsideEditor() const;
    /// Changes where suffixes are shown.
    void SetInsideEditor(bool inside);

private:
    SuffixController() = default;

    bool m_inside_editor = false;
};

} // namespace ovk
