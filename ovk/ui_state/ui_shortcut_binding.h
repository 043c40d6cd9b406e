#pragma once

#include <ovk/ui_state/ui_state_item.h>

#include <QtGui/QKeySequence>

#include <memory>

namespace ovk {

class UiCommand;

/// One key sequence of one command; the node's name is the command's identifier. While active it
/// is the shortcut of the command's action in the whole application.
class OVK_EXPORT UiShortcutBinding : public UiStateItem
{
public:
    explicit UiShortcutBinding(const QString& id);
    explicit UiShortcutBinding(const QJsonObject& json);
    /// Copies the key and the looked-up command; the copy is not active.
    UiShortcutBinding(const UiShortcutBinding& other);
    ~UiShortcutBinding() override;

    const QKeySequence& GetShortcut() const;
    /// Stores the key; an active binding changes the action at once.
    void SetShortcut(const QKeySequence& key);

    /// The command of this binding in its layout; null when it does not exist. Not owned.
    UiCommand* GetCommand() const;

    /// Gives the key to the command's action. Stays inactive when there is no command.
    void Activate(ActivationMode mode) override;
    /// Takes the key from the command's action.
    void Deactivate(ActivationMode mode) override;
    bool IsActive() const override;

    UiProfileItem* Clone() const override;
    /// Adds "key sequence", in the portable form.
    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

private:
    class Impl;
    Impl& _pr() const { return *mp_impl; }

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
