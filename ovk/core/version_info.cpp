#include "ovk/core/version_info.h"

#include <QRegExp>
#include <QString>
#include <QStringList>

#include <tuple>

namespace ovk {

VersionInfo::VersionInfo(int major, int minor, int patch, int build)
    : m_major(major), m_minor(minor), m_patch(patch), m_build(build)
{
}

void VersionInfo::SetVersionInfo(int major, int minor, int patch, int build)
{
    *this = VersionInfo(major, minor, patch, build);
}

void VersionInfo::GetVersionInfo(int& major, int& minor, int& patch, int& build) const
{
    major = m_major;
    minor = m_minor;
    patch = m_patch;
    build = m_build;
}

bool VersionInfo::IsValid() const
{
    return m_major != 0;
}

bool VersionInfo::operator==(const VersionInfo& other) const
{
    return std::tie(m_major, m_minor, m_patch, m_build)
           == std::tie(other.m_major, other.m_minor, other.m_patch, other.m_build);
}

bool VersionInfo::operator>(const VersionInfo& other) const
{
    return other < *this;
}

bool VersionInfo::operator<(const VersionInfo& other) const
{
    return std::tie(m_major, m_minor, m_patch, m_build)
           < std::tie(other.m_major, other.m_minor, other.m_patch, other.m_build);
}

QString VersionInfo::ToString() const
{
    return QStringLiteral("%1.%2.%3.%4").arg(m_major).arg(m_minor).arg(m_patch).arg(m_build);
}

void VersionInfo::FromString(const QString& text)
{
    const QStringList parts = text.split(QRegExp(QStringLiteral("(\\.)")));
    if (parts.size() != 4)
        return;
    m_major = parts.at(0).toInt(nullptr, 10);
    m_minor = parts.at(1).toInt(nullptr, 10);
    m_patch = parts.at(2).toInt(nullptr, 10);
    m_build = parts.at(3).toInt(nullptr, 10);
}

} // namespace ovk
