#include "ovk/ui_state/site_contents_p.h"

#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_command_spots.h"

namespace ovk {

namespace {

/// The command spot at that index, if it is one that shows anything.
const UiSpotCommand* CommandAt(const UiStateCommandSpots& spots, int index)
{
    const auto* spot = dynamic_cast<const UiSpotCommand*>(spots.GetItem(index));
    return spot && spot->IsVisible() ? spot : nullptr;
}

} // namespace

void SiteContents::Take(const UiStateCommandSpots& spots)
{
    m_valid = true;
    m_items.clear();
    m_items.reserve(spots.GetCount());
    for (int i = 0; i < spots.GetCount(); ++i) {
        // The site was filled just now: what resolves is known.
        const UiSpotCommand* spot = CommandAt(spots, i);
        m_items.append(spot ? UiItemLink(spot->GetKnownUiItem()) : UiItemLink());
    }
}

bool SiteContents::IsCurrent(const UiStateCommandSpots& spots) const
{
    if (!m_valid || m_items.size() != spots.GetCount())
        return false;
    for (int i = 0; i < m_items.size(); ++i) {
        const UiSpotCommand* spot = CommandAt(spots, i);
        if (spot && (m_items.at(i).IsDead() || m_items.at(i).Get() != spot->GetUiItem()))
            return false;
    }
    return true;
}

} // namespace ovk
