#include "platform/qtitan/ribbon_button_p.h"
#include "platform/qtitan/ribbon_group_panel_p.h"
#include "platform/qtitan/ribbon_metrics_p.h"
#include "platform/qtitan/ribbon_page_p.h"
#include "platform/qtitan/ribbon_tab_bar_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QScreen>
#include <QWindow>

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
    int buttons = RibbonGroupPanel::buttonsMade();
    int tabs = RibbonTabBar::measurements();
    int metrics = RibbonMetrics::computations();

    int Layouts() const { return RibbonPagePrivate::layouts() - layouts; }
    int Reductions() const { return RibbonPagePrivate::reductions() - reductions; }
    int Steps() const { return RibbonGroupPanel::computations() - steps; }
    int Placements() const { return RibbonGroupPanel::placements() - placements; }
    int Widths() const { return RibbonButton::measurements() - widths; }
    int Buttons() const { return RibbonGroupPanel::buttonsMade() - buttons; }
    int Tabs() const { return RibbonTabBar::measurements() - tabs; }
    int Metrics() const { return RibbonMetrics::computations() - metrics; }
};

/// Counts what is painted of each page, and what is shown, moved or resized on it.
class PageWatch : public QObject
{
public:
    explicit PageWatch(const RibbonBar* bar) : m_bar(bar) { qApp->installEventFilter(this); }
    int Of(int page) const { return m_counts.value(m_bar->getPage(page)); }
    void Clear() { m_counts.clear(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Paint:
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::Show:
        case QEvent::LayoutRequest:
        case QEvent::UpdateRequest:
            for (QObject* o = watched; o; o = o->parent())
                if (qobject_cast<RibbonPage*>(o))
                    ++m_counts[o];
            break;
        default:
            break;
        }
        return false;
    }

private:
    const RibbonBar* m_bar;
    QHash<const QObject*, int> m_counts;
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

    void buttonsAreMadeWhenTheirPageIsFirstLaidOut()
    {
        const Effort effort;
        Window w(10, 4);
        QCOMPARE(effort.Buttons(), 4 * 11);
        w.bar->setCurrentPage(3);
        Window::Settle();
        QCOMPARE(effort.Buttons(), 2 * 4 * 11);
        w.bar->setCurrentPage(0);
        w.bar->setCurrentPage(3);
        Window::Settle();
        QCOMPARE(effort.Buttons(), 2 * 4 * 11);
        // A single one can be had before.
        RibbonGroup* hidden = w.bar->getPage(7)->getGroup(0);
        QVERIFY(hidden->buttonForAction(hidden->actions().at(2)));
        QVERIFY(hidden->widgetForAction(hidden->actions().at(2)));
        QCOMPARE(effort.Buttons(), 2 * 4 * 11 + 1);
    }

    void hiddenPagesAreNeitherLaidOutNorPainted()
    {
        Window w(6, 4);
        w.bar->setCurrentPage(2);
        w.bar->setCurrentPage(0);
        Window::Settle();
        PageWatch watch(w.bar);
        w.bar->update();
        w.bar->setFont(w.bar->font());
        w.bar->getPage(2)->getGroup(1)->setTitle(QStringLiteral("Another title"));
        w.bar->getPage(2)->getGroup(1)->actions().first()->setText(QStringLiteral("Another text"));
        w.bar->getPage(4)->getGroup(1)->addSeparator();
        for (int width = 1600; width >= 400; width -= 100) {
            w.window.resize(width, 500);
            Window::Settle();
        }
        QVERIFY(watch.Of(0) > 0);
        for (int page = 1; page < 6; ++page)
            QCOMPARE(watch.Of(page), 0);
        w.bar->setMinimized(true);
        watch.Clear();
        w.window.resize(900, 500);
        Window::Settle();
        for (int page = 0; page < 6; ++page)
            QCOMPARE(watch.Of(page), 0);
    }

    void anotherScreenMeasuresEverythingThatIsSeenAnew_data()
    {
        QTest::addColumn<QString>("by");
        for (const char* by : {"the window is on another screen", "its resolution changed",
                               "the event for the widget"})
            QTest::newRow(by) << QString::fromLatin1(by);
    }

    void anotherScreenMeasuresEverythingThatIsSeenAnew()
    {
        QFETCH(QString, by);
        Window w(3, 2);
        RibbonPage* parked = w.bar->getPage(2);
        w.bar->setCurrentPage(2);
        w.bar->setCurrentPage(1);
        w.bar->setCurrentPage(0);
        w.bar->detachPage(parked);
        w.bar->showKeyTips();
        Window::Settle();
        const Effort effort;
        QWindow* handle = w.window.windowHandle();
        if (by == QLatin1String("the window is on another screen")) {
            Q_EMIT handle->screenChanged(handle->screen());
        } else if (by == QLatin1String("its resolution changed")) {
            Q_EMIT handle->screen()->logicalDotsPerInchChanged(96);
        } else {
            QEvent event(QEvent::ScreenChangeInternal);
            QCoreApplication::sendEvent(w.bar, &event);
        }
        QVERIFY(!w.bar->isKeyTipsVisible());
        Window::Settle();
        QCOMPARE(effort.Layouts(), 1);
        QCOMPARE(effort.Tabs(), 1);
        const int page = 2 * 11;
        QVERIFY2(effort.Widths() >= page, qPrintable(QString::number(effort.Widths())));
        // The others follow when they are seen: also those that are out of the bar.
        const Effort later;
        w.bar->setCurrentPage(1);
        Window::Settle();
        QVERIFY(later.Widths() >= page);
        w.bar->insertPage(2, parked);
        w.bar->setCurrentPage(2);
        Window::Settle();
        QVERIFY2(later.Widths() >= 2 * page, qPrintable(QString::number(later.Widths())));
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
