#include "ui_state.h"

#include "ovk/docking/ui_state_docking.h"
#include "ui_state_composites.h"
#include "ui_state_dialogs.h"
#include "ui_state_menus.h"
#include "ui_state_quick_access_bar.h"
#include "ui_state_ribbon.h"
#include "ui_state_shortcuts.h"
#include "ui_state_toolbars.h"

namespace ovk {
namespace {

struct Suite
{
    QString (*name)();
    UiState* (*make)();
};

template <class State> constexpr Suite SuiteOf()
{
    return {[]() -> QString { return State::GetSuiteName(); },
            []() -> UiState* { return new State; }};
}

constexpr Suite SUITES[] = {
    SuiteOf<UiStateToolbars>(), SuiteOf<UiStateQAB>(),       SuiteOf<UiStateRibbon>(),
    SuiteOf<UiStateDocking>(),  SuiteOf<UiStateShortcuts>(), SuiteOf<UiStateComposites>(),
    SuiteOf<UiStateMenus>(),    SuiteOf<UiStateDialogs>(),
};

} // namespace

UiState* UiState::Create(const QString& suiteName)
{
    for (const Suite& suite : SUITES) {
        if (suite.name() == suiteName)
            return suite.make();
    }
    return nullptr;
}

} // namespace ovk
