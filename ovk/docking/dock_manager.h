#pragma once

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtGui/QColor>

#include <ovk/docking/dock_area.h>

namespace ovk {

/// The root of the docking system: the area of the main window, which also knows all areas, all
/// floating panels and the one drag that may be under way.
///
/// A host creates one, sets its central widget through GetLayout() and makes panels with
/// CreateDockWidget(). The settings that it reads are those of DockSettings, shared by all
/// managers.
class OVK_EXPORT DockManager : public DockArea
{
    Q_OBJECT

public:
    class Impl;

    /// Meaning of the edge gaps.
    enum EdgeGapMode
    {
        Pixels = 0, ///< The gaps are pixels.
        Percent = 1 ///< The gaps are percent of the manager's size.
    };

    explicit DockManager(QWidget* parent = nullptr);
    ~DockManager() override;

    /// Makes an empty panel whose parent is the manager. It is neither docked nor floating yet.
    DockWidget* CreateDockWidget();

    /// Always null: there is one area, the manager itself.
    DockArea* CreateArea();

    /// All floating panels, in the order in which they began to float.
    QList<DockWidget*> GetFloatedWidgets() const;

    /// All panels: the floating ones first, then the docked ones of each area.
    QList<DockWidget*> GetWidgetsList() const;

    /// All areas; the manager is the first.
    QList<DockArea*> GetAreasList() const;

    using DockArea::GetWidgetsList;

    /// Hides all visible floating panels until ShowHidden().
    void HideFloating();

    /// Hides the visible floating panels that touch `rect` (global), until ShowHidden().
    void HideFloating(const QRect& rect);

    /// Shows what HideFloating() hid, as far as it still floats.
    void ShowHidden();

    /// Covers all visible floating panels and blocks their input until EnableFloating().
    void DisableFloating();

    /// Uncovers what DisableFloating() covered, as far as it still floats.
    void EnableFloating();

    /// Panels made from now on have no menu and can neither be closed nor moved; see
    /// AfterActivate().
    void DisableCustomization();

    /// Ends DisableCustomization() for panels made from now on.
    void EnableCustomization();

    /// Applies the restrictions of DisableCustomization(), if in force, to all panels.
    void AfterActivate();

    /// Deletes all panels, floating and docked. The widgets of their pages survive, as children of
    /// the manager, unless the panel owns them.
    void Clear();

    /// Percent of a panel, along its site, in which a drop merges into tabs.
    int GetDockInsideGap() const;

    /// The gap of one edge, in pixels or percent; 0 for a value that names no single edge.
    int GetDockEdgeGap(Qt::Edge edge) const;

    /// Sets the gap of one edge; nothing for a value that names no single edge.
    void SetDockEdgeGap(Qt::Edge edge, int gap);

    /// The width in pixels of the band along `edge` in which a drop docks.
    int CalcDockEdgeGap(Qt::Edge edge) const;

    EdgeGapMode GetEdgeGapMode() const;
    void SetEdgeGapMode(EdgeGapMode mode) const;

    /// The colour of the previews of a drop.
    QColor GetEvaluationColor() const;

    /// Do the previews of a drop grow slowly?
    bool IsAnimatedDocking() const;
    void SetAnimatedDocking(bool animated);

    /// The private part, for the library and its tests.
    Impl* _Impl() const;
};

} // namespace ovk
