#include "view/view_cube.h"

#include <QCoreApplication>
#include <QPolygonF>

namespace tarnix {
namespace {

constexpr int k_sides = 6;
constexpr ViewDirection k_directions[k_sides] = {{0, 0},   {90, 0}, {180, 0},
                                                 {-90, 0}, {0, 90}, {0, -90}};
constexpr double k_half = 0.34;

} // namespace

QString ViewCube::SideName(int side)
{
    static const char* const k_names[k_sides] = {QT_TRANSLATE_NOOP("tarnix::ViewCube", "FRONT"),
                                                 QT_TRANSLATE_NOOP("tarnix::ViewCube", "RIGHT"),
                                                 QT_TRANSLATE_NOOP("tarnix::ViewCube", "BACK"),
                                                 QT_TRANSLATE_NOOP("tarnix::ViewCube", "LEFT"),
                                                 QT_TRANSLATE_NOOP("tarnix::ViewCube", "TOP"),
                                                 QT_TRANSLATE_NOOP("tarnix::ViewCube", "BELOW")};
    return QCoreApplication::translate("tarnix::ViewCube", k_names[side]);
}

ViewDirection ViewCube::SideDirection(int side)
{
    return k_directions[side];
}

Vec3 ViewCube::Normal(int side)
{
    Camera camera;
    camera.azimuth = k_directions[side].azimuth;
    camera.elevation = k_directions[side].elevation;
    return camera.Back();
}

std::array<QPointF, 4> ViewCube::Corners(int side, const QRectF& area, const Camera& camera) const
{
    Camera toward;
    toward.azimuth = k_directions[side].azimuth;
    toward.elevation = k_directions[side].elevation;
    const Vec3 n = toward.Back(), r = toward.Right(), u = toward.Up();
    std::array<QPointF, 4> corners;
    static constexpr int k_signs[4][2] = {{-1, 1}, {1, 1}, {1, -1}, {-1, -1}};
    for (size_t i = 0; i < 4; ++i) {
        const Vec3 p = n + r * k_signs[i][0] + u * k_signs[i][1];
        // A touch of perspective, so that the near side is told from the far one.
        const double f = area.width() * k_half * 0.86 / (1.0 - 0.10 * Dot(p, camera.Back()) / 1.7);
        corners[i] = area.center() + QPointF(Dot(p, camera.Right()) * f, -Dot(p, camera.Up()) * f);
    }
    return corners;
}

void ViewCube::Paint(QPainter& painter, const QRectF& area, const Camera& camera,
                     const ViewColors& colors, int hovered) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(26);
    font.setBold(true);
    for (int side = 0; side < k_sides; ++side) {
        const double toward = Dot(Normal(side), camera.Back());
        if (toward <= 0.02)
            continue;
        const std::array<QPointF, 4> corners = Corners(side, area, camera);
        const QPolygonF quad({corners[0], corners[1], corners[2], corners[3]});
        QColor face = colors.plate.lighter(104);
        face = QColor::fromRgbF(face.redF() * (0.80 + 0.20 * toward),
                                face.greenF() * (0.80 + 0.20 * toward),
                                face.blueF() * (0.80 + 0.20 * toward), 0.95);
        if (side == hovered)
            face = colors.accent;
        painter.setPen(QPen(colors.frame, 1.2, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
        painter.setBrush(face);
        painter.drawPolygon(quad);
        QTransform map;
        const QPolygonF square({{0, 0}, {120, 0}, {120, 120}, {0, 120}});
        if (toward > 0.2 && QTransform::quadToQuad(square, quad, map)) {
            painter.save();
            painter.setTransform(map, true);
            painter.setFont(font);
            QColor ink = side == hovered ? QColor(Qt::white) : colors.text;
            ink.setAlphaF(std::min(1.0, 0.35 + toward));
            painter.setPen(ink);
            painter.drawText(QRectF(0, 0, 120, 120), Qt::AlignCenter, SideName(side));
            painter.restore();
        }
    }
    painter.restore();
}

int ViewCube::SideAt(const QPointF& at, const QRectF& area, const Camera& camera) const
{
    for (int side = 0; side < k_sides; ++side) {
        if (Dot(Normal(side), camera.Back()) <= 0.02)
            continue;
        const std::array<QPointF, 4> corners = Corners(side, area, camera);
        if (QPolygonF({corners[0], corners[1], corners[2], corners[3]})
                .containsPoint(at, Qt::OddEvenFill))
            return side;
    }
    return -1;
}

} // namespace tarnix
