#include "tests/customize/sites_host.h"
#include "tests/support/test_main.h"

#include <QMimeData>

using namespace ovk;
using namespace ovk_test;

namespace {

constexpr int c_s = Qt::ItemIsSelectable;
constexpr int c_e = Qt::ItemIsEditable;
constexpr int c_p = Qt::ItemIsDropEnabled;
constexpr int c_c = Qt::ItemIsUserCheckable;
constexpr int c_h = Qt::ItemNeverHasChildren;
constexpr int c_dpsn = 45;

} // namespace

class SiteModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonStylesAreNamedByTheirNumber();
    void theDragTypeIsOursAndItsPayloadEmpty();
    void aRowOfTheCommandTableIsDraggedOnce();
    void draggedRowsComeLaterRowsFirst();
    void theSlotHoldsOnlyTheLastDrag();
    void theTreeShowsWhatResolves();
    void aModelWithoutALayoutIsEmpty();
    void ribbonFlags_data();
    void ribbonFlags();
    void ribbonData();
    void ribbonEdits();
    void quickAccessBarFlagsAndEdits();
    void toolbarFlagsAndEdits();
    void menuFlagsAndEdits();
    void compositeFlagsAndEdits();
    void commandTableFlagsAndEdits();
};

void SiteModelsTest::buttonStylesAreNamedByTheirNumber()
{
    QCOMPARE(ButtonStyleName(Qt::ToolButtonIconOnly), QStringLiteral("Icon Only"));
    QCOMPARE(ButtonStyleName(Qt::ToolButtonTextOnly), QStringLiteral("Text Only"));
    QCOMPARE(ButtonStyleName(Qt::ToolButtonTextBesideIcon), QStringLiteral("Text Beside Icon"));
    QCOMPARE(ButtonStyleName(Qt::ToolButtonTextUnderIcon), QStringLiteral("Text Under Icon"));
    QCOMPARE(ButtonStyleName(4), QStringLiteral("Icon Only"));
}

void SiteModelsTest::theDragTypeIsOursAndItsPayloadEmpty()
{
    SitesHost sites;
    QCOMPARE(sites.ribbon.mimeTypes(),
             QStringList{QStringLiteral("corvantique/ovk.commands.customize")});
    const std::unique_ptr<QMimeData> data(sites.ribbon.mimeData({sites.Page(0)}));
    QVERIFY(data->hasFormat(QStringLiteral("corvantique/ovk.commands.customize")));
    QVERIFY(data->data(QStringLiteral("corvantique/ovk.commands.customize")).isEmpty());
}

void SiteModelsTest::aRowOfTheCommandTableIsDraggedOnce()
{
    SitesHost sites;
    const std::unique_ptr<QMimeData> data(sites.commands.mimeData(
        {sites.commands.index(2, 0), sites.commands.index(2, 1), sites.commands.index(3, 0)}));
    auto* source = dynamic_cast<DragSource<QList<IUiItem*>>*>(GetDragSource());
    QVERIFY(source);
    QCOMPARE(source->GetPayload()->size(), 2);
    QCOMPARE(source->GetPayload()->first(), static_cast<IUiItem*>(sites.commands.at(2)));
}

void SiteModelsTest::draggedRowsComeLaterRowsFirst()
{
    SitesHost sites;
    const QModelIndex group = sites.Group(0, 0);
    sites.Drag(sites.ribbon, {sites.ribbon.index(0, 0, group), sites.ribbon.index(2, 0, group),
                              sites.ribbon.index(1, 1, group), sites.ribbon.index(1, 0, group)});
    auto* source = dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource());
    QVERIFY(source);
    QList<int> rows;
    for (const QModelIndex& index : *source->GetPayload())
        rows.append(index.row());
    QCOMPARE(rows, (QList<int>{2, 1, 0}));
}

void SiteModelsTest::theSlotHoldsOnlyTheLastDrag()
{
    SitesHost sites;
    sites.Drag(sites.ribbon, {sites.Page(0)});
    QVERIFY(dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource()));
    sites.DragCommands({0});
    QVERIFY(!dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource()));
    // Rows of a model that shows another layout from now on are void.
    sites.Drag(sites.ribbon, {sites.Page(0)});
    sites.ribbon.SetLayout(sites.layout);
    QVERIFY(!GetDragSource());
}

void SiteModelsTest::theTreeShowsWhatResolves()
{
    SitesHost sites;
    UiStateRibbonGroup* group = sites.GroupNode(0, 0);
    const int shown = sites.ribbon.rowCount(sites.Group(0, 0));
    QCOMPARE(shown, group->GetAvailableCount());
    auto* unknown = UiStateCommandSpots::CreateCommandSpot(QStringLiteral("No.Such.Command"));
    unknown->SetStyle(Qt::ToolButtonIconOnly);
    group->InsertChild(0, unknown);
    QCOMPARE(sites.ribbon.rowCount(sites.Group(0, 0)), shown);
    QCOMPARE(group->GetChildCount(), shown + 1);
    // Rows lie under column 0 only.
    QCOMPARE(sites.ribbon.rowCount(sites.ribbon.index(0, 1)), 0);
}

void SiteModelsTest::aModelWithoutALayoutIsEmpty()
{
    SitesHost sites;
    sites.SetLayout(nullptr);
    for (SiteTreeModel* model : sites.Models()) {
        QCOMPARE(model->rowCount(), 0);
        QVERIFY(!model->GetRootItem());
        QVERIFY(!model->canDropMimeData(nullptr, Qt::CopyAction, 0, 0, {}));
    }
    QCOMPARE(sites.commands.rowCount(), 0);
}

void SiteModelsTest::ribbonFlags_data()
{
    QTest::addColumn<int>("persistence");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("flags");
    QTest::newRow("ordinary, column 0") << 1 << 0 << (c_dpsn | c_c | c_e);
    QTest::newRow("ordinary, column 1") << 1 << 1 << c_dpsn;
    QTest::newRow("fixed, column 0") << 0 << 0 << (c_dpsn | c_e);
    QTest::newRow("built in, hideable, column 0") << 3 << 0 << (c_dpsn | c_c);
    QTest::newRow("built in, column 0") << 4 << 0 << c_dpsn;
    QTest::newRow("run time, column 0") << 2 << 0 << (c_dpsn | c_e);
}

void SiteModelsTest::ribbonFlags()
{
    QFETCH(int, persistence);
    QFETCH(int, column);
    QFETCH(int, flags);
    SitesHost sites;
    sites.PageNode(0)->SetPersistence(static_cast<UiStateItem::ItemPersitence>(persistence));
    sites.GroupNode(0, 0)->SetPersistence(static_cast<UiStateItem::ItemPersitence>(persistence));
    QCOMPARE(int(sites.ribbon.flags(sites.ribbon.index(0, column))), flags);
    QCOMPARE(int(sites.ribbon.flags(sites.ribbon.index(0, column, sites.Page(0)))), flags);
    QCOMPARE(int(sites.ribbon.flags({})), 0);

    const QModelIndex group = sites.Group(0, 0);
    const QModelIndex command = sites.ribbon.index(0, column, group);
    QCOMPARE(int(sites.ribbon.flags(command)),
             c_h | c_dpsn | (column == 0 ? c_c : 0) | (column == 1 ? c_e : 0));
    sites.ribbon.AddSeparator(group, 0);
    QCOMPARE(int(sites.ribbon.flags(sites.ribbon.index(0, column, group))),
             c_h | c_dpsn | (column == 0 ? c_c : 0));
}

void SiteModelsTest::ribbonData()
{
    SitesHost sites;
    const QModelIndex page = sites.Page(0);
    const QModelIndex group = sites.Group(0, 0);
    sites.PageNode(0)->SetTitle(QStringLiteral("My page"));
    sites.GroupNode(0, 0)->SetTitle(QStringLiteral("My group"));
    QCOMPARE(page.data().toString(), QStringLiteral("My page"));
    QCOMPARE(page.data(Qt::EditRole).toString(), QStringLiteral("My page"));
    QCOMPARE(group.data().toString(), QStringLiteral("My group"));
    QCOMPARE(page.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    sites.PageNode(0)->SetVisible(false);
    QCOMPARE(page.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    QVERIFY(!sites.ribbon.index(0, 1).data(Qt::CheckStateRole).isValid());

    const QModelIndex spot = sites.ribbon.index(0, 0, group);
    auto* node = dynamic_cast<UiSpotCommand*>(sites.GroupNode(0, 0)->GetSpot(0));
    QCOMPARE(spot.data().toString(), node->GetUiItem()->GetTitle());
    node->SetStyle(Qt::ToolButtonTextOnly);
    QCOMPARE(spot.sibling(0, 1).data().toString(), QStringLiteral("Text Only"));
    QCOMPARE(spot.sibling(0, 1).data(Qt::EditRole).toString(), QStringLiteral("Text Only"));
    QVERIFY(!spot.sibling(0, 2).data(Qt::DecorationRole).isValid());
    sites.ribbon.AddSeparator(group, 0);
    QCOMPARE(sites.ribbon.index(0, 2, group).data().toString(), QStringLiteral("--"));

    sites.PageNode(0)->SetPersistence(UiStateItem::ipBuiltIn);
    QCOMPARE(page.data(Qt::ForegroundRole).value<QColor>(),
             QApplication::palette().color(QPalette::Disabled, QPalette::Text));
    sites.PageNode(0)->SetPersistence(UiStateItem::ipOrdinary);
    QVERIFY(!page.data(Qt::ForegroundRole).isValid());
}

void SiteModelsTest::ribbonEdits()
{
    SitesHost sites;
    QSignalSpy changed(&sites.ribbon, &QAbstractItemModel::dataChanged);
    const QModelIndex page = sites.Page(0);
    QVERIFY(sites.ribbon.setData(page, QStringLiteral("Renamed")));
    QCOMPARE(sites.PageNode(0)->GetTitle(), QStringLiteral("Renamed"));
    QVERIFY(!sites.ribbon.setData(page.sibling(0, 1), QStringLiteral("x")));
    QVERIFY(sites.ribbon.setData(page, Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!sites.PageNode(0)->IsVisible());
    QVERIFY(sites.ribbon.setData(page, Qt::Checked, Qt::CheckStateRole));
    QVERIFY(sites.ribbon.setData(sites.Group(0, 0), QStringLiteral("Group")));
    const QModelIndex spot = sites.ribbon.index(0, 1, sites.Group(0, 0));
    QVERIFY(sites.ribbon.setData(spot, int(Qt::ToolButtonTextOnly)));
    QCOMPARE(dynamic_cast<UiSpotCommand*>(sites.GroupNode(0, 0)->GetSpot(0))->GetStyle(),
             Qt::ToolButtonTextOnly);
    QVERIFY(!sites.ribbon.setData(spot.sibling(0, 0), QStringLiteral("x")));
    QVERIFY(!sites.ribbon.setData({}, 1));
    QCOMPARE(changed.count(), 5);
}

void SiteModelsTest::quickAccessBarFlagsAndEdits()
{
    SitesHost sites;
    QCOMPARE(int(sites.qab.flags({})), c_p);
    QCOMPARE(int(sites.qab.flags(sites.qab.index(0, 0))), 173 | c_c);
    QCOMPARE(int(sites.qab.flags(sites.qab.index(0, 1))), 173 | c_e);
    QCOMPARE(int(sites.qab.flags(sites.qab.index(0, 2))), 173);
    QCOMPARE(sites.qab.GetMaxItems(), 128);
    QCOMPARE(sites.qab.columnCount(), 3);
    QSignalSpy changed(&sites.qab, &QAbstractItemModel::dataChanged);
    QVERIFY(sites.qab.setData(sites.qab.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(changed.count(), 0);
    QVERIFY(sites.qab.setData(sites.qab.index(0, 1), int(Qt::ToolButtonTextOnly)));
    QCOMPARE(changed.count(), 1);
    QVERIFY(!sites.qab.setData(sites.qab.index(0, 0), QStringLiteral("x")));
    sites.qab.AddSeparator({}, 0);
    QCOMPARE(sites.qab.index(0, 0).data().toString(), QStringLiteral("--"));
    QCOMPARE(int(sites.qab.flags(sites.qab.index(0, 1))), 173);
    const int rows = sites.qab.rowCount();
    sites.qab.DeleteRow({}, 0);
    QCOMPARE(sites.qab.rowCount(), rows - 1);
    sites.qab.DeleteRow({}, 99);
    QCOMPARE(sites.qab.rowCount(), rows - 1);
}

void SiteModelsTest::toolbarFlagsAndEdits()
{
    SitesHost sites;
    const QModelIndex bar = sites.toolbars.index(0, 0);
    QCOMPARE(int(sites.toolbars.flags(bar)), c_dpsn | c_c | c_e);
    QCOMPARE(int(sites.toolbars.flags(bar.sibling(0, 1))), c_dpsn);
    QCOMPARE(int(sites.toolbars.flags(sites.toolbars.index(0, 0, bar))), c_h | c_dpsn | c_c);
    QCOMPARE(int(sites.toolbars.flags(sites.toolbars.index(0, 1, bar))), c_h | c_dpsn | c_e);
    QCOMPARE(sites.toolbars.GetMaxItems(), 64);
    QSignalSpy changed(&sites.toolbars, &QAbstractItemModel::dataChanged);
    QVERIFY(sites.toolbars.setData(bar, QStringLiteral("Mine")));
    QCOMPARE(bar.data().toString(), QStringLiteral("Mine"));
    QCOMPARE(changed.count(), 1);
    QVERIFY(sites.toolbars.setData(bar, Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(bar.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    QCOMPARE(changed.count(), 1);
}

void SiteModelsTest::menuFlagsAndEdits()
{
    SitesHost sites;
    const QModelIndex menu = sites.menus.index(0, 0);
    auto* node = dynamic_cast<UiStateMenu*>(sites.menus.GetMenus()->GetItem(0));
    node->SetPersistence(UiStateItem::ipOrdinary);
    QCOMPARE(int(sites.menus.flags(menu)), 47);
    node->SetPersistence(UiStateItem::ipBuiltIn);
    QCOMPARE(int(sites.menus.flags(menu)), c_dpsn);
    QCOMPARE(int(sites.menus.flags(sites.menus.index(0, 0, menu))), c_h | c_dpsn);
    QCOMPARE(sites.menus.GetMaxItems(), 12);
    QCOMPARE(sites.menus.columnCount(), 2);
    QCOMPARE(menu.data(MenusModel::MenuRole).value<UiStateMenu*>(), node);
    QCOMPARE(menu.data(257).value<void*>(), static_cast<void*>(node));
    node->SetKey(0);
    QVERIFY(menu.sibling(0, 1).data().toString().isEmpty());
    QVERIFY(sites.menus.setData(menu.sibling(0, 1), 'A'));
    QCOMPARE(node->GetKey(), int('A'));
    QCOMPARE(menu.sibling(0, 1).data().toString(), QStringLiteral("A + RMB"));
    QVERIFY(sites.menus.setData(menu, QStringLiteral("Mine")));
    QCOMPARE(menu.data().toString(), QStringLiteral("Mine"));
    QVERIFY(!menu.data(Qt::CheckStateRole).isValid());
}

void SiteModelsTest::compositeFlagsAndEdits()
{
    SitesHost sites;
    const QModelIndex clip = sites.composites.index(0, 0);
    const QModelIndex save = sites.composites.index(1, 0);
    QCOMPARE(int(sites.composites.flags(clip)) & (c_dpsn | c_e), c_dpsn | c_e);
    QCOMPARE(int(sites.composites.flags(clip.sibling(0, 1))) & (c_dpsn | c_e), c_dpsn);
    QCOMPARE(int(sites.composites.flags(sites.composites.index(0, 0, clip))) & c_e, 0);
    QCOMPARE(sites.composites.GetMaxItems(), 32);
    QCOMPARE(clip.sibling(0, 1).data().toString(), QStringLiteral("Menu"));
    QCOMPARE(save.sibling(1, 1).data().toString(), QStringLiteral("Composite command"));
    QVERIFY(sites.composites.setData(save.sibling(1, 1), QStringLiteral("Keep")));
    QCOMPARE(save.data().toString(), QStringLiteral("Keep"));
    QVERIFY(!sites.composites.setData(sites.composites.index(0, 0, clip), QStringLiteral("x")));
    QCOMPARE(sites.composites.index(0, 0, clip).data().toString(),
             sites.host.Command(QStringLiteral("Edit.Copy"))->GetTitle());
}

void SiteModelsTest::commandTableFlagsAndEdits()
{
    SitesHost sites;
    QVERIFY(sites.commands.rowCount() > 3);
    for (UiCommand* command : sites.commands) {
        QVERIFY(!command->IsDynamic());
        QVERIFY(command->IsVisual());
    }
    const int row = sites.commands.indexOf(sites.host.Command(QStringLiteral("File.Open")));
    const QModelIndex title = sites.commands.index(row, 0);
    const QModelIndex key = sites.commands.index(row, 1);
    QCOMPARE(title.data().toString(), sites.host.Command(QStringLiteral("File.Open"))->GetTitle());
    QCOMPARE(key.data().toString(), QStringLiteral("Ctrl+O"));
    QCOMPARE(key.data(Qt::EditRole).value<QKeySequence>(), QKeySequence(QStringLiteral("Ctrl+O")));
    QVERIFY(sites.commands.flags(key) & Qt::ItemIsEditable);
    QVERIFY(!(sites.commands.flags(title) & Qt::ItemIsEditable));
    QVERIFY(sites.commands.flags(title) & Qt::ItemIsDragEnabled);
    QCOMPARE(sites.commands.headerData(1, Qt::Horizontal).toInt(), 1);

    QVERIFY(sites.commands.setData(key, QKeySequence(QStringLiteral("F7"))));
    QCOMPARE(key.data().toString(), QStringLiteral("F7"));
    QVERIFY(sites.commands.setData(key, QVariant()));
    QVERIFY(!key.data().isValid());
    QVERIFY(sites.commands.setData(key, QKeySequence(QStringLiteral("F8"))));
    QCOMPARE(key.data().toString(), QStringLiteral("F8"));
    QVERIFY(!sites.commands.setData(title, QStringLiteral("x")));
    sites.commands.Clear();
    QCOMPARE(sites.commands.rowCount(), 0);
}

OVK_TEST_CLASS(SiteModelsTest)

#include "site_models_test.moc"
