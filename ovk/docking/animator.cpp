#include "ovk/docking/animator_p.h"

#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/dock_widget.h"

#include <algorithm>

namespace ovk {

namespace {

constexpr int c_duration = 200; // milliseconds

} // namespace

Animator::Animator(DockToolboxSiteEstimator& estimator) : mp_estimator(&estimator) {}

Animator::~Animator()
{
    if (DockToolboxSite* const site = mp_estimator->GetToolboxSite())
        site->_pp()->RestoreCrossMin();
}

int Animator::duration() const
{
    return c_duration;
}

QSize Animator::SizeAt(int time, bool vertical, const QSize& min, const QSize& max,
                       const QSize& site)
{
    const auto along = [](int largest, int length) {
        return largest != QWIDGETSIZE_MAX ? largest : length;
    };
    const auto grown = [time](int size) {
        return static_cast<int>(static_cast<qint64>(size) * time / c_duration);
    };
    if (vertical) {
        return {grown(std::max(min.width(), site.width())),
                grown(along(max.height(), site.height()))};
    }
    return {grown(along(max.width(), site.width())), grown(std::max(min.height(), site.height()))};
}

void Animator::updateCurrentTime(int time)
{
    const DockWidget* const panel = mp_estimator->GetPanel();
    const DockToolboxSite* const site = mp_estimator->GetToolboxSite();
    if (!panel || !site)
        return;
    site->_pp()->EnsureLaidOut();
    const bool vertical = site->IsVertical();
    const QSize size =
        SizeAt(time, vertical, panel->minimumSize(), panel->maximumSize(), site->geometry().size());
    if (vertical) {
        mp_estimator->setMaximumHeight(size.height());
        mp_estimator->setFixedWidth(size.width());
    } else {
        mp_estimator->setMaximumWidth(size.width());
        mp_estimator->setFixedHeight(size.height());
    }
}

void Animator::updateState(State state, State)
{
    DockToolboxSite* const site = mp_estimator->GetToolboxSite();
    if (!site)
        return;
    if (state == Running)
        site->_pp()->state |= DockToolboxSite::Animating;
    else if (state == Stopped)
        site->_pp()->OnEstimationDone();
}

} // namespace ovk

#include "moc_animator_p.cpp"
