// The update cycle beside its floor: a plain walk over the same actions that sets the enabled state
// they have already. The goals: at most 1.3 times the floor, no allocation per command, linear; and
// looking an identifier up takes no longer with many commands than with few.
//
// Runs without a display: QT_QPA_PLATFORM=offscreen.

#include <benchmark/benchmark.h>

#include <ovk/commands/ui_command.h>
#include <ovk/commands/ui_controller.h>
#include <ovk/commands/updatable_context.h>
#include <ovk/core/application.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/features/commands_factory.h>
#include <ovk/ui_state/features/ui_feature_commands.h>
#include <ovk/ui_state/features/ui_feature_products.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>

#include <QApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <cstdlib>
#include <memory>
#include <vector>

#if defined(__GLIBC__)
namespace {
std::size_t g_allocations = 0;
}
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size)
{
    ++g_allocations;
    return __libc_malloc(size);
}
#else
namespace {
std::size_t g_allocations = 0;
}
#endif

namespace {

class IdleCommand : public ovk::UiCommand
{
public:
    explicit IdleCommand(const QString& id) : UiCommand(id) {}

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
    ovk::UiCommand* GetCommand(const QString& id, int) override
    {
        return m_commands.value(id, nullptr);
    }
    void CreateCommands(const QSet<QString>& ids) override
    {
        for (const QString& id : ids) {
            m_owned.push_back(std::make_unique<IdleCommand>(id));
            m_commands.insert(id, m_owned.back().get());
        }
    }
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    std::vector<std::unique_ptr<IdleCommand>> m_owned;
    QHash<QString, ovk::UiCommand*> m_commands;
};

QString Id(int number)
{
    return QStringLiteral("Module.Family.Command%1").arg(number);
}

QStringList Ids(int count)
{
    QStringList ids;
    ids.reserve(count);
    for (int i = 0; i < count; ++i)
        ids.append(Id(i));
    return ids;
}

/// A host whose one layout offers so many commands.
class Host
{
public:
    explicit Host(int count) : m_controller(new ovk::UiController)
    {
        m_features = std::make_unique<ovk::UiFeaturesController>();
        auto* const product = new ovk::UiFeatureProduct(QStringLiteral("Product"));
        product->GetLayout(QStringLiteral("Layout"))->SetCommandIds(Ids(count));
        m_features->GetProducts()->AppendChild(product);
        m_features->LoadDefinitions(QStringLiteral("Product"));
        m_features->AddSubFactory(&m_factory);
        m_controller->SetUpdatableContext(std::make_unique<IdleContext>());
        m_controller->SetActiveLayout(
            m_controller->GetProfile()->GetOrCreateLayout(QStringLiteral("Layout")));
    }
    ~Host()
    {
        m_controller->SetActiveLayout(nullptr);
        m_features.reset();
        delete ovk::RootController::GetInstance();
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    ovk::UiController& Controller() { return *m_controller; }
    ovk::UiFeaturesController& Features() { return *m_features; }

    QList<ovk::UiCommand*> Commands()
    {
        QList<ovk::UiCommand*> commands;
        m_features->GetLayoutCommands(QStringLiteral("Layout"), commands);
        return commands;
    }

private:
    Factory m_factory;
    ovk::UiController* m_controller; // the RootController's
    std::unique_ptr<ovk::UiFeaturesController> m_features;
};

QJsonObject Catalogue(int count)
{
    QJsonArray commands;
    for (int i = 0; i < count; ++i) {
        commands.append(QJsonObject{{QStringLiteral("id"), Id(i)},
                                    {QStringLiteral("title"), QStringLiteral("Title")},
                                    {QStringLiteral("visual"), true}});
    }
    return QJsonObject{{QStringLiteral("command"), commands}};
}

void Floor(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    QList<QAction*> actions;
    const QList<ovk::UiCommand*> commands = host.Commands();
    for (ovk::UiCommand* const command : commands) {
        command->setEnabled(true);
        actions.append(command);
    }
    for (auto _ : state) {
        for (QAction* const action : qAsConst(actions))
            action->setEnabled(true);
        benchmark::ClobberMemory();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Floor)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);

void Cycle(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    host.Controller().UpdateUi();
    const std::size_t before = g_allocations;
    for (auto _ : state) {
        host.Controller().UpdateUi();
        benchmark::ClobberMemory();
    }
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(g_allocations - before),
                                                       benchmark::Counter::kAvgIterations);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(Cycle)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);

/// The first cycle after something changed, which looks every identifier up.
void CycleAfterChange(benchmark::State& state)
{
    Host host(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        host.Controller().InvalidateLayouts();
        host.Controller().UpdateUi();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(CycleAfterChange)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);

/// What a spot does to find its command.
void LookUpCommand(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    Host host(count);
    const QString layout = QStringLiteral("Layout");
    const QString id = Id(count - 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(host.Features().GetAvailableCommand(layout, id, 0));
}
BENCHMARK(LookUpCommand)->Arg(100)->Arg(1000)->Arg(10000);

/// What a factory does to find the texts of a command.
void LookUpDefinition(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    ovk::UiFeatureCommands commands;
    commands.FromJson(Catalogue(count));
    const QString id = Id(count - 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(commands.Find(id));
}
BENCHMARK(LookUpDefinition)->Arg(100)->Arg(1000)->Arg(10000);

void ReadDefinitions(benchmark::State& state)
{
    const QJsonObject json = Catalogue(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ovk::UiFeatureCommands commands;
        commands.FromJson(json);
        benchmark::DoNotOptimize(commands.GetCount());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ReadDefinitions)->Arg(100)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);

class BenchmarkApplication : public ovk::Application
{
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const BenchmarkApplication paths;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
