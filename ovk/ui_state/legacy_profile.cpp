#include "legacy_profile.h"

namespace ovk {
namespace legacy_profile {

Toolbar::~Toolbar() = default;

Menu::~Menu() = default;

Shortcut::~Shortcut() = default;

Layout::Layout() = default;
Layout::Layout(Layout&&) noexcept = default;
Layout& Layout::operator=(Layout&&) noexcept = default;
Layout::~Layout() = default;

Profile::Profile() = default;
Profile::Profile(Profile&&) noexcept = default;
Profile& Profile::operator=(Profile&&) noexcept = default;
Profile::~Profile() = default;

} // namespace legacy_profile
} // namespace ovk
