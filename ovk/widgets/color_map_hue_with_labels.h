#pragma once

#include <ovk/widgets/color_map_hue.h>
#include <ovk/widgets/color_map_labels.h>

namespace ovk {

/// A sweep of hues with the numbers of its range beside it, the largest at the top.
class OVK_EXPORT ColorMapHueWithLabels : public ColorMapHue, public ColorMapLabels
{
    Q_OBJECT
    Q_PROPERTY(bool showUserUnits MEMBER m_show_user_units WRITE ShowUserUnits)

public:
    /// The range is 1 to 10 in steps of 1.
    explicit ColorMapHueWithLabels(QWidget* parent = nullptr);
    ~ColorMapHueWithLabels() override;

    /// Labels run from the smaller end upward in steps; the larger end has one if it is reached
    /// exactly. A step that is not above 0 gives none.
    void setRange(float min, float max, float step) override;
    void setRange(float range, float step) override;

protected:
    void _redraw(const QSize& size) override;
    void _DrawLabels(const QSize& size) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void _FillLabels(double first, double last, double step);

    bool m_redrawing = false;
};

} // namespace ovk
