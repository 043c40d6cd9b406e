#pragma once

class QWidget;

/// \name The parts of the gallery
/// A box each, with every widget of its kind in its states. The caller owns what it gets.
/// \{
QWidget* MakeNumbers();
QWidget* MakeColors();
QWidget* MakeScales();
QWidget* MakeButtons();
QWidget* MakeBoxes();
QWidget* MakeViews();
/// \}

/// The object names of the widgets whose popups the pictures show.
constexpr char g_color_edit_name[] = "popupColorEdit";
constexpr char g_check_combo_name[] = "popupCheckCombo";
