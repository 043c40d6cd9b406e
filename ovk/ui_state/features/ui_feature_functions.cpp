#include "ui_feature_functions.h"

#include "json_fields_p.h"

namespace ovk {

namespace {

const QLatin1String g_ids_key("function_ids");

} // namespace

UiFeatureFunctions::UiFeatureFunctions() : UiProfileItem(QStringLiteral("functions")) {}

UiFeatureFunctions::UiFeatureFunctions(const UiFeatureFunctions&) = default;

UiFeatureFunctions::~UiFeatureFunctions() = default;

QStringList& UiFeatureFunctions::GetFunctionIds()
{
    return m_ids;
}

const QStringList& UiFeatureFunctions::GetFunctionIds() const
{
    return m_ids;
}

UiProfileItem* UiFeatureFunctions::Clone() const
{
    return new UiFeatureFunctions(*this);
}

QJsonObject UiFeatureFunctions::ToJson() const
{
    QJsonObject json = UiProfileItem::ToJson();
    json.insert(g_ids_key, QJsonArray::fromStringList(m_ids));
    return json;
}

bool UiFeatureFunctions::FromJson(const QJsonObject& json)
{
    m_ids = impl::ReadTexts(json.value(g_ids_key));
    return UiProfileItem::FromJson(json);
}

} // namespace ovk
