#pragma once

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRect>

#include "ovk/docking/dock_resize_p.h"
#include "ovk/docking/dock_title_p.h"
#include "ovk/docking/dock_window.h"

class QMouseEvent;

namespace ovk {

/// The private part of a dock window: the machine of title drags and edge resizes.
///
/// A title drag is idle, armed (pressed) or dragging. `armed` survives a click without movement;
/// the next press overwrites the stored position.
class OVK_TEST_EXPORT DockWindow::Impl : public QObject
{
public:
    Impl();
    ~Impl() override;

    /// The title was double-clicked.
    virtual void OnTitleDoubleClick() = 0;
    /// Makes the title, a child of the window.
    virtual DockTitle* CreateTitle() = 0;
    /// The window got that size.
    virtual void OnResized(const QSize& size);
    /// A drag began; `press` is in the coordinates of the title.
    virtual void BeginDrag(const QPoint& global, const QPoint& press);
    /// May the title start a drag?
    virtual bool CanDrag() const;
    /// The button was released.
    virtual void EndDrag(const QPoint& global);
    /// The cursor moved during a drag.
    virtual void DragTo(const QPoint& global);
    /// May the edges resize the window?
    virtual bool CanResize() const;
    /// Manhattan distance from the press at which a drag starts.
    virtual int GetDragThreshold() const;
    /// The drag ended without a release that could be a drop.
    virtual void CancelDrag();

    bool eventFilter(QObject* watched, QEvent* event) override;

    void SetTitleVisible(bool visible);
    void LayoutTitle();
    /// Ends a drag of which the release was lost. Nothing while none is under way.
    void AbortDrag();
    void HitTest(const QPoint& pos);
    void ResizeTo(const QMouseEvent& event);
    void StoreResizeStart(const QPoint& pos);

    DockWindow* window = nullptr;
    QPointer<DockTitle> title;
    QPoint title_press;
    bool armed = false;
    bool dragging = false;
    QPoint resize_press;
    QRect resize_start;
    ResizeEdge resize_edge = ResizeEdge::None;

private:
    bool OnTitlePress(const QMouseEvent& event);
    bool OnTitleMove(QMouseEvent& event);
    bool OnTitleRelease(const QMouseEvent& event);
};

} // namespace ovk
