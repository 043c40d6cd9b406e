#include "ui_feature_layout.h"

#include "json_fields_p.h"

namespace ovk {

namespace {

const QLatin1String g_ids_key("command_ids");

} // namespace

UiFeatureLayout::UiFeatureLayout(const QString& name) : UiProfileItem(name) {}

UiFeatureLayout::UiFeatureLayout(const QJsonObject& json) : UiProfileItem(json) {}

UiFeatureLayout::UiFeatureLayout(const UiFeatureLayout&) = default;

UiFeatureLayout::~UiFeatureLayout() = default;

const QStringList& UiFeatureLayout::GetCommandIds() const
{
    return m_ids;
}

void UiFeatureLayout::SetCommandIds(const QStringList& ids)
{
    m_ids = ids;
    m_index = QSet<QString>(ids.cbegin(), ids.cend());
}

bool UiFeatureLayout::HasCommand(const QString& id) const
{
    return m_index.contains(id);
}

UiProfileItem* UiFeatureLayout::Clone() const
{
    return new UiFeatureLayout(*this);
}

QJsonObject UiFeatureLayout::ToJson() const
{
    QJsonObject json = UiProfileItem::ToJson();
    json.insert(g_ids_key, QJsonArray::fromStringList(m_ids));
    return json;
}

bool UiFeatureLayout::FromJson(const QJsonObject& json)
{
    SetCommandIds(impl::ReadTexts(json.value(g_ids_key)));
    return UiProfileItem::FromJson(json);
}

} // namespace ovk
