#pragma once

#include <QtCore/QPointer>

#include <array>

#include "ovk/docking/dock_layout.h"

namespace ovk {

/// The private part of the layout of an area.
class OVK_TEST_EXPORT DockLayout::Impl
{
public:
    explicit Impl(DockLayout& layout, DockArea& area);

    /// Keeps "left" at the left of the screen: the mirroring of Qt's layouts is mirrored back.
    void UpdateDirection();

    DockLayout* layout;
    DockArea* area;
    std::array<DockSite*, 4> sites{}; // owned by the layout, as items
    QPointer<QWidget> central;
};

} // namespace ovk
