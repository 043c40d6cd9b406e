#include "ovk/customize/drag_source_p.h"

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

} // namespace ovk
