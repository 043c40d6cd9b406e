#pragma once

#include "ribbon_button_p.h"
#include "ribbon_group_layout_p.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWidget>

#include <vector>

namespace Qtitan {

class RibbonGroup;

/// The launcher: the small button in the corner of a group's title strip.
class OVK_TEST_EXPORT RibbonLauncher : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonLauncher(QAction* action, QWidget* parent);
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QAction* m_action;
};

/// What a group shows in full: buttons and widgets in columns, the title strip, the launcher. It
/// fills its group, or the popup of a reduced one.
class OVK_TEST_EXPORT RibbonGroupPanel : public QWidget, public RibbonButtonHost
{
    Q_OBJECT
public:
    struct Item
    {
        enum class Kind
        {
            Button,
            Widget,
            Separator
        };
        Kind kind = Kind::Button;
        QAction* action = nullptr;
        QPointer<QWidget> widget;       ///< null for a separator and for a button not made yet
        RibbonButton* button = nullptr; ///< the widget, when it is a button of ours
        /// What the host asked for. A button takes it when it is made.
        Qt::ToolButtonStyle style = Qt::ToolButtonTextBesideIcon;
        QToolButton::ToolButtonPopupMode mode = QToolButton::MenuButtonPopup;
        QPointer<QMenu> menu;
        mutable QSize hint; ///< what a widget of the host's wanted when it was measured
        QRect rect;         ///< as laid out; of a separator, where it is drawn
    };

    explicit RibbonGroupPanel(RibbonGroup* group);
    ~RibbonGroupPanel() override;

    void insertItem(int index, const Item& item);
    /// Removes the item of an action. Its button is deleted; a widget goes back to its action.
    void removeItem(const QAction* action);
    const std::vector<Item>& items() const { return m_items; }
    int indexOf(const QAction* action) const;
    /// The button of an item, made now if it was not yet; null for widgets and separators.
    RibbonButton* button(int index) const;
    void setStyle(int index, Qt::ToolButtonStyle style);
    /// Whether one button for the whole panel would save anything: not for a single button.
    bool isWorthPopup() const;

    void setLauncher(QAction* action);
    RibbonLauncher* launcher() const { return m_launcher; }
    bool isTitleVisible() const { return m_titleVisible; }
    void setTitleVisible(bool visible);

    /// The ways to show the panel, widest first. Computed when first asked for after a change.
    const std::vector<RibbonGroupStep>& steps() const;
    /// The width of the first step, without computing the others.
    int fullWidth() const;
    int fullHeight() const;
    /// Chooses one of the steps; ensurePlaced() or the next change of size shows it.
    void setStep(int step);
    void ensurePlaced();
    int step() const { return m_step; }

    /// Forgets widths; the page lays out anew.
    void invalidate();
    /// Forgets those of the buttons too: they are measured anew.
    void invalidateAll();
    void buttonChanged() override;
    void buttonGone(RibbonButton* button) override;
    /// A command of the group ran: what was opened for it goes away.
    void commandRan();

    /// How often the steps of all panels were computed, for tests.
    static int computations();
    /// How often the items of all panels were given their places, for tests.
    static int placements();
    /// How many buttons all panels made, for tests.
    static int buttonsMade();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Buttons are made when they are first measured, that is, when their page is first laid out: a
    /// profile has hundreds of them, most of which are not seen for hours.
    void makeButtons() const;
    std::vector<RibbonLayoutItem> layoutItems(bool all_sizes) const;
    RibbonLayoutMetrics layoutMetrics() const;
    int minimumContentWidth() const;
    QRect titleRect() const;
    QRect launcherRect() const;
    void place();
    static QRect widgetRect(const Item& item);

    RibbonGroup* m_group;
    RibbonLauncher* m_launcher = nullptr;
    mutable std::vector<Item> m_items;
    mutable bool m_allMade = true;
    mutable std::vector<RibbonGroupStep> m_steps;
    mutable int m_fullWidth = -1;
    int m_step = 0;
    bool m_titleVisible = true;
    bool m_placed = false;
    QSize m_placedSize;
};

} // namespace Qtitan
