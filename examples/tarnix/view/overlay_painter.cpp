#include "view/overlay_painter.h"

#include <QPainterPath>
#include <QtMath>

#include <array>

namespace tarnix {
namespace {

std::array<Vec3, 8> CornersOf(const Box& box)
{
    std::array<Vec3, 8> corners;
    for (size_t i = 0; i < 8; ++i)
        corners[i] = {(i & 1) ? box.high.x : box.low.x, (i & 2) ? box.high.y : box.low.y,
                      (i & 4) ? box.high.z : box.low.z};
    return corners;
}

QColor WithAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

const QColor k_axis_colors[3] = {QColor(0xd6, 0x45, 0x41), QColor(0x3f, 0x9b, 0x57),
                                 QColor(0x2b, 0x7c, 0xd3)};

} // namespace

OverlayPainter::OverlayPainter(QPainter& painter, const Camera& camera, const QSizeF& size,
                               const ViewColors& colors, const Formatter& format)
    : m_painter(painter), m_camera(camera), m_size(size), m_colors(colors), m_format(format)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
}

bool OverlayPainter::IsAhead(const Vec3& point) const
{
    if (!m_camera.perspective)
        return true;
    return m_camera.EyeDistance() - tarnix::Dot(point - m_camera.target, m_camera.Back()) >
           0.02 * m_camera.EyeDistance();
}

Vec3 OverlayPainter::CutAhead(const Vec3& inside, const Vec3& outside) const
{
    const double limit = m_camera.EyeDistance() * 0.98;
    const double a = tarnix::Dot(inside - m_camera.target, m_camera.Back());
    const double b = tarnix::Dot(outside - m_camera.target, m_camera.Back());
    return inside + (outside - inside) * std::clamp((limit - a) / (b - a), 0.0, 1.0);
}

void OverlayPainter::Line(const Vec3& from, const Vec3& to)
{
    const bool from_ahead = IsAhead(from), to_ahead = IsAhead(to);
    if (!from_ahead && !to_ahead)
        return;
    m_painter.drawLine(At(from_ahead ? from : CutAhead(to, from)),
                       At(to_ahead ? to : CutAhead(from, to)));
}

void OverlayPainter::Shape(const std::vector<Vec3>& corners)
{
    QPolygonF polygon;
    for (size_t i = 0; i < corners.size(); ++i) {
        const Vec3& a = corners[i];
        const Vec3& b = corners[(i + 1) % corners.size()];
        if (IsAhead(a))
            polygon << At(a);
        if (IsAhead(a) != IsAhead(b))
            polygon << At(IsAhead(a) ? CutAhead(a, b) : CutAhead(b, a));
    }
    m_painter.drawPolygon(polygon);
}

void OverlayPainter::Background()
{
    QLinearGradient gradient(0.0, 0.0, 0.0, m_size.height());
    gradient.setColorAt(0.0, m_colors.top);
    gradient.setColorAt(1.0, m_colors.bottom);
    m_painter.fillRect(QRectF(QPointF(), m_size), gradient);
}

void OverlayPainter::PlateAndGrid(const Plate& plate, const ViewState& state, const QImage& shadow)
{
    const double w = plate.width / 2.0, d = plate.depth / 2.0;
    const std::vector<Vec3> corners{{-w, -d, 0}, {w, -d, 0}, {w, d, 0}, {-w, d, 0}};
    const bool from_below = m_camera.elevation < 0.0;
    if (state.plate) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(WithAlpha(m_colors.plate, from_below ? 120 : 255));
        Shape(corners);
    }
    const bool whole =
        std::all_of(corners.begin(), corners.end(), [this](const Vec3& p) { return IsAhead(p); });
    if (state.shadows && !from_below && whole && !shadow.isNull()) {
        const QPolygonF from({{0.0, 0.0},
                              {qreal(shadow.width()), 0.0},
                              {qreal(shadow.width()), qreal(shadow.height())},
                              {0.0, qreal(shadow.height())}});
        const QPolygonF to({At(corners[3]), At(corners[2]), At(corners[1]), At(corners[0])});
        QTransform map;
        if (QTransform::quadToQuad(from, to, map)) {
            m_painter.save();
            m_painter.setTransform(map, true);
            m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
            m_painter.drawImage(0, 0, shadow);
            m_painter.restore();
        }
    }
    if (state.grid) {
        // Lines nearer together than a few pixels would be a grey haze: coarser ones then.
        const double pixels =
            m_camera.Scale(m_size) *
            std::max(0.12, std::abs(std::sin(qDegreesToRadians(m_camera.elevation))));
        double step = state.grid_step > 0.0                     ? state.grid_step
                      : m_format.Unit() == LengthUnit::Inch ? k_mm_per_inch / 2.0
                                                            : 10.0;
        while (step * pixels < 7.0)
            step *= 5.0;
        const int columns = int(w / step), rows = int(d / step);
        for (int pass = 0; pass < 2; ++pass) {
            const QColor color = pass == 0 ? m_colors.grid : m_colors.strong_grid;
            m_painter.setPen(QPen(WithAlpha(color, pass == 0 ? 170 : 130), pass == 0 ? 1.0 : 1.2));
            for (int i = -columns; i <= columns; ++i) {
                if ((i % state.grid_major == 0) == (pass == 1))
                    Line({i * step, -d, 0}, {i * step, d, 0});
            }
            for (int i = -rows; i <= rows; ++i) {
                if ((i % state.grid_major == 0) == (pass == 1))
                    Line({-w, i * step, 0}, {w, i * step, 0});
            }
        }
    }
    if (state.plate || state.grid) {
        m_painter.setPen(QPen(m_colors.frame, 1.6));
        m_painter.setBrush(Qt::NoBrush);
        Shape(corners);
    }
}

void OverlayPainter::BoxEdges(const Box& box)
{
    static constexpr size_t k_edges[12][2] = {{0, 1}, {2, 3}, {4, 5}, {6, 7}, {0, 2}, {1, 3},
                                              {4, 6}, {5, 7}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};
    const std::array<Vec3, 8> corners = CornersOf(box);
    for (const auto& edge : k_edges)
        Line(corners[edge[0]], corners[edge[1]]);
}

void OverlayPainter::Volume(const Plate& plate)
{
    QPen pen(WithAlpha(m_colors.volume, 110), 1.0, Qt::DashLine);
    m_painter.setPen(pen);
    BoxEdges(plate.Bounds());
}

void OverlayPainter::Axes(const Plate& plate)
{
    const double length = std::min(plate.width, plate.depth) * 0.12;
    // At the left front corner, where it is not under the parts.
    const Vec3 origin{-plate.width / 2.0, -plate.depth / 2.0, 0.0};
    static const char* const k_names[3] = {"x", "y", "z"};
    for (int axis = 0; axis < 3; ++axis) {
        Vec3 tip = origin;
        tip[axis] += length;
        m_painter.setPen(QPen(k_axis_colors[axis], 2.2, Qt::SolidLine, Qt::RoundCap));
        Line(origin, tip);
        tip[axis] += length * 0.16;
        if (IsAhead(tip))
            m_painter.drawText(QRectF(At(tip) - QPointF(8, 8), QSizeF(16, 16)), Qt::AlignCenter,
                               QLatin1String(k_names[axis]));
    }
}

void OverlayPainter::PartBoxes(const PartList& parts)
{
    for (const Part& part : parts) {
        if (!part.visible)
            continue;
        m_painter.setPen(QPen(part.selected ? m_colors.accent : QColor::fromRgb(part.color),
                              part.selected ? 2.2 : 1.5));
        BoxEdges(part.Bounds());
    }
}

void OverlayPainter::SelectionSizes(const PartList& parts)
{
    Box box;
    for (const Part& part : parts) {
        if (part.selected && part.visible)
            box.Add(part.Bounds());
    }
    if (box.IsEmpty())
        return;
    m_painter.setPen(QPen(WithAlpha(m_colors.accent, 190), 1.2, Qt::DashLine));
    BoxEdges(box);
    // Sizes stand at the edges that look at the viewer.
    const Vec3 back = m_camera.Back();
    const Vec3 size = box.Size();
    const double x = back.x >= 0.0 ? box.high.x : box.low.x;
    const double y = back.y >= 0.0 ? box.high.y : box.low.y;
    const Vec3 middle = box.Center();
    Bubble(At({middle.x, y, box.low.z}) + QPointF(0, 14), m_format.Length(size.x),
           k_axis_colors[0]);
    Bubble(At({x, middle.y, box.low.z}) + QPointF(0, 14), m_format.Length(size.y),
           k_axis_colors[1]);
    const double side_x = tarnix::Dot(m_camera.Right(), {1, 0, 0}) * (back.y >= 0.0 ? -1 : 1) >= 0.0
                              ? box.high.x
                              : box.low.x;
    Bubble(At({side_x, back.y >= 0.0 ? box.low.y : box.high.y, middle.z}) + QPointF(0, 0),
           m_format.Length(size.z), k_axis_colors[2]);
}

void OverlayPainter::Names(const PartList& parts)
{
    for (const Part& part : parts) {
        if (!part.visible)
            continue;
        const Vec3 middle = part.Bounds().Center();
        const Vec3 top{middle.x, middle.y, part.Bounds().high.z};
        if (IsAhead(top))
            Bubble(At(top) - QPointF(0, 16), part.name,
                   part.selected ? m_colors.accent : QColor::fromRgb(part.color));
    }
}

void OverlayPainter::CentersOfMass(const PartList& parts)
{
    for (const Part& part : parts) {
        const Vec3 center = part.GetPlacement().Map(part.GetMesh()->CenterOfMass());
        if (!part.selected || !part.visible || !IsAhead(center))
            continue;
        m_painter.setPen(QPen(m_colors.text, 1.0, Qt::DotLine));
        Line(center, {center.x, center.y, 0.0});
        const QPointF at = At(center);
        const QRectF circle(at - QPointF(8, 8), QSizeF(16, 16));
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(Qt::white);
        m_painter.drawEllipse(circle);
        m_painter.setBrush(Qt::black);
        m_painter.drawPie(circle, 0, 90 * 16);
        m_painter.drawPie(circle, 180 * 16, 90 * 16);
        m_painter.setPen(QPen(Qt::black, 1.4));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawEllipse(circle);
        Bubble(at + QPointF(0, 22), m_format.Point(center), m_colors.frame);
    }
}

void OverlayPainter::SectionFrame(const Section& section, const Box& about)
{
    if (about.IsEmpty())
        return;
    const int u = (section.axis + 1) % 3, v = (section.axis + 2) % 3;
    const double margin = 0.06 * Length(about.Size()) + 2.0;
    std::vector<Vec3> corners;
    for (const auto& [a, b] :
         {std::pair{-1, -1}, std::pair{1, -1}, std::pair{1, 1}, std::pair{-1, 1}}) {
        Vec3 corner;
        corner[section.axis] = section.at;
        corner[u] = a < 0 ? about.low[u] - margin : about.high[u] + margin;
        corner[v] = b < 0 ? about.low[v] - margin : about.high[v] + margin;
        corners.push_back(corner);
    }
    m_painter.setPen(QPen(k_axis_colors[section.axis], 1.6));
    m_painter.setBrush(WithAlpha(k_axis_colors[section.axis], 16));
    Shape(corners);
    static const char* const k_names[3] = {"X", "Y", "Z"};
    if (IsAhead(corners[2]))
        Bubble(At(corners[2]),
               QLatin1String(k_names[section.axis]) + QStringLiteral("  ") +
                   m_format.Length(section.at),
               k_axis_colors[section.axis]);
}

void OverlayPainter::CurrentLayer(const PartList& parts, const std::vector<const Slice*>& slices,
                                  const LayerOptions& options)
{
    for (size_t i = 0; i < parts.size(); ++i) {
        if (!slices[i])
            continue;
        const Slice& slice = *slices[i];
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const Polygon& contour : slice.contours) {
            QPolygonF polygon;
            for (const Point2& p : contour)
                polygon << At({p.x, p.y, slice.z});
            path.addPolygon(polygon);
            path.closeSubpath();
        }
        const QColor color = QColor::fromRgb(parts[i].color);
        if (options.filled) {
            m_painter.setPen(QPen(m_colors.contour.isValid() ? m_colors.contour : color.darker(150), 1.4));
            m_painter.setBrush(WithAlpha(color.lighter(118), options.hatched ? 150 : 225));
            m_painter.drawPath(path);
        }
        if (options.hatched) {
            m_painter.setPen(QPen(
                m_colors.hatch.isValid() ? m_colors.hatch : color.darker(options.filled ? 170 : 130), 1.0));
            for (const Segment2& line :
                 Hatch(slice, options.hatch_spacing, options.DegreesOf(options.current)))
                Line({line.from.x, line.from.y, slice.z}, {line.to.x, line.to.y, slice.z});
        }
    }
}

void OverlayPainter::Dot(const Vec3& point, const QColor& color)
{
    if (!IsAhead(point))
        return;
    m_painter.setPen(QPen(Qt::white, 1.6));
    m_painter.setBrush(color);
    m_painter.drawEllipse(At(point), 4.5, 4.5);
}

void OverlayPainter::Measurements(const std::vector<Measurement>& measurements,
                                  const std::vector<Vec3>& picked, const Vec3* candidate, double width)
{
    const QColor ink = m_colors.measure;
    for (const Measurement& entry : measurements) {
        const std::vector<Vec3>& p = entry.points;
        m_painter.setPen(QPen(ink, width));
        m_painter.setBrush(Qt::NoBrush);
        QPointF label = At(p.front());
        switch (entry.kind) {
        case MeasureKind::Point:
            label += QPointF(0, -18);
            break;
        case MeasureKind::Distance:
        case MeasureKind::Gap:
            Line(p[0], p[1]);
            label = (At(p[0]) + At(p[1])) / 2.0;
            break;
        case MeasureKind::Angle: {
            Line(p[0], p[1]);
            Line(p[1], p[2]);
            label = At(p[1]) + QPointF(0, 20);
            break;
        }
        case MeasureKind::Radius:
            if (const auto center = CircleCenter(p[0], p[1], p[2])) {
                const Vec3 u = Normalized(p[0] - *center) * entry.value;
                const Vec3 v =
                    Normalized(Cross(Cross(p[0] - *center, p[2] - *center), p[0] - *center)) *
                    entry.value;
                Vec3 last = *center + u;
                for (int i = 1; i <= 72; ++i) {
                    const double a = qDegreesToRadians(i * 5.0);
                    const Vec3 next = *center + u * std::cos(a) + v * std::sin(a);
                    Line(last, next);
                    last = next;
                }
                Line(*center, p[1]);
                label = At(*center);
            }
            break;
        case MeasureKind::Box: {
            Box box;
            box.Add(p[0]);
            box.Add(p[1]);
            BoxEdges(box);
            label = At({box.Center().x, box.Center().y, box.high.z}) - QPointF(0, 16);
            break;
        }
        }
        if (entry.kind != MeasureKind::Box) {
            for (const Vec3& point : p)
                Dot(point, ink);
        }
        Bubble(label, entry.Text(m_format), ink, m_colors.measure_text);
    }
    for (const Vec3& point : picked)
        Dot(point, QColor(0xd6, 0x45, 0x41));
    if (candidate) {
        if (!picked.empty()) {
            m_painter.setPen(QPen(ink, 1.2, Qt::DashLine));
            Line(picked.back(), *candidate);
        }
        Dot(*candidate, m_colors.candidate);
    }
}

void OverlayPainter::Bubble(const QPointF& center, const QString& text, const QColor& rim, const QColor& ink)
{
    const QFontMetricsF metrics(m_painter.font());
    const QSizeF size(metrics.horizontalAdvance(text) + 14.0, metrics.height() + 5.0);
    QRectF box(center - QPointF(size.width() / 2.0, size.height() / 2.0), size);
    m_painter.setPen(QPen(rim, 1.2));
    m_painter.setBrush(m_colors.bubble);
    m_painter.drawRoundedRect(box, 4.0, 4.0);
    m_painter.setPen(ink.isValid() ? ink : m_colors.text);
    m_painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace tarnix
