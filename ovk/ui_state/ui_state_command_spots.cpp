#include "ovk/ui_state/ui_state_command_spots.h"

#include "ovk/ui_state/profile_log_p.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_profile.h"
#include "ovk/ui_state/ui_spot_command.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace ovk {

namespace {

const QLatin1String key_id("id");
const QLatin1String key_style("style");
const QLatin1String key_type("type");

/// The item that the spot stands for; null for a separator too.
IUiItem* ItemOf(const UiSpot* spot)
{
    const auto* command = dynamic_cast<const UiSpotCommand*>(spot);
    return command ? command->GetUiItem() : nullptr;
}

bool IsSpotAvailable(const UiSpot* spot)
{
    const auto* command = dynamic_cast<const UiSpotCommand*>(spot);
    return !command || command->GetUiItem();
}

} // namespace

UiStateCommandSpots::UiStateCommandSpots(const QString& name) : TUiState(name) {}

UiStateCommandSpots::UiStateCommandSpots(const QJsonObject& json) : TUiState(json) {}

UiStateCommandSpots::UiStateCommandSpots(int id) : TUiState(id) {}

UiStateCommandSpots::UiStateCommandSpots(const UiStateCommandSpots& other) = default;

UiStateCommandSpots::~UiStateCommandSpots() = default;

int UiStateCommandSpots::GetAvailableCount() const
{
    int count = 0;
    for (const UiSpot* spot : _GetChildren())
        count += IsSpotAvailable(spot) ? 1 : 0;
    return count;
}

ITreeItem* UiStateCommandSpots::GetAvailableChild(int index) const
{
    return GetSpot(index);
}

int UiStateCommandSpots::GetAvailableIndexOf(const IUiItem* item) const
{
    int index = 0;
    for (const UiSpot* spot : _GetChildren()) {
        if (!IsSpotAvailable(spot))
            continue;
        if (item && ItemOf(spot) == item)
            return index;
        ++index;
    }
    return -1;
}

UiSpot* UiStateCommandSpots::GetSpot(int index) const
{
    return _GetChild(_RawIndex(index));
}

void UiStateCommandSpots::DeleteSpot(int index)
{
    delete RemoveChild(_RawIndex(index));
    SpotsChanged();
}

UiSpot* UiStateCommandSpots::RemoveSpot(int index)
{
    auto* spot = static_cast<UiSpot*>(RemoveChild(_RawIndex(index)));
    if (spot)
        SpotsChanged();
    return spot;
}

void UiStateCommandSpots::InsertSpot(int index, UiSpot* spot)
{
    if (!spot)
        return;
    // Without such a spot the raw index is -1, which appends.
    InsertChild(_RawIndex(index), spot);
    SpotsChanged();
}

void UiStateCommandSpots::AddSpot(UiSpot* spot)
{
    if (!spot)
        return;
    AppendChild(spot);
    SpotsChanged();
}

void UiStateCommandSpots::Clear()
{
    _DeleteItems();
    SpotsChanged();
}

int UiStateCommandSpots::IndexOf(const IUiItem* item) const
{
    return GetAvailableIndexOf(item);
}

bool UiStateCommandSpots::IsContains(const IUiItem* item) const
{
    return IndexOf(item) >= 0;
}

UiSpot* UiStateCommandSpots::Find(const QString& name) const
{
    for (UiSpot* spot : _GetChildren()) {
        if (spot->GetName() == name)
            return spot;
    }
    return nullptr;
}

UiSpotCommand* UiStateCommandSpots::CreateCommandSpot(IUiItem& item)
{
    return new UiSpotCommand(item, Qt::ToolButtonTextBesideIcon);
}

UiSpotCommand* UiStateCommandSpots::CreateCommandSpot(const QString& id)
{
    return new UiSpotCommand(id);
}

UiSpotSeparator* UiStateCommandSpots::CreateSeparatorSpot()
{
    UiLayout* layout = GetLayout();
    UiProfile* profile = layout ? layout->GetProfile() : nullptr;
    return new UiSpotSeparator(profile ? profile->NextId() : 0);
}

bool UiStateCommandSpots::FromJson(const QJsonObject& json)
{
    UiStateItem::FromJson(json);
    const QJsonArray elements = json.value(_GetSubitemsTag()).toArray();
    const int size = elements.size();
    for (int i = 0; i < size; ++i) {
        // Nearly every spot of a file is a command with a style. It is read in two looks; asking
        // for all that a spot may have costs more than making it.
        const QJsonObject element = elements.at(i).toObject();
        const QJsonValue id = element.value(key_id);
        const int style = element.value(key_style).toInt(-1);
        if (element.size() == 2 && id.isString() && style >= Qt::ToolButtonIconOnly &&
            style <= Qt::ToolButtonFollowStyle) {
            UiSpotCommand* const spot = CreateCommandSpot(id.toString());
            spot->SetStyle(static_cast<Qt::ToolButtonStyle>(style));
            AppendChild(spot);
        } else {
            _AppendFromJson(element);
        }
    }
    return true;
}

UiProfileItem* UiStateCommandSpots::_CreateSubItem(const QJsonObject& json)
{
    const QString type = json.value(key_type).toString(UiSpotCommand::GetType());
    if (type == UiSpotCommand::GetType())
        return new UiSpotCommand(json);
    if (type == UiSpotSeparator::GetType())
        return new UiSpotSeparator(json);
    LogProfile(
        QStringLiteral("Spot of unknown type \"%1\" skipped in \"%2\"").arg(type, GetName()));
    return nullptr;
}

QString UiStateCommandSpots::_GetSubitemsTag() const
{
    return QStringLiteral("spots");
}

void UiStateCommandSpots::_Validate(QSet<QString>& changed)
{
    bool site_changed = false;
    for (UiSpot* spot : _GetChildren()) {
        spot->Validate(changed);
        site_changed = site_changed || changed.contains(spot->GetName());
    }
    if (site_changed)
        SpotsChanged();
}

void UiStateCommandSpots::SpotsChanged() {}

int UiStateCommandSpots::_RawIndex(int availableIndex) const
{
    if (availableIndex < 0)
        return -1;
    const QList<UiSpot*>& spots = _GetChildren();
    for (int raw = 0; raw < spots.size(); ++raw) {
        if (IsSpotAvailable(spots.at(raw)) && availableIndex-- == 0)
            return raw;
    }
    return -1;
}

} // namespace ovk
