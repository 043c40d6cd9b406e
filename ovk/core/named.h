#pragma once

#include <ovk/core/export.h>

#include <QString>

namespace ovk {

/// Something with a name.
class OVK_EXPORT Named
{
public:
    /// Has the same name.
    Named(const Named& other);
    virtual ~Named();

    /// Takes the name of \a other.
    Named& operator=(const Named& other);
    /// True if both names are the same, case included.
    bool operator==(const Named& other) const;

    /// The name.
    const QString& GetName() const;

protected:
    explicit Named(const QString& name);

    /// Changes the name.
    virtual void _SetName(const QString& name);

private:
    QString m_name;
};

} // namespace ovk
