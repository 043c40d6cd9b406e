#pragma once

#include <QtWidgets/QBoxLayout>

#include <memory>

#include <ovk/core/export.h>
#include <ovk/docking/dock_layout.h>

namespace ovk {

class DockToolbarSiteInner;
class DockToolbarSiteOutter;
class DockToolboxSite;

/// One side of a DockLayout: from the edge of the window inward an outer toolbar site, the toolbox
/// site with the panels, its handle and an inner toolbar site.
class OVK_EXPORT DockSite : public QBoxLayout
{
    Q_OBJECT

public:
    class Impl;

    /// Makes the parts of the site; a subclass adds them in the order of its side.
    DockSite(DockLayout& layout, DockLayout::Side side);
    ~DockSite() override;

    /// Called once by the layout when all four sites exist.
    void Init();

    /// Does the site run vertically? True at the left and the right.
    bool IsVertical() const;

    /// The opposite of IsVertical().
    bool IsHorizontal() const;

    /// Deletes the panels of the site. Toolbars stay.
    void Clear();

    /// The layout that the site belongs to.
    DockLayout* GetRootLayout() const;

    DockLayout::Side GetSide() const;

    /// "left", "right", "top" or "bottom".
    QString GetSideName() const;

    DockToolboxSite* GetToolboxSite() const;
    DockToolbarSiteOutter* GetToolbarOutterSite() const;
    DockToolbarSiteInner* GetToolbarInnerSite() const;

    /// Never bounded along the side, whatever lies in the site: the middle of the area is not to be
    /// held by it.
    QSize maximumSize() const override;

    /// The private part, for the library and its tests.
    Impl* _pp() const { return mp_impl.get(); }

private:
    std::unique_ptr<Impl> mp_impl;
};

/// The site at the left: outer toolbar, toolbox, handle, inner toolbar.
class OVK_EXPORT DockSiteLeft : public DockSite
{
    Q_OBJECT

public:
    explicit DockSiteLeft(DockLayout& layout);
};

/// The site at the right: inner toolbar, handle, toolbox, outer toolbar.
class OVK_EXPORT DockSiteRight : public DockSite
{
    Q_OBJECT

public:
    explicit DockSiteRight(DockLayout& layout);
};

/// The site at the top: outer toolbar, toolbox, handle, inner toolbar.
class OVK_EXPORT DockSiteTop : public DockSite
{
    Q_OBJECT

public:
    explicit DockSiteTop(DockLayout& layout);
};

/// The site at the bottom: inner toolbar, handle, toolbox, outer toolbar.
class OVK_EXPORT DockSiteBottom : public DockSite
{
    Q_OBJECT

public:
    explicit DockSiteBottom(DockLayout& layout);
};

} // namespace ovk
