#include "commands_menu.h"

#include "composite_command_p.h"
#include "ovk/ui_state/ui_spot_command.h"

#include <QToolBar>
#include <QToolButton>

#include <qtitan/ribbon.h>

namespace ovk {

CommandsMenu::CommandsMenu(const QString& id) : ICompositeCommand(id) {}

CommandsMenu::CommandsMenu(const CommandsMenu&) = default;

CommandsMenu::~CommandsMenu() = default;

bool CommandsMenu::AddToSite(QWidget* site, UiSpotCommand* spot)
{
    if (spot && !spot->IsVisible())
        return false;
    if (QToolBar* const bar = qobject_cast<QToolBar*>(site)) {
        QAction* const action = bar->addAction(GetIcon(), GetTitle());
        return _pr().SetUpButton(*bar, action, spot, QToolButton::InstantPopup);
    }
    if (Qtitan::RibbonGroup* const group = qobject_cast<Qtitan::RibbonGroup*>(site)) {
        const Qt::ToolButtonStyle style = spot ? spot->GetStyle() : Qt::ToolButtonFollowStyle;
        group->addAction(GetIcon(), GetTitle(), style, GetMenu(), QToolButton::InstantPopup);
        return true;
    }
    return false;
}

CommandsMenu* CommandsMenu::Clone() const
{
    return new CommandsMenu(*this);
}

} // namespace ovk
