#pragma once

#include <QtCore/QList>

#include <ovk/docking/dock_drag_target.h>
#include <ovk/docking/dock_window.h>

namespace ovk {

class DockLayout;
class DockManager;
class DockWidget;

/// A dock window that holds a DockLayout and accepts dragged panels near its edges.
class OVK_EXPORT DockArea : public DockWindow, public IDockDragTarget
{
    Q_OBJECT

public:
    class Impl;

    /// Makes an area that belongs to `manager`, which is also its parent widget.
    explicit DockArea(DockManager& manager);
    ~DockArea() override;

    /// Is this area its own manager?
    bool IsManager() const;

    /// The layout of the area, with its four sites and the central widget.
    DockLayout* GetLayout() const;

    /// The manager that the area is registered with.
    DockManager* GetManager() const;

    /// Appends the docked panels, site by site in the order left, right, top, bottom.
    void GetWidgetsList(QList<DockWidget*>& widgets) const;

    void OnDragEnter(DockWidget& widget, const QPoint& pos) override;
    void OnDragLeave(DockWidget& widget, IDockDragTarget* next, const QPoint& pos) override;
    void OnDragOver(DockWidget& widget, const QPoint& pos) override;
    void OnDragDrop(DockWidget& widget, const QPoint& pos) override;
    void OnDragCancel(DockWidget& widget, const QPoint& pos) override;

    /// The private part, for the library and its tests.
    Impl* _Impl() const;

protected:
    /// Takes ownership of `impl`.
    explicit DockArea(Impl* impl, QWidget* parent = nullptr);

    void changeEvent(QEvent* event) override;
};

} // namespace ovk
