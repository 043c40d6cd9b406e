#pragma once

#include <QtGui/QColor>

#include <ovk/core/export.h>
#include <ovk/core/observable_value.h>
#include <ovk/docking/dock_manager.h>

namespace ovk {

/// The settings of docking, shared by all managers of the process. All are observable.
class OVK_EXPORT DockSettings
{
public:
    DockSettings() = delete;

    /// Are the edge gaps pixels or percent? Percent at first.
    static ObservableValue<DockManager::EdgeGapMode>& EdgeGapMode();

    /// Width of the band along an edge in which a drop docks; 7 at first.
    static ObservableValue<int>& LeftEdgeGap();
    static ObservableValue<int>& TopEdgeGap();
    static ObservableValue<int>& RightEdgeGap();
    static ObservableValue<int>& BotomEdgeGap();

    /// Do the previews of a drop grow slowly? True at first.
    static ObservableValue<bool>& Animated();

    /// The colour of the previews of a drop; red 112, green 146, blue 190 at first.
    static ObservableValue<QColor>& Color();

    /// Puts the animation back to its default. The other values are left as they are.
    static void Reset();
};

} // namespace ovk
