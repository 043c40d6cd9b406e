#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>

#include "ovk/docking/animator_p.h"
#include "ovk/docking/dock_space_p.h"
#include "ovk/docking/dock_toolbox_site.h"
#include "ovk/docking/dock_toolbox_site_item.h"
#include "ovk/docking/spacer_p.h"

namespace ovk {

class DockManager;

/// The empty widget of a toolbox site; its minimum size holds the cross size.
class OVK_TEST_EXPORT DockToolboxSiteSpacer : public Spacer, public DockToolboxSiteDragTarget
{
    Q_OBJECT

public:
    explicit DockToolboxSiteSpacer(DockToolboxSite& site, QWidget* area);

    int GetCrossSize() const;
    void SetCrossSize(int size);
};

/// Shows where a dragged panel would land.
class OVK_TEST_EXPORT DockToolboxSiteEstimator : public QWidget, public DockToolboxSiteDragTarget
{
    Q_OBJECT

public:
    DockToolboxSiteEstimator(DockToolboxSite& site, DockWidget& panel, QWidget* area);
    ~DockToolboxSiteEstimator() override;

    /// Starts to grow, or takes the full size at once; `size` is that of the site.
    void Start(const QSize& size);
    DockWidget* GetPanel() const { return mp_panel; }
    bool IsHighlight() const { return m_highlight; }
    void SetHighlight(bool highlight);

    void OnDragOver(DockWidget& widget, const QPoint& pos) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Animator m_animator;
    QPointer<DockWidget> mp_panel;
    bool m_highlight = true;
};

/// The private part of a toolbox site.
class OVK_TEST_EXPORT DockToolboxSite::Impl
{
public:
    DockToolboxSite* site = nullptr;
    QPointer<DockToolboxSiteEstimator> estimator;
    QPointer<QWidget> target;
    int index = -1;
    DockToolboxSite::States state = DockToolboxSite::Idle;
    DockSite* dock_site = nullptr;
    DockToolboxSiteSpacer* spacer = nullptr;
    bool minimized = false;
    int saved_cross_min = -1;
    bool minimize_available = true;

    DockArea* GetArea() const;
    /// Null while the area is being made.
    DockManager* GetManager() const;

    /// The panels in the order of the box.
    QList<DockWidget*> GetPanels() const;
    /// The sizes of these panels.
    static dock_space::Panels Describe(const QList<DockWidget*>& panels);
    /// Height of a vertical site, width of a horizontal one.
    int GetLength() const;
    dock_space::Space CalcFreeSpace() const;
    /// Makes room by collapsing panels other than `exclude`; false, and nothing changed, if that
    /// cannot be.
    bool EnsureSpace(DockWidget* exclude, int needed);
    /// Makes room for a panel that appears or opens. A site of which nobody knows yet how long it
    /// will be has room for everybody.
    bool MakeRoomFor(DockWidget& panel);
    /// Opens what was collapsed for want of room, as far as there is room again.
    void ExpandForcedWidgets();
    dock_space::Fit CheckFit(DockWidget& panel) const;
    /// The largest of the least sizes of all panels, and of the largest ones.
    void AggregateSizes(QSize& min, QSize& max) const;
    /// The sizes of a panel changed: the aggregate is computed anew when it is asked for.
    void InvalidateSizes() { aggregate_valid = false; }
    /// Has the site any item on screen but its spacer?
    bool HasVisibleItem() const;
    /// Brings a box that was not laid out, or just invalidated, up to date. Nothing while the area
    /// has no size that means anything.
    void EnsureLaidOut();
    /// The reaction of the site to its new geometry.
    void OnLaidOut();

    void ResizeBy(int delta);
    void ApplyMinimized(DockWidget& panel) const;

    void Evaluate(DockWidget& panel, const QPoint& pos);
    void FinishEvaluation();
    void OnEstimationDone();
    void RestoreCrossMin();

    /// States the rules of the site. Empty if all hold, else what is wrong.
    QString CheckConsistency() const;
    /// States the rules of the geometry, which hold once the layout has come to rest.
    QString CheckLaidOut() const;

private:
    /// Has the area been given a size, by the screen, a layout or its owner?
    bool IsAreaSized() const;
    /// Tells folded panels whether there is room to open them.
    void UpdateExpandable(const QList<DockWidget*>& panels, const dock_space::Panels& described);
    /// Sets `target` and gives the index of the box under the position of the area; -1 for none.
    int FindTarget(const QPoint& pos);

    /// The length that the box had when its area was of that size: Qt forgets the rectangle of a
    /// layout each time that anything in it changes.
    int m_known_length = 0;
    QSize m_known_area;
    mutable bool aggregate_valid = false;
    mutable QSize aggregate_min;
    mutable QSize aggregate_max;
};

} // namespace ovk
