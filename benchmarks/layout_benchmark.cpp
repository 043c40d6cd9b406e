// Putting a layout on screen, beside its floor: the same tool buttons, built in plain widgets. The
// goals: linear in the number of buttons, a switch back to a layout that was built before costs a
// small part of building it, and a change of one spot does not grow with the layout.
//
// Runs without a display: QT_QPA_PLATFORM=offscreen.

#include "ribbon_layout.h"

#include <benchmark/benchmark.h>

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/commands/updatable_context.h>
#include <ovk/core/application.h>
#include <ovk/core/root_controller.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/ui_state/features/commands_factory.h>
#include <ovk/ui_state/features/ui_feature_products.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_ribbon.h>

#include <QApplication>
#include <QBoxLayout>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QPixmap>
#include <QTabWidget>
#include <QToolButton>

#include <memory>
#include <vector>

namespace {

constexpr int buttons_a_group = 10;
constexpr int groups_a_page = 5;

QString Id(int index)
{
    return QStringLiteral("Bench.%1").arg(index);
}

class IdleCommand : public ovk::UiCommand
{
public:
    IdleCommand(const QString& id, const QIcon& icon) : UiCommand(id)
    {
        SetStrings(QStringLiteral("Title of ") + id, id, id, false, false, false);
        setIcon(icon);
    }

protected:
    void _DoExecute() override {}
    void _DoUpdateUi(const ovk::UpdatableContext&) override {}
};

class IdleContext : public ovk::UpdatableContext
{
public:
    void Refresh() override {}
    quint64 GetPartsOnActiveDataSet() const override { return 1; }
    quint64 GetSlicesOnActiveDataSet() const override { return 1; }
    quint64 GetSelectedPartsOnActiveDataSet() const override { return 1; }
    quint64 GetSelectedSlicesOnActiveDataSet() const override { return 1; }
    quint64 GetPartsOnModelerSet() const override { return 1; }
    quint64 GetSlicesOnModelerSet() const override { return 1; }
    quint64 GetSelectedPartsOnModelerSet() const override { return 1; }
    quint64 GetSelectedSlicesOnModelerSet() const override { return 1; }
};

class Factory : public ovk::ICommandsFactory
{
public:
    explicit Factory(int count)
    {
        QPixmap pixmap(32, 32);
        pixmap.fill(Qt::darkCyan);
        const QIcon icon(pixmap);
        for (int i = 0; i < count; ++i) {
            m_owned.push_back(std::make_unique<IdleCommand>(Id(i), icon));
            m_commands.insert(Id(i), m_owned.back().get());
        }
    }
    ovk::UiCommand* GetCommand(const QString& id, int) override
    {
        return m_commands.value(id, nullptr);
    }
    void CreateCommands(const QSet<QString>&) override {}
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    std::vector<std::unique_ptr<IdleCommand>> m_owned;
    QHash<QString, ovk::UiCommand*> m_commands;
};

/// One product with the layouts "One" and "Two", each of which offers all commands.
QJsonObject Catalogue(int count)
{
    QJsonArray ids;
    for (int i = 0; i < count; ++i)
        ids.append(Id(i));
    QJsonArray layouts;
    for (const char* name : {"One", "Two"})
        layouts.append(QJsonObject{{"id", name}, {"command_ids", ids}});
    return {{"product", QJsonArray{QJsonObject{{"id", "Bench"}, {"layout", layouts}}}}};
}

QJsonObject LayoutJson(const QString& name, int count)
{
    return bench::LayoutJson(name, {count, groups_a_page, buttons_a_group, 4}, Id);
}

class BenchApplication : public ovk::Application
{
};

/// A host with a window on screen, and layouts of as many buttons as asked for.
class Host
{
public:
    explicit Host(int count) : m_controller(new ovk::UiController), m_factory(count)
    {
        new ovk::UiProfileController; // the root controller's
        m_features = std::make_unique<ovk::UiFeaturesController>();
        m_features->GetProducts()->FromJson(Catalogue(count));
        m_features->LoadDefinitions(QStringLiteral("Bench"));
        m_features->AddSubFactory(&m_factory);
        m_controller->SetUpdatableContext(std::make_unique<IdleContext>());
        m_window = std::make_unique<ovk::RibbonWindow>();
        m_window->resize(1600, 900);
        m_window->show();
        m_profile = std::make_unique<ovk::UiProfile>();
        m_profile->FromJson(
            {{"layouts", QJsonArray{LayoutJson("One", count), LayoutJson("Two", count)}}});
        Settle();
    }
    ~Host()
    {
        m_controller->ResetProfile(nullptr);
        m_window.reset();
        m_features->RemoveSubFactory(&m_factory);
        m_features.reset();
        delete ovk::RootController::GetInstance();
    }

    /// Puts a copy of the profile in place that was never on screen.
    void Refresh() { m_controller->ResetProfile(new ovk::UiProfile(*m_profile)); }
    ovk::UiLayout* Layout(const char* name) const
    {
        return m_controller->GetProfile()->GetLayout(QString::fromLatin1(name));
    }
    ovk::UiController& Controller() const { return *m_controller; }

    /// What the event loop does before it waits for the user.
    static void Settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

private:
    BenchApplication m_application;
    ovk::UiController* m_controller; // the root controller's
    Factory m_factory;
    std::unique_ptr<ovk::UiFeaturesController> m_features;
    std::unique_ptr<ovk::UiProfile> m_profile;
    std::unique_ptr<ovk::RibbonWindow> m_window;
};

/// The same buttons in a tab widget, with a plain layout to each group.
std::unique_ptr<QWidget> PlainButtons(const std::vector<std::unique_ptr<QAction>>& actions)
{
    auto tabs = std::make_unique<QTabWidget>();
    QHBoxLayout* page = nullptr;
    QHBoxLayout* group = nullptr;
    for (size_t i = 0; i < actions.size(); ++i) {
        if (i % (buttons_a_group * groups_a_page) == 0) {
            auto* page_widget = new QWidget;
            page = new QHBoxLayout(page_widget);
            tabs->addTab(page_widget, QStringLiteral("Page"));
        }
        if (i % buttons_a_group == 0) {
            auto* group_widget = new QWidget;
            group = new QHBoxLayout(group_widget);
            page->addWidget(group_widget);
        }
        auto* button = new QToolButton;
        button->setAutoRaise(true);
        button->setToolButtonStyle(static_cast<Qt::ToolButtonStyle>(i % 4));
        button->setDefaultAction(actions[i].get());
        group->addWidget(button);
    }
    return tabs;
}

void PlainButtonsFloor(benchmark::State& state)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::darkCyan);
    std::vector<std::unique_ptr<QAction>> actions;
    for (int i = 0; i < state.range(0); ++i) {
        actions.push_back(
            std::make_unique<QAction>(QIcon(pixmap), QStringLiteral("Title of ") + Id(i)));
    }
    for (auto _ : state) {
        const std::unique_ptr<QWidget> tabs = PlainButtons(actions);
        tabs->resize(1600, 120);
        tabs->show();
        Host::Settle();
        state.PauseTiming();
        tabs->hide();
        Host::Settle();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

/// A layout comes on screen for the first time.
void FirstActivation(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        host.Controller().SetActiveLayout(nullptr);
        host.Refresh();
        Host::Settle();
        state.ResumeTiming();
        host.Controller().SetActiveLayout(host.Layout("One"));
        Host::Settle();
    }
    state.SetComplexityN(state.range(0));
}

/// From one layout to another and back, both of which were on screen before.
void Switch(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    host.Refresh();
    for (const char* name : {"One", "Two"}) {
        host.Controller().SetActiveLayout(host.Layout(name));
        Host::Settle();
    }
    bool first = true;
    for (auto _ : state) {
        host.Controller().SetActiveLayout(host.Layout(first ? "One" : "Two"));
        Host::Settle();
        first = !first;
    }
    state.SetComplexityN(state.range(0));
}

/// The user changes the style of one spot.
void ChangeOfOneSpot(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    host.Refresh();
    ovk::UiLayout* layout = host.Layout("One");
    host.Controller().SetActiveLayout(layout);
    Host::Settle();
    auto* ribbon =
        dynamic_cast<ovk::UiStateRibbon*>(layout->GetState(ovk::UiStateRibbon::GetSuiteName()));
    auto* group = static_cast<ovk::UiStateRibbonGroup*>(ribbon->GetPage(0)->GetItem(0));
    auto* spot = static_cast<ovk::UiSpotCommand*>(group->GetSpot(0));
    int style = 0;
    for (auto _ : state) {
        spot->SetStyle(static_cast<Qt::ToolButtonStyle>(++style % 4));
        Host::Settle();
    }
    state.SetComplexityN(state.range(0));
}

/// Everything is looked up again, and nothing has changed.
void Validation(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    host.Refresh();
    host.Controller().SetActiveLayout(host.Layout("One"));
    for (auto _ : state) {
        host.Controller().InvalidateLayouts();
        host.Controller().ValidateActiveLayout();
        Host::Settle();
    }
    state.SetComplexityN(state.range(0));
}

void Sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(100)->Arg(500)->Arg(2000)->Unit(benchmark::kMillisecond)->Complexity();
}

BENCHMARK(PlainButtonsFloor)->Apply(Sizes);
BENCHMARK(FirstActivation)->Apply(Sizes);
BENCHMARK(Switch)->Apply(Sizes);
BENCHMARK(ChangeOfOneSpot)->Apply(Sizes);
BENCHMARK(Validation)->Apply(Sizes);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
