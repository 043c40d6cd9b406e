#include "legacy_conversion_p.h"

#include "features/ui_features_controller.h"
#include "legacy_profile.h"
#include "ovk/commands/ui_command.h"
#include "windows/native_keys.h"
#include "ui_layout.h"
#include "ui_profile.h"
#include "ui_shortcut_binding.h"
#include "ui_spot_command.h"
#include "ui_state_menus.h"
#include "ui_state_shortcuts.h"
#include "ui_state_toolbars.h"

#include <QKeySequence>

namespace ovk {
namespace {

const QLatin1String SEPARATOR("Gui.Separator");
const QLatin1String CUSTOMIZE_COMMAND("Edit.CustomizeUI");
constexpr int EXTENDED_KEY = 0x1000000;

enum class Separators
{
    Kept,
    Dropped
};

UiCommand* FindCommand(const QString& id)
{
    UiFeaturesController* const features = UiFeaturesController::GetInstance();
    return features ? features->GetCommandFromActiveProduct(id, 0) : nullptr;
}

template <class State> State* SuiteOf(UiLayout& layout)
{
    return dynamic_cast<State*>(layout.GetState(State::GetSuiteName()));
}

void AddSpots(UiStateCommandSpots& site, const std::vector<std::wstring>& commands,
              Separators separators)
{
    for (const std::wstring& command_id : commands) {
        const QString id = QString::fromStdWString(command_id);
        if (id == SEPARATOR) {
            if (separators == Separators::Kept)
                site.AddSpot(site.CreateSeparatorSpot());
        } else if (UiCommand* const command = FindCommand(id)) {
            UiSpotCommand* const spot = UiStateCommandSpots::CreateCommandSpot(*command);
            spot->SetStyle(Qt::ToolButtonIconOnly);
            site.AddSpot(spot);
        }
    }
}

void ConvertToolbars(const legacy_profile::Layout& old, UiStateToolbars& toolbars)
{
    const bool movable = FindCommand(CUSTOMIZE_COMMAND) != nullptr;
    for (const auto& old_toolbar : old.toolbars) {
        if (!old_toolbar)
            continue;
        const auto toolbar = new UiStateToolbar(QString::fromStdWString(old_toolbar->id));
        toolbar->SetArea(Qt::LeftToolBarArea);
        toolbar->ClearBreak();
        toolbar->SetTitle(QString::fromStdWString(old_toolbar->title));
        toolbar->SetMovable(movable);
        toolbars.AppendChild(toolbar);
        AddSpots(*toolbar, old_toolbar->commands, Separators::Kept);
    }
}

void ConvertMenus(const legacy_profile::Layout& old, UiStateMenus& menus)
{
    menus.SetMenuAutosize(old.menuAutosize);
    for (const auto& old_menu : old.menus) {
        if (!old_menu)
            continue;
        const auto menu = new UiStateMenu(QString::fromStdWString(old_menu->id));
        menu->SetTitle(QString::fromStdWString(old_menu->title));
        menu->SetKey(old_menu->key);
        menus.InsertMenu(menu, -1);
        AddSpots(*menu, old_menu->commands, Separators::Dropped);
    }
}

bool IsBound(const UiStateShortcuts& shortcuts, const QString& id, const QKeySequence& key)
{
    const auto is_free = [&](const UiProfileItem* item) {
        const auto binding = static_cast<const UiShortcutBinding*>(item);
        return binding->GetName() != id && binding->GetShortcut() != key;
    };
    return shortcuts.ForEach(is_free) != nullptr;
}

void ConvertShortcuts(const legacy_profile::Layout& old, UiStateShortcuts& shortcuts)
{
    for (const auto& shortcut : old.shortcuts) {
        if (!shortcut)
            continue;
        const QString id = QString::fromStdWString(shortcut->command);
        const QKeySequence key = LegacyKeySequence(*shortcut);
        if (!IsBound(shortcuts, id, key))
            shortcuts.CreateBinding(id, key);
    }
}

} // namespace

QKeySequence LegacyKeySequence(const legacy_profile::Shortcut& shortcut)
{
    const int code =
        shortcut.extended ? (shortcut.keyCode & 0xFFFF) | EXTENDED_KEY : shortcut.keyCode;
    const int modifiers = (shortcut.ctrl ? int(Qt::CTRL) : 0) | (shortcut.alt ? int(Qt::ALT) : 0) |
                          (shortcut.shift ? int(Qt::SHIFT) : 0);
    const QString modifier_text = QKeySequence(modifiers).toString(QKeySequence::PortableText);
    const QString key_name = KeyName(code).remove(QLatin1String("Num "));
    return QKeySequence(modifier_text + key_name);
}

void ConvertLegacyProfile(const legacy_profile::Profile& old, UiProfile& profile)
{
    profile.ForEach([](UiLayout* layout) {
        if (const auto menus = SuiteOf<UiStateMenus>(*layout)) {
            while (menus->GetCount() > 0)
                menus->DeleteItem(menus->GetCount() - 1);
        }
        if (const auto shortcuts = SuiteOf<UiStateShortcuts>(*layout))
            shortcuts->Clear();
        return true;
    });
    profile.ForEach([&old](UiLayout* layout) {
        for (const legacy_profile::Layout& old_layout : old.layouts) {
            if (QString::fromStdWString(old_layout.name) != layout->GetName())
                continue;
            if (const auto toolbars = SuiteOf<UiStateToolbars>(*layout))
                ConvertToolbars(old_layout, *toolbars);
            if (const auto menus = SuiteOf<UiStateMenus>(*layout))
                ConvertMenus(old_layout, *menus);
            if (const auto shortcuts = SuiteOf<UiStateShortcuts>(*layout))
                ConvertShortcuts(old_layout, *shortcuts);
        }
        return true;
    });
}

} // namespace ovk
