#include "ovk/docking/dock_layout.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_layout_p.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_toolbox_site.h"
#include "ovk/docking/spacer_p.h"

namespace ovk {

namespace {

struct Cell
{
    DockLayout::Side side;
    int row;
    int column;
    int row_span;
};

constexpr Cell c_cells[] = {
    {DockLayout::Left, 0, 0, 3},
    {DockLayout::Top, 0, 1, 1},
    {DockLayout::Right, 0, 2, 3},
    {DockLayout::Bottom, 2, 1, 1},
};

} // namespace

DockLayout::Impl::Impl(DockLayout& owner, DockArea& dock_area) : layout(&owner), area(&dock_area) {}

void DockLayout::Impl::UpdateDirection()
{
    const bool mirrored = area->isRightToLeft();
    layout->setOriginCorner(mirrored ? Qt::TopRightCorner : Qt::TopLeftCorner);
    const QBoxLayout::Direction row = mirrored ? QBoxLayout::RightToLeft : QBoxLayout::LeftToRight;
    for (DockSite* site : sites) {
        if (site->IsVertical())
            site->setDirection(row);
        else
            site->GetToolboxSite()->setDirection(row);
    }
}

DockLayout::DockLayout(DockArea& area) : mp_impl(std::make_unique<Impl>(*this, area))
{
    mp_impl->sites = {new DockSiteLeft(*this), new DockSiteRight(*this), new DockSiteTop(*this),
                      new DockSiteBottom(*this)}; // owned as items of the grid, below
    for (DockSite* site : mp_impl->sites)
        site->Init();

    setSpacing(0);
    setContentsMargins(0, 0, 0, 0);
    // What the sites do not need is the central widget's, whatever its size policy says.
    setRowStretch(1, 1);
    setColumnStretch(1, 1);
    for (const Cell& cell : c_cells)
        addLayout(mp_impl->sites[cell.side], cell.row, cell.column, cell.row_span, 1);
    SetCentralWidget(nullptr);
}

DockLayout::~DockLayout() = default;

void DockLayout::SetCentralWidget(QWidget* widget)
{
    if (auto* const spacer = qobject_cast<Spacer*>(mp_impl->central.data())) {
        if (spacer == widget)
            return;
        delete spacer;
    }
    if (!widget) {
        widget = new Spacer(mp_impl->area); // a child of the area
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
    mp_impl->central = widget;
    addWidget(widget, 1, 1);
}

QWidget* DockLayout::GetCentralWidget() const
{
    return mp_impl->central;
}

DockSite* DockLayout::GetSite(Side side)
{
    return mp_impl->sites[side];
}

const DockSite* DockLayout::GetSite(Side side) const
{
    return mp_impl->sites[side];
}

DockSite* DockLayout::GetSite(const QString& name)
{
    for (DockSite* site : mp_impl->sites) {
        if (site->GetSideName() == name)
            return site;
    }
    return nullptr;
}

const DockSite* DockLayout::GetSite(const QString& name) const
{
    return const_cast<DockLayout*>(this)->GetSite(name);
}

DockArea* DockLayout::GetArea() const
{
    return mp_impl->area;
}

void DockLayout::Clear()
{
    for (DockSite* site : mp_impl->sites)
        site->Clear();
}

void DockLayout::FinishOtherEvaluation(const DockToolboxSite* site)
{
    for (DockSite* other : mp_impl->sites) {
        if (other->GetToolboxSite() != site)
            other->GetToolboxSite()->_FinishEvaluation();
    }
}

} // namespace ovk

#include "moc_dock_layout.cpp"
