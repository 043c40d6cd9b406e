#pragma once

#include "model/mesh.h"

#include <QRgb>
#include <QString>

namespace tarnix {

/// One part on the plate: a shared mesh and where it stands.
class Part
{
public:
    Part() = default;
    Part(const QString& name, MeshPtr mesh, QRgb color);

    int id = 0; ///< unique in the scene and never given twice
    QString name;
    QString file; ///< where it was read from; empty for a part made here
    QRgb color = 0;
    bool visible = true;
    bool locked = false; ///< a locked part is not moved, changed or deleted
    bool selected = false;

    const MeshPtr& GetMesh() const { return m_mesh; }
    void SetMesh(MeshPtr mesh);
    const Transform& GetPlacement() const { return m_placement; }
    void SetPlacement(const Transform& placement);
    /// `map` after the present placement.
    void Apply(const Transform& map) { SetPlacement(map * m_placement); }

    /// The box on the plate.
    const Box& Bounds() const;
    /// Volume in cubic and surface in square millimetres, as placed.
    double Volume() const;
    double Area() const;
    /// The mesh with the placement worked in.
    Mesh PlacedMesh() const { return m_mesh->Mapped(m_placement); }
    /// Changes whenever mesh or placement does; a key for caches.
    quint64 Revision() const { return m_revision; }

private:
    MeshPtr m_mesh;
    Transform m_placement;
    mutable Box m_bounds;
    mutable bool m_bounds_known = false;
    quint64 m_revision = 0;
};

/// The colours that new parts get, one after another: `QRgb`.
QRgb PartColor(int number);

} // namespace tarnix
