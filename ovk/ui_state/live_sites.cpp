#include "ovk/ui_state/live_sites_p.h"

#include "ovk/commands/ui_item.h"
#include "ovk/core/utilities.h"
#include "ovk/main_window/quick_search_p.h"
#include "ovk/main_window/ribbon_window.h"
#include "ovk/main_window/ribbon_window_p.h"
#include "ovk/main_window/work_area.h"
#include "ovk/ui_state/ui_layout.h"
#include "ovk/ui_state/ui_spot_command.h"
#include "ovk/ui_state/ui_state_quick_access_bar.h"
#include "ovk/ui_state/ui_state_ribbon.h"
#include "ovk/ui_state/ui_state_toolbars.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QAction>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

namespace ovk {

RibbonWindow* LiveWindow()
{
    return LiveRibbonWindow();
}

Qtitan::RibbonBar* LiveRibbonBar()
{
    RibbonWindow* window = LiveWindow();
    return window ? window->ribbonBar() : nullptr;
}

WorkArea* LiveWorkArea()
{
    RibbonWindow* window = LiveWindow();
    return window ? window->GetWorkArea() : nullptr;
}

QString SiteTitle(const char* context, const QString& title, bool ofTheUser)
{
    if (ofTheUser || title.isEmpty())
        return title;
    return QCoreApplication::translate(context, title.toUtf8().constData(), nullptr, -1);
}

QString LiveTitle(const QString& title)
{
    return Utilities::EscapeAmpersands(title);
}

void FillToolBar(const UiStateCommandSpots& spots, QToolBar& bar)
{
    for (int i = 0; i < spots.GetCount(); ++i) {
        UiProfileItem* item = spots.GetItem(i);
        if (auto* command = dynamic_cast<UiSpotCommand*>(item)) {
            if (IUiItem* ui_item = command->GetUiItem())
                ui_item->AddToSite(&bar, command);
        } else if (item->IsVisible()) {
            bar.addSeparator();
        }
    }
    if (WorkArea* work_area = LiveWorkArea()) {
        const QList<QToolButton*> buttons = bar.findChildren<QToolButton*>();
        for (QToolButton* button : buttons)
            button->installEventFilter(work_area);
    }
}

void ClearToolBar(QToolBar& bar)
{
    RemoveQuickSearch(bar);
    const QList<QAction*> actions = bar.actions();
    bar.clear();
    for (QAction* action : actions) {
        if (action->parent() == &bar)
            delete action;
    }
}

void ForEachCompositeSite(UiLayout& layout, const std::function<void(UiStateCommandSpots&)>& visit)
{
    if (auto* bar = dynamic_cast<UiStateQAB*>(layout.GetState(UiStateQAB::GetSuiteName())))
        visit(*bar);
    if (auto* bars =
            dynamic_cast<UiStateToolbars*>(layout.GetState(UiStateToolbars::GetSuiteName()))) {
        for (int i = 0; i < bars->GetCount(); ++i)
            visit(*static_cast<UiStateToolbar*>(bars->GetItem(i)));
    }
    if (auto* ribbon =
            dynamic_cast<UiStateRibbon*>(layout.GetState(UiStateRibbon::GetSuiteName()))) {
        for (int i = 0; i < ribbon->GetCount(); ++i) {
            UiStateRibbonPage* page = ribbon->GetPage(i);
            for (int j = 0; j < page->GetCount(); ++j)
                visit(*static_cast<UiStateRibbonGroup*>(page->GetItem(j)));
        }
    }
}

} // namespace ovk
