#include "ui_feature_products.h"

namespace ovk {

UiFeatureProducts::UiFeatureProducts() : TUiState(QStringLiteral("products")) {}

UiFeatureProducts::UiFeatureProducts(const QJsonObject& json) : TUiState(json) {}

UiFeatureProducts::UiFeatureProducts(const UiFeatureProducts&) = default;

UiFeatureProducts::~UiFeatureProducts() = default;

UiFeatureProduct* UiFeatureProducts::Find(const QString& name) const
{
    for (UiFeatureProduct* const product : _GetChildren()) {
        if (product->GetName() == name)
            return product;
    }
    return nullptr;
}

QString UiFeatureProducts::_GetSubitemsTag() const
{
    return QStringLiteral("product");
}

} // namespace ovk
