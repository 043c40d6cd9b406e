#include "ovk/docking/dock_accessible_p.h"

#include "ovk/docking/dock_toolbox_site_handle_p.h"
#include "ovk/docking/dock_widget_p.h"

#include <QtWidgets/QAccessibleWidget>

namespace ovk {

namespace {

/// A panel: a pane of its window, or a window of its own while it floats.
class AccessiblePanel : public QAccessibleWidget
{
public:
    explicit AccessiblePanel(DockWidget* panel) : QAccessibleWidget(panel, QAccessible::Pane) {}

    QAccessible::Role role() const override
    {
        return Panel()->IsFloated() ? QAccessible::Window : QAccessible::Pane;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && widget()->accessibleName().isEmpty())
            return Panel()->_Impl()->TitleText();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = Panel()->IsCollapsible();
        state.collapsed = Panel()->IsCollapsed();
        state.expanded = state.expandable && !state.collapsed;
        state.movable = Panel()->IsMovable();
        state.sizeable = Panel()->IsFloated();
        state.disabled = state.disabled || !Panel()->IsEnabled();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (Panel()->IsCollapsible())
            names.prepend(toggleAction());
        if (!Panel()->_Impl()->context_menu_hidden)
            names.append(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (!actionNames().contains(name))
            return;
        if (name == toggleAction())
            Panel()->_Impl()->OnTitleDoubleClick();
        else if (name == showMenuAction())
            Panel()->_Impl()->ShowMenuByKeyboard();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    DockWidget* Panel() const { return static_cast<DockWidget*>(widget()); }
};

class AccessibleTitle : public QAccessibleWidget
{
public:
    explicit AccessibleTitle(DockTitle* title) : QAccessibleWidget(title, QAccessible::TitleBar) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name && widget()->accessibleName().isEmpty())
            return static_cast<DockTitle*>(widget())->GetTitle();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* MakeInterface(const QString& name, QObject* object)
{
    if (name == QLatin1String("ovk::DockWidget"))
        return new AccessiblePanel(static_cast<DockWidget*>(object));
    if (name == QLatin1String("ovk::DockTitle"))
        return new AccessibleTitle(static_cast<DockTitle*>(object));
    if (name == QLatin1String("ovk::DockToolboxSiteHandle"))
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Splitter);
    return nullptr;
}

} // namespace

void InstallDockAccessibility()
{
    static const bool s_installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(s_installed)
}

void AnnounceDockName(QWidget& panel)
{
    QAccessibleEvent event(&panel, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void AnnounceDockFolding(QWidget& panel)
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(&panel, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace ovk
