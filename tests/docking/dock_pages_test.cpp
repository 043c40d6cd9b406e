#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

class DockPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void DockPagesTest::tabsShowByNumberOfPages_data()
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

void DockPagesTest::tabsShowByNumberOfPages()
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

void DockPagesTest::theTitleTellsThePageOrThePanel_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QString>("forced");
    QTest::addColumn<QString>("title");
    QTest::newRow("no page") << 0 << "Tools"
                             << "Tools";
    QTest::newRow("one page") << 1 << "Tools"
                              << "page0";
    QTest::newRow("two pages") << 2 << "Tools"
                               << "Tools";
    QTest::newRow("two pages, no name") << 2 << ""
                                        << "page0";
}

void DockPagesTest::theTitleTellsThePageOrThePanel()
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

void DockPagesTest::aPageThatChangesItsNameChangesTitleAndTab()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    DockFixture::Page(*panel)->setWindowTitle("renamed");
    DockFixture::Settle();
    QCOMPARE(panel->_Impl()->title->GetTitle(), QStringLiteral("renamed"));
    QCOMPARE(panel->_Impl()->tab_bar->tabText(0), QStringLiteral("renamed"));
}

void DockPagesTest::pagesAreAddedAtTheirPlace()
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

void DockPagesTest::insertPageAppends()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    auto* const page = new FakePage("second");
    QVERIFY(panel->InsertPage(0, page, DockWidget::Visible));
    QCOMPARE(panel->GetIndexOf(page, DockWidget::All), 1);
    QCOMPARE(panel->GetIndexOf(page, DockWidget::Visible), 1);
}

void DockPagesTest::aPageIsInAPanelOnce()
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

void DockPagesTest::aWrapperLivesAsLongAsItsWidget()
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

void DockPagesTest::aRemovedPageGoesToTheParent()
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

void DockPagesTest::aDeletedPageLeavesThePanel()
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

void DockPagesTest::aPageThatMovesElsewhereLeavesThePanel()
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

void DockPagesTest::pagesOutliveThePanelUnlessOwned()
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

void DockPagesTest::hiddenPagesLoseTheirTab()
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

void DockPagesTest::pagesThatAreNotAvailableHaveNoTab()
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

void DockPagesTest::aPanelWithoutAnAvailablePageShowsLater()
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

void DockPagesTest::aPageShownAgainReturnsToItsPlace()
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

void DockPagesTest::movedTabsMoveThePages()
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

void DockPagesTest::pageFindsItsPanel()
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

void DockPagesTest::sizesComeFromThePages()
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
    const int chrome = frame + panel->_Impl()->title->sizeHint().height() +
                       panel->_Impl()->tab_bar->sizeHint().height();
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

void DockPagesTest::pagesOfAGroupShareTheirMinimum()
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

void DockPagesTest::groupsAreMeasuredOnce()
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

void DockPagesTest::fitToCurrentFollowsTheCurrentPage()
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

OVK_TEST_CLASS(DockPagesTest)

#include "dock_pages_test.moc"
