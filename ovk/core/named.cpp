#include "ovk/core/named.h"

#include "named_p.h"

namespace ovk {

namespace {

quint64 g_renames = 0;

} // namespace

quint64 impl::CountOfRenames()
{
    return g_renames;
}

Named::Named(const QString& name) : m_name(name)
{
}

Named::Named(const Named& other) : m_name(other.m_name)
{
}

Named::~Named() = default;

Named& Named::operator=(const Named& other)
{
    if (this != &other) {
        m_name = other.m_name;
        ++g_renames;
    }
    return *this;
}

bool Named::operator==(const Named& other) const
{
    return m_name == other.m_name;
}

const QString& Named::GetName() const
{
    return m_name;
}

void Named::_SetName(const QString& name)
{
    m_name = name;
    ++g_renames;
}

} // namespace ovk
