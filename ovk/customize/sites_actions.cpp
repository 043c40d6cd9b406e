#include "ovk/customize/sites_actions_p.h"

#include <QCoreApplication>

namespace ovk {

namespace {

/// Gives the texts of the page their context.
class SitesTexts
{
    Q_DECLARE_TR_FUNCTIONS(ovk::UiCustomizeSitesWidget::Impl)

public:
    static constexpr std::array<SitesActionText, c_sites_action_count> c_texts = {{
        {QT_TR_NOOP("Add page"), QT_TR_NOOP("Add new page onto the ribbon")},
        {QT_TR_NOOP("Insert page after"), QT_TR_NOOP("Add new page after selected one")},
        {QT_TR_NOOP("Insert page before"), QT_TR_NOOP("Insert new page before selected one")},
        {QT_TR_NOOP("Add group"), QT_TR_NOOP("Add new group at the end of the group list")},
        {QT_TR_NOOP("Insert group after"), QT_TR_NOOP("Insert new group after selected one")},
        {QT_TR_NOOP("Insert group before"), QT_TR_NOOP("Insert new group before selected one")},
        {QT_TR_NOOP("Add separator"), QT_TR_NOOP("Add new separator into the group")},
        {QT_TR_NOOP("Insert separator after"), QT_TR_NOOP("Insert new separator after selected")},
        {QT_TR_NOOP("Insert separator before"), QT_TR_NOOP("Insert new separator before selected")},
        {QT_TR_NOOP("Delete separator"), QT_TR_NOOP("Delete selected separator from the group")},
        {QT_TR_NOOP("Delete page"), QT_TR_NOOP("Delete selected page from the ribbon")},
        {QT_TR_NOOP("Delete group"), QT_TR_NOOP("Delete selected group from the page")},
        {QT_TR_NOOP("Delete command"), QT_TR_NOOP("Remove selected command from the group")},
        {QT_TR_NOOP("Delete items"), QT_TR_NOOP("Remove selected items from the tree")},
        {QT_TR_NOOP("Add separator"), QT_TR_NOOP("Add new separator into the quick access bar")},
        {QT_TR_NOOP("Insert separator after"), QT_TR_NOOP("Insert new separator after selected")},
        {QT_TR_NOOP("Insert separator before"), QT_TR_NOOP("Insert new separator before selected")},
        {QT_TR_NOOP("Delete command"),
         QT_TR_NOOP("Remove selected command from the quick access bar")},
        {QT_TR_NOOP("Delete separator"),
         QT_TR_NOOP("Delete selected separator from the quick access bar")},
        {QT_TR_NOOP("Delete items"), QT_TR_NOOP("Remove selected items from the tree")},
        {QT_TR_NOOP("Add separator"), QT_TR_NOOP("Add new separator into the toolbar")},
        {QT_TR_NOOP("Insert separator after"), QT_TR_NOOP("Insert new separator after selected")},
        {QT_TR_NOOP("Insert separator before"), QT_TR_NOOP("Insert new separator before selected")},
        {QT_TR_NOOP("Delete command"), QT_TR_NOOP("Remove selected command from the toolbar")},
        {QT_TR_NOOP("Delete separator"), QT_TR_NOOP("Delete selected separator from the toolbar")},
        {QT_TR_NOOP("Add toolbar"), QT_TR_NOOP("Add new toolbar onto the toolbars")},
        {QT_TR_NOOP("Insert toolbar after"), QT_TR_NOOP("Add new toolbar after selected one")},
        {QT_TR_NOOP("Insert toolbar before"), QT_TR_NOOP("Insert new toolbar before selected one")},
        {QT_TR_NOOP("Delete toolbar"), QT_TR_NOOP("Delete selected toolbar from the toolbars")},
        {QT_TR_NOOP("Delete items"), QT_TR_NOOP("Remove selected items from the tree")},
        {QT_TR_NOOP("Create composite command"),
         QT_TR_NOOP("Create composite command from existing commands")},
        {QT_TR_NOOP("Create menu"), QT_TR_NOOP("Create menu from existing commands")},
        {QT_TR_NOOP("Delete"), QT_TR_NOOP("Delete selected item")},
        {QT_TR_NOOP("Delete shortcut"), QT_TR_NOOP("Delete shortcut for selected command")},
        {QT_TR_NOOP("Assign shortcut"), QT_TR_NOOP("Assign new shortcut for selected command")},
        {QT_TR_NOOP("Delete command"), QT_TR_NOOP("Remove selected command from the menu")},
        {QT_TR_NOOP("Add menu"), QT_TR_NOOP("Add new menu onto the menus")},
        {QT_TR_NOOP("Insert menu after"), QT_TR_NOOP("Add new menu after selected one")},
        {QT_TR_NOOP("Insert menu before"), QT_TR_NOOP("Insert new menu before selected one")},
        {QT_TR_NOOP("Delete menu"), QT_TR_NOOP("Delete selected menu from the menus")},
        {QT_TR_NOOP("Delete items"), QT_TR_NOOP("Remove selected items from the tree")},
        {QT_TR_NOOP("Expand all"), QT_TR_NOOP("Expand all tree items")},
        {QT_TR_NOOP("Collapse all"), QT_TR_NOOP("Collapse all tree items")},
    }};
};

} // namespace

const std::array<SitesActionText, c_sites_action_count>& SitesActionTexts()
{
    return SitesTexts::c_texts;
}

const std::vector<SitesButton>& SitesButtons()
{
    using A = SitesAction;
    static const std::vector<SitesButton> buttons = {
        {"mp_ribbon_button_page_add", A::RibbonAddPage},
        {"mp_ribbon_button_page_insert_before", A::RibbonInsertPageBefore},
        {"mp_ribbon_button_page_insert_after", A::RibbonInsertPageAfter},
        {"mp_ribbon_button_group_insert_before", A::RibbonInsertGroupBefore},
        {"mp_ribbon_button_group_insert_after", A::RibbonInsertGroupAfter},
        {"mp_ribbon_button_separator_insert_before", A::RibbonInsertSeparatorBefore},
        {"mp_ribbon_button_separator_insert_after", A::RibbonInsertSeparatorAfter},
        {"mp_ribbon_button_page_delete", A::RibbonDeletePage},
        {"mp_ribbon_button_group_delete", A::RibbonDeleteGroup},
        {"mp_ribbon_button_page_add_group", A::RibbonAddGroup},
        {"mp_ribbon_button_group_add_separator", A::RibbonAddSeparator},
        {"mp_ribbon_button_separator_delete", A::RibbonDeleteSeparator},
        {"mp_ribbon_button_command_delete", A::RibbonDeleteCommand},
        {"mp_ribbon_button_delete_items", A::RibbonDeleteItems},
        {"mp_qab_button_separator_add", A::QabAddSeparator},
        {"mp_qab_button_separator_insert_before", A::QabInsertSeparatorBefore},
        {"mp_qab_button_separator_insert_after", A::QabInsertSeparatorAfter},
        {"mp_qab_button_separator_delete", A::QabDeleteSeparator},
        {"mp_qab_button_command_delete", A::QabDeleteCommand},
        {"mp_qab_button_delete_items", A::QabDeleteItems},
        {"mp_toolbars_button_toolbar_add", A::ToolbarsAddToolbar},
        {"mp_toolbars_button_toolbar_insert_before", A::ToolbarsInsertToolbarBefore},
        {"mp_toolbars_button_toolbar_insert_after", A::ToolbarsInsertToolbarAfter},
        {"mp_toolbars_button_separator_insert_before", A::ToolbarsInsertSeparatorBefore},
        {"mp_toolbars_button_separator_insert_after", A::ToolbarsInsertSeparatorAfter},
        {"mp_toolbars_button_toolbar_delete", A::ToolbarsDeleteToolbar},
        {"mp_toolbars_button_toolbar_add_separator", A::ToolbarsAddSeparator},
        {"mp_toolbars_button_separator_delete", A::ToolbarsDeleteSeparator},
        {"mp_toolbars_button_command_delete", A::ToolbarsDeleteCommand},
        {"mp_toolbars_button_delete_items", A::ToolbarsDeleteItems},
        {"mp_menus_button_menu_add", A::MenusAddMenu},
        {"mp_menus_button_menu_insert_before", A::MenusInsertMenuBefore},
        {"mp_menus_button_menu_insert_after", A::MenusInsertMenuAfter},
        {"mp_menus_button_menu_detele", A::MenusDeleteMenu},
        {"mp_menus_button_command_detele", A::MenusDeleteCommand},
        {"mp_menus_button_delete_items", A::MenusDeleteItems},
    };
    return buttons;
}

const SitesOffer* FindSitesOffer(SitesTree tree, SitesSelection selection)
{
    using A = SitesAction;
    using S = SitesSelection;
    using T = SitesTree;
    constexpr A Line = A::Count;
    static const std::vector<SitesOffer> offers = {
        {T::Ribbon, S::None, {A::RibbonAddPage}, {A::RibbonAddPage}},
        {T::Ribbon,
         S::Page,
         {A::RibbonInsertPageBefore, A::RibbonInsertPageAfter, A::RibbonAddGroup,
          A::RibbonDeletePage},
         {A::RibbonInsertPageBefore, A::RibbonInsertPageAfter, Line, A::RibbonDeletePage, Line,
          A::RibbonAddGroup}},
        {T::Ribbon,
         S::Group,
         {A::RibbonInsertGroupBefore, A::RibbonInsertGroupAfter, A::RibbonAddSeparator,
          A::RibbonDeleteGroup},
         {A::RibbonInsertGroupBefore, A::RibbonInsertGroupAfter, Line, A::RibbonDeleteGroup, Line,
          A::RibbonAddSeparator}},
        {T::Ribbon,
         S::Separator,
         {A::RibbonInsertSeparatorBefore, A::RibbonInsertSeparatorAfter, A::RibbonDeleteSeparator},
         {A::RibbonInsertSeparatorBefore, A::RibbonInsertSeparatorAfter, Line,
          A::RibbonDeleteSeparator}},
        {T::Ribbon,
         S::Command,
         {A::RibbonInsertSeparatorBefore, A::RibbonInsertSeparatorAfter, A::RibbonDeleteCommand},
         {A::RibbonInsertSeparatorBefore, A::RibbonInsertSeparatorAfter, Line,
          A::RibbonDeleteCommand}},
        {T::Ribbon, S::Several, {A::RibbonDeleteItems}, {A::RibbonDeleteItems}},

        {T::Qab, S::None, {A::QabAddSeparator}, {A::QabAddSeparator}},
        {T::Qab,
         S::Separator,
         {A::QabInsertSeparatorBefore, A::QabInsertSeparatorAfter, A::QabDeleteSeparator},
         {A::QabInsertSeparatorBefore, A::QabInsertSeparatorAfter, Line, A::QabDeleteSeparator}},
        {T::Qab,
         S::Command,
         {A::QabInsertSeparatorBefore, A::QabInsertSeparatorAfter, A::QabDeleteCommand},
         {A::QabInsertSeparatorBefore, A::QabInsertSeparatorAfter, Line, A::QabDeleteCommand}},
        {T::Qab, S::Several, {A::QabDeleteItems}, {A::QabDeleteItems}},

        {T::Toolbars, S::None, {A::ToolbarsAddToolbar}, {A::ToolbarsAddToolbar}},
        {T::Toolbars,
         S::Toolbar,
         {A::ToolbarsInsertToolbarBefore, A::ToolbarsInsertToolbarAfter, A::ToolbarsAddSeparator,
          A::ToolbarsDeleteToolbar},
         {A::ToolbarsInsertToolbarBefore, A::ToolbarsInsertToolbarAfter, Line,
          A::ToolbarsDeleteToolbar, Line, A::ToolbarsAddSeparator}},
        {T::Toolbars,
         S::Separator,
         {A::ToolbarsInsertSeparatorBefore, A::ToolbarsInsertSeparatorAfter,
          A::ToolbarsDeleteSeparator},
         {A::ToolbarsInsertSeparatorBefore, A::ToolbarsInsertSeparatorAfter, Line,
          A::ToolbarsDeleteSeparator}},
        {T::Toolbars,
         S::Command,
         {A::ToolbarsInsertSeparatorBefore, A::ToolbarsInsertSeparatorAfter,
          A::ToolbarsDeleteCommand},
         {A::ToolbarsInsertSeparatorBefore, A::ToolbarsInsertSeparatorAfter,
          A::ToolbarsDeleteCommand}},
        {T::Toolbars, S::Several, {A::ToolbarsDeleteItems}, {A::ToolbarsDeleteItems}},

        {T::Menus, S::None, {A::MenusAddMenu}, {A::MenusAddMenu}},
        {T::Menus,
         S::Menu,
         {A::MenusInsertMenuBefore, A::MenusInsertMenuAfter, A::MenusDeleteMenu},
         {A::MenusInsertMenuBefore, A::MenusInsertMenuAfter, Line, A::MenusDeleteMenu}},
        {T::Menus, S::Command, {A::MenusDeleteCommand}, {A::MenusDeleteCommand}},
        {T::Menus, S::Several, {A::MenusDeleteItems}, {A::MenusDeleteItems}},
    };
    for (const SitesOffer& offer : offers) {
        if (offer.tree == tree && offer.selection == selection)
            return &offer;
    }
    return nullptr;
}

bool IsSitesDelete(SitesAction action)
{
    switch (action) {
    case SitesAction::RibbonDeleteSeparator:
    case SitesAction::RibbonDeletePage:
    case SitesAction::RibbonDeleteGroup:
    case SitesAction::RibbonDeleteCommand:
    case SitesAction::RibbonDeleteItems:
    case SitesAction::QabDeleteCommand:
    case SitesAction::QabDeleteSeparator:
    case SitesAction::QabDeleteItems:
    case SitesAction::ToolbarsDeleteCommand:
    case SitesAction::ToolbarsDeleteSeparator:
    case SitesAction::ToolbarsDeleteToolbar:
    case SitesAction::ToolbarsDeleteItems:
    case SitesAction::MenusDeleteCommand:
    case SitesAction::MenusDeleteMenu:
    case SitesAction::MenusDeleteItems:
        return true;
    default:
        return false;
    }
}

} // namespace ovk
