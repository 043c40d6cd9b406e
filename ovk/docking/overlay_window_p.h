#pragma once

#include <QtCore/QAbstractAnimation>
#include <QtCore/QEvent>
#include <QtCore/QMargins>
#include <QtGui/QColor>
#include <QtGui/QPixmap>

#include "ovk/docking/overlay_window.h"

namespace ovk {

/// Posted to an overlay window whose parent was resized: time for a new snapshot.
class OVK_TEST_EXPORT RegrabEvent : public QEvent
{
public:
    RegrabEvent();
    static QEvent::Type GetType();
};

/// The private part of an overlay window: the fading.
class OVK_TEST_EXPORT OverlayWindow::Impl : public QAbstractAnimation
{
public:
    explicit Impl(OverlayWindow& window);
    ~Impl() override;

    int duration() const override;
    /// Takes a picture of the parent and shows the window over it.
    void Snapshot();
    /// One step of the fading if it is due.
    void Fade(int time) { updateCurrentTime(time); }
    /// What the margins of a cut of `parent` to `rect` are. A smaller cut has a negative right and
    /// bottom margin, which widens it again; kept as it always was.
    static QMargins CutMargins(const QRect& rect, const QRect& parent);

    OverlayWindow* window;
    QPixmap snapshot;
    QPixmap faded;
    QMargins margins;
    QColor fading_color{255, 255, 255, 100};
    int step = 0;

protected:
    void updateCurrentTime(int time) override;

private:
    bool m_grabbing = false;
};

} // namespace ovk
