#include "ovk/docking/dock_drag_controller_p.h"

#include "ovk/docking/dock_layout.h"
#include "ovk/docking/dock_manager_p.h"
#include "ovk/docking/dock_widget_p.h"

#include <QtCore/QEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>

namespace ovk {

namespace {

constexpr int c_memory = 250; // milliseconds
constexpr int c_misses = 3;

QWidget* DeepestAt(QWidget& window, const QPoint& pos)
{
    QWidget* const child = window.childAt(window.mapFromGlobal(pos));
    return child ? child : &window;
}

} // namespace

IDockDragTarget::~IDockDragTarget()
{
    if (mp_controller)
        mp_controller->Forget(*this);
}

DockDragController::DockDragController(DockManager& manager) : mp_manager(&manager)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state != Qt::ApplicationActive)
                    Cancel();
            });
}

DockDragController::~DockDragController()
{
    Reset();
}

void DockDragController::Forget(IDockDragTarget& target)
{
    if (mp_current == &target)
        mp_current = nullptr;
}

void DockDragController::Begin(DockWidget& widget, const QPoint& pos)
{
    Reset();
    mp_widget = &widget;
    widget.installEventFilter(this);
    Update(pos);
}

void DockDragController::Update(const QPoint& pos)
{
    if (!mp_widget)
        return;
    const DockCallbackScope scope(mp_manager);
    IDockDragTarget* const target = FindTarget(pos);
    if (target != mp_current) {
        IDockDragTarget* const old = std::exchange(mp_current, nullptr);
        if (target) {
            mp_current = target;
            target->mp_controller = this;
        }
        if (old) {
            old->mp_controller = nullptr;
            old->OnDragLeave(*mp_widget, target, pos);
        }
        // The old target may have taken the new one with it, or have ended the drag.
        if (mp_current && mp_widget)
            mp_current->OnDragEnter(*mp_widget, pos);
    }
    if (mp_current && mp_widget)
        mp_current->OnDragOver(*mp_widget, pos);
}

void DockDragController::End(const QPoint& pos)
{
    if (!mp_widget)
        return;
    const DockCallbackScope scope(mp_manager);
    const QPointer<DockDragController> guard(this);
    IDockDragTarget* const target = FindTarget(pos);
    m_dropping = true;
    if (target)
        target->OnDragDrop(*mp_widget, pos);
    if (!guard)
        return;
    m_dropping = false;
    Reset();
    ClearPreviews();
}

void DockDragController::Cancel()
{
    if (!mp_widget)
        return;
    const DockCallbackScope scope(mp_manager);
    const QPointer<DockWidget> widget = mp_widget;
    IDockDragTarget* const current = mp_current;
    Reset();
    if (current)
        current->OnDragCancel(*widget, QPoint());
    ClearPreviews();
    if (widget)
        widget->_Impl()->AbortDrag();
}

void DockDragController::Reset()
{
    if (mp_current)
        mp_current->mp_controller = nullptr;
    mp_current = nullptr;
    mp_found = nullptr;
    if (mp_widget)
        mp_widget->removeEventFilter(this);
    mp_widget = nullptr;
}

void DockDragController::ClearPreviews()
{
    const QList<DockArea*> areas = mp_manager->GetAreasList();
    for (DockArea* area : areas)
        area->GetLayout()->FinishOtherEvaluation(nullptr);
    const QList<DockWidget*> panels = mp_manager->GetWidgetsList();
    for (DockWidget* panel : panels)
        panel->_Impl()->HideOverlay();
}

QWidget* DockDragController::FindWidget(const QPoint& pos) const
{
    if (QWidget* const widget = SearchWindows(pos)) {
        mp_found = widget->window();
        m_found_at.start();
        m_misses = 0;
        return widget;
    }
    // The hole that the search punches into the dragged panel takes effect when the window manager
    // has taken note of it. Till then there seems to be nothing under the cursor: only when that
    // goes on, nothing is there. A hand that rested before it let go asks but once.
    ++m_misses;
    const bool late = m_misses < c_misses || !m_found_at.hasExpired(c_memory);
    if (!late || !mp_found || !mp_found->isVisible() ||
        !mp_found->rect().contains(mp_found->mapFromGlobal(pos)))
        return nullptr;
    return DeepestAt(*mp_found, pos);
}

QWidget* DockDragController::SearchWindows(const QPoint& pos) const
{
    if (QWidget* const widget = QApplication::widgetAt(pos))
        return widget;
    // A window system without masks shows nothing behind the dragged panel: ask our own windows.
    if (QApplication::topLevelAt(pos) != mp_widget)
        return nullptr;
    const QList<DockWidget*> panels = mp_manager->GetFloatedWidgets();
    for (auto it = panels.crbegin(); it != panels.crend(); ++it) {
        if (*it != mp_widget && (*it)->isVisible() && (*it)->geometry().contains(pos))
            return DeepestAt(**it, pos);
    }
    QWidget* const window = mp_manager->window();
    if (window->isVisible() && window->geometry().contains(pos))
        return DeepestAt(*window, pos);
    return nullptr;
}

IDockDragTarget* DockDragController::FindTarget(const QPoint& pos) const
{
    QWidget* widget = nullptr;
    if (mp_widget) {
        mp_widget->setAttribute(Qt::WA_TransparentForMouseEvents, true);
        widget = m_widget_at ? m_widget_at(pos) : FindWidget(pos);
        mp_widget->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    }
    for (; widget; widget = widget->parentWidget()) {
        if (auto* const target = dynamic_cast<IDockDragTarget*>(widget)) {
            // A panel is no target of its own drag.
            if (widget != mp_widget)
                return target;
        }
    }
    return nullptr;
}

bool DockDragController::eventFilter(QObject* watched, QEvent* event)
{
    // A panel that is dropped stops being a window: it hides, and the focus leaves it.
    if (watched == mp_widget && !m_dropping) {
        const QEvent::Type type = event->type();
        // Closed by its owner, its last page gone, or away with all floating panels.
        const bool gone = type == QEvent::Hide && !event->spontaneous();
        if (gone || type == QEvent::WindowDeactivate || type == QEvent::WindowBlocked)
            Cancel();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ovk

#include "moc_dock_drag_controller_p.cpp"
