#pragma once

#include <ovk/core/export.h>

class QString;

namespace ovk {

/// A version of four parts.
class OVK_EXPORT VersionInfo
{
public:
    /// 0.0.0.0.
    VersionInfo() = default;
    VersionInfo(int major, int minor, int patch, int build);

    /// Sets all four parts.
    void SetVersionInfo(int major, int minor, int patch, int build);
    /// Gives all four parts.
    void GetVersionInfo(int& major, int& minor, int& patch, int& build) const;

    /// True if the major part is not 0; 0.5.0.0 is not valid.
    bool IsValid() const;

    bool operator==(const VersionInfo& other) const;
    /// The most significant part that differs decides.
    bool operator>(const VersionInfo& other) const;
    bool operator<(const VersionInfo& other) const;

    /// The four parts in decimal, separated by dots.
    QString ToString() const;
    /// Reads four parts separated by dots; a part that is no number is 0. With any other number of
    /// parts the object keeps its value.
    void FromString(const QString& text);

private:
    int m_major = 0;
    int m_minor = 0;
    int m_patch = 0;
    int m_build = 0;
};

} // namespace ovk
