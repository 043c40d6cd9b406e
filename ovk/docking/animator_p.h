#pragma once

#include <QtCore/QAbstractAnimation>
#include <QtCore/QSize>

#include <ovk/core/export.h>

namespace ovk {

class DockToolboxSiteEstimator;

/// Grows the preview of a drop from nothing to its full size.
class OVK_TEST_EXPORT Animator : public QAbstractAnimation
{
    Q_OBJECT

public:
    explicit Animator(DockToolboxSiteEstimator& estimator);
    /// Gives the site its cross size back if it was held during the animation.
    ~Animator() override;

    int duration() const override;

    /// The size along and across a site at a time of the animation. `max` and `min` are the sizes
    /// of the dragged panel, `site` that of the site.
    static QSize SizeAt(int time, bool vertical, const QSize& min, const QSize& max,
                        const QSize& site);

protected:
    void updateCurrentTime(int time) override;
    void updateState(State state, State old_state) override;

private:
    DockToolboxSiteEstimator* mp_estimator;
};

} // namespace ovk
