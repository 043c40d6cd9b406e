#pragma once

#include <ovk/core/export.h>

class QJsonObject;

namespace ovk {

/// What can be written as a JSON object and read back from one.
class OVK_EXPORT IJsonStorable
{
public:
    virtual ~IJsonStorable();

    /// The object that describes this.
    virtual QJsonObject ToJson() const = 0;
    /// Takes over what \a object describes; what is missing there, or of another type, gets its
    /// default. False if the object cannot describe this at all.
    virtual bool FromJson(const QJsonObject& object) = 0;

protected:
    IJsonStorable() = default;
    IJsonStorable(const IJsonStorable&) = default;
    IJsonStorable& operator=(const IJsonStorable&) = default;
};

} // namespace ovk
