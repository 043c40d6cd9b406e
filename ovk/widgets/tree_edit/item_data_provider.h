#pragma once

#include <ovk/core/export.h>

#include <QVariant>

namespace ovk {

/// Where a row of a TreeEdit has its value; written by the host.
class OVK_EXPORT IItemDataProvider
{
public:
    /// The value.
    virtual QVariant GetData() = 0;
    /// Changes the value; answers whether it was taken.
    virtual bool SetData(const QVariant& value) = 0;

    virtual ~IItemDataProvider();
};

} // namespace ovk
