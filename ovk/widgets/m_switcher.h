#pragma once

#include <ovk/core/export.h>

#include <QAbstractButton>
#include <QBrush>
#include <QColor>
#include <QTimer>

namespace ovk {

/// A switch: a track on which a thumb moves to the right while it is on. To accessibility clients
/// it is a check box.
class OVK_EXPORT MSwitcher : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(bool toggle READ isToggled WRITE setToggle)
    Q_PROPERTY(bool disable READ isDisable WRITE setDisable)

public:
    /// Off, with a blue track.
    explicit MSwitcher(QWidget* parent = nullptr);
    /// Off; \a trackColor is the colour of the track while it is on.
    explicit MSwitcher(const QColor& trackColor, QWidget* parent = nullptr);
    ~MSwitcher() override;

    /// True while it is on.
    bool isToggled() const;
    /// Switches without a signal; the thumb moves there.
    void setToggle(bool toggle);
    /// True while the user cannot switch it.
    bool isDisable() const;
    /// Changes whether the user can switch it. It is not painted for that.
    void setDisable(bool disable);

    /// 30 by 18 pixels.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

public Q_SLOTS:
    /// Moves the thumb by a pixel; called by the timer of the movement.
    void timercall();

Q_SIGNALS:
    /// The user switched it.
    void toggled();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Space switches, as a release of the left button does.
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    /// click() switches too.
    void nextCheckState() override;

private:
    void _Switch();
    void _MoveThumb();
    void _TellState();

    bool m_disabled = false;
    bool m_toggled = false;
    QBrush m_thumb_brush;
    QColor m_track_color;
    double m_corner_radius = 6.0;
    qint16 m_thumb_x = 0;
    qint16 m_thumb_y = 0;
    qint16 m_height = 12;
    qint16 m_margin = 3;
    QTimer m_timer;
};

} // namespace ovk
