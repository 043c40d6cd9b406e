#pragma once

#include <ovk/ui_state/features/ui_feature_functions.h>
#include <ovk/ui_state/features/ui_feature_layout.h>
#include <ovk/ui_state/t_ui_state.h>

namespace ovk {

/// One product of the feature catalogue: its functions and its layouts.
class OVK_EXPORT UiFeatureProduct
    : public TUiState<UiFeatureProduct, UiFeatureLayout, UiFeatureLayout>
{
public:
    explicit UiFeatureProduct(const QString& name);
    /// Takes the name of "id"; call FromJson() for the rest.
    explicit UiFeatureProduct(const QJsonObject& json);
    UiFeatureProduct(const UiFeatureProduct& other);
    UiFeatureProduct& operator=(const UiFeatureProduct&) = delete;
    ~UiFeatureProduct() override;

    using UiProfileItem::GetLayout;
    /// The layout of that name, which is created empty if it is missing. Owned by the product.
    UiFeatureLayout* GetLayout(const QString& name);
    /// The layout of that name; null if there is none.
    UiFeatureLayout* Find(const QString& name) const;

    /// The functions of the product.
    UiFeatureFunctions& GetFunctions();
    const UiFeatureFunctions& GetFunctions() const;

    /// The suffix that keeps the product's profile files apart from those of others in the same
    /// folder; may be empty.
    const QString& GetProfileSuffix() const;

    /// Writes the functions and not the suffix.
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

protected:
    QString _GetSubitemsTag() const override;

private:
    UiFeatureLayout* _CreateLayout(const QString& name);

    QString m_profile_suffix;
    UiFeatureFunctions m_functions;
};

} // namespace ovk
