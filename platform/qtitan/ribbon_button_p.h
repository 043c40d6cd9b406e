#pragma once

#include "ribbon_group_layout_p.h"
#include "ribbon_painter_p.h"

#include <QtWidgets/QToolButton>

#include <ovk/core/export.h>

namespace Qtitan {

class RibbonButton;

/// Whoever lays out ribbon buttons hears when one of them wants another size.
class RibbonButtonHost
{
public:
    virtual void buttonChanged() = 0;
    /// A button is being deleted, by the host itself or by somebody whose it is not.
    virtual void buttonGone(RibbonButton* button) = 0;

protected:
    ~RibbonButtonHost() = default;
};

/// A button of a group or of the bar's corner.
///
/// toolButtonStyle() is what the host asked for and never changes by itself; displaySize() is how
/// much room the button has at present.
class OVK_TEST_EXPORT RibbonButton : public QToolButton
{
    Q_OBJECT
public:
    RibbonButton(RibbonGround ground, RibbonButtonHost* host, QWidget* parent);
    ~RibbonButton() override;

    /// Gives the button all that a host says of it, at once.
    void setUp(QAction* action, Qt::ToolButtonStyle style, ToolButtonPopupMode mode, QMenu* menu);
    /// The size that the style asks for.
    RibbonItemSize wantedSize() const;
    RibbonItemSize displaySize() const { return m_size; }
    void setDisplaySize(RibbonItemSize size);
    void setWantedStyle(Qt::ToolButtonStyle style);

    /// The width in one of the sizes. Measured once, until text, icon, menu, font or theme change.
    int widthFor(RibbonItemSize size) const;
    /// Whether the button can be shown without its text.
    bool canHideText() const;
    /// The text as it is drawn.
    QString label() const;
    bool hasMenu() const;
    /// The part of a split button that opens the menu; empty for others.
    QRect menuRect() const;

    void invalidate();
    /// Opens the menu below the button.
    void openMenu();
    /// What a key tip or Enter does: opens a menu that a click would open, clicks otherwise.
    void activate();

    /// How many widths were measured by all buttons, for tests.
    static int measurements();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void actionEvent(QActionEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;

private:
    RibbonButtonOption optionFor(RibbonItemSize size) const;
    RibbonMenuKind menuKind() const;
    /// Everything that decides about the widths, to be compared when the action changes.
    struct Contents
    {
        QString text;
        bool hasIcon = false;
        bool hasMenu = false;
        bool visible = true;
        bool operator==(const Contents& o) const
        {
            return text == o.text && hasIcon == o.hasIcon && hasMenu == o.hasMenu &&
                   visible == o.visible;
        }
    };
    Contents contents() const;
    void contentsChanged();

    RibbonGround m_ground;
    RibbonButtonHost* m_host;
    RibbonItemSize m_size = RibbonItemSize::Icon;
    mutable int m_widths[3] = {-1, -1, -1};
    Contents m_contents;
    bool m_menuHovered = false;
    bool m_menuOpen = false;
};

} // namespace Qtitan
