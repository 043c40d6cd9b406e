// Quick search over 10,000 commands, beside a bare QCompleter on a plain line edit over the very
// same model. The goals: the first focus fills and sorts in under 60 ms, a keystroke is answered in
// under 16 ms, better in 2 ms, and in at most 1.1 times what the bare completer takes.
//
//   QT_QPA_PLATFORM=offscreen quick_search_benchmark [rounds]
//
// Both edits take the same words in turn, key by key; a key counts until all that it posted is
// done, the popup painted. Ends with 1 when a goal of the first line of the table is missed.

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
#include <qtitan/ribbon.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QElapsedTimer>
#include <QFocusEvent>
#include <QHash>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <numeric>
#include <vector>

namespace {

constexpr int commands_count = 10000;
constexpr int default_rounds = 7;
constexpr double fill_goal_ms = 60.0;
constexpr double key_goal_ms = 16.0;

const char* const g_words[] = {"part", "Export", "(Ctrl", "mesh", "zzz"};

QString Id(int index)
{
    return QStringLiteral("Bench.%1").arg(index);
}

class IdleCommand : public ovk::UiCommand
{
public:
    explicit IdleCommand(int index) : UiCommand(Id(index))
    {
        static const char* const verbs[] = {"Export", "Import", "Repair", "Show",  "Hide",
                                            "Align",  "Move",   "Turn",   "Scale", "Measure"};
        static const char* const things[] = {"Part", "Mesh", "Layer", "Support", "Plate",
                                             "View", "Edge", "Hole",  "Shell",   "Section"};
        const QString title =
            QStringLiteral("%1 %2 %3")
                .arg(QLatin1String(verbs[index % 10]), QLatin1String(things[index / 10 % 10]))
                .arg((index * 7919) % commands_count);
        SetStrings(title, title, title, false, false, false);
        if (index % 50 == 0)
            setShortcut(QKeySequence(Qt::CTRL + Qt::Key_A + index / 50 % 26));
    }

protected:
    void _DoExecute() override {}
    void _DoUpdateUi(const ovk::UpdatableContext&) override { setEnabled(true); }
};

class Factory : public ovk::ICommandsFactory
{
public:
    ovk::UiCommand* GetCommand(const QString& id, int) override
    {
        return m_commands.value(id, nullptr);
    }
    void CreateCommands(const QSet<QString>&) override
    {
        for (int i = 0; i < commands_count; ++i) {
            m_owned.push_back(std::make_unique<IdleCommand>(i));
            m_commands.insert(Id(i), m_owned.back().get());
        }
        // The command whose presence switches quick search on.
        m_commands.insert(QStringLiteral("View.QuickSearch"), m_owned.front().get());
    }
    bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override { return false; }

private:
    std::vector<std::unique_ptr<IdleCommand>> m_owned;
    QHash<QString, ovk::UiCommand*> m_commands;
};

class BenchApplication : public ovk::Application
{
};

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

double Mean(const std::vector<double>& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

void Settle()
{
    // What is posted while the first round runs is done in the second.
    for (int round = 0; round < 2; ++round)
        QCoreApplication::processEvents();
}

/// Types the words into an edit; the time of each key in milliseconds.
std::vector<double> Type(QLineEdit& edit)
{
    std::vector<double> times;
    for (const char* word : g_words) {
        edit.clear();
        Settle();
        for (const char* c = word; *c; ++c) {
            QElapsedTimer timer;
            timer.start();
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(*c)));
            QApplication::sendEvent(&edit, &press);
            Settle();
            times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        if (edit.completer() && edit.completer()->popup())
            edit.completer()->popup()->hide();
    }
    return times;
}

double Focus(QLineEdit& edit)
{
    QElapsedTimer timer;
    timer.start();
    QFocusEvent in(QEvent::FocusIn, Qt::OtherFocusReason);
    QApplication::sendEvent(&edit, &in);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void Blur(QLineEdit& edit)
{
    QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(&edit, &out);
}

/// A completer over the model of quick search with the same settings, and nothing more.
std::unique_ptr<QLineEdit> BareEdit(QCompleter& completer, QWidget& parent)
{
    completer.setCaseSensitivity(Qt::CaseInsensitive);
    completer.setFilterMode(Qt::MatchContains);
    completer.setMaxVisibleItems(20);
    completer.setCompletionRole(Qt::DisplayRole);
    auto edit = std::make_unique<QLineEdit>(&parent);
    edit->setFixedWidth(200);
    edit->setCompleter(&completer);
    return edit;
}

int Run(int rounds)
{
    new ovk::UiProfileController; // the root controller's
    auto* const controller = new ovk::UiController;
    auto features = std::make_unique<ovk::UiFeaturesController>();
    auto* const product = new ovk::UiFeatureProduct(QStringLiteral("Product"));
    QStringList ids;
    for (int i = 0; i < commands_count; ++i)
        ids.append(Id(i));
    product->GetLayout(QStringLiteral("Layout"))->SetCommandIds(ids);
    features->GetProducts()->AppendChild(product);
    features->LoadDefinitions(QStringLiteral("Product"));
    Factory factory;
    features->AddSubFactory(&factory);

    int result = 0;
    {
        ovk::RibbonWindow window;
        window.show();
        controller->SetActiveLayout(
            controller->GetProfile()->GetOrCreateLayout(QStringLiteral("Layout")));
        Settle();
        QLineEdit* search = nullptr;
        for (QLineEdit* edit : window.ribbonBar()->quickAccessBar()->findChildren<QLineEdit*>()) {
            if (edit->accessibleName() == QLatin1String("QuickSearchWidget"))
                search = edit;
        }
        if (!search) {
            std::fprintf(stderr, "there is no quick search\n");
            return 1;
        }
        std::vector<double> fills;
        for (int i = 0; i < rounds; ++i) {
            fills.push_back(Focus(*search));
            if (i + 1 < rounds)
                Blur(*search);
        }
        QWidget panel;
        QCompleter completer(search->completer()->model());
        const std::unique_ptr<QLineEdit> bare = BareEdit(completer, panel);
        // The same with a list that is told that all its rows are of one height.
        QCompleter tuned_completer(search->completer()->model());
        const std::unique_ptr<QLineEdit> tuned = BareEdit(tuned_completer, panel);
        if (auto* list = qobject_cast<QListView*>(tuned_completer.popup()))
            list->setUniformItemSizes(true);
        panel.show();
        Focus(*bare);
        Focus(*tuned);
        Settle();
        const std::vector<QLineEdit*> edits{search, bare.get(), tuned.get()};
        std::vector<std::vector<double>> times(edits.size());
        for (QLineEdit* edit : edits)
            Type(*edit); // windows are made once
        for (size_t i = 0; i < static_cast<size_t>(rounds); ++i) {
            for (size_t k = 0; k < edits.size(); ++k) {
                const size_t which = (i + k) % edits.size();
                const std::vector<double> round = Type(*edits[which]);
                times[which].insert(times[which].end(), round.begin(), round.end());
            }
        }
        const std::vector<double>& own = times[0];
        const double fill = Median(fills);
        const auto slowest = [](const std::vector<double>& all) {
            return *std::max_element(all.begin(), all.end());
        };
        std::printf("%d commands, %d rounds\n", commands_count, rounds);
        std::printf("first focus, fill and sort   %8.2f ms  (first of all %.2f, goal %.0f)\n", fill,
                    fills.front(), fill_goal_ms);
        static const char* const names[] = {"keystroke", "  bare QCompleter",
                                            "  the same, rows of one height"};
        for (size_t k = 0; k < edits.size(); ++k)
            std::printf("%-29s%8.2f ms  (mean %.2f, slowest %.2f, ratio of the means %.2f)\n",
                        names[k], Median(times[k]), Mean(times[k]), slowest(times[k]),
                        Mean(own) / Mean(times[k]));
        result = fill < fill_goal_ms && Median(own) < key_goal_ms ? 0 : 1;
        controller->SetActiveLayout(nullptr);
    }
    features->RemoveSubFactory(&factory);
    features.reset();
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    BenchApplication frame;
    QApplication application(argc, argv);
    const int result = Run(argc > 1 ? std::max(1, std::atoi(argv[1])) : default_rounds);
    delete ovk::RootController::GetInstance();
    return result;
}
