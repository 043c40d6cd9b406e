#include "model/part.h"

namespace tarnix {
namespace {

quint64 NextRevision()
{
    static quint64 revision = 0;
    return ++revision;
}

} // namespace

Part::Part(const QString& part_name, MeshPtr mesh, QRgb part_color)
    : name(part_name), color(part_color), m_mesh(std::move(mesh)), m_revision(NextRevision())
{
}

void Part::SetMesh(MeshPtr mesh)
{
    m_mesh = std::move(mesh);
    m_bounds_known = false;
    m_revision = NextRevision();
}

void Part::SetPlacement(const Transform& placement)
{
    m_placement = placement;
    m_bounds_known = false;
    m_revision = NextRevision();
}

const Box& Part::Bounds() const
{
    if (!m_bounds_known) {
        m_bounds = m_mesh ? MappedBounds(*m_mesh, m_placement) : Box();
        m_bounds_known = true;
    }
    return m_bounds;
}

double Part::Volume() const
{
    return std::abs(m_mesh->Volume() * m_placement.Determinant());
}

double Part::Area() const
{
    const Vec3 scale = m_placement.Scale();
    if (std::abs(scale.x - scale.y) < 1e-9 && std::abs(scale.y - scale.z) < 1e-9)
        return m_mesh->Area() * scale.x * scale.x;
    return PlacedMesh().Area();
}

QRgb PartColor(int number)
{
    static constexpr QRgb k_colors[] = {0xff6f9fd8, 0xffe0a458, 0xff7fb77e, 0xffc97b84,
                                        0xff9a86c9, 0xff5fb3b3, 0xffd4c26a, 0xffb08968};
    return k_colors[static_cast<size_t>(number) % std::size(k_colors)];
}

} // namespace tarnix
