#pragma once

#include <ovk/ui_state/features/ui_feature_product.h>

namespace ovk {

/// All products of the feature catalogue.
class OVK_EXPORT UiFeatureProducts
    : public TUiState<UiFeatureProducts, UiFeatureProduct, UiFeatureProduct>
{
public:
    /// An empty list with the name "products".
    UiFeatureProducts();
    explicit UiFeatureProducts(const QJsonObject& json);
    UiFeatureProducts(const UiFeatureProducts& other);
    UiFeatureProducts& operator=(const UiFeatureProducts&) = delete;
    ~UiFeatureProducts() override;

    /// The first product of that name; null if there is none.
    UiFeatureProduct* Find(const QString& name) const;

protected:
    QString _GetSubitemsTag() const override;
};

} // namespace ovk
