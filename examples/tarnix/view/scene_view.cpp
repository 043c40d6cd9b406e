#include "view/scene_view.h"

#include "view/overlay_painter.h"
#include "view/plate_shadow.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace tarnix {
namespace {

constexpr int k_rest_ms = 140;

} // namespace

SceneView::SceneView(Workspace& workspace, QWidget* parent)
    : QWidget(parent), m_workspace(workspace), m_colors(ViewColors::Light(QColor(0x2b, 0x7c, 0xd3)))
{
    setObjectName(QStringLiteral("sceneView"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_rest.setSingleShot(true);
    m_rest.setInterval(k_rest_ms);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        m_moving = false;
        update();
    });
    m_flight.setDuration(m_handling.flight_ms);
    m_flight.setEasingCurve(QEasingCurve::InOutCubic);
    m_flight.setStartValue(0.0);
    m_flight.setEndValue(1.0);
    connect(&m_flight, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        const double t = value.toDouble();
        const auto between = [t](double a, double b) { return a + (b - a) * t; };
        m_camera = m_flight_end;
        m_camera.azimuth = m_flight_start.azimuth +
                           std::remainder(m_flight_end.azimuth - m_flight_start.azimuth, 360.0) * t;
        m_camera.elevation = between(m_flight_start.elevation, m_flight_end.elevation);
        m_camera.height = between(m_flight_start.height, m_flight_end.height);
        m_camera.target = m_flight_start.target + (m_flight_end.target - m_flight_start.target) * t;
        StartMotion();
        Q_EMIT CameraChanged();
    });
    connect(&workspace.GetScene(), &Scene::PartsChanged, this, &SceneView::SceneTouched);
    connect(&workspace.GetScene(), &Scene::SelectionChanged, this, &SceneView::SceneTouched);
    connect(&workspace.GetScene(), &Scene::PlateChanged, this, &SceneView::SceneTouched);
    connect(&workspace, &Workspace::ViewChanged, this, &SceneView::SceneTouched);
    connect(&workspace, &Workspace::MeasurementsChanged, this, [this] {
        m_candidate.reset();
        setCursor(m_workspace.Measuring() ? Qt::CrossCursor : Qt::ArrowCursor);
        update();
    });
    connect(&workspace, &Workspace::FormatChanged, this, QOverload<>::of(&QWidget::update));
}

void SceneView::SceneTouched()
{
    m_parts_dirty = true;
    m_shadow_dirty = true;
    update();
}

void SceneView::Remember()
{
    m_former.push_back(m_camera);
    if (m_former.size() > m_handling.former_views)
        m_former.erase(m_former.begin(), m_former.end() - std::ptrdiff_t(m_handling.former_views));
}

void SceneView::GoTo(const Camera& camera, bool at_once)
{
    if (camera == m_camera)
        return;
    Remember();
    m_flight.stop();
    if (at_once || !m_flights || m_handling.flight_ms == 0 || !isVisible()) {
        m_camera = camera;
        m_parts_dirty = true;
        update();
        Q_EMIT CameraChanged();
        return;
    }
    m_flight_start = m_camera;
    m_flight_end = camera;
    m_flight.start();
}

void SceneView::LookFrom(const ViewDirection& direction)
{
    Camera camera = m_camera;
    camera.azimuth = direction.azimuth;
    camera.elevation = direction.elevation;
    GoTo(camera);
}

void SceneView::Orbit(double azimuth_step, double elevation_step)
{
    Camera camera = m_camera;
    camera.Orbit(azimuth_step, elevation_step);
    GoTo(camera);
}

void SceneView::Zoom(double factor)
{
    Camera camera = m_camera;
    camera.Zoom(factor, QPointF(width() / 2.0, height() / 2.0), size());
    GoTo(camera);
}

void SceneView::ZoomTo(const Box& box, bool at_once)
{
    Camera camera = m_camera;
    Box wanted = box;
    if (wanted.IsEmpty()) {
        wanted = m_workspace.GetScene().GetPlate().Bounds();
        wanted.high.z = std::min(wanted.high.z, std::max(wanted.high.x, wanted.high.y) * 0.9);
    }
    camera.Fit(wanted, size());
    GoTo(camera, at_once);
}

void SceneView::SetPerspective(bool perspective)
{
    Camera camera = m_camera;
    camera.perspective = perspective;
    GoTo(camera, true);
}

void SceneView::GoBack()
{
    if (m_former.empty())
        return;
    m_flight.stop();
    m_camera = m_former.back();
    m_former.pop_back();
    m_parts_dirty = true;
    update();
    Q_EMIT CameraChanged();
}

void SceneView::SetColors(const ViewColors& colors)
{
    m_colors = colors;
    m_parts_dirty = true;
    update();
}

void SceneView::SetHandling(const Handling& handling)
{
    m_handling = handling;
    m_flight.setDuration(handling.flight_ms);
}

void SceneView::SetStartView(double azimuth, double elevation)
{
    if (m_fitted)
        return;
    m_camera.azimuth = azimuth;
    m_camera.elevation = elevation;
}

void SceneView::StartMotion()
{
    m_moving = true;
    m_parts_dirty = true;
    m_rest.start();
    update();
}

const QImage& SceneView::Shadow()
{
    if (m_shadow_dirty) {
        const ViewState& state = m_workspace.GetViewState();
        const bool wanted =
            !m_workspace.GetScene().Parts().empty() && state.shadows && state.plate &&
            !state.layers.shown && !state.section.on &&
            (state.mode == DisplayMode::Shaded || state.mode == DisplayMode::Edges ||
             state.mode == DisplayMode::Triangles);
        m_shadow =
            wanted ? PlateShadow(m_workspace.GetScene().Parts(), m_workspace.GetScene().GetPlate())
                   : QImage();
        m_shadow_dirty = false;
    }
    return m_shadow;
}

QRectF SceneView::CubeArea(const QSizeF& size) const
{
    const double side = std::clamp(std::min(size.width(), size.height()) * 0.22, 64.0, 110.0);
    return {size.width() - side - 8.0, 8.0, side, side};
}

void SceneView::Paint(QPainter& painter, const QSize& size, int samples, bool for_screen)
{
    const ViewState& state = m_workspace.GetViewState();
    const Scene& scene = m_workspace.GetScene();
    const Formatter& format = m_workspace.Format();
    painter.setFont(state.font);
    OverlayPainter overlay(painter, m_camera, size, m_colors, format);
    overlay.Background();
    const bool from_below = m_camera.elevation < 0.0;
    if (state.volume)
        overlay.Volume(scene.GetPlate());
    if (!from_below)
        overlay.PlateAndGrid(scene.GetPlate(), state, Shadow());
    if (state.axes)
        overlay.Axes(scene.GetPlate());

    const qreal ratio = for_screen ? devicePixelRatioF() : 1.0;
    const QSize pixels = size * ratio;
    if (scene.Parts().empty()) {
        m_parts_picture = QImage();
    } else if (m_parts_dirty || !for_screen || m_parts_samples < samples ||
               m_parts_picture.size() != pixels) {
        m_parts_picture =
            m_renderer.Draw(scene.Parts(), m_camera, state, m_colors, pixels, samples);
        m_parts_samples = samples;
        m_parts_dirty = !for_screen;
    }
    if (!m_parts_picture.isNull()) {
        m_parts_picture.setDevicePixelRatio(ratio);
        painter.drawImage(0, 0, m_parts_picture);
    }

    if (from_below)
        overlay.PlateAndGrid(scene.GetPlate(), state, QImage());
    if (state.layers.shown) {
        std::vector<const Slice*> slices;
        const double z = (state.layers.current + 0.5) * state.layers.thickness;
        for (const Part& part : scene.Parts())
            slices.push_back(part.visible ? &m_renderer.Layers().Get(part, z) : nullptr);
        overlay.CurrentLayer(scene.Parts(), slices, state.layers);
    } else if (state.mode == DisplayMode::Boxes) {
        overlay.PartBoxes(scene.Parts());
    }
    if (state.section.on)
        overlay.SectionFrame(state.section, scene.Bounds());
    if (state.bounds)
        overlay.SelectionSizes(scene.Parts());
    if (state.center_of_mass)
        overlay.CentersOfMass(scene.Parts());
    if (state.labels)
        overlay.Names(scene.Parts());
    overlay.Measurements(m_workspace.Measurements(), m_workspace.Picked(),
                         m_candidate ? &*m_candidate : nullptr, state.measure_width);
    if (state.view_cube && for_screen)
        m_cube.Paint(painter, CubeArea(size), m_camera, m_colors, m_hovered_side);
}

void SceneView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    Paint(painter, size(), m_moving || !m_workspace.GetViewState().fine ? 1 : 2, true);
    if (m_drag == Drag::Frame) {
        QColor fill = m_colors.accent;
        fill.setAlpha(40);
        painter.setPen(QPen(m_colors.accent, 1.0));
        painter.setBrush(fill);
        painter.drawRect(m_frame.normalized());
    }
}

QImage SceneView::Picture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const Camera kept = m_camera;
    Paint(painter, size, 2, false);
    m_camera = kept;
    return image;
}

void SceneView::resizeEvent(QResizeEvent*)
{
    m_parts_dirty = true;
    // The first real size is when the plate can be brought into view.
    if (!m_fitted && width() > 200 && height() > 150) {
        m_fitted = true;
        m_camera.Fit(m_workspace.GetScene().Count() > 0
                         ? m_workspace.GetScene().Bounds()
                         : m_workspace.GetScene().GetPlate().Bounds(),
                     size());
        if (m_workspace.GetScene().Count() == 0)
            ZoomTo(Box(), true);
        m_former.clear();
    }
}

void SceneView::mousePressEvent(QMouseEvent* event)
{
    m_press = m_last = event->pos();
    m_pressed_part = 0;
    m_flight.stop();
    if (event->button() == Qt::MiddleButton) {
        Remember();
        m_drag = Drag::Pan;
        return;
    }
    if (event->button() == Qt::RightButton) {
        m_drag = Drag::Pressed;
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (m_workspace.GetViewState().view_cube) {
        const int side = m_cube.SideAt(event->localPos(), CubeArea(size()), m_camera);
        if (side >= 0) {
            LookFrom(ViewCube::SideDirection(side));
            return;
        }
    }
    if (m_workspace.Measuring()) {
        Hover(event->localPos());
        if (m_candidate)
            m_workspace.Pick(Vec3(*m_candidate));
        return;
    }
    const Ray ray = m_camera.RayAt(event->localPos(), size());
    const auto hit =
        PickSurface(m_workspace.GetScene().Parts(), ray, m_workspace.GetViewState().section);
    if (hit) {
        m_pressed_part = hit->part;
        m_drag_start = hit->point;
        const Part* part = m_workspace.GetScene().Find(hit->part);
        if (event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier))
            m_workspace.GetScene().ToggleSelected(hit->part);
        else if (!part->selected)
            m_workspace.GetScene().SelectOnly(hit->part);
    }
    m_drag = Drag::Pressed;
}

void SceneView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint step = event->pos() - m_last;
    m_last = event->pos();
    if (m_drag == Drag::Pressed && (event->pos() - m_press).manhattanLength() >= m_handling.drag_pixels) {
        if (event->buttons() & Qt::RightButton) {
            Remember();
            m_drag = Drag::Orbit;
        } else if (m_pressed_part != 0 && !(event->modifiers() & Qt::ControlModifier)) {
            m_drag = Drag::Parts;
            m_drag_done = {};
            ++m_drag_number;
            m_workspace.GetScene().EndMerge();
        } else {
            m_drag = Drag::Frame;
        }
    }
    switch (m_drag) {
    case Drag::Orbit:
        m_camera.Orbit(-0.4 * m_handling.orbit_speed * step.x(), 0.4 * m_handling.orbit_speed * step.y());
        StartMotion();
        Q_EMIT CameraChanged();
        break;
    case Drag::Pan:
        m_camera.Pan(step, size());
        StartMotion();
        Q_EMIT CameraChanged();
        break;
    case Drag::Parts:
        DragParts(event->localPos());
        break;
    case Drag::Frame:
        m_frame = QRect(m_press, event->pos());
        update();
        break;
    case Drag::None:
        Hover(event->localPos());
        break;
    case Drag::Pressed:
        break;
    }
}

void SceneView::DragParts(const QPointF& at)
{
    // Parts slide over the level plane through the point at which they were taken.
    Vec3 hit;
    if (!m_camera.HitPlane(at, size(), m_drag_start.z, hit))
        return;
    Vec3 shift = hit - m_drag_start;
    shift.z = 0.0;
    if (m_workspace.snap_to_grid) {
        const double step = m_workspace.move_step;
        shift.x = std::round(shift.x / step) * step;
        shift.y = std::round(shift.y / step) * step;
    }
    const Vec3 more = shift - m_drag_done;
    if (more == Vec3{})
        return;
    m_moving = true;
    m_rest.start();
    if (m_workspace.GetScene().EditSelectedMerged(
            Phrase("tarnix::SceneView", QT_TR_NOOP("Move")), 1000 + m_drag_number,
            [&more](Part& part) { part.Apply(Transform::Translation(more)); }))
        m_drag_done = shift;
}

void SceneView::mouseReleaseEvent(QMouseEvent* event)
{
    const Drag drag = m_drag;
    m_drag = Drag::None;
    if (drag == Drag::Frame) {
        SelectInFrame(m_frame.normalized(),
                      event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
        update();
    } else if (drag == Drag::Parts) {
        m_workspace.GetScene().EndMerge();
    } else if (drag == Drag::Pressed && event->button() == Qt::RightButton) {
        Q_EMIT ContextMenuAsked(event->globalPos());
    } else if (drag == Drag::Pressed && event->button() == Qt::LeftButton && m_pressed_part == 0 &&
               !(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier))) {
        m_workspace.GetScene().Select([](const Part&) { return false; });
    }
}

void SceneView::SelectInFrame(const QRect& frame, bool add)
{
    m_workspace.GetScene().Select([&](const Part& part) {
        if (!part.visible)
            return false;
        if (add && part.selected)
            return true;
        return frame.contains(m_camera.Project(part.Bounds().Center(), size()).toPoint());
    });
}

void SceneView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_workspace.Measuring()) {
        mousePressEvent(event);
        return;
    }
    ZoomTo(m_workspace.GetScene().Bounds(m_workspace.GetScene().SelectedCount() > 0));
}

void SceneView::wheelEvent(QWheelEvent* event)
{
    const int delta =
        event->angleDelta().y() != 0 ? event->angleDelta().y() : event->angleDelta().x();
    if (delta == 0)
        return;
    if (m_workspace.GetViewState().layers.shown &&
        (event->modifiers() & (Qt::ShiftModifier | Qt::AltModifier))) {
        m_workspace.GoToLayer(m_workspace.GetViewState().layers.current + (delta > 0 ? 1 : -1));
        return;
    }
    m_flight.stop();
    m_camera.Zoom(std::pow(1.0015, delta * m_handling.zoom_speed * (m_handling.invert_wheel ? -1.0 : 1.0)),
                  event->position(), size());
    StartMotion();
    Q_EMIT CameraChanged();
}

void SceneView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        if (m_workspace.Measuring())
            m_workspace.StopMeasuring();
        else
            m_workspace.GetScene().Select([](const Part&) { return false; });
        return;
    }
    QWidget::keyPressEvent(event);
}

void SceneView::Hover(const QPointF& at)
{
    const ViewState& state = m_workspace.GetViewState();
    const int side = state.view_cube ? m_cube.SideAt(at, CubeArea(size()), m_camera) : -1;
    if (side != m_hovered_side) {
        m_hovered_side = side;
        update(CubeArea(size()).toAlignedRect());
    }
    const Ray ray = m_camera.RayAt(at, size());
    const auto hit =
        side < 0 ? PickSurface(m_workspace.GetScene().Parts(), ray, state.section) : std::nullopt;
    if (m_workspace.Measuring()) {
        std::optional<Vec3> candidate;
        if (hit)
            candidate = SnapHit(*m_workspace.GetScene().Find(hit->part), *hit, m_workspace.Snap());
        if (candidate.has_value() != m_candidate.has_value() ||
            (candidate && *candidate != *m_candidate)) {
            m_candidate = candidate;
            update();
        }
    }
    Vec3 point;
    if (hit)
        Q_EMIT PointerAt(m_candidate ? *m_candidate : hit->point);
    else if (m_camera.HitPlane(at, size(), 0.0, point))
        Q_EMIT PointerAt(point);
    else
        Q_EMIT PointerLeft();
}

void SceneView::leaveEvent(QEvent*)
{
    m_hovered_side = -1;
    m_candidate.reset();
    update();
    Q_EMIT PointerLeft();
}

} // namespace tarnix

#include "moc_scene_view.cpp"
