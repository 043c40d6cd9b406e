#include "ovk/ui_state/ui_spot.h"

#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_command_spots.h"

#include <QtCore/QJsonObject>

namespace ovk {

UiSpot::UiSpot(const QJsonObject& json) : UiStateItem(json) {}

UiSpot::UiSpot(const QString& name) : UiStateItem(name) {}

UiSpot::UiSpot(int id) : UiStateItem(id) {}

UiSpot::UiSpot(const UiSpot& other) = default;

UiSpot::~UiSpot() = default;

QJsonObject UiSpot::ToJson() const
{
    QJsonObject json = UiStateItem::ToJson();
    if (_GetType() != UiSpotCommand::GetType())
        json.insert(QStringLiteral("type"), _GetType());
    return json;
}

void UiSpot::_OnChangeVisibility(bool)
{
    _NotifySite();
}

void UiSpot::_NotifySite()
{
    if (auto* site = dynamic_cast<UiStateCommandSpots*>(GetParent()))
        site->SpotsChanged();
}

UiSpotSeparator::UiSpotSeparator(const QJsonObject& json) : UiSpot(json) {}

UiSpotSeparator::UiSpotSeparator(int id) : UiSpot(id) {}

UiSpotSeparator::UiSpotSeparator(const UiSpotSeparator& other) = default;

UiSpotSeparator::~UiSpotSeparator() = default;

UiProfileItem* UiSpotSeparator::Clone() const
{
    return new UiSpotSeparator(*this);
}

const QString& UiSpotSeparator::GetType()
{
    static const QString type = QStringLiteral("separator");
    return type;
}

const QString& UiSpotSeparator::_GetType() const
{
    return GetType();
}

} // namespace ovk
