#include "view/plate_shadow.h"

#include <QPainter>

namespace tarnix {
namespace {

/// A running mean over `2 * radius + 1` values along rows (step 1) or columns (step is the stride).
void Smear(std::vector<int>& values, int lines, int length, int line_step, int step, int radius)
{
    std::vector<int> out(static_cast<size_t>(length));
    const int window = 2 * radius + 1;
    for (int line = 0; line < lines; ++line) {
        int* data = values.data() + line * line_step;
        int sum = 0;
        for (int i = -radius; i < length; ++i) {
            if (i + radius < length)
                sum += data[(i + radius) * step];
            if (i - radius - 1 >= 0)
                sum -= data[(i - radius - 1) * step];
            if (i >= 0)
                out[static_cast<size_t>(i)] = sum / window;
        }
        for (int i = 0; i < length; ++i)
            data[i * step] = out[static_cast<size_t>(i)];
    }
}

} // namespace

QImage PlateShadow(const PartList& parts, const Plate& plate)
{
    constexpr double k_most_pixels = 700.0;
    const double scale = std::min(2.0, k_most_pixels / std::max(plate.width, plate.depth));
    const QSize size(std::max(1, int(plate.width * scale)), std::max(1, int(plate.depth * scale)));
    QImage mask(size, QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (const Part& part : parts) {
        if (!part.visible)
            continue;
        const Mesh& mesh = *part.GetMesh();
        std::vector<QPointF> points;
        points.reserve(mesh.Points().size());
        for (const Vec3& p : mesh.Points()) {
            const Vec3 world = part.GetPlacement().Map(p);
            // The light stands to the upper left behind the viewer.
            const double lift = std::max(0.0, world.z) * 0.12;
            points.emplace_back((world.x + lift + plate.width / 2.0) * scale,
                                (plate.depth / 2.0 - world.y - lift) * scale);
        }
        for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
            // Upper faces throw the same shadow as lower ones: half of them is enough.
            const Triangle& t = mesh.Triangles()[i];
            const QPointF corners[3] = {points[t.a], points[t.b], points[t.c]};
            const QPointF u = corners[1] - corners[0], v = corners[2] - corners[0];
            if (u.x() * v.y() - u.y() * v.x() < 0.0)
                painter.drawConvexPolygon(corners, 3);
        }
    }
    painter.end();

    std::vector<int> values(static_cast<size_t>(size.width()) * static_cast<size_t>(size.height()));
    for (int y = 0; y < size.height(); ++y) {
        const uchar* line = mask.constScanLine(y);
        std::copy_n(line, size.width(), values.begin() + y * size.width());
    }
    const int radius = std::max(1, int(2.0 * scale));
    for (int round = 0; round < 2; ++round) {
        Smear(values, size.height(), size.width(), size.width(), 1, radius);
        Smear(values, size.width(), size.height(), 1, size.width(), radius);
    }
    QImage shadow(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(shadow.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            line[x] = qRgba(0, 0, 0, values[static_cast<size_t>(y * size.width() + x)] * 85 / 255);
    }
    return shadow;
}

} // namespace tarnix
