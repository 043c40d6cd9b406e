#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

namespace tarnix {

/// A corner as it lies on the screen: place in pixels, depth that grows towards the viewer, and
/// the light that falls on it (0 dark, 1 full).
struct ScreenPoint
{
    float x = 0.0f;
    float y = 0.0f;
    float depth = 0.0f;
    float light = 1.0f;
    float value = 0.0f; ///< the place on a scale of colours, 0 to 1
};

/// Draws triangles and lines into a picture with a depth buffer, so that parts may run through
/// each other and need no sorting. Each pixel knows which part it shows.
class Raster
{
public:
    /// A transparent picture of nothing; `samples` 2 makes it twice as fine in both directions.
    void Start(const QSize& size, int samples);

    /// Fills a triangle with a colour times its light. `owner` is the number of its part, above 0.
    void Fill(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c, QRgb color,
              uint16_t owner);
    /// As Fill, with the colour of each place taken from a table of 256 by its value.
    void FillScaled(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c,
                    const QRgb* table, uint16_t owner);
    /// Fills a flat shape of closed lines by the even-odd rule. Its depth is that of the plane
    /// `depth = plane.x * x + plane.y * y + plane.depth`, which a flat shape in space has on the
    /// screen in either projection.
    void FillFlat(const std::vector<std::vector<ScreenPoint>>& lines, const ScreenPoint& plane,
                  QRgb color, float light, uint16_t owner);
    /// As Fill, mixed with what lies behind, which must have been drawn before; leaves the depth.
    void Glaze(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c, QRgb color,
               float opacity);
    /// A line, one pixel wide in the finished picture, drawn where nothing nearer is. `bias` is the
    /// part of its depth by which it is taken nearer, so that edges win over their own surface.
    void Line(ScreenPoint a, ScreenPoint b, QRgb color, float opacity, float bias,
              bool write_depth = false, uint16_t owner = 0);
    /// Draws a rim of `width` pixels about all parts whose number `is_marked` holds.
    void Outline(const std::vector<bool>& is_marked, QRgb color, int width);

    /// The picture in its own size, with smooth edges when there were two samples.
    QImage Finish() const;

    int Samples() const { return m_samples; }
    QSize InnerSize() const { return {m_width, m_height}; }
    uint16_t OwnerAt(int x, int y) const;

private:
    template <class Plot>
    void Scan(const ScreenPoint& a, const ScreenPoint& b, const ScreenPoint& c, Plot plot);
    void Blend(size_t at, QRgb color, float opacity);

    int m_width = 0;
    int m_height = 0;
    int m_samples = 1;
    std::vector<QRgb> m_colors;
    std::vector<float> m_depths;
    std::vector<uint16_t> m_owners;
};

} // namespace tarnix
