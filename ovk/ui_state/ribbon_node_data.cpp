#include "ovk/ui_state/ribbon_node_data_p.h"

#include <QtCore/QJsonObject>

namespace ovk {

namespace {

const QLatin1String key_title("title");

} // namespace

void RibbonNodeData::Write(QJsonObject& json, const QString& availableKey, bool persistent) const
{
    json.insert(key_title, persistent ? source_title : title);
    if (!available)
        json.insert(availableKey, false);
}

void RibbonNodeData::Read(const QJsonObject& json, const QString& availableKey)
{
    title = json.value(key_title).toString();
    source_title = title;
    available = json.value(availableKey).toBool(true);
}

void RibbonNodeData::Merge(const RibbonNodeData& source, const RibbonNodeData& base)
{
    if (title != base.title)
        return;
    title = source.title;
    source_title = source.source_title;
}

} // namespace ovk
