#include "view/raster.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnix {
namespace {

constexpr float k_farthest = std::numeric_limits<float>::lowest();

/// A lit colour; light above 1 goes towards white.
inline QRgb Lit(QRgb color, float light)
{
    const auto channel = [light](int value) {
        const float lit =
            static_cast<float>(value) * std::min(light, 1.0f) +
            (light > 1.0f ? (255.0f - static_cast<float>(value)) * (light - 1.0f) : 0.0f);
        return std::clamp(static_cast<int>(lit + 0.5f), 0, 255);
    };
    return qRgb(channel(qRed(color)), channel(qGreen(color)), channel(qBlue(color)));
}

} // namespace

void Raster::Start(const QSize& size, int samples)
{
    m_samples = samples;
    m_width = std::max(1, size.width() * samples);
    m_height = std::max(1, size.height() * samples);
    const size_t count = static_cast<size_t>(m_width) * static_cast<size_t>(m_height);
    m_colors.assign(count, 0u);
    m_depths.assign(count, k_farthest);
    m_owners.assign(count, uint16_t(0));
}

template <class Plot>
void Raster::Scan(const ScreenPoint& p, const ScreenPoint& q, const ScreenPoint& r, Plot plot)
{
    const float twice_area = (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x);
    if (!(std::abs(twice_area) > 1e-12f))
        return;
    const float left = std::min({p.x, q.x, r.x}), right = std::max({p.x, q.x, r.x});
    const float top = std::min({p.y, q.y, r.y}), bottom = std::max({p.y, q.y, r.y});
    if (right < 0.0f || bottom < 0.0f || left > static_cast<float>(m_width) ||
        top > static_cast<float>(m_height))
        return;
    const int x0 = std::max(0, static_cast<int>(std::ceil(left - 0.5f)));
    const int x1 =
        static_cast<int>(std::min(static_cast<float>(m_width - 1), std::floor(right - 0.5f)));
    const int y0 = std::max(0, static_cast<int>(std::ceil(top - 0.5f)));
    const int y1 =
        static_cast<int>(std::min(static_cast<float>(m_height - 1), std::floor(bottom - 0.5f)));
    const float f = 1.0f / twice_area;
    // Weights of q and r at a pixel's middle, and their steps to the right.
    const float q_dx = (r.y - p.y) * f, q_dy = -(r.x - p.x) * f;
    const float r_dx = -(q.y - p.y) * f, r_dy = (q.x - p.x) * f;
    const float depth_dx = (q.depth - p.depth) * q_dx + (r.depth - p.depth) * r_dx;
    const float light_dx = (q.light - p.light) * q_dx + (r.light - p.light) * r_dx;
    for (int y = y0; y <= y1; ++y) {
        const float py = static_cast<float>(y) + 0.5f - p.y;
        const float px = static_cast<float>(x0) + 0.5f - p.x;
        float wq = q_dx * px + q_dy * py;
        float wr = r_dx * px + r_dy * py;
        float depth = p.depth + wq * (q.depth - p.depth) + wr * (r.depth - p.depth);
        float light = p.light + wq * (q.light - p.light) + wr * (r.light - p.light);
        size_t at = static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x0);
        for (int x = x0; x <= x1; ++x, ++at) {
            if (wq >= 0.0f && wr >= 0.0f && wq + wr <= 1.0f)
                plot(at, depth, light);
            wq += q_dx;
            wr += r_dx;
            depth += depth_dx;
            light += light_dx;
        }
    }
}

void Raster::Fill(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c, QRgb color,
                  uint16_t owner)
{
    Scan(a, b, c, [this, color, owner](size_t at, float depth, float light) {
        if (depth <= m_depths[at])
            return;
        m_depths[at] = depth;
        m_colors[at] = Lit(color, light);
        m_owners[at] = owner;
    });
}

void Raster::FillScaled(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c,
                        const QRgb* table, uint16_t owner)
{
    const float twice_area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (!(std::abs(twice_area) > 1e-12f))
        return;
    // The value as a linear function of the place on the screen.
    const float db = b.value - a.value, dc = c.value - a.value;
    const float dx = (db * (c.y - a.y) - dc * (b.y - a.y)) / twice_area;
    const float dy = (dc * (b.x - a.x) - db * (c.x - a.x)) / twice_area;
    const auto width = static_cast<size_t>(m_width);
    Scan(a, b, c, [&](size_t at, float depth, float light) {
        if (depth <= m_depths[at])
            return;
        const float x = static_cast<float>(at % width) + 0.5f - a.x;
        const float y = static_cast<float>(at / width) + 0.5f - a.y;
        const float value = a.value + dx * x + dy * y;
        m_depths[at] = depth;
        m_colors[at] = Lit(table[std::clamp(static_cast<int>(value * 255.0f + 0.5f), 0, 255)], light);
        m_owners[at] = owner;
    });
}

void Raster::FillFlat(const std::vector<std::vector<ScreenPoint>>& lines, const ScreenPoint& plane,
                      QRgb color, float light, uint16_t owner)
{
    // Crossings of the lines with the middle of each row.
    std::vector<std::vector<float>> rows(static_cast<size_t>(m_height));
    for (const std::vector<ScreenPoint>& line : lines) {
        for (size_t i = 0; i < line.size(); ++i) {
            const ScreenPoint* a = &line[i];
            const ScreenPoint* b = &line[(i + 1) % line.size()];
            if (a->y > b->y)
                std::swap(a, b);
            const int first =
                std::max(0, static_cast<int>(std::ceil(std::max(a->y, -1.0f) - 0.5f)));
            for (int y = first; y < m_height && static_cast<float>(y) + 0.5f < b->y; ++y) {
                const float t = (static_cast<float>(y) + 0.5f - a->y) / (b->y - a->y);
                rows[static_cast<size_t>(y)].push_back(a->x + (b->x - a->x) * t);
            }
        }
    }
    const QRgb lit = Lit(color, light);
    for (int y = 0; y < m_height; ++y) {
        std::vector<float>& hits = rows[static_cast<size_t>(y)];
        std::sort(hits.begin(), hits.end());
        for (size_t i = 0; i + 1 < hits.size(); i += 2) {
            const int x0 =
                std::max(0, static_cast<int>(std::ceil(std::max(hits[i], -1.0f) - 0.5f)));
            const int x1 =
                std::min(m_width, static_cast<int>(std::ceil(
                                      std::min(hits[i + 1], static_cast<float>(m_width)) - 0.5f)));
            float depth = plane.x * (static_cast<float>(x0) + 0.5f) +
                          plane.y * (static_cast<float>(y) + 0.5f) + plane.depth;
            size_t at =
                static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x0);
            for (int x = x0; x < x1; ++x, ++at, depth += plane.x) {
                if (depth < m_depths[at])
                    continue;
                m_depths[at] = depth;
                m_colors[at] = lit;
                m_owners[at] = owner;
            }
        }
    }
}

void Raster::Glaze(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c, QRgb color,
                   float opacity)
{
    Scan(a, b, c, [this, color, opacity](size_t at, float depth, float light) {
        if (depth > m_depths[at])
            Blend(at, Lit(color, light), opacity);
    });
}

void Raster::Blend(size_t at, QRgb color, float opacity)
{
    // The buffer holds premultiplied colours.
    const QRgb below = m_colors[at];
    const float rest = 1.0f - opacity;
    const auto mix = [opacity, rest](int over, int under) {
        return std::min(255, static_cast<int>(static_cast<float>(over) * opacity +
                                              static_cast<float>(under) * rest + 0.5f));
    };
    m_colors[at] = qRgba(mix(qRed(color), qRed(below)), mix(qGreen(color), qGreen(below)),
                         mix(qBlue(color), qBlue(below)), mix(255, qAlpha(below)));
}

void Raster::Line(ScreenPoint a, ScreenPoint b, QRgb color, float opacity, float bias,
                  bool write_depth, uint16_t owner)
{
    // Cut to the picture, or a line that runs far out would take for ever.
    const auto cut = [&a, &b](float low, float high, float ScreenPoint::*axis) {
        if (a.*axis > b.*axis)
            std::swap(a, b);
        if (b.*axis < low || a.*axis > high)
            return false;
        const auto at = [&](float where) {
            const float t = (where - a.*axis) / (b.*axis - a.*axis);
            ScreenPoint p;
            p.x = a.x + (b.x - a.x) * t;
            p.y = a.y + (b.y - a.y) * t;
            p.depth = a.depth + (b.depth - a.depth) * t;
            return p;
        };
        const ScreenPoint start = a.*axis < low ? at(low) : a;
        const ScreenPoint end = b.*axis > high ? at(high) : b;
        a = start;
        b = end;
        return true;
    };
    if (!cut(-2.0f, static_cast<float>(m_width) + 2.0f, &ScreenPoint::x) ||
        !cut(-2.0f, static_cast<float>(m_height) + 2.0f, &ScreenPoint::y))
        return;
    const float dx = b.x - a.x, dy = b.y - a.y;
    const int steps = std::max(1, static_cast<int>(std::max(std::abs(dx), std::abs(dy)) + 0.5f));
    const bool flat = std::abs(dx) >= std::abs(dy);
    for (int i = 0; i <= steps; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(steps);
        float depth = a.depth + (b.depth - a.depth) * t;
        depth += std::abs(depth) * bias;
        for (int k = 0; k < m_samples; ++k) {
            const float across = static_cast<float>(k) - static_cast<float>(m_samples - 1) * 0.5f;
            const int x = static_cast<int>(std::floor(a.x + dx * t + (flat ? 0.0f : across)));
            const int y = static_cast<int>(std::floor(a.y + dy * t + (flat ? across : 0.0f)));
            if (x < 0 || y < 0 || x >= m_width || y >= m_height)
                continue;
            const size_t at =
                static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x);
            if (depth < m_depths[at])
                continue;
            Blend(at, color, opacity);
            if (write_depth) {
                m_depths[at] = depth;
                m_owners[at] = owner;
            }
        }
    }
}

void Raster::Outline(const std::vector<bool>& is_marked, QRgb color, int width)
{
    const int reach = width * m_samples;
    const auto marked = [&](int x, int y) {
        const uint16_t owner = m_owners[static_cast<size_t>(y) * static_cast<size_t>(m_width) +
                                        static_cast<size_t>(x)];
        return owner < is_marked.size() && is_marked[owner];
    };
    // Distances to the marked area along rows, then across: a box-shaped rim with cut corners.
    std::vector<uint8_t> near(m_owners.size(), 0);
    for (int y = 0; y < m_height; ++y) {
        uint8_t* row = near.data() + static_cast<size_t>(y) * static_cast<size_t>(m_width);
        int since = reach + 1;
        for (int x = 0; x < m_width; ++x) {
            since = marked(x, y) ? 0 : std::min(since + 1, reach + 1);
            row[x] = static_cast<uint8_t>(reach + 1 - since);
        }
        since = reach + 1;
        for (int x = m_width - 1; x >= 0; --x) {
            since = marked(x, y) ? 0 : std::min(since + 1, reach + 1);
            row[x] = std::max(row[x], static_cast<uint8_t>(reach + 1 - since));
        }
    }
    const uint8_t inside = static_cast<uint8_t>(reach + 1);
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            const size_t at =
                static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x);
            if (near[at] == inside)
                continue;
            bool rim = near[at] > 0;
            for (int k = 1; k <= reach && !rim; ++k) {
                const int above = y - k, below = y + k;
                const size_t step = static_cast<size_t>(k) * static_cast<size_t>(m_width);
                const int needed = k;
                rim = (above >= 0 && near[at - step] >= needed) ||
                      (below < m_height && near[at + step] >= needed);
            }
            if (rim)
                m_colors[at] = color;
        }
    }
}

QImage Raster::Finish() const
{
    QImage image(m_width / m_samples, m_height / m_samples, QImage::Format_ARGB32_Premultiplied);
    if (m_samples == 1) {
        for (int y = 0; y < m_height; ++y)
            std::copy_n(m_colors.data() + static_cast<size_t>(y) * static_cast<size_t>(m_width),
                        m_width, reinterpret_cast<QRgb*>(image.scanLine(y)));
        return image;
    }
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* upper =
            m_colors.data() + static_cast<size_t>(2 * y) * static_cast<size_t>(m_width);
        const QRgb* lower = upper + m_width;
        QRgb* out = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            // Two channels at a time: four values of eight bits and their carry fit in sixteen.
            const QRgb p[4] = {upper[2 * x], upper[2 * x + 1], lower[2 * x], lower[2 * x + 1]};
            uint32_t even = 0x00020002u, odd = 0x00020002u;
            for (const QRgb value : p) {
                even += value & 0x00ff00ffu;
                odd += (value >> 8) & 0x00ff00ffu;
            }
            out[x] = ((even >> 2) & 0x00ff00ffu) | (((odd >> 2) & 0x00ff00ffu) << 8);
        }
    }
    return image;
}

uint16_t Raster::OwnerAt(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return 0;
    return m_owners[static_cast<size_t>(y) * static_cast<size_t>(m_width) + static_cast<size_t>(x)];
}

} // namespace tarnix
