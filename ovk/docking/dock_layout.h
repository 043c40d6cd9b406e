#pragma once

#include <QtWidgets/QGridLayout>

#include <memory>

#include <ovk/core/export.h>

namespace ovk {

class DockArea;
class DockSite;
class DockToolboxSite;

/// The layout of a DockArea: a central widget with a DockSite at each side.
///
/// The left and right sites take the full height; top and bottom fit between them. "Left" is the
/// left of the screen in both layout directions.
class OVK_EXPORT DockLayout : public QGridLayout
{
    Q_OBJECT

public:
    class Impl;

    /// The four sides.
    enum Side
    {
        Left = 0,
        Right = 1,
        Top = 2,
        Bottom = 3
    };

    /// Makes the sites. The layout is not yet set on `area`.
    explicit DockLayout(DockArea& area);
    ~DockLayout() override;

    /// Puts `widget` into the middle; null puts an empty widget of the layout's own there. The
    /// caller keeps ownership of a widget that it gives, and takes it away by giving it another
    /// parent: the layout does not remove a former central widget.
    void SetCentralWidget(QWidget* widget);

    /// The widget in the middle, never null.
    QWidget* GetCentralWidget() const;

    DockSite* GetSite(Side side);
    const DockSite* GetSite(Side side) const;

    /// The site of the name "left", "right", "top" or "bottom"; null for any other.
    DockSite* GetSite(const QString& name);
    const DockSite* GetSite(const QString& name) const;

    /// The area that the layout was made for.
    DockArea* GetArea() const;

    /// Deletes the docked panels of all four sites.
    void Clear();

    /// The private part, for the library and its tests.
    Impl* _pp() const { return mp_impl.get(); }

private:
    friend class DockArea;
    friend class DockDragController;
    friend class DockToolboxSite;

    /// Ends the preview in every toolbox site but `site`; with null in all four.
    void FinishOtherEvaluation(const DockToolboxSite* site);

    std::unique_ptr<Impl> mp_impl;
};

} // namespace ovk
