#include "docking_contenders.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/commands/updatable_context.h>
#include <ovk/commands/widget_factory.h>
#include <ovk/core/application.h>
#include <ovk/core/root_controller.h>
#include <ovk/docking.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/ui_state/features/ui_feature_products.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMainWindow>
#include <QMouseEvent>

namespace docking_benchmark {

namespace {

using namespace ovk;

constexpr DockLayout::Side c_sides[] = {DockLayout::Left, DockLayout::Right, DockLayout::Top,
                                        DockLayout::Bottom};

/// The content as a page: it shares the room of its side with the others.
class Page : public QWidget, public IDockPage
{
public:
    explicit Page(int number) { Fill(*this, number); }

    QString GetId() const override { return objectName(); }
    QWidget* GetWidget() const override { return const_cast<Page*>(this); }
    bool IsAvailable() const override { return true; }
    void OnActivated() override {}
    bool IsToggleable() const override { return true; }
    void OnVisibilityToggled(bool) override {}
    QString GetSizeGroupId() const override { return {}; }
    QSizePolicy GetSizePolicy() const override
    {
        return {QSizePolicy::Preferred, QSizePolicy::Expanding};
    }
};

/// The panels of an arrangement in somebody's manager.
class Panels
{
public:
    Panels(int contents, bool own_pages) : m_arrangement(Arrange(contents)), m_own_pages(own_pages)
    {
    }

    void Build(DockManager& manager)
    {
        mp_manager = &manager;
        for (const Group& group : m_arrangement.docked) {
            DockWidget* const panel = Make();
            for (const int number : group.contents)
                panel->AddPage(new Page(number)); // the panel's child
            Site(c_sides[int(group.side)])->AddWidget(panel);
            m_panels.push_back(panel);
        }
        for (const int number : m_arrangement.floating) {
            DockWidget* const panel = Make();
            panel->AddPage(new Page(number));
            panel->resize(FloatingPlace(number).size());
            panel->SetFloated(FloatingPlace(number).topLeft());
            m_floating.push_back(panel);
        }
    }
    void Rearrange()
    {
        for (size_t i = 0; i < m_panels.size(); i += 3) {
            const Group& group = m_arrangement.docked[i];
            m_panels[i]->SetFloated(QPoint(100, 100));
            Site(c_sides[(int(group.side) + 1) % 4])->AddWidget(m_panels[i]);
        }
    }
    DockWidget* Floating() const { return m_floating.empty() ? nullptr : m_floating.front(); }

private:
    DockWidget* Make()
    {
        DockWidget* const panel = mp_manager->CreateDockWidget();
        panel->SetName(QStringLiteral("panel%1").arg(m_count++));
        panel->SetOwnWidgets(m_own_pages);
        return panel;
    }
    DockToolboxSite* Site(DockLayout::Side side) const
    {
        return mp_manager->GetLayout()->GetSite(side)->GetToolboxSite();
    }

    DockManager* mp_manager = nullptr;
    Arrangement m_arrangement;
    std::vector<DockWidget*> m_panels;
    std::vector<DockWidget*> m_floating;
    bool m_own_pages;
    int m_count = 0;
};

/// The manager in a bare window.
class Bare : public Contender
{
public:
    explicit Bare(int contents) : m_panels(contents, true) {}

    void Build() override
    {
        mp_manager = new DockManager(&m_window);
        m_window.setCentralWidget(mp_manager);
        m_panels.Build(*mp_manager);
    }
    QWidget& Window() override { return m_window; }

    bool BeginDrag() override
    {
        DockWidget* const panel = m_panels.Floating();
        if (!panel)
            return false;
        for (QWidget* child :
             panel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (qstrcmp(child->metaObject()->className(), "ovk::DockWidgetTitle") == 0)
                mp_title = child;
        }
        if (mp_title)
            Send(QEvent::MouseButtonPress, mp_title->mapToGlobal(c_press), Qt::LeftButton);
        return mp_title;
    }
    void DragTo(const QPoint& pos) override
    {
        Send(QEvent::MouseMove, m_window.mapToGlobal(pos), Qt::LeftButton);
    }
    void EndDrag() override
    {
        Send(QEvent::MouseButtonRelease, QPoint(-5000, -5000), Qt::NoButton);
    }

private:
    static constexpr QPoint c_press{50, 6};

    void Send(QEvent::Type type, const QPoint& global, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, mp_title->mapFromGlobal(global), global,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(mp_title, &event);
    }

    QWidget* mp_title = nullptr;
    QMainWindow m_window;
    DockManager* mp_manager = nullptr;
    Panels m_panels;
};

/// The manager of a host's window, with the stored state of a layout.
class Stored : public Contender, public IWidgetFactory
{
public:
    explicit Stored(int contents) : m_panels(contents, false) {}
    ~Stored() override
    {
        for (const auto& tree : m_trees)
            tree->Deactivate(UiProfileItem::amOrdinary);
    }

    QWidget* CreatePageWidget(const QString& id) override { return m_window.findChild<Page*>(id); }
    QStringList GetPageIds() const override { return {}; }

    void Build() override
    {
        m_panels.Build(*m_window.GetDockManager());
        m_live.Activate(UiProfileItem::amRestore);
    }
    QWidget& Window() override { return m_window; }
    void Rearrange() override { m_panels.Rearrange(); }
    void Capture() override
    {
        mp_current->Store();
        m_captured = mp_current->ToJson();
    }
    int Write() override
    {
        m_texts.push_back(QJsonDocument(m_captured).toJson(QJsonDocument::Compact));
        return int(m_texts.size()) - 1;
    }
    void Restore(int number) override
    {
        // As at a change of the layout: both trees are there.
        mp_current->Deactivate(UiProfileItem::amOrdinary);
        mp_current = &Tree(number);
        mp_current->Activate(UiProfileItem::amOrdinary);
    }

private:
    UiStateDocking& Tree(int number)
    {
        while (int(m_trees.size()) <= number) {
            const QByteArray& text = m_texts[m_trees.size()];
            m_trees.push_back(std::make_unique<UiStateDocking>());
            m_trees.back()->FromJson(QJsonDocument::fromJson(text).object());
        }
        return *m_trees[size_t(number)];
    }

    RibbonWindow m_window;
    Panels m_panels;
    UiStateDocking m_live;
    UiStateDocking* mp_current = &m_live;
    QJsonObject m_captured;
    std::vector<QByteArray> m_texts;
    std::vector<std::unique_ptr<UiStateDocking>> m_trees;
};

class BenchApplication : public Application
{
};

} // namespace

struct Host::Parts
{
    BenchApplication application;
    std::unique_ptr<UiFeaturesController> features;
};

Host::Host() : mp_parts(std::make_unique<Parts>())
{
    new UiController;        // the root controller's
    new UiProfileController; // likewise
    mp_parts->features = std::make_unique<UiFeaturesController>();
    mp_parts->features->GetProducts()->FromJson(
        {{"product", QJsonArray{QJsonObject{{"id", "Bench"}}}}});
    mp_parts->features->LoadDefinitions(QStringLiteral("Bench"));
    DockSettings::Animated().SetData(false);
}

Host::~Host()
{
    mp_parts->features.reset();
    delete RootController::GetInstance();
}

std::unique_ptr<Contender> CreateOvk(int contents)
{
    return std::make_unique<Bare>(contents);
}

std::unique_ptr<Contender> CreateRestorableOvk(int contents)
{
    return std::make_unique<Stored>(contents);
}

} // namespace docking_benchmark
