#pragma once

#include <ovk/core/export.h>
#include <ovk/core/version_info.h>

#include <memory>
#include <string>
#include <vector>

namespace ovk {

/// A profile of the old, closed format, as the host's loader fills it. Texts that stand for
/// commands are their identifiers; "Gui.Separator" is a separator.
namespace legacy_profile {

/// A tool bar.
struct OVK_EXPORT Toolbar
{
    virtual ~Toolbar();

    std::wstring id;
    std::wstring title;
    std::vector<std::wstring> commands;
};

/// A user menu.
struct OVK_EXPORT Menu
{
    virtual ~Menu();

    std::wstring id;
    std::wstring title;
    int key = 0; ///< The virtual key code that pops it up; 0 is none.
    std::vector<std::wstring> commands;
};

/// A key binding.
struct OVK_EXPORT Shortcut
{
    virtual ~Shortcut();

    std::wstring command;
    int keyCode = 0; ///< A virtual key code.
    bool ctrl = false;
    bool alt = false;
    bool shift = false;
    bool extended = false; ///< The key is of the extended part of the keyboard.
};

/// A layout.
struct OVK_EXPORT Layout
{
    Layout();
    Layout(const Layout&) = delete;
    Layout(Layout&&) noexcept;
    Layout& operator=(const Layout&) = delete;
    Layout& operator=(Layout&&) noexcept;
    virtual ~Layout();

    std::wstring name;
    std::vector<std::unique_ptr<Toolbar>> toolbars;
    bool menuAutosize = false;
    std::vector<std::unique_ptr<Menu>> menus;
    std::vector<std::unique_ptr<Shortcut>> shortcuts;
};

/// The whole file.
struct OVK_EXPORT Profile
{
    Profile();
    Profile(const Profile&) = delete;
    Profile(Profile&&) noexcept;
    Profile& operator=(const Profile&) = delete;
    Profile& operator=(Profile&&) noexcept;
    virtual ~Profile();

    bool headerOnly = false; ///< Set by the caller that wants only the next two fields.
    std::wstring product;
    VersionInfo version;
    std::vector<Layout> layouts;
};

} // namespace legacy_profile
} // namespace ovk
