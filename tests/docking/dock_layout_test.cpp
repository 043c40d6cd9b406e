#include "dock_fixture.h"
#include "tests/support/test_main.h"

using namespace ovk;
using ovk_test::DockFixture;

class DockLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSitesLieAroundTheMiddle_data();
    void theSitesLieAroundTheMiddle();
    void theLayoutHasNoGaps();
    void sitesAreFoundByName_data();
    void sitesAreFoundByName();
    void anUnknownNameIsNoSite();
    void theItemsOfASiteGoFromTheEdgeInward_data();
    void theItemsOfASiteGoFromTheEdgeInward();
    void sideSitesRunVertically();
    void theMiddleIsNeverEmpty();
    void aCentralWidgetBelongsToItsOwner();
    void emptySitesTakeNoRoom();
    void theCentralWidgetTakesWhatTheSitesLeave();
    void theManagerIsItsFirstArea();
    void leftStaysLeftWhenTheTextRunsFromTheRight();
    void anAreaOfItsOwnRegistersAndLeaves();
};

void DockLayoutTest::theSitesLieAroundTheMiddle_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QList<int>>("cell");
    QTest::newRow("left") << int(DockLayout::Left) << QList<int>{0, 0, 3, 1};
    QTest::newRow("top") << int(DockLayout::Top) << QList<int>{0, 1, 1, 1};
    QTest::newRow("right") << int(DockLayout::Right) << QList<int>{0, 2, 3, 1};
    QTest::newRow("bottom") << int(DockLayout::Bottom) << QList<int>{2, 1, 1, 1};
    QTest::newRow("middle") << -1 << QList<int>{1, 1, 1, 1};
}

void DockLayoutTest::theSitesLieAroundTheMiddle()
{
    QFETCH(int, side);
    DockManager manager;
    DockLayout* const layout = manager.GetLayout();
    QLayoutItem* item = nullptr;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* const candidate = layout->itemAt(i);
        const bool match = side < 0
                               ? candidate->widget() == layout->GetCentralWidget()
                               : candidate->layout() == layout->GetSite(DockLayout::Side(side));
        if (match)
            item = candidate;
    }
    QVERIFY(item);
    int row = 0;
    int column = 0;
    int row_span = 0;
    int column_span = 0;
    const int index = item->widget() ? layout->indexOf(item->widget()) : layout->indexOf(item);
    layout->getItemPosition(index, &row, &column, &row_span, &column_span);
    QTEST((QList<int>{row, column, row_span, column_span}), "cell");
    QCOMPARE(item->alignment(), Qt::Alignment());
}

void DockLayoutTest::theLayoutHasNoGaps()
{
    DockManager manager;
    QCOMPARE(manager.GetLayout()->spacing(), 0);
    QCOMPARE(manager.GetLayout()->contentsMargins(), QMargins());
    QCOMPARE(manager.GetLayout()->GetArea(), static_cast<DockArea*>(&manager));
    for (int side = 0; side < 4; ++side)
        QCOMPARE(manager.GetLayout()->GetSite(DockLayout::Side(side))->spacing(), 0);
}

void DockLayoutTest::sitesAreFoundByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("side");
    QTest::newRow("left") << "left" << 0;
    QTest::newRow("right") << "right" << 1;
    QTest::newRow("top") << "top" << 2;
    QTest::newRow("bottom") << "bottom" << 3;
}

void DockLayoutTest::sitesAreFoundByName()
{
    QFETCH(QString, name);
    QFETCH(int, side);
    DockManager manager;
    DockSite* const site = manager.GetLayout()->GetSite(name);
    QCOMPARE(site, manager.GetLayout()->GetSite(DockLayout::Side(side)));
    QCOMPARE(site->GetSideName(), name);
    QCOMPARE(int(site->GetSide()), side);
    QCOMPARE(site->GetRootLayout(), manager.GetLayout());
    QCOMPARE(site->GetToolboxSite()->GetDockSite(), site);
    QCOMPARE(int(site->GetToolboxSite()->GetSide()), side);
    const DockLayout* const read_only = manager.GetLayout();
    QCOMPARE(read_only->GetSite(name), static_cast<const DockSite*>(site));
}

void DockLayoutTest::anUnknownNameIsNoSite()
{
    DockManager manager;
    QCOMPARE(manager.GetLayout()->GetSite(QStringLiteral("middle")), nullptr);
    QCOMPARE(manager.GetLayout()->GetSite(QString()), nullptr);
}

void DockLayoutTest::theItemsOfASiteGoFromTheEdgeInward_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<bool>("outside_in");
    QTest::newRow("left") << 0 << true;
    QTest::newRow("right") << 1 << false;
    QTest::newRow("top") << 2 << true;
    QTest::newRow("bottom") << 3 << false;
}

void DockLayoutTest::theItemsOfASiteGoFromTheEdgeInward()
{
    QFETCH(int, side);
    QFETCH(bool, outside_in);
    DockManager manager;
    DockSite* const site = manager.GetLayout()->GetSite(DockLayout::Side(side));
    DockToolboxSiteHandle* const handle = site->_pp()->handle;
    QCOMPARE(site->count(), 4);
    const auto at = [site, outside_in](int i) { return site->itemAt(outside_in ? i : 3 - i); };
    QCOMPARE(at(0)->layout(), static_cast<QLayout*>(site->GetToolbarOutterSite()));
    QCOMPARE(at(1)->layout(), static_cast<QLayout*>(site->GetToolboxSite()));
    QCOMPARE(at(2)->widget(), static_cast<QWidget*>(handle));
    QCOMPARE(at(3)->layout(), static_cast<QLayout*>(site->GetToolbarInnerSite()));
    const QSizePolicy policy = handle->sizePolicy();
    if (site->IsVertical()) {
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(handle->sizeHint(), QSize(5, 0));
        QCOMPARE(handle->GetButtonSize(), QSize(5, 17));
        QCOMPARE(handle->cursor().shape(), Qt::SplitHCursor);
    } else {
        QCOMPARE(policy.horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(policy.verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(handle->sizeHint(), QSize(0, 5));
        QCOMPARE(handle->GetButtonSize(), QSize(17, 5));
        QCOMPARE(handle->cursor().shape(), Qt::SplitVCursor);
    }
    for (int i = 0; i < 4; ++i)
        QCOMPARE(site->stretch(i), 0);
}

void DockLayoutTest::sideSitesRunVertically()
{
    DockManager manager;
    for (int side = 0; side < 4; ++side) {
        const DockSite* const site = manager.GetLayout()->GetSite(DockLayout::Side(side));
        QCOMPARE(site->IsVertical(), side < 2);
        QCOMPARE(site->IsHorizontal(), side >= 2);
        QCOMPARE(site->direction(), side < 2 ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
        QCOMPARE(site->GetToolboxSite()->direction(),
                 side < 2 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        QCOMPARE(site->GetToolboxSite()->count(), 1);
    }
}

void DockLayoutTest::theMiddleIsNeverEmpty()
{
    DockManager manager;
    const QPointer<QWidget> first = manager.GetLayout()->GetCentralWidget();
    QVERIFY(qobject_cast<Spacer*>(first.data()));
    QCOMPARE(first->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(first->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    manager.GetLayout()->SetCentralWidget(nullptr);
    QVERIFY(first.isNull());
    QVERIFY(qobject_cast<Spacer*>(manager.GetLayout()->GetCentralWidget()));
}

void DockLayoutTest::aCentralWidgetBelongsToItsOwner()
{
    DockManager manager;
    const QPointer<QWidget> widget = new QWidget(&manager);
    manager.GetLayout()->SetCentralWidget(widget);
    QCOMPARE(manager.GetLayout()->GetCentralWidget(), widget.data());
    manager.GetLayout()->SetCentralWidget(nullptr);
    QVERIFY(widget);
    QVERIFY(qobject_cast<Spacer*>(manager.GetLayout()->GetCentralWidget()));
}

void DockLayoutTest::emptySitesTakeNoRoom()
{
    DockFixture fixture;
    QCOMPARE(fixture.central->geometry(), fixture.manager->rect());
}

void DockLayoutTest::theCentralWidgetTakesWhatTheSitesLeave()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    QVERIFY(fixture.Left()->AddWidget(panel));
    fixture.Left()->SetCrossSize(150);
    DockFixture::Settle();
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->width(), 150);
    QCOMPARE(fixture.central->width(), 800 - 150 - 5);
}

void DockLayoutTest::theManagerIsItsFirstArea()
{
    DockManager manager;
    QVERIFY(manager.IsManager());
    QCOMPARE(manager.GetManager(), &manager);
    QCOMPARE(manager.GetAreasList(), QList<DockArea*>{&manager});
    QCOMPARE(manager.objectName(), QStringLiteral("manager.area"));
    QCOMPARE(manager.CreateArea(), nullptr);
    QVERIFY(manager.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(manager.windowFlags() & Qt::CustomizeWindowHint);
}

void DockLayoutTest::leftStaysLeftWhenTheTextRunsFromTheRight()
{
    DockFixture fixture;
    DockWidget* const left = fixture.Panel("left");
    DockWidget* const right = fixture.Panel("right");
    DockWidget* const first = fixture.Panel("first");
    DockWidget* const second = fixture.Panel("second");
    fixture.Left()->AddWidget(left);
    fixture.Right()->AddWidget(right);
    fixture.Top()->AddWidget(first);
    fixture.Top()->AddWidget(second);
    DockFixture::Settle();
    const QRect left_before = left->geometry();
    const QRect first_before = first->geometry();

    fixture.window.setLayoutDirection(Qt::RightToLeft);
    DockFixture::Settle();
    QVERIFY(left->isRightToLeft());
    QCOMPARE(left->geometry(), left_before);
    QCOMPARE(first->geometry(), first_before);
    QVERIFY(right->geometry().left() > fixture.central->geometry().right());
    QVERIFY(second->geometry().left() > first->geometry().right());
    const DockSite* const site = fixture.manager->GetLayout()->GetSite(DockLayout::Left);
    QVERIFY(site->_pp()->handle->geometry().left() > left->geometry().right());
    // The fold button is at the leading edge, which is the right one now.
    const auto* const title = qobject_cast<DockWidgetTitle*>(left->_Impl()->title.data());
    QVERIFY(title->GetMinimizeButton()->x() > title->GetCloseButton()->x());
    // The zones agree with what is seen.
    const QPoint at_left = fixture.manager->mapToGlobal(QPoint(3, 300));
    QCOMPARE(fixture.manager->DockArea::_Impl()->FindEdgeSite(at_left), fixture.Left());
}

void DockLayoutTest::anAreaOfItsOwnRegistersAndLeaves()
{
    DockManager manager;
    {
        DockArea area(manager);
        QVERIFY(!area.IsManager());
        QCOMPARE(area.GetManager(), &manager);
        QCOMPARE(manager.GetAreasList(), (QList<DockArea*>{&manager, &area}));
        QVERIFY(area.GetLayout());
    }
    QCOMPARE(manager.GetAreasList(), QList<DockArea*>{&manager});
}

OVK_TEST_CLASS(DockLayoutTest)

#include "dock_layout_test.moc"
