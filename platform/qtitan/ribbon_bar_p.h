#pragma once

#include "ribbon_bar.h"
#include "ribbon_button_p.h"
#include "ribbon_painter_p.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>

#include <memory>

#include <ovk/core/export.h>

QT_BEGIN_NAMESPACE
class QWheelEvent;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonBackstageView;
class RibbonCaptionBox;
class RibbonKeyTips;
class RibbonOverflowButton;
class RibbonPageArea;
class RibbonTabBar;

class OVK_TEST_EXPORT RibbonBarPrivate final : public RibbonButtonHost
{
public:
    explicit RibbonBarPrivate(RibbonBar* bar);
    ~RibbonBarPrivate();

    static RibbonBarPrivate* get(RibbonBar* bar) { return bar->d.get(); }
    static const RibbonBarPrivate* get(const RibbonBar* bar) { return bar->d.get(); }

    void create();
    void buttonChanged() override;
    void buttonGone(RibbonButton* button) override;

    // Pages (ribbon_bar.cpp)
    void tabsChanged();
    void pageGone(RibbonPage* page);
    void pageVisibilityChanged(RibbonPage* page);
    /// Closes what a page that goes has opened, and gives the focus back.
    void prepareToGo(RibbonPage* page);
    void takeOut(RibbonPage* page);
    /// The current page went from an index: another takes over, or there is none left.
    void currentGone(int index);
    void makeCurrent(RibbonPage* page);
    /// The nearest page with a tab, seen from an index; null when there is none.
    RibbonPage* nearestShown(int index) const;
    QList<RibbonPage*> shownPages() const;

    // What the user does (ribbon_bar_input.cpp)
    void closeBackstage();
    void tabPressed(RibbonPage* page);
    void tabDoubleClicked();
    void wheel(QWheelEvent* event);
    /// A command of the ribbon ran: a peek and the popup of a group go away.
    void commandRan();
    /// Closes what groups of the current page have opened.
    void hidePopups();
    void beginPeek();
    void endPeek();
    bool filterPeek(QObject* watched, QEvent* event);
    void toggleMinimized();

    // Layout (ribbon_bar_layout.cpp)
    void layout();
    void relayoutAll();
    /// Another screen or another resolution: nothing that was measured holds any more.
    void screenChanged();
    void heightChanged();
    void placeHolders();
    void placeArea();
    void updateArea();
    int captionHeight() const;
    int tabRowHeight() const;
    int barHeight() const;
    QRect captionRect() const;
    QRect tabRowRect() const;
    /// The tab of the current page in the coordinates of the bar; empty when it is not selected.
    QRect currentTabRect() const;
    /// Where the title of the window is drawn.
    QRect titleRect() const;
    /// The area that an open backstage covers, in the coordinates of the window.
    QRect backstageRect() const;
    void paint(QPainter& painter);
    struct ContextHeading
    {
        QRect rect;
        QString text;
        QColor color;
    };
    QVector<ContextHeading> contextHeadings() const;

    // Buttons of the corner
    struct Corner
    {
        QAction* action;
        RibbonButton* button;
    };
    void insertCorner(QAction* action, QAction* before);
    void removeCorner(QAction* action);

    void watchWindow();
    void setFrameThemed(bool themed);

    RibbonBar* const q;
    QWidget* parking = nullptr; ///< hidden parent of pages that are not in the bar
    RibbonTabBar* tabBar = nullptr;
    RibbonPageArea* area = nullptr;
    RibbonQuickAccessBar* quickAccess = nullptr;
    RibbonOverflowButton* overflow = nullptr;
    QWidget* quickAccessClip = nullptr;
    RibbonSystemButton* systemButton = nullptr;
    RibbonCaptionBox* caption = nullptr;
    QPointer<RibbonBackstageView> backstage; ///< the open one
    std::unique_ptr<RibbonKeyTips> keyTips;
    QList<RibbonPage*> pages;
    RibbonPage* current = nullptr;
    std::vector<Corner> corner;
    QHash<const QAction*, QString> wantedKeyTips;
    QPointer<QWidget> watchedWindow;
    QMetaObject::Connection screenConnection;
    QMetaObject::Connection dpiConnection;
    QPointer<QWidget> focusBefore; ///< had the focus before the keyboard came to the ribbon

    bool minimized = false;
    bool peeking = false;
    bool titlesVisible = true;
    bool quickAccessVisible = false;
    bool frameThemed = false;
    bool inLayout = false;
    bool destroying = false;
    int wheelDelta = 0;
    QPoint pressedAt;
    bool captionPressed = false;

    /// What addAction was told, until the action's event arrives.
    struct Pending
    {
        QAction* action = nullptr;
        Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly;
        QMenu* menu = nullptr;
    } pending;
};

/// One of the buttons of a caption that the bar draws.
class OVK_TEST_EXPORT RibbonCaptionWidget : public QAbstractButton
{
    Q_OBJECT
public:
    RibbonCaptionWidget(RibbonCaptionButton kind, QWidget* parent);
    void setKind(RibbonCaptionButton kind);

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    RibbonCaptionButton m_kind;
};

/// The window buttons at the end of the caption.
class OVK_TEST_EXPORT RibbonCaptionBox : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonCaptionBox(QWidget* parent);
    QSize sizeHint() const override;
    /// Shows the buttons that the window has and that fit its state.
    void follow(const QWidget* window);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    RibbonCaptionWidget* m_minimize;
    RibbonCaptionWidget* m_maximize;
    RibbonCaptionWidget* m_close;
};

} // namespace Qtitan
