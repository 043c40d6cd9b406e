#include "ui_feature_product.h"

#include <QJsonObject>

namespace ovk {

namespace {

const QLatin1String g_suffix_key("profile_suffix");
const QLatin1String g_functions_key("functions");

} // namespace

UiFeatureProduct::UiFeatureProduct(const QString& name) : TUiState(name) {}

UiFeatureProduct::UiFeatureProduct(const QJsonObject& json) : TUiState(json) {}

UiFeatureProduct::UiFeatureProduct(const UiFeatureProduct&) = default;

UiFeatureProduct::~UiFeatureProduct() = default;

UiFeatureLayout* UiFeatureProduct::GetLayout(const QString& name)
{
    UiFeatureLayout* const layout = Find(name);
    return layout ? layout : _CreateLayout(name);
}

UiFeatureLayout* UiFeatureProduct::Find(const QString& name) const
{
    for (UiFeatureLayout* const layout : _GetChildren()) {
        if (layout->GetName() == name)
            return layout;
    }
    return nullptr;
}

UiFeatureFunctions& UiFeatureProduct::GetFunctions()
{
    return m_functions;
}

const UiFeatureFunctions& UiFeatureProduct::GetFunctions() const
{
    return m_functions;
}

const QString& UiFeatureProduct::GetProfileSuffix() const
{
    return m_profile_suffix;
}

QJsonObject UiFeatureProduct::ToJson() const
{
    QJsonObject json = TUiState::ToJson();
    json.insert(g_functions_key, m_functions.ToJson());
    return json;
}

bool UiFeatureProduct::FromJson(const QJsonObject& json)
{
    m_profile_suffix = json.value(g_suffix_key).toString();
    m_functions.FromJson(json.value(g_functions_key).toObject());
    return TUiState::FromJson(json);
}

QString UiFeatureProduct::_GetSubitemsTag() const
{
    return QStringLiteral("layout");
}

UiFeatureLayout* UiFeatureProduct::_CreateLayout(const QString& name)
{
    UiFeatureLayout* const layout = new UiFeatureLayout(name);
    AppendChild(layout);
    return layout;
}

} // namespace ovk
