#pragma once

#include <QtCore/QPointer>

#include <ovk/docking/ui_state_dock_widget.h>
#include <ovk/ui_state/ui_state_command_spots.h>

namespace ovk {

class DockArea;
class DockSite;
class DockToolbarSite;
class DockToolboxSite;

/// A stored toolbar of a dock site. It is kept and never built.
class OVK_EXPORT UiStateDockToolbar : public UiStateCommandSpots
{
public:
    explicit UiStateDockToolbar(const QString& id);
    explicit UiStateDockToolbar(const QJsonObject& json);
    UiStateDockToolbar(const UiStateDockToolbar& other);
    ~UiStateDockToolbar() override;

    UiProfileItem* Clone() const override;

protected:
    void _Activate(ActivationMode mode) override;
    void _Deactivate(ActivationMode mode) override;
};

/// The stored toolbars of one toolbar site, "toolbars.inner" or "toolbars.outter".
class OVK_EXPORT UiStateDockToolbarSite
    : public TUiState<UiStateDockToolbarSite, UiStateDockToolbar, UiStateDockToolbar>
{
public:
    explicit UiStateDockToolbarSite(const QString& id);
    explicit UiStateDockToolbarSite(const QJsonObject& json);
    /// Captures a live site, which has no toolbars.
    explicit UiStateDockToolbarSite(const DockToolbarSite& site);
    UiStateDockToolbarSite(const UiStateDockToolbarSite& other);
    ~UiStateDockToolbarSite() override;
};

/// The stored panels of one toolbox site, "toolboxes.site", in the order of its box.
class OVK_EXPORT UiStateDockToolboxSite
    : public TUiState<UiStateDockToolboxSite, UiStateDockWidget, UiStateDockWidget>
{
public:
    UiStateDockToolboxSite();
    explicit UiStateDockToolboxSite(const QJsonObject& json);
    /// Captures a live site.
    explicit UiStateDockToolboxSite(const DockToolboxSite& site);
    UiStateDockToolboxSite(const UiStateDockToolboxSite& other);
    ~UiStateDockToolboxSite() override;

    QJsonObject ToJson() const override;
    bool FromJson(const QJsonObject& json) override;

    /// The cross size in pixels, 0 for as small as the panels are.
    int GetCrossSize() const { return m_cross_size; }
    /// Is the site folded to nothing?
    bool IsMinimized() const { return m_minimized; }

protected:
    void _Activate(ActivationMode mode) override;

private:
    DockToolboxSite* _FindSite();

    int m_cross_size = 0;
    bool m_minimized = false;
};

/// One stored side of an area: "left", "right", "top" or "bottom".
class OVK_EXPORT UiStateDockSite : public TUiState<UiStateDockSite, UiState, Dummy::Dummy>
{
public:
    explicit UiStateDockSite(const QString& id);
    explicit UiStateDockSite(const QJsonObject& json);
    /// Captures a live site: its toolbox site, then the inner and the outer toolbar site.
    explicit UiStateDockSite(const DockSite& site);
    UiStateDockSite(const UiStateDockSite& other);
    ~UiStateDockSite() override;

    /// The child that holds the panels; null if a file has none.
    UiStateDockToolboxSite* GetToolboxSite() const;

protected:
    /// A toolbox site for "toolboxes.site", a toolbar site for any other identifier.
    UiProfileItem* _CreateSubItem(const QJsonObject& json) override;
};

/// A stored area with its four sites. Its identifier is the area's object name.
class OVK_EXPORT UiStateDockArea
    : public TUiState<UiStateDockArea, UiStateDockSite, UiStateDockSite>
{
public:
    explicit UiStateDockArea(const QString& id);
    explicit UiStateDockArea(const QJsonObject& json);
    /// Captures a live area.
    explicit UiStateDockArea(DockArea& area);
    UiStateDockArea(const UiStateDockArea& other);
    ~UiStateDockArea() override;

    /// The live area, null while there is none.
    DockArea* GetArea() const;

protected:
    /// "sites".
    QString _GetSubitemsTag() const override;
    /// Finds the live area and activates the sites. An area that does not exist is skipped with
    /// all that it holds.
    void _Activate(ActivationMode mode) override;

private:
    QPointer<DockArea> mp_area;
};

} // namespace ovk
