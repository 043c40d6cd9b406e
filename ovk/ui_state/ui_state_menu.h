#pragma once

#include <ovk/ui_state/ui_state_command_spots.h>

#include <memory>

namespace ovk {

/// A menu of the user: a list of commands and the key that, held with the right mouse button,
/// makes the host pop it up. It has no widget of its own.
class OVK_EXPORT UiStateMenu : public UiStateCommandSpots
{
public:
    /// A menu with an empty name, which gets an automatic identifier in its layout.
    UiStateMenu();
    explicit UiStateMenu(const QString& id);
    explicit UiStateMenu(const QJsonObject& json);
    /// Copies title and key and clones the spots.
    UiStateMenu(const UiStateMenu& other);
    ~UiStateMenu() override;

    /// Native key: virtual key in bits 0 to 15, native modifiers in bits 16 to 31; 0 is none.
    int GetKey() const;
    void SetKey(int key);

    /// The title as it is shown: translated in the context "menus" unless the user gave it.
    QString GetTitle() const;
    /// Gives the menu a title of the user's own.
    void SetTitle(const QString& title);

    UiProfileItem* Clone() const override;
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// Nothing: a menu is built where it pops up.
    void _Activate(ActivationMode mode) override;
    /// Nothing.
    void _Deactivate(ActivationMode mode) override;
    /// Nothing.
    void _Store() override;

private:
    class Impl;
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
