#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/storable_ui.h>
#include <ovk/ui_state/ui_shortcut_binding.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_dialogs.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_shortcuts.h>
#include <ovk/ui_state/ui_state_toolbars.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QWidget>

using namespace ovk;
using namespace ovk_test;

namespace {

constexpr int c_commands = 20;

/// A suite's children, those of the damaged file and a good one behind them.
QJsonArray With(const QJsonArray& damaged, const QJsonObject& good)
{
    QJsonArray all = damaged;
    all.append(good);
    return all;
}

/// The states of a layout with a good part in each suite, and whatever a row puts beside it.
QJsonObject States(const QJsonObject& damaged)
{
    const auto own = [&damaged](const char* suite, const char* tag) {
        return damaged.value(QLatin1String(suite)).toObject().value(QLatin1String(tag)).toArray();
    };
    const auto suite = [&damaged](const char* name, const char* tag, const QJsonArray& children) {
        QJsonObject object = damaged.value(QLatin1String(name)).toObject();
        object.insert(QStringLiteral("id"), QLatin1String(name));
        object.insert(QLatin1String(tag), children);
        return object;
    };
    QJsonObject states = damaged;
    states["ribbon"] = suite(
        "ribbon", "pages",
        With(own("ribbon", "pages"),
             Json("{'id': 'good.page', 'title': 'Good', 'groups': [{'id': 'good.group', "
                  "'title': 'Good', 'spots': [{'id': 'Big.0', 'style': 2}, "
                  "{'id': 'good.composite', 'style': 2}, {'id': 'Not.There', 'style': 2}]}]}")));
    states["toolbars"] = suite(
        "toolbars", "subitems",
        With(own("toolbars", "subitems"), Json("{'id': 'good.bar', 'title': 'Good', 'area': 4, "
                                               "'spots': [{'id': 'Big.1'}]}")));
    states["shortcuts"] =
        suite("shortcuts", "bindings",
              With(With(own("shortcuts", "bindings"),
                        Json("{'id': 'Not.There', 'key sequence': 'Ctrl+Shift+9'}")),
                   Json("{'id': 'Big.2', 'key sequence': 'Ctrl+Shift+8'}")));
    states["composite"] = suite(
        "composite", "subitems",
        With(own("composite", "subitems"), Json("{'id': 'good.composite', 'type': 'menu', 'title': "
                                                "'Good', 'items': ['Not.There', 'Big.3']}")));
    states["menus"] =
        suite("menus", "subitems",
              With(own("menus", "subitems"), Json("{'id': 'good.menu', 'title': 'Good', 'key': 65, "
                                                  "'spots': [{'id': 'Big.4'}]}")));
    return states;
}

QJsonObject ProfileWith(const QJsonObject& damaged)
{
    const QJsonObject layout{{"id", "Big"}, {"states", States(damaged)}};
    return {{"layouts", QJsonArray{layout}},
            {"version", "1.0.0.0"},
            {"product", "Fake"},
            {"counter", 5}};
}

/// The child of that identifier in the list of a suite of the first layout.
QJsonObject ChildOf(const QJsonObject& profile, const char* suite, const char* tag,
                    const QString& id)
{
    const QJsonArray children = profile["layouts"]
                                    .toArray()
                                    .at(0)
                                    .toObject()["states"]
                                    .toObject()[QLatin1String(suite)]
                                    .toObject()[QLatin1String(tag)]
                                    .toArray();
    for (const QJsonValue& child : children) {
        if (child.toObject()["id"].toString() == id)
            return child.toObject();
    }
    return {};
}

} // namespace

/// Profiles that no program wrote: damaged on a disk, edited by hand, or made to do harm. Nothing
/// crashes or hangs, what is good in them works, and what is only not known today stays in the
/// file.
class DamagedProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mp_host = std::make_unique<LiveHost>(BigCatalogue(c_commands), BigProfile()); }
    void cleanup() { mp_host.reset(); }

    void damageDoesNoHarmToTheRest_data()
    {
        QTest::addColumn<QJsonObject>("states");
        QTest::newRow("nothing is damaged") << QJsonObject();
        QTest::newRow("areas that are none")
            << Json("{'toolbars': {'subitems': [{'id': 'a', 'area': 3}, {'id': 'b', 'area': -7}, "
                    "{'id': 'c', 'area': 99999}, {'id': 'd', 'area': 'left'}]}}");
        QTest::newRow("floating bars that are elsewhere, too")
            << Json("{'toolbars': {'subitems': [{'id': 'a', 'area': 15, 'floating': true, "
                    "'movable': false, 'break': true}]}}");
        QTest::newRow("negative sizes")
            << Json("{'dialog data': {'dialog': [{'id': 'd', 'l': -99999, 't': -99999, 'w': -5, "
                    "'h': -5}]}, 'docking': {'id': 'docking', 'subitems': [{'id': 'areas', "
                    "'subitems': [{'id': 'manager.area', 'sites': [{'id': 'left', 'subitems': "
                    "[{'id': 'toolboxes.site', 'size': -250, 'subitems': [{'id': 'p', 'width': -1, "
                    "'height': -1, 'pages': [{'id': 'Page.Parts'}]}]}]}]}]}, {'id': 'floated', "
                    "'subitems': [{'id': 'f', 'width': -10, 'height': -2000000000, 'left': "
                    "2000000000, 'top': -2000000000, 'pages': []}]}]}}");
        QTest::newRow("numbers that are too large") << Json(
            "{'toolbars': {'subitems': [{'id': 'a', 'area': 1e300, 'persistence': 1e300}]}, "
            "'dialog data': {'dialog': [{'id': 'd', 'l': 2147483647, 't': 2147483647, "
            "'w': 2147483647, 'h': 2147483647}]}, 'menus': {'subitems': [{'id': 'm', "
            "'key': 1e300}]}}");
        QTest::newRow("a window state that is not base64")
            << Json("{'toolbars': {'state': '\\u00e9!! this is no base64 ==='}}");
        QTest::newRow("a window state of nonsense")
            << QJsonObject{{"toolbars", QJsonObject{{"state", "AAAA/wAAAAD9AAAAAf////8="}}}};
        QTest::newRow("a composite that holds itself")
            << Json("{'composite': {'subitems': [{'id': 'c', 'type': 'menu', 'items': ['c']}]}, "
                    "'quick access bar': {'spots': [{'id': 'c'}]}}");
        QTest::newRow("composites that hold each other")
            << Json("{'composite': {'subitems': [{'id': 'c', 'type': 'menu', 'items': ['d', "
                    "'Big.5']}, {'id': 'd', 'type': 'command', 'items': ['e']}, {'id': 'e', "
                    "'type': 'menu', 'items': ['c', 'd', 'e']}]}, 'quick access bar': {'spots': "
                    "[{'id': 'c'}, {'id': 'd'}, {'id': 'e'}]}}");
        QTest::newRow("a composite with the name of a command")
            << Json("{'composite': {'subitems': [{'id': 'Big.6', 'type': 'menu', 'items': "
                    "['Big.6']}]}, 'quick access bar': {'spots': [{'id': 'Big.6'}]}}");
        QTest::newRow("identifiers that are there twice")
            << Json("{'ribbon': {'pages': [{'id': 'good.page', 'groups': [{'id': 'good.group', "
                    "'spots': [{'id': 'Big.7'}]}, {'id': 'good.group', 'spots': [{'id': 'Big.7'}, "
                    "{'id': 'Big.7'}]}]}]}, 'toolbars': {'subitems': [{'id': 'good.bar'}, {'id': "
                    "'good.bar'}]}, 'composite': {'subitems': [{'id': 'twice', 'type': 'menu', "
                    "'items': ['Big.7']}, {'id': 'twice', 'type': 'command', 'items': "
                    "['Big.8']}]}, 'menus': {'subitems': [{'id': 'good.menu'}, {'id': "
                    "'good.menu'}]}, 'dialog data': {'dialog': [{'id': 'd'}, {'id': 'd'}]}, "
                    "'shortcuts': {'bindings': [{'id': 'Big.7', 'key sequence': 'Ctrl+7'}, {'id': "
                    "'Big.7', 'key sequence': 'Ctrl+7'}, {'id': 'Big.8', 'key sequence': "
                    "'Ctrl+7'}]}}");
        QTest::newRow("identifiers that are missing or empty")
            << Json("{'ribbon': {'pages': [{}, {'id': ''}]}, 'toolbars': {'subitems': [{}, {'id': "
                    "''}]}, 'composite': {'subitems': [{}, {'id': ''}]}, 'shortcuts': {'bindings': "
                    "[{}]}, 'menus': {'subitems': [{}]}, 'dialog data': {'dialog': [{}]}, 'quick "
                    "access bar': {'spots': [{}, {'type': 'separator'}]}}");
        QTest::newRow("keys that do not parse")
            << Json("{'shortcuts': {'bindings': [{'id': 'Big.7', 'key sequence': 'Ctrl+Nonsense'}, "
                    "{'id': 'Big.8', 'key sequence': '+++,,,'}, {'id': 'Big.9', 'key sequence': "
                    "'A, B, C, D, E, F'}, {'id': 'Big.10', 'key sequence': 12}, {'id': 'Big.11', "
                    "'key sequence': ['Ctrl+A']}]}}");
        QTest::newRow("values of other types") << Json(
            "{'ribbon': {'pages': [5, 'x', null, [], {'id': 7, 'title': [], 'visible': "
            "'yes', 'persistence': 'much', 'groups': {'a': 1}}]}, 'toolbars': {'state': 5, "
            "'subitems': [true, {'id': 'a', 'break': 7, 'movable': 'no', 'spots': 'all'}]}, "
            "'composite': {'subitems': [{'id': 'c', 'type': 9, 'title': {}, 'icon': [], "
            "'items': [1, null, {}, 'Big.5']}]}, 'menus': {'autosize': 'perhaps', "
            "'subitems': [[]]}, 'quick access bar': {'spots': 'none'}, 'docking': 5}");
        QTest::newRow("styles and kinds that are none")
            << Json("{'quick access bar': {'spots': [{'id': 'Big.5', 'style': -4}, {'id': 'Big.6', "
                    "'style': 1e300}, {'id': 's', 'type': 'separator', 'style': 3}]}}");
        QTest::newRow("suites that nobody knows")
            << Json("{'future': {'id': 'future', 'subitems': [1, 2, 3]}, '': {}}");
        QTest::newRow("suites that are no objects")
            << Json("{'docking': [], 'quick access bar': null, 'dialog data': 'x'}");
    }

    void damageDoesNoHarmToTheRest()
    {
        QFETCH(QJsonObject, states);
        Load(ProfileWith(states));
        GoodPartsWork();

        // Everything that the program does with a profile in its life.
        mp_host->Revalidate();
        const std::unique_ptr<UiProfile> copy(new UiProfile(mp_host->Profile()));
        QCOMPARE(copy->GetCount(), mp_host->Profile().GetCount());
        const QJsonObject saved = mp_host->Controller().GetActualProfile()->ToJson();
        StaysInTheFile(saved);
        mp_host->Controller().SetActiveLayout(nullptr);
        mp_host->Activate("Big");
        GoodPartsWork();

        // What was saved is read again, and says the same.
        Load(saved);
        GoodPartsWork();
        StaysInTheFile(mp_host->Controller().GetActualProfile()->ToJson());

        // And a new default comes in.
        UiProfile newer;
        newer.FromJson(ProfileWith({}));
        mp_host->Profile().Rebase(newer);
        mp_host->Revalidate();
    }

    void compositesThatHoldEachOtherShowWhatTheyCan()
    {
        Load(ProfileWith(
            Json("{'composite': {'subitems': [{'id': 'c', 'type': 'menu', 'title': 'C', "
                 "'items': ['d', 'Big.5']}, {'id': 'd', 'type': 'menu', 'title': 'D', "
                 "'items': ['c']}, {'id': 'self', 'type': 'menu', 'title': 'Self', "
                 "'items': ['self']}]}, 'quick access bar': {'spots': [{'id': 'c'}, "
                 "{'id': 'd'}, {'id': 'self'}, {'id': 'Big.6'}]}}")));
        // The one that holds nothing but itself cannot be shown, and stays in the file.
        QCOMPARE(Shown(mp_host->QuickAccess()), QStringList({"C", "D", "Big.6"}));
        const QJsonObject saved = mp_host->Controller().GetActualProfile()->ToJson();
        QCOMPARE(ChildOf(saved, "composite", "subitems", "self")["items"].toArray(),
                 QJsonArray{"self"});
    }

    void barsInAreasThatAreNoneStandAtTheTop()
    {
        Load(ProfileWith(Json("{'toolbars': {'subitems': [{'id': 'a', 'area': 3, 'spots': [{'id': "
                              "'Big.5'}]}, {'id': 'b', 'area': -7}]}}")));
        auto& suite = SuiteOf<UiStateToolbars>(*mp_host->Layout("Big"));
        for (int i = 0; i < 2; ++i) {
            auto* bar = static_cast<UiStateToolbar*>(suite.GetItem(i));
            QCOMPARE(mp_host->Area().toolBarArea(bar->GetWidget()), Qt::TopToolBarArea);
        }
        QCOMPARE(Shown(*static_cast<UiStateToolbar*>(suite.GetItem(0))->GetWidget()),
                 QStringList("Big.5"));
        mp_host->Controller().GetActualProfile();
        QCOMPARE(static_cast<UiStateToolbar*>(suite.GetItem(1))->GetArea(),
                 int(Qt::TopToolBarArea));
    }

    void everyPieceOfAWindowStateIsHarmless()
    {
        Load(ProfileWith({}));
        mp_host->Controller().GetActualProfile();
        const QByteArray state = QByteArray::fromBase64(mp_host->Profile()
                                                            .ToJson()["layouts"]
                                                            .toArray()
                                                            .at(0)
                                                            .toObject()["states"]
                                                            .toObject()["toolbars"]
                                                            .toObject()["state"]
                                                            .toString()
                                                            .toLatin1());
        QVERIFY(state.size() > 20);
        constexpr quint32 c_seed = 20260117;
        QRandomGenerator random(c_seed);
        for (int round = 0; round < 60; ++round) {
            QByteArray damaged = state.left(1 + round * state.size() / 60);
            for (int flips = 0; flips < round % 4; ++flips)
                damaged[random.bounded(damaged.size())] = char(random.bounded(256));
            const QByteArray text = damaged.toBase64();
            Load(ProfileWith(
                QJsonObject{{"toolbars", QJsonObject{{"state", QString::fromLatin1(text)}}}}));
            QVERIFY2(Bar("good.bar"), qPrintable(QStringLiteral("seed %1").arg(c_seed)));
            QCOMPARE(Shown(*Bar("good.bar")), QStringList("Big.1"));
        }
    }

    void aDialogOfNoSizeComesUpAllTheSame()
    {
        Load(ProfileWith(Json("{'dialog data': {'dialog': [{'id': 'd', 'l': 10, 't': 10, 'w': -5, "
                              "'h': -5}, {'id': 'far', 'l': 2147483647, 't': 2147483647, 'w': "
                              "2147483647, 'h': 2147483647}]}}")));
        for (const char* name : {"d", "far"}) {
            QWidget dialog;
            dialog.setMinimumSize(50, 40);
            dialog.resize(200, 100);
            StorableUI::RestoreGeometry(&dialog, name);
            QVERIFY2(dialog.width() >= 50 && dialog.height() >= 40, name);
            StorableUI::SaveGeometry(&dialog, name);
        }
    }

    void tenThousandBindingsAreReadBoundMergedAndSaved()
    {
        constexpr int c_many = 10000;
        QJsonArray bindings;
        for (int i = 0; i < c_many; ++i) {
            bindings.append(QJsonObject{{"id", i % 500 == 0 ? QStringLiteral("Big.%1").arg(i / 500)
                                                            : QStringLiteral("Unknown.%1").arg(i)},
                                        {"key sequence", QStringLiteral("Ctrl+Alt+%1, %2")
                                                             .arg(QChar('A' + i % 26))
                                                             .arg(QChar('A' + i / 26 % 26))}});
        }
        Load(ProfileWith(QJsonObject{{"shortcuts", QJsonObject{{"bindings", bindings}}}}));
        auto& suite = SuiteOf<UiStateShortcuts>(*mp_host->Layout("Big"));
        QCOMPARE(suite.GetCount(), c_many + 2);
        QCOMPARE(mp_host->Command("Big.19")->shortcut().isEmpty(), false);
        const QJsonObject saved = mp_host->Controller().GetActualProfile()->ToJson();
        QCOMPARE(saved["layouts"]
                     .toArray()
                     .at(0)
                     .toObject()["states"]
                     .toObject()["shortcuts"]
                     .toObject()["bindings"]
                     .toArray()
                     .size(),
                 c_many + 2);
        // A merge drops what has no command, and nothing else.
        UiStateShortcuts other;
        other.FromJson(QJsonObject{{"bindings", bindings}});
        suite.Merge(other, nullptr);
        QVERIFY(suite.GetCount() >= c_commands);
        mp_host->Controller().SetActiveLayout(nullptr);
        QVERIFY(mp_host->Command("Big.19")->shortcut().isEmpty());
    }

    void aKeyThatDoesNotParseBindsNothing()
    {
        Load(ProfileWith(Json("{'shortcuts': {'bindings': [{'id': 'Big.10', 'key sequence': 12}, "
                              "{'id': 'Big.11', 'key sequence': ['Ctrl+A']}]}}")));
        QVERIFY(mp_host->Command("Big.10")->shortcut().isEmpty());
        QVERIFY(mp_host->Command("Big.11")->shortcut().isEmpty());
        QCOMPARE(mp_host->Command("Big.2")->shortcut(), QKeySequence("Ctrl+Shift+8"));
    }

private:
    void Load(const QJsonObject& json)
    {
        auto* const profile = new UiProfile; // the controller's from below on
        profile->FromJson(json);
        mp_host->Controller().ResetProfile(profile);
        mp_host->Activate("Big");
        mp_host->Revalidate();
    }

    /// The bars with that name that are on screen; the last of them, which is the good one.
    QToolBar* Bar(const QString& name) const
    {
        QToolBar* found = nullptr;
        for (QToolBar* bar : mp_host->Area().findChildren<QToolBar*>(name)) {
            if (!Shown(*bar).isEmpty())
                found = bar;
        }
        return found;
    }

    void GoodPartsWork()
    {
        UiLayout& layout = *mp_host->Layout("Big");
        QVERIFY(Bar("good.bar"));
        QCOMPARE(Shown(*Bar("good.bar")), QStringList("Big.1"));
        QCOMPARE(mp_host->Command("Big.2")->shortcut(), QKeySequence("Ctrl+Shift+8"));
        auto& ribbon = SuiteOf<UiStateRibbon>(layout);
        UiStateRibbonPage* page = ribbon.GetPage(ribbon.GetCount() - 1);
        QCOMPARE(page->GetName(), QString("good.page"));
        auto* group = static_cast<UiStateRibbonGroup*>(page->GetItem(page->GetCount() - 1));
        QCOMPARE(Shown(*group->GetWidget()), QStringList({"Big.0", "Good"}));
        auto& menus = SuiteOf<UiStateMenus>(layout);
        auto* menu = static_cast<UiStateMenu*>(menus.GetItem(menus.GetCount() - 1));
        QCOMPARE(menu->GetAvailableCount(), 1);
        QVERIFY(layout.FindUiItem("good.composite"));
    }

    /// What does not resolve today is kept for the day when it does.
    static void StaysInTheFile(const QJsonObject& saved)
    {
        QCOMPARE(ChildOf(saved, "shortcuts", "bindings", "Not.There")["key sequence"].toString(),
                 QString("Ctrl+Shift+9"));
        QCOMPARE(ChildOf(saved, "composite", "subitems", "good.composite")["items"].toArray(),
                 (QJsonArray{"Not.There", "Big.3"}));
        const QJsonArray pages = saved["layouts"]
                                     .toArray()
                                     .at(0)
                                     .toObject()["states"]
                                     .toObject()["ribbon"]
                                     .toObject()["pages"]
                                     .toArray();
        const QJsonArray groups = pages.last().toObject()["groups"].toArray();
        QCOMPARE(groups.last().toObject()["spots"].toArray().at(2).toObject()["id"].toString(),
                 QString("Not.There"));
    }

    std::unique_ptr<LiveHost> mp_host;
};
OVK_TEST_CLASS(DamagedProfileTest)

#include "damaged_profile_test.moc"
