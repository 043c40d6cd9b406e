#pragma once

#include <QtCore/QList>
#include <QtGui/QIcon>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
class QToolButton;
QT_END_NAMESPACE

namespace Qtitan {

class RibbonBarPrivate;
class RibbonPage;
class RibbonQuickAccessBar;
class RibbonSystemButton;

/// The ribbon bar of a RibbonMainWindow.
///
/// From top to bottom: the row of the quick access bar (the caption, when the frame is themed), the
/// row of tabs with the system button at its beginning and the bar's own buttons at its end, and the
/// page area with the groups of the current page. A minimised bar shows the rows without the page
/// area; a click on a tab then drops the page over the content until a command ran.
class OVK_EXPORT RibbonBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool minimized READ isMinimized WRITE setMinimized NOTIFY minimizationChanged)
    Q_PROPERTY(bool titleGroupsVisible READ isTitleGroupsVisible WRITE setTitleGroupsVisible)
    Q_PROPERTY(bool frameThemeEnabled READ isFrameThemeEnabled WRITE setFrameThemeEnabled)
    Q_PROPERTY(int currentPageIndex READ currentPageIndex WRITE setCurrentPage)
public:
    explicit RibbonBar(QWidget* parent = nullptr);
    ~RibbonBar() override;

    /// Appends a new page. The bar owns it.
    RibbonPage* addPage(const QString& title);
    /// Inserts a new page; an index below 0 or past the end appends. The bar owns it.
    RibbonPage* insertPage(int index, const QString& title);
    /// Puts a page into the bar and takes ownership; an index below 0 or past the end appends. A page
    /// that is already in the bar moves to the index. A page that was never shown or hidden
    /// explicitly is shown. Null is ignored.
    void insertPage(int index, RibbonPage* page);
    /// Appends a page that belongs to a context, such as a selected object: its tab carries the
    /// colour, and the title of the context stands above the tabs that share it.
    RibbonPage* addContextualPage(const QString& title, const QString& contextTitle,
                                  const QColor& color);
    /// Moves a page to another index. An index out of range changes nothing.
    void movePage(int from, int to);
    /// Takes a page out of the bar without deleting it. It stays a hidden child of the bar, which
    /// deletes it with itself, until it is inserted again. A page of another bar is ignored.
    void detachPage(RibbonPage* page);
    /// Takes a page out of the bar and deletes it.
    void removePage(RibbonPage* page);
    /// Removes and deletes all pages.
    void clearPages();

    /// All pages in the order of their tabs, hidden ones included.
    QList<RibbonPage*> pages() const;
    /// The number of pages, hidden ones included.
    int pageCount() const;
    /// The page at an index, null when out of range.
    RibbonPage* getPage(int index) const;
    /// The index of a page, -1 when it is not in the bar.
    int indexOfPage(const RibbonPage* page) const;
    /// The index of the current page, -1 when there is none.
    int currentPageIndex() const;
    /// The current page, null when there is none.
    RibbonPage* currentPage() const;
    /// Makes a page current. An index out of range or of a hidden page changes nothing.
    void setCurrentPage(int index);
    void setCurrentPage(RibbonPage* page);

    /// Puts a button with a new action, owned by the bar, into the right-hand corner of the tab row.
    /// With a menu, which stays the caller's, a click opens it.
    QAction* addAction(const QIcon& icon, const QString& text, Qt::ToolButtonStyle style,
                       QMenu* menu = nullptr);
    /// Puts a button for an action into the right-hand corner. The action stays the caller's.
    /// Returns the action; null is ignored. QWidget::removeAction takes it out again.
    QAction* addAction(QAction* action, Qt::ToolButtonStyle style);
    using QWidget::addAction;
    /// The button of one of the actions in the right-hand corner, null for others.
    QToolButton* buttonForAction(const QAction* action) const;

    /// Adds the system button at the beginning of the tab row and returns its action. A second call
    /// changes icon and text of the one that is there.
    QAction* addSystemButton(const QIcon& icon, const QString& text);
    QAction* addSystemButton(const QString& text);
    /// Removes the system button and its action.
    void removeSystemButton();
    /// The system button, null before addSystemButton.
    RibbonSystemButton* getSystemButton() const;

    /// The quick access bar, a tool bar that a host fills with actions and widgets. It exists from
    /// construction on; whether it is seen is told by showQuickAccess.
    RibbonQuickAccessBar* quickAccessBar() const;
    void showQuickAccess(bool show);
    bool isQuickAccessVisible() const;

    /// Whether only the tabs show.
    bool isMinimized() const;
    void setMinimized(bool minimized);
    /// Whether the bar shows in full: the opposite of setMinimized.
    bool isMaximized() const;
    void setMaximized(bool maximized);
    /// Whether a minimised bar has dropped its page over the content.
    bool isPeeking() const;
    /// Ends a peek; nothing happens when there is none.
    void endPeek();

    /// Whether groups show their titles. Initially they do.
    bool isTitleGroupsVisible() const;
    void setTitleGroupsVisible(bool visible);

    /// Whether the bar draws the caption of its window. Initially the window system does.
    bool isFrameThemeEnabled() const;
    void setFrameThemeEnabled(bool enabled = true);

    /// Whether the key tips are shown.
    bool isKeyTipsVisible() const;
    void showKeyTips();
    void hideKeyTips();
    /// Gives the button of an action (or the page's tab) a key tip of the host's choice; an empty
    /// text returns it to the automatic one. At most three characters count.
    void setKeyTip(QAction* action, const QString& keyTip);
    void setKeyTip(RibbonPage* page, const QString& keyTip);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The bar was minimised or restored.
    void minimizationChanged(bool minimized);
    /// Another page is current; null when there is none left.
    void currentPageChanged(Qtitan::RibbonPage* page);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void actionEvent(QActionEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    friend class RibbonBarPrivate;
    std::unique_ptr<RibbonBarPrivate> d;
};

} // namespace Qtitan
