#include "ovk/core/save_file_p.h"

#include <QBuffer>
#include <QSaveFile>

namespace ovk {

namespace {

bool WriteAll(QFileDevice& file, const QByteArray& bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

bool Replace(QSaveFile& file, const QByteArray& bytes)
{
    if (!WriteAll(file, bytes))
        file.cancelWriting();
    return file.commit();
}

/// Writes over what is in the file, which still has the room for that if the new content does not
/// fit on the disk.
bool Overwrite(QFile& file, const QByteArray& bytes)
{
    const QByteArray old = file.readAll();
    if (file.error() == QFileDevice::NoError && file.seek(0) && WriteAll(file, bytes) && file.resize(bytes.size()))
        return true;
    file.unsetError();
    if (file.seek(0) && WriteAll(file, old))
        file.resize(old.size());
    return false;
}

} // namespace

bool SaveFile(const QString& path, const std::function<bool(QIODevice&)>& write)
{
    // Made in memory first: a disk that fills up may take half of a write and call that a success.
    QBuffer content;
    if (!content.open(QIODevice::WriteOnly) || !write(content))
        return false;
    QSaveFile beside(path);
    if (beside.open(QIODevice::WriteOnly))
        return Replace(beside, content.data());
    QFile file(path);
    return file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)
           && !file.isSequential() && Overwrite(file, content.data());
}

} // namespace ovk
