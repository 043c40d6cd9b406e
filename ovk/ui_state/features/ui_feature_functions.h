#pragma once

#include <ovk/ui_state/ui_profile_item.h>

#include <QStringList>

namespace ovk {

/// The functions of a product: commands that it has in every layout. Its name is "functions".
class OVK_EXPORT UiFeatureFunctions : public UiProfileItem
{
public:
    UiFeatureFunctions();
    UiFeatureFunctions(const UiFeatureFunctions& other);
    UiFeatureFunctions& operator=(const UiFeatureFunctions&) = delete;
    ~UiFeatureFunctions() override;

    /// The identifiers in the order of the catalogue.
    QStringList& GetFunctionIds();
    const QStringList& GetFunctionIds() const;

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

private:
    QStringList m_ids;
};

} // namespace ovk
