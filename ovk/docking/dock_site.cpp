#include "ovk/docking/dock_site.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_site_p.h"
#include "ovk/docking/dock_toolbar_site.h"
#include "ovk/docking/dock_toolbox_site.h"
#include "ovk/docking/dock_toolbox_site_handle_p.h"

#include <QtWidgets/QWidget>

namespace ovk {

namespace {

constexpr const char* c_side_names[] = {"left", "right", "top", "bottom"};

bool RunsVertically(DockLayout::Side side)
{
    return side == DockLayout::Left || side == DockLayout::Right;
}

/// The handle is a child of the area.
DockToolboxSiteHandle* CreateHandle(DockLayout::Side side, QWidget* area)
{
    switch (side) {
    case DockLayout::Left:
        return new DockToolboxSiteHandleLeft(area);
    case DockLayout::Right:
        return new DockToolboxSiteHandleRight(area);
    case DockLayout::Top:
        return new DockToolboxSiteHandleTop(area);
    case DockLayout::Bottom:
        break;
    }
    return new DockToolboxSiteHandleBottom(area);
}

} // namespace

void DockSite::Impl::AddOutsideIn()
{
    site->addLayout(outter);
    site->addLayout(toolbox);
    site->addWidget(handle);
    site->addLayout(inner);
}

void DockSite::Impl::AddInsideOut()
{
    site->addLayout(inner);
    site->addWidget(handle);
    site->addLayout(toolbox);
    site->addLayout(outter);
}

DockSite::DockSite(DockLayout& layout, DockLayout::Side side)
    : QBoxLayout(RunsVertically(side) ? LeftToRight : TopToBottom),
      mp_impl(std::make_unique<Impl>())
{
    const Qt::Orientation along = RunsVertically(side) ? Qt::Vertical : Qt::Horizontal;
    mp_impl->site = this;
    mp_impl->root = &layout;
    mp_impl->side = side;
    // The subclass makes them items of the box, which owns them from then on.
    mp_impl->handle = CreateHandle(side, layout.GetArea());
    if (RunsVertically(side))
        mp_impl->handle->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    else
        mp_impl->handle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    mp_impl->inner = new DockToolbarSiteInner(along);
    mp_impl->toolbox = new DockToolboxSite(*this);
    mp_impl->outter = new DockToolbarSiteOutter(along);
}

DockSite::~DockSite() = default;

void DockSite::Init()
{
    setSpacing(0);
    mp_impl->handle->Init(mp_impl->toolbox);
}

bool DockSite::IsVertical() const
{
    return RunsVertically(mp_impl->side);
}

bool DockSite::IsHorizontal() const
{
    return !IsVertical();
}

void DockSite::Clear()
{
    mp_impl->toolbox->Clear();
}

DockLayout* DockSite::GetRootLayout() const
{
    return mp_impl->root;
}

DockLayout::Side DockSite::GetSide() const
{
    return mp_impl->side;
}

QString DockSite::GetSideName() const
{
    const int side = mp_impl->side;
    const bool known = side >= DockLayout::Left && side <= DockLayout::Bottom;
    return QString::fromLatin1(known ? c_side_names[side] : "-");
}

DockToolboxSite* DockSite::GetToolboxSite() const
{
    return mp_impl->toolbox;
}

DockToolbarSiteOutter* DockSite::GetToolbarOutterSite() const
{
    return mp_impl->outter;
}

DockToolbarSiteInner* DockSite::GetToolbarInnerSite() const
{
    return mp_impl->inner;
}

QSize DockSite::maximumSize() const
{
    QSize size = QBoxLayout::maximumSize();
    if (IsVertical())
        size.setHeight(QWIDGETSIZE_MAX);
    else
        size.setWidth(QWIDGETSIZE_MAX);
    return size;
}

DockSiteLeft::DockSiteLeft(DockLayout& layout) : DockSite(layout, DockLayout::Left)
{
    _pp()->AddOutsideIn();
}

DockSiteRight::DockSiteRight(DockLayout& layout) : DockSite(layout, DockLayout::Right)
{
    _pp()->AddInsideOut();
}

DockSiteTop::DockSiteTop(DockLayout& layout) : DockSite(layout, DockLayout::Top)
{
    _pp()->AddOutsideIn();
}

DockSiteBottom::DockSiteBottom(DockLayout& layout) : DockSite(layout, DockLayout::Bottom)
{
    _pp()->AddInsideOut();
}

} // namespace ovk

#include "moc_dock_site.cpp"
