#include "ovk/core/save_file_p.h"

#include <QSaveFile>

namespace ovk {

bool SaveFile(const QString& path, const std::function<bool(QIODevice&)>& write)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (!write(file))
        file.cancelWriting();
    return file.commit();
}

} // namespace ovk
