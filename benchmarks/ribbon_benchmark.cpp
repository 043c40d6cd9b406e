// The ribbon beside its floors: as many plain QToolButtons in grids on the pages of a QTabWidget,
// once with all pages built at the start and once with each page built when it is first shown. All
// three show the same actions in a window of the same size.
//
// The goals, for 10 pages of 8 groups of 12 actions: construct, show and first paint no slower than
// the floor that builds all pages; a first visit of a page at most twice, and another visit no
// slower than the floor; a step of a resize that reduces groups at most 1.5 times the floor; at
// most half as much memory again.
//
// Each round measures the three in turn; the table gives medians. Times are those of the thread's
// processor where the system tells them, so that other programs disturb little.
//
// Runs without a display: QT_QPA_PLATFORM=offscreen. Options: --rounds N, --no-sizes,
// --ribbon-style (all three under the style of the ribbon instead of Qt's own).

#include <qtitan/ribbon.h>
#include <qtitan/style.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QMainWindow>
#include <QPixmapCache>
#include <QStyleFactory>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#if defined(__GLIBC__)
#include <malloc.h>
#endif
#if defined(__linux__)
#include <ctime>
#endif

namespace {

struct Scale
{
    int pages = 10;
    int groups = 8;
    int actions = 12;
    int Total() const { return pages * groups * actions; }
};

/// What one subject took. Microseconds, and bytes.
struct Figures
{
    double start = 0;       ///< construct, show, first paint
    double first_visit = 0; ///< of a page, the first one left out
    double revisit = 0;     ///< of a page
    double resize = 0;      ///< a step
    double memory = 0;      ///< after all pages were visited
    double memory_start = 0;
};

double Now()
{
#if defined(__linux__)
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
#else
    static QElapsedTimer timer;
    if (!timer.isValid())
        timer.start();
    return double(timer.nsecsElapsed()) / 1e3;
#endif
}

double HeapInUse()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
#else
    return 0;
#endif
}

/// Layout, show events and painting: everything that a step of the user causes.
void Settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// The style that most buttons of a profile have: large ones at the beginning of a group, then
/// columns of small ones.
Qt::ToolButtonStyle StyleOf(int index)
{
    if (index < 3)
        return Qt::ToolButtonTextUnderIcon;
    return index < 9 ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly;
}

std::vector<std::unique_ptr<QAction>> MakeActions(int count)
{
    std::vector<std::unique_ptr<QAction>> actions;
    for (int i = 0; i < count; ++i) {
        QPixmap pixmap(32, 32);
        pixmap.fill(QColor::fromHsv(i % 360, 160, 200));
        auto action = std::make_unique<QAction>(QIcon(pixmap), QStringLiteral("Command %1").arg(i));
        action->setToolTip(QStringLiteral("What command %1 does").arg(i));
        actions.push_back(std::move(action));
    }
    return actions;
}

using Actions = std::vector<std::unique_ptr<QAction>>;

/// One window under test.
class Subject
{
public:
    virtual ~Subject() = default;
    virtual void ShowPage(int index) = 0;
    virtual QMainWindow& Window() = 0;
};

class RibbonSubject final : public Subject
{
public:
    RibbonSubject(const Scale& scale, const Actions& actions)
    {
        std::size_t next = 0;
        for (int p = 0; p < scale.pages; ++p) {
            Qtitan::RibbonPage* page =
                m_window.ribbonBar()->addPage(QStringLiteral("Page %1").arg(p));
            for (int g = 0; g < scale.groups; ++g) {
                Qtitan::RibbonGroup* group = page->addGroup(QStringLiteral("Group %1").arg(g));
                for (int a = 0; a < scale.actions; ++a)
                    group->addAction(actions[next++].get(), StyleOf(a));
            }
        }
        m_window.setCentralWidget(new QWidget);
    }
    void ShowPage(int index) override { m_window.ribbonBar()->setCurrentPage(index); }
    QMainWindow& Window() override { return m_window; }

private:
    Qtitan::RibbonMainWindow m_window;
};

class TabsSubject final : public Subject
{
public:
    TabsSubject(const Scale& scale, const Actions& actions, bool lazy)
        : m_scale(scale), m_actions(actions)
    {
        m_tabs = new QTabWidget;
        for (int p = 0; p < scale.pages; ++p) {
            m_tabs->addTab(new QWidget, QStringLiteral("Page %1").arg(p));
            if (!lazy || p == 0)
                Build(p);
        }
        m_window.setMenuWidget(m_tabs);
        m_window.setCentralWidget(new QWidget);
    }
    void ShowPage(int index) override
    {
        if (!m_tabs->widget(index)->layout())
            Build(index);
        m_tabs->setCurrentIndex(index);
    }
    QMainWindow& Window() override { return m_window; }

private:
    void Build(int index)
    {
        QWidget* page = m_tabs->widget(index);
        auto* grid = new QGridLayout(page);
        grid->setSpacing(1);
        const int count = m_scale.groups * m_scale.actions;
        for (int i = 0; i < count; ++i) {
            auto* button = new QToolButton(page);
            button->setAutoRaise(true);
            button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
            button->setDefaultAction(m_actions[static_cast<std::size_t>(index * count + i)].get());
            // Shrinks with the window, as a row of a ribbon has to.
            button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
            grid->addWidget(button, i % 3, i / 3);
        }
    }

    Scale m_scale;
    const Actions& m_actions;
    QMainWindow m_window;
    QTabWidget* m_tabs;
};

using Maker = std::function<std::unique_ptr<Subject>()>;

Figures Measure(const Scale& scale, const Maker& make)
{
    Figures figures;
    QPixmapCache::clear();
    const double heap = HeapInUse();
    double begin = Now();
    std::unique_ptr<Subject> subject = make();
    subject->Window().resize(1600, 500);
    subject->Window().show();
    Settle();
    figures.start = Now() - begin;
    figures.memory_start = HeapInUse() - heap;

    begin = Now();
    for (int page = 1; page < scale.pages; ++page) {
        subject->ShowPage(page);
        Settle();
    }
    figures.first_visit = (Now() - begin) / (scale.pages - 1);
    figures.memory = HeapInUse() - heap;

    begin = Now();
    for (int page = 0; page < scale.pages; ++page) {
        subject->ShowPage(page);
        Settle();
    }
    figures.revisit = (Now() - begin) / scale.pages;

    // The first way down computes what the ways back and down again only look up.
    begin = Now();
    int steps = 0;
    for (int width = 1600; width >= 700; width -= 20, ++steps) {
        subject->Window().resize(width, 500);
        Settle();
    }
    for (int width = 700; width <= 1600; width += 20, ++steps) {
        subject->Window().resize(width, 500);
        Settle();
    }
    figures.resize = (Now() - begin) / steps;
    return figures;
}

Figures Median(const std::vector<Figures>& all)
{
    Figures result;
    for (double Figures::*member : {&Figures::start, &Figures::first_visit, &Figures::revisit,
                                    &Figures::resize, &Figures::memory, &Figures::memory_start}) {
        std::vector<double> values;
        for (const Figures& figures : all)
            values.push_back(figures.*member);
        std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2),
                         values.end());
        result.*member = values[values.size() / 2];
    }
    return result;
}

struct Comparison
{
    Figures ribbon;
    Figures all;  ///< the floor that builds all pages at the start
    Figures lazy; ///< the floor that builds a page when it is first shown
};

Comparison Compare(const Scale& scale, int rounds)
{
    const Actions actions = MakeActions(scale.Total());
    std::vector<Figures> ribbon;
    std::vector<Figures> all;
    std::vector<Figures> lazy;
    for (int round = 0; round < rounds + 1; ++round) {
        const Figures r =
            Measure(scale, [&] { return std::make_unique<RibbonSubject>(scale, actions); });
        const Figures a =
            Measure(scale, [&] { return std::make_unique<TabsSubject>(scale, actions, false); });
        const Figures l =
            Measure(scale, [&] { return std::make_unique<TabsSubject>(scale, actions, true); });
        // The first round warms up fonts, caches and the heap.
        if (round == 0)
            continue;
        ribbon.push_back(r);
        all.push_back(a);
        lazy.push_back(l);
    }
    return {Median(ribbon), Median(all), Median(lazy)};
}

int g_missed = 0;

void Row(const char* what, double ribbon, const char* floor_name, double floor, double goal,
         const char* unit, double divisor)
{
    const double ratio = floor > 0 ? ribbon / floor : 0;
    const bool met = goal <= 0 || ratio <= goal;
    std::printf("%-34s %9.3f %-3s %9.3f %-3s %-6s %6.2f ", what, ribbon / divisor, unit,
                floor / divisor, unit, floor_name, ratio);
    if (goal > 0)
        std::printf("<= %.2f %s\n", goal, met ? "met" : "MISSED");
    else
        std::printf("\n");
    g_missed += met ? 0 : 1;
}

void PrintTable(const Comparison& c)
{
    std::printf("%-34s %13s %13s %-6s %6s %s\n", "", "ribbon", "floor", "built", "ratio", "goal");
    Row("construct, show, first paint", c.ribbon.start, "all", c.all.start, 1.0, "ms", 1e3);
    Row("construct, show, first paint", c.ribbon.start, "lazily", c.lazy.start, 0, "ms", 1e3);
    Row("first visit of a page", c.ribbon.first_visit, "lazily", c.lazy.first_visit, 2.0, "ms",
        1e3);
    Row("first visit of a page", c.ribbon.first_visit, "all", c.all.first_visit, 0, "ms", 1e3);
    Row("another visit of a page", c.ribbon.revisit, "all", c.all.revisit, 1.0, "ms", 1e3);
    Row("step of a resize, 1600-700-1600", c.ribbon.resize, "all", c.all.resize, 1.5, "ms", 1e3);
    Row("memory, all pages visited", c.ribbon.memory, "all", c.all.memory, 1.5, "kB", 1024);
    Row("memory after the first paint", c.ribbon.memory_start, "all", c.all.memory_start, 1.5, "kB",
        1024);
}

void PrintGrowth(const char* what, double Figures::*member, const std::vector<Comparison>& sizes)
{
    std::printf("%-34s", what);
    for (const Comparison& c : sizes)
        std::printf(" %9.3f", c.ribbon.*member / 1e3);
    for (std::size_t i = 1; i < sizes.size(); ++i)
        std::printf("   n^%.2f", std::log(sizes[i].ribbon.*member / sizes[i - 1].ribbon.*member) /
                                     std::log(4.0));
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The platform without a screen tells of what it cannot do.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QApplication application(argc, argv);
    int rounds = 15;
    bool sizes = true;
    bool ribbon_style = false;
    for (int i = 1; i < argc; ++i) {
        const QByteArray argument(argv[i]);
        if (argument == "--rounds" && i + 1 < argc)
            rounds = std::max(1, std::atoi(argv[++i]));
        else if (argument == "--no-sizes")
            sizes = false;
        else if (argument == "--ribbon-style")
            ribbon_style = true;
    }
    // Qt's own style for all: the floor is plain Qt, and the ribbon paints itself.
    if (ribbon_style)
        QApplication::setStyle(new Qtitan::RibbonStyle);
    else
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));

    const Scale scale;
    std::printf("%d pages, %d groups, %d actions, medians of %d rounds\n\n", scale.pages,
                scale.groups, scale.actions, rounds);
    PrintTable(Compare(scale, rounds));

    if (sizes) {
        std::printf("\nGrowth with the number of actions (ms)\n%-34s %9s %9s %9s\n", "", "240",
                    "960", "3840");
        std::vector<Comparison> all;
        for (const Scale& s : {Scale{5, 4, 12}, Scale{10, 8, 12}, Scale{20, 16, 12}})
            all.push_back(Compare(s, std::max(3, rounds / 3)));
        PrintGrowth("construct, show, first paint", &Figures::start, all);
        PrintGrowth("first visit of a page", &Figures::first_visit, all);
        PrintGrowth("another visit of a page", &Figures::revisit, all);
        PrintGrowth("step of a resize", &Figures::resize, all);
    }
    return g_missed > 0 ? 1 : 0;
}
