#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

class DockWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewPanelStandsAtItsDefaults();
    void aBurstOfChangesIsOneEvent();
    void settersPostOnlyWhatChanged_data();
    void settersPostOnlyWhatChanged();
    void aFoldedPanelKeepsItsTabs();
    void clickingTheCurrentTabOpensAFoldedPanel();
    void clickingAnotherTabOpensAFoldedPanel();
    void clickingATabGivesTheFocusToItsPage();
    void aPanelThatIsPinnedOpens();
    void noTitleMeansNoFolding();
    void theButtonsWork();
    void theButtonsFollowTheState();
    void theMenuTogglesPages();
    void theMenuCanBeTakenAway();
    void aDoubleClickFoldsThePanel();
    void closingDeletesOrHides();
    void aFloatingPanelRemembersTheSizeOfItsPage();
    void aPanelOffTheScreenComesBack();
    void floatingAndDockingAreClean();
    void aBlockedPanelIsCovered();
    void aPageMayDeleteItsPanelWhenItBecomesActive();
    void theLayoutOfThePanelIsTitleTabsPage();
    void panelsDockedBeforeTheWindowShowsAppearWithIt();
};

void DockWidgetTest::aNewPanelStandsAtItsDefaults()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    QCOMPARE(panel->parentWidget(), static_cast<QWidget*>(fixture.manager));
    QCOMPARE(panel->frameShape(), QFrame::Box);
    QCOMPARE(panel->_Impl()->pending_updates, 54);
    QVERIFY(panel->IsCollapsible());
    QVERIFY(!panel->IsOwnWidgets());
    QVERIFY(panel->IsTabsEnabled());
    QVERIFY(panel->IsHideLastTab());
    QVERIFY(panel->IsTitleEnabled());
    QVERIFY(!panel->IsFitToCurrent());
    QVERIFY(!panel->IsCollapsed());
    QVERIFY(!panel->IsForcedCollapsed());
    QVERIFY(panel->IsDeleteOnClose());
    QVERIFY(panel->IsDeleteOnEmpty());
    QVERIFY(panel->IsClosable());
    QVERIFY(panel->IsMovable());
    QVERIFY(panel->IsEnabled());
    QVERIFY(!panel->IsFloated());
    QVERIFY(!panel->IsAvailable());
    QVERIFY(!panel->IsExplicitlyHidden());
    QCOMPARE(panel->GetCurrentPage(), nullptr);
    QCOMPARE(panel->GetCurrentIndex(), -1);
    QCOMPARE(panel->GetManager(), fixture.manager);
    QCOMPARE(panel->GetToolboxSite(), nullptr);
}

void DockWidgetTest::aBurstOfChangesIsOneEvent()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    class Counter : public QObject
    {
    public:
        int events = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            events += event->type() == DockUpdateEvent::GetType() ? 1 : 0;
            return false;
        }
    } counter;
    DockFixture::Settle();
    panel->_Impl()->installEventFilter(&counter);
    panel->SetForcedTitle("x");
    panel->SetClosable(false);
    panel->HideContextMenu(true);
    panel->SetHideLastTab(false);
    QCOMPARE(panel->_Impl()->pending_updates, 2 | 16 | 4);
    QCoreApplication::sendPostedEvents(panel->_Impl(), 0);
    QCOMPARE(counter.events, 1);
    QCOMPARE(panel->_Impl()->pending_updates, 0);
}

void DockWidgetTest::settersPostOnlyWhatChanged_data()
{
    QTest::addColumn<int>("setter");
    QTest::addColumn<int>("flags");
    QTest::newRow("hide last tab") << 0 << 4;
    QTest::newRow("hide last tab, same") << 1 << 0;
    QTest::newRow("tabs") << 2 << 4;
    QTest::newRow("title") << 3 << 32;
    QTest::newRow("closable") << 4 << 16;
    QTest::newRow("closable, same") << 5 << 0;
    QTest::newRow("menu, same") << 6 << 16;
    QTest::newRow("forced title, same") << 7 << 2;
    QTest::newRow("collapsible") << 8 << 16;
    QTest::newRow("collapsible, same") << 9 << 0;
    QTest::newRow("fold") << 10 << 24;
    QTest::newRow("fold, same") << 11 << 0;
}

void DockWidgetTest::settersPostOnlyWhatChanged()
{
    QFETCH(int, setter);
    const std::function<void(DockWidget&)> setters[] = {
        [](DockWidget& w) { w.SetHideLastTab(false); },
        [](DockWidget& w) { w.SetHideLastTab(true); },
        [](DockWidget& w) { w.SetTabsEnabled(false); },
        [](DockWidget& w) { w.SetTitleEnabled(false); },
        [](DockWidget& w) { w.SetClosable(false); },
        [](DockWidget& w) { w.SetClosable(true); },
        [](DockWidget& w) { w.HideContextMenu(false); },
        [](DockWidget& w) { w.SetForcedTitle(w.GetForcedTitle()); },
        [](DockWidget& w) { w.SetCollapsible(false); },
        [](DockWidget& w) { w.SetCollapsible(true); },
        [](DockWidget& w) { w.SetCollapsed(true, false); },
        [](DockWidget& w) { w.SetCollapsed(false, false); },
    };
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    DockFixture::Settle();
    QCOMPARE(panel->_Impl()->pending_updates, 0);
    setters[setter](*panel);
    QTEST(panel->_Impl()->pending_updates, "flags");
}

void DockWidgetTest::aFoldedPanelKeepsItsTabs()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    QVERIFY(panel->_Impl()->tab_bar->isVisible());
    QVERIFY(!DockFixture::Page(*panel, 0)->isVisible());
    QCOMPARE(panel->height(), panel->_Impl()->GetCollapsedMin().height());
}

void DockWidgetTest::clickingTheCurrentTabOpensAFoldedPanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    QVERIFY(!panel->IsCollapsed());
    DockFixture::Settle();
    QVERIFY(DockFixture::Page(*panel, 0)->isVisible());
}

void DockWidgetTest::clickingAnotherTabOpensAFoldedPanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    QVERIFY(!panel->IsCollapsed());
    QCOMPARE(panel->GetCurrentIndex(), 1);
    QVERIFY(!panel->_Impl()->expand_on_tab_change);
    DockFixture::Settle();
    QVERIFY(DockFixture::Page(*panel, 1)->isVisible());
}

void DockWidgetTest::clickingATabGivesTheFocusToItsPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("b");
    second->setFocusPolicy(Qt::StrongFocus);
    panel->AddPage(second);
    fixture.Left()->AddWidget(panel);
    fixture.window.activateWindow();
    DockFixture::Settle();
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    DockFixture::Settle();
    QCOMPARE(fixture.window.focusWidget(), static_cast<QWidget*>(second));
}

void DockWidgetTest::aPanelThatIsPinnedOpens()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCollapsed(true, false);
    panel->SetCollapsible(false);
    QVERIFY(!panel->IsCollapsed());
    panel->SetCollapsed(true, false);
    QVERIFY(!panel->IsCollapsed());
}

void DockWidgetTest::noTitleMeansNoFolding()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->SetTitleEnabled(false);
    DockFixture::Settle();
    QVERIFY(!panel->IsTitleVisible());
    QVERIFY(!panel->IsCollapsible());
    panel->SetCollapsed(true, false);
    QVERIFY(!panel->IsCollapsed());
    panel->SetTitleEnabled(true);
    DockFixture::Settle();
    QVERIFY(panel->IsTitleVisible());
    QCOMPARE(panel->_Impl()->title->GetTitle(), QStringLiteral("a.page"));
}

void DockWidgetTest::theButtonsWork()
{
    DockFixture fixture;
    const QPointer<DockWidget> panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    auto* const title = qobject_cast<DockWidgetTitle*>(panel->_Impl()->title.data());
    QTest::mouseClick(title->GetMinimizeButton(), Qt::LeftButton);
    QVERIFY(panel->IsCollapsed());
    QTest::mouseClick(title->GetMinimizeButton(), Qt::LeftButton);
    QVERIFY(!panel->IsCollapsed());
    QTest::mouseClick(title->GetCollapsibleButton(), Qt::LeftButton);
    QVERIFY(!panel->IsCollapsible());
    QTest::mouseClick(title->GetCollapsibleButton(), Qt::LeftButton);
    QVERIFY(panel->IsCollapsible());
    QTest::mouseClick(title->GetCloseButton(), Qt::LeftButton);
    DockFixture::Settle();
    QVERIFY(panel.isNull());
}

void DockWidgetTest::theButtonsFollowTheState()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    auto* const title = qobject_cast<DockWidgetTitle*>(panel->_Impl()->title.data());
    const int size = title->style()->pixelMetric(QStyle::PM_TabBarIconSize, nullptr, title);
    QCOMPARE(title->GetCloseButton()->size(), QSize(size, size));
    QVERIFY(title->GetCloseButton()->autoRaise());
    QVERIFY(!title->GetCollapsibleButton()->isHidden());
    QVERIFY(title->GetMinimizeButton()->isEnabled());
    panel->SetClosable(false);
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    QVERIFY(title->GetCloseButton()->isHidden());
    QVERIFY(title->GetCollapsibleButton()->isHidden());
    panel->_Impl()->SetExpandAvailable(false);
    DockFixture::Settle();
    QVERIFY(!title->GetMinimizeButton()->isEnabled());
    panel->SetCollapsed(false, false);
    DockFixture::Settle();
    QVERIFY(title->GetMinimizeButton()->isEnabled());
}

void DockWidgetTest::theMenuTogglesPages()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const fixed = new FakePage("fixed");
    fixed->toggleable = false;
    auto* const away = new FakePage("away");
    away->available = false;
    panel->AddPage(fixed);
    panel->AddPage(away);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    DockTitle* const title = panel->_Impl()->title;
    QCOMPARE(title->contextMenuPolicy(), Qt::CustomContextMenu);
    Q_EMIT title->customContextMenuRequested(QPoint(5, 5));
    auto* const menu = panel->findChild<QMenu*>();
    QVERIFY(menu);
    const QList<QAction*> actions = menu->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.at(0)->text(), QStringLiteral("a.page"));
    QVERIFY(actions.at(0)->isEnabled() && actions.at(0)->isChecked());
    QVERIFY(!actions.at(1)->isEnabled() && actions.at(1)->isChecked());
    QVERIFY(!actions.at(2)->isEnabled() && !actions.at(2)->isChecked());
    actions.at(0)->trigger();
    QVERIFY(!panel->IsPageVisible(panel->GetPageAt(0, DockWidget::All)));
    QCOMPARE(DockFixture::Page(*panel)->toggled, QList<bool>{false});
    menu->close();
    DockFixture::Settle();
    QVERIFY(!panel->findChild<QMenu*>());
}

void DockWidgetTest::theMenuCanBeTakenAway()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->HideContextMenu(true);
    DockFixture::Settle();
    QCOMPARE(panel->_Impl()->title->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(panel->_Impl()->tab_bar->contextMenuPolicy(), Qt::NoContextMenu);
    DockWidget* const empty = fixture.manager->CreateDockWidget();
    DockFixture::Settle();
    Q_EMIT empty->_Impl()->title->customContextMenuRequested(QPoint(0, 0));
    QVERIFY(!empty->findChild<QMenu*>());
}

void DockWidgetTest::aDoubleClickFoldsThePanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTest::mouseDClick(panel->_Impl()->title, Qt::LeftButton, {}, QPoint(60, 5));
    QVERIFY(panel->IsCollapsed());
    QTest::mouseDClick(panel->_Impl()->title, Qt::LeftButton, {}, QPoint(60, 5));
    QVERIFY(!panel->IsCollapsed());
}

void DockWidgetTest::closingDeletesOrHides()
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

void DockWidgetTest::aFloatingPanelRemembersTheSizeOfItsPage()
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

void DockWidgetTest::aPanelOffTheScreenComesBack()
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

void DockWidgetTest::floatingAndDockingAreClean()
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
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockWidgetTest::aBlockedPanelIsCovered()
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

void DockWidgetTest::aPageMayDeleteItsPanelWhenItBecomesActive()
{
    DockFixture fixture;
    const QPointer<DockWidget> panel = fixture.Panel("a");
    auto* const second = new FakePage("b");
    panel->AddPage(second);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    // A host that switches the layout from inside the callback.
    second->on_activated = [&] { fixture.manager->Clear(); };
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    QCOMPARE(DockFixture::Order(*fixture.Left()), QStringList{"|"});
    DockFixture::Settle();
    QVERIFY(panel.isNull());
    QCOMPARE(second->parentWidget(), static_cast<QWidget*>(fixture.manager));
}

void DockWidgetTest::theLayoutOfThePanelIsTitleTabsPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->AddPage(new FakePage("b"));
    panel->SetFloated(QPoint(50, 50));
    DockFixture::Settle();
    panel->resize(300, 250);
    const int f = panel->frameWidth();
    const DockTitle* const title = panel->_Impl()->title;
    const QTabBar* const tabs = panel->_Impl()->tab_bar;
    const int t = title->sizeHint().height();
    const int b = tabs->sizeHint().height();
    QCOMPARE(title->geometry(), QRect(0, 0, 300, t));
    QCOMPARE(tabs->geometry(), QRect(f, f + t, 300 - 2 * f, b));
    QCOMPARE(DockFixture::Page(*panel)->geometry(),
             QRect(f, f + t + b, 300 - 2 * f, 250 - 2 * f - t - b));
    QCOMPARE(t,
             qMax(title->fontMetrics().height(), title->GetRight().first()->height()) +
                 2 * title->style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, title));
}

void DockWidgetTest::panelsDockedBeforeTheWindowShowsAppearWithIt()
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

OVK_TEST_CLASS(DockWidgetTest)

#include "dock_widget_test.moc"
