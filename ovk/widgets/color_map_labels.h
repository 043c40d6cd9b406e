#pragma once

#include <ovk/core/export.h>

#include <QImage>
#include <QString>

#include <memory>
#include <vector>

namespace ovk {

class Observer;

/// The numbers beside a colour scale: a part of a widget, which draws them into an image.
class OVK_EXPORT ColorMapLabels
{
public:
    ColorMapLabels();
    ColorMapLabels(const ColorMapLabels&) = delete;
    ColorMapLabels& operator=(const ColorMapLabels&) = delete;
    virtual ~ColorMapLabels();

    /// With it, each number is followed by the abbreviation of the current units; off at the start.
    void ShowUserUnits(bool show);

protected:
    /// Draws the labels, evenly from the last at the top to the first at the bottom, into an image
    /// as wide as they need and as high as \a size.
    virtual void _DrawLabels(const QSize& size);

    /// The text of a label: six significant digits, and the units if they are shown.
    QString _GetLabelStr(double value) const;
    /// The width of the widest label; 0 without labels.
    int _GetLabelsWidth() const;
    /// The height of a label.
    int _GetLabelsFontHeight() const;
    /// The size of the labels' image in the coordinates of the widget.
    QSize _GetLabelsImageSize() const;
    /// The current units changed: draws the labels again if they show them.
    void UnitsChanged();

    bool m_show_user_units = false;
    QImage m_labels_image;
    std::vector<double> m_labels;

private:
    std::unique_ptr<Observer> mp_units_observer;
};

} // namespace ovk
