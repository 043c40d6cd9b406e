#pragma once

#include <ovk/core/export.h>

#include <array>
#include <vector>

namespace ovk {

/// The actions of the sites page, in the order of its fields.
enum class SitesAction
{
    RibbonAddPage,
    RibbonInsertPageAfter,
    RibbonInsertPageBefore,
    RibbonAddGroup,
    RibbonInsertGroupAfter,
    RibbonInsertGroupBefore,
    RibbonAddSeparator,
    RibbonInsertSeparatorAfter,
    RibbonInsertSeparatorBefore,
    RibbonDeleteSeparator,
    RibbonDeletePage,
    RibbonDeleteGroup,
    RibbonDeleteCommand,
    RibbonDeleteItems,
    QabAddSeparator,
    QabInsertSeparatorAfter,
    QabInsertSeparatorBefore,
    QabDeleteCommand,
    QabDeleteSeparator,
    QabDeleteItems,
    ToolbarsAddSeparator,
    ToolbarsInsertSeparatorAfter,
    ToolbarsInsertSeparatorBefore,
    ToolbarsDeleteCommand,
    ToolbarsDeleteSeparator,
    ToolbarsAddToolbar,
    ToolbarsInsertToolbarAfter,
    ToolbarsInsertToolbarBefore,
    ToolbarsDeleteToolbar,
    ToolbarsDeleteItems,
    CompositeCreateCommand,
    CompositeCreateMenu,
    CompositeDelete,
    DeleteShortcut,
    AssignShortcut,
    MenusDeleteCommand,
    MenusAddMenu,
    MenusInsertMenuAfter,
    MenusInsertMenuBefore,
    MenusDeleteMenu,
    MenusDeleteItems,
    ExpandAll,
    CollapseAll,
    Count
};

constexpr int c_sites_action_count = static_cast<int>(SitesAction::Count);

/// Text and status tip of an action, to be translated in the page's context.
struct SitesActionText
{
    const char* text;
    const char* status_tip;
};

OVK_TEST_EXPORT const std::array<SitesActionText, c_sites_action_count>& SitesActionTexts();

/// The tool button that shows an action.
struct SitesButton
{
    const char* object_name;
    SitesAction action;
};

OVK_TEST_EXPORT const std::vector<SitesButton>& SitesButtons();

/// The trees of the page, the tabs in their order first.
enum class SitesTree
{
    Ribbon,
    Qab,
    Toolbars,
    Menus,
    Composite
};

/// What is selected in a tree.
enum class SitesSelection
{
    None,
    Page,
    Group,
    Toolbar,
    Menu,
    Separator,
    Command,
    Several
};

/// What a tree offers for a selection: its buttons, and its context menu without the common end.
struct SitesOffer
{
    SitesTree tree;
    SitesSelection selection;
    std::vector<SitesAction> buttons;
    std::vector<SitesAction> menu; ///< SitesAction::Count stands for a separator
};

/// The offer of a tree for a selection, null when there is none.
OVK_TEST_EXPORT const SitesOffer* FindSitesOffer(SitesTree tree, SitesSelection selection);

/// Whether an action deletes, and is therefore enabled by what it would delete.
bool IsSitesDelete(SitesAction action);

} // namespace ovk
