#include "ovk/core/named.h"

namespace ovk {

Named::Named(const QString& name) : mp_name(std::make_unique<QString>(name))
{
}

Named::Named(const Named& other) : Named(*other.mp_name)
{
}

Named::~Named() = default;

Named& Named::operator=(const Named& other)
{
    if (this != &other)
        *mp_name = *other.mp_name;
    return *this;
}

bool Named::operator==(const Named& other) const
{
    return *mp_name == *other.mp_name;
}

const QString& Named::GetName() const
{
    return *mp_name;
}

void Named::_SetName(const QString& name)
{
    *mp_name = name;
}

} // namespace ovk
