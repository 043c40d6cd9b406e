#pragma once

#include "ribbon_theme_p.h"

#include <QFlags>
#include <QFont>
#include <QIcon>
#include <QRect>
#include <QStringList>

class QPainter;

namespace Qtitan {

enum class RibbonState {
    Normal = 0,
    Disabled = 0x001,
    Hover = 0x002,
    Pressed = 0x004,
    Checked = 0x008,     ///< checked, selected, current
    Focus = 0x010,       ///< has the keyboard's focus and shows it
    Inactive = 0x020,    ///< the window is not the active one
    Minimized = 0x040,   ///< the bar shows only its tabs; a window button restores
    Open = 0x080,        ///< its popup is shown
    Maximized = 0x100,   ///< the window is maximised
    Themed = 0x200,      ///< the bar draws the caption itself
    Mnemonics = 0x400,   ///< underline what follows an ampersand
    Peek = 0x800         ///< the page floats over the content
};
Q_DECLARE_FLAGS(RibbonStates, RibbonState)
Q_DECLARE_OPERATORS_FOR_FLAGS(RibbonStates)

/// What a button does besides being clicked.
enum class RibbonMenuKind {
    None,
    Whole, ///< a click anywhere opens the menu
    Split  ///< a half of its own opens the menu
};

/// The ground a small button stands on, which decides its states' colours and its text.
enum class RibbonGround { Page, Strip, Caption, Popup };

/// The window buttons of a caption that the bar draws itself.
enum class RibbonCaptionButton { Minimize, Maximize, Restore, Close, Help };

/// What every painting function is told. All lengths are logical pixels.
struct RibbonPaintOption
{
    QRect rect;
    RibbonStates state = RibbonState::Normal;
    QString text;
    QString detail; ///< shortcut of a tool tip, subtitle of a row
    QIcon icon;
    QSize iconSize{16, 16};
    Qt::LayoutDirection direction = Qt::LeftToRight;
    QFont font;
    qreal scale = 1.0;            ///< logical dots per inch / 96
    qreal devicePixelRatio = 1.0; ///< of the paint device
    QColor contextColor;          ///< of a contextual tab; invalid for the others
    QRect anchor;                 ///< the selected tab above a page, in the same coordinates

    bool has(RibbonState flag) const { return state.testFlag(flag); }
};

struct RibbonButtonOption : RibbonPaintOption
{
    Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly;
    bool large = false; ///< icon above, up to two lines of text below, the full height of a group
    RibbonMenuKind menu = RibbonMenuKind::None;
    RibbonGround ground = RibbonGround::Page;
    bool menuHovered = false; ///< the pointer is over the menu's half
    bool menuPressed = false; ///< the menu's half is down (its menu is open)
};

/// Where the parts of a button are, mirrored already for right to left.
struct RibbonButtonLayout
{
    QRect icon;
    QRect text;
    QRect arrow;
    QRect main; ///< what presses the button
    QRect menu; ///< what opens its menu; empty without a menu
    QStringList lines;
};

/// Draws every element of the ribbon in the current theme. Holds no state: what differs between
/// two calls is in the option. Sizes come from the option's rectangle; who lays out asks
/// RibbonMetrics.
class OVK_TEST_EXPORT RibbonPainter
{
public:
    RibbonPainter() = delete;

    /// \name Window frame
    /// \{
    /// Caption with the window's title (`text`) centred in `anchor`, or in `rect` when that is null.
    static void drawCaption(QPainter& painter, const RibbonPaintOption& option);
    static void drawCaptionButton(QPainter& painter, const RibbonPaintOption& option,
                                  RibbonCaptionButton button);
    /// Border line of a window that has no frame of the system's.
    static void drawWindowFrame(QPainter& painter, const RibbonPaintOption& option);
    /// \}

    /// \name Tab row
    /// \{
    /// Ground of the tab row, with the line that the page hangs on unless minimised.
    static void drawTabStrip(QPainter& painter, const RibbonPaintOption& option);
    static void drawTab(QPainter& painter, const RibbonPaintOption& option);
    /// Line between tabs that are too narrow for padding.
    static void drawTabSeparator(QPainter& painter, const RibbonPaintOption& option);
    /// Title of a set of contextual tabs in the caption above them.
    static void drawContextTitle(QPainter& painter, const RibbonPaintOption& option);
    /// Button at an end of tabs or groups that do not fit; the arrow points by `arrow`.
    static void drawScrollButton(QPainter& painter, const RibbonPaintOption& option,
                                 Qt::ArrowType arrow);
    /// Minimise the bar, or keep it open while `Minimized`.
    static void drawMinimizeButton(QPainter& painter, const RibbonPaintOption& option);
    static void drawSystemButton(QPainter& painter, const RibbonPaintOption& option);
    /// \}

    /// \name Quick access bar
    /// \{
    static void drawQuickAccessBar(QPainter& painter, const RibbonPaintOption& option);
    static void drawQuickAccessOverflow(QPainter& painter, const RibbonPaintOption& option);
    /// \}

    /// \name Page and groups
    /// \{
    /// The page's ground and border; the border is open under `anchor`.
    static void drawPage(QPainter& painter, const RibbonPaintOption& option);
    /// Frame of a group as a whole, title strip included, in the looks that have one.
    static void drawGroup(QPainter& painter, const RibbonPaintOption& option);
    /// Title strip of a group; `rect` is the strip.
    static void drawGroupTitle(QPainter& painter, const RibbonPaintOption& option);
    /// Line between two groups in the looks without frames, at the left edge of `rect`.
    static void drawGroupSeparator(QPainter& painter, const RibbonPaintOption& option);
    /// Vertical line between buttons of a group.
    static void drawSeparator(QPainter& painter, const RibbonPaintOption& option);
    static void drawLauncher(QPainter& painter, const RibbonPaintOption& option);
    /// A group that became a button.
    static void drawCollapsedGroup(QPainter& painter, const RibbonPaintOption& option);
    /// Ground and frame of the popup that shows a collapsed group or a peeking page.
    static void drawPopup(QPainter& painter, const RibbonPaintOption& option);
    /// \}

    /// \name Buttons
    /// \{
    static RibbonButtonLayout buttonLayout(const RibbonButtonOption& option);
    /// The width that the button wants for the height of `rect`.
    static int buttonWidth(const RibbonButtonOption& option);
    static void drawButton(QPainter& painter, const RibbonButtonOption& option);
    /// One or two lines whose longer one is as short as word breaks allow; one line when the text
    /// has a single word. With a menu, room for the arrow counts in the second line.
    static QStringList splitText(const QString& text, const QFont& font, int arrow_width);
    /// \}

    /// \name Backstage
    /// \{
    static void drawBackstage(QPainter& painter, const RibbonPaintOption& option);
    static void drawBackstageColumn(QPainter& painter, const RibbonPaintOption& option);
    static void drawBackstageBack(QPainter& painter, const RibbonPaintOption& option);
    static void drawBackstageRow(QPainter& painter, const RibbonPaintOption& option);
    static void drawBackstageSeparator(QPainter& painter, const RibbonPaintOption& option);
    /// \}

    /// \name Small windows
    /// \{
    static void drawKeyTip(QPainter& painter, const RibbonPaintOption& option);
    static QSize keyTipSize(const QString& text, const QFont& font);
    /// Ground and frame of a tool tip.
    static void drawToolTipPanel(QPainter& painter, const RibbonPaintOption& option);
    /// \}

    /// \name Galleries
    /// \{
    static void drawGallery(QPainter& painter, const RibbonPaintOption& option);
    static void drawGalleryHeading(QPainter& painter, const RibbonPaintOption& option);
    /// Frame and ground of a cell: Hover for the one under the pointer, Checked for the current.
    static void drawGalleryCell(QPainter& painter, const RibbonPaintOption& option);
    /// Scroll or drop down button at the side of a gallery inside a group.
    static void drawGalleryButton(QPainter& painter, const RibbonPaintOption& option,
                                  Qt::ArrowType arrow);
    /// \}

    /// Mark of the keyboard's focus, inside `rect`; in `contextColor` where that is valid.
    static void drawFocus(QPainter& painter, const RibbonPaintOption& option);

    /// The colour of text on an element that is drawn with this option's state.
    static QColor textColor(Element element, const RibbonPaintOption& option);

    /// Fills `rect` with the look's ground, as the family shades it, and frames it.
    static void drawLook(QPainter& painter, const QRect& rect, const ThemeLook& look,
                         int radius = 0);
};

} // namespace Qtitan
