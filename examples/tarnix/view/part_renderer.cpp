#include "view/part_renderer.h"

#include "model/mesh_topology.h"

#include <QtMath>

#include <array>

namespace tarnix {

struct PartRenderer::Eye
{
    Eye(const Transform& placement, const Camera& camera, const QSize& inner_size)
        : map(placement), mirrored(placement.IsMirroring()), perspective(camera.perspective),
          distance(camera.EyeDistance()), scale(inner_size.height() / camera.height),
          middle_x(inner_size.width() / 2.0), middle_y(inner_size.height() / 2.0),
          target(camera.target), right(camera.Right()), up(camera.Up()), back(camera.Back())
    {
        // A key light from the upper left of the viewer, and a weak one from the right.
        key = Normalized(right * -0.45 + up * 0.75 + back * 0.85);
        fill = Normalized(right * 0.85 + up * -0.1 + back * 0.55);
    }

    /// False behind the eye.
    bool OnScreen(const Vec3& world, ScreenPoint& out) const
    {
        const Vec3 p = world - target;
        const double z = Dot(p, back);
        double f = scale;
        if (perspective) {
            const double way = distance - z;
            if (way < distance * 0.01)
                return false;
            f *= distance / way;
            out.depth = static_cast<float>(1.0 / way);
        } else {
            out.depth = static_cast<float>(z);
        }
        out.x = static_cast<float>(middle_x + Dot(p, right) * f);
        out.y = static_cast<float>(middle_y - Dot(p, up) * f);
        return true;
    }

    bool LooksAt(const Vec3& world_normal, const Vec3& world_point) const
    {
        if (!perspective)
            return Dot(world_normal, back) > 0.0;
        return Dot(world_normal, target + back * distance - world_point) > 0.0;
    }

    float Light(const Vec3& n) const
    {
        const double diffuse = std::max(0.0, Dot(n, key));
        const double side = std::max(0.0, Dot(n, fill));
        const double gleam = std::pow(diffuse, 24.0);
        return static_cast<float>(0.36 + 0.60 * diffuse + 0.16 * side + 0.14 * gleam);
    }

    /// The depth of the level plane at a height, as a linear function of the place on the screen.
    ScreenPoint PlaneAt(double z) const
    {
        // With the ray to a pixel as back * 1 + right * u - up * v, the plane's normal gives the
        // depth in closed form: 1/way in perspective, the way itself in a parallel view.
        const double gap = Dot({0, 0, 1}, target) - z;
        const double n_right = right.z, n_up = up.z, n_back = back.z;
        ScreenPoint plane;
        if (perspective) {
            // way * (-n_back + n_right * u + n_up * w) = -(eye height over the plane)
            const double over = gap + distance * n_back;
            const double per_pixel = 1.0 / (scale * distance);
            plane.x = static_cast<float>(-n_right * per_pixel / over);
            plane.y = static_cast<float>(n_up * per_pixel / over);
            plane.depth = static_cast<float>(
                (n_back + (n_right * middle_x - n_up * middle_y) * per_pixel) / over);
        } else {
            plane.x = static_cast<float>(-n_right / (scale * n_back));
            plane.y = static_cast<float>(n_up / (scale * n_back));
            plane.depth = static_cast<float>(
                (-gap + (n_right * middle_x - n_up * middle_y) / scale) / n_back);
        }
        return plane;
    }

    /// How much a line must be taken nearer to win over its own surface.
    float LineBias() const { return perspective ? 0.0006f : 0.0f; }
    /// In a parallel view depth is a length: the bias is one too.
    float LineLift() const { return perspective ? 0.0f : static_cast<float>(1.2 / scale); }

    Transform map;
    bool mirrored;
    bool perspective;
    double distance;
    double scale;
    double middle_x;
    double middle_y;
    Vec3 target, right, up, back, key, fill;
};

namespace {

constexpr double k_on_plate = 1e-3; // millimetres

/// A corner of a triangle in the world, with what is shared out along a cut.
struct Corner
{
    Vec3 at;
    float light;
};

/// Cuts a triangle by a section; the rest is a polygon of up to four corners.
int CutBySection(const Section& section, const Corner (&in)[3], Corner (&out)[4])
{
    int count = 0;
    for (int i = 0; i < 3; ++i) {
        const Corner& a = in[i];
        const Corner& b = in[(i + 1) % 3];
        const bool a_in = IsFinite(a.at) && (section.flipped ? a.at[section.axis] >= section.at
                                                             : a.at[section.axis] <= section.at);
        const bool b_in =
            section.flipped ? b.at[section.axis] >= section.at : b.at[section.axis] <= section.at;
        if (a_in)
            out[count++] = a;
        if (a_in != b_in) {
            const double t =
                (section.at - a.at[section.axis]) / (b.at[section.axis] - a.at[section.axis]);
            out[count++] = {a.at + (b.at - a.at) * t,
                            a.light + (b.light - a.light) * static_cast<float>(t)};
        }
    }
    return count;
}

QRgb OverhangColor(double lean, double limit)
{
    // From yellow at the limit to red for a ceiling.
    const double t = std::clamp((lean - limit) / std::max(1.0, 90.0 - limit), 0.0, 1.0);
    return QColor::fromHsvF(0.15 * (1.0 - t), 0.85, 0.97).rgb();
}

QRgb Darker(QRgb color, double factor)
{
    return qRgb(int(qRed(color) * factor), int(qGreen(color) * factor), int(qBlue(color) * factor));
}

/// The map that takes plate coordinates to those in which the section lies level.
Transform SectionFrame(int axis)
{
    Transform frame;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            frame.Set(row, column, (row + axis + 1) % 3 == column ? 1.0 : 0.0);
    }
    return frame;
}

} // namespace

const Slice& LayerCache::Get(const Part& part, double z)
{
    static const Slice empty;
    if (z < part.Bounds().low.z || z > part.Bounds().high.z)
        return empty;
    Entry& entry = m_entries[part.id];
    if (entry.revision != part.Revision()) {
        entry.revision = part.Revision();
        entry.slices.clear();
    }
    auto found = entry.slices.find(z);
    if (found == entry.slices.end())
        found = entry.slices.emplace(z, SliceMesh(*part.GetMesh(), part.GetPlacement(), z)).first;
    return found->second;
}

void LayerCache::Clean(const PartList& parts)
{
    for (auto it = m_entries.begin(); it != m_entries.end();) {
        const bool alive = std::any_of(parts.begin(), parts.end(), [&](const Part& part) {
            return part.id == it->first && part.Revision() == it->second.revision;
        });
        it = alive ? std::next(it) : m_entries.erase(it);
    }
}

const std::vector<float>& PartRenderer::CornerNormals(const MeshPtr& mesh)
{
    MeshData& data = m_meshes[mesh.get()];
    data.mesh = mesh;
    data.used = true;
    if (!data.corner_normals.empty())
        return data.corner_normals;
    // Faces round a point, in one array: first[i] ... first[i+1].
    const std::vector<Triangle>& triangles = mesh->Triangles();
    std::vector<uint32_t> first(mesh->Points().size() + 1, 0);
    for (const Triangle& t : triangles) {
        for (int corner = 0; corner < 3; ++corner)
            ++first[t[corner] + 1];
    }
    for (size_t i = 1; i < first.size(); ++i)
        first[i] += first[i - 1];
    std::vector<uint32_t> faces(triangles.size() * 3);
    std::vector<uint32_t> next(first.begin(), first.end() - 1);
    for (uint32_t i = 0; i < triangles.size(); ++i) {
        for (int corner = 0; corner < 3; ++corner)
            faces[next[triangles[i][corner]]++] = i;
    }
    // Light runs smoothly over bends up to this angle; sharper ones stay sharp.
    const double crease = m_smooth ? std::cos(qDegreesToRadians(32.0)) : 2.0;
    data.corner_normals.reserve(triangles.size() * 9);
    for (uint32_t i = 0; i < triangles.size(); ++i) {
        const Vec3& own = mesh->Normals()[i];
        for (int corner = 0; corner < 3; ++corner) {
            const uint32_t point = triangles[i][corner];
            Vec3 sum = own;
            for (uint32_t k = first[point]; k < first[point + 1]; ++k) {
                const Vec3& other = mesh->Normals()[faces[k]];
                if (faces[k] != i && Dot(own, other) > crease)
                    sum = sum + other;
            }
            sum = Normalized(sum);
            for (int axis = 0; axis < 3; ++axis)
                data.corner_normals.push_back(static_cast<float>(sum[axis]));
        }
    }
    return data.corner_normals;
}

const std::vector<Edge>& PartRenderer::AllEdges(const MeshPtr& mesh)
{
    MeshData& data = m_meshes[mesh.get()];
    data.mesh = mesh;
    data.used = true;
    // Every bend counts from a negative angle on.
    if (data.edges.empty())
        data.edges = ComputeFeatureEdges(*mesh, 0.0);
    return data.edges;
}

QImage PartRenderer::Draw(const PartList& parts, const Camera& camera, const ViewState& state,
                          const ViewColors& colors, const QSize& size, int samples)
{
    if (m_smooth != state.smooth) {
        m_smooth = state.smooth;
        m_meshes.clear();
    }
    m_raster.Start(size, samples);
    m_scale = ScaleOf(state.color_by, parts);
    m_scale_table = m_scale.Table();
    for (auto& entry : m_meshes)
        entry.second.used = false;
    const bool layers = state.layers.shown;
    std::vector<bool> marked(parts.size() + 1, false);
    if (layers) {
        DrawLayers(parts, camera, state, m_raster.InnerSize());
    } else if (state.mode == DisplayMode::Transparent) {
        DrawGlass(parts, state, camera, m_raster.InnerSize());
    }
    for (size_t i = 0; i < parts.size(); ++i) {
        const Part& part = parts[i];
        if (!part.visible || layers || state.mode == DisplayMode::Boxes)
            continue;
        const Eye eye(part.GetPlacement(), camera, m_raster.InnerSize());
        const auto owner = static_cast<uint16_t>(std::min<size_t>(i + 1, 0xffff));
        marked[i + 1] = part.selected;
        if (state.mode != DisplayMode::Wireframe && state.mode != DisplayMode::Transparent) {
            DrawSurface(part, eye, state, owner);
            if (state.section.on)
                DrawCap(part, eye, state.section, owner);
        }
    }
    for (const Part& part : parts) {
        if (part.visible && !layers && state.mode != DisplayMode::Boxes)
            DrawEdges(part, Eye(part.GetPlacement(), camera, m_raster.InnerSize()), state, colors);
    }
    if (std::find(marked.begin(), marked.end(), true) != marked.end())
        m_raster.Outline(marked, colors.accent.rgb(), 2);
    for (auto it = m_meshes.begin(); it != m_meshes.end();)
        it = it->second.used ? std::next(it) : m_meshes.erase(it);
    return m_raster.Finish();
}

void PartRenderer::DrawSurface(const Part& part, const Eye& eye, const ViewState& state,
                               uint16_t owner)
{
    const Mesh& mesh = *part.GetMesh();
    const std::vector<float>& normals = CornerNormals(part.GetMesh());
    std::vector<Vec3> points;
    points.reserve(mesh.Points().size());
    for (const Vec3& p : mesh.Points())
        points.push_back(eye.map.Map(p));
    constexpr QRgb k_inside = 0xffc8504c;
    for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
        const Triangle& t = mesh.Triangles()[i];
        const Vec3 normal = eye.map.MapNormal(mesh.Normals()[i]);
        const bool outside = eye.LooksAt(normal, points[t.a]);
        QRgb color = outside || !state.back_faces ? part.color : k_inside;
        if (state.color_by == ColorBy::Overhang && outside)
            color = m_scale.At(std::max({points[t.a].z, points[t.b].z, points[t.c].z}) < k_on_plate
                                   ? 0.0
                                   : LeanOf(normal));
        else if (state.overhangs && outside &&
            IsOverhang(normal, std::max({points[t.a].z, points[t.b].z, points[t.c].z}),
                       state.overhang_degrees))
            color = OverhangColor(qRadiansToDegrees(std::asin(std::clamp(-normal.z, 0.0, 1.0))),
                                  state.overhang_degrees);
        Corner corners[3];
        for (int corner = 0; corner < 3; ++corner) {
            const float* n = normals.data() + 9 * i + 3 * static_cast<size_t>(corner);
            Vec3 world = eye.map.MapNormal({n[0], n[1], n[2]});
            if (!outside)
                world = -world;
            corners[corner] = {points[t[corner]], eye.Light(world)};
        }
        Corner shape[4];
        int count = 3;
        if (state.section.on)
            count = CutBySection(state.section, corners, shape);
        else
            std::copy(std::begin(corners), std::end(corners), shape);
        ScreenPoint screen[4];
        bool visible = count >= 3;
        for (int k = 0; k < count && visible; ++k) {
            visible = eye.OnScreen(shape[k].at, screen[k]);
            screen[k].light = shape[k].light;
            screen[k].value = static_cast<float>(m_scale.PlaceOf(shape[k].at.z));
        }
        const bool scaled = state.color_by == ColorBy::Height && (outside || !state.back_faces);
        for (int k = 2; k < count && visible; ++k) {
            if (scaled)
                m_raster.FillScaled(screen[0], screen[k - 1], screen[k], m_scale_table.data(),
                                    owner);
            else
                m_raster.Fill(screen[0], screen[k - 1], screen[k], color, owner);
        }
    }
}

void PartRenderer::DrawCap(const Part& part, const Eye& eye, const Section& section, uint16_t owner)
{
    if (section.at < part.Bounds().low[section.axis] ||
        section.at > part.Bounds().high[section.axis])
        return;
    const Transform frame = SectionFrame(section.axis);
    const Transform back = frame.Inverted();
    const Slice slice = SliceMesh(*part.GetMesh(), frame * part.GetPlacement(), section.at);
    std::vector<ScreenPoint> screen;
    for (const Polygon& contour : slice.contours) {
        for (const Point2& p : contour) {
            ScreenPoint point;
            if (!eye.OnScreen(back.Map({p.x, p.y, section.at}), point))
                return;
            point.light = 1.0f;
            screen.push_back(point);
        }
    }
    const QRgb color = Darker(part.color, 0.72);
    for (const Triangle& t : Triangulate(slice.contours))
        m_raster.Fill(screen[t.a], screen[t.b], screen[t.c], color, owner);
}

void PartRenderer::DrawGlass(const PartList& parts, const ViewState& state, const Camera& camera,
                             const QSize& size)
{
    struct Pane
    {
        ScreenPoint corner[3];
        float depth;
        QRgb color;
    };
    std::vector<Pane> panes;
    for (const Part& part : parts) {
        if (!part.visible)
            continue;
        const Eye eye(part.GetPlacement(), camera, size);
        const Mesh& mesh = *part.GetMesh();
        const std::vector<float>& normals = CornerNormals(part.GetMesh());
        for (size_t i = 0; i < mesh.Triangles().size(); ++i) {
            const Triangle& t = mesh.Triangles()[i];
            Pane pane;
            pane.color = part.color;
            if (state.color_by == ColorBy::Height) {
                const Vec3 middle = eye.map.Map((mesh.Points()[t.a] + mesh.Points()[t.b] +
                                                 mesh.Points()[t.c]) *
                                                (1.0 / 3.0));
                pane.color = m_scale.At(middle.z);
            } else if (state.color_by == ColorBy::Overhang) {
                pane.color = m_scale.At(LeanOf(eye.map.MapNormal(mesh.Normals()[i])));
            }
            bool visible = true;
            for (int corner = 0; corner < 3 && visible; ++corner) {
                const Vec3 at = eye.map.Map(mesh.Points()[t[corner]]);
                const float* n = normals.data() + 9 * i + 3 * static_cast<size_t>(corner);
                const Vec3 world = eye.map.MapNormal({n[0], n[1], n[2]});
                visible = eye.OnScreen(at, pane.corner[corner]) &&
                          (!state.section.on ||
                           (state.section.flipped ? at[state.section.axis] >= state.section.at
                                                  : at[state.section.axis] <= state.section.at));
                pane.corner[corner].light = 0.35f + 0.65f * eye.Light(world);
            }
            if (!visible)
                continue;
            pane.depth = pane.corner[0].depth + pane.corner[1].depth + pane.corner[2].depth;
            panes.push_back(pane);
        }
    }
    std::sort(panes.begin(), panes.end(),
              [](const Pane& a, const Pane& b) { return a.depth < b.depth; });
    for (const Pane& pane : panes)
        m_raster.Glaze(pane.corner[0], pane.corner[1], pane.corner[2], pane.color, 0.36f);
}

void PartRenderer::DrawEdges(const Part& part, const Eye& eye, const ViewState& state,
                             const ViewColors& colors)
{
    const bool wire = state.mode == DisplayMode::Wireframe;
    const bool all = wire || state.mode == DisplayMode::Triangles;
    const bool features =
        state.mode == DisplayMode::Edges || state.mode == DisplayMode::Transparent;
    const auto draw = [&](const std::vector<Edge>& edges, QRgb color, float opacity) {
        for (const Edge& edge : edges) {
            Vec3 a = eye.map.Map(part.GetMesh()->Points()[edge.from]);
            Vec3 b = eye.map.Map(part.GetMesh()->Points()[edge.to]);
            if (state.section.on) {
                const double da = (a[state.section.axis] - state.section.at) *
                                  (state.section.flipped ? -1.0 : 1.0);
                const double db = (b[state.section.axis] - state.section.at) *
                                  (state.section.flipped ? -1.0 : 1.0);
                if (da > 0.0 && db > 0.0)
                    continue;
                if (da > 0.0)
                    a = a + (b - a) * (da / (da - db));
                else if (db > 0.0)
                    b = b + (a - b) * (db / (db - da));
            }
            ScreenPoint from, to;
            if (!eye.OnScreen(a, from) || !eye.OnScreen(b, to))
                continue;
            from.depth += eye.LineLift();
            to.depth += eye.LineLift();
            m_raster.Line(from, to, color, opacity, eye.LineBias());
        }
    };
    if (all) {
        const std::vector<Edge>& edges = AllEdges(part.GetMesh());
        // Dense wires would run together: the more there are, the fainter each.
        const float density = static_cast<float>(
            std::clamp(9000.0 / static_cast<double>(edges.size() + 1), 0.22, 0.85));
        draw(edges, wire ? (part.selected ? colors.accent.rgb() : part.color) : colors.edge.rgb(),
             wire ? density : density * 0.6f);
    } else if (features) {
        draw(part.GetMesh()->FeatureEdges(), colors.edge.rgb(),
             state.mode == DisplayMode::Transparent ? 0.5f : 0.8f);
    }
    if (state.open_edges)
        draw(part.GetMesh()->GetTopology().open, 0xffe01020, 1.0f);
}

void PartRenderer::DrawLayers(const PartList& parts, const Camera& camera, const ViewState& state,
                              const QSize& size)
{
    const LayerOptions& options = state.layers;
    const Eye eye(Transform(), camera, size);
    m_layers.Clean(parts);
    constexpr int k_most_layers = 160;
    const int step = options.stack ? std::max(1, (options.current + 1) / k_most_layers) : 1;
    const int first = options.stack ? options.current % step : options.current;
    for (size_t i = 0; i < parts.size(); ++i) {
        const Part& part = parts[i];
        if (!part.visible)
            continue;
        const auto owner = static_cast<uint16_t>(std::min<size_t>(i + 1, 0xffff));
        for (int layer = first; layer <= options.current; layer += step)
            DrawLayer(part, eye, (layer + 1) * options.thickness, step * options.thickness,
                      m_layers.Get(part, (layer + 0.5) * options.thickness),
                      (layer / step) % 2 != 0, owner,
                      state.color_by == ColorBy::Height
                          ? m_scale.At((layer + 0.5) * options.thickness)
                          : part.color);
    }
}

void PartRenderer::DrawLayer(const Part& part, const Eye& eye, double top, double thickness,
                             const Slice& slice, bool odd, uint16_t owner, QRgb color)
{
    if (slice.IsEmpty())
        return;
    // Each layer is a plate with walls; every second one a trace darker, so that they are told
    // apart.
    const float shade = odd ? 0.94f : 1.0f;
    const double bottom = top - thickness;
    std::vector<std::vector<ScreenPoint>> lines;
    for (const Polygon& contour : slice.contours) {
        std::vector<ScreenPoint> line;
        for (size_t k = 0; k < contour.size(); ++k) {
            const Point2& p = contour[k];
            const Point2& q = contour[(k + 1) % contour.size()];
            ScreenPoint corners[4];
            if (!eye.OnScreen({p.x, p.y, top}, corners[0]) ||
                !eye.OnScreen({q.x, q.y, top}, corners[1]) ||
                !eye.OnScreen({q.x, q.y, bottom}, corners[2]) ||
                !eye.OnScreen({p.x, p.y, bottom}, corners[3]))
                continue;
            const float light = eye.Light(Normalized(Vec3{q.y - p.y, p.x - q.x, 0.0})) * shade;
            for (ScreenPoint& corner : corners)
                corner.light = light;
            m_raster.Fill(corners[0], corners[1], corners[2], color, owner);
            m_raster.Fill(corners[0], corners[2], corners[3], color, owner);
            line.push_back(corners[0]);
        }
        lines.push_back(std::move(line));
    }
    const bool from_above = eye.LooksAt({0, 0, 1}, part.Bounds().Center());
    if (from_above)
        m_raster.FillFlat(lines, eye.PlaneAt(top), color, eye.Light({0, 0, 1}) * shade, owner);
    for (const std::vector<Point2>& gap : slice.gaps) {
        for (size_t k = 0; k + 1 < gap.size(); ++k) {
            ScreenPoint a, b;
            if (eye.OnScreen({gap[k].x, gap[k].y, top}, a) &&
                eye.OnScreen({gap[k + 1].x, gap[k + 1].y, top}, b))
                m_raster.Line(a, b, 0xffe01020, 1.0f, 0.0f, true, owner);
        }
    }
}

} // namespace tarnix
