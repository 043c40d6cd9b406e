#include "ovk/ui_state/ui_state_ribbon.h"

#include "ovk/ui_state/live_sites_p.h"

#include <qtitan/ribbon.h>

#include <algorithm>

namespace ovk {

UiStateRibbon::UiStateRibbon() : TUiState(GetSuiteName()) {}

UiStateRibbon::UiStateRibbon(const QJsonObject& json) : TUiState(json) {}

UiStateRibbon::UiStateRibbon(const UiStateRibbon& other) = default;

UiStateRibbon::~UiStateRibbon() = default;

const QString& UiStateRibbon::GetSuiteName()
{
    static const QString name = QStringLiteral("ribbon");
    return name;
}

void UiStateRibbon::InsertPage(UiStateRibbonPage* page, int index)
{
    if (!page || GetIndexOf(page) >= 0)
        return;
    InsertChild(index, page);
    if (IsActive())
        page->Activate(amOrdinary);
}

void UiStateRibbon::MovePage(int from, int to)
{
    if (from == to || !IsValidIndex(from) || !IsValidIndex(to))
        return;
    InsertChild(to, RemoveChild(from));
    if (!IsActive())
        return;
    if (Qtitan::RibbonBar* bar = LiveRibbonBar())
        bar->movePage(from, to);
}

UiStateRibbonPage* UiStateRibbon::RemovePage(int index)
{
    auto* page = static_cast<UiStateRibbonPage*>(RemoveChild(index));
    if (page && IsActive())
        page->Deactivate(amOrdinary);
    return page;
}

void UiStateRibbon::DeletePage(int index)
{
    DeleteItem(index);
}

UiStateRibbonPage* UiStateRibbon::GetPage(int index) const
{
    return _GetChildren().at(index);
}

UiStateRibbonPage* UiStateRibbon::GetPage(const QString& id) const
{
    const QList<UiStateRibbonPage*>& pages = _GetChildren();
    const auto found = std::find_if(pages.cbegin(), pages.cend(),
                                    [&id](const auto* page) { return page->GetName() == id; });
    return found == pages.cend() ? nullptr : *found;
}

bool UiStateRibbon::CheckConsistency() const
{
    return std::all_of(_GetChildren().cbegin(), _GetChildren().cend(),
                       [this](const UiStateRibbonPage* page) {
                           return page->GetParent() == static_cast<const ITreeItem*>(this) &&
                                  page->IsActive() == IsActive() && page->CheckConsistency();
                       });
}

QString UiStateRibbon::_GetSubitemsTag() const
{
    return QStringLiteral("pages");
}

void UiStateRibbon::_Activate(ActivationMode mode)
{
    Qtitan::RibbonBar* bar = LiveRibbonBar();
    TUiState::_Activate(mode);
    if (!bar)
        return;
    const QList<UiStateRibbonPage*>& pages = _GetChildren();
    const auto first = std::find_if(pages.cbegin(), pages.cend(),
                                    [](const auto* page) { return page->IsShown(); });
    if (first != pages.cend())
        bar->setCurrentPage(static_cast<int>(first - pages.cbegin()));
}

void UiStateRibbon::_Deactivate(ActivationMode mode)
{
    Qtitan::RibbonBar* bar = LiveRibbonBar();
    const int current = bar ? bar->currentPageIndex() : -1;
    const QList<UiStateRibbonPage*> pages = _GetChildren();
    for (int i = 0; i < pages.size(); ++i) {
        if (i != current)
            pages.at(i)->Deactivate(mode);
    }
    if (UiStateRibbonPage* page = _GetChild(current))
        page->Deactivate(mode);
}

} // namespace ovk
