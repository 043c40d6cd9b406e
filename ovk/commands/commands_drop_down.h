#pragma once

#include <ovk/commands/composite_command.h>

namespace ovk {

/// A split button: the click runs the first command, the arrow opens the list of the items.
class OVK_EXPORT CommandsDropDown : public ICompositeCommand
{
public:
    explicit CommandsDropDown(const QString& id);
    CommandsDropDown(const CommandsDropDown& other);
    ~CommandsDropDown() override;

    /// Adds the action of the first command, with the popup at its arrow, to a tool bar or a ribbon
    /// group; false on any other site, with a hidden spot and if the first item is not a UiCommand.
    bool AddToSite(QWidget* site, UiSpotCommand* spot) override;

    /// The own title; that of the first command if it is empty.
    QString GetTitle() override;
    /// The own icon; that of the first command if it is null.
    QIcon GetIcon() override;

    CommandsDropDown* Clone() const override;
};

} // namespace ovk
