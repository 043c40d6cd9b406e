#pragma once

#include <QtCore/QString>
#include <QtWidgets/QBoxLayout>

#include <ovk/core/export.h>

namespace ovk {

/// A place for toolbars beside the panels of a site. It is empty and takes no room until a host
/// puts something there.
class OVK_EXPORT DockToolbarSite : public QBoxLayout
{
    Q_OBJECT

public:
    explicit DockToolbarSite(Qt::Orientation orientation);

    /// The identifier of the site in a stored layout.
    virtual QString GetTextType() const = 0;

    /// Does nothing: toolbars belong to their host.
    void Clear();
};

/// The toolbar site next to the central widget.
class OVK_EXPORT DockToolbarSiteInner : public DockToolbarSite
{
    Q_OBJECT

public:
    explicit DockToolbarSiteInner(Qt::Orientation orientation);

    QString GetTextType() const override;

    /// "toolbars.inner".
    static QString _GetTextType();
};

/// The toolbar site at the edge of the window.
class OVK_EXPORT DockToolbarSiteOutter : public DockToolbarSite
{
    Q_OBJECT

public:
    explicit DockToolbarSiteOutter(Qt::Orientation orientation);

    QString GetTextType() const override;

    /// "toolbars.outter", spelt as stored layouts spell it.
    static QString _GetTextType();
};

} // namespace ovk
