#include "updatable_context.h"

namespace ovk {

UpdatableContext::~UpdatableContext() = default;

bool UpdatableContext::HasPartsOnActiveDataSet() const
{
    return GetPartsOnActiveDataSet() != 0;
}

bool UpdatableContext::HasSlicesOnActiveDataSet() const
{
    return GetSlicesOnActiveDataSet() != 0;
}

bool UpdatableContext::HasSelectedPartsOnActiveDataSet() const
{
    return GetSelectedPartsOnActiveDataSet() != 0;
}

bool UpdatableContext::HasSelectedSlicesOnActiveDataSet() const
{
    return GetSelectedSlicesOnActiveDataSet() != 0;
}

bool UpdatableContext::HasPartsOnModelerSet() const
{
    return GetPartsOnModelerSet() != 0;
}

bool UpdatableContext::HasSlicesOnModelerSet() const
{
    return GetSlicesOnModelerSet() != 0;
}

bool UpdatableContext::HasSelectedPartsOnModelerSet() const
{
    return GetSelectedPartsOnModelerSet() != 0;
}

bool UpdatableContext::HasSelectedSlicesOnModelerSet() const
{
    return GetSelectedSlicesOnModelerSet() != 0;
}

} // namespace ovk
