#include "commands_drop_down.h"

#include "composite_command_p.h"
#include "ovk/commands/ui_command.h"
#include "ovk/ui_state/ui_spot_command.h"

#include <QToolBar>
#include <QToolButton>

#include <qtitan/ribbon.h>

namespace ovk {

CommandsDropDown::CommandsDropDown(const QString& id) : ICompositeCommand(id) {}

CommandsDropDown::CommandsDropDown(const CommandsDropDown&) = default;

CommandsDropDown::~CommandsDropDown() = default;

bool CommandsDropDown::AddToSite(QWidget* site, UiSpotCommand* spot)
{
    if (spot && !spot->IsVisible())
        return false;
    UiCommand* const first = _pr().FirstCommand();
    if (!first)
        return false;
    if (QToolBar* const bar = qobject_cast<QToolBar*>(site)) {
        bar->addAction(first);
        return _pr().SetUpButton(*bar, first, spot, QToolButton::MenuButtonPopup);
    }
    if (Qtitan::RibbonGroup* const group = qobject_cast<Qtitan::RibbonGroup*>(site)) {
        const Qt::ToolButtonStyle style = spot ? spot->GetStyle() : Qt::ToolButtonFollowStyle;
        group->addAction(first, style, GetMenu(), QToolButton::MenuButtonPopup);
        return true;
    }
    return false;
}

QString CommandsDropDown::GetTitle()
{
    const QString title = ICompositeCommand::GetTitle();
    UiCommand* const first = _pr().FirstCommand();
    return title.isEmpty() && first ? first->GetTitle() : title;
}

QIcon CommandsDropDown::GetIcon()
{
    const QIcon icon = ICompositeCommand::GetIcon();
    UiCommand* const first = _pr().FirstCommand();
    return icon.isNull() && first ? first->GetIcon() : icon;
}

CommandsDropDown* CommandsDropDown::Clone() const
{
    return new CommandsDropDown(*this);
}

} // namespace ovk
