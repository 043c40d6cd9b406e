#pragma once

/// The customise dialog is opened by RibbonWindow::OnCustomizeUI(); a host uses none of its classes.
#include <ovk/main_window/ribbon_window.h>
