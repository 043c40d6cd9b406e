#include "ovk/widgets/color_map_labels.h"

#include "ovk/core/observer.h"
#include "ovk/units/units_controller.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace ovk {

ColorMapLabels::ColorMapLabels()
    : mp_units_observer(
          std::make_unique<ObserverProxy<ColorMapLabels>>(this, &ColorMapLabels::UnitsChanged))
{
    UnitsController::GetInstance().Attach(*mp_units_observer);
}

ColorMapLabels::~ColorMapLabels() = default;

void ColorMapLabels::ShowUserUnits(bool show)
{
    if (m_show_user_units == show)
        return;
    m_show_user_units = show;
    if (!m_labels.empty())
        _DrawLabels(_GetLabelsImageSize());
}

void ColorMapLabels::_DrawLabels(const QSize& size)
{
    // The image has the pixels of the finest screen: text that is scaled up is hard to read.
    const qreal ratio = qApp->devicePixelRatio();
    m_labels_image = QImage(QSize(_GetLabelsWidth(), size.height()) * ratio,
                            QImage::Format_ARGB32_Premultiplied);
    if (m_labels_image.isNull())
        return;
    m_labels_image.setDevicePixelRatio(ratio);
    m_labels_image.fill(Qt::transparent);

    QPainter painter(&m_labels_image);
    painter.setFont(QApplication::font());
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    const int height = _GetLabelsFontHeight();
    const int width = _GetLabelsWidth();
    // A single label has no neighbour to keep a distance from.
    const double spacing = m_labels.size() > 1
                               ? (size.height() - height) / static_cast<double>(m_labels.size() - 1)
                               : 0.0;
    double y = 0.0;
    for (auto label = m_labels.rbegin(); label != m_labels.rend(); ++label, y += spacing) {
        painter.drawText(QRect(0, static_cast<int>(y), width, height),
                         Qt::AlignVCenter | Qt::TextDontClip, _GetLabelStr(*label));
    }
}

QString ColorMapLabels::_GetLabelStr(double value) const
{
    QString text = QString::number(value, 'g', 6);
    if (m_show_user_units)
        text += QLatin1Char(' ') + UnitsController::GetCurrentUnits().GetAbbreviation();
    return text;
}

int ColorMapLabels::_GetLabelsWidth() const
{
    const QFontMetrics metrics(QApplication::font());
    int width = 0;
    for (const double label : m_labels)
        width = std::max(width, metrics.boundingRect(_GetLabelStr(label)).width());
    return width;
}

int ColorMapLabels::_GetLabelsFontHeight() const
{
    return QFontMetrics(QApplication::font()).boundingRect(QStringLiteral("0")).height();
}

QSize ColorMapLabels::_GetLabelsImageSize() const
{
    return m_labels_image.size() / m_labels_image.devicePixelRatio();
}

void ColorMapLabels::UnitsChanged()
{
    if (m_show_user_units && !m_labels.empty())
        _DrawLabels(_GetLabelsImageSize());
}

} // namespace ovk
