#pragma once

#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QSize>
#include <QtWidgets/QTabBar>

#include "ovk/core/simple_lock.h"
#include "ovk/docking/dock_overlay_p.h"
#include "ovk/docking/dock_page.h"
#include "ovk/docking/dock_widget.h"
#include "ovk/docking/dock_window_p.h"

namespace ovk {

class DockManager;

/// Posted to a panel's private part: time to carry out what was collected.
class OVK_TEST_EXPORT DockUpdateEvent : public QEvent
{
public:
    DockUpdateEvent();
    static QEvent::Type GetType();
};

/// The private part of a panel.
class OVK_TEST_EXPORT DockWidget::Impl : public DockWindow::Impl
{
public:
    /// What has to be brought up to date.
    enum UpdateFlag
    {
        UpdateGeometry = 1,
        UpdateTitleText = 2,
        UpdateTabs = 4,
        UpdateSizes = 8,
        UpdateButtons = 16,
        UpdateTitleOnOff = 32
    };

    explicit Impl(DockManager& manager);
    ~Impl() override;

    /// Called by the panel when it is whole.
    void Init();

    /// \name Title and drag
    /// @{
    void OnTitleDoubleClick() override;
    DockTitle* CreateTitle() override;
    void OnResized(const QSize& size) override;
    void BeginDrag(const QPoint& global, const QPoint& press) override;
    bool CanDrag() const override;
    void EndDrag(const QPoint& global) override;
    void DragTo(const QPoint& global) override;
    bool CanResize() const override;
    int GetDragThreshold() const override;
    void CancelDrag() override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// @}

    DockWidget* Panel() const { return static_cast<DockWidget*>(window); }
    DockToolboxSite* Site() const { return Panel()->GetToolboxSite(); }

    /// \name Batched update
    /// @{
    void PostUpdate(int flags);
    void ProcessUpdate();
    bool TabsShown() const;
    /// @}

    /// \name Sizes, computed when they are asked for
    /// @{
    QSize GetAllMin() const;
    QSize GetAllMax() const;
    QSize GetCollapsedMin() const;
    QSize GetCurrentMin() const;
    QSize GetCurrentMax() const;
    void ComputeSizes() const;
    void ApplySizes();
    void LayoutChildren();
    /// @}

    /// \name Pages
    /// @{
    QWidget* WidgetOf(const IDockPage* page) const;
    IDockPage* PageOf(const QWidget* widget) const;
    bool SetPageShown(IDockPage* page, bool show, bool update_panel);
    bool AddPageImpl(IDockPage* page, int index, PositionMode mode, bool visible);
    /// Takes a page out that the caller has, or that is gone already.
    void DropPage(IDockPage* page);
    bool RemovePage(IDockPage* page);
    void SetPageVisible(IDockPage* page, bool visible);
    IDockPage* GetCurrentPage() const;
    QList<IDockPage*> const& Pages(PositionMode mode) const;
    /// Hands the widgets of all pages to the parent, unless they are the panel's own.
    void ReleasePages();
    /// Moves all pages of a dragged panel into this one.
    void Merge(DockWidget& dragged);
    /// @}

    /// Called by a site that takes the panel in.
    void OnDocked(DockToolboxSite& site);
    void SetFloated(const QPoint& pos);
    void SetExpandAvailable(bool available);
    /// What the title says, or would say.
    QString TitleText() const;
    /// Opens the menu of the pages below the title, unless the panel has none.
    void ShowMenuByKeyboard();
    /// Moves a floating panel whose corner is on no screen to the middle of the manager.
    void BringOnScreen();
    /// Leaves all lists and gives its pages back: the panel only waits to be deleted.
    void Retire();
    void OnShown();
    void OnHidden();
    /// A floating panel that is shown before its window is stays off the screen till then: else it
    /// would lie behind the window and not be minimised with it.
    void WaitForWindow();
    void EndWaiting();

    void ShowOverlay(const QPoint& pos);
    void HideOverlay();
    void SetBlocked(bool block);

    DockManager* manager;
    bool collapsible = true;
    bool own_widgets = false;
    bool tabs_enabled = true;
    bool hide_last_tab = true;
    bool title_enabled = true;
    bool fit_to_current = false;
    bool collapsed = false;
    bool forced_collapsed = false;
    bool delete_on_close = true;
    bool delete_on_empty = true;
    bool closable = true;
    bool movable = true;
    QString forced_title;
    QTabBar* tab_bar = nullptr;
    QList<IDockPage*> all_pages;
    QList<IDockPage*> visible_pages;
    bool page_destroy_guard = false;
    bool blocked = false;
    SimpleLock update_lock;
    bool tab_tear_armed = false;
    bool expand_on_tab_change = false;
    bool context_menu_hidden = false;
    bool floated = false;
    bool expand_available = true;
    QList<IDockPage*> hidden_pages;
    bool explicitly_hidden = false;
    mutable QSize all_min{-1, -1};
    mutable QSize all_max{-1, -1};
    mutable QSize collapsed_min{-1, -1};
    mutable QSize current_min{-1, -1};
    mutable QSize current_max{-1, -1};
    mutable bool sizes_dirty = true;
    int pending_updates = 0;
    bool destroying = false;
    QPointer<DockOverlay> overlay;
    QPointer<BlockOverlay> block_overlay;

    /// Folded because there was no room when it appeared: nobody's wish, and not stored.
    bool folded_for_room = false;

    /// How often the sizes were computed.
    mutable int size_computations = 0;

private:
    void UpdateTitle();
    void UpdateTitleButtons();
    void ShowCurrentPage();
    void FocusCurrentPage(Qt::FocusReason reason);
    void ShowTab(IDockPage* page);
    void HideTab(IDockPage* page);

    /// A native window in a page makes its siblings native; the panel must not become so with
    /// them: not every window manager tells a window that was part of another where it lies then.
    static void KeepParentPlain(QWidget& child);

    void OnTabClicked(int index);
    void OnCurrentChanged(int index);
    void OnTabMoved(int from, int to);
    void ShowContextMenu(const QPoint& pos);
    void FilterPanel(QEvent& event);
    void OnMoved();
    void FilterTabBar(QEvent& event);
    void FilterPage(QWidget& widget, QEvent& event);
    void TearOff(const QPoint& pos);

    struct SizeGroups;
    QSize PageMin(IDockPage& page, SizeGroups& groups) const;
    QSize PageMax(IDockPage& page, SizeGroups& groups) const;

    /// A page may be half destroyed when it is taken out: its widget is not asked of it then.
    QHash<const IDockPage*, QWidget*> m_widgets;
    bool m_focus_page = false;
    bool m_update_posted = false;
    bool m_waiting = false;
    /// Where the panel was put when it began to float, till something else moves it.
    QPoint m_put_at;
    bool m_applying_sizes = false;
};

} // namespace ovk
