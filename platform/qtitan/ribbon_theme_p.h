#pragma once

#include "office_style.h"

#include <QColor>
#include <QPalette>
#include <QVector>
#include <array>

namespace Qtitan {

/// Everything that a theme has a look for. A theme's table names those that are its own; the rest
/// come from its family or from the element that they follow (see ribbon_theme.cpp).
enum class Element {
    // Frame of the window
    Caption,
    CaptionInactive,
    CaptionButtonHover,
    CaptionButtonPressed,
    CaptionCloseHover,
    CaptionClosePressed,
    // The bar
    QuickAccess,
    TabStrip,
    TabHover,
    TabSelected,
    TabSelectedHover,
    StripHover,
    StripPressed,
    StripChecked,
    StripCheckedHover,
    SystemButton,
    SystemButtonHover,
    SystemButtonPressed,
    Page,
    Group,
    GroupHover,
    GroupTitle,
    GroupTitleHover,
    GroupSeparator,
    Button,
    ButtonHover,
    ButtonPressed,
    ButtonChecked,
    ButtonCheckedHover,
    ButtonSplitHover,
    CollapsedGroup,
    CollapsedGroupHover,
    CollapsedGroupPressed,
    ScrollButton,
    ScrollButtonHover,
    ScrollButtonPressed,
    BackstageColumn,
    BackstageHover,
    BackstagePressed,
    BackstageSelected,
    BackstagePage,
    KeyTip,
    ToolTip,
    Gallery,
    GalleryHeading,
    GalleryHover,
    GallerySelected,
    Menu,
    MenuColumn,
    MenuItem,
    MenuItemDisabled,
    MenuHeading,
    MenuChecked,
    // The rest of the application
    Window,
    PushButton,
    PushButtonHover,
    PushButtonPressed,
    PushButtonChecked,
    PushButtonDefault,
    Edit,
    EditHover,
    EditFocus,
    EditDisabled,
    Box,
    BoxHover,
    BoxPressed,
    View,
    ViewAlternate,
    ItemHover,
    ItemSelected,
    ItemSelectedInactive,
    Header,
    HeaderHover,
    HeaderPressed,
    ScrollGroove,
    ScrollHandle,
    ScrollHandleHover,
    ScrollHandlePressed,
    DocumentTab,
    DocumentTabHover,
    DocumentTabSelected,
    TabPane,
    ProgressGroove,
    ProgressChunk,
    GroupBox,
    DockTitle,
    DockFrame,
    ToolBar,
    StatusBar,
    Splitter,
    Count
};

constexpr int ElementCount = static_cast<int>(Element::Count);

/// How one element looks. The ground runs from top over middle to bottom; a transparent ground
/// lets what is below shine through, and its text is then made for that.
struct ThemeLook
{
    QColor top;
    QColor middle;
    QColor bottom;
    QColor border;
    QColor text;
    QColor disabled;

    bool isTransparent() const { return top.alpha() == 0; }
    QVector<QColor> grounds() const { return {top, middle, bottom}; }
};

/// All colours of one theme with one accent, made once and then only read. Every text of a look
/// has a contrast of at least 4.5 to 1 with its ground and every disabled text 2 to 1, whatever
/// the accent: colours of the table that fall short are moved towards black or white.
class OVK_TEST_EXPORT RibbonTheme
{
public:
    enum class Family { Office2007, Scenic, Office2010, Office2013 };

    /// The contrast that every text and every disabled text reaches.
    static constexpr qreal TextContrast = 4.5;
    static constexpr qreal DisabledContrast = 2.0;

    RibbonTheme(OfficeStyle::Theme theme, const QColor& accent);

    /// The theme whose colours are those of a high contrast palette.
    explicit RibbonTheme(const QPalette& high_contrast);

    /// True for a palette made for high contrast: one plain ground everywhere, black or white, and
    /// text far from it.
    static bool isHighContrast(const QPalette& palette);

    /// The theme of the application's style; Office 2007 Blue while the application has another
    /// style.
    static const RibbonTheme& current();

    OfficeStyle::Theme theme() const { return m_theme; }
    Family family() const { return m_family; }
    bool isHighContrast() const { return m_high_contrast; }
    bool isDark() const;
    const QColor& accent() const { return m_accent; }
    const ThemeLook& operator[](Element element) const
    {
        return m_looks[static_cast<std::size_t>(element)];
    }

    /// A look tinted with the colour of a contextual tab, its text readable again.
    ThemeLook tinted(Element element, const QColor& context, qreal amount) const;

    /// Radius of the corners of buttons and fields.
    int cornerRadius() const;

    /// The application's palette in this theme.
    QPalette palette() const;

    /// The name of an element, for tests and messages.
    static const char* name(Element element);

    /// The element on whose ground a transparent element is drawn; the element itself otherwise.
    static Element groundOf(Element element);

private:
    friend class OfficeStyle;
    static void setCurrent(const RibbonTheme* theme);

    OfficeStyle::Theme m_theme;
    Family m_family;
    bool m_high_contrast = false;
    QColor m_accent;
    std::array<ThemeLook, ElementCount> m_looks;
};

} // namespace Qtitan
