#include "ovk/ui_state/ui_state_shortcuts.h"

#include "ovk/commands/ui_command.h"

#include <QtCore/QSet>
#include <QtCore/QVector>

#include <algorithm>

namespace ovk {

namespace {

/// The keys that a text field wants for itself.
const QVector<QKeySequence>& EditingKeys()
{
    static const QVector<QKeySequence> keys = {
        QKeySequence(QKeySequence::Copy),      QKeySequence(QKeySequence::Cut),
        QKeySequence(QKeySequence::Paste),     QKeySequence(QKeySequence::Delete),
        QKeySequence(QKeySequence::SelectAll), QKeySequence(QKeySequence::Undo),
        QKeySequence(QKeySequence::Redo),
    };
    return keys;
}

} // namespace

UiStateShortcuts::UiStateShortcuts() : TUiState(GetSuiteName()) {}

UiStateShortcuts::UiStateShortcuts(const QJsonObject& json) : TUiState(json) {}

UiStateShortcuts::UiStateShortcuts(const UiStateShortcuts& other) = default;

UiStateShortcuts::~UiStateShortcuts() = default;

const QString& UiStateShortcuts::GetSuiteName()
{
    static const QString name = QStringLiteral("shortcuts");
    return name;
}

UiShortcutBinding* UiStateShortcuts::Find(const UiCommand* command) const
{
    if (!command)
        return nullptr;
    const QList<UiShortcutBinding*>& bindings = _GetChildren();
    const auto found =
        std::find_if(bindings.cbegin(), bindings.cend(),
                     [command](const auto* binding) { return binding->GetCommand() == command; });
    return found == bindings.cend() ? nullptr : *found;
}

UiShortcutBinding* UiStateShortcuts::Find(const QKeySequence& key) const
{
    const QList<UiShortcutBinding*>& bindings = _GetChildren();
    const auto found =
        std::find_if(bindings.cbegin(), bindings.cend(),
                     [&key](const auto* binding) { return binding->GetShortcut() == key; });
    return found == bindings.cend() ? nullptr : *found;
}

UiShortcutBinding* UiStateShortcuts::CreateBinding(const QString& id, const QKeySequence& key)
{
    auto* binding = new UiShortcutBinding(id);
    binding->SetShortcut(key);
    AppendChild(binding);
    if (IsActive())
        binding->Activate(amOrdinary);
    return binding;
}

void UiStateShortcuts::DeleteBinding(UiShortcutBinding* binding)
{
    const int index = GetIndexOf(binding);
    if (index < 0)
        return;
    if (IsActive())
        binding->Deactivate(amOrdinary);
    DeleteItem(index);
}

void UiStateShortcuts::Clear()
{
    _DeleteItems();
}

void UiStateShortcuts::Enable()
{
    _SetEditingKeysContext(Qt::ApplicationShortcut);
}

void UiStateShortcuts::Disable()
{
    _SetEditingKeysContext(Qt::WidgetShortcut);
}

void UiStateShortcuts::Merge(const UiProfileItem& source, const UiProfileItem*)
{
    for (int i = GetChildCount() - 1; i >= 0; --i) {
        if (!_GetChild(i)->GetCommand())
            DeleteItem(i);
    }
    const auto* new_default = dynamic_cast<const UiStateShortcuts*>(&source);
    if (!new_default || new_default == this)
        return;
    QSet<QString> bound_ids;
    QSet<QKeySequence> bound_keys;
    for (const UiShortcutBinding* binding : _GetChildren()) {
        bound_ids.insert(binding->GetName());
        bound_keys.insert(binding->GetShortcut());
    }
    for (const UiShortcutBinding* binding : new_default->_GetChildren()) {
        if (bound_ids.contains(binding->GetName()) || bound_keys.contains(binding->GetShortcut()))
            continue;
        AppendChild(binding->Clone());
        bound_ids.insert(binding->GetName());
        bound_keys.insert(binding->GetShortcut());
    }
}

QString UiStateShortcuts::_GetSubitemsTag() const
{
    return QStringLiteral("bindings");
}

void UiStateShortcuts::_SetEditingKeysContext(Qt::ShortcutContext context)
{
    for (const UiShortcutBinding* binding : _GetChildren()) {
        UiCommand* command = binding->GetCommand();
        if (command && EditingKeys().contains(binding->GetShortcut()))
            command->setShortcutContext(context);
    }
}

} // namespace ovk
