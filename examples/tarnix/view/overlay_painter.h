#pragma once

#include "model/scene.h"
#include "model/slicer.h"
#include "view/view_state.h"

#include <QPainter>

namespace tarnix {

/// Paints what stands around the parts: plate, grid, axes, names, boxes, measurements.
class OverlayPainter
{
public:
    OverlayPainter(QPainter& painter, const Camera& camera, const QSizeF& size,
                   const ViewColors& colors, const Formatter& format);

    void Background();
    void PlateAndGrid(const Plate& plate, const ViewState& state, const QImage& shadow);
    void Volume(const Plate& plate);
    void Axes(const Plate& plate);
    void PartBoxes(const PartList& parts);
    void SelectionSizes(const PartList& parts);
    void Names(const PartList& parts);
    void CentersOfMass(const PartList& parts);
    void SectionFrame(const Section& section, const Box& about);
    void CurrentLayer(const PartList& parts, const std::vector<const Slice*>& slices,
                      const LayerOptions& options);
    void Measurements(const std::vector<Measurement>& measurements, const std::vector<Vec3>& picked,
                      const Vec3* candidate, double width);

    /// A line in space, cut where it runs behind the eye.
    void Line(const Vec3& from, const Vec3& to);
    /// A filled flat shape in space, cut likewise.
    void Shape(const std::vector<Vec3>& corners);
    /// A text in a rounded bubble, centred on a place.
    void Bubble(const QPointF& center, const QString& text, const QColor& rim, const QColor& ink = QColor());

private:
    bool IsAhead(const Vec3& point) const;
    Vec3 CutAhead(const Vec3& inside, const Vec3& outside) const;
    QPointF At(const Vec3& point) const { return m_camera.Project(point, m_size); }
    void BoxEdges(const Box& box);
    void Dot(const Vec3& point, const QColor& color);

    QPainter& m_painter;
    const Camera& m_camera;
    QSizeF m_size;
    const ViewColors& m_colors;
    const Formatter& m_format;
};

} // namespace tarnix
