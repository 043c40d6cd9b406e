#include "ovk/widgets/color_legend.h"

#include "color_text_p.h"
#include "legend_reading_p.h"

#include <QAccessible>
#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ovk {

namespace {

QString LabelText(double value)
{
    return QString::number(value, 'g', 6);
}

/// The colour at a fraction of a gradient; \a colors has one at least.
QColor ColorAt(const std::vector<QColor>& colors, double fraction)
{
    const double position = fraction * static_cast<double>(colors.size() - 1);
    const auto below = static_cast<std::size_t>(position);
    if (below + 1 >= colors.size())
        return colors.back();
    const double part = position - static_cast<double>(below);
    const QColor& a = colors[below];
    const QColor& b = colors[below + 1];
    const auto mix = [part](qreal from, qreal to) { return from + part * (to - from); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

} // namespace

ColorLegend::ColorLegend(QWidget* parent) : ColorMap(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
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
    const double first = GetFirstValue();
    const double last = GetLastValue();
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
    const QRect first = metrics.boundingRect(LabelText(GetFirstValue()));
    const QRect last = metrics.boundingRect(LabelText(GetLastValue()));
    return first.size().expandedTo(last.size());
}

QSize ColorLegend::minimumSizeHint() const
{
    // The minimum that comes with the first painting is too late for a layout, which would give
    // nothing to paint on.
    const QSize labels = _EstimateLabelsSize();
    return m_orientation == Vertical
               ? QSize(m_color_size + m_offset + labels.width(), 2 * labels.height())
               : QSize(2 * labels.width(), m_color_size + m_offset + labels.height());
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
    if (std::exchange(m_least_size, minimumSizeHint()) != m_least_size)
        updateGeometry();
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

    const QString first = LabelText(GetFirstValue());
    const QString last = LabelText(GetLastValue());
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
    const double first = GetFirstValue();
    const double last = GetLastValue();
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
    if (m_reading_shown && hasFocus())
        _PaintReading(painter);
}

/// Seen on any colour: a light line between dark ones, and the frame of the focus.
void ColorLegend::_PaintReading(QPainter& painter) const
{
    const QRect colors(QPoint(0, 0), m_image.size());
    const QPoint at = _ReadingPoint();
    QRect line = m_orientation == Vertical ? QRect(0, at.y(), colors.width(), 1)
                                           : QRect(at.x(), 0, 1, colors.height());
    QRect edges =
        m_orientation == Vertical ? line.adjusted(0, -1, 0, 1) : line.adjusted(-1, 0, 1, 0);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(colors.adjusted(0, 0, -1, -1));
    painter.fillRect(edges & colors, Qt::black);
    painter.fillRect(line & colors, Qt::white);
}

double ColorLegend::GetFirstValue() const
{
    return m_colors_and_labels.begin()->first;
}

double ColorLegend::GetLastValue() const
{
    return m_colors_and_labels.rbegin()->first;
}

double ColorLegend::GetReadingValue() const
{
    return GetFirstValue() + m_reading * (GetLastValue() - GetFirstValue());
}

void ColorLegend::SetReadingValue(double value)
{
    const double range = GetLastValue() - GetFirstValue();
    const double reading = range > 0.0 ? (value - GetFirstValue()) / range : 0.0;
    if (!std::isnan(reading))
        _MoveReading(std::clamp(reading, 0.0, 1.0));
}

double ColorLegend::GetReadingStep() const
{
    return (GetLastValue() - GetFirstValue()) * g_reading_step;
}

QString ColorLegend::GetReadingText() const
{
    return LabelText(GetReadingValue()) + QLatin1String(", ") +
           ColorText(ColorAt(m_colors, m_reading));
}

QPoint ColorLegend::_ReadingPoint() const
{
    if (m_orientation == Vertical)
        return QPoint(m_image.width() / 2, qRound((1.0 - m_reading) * (m_image.height() - 1)));
    return QPoint(qRound(m_reading * (m_image.width() - 1)), m_image.height() / 2);
}

void ColorLegend::_MoveReading(double reading)
{
    m_reading = reading;
    update();
    if (m_reading_shown && hasFocus())
        QToolTip::showText(mapToGlobal(_ReadingPoint()), LabelText(GetReadingValue()), this);
#ifndef QT_NO_ACCESSIBILITY
    QAccessibleValueChangeEvent event(this, GetReadingValue());
    QAccessible::updateAccessibility(&event);
#endif
}

void ColorLegend::keyPressEvent(QKeyEvent* event)
{
    const auto entries = static_cast<int>(m_colors_and_labels.size());
    const std::optional<double> reading = MovedReading(m_reading, event->key(), entries);
    if (!reading) {
        ColorMap::keyPressEvent(event);
        return;
    }
    m_reading_shown = true;
    _MoveReading(*reading);
}

void ColorLegend::focusInEvent(QFocusEvent* event)
{
    ColorMap::focusInEvent(event);
    // A pointer needs no mark: it reads where it is.
    m_reading_shown = event->reason() != Qt::MouseFocusReason;
    _MoveReading(m_reading);
}

void ColorLegend::focusOutEvent(QFocusEvent* event)
{
    ColorMap::focusOutEvent(event);
    m_reading_shown = false;
    QToolTip::hideText();
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
