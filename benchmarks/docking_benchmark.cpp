// The docking system beside others, in one run: QDockWidget in QMainWindow, the Advanced Docking
// System where it is installed, and the floor, plain splitters with tab widgets.
//
// Sixty contents, each a plain widget with a box layout of five labels and five spin boxes; half
// of them in groups of tabs, six floating:
//
// - create: build and show it all. Goal: at most 1.0 of QDockWidget
// - rebuild: from one stored arrangement to another. At most 0.9 of QMainWindow::restoreState and
//   0.15 of the Advanced Docking System
// - capture: into the tree and on to JSON. Under 0.2 ms. Then written as a text; the peers know
//   only the bytes of the whole
// - resize: one step of the way from 1,600 x 1,000 to 900 x 600. At most 0.95 of the better peer
// - drag: one step of a panel over the window, ours alone
// - memory: what all of it takes. At most 1.05 of QDockWidget
//
// All contenders take turns in each round, so that what else the machine does meets all of them;
// the figures are medians over the rounds, of the time of the processor. Then the same work of ours
// at 15, 60, 240 and 400 contents, with the exponents of growth: at most 1.1.
//
// Runs without a display: QT_QPA_PLATFORM=offscreen. Options: --rounds=N, --only=SUBJECT.

#include "docking_contenders.h"

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <map>
#include <vector>

namespace {

using docking_benchmark::Contender;
using docking_benchmark::Kind;
using docking_benchmark::Settle;

constexpr int c_contents = 60;
const QSize c_large(1600, 1000);
const QSize c_small(900, 600);
const QSize c_growth_large(3800, 3700);
const QSize c_growth_small(3500, 3450);
constexpr int c_step = 20;

struct Subject
{
    const char* name;
    const char* unit;
};

constexpr Subject c_subjects[] = {{"create", "ms"},  {"rebuild", "ms"}, {"capture", "ms"},
                                  {"write", "ms"},   {"resize", "ms"},  {"drag", "ms"},
                                  {"memory", "MiB"}, {"visible", ""},   {"rebuilt", ""}};

struct Goal
{
    const char* subject;
    const char* beside; ///< Null for an absolute figure, "better" for the better of the peers.
    double most;
};

constexpr Goal c_goals[] = {
    {"create", "QDockWidget", 1.0}, {"rebuild", "QDockWidget", 0.9},
    {"rebuild", "ADS", 0.15},       {"capture", nullptr, 0.2},
    {"resize", "better", 0.95},     {"memory", "QDockWidget", 1.05},
};

using Samples = std::vector<double>;

double Quantile(Samples samples, double q)
{
    if (samples.empty())
        return std::nan("");
    std::sort(samples.begin(), samples.end());
    return samples[static_cast<size_t>(std::lround(q * double(samples.size() - 1)))];
}

double Median(const Samples& samples)
{
    return Quantile(samples, 0.5);
}

double HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / (1024.0 * 1024.0);
}

/// Counts the time of the processor: none of this waits, and what else the machine does is not
/// counted.
class Clock
{
public:
    double Milliseconds() const
    {
        return double(std::clock() - m_start) * 1000.0 / double(CLOCKS_PER_SEC);
    }

private:
    std::clock_t m_start = std::clock();
};

/// All figures of one contender in one round.
class Round
{
public:
    Round(Kind kind, int contents, const QSize& large, const QSize& small, const QByteArray& only)
        : m_kind(kind), m_contents(contents), m_large(large), m_small(small), m_only(only)
    {
    }

    std::map<QByteArray, double> Run()
    {
        const double before = HeapInUse();
        const Clock clock;
        std::unique_ptr<Contender> contender = docking_benchmark::Create(m_kind, m_contents);
        contender->Build();
        contender->Window().resize(m_large);
        contender->Show();
        Settle();
        Note("create", clock.Milliseconds());
        Note("memory", HeapInUse() - before);
        Note("visible", docking_benchmark::CountVisible());
        if (Wanted("resize"))
            Resize(*contender);
        if (Wanted("drag"))
            Drag(*contender);
        contender.reset();
        Settle();
        if (Wanted("rebuild") || Wanted("capture") || Wanted("write"))
            Restore();
        return m_figures;
    }

private:
    bool Wanted(const char* subject) const
    {
        return m_only.isEmpty() || m_only == subject || qstrcmp(subject, "visible") == 0;
    }
    void Note(const char* subject, double value)
    {
        if (Wanted(subject))
            m_figures[subject] = value;
    }

    void Resize(Contender& contender)
    {
        QSize size = m_large;
        contender.Window().resize(size);
        Settle();
        int steps = 0;
        const Clock clock;
        for (const int sign : {-1, 1}) {
            while (sign < 0 ? size != m_small : size != m_large) {
                const auto step = [sign](int from, int to) {
                    return sign < 0 ? std::max(from - c_step, to) : std::min(from + c_step, to);
                };
                const QSize& end = sign < 0 ? m_small : m_large;
                size = QSize(step(size.width(), end.width()), step(size.height(), end.height()));
                contender.Window().resize(size);
                Settle();
                ++steps;
            }
        }
        Note("resize", clock.Milliseconds() / steps);
    }

    void Drag(Contender& contender)
    {
        if (!contender.BeginDrag())
            return;
        constexpr int steps = 60;
        const Clock clock;
        for (int i = 0; i < steps; ++i) {
            const double t = double(i) / steps;
            contender.DragTo(QPoint(int(t * m_large.width()), int((1.0 - t) * m_large.height())));
            Settle();
        }
        Note("drag", clock.Milliseconds() / steps);
        contender.EndDrag();
        Settle();
    }

    void Restore()
    {
        const std::unique_ptr<Contender> contender =
            docking_benchmark::CreateRestorable(m_kind, m_contents);
        if (!contender)
            return;
        contender->Build();
        contender->Window().resize(m_large);
        contender->Show();
        Settle();
        contender->Capture();
        const int first = contender->Write();
        contender->Rearrange();
        Settle();
        contender->Capture();
        const int second = contender->Write();
        contender->Restore(first);
        Settle();
        if (Wanted("rebuild")) {
            Samples samples;
            for (const int arrangement : {second, first, second, first}) {
                const Clock clock;
                contender->Restore(arrangement);
                Settle();
                samples.push_back(clock.Milliseconds());
            }
            Note("rebuild", Median(samples));
        }
        Note("rebuilt", docking_benchmark::CountVisible());
        if (Wanted("capture") || Wanted("write")) {
            Samples captured;
            Samples written;
            for (int i = 0; i < 20; ++i) {
                const Clock clock;
                contender->Capture();
                captured.push_back(clock.Milliseconds());
                contender->Write();
                written.push_back(clock.Milliseconds());
            }
            Note("capture", Median(captured));
            Note("write", Median(written));
        }
    }

    Kind m_kind;
    int m_contents;
    QSize m_large;
    QSize m_small;
    QByteArray m_only;
    std::map<QByteArray, double> m_figures;
};

using Table = std::map<QByteArray, std::map<QByteArray, Samples>>; // subject, contender

void Add(Table& table, const QByteArray& contender, const std::map<QByteArray, double>& figures)
{
    for (const auto& [subject, value] : figures)
        table[subject][contender].push_back(value);
}

double MedianOf(const Table& table, const QByteArray& subject, const QByteArray& contender)
{
    const auto row = table.find(subject);
    if (row == table.end())
        return std::nan("");
    const auto cell = row->second.find(contender);
    return cell == row->second.end() ? std::nan("") : Median(cell->second);
}

void PrintTable(const Table& table, const std::vector<Kind>& kinds, int rounds)
{
    std::printf("\n%d contents, medians of %d rounds in turn, in brackets the middle half\n",
                c_contents, rounds);
    std::printf("%-9s %-4s", "", "");
    for (const Kind kind : kinds)
        std::printf(" %26s", docking_benchmark::Name(kind));
    std::printf("\n");
    for (const Subject& subject : c_subjects) {
        const auto row = table.find(subject.name);
        if (row == table.end())
            continue;
        std::printf("%-9s %-4s", subject.name, subject.unit);
        for (const Kind kind : kinds) {
            const auto cell = row->second.find(docking_benchmark::Name(kind));
            if (cell == row->second.end()) {
                std::printf(" %26s", "-");
                continue;
            }
            std::printf(" %9.3f [%7.3f %7.3f]", Median(cell->second), Quantile(cell->second, 0.25),
                        Quantile(cell->second, 0.75));
        }
        std::printf("\n");
    }
}

void PrintGoals(const Table& table)
{
    std::printf("\nOurs beside goals\n");
    for (const Goal& goal : c_goals) {
        const double ours = MedianOf(table, goal.subject, "Ovk");
        double beside = 1.0;
        const char* name = goal.beside ? goal.beside : "ms";
        if (goal.beside && qstrcmp(goal.beside, "better") == 0) {
            const double a = MedianOf(table, goal.subject, "QDockWidget");
            const double b = MedianOf(table, goal.subject, "ADS");
            beside = std::isnan(b) ? a : std::min(a, b);
            name = "the better peer";
        } else if (goal.beside) {
            beside = MedianOf(table, goal.subject, goal.beside);
        }
        if (std::isnan(ours))
            continue;
        if (std::isnan(beside)) {
            std::printf("  %-8s / %-16s not measured\n", goal.subject, name);
            continue;
        }
        std::printf("  %-8s / %-16s %7.3f  at most %5.2f  %s\n", goal.subject, name, ours / beside,
                    goal.most, ours / beside <= goal.most ? "reached" : "MISSED");
    }
}

void PrintGrowth(const std::vector<int>& sizes, const std::map<int, Table>& tables)
{
    std::printf("\nGrowth of ours, a window from %d x %d to %d x %d\n%-9s %-4s",
                c_growth_large.width(), c_growth_large.height(), c_growth_small.width(),
                c_growth_small.height(), "", "");
    for (const int size : sizes)
        std::printf(" %9d", size);
    std::printf("   exponents\n");
    for (const Subject& subject : c_subjects) {
        if (std::isnan(MedianOf(tables.at(sizes.front()), subject.name, "Ovk")))
            continue;
        std::printf("%-9s %-4s", subject.name, subject.unit);
        std::vector<double> values;
        for (const int size : sizes) {
            values.push_back(MedianOf(tables.at(size), subject.name, "Ovk"));
            std::printf(" %9.3f", values.back());
        }
        std::printf("  ");
        for (size_t i = 1; i < values.size(); ++i) {
            std::printf(" %5.2f", std::log(values[i] / values[i - 1]) /
                                      std::log(double(sizes[i]) / sizes[i - 1]));
        }
        std::printf("\n");
    }
}

QByteArray Option(int argc, char** argv, const QByteArray& name)
{
    const QByteArray prefix = "--" + name + '=';
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument.startsWith(prefix))
            return argument.mid(prefix.size());
    }
    return {};
}

} // namespace

int main(int argc, char** argv)
{
    // The offscreen platform tells at every step what it cannot do.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
        if (!text.startsWith(QLatin1String("This plugin does not support")))
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const docking_benchmark::Host host;
    const QByteArray only = Option(argc, argv, "only");
    const int rounds = std::max(
        1, Option(argc, argv, "rounds").isEmpty() ? 11 : Option(argc, argv, "rounds").toInt());
    const bool growth = Option(argc, argv, "growth") != "no";
    const bool ours = Option(argc, argv, "alone") == "yes";

    std::vector<Kind> kinds{Kind::Ovk};
    if (!ours) {
        kinds.push_back(Kind::QtDocks);
        if (docking_benchmark::HasAdvancedDocking())
            kinds.push_back(Kind::AdvancedDocking);
        else
            std::puts("The Advanced Docking System is not installed "
                      "(libqt-advanced-docking-system-dev): skipped.");
        kinds.push_back(Kind::Splitters);
    }
    Table table;
    for (int round = -1; round < rounds; ++round) {
        for (const Kind kind : kinds) {
            const auto figures = Round(kind, c_contents, c_large, c_small, only).Run();
            if (round >= 0) // the first one warms up
                Add(table, docking_benchmark::Name(kind), figures);
        }
    }
    PrintTable(table, kinds, rounds);
    PrintGoals(table);
    if (!growth)
        return 0;

    const std::vector<int> sizes{15, 60, 240, 400};
    std::map<int, Table> tables;
    for (int round = -1; round < std::max(1, rounds / 2); ++round) {
        for (const int size : sizes) {
            const auto figures = Round(Kind::Ovk, size, c_growth_large, c_growth_small, only).Run();
            if (round >= 0)
                Add(tables[size], "Ovk", figures);
        }
    }
    PrintGrowth(sizes, tables);
    return 0;
}
