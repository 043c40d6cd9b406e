#pragma once

#include <ovk/docking.h>
#include <ovk/docking/dock_drag_controller_p.h>
#include <ovk/docking/dock_layout_p.h>
#include <ovk/docking/dock_manager_p.h>
#include <ovk/docking/dock_site_p.h>
#include <ovk/docking/dock_toolbox_site_handle_p.h>
#include <ovk/docking/dock_toolbox_site_p.h>
#include <ovk/docking/dock_widget_p.h>

#include <QCoreApplication>
#include <QWidget>
#include <QtTest/QtTest>

#include <memory>

namespace ovk_test {

/// A page of a host: everything about it can be set, and it counts what it is told.
class FakePage : public QWidget, public ovk::IDockPage
{
public:
    explicit FakePage(const QString& id, const QSize& min = QSize(60, 40))
    {
        setObjectName(id);
        setWindowTitle(id);
        setMinimumSize(min);
    }

    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<FakePage*>(this); }
    bool IsAvailable() const override { return available; }
    void OnActivated() override
    {
        ++activated;
        if (on_activated)
            on_activated();
    }
    bool IsToggleable() const override { return toggleable; }
    void OnVisibilityToggled(bool visible) override { toggled.append(visible); }
    QString GetSizeGroupId() const override { return group; }
    QSizePolicy GetSizePolicy() const override { return policy; }

    bool available = true;
    bool toggleable = true;
    QString group;
    QSizePolicy policy{QSizePolicy::Fixed, QSizePolicy::Fixed};
    int activated = 0;
    QList<bool> toggled;
    std::function<void()> on_activated;
};

/// A shown window with a manager in it, the animation off.
class DockFixture
{
public:
    explicit DockFixture(const QSize& size = QSize(800, 600), bool show = true)
    {
        ovk::DockSettings::Animated().SetData(false);
        manager = new ovk::DockManager(&window); // a child of the window
        window.resize(size);
        window.move(0, 0);
        manager->resize(size);
        central = new QWidget(manager); // a child of the manager
        manager->GetLayout()->SetCentralWidget(central);
        if (show) {
            window.show();
            manager->show();
            Settle();
        }
    }
    ~DockFixture()
    {
        delete manager;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ovk::DockSettings::Animated().SetData(true);
    }

    ovk::DockToolboxSite* Site(ovk::DockLayout::Side side) const
    {
        return manager->GetLayout()->GetSite(side)->GetToolboxSite();
    }
    ovk::DockToolboxSite* Left() const { return Site(ovk::DockLayout::Left); }
    ovk::DockToolboxSite* Right() const { return Site(ovk::DockLayout::Right); }
    ovk::DockToolboxSite* Top() const { return Site(ovk::DockLayout::Top); }
    ovk::DockToolboxSite* Bottom() const { return Site(ovk::DockLayout::Bottom); }

    /// A panel with one page whose panel is then at least `min` large, chrome included.
    ovk::DockWidget* Panel(const QString& name, const QSize& min = QSize(100, 80))
    {
        ovk::DockWidget* const panel = manager->CreateDockWidget();
        panel->SetName(name);
        auto* const page = new FakePage(name + QStringLiteral(".page")); // a child of the panel
        panel->AddPage(page);
        // Title and frame stand before they are measured.
        panel->_Impl()->ProcessUpdate();
        page->setMinimumSize(min - Chrome(*panel));
        panel->_Impl()->PostUpdate(ovk::DockWidget::Impl::UpdateSizes);
        panel->_Impl()->ProcessUpdate();
        return panel;
    }

    static FakePage* Page(const ovk::DockWidget& panel, int index = 0)
    {
        return dynamic_cast<FakePage*>(panel.GetPageAt(index, ovk::DockWidget::All));
    }

    static QSize Chrome(const ovk::DockWidget& panel)
    {
        const int frame = 2 * panel.frameWidth();
        const auto& title = panel._Impl()->title;
        return {frame, frame + (title ? title->sizeHint().height() : 0)};
    }

    /// Lets everything posted happen, deletions included.
    static void Settle()
    {
        for (int i = 0; i < 6; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    QString Inconsistency() const { return manager->_Impl()->CheckConsistency(); }

    /// The panels of a site in the order of its box, the spacer as "|".
    static QStringList Order(const ovk::DockToolboxSite& site)
    {
        QStringList names;
        for (int i = 0; i < site.count(); ++i) {
            QWidget* const item = site.itemAt(i)->widget();
            if (auto* const panel = qobject_cast<ovk::DockWidget*>(item))
                names.append(panel->GetName());
            else if (qobject_cast<ovk::DockToolboxSiteEstimator*>(item))
                names.append(QStringLiteral("?"));
            else
                names.append(QStringLiteral("|"));
        }
        return names;
    }

    QWidget window;
    ovk::DockManager* manager;
    QWidget* central;
};

} // namespace ovk_test
