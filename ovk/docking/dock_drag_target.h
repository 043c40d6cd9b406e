#pragma once

#include <ovk/core/export.h>

class QPoint;

namespace ovk {

class DockDragController;
class DockWidget;

/// Something that a dragged panel can be dropped on.
///
/// The drag controller of the manager finds the target under the cursor and calls it in a fixed
/// order: enter, over (at each step of the cursor, the first one right after enter), then leave or
/// drop. All positions are in global coordinates. A target may be destroyed at any time; the
/// controller forgets it then.
class OVK_EXPORT IDockDragTarget
{
public:
    IDockDragTarget() = default;
    IDockDragTarget(const IDockDragTarget&) = delete;
    IDockDragTarget& operator=(const IDockDragTarget&) = delete;

    /// The target became the current one of the drag of `widget`.
    virtual void OnDragEnter(DockWidget& widget, const QPoint& pos) = 0;

    /// The target stops being current. `next` is the target that takes its place, or null.
    virtual void OnDragLeave(DockWidget& widget, IDockDragTarget* next, const QPoint& pos) = 0;

    /// The cursor moved over the current target.
    virtual void OnDragOver(DockWidget& widget, const QPoint& pos) = 0;

    /// The button went up over the target.
    virtual void OnDragDrop(DockWidget& widget, const QPoint& pos) = 0;

    /// The evaluation of the drag is dropped: no preview may stay.
    virtual void OnDragCancel(DockWidget& widget, const QPoint& pos) = 0;

    /// Clears itself out of the controller that holds it.
    virtual ~IDockDragTarget();

private:
    friend class DockDragController;

    DockDragController* mp_controller = nullptr;
};

} // namespace ovk
