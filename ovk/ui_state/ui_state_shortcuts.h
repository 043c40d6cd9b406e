#pragma once

#include <ovk/ui_state/t_ui_state.h>
#include <ovk/ui_state/ui_shortcut_binding.h>

namespace ovk {

/// The key bindings of a layout. Conflicts between keys are the caller's to test with `Find`.
class OVK_EXPORT UiStateShortcuts
    : public TUiState<UiStateShortcuts, UiShortcutBinding, UiShortcutBinding>
{
public:
    UiStateShortcuts();
    explicit UiStateShortcuts(const QJsonObject& json);
    UiStateShortcuts(const UiStateShortcuts& other);
    ~UiStateShortcuts() override;

    /// "shortcuts".
    static const QString& GetSuiteName();

    /// The first binding of that command; null if there is none.
    UiShortcutBinding* Find(const UiCommand* command) const;
    /// The first binding with that key; null if there is none.
    UiShortcutBinding* Find(const QKeySequence& key) const;

    /// Appends a binding, which works at once when the suite is active. Owned by the suite.
    UiShortcutBinding* CreateBinding(const QString& id, const QKeySequence& key);
    /// Takes the key from the command and deletes the binding. Nothing happens when it is null or
    /// not of this suite.
    void DeleteBinding(UiShortcutBinding* binding);
    /// Deletes all bindings without taking their keys from the commands: deactivate first.
    void Clear();

    /// Gives the editing keys (copy, cut, paste, delete, select all, undo, redo) back to the
    /// commands, after `Disable`.
    void Enable();
    /// Leaves the editing keys to the focused widget, for the time a text field has the focus.
    void Disable();

    /// What the user bound wins over what a new default offers: a binding of `source` is taken
    /// over when neither its key nor its command is bound yet. Own bindings whose command does
    /// not exist are dropped. `base` is not looked at.
    void Merge(const UiProfileItem& source, const UiProfileItem* base) override;

protected:
    /// "bindings".
    QString _GetSubitemsTag() const override;

private:
    void _SetEditingKeysContext(Qt::ShortcutContext context);
};

} // namespace ovk
