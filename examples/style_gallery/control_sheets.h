#pragma once

class QWidget;

/// Buttons, fields, choices and ranges, all alive.
QWidget* MakeControlsSheet();
/// Trees, tables, lists and texts, a calendar and a box of pages.
QWidget* MakeViewsSheet();
/// A main window of Qt's own parts: menu bar, tool bars, dock widgets, windows inside, status bar.
QWidget* MakeWindowSheet();
