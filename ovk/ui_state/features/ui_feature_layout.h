#pragma once

#include <ovk/ui_state/ui_profile_item.h>

#include <QSet>
#include <QStringList>

namespace ovk {

/// The commands that a layout of a product offers; the name is that of the layout.
class OVK_EXPORT UiFeatureLayout : public UiProfileItem
{
public:
    explicit UiFeatureLayout(const QString& name);
    /// Takes the name of "id"; call FromJson() for the rest.
    explicit UiFeatureLayout(const QJsonObject& json);
    UiFeatureLayout(const UiFeatureLayout& other);
    UiFeatureLayout& operator=(const UiFeatureLayout&) = delete;
    ~UiFeatureLayout() override;

    /// The identifiers of commands in the order of the catalogue. One that begins with
    /// "DynamicCommands." stands for a family.
    const QStringList& GetCommandIds() const;
    void SetCommandIds(const QStringList& ids);

    /// Whether the list has that identifier, case included. Takes no longer with many.
    bool HasCommand(const QString& id) const;

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

private:
    QStringList m_ids;
    QSet<QString> m_index;
};

} // namespace ovk
