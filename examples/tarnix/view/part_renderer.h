#pragma once

#include "model/scene.h"
#include "model/slicer.h"
#include "view/raster.h"
#include "view/view_state.h"

#include <map>
#include <unordered_map>

namespace tarnix {

/// Slices of the scene's parts, kept until a part changes.
class LayerCache
{
public:
    /// The slice of a part at a height; empty above and below it.
    const Slice& Get(const Part& part, double z);
    /// Forgets the slices of parts that are no more, or changed.
    void Clean(const PartList& parts);

private:
    struct Entry
    {
        quint64 revision = 0;
        std::map<double, Slice> slices;
    };
    std::unordered_map<int, Entry> m_entries;
};

/// Draws the parts, and nothing around them, by a camera.
class PartRenderer
{
public:
    /// `samples` 1 is for a view in motion, 2 for one at rest.
    QImage Draw(const PartList& parts, const Camera& camera, const ViewState& state,
                const ViewColors& colors, const QSize& size, int samples);

    LayerCache& Layers() { return m_layers; }

private:
    /// A map from a part's mesh to the screen, and the light of the scene in the mesh's space.
    struct Eye;

    void DrawSurface(const Part& part, const Eye& eye, const ViewState& state, uint16_t owner);
    void DrawGlass(const PartList& parts, const ViewState& state, const Camera& camera,
                   const QSize& size);
    void DrawEdges(const Part& part, const Eye& eye, const ViewState& state,
                   const ViewColors& colors);
    void DrawCap(const Part& part, const Eye& eye, const Section& section, uint16_t owner);
    void DrawLayers(const PartList& parts, const Camera& camera, const ViewState& state,
                    const QSize& size);
    void DrawLayer(const Part& part, const Eye& eye, double top, double thickness,
                   const Slice& slice, bool odd, uint16_t owner, QRgb color);
    const std::vector<float>& CornerNormals(const MeshPtr& mesh);
    const std::vector<Edge>& AllEdges(const MeshPtr& mesh);

    struct MeshData
    {
        MeshPtr mesh;
        std::vector<float> corner_normals;
        std::vector<Edge> edges;
        bool used = false;
    };

    /// The colours by a quantity, while parts are drawn by one.
    ColorScale m_scale;
    std::array<QRgb, 256> m_scale_table{};
    Raster m_raster;
    bool m_smooth = true;
    LayerCache m_layers;
    std::unordered_map<const Mesh*, MeshData> m_meshes;
};

} // namespace tarnix
