#include "ovk/docking/dock_toolbox_site_p.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_widget.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

#include <algorithm>

namespace ovk {

namespace {

constexpr int c_highlight_alpha = 200;

} // namespace

DockToolboxSiteEstimator::DockToolboxSiteEstimator(DockToolboxSite& site, DockWidget& panel,
                                                   QWidget* area)
    : QWidget(area), DockToolboxSiteDragTarget(&site), m_animator(*this), mp_panel(&panel)
{
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

DockToolboxSiteEstimator::~DockToolboxSiteEstimator() = default;

void DockToolboxSiteEstimator::Start(const QSize& size)
{
    DockToolboxSite* const site = GetToolboxSite();
    const bool vertical = site->IsVertical();
    if (site->_pp()->GetManager()->IsAnimatedDocking()) {
        if (vertical) {
            setMaximumWidth(1);
            setFixedHeight(1);
        } else {
            setMaximumHeight(1);
            setFixedWidth(1);
        }
        m_animator.start(QAbstractAnimation::KeepWhenStopped);
        return;
    }
    const QSize min = mp_panel->minimumSize();
    const QSize max = mp_panel->maximumSize();
    if (vertical) {
        setMaximumHeight(max.height() != QWIDGETSIZE_MAX ? max.height() : size.height());
        setFixedWidth(std::max(min.width(), size.width()));
    } else {
        setMaximumWidth(max.width() != QWIDGETSIZE_MAX ? max.width() : size.width());
        setFixedHeight(std::max(min.height(), size.height()));
    }
    site->_pp()->OnEstimationDone();
}

void DockToolboxSiteEstimator::SetHighlight(bool highlight)
{
    if (m_highlight == highlight)
        return;
    m_highlight = highlight;
    update();
}

void DockToolboxSiteEstimator::OnDragOver(DockWidget& widget, const QPoint& pos)
{
    SetHighlight(true);
    DockToolboxSiteDragTarget::OnDragOver(widget, pos);
}

void DockToolboxSiteEstimator::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor color = GetToolboxSite()->_pp()->GetManager()->GetEvaluationColor();
    if (m_highlight) {
        color.setAlpha(c_highlight_alpha);
        painter.fillRect(rect(), color);
        return;
    }
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    painter.setPen(QPen(color, 1, Qt::DotLine));
    painter.drawRect(0, 0, width() - 1, height() - 1);
}

DockToolboxSiteSpacer::DockToolboxSiteSpacer(DockToolboxSite& site, QWidget* area)
    : Spacer(area), DockToolboxSiteDragTarget(&site)
{
}

int DockToolboxSiteSpacer::GetCrossSize() const
{
    return GetToolboxSite()->IsVertical() ? minimumWidth() : minimumHeight();
}

void DockToolboxSiteSpacer::SetCrossSize(int size)
{
    size = qBound(0, size, QWIDGETSIZE_MAX);
    if (GetToolboxSite()->IsVertical())
        setMinimumWidth(size);
    else
        setMinimumHeight(size);
}

} // namespace ovk

#include "moc_dock_toolbox_site_p.cpp"
