#pragma once

#include <QtCore/QList>

#include <functional>
#include <memory>

#include "ovk/docking/dock_area_p.h"
#include "ovk/docking/dock_manager.h"

class QScreen;

namespace ovk {

class DockDragController;

/// The private part of the manager: the registry of areas and floating panels.
class OVK_TEST_EXPORT DockManager::Impl : public DockArea::Impl
{
public:
    Impl();
    ~Impl() override;

    DockManager* Manager() const { return static_cast<DockManager*>(window); }

    void HidePanels(const QRect* limit);
    /// Deletes a panel, or only retires it and deletes it later if one of docking's own callbacks
    /// is running: the panel may be the one that called.
    void DeletePanel(DockWidget* panel);
    /// A name that no panel of the manager has, and none of the profile.
    QString UniqueName() const;
    /// Brings back panels that lie on no screen any more: one was unplugged, or shrank.
    void OnScreensChanged();
    /// Puts panels on the screen that floated before their window was shown.
    void ShowWaiting();
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// Listens to the size of a screen.
    void Watch(QScreen* screen);
    /// States the rules between the lists, the flags of the panels and the sites. Empty if all
    /// hold, else what is wrong.
    QString CheckConsistency() const;

    QList<DockWindow*> floating;
    QList<DockArea*> areas;
    QList<DockWindow*> hidden;
    QList<DockWindow*> disabled;
    std::unique_ptr<DockDragController> controller;
    bool customization_enabled = true;
    int callback_depth = 0;
    /// The geometries of all screens. Replaced in tests.
    std::function<QList<QRect>()> screens;
};

/// While it lives, docking runs code of the host, or was entered from an event of one of its own
/// widgets: a panel must not be deleted on the spot.
class DockCallbackScope
{
public:
    explicit DockCallbackScope(DockManager* manager);
    ~DockCallbackScope();
    DockCallbackScope(const DockCallbackScope&) = delete;
    DockCallbackScope& operator=(const DockCallbackScope&) = delete;

private:
    QPointer<DockManager> mp_manager;
};

} // namespace ovk
