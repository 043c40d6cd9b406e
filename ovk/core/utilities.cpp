#include "ovk/core/utilities.h"

#include <QAbstractItemModel>
#include <QString>

namespace ovk {

namespace Utilities {

namespace {

bool ForEachChild(const QAbstractItemModel& model, const QModelIndex& parent,
                  const std::function<bool(const QModelIndex&)>& visit)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        if (!ForEach(model.index(row, 0, parent), visit))
            return false;
    }
    return true;
}

} // namespace

bool ForEach(const QModelIndex& index, const std::function<bool(const QModelIndex&)>& visit)
{
    if (!visit(index))
        return false;
    const QAbstractItemModel* const model = index.model();
    return !model || ForEachChild(*model, index, visit);
}

bool ForEach(QAbstractItemModel& model, const std::function<bool(const QModelIndex&)>& visit)
{
    return ForEachChild(model, QModelIndex(), visit);
}

QString StripAmpersands(const QString& text)
{
    QString stripped;
    stripped.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&')) {
            stripped += text.at(i);
        } else if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&')) {
            stripped += QLatin1Char('&');
            ++i;
        }
    }
    return stripped;
}

QString EscapeAmpersands(const QString& text)
{
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace Utilities

} // namespace ovk
