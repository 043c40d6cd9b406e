#include "ovk/docking/ui_state_docking.h"

#include "ovk/docking/dock_area.h"
#include "ovk/docking/dock_manager.h"
#include "ovk/docking/dock_page.h"
#include "ovk/docking/dock_widget.h"
#include "ovk/docking/ui_state_dock_live_p.h"
#include "ovk/main_window/ribbon_window.h"
#include "ovk/main_window/ribbon_window_p.h"

#include <QtCore/QCoreApplication>

#include <typeinfo>

namespace ovk {

namespace {

const QLatin1String c_areas_id("areas");
const QLatin1String c_floated_id("floated");

} // namespace

QString TranslatedPanelTitle(const QString& title)
{
    return title.isEmpty() ? title
                           : QCoreApplication::translate("toolsheets", title.toUtf8().constData());
}

QString TranslatedPageTitle(const QString& id, const QString& title)
{
    const QByteArray hint = id.toUtf8();
    return title.isEmpty()
               ? title
               : QCoreApplication::translate("toolpages", title.toUtf8().constData(),
                                             hint.isEmpty() ? nullptr : hint.constData());
}

DockManager* LiveDockManager()
{
    const RibbonWindow* const window = LiveRibbonWindow();
    return window ? window->GetDockManager() : nullptr;
}

UiStateAreas::UiStateAreas() : TUiState(QString(c_areas_id)) {}

UiStateAreas::UiStateAreas(const QJsonObject& json) : TUiState(json) {}

UiStateAreas::UiStateAreas(const UiStateAreas& other) = default;

UiStateAreas::~UiStateAreas() = default;

void UiStateAreas::GetItems(QList<UiStateDockWidget*>& items) const
{
    for (const UiStateDockArea* area : _GetChildren()) {
        for (int i = 0; i < area->GetCount(); ++i) {
            const auto* const site = dynamic_cast<UiStateDockSite*>(area->GetItem(i));
            UiStateDockToolboxSite* const toolbox = site ? site->GetToolboxSite() : nullptr;
            for (int k = 0; toolbox && k < toolbox->GetCount(); ++k) {
                auto* const panel = dynamic_cast<UiStateDockWidget*>(toolbox->GetItem(k));
                if (panel && !panel->IsSpacer())
                    items.append(panel);
            }
        }
    }
}

void UiStateAreas::_Store()
{
    _DeleteItems();
    DockManager* const manager = LiveDockManager();
    if (!manager)
        return;
    const QList<DockArea*> areas = manager->GetAreasList();
    for (DockArea* area : areas)
        AppendChild(new UiStateDockArea(*area));
}

UiStateFloated::UiStateFloated() : TUiState(QString(c_floated_id)) {}

UiStateFloated::UiStateFloated(const QJsonObject& json) : TUiState(json) {}

UiStateFloated::UiStateFloated(const UiStateFloated& other) = default;

UiStateFloated::~UiStateFloated() = default;

void UiStateFloated::GetItems(QList<UiStateDockWidget*>& items) const
{
    for (UiStateDockWidget* panel : _GetChildren()) {
        if (!panel->IsSpacer())
            items.append(panel);
    }
}

void UiStateFloated::_Store()
{
    _DeleteItems();
    DockManager* const manager = LiveDockManager();
    if (!manager)
        return;
    const QList<DockWidget*> panels = manager->GetFloatedWidgets();
    for (DockWidget* panel : panels)
        AppendChild(new UiStateDockWidget(panel));
}

UiStateDocking::UiStateDocking() : TUiState(GetSuiteName()) {}

UiStateDocking::UiStateDocking(const QString& name) : TUiState(name) {}

UiStateDocking::UiStateDocking(const QJsonObject& json) : TUiState(json) {}

UiStateDocking::UiStateDocking(const UiStateDocking& other) = default;

UiStateDocking::~UiStateDocking() = default;

QString UiStateDocking::GetSuiteName()
{
    return QStringLiteral("docking");
}

void UiStateDocking::GetItems(QList<UiStateDockWidget*>& items) const
{
    for (const UiStateItem* child : _GetChildren()) {
        if (const auto* const holder = dynamic_cast<const IDockingItems*>(child))
            holder->GetItems(items);
    }
}

void UiStateDocking::Merge(const UiProfileItem& source, const UiProfileItem* base)
{
    TUiState::Merge(source, base);
    const auto* const other = dynamic_cast<const UiStateDocking*>(&source);
    if (!other)
        return;
    for (auto it = other->m_titles.cbegin(); it != other->m_titles.cend(); ++it)
        m_titles.insert(it.key(), it.value());
}

QString UiStateDocking::GetTitle(const QString& id) const
{
    return m_titles.value(id);
}

void UiStateDocking::SetTitle(const QString& id, const QString& title)
{
    m_titles.insert(id, title);
}

QString UiStateDocking::ShowPanelTitle(const QString& id)
{
    return m_shown_panels[id] = TranslatedPanelTitle(GetTitle(id));
}

QString UiStateDocking::ShowPageTitle(const QString& id)
{
    return m_shown_pages[id] = TranslatedPageTitle(id, GetTitle(id));
}

void UiStateDocking::_TranslateTitles(DockWidget& panel)
{
    const QString name = panel.objectName();
    if (m_shown_panels.contains(name) && panel.GetForcedTitle() == m_shown_panels.value(name))
        panel.SetForcedTitle(ShowPanelTitle(name));
    for (int i = 0; i < panel.GetCount(DockWidget::All); ++i) {
        QWidget* const page = panel.GetPageAt(i, DockWidget::All)->GetWidget();
        const QString id = page->objectName();
        if (m_shown_pages.contains(id) && page->windowTitle() == m_shown_pages.value(id))
            page->setWindowTitle(ShowPageTitle(id));
    }
}

UiStateDocking* UiStateDocking::FindRoot(ITreeItem* node)
{
    // Asked for each title that is written: a comparison costs a small part of a cast that fails.
    for (ITreeItem* item = node; item; item = item->GetParent()) {
        if (typeid(*item) == typeid(UiStateDocking))
            return static_cast<UiStateDocking*>(item);
    }
    for (ITreeItem* item = node; item; item = item->GetParent()) {
        if (auto* const root = dynamic_cast<UiStateDocking*>(item))
            return root;
    }
    return nullptr;
}

const UiStateDocking* UiStateDocking::FindRoot(const ITreeItem* node)
{
    return FindRoot(const_cast<ITreeItem*>(node));
}

UiProfileItem* UiStateDocking::_CreateSubItem(const QJsonObject& json)
{
    const QString id = json.value(QLatin1String("id")).toString();
    if (id == c_areas_id)
        return new UiStateAreas(json);
    if (id == c_floated_id)
        return new UiStateFloated(json);
    return nullptr;
}

void UiStateDocking::_Activate(ActivationMode mode)
{
    const QPointer<DockManager> manager = LiveDockManager();
    if (!manager)
        return;
    // Hidden while it is built, or every panel would be laid out and painted once for each change.
    if (mode == amOrdinary)
        manager->setVisible(false);
    TUiState::_Activate(mode);
    if (!manager)
        return;
    if (mode == amOrdinary)
        manager->setVisible(true);
    if (manager)
        manager->AfterActivate();
}

void UiStateDocking::_Deactivate(ActivationMode mode)
{
    DockManager* const manager = LiveDockManager();
    if (manager && mode == amOrdinary)
        manager->Clear();
    TUiState::_Deactivate(mode);
}

void UiStateDocking::_Store()
{
    // One of each, in this order, whatever a file brought: a second one would store all panels once
    // more, and without one they would be lost.
    UiStateAreas* areas = nullptr;
    UiStateFloated* floated = nullptr;
    for (int i = 0; i < GetChildCount();) {
        UiProfileItem* const child = GetItem(i);
        auto* const found_areas = dynamic_cast<UiStateAreas*>(child);
        auto* const found_floated = dynamic_cast<UiStateFloated*>(child);
        if ((found_areas && areas) || (found_floated && floated)) {
            DeleteItem(i);
            continue;
        }
        areas = found_areas ? found_areas : areas;
        floated = found_floated ? found_floated : floated;
        ++i;
    }
    if (!areas)
        InsertChild(0, new UiStateAreas);
    if (!floated)
        AppendChild(new UiStateFloated);
    TUiState::_Store();
}

void UiStateDocking::_Validate(QSet<QString>&)
{
    DockManager* const manager = LiveDockManager();
    if (!manager)
        return;
    QList<QPointer<DockWidget>> panels;
    const QList<DockWidget*> live = manager->GetWidgetsList();
    for (DockWidget* panel : live)
        panels.append(panel);
    for (const QPointer<DockWidget>& panel : qAsConst(panels)) {
        if (panel)
            panel->AvailabilityChanged();
        if (panel)
            _TranslateTitles(*panel);
    }
}

} // namespace ovk
