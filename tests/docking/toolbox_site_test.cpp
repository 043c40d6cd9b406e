#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

class ToolboxSiteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelsAreAddedBeforeTheLastItem();
    void theSmallerPanelFoldsWhenRoomRunsOutAndOpensAgain();
    void aPanelFoldedByHandStaysFolded();
    void aPanelThatDoesNotFitIsRefused();
    void aNewPanelFoldsWhenThereIsNoRoomForIt();
    void othersFoldForAPanelThatMustFit();
    void aHiddenPanelAlwaysFits();
    void theCrossSizeIsTheLeastWidthOfTheSite();
    void removingTheLastPanelForgetsTheCrossSize();
    void aFoldedSiteTakesNoRoomAndComesBack_data();
    void aFoldedSiteTakesNoRoomAndComesBack();
    void panelsOfASideShareTheWidestMinimum();
    void clearDeletesThePanelsAndKeepsThePages();
    void panelsKnowWhetherTheyCouldOpen();
    void sizesAreComputedOnceAChange();
    void aPanelMovesWithinItsSite();
    void aBoxThatWasJustInvalidatedRefusesNobody();
    void aBoxThatWasNeverLaidOutKnowsItsRoom();
    void aResizeStepComputesNoSizes();
    void theFoldButtonIsOffWhereThereIsNoRoom();
    void aPlainPageNeedsTheRoomOfItsLayout();
};

void ToolboxSiteTest::panelsAreAddedBeforeTheLastItem()
{
    DockFixture fixture;
    DockToolboxSite* const site = fixture.Left();
    QVERIFY(site->AddWidget(fixture.Panel("a")));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"a", "|"}));
    QVERIFY(site->AddWidget(fixture.Panel("b")));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"a", "b", "|"}));
    QVERIFY(site->InsertWidget(-1, fixture.Panel("c")));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"a", "b", "|", "c"}));
    QVERIFY(site->InsertWidget(0, fixture.Panel("d")));
    QCOMPARE(DockFixture::Order(*site), (QStringList{"d", "a", "b", "|", "c"}));
    DockFixture::Settle();
    QCOMPARE(fixture.Inconsistency(), QString());
    QList<DockWidget*> panels;
    fixture.manager->DockArea::GetWidgetsList(panels);
    QCOMPARE(panels.size(), 4);
}

void ToolboxSiteTest::theSmallerPanelFoldsWhenRoomRunsOutAndOpensAgain()
{
    DockFixture fixture(QSize(800, 400));
    DockWidget* const large = fixture.Panel("large", QSize(100, 200));
    DockWidget* const small = fixture.Panel("small", QSize(100, 150));
    fixture.Left()->AddWidget(large);
    fixture.Left()->AddWidget(small);
    DockFixture::Settle();
    QVERIFY(!large->IsCollapsed() && !small->IsCollapsed());

    fixture.manager->resize(800, 300);
    DockFixture::Settle();
    QVERIFY(!large->IsCollapsed());
    QVERIFY(small->IsCollapsed());
    QVERIFY(small->IsForcedCollapsed());
    QCOMPARE(small->height(), small->_Impl()->GetCollapsedMin().height());

    fixture.manager->resize(800, 350);
    DockFixture::Settle();
    QVERIFY(!small->IsCollapsed());
    QVERIFY(!small->IsForcedCollapsed());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::aPanelFoldedByHandStaysFolded()
{
    DockFixture fixture(QSize(800, 400));
    DockWidget* const panel = fixture.Panel("a", QSize(100, 200));
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    fixture.manager->resize(800, 600);
    DockFixture::Settle();
    QVERIFY(panel->IsCollapsed());
    QVERIFY(!panel->IsForcedCollapsed());
}

void ToolboxSiteTest::aPanelThatDoesNotFitIsRefused()
{
    DockFixture fixture(QSize(800, 300));
    DockWidget* const rigid = fixture.Panel("rigid", QSize(100, 250));
    rigid->SetCollapsible(false);
    QVERIFY(fixture.Left()->AddWidget(rigid));
    DockFixture::Settle();
    DockWidget* const other = fixture.Panel("other", QSize(100, 100));
    other->SetCollapsible(false);
    other->SetFloated(QPoint(50, 50));
    DockFixture::Settle();
    QVERIFY(!fixture.Left()->AddWidget(other));
    QVERIFY(other->IsFloated());
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"rigid", "|"}));
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::aNewPanelFoldsWhenThereIsNoRoomForIt()
{
    DockFixture fixture(QSize(800, 300));
    fixture.Left()->AddWidget(fixture.Panel("a", QSize(100, 250)));
    DockWidget* const other = fixture.Panel("other", QSize(100, 100));
    other->SetFloated(QPoint(50, 50));
    DockFixture::Settle();
    QVERIFY(fixture.Left()->AddWidget(other));
    QVERIFY(other->IsCollapsed());
    QVERIFY(!other->IsForcedCollapsed());
    DockFixture::Settle();
    QVERIFY(other->isVisible());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::othersFoldForAPanelThatMustFit()
{
    DockFixture fixture(QSize(800, 300));
    DockWidget* const first = fixture.Panel("a", QSize(100, 280));
    fixture.Left()->AddWidget(first);
    DockWidget* const rigid = fixture.Panel("rigid", QSize(100, 100));
    rigid->SetCollapsible(false);
    rigid->SetFloated(QPoint(50, 50));
    DockFixture::Settle();
    QVERIFY(fixture.Left()->AddWidget(rigid));
    QVERIFY(first->IsCollapsed());
    QVERIFY(first->IsForcedCollapsed());
    QVERIFY(!rigid->IsCollapsed());
    DockFixture::Settle();
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::aHiddenPanelAlwaysFits()
{
    DockFixture fixture(QSize(800, 100));
    DockWidget* const large = fixture.Panel("large", QSize(100, 5000));
    large->SetCollapsible(false);
    large->setVisible(false);
    QVERIFY(fixture.Left()->AddWidget(large));
    DockFixture::Settle();
    QVERIFY(!large->isVisible());
}

void ToolboxSiteTest::theCrossSizeIsTheLeastWidthOfTheSite()
{
    DockFixture fixture;
    fixture.Left()->AddWidget(fixture.Panel("a"));
    fixture.Top()->AddWidget(fixture.Panel("b"));
    QCOMPARE(fixture.Left()->GetCrossSize(), 0);
    fixture.Left()->SetCrossSize(220);
    fixture.Top()->SetCrossSize(140);
    DockFixture::Settle();
    QCOMPARE(fixture.Left()->GetCrossSize(), 220);
    QCOMPARE(fixture.Left()->geometry().width(), 220);
    QCOMPARE(fixture.Top()->geometry().height(), 140);
}

void ToolboxSiteTest::removingTheLastPanelForgetsTheCrossSize()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a");
    DockWidget* const b = fixture.Panel("b");
    fixture.Left()->AddWidget(a);
    fixture.Left()->AddWidget(b);
    fixture.Left()->SetCrossSize(220);
    DockFixture::Settle();
    a->SetFloated(QPoint(10, 10));
    QCOMPARE(fixture.Left()->GetCrossSize(), 220);
    b->SetFloated(QPoint(10, 10));
    QCOMPARE(fixture.Left()->GetCrossSize(), 0);
    DockFixture::Settle();
    QCOMPARE(fixture.central->width(), 800);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::aFoldedSiteTakesNoRoomAndComesBack_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("left") << 0;
    QTest::newRow("right") << 1;
    QTest::newRow("top") << 2;
    QTest::newRow("bottom") << 3;
}

void ToolboxSiteTest::aFoldedSiteTakesNoRoomAndComesBack()
{
    QFETCH(int, side);
    DockFixture fixture;
    DockToolboxSite* const site = fixture.Site(DockLayout::Side(side));
    DockWidget* const panel = fixture.Panel("a");
    site->AddWidget(panel);
    site->SetCrossSize(130);
    DockFixture::Settle();
    const auto thickness = [site] {
        return site->IsVertical() ? site->geometry().width() : site->geometry().height();
    };
    QCOMPARE(thickness(), 130);
    site->SetMinimized(true);
    DockFixture::Settle();
    QVERIFY(site->IsMinimized());
    QCOMPARE(thickness(), 0);
    QVERIFY(site->GetDockSite()->_pp()->handle->isVisible());
    // A panel that comes meanwhile is folded too.
    site->AddWidget(fixture.Panel("b"));
    DockFixture::Settle();
    QCOMPARE(thickness(), 0);
    site->SetMinimized(false);
    DockFixture::Settle();
    QCOMPARE(thickness(), 130);
    QCOMPARE(site->GetCrossSize(), 130);
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::panelsOfASideShareTheWidestMinimum()
{
    DockFixture fixture;
    DockWidget* const narrow = fixture.Panel("narrow", QSize(90, 80));
    DockWidget* const wide = fixture.Panel("wide", QSize(210, 80));
    fixture.Left()->AddWidget(wide);
    fixture.Left()->AddWidget(narrow);
    DockFixture::Settle();
    narrow->_Impl()->PostUpdate(DockWidget::Impl::UpdateSizes);
    DockFixture::Settle();
    QCOMPARE(narrow->minimumWidth(), 210);
    QCOMPARE(narrow->maximumWidth(), 0xFFFFFF);
    QCOMPARE(narrow->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(narrow->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
}

void ToolboxSiteTest::clearDeletesThePanelsAndKeepsThePages()
{
    DockFixture fixture;
    const QPointer<DockWidget> panel = fixture.Panel("a");
    const QPointer<FakePage> page = DockFixture::Page(*panel);
    fixture.Left()->AddWidget(panel);
    fixture.Left()->SetCrossSize(200);
    DockFixture::Settle();
    fixture.manager->GetLayout()->Clear();
    QVERIFY(panel.isNull());
    QVERIFY(page);
    QCOMPARE(page->parentWidget(), static_cast<QWidget*>(fixture.manager));
    QVERIFY(page->isHidden());
    QCOMPARE(fixture.Left()->GetCrossSize(), 0);
    QCOMPARE(DockFixture::Order(*fixture.Left()), QStringList{"|"});
}

void ToolboxSiteTest::panelsKnowWhetherTheyCouldOpen()
{
    struct Open : DockToolboxSite
    {
        using DockToolboxSite::_UpdateCollapsibility;
    };
    DockFixture fixture(QSize(800, 300));
    DockWidget* const a = fixture.Panel("a", QSize(100, 120));
    DockWidget* const b = fixture.Panel("b", QSize(100, 260));
    fixture.Left()->AddWidget(a);
    fixture.Left()->AddWidget(b);
    DockFixture::Settle();
    b->SetCollapsed(true, false);
    DockFixture::Settle();
    const auto update = &Open::_UpdateCollapsibility;
    (fixture.Left()->*update)(nullptr);
    QVERIFY(a->_Impl()->expand_available);
    QVERIFY(!b->_Impl()->expand_available);
    b->_Impl()->expand_available = true;
    (fixture.Left()->*update)(b);
    QVERIFY(b->_Impl()->expand_available);
    (fixture.Top()->*update)(nullptr);
}

void ToolboxSiteTest::sizesAreComputedOnceAChange()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    int& computations = panel->_Impl()->size_computations;
    computations = 0;
    for (int height = 600; height > 500; --height)
        fixture.manager->resize(800, height);
    DockFixture::Settle();
    QCOMPARE(computations, 0);
    panel->SetForcedTitle("x");
    panel->HideContextMenu(true);
    panel->SetClosable(false);
    DockFixture::Settle();
    QVERIFY(computations <= 2);
}

void ToolboxSiteTest::aPanelMovesWithinItsSite()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a");
    fixture.Left()->AddWidget(a);
    fixture.Left()->AddWidget(fixture.Panel("b"));
    fixture.Left()->SetCrossSize(180);
    DockFixture::Settle();
    QVERIFY(fixture.Left()->InsertWidget(-1, a));
    DockFixture::Settle();
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"b", "|", "a"}));
    QVERIFY(a->isVisible());
    QCOMPARE(fixture.Left()->GetCrossSize(), 180);
    QVERIFY(!fixture.Left()->InsertWidget(0, nullptr));
    fixture.Right()->RemoveWidget(a);
    QCOMPARE(a->GetToolboxSite(), fixture.Left());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void ToolboxSiteTest::aBoxThatWasJustInvalidatedRefusesNobody()
{
    DockFixture fixture;
    QList<DockWidget*> panels;
    for (int i = 0; i < 4; ++i) {
        panels.append(fixture.Panel(QString::number(i), QSize(100, 90)));
        panels.last()->SetCollapsible(i % 2);
        panels.last()->SetFloated(QPoint(100, 100));
    }
    DockFixture::Settle();
    // Each one invalidates the box for the next one.
    for (DockWidget* panel : qAsConst(panels)) {
        QVERIFY(fixture.Left()->AddWidget(panel));
        QVERIFY(fixture.Left()->geometry().isNull());
        QVERIFY(!panel->IsCollapsed());
    }
    DockFixture::Settle();
    for (const DockWidget* panel : qAsConst(panels))
        QVERIFY(panel->isVisible() && !panel->IsCollapsed());
}

void ToolboxSiteTest::aBoxThatWasNeverLaidOutKnowsItsRoom()
{
    DockFixture fixture(QSize(800, 300), false);
    DockWidget* const fits = fixture.Panel("fits", QSize(100, 200));
    DockWidget* const large = fixture.Panel("large", QSize(100, 301));
    fits->SetCollapsible(false);
    large->SetCollapsible(false);
    QVERIFY(!fixture.Left()->AddWidget(large));
    QVERIFY(fixture.Left()->AddWidget(fits));
    QCOMPARE(DockFixture::Order(*fixture.Left()), (QStringList{"fits", "|"}));
}

void ToolboxSiteTest::aResizeStepComputesNoSizes()
{
    DockFixture fixture(QSize(1000, 800));
    QList<DockWidget*> panels;
    for (int i = 0; i < 12; ++i) {
        DockWidget* const panel = fixture.Panel(QString::number(i), QSize(60, 45));
        for (int k = i % 3; k > 0; --k) {
            auto* const page = new FakePage(QStringLiteral("%1.%2").arg(i).arg(k));
            auto* const layout = new QVBoxLayout(page); // the page's
            layout->addWidget(new QLabel(QStringLiteral("text")));
            layout->addWidget(new QSpinBox);
            page->policy = QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
            panel->AddPage(page);
        }
        if (i == 11)
            panel->SetFloated(QPoint(100, 100));
        else
            fixture.Site(DockLayout::Side(i % 4))->AddWidget(panel);
        panels.append(panel);
    }
    panels.at(5)->SetCollapsed(true, false);
    DockFixture::Settle();
    for (DockWidget* panel : qAsConst(panels))
        panel->_Impl()->size_computations = 0;
    for (int step = 0; step < 20; ++step) {
        fixture.manager->resize(1000 - 20 * step, 800 - 15 * step);
        panels.at(11)->resize(300 + step, 200 + step);
        DockFixture::Settle();
        for (const DockWidget* panel : qAsConst(panels))
            QCOMPARE(panel->_Impl()->size_computations, 0);
    }
    // A page that changes is measured, and the others are not.
    DockFixture::Page(*panels.first())->setMinimumSize(70, 50);
    DockFixture::Settle();
    for (const DockWidget* panel : qAsConst(panels))
        QCOMPARE(panel->_Impl()->size_computations > 0, panel == panels.first());
}

void ToolboxSiteTest::theFoldButtonIsOffWhereThereIsNoRoom()
{
    DockFixture fixture(QSize(800, 300));
    DockWidget* const rigid = fixture.Panel("rigid", QSize(100, 200));
    rigid->SetCollapsible(false);
    fixture.Left()->AddWidget(rigid);
    DockWidget* const other = fixture.Panel("other", QSize(100, 150));
    fixture.Left()->AddWidget(other);
    DockFixture::Settle();
    QVERIFY(other->IsCollapsed());
    const auto* const title = qobject_cast<DockWidgetTitle*>(other->_Impl()->title.data());
    QVERIFY(!title->GetMinimizeButton()->isEnabled());
    // Exactly as much as it needs.
    fixture.manager->resize(800, 350);
    DockFixture::Settle();
    QVERIFY(!other->IsCollapsed());
    other->SetCollapsed(true, false);
    DockFixture::Settle();
    QVERIFY(title->GetMinimizeButton()->isEnabled());
    fixture.manager->resize(800, 349);
    DockFixture::Settle();
    QVERIFY(!title->GetMinimizeButton()->isEnabled());
    // Side by side there is room below.
    fixture.Top()->AddWidget(other);
    DockFixture::Settle();
    QVERIFY(title->GetMinimizeButton()->isEnabled());
    // What floats has all the room.
    other->SetFloated(QPoint(50, 50));
    DockFixture::Settle();
    QVERIFY(title->GetMinimizeButton()->isEnabled());
}

void ToolboxSiteTest::aPlainPageNeedsTheRoomOfItsLayout()
{
    DockFixture fixture;
    auto* const page = new QWidget(fixture.manager);
    auto* const layout = new QVBoxLayout(page); // the page's
    auto* const field = new QWidget;
    field->setMinimumSize(120, 70);
    layout->addWidget(field);
    DockWidget* const panel = fixture.manager->CreateDockWidget();
    panel->AddWidget(page);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QVERIFY(field->isVisible());
    QVERIFY(field->width() >= 120 && field->height() >= 70);
    // A content that grows takes its panel along.
    field->setMinimumSize(180, 90);
    DockFixture::Settle();
    QVERIFY(field->width() >= 180 && field->height() >= 90);
}

OVK_TEST_CLASS(ToolboxSiteTest)

#include "toolbox_site_test.moc"
