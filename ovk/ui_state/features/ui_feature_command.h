#pragma once

#include <ovk/ui_state/ui_profile_item.h>

namespace ovk {

/// What the feature catalogue says of one command; the name is the command's identifier. The host's
/// factories copy it into the UiCommand.
class OVK_EXPORT UiFeatureCommand : public UiProfileItem
{
public:
    explicit UiFeatureCommand(const QString& id);
    /// Takes the name of "id"; call FromJson() for the rest.
    explicit UiFeatureCommand(const QJsonObject& json);
    UiFeatureCommand(const UiFeatureCommand& other);
    UiFeatureCommand& operator=(const UiFeatureCommand&) = delete;
    ~UiFeatureCommand() override;

    /// Source text of the title.
    const QString& GetTitle() const;
    void SetTitle(const QString& title);
    /// Source text of the tool tip.
    const QString& GetTooltip() const;
    void SetTooltip(const QString& tooltip);
    /// Source text of the status tip.
    const QString& GetStatusTip() const;
    void SetStatusTip(const QString& statusTip);
    /// Whether the command may be offered on sites; false unless the catalogue says so, unlike the
    /// default of a UiCommand.
    bool IsVisual() const;
    void SetIsVisual(bool visual);

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

protected:
    void _SetName(const QString& name) override;

private:
    QString m_title;
    QString m_tooltip;
    QString m_status_tip;
    bool m_visual = false;
};

} // namespace ovk
