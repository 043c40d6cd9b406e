#include "platform/qtitan/ribbon_button_p.h"
#include "platform/qtitan/ribbon_group_panel_p.h"
#include "platform/qtitan/ribbon_metrics_p.h"
#include "platform/qtitan/ribbon_page_p.h"
#include "platform/qtitan/ribbon_tab_bar_p.h"
#include "tests/qtitan/ribbon_test_window.h"

using namespace Qtitan;
using ribbon_test::Window;

namespace {

/// What was computed since the object was made.
struct Effort
{
    int layouts = RibbonPagePrivate::layouts();
    int reductions = RibbonPagePrivate::reductions();
    int steps = RibbonGroupPanel::computations();
    int placements = RibbonGroupPanel::placements();
    int widths = RibbonButton::measurements();
    int tabs = RibbonTabBar::measurements();
    int metrics = RibbonMetrics::computations();

    int Layouts() const { return RibbonPagePrivate::layouts() - layouts; }
    int Reductions() const { return RibbonPagePrivate::reductions() - reductions; }
    int Steps() const { return RibbonGroupPanel::computations() - steps; }
    int Placements() const { return RibbonGroupPanel::placements() - placements; }
    int Widths() const { return RibbonButton::measurements() - widths; }
    int Tabs() const { return RibbonTabBar::measurements() - tabs; }
    int Metrics() const { return RibbonMetrics::computations() - metrics; }
};

} // namespace

/// Sizes are computed once and kept: the counts are part of the behaviour.
class RibbonEffortTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hiddenPagesCostNothingAtTheStart()
    {
        {
            Window warm(1, 1);
        }
        const Effort effort;
        Window w(20, 4, QSize(4000, 400));
        QCOMPARE(effort.Layouts(), 1);
        QCOMPARE(effort.Placements(), 4);
        // Only the current page was measured: each button once, in the size that it has, and the
        // icons' widths that its reduction may need.
        QVERIFY2(effort.Widths() <= 4 * 11 * 2, qPrintable(QString::number(effort.Widths())));
        QCOMPARE(effort.Steps(), 0);
    }

    void resizingComputesNothingAnew()
    {
        Window w(1, 8, QSize(2000, 400));
        w.window.resize(300, 400);
        Window::Settle();
        const Effort effort;
        for (int width = 300; width < 2400; width += 10) {
            w.window.resize(width, 400);
            Window::Settle();
        }
        QCOMPARE(effort.Steps(), 0);
        QCOMPARE(effort.Reductions(), 0);
        QCOMPARE(effort.Widths(), 0);
        QCOMPARE(effort.Tabs(), 0);
        QCOMPARE(effort.Metrics(), 0);
    }

    void comingBackToAPageComputesNothing()
    {
        Window w(2, 6, QSize(900, 400));
        w.bar->setCurrentPage(1);
        w.bar->setCurrentPage(0);
        Window::Settle();
        const Effort effort;
        for (int i = 0; i < 10; ++i) {
            w.bar->setCurrentPage(i % 2 ? 0 : 1);
            Window::Settle();
        }
        QCOMPARE(effort.Layouts(), 0);
        QCOMPARE(effort.Placements(), 0);
        QCOMPARE(effort.Widths(), 0);
    }

    void enablingAndCheckingCommandsLaysNothingOut()
    {
        Window w(1, 6);
        const Effort effort;
        for (RibbonGroup* group : w.bar->currentPage()->groups())
            for (QAction* action : group->actions()) {
                action->setEnabled(false);
                action->setCheckable(true);
                action->setChecked(true);
                action->setEnabled(true);
            }
        Window::Settle();
        QCOMPARE(effort.Layouts(), 0);
        QCOMPARE(effort.Placements(), 0);
        QCOMPARE(effort.Widths(), 0);
    }

    void manyChangesAreOneLayout()
    {
        Window w(1, 3);
        const Effort effort;
        for (int i = 0; i < 40; ++i)
            w.Group()->addAction(ribbon_test::MakeIcon(), QStringLiteral("New %1").arg(i),
                                 Qt::ToolButtonTextBesideIcon);
        Window::Settle();
        QCOMPARE(effort.Layouts(), 1);
        QVERIFY(effort.Placements() <= 3);
    }

    void aTextThatChangesMeasuresOneButton()
    {
        Window w(1, 3);
        const Effort effort;
        w.Group()->actions().at(5)->setText(QStringLiteral("Another text"));
        Window::Settle();
        QVERIFY2(effort.Widths() <= 3, qPrintable(QString::number(effort.Widths())));
        QCOMPARE(effort.Layouts(), 1);
    }

    void changesOnAHiddenPageWaitUntilItIsSeen()
    {
        Window w(2, 3);
        w.bar->setCurrentPage(1);
        w.bar->setCurrentPage(0);
        const Effort effort;
        w.bar->getPage(1)->getGroup(0)->actions().first()->setText(QStringLiteral("Changed"));
        Window::Settle();
        QCOMPARE(effort.Layouts(), 0);
        w.bar->setCurrentPage(1);
        Window::Settle();
        QCOMPARE(effort.Layouts(), 1);
    }

    void twoThousandButtonsAreResizedAndSwitchedQuickly()
    {
        Window w(10, 18, QSize(1600, 400));
        int buttons = 0;
        for (RibbonPage* page : w.bar->pages())
            for (RibbonGroup* group : page->groups())
                buttons += group->actions().size();
        QVERIFY(buttons >= 1900);
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 10; ++i) {
            w.bar->setCurrentPage(i);
            Window::Settle();
        }
        for (int width = 400; width < 1600; width += 100) {
            w.window.resize(width, 400);
            Window::Settle();
        }
        // Two hundred times what it takes on a slow machine today would still be noticed here.
        QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    }
};

OVK_TEST_CLASS(RibbonEffortTest)

#include "ribbon_effort_test.moc"
