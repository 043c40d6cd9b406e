#pragma once

#include <ovk/widgets/color_map.h>

#include <map>

namespace ovk {

/// A narrow colour scale built from values and their colours, with the first and the last value
/// written beside it. The value under the pointer is told in a tool tip.
class OVK_EXPORT ColorLegend : public ColorMap
{
    Q_OBJECT
    Q_PROPERTY(int offset READ GetOffset WRITE _SetOffset)
    Q_PROPERTY(int colorSize READ GetColorSize WRITE _SetColorSize)

public:
    /// Lies flat, from white at 0 over red at 0.5 to black at 1, without marks.
    explicit ColorLegend(QWidget* parent = nullptr);
    ~ColorLegend() override;

    /// Changes the values and their colours. The colours lie at equal distances, whatever the
    /// values between the first and the last are. An empty map is ignored.
    void SetColorsAndLabels(const std::map<double, QColor>& colorsAndLabels);

    /// The distance between the colours and the labels, in pixels.
    int GetOffset() const;
    /// The thickness of the colours, in pixels.
    int GetColorSize() const;

    /// The smallest value.
    double GetFirstValue() const;
    /// The largest value.
    double GetLastValue() const;
    /// The value at which the legend is read from the keyboard; the first one at the start. It is
    /// moved by the arrows, the page keys, Home and End, and shown while the legend has the focus.
    double GetReadingValue() const;
    /// Reads the legend at another value, at the nearest one that it has; one that is no number is
    /// ignored.
    void SetReadingValue(double value);
    /// The amount by which an arrow key moves the reading.
    double GetReadingStep() const;
    /// The value at which the legend is read, and its colour in words.
    QString GetReadingText() const;

    /// Room for the colours and both labels.
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    /// Changes the distance between the colours and the labels.
    void _SetOffset(int offset);
    /// Changes the thickness of the colours.
    void _SetColorSize(int size);

    /// The size that holds the first label as well as the last.
    QSize _EstimateLabelsSize() const;
    /// Draws the first and the last label into an image of \a size.
    void _DrawLabels(const QSize& size);
    /// The value at a point of the widget.
    double _GetCurrentValue(const QPointF& position) const;

    void _redraw(const QSize& size) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    int m_offset = 2;
    int m_color_size = 8;
    std::map<double, QColor> m_colors_and_labels;
    QImage m_labels_image;

private:
    QPoint _ReadingPoint() const;
    void _MoveReading(double reading);
    void _PaintReading(QPainter& painter) const;

    /// A fraction of the length: 0 for the first value, 1 for the last.
    double m_reading = 0.0;
    bool m_reading_shown = false;
    /// What layouts were told last.
    QSize m_least_size;
};

} // namespace ovk
