#include "ovk/widgets/color_map_hue_with_labels.h"

#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace ovk {

namespace {

/// Between the scale and its labels.
constexpr int g_labels_gap = 2;
/// More labels than any screen has rows are a mistake of the caller, who gets none.
constexpr double g_most_labels = 100000.0;

} // namespace

ColorMapHueWithLabels::ColorMapHueWithLabels(QWidget* parent) : ColorMapHue(parent)
{
    ColorMapHueWithLabels::setRange(1.0f, 10.0f, 1.0f);
}

ColorMapHueWithLabels::~ColorMapHueWithLabels() = default;

void ColorMapHueWithLabels::setRange(float min, float max, float step)
{
    _FillLabels(min, max, step);
    ColorMapHue::setRange(min, max, step);
}

void ColorMapHueWithLabels::setRange(float range, float step)
{
    _FillLabels(-static_cast<double>(range), range, step);
    ColorMapHue::setRange(range, step);
}

void ColorMapHueWithLabels::_FillLabels(double first, double last, double step)
{
    m_labels.clear();
    const double end = std::max(first, last);
    const double begin = std::min(first, last);
    if (!(step > 0.0) || !((end - begin) / step < g_most_labels))
        return;
    for (double value = begin; value <= end; value += step)
        m_labels.push_back(value);
}

void ColorMapHueWithLabels::_redraw(const QSize& size)
{
    const QScopedValueRollback<bool> redrawing(m_redrawing, true);
    m_image = QImage(size.width() - _GetLabelsWidth() - g_labels_gap,
                     size.height() - _GetLabelsFontHeight(), QImage::Format_RGB32);
    _DrawLabels(size);
    if (!m_image.isNull()) {
        _renderColors(m_image);
        if (m_draw_marks)
            _drawMarks(m_image);
    }
    update();
}

void ColorMapHueWithLabels::_DrawLabels(const QSize& size)
{
    const int width = _GetLabelsImageSize().width();
    ColorMapLabels::_DrawLabels(size);
    if (!m_labels_image.isNull()) {
        const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        QPainter painter(&m_labels_image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(0, 0), _GetLabelsImageSize()),
                         palette().color(group, QPalette::WindowText));
    }
    // Labels that became wider or narrower, as the units changed, take the room from the scale.
    if (!m_redrawing && _GetLabelsImageSize().width() != width)
        _redraw(this->size());
    else
        update();
}

void ColorMapHueWithLabels::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(0, _GetLabelsFontHeight() / 2, m_image);
    painter.drawImage(m_image.width() + g_labels_gap, 0, m_labels_image);
}

} // namespace ovk

#include "moc_color_map_hue_with_labels.cpp"
