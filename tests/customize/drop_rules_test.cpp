#include "tests/customize/sites_host.h"
#include "tests/main_window/window_host.h"
#include "tests/support/test_main.h"

#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/work_area.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_toolbar.h>
#include <qtitan/ribbon.h>

#include <QAction>
#include <QJsonDocument>
#include <QToolBar>

using namespace ovk;
using namespace ovk_test;

namespace {

/// The sites of a layout that is on screen, with a second container of every kind.
struct LiveSites : SitesHost
{
    LiveSites()
    {
        host.Activate(QString());
        window = std::make_unique<RibbonWindow>();
        window->show();
        layout = host.Activate(QStringLiteral("Model"));
        SetLayout(layout);
        PageNode(0)->SetPersistence(UiStateItem::ipOrdinary);
        for (int group : {0, 1})
            GroupNode(0, group)->SetPersistence(UiStateItem::ipOrdinary);
        ribbon.AddPage(-1);
        ribbon.setData(Page(1), QStringLiteral("Two"));
        ribbon.AddGroup(Page(1), -1);
        ribbon.setData(Group(1, 0), QStringLiteral("G2"));
        toolbars.AddToolbar(-1);
        toolbars.setData(toolbars.index(1, 0), QStringLiteral("Bar"));
        menus.AddMenu(-1);
        menus.setData(menus.index(1, 0), QStringLiteral("M2"));
        composites.AddMenu(-1);
        composites.setData(composites.index(2, 0), QStringLiteral("C3"));
    }
    ~LiveSites()
    {
        host.Activate(QString());
        SetLayout(nullptr);
        window.reset();
    }

    SiteTreeModel& Model(const QString& name)
    {
        static const QStringList names = {QStringLiteral("ribbon"), QStringLiteral("qab"),
                                          QStringLiteral("toolbars"), QStringLiteral("menus"),
                                          QStringLiteral("composites")};
        return *Models().at(names.indexOf(name));
    }
    /// "ribbon:0/1/2", or "ribbon" for its root.
    QModelIndex At(const QString& path)
    {
        SiteTreeModel& model = Model(path.section(':', 0, 0));
        QModelIndex index;
        for (const QString& row : path.section(':', 1).split('/', Qt::SkipEmptyParts))
            index = model.index(row.toInt(), 0, index);
        return index;
    }
    /// "commands:File.Open,Edit.Copy", "ribbon:0/0/1,0/0/2".
    void Lift(const QString& what)
    {
        const QString site = what.section(':', 0, 0);
        const QStringList parts = what.section(':', 1).split(',');
        if (site == QStringLiteral("commands")) {
            QList<int> rows;
            for (const QString& id : parts)
                rows.append(commands.indexOf(host.Command(id)));
            DragCommands(rows);
            return;
        }
        QModelIndexList rows;
        for (const QString& part : parts)
            rows.append(At(site + ':' + part));
        Drag(Model(site), rows);
    }

    /// What a model shows, in one line.
    QString Shape(const SiteTreeModel& model, const QModelIndex& parent = {}) const
    {
        QStringList parts;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            ITreeItem* node = model.GetItem(index);
            QString name = dynamic_cast<UiProfileItem*>(node)->GetName();
            if (dynamic_cast<UiSpotSeparator*>(node))
                name = QStringLiteral("-");
            else if (name.startsWith(QStringLiteral("__")))
                name = index.data().toString();
            const bool leaf = model.flags(index) & Qt::ItemNeverHasChildren ||
                              dynamic_cast<UiStateCompositeItem*>(node);
            parts.append(leaf ? name : name + '(' + Shape(model, index) + ')');
        }
        return parts.join(' ');
    }

    /// The commands of a widget that is on screen, separators left out.
    static QStringList Shown(const QWidget& widget)
    {
        QStringList names;
        for (const QAction* action : widget.actions()) {
            if (dynamic_cast<const UiCommand*>(action))
                names.append(action->objectName());
        }
        return names;
    }
    /// The same commands as the tree says.
    static QStringList Told(UiStateCommandSpots& spots)
    {
        QStringList names;
        for (int i = 0; i < spots.GetAvailableCount(); ++i) {
            auto* spot = dynamic_cast<UiSpotCommand*>(spots.GetSpot(i));
            if (spot && dynamic_cast<UiCommand*>(spot->GetUiItem()))
                names.append(spot->GetName());
        }
        return names;
    }
    /// Everything that is on screen is what the trees say.
    void CompareLive()
    {
        for (int page = 0; page < Root()->GetChildCount(); ++page) {
            auto* node = PageNode(page);
            QCOMPARE(window->ribbonBar()->pages().at(page), node->GetWidget());
            for (int group = 0; group < node->GetChildCount(); ++group)
                QCOMPARE(Shown(*GroupNode(page, group)->GetWidget()),
                         Told(*GroupNode(page, group)));
        }
        auto* qab_root = dynamic_cast<UiStateCommandSpots*>(qab.GetRootItem());
        QCOMPARE(Shown(*window->ribbonBar()->quickAccessBar()), Told(*qab_root));
        for (int i = 0; i < toolbars.rowCount(); ++i) {
            auto* bar = dynamic_cast<UiStateToolbar*>(toolbars.GetItem(toolbars.index(i, 0)));
            auto* live = window->GetWorkArea()->findChild<QToolBar*>(bar->GetName());
            QVERIFY(live);
            QCOMPARE(Shown(*live), Told(*bar));
        }
    }
    QByteArray Json() const { return QJsonDocument(host.Profile().ToJson()).toJson(); }

    std::unique_ptr<RibbonWindow> window;
};

} // namespace

/// Every row of the drop rules: what may be dropped where, what becomes of the tree, and that it is
/// seen in the window at once.
class DropRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRuleActs_data();
    void everyRuleActs();
    void whatNoRuleNamesIsRefused_data();
    void whatNoRuleNamesIsRefused();
    void refusalsByRoomAndLocks_data();
    void refusalsByRoomAndLocks();
};

void DropRulesTest::everyRuleActs_data()
{
    QTest::addColumn<QString>("lifted");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    // Ribbon: page.home(group.file(File.Open - File.Save) group.edit(composite.clip)) Two(G2())
    const auto ribbon = [](const char* file, const char* edit, const char* two) {
        return QStringLiteral("page.home(group.file(%1) group.edit(%2)) Two(%3)")
            .arg(QLatin1String(file), QLatin1String(edit), QLatin1String(two));
    };
    const char* const files = "File.Open - File.Save";
    QTest::newRow("page on the ribbon, to the end")
        << "ribbon:0"
        << "ribbon" << -1
        << "Two(G2()) page.home(group.file(File.Open - File.Save) group.edit(composite.clip))";
    QTest::newRow("page on the ribbon, before another")
        << "ribbon:1"
        << "ribbon" << 0
        << "Two(G2()) page.home(group.file(File.Open - File.Save) group.edit(composite.clip))";
    QTest::newRow("page on a page goes behind it")
        << "ribbon:0"
        << "ribbon:1" << -1
        << "Two(G2()) page.home(group.file(File.Open - File.Save) group.edit(composite.clip))";
    QTest::newRow("group on a page")
        << "ribbon:0/1"
        << "ribbon:1" << 0
        << "page.home(group.file(File.Open - File.Save)) Two(group.edit(composite.clip) G2())";
    QTest::newRow("group on a page, to the end")
        << "ribbon:0/1"
        << "ribbon:1" << -1
        << "page.home(group.file(File.Open - File.Save)) Two(G2() group.edit(composite.clip))";
    QTest::newRow("group on a group goes behind it")
        << "ribbon:0/0"
        << "ribbon:0/1" << -1
        << "page.home(group.edit(composite.clip) group.file(File.Open - File.Save)) Two(G2())";
    QTest::newRow("commands on a group come in reverse")
        << "commands:File.Open,Edit.Copy,View.Zoom"
        << "ribbon:1/0" << -1
        << ribbon(files, "composite.clip", "G2(View.Zoom Edit.Copy File.Open)");
    QTest::newRow("commands into a group, at a row")
        << "commands:Edit.Copy"
        << "ribbon:0/0" << 1 << ribbon("File.Open Edit.Copy - File.Save", "composite.clip", "G2()");
    QTest::newRow("spots on a group keep their order")
        << "ribbon:0/0/0,0/0/1"
        << "ribbon:1/0" << -1 << ribbon("File.Save", "composite.clip", "G2(File.Open -)");
    QTest::newRow("composite on a group")
        << "composites:1"
        << "ribbon:0/0" << 0
        << ribbon("composite.save File.Open - File.Save", "composite.clip", "G2()");
    QTest::newRow("commands on a spot go behind it")
        << "commands:Edit.Copy"
        << "ribbon:0/0/0" << -1
        << ribbon("File.Open Edit.Copy - File.Save", "composite.clip", "G2()");
    QTest::newRow("spot on a spot goes behind it")
        << "ribbon:0/0/0"
        << "ribbon:0/0/2" << -1 << ribbon("- File.Save File.Open", "composite.clip", "G2()");
    QTest::newRow("composite on a spot goes behind it")
        << "composites:1"
        << "ribbon:0/0/2" << -1
        << ribbon("File.Open - File.Save composite.save", "composite.clip", "G2()");

    QTest::newRow("commands on the quick access bar")
        << "commands:File.Open,Edit.Copy"
        << "qab" << -1 << "File.Save Edit.Copy File.Open";
    QTest::newRow("commands before others of the quick access bar")
        << "commands:File.Open"
        << "qab" << 0 << "File.Open File.Save";
    QTest::newRow("composite on the quick access bar") << "composites:0"
                                                       << "qab" << -1 << "File.Save composite.clip";
    QTest::newRow("commands on a spot of the quick access bar")
        << "commands:File.Open"
        << "qab:0" << -1 << "File.Save File.Open";
    QTest::newRow("composite on a spot of the quick access bar")
        << "composites:0"
        << "qab:0" << -1 << "File.Save composite.clip";

    QTest::newRow("toolbar among toolbars") << "toolbars:1"
                                            << "toolbars" << 0 << "Bar() toolbar.view(View.Zoom)";
    QTest::newRow("toolbar on a toolbar goes behind it")
        << "toolbars:0"
        << "toolbars:1" << -1 << "Bar() toolbar.view(View.Zoom)";
    QTest::newRow("commands on a toolbar")
        << "commands:File.Open"
        << "toolbars:1" << -1 << "toolbar.view(View.Zoom) Bar(File.Open)";
    QTest::newRow("spot on a toolbar") << "toolbars:0/0"
                                       << "toolbars:1" << -1 << "toolbar.view() Bar(View.Zoom)";
    QTest::newRow("composite on a toolbar")
        << "composites:0"
        << "toolbars:0" << 0 << "toolbar.view(composite.clip View.Zoom) Bar()";
    QTest::newRow("commands on a spot of a toolbar")
        << "commands:File.Open"
        << "toolbars:0/0" << -1 << "toolbar.view(View.Zoom File.Open) Bar()";
    QTest::newRow("composite on a spot of a toolbar")
        << "composites:0"
        << "toolbars:0/0" << -1 << "toolbar.view(View.Zoom composite.clip) Bar()";

    QTest::newRow("commands on a menu") << "commands:File.Open"
                                        << "menus:0" << 0 << "menu.main(File.Open Edit.Copy) M2()";
    QTest::newRow("spot on a menu") << "menus:0/0"
                                    << "menus:1" << -1 << "menu.main() M2(Edit.Copy)";
    QTest::newRow("commands on a spot of a menu")
        << "commands:File.Open"
        << "menus:0/0" << -1 << "menu.main(Edit.Copy File.Open) M2()";

    QTest::newRow("composite on a composite: they change places")
        << "composites:0"
        << "composites:2" << -1
        << "C3() composite.save(File.Save File.Open) composite.clip(Edit.Copy Edit.Paste)";
    QTest::newRow("item on a composite")
        << "composites:0/0"
        << "composites:2" << -1
        << "composite.clip(Edit.Paste) composite.save(File.Save File.Open) C3(Edit.Copy)";
    QTest::newRow("commands on a composite")
        << "commands:File.Open,Edit.Copy"
        << "composites:2" << -1
        << "composite.clip(Edit.Copy Edit.Paste) composite.save(File.Save File.Open) "
           "C3(Edit.Copy File.Open)";
    QTest::newRow("item on an item goes behind it")
        << "composites:0/0"
        << "composites:1/0" << -1
        << "composite.clip(Edit.Paste) composite.save(File.Save Edit.Copy File.Open) C3()";
    QTest::newRow("commands on an item go behind it")
        << "commands:View.Zoom"
        << "composites:0/0" << -1
        << "composite.clip(Edit.Copy View.Zoom Edit.Paste) composite.save(File.Save File.Open) "
           "C3()";
}

void DropRulesTest::everyRuleActs()
{
    QFETCH(QString, lifted);
    QFETCH(QString, target);
    QFETCH(int, row);
    QFETCH(QString, after);
    LiveSites sites;
    SiteTreeModel& model = sites.Model(target.section(':', 0, 0));
    sites.Lift(lifted);
    QVERIFY(sites.CanDrop(model, sites.At(target), row));
    QVERIFY(sites.Drop(model, sites.At(target), row));
    QCOMPARE(sites.Shape(model), after);
    QVERIFY(!model.IsDropping());
    sites.CompareLive();
}

void DropRulesTest::whatNoRuleNamesIsRefused_data()
{
    QTest::addColumn<QString>("lifted");
    QTest::addColumn<QString>("target");
    struct Row
    {
        const char* lifted;
        QStringList taken; ///< the targets that take it
    };
    const QList<Row> rows = {
        {"commands:View.Zoom",
         {"ribbon:0/0", "ribbon:0/0/0", "qab", "qab:0", "toolbars:0", "toolbars:0/0", "menus:0",
          "menus:0/0", "composites:0", "composites:0/0"}},
        {"ribbon:1", {"ribbon", "ribbon:0"}},
        {"ribbon:1/0", {"ribbon:0", "ribbon:0/0"}},
        {"ribbon:0/0/1", {"ribbon:0/0", "ribbon:0/0/0"}},
        {"qab:0", {"qab"}},
        {"toolbars:1", {"toolbars", "toolbars:0"}},
        {"toolbars:0/0", {"toolbars:0"}},
        {"menus:1", {}},
        {"menus:0/0", {"menus:0"}},
        {"composites:1",
         {"ribbon:0/0", "ribbon:0/0/0", "qab", "qab:0", "toolbars:0", "toolbars:0/0",
          "composites:0"}},
        {"composites:1/0", {"composites:0", "composites:0/0"}},
    };
    const QStringList targets = {"ribbon",       "ribbon:0",     "ribbon:0/0",    "ribbon:0/0/0",
                                 "qab",          "qab:0",        "toolbars",      "toolbars:0",
                                 "toolbars:0/0", "menus",        "menus:0",       "menus:0/0",
                                 "composites",   "composites:0", "composites:0/0"};
    for (const Row& row : rows) {
        for (const QString& target : targets) {
            if (!row.taken.contains(target))
                QTest::addRow("%s on %s", row.lifted, qPrintable(target)) << row.lifted << target;
        }
    }
}

void DropRulesTest::whatNoRuleNamesIsRefused()
{
    QFETCH(QString, lifted);
    QFETCH(QString, target);
    LiveSites sites;
    SiteTreeModel& model = sites.Model(target.section(':', 0, 0));
    sites.Lift(lifted);
    const QByteArray before = sites.Json();
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    for (int row : {-1, 0, 1}) {
        QVERIFY(!sites.CanDrop(model, sites.At(target), row));
        QVERIFY(!sites.Drop(model, sites.At(target), row));
    }
    QCOMPARE(sites.Json(), before);
    QCOMPARE(inserted.count() + removed.count(), 0);
    sites.CompareLive();
}

void DropRulesTest::refusalsByRoomAndLocks_data()
{
    QTest::addColumn<QString>("lifted");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("filled");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("the 128th spot of a group") << "commands:View.Zoom"
                                               << "ribbon:0/0" << 127 << false << true;
    QTest::newRow("the 129th") << "commands:View.Zoom"
                               << "ribbon:0/0" << 128 << false << false;
    QTest::newRow("two for one place") << "commands:View.Zoom,Edit.Copy"
                                       << "ribbon:0/0" << 127 << false << false;
    QTest::newRow("a composite into a full group") << "composites:1"
                                                   << "ribbon:0/0" << 128 << false << false;
    QTest::newRow("a move inside a full group") << "ribbon:0/0/0,0/0/1"
                                                << "ribbon:0/0" << 128 << false << true;
    QTest::newRow("the 129th of the quick access bar") << "commands:View.Zoom"
                                                       << "qab" << 128 << false << false;
    QTest::newRow("the 64th of a toolbar") << "commands:File.Open"
                                           << "toolbars:0" << 63 << false << true;
    QTest::newRow("the 65th of a toolbar") << "commands:File.Open"
                                           << "toolbars:0" << 64 << false << false;
    QTest::newRow("the 12th of a menu") << "commands:File.Open"
                                        << "menus:0" << 11 << false << true;
    QTest::newRow("the 13th of a menu") << "commands:File.Open"
                                        << "menus:0" << 12 << false << false;
    QTest::newRow("a locked group") << "commands:View.Zoom"
                                    << "ribbon:0/0" << 0 << true << false;
    QTest::newRow("a group on a locked group") << "ribbon:1/0"
                                               << "ribbon:0/0" << 0 << true << false;
    QTest::newRow("a locked toolbar") << "commands:File.Open"
                                      << "toolbars:0" << 0 << true << false;
    QTest::newRow("a locked menu takes commands") << "commands:File.Open"
                                                  << "menus:0" << 0 << true << true;
}

void DropRulesTest::refusalsByRoomAndLocks()
{
    QFETCH(QString, lifted);
    QFETCH(QString, target);
    QFETCH(int, filled);
    QFETCH(bool, locked);
    QFETCH(bool, allowed);
    LiveSites sites;
    SiteTreeModel& model = sites.Model(target.section(':', 0, 0));
    auto* spots = dynamic_cast<UiStateCommandSpots*>(model.GetItem(sites.At(target)));
    while (spots->GetChildCount() < filled)
        spots->AppendChild(spots->CreateSeparatorSpot());
    if (locked)
        spots->SetPersistence(UiStateItem::ipBuiltIn);
    model.Refresh();
    sites.Lift(lifted);
    const QByteArray before = sites.Json();
    QCOMPARE(sites.CanDrop(model, sites.At(target), 0), allowed);
    if (!allowed)
        QCOMPARE(sites.Json(), before);
}

OVK_TEST_CLASS(DropRulesTest)

#include "drop_rules_test.moc"
