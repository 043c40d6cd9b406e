#pragma once

#include <ovk/commands/composite_command.h>

namespace ovk {

/// A button whose click opens the list of its items.
class OVK_EXPORT CommandsMenu : public ICompositeCommand
{
public:
    explicit CommandsMenu(const QString& id);
    CommandsMenu(const CommandsMenu& other);
    ~CommandsMenu() override;

    /// Adds a button with the composite's own icon and title, which does nothing but open the
    /// popup, to a tool bar or a ribbon group; false on any other site and with a hidden spot.
    bool AddToSite(QWidget* site, UiSpotCommand* spot) override;

    CommandsMenu* Clone() const override;
};

} // namespace ovk
