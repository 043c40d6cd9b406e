#include "dock_drag_support.h"
#include "tests/support/test_main.h"

#include <QRandomGenerator>

#include <algorithm>

using namespace ovk;
using namespace ovk_test;

namespace {

/// What the controller must tell which target, worked out beside it from the rules alone.
class Script
{
public:
    explicit Script(quint32 seed) : m_random(seed), m_targets(c_targets)
    {
        for (int i = 0; i < c_targets; ++i)
            Revive(i);
        mp_panel = m_fixture.Panel("p");
        Controller().SetWidgetAt([this](const QPoint& pos) { return At(pos.x()); });
    }

    QString Step()
    {
        const int place = m_random.bounded(c_targets + 2);
        // The target is looked for before the old one is left.
        const int next = At(place) ? place : -1;
        switch (m_random.bounded(12)) {
        case 0:
            Controller().Begin(*mp_panel, QPoint(place, 0));
            // A drag that is under way is dropped without a word.
            m_current = -1;
            m_dragging = true;
            Expect(next);
            break;
        case 1:
            Controller().End(QPoint(place, 0));
            if (m_dragging && next >= 0)
                m_expected << Name(place) + " drop";
            m_dragging = false;
            m_current = -1;
            break;
        case 2:
            Controller().Cancel();
            if (m_dragging && m_current >= 0)
                m_expected << Name(m_current) + " cancel";
            m_dragging = false;
            m_current = -1;
            break;
        case 3:
            Kill(m_random.bounded(c_targets));
            break;
        case 4:
            Revive(m_random.bounded(c_targets));
            break;
        case 5:
            // One that takes another with it when it is left.
            if (const int victim = m_random.bounded(c_targets);
                m_current >= 0 && victim != m_current) {
                m_targets[size_t(m_current)]->on_leave = [this, victim] { Kill(victim); };
                m_takes_along[m_current] = victim;
            }
            break;
        default:
            Controller().Update(QPoint(place, 0));
            if (m_dragging)
                Expect(next);
            break;
        }
        if (m_log != m_expected)
            return m_log.join(", ") + QStringLiteral(" instead of ") + m_expected.join(", ");
        m_log.clear();
        m_expected.clear();
        if (Controller().IsDragging() != m_dragging)
            return QStringLiteral("the state is wrong");
        IDockDragTarget* const current =
            m_current < 0 ? nullptr : m_targets[size_t(m_current)].get();
        if (Controller().GetCurrent() != current)
            return QStringLiteral("the current target is wrong");
        return {};
    }

private:
    static constexpr int c_targets = 6;

    DockDragController& Controller() const { return *m_fixture.manager->_Impl()->controller; }
    static QString Name(int i) { return QString(QLatin1Char(char('a' + i))); }

    QWidget* At(int place) const
    {
        return place < c_targets ? m_targets[size_t(place)].get() : nullptr;
    }

    void Expect(int next)
    {
        if (next != m_current) {
            const int old = std::exchange(m_current, next);
            if (old >= 0) {
                m_expected << Name(old) + " leave to " + (next < 0 ? "none" : Name(next));
                if (next >= 0 && m_takes_along[old] == next) {
                    m_current = -1;
                    return;
                }
            }
            if (next >= 0)
                m_expected << Name(next) + " enter";
        }
        if (m_current >= 0)
            m_expected << Name(m_current) + " over";
    }

    void Kill(int i)
    {
        m_targets[size_t(i)].reset();
        m_takes_along[i] = -1;
        if (m_current == i)
            m_current = -1;
    }
    void Revive(int i)
    {
        if (!m_targets[size_t(i)])
            m_targets[size_t(i)] = std::make_unique<LogTarget>(Name(i), m_log);
    }

    QRandomGenerator m_random;
    DockFixture m_fixture;
    DockWidget* mp_panel = nullptr;
    QStringList m_log;
    QStringList m_expected;
    std::vector<std::unique_ptr<LogTarget>> m_targets;
    int m_current = -1;
    int m_takes_along[c_targets] = {-1, -1, -1, -1, -1, -1};
    bool m_dragging = false;
};

} // namespace

class DockDragModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void targetsAreCalledInTheirOrder_data();
    void targetsAreCalledInTheirOrder();
    void dragsEndClean_data();
    void dragsEndClean();
};

void DockDragModelTest::targetsAreCalledInTheirOrder_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 2u, 3u, 77u, 20260301u})
        QTest::addRow("seed %u", seed) << seed;
}

void DockDragModelTest::targetsAreCalledInTheirOrder()
{
    QFETCH(quint32, seed);
    Script script(seed);
    for (int step = 0; step < 2000; ++step) {
        const QString error = script.Step();
        QVERIFY2(error.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(error)));
    }
}

void DockDragModelTest::dragsEndClean_data()
{
    targetsAreCalledInTheirOrder_data();
}

/// Drags real panels over a real manager: panels of no page, of one and of hidden ones, over folded
/// sites, with targets that are deleted in the middle, into tabs and out of them to the last one.
void DockDragModelTest::dragsEndClean()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    DockFixture fixture;
    DockManager& manager = *fixture.manager;
    DockDragController& controller = *manager._Impl()->controller;
    int names = 0;
    int merged = 0;
    int docked = 0;
    int torn = 0;
    const auto spot = [&random] {
        return QPoint(random.bounded(820) - 10, random.bounded(620) - 10);
    };
    const auto panels = [&manager] { return manager.findChildren<DockWidget*>(); };
    const auto pages = [&] {
        int count = 0;
        for (const DockWidget* panel : panels())
            count += panel->GetCount(DockWidget::All);
        return count;
    };
    const auto add = [&] {
        DockWidget* const panel =
            fixture.Panel(QStringLiteral("p%1").arg(++names),
                          QSize(80 + random.bounded(100), 70 + random.bounded(120)));
        panel->SetHideLastTab(random.bounded(3) != 0);
        switch (random.bounded(4)) {
        case 0:
            delete panel->GetPageAt(0, DockWidget::All)->GetWidget();
            break;
        case 1: {
            auto* const hidden = new FakePage(QStringLiteral("hidden%1").arg(names));
            panel->AddPage(hidden);
            panel->SetPageVisible(static_cast<IDockPage*>(hidden), false);
            break;
        }
        case 2:
            panel->AddPage(new FakePage(QStringLiteral("more%1").arg(names)));
            break;
        default:
            break;
        }
        fixture.Site(DockLayout::Side(random.bounded(4)))->AddWidget(panel);
    };
    const auto drag = [&](DockWidget& panel) {
        panel.SetFloated(spot());
        controller.Begin(panel, QPoint(0, 0));
        QPoint pos;
        for (int i = 1 + random.bounded(10); i > 0; --i) {
            // Over the middle of another panel a drop makes tabs, at its end it goes beside it.
            const QList<DockWidget*> all = panels();
            const DockWidget* const other = all.at(random.bounded(all.size()));
            const double places[] = {0.1, 0.5, 0.5, 0.9};
            const double place = places[random.bounded(4)];
            pos = random.bounded(4) == 0 ? spot() : ovk_test::At(*other, place, place);
            controller.Update(pos);
            if (random.bounded(2))
                DockFixture::Settle();
        }
        return pos;
    };
    /// The last tab of a panel is torn off by the pointer.
    const auto tear = [&](DockWidget& panel) {
        QTabBar* const tabs = panel._Impl()->tab_bar;
        if (!tabs->isVisible() || !tabs->window()->isVisible())
            return;
        const QPoint on_tab = tabs->tabRect(tabs->currentIndex()).center();
        const QPoint outside(on_tab.x(), 3 * tabs->height());
        const QPointer<QTabBar> guard(tabs);
        QTest::mousePress(tabs, Qt::LeftButton, {}, on_tab);
        Send(*tabs, QEvent::MouseMove, outside, tabs->mapToGlobal(outside), Qt::LeftButton);
        if (QWidget* const title = QWidget::mouseGrabber()) {
            ++torn;
            Send(*title, QEvent::MouseMove, {6, 6}, spot(), Qt::LeftButton);
            const QPoint end = spot();
            Send(*title, QEvent::MouseMove, {6, 6}, end, Qt::LeftButton);
            Send(*title, QEvent::MouseButtonRelease, {6, 6}, end, Qt::NoButton);
        }
        if (guard)
            QTest::mouseRelease(tabs, Qt::LeftButton, {}, on_tab);
    };

    for (int i = 0; i < 6; ++i)
        add();
    DockFixture::Settle();
    for (int round = 0; round < 120; ++round) {
        DockSettings::Animated().SetData(random.bounded(4) == 0);
        while (panels().size() < 5)
            add();
        if (random.bounded(6) == 0)
            fixture.Site(DockLayout::Side(random.bounded(4)))->SetMinimized(random.bounded(2));
        DockFixture::Settle();
        const int before = pages();
        const QList<DockWidget*> all = panels();
        DockWidget* const panel = all.at(random.bounded(all.size()));
        int lost = 0;
        if (random.bounded(4) == 0) {
            tear(*panel);
        } else {
            const QPointer<DockWidget> dragged(panel);
            const QPoint last = drag(*panel);
            switch (random.bounded(8)) {
            case 0:
                controller.Cancel();
                break;
            case 1: {
                // A target or the dragged panel itself goes in the middle.
                DockWidget* const victim = all.at(random.bounded(all.size()));
                lost = victim->GetCount(DockWidget::All);
                delete victim;
                controller.Update(spot());
                controller.End(spot());
                break;
            }
            case 2:
                // The widget of the page goes.
                if (IDockPage* const page = panel->GetPageAt(0, DockWidget::All)) {
                    lost = 1;
                    delete page->GetWidget();
                }
                controller.Update(spot());
                controller.End(spot());
                break;
            default: {
                const int panels_before = panels().size();
                controller.Update(last);
                controller.End(last);
                DockFixture::Settle();
                merged += panels().size() < panels_before ? 1 : 0;
                docked += dragged && dragged->GetToolboxSite() ? 1 : 0;
                break;
            }
            }
        }
        DockFixture::Settle();
        const auto where = [&](const QString& what) {
            return QStringLiteral("round %1: %2").arg(round).arg(what).toUtf8();
        };
        const QString error = fixture.Inconsistency();
        QVERIFY2(error.isEmpty(), where(error).constData());
        QVERIFY2(!controller.IsDragging(), where("the drag goes on").constData());
        QVERIFY2(!QWidget::mouseGrabber(), where("the mouse is held").constData());
        // No page is lost and none is in two panels.
        QVERIFY2(pages() == before - lost, where("a page is lost").constData());
        for (const DockWidget* one : panels())
            QVERIFY2(!one->_Impl()->overlay, where("an overlay stayed").constData());
    }
    // Else the test would be about nothing.
    QVERIFY2(
        docked > 5 && merged > 1 && torn > 1,
        qPrintable(
            QStringLiteral("%1 docked, %2 merged, %3 torn").arg(docked).arg(merged).arg(torn)));
}

OVK_TEST_CLASS(DockDragModelTest)

#include "dock_drag_model_test.moc"
