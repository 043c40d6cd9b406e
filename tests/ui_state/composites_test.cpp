#include "suites_support.h"
#include "tests/support/test_main.h"

#include <ovk/commands/commands_drop_down.h>
#include <ovk/commands/commands_menu.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_toolbars.h>

#include <QIcon>
#include <QMenu>
#include <QPixmap>

using namespace ovk;
using namespace ovk_test;

class CompositesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<FakeHost>();
        mp_host->Start();
        mp_layout = mp_host->Layout("Model");
        mp_suite = &SuiteOf<UiStateComposites>(*mp_layout);
        mp_clip = mp_suite->Find("composite.clip");
        mp_save = mp_suite->Find("composite.save");
    }
    void cleanup() { mp_host.reset(); }

    void compositeReadsAndWrites_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("neither title nor icon")
            << QByteArray("{'id': 'c', 'type': 'menu', 'items': []}")
            << QByteArray("{'id': 'c', 'type': 'menu', 'items': []}");
        QTest::newRow("all keys") << QByteArray(
                                         "{'id': 'c', 'type': 'menu', 'title': 'T', 'icon': 'I', "
                                         "'items': ['A', 'B']}")
                                  << QByteArray(
                                         "{'id': 'c', 'type': 'menu', 'title': 'T', 'icon': 'I', "
                                         "'items': ['A', 'B']}");
        QTest::newRow("any other type is a drop-down")
            << QByteArray("{'id': 'c', 'type': 'gallery', 'items': ['A']}")
            << QByteArray("{'id': 'c', 'type': 'command', 'items': ['A']}");
        QTest::newRow("no type, no items") << QByteArray("{'id': 'c', 'visible': false}")
                                           << QByteArray("{'id': 'c', 'type': 'command', "
                                                         "'visible': false, 'items': []}");
    }
    void compositeReadsAndWrites()
    {
        QFETCH(QByteArray, read);
        QFETCH(QByteArray, written);
        UiStateComposites suite;
        QVERIFY(suite.FromJson({{"subitems", QJsonArray{Json(read)}}}));
        QCOMPARE(suite.GetCount(), 1);
        QCOMPARE(suite.ToJson().value("subitems").toArray().at(0).toObject(), Json(written));
        const UiStateComposites copy(suite);
        QCOMPARE(copy.ToJson(), suite.ToJson());
    }

    void itemIsNotWrittenByItself()
    {
        const UiStateCompositeItem item(QStringLiteral("A"));
        QVERIFY(!item.IsStorable());
        UiStateCompositeItem of_command(*mp_host->Command("Edit.Copy"));
        QCOMPARE(of_command.GetName(), QStringLiteral("Edit.Copy"));
        QCOMPARE(of_command.GetUiItem(), mp_host->Command("Edit.Copy"));
        QVERIFY(!UiStateCompositeItem(of_command).GetUiItem());
    }

    void newCompositesGetIdentifiersOfTheProfile()
    {
        UiStateCompositeMenu* menu = UiStateComposites::CreateMenu();
        QVERIFY(menu->GetName().isEmpty());
        mp_suite->InsertComposite(menu, 0);
        QVERIFY(menu->GetName().startsWith("__UiStateCompositeMenu."));
        QCOMPARE(mp_suite->GetItem(0), menu);
        UiStateCompositeCommand* command = UiStateComposites::CreateCommand();
        mp_suite->InsertComposite(command, -1);
        QVERIFY(command->GetName().startsWith("__UiStateCompositeCommand."));
        const std::unique_ptr<UiStateComposite> removed(mp_suite->RemoveComposite(0));
        QCOMPARE(removed.get(), menu);
        QVERIFY(!mp_suite->RemoveComposite(-1));
        mp_suite->DeleteComposite(99);
        QCOMPARE(mp_suite->GetCount(), 3);
    }

    void theFirstSpotMakesTheCommand()
    {
        QVERIFY(!mp_clip->GetCommand());
        IUiItem* item = mp_layout->FindUiItem("composite.clip");
        QVERIFY(dynamic_cast<CommandsMenu*>(item));
        QCOMPARE(item, static_cast<IUiItem*>(mp_clip->GetCommand()));
        QCOMPARE(item->GetId(), QStringLiteral("composite.clip"));
        QCOMPARE(item->GetTitle(), QStringLiteral("Clipboard"));
        QCOMPARE(mp_layout->FindUiItem("composite.clip"), item);
        QVERIFY(dynamic_cast<CommandsDropDown*>(mp_layout->FindUiItem("composite.save")));
        QCOMPARE(Items(mp_clip), QStringList({"Edit.Copy", "Edit.Paste"}));
        mp_clip->Deactivate(UiProfileItem::amOrdinary); // does nothing
        QCOMPARE(static_cast<IUiItem*>(mp_clip->GetCommand()), item);
    }

    void copyHasNoCommand()
    {
        mp_clip->Activate(UiProfileItem::amOrdinary);
        const std::unique_ptr<UiProfileItem> copy(mp_clip->Clone());
        QVERIFY(dynamic_cast<UiStateCompositeMenu*>(copy.get()));
        QVERIFY(!static_cast<UiStateComposite*>(copy.get())->GetCommand());
        QCOMPARE(copy->ToJson(), mp_clip->ToJson());
    }

    void compositeWithoutAnyItemIsNotAvailable()
    {
        auto* composite = new UiStateCompositeMenu(QStringLiteral("c"));
        mp_suite->InsertComposite(composite, -1);
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("No.Such")), -1);
        QVERIFY(!composite->IsAvailable());
        QVERIFY(!mp_layout->FindUiItem("c"));
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("Edit.Copy")), -1);
        QVERIFY(mp_layout->FindUiItem("c"));
        QCOMPARE(Items(composite), QStringList{"Edit.Copy"});
    }

    void compositeThatHoldsItselfIsFoundOut()
    {
        auto* one = new UiStateCompositeMenu(QStringLiteral("one"));
        auto* two = new UiStateCompositeMenu(QStringLiteral("two"));
        mp_suite->InsertComposite(one, -1);
        mp_suite->InsertComposite(two, -1);
        one->InsertItem(new UiStateCompositeItem(QStringLiteral("two")), -1);
        two->InsertItem(new UiStateCompositeItem(QStringLiteral("one")), -1);
        QVERIFY(!mp_layout->FindUiItem("one"));
        QVERIFY(!mp_layout->FindUiItem("two"));
        two->InsertItem(new UiStateCompositeItem(QStringLiteral("Edit.Copy")), -1);
        QVERIFY(mp_layout->FindUiItem("one"));
        QVERIFY(mp_layout->FindUiItem("two"));
    }

    void indexesCountAvailableItems()
    {
        mp_clip->InsertItem(new UiStateCompositeItem(QStringLiteral("No.Such")), 0);
        QCOMPARE(ChildNames(*mp_clip), QStringList({"No.Such", "Edit.Copy", "Edit.Paste"}));
        QCOMPARE(mp_clip->GetAvailableCount(), 2);
        QCOMPARE(mp_clip->GetAvailableIndexOf(mp_host->Command("Edit.Paste")), 1);
        QCOMPARE(mp_clip->GetAvailableIndexOf(mp_host->Command("File.Open")), -1);
        QVERIFY(mp_clip->IsContains(mp_host->Command("Edit.Copy")));
        QCOMPARE(mp_clip->GetAvailableChild(0), static_cast<ITreeItem*>(mp_clip->GetChild(1)));
        QVERIFY(!mp_clip->GetAvailableChild(2));
        QVERIFY(!mp_clip->GetAvailableChild(-1));
        mp_clip->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Open")), 1);
        QCOMPARE(ChildNames(*mp_clip),
                 QStringList({"No.Such", "Edit.Copy", "File.Open", "Edit.Paste"}));
        mp_clip->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Save")), -1);
        QCOMPARE(ChildNames(*mp_clip).last(), QStringLiteral("File.Save"));
        const std::unique_ptr<UiStateCompositeItem> removed(mp_clip->RemoveItem(1));
        QCOMPARE(removed->GetName(), QStringLiteral("File.Open"));
        QVERIFY(!mp_clip->RemoveItem(99));
    }

    void deleteItemTakesTheNamedOneWhileAllResolve()
    {
        mp_clip->DeleteItem(1);
        QCOMPARE(ChildNames(*mp_clip), QStringList{"Edit.Copy"});
    }

    void deleteItemConvertsTheIndexTwice()
    {
        mp_clip->InsertItem(new UiStateCompositeItem(QStringLiteral("No.Such")), 0);
        // Available 0 is raw 1, and available 1 is what goes.
        mp_clip->DeleteItem(0);
        QCOMPARE(ChildNames(*mp_clip), QStringList({"No.Such", "Edit.Copy"}));
        mp_clip->DeleteItem(0); // there is no available item 1 any more
        QCOMPARE(ChildNames(*mp_clip), QStringList({"No.Such", "Edit.Copy"}));
    }

    void changeOfTheItemsMakesANewCommandForEverySpot()
    {
        auto& bar = SuiteOf<UiStateQAB>(*mp_layout);
        bar.AddSpot(UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.clip")));
        auto* toolbar =
            static_cast<UiStateToolbar*>(SuiteOf<UiStateToolbars>(*mp_layout).GetItem(0));
        toolbar->AddSpot(UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.clip")));
        auto* menu = static_cast<UiStateMenu*>(SuiteOf<UiStateMenus>(*mp_layout).GetItem(0));
        menu->AddSpot(UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.clip")));
        UiStateRibbonGroup* group =
            SuiteOf<UiStateRibbon>(*mp_layout).GetPage("page.home")->GetGroup("group.edit");
        mp_save->InsertItem(new UiStateCompositeItem(QStringLiteral("composite.clip")), -1);
        const QList<UiStateCommandSpots*> sites{&bar, toolbar, menu, group};
        IUiItem* const old = mp_layout->FindUiItem("composite.clip");
        for (UiStateCommandSpots* site : sites)
            QVERIFY(site->IndexOf(old) >= 0);
        QVERIFY(mp_save->IsContains(old));

        mp_clip->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Open")), 0);
        IUiItem* const now = mp_clip->GetCommand();
        QCOMPARE(Items(mp_clip), QStringList({"File.Open", "Edit.Copy", "Edit.Paste"}));
        for (UiStateCommandSpots* site : sites)
            QVERIFY(site->IndexOf(now) >= 0);
        QVERIFY(mp_save->IsContains(now));
    }

    void deletedCompositeLeavesEverySite()
    {
        auto& bar = SuiteOf<UiStateQAB>(*mp_layout);
        bar.AddSpot(UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.clip")));
        bar.AddSpot(UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.clip")));
        auto* menu = static_cast<UiStateMenu*>(SuiteOf<UiStateMenus>(*mp_layout).GetItem(0));
        menu->AddSpot(UiStateCommandSpots::CreateCommandSpot(QStringLiteral("composite.clip")));
        UiStateRibbonGroup* group =
            SuiteOf<UiStateRibbon>(*mp_layout).GetPage("page.home")->GetGroup("group.edit");
        QCOMPARE(group->GetAvailableCount(), 1); // the live command is there now
        QCOMPARE(menu->GetAvailableCount(), 2);
        QCOMPARE(bar.GetAvailableCount(), 3);
        mp_suite->DeleteComposite(mp_suite->GetIndexOf(mp_clip));
        QCOMPARE(group->GetChildCount(), 0);
        QCOMPARE(ChildNames(bar), QStringList{"File.Save"});
        QCOMPARE(menu->GetAvailableCount(), 1); // a menu keeps its spot, which no longer resolves
        QCOMPARE(mp_suite->GetCount(), 1);
    }

    void deletedCompositeThatNobodyAskedForLeavesItsSpots()
    {
        UiStateRibbonGroup* group =
            SuiteOf<UiStateRibbon>(*mp_layout).GetPage("page.home")->GetGroup("group.edit");
        mp_suite->DeleteComposite(mp_suite->GetIndexOf(mp_clip));
        QCOMPARE(group->GetChildCount(), 1);
        QCOMPARE(group->GetAvailableCount(), 0);
    }

    void spotForgetsACompositeThatIsGone()
    {
        UiStateRibbonGroup* group =
            SuiteOf<UiStateRibbon>(*mp_layout).GetPage("page.home")->GetGroup("group.edit");
        QCOMPARE(group->GetAvailableCount(), 1);
        mp_save->InsertItem(new UiStateCompositeItem(QStringLiteral("composite.clip")), -1);
        QCOMPARE(mp_save->GetAvailableCount(), 3);
        // Not by DeleteComposite, which takes the spots along.
        delete mp_suite->RemoveComposite(mp_suite->GetIndexOf(mp_clip));
        QCOMPARE(group->GetAvailableCount(), 0);
        QCOMPARE(mp_save->GetAvailableCount(), 2);
        auto* suite = new UiStateComposites;
        suite->FromJson(Json("{'subitems': [{'id': 'composite.clip', 'items': ['Edit.Copy']}]}"));
        mp_layout->ReplaceState(mp_suite, suite);
        QCOMPARE(group->GetAvailableCount(), 1);
    }

    void titleReachesTheCommand()
    {
        mp_clip->Activate(UiProfileItem::amOrdinary);
        mp_clip->SetTitle("Mine");
        QVERIFY(mp_clip->_IsChangedByUser());
        QCOMPARE(mp_clip->GetTitle(), QStringLiteral("Mine"));
        QCOMPARE(mp_clip->GetCommand()->GetTitle(), QStringLiteral("Mine"));
    }

    void iconNameGetsItsPictureFromTheSourceOfTheHost()
    {
        QStringList asked;
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        UiStateComposites::SetIconSource([&](const QString& name) {
            asked << name;
            return QIcon(pixmap);
        });
        auto* const composite = mp_suite->CreateMenu();
        composite->SetIconName("picture");
        mp_suite->InsertComposite(composite, -1);
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Save")), -1);
        QVERIFY(asked.isEmpty()); // nobody shows it
        composite->Activate(UiProfileItem::amOrdinary);
        QCOMPARE(asked, QStringList("picture"));
        QVERIFY(!composite->GetCommand()->GetIcon().isNull());
        // Made anew with another item it looks as before.
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Open")), -1);
        QVERIFY(!composite->GetCommand()->GetIcon().isNull());
        composite->SetIconName("other");
        QCOMPARE(asked.last(), QString("other"));
        UiStateComposites::SetIconSource({});
    }

    void iconThatTheHostGaveOutlivesAChangeOfTheItems()
    {
        auto* const composite = mp_suite->CreateMenu();
        mp_suite->InsertComposite(composite, -1);
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Save")), -1);
        composite->Activate(UiProfileItem::amOrdinary);
        QVERIFY(composite->GetCommand()->GetIcon().isNull());
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        composite->GetCommand()->SetIcon(QIcon(pixmap));
        composite->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Open")), -1);
        QVERIFY(!composite->GetCommand()->GetIcon().isNull());
    }

    void validationReportsACompositeOfAChangedCommand()
    {
        mp_clip->Activate(UiProfileItem::amOrdinary);
        QSet<QString> changed;
        mp_clip->Validate(changed);
        QVERIFY(changed.isEmpty());
        mp_host->factory.Remove("Edit.Paste");
        mp_clip->Validate(changed);
        QCOMPARE(changed, QSet<QString>({"Edit.Paste", "composite.clip"}));
        QCOMPARE(Items(mp_clip), QStringList{"Edit.Copy"});
        // Also when somebody noticed before that the command has gone.
        mp_host->factory.Remove("Edit.Copy");
        mp_host->factory.Add("Edit.Paste");
        QCOMPARE(mp_clip->GetAvailableCount(), 1);
        changed.clear();
        mp_clip->Validate(changed);
        QVERIFY(changed.contains("composite.clip"));
        QCOMPARE(Items(mp_clip), QStringList{"Edit.Paste"});
        changed = {"Edit.Copy"}; // somebody else reported it
        mp_clip->Validate(changed);
        QVERIFY(changed.contains("composite.clip"));
    }

    void mergeOfTitleAndIcon()
    {
        const auto make = [](const QByteArray& json) {
            auto composite = std::make_unique<UiStateCompositeMenu>(Json(json));
            composite->FromJson(Json(json));
            return composite;
        };
        const auto own = make("{'id': 'c', 'title': 'Mine', 'icon': 'old', 'items': ['A']}");
        const auto base = make("{'id': 'c', 'title': 'T', 'icon': 'old', 'items': ['A', 'B']}");
        const auto source =
            make("{'id': 'c', 'title': 'U', 'icon': 'new', 'items': ['A', 'B', 'C']}");
        own->Merge(*source, base.get());
        QCOMPARE(own->ToJson().value("title").toString(), QStringLiteral("Mine"));
        QCOMPARE(own->GetIconName(), QStringLiteral("new"));
        // B was deleted by the user, C is new.
        QCOMPARE(ChildNames(*own), QStringList({"A", "C"}));
    }

private:
    static QStringList Items(const UiStateComposite* composite)
    {
        QStringList ids;
        composite->GetCommand()->ForEach([&ids](IUiItem* item) {
            ids << item->GetId();
            return true;
        });
        return ids;
    }

    std::unique_ptr<FakeHost> mp_host;
    UiLayout* mp_layout = nullptr;
    UiStateComposites* mp_suite = nullptr;
    UiStateComposite* mp_clip = nullptr;
    UiStateComposite* mp_save = nullptr;
};
OVK_TEST_CLASS(CompositesTest)

#include "composites_test.moc"
