#pragma once

#include <ovk/core/export.h>

#include <QColor>
#include <QImage>
#include <QWidget>

#include <vector>

namespace ovk {

/// A colour scale with tick marks along its right side. The scale is painted into an image, once
/// for each change of size, colours, range or state.
class OVK_EXPORT ColorMap : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool marks READ GetDrawMarks WRITE SetDrawMarks)
    Q_PROPERTY(Orientation orientation READ GetOrientation WRITE SetOrientation)
    Q_PROPERTY(QColor startColor READ startColor WRITE setStartColor)
    Q_PROPERTY(QColor endColor READ endColor WRITE setEndColor)

public:
    /// The way that the colours run: upward or to the right.
    enum Orientation
    {
        Vertical = 0,
        Horizontal = 1
    };
    Q_ENUM(Orientation)

    /// Runs upward from gray to white, over the range 0 to 10 in steps of 1.
    explicit ColorMap(QWidget* parent = nullptr);
    ~ColorMap() override;

    /// Changes the two ends; no colours remain between them.
    void setColors(const QColor& start, const QColor& end);
    /// Changes all colours, which lie at equal distances.
    void setColors(const std::vector<QColor>& colors);
    /// The first colour; an invalid one if there are none.
    QColor startColor() const;
    /// Changes the first colour.
    void setStartColor(const QColor& color);
    /// The last colour; an invalid one if there are none.
    QColor endColor() const;
    /// Changes the last colour.
    void setEndColor(const QColor& color);

    /// Changes the range and the distance of the long marks, between which there are short ones. A
    /// step that is not above 0 gives no marks.
    virtual void setRange(float min, float max, float step);
    /// A range that lies evenly around 0, up to the amount of \a range.
    virtual void setRange(float range, float step);
    /// Changes the way that the colours run.
    virtual void SetOrientation(Orientation orientation);

    /// The way that the colours run.
    Orientation GetOrientation() const;
    /// True if marks are drawn.
    bool GetDrawMarks() const;
    /// Changes whether marks are drawn.
    void SetDrawMarks(bool draw);

protected:
    /// Paints the image anew for a widget of \a size.
    virtual void _redraw(const QSize& size);
    /// Draws the marks onto the colours of \a image. They run along its height in either
    /// orientation.
    virtual void _drawMarks(QImage& image);
    /// Fills \a image with the colours.
    virtual void _renderColors(QImage& image);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

    QImage m_image;
    bool m_draw_marks = true;
    Orientation m_orientation = Vertical;
    std::vector<QColor> m_colors;
    float m_range_min = 0.0f;
    float m_range_max = 10.0f;
    float m_step = 1.0f;
};

} // namespace ovk
