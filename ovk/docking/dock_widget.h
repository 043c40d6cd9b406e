#pragma once

#include <QtCore/QString>

#include <ovk/docking/dock_toolbox_site_item.h>
#include <ovk/docking/dock_window.h>

namespace ovk {

class DockManager;
class DockToolboxSite;
class IDockPage;

/// A tool panel: a frame with a title, a tab bar and pages, of which one is current.
///
/// It lies in a toolbox site or floats as a tool window. Made by DockManager::CreateDockWidget().
/// Changes of its look are collected and carried out together by one posted event.
class OVK_EXPORT DockWidget : public DockWindow, public DockToolboxSiteDragTarget
{
    Q_OBJECT

public:
    class Impl;

    /// What an index of a page counts.
    enum PositionMode
    {
        Visible = 0, ///< The pages that have a tab, in the order of the tabs.
        All = 1      ///< All pages.
    };

    ~DockWidget() override;

    /// \name Pages
    /// Pages are not owned. The widget of a page becomes a child of the panel; when the panel is
    /// deleted it goes to the panel's parent, unless IsOwnWidgets().
    /// @{

    /// Appends a widget as a page. The returned wrapper lives as long as the widget; null if the
    /// widget is null or is a page of the panel already.
    IDockPage* AddWidget(QWidget* widget);

    /// The same at an index; one that does not exist means the end.
    IDockPage* InsertWidget(int index, QWidget* widget, PositionMode mode);

    /// Appends a page. False if it is null or in the panel already.
    bool AddPage(IDockPage* page);

    /// Appends a page like AddPage(): the index is not looked at.
    bool InsertPage(int index, IDockPage* page, PositionMode mode);

    /// Null for an index that does not exist.
    IDockPage* GetPageAt(int index, PositionMode mode) const;

    /// -1 if the page is not there.
    int GetIndexOf(IDockPage* page, PositionMode mode) const;
    int GetCount(PositionMode mode) const;

    /// Takes a page out. Its widget goes to the panel's parent. False if there is no such page.
    bool RemovePage(int index, PositionMode mode);
    bool RemovePage(IDockPage* page);
    bool RemoveWidget(QWidget* widget);

    /// Has the page a tab? False for an unknown one.
    bool IsPageVisible(const QWidget* widget) const;
    bool IsPageVisible(const IDockPage* page) const;

    /// Shows or hides a page. A page that is not available shows when it becomes so.
    void SetPageVisible(QWidget* widget, bool visible);
    void SetPageVisible(IDockPage* page, bool visible);

    /// Was the page hidden by SetPageVisible()?
    bool IsExplicitlyHidden(const QWidget* widget) const;
    bool IsExplicitlyHidden(const IDockPage* page) const;

    /// Was the panel hidden by setVisible()?
    bool IsExplicitlyHidden() const;

    /// The page on top, null if none is visible.
    IDockPage* GetCurrentPage() const;

    /// Brings the page at a visible index on top; nothing for an index that does not exist.
    void SetCurrentIndex(int index);

    /// The visible index of the page on top, -1 if none is visible.
    int GetCurrentIndex() const;
    /// @}

    /// The manager that made the panel.
    DockManager* GetManager() const;

    /// Is the panel shown whenever its parent is?
    bool IsVisible() const;

    /// Shows or hides the panel. One without an available page stays hidden until it has one.
    void setVisible(bool visible) override;

    /// Title of the panel while it shows none or several pages.
    void SetForcedTitle(const QString& title);
    QString GetForcedTitle() const;

    /// Folds the panel to its title and tabs, or opens it. `forced` marks a panel that the site
    /// folded for want of room and may open by itself. A docked panel only opens if there is room.
    void SetCollapsed(bool collapsed, bool forced);
    bool IsCollapsed() const;
    bool IsForcedCollapsed() const;

    /// May the panel be folded? Never without a title.
    bool IsCollapsible() const;
    void SetCollapsible(bool collapsible);

    /// May the user drag the panel and tear off its tabs?
    void SetMovable(bool movable);
    bool IsMovable() const;

    /// Takes away the context menu of title and tabs.
    void HideContextMenu(bool hide);

    /// Deletes the panel later, or hides it, by IsDeleteOnClose().
    void Close();

    /// The object name, which is the panel's identifier in a stored layout.
    QString GetName() const;
    void SetName(const QString& name);

    /// Takes the panel out of its site and lets it float with its top-left corner at `pos`
    /// (global). Nothing if it floats already.
    void SetFloated(const QPoint& pos);

    /// The same at the place where it is.
    void SetFloated();
    bool IsFloated() const;

    /// Is the panel not covered by a block?
    bool IsEnabled() const;

    /// False covers the panel with a bleached picture of itself and blocks its input.
    void SetEnabled(bool enabled);

    /// Is any page available?
    bool IsAvailable() const;

    /// Call after the availability of pages changed: shows and hides them.
    void AvailabilityChanged();

    /// \name Options
    /// @{
    /// Do the widgets of the pages die with the panel? False at first.
    bool IsOwnWidgets() const;
    void SetOwnWidgets(bool own);
    /// Are there tabs for several pages? True at first.
    bool IsTabsEnabled() const;
    void SetTabsEnabled(bool enabled);
    /// Is there no tab for a single page? True at first.
    bool IsHideLastTab() const;
    void SetHideLastTab(bool hide);
    /// Is there a title? True at first.
    bool IsTitleEnabled() const;
    void SetTitleEnabled(bool enabled);
    /// Does the panel take the size of its current page only? False at first.
    bool IsFitToCurrent() const;
    void SetFitToCurrent(bool fit);
    /// Does Close() delete? True at first.
    bool IsDeleteOnClose() const;
    void SetDeleteOnClose(bool del);
    /// Is a panel whose pages were merged into this one deleted, instead of hidden? True at first.
    bool IsDeleteOnEmpty() const;
    void SetDeleteOnEmpty(bool del);
    /// Is there a close button? True at first.
    bool IsClosable() const;
    void SetClosable(bool closable);
    /// @}

    void OnDragEnter(DockWidget& widget, const QPoint& pos) override;
    void OnDragLeave(DockWidget& widget, IDockDragTarget* next, const QPoint& pos) override;
    void OnDragOver(DockWidget& widget, const QPoint& pos) override;
    void OnDragDrop(DockWidget& widget, const QPoint& pos) override;
    void OnDragCancel(DockWidget& widget, const QPoint& pos) override;

    /// The private part, for the library and its tests.
    Impl* _Impl() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    friend class DockManager;

    explicit DockWidget(DockManager& manager);
};

} // namespace ovk
