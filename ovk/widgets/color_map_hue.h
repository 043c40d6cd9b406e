#pragma once

#include <ovk/widgets/color_map.h>

namespace ovk {

/// A colour scale that sweeps the hues from the start colour up to the end colour, from the bottom
/// upward in either orientation. It keeps its colours while it is disabled.
class OVK_EXPORT ColorMapHue : public ColorMap
{
    Q_OBJECT
    Q_PROPERTY(bool interpolateLS MEMBER m_interpolate_ls WRITE setInterpolateLS)

public:
    /// Shows the whole spectrum.
    explicit ColorMapHue(QWidget* parent = nullptr);
    ~ColorMapHue() override;

    /// With it, saturation and lightness run from those of the start colour to those of the end
    /// colour; without it (at the start) they are full and middle.
    void setInterpolateLS(bool interpolate);
    /// Runs through all hues, from 0 to 359.
    void fillWithSpectrum();

protected:
    void _renderColors(QImage& image) override;

    bool m_interpolate_ls = false;
};

} // namespace ovk
