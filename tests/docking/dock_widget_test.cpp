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
    void tabsShowByNumberOfPages_data();
    void tabsShowByNumberOfPages();
    void theTitleTellsThePageOrThePanel_data();
    void theTitleTellsThePageOrThePanel();
    void aPageThatChangesItsNameChangesTitleAndTab();
    void pagesAreAddedAtTheirPlace();
    void insertPageAppends();
    void aPageIsInAPanelOnce();
    void aWrapperLivesAsLongAsItsWidget();
    void aRemovedPageGoesToTheParent();
    void aDeletedPageLeavesThePanel();
    void aPageThatMovesElsewhereLeavesThePanel();
    void pagesOutliveThePanelUnlessOwned();
    void hiddenPagesLoseTheirTab();
    void pagesThatAreNotAvailableHaveNoTab();
    void aPanelWithoutAnAvailablePageShowsLater();
    void aPageShownAgainReturnsToItsPlace();
    void movedTabsMoveThePages();
    void pageFindsItsPanel();
    void sizesComeFromThePages();
    void pagesOfAGroupShareTheirMinimum();
    void groupsAreMeasuredOnce();
    void fitToCurrentFollowsTheCurrentPage();
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

void DockWidgetTest::tabsShowByNumberOfPages_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("hide_last");
    QTest::addColumn<bool>("shown");
    QTest::newRow("none") << 0 << true << false << false;
    QTest::newRow("one") << 1 << true << true << false;
    QTest::newRow("one, kept") << 1 << true << false << true;
    QTest::newRow("one, kept though off") << 1 << false << false << true;
    QTest::newRow("two") << 2 << true << true << true;
    QTest::newRow("two, off") << 2 << false << true << false;
    QTest::newRow("two, off, kept") << 2 << false << false << false;
}

void DockWidgetTest::tabsShowByNumberOfPages()
{
    QFETCH(int, pages);
    QFETCH(bool, enabled);
    QFETCH(bool, hide_last);
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    for (int i = 0; i < pages; ++i)
        panel->AddPage(new FakePage(QString::number(i)));
    panel->SetTabsEnabled(enabled);
    panel->SetHideLastTab(hide_last);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QTEST(!panel->_Impl()->tab_bar->isHidden(), "shown");
    QCOMPARE(panel->_Impl()->tab_bar->count(), pages);
}

void DockWidgetTest::theTitleTellsThePageOrThePanel_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QString>("forced");
    QTest::addColumn<QString>("title");
    QTest::newRow("no page") << 0 << "Tools" << "Tools";
    QTest::newRow("one page") << 1 << "Tools" << "page0";
    QTest::newRow("two pages") << 2 << "Tools" << "Tools";
    QTest::newRow("two pages, no name") << 2 << "" << "page0";
}

void DockWidgetTest::theTitleTellsThePageOrThePanel()
{
    QFETCH(int, pages);
    QFETCH(QString, forced);
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    for (int i = 0; i < pages; ++i)
        panel->AddPage(new FakePage(QStringLiteral("page%1").arg(i)));
    panel->SetForcedTitle(forced);
    DockFixture::Settle();
    QVERIFY(panel->IsTitleVisible());
    QTEST(panel->_Impl()->title->GetTitle(), "title");
}

void DockWidgetTest::aPageThatChangesItsNameChangesTitleAndTab()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    DockFixture::Page(*panel)->setWindowTitle("renamed");
    DockFixture::Settle();
    QCOMPARE(panel->_Impl()->title->GetTitle(), QStringLiteral("renamed"));
    QCOMPARE(panel->_Impl()->tab_bar->tabText(0), QStringLiteral("renamed"));
}

void DockWidgetTest::pagesAreAddedAtTheirPlace()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    auto* const a = new QWidget;
    auto* const b = new QWidget;
    auto* const c = new QWidget;
    auto* const d = new QWidget;
    IDockPage* const page_a = panel->AddWidget(a);
    IDockPage* const page_b = panel->InsertWidget(0, b, DockWidget::All);
    IDockPage* const page_c = panel->InsertWidget(1, c, DockWidget::Visible);
    IDockPage* const page_d = panel->InsertWidget(99, d, DockWidget::Visible);
    QCOMPARE(panel->GetCount(DockWidget::All), 4);
    QCOMPARE(panel->GetPageAt(0, DockWidget::All), page_b);
    QCOMPARE(panel->GetPageAt(1, DockWidget::All), page_c);
    QCOMPARE(panel->GetPageAt(2, DockWidget::All), page_a);
    QCOMPARE(panel->GetPageAt(3, DockWidget::All), page_d);
    QCOMPARE(panel->GetPageAt(4, DockWidget::All), nullptr);
    QCOMPARE(panel->GetPageAt(-1, DockWidget::Visible), nullptr);
    QCOMPARE(panel->GetIndexOf(page_a, DockWidget::Visible), 2);
    QCOMPARE(panel->GetIndexOf(nullptr, DockWidget::All), -1);
    QVERIFY(a->isHidden());
    QCOMPARE(a->parentWidget(), static_cast<QWidget*>(panel));
}

void DockWidgetTest::insertPageAppends()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const page = new FakePage("second");
    QVERIFY(panel->InsertPage(0, page, DockWidget::Visible));
    QCOMPARE(panel->GetIndexOf(page, DockWidget::All), 1);
    QCOMPARE(panel->GetIndexOf(page, DockWidget::Visible), 1);
}

void DockWidgetTest::aPageIsInAPanelOnce()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    QVERIFY(!panel->AddPage(DockFixture::Page(*panel)));
    QVERIFY(!panel->AddPage(nullptr));
    QCOMPARE(panel->AddWidget(nullptr), nullptr);
    QCOMPARE(panel->AddWidget(DockFixture::Page(*panel)), nullptr);
    PageWrapper empty(nullptr);
    QVERIFY(!panel->AddPage(&empty));
    QCOMPARE(empty.GetId(), QString());
    QCOMPARE(panel->GetCount(DockWidget::All), 1);
}

void DockWidgetTest::aWrapperLivesAsLongAsItsWidget()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    auto* const widget = new QWidget(fixture.manager);
    widget->setObjectName("w");
    auto* const wrapper = dynamic_cast<PageWrapper*>(panel->AddWidget(widget));
    const QPointer<QObject> watched = wrapper;
    QCOMPARE(wrapper->GetId(), QStringLiteral("w"));
    QCOMPARE(wrapper->GetWidget(), widget);
    QVERIFY(wrapper->IsAvailable());
    QVERIFY(wrapper->IsToggleable());
    QCOMPARE(wrapper->GetSizeGroupId(), QString());
    QCOMPARE(wrapper->GetSizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(wrapper->GetPrefferedSize(), QSize(-1, -1));
    QVERIFY(panel->RemoveWidget(widget));
    QVERIFY(watched);
    delete widget;
    QVERIFY(watched.isNull());
}

void DockWidgetTest::aRemovedPageGoesToTheParent()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    FakePage* const page = DockFixture::Page(*panel);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QVERIFY(page->isVisible());
    QVERIFY(panel->RemovePage(page));
    QCOMPARE(page->parentWidget(), static_cast<QWidget*>(fixture.manager));
    QVERIFY(!page->isVisible());
    QVERIFY(!panel->IsVisible());
    QCOMPARE(panel->GetCount(DockWidget::All), 0);
    QVERIFY(!panel->RemovePage(page));
    QVERIFY(!panel->RemovePage(0, DockWidget::All));
    QVERIFY(!panel->RemoveWidget(page));
}

void DockWidgetTest::aDeletedPageLeavesThePanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("second");
    panel->AddPage(second);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    delete DockFixture::Page(*panel);
    QCOMPARE(panel->GetCount(DockWidget::All), 1);
    QCOMPARE(panel->GetCurrentPage(), static_cast<IDockPage*>(second));
    DockFixture::Settle();
    QVERIFY(second->isVisible());
    delete second;
    QVERIFY(!panel->IsVisible());
    DockFixture::Settle();
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockWidgetTest::aPageThatMovesElsewhereLeavesThePanel()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a");
    DockWidget* const b = fixture.Panel("b");
    FakePage* const page = DockFixture::Page(*a);
    b->AddPage(page);
    QCOMPARE(a->GetCount(DockWidget::All), 0);
    QCOMPARE(b->GetCount(DockWidget::All), 2);
    QCOMPARE(page->GetDockWidget(), b);
}

void DockWidgetTest::pagesOutliveThePanelUnlessOwned()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a");
    const QPointer<FakePage> kept = DockFixture::Page(*a);
    delete a;
    QVERIFY(kept);
    QCOMPARE(kept->parentWidget(), static_cast<QWidget*>(fixture.manager));
    DockWidget* const b = fixture.Panel("b");
    b->SetOwnWidgets(true);
    const QPointer<FakePage> owned = DockFixture::Page(*b);
    delete b;
    QVERIFY(owned.isNull());
}

void DockWidgetTest::hiddenPagesLoseTheirTab()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("second");
    panel->AddPage(second);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetPageVisible(static_cast<IDockPage*>(second), false);
    QVERIFY(panel->IsExplicitlyHidden(static_cast<IDockPage*>(second)));
    QVERIFY(panel->IsExplicitlyHidden(static_cast<QWidget*>(second)));
    QVERIFY(!panel->IsPageVisible(static_cast<IDockPage*>(second)));
    QCOMPARE(panel->GetCount(DockWidget::Visible), 1);
    panel->SetPageVisible(panel->GetPageAt(0, DockWidget::All), false);
    QVERIFY(!panel->IsVisible());
    QVERIFY(!panel->IsExplicitlyHidden());
    panel->SetPageVisible(static_cast<QWidget*>(second), true);
    QVERIFY(panel->IsVisible());
    QVERIFY(panel->IsPageVisible(static_cast<QWidget*>(second)));
    panel->SetPageVisible(static_cast<IDockPage*>(nullptr), true);
}

void DockWidgetTest::pagesThatAreNotAvailableHaveNoTab()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("second");
    second->available = false;
    panel->AddPage(second);
    QCOMPARE(panel->GetCount(DockWidget::All), 2);
    QCOMPARE(panel->GetCount(DockWidget::Visible), 1);
    second->available = true;
    panel->AvailabilityChanged();
    QCOMPARE(panel->GetCount(DockWidget::Visible), 2);
    panel->SetPageVisible(static_cast<IDockPage*>(second), false);
    panel->AvailabilityChanged();
    QCOMPARE(panel->GetCount(DockWidget::Visible), 1);
}

void DockWidgetTest::aPanelWithoutAnAvailablePageShowsLater()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    auto* const page = new FakePage("page");
    page->available = false;
    panel->AddPage(page);
    panel->setVisible(false);
    fixture.Left()->AddWidget(panel);
    panel->setVisible(true);
    DockFixture::Settle();
    QVERIFY(!panel->IsVisible());
    QVERIFY(!panel->IsExplicitlyHidden());
    page->available = true;
    panel->AvailabilityChanged();
    DockFixture::Settle();
    QVERIFY(panel->isVisible());
    QVERIFY(page->isVisible());
}

void DockWidgetTest::aPageShownAgainReturnsToItsPlace()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    QList<FakePage*> pages;
    for (int i = 0; i < 4; ++i) {
        pages.append(new FakePage(QString::number(i)));
        panel->AddPage(pages.last());
    }
    const auto set = [&](int i, bool visible) {
        panel->SetPageVisible(static_cast<IDockPage*>(pages.at(i)), visible);
    };
    set(1, false);
    set(2, false);
    set(2, true);
    QCOMPARE(panel->GetIndexOf(pages.at(2), DockWidget::Visible), 1);
    set(1, true);
    QCOMPARE(panel->GetIndexOf(pages.at(1), DockWidget::Visible), 1);
    set(0, false);
    set(0, true);
    QCOMPARE(panel->GetIndexOf(pages.at(0), DockWidget::Visible), 0);
    QCOMPARE(panel->_Impl()->tab_bar->tabText(2), QStringLiteral("2"));
}

void DockWidgetTest::movedTabsMoveThePages()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    QList<IDockPage*> pages;
    for (int i = 0; i < 4; ++i) {
        pages.append(new FakePage(QString::number(i)));
        panel->AddPage(pages.last());
    }
    panel->SetPageVisible(pages.at(1), false);
    panel->_Impl()->tab_bar->moveTab(0, 2);
    QCOMPARE(panel->_Impl()->visible_pages, (QList<IDockPage*>{pages[2], pages[3], pages[0]}));
    QCOMPARE(panel->_Impl()->all_pages,
             (QList<IDockPage*>{pages[1], pages[2], pages[3], pages[0]}));
}

void DockWidgetTest::pageFindsItsPanel()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const second = new FakePage("second");
    QCOMPARE(second->GetDockWidget(), nullptr);
    second->SetActive();
    second->SetVisible(true);
    panel->AddPage(second);
    fixture.Left()->AddWidget(panel);
    panel->setVisible(false);
    second->SetVisible(true);
    QVERIFY(panel->IsVisible());
    second->SetActive();
    QCOMPARE(panel->GetCurrentIndex(), 1);
    QCOMPARE(panel->GetCurrentPage(), static_cast<IDockPage*>(second));
    second->SetVisible(false);
    QVERIFY(panel->IsVisible());
    QCOMPARE(panel->GetCurrentIndex(), 0);
}

void DockWidgetTest::sizesComeFromThePages()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    auto* const a = new FakePage("a", QSize(100, 50));
    auto* const b = new FakePage("b", QSize(80, 90));
    b->setMaximumSize(400, 300);
    panel->AddPage(a);
    panel->AddPage(b);
    DockFixture::Settle();
    const int frame = 2 * panel->frameWidth();
    const int chrome = frame + panel->_Impl()->title->sizeHint().height()
                       + panel->_Impl()->tab_bar->sizeHint().height();
    DockWidget::Impl& impl = *panel->_Impl();
    QCOMPARE(impl.GetAllMin(), QSize(100 + frame, 90 + chrome));
    QCOMPARE(impl.GetAllMax(), QSize(400 + frame, 300 + chrome));
    QCOMPARE(impl.GetCollapsedMin(), QSize(100 + frame, chrome));
    QCOMPARE(impl.GetCurrentMin(), impl.GetAllMin());
    QCOMPARE(impl.GetCurrentMax(), impl.GetAllMax());
    panel->SetCollapsible(false);
    QCOMPARE(impl.GetCollapsedMin(), impl.GetAllMin());
    b->setMaximumSize(20, 20);
    b->setMinimumSize(10, 10);
    impl.PostUpdate(DockWidget::Impl::UpdateSizes);
    QCOMPARE(impl.GetAllMin(), QSize(100 + frame, 50 + chrome));
    QCOMPARE(impl.GetAllMax(), impl.GetAllMin());
    panel->RemovePage(b);
    DockFixture::Settle();
    QCOMPARE(impl.GetAllMax(), QSize(0xFFFFFF, 0xFFFFFF));
}

void DockWidgetTest::pagesOfAGroupShareTheirMinimum()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    panel->SetFitToCurrent(true);
    auto* const a = new FakePage("a", QSize(100, 50));
    auto* const b = new FakePage("b", QSize(80, 90));
    auto* const c = new FakePage("c", QSize(300, 300));
    a->group = b->group = "g";
    panel->AddPage(a);
    panel->AddPage(b);
    panel->AddPage(c);
    DockFixture::Settle();
    DockWidget::Impl& impl = *panel->_Impl();
    const QSize chrome = impl.GetCollapsedMin() - QSize(300, 0);
    QCOMPARE(impl.GetCurrentMin(), QSize(100, 90) + chrome);
    // A page of a group that does not grow is as large as the group and no larger.
    QCOMPARE(impl.GetCurrentMax(), QSize(100, 90) + chrome);
    a->policy.setVerticalPolicy(QSizePolicy::Expanding);
    impl.PostUpdate(DockWidget::Impl::UpdateSizes);
    QCOMPARE(impl.GetCurrentMax(), QSize(0xFFFFFF, 0xFFFFFF));
    panel->SetPageVisible(static_cast<IDockPage*>(b), false);
    QCOMPARE(impl.GetCurrentMin(), QSize(100, 90) + chrome);
    panel->SetPageVisible(static_cast<IDockPage*>(c), false);
    DockFixture::Settle();
    // Alone it needs no more than itself.
    QCOMPARE(impl.GetCurrentMin().width(), 100 + chrome.width());
}

void DockWidgetTest::groupsAreMeasuredOnce()
{
    class CountedPage : public FakePage
    {
    public:
        CountedPage(const QString& id, int& counter) : FakePage(id), asked(&counter) {}
        QString GetSizeGroupId() const override
        {
            ++*asked;
            return QStringLiteral("g");
        }
        int* asked;
    };
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    int asked = 0;
    constexpr int pages = 100;
    for (int i = 0; i < pages; ++i)
        panel->AddPage(new CountedPage(QString::number(i), asked));
    DockFixture::Settle();
    panel->_Impl()->PostUpdate(DockWidget::Impl::UpdateSizes);
    asked = 0;
    panel->_Impl()->GetAllMin();
    QVERIFY2(asked <= 5 * pages, qPrintable(QString::number(asked)));
}

void DockWidgetTest::fitToCurrentFollowsTheCurrentPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    panel->SetFitToCurrent(true);
    panel->AddPage(new FakePage("a", QSize(100, 50)));
    panel->AddPage(new FakePage("b", QSize(100, 200)));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    const int low = panel->height();
    panel->SetCurrentIndex(1);
    DockFixture::Settle();
    QCOMPARE(panel->height(), low + 150);
    QVERIFY(DockFixture::Page(*panel, 1)->isVisible());
    QVERIFY(!DockFixture::Page(*panel, 0)->isVisible());
    QCOMPARE(DockFixture::Page(*panel, 1)->activated, 1);
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
    QCOMPARE(t, qMax(title->fontMetrics().height(), title->GetRight().first()->height())
                    + 2 * title->style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr,
                                                      title));
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
