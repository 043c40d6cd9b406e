#include "ovk/customize/drag_source_p.h"

#include "ovk/commands/ui_item.h"

#include <QList>
#include <QModelIndex>

namespace ovk {

namespace {

std::unique_ptr<IDragSource>& Slot()
{
    static std::unique_ptr<IDragSource> source;
    return source;
}

} // namespace

IDragSource::~IDragSource() = default;

IDragSource* GetDragSource()
{
    return Slot().get();
}

void SetDragSource(std::unique_ptr<IDragSource> source)
{
    Slot() = std::move(source);
}

void ForgetDraggedRows(const QAbstractItemModel& model)
{
    const auto* list = dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource());
    const auto* one = dynamic_cast<DragSource<QModelIndex>*>(GetDragSource());
    if ((list && !list->GetPayload()->isEmpty() && list->GetPayload()->first().model() == &model) ||
        (one && one->GetPayload()->model() == &model))
        SetDragSource(nullptr);
}

void ForgetDraggedCommands()
{
    if (dynamic_cast<DragSource<QList<IUiItem*>>*>(GetDragSource()))
        SetDragSource(nullptr);
}

void ForgetDraggedCommand(const IUiItem* command)
{
    if (auto* source = dynamic_cast<DragSource<QList<IUiItem*>>*>(GetDragSource()))
        source->GetPayload()->removeAll(const_cast<IUiItem*>(command));
}

} // namespace ovk
