#include "ovk/widgets/color_legend.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace ovk {

namespace {

QString LabelText(double value)
{
    return QString::number(value, 'g', 6);
}

} // namespace

ColorLegend::ColorLegend(QWidget* parent) : ColorMap(parent)
{
    setMouseTracking(true);
    installEventFilter(this);
    SetColorsAndLabels({{0.0, Qt::white}, {0.5, Qt::red}, {1.0, Qt::black}});
    SetDrawMarks(false);
    ColorLegend::SetOrientation(Horizontal);
}

ColorLegend::~ColorLegend() = default;

void ColorLegend::SetColorsAndLabels(const std::map<double, QColor>& colorsAndLabels)
{
    if (colorsAndLabels.empty())
        return;
    if (&colorsAndLabels != &m_colors_and_labels)
        m_colors_and_labels = colorsAndLabels;
    std::vector<QColor> colors;
    colors.reserve(m_colors_and_labels.size());
    for (const auto& entry : m_colors_and_labels)
        colors.push_back(entry.second);
    setColors(colors);
    const double first = m_colors_and_labels.begin()->first;
    const double last = m_colors_and_labels.rbegin()->first;
    // A single entry divides 0 by 0: the step is then no number, and there are no marks.
    const double step = (last - first) / (static_cast<double>(m_colors_and_labels.size()) - 1.0);
    setRange(static_cast<float>(first), static_cast<float>(last), static_cast<float>(step));
}

int ColorLegend::GetOffset() const
{
    return m_offset;
}

int ColorLegend::GetColorSize() const
{
    return m_color_size;
}

void ColorLegend::_SetOffset(int offset)
{
    m_offset = offset;
    _redraw(size());
}

void ColorLegend::_SetColorSize(int size)
{
    m_color_size = size;
    _redraw(this->size());
}

QSize ColorLegend::_EstimateLabelsSize() const
{
    const QFontMetrics metrics(QApplication::font());
    const QRect first = metrics.boundingRect(LabelText(m_colors_and_labels.begin()->first));
    const QRect last = metrics.boundingRect(LabelText(m_colors_and_labels.rbegin()->first));
    return first.size().expandedTo(last.size());
}

void ColorLegend::_redraw(const QSize& size)
{
    const QSize labels = _EstimateLabelsSize();
    if (m_orientation == Vertical) {
        m_image = QImage(m_color_size, size.height(), QImage::Format_RGB32);
        _DrawLabels(QSize(labels.width(), size.height()));
    } else {
        m_image = QImage(size.width(), m_color_size, QImage::Format_RGB32);
        _DrawLabels(QSize(size.width(), labels.height()));
    }
    if (!m_image.isNull()) {
        _renderColors(m_image);
        if (m_draw_marks)
            _drawMarks(m_image);
    }
    update();
}

void ColorLegend::_DrawLabels(const QSize& size)
{
    const qreal ratio = devicePixelRatioF();
    m_labels_image = QImage(size * ratio, QImage::Format_ARGB32_Premultiplied);
    if (m_labels_image.isNull())
        return;
    m_labels_image.setDevicePixelRatio(ratio);
    m_labels_image.fill(Qt::transparent);

    const QString first = LabelText(m_colors_and_labels.begin()->first);
    const QString last = LabelText(m_colors_and_labels.rbegin()->first);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QRect rect(QPoint(0, 0), size);
    QPainter painter(&m_labels_image);
    painter.setFont(QApplication::font());
    painter.setPen(palette().color(group, QPalette::WindowText));
    if (m_orientation == Vertical) {
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignBottom | Qt::TextDontClip, first);
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip, last);
    } else {
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, first);
        painter.drawText(rect, Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip, last);
    }
}

double ColorLegend::_GetCurrentValue(const QPointF& position) const
{
    const double first = m_colors_and_labels.begin()->first;
    const double last = m_colors_and_labels.rbegin()->first;
    const double range = last - first;
    if (m_orientation == Vertical)
        return last - position.y() / (height() - 1) * range;
    return first + position.x() / (width() - 1) * range;
}

void ColorLegend::paintEvent(QPaintEvent*)
{
    const QSize labels = _EstimateLabelsSize();
    QPainter painter(this);
    painter.drawImage(0, 0, m_image);
    if (m_orientation == Vertical) {
        painter.drawImage(m_offset + m_image.width(), 0, m_labels_image);
        setMinimumWidth(labels.width() + m_offset + m_image.width());
    } else {
        painter.drawImage(0, m_offset + m_image.height(), m_labels_image);
        setMinimumHeight(labels.height() + m_offset + m_image.height());
    }
}

bool ColorLegend::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (isEnabled()) {
            const auto* const move = static_cast<QMouseEvent*>(event);
            QToolTip::showText(move->globalPos(), LabelText(_GetCurrentValue(move->localPos())));
        }
        break;
    case QEvent::Leave:
        QToolTip::hideText();
        break;
    default:
        break;
    }
    return ColorMap::eventFilter(object, event);
}

} // namespace ovk

#include "moc_color_legend.cpp"
