#include "dock_hand.h"
#include "dock_state_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

/// A user arranges the panels of a host, leaves the program and comes back.
class DockX11RestartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theArrangementIsFoundAsItWasLeft();

private:
    std::unique_ptr<Hand> m_hand;
};

namespace {

/// The panels of a site with what can be seen of each.
QStringList Seen(const DockToolboxSite& site)
{
    QStringList seen;
    for (int i = 0; i < site.count(); ++i) {
        const auto* const panel = qobject_cast<DockWidget*>(site.itemAt(i)->widget());
        if (!panel) {
            seen.append("|");
            continue;
        }
        QString text = panel->GetName() + (panel->IsCollapsed() ? " folded" : "");
        for (int k = 0; k < panel->GetCount(DockWidget::All); ++k)
            text += ' ' + panel->GetPageAt(k, DockWidget::All)->GetId();
        seen.append(text);
    }
    return seen;
}

} // namespace

void DockX11RestartTest::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    m_hand = std::make_unique<Hand>();
    QVERIFY2(m_hand->IsReady(), "xdotool is needed");
}

void DockX11RestartTest::cleanupTestCase()
{
    m_hand.reset();
}

void DockX11RestartTest::theArrangementIsFoundAsItWasLeft()
{
    QStringList left;
    QStringList right;
    QStringList bottom;
    QRect place;
    int width = 0;
    {
        DockHost host;
        host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), Panel("b", {"B"})}},
                           {"right", {Panel("c", {"C"})}},
                           {"bottom", {Panel("d", {"D"})}}},
                          {}, 170));
        host.host.window->activateWindow();
        Shown(*host.host.window);
        DockToolboxSite& left_site = host.Site(DockLayout::Left);
        DockToolboxSite& right_site = host.Site(DockLayout::Right);
        const auto take = [this](DockWidget& panel) {
            m_hand->MoveTo(Grip(panel));
            m_hand->Press();
            m_hand->Glide(QCursor::pos() + QPoint(-24, 24), 4);
        };

        // "c" from the right to below "b" at the left.
        DockWidget* const b = host.Find("b");
        DockWidget* const c = host.Find("c");
        take(*c);
        QTRY_VERIFY(c->IsFloated());
        QVERIFY(m_hand->HoverTill([&] { return Spot(*b, 0.5, 0.9); },
                                  [&] { return left_site._pp()->index == 2; }));
        m_hand->Release();
        QTRY_COMPARE(DockFixture::Order(left_site), (QStringList{"a", "b", "c", "|"}));

        // "d" floats over the middle and is made larger.
        DockWidget* const d = host.Find("d");
        take(*d);
        QTRY_VERIFY(d->IsFloated());
        m_hand->Glide(Spot(host.Manager(), 0.6, 0.4));
        m_hand->Release();
        QTRY_VERIFY(!host.Manager()._Impl()->controller->IsDragging());
        QVERIFY(d->IsFloated());
        QVERIFY(
            m_hand->HoverTill([&] { return d->geometry().bottomRight() - QPoint(1, 0); },
                              [&] { return d->_Impl()->resize_edge == ResizeEdge::BottomRight; }));
        m_hand->Press();
        m_hand->Glide(QCursor::pos() + QPoint(80, 60), 5);
        m_hand->Release();

        // The second tab of "a" comes to the right as a panel of its own.
        DockWidget* const a = host.Find("a");
        QTabBar* const tabs = a->_Impl()->tab_bar;
        QTRY_VERIFY(tabs->isVisible());
        m_hand->MoveTo(tabs->mapToGlobal(tabs->tabRect(1).center()));
        m_hand->Press();
        m_hand->Glide(Spot(host.Manager(), 0.5, 0.7));
        QTRY_COMPARE(host.Manager().GetFloatedWidgets().size(), 2);
        QVERIFY(m_hand->HoverTill([&] { return Spot(host.Manager(), 0.995, 0.5); },
                                  [&] { return bool(right_site._pp()->estimator); }));
        m_hand->Release();
        QTRY_COMPARE(right_site._pp()->GetPanels().size(), 1);

        // The left side is made wider, "b" is folded.
        DockToolboxSiteHandle* const handle = left_site.GetDockSite()->_pp()->handle;
        m_hand->MoveTo(Spot(*handle, 0.5, 0.2));
        m_hand->Press();
        m_hand->Glide(QCursor::pos() + QPoint(50, 0), 5);
        m_hand->Release();
        m_hand->DoubleClick(Grip(*b));
        QTRY_VERIFY(b->IsCollapsed());

        DockFixture::Settle();
        left = Seen(left_site);
        right = Seen(right_site);
        bottom = Seen(host.Site(DockLayout::Bottom));
        place = d->geometry();
        width = left_site.geometry().width();
        QCOMPARE(left, (QStringList{"a A1", "b folded B", "c C", "|"}));
        QVERIFY(right.first().endsWith(" A2"));
        QCOMPARE(bottom, QStringList{"|"});
        host.host.Shutdown();
    }
    // The program starts anew and reads the user's profile.
    DockHost host;
    Shown(*host.host.window);
    QTRY_COMPARE(Seen(host.Site(DockLayout::Left)), left);
    QCOMPARE(Seen(host.Site(DockLayout::Right)), right);
    QCOMPARE(Seen(host.Site(DockLayout::Bottom)), bottom);
    QCOMPARE(host.Site(DockLayout::Left).geometry().width(), width);
    DockWidget* const d = host.Find("d");
    QVERIFY(d && d->IsFloated());
    QTRY_COMPARE(d->geometry(), place);
    QVERIFY(d->isVisible());
    for (const DockWidget* panel : host.Manager().GetWidgetsList())
        QVERIFY2(panel->isVisible(), qPrintable(panel->GetName()));
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

OVK_TEST_CLASS(DockX11RestartTest)

#include "dock_x11_restart_test.moc"
