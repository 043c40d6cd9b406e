#include "tests/customize/sites_host.h"
#include "tests/support/test_main.h"

#include <QAbstractItemModelTester>
#include <QMimeData>

using namespace ovk;
using namespace ovk_test;

class SiteDropsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void severalDroppedCommandsComeInReverse();
    void severalMovedSpotsKeepTheirOrder_data();
    void severalMovedSpotsKeepTheirOrder();
    void aDropOnASpotGoesBehindIt();
    void aFullGroupTakesNoMore();
    void unseenSpotsCountForTheCapacity();
    void aCommandIsInAContainerOnce();
    void aSpotWhoseCommandIsThereStaysWhereItWas();
    void aSpotIsNotDroppedOnItself();
    void aPageDroppedOnTheRootGoesToTheEnd();
    void pagesMoveAsABlock();
    void aFixedGroupStaysInItsPage();
    void aFixedPageGoesAnywhere();
    void aLockedGroupTakesNothing();
    void onlySpotsMayBeMixed();
    void aDragWithoutASourceIsRefused();
    void foreignRowsAreRefused();
    void compositesBecomeButtonsEverywhereButInMenus();
    void toolbarsAreReordered();
    void menusAreNotMoved();
    void aBuiltInMenuIsNotDeleted();
    void droppingACompositeOnAnotherSwapsThem();
    void compositeItemsMove_data();
    void compositeItemsMove();
    void aCompositeHoldsThirtyTwoItems();
    void deletingFromCompositesTellsWhatWent();
    void additionsAreTitledAndPlaced();
    void theGenericDropReadsIdentifiers();
    void anIgnoredDropDoesNothing();
};

void SiteDropsTest::severalDroppedCommandsComeInReverse()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    sites.DragCommands({0, 1, 2});
    QVERIFY(sites.Drop(sites.ribbon, group, 0));
    QStringList expected;
    for (int i : {2, 1, 0})
        expected.append(sites.commands.at(i)->GetId());
    QCOMPARE(sites.Names(group), expected);
    QCOMPARE(dynamic_cast<UiSpotCommand*>(sites.ribbon.GetItem(sites.ribbon.index(0, 0, group)))
                 ->GetStyle(),
             Qt::ToolButtonTextUnderIcon);
}

void SiteDropsTest::severalMovedSpotsKeepTheirOrder_data()
{
    QTest::addColumn<QList<int>>("dragged");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::newRow("to the end") << QList<int>{0, 1} << -1 << "cdab";
    QTest::newRow("to the front") << QList<int>{2, 3} << 0 << "cdab";
    QTest::newRow("into the middle, from both sides") << QList<int>{0, 3} << 2 << "badc";
    QTest::newRow("nowhere") << QList<int>{1} << 1 << "abcd";
    QTest::newRow("all of them") << QList<int>{0, 1, 2, 3} << 2 << "abcd";
}

void SiteDropsTest::severalMovedSpotsKeepTheirOrder()
{
    QFETCH(QList<int>, dragged);
    QFETCH(int, row);
    QFETCH(QString, after);
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    QHash<QString, QChar> letters;
    for (int i = 3; i >= 0; --i) {
        sites.DragCommands({i});
        QVERIFY(sites.Drop(sites.ribbon, group, 0));
        letters.insert(sites.commands.at(i)->GetId(), QLatin1Char(char('a' + i)));
    }
    QModelIndexList rows;
    for (int i : dragged)
        rows.append(sites.ribbon.index(i, 0, group));
    sites.Drag(sites.ribbon, rows);
    QVERIFY(sites.CanDrop(sites.ribbon, group, row));
    QVERIFY(sites.Drop(sites.ribbon, group, row));
    QString found;
    for (const QString& name : sites.Names(group))
        found.append(letters.value(name));
    QCOMPARE(found, after);
}

void SiteDropsTest::aDropOnASpotGoesBehindIt()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    for (int i : {1, 0}) {
        sites.DragCommands({i});
        QVERIFY(sites.Drop(sites.ribbon, group, 0));
    }
    sites.DragCommands({2});
    QVERIFY(sites.Drop(sites.ribbon, sites.ribbon.index(0, 0, group), -1));
    QCOMPARE(sites.Names(group),
             (QStringList{sites.commands.at(0)->GetId(), sites.commands.at(2)->GetId(),
                          sites.commands.at(1)->GetId()}));
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, group)});
    QVERIFY(sites.Drop(sites.ribbon, sites.ribbon.index(2, 0, group), -1));
    QCOMPARE(sites.Names(group).last(), sites.commands.at(0)->GetId());
}

void SiteDropsTest::aFullGroupTakesNoMore()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    for (int i = 0; i < 127; ++i)
        sites.ribbon.AddSeparator(group, -1);
    sites.DragCommands({0});
    QVERIFY(sites.CanDrop(sites.ribbon, group, 0));
    sites.DragCommands({0, 1});
    QVERIFY(!sites.CanDrop(sites.ribbon, group, 0));
    sites.ribbon.AddSeparator(group, -1);
    sites.DragCommands({0});
    QVERIFY(!sites.CanDrop(sites.ribbon, group, 0));
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.ribbon.index(0, 0, group), -1));
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, group), sites.ribbon.index(1, 0, group)});
    QVERIFY(sites.CanDrop(sites.ribbon, group, 5));
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, sites.Group(0, 0))});
    QVERIFY(!sites.CanDrop(sites.ribbon, group, 5));
}

void SiteDropsTest::unseenSpotsCountForTheCapacity()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    auto* node = dynamic_cast<UiStateRibbonGroup*>(sites.ribbon.GetItem(group));
    for (int i = 0; i < 128; ++i) {
        auto* spot = UiStateCommandSpots::CreateCommandSpot(QStringLiteral("Unknown.%1").arg(i));
        spot->SetStyle(Qt::ToolButtonIconOnly);
        node->AppendChild(spot);
    }
    QCOMPARE(sites.ribbon.rowCount(group), 0);
    sites.DragCommands({0});
    QVERIFY(!sites.CanDrop(sites.ribbon, group, 0));
}

void SiteDropsTest::aCommandIsInAContainerOnce()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    sites.DragCommands({0});
    QVERIFY(sites.Drop(sites.ribbon, group, 0));
    sites.DragCommands({0, 1});
    QVERIFY(sites.Drop(sites.ribbon, group, 0));
    QCOMPARE(sites.Names(group),
             (QStringList{sites.commands.at(1)->GetId(), sites.commands.at(0)->GetId()}));
}

void SiteDropsTest::aSpotWhoseCommandIsThereStaysWhereItWas()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    const QStringList before = sites.Names(sites.Group(0, 0));
    const int command = sites.commands.indexOf(sites.host.Command(before.first()));
    sites.DragCommands({command});
    QVERIFY(sites.Drop(sites.ribbon, group, 0));
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, sites.Group(0, 0))});
    QVERIFY(sites.Drop(sites.ribbon, group, 0));
    QCOMPARE(sites.Names(sites.Group(0, 0)), before);
    QCOMPARE(sites.ribbon.rowCount(group), 1);
}

void SiteDropsTest::aSpotIsNotDroppedOnItself()
{
    SitesHost sites;
    const QModelIndex spot = sites.ribbon.index(0, 0, sites.Group(0, 0));
    sites.Drag(sites.ribbon, {spot});
    QVERIFY(!sites.CanDrop(sites.ribbon, spot, -1));
    QVERIFY(!sites.Drop(sites.ribbon, spot, -1));
    sites.Drag(sites.ribbon, {sites.Page(0)});
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.Page(0), -1));
    sites.Drag(sites.ribbon, {sites.Group(0, 0)});
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.Group(0, 0), -1));
}

void SiteDropsTest::aPageDroppedOnTheRootGoesToTheEnd()
{
    SitesHost sites;
    sites.ribbon.AddPage(-1);
    sites.ribbon.AddPage(-1);
    const QString first = sites.PageNode(0)->GetName();
    sites.Drag(sites.ribbon, {sites.Page(0)});
    QVERIFY(sites.Drop(sites.ribbon, {}, -1));
    QCOMPARE(sites.PageNode(2)->GetName(), first);
    QVERIFY(sites.Root()->CheckConsistency());
}

void SiteDropsTest::pagesMoveAsABlock()
{
    SitesHost sites;
    for (int i = 0; i < 4; ++i)
        sites.ribbon.AddPage(-1);
    QStringList names;
    for (int i = 0; i < 5; ++i)
        names.append(sites.PageNode(i)->GetName());
    sites.Drag(sites.ribbon, {sites.Page(0), sites.Page(2)});
    QVERIFY(sites.Drop(sites.ribbon, sites.Page(3), -1));
    QStringList after;
    for (int i = 0; i < 5; ++i)
        after.append(sites.PageNode(i)->GetName());
    QCOMPARE(after, (QStringList{names[1], names[3], names[0], names[2], names[4]}));
}

void SiteDropsTest::aFixedGroupStaysInItsPage()
{
    SitesHost sites;
    sites.ribbon.AddPage(-1);
    sites.GroupNode(0, 0)->SetPersistence(UiStateItem::ipBuiltIn);
    sites.GroupNode(0, 1)->SetPersistence(UiStateItem::ipOrdinary);
    sites.Drag(sites.ribbon, {sites.Group(0, 0)});
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.Page(1), 0));
    QVERIFY(sites.CanDrop(sites.ribbon, sites.Page(0), 1));
    QVERIFY(sites.CanDrop(sites.ribbon, sites.Group(0, 1), -1));
    const QString fixed = sites.GroupNode(0, 0)->GetName();
    QVERIFY(sites.Drop(sites.ribbon, sites.Group(0, 1), -1));
    QCOMPARE(sites.GroupNode(0, 1)->GetName(), fixed);
}

void SiteDropsTest::aFixedPageGoesAnywhere()
{
    SitesHost sites;
    sites.ribbon.AddPage(-1);
    sites.PageNode(0)->SetPersistence(UiStateItem::ipBuiltIn);
    sites.Drag(sites.ribbon, {sites.Page(0)});
    QVERIFY(sites.CanDrop(sites.ribbon, {}, 2));
    QVERIFY(sites.CanDrop(sites.ribbon, sites.Page(1), -1));
}

void SiteDropsTest::aLockedGroupTakesNothing()
{
    SitesHost sites;
    const QModelIndex other = sites.AddGroup();
    sites.GroupNode(0, 0)->SetPersistence(UiStateItem::ipBuiltIn);
    sites.DragCommands({0});
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.Group(0, 0), 0));
    sites.Drag(sites.ribbon, {other});
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.Group(0, 0), -1));
}

void SiteDropsTest::onlySpotsMayBeMixed()
{
    SitesHost sites;
    const QModelIndex group = sites.Group(0, 0);
    const QModelIndex target = sites.AddGroup();
    // The group holds a command and a separator.
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, group), sites.ribbon.index(1, 0, group)});
    QVERIFY(sites.CanDrop(sites.ribbon, target, 0));
    sites.Drag(sites.ribbon, {sites.Page(0), group});
    QVERIFY(!sites.CanDrop(sites.ribbon, {}, 0));
    QVERIFY(!sites.Drop(sites.ribbon, {}, 0));
}

void SiteDropsTest::aDragWithoutASourceIsRefused()
{
    SitesHost sites;
    sites.DragCommands({0});
    SetDragSource(nullptr);
    for (SiteTreeModel* model : sites.Models())
        QVERIFY(!model->canDropMimeData(nullptr, Qt::CopyAction, 0, 0, model->index(0, 0)));
    SetDragSource(std::make_unique<DragSource<QModelIndexList>>(new QModelIndexList));
    QVERIFY(!sites.CanDrop(sites.ribbon, sites.Group(0, 0), 0));
    QVERIFY(!sites.CanDrop(sites.qab, {}, 0));
}

void SiteDropsTest::foreignRowsAreRefused()
{
    SitesHost sites;
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, sites.Group(0, 0))});
    QVERIFY(!sites.CanDrop(sites.toolbars, sites.toolbars.index(0, 0), 0));
    QVERIFY(!sites.Drop(sites.toolbars, sites.toolbars.index(0, 0), 0));
    // One row by itself is read as well.
    SetDragSource(std::make_unique<DragSource<QModelIndex>>(
        new QModelIndex(sites.ribbon.index(0, 0, sites.Group(0, 0)))));
    QVERIFY(sites.CanDrop(sites.ribbon, sites.AddGroup(), 0));
}

void SiteDropsTest::compositesBecomeButtonsEverywhereButInMenus()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    sites.Drag(sites.composites, {sites.composites.index(1, 0)});
    QVERIFY(sites.CanDrop(sites.ribbon, group, 0));
    QVERIFY(sites.CanDrop(sites.qab, {}, 0));
    QVERIFY(sites.CanDrop(sites.toolbars, sites.toolbars.index(0, 0), 0));
    QVERIFY(!sites.CanDrop(sites.menus, sites.menus.index(0, 0), 0));
    QVERIFY(sites.Drop(sites.ribbon, group, 0));
    QCOMPARE(sites.Names(group), QStringList{QStringLiteral("composite.save")});
    QVERIFY(sites.ribbon.index(0, 2, group).data(Qt::DecorationRole).isValid());
}

void SiteDropsTest::toolbarsAreReordered()
{
    SitesHost sites;
    sites.toolbars.AddToolbar(-1);
    sites.toolbars.AddToolbar(0);
    QCOMPARE(sites.toolbars.rowCount(), 3);
    QCOMPARE(sites.toolbars.index(0, 0).data().toString(), QStringLiteral("New Toolbar"));
    auto* view = sites.toolbars.GetItem(sites.toolbars.index(1, 0));
    sites.Drag(sites.toolbars, {sites.toolbars.index(1, 0)});
    QVERIFY(sites.CanDrop(sites.toolbars, {}, 0));
    QVERIFY(sites.Drop(sites.toolbars, sites.toolbars.index(2, 0), -1));
    QCOMPARE(sites.toolbars.GetItem(sites.toolbars.index(2, 0)), view);
    sites.toolbars.DeleteRow({}, 0);
    QCOMPARE(sites.toolbars.rowCount(), 2);
}

void SiteDropsTest::menusAreNotMoved()
{
    SitesHost sites;
    sites.menus.AddMenu(-1);
    QCOMPARE(sites.menus.index(1, 0).data().toString(), QStringLiteral("New Menu"));
    sites.Drag(sites.menus, {sites.menus.index(0, 0)});
    QVERIFY(!sites.CanDrop(sites.menus, {}, 1));
    QVERIFY(!sites.CanDrop(sites.menus, sites.menus.index(1, 0), -1));
    sites.Drag(sites.menus, {sites.menus.index(0, 0, sites.menus.index(0, 0))});
    QVERIFY(sites.CanDrop(sites.menus, sites.menus.index(1, 0), 0));
    QVERIFY(sites.Drop(sites.menus, sites.menus.index(1, 0), 0));
    QCOMPARE(sites.menus.rowCount(sites.menus.index(1, 0)), 1);
    sites.DragCommands({0, 1, 2, 3});
    QVERIFY(sites.CanDrop(sites.menus, sites.menus.index(0, 0), 0));
    for (int i = 0; i < 9; ++i)
        sites.menus.AddSeparator(sites.menus.index(0, 0), -1);
    QVERIFY(!sites.CanDrop(sites.menus, sites.menus.index(0, 0), 0));
}

void SiteDropsTest::aBuiltInMenuIsNotDeleted()
{
    SitesHost sites;
    auto* node = dynamic_cast<UiStateMenu*>(sites.menus.GetMenus()->GetItem(0));
    node->SetPersistence(UiStateItem::ipBuiltIn);
    sites.menus.DeleteRow({}, 0);
    QCOMPARE(sites.menus.rowCount(), 1);
    // It still takes commands: only menus do while they are locked.
    sites.DragCommands({0});
    QVERIFY(sites.CanDrop(sites.menus, sites.menus.index(0, 0), 0));
    node->SetPersistence(UiStateItem::ipOrdinary);
    sites.menus.DeleteRow({}, 0);
    QCOMPARE(sites.menus.rowCount(), 0);
}

void SiteDropsTest::droppingACompositeOnAnotherSwapsThem()
{
    SitesHost sites;
    sites.composites.AddMenu(-1);
    auto* first = sites.composites.GetItem(sites.composites.index(0, 0));
    auto* last = sites.composites.GetItem(sites.composites.index(2, 0));
    sites.Drag(sites.composites, {sites.composites.index(0, 0)});
    QVERIFY(!sites.CanDrop(sites.composites, sites.composites.index(0, 0), -1));
    QVERIFY(sites.CanDrop(sites.composites, sites.composites.index(2, 0), -1));
    QSignalSpy moved(&sites.composites, &QAbstractItemModel::rowsMoved);
    QVERIFY(sites.Drop(sites.composites, sites.composites.index(2, 0), -1));
    QCOMPARE(sites.composites.GetItem(sites.composites.index(0, 0)), last);
    QCOMPARE(sites.composites.GetItem(sites.composites.index(2, 0)), first);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(moved.at(0).at(1).toInt(), 2);
    QCOMPARE(moved.at(0).at(4).toInt(), 0);
}

void SiteDropsTest::compositeItemsMove_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::newRow("down by one") << 0 << 1 << "bacd";
    QTest::newRow("to the end") << 0 << -1 << "bcda";
    QTest::newRow("to a row after it was taken out") << 0 << 2 << "bcad";
    QTest::newRow("up") << 3 << 1 << "adbc";
    QTest::newRow("where it is") << 2 << 2 << "abcd";
    QTest::newRow("past the end") << 1 << 9 << "acdb";
}

void SiteDropsTest::compositeItemsMove()
{
    QFETCH(int, from);
    QFETCH(int, row);
    QFETCH(QString, after);
    SitesHost sites;
    QAbstractItemModelTester tester(&sites.composites,
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    sites.composites.AddCommand(-1);
    const QModelIndex composite = sites.composites.index(2, 0);
    QHash<QString, QChar> letters;
    for (int i = 3; i >= 0; --i) {
        sites.DragCommands({i});
        QVERIFY(sites.CanDrop(sites.composites, composite, 0));
        QVERIFY(sites.Drop(sites.composites, composite, 0));
        letters.insert(sites.commands.at(i)->GetTitle(), QLatin1Char(char('a' + i)));
    }
    QPersistentModelIndex moving = sites.composites.index(from, 0, composite);
    const QString title = moving.data().toString();
    sites.Drag(sites.composites, {moving});
    QVERIFY(sites.Drop(sites.composites, composite, row));
    QString found;
    for (int i = 0; i < 4; ++i)
        found.append(letters.value(sites.composites.index(i, 0, composite).data().toString()));
    QCOMPARE(found, after);
    // What was announced is what happened: the index went along.
    QCOMPARE(moving.data().toString(), title);
}

void SiteDropsTest::aCompositeHoldsThirtyTwoItems()
{
    SitesHost sites;
    const QModelIndex clip = sites.composites.index(0, 0);
    auto* node = dynamic_cast<UiStateComposite*>(sites.composites.GetItem(clip));
    while (node->GetChildCount() < 31)
        node->AppendChild(
            new UiStateCompositeItem(QStringLiteral("Unknown.%1").arg(node->GetChildCount())));
    sites.DragCommands({0});
    QVERIFY(sites.CanDrop(sites.composites, clip, 0));
    sites.DragCommands({0, 1});
    QVERIFY(!sites.CanDrop(sites.composites, clip, 0));
    node->AppendChild(new UiStateCompositeItem(QStringLiteral("Unknown.last")));
    sites.Drag(sites.composites, {sites.composites.index(0, 0, clip)});
    QVERIFY(sites.CanDrop(sites.composites, clip, 1));
    sites.Drag(sites.composites, {sites.composites.index(0, 0, sites.composites.index(1, 0))});
    QVERIFY(!sites.CanDrop(sites.composites, clip, 1));
}

void SiteDropsTest::deletingFromCompositesTellsWhatWent()
{
    SitesHost sites;
    const QModelIndex clip = sites.composites.index(0, 0);
    QCOMPARE(sites.composites.DeleteRow(clip, 0), 2);
    QCOMPARE(sites.composites.rowCount(clip), 1);
    QCOMPARE(sites.composites.DeleteRow({}, 0), 1);
    QCOMPARE(sites.composites.rowCount(), 1);
    QCOMPARE(sites.composites.DeleteRow({}, 7), 0);
}

void SiteDropsTest::additionsAreTitledAndPlaced()
{
    SitesHost sites;
    sites.ribbon.AddPage(0);
    QCOMPARE(sites.Page(0).data().toString(), QStringLiteral("New page"));
    sites.ribbon.AddGroup(sites.Page(0), -1);
    QCOMPARE(sites.Group(0, 0).data().toString(), QStringLiteral("New group"));
    sites.composites.AddMenu(0);
    QCOMPARE(sites.composites.index(0, 0).data().toString(), QStringLiteral("New Menu"));
    sites.composites.AddCommand(-1);
    QCOMPARE(sites.composites.index(3, 0).data().toString(), QStringLiteral("New Command"));
    sites.ribbon.AddSeparator(sites.Page(0), 0);
    QCOMPARE(sites.ribbon.rowCount(sites.Page(0)), 1);
    sites.ribbon.DeleteRow(sites.Page(0), 0);
    QCOMPARE(sites.ribbon.rowCount(sites.Page(0)), 0);
    sites.ribbon.DeleteRow({}, 0);
    QVERIFY(sites.Page(0).data().toString() != QStringLiteral("New page"));
}

void SiteDropsTest::theGenericDropReadsIdentifiers()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    QMimeData data;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QStringLiteral("View.Zoom") << QStringLiteral("No.Such.Command");
    data.setData(CustomizeMimeType(), bytes);
    QVERIFY(sites.ribbon.SiteTreeModel::dropMimeData(&data, Qt::CopyAction, -1, -1, group));
    QCOMPARE(sites.Names(group), QStringList{QStringLiteral("View.Zoom")});
    data.setData(CustomizeMimeType(), QByteArray("\xff\xff\xff", 3));
    QVERIFY(sites.ribbon.SiteTreeModel::dropMimeData(&data, Qt::CopyAction, -1, -1, group));
    QCOMPARE(sites.ribbon.rowCount(group), 1);
}

void SiteDropsTest::anIgnoredDropDoesNothing()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    sites.DragCommands({0});
    QMimeData ours;
    ours.setData(CustomizeMimeType(), QByteArray());
    QVERIFY(sites.ribbon.dropMimeData(&ours, Qt::IgnoreAction, 0, 0, group));
    QMimeData other;
    other.setText(QStringLiteral("x"));
    QVERIFY(!sites.ribbon.dropMimeData(&other, Qt::CopyAction, 0, 0, group));
    QCOMPARE(sites.ribbon.rowCount(group), 0);
    QVERIFY(!sites.ribbon.IsDropping());
}

OVK_TEST_CLASS(SiteDropsTest)

#include "site_drops_test.moc"
