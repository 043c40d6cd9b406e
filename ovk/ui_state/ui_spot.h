#pragma once

#include <ovk/ui_state/ui_state_item.h>

namespace ovk {

/// One place on a command site: a ribbon group, a menu, a tool bar or the quick access bar. The
/// site is the parent of the spot, a `UiStateCommandSpots`, and is told of every change.
class OVK_EXPORT UiSpot : public UiStateItem
{
public:
    /// Takes the identifier from the key "id".
    explicit UiSpot(const QJsonObject& json);
    explicit UiSpot(const QString& name);
    /// The identifier becomes the hexadecimal text of the number.
    explicit UiSpot(int id);
    UiSpot(const UiSpot& other);
    ~UiSpot() override;

    /// Adds "type", only when it is not "command".
    QJsonObject ToJson() const override;

protected:
    /// Rebuilds the site that holds the spot.
    void _OnChangeVisibility(bool visible) override;

    /// What kind of spot it is, as the key "type" of the file has it.
    virtual const QString& _GetType() const = 0;

    /// Tells the parent, when it is a site, that its spots changed.
    void _NotifySite();
};

/// A line between two commands.
class OVK_EXPORT UiSpotSeparator : public UiSpot
{
public:
    explicit UiSpotSeparator(const QJsonObject& json);
    /// The identifier becomes the hexadecimal text of the number.
    explicit UiSpotSeparator(int id);
    UiSpotSeparator(const UiSpotSeparator& other);
    ~UiSpotSeparator() override;

    UiProfileItem* Clone() const override;

    /// "separator".
    static const QString& GetType();

protected:
    const QString& _GetType() const override;
};

} // namespace ovk
