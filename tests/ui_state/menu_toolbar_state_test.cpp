#include "suites_support.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_toolbars.h>

using namespace ovk;
using namespace ovk_test;

class MenuToolbarStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menuReadsAndWrites_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("all keys")
            << QByteArray("{'id': 'm', 'title': 'T', 'key': 121, 'spots': [{'id': 'A'}]}")
            << QByteArray("{'id': 'm', 'title': 'T', 'key': 121, 'spots': [{'id': 'A'}]}");
        QTest::newRow("no title takes the identifier")
            << QByteArray("{'id': 'menu.view.main'}")
            << QByteArray("{'id': 'menu.view.main', 'title': 'menu view main', 'key': 0, "
                          "'spots': []}");
        QTest::newRow("an empty title too")
            << QByteArray("{'id': 'a.b', 'title': ''}")
            << QByteArray("{'id': 'a.b', 'title': 'a b', 'key': 0, 'spots': []}");
    }
    void menuReadsAndWrites()
    {
        QFETCH(QByteArray, read);
        QFETCH(QByteArray, written);
        const QJsonObject json = Json(read);
        UiStateMenu menu(json);
        QVERIFY(menu.FromJson(json));
        QCOMPARE(menu.ToJson(), Json(written));
        const UiStateMenu copy(menu);
        QCOMPARE(copy.ToJson(), Json(written));
        const std::unique_ptr<UiProfileItem> clone(menu.Clone());
        QVERIFY(dynamic_cast<UiStateMenu*>(clone.get()));
        QCOMPARE(clone->ToJson(), Json(written));
    }

    void menuTitleOfTheUserIsAlwaysMarked()
    {
        const QJsonObject json = Json("{'id': 'm', 'title': 'T'}");
        UiStateMenu menu(json);
        menu.FromJson(json);
        menu.SetTitle("T"); // not compared
        QVERIFY(menu._IsChangedByUser());
        QCOMPARE(menu.GetTitle(), QStringLiteral("T"));
    }

    void autosize()
    {
        UiStateMenus menus;
        QVERIFY(menus.IsMenuAutosize());
        menus.FromJson({});
        QVERIFY(!menus.IsMenuAutosize());
        menus.FromJson(Json("{'autosize': true}"));
        QVERIFY(menus.IsMenuAutosize());
        QCOMPARE(menus.ToJson(), Json("{'id': 'menus', 'subitems': [], 'autosize': true}"));
        menus.SetMenuAutosize(false);
        QCOMPARE(menus.ToJson().value("autosize"), QJsonValue(false));
        QVERIFY(!UiStateMenus(menus).IsMenuAutosize());
    }

    void menusTakeNoPartInAMerge()
    {
        UiStateMenus own;
        own.InsertMenu(new UiStateMenu(QStringLiteral("mine")), -1);
        UiStateMenus base;
        UiStateMenus source;
        source.InsertMenu(new UiStateMenu(QStringLiteral("new")), -1);
        QVERIFY(!own.IsMergeAble());
        own.Merge(source, &base);
        QCOMPARE(ChildNames(own), QStringList{"mine"});
    }

    void menuThatIsAlreadyThereIsNotInsertedAgain()
    {
        UiStateMenus menus;
        auto* menu = new UiStateMenu(QStringLiteral("a"));
        menus.InsertMenu(menu, -1);
        menus.InsertMenu(new UiStateMenu(QStringLiteral("b")), 0);
        menus.InsertMenu(menu, 0);
        menus.InsertMenu(nullptr, 0);
        QCOMPARE(ChildNames(menus), QStringList({"b", "a"}));
    }

    void newMenuAndToolbarGetIdentifiersOfTheProfile()
    {
        FakeHost host;
        host.Start();
        auto* menu = new UiStateMenu;
        SuiteOf<UiStateMenus>(*host.Layout("Model")).InsertMenu(menu, -1);
        QVERIFY(menu->GetName().startsWith("__UiStateMenu."));
        auto* bar = new UiStateToolbar;
        SuiteOf<UiStateToolbars>(*host.Layout("Model")).AppendChild(bar);
        QVERIFY(bar->GetName().startsWith("__UiStateToolbar."));
    }

    void menuFindsItsCommandsWhereverTheLayoutIs()
    {
        FakeHost host;
        host.Start();
        auto& menus = SuiteOf<UiStateMenus>(*host.Layout("Model"));
        auto* menu = static_cast<UiStateMenu*>(menus.GetItem(0));
        QCOMPARE(menu->GetKey(), 121);
        QCOMPARE(menu->GetAvailableCount(), 1);
        menu->SetKey(0x20041);
        QCOMPARE(menu->GetKey(), 0x20041);
    }

    void toolbarReadsAndWrites_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("no keys: area 0, still movable")
            << QByteArray("{'id': 't'}")
            << QByteArray("{'id': 't', 'title': '', 'break': false, 'floating': false, "
                          "'movable': true, 'area': 0, 'spots': []}");
        const QByteArray full("{'id': 't', 'title': 'T', 'break': true, 'floating': true, "
                              "'movable': false, 'area': 8, 'spots': [{'id': 'A', 'style': 2}]}");
        QTest::newRow("all keys") << full << full;
    }
    void toolbarReadsAndWrites()
    {
        QFETCH(QByteArray, read);
        QFETCH(QByteArray, written);
        const QJsonObject json = Json(read);
        UiStateToolbar bar(json);
        QVERIFY(bar.FromJson(json));
        QCOMPARE(bar.ToJson(), Json(written));
        QCOMPARE(UiStateToolbar(bar).ToJson(), Json(written));
    }

    void newToolbarIsAtTheTop()
    {
        const UiStateToolbar bar(QStringLiteral("t"));
        QCOMPARE(bar.GetArea(), static_cast<int>(Qt::TopToolBarArea));
        QVERIFY(bar.IsMovable());
        QVERIFY(!bar.HasBreak());
        QVERIFY(!bar.IsFloating());
    }

    void toolbarWithoutMovableStaysAsItWas()
    {
        UiStateToolbar bar(QStringLiteral("t"));
        bar.SetMovable(false);
        bar.FromJson(Json("{'title': 'T'}"));
        QVERIFY(!bar.IsMovable());
    }

    void toolbarTitleOfTheUserIsMarkedWhenItDiffers()
    {
        const QJsonObject json = Json("{'id': 't', 'title': 'T'}");
        UiStateToolbar bar(json);
        bar.FromJson(json);
        bar.SetTitle("T");
        QVERIFY(!bar._IsChangedByUser());
        bar.SetTitle("Mine");
        QVERIFY(bar._IsChangedByUser());
        QCOMPARE(bar.GetTitle(), QStringLiteral("Mine"));
    }

    void stateOfTheMainWindowIsBase64()
    {
        const QString state = QString::fromLatin1(QByteArray("\xff\x00\x01", 3).toBase64());
        UiStateToolbars bars;
        QCOMPARE(bars.ToJson().value("state"), QJsonValue(QString()));
        bars.FromJson({{"state", state}});
        QCOMPARE(bars.ToJson().value("state").toString(), state);
        QCOMPARE(UiStateToolbars(bars).ToJson(), bars.ToJson());
        bars.FromJson({{"state", QString()}});
        QCOMPARE(bars.ToJson().value("state"), QJsonValue(QString()));
    }

    void quickAccessBarKeepsItsSpots()
    {
        const QJsonObject json =
            Json("{'id': 'quick access bar', 'spots': [{'id': 'A'}, {'id': 'B', 'style': 1}]}");
        UiStateQAB bar;
        bar.FromJson(json);
        QCOMPARE(bar.ToJson(), json);
        const std::unique_ptr<UiProfileItem> clone(bar.Clone());
        QVERIFY(dynamic_cast<UiStateQAB*>(clone.get()));
        QCOMPARE(clone->ToJson(), json);
    }

    void suitesLiveWithoutAWindow()
    {
        FakeHost host;
        host.Start();
        UiLayout& layout = *host.Activate("Model");
        SuiteOf<UiStateQAB>(layout).AddSpot(
            UiStateCommandSpots::CreateCommandSpot(*host.Command("Edit.Copy")));
        auto* bar = static_cast<UiStateToolbar*>(SuiteOf<UiStateToolbars>(layout).GetItem(0));
        bar->SetVisible(false);
        bar->SetMovable(false);
        bar->SetArea(1);
        bar->Clear();
        layout.Store();
        QVERIFY(!bar->GetWidget());
        QCOMPARE(bar->GetArea(), 1);
    }
};
OVK_TEST_CLASS(MenuToolbarStateTest)

#include "menu_toolbar_state_test.moc"
