// The customise dialog on a large profile: 8 layouts of 2,000 spots each, and a catalogue of 10,000
// commands. The goals: the dialog opens in under 150 ms, an edit is seen in the ribbon within a
// frame of 16 ms, and so is the answer to a keystroke in the search. Beside them the floor: a bare
// tree view with as many rows, and a bare proxy with as many texts.
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

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QPixmap>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr int c_layouts = 8;
constexpr int c_spots = 2000;
constexpr int c_groups_a_page = 5;

QString Id(int index)
{
    return QStringLiteral("Bench.%1").arg(index);
}

/// Titles as commands have them: a few words, all different.
QString Title(int index)
{
    static const char* const c_words[] = {"Add",    "Align", "Arrange", "Check", "Copy",   "Cut",
                                          "Export", "Fill",  "Merge",   "Move",  "Repair", "Slice"};
    constexpr int count = sizeof(c_words) / sizeof(c_words[0]);
    return QStringLiteral("%1 %2 %3")
        .arg(QLatin1String(c_words[index % count]), QLatin1String(c_words[index / count % count]))
        .arg(index);
}

class IdleCommand : public ovk::UiCommand
{
public:
    IdleCommand(int index, const QIcon& icon) : UiCommand(Id(index))
    {
        SetStrings(Title(index), Title(index), Title(index), false, false, false);
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
            m_owned.push_back(std::make_unique<IdleCommand>(i, icon));
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

QString LayoutName(int index)
{
    return QStringLiteral("Layout %1").arg(index);
}

QJsonObject Catalogue(int commands)
{
    QJsonArray ids;
    for (int i = 0; i < commands; ++i)
        ids.append(Id(i));
    QJsonArray layouts;
    for (int i = 0; i < c_layouts; ++i)
        layouts.append(QJsonObject{{"id", LayoutName(i)}, {"command_ids", ids}});
    return {{"product", QJsonArray{QJsonObject{{"id", "Bench"}, {"layout", layouts}}}}};
}

QJsonObject LayoutJson(const QString& name, int spots_a_group)
{
    return bench::LayoutJson(name, {c_spots, c_groups_a_page, spots_a_group, 3}, Id);
}

class BenchApplication : public ovk::Application
{
};

/// A host with a window on screen and the large profile in it.
class Host
{
public:
    Host(int commands, int spots_a_group) : m_controller(new ovk::UiController), m_factory(commands)
    {
        new ovk::UiProfileController; // the root controller's
        m_features = std::make_unique<ovk::UiFeaturesController>();
        m_features->GetProducts()->FromJson(Catalogue(commands));
        m_features->LoadDefinitions(QStringLiteral("Bench"));
        m_features->AddSubFactory(&m_factory);
        m_controller->SetUpdatableContext(std::make_unique<IdleContext>());
        m_window = std::make_unique<ovk::RibbonWindow>();
        m_window->resize(1600, 900);
        m_window->show();
        auto profile = std::make_unique<ovk::UiProfile>();
        QJsonArray layouts;
        for (int i = 0; i < c_layouts; ++i)
            layouts.append(LayoutJson(LayoutName(i), spots_a_group));
        profile->FromJson({{"layouts", layouts}});
        m_controller->ResetProfile(profile.release());
        m_controller->SetActiveLayout(m_controller->GetProfile()->GetLayout(LayoutName(0)));
        Settle();
    }
    ~Host()
    {
        CloseDialog();
        m_controller->ResetProfile(nullptr);
        m_window.reset();
        m_features->RemoveSubFactory(&m_factory);
        m_features.reset();
        delete ovk::RootController::GetInstance();
    }

    void Open()
    {
        ovk::RibbonWindow::OnCustomizeUI();
        Settle();
    }
    QDialog* Dialog() const
    {
        return m_window->findChild<QDialog*>(QStringLiteral("UiCustomizeDialog"));
    }
    template <class Widget> Widget* Find(const char* name) const
    {
        return Dialog()->findChild<Widget*>(QLatin1String(name));
    }
    void CancelDialog()
    {
        if (QDialog* dialog = Dialog())
            dialog->reject();
        Settle();
    }
    /// The dialog goes with the window and is made anew at the next opening.
    void CloseDialog()
    {
        CancelDialog();
        m_window->close();
        m_window->show();
        Settle();
    }

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
    std::unique_ptr<ovk::RibbonWindow> m_window;
};

/// The worst of the rounds, in milliseconds: a user notices the slowest one.
class Worst
{
public:
    void Start() { m_timer.start(); }
    void Stop() { m_worst = std::max(m_worst, static_cast<double>(m_timer.nsecsElapsed()) / 1e6); }
    double Get() const { return m_worst; }

private:
    QElapsedTimer m_timer;
    double m_worst = 0;
};

/// A bare tree view with as many rows, expanded and on screen.
void TreeFloor(benchmark::State& state)
{
    const auto spots_a_group = static_cast<int>(state.range(0));
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::darkCyan);
    QStandardItemModel model;
    for (int next = 0; next < c_spots;) {
        auto* page = new QStandardItem(QStringLiteral("Page"));
        model.appendRow(page);
        for (int g = 0; g < c_groups_a_page && next < c_spots; ++g) {
            auto* group = new QStandardItem(QStringLiteral("Group"));
            page->appendRow(group);
            for (int s = 0; s < spots_a_group && next < c_spots; ++s, ++next)
                group->appendRow(new QStandardItem(QIcon(pixmap), Title(next)));
        }
    }
    for (auto _ : state) {
        QTreeView view;
        view.setModel(&model);
        view.expandAll();
        view.resize(500, 550);
        view.show();
        Host::Settle();
    }
}

/// The dialog is made and shown for the first time.
void FirstOpening(benchmark::State& state)
{
    Host host(c_spots, static_cast<int>(state.range(0)));
    Worst worst;
    for (auto _ : state) {
        worst.Start();
        host.Open();
        worst.Stop();
        state.PauseTiming();
        host.CloseDialog();
        state.ResumeTiming();
    }
    state.counters["worst_ms"] = worst.Get();
}

/// The dialog is opened again.
void Opening(benchmark::State& state)
{
    Host host(c_spots, static_cast<int>(state.range(0)));
    host.Open();
    host.CancelDialog();
    Worst worst;
    for (auto _ : state) {
        worst.Start();
        host.Open();
        worst.Stop();
        state.PauseTiming();
        host.CancelDialog();
        state.ResumeTiming();
    }
    state.counters["worst_ms"] = worst.Get();
}

/// The user changes the style of a spot, which is seen in the ribbon.
void EditStyle(benchmark::State& state)
{
    Host host(c_spots, static_cast<int>(state.range(0)));
    host.Open();
    QAbstractItemModel* model = host.Find<QTreeView>("mp_view_ribbon")->model();
    const QModelIndex group = model->index(0, 0, model->index(0, 0));
    const QModelIndex spot = model->index(0, 1, group);
    int style = 0;
    Worst worst;
    for (auto _ : state) {
        worst.Start();
        model->setData(spot, ++style % 3);
        Host::Settle();
        worst.Stop();
    }
    state.counters["worst_ms"] = worst.Get();
}

/// The user adds a command to a group by the button, and deletes it again.
void AddAndDelete(benchmark::State& state)
{
    Host host(c_spots + 1, static_cast<int>(state.range(0)));
    host.Open();
    auto* view = host.Find<QTreeView>("mp_view_ribbon");
    auto* commands = host.Find<QTableView>("mp_view_commands");
    QAbstractItemModel* model = view->model();
    const QPersistentModelIndex group = model->index(0, 0, model->index(0, 0));
    Worst worst;
    for (auto _ : state) {
        view->setCurrentIndex(group);
        commands->selectRow(commands->model()->rowCount() - 1);
        Host::Settle();
        worst.Start();
        host.Find<QToolButton>("mp_btn_add_command")->click();
        Host::Settle();
        worst.Stop();
        view->setCurrentIndex(model->index(model->rowCount(group) - 1, 0, group));
        worst.Start();
        host.Find<QToolButton>("mp_ribbon_button_command_delete")->click();
        Host::Settle();
        worst.Stop();
    }
    state.counters["worst_ms"] = worst.Get();
}

/// What is typed into the search, a keystroke a round: narrowing, emptying, words in the middle.
QStringList Keystrokes()
{
    QStringList texts;
    for (const char* word : {"Move 12", "export", "1", "zz", "e"}) {
        const QString text = QLatin1String(word);
        for (int i = 1; i <= text.size(); ++i)
            texts.append(text.left(i));
        for (int i = text.size() - 1; i >= 0; --i)
            texts.append(text.left(i));
    }
    return texts;
}

/// A keystroke in the search over 10,000 commands.
void Search(benchmark::State& state)
{
    Host host(10000, 10);
    host.Open();
    auto* edit = host.Find<QLineEdit>("mp_ed_search_basic");
    const QStringList texts = Keystrokes();
    Worst worst;
    int next = 0;
    for (auto _ : state) {
        worst.Start();
        edit->setText(texts.at(next++ % texts.size()));
        Host::Settle();
        worst.Stop();
    }
    state.counters["worst_ms"] = worst.Get();
}

/// The same keystrokes for a bare proxy that is asked for its rows.
void SearchFloor(benchmark::State& state)
{
    QStandardItemModel model;
    for (int i = 0; i < 10000; ++i)
        model.appendRow(new QStandardItem(Title(i)));
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setSourceModel(&model);
    const QStringList texts = Keystrokes();
    int next = 0;
    for (auto _ : state) {
        proxy.setFilterFixedString(texts.at(next++ % texts.size()));
        benchmark::DoNotOptimize(proxy.rowCount());
    }
}

void Groups(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(10)->Arg(128)->Unit(benchmark::kMillisecond);
}

BENCHMARK(TreeFloor)->Apply(Groups);
BENCHMARK(FirstOpening)->Apply(Groups);
BENCHMARK(Opening)->Apply(Groups);
BENCHMARK(EditStyle)->Apply(Groups);
BENCHMARK(AddAndDelete)->Apply(Groups);
BENCHMARK(SearchFloor)->Unit(benchmark::kMillisecond);
BENCHMARK(Search)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the dialog saves is none of the user's.
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", data.path().toLocal8Bit());
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
