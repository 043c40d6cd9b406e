#include "ovk/widgets/color_map.h"

#include "color_marks_p.h"
#include "widget_accessibility_p.h"

#include <QEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QResizeEvent>

#include <cmath>

namespace ovk {

namespace {

/// From this sum of red, green and blue on, a colour is light enough for a black mark.
constexpr int g_light_sum = 401;

} // namespace

ColorMap::ColorMap(QWidget* parent) : QWidget(parent), m_colors{Qt::gray, Qt::white}
{
    InstallWidgetAccessibility();
}

ColorMap::~ColorMap() = default;

void ColorMap::setColors(const QColor& start, const QColor& end)
{
    m_colors = {start, end};
    _redraw(size());
}

void ColorMap::setColors(const std::vector<QColor>& colors)
{
    m_colors = colors;
    _redraw(size());
}

QColor ColorMap::startColor() const
{
    return m_colors.empty() ? QColor() : m_colors.front();
}

void ColorMap::setStartColor(const QColor& color)
{
    if (m_colors.empty())
        m_colors.push_back(color);
    else
        m_colors.front() = color;
    _redraw(size());
}

QColor ColorMap::endColor() const
{
    return m_colors.empty() ? QColor() : m_colors.back();
}

void ColorMap::setEndColor(const QColor& color)
{
    if (m_colors.empty())
        m_colors.push_back(color);
    else
        m_colors.back() = color;
    _redraw(size());
}

void ColorMap::setRange(float min, float max, float step)
{
    m_range_min = min;
    m_range_max = max;
    m_step = step;
    _redraw(size());
}

void ColorMap::setRange(float range, float step)
{
    m_range_max = std::abs(range);
    m_range_min = -m_range_max;
    m_step = step;
    _redraw(size());
}

void ColorMap::SetOrientation(Orientation orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    _redraw(size());
}

ColorMap::Orientation ColorMap::GetOrientation() const
{
    return m_orientation;
}

bool ColorMap::GetDrawMarks() const
{
    return m_draw_marks;
}

void ColorMap::SetDrawMarks(bool draw)
{
    m_draw_marks = draw;
    _redraw(size());
}

void ColorMap::_redraw(const QSize& size)
{
    m_image = QImage(size, QImage::Format_RGB32);
    if (!m_image.isNull()) {
        _renderColors(m_image);
        if (m_draw_marks)
            _drawMarks(m_image);
    }
    update();
}

void ColorMap::_drawMarks(QImage& image)
{
    for (const ColorMark& mark : ColorMarks(m_range_min, m_range_max, m_step, image.height())) {
        const QRgb under = image.pixel(0, mark.row);
        const bool light = qRed(under) + qGreen(under) + qBlue(under) >= g_light_sum;
        const QRgb color = light ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
        for (int x = image.width() - image.width() / mark.divisor; x < image.width(); ++x)
            image.setPixel(x, mark.row, color);
    }
}

void ColorMap::_renderColors(QImage& image)
{
    QPainter painter(&image);
    const QRect rect = image.rect();
    if (!isEnabled()) {
        painter.fillRect(rect, palette().color(QPalette::Disabled, QPalette::WindowText));
        return;
    }
    QLinearGradient gradient;
    if (m_orientation == Horizontal) {
        gradient.setStart(rect.left(), rect.center().y());
        gradient.setFinalStop(rect.right(), rect.center().y());
    } else {
        gradient.setStart(rect.center().x(), rect.bottom());
        gradient.setFinalStop(rect.center().x(), rect.top());
    }
    // A single colour divides 0 by 0: no stop is set then, and the gradient has those of a new one.
    for (std::size_t k = 0; k < m_colors.size(); ++k) {
        const double position =
            static_cast<double>(k) / (static_cast<double>(m_colors.size()) - 1.0);
        if (position <= 1.0)
            gradient.setColorAt(position, m_colors[k]);
    }
    painter.fillRect(rect, gradient);
}

void ColorMap::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(0, 0, m_image);
}

void ColorMap::resizeEvent(QResizeEvent* event)
{
    _redraw(event->size());
}

void ColorMap::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::ApplicationFontChange:
        _redraw(size());
        break;
    default:
        break;
    }
}

} // namespace ovk

#include "moc_color_map.cpp"
