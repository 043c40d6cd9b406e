#pragma once

#include <QProxyStyle>
#include <memory>
#include <ovk/core/export.h>

namespace Qtitan {

class RibbonTheme;

/// The look of an office suite for the whole application: one of eleven themes, tinted by an
/// accent colour where the theme has one. Hand a RibbonStyle to QApplication::setStyle, which then
/// owns it; a change of theme or accent restyles every open window at once.
///
/// The style draws over Fusion and sets the application's palette. Colours that the application
/// has set itself with QApplication::setPalette stay, and a high contrast palette stays whole: the
/// theme's colours are then taken from it.
class OVK_EXPORT OfficeStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// The themes. The numbers are stored by applications and never change.
    enum Theme : int {
        Office2007Blue = 0,
        Office2007Black = 1,
        Office2007Silver = 2,
        Office2007Aqua = 3,
        Windows7Scenic = 4,
        Office2010Silver = 5,
        Office2010Blue = 6,
        Office2010Black = 7,
        Office2013White = 8,
        Office2013Gray = 9,
        Office2013Dark = 10
    };
    Q_ENUM(Theme)

    /// The named accents. The numbers are stored by applications and never change.
    enum AccentColor : int {
        AccentColorBlue = 0,
        AccentColorBrown = 1,
        AccentColorGreen = 2,
        AccentColorLime = 3,
        AccentColorMagenta = 4,
        AccentColorOrange = 5,
        AccentColorPink = 6,
        AccentColorPurple = 7,
        AccentColorRed = 8,
        AccentColorTeal = 9
    };
    Q_ENUM(AccentColor)

    /// Primitive elements that this style knows besides Qt's own, to be cast to PrimitiveElement.
    enum OfficePrimitiveElement : uint {
        /// The frame of a dock panel with its ground. The option's rectangle is its outline as
        /// QPainter::drawRect takes it: the panel's without its last column and row.
        PE_DockPanelFrame = 0xFF00000Au
    };

    OfficeStyle();
    ~OfficeStyle() override;

    /// The theme in use; Office2007Blue at first.
    Theme getTheme() const;

    /// Changes the theme. A number that names no theme changes nothing.
    void setTheme(Theme theme);

    /// Changes the accent to a named one. A number that names none changes nothing.
    void setAccentColor(AccentColor color);

    /// Changes the accent to any opaque colour; alpha is ignored, an invalid colour changes
    /// nothing. Themes without an accent (2007, Scenic, 2010) keep it for later.
    void setAccentColor(const QColor& color);

    /// The accent in use, whichever form set it; the named Blue at first.
    QColor accentColor() const;

    /// The colours that are drawn with now.
    const RibbonTheme& ribbonTheme() const;

    /// The colour of a named accent; an invalid colour for a number that names none.
    static QColor accentColor(AccentColor color);

    /// \name QStyle
    /// \{
    void polish(QApplication* application) override;
    void unpolish(QApplication* application) override;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    QPalette standardPalette() const override;
    /// \}

Q_SIGNALS:
    /// After theme, accent or a high contrast palette changed the colours, before the windows hear
    /// of it.
    void themeChanged();

private:
    void followPalette();

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Qtitan
