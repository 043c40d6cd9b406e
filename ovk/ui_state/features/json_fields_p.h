#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

namespace ovk {
namespace impl {

/// The texts of an array of texts; what is none is skipped.
inline QStringList ReadTexts(const QJsonValue& value)
{
    QStringList texts;
    const QJsonArray array = value.toArray();
    texts.reserve(array.size());
    for (const QJsonValue& element : array) {
        if (element.isString())
            texts.append(element.toString());
    }
    return texts;
}

} // namespace impl
} // namespace ovk
