#include "ovk/core/save_file_p.h"

#include <QBuffer>
#include <QSaveFile>

namespace ovk {

bool SaveFile(const QString& path, const std::function<bool(QIODevice&)>& write)
{
    // Made in memory first: a disk that fills up may take half of a write and call that a success.
    QBuffer content;
    if (!content.open(QIODevice::WriteOnly) || !write(content))
        return false;
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray& bytes = content.data();
    if (file.write(bytes) != bytes.size() || !file.flush())
        file.cancelWriting();
    return file.commit();
}

} // namespace ovk
