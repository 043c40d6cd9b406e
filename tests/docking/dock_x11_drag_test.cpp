#include "dock_hand.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

/// Panels dragged by the real pointer of an X server with a window manager.
class DockX11DragTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void aPanelIsDraggedOutOfItsSite();
    void aPanelIsDraggedOverAndIntoEachSide_data();
    void aPanelIsDraggedOverAndIntoEachSide();
    void aPanelIsPutBesideAnother_data();
    void aPanelIsPutBesideAnother();
    void aPanelDroppedOnTheMiddleOfAnotherBecomesATab();
    void theAnimatedPreviewTakesTheDropToo();
    void aTabIsTornOffAndPutBack();
    void aDragEndsWhenTheProgramLosesTheFocus();
    void leftIsTheLeftOfTheScreenInBothDirections();

private:
    /// Takes a panel by its title and lifts it off.
    void Take(DockWidget& panel);

    std::unique_ptr<Hand> m_hand;
};

namespace {

struct SideRow
{
    const char* name;
    DockLayout::Side side;
    double x; ///< the place at that edge of the manager, in parts of its size
    double y;
};

constexpr SideRow c_sides[] = {
    {"left", DockLayout::Left, 0.005, 0.3},
    {"right", DockLayout::Right, 0.995, 0.3},
    {"top", DockLayout::Top, 0.3, 0.005},
    {"bottom", DockLayout::Bottom, 0.3, 0.995},
};

int Previews(const DockFixture& fixture)
{
    int previews = 0;
    for (const SideRow& row : c_sides)
        previews += fixture.Site(row.side)->_pp()->estimator ? 1 : 0;
    return previews;
}

/// The place for tabs is lit, and the pointer is in it: the preview that comes moves it away once.
bool IsOverMergeZone(const DockWidget& panel)
{
    const DockOverlay* const overlay = panel._Impl()->overlay;
    return overlay && overlay->IsActive() &&
           overlay->rect().contains(overlay->mapFromGlobal(QCursor::pos()));
}

bool IsDragging(const DockFixture& fixture)
{
    return fixture.manager->_Impl()->controller->IsDragging();
}

} // namespace

void DockX11DragTest::initTestCase()
{
    QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
    m_hand = std::make_unique<Hand>();
    QVERIFY2(m_hand->IsReady(), "xdotool is needed");
}

void DockX11DragTest::cleanupTestCase()
{
    m_hand.reset();
}

void DockX11DragTest::init()
{
    m_hand->Rest();
}

void DockX11DragTest::Take(DockWidget& panel)
{
    m_hand->MoveTo(Grip(panel));
    m_hand->Press();
    m_hand->Glide(QCursor::pos() + QPoint(24, 24), 4);
    QTRY_VERIFY(panel.IsFloated());
}

void DockX11DragTest::aPanelIsDraggedOutOfItsSite()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    fixture.Left()->AddWidget(panel);
    Shown(fixture.window);
    const QPoint hold = Hold(*panel);
    m_hand->MoveTo(Grip(*panel));
    m_hand->Press();
    // A trembling hand drags nothing.
    m_hand->MoveTo(Grip(*panel) + QPoint(3, 3));
    QVERIFY(!panel->IsFloated());
    m_hand->Glide(Grip(*panel) + QPoint(25, 25), 4);
    QTRY_VERIFY(panel->IsFloated());
    const QPoint target = Spot(*fixture.central, 0.5, 0.5);
    m_hand->Glide(target);
    // It hangs at the place where it was taken.
    QTRY_VERIFY((panel->pos() - (target - hold)).manhattanLength() <= 1);
    QVERIFY(IsDragging(fixture));
    m_hand->Release();
    QTRY_VERIFY(!IsDragging(fixture));
    QVERIFY(panel->IsFloated());
    QVERIFY(panel->isVisible());
    QCOMPARE(DockFixture::Order(*fixture.Left()), QStringList{"|"});
    QTRY_COMPARE(fixture.central->width(), fixture.manager->width());
    QCOMPARE(Previews(fixture), 0);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::aPanelIsDraggedOverAndIntoEachSide_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(c_sides)); ++i)
        QTest::newRow(c_sides[i].name) << i;
}

void DockX11DragTest::aPanelIsDraggedOverAndIntoEachSide()
{
    QFETCH(int, row);
    const SideRow& side = c_sides[row];
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    Shown(fixture.window);
    Float(fixture, *panel);
    DockToolboxSite* const site = fixture.Site(side.side);
    const auto edge = [&] { return Spot(*fixture.manager, side.x, side.y); };
    const auto middle = [&] { return Spot(*fixture.central, 0.5, 0.5); };

    Take(*panel);
    QVERIFY(m_hand->HoverTill(edge, [&] { return bool(site->_pp()->estimator); }));
    QCOMPARE(Previews(fixture), 1);
    QVERIFY(m_hand->HoverTill(middle, [&] { return !site->_pp()->estimator; }));
    QVERIFY(m_hand->HoverTill(edge, [&] { return bool(site->_pp()->estimator); }));
    m_hand->Release();
    QTRY_COMPARE(DockFixture::Order(*site).join(" "), QString("panel |"));
    QVERIFY(!panel->IsFloated());
    QTRY_VERIFY(panel->isVisible());
    QCOMPARE(Previews(fixture), 0);
    // It lies at that edge of the window.
    const QRect place(panel->mapTo(fixture.manager, QPoint()), panel->size());
    const QRect all = fixture.manager->rect();
    const int gaps[] = {place.left() - all.left(), all.right() - place.right(),
                        place.top() - all.top(), all.bottom() - place.bottom()};
    QVERIFY2(gaps[side.side] == 0, qPrintable(QString::number(gaps[side.side])));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::aPanelIsPutBesideAnother_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<double>("along");
    QTest::addColumn<QStringList>("order");
    for (int i = 0; i < int(std::size(c_sides)); ++i) {
        const QByteArray name = c_sides[i].name;
        QTest::newRow((name + " before").constData())
            << i << 0.1 << QStringList{"panel", "docked", "|"};
        QTest::newRow((name + " after").constData())
            << i << 0.9 << QStringList{"docked", "panel", "|"};
    }
}

void DockX11DragTest::aPanelIsPutBesideAnother()
{
    QFETCH(int, row);
    QFETCH(double, along);
    QFETCH(QStringList, order);
    DockFixture fixture;
    DockToolboxSite* const site = fixture.Site(c_sides[row].side);
    DockWidget* const docked = fixture.Panel("docked", QSize(220, 220));
    site->AddWidget(docked);
    DockWidget* const panel = fixture.Panel("panel", QSize(160, 120));
    Shown(fixture.window);
    Float(fixture, *panel);
    const int index = order.indexOf("panel");
    const auto place = [&] {
        return site->IsVertical() ? Spot(*docked, 0.5, along) : Spot(*docked, along, 0.5);
    };
    Take(*panel);
    QVERIFY(m_hand->HoverTill(
        place, [&] { return site->_pp()->estimator && site->_pp()->index == index; }));
    m_hand->Release();
    QTRY_COMPARE(DockFixture::Order(*site).join(" "), order.join(" "));
    QCOMPARE(Previews(fixture), 0);
    QVERIFY(!docked->_Impl()->overlay);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::aPanelDroppedOnTheMiddleOfAnotherBecomesATab()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(220, 300));
    fixture.Left()->AddWidget(docked);
    const QPointer<DockWidget> panel = fixture.Panel("panel", QSize(160, 120));
    Shown(fixture.window);
    Float(fixture, *panel);
    Take(*panel);
    const auto middle = [&] { return Spot(*docked, 0.5, 0.5); };
    QVERIFY(m_hand->HoverTill(middle, [&] { return IsOverMergeZone(*docked); }));
    m_hand->Release();
    QTRY_VERIFY(panel.isNull());
    QCOMPARE(docked->GetCount(DockWidget::Visible), 2);
    QTRY_VERIFY(docked->_Impl()->tab_bar->isVisible());
    // The page that came is on top.
    QCOMPARE(docked->GetCurrentPage()->GetId(), QString("panel.page"));
    QTRY_VERIFY(docked->GetCurrentPage()->GetWidget()->isVisible());
    QVERIFY(!docked->_Impl()->overlay);
    QCOMPARE(Previews(fixture), 0);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::theAnimatedPreviewTakesTheDropToo()
{
    DockFixture fixture;
    DockSettings::Animated().SetData(true);
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    Shown(fixture.window);
    Float(fixture, *panel);
    Take(*panel);
    const auto edge = [&] { return Spot(*fixture.manager, 0.005, 0.5); };
    QVERIFY(m_hand->HoverTill(edge, [&] { return bool(fixture.Left()->_pp()->estimator); }));
    QTRY_VERIFY(!fixture.Left()->IsState(DockToolboxSite::Animating));
    QTRY_VERIFY(fixture.Left()->_pp()->estimator->width() >= 200);
    m_hand->Release();
    QTRY_COMPARE(DockFixture::Order(*fixture.Left()).join(" "), QString("panel |"));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::aTabIsTornOffAndPutBack()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(240, 320));
    auto* const second = new FakePage("second", QSize(120, 80)); // a child of the panel
    docked->AddPage(second);
    fixture.Left()->AddWidget(docked);
    Shown(fixture.window);
    QTabBar* const tabs = docked->_Impl()->tab_bar;
    QTRY_VERIFY(tabs->isVisible());
    m_hand->MoveTo(tabs->mapToGlobal(tabs->tabRect(1).center()));
    m_hand->Press();
    QTRY_COMPARE(docked->GetCurrentIndex(), 1);
    // Along the bar it is the bar that moves the tab.
    m_hand->MoveTo(QCursor::pos() + QPoint(4, 4));
    QCOMPARE(docked->GetCount(DockWidget::All), 2);
    const QPoint target = Spot(*fixture.central, 0.5, 0.4);
    m_hand->Glide(target);
    QTRY_COMPARE(fixture.manager->GetFloatedWidgets().size(), 1);
    const QPointer<DockWidget> torn = fixture.manager->GetFloatedWidgets().first();
    QCOMPARE(torn->GetPageAt(0, DockWidget::All), static_cast<IDockPage*>(second));
    QCOMPARE(docked->GetCount(DockWidget::All), 1);
    // It goes on hanging at the hand.
    m_hand->Glide(target + QPoint(30, 20), 3);
    QTRY_VERIFY(torn->geometry().contains(QCursor::pos()));
    m_hand->Release();
    QTRY_VERIFY(!IsDragging(fixture));
    QVERIFY(torn->IsFloated());
    QVERIFY(second->isVisible());
    QCOMPARE(fixture.Inconsistency(), QString());

    Take(*torn);
    const auto middle = [&] { return Spot(*docked, 0.5, 0.5); };
    QVERIFY(m_hand->HoverTill(middle, [&] { return IsOverMergeZone(*docked); }));
    m_hand->Release();
    QTRY_VERIFY(torn.isNull());
    QCOMPARE(docked->GetCount(DockWidget::All), 2);
    QTRY_VERIFY(second->isVisible());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::aDragEndsWhenTheProgramLosesTheFocus()
{
    DockFixture fixture;
    DockWidget* const docked = fixture.Panel("docked", QSize(220, 300));
    fixture.Left()->AddWidget(docked);
    DockWidget* const panel = fixture.Panel("panel", QSize(160, 120));
    Shown(fixture.window);
    Float(fixture, *panel);
    QTRY_COMPARE(QGuiApplication::applicationState(), Qt::ApplicationActive);
    Take(*panel);
    const auto middle = [&] { return Spot(*docked, 0.5, 0.5); };
    QVERIFY(m_hand->HoverTill(middle, [&] { return bool(docked->_Impl()->overlay); }));
    // Another program takes the keyboard while the button is down.
    QProcess root;
    root.start("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"});
    QVERIFY(root.waitForFinished());
    const QByteArray manager = root.readAllStandardOutput().split('#').last().trimmed();
    m_hand->Do("windowfocus " + manager);
    QTRY_VERIFY(!IsDragging(fixture));
    QVERIFY(!docked->_Impl()->overlay);
    QCOMPARE(Previews(fixture), 0);
    QVERIFY(panel->IsFloated());
    m_hand->Release();
    DockFixture::Settle();
    QVERIFY(panel->IsFloated());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockX11DragTest::leftIsTheLeftOfTheScreenInBothDirections()
{
    DockFixture fixture;
    fixture.window.setLayoutDirection(Qt::RightToLeft);
    DockWidget* const panel = fixture.Panel("panel", QSize(200, 150));
    Shown(fixture.window);
    Float(fixture, *panel);
    Take(*panel);
    const auto edge = [&] { return Spot(*fixture.manager, 0.005, 0.5); };
    QVERIFY(m_hand->HoverTill(edge, [&] { return bool(fixture.Left()->_pp()->estimator); }));
    m_hand->Release();
    QTRY_COMPARE(DockFixture::Order(*fixture.Left()).join(" "), QString("panel |"));
    QTRY_COMPARE(panel->mapTo(fixture.manager, QPoint()).x(), 0);
    DockToolboxSiteHandle* const handle = fixture.Left()->GetDockSite()->_pp()->handle;
    QCOMPARE(handle->mapTo(fixture.manager, QPoint()).x(), panel->width());
    QCOMPARE(fixture.Inconsistency(), QString());
}

OVK_TEST_CLASS(DockX11DragTest)

#include "dock_x11_drag_test.moc"
