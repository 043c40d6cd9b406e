#include "ovk/docking/dock_manager.h"

#include "ovk/commands/ui_controller.h"
#include "ovk/docking/dock_accessible_p.h"
#include "ovk/docking/dock_drag_controller_p.h"
#include "ovk/docking/dock_layout.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_settings.h"
#include "ovk/docking/dock_site.h"
#include "ovk/docking/dock_toolbox_site_p.h"
#include "ovk/docking/dock_widget_p.h"
#include "ovk/ui_state/ui_profile.h"

#include <QtCore/QEvent>
#include <QtCore/QSet>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace ovk {

namespace {

constexpr int c_inside_gap = 30; // percent

ObservableValue<int>* EdgeGap(Qt::Edge edge)
{
    switch (edge) {
    case Qt::LeftEdge:
        return &DockSettings::LeftEdgeGap();
    case Qt::TopEdge:
        return &DockSettings::TopEdgeGap();
    case Qt::RightEdge:
        return &DockSettings::RightEdgeGap();
    case Qt::BottomEdge:
        return &DockSettings::BotomEdgeGap();
    }
    return nullptr;
}

void Restrict(DockWidget& panel)
{
    panel.HideContextMenu(true);
    panel.SetClosable(false);
    panel.SetMovable(false);
}

} // namespace

DockManager::Impl::Impl() = default;
DockManager::Impl::~Impl() = default;

void DockManager::Impl::HidePanels(const QRect* limit)
{
    const QList<DockWindow*> panels = floating;
    for (DockWindow* panel : panels) {
        // Hiding a page runs code of the host, which may close other panels.
        if (!floating.contains(panel) || !panel->isVisible() || hidden.contains(panel))
            continue;
        if (limit && !panel->geometry().intersects(*limit))
            continue;
        hidden.append(panel);
        panel->setVisible(false);
    }
}

void DockManager::Impl::DeletePanel(DockWidget* panel)
{
    if (callback_depth == 0) {
        delete panel;
        return;
    }
    panel->_Impl()->Retire();
    panel->hide();
    panel->deleteLater();
}

QString DockManager::Impl::UniqueName() const
{
    QSet<QString> taken;
    const QList<DockWidget*> panels = Manager()->GetWidgetsList();
    for (const DockWidget* panel : panels)
        taken.insert(panel->GetName());

    UiController* const controller_ui = UiController::GetInstance();
    UiProfile* const profile = controller_ui ? controller_ui->GetProfile() : nullptr;
    for (int number = 1;; ++number) {
        const int id = profile ? profile->NextId() : number;
        const QString name = QStringLiteral("__UiStateDockWidget.%1").arg(id, 0, 16);
        if (!taken.contains(name))
            return name;
    }
}

void DockManager::Impl::Watch(QScreen* screen)
{
    connect(screen, &QScreen::geometryChanged, this, [this] { OnScreensChanged(); });
}

void DockManager::Impl::ShowWaiting()
{
    if (!window->window()->isVisible())
        return;
    const QList<DockWindow*> panels = floating;
    for (DockWindow* panel : panels)
        static_cast<DockWidget::Impl*>(panel->_pp())->EndWaiting();
}

bool DockManager::Impl::eventFilter(QObject* watched, QEvent* event)
{
    // The window itself comes to the screen after this.
    if (watched == window && event->type() == QEvent::Show)
        QTimer::singleShot(0, this, [this] { ShowWaiting(); });
    return DockArea::Impl::eventFilter(watched, event);
}

void DockManager::Impl::OnScreensChanged()
{
    const QList<DockWindow*> panels = floating;
    for (DockWindow* panel : panels) {
        if (panel->isVisible())
            static_cast<DockWidget::Impl*>(panel->_pp())->BringOnScreen();
    }
}

QString DockManager::Impl::CheckConsistency() const
{
    if (areas.isEmpty() || areas.first() != window)
        return QStringLiteral("the manager is not its first area");
    for (DockWindow* window_floating : floating) {
        const auto* const panel = static_cast<DockWidget*>(window_floating);
        if (!panel->IsFloated())
            return QStringLiteral("a docked panel is on the list of floating ones");
        if (panel->GetToolboxSite())
            return QStringLiteral("a floating panel has a site");
        if (!panel->isWindow())
            return QStringLiteral("a floating panel is no window");
        if (floating.count(window_floating) != 1)
            return QStringLiteral("a panel floats twice");
    }
    int estimators = 0;
    for (const DockArea* area : areas) {
        for (int side = DockLayout::Left; side <= DockLayout::Bottom; ++side) {
            const auto* const site =
                area->GetLayout()->GetSite(static_cast<DockLayout::Side>(side))->GetToolboxSite();
            estimators += site->_pp()->estimator ? 1 : 0;
            const QString error = site->_pp()->CheckConsistency();
            if (!error.isEmpty())
                return error;
        }
    }
    if (estimators > 1)
        return QStringLiteral("more than one preview");
    if (!controller->IsDragging() && estimators > 0)
        return QStringLiteral("a preview outlived its drag");
    const QList<DockWidget*> panels = Manager()->findChildren<DockWidget*>();
    for (const DockWidget* panel : panels) {
        if (panel->IsFloated() && !floating.contains(const_cast<DockWidget*>(panel)))
            return QStringLiteral("a floating panel is not on the list");
    }
    return {};
}

DockCallbackScope::DockCallbackScope(DockManager* manager) : mp_manager(manager)
{
    if (manager)
        ++manager->_Impl()->callback_depth;
}

DockCallbackScope::~DockCallbackScope()
{
    if (mp_manager && mp_manager->_Impl())
        --mp_manager->_Impl()->callback_depth;
}

DockManager::DockManager(QWidget* parent) : DockArea(new Impl, parent)
{
    InstallDockAccessibility();
    setObjectName(QStringLiteral("manager.area"));
    Impl* const impl = _Impl();
    impl->manager = this;
    impl->controller = std::make_unique<DockDragController>(*this);
    installEventFilter(impl);
    impl->screens = [] {
        QList<QRect> rects;
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (const QScreen* screen : screens)
            rects.append(screen->geometry());
        return rects;
    };
    connect(qGuiApp, &QGuiApplication::screenRemoved, impl, [impl] { impl->OnScreensChanged(); });
    connect(qGuiApp, &QGuiApplication::screenAdded, impl,
            [impl](QScreen* screen) { impl->Watch(screen); });
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens)
        impl->Watch(screen);
}

DockManager::~DockManager()
{
    Impl* const impl = _Impl();
    impl->controller->Cancel();
    while (!impl->floating.isEmpty())
        delete impl->floating.last();
    GetLayout()->Clear();
    // What was made and neither docked nor floated.
    qDeleteAll(findChildren<DockWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

DockManager::Impl* DockManager::_Impl() const
{
    return static_cast<Impl*>(DockWindow::_pp());
}

DockWidget* DockManager::CreateDockWidget()
{
    auto* const panel = new DockWidget(*this); // a child of the manager
    if (!_Impl()->customization_enabled)
        Restrict(*panel);
    return panel;
}

DockArea* DockManager::CreateArea()
{
    return nullptr;
}

QList<DockWidget*> DockManager::GetFloatedWidgets() const
{
    QList<DockWidget*> panels;
    for (DockWindow* panel : qAsConst(_Impl()->floating))
        panels.append(static_cast<DockWidget*>(panel));
    return panels;
}

QList<DockWidget*> DockManager::GetWidgetsList() const
{
    QList<DockWidget*> panels = GetFloatedWidgets();
    for (const DockArea* area : qAsConst(_Impl()->areas))
        area->GetWidgetsList(panels);
    return panels;
}

QList<DockArea*> DockManager::GetAreasList() const
{
    return _Impl()->areas;
}

void DockManager::HideFloating()
{
    _Impl()->HidePanels(nullptr);
}

void DockManager::HideFloating(const QRect& rect)
{
    _Impl()->HidePanels(&rect);
}

void DockManager::ShowHidden()
{
    const QList<DockWindow*> panels = std::exchange(_Impl()->hidden, {});
    for (DockWindow* panel : panels) {
        if (_Impl()->floating.contains(panel))
            panel->setVisible(true);
    }
}

void DockManager::DisableFloating()
{
    Impl* const impl = _Impl();
    const QList<DockWindow*> panels = impl->floating;
    for (DockWindow* panel : panels) {
        // Its picture is painted by its page, which is the host's.
        if (!impl->floating.contains(panel) || !panel->isVisible() ||
            impl->disabled.contains(panel))
            continue;
        impl->disabled.append(panel);
        static_cast<DockWidget*>(panel)->SetEnabled(false);
    }
}

void DockManager::EnableFloating()
{
    const QList<DockWindow*> panels = std::exchange(_Impl()->disabled, {});
    for (DockWindow* panel : panels) {
        if (_Impl()->floating.contains(panel))
            static_cast<DockWidget*>(panel)->SetEnabled(true);
    }
}

void DockManager::DisableCustomization()
{
    _Impl()->customization_enabled = false;
}

void DockManager::EnableCustomization()
{
    _Impl()->customization_enabled = true;
}

void DockManager::AfterActivate()
{
    if (_Impl()->customization_enabled)
        return;
    const QList<DockWidget*> panels = GetWidgetsList();
    for (DockWidget* panel : panels)
        Restrict(*panel);
}

void DockManager::Clear()
{
    Impl* const impl = _Impl();
    while (!impl->floating.isEmpty())
        impl->DeletePanel(static_cast<DockWidget*>(impl->floating.last()));
    GetLayout()->Clear();
}

int DockManager::GetDockInsideGap() const
{
    return c_inside_gap;
}

int DockManager::GetDockEdgeGap(Qt::Edge edge) const
{
    const ObservableValue<int>* const gap = EdgeGap(edge);
    return gap ? gap->GetData() : 0;
}

void DockManager::SetDockEdgeGap(Qt::Edge edge, int gap)
{
    if (ObservableValue<int>* const value = EdgeGap(edge))
        value->SetData(gap);
}

int DockManager::CalcDockEdgeGap(Qt::Edge edge) const
{
    const int gap = GetDockEdgeGap(edge);
    if (GetEdgeGapMode() == Pixels)
        return gap;
    const bool across_height = edge == Qt::TopEdge || edge == Qt::BottomEdge;
    const qint64 size = across_height ? height() : width();
    return static_cast<int>(qBound<qint64>(-QWIDGETSIZE_MAX, size * gap / 100, QWIDGETSIZE_MAX));
}

DockManager::EdgeGapMode DockManager::GetEdgeGapMode() const
{
    return DockSettings::EdgeGapMode().GetData();
}

void DockManager::SetEdgeGapMode(EdgeGapMode mode) const
{
    DockSettings::EdgeGapMode().SetData(mode);
}

QColor DockManager::GetEvaluationColor() const
{
    return DockSettings::Color().GetData();
}

bool DockManager::IsAnimatedDocking() const
{
    return DockSettings::Animated().GetData();
}

void DockManager::SetAnimatedDocking(bool animated)
{
    DockSettings::Animated().SetData(animated);
}

} // namespace ovk

#include "moc_dock_manager.cpp"
