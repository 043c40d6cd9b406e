#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QMenu>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

class DockFoldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFoldedPanelKeepsItsTabs();
    void clickingTheCurrentTabOpensAFoldedPanel();
    void clickingAnotherTabOpensAFoldedPanel();
    void clickingATabGivesTheFocusToItsPage();
    void aPanelThatIsPinnedOpens();
    void noTitleMeansNoFolding();
    void theButtonsWork();
    void theButtonsFollowTheState();
    void theSignsHaveTheInkOfTheTitle();
    void theMenuTogglesPages();
    void theMenuCanBeTakenAway();
    void aDoubleClickFoldsThePanel();
    void aPageMayDeleteItsPanelWhenItBecomesActive();
};

void DockFoldTest::aFoldedPanelKeepsItsTabs()
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

void DockFoldTest::clickingTheCurrentTabOpensAFoldedPanel()
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

void DockFoldTest::clickingAnotherTabOpensAFoldedPanel()
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

void DockFoldTest::clickingATabGivesTheFocusToItsPage()
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

void DockFoldTest::aPanelThatIsPinnedOpens()
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

void DockFoldTest::noTitleMeansNoFolding()
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

void DockFoldTest::theButtonsWork()
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

void DockFoldTest::theButtonsFollowTheState()
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
    // A button that stays takes the place of one that went: the grip ends before it.
    panel->SetClosable(true);
    DockFixture::Settle();
    const int margin =
        title->style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, title);
    QCOMPARE(title->GetCloseButton()->geometry().right() + 1, title->width() - margin);
    panel->_Impl()->SetExpandAvailable(false);
    DockFixture::Settle();
    QVERIFY(!title->GetMinimizeButton()->isEnabled());
    panel->SetCollapsed(false, false);
    DockFixture::Settle();
    QVERIFY(title->GetMinimizeButton()->isEnabled());
}

void DockFoldTest::theMenuTogglesPages()
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

void DockFoldTest::theMenuCanBeTakenAway()
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

void DockFoldTest::aDoubleClickFoldsThePanel()
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

void DockFoldTest::aPageMayDeleteItsPanelWhenItBecomesActive()
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

void DockFoldTest::theSignsHaveTheInkOfTheTitle()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    auto* const title = qobject_cast<DockWidgetTitle*>(panel->_Impl()->title.data());
    QPalette palette = title->palette();
    palette.setColor(QPalette::WindowText, QColor(0, 200, 0));
    title->setPalette(palette);
    for (QWidget* button : {static_cast<QWidget*>(title->GetMinimizeButton()),
                            static_cast<QWidget*>(title->GetCollapsibleButton())}) {
        const QImage image = button->grab().toImage();
        int green = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                green += color.green() > color.red() + 60;
            }
        }
        QVERIFY(green > 5);
    }
}

OVK_TEST_CLASS(DockFoldTest)

#include "dock_fold_test.moc"
