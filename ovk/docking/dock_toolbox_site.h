#pragma once

#include <QtWidgets/QBoxLayout>

#include <memory>

#include <ovk/core/export.h>
#include <ovk/docking/dock_layout.h>

class QSizePolicy;

namespace ovk {

class DockDragController;
class DockSite;
class DockToolboxSiteDragTarget;
class DockWidget;
class IDockDragTarget;

/// The panels of one side, in one line: stacked at the left and right, side by side at the top and
/// bottom.
///
/// The site keeps every panel at a legal size: when the room runs out it collapses panels to their
/// title, and it opens them again when the room returns. An empty widget, the spacer, is always one
/// of its items; its minimum size holds the cross size (the width of a site at the left) that the
/// user has set.
class OVK_EXPORT DockToolboxSite : public QBoxLayout
{
    Q_OBJECT

public:
    class Impl;

    /// Flags of what goes on in the site.
    enum State
    {
        Idle = 1,
        Evaluating = 4, ///< A dragged panel is over the site.
        Animating = 8   ///< The preview is growing.
    };
    Q_DECLARE_FLAGS(States, State)

    explicit DockToolboxSite(DockSite& site);
    ~DockToolboxSite() override;

    /// Docks a panel just before the last item. False, and nothing changed, if it does not fit.
    bool AddWidget(DockWidget* widget);

    /// Docks a panel at `index` of the box, -1 behind the last item. Other panels may collapse for
    /// it. A panel of this site only moves. False, and nothing changed, if it does not fit.
    bool InsertWidget(int index, DockWidget* widget);

    /// Takes a panel out of the box; it keeps its parent.
    void RemoveWidget(DockWidget* widget);

    /// Is the whole site folded to nothing?
    bool IsMinimized() const;
    void SetMinimized(bool minimized);

    /// May the user fold the site with the button of its handle?
    bool IsMinimizeAvailable() const;
    void SetMinimizeAvailable(bool available);

    QSize minimumSize() const override;
    QSize maximumSize() const override;
    void setGeometry(const QRect& rect) override;

    DockLayout::Side GetSide() const;

    /// Do the panels lie one above the other?
    bool IsVertical() const;

    /// The width of a vertical site, the height of a horizontal one, in pixels, as set by the user;
    /// 0 for as small as the panels are.
    int GetCrossSize() const;
    void SetCrossSize(int size);

    DockSite* GetDockSite() const;

    /// Deletes the panels of the site.
    void Clear();

    /// Is the flag set?
    bool IsState(State state) const;

    /// \name Drag of a panel
    /// `source` is the target that forwards the call, or null if the area itself does.
    /// @{
    void OnDragEnter(IDockDragTarget* source, DockWidget& widget, const QPoint& pos);
    void OnDragLeave(IDockDragTarget* source, DockWidget& widget, IDockDragTarget* next,
                     const QPoint& pos);
    void OnDragOver(IDockDragTarget* source, DockWidget& widget, const QPoint& pos);
    void OnDragDrop(IDockDragTarget* source, DockWidget& widget, const QPoint& pos);
    void OnDragCancel(IDockDragTarget* source, DockWidget& widget, const QPoint& pos);
    /// @}

    /// The private part, for the library and its tests.
    Impl* _pp() const { return mp_impl.get(); }

protected:
    friend class DockLayout;
    friend class DockSite;
    friend class DockWidget;
    friend class DockToolboxSiteDragTarget;

    /// Adjusts the sizes and the policy that a panel of this site is about to take.
    void _AdjustWidgetMinMax(QSize& min, QSize& max, QSizePolicy& policy);

    /// Ends the preview of a drop.
    void _FinishEvaluation();

    /// Updates the icon and the visibility of the handle.
    void _UpdateSizer();

    /// Draws the preview strong, or faint while a merge into tabs is previewed instead.
    void _SetEstimatorHighlight(bool highlight);

    /// Tells the panels of a vertical site, but `exclude`, whether they could be expanded.
    void _UpdateCollapsibility(DockWidget* exclude);

private:
    std::unique_ptr<Impl> mp_impl;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(DockToolboxSite::States)

} // namespace ovk
