#include "ovk/docking/dock_toolbar_site.h"

namespace ovk {

DockToolbarSite::DockToolbarSite(Qt::Orientation orientation)
    : QBoxLayout(orientation == Qt::Horizontal ? LeftToRight : RightToLeft)
{
}

void DockToolbarSite::Clear() {}

DockToolbarSiteInner::DockToolbarSiteInner(Qt::Orientation orientation)
    : DockToolbarSite(orientation)
{
}

QString DockToolbarSiteInner::GetTextType() const
{
    return _GetTextType();
}

QString DockToolbarSiteInner::_GetTextType()
{
    return QStringLiteral("toolbars.inner");
}

DockToolbarSiteOutter::DockToolbarSiteOutter(Qt::Orientation orientation)
    : DockToolbarSite(orientation)
{
}

QString DockToolbarSiteOutter::GetTextType() const
{
    return _GetTextType();
}

QString DockToolbarSiteOutter::_GetTextType()
{
    return QStringLiteral("toolbars.outter");
}

} // namespace ovk

#include "moc_dock_toolbar_site.cpp"
