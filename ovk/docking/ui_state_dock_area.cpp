#include "ovk/docking/ui_state_dock_area.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_layout.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_toolbar_site.h"
#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/ui_state_dock_live_p.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace ovk {

namespace {

const QLatin1String c_toolbox_id("toolboxes.site");
const QLatin1String c_key_size("size");
const QLatin1String c_key_minimized("minimized");

/// Sites that are larger than any screen, by a file of another one, would make the window so, and
/// it could never be shown whole.
void FitToScreen(DockArea& area, DockLayout::Side first, DockLayout::Side second, int screen)
{
    DockToolboxSite* const one = area.GetLayout()->GetSite(first)->GetToolboxSite();
    DockToolboxSite* const other = area.GetLayout()->GetSite(second)->GetToolboxSite();
    const qint64 both = qint64(one->GetCrossSize()) + other->GetCrossSize();
    if (both <= screen)
        return;
    const qint64 room = qint64(screen) * 3 / 4; // the rest is for the middle
    one->SetCrossSize(static_cast<int>(one->GetCrossSize() * room / both));
    other->SetCrossSize(static_cast<int>(other->GetCrossSize() * room / both));
}

} // namespace

UiStateDockToolbar::UiStateDockToolbar(const QString& id) : UiStateCommandSpots(id) {}

UiStateDockToolbar::UiStateDockToolbar(const QJsonObject& json) : UiStateCommandSpots(json) {}

UiStateDockToolbar::UiStateDockToolbar(const UiStateDockToolbar& other) = default;

UiStateDockToolbar::~UiStateDockToolbar() = default;

UiProfileItem* UiStateDockToolbar::Clone() const
{
    return new UiStateDockToolbar(*this);
}

void UiStateDockToolbar::_Activate(ActivationMode) {}

void UiStateDockToolbar::_Deactivate(ActivationMode) {}

UiStateDockToolbarSite::UiStateDockToolbarSite(const QString& id) : TUiState(id) {}

UiStateDockToolbarSite::UiStateDockToolbarSite(const QJsonObject& json) : TUiState(json) {}

UiStateDockToolbarSite::UiStateDockToolbarSite(const DockToolbarSite& site)
    : TUiState(site.GetTextType())
{
}

UiStateDockToolbarSite::UiStateDockToolbarSite(const UiStateDockToolbarSite& other) = default;

UiStateDockToolbarSite::~UiStateDockToolbarSite() = default;

UiStateDockToolboxSite::UiStateDockToolboxSite() : TUiState(QString(c_toolbox_id)) {}

UiStateDockToolboxSite::UiStateDockToolboxSite(const QJsonObject& json) : TUiState(json) {}

UiStateDockToolboxSite::UiStateDockToolboxSite(const DockToolboxSite& site)
    : UiStateDockToolboxSite()
{
    m_minimized = site.IsMinimized();
    m_cross_size = site.GetCrossSize();
    for (int i = 0; i < site.count(); ++i) {
        QWidget* const item = site.itemAt(i)->widget();
        // The preview of a drag that is under way is no part of the arrangement.
        if (!qobject_cast<DockToolboxSiteEstimator*>(item))
            AppendChild(new UiStateDockWidget(item));
    }
}

UiStateDockToolboxSite::UiStateDockToolboxSite(const UiStateDockToolboxSite& other) = default;

UiStateDockToolboxSite::~UiStateDockToolboxSite() = default;

QJsonObject UiStateDockToolboxSite::ToJson() const
{
    QJsonObject json = TUiState::ToJson();
    if (m_cross_size != 0)
        json.insert(c_key_size, m_cross_size);
    if (m_minimized)
        json.insert(c_key_minimized, true);
    return json;
}

bool UiStateDockToolboxSite::FromJson(const QJsonObject& json)
{
    m_cross_size = json.value(c_key_size).toInt(0);
    m_minimized = json.value(c_key_minimized).toBool(false);
    return TUiState::FromJson(json);
}

DockToolboxSite* UiStateDockToolboxSite::_FindSite()
{
    auto* const side = dynamic_cast<UiStateDockSite*>(GetParent());
    auto* const owner = side ? dynamic_cast<UiStateDockArea*>(side->GetParent()) : nullptr;
    DockArea* const area = owner ? owner->GetArea() : nullptr;
    DockSite* const site = area ? area->GetLayout()->GetSite(side->GetName()) : nullptr;
    return site ? site->GetToolboxSite() : nullptr;
}

void UiStateDockToolboxSite::_Activate(ActivationMode mode)
{
    DockToolboxSite* const site = mode == amOrdinary ? _FindSite() : nullptr;
    if (!site)
        return;
    // No layout in between: there would be one for every panel.
    site->setEnabled(false);
    site->SetCrossSize(m_cross_size);
    site->SetMinimized(m_minimized);
    bool before_spacer = true;
    for (UiStateDockWidget* child : _GetChildren()) {
        if (child->IsSpacer()) {
            before_spacer = false;
            continue;
        }
        const QPointer<DockWidget> panel = child->Materialize();
        if (!panel)
            continue;
        child->GivePlace(*panel);
        if (before_spacer)
            site->AddWidget(panel);
        else
            site->InsertWidget(-1, panel);
        if (panel)
            child->ShowAsStored(*panel);
    }
    site->setEnabled(true);
}

UiStateDockSite::UiStateDockSite(const QString& id) : TUiState(id) {}

UiStateDockSite::UiStateDockSite(const QJsonObject& json) : TUiState(json) {}

UiStateDockSite::UiStateDockSite(const DockSite& site) : TUiState(site.GetSideName())
{
    AppendChild(new UiStateDockToolboxSite(*site.GetToolboxSite()));
    AppendChild(new UiStateDockToolbarSite(*site.GetToolbarInnerSite()));
    AppendChild(new UiStateDockToolbarSite(*site.GetToolbarOutterSite()));
}

UiStateDockSite::UiStateDockSite(const UiStateDockSite& other) = default;

UiStateDockSite::~UiStateDockSite() = default;

UiStateDockToolboxSite* UiStateDockSite::GetToolboxSite() const
{
    for (UiState* child : _GetChildren()) {
        if (auto* const site = dynamic_cast<UiStateDockToolboxSite*>(child))
            return site;
    }
    return nullptr;
}

UiProfileItem* UiStateDockSite::_CreateSubItem(const QJsonObject& json)
{
    if (json.value(QLatin1String("id")).toString() == c_toolbox_id)
        return new UiStateDockToolboxSite(json);
    return new UiStateDockToolbarSite(json);
}

UiStateDockArea::UiStateDockArea(const QString& id) : TUiState(id) {}

UiStateDockArea::UiStateDockArea(const QJsonObject& json) : TUiState(json) {}

UiStateDockArea::UiStateDockArea(DockArea& area) : TUiState(area.objectName()), mp_area(&area)
{
    for (const DockLayout::Side side :
         {DockLayout::Left, DockLayout::Right, DockLayout::Top, DockLayout::Bottom})
        AppendChild(new UiStateDockSite(*area.GetLayout()->GetSite(side)));
}

UiStateDockArea::UiStateDockArea(const UiStateDockArea& other) = default;

UiStateDockArea::~UiStateDockArea() = default;

DockArea* UiStateDockArea::GetArea() const
{
    return mp_area;
}

QString UiStateDockArea::_GetSubitemsTag() const
{
    return QStringLiteral("sites");
}

void UiStateDockArea::_Activate(ActivationMode mode)
{
    if (mode == amOrdinary) {
        DockManager* const manager = LiveDockManager();
        if (manager && manager->objectName() == GetName()) {
            mp_area = manager;
        } else {
            mp_area = manager ? manager->CreateArea() : nullptr;
            // There is no other area: the entry and its panels stay in the file only.
            if (!mp_area)
                return;
            mp_area->setObjectName(GetName());
        }
    }
    TUiState::_Activate(mode);
    if (mode != amOrdinary || !mp_area)
        return;
    // A window that is larger than its screen has that room too.
    const QSize screen = QGuiApplication::primaryScreen()->availableVirtualSize();
    const QSize room = screen.expandedTo(mp_area->window()->size());
    FitToScreen(*mp_area, DockLayout::Left, DockLayout::Right, room.width());
    FitToScreen(*mp_area, DockLayout::Top, DockLayout::Bottom, room.height());
}

} // namespace ovk
