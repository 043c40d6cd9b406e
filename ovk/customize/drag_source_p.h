#pragma once

#include <ovk/core/export.h>

#include <memory>

class QAbstractItemModel;

namespace ovk {

class IUiItem;

/// What is being dragged inside the customise dialog. The MIME data of such a drag are empty; they
/// only tell that the drag is ours, and what is dragged is found here.
class OVK_TEST_EXPORT IDragSource
{
public:
    virtual ~IDragSource();
};

/// A drag source with a payload on the heap.
template <class T> class DragSource : public IDragSource
{
public:
    /// With `ownsPayload` the payload is deleted with the source.
    explicit DragSource(T* payload, bool ownsPayload = true)
        : m_owns_payload(ownsPayload), mp_payload(payload)
    {
    }
    DragSource(const DragSource&) = delete;
    DragSource& operator=(const DragSource&) = delete;
    ~DragSource() override
    {
        if (m_owns_payload)
            delete mp_payload;
    }

    T* GetPayload() const { return mp_payload; }

private:
    bool m_owns_payload;
    T* mp_payload;
};

/// The present drag source of the process; null while nothing was dragged.
OVK_TEST_EXPORT IDragSource* GetDragSource();

/// Replaces the present drag source and deletes the former one; null empties the slot.
OVK_TEST_EXPORT void SetDragSource(std::unique_ptr<IDragSource> source);

/// Empties the slot when it holds rows of `model`, whose nodes are about to go.
void ForgetDraggedRows(const QAbstractItemModel& model);
/// Empties the slot when it holds commands: they are no longer watched.
void ForgetDraggedCommands();
/// Takes a command that was destroyed out of the present drag source.
void ForgetDraggedCommand(const IUiItem* command);

} // namespace ovk
