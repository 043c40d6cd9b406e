#pragma once

#include "ribbon_theme_p.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

class QWidget;

namespace Qtitan {
namespace style_draw {

/// What one drawing call of a style is about.
struct Canvas
{
    const QStyle* style; ///< the base style, for what is not ours
    const QStyleOption* option;
    QPainter* painter;
    const QWidget* widget;
    const RibbonTheme& theme;

    bool has(QStyle::StateFlag flag) const { return option->state & flag; }
    bool enabled() const { return option->state & QStyle::State_Enabled; }
    bool hovered() const { return enabled() && (option->state & QStyle::State_MouseOver); }
    bool rightToLeft() const { return option->direction == Qt::RightToLeft; }
    const QRect& rect() const { return option->rect; }
    const ThemeLook& look(Element element) const { return theme[element]; }
};

/// \name Each draws its element and returns true, or returns false for one that is not ours.
/// \{
bool DrawButtonPrimitive(QStyle::PrimitiveElement element, const Canvas& canvas);
bool DrawFramePrimitive(QStyle::PrimitiveElement element, const Canvas& canvas);
bool DrawMarkPrimitive(QStyle::PrimitiveElement element, const Canvas& canvas);
bool DrawItemPrimitive(QStyle::PrimitiveElement element, const Canvas& canvas);
bool DrawButtonControl(QStyle::ControlElement element, const Canvas& canvas);
bool DrawMenuControl(QStyle::ControlElement element, const Canvas& canvas);
bool DrawTabControl(QStyle::ControlElement element, const Canvas& canvas);
bool DrawItemControl(QStyle::ControlElement element, const Canvas& canvas);
bool DrawBarControl(QStyle::ControlElement element, const Canvas& canvas);
bool DrawField(QStyle::ComplexControl control, const Canvas& canvas);
bool DrawSlider(QStyle::ComplexControl control, const Canvas& canvas);
bool DrawToolButton(QStyle::ComplexControl control, const Canvas& canvas);
bool DrawGroupBox(QStyle::ComplexControl control, const Canvas& canvas);
bool DrawDial(QStyle::ComplexControl control, const Canvas& canvas);
bool DrawTitleBar(QStyle::ComplexControl control, const Canvas& canvas);
bool DrawToolBoxControl(QStyle::ControlElement element, const Canvas& canvas);
/// \}

/// The size of a tool button for the size that its parts ask for.
QSize ToolButtonSize(const QStyleOptionToolButton& tool, const QSize& size, const QWidget* widget);

/// The size of a menu's item for its text's size.
QSize MenuItemSize(const QStyleOptionMenuItem& item, const QSize& contents, const QWidget* widget);

/// Gives the list of a combo box rows that the style draws, unless the host gave it a delegate.
void UseComboDelegate(QWidget& widget);

/// A button of a spin box from the place that the base gives it: up to the frame and to the other.
QRect SpinButtonRect(const QStyleOptionSpinBox& spin, QStyle::SubControl control, const QRect& base);

/// Where text and sort arrow of a header's section are: the arrow stands at the end.
QRect HeaderRect(const QStyleOptionHeader& header, QStyle::SubElement element, const QStyle* style,
                 const QWidget* widget);

/// Where the parts of a group box are: its title stands in the upper line of its frame.
QRect GroupBoxRect(const QStyleOptionGroupBox& box, QStyle::SubControl control, const QStyle* style,
                   const QWidget* widget);
/// The size of a group box around contents of that size.
QSize GroupBoxSize(const QStyleOptionGroupBox& box, const QSize& contents, const QStyle* style,
                   const QWidget* widget);

/// Logical dots per inch / 96, of the widget's screen or of the first one.
qreal Scale(const QWidget* widget);
int Px(const QWidget* widget, int length);

/// The element for a push button, a field and a check box in the option's state.
Element PushButtonElement(const Canvas& canvas);
Element FieldElement(const Canvas& canvas);
Element BoxElement(const Canvas& canvas);

/// Draws the ground of a look as something that can be pressed.
void DrawPanel(const Canvas& canvas, const QRect& rect, const ThemeLook& look, int radius);

/// Fills with a look as a wide ground, along the height or along the width.
void FillGround(const Canvas& canvas, const QRect& rect, const ThemeLook& look,
                Qt::Orientation orientation = Qt::Horizontal);

/// The palette with `role` set to the look's text in every state.
QPalette TextPalette(const QPalette& palette, QPalette::ColorRole role, const ThemeLook& look);

/// An icon that draws itself in the theme's colours whenever it is asked, so that it follows a
/// change of theme; null for pictures that are not ours. The widget says what it will lie on.
QIcon GlyphIcon(QStyle::StandardPixmap pixmap, const QWidget* widget = nullptr);

/// The sign itself, centred in a square of the rectangle's shorter side.
void DrawWindowGlyph(QPainter& painter, const QRect& rect, QStyle::StandardPixmap pixmap, const QColor& color);

/// The same for the signs of messages, and for folders and files.
QIcon SignIcon(QStyle::StandardPixmap pixmap);

} // namespace style_draw
} // namespace Qtitan
