#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QPointer>

#include <functional>

#include <ovk/core/export.h>

class QWidget;

namespace ovk {

class DockManager;
class DockWidget;
class IDockDragTarget;

/// Drives the drag of a panel: finds what lies under the cursor and calls the targets in their
/// fixed order. Idle while there is no dragged panel; while it drops, the panel may hide on its way
/// into its new place, else a panel that hides has ended its drag.
class OVK_TEST_EXPORT DockDragController : public QObject
{
    Q_OBJECT

public:
    /// Gives the widget at a global position, seen through the dragged panel; null for none.
    using WidgetAt = std::function<QWidget*(const QPoint& pos)>;

    explicit DockDragController(DockManager& manager);
    ~DockDragController() override;

    void Begin(DockWidget& widget, const QPoint& pos);
    void Update(const QPoint& pos);
    /// Drops at the position.
    void End(const QPoint& pos);
    /// Ends the drag without a drop: the panel stays where it is and no preview remains. For a
    /// panel that dies, a release that was lost, an application that lost the focus.
    void Cancel();
    void Reset();

    bool IsDragging() const { return mp_widget; }
    DockWidget* GetWidget() const { return mp_widget; }
    IDockDragTarget* GetCurrent() const { return mp_current; }

    IDockDragTarget* FindTarget(const QPoint& pos) const;

    /// Replaces the search of the widget under the cursor, for window systems that cannot look
    /// through a window, and for tests. Empty for the ordinary search.
    void SetWidgetAt(WidgetAt widget_at) { m_widget_at = std::move(widget_at); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class IDockDragTarget;

    void Forget(IDockDragTarget& target);
    /// Takes down every preview: none may outlive its drag.
    void ClearPreviews();
    QWidget* FindWidget(const QPoint& pos) const;
    QWidget* SearchWindows(const QPoint& pos) const;

    DockManager* mp_manager;
    QPointer<DockWidget> mp_widget;
    IDockDragTarget* mp_current = nullptr;
    WidgetAt m_widget_at;
    bool m_dropping = false;
    /// The window that was seen last under the dragged panel, and how often none was since then.
    mutable QPointer<QWidget> mp_found;
    mutable QElapsedTimer m_found_at;
    mutable int m_misses = 0;
};

} // namespace ovk
