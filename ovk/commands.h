#pragma once

#include <ovk/commands/commands_drop_down.h>
#include <ovk/commands/commands_menu.h>
#include <ovk/commands/composite_command.h>
#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/commands/ui_item.h>
#include <ovk/commands/updatable_context.h>
#include <ovk/commands/updateable_ui.h>
#include <ovk/commands/widget_factory.h>
