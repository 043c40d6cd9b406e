#include "file_version.h"

#include "version_block_p.h"

#include "ovk/core/version_info.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

#ifdef Q_OS_WIN
#    include <qt_windows.h>
#    include <vector>
#endif

namespace ovk {

#ifdef Q_OS_WIN

VersionInfo ReadFileVersion(const QString& path)
{
    const QByteArray file = path.toLocal8Bit();
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(file.constData(), &ignored);
    if (size == 0)
        return VersionInfo();
    std::vector<char> block(size);
    if (!GetFileVersionInfoA(file.constData(), 0, size, block.data()))
        return VersionInfo();
    void* data = nullptr;
    UINT length = 0;
    if (!VerQueryValueA(block.data(), "\\", &data, &length) || length == 0)
        return VersionInfo();
    const auto* const fixed = static_cast<const VS_FIXEDFILEINFO*>(data);
    if (fixed->dwSignature != 0xfeef04bd)
        return VersionInfo();
    return VersionInfo(HIWORD(fixed->dwFileVersionMS), LOWORD(fixed->dwFileVersionMS),
                       HIWORD(fixed->dwFileVersionLS), LOWORD(fixed->dwFileVersionLS));
}

#else

VersionInfo ReadFileVersion(const QString& path)
{
    // A pipe or a device of that name would block or never end.
    if (!QFileInfo(path).isFile())
        return VersionInfo();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? ReadVersionBlock(file) : VersionInfo();
}

#endif

VersionInfo ReadFileVersion(const QByteArray& image)
{
    QBuffer buffer;
    buffer.setData(image);
    return buffer.open(QIODevice::ReadOnly) ? ReadVersionBlock(buffer) : VersionInfo();
}

} // namespace ovk
