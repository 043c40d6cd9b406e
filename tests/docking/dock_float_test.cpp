#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

class DockFloatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closingDeletesOrHides();
    void aFloatingPanelRemembersTheSizeOfItsPage();
    void aPanelOffTheScreenComesBack();
    void floatingAndDockingAreClean();
    void aBlockedPanelIsCovered();
    void panelsDockedBeforeTheWindowShowsAppearWithIt();
    void dockingBeforeTheFirstShowFoldsNobody_data();
    void dockingBeforeTheFirstShowFoldsNobody();
    void aPanelOfAScreenThatGoesComesBack();
    void aPageWithAWindowOfItsOwnSurvives();
};

void DockFloatTest::closingDeletesOrHides()
{
    DockFixture fixture;
    const QPointer<DockWidget> deleted = fixture.Panel("a");
    deleted->Close();
    DockFixture::Settle();
    QVERIFY(deleted.isNull());
    DockWidget* const kept = fixture.Panel("b");
    fixture.Left()->AddWidget(kept);
    DockFixture::Settle();
    kept->SetDeleteOnClose(false);
    kept->Close();
    QVERIFY(!kept->isVisible());
    QVERIFY(kept->IsExplicitlyHidden());
}

void DockFloatTest::aFloatingPanelRemembersTheSizeOfItsPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("b");
    panel->AddPage(second);
    panel->SetFloated(QPoint(50, 60));
    DockFixture::Settle();
    panel->resize(300, 250);
    QCOMPARE(DockFixture::Page(*panel)->GetPrefferedSize(), QSize(300, 250));
    second->SetPrefferedSize(QSize(400, 350));
    panel->SetCurrentIndex(1);
    DockFixture::Settle();
    QCOMPARE(panel->size(), QSize(400, 350));
    panel->SetCurrentIndex(0);
    DockFixture::Settle();
    QCOMPARE(panel->size(), QSize(300, 250));
    // Folding does not forget the size.
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    QVERIFY(panel->height() < 100);
    panel->SetCollapsed(false, false);
    DockFixture::Settle();
    QCOMPARE(panel->size(), QSize(300, 250));
}

void DockFloatTest::aPanelOffTheScreenComesBack()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->SetFloated(QPoint(-5000, -5000));
    const QRect around(fixture.manager->mapToGlobal(QPoint(0, 0)), fixture.manager->size());
    QVERIFY(around.contains(panel->geometry()));
    panel->setVisible(false);
    // The very corner of the screen is not properly inside of it.
    panel->move(QGuiApplication::primaryScreen()->geometry().topLeft());
    panel->setVisible(true);
    QVERIFY(around.contains(panel->geometry()));
    panel->setVisible(false);
    panel->move(20, 30);
    panel->setVisible(true);
    QCOMPARE(panel->pos(), QPoint(20, 30));
}

void DockFloatTest::floatingAndDockingAreClean()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QVERIFY(!panel->_Impl()->CanResize());
    QCOMPARE(panel->_Impl()->GetDragThreshold(), 2 * QApplication::startDragDistance());
    for (int i = 0; i < 3; ++i) {
        panel->SetFloated(QPoint(30, 40));
        QVERIFY(panel->IsFloated() && panel->isWindow());
        QVERIFY(panel->windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(panel->windowType(), Qt::Tool);
        QVERIFY(panel->hasMouseTracking() && panel->testAttribute(Qt::WA_Hover));
        QVERIFY(panel->isVisible());
        QCOMPARE(panel->pos(), QPoint(30, 40));
        QVERIFY(panel->_Impl()->CanResize());
        QCOMPARE(panel->_Impl()->GetDragThreshold(), 0);
        QCOMPARE(fixture.manager->GetFloatedWidgets(), QList<DockWidget*>{panel});
        panel->SetFloated(QPoint(1, 1));
        QCOMPARE(panel->pos(), QPoint(30, 40));
        DockFixture::Settle();
        QCOMPARE(fixture.Inconsistency(), QString());
        QVERIFY(fixture.Left()->AddWidget(panel));
        QVERIFY(!panel->IsFloated() && !panel->isWindow());
        QVERIFY(!panel->hasMouseTracking() && !panel->testAttribute(Qt::WA_Hover));
        DockFixture::Settle();
        QVERIFY(panel->isVisible());
        QVERIFY(fixture.manager->GetFloatedWidgets().isEmpty());
        QCOMPARE(fixture.Inconsistency(), QString());
    }
    // From one site straight to another.
    QVERIFY(fixture.Right()->AddWidget(panel));
    DockFixture::Settle();
    QCOMPARE(DockFixture::Order(*fixture.Left()), QStringList{"|"});
    QVERIFY(!fixture.Left()->GetDockSite()->_pp()->handle->isVisible());
    QVERIFY(fixture.Right()->GetDockSite()->_pp()->handle->isVisible());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockFloatTest::aBlockedPanelIsCovered()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetEnabled(false);
    QVERIFY(!panel->IsEnabled());
    QVERIFY(panel->_Impl()->blocked);
    const BlockOverlay* const cover = panel->_Impl()->block_overlay;
    QCOMPARE(cover->geometry(), QRect(0, 0, panel->width() - 1, panel->height() - 1));
    QVERIFY(cover->isVisible());
    QCOMPARE(cover->GetPixmap().size(), panel->size());
    QTest::mouseDClick(panel->childAt(60, 5), Qt::LeftButton, {}, QPoint(60, 5));
    QVERIFY(!panel->IsCollapsed());
    panel->SetEnabled(true);
    QVERIFY(panel->IsEnabled());
    QVERIFY(!panel->_Impl()->blocked);
}

void DockFloatTest::panelsDockedBeforeTheWindowShowsAppearWithIt()
{
    DockFixture fixture(QSize(800, 600), false);
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    auto* const page = new FakePage("page", QSize(150, 90));
    panel->AddPage(page);
    fixture.Left()->AddWidget(panel);
    DockWidget* const hidden = fixture.Panel("hidden");
    fixture.Left()->AddWidget(hidden);
    hidden->setVisible(false);
    DockWidget* const empty = fixture.manager->CreateDockWidget();
    fixture.Left()->AddWidget(empty);
    fixture.window.show();
    fixture.manager->show();
    DockFixture::Settle();
    QVERIFY(panel->isVisible());
    QVERIFY(page->isVisible());
    QVERIFY(!hidden->isVisible());
    QVERIFY(!empty->isVisible());
    QVERIFY(fixture.Left()->GetDockSite()->_pp()->handle->isVisible());
    const DockTitle* const title = panel->_Impl()->title;
    QCOMPARE(title->width(), panel->width());
    QVERIFY(title->GetRight().first()->geometry().right() > panel->width() - 10);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockFloatTest::dockingBeforeTheFirstShowFoldsNobody_data()
{
    QTest::addColumn<bool>("managed");
    QTest::newRow("a manager that a layout places") << true;
    QTest::newRow("a manager that nobody has sized") << false;
}

void DockFloatTest::dockingBeforeTheFirstShowFoldsNobody()
{
    QFETCH(bool, managed);
    DockSettings::Animated().SetData(false);
    {
        QWidget window;
        auto* const manager = new DockManager(&window); // a child of the window
        if (managed) {
            auto* const layout = new QVBoxLayout(&window); // a child of the window
            layout->addWidget(manager);
        }
        // Far more than fits into the size that a widget has before anybody gave it one.
        QList<DockWidget*> panels;
        for (int i = 0; i < 12; ++i) {
            DockWidget* const panel = manager->CreateDockWidget();
            panel->AddPage(new FakePage(QString::number(i), QSize(90, 120)));
            QVERIFY(manager->GetLayout()
                        ->GetSite(i % 2 ? DockLayout::Right : DockLayout::Left)
                        ->GetToolboxSite()
                        ->AddWidget(panel));
            panels.append(panel);
        }
        panels.first()->SetCollapsed(true, false);
        panels.first()->SetCollapsed(false, false);
        window.resize(1000, 1000);
        if (!managed)
            manager->resize(1000, 1000);
        window.show();
        manager->show();
        DockFixture::Settle();
        for (const DockWidget* panel : qAsConst(panels))
            QVERIFY2(panel->isVisible() && !panel->IsCollapsed(), qPrintable(panel->GetName()));
        QCOMPARE(manager->_Impl()->CheckConsistency(), QString());
    }
    DockSettings::Animated().SetData(true);
}

void DockFloatTest::aPanelOfAScreenThatGoesComesBack()
{
    DockFixture fixture;
    DockManager::Impl& impl = *fixture.manager->_Impl();
    // A second screen left of the first and above it.
    QList<QRect> screens{QRect(0, 0, 800, 800), QRect(-1920, -600, 1920, 1080)};
    impl.screens = [&screens] { return screens; };
    DockWidget* const there = fixture.Panel("there");
    DockWidget* const here = fixture.Panel("here");
    DockWidget* const hidden = fixture.Panel("hidden");
    there->SetFloated(QPoint(-1000, -300));
    here->SetFloated(QPoint(60, 70));
    hidden->SetFloated(QPoint(-900, -200));
    DockFixture::Settle();
    QCOMPARE(there->pos(), QPoint(-1000, -300));
    hidden->setVisible(false);

    screens.removeLast();
    Q_EMIT qGuiApp->screenRemoved(qGuiApp->primaryScreen());
    const QRect around(fixture.manager->mapToGlobal(QPoint(0, 0)), fixture.manager->size());
    QVERIFY(around.contains(there->geometry()));
    QCOMPARE(here->pos(), QPoint(60, 70));
    // Who was hidden meanwhile comes back when he is shown.
    hidden->setVisible(true);
    QVERIFY(around.contains(hidden->geometry()));

    // A screen that becomes smaller leaves panels outside just so.
    here->move(700, 700);
    screens = {QRect(0, 0, 640, 480)};
    Q_EMIT qGuiApp->primaryScreen()->geometryChanged(screens.first());
    QVERIFY(here->pos() != QPoint(700, 700));
}

void DockFloatTest::aPageWithAWindowOfItsOwnSurvives()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a", QSize(150, 120));
    FakePage* const page = DockFixture::Page(*panel);
    page->setAttribute(Qt::WA_NativeWindow);
    QVERIFY(page->winId());
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    for (int i = 0; i < 3; ++i) {
        panel->SetFloated(QPoint(30, 40));
        DockFixture::Settle();
        QVERIFY(page->isVisible() && page->windowHandle()->isVisible());
        QVERIFY(page->width() >= page->minimumWidth() && page->height() >= page->minimumHeight());
        QVERIFY(fixture.Site(DockLayout::Side(i))->AddWidget(panel));
        DockFixture::Settle();
        QVERIFY(page->isVisible() && page->windowHandle()->isVisible());
        QVERIFY(page->width() >= page->minimumWidth() && page->height() >= page->minimumHeight());
    }
    QCOMPARE(fixture.Inconsistency(), QString());
}

OVK_TEST_CLASS(DockFloatTest)

#include "dock_float_test.moc"
