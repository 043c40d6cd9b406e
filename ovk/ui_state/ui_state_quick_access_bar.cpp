#include "ovk/ui_state/ui_state_quick_access_bar.h"

#include "ovk/main_window/quick_search_p.h"
#include "ovk/ui_state/live_sites_p.h"

#include <qtitan/ribbon.h>

namespace ovk {

UiStateQAB::UiStateQAB() : UiStateCommandSpots(GetSuiteName()) {}

UiStateQAB::UiStateQAB(const QJsonObject& json) : UiStateCommandSpots(json) {}

// The copy shows nothing yet.
UiStateQAB::UiStateQAB(const UiStateQAB& other) : UiStateCommandSpots(other) {}

UiStateQAB::~UiStateQAB() = default;

const QString& UiStateQAB::GetSuiteName()
{
    static const QString name = QStringLiteral("quick access bar");
    return name;
}

UiProfileItem* UiStateQAB::Clone() const
{
    return new UiStateQAB(*this);
}

void UiStateQAB::SpotsChanged()
{
    if (!IsActive() || !mp_bar)
        return;
    ClearToolBar(*mp_bar);
    _Build();
}

void UiStateQAB::_Activate(ActivationMode)
{
    Qtitan::RibbonBar* bar = LiveRibbonBar();
    mp_bar = bar ? bar->quickAccessBar() : nullptr;
    if (mp_bar)
        _Build();
}

void UiStateQAB::_Deactivate(ActivationMode)
{
    if (mp_bar)
        ClearToolBar(*mp_bar);
    mp_bar = nullptr;
}

void UiStateQAB::_Store() {}

void UiStateQAB::_Build()
{
    FillToolBar(*this, *mp_bar);
    InstallQuickSearch();
}

} // namespace ovk
