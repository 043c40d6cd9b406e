#pragma once

#include "view/part_renderer.h"
#include "view/picker.h"
#include "view/view_cube.h"
#include "view/workspace.h"

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace tarnix {

/// How the view answers to the mouse.
struct Handling
{
    double orbit_speed = 1.0;
    double zoom_speed = 1.0;
    bool invert_wheel = false;
    int drag_pixels = 5;
    int flight_ms = 220; ///< 0: views jump
    size_t former_views = 40;
};

/// The view of the scene in the middle of the window.
///
/// The left button selects, drags selected parts over the plate and draws a frame round parts; the
/// right button turns the view, the middle one moves it, the wheel zooms. A right click without a
/// move asks for the context menu.
class SceneView : public QWidget
{
    Q_OBJECT

public:
    explicit SceneView(Workspace& workspace, QWidget* parent = nullptr);

    const Camera& GetCamera() const { return m_camera; }
    /// Goes to a camera, in a short flight unless `at_once`; the former one is remembered.
    void GoTo(const Camera& camera, bool at_once = false);
    void LookFrom(const ViewDirection& direction);
    void Orbit(double azimuth_step, double elevation_step);
    void Zoom(double factor);
    /// Fits a box into the view; an empty one is the whole build volume.
    void ZoomTo(const Box& box, bool at_once = false);
    void SetPerspective(bool perspective);
    bool CanGoBack() const { return !m_former.empty(); }
    void GoBack();
    /// Whether views fly or jump; they jump while pictures are taken.
    void SetFlights(bool enabled) { m_flights = enabled; }

    void SetColors(const ViewColors& colors);
    const ViewColors& Colors() const { return m_colors; }
    void SetHandling(const Handling& handling);
    const Handling& GetHandling() const { return m_handling; }
    /// Where the first look at the plate comes from; of no effect after that.
    void SetStartView(double azimuth, double elevation);
    /// The view as a picture of its own, without waiting for a repaint.
    QImage Picture(const QSize& size);

    QSize sizeHint() const override { return {900, 640}; }
    QSize minimumSizeHint() const override { return {160, 120}; }

Q_SIGNALS:
    void ContextMenuAsked(const QPoint& global);
    /// The camera came to another place.
    void CameraChanged();
    /// The pointer is over this place of the plate or of a part, in millimetres.
    void PointerAt(const tarnix::Vec3& point);
    void PointerLeft();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// What the mouse is doing.
    enum class Drag
    {
        None,
        Pressed,
        Frame,
        Parts,
        Orbit,
        Pan
    };

    void Paint(QPainter& painter, const QSize& size, int samples, bool for_screen);
    void SceneTouched();
    void StartMotion();
    void Remember();
    QRectF CubeArea(const QSizeF& size) const;
    void DragParts(const QPointF& at);
    void SelectInFrame(const QRect& frame, bool add);
    void Hover(const QPointF& at);
    const QImage& Shadow();

    Workspace& m_workspace;
    Camera m_camera;
    Handling m_handling;
    std::vector<Camera> m_former;
    ViewColors m_colors;
    PartRenderer m_renderer;
    ViewCube m_cube;
    QVariantAnimation m_flight;
    Camera m_flight_start;
    Camera m_flight_end;
    QTimer m_rest;
    bool m_flights = true;
    bool m_moving = false;
    bool m_fitted = false;

    QImage m_parts_picture;
    bool m_parts_dirty = true;
    int m_parts_samples = 0;
    QImage m_shadow;
    bool m_shadow_dirty = true;

    Drag m_drag = Drag::None;
    QPoint m_press;
    QPoint m_last;
    int m_pressed_part = 0;
    Vec3 m_drag_start;
    Vec3 m_drag_done;
    int m_drag_number = 0;
    QRect m_frame;
    int m_hovered_side = -1;
    std::optional<Vec3> m_candidate;
};

} // namespace tarnix
