#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state.h>

#include <QJsonArray>
#include <QtTest/QtTest>

using namespace ovk;

namespace {

QJsonObject Object(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

class TestApplication : public Application
{
};

UiStateRibbon& Ribbon(UiProfile& profile, const char* layout)
{
    return *static_cast<UiStateRibbon*>(
        profile.GetOrCreateLayout(QString::fromLatin1(layout))->GetState(QStringLiteral("ribbon")));
}

void AddPage(UiProfile& profile, const char* layout, const char* id)
{
    Ribbon(profile, layout).InsertPage(new UiStateRibbonPage(QString::fromLatin1(id)), -1);
}

QStringList Pages(UiProfile& profile, const char* layout)
{
    QStringList names;
    Ribbon(profile, layout).ForEach([&names](UiProfileItem* page) {
        names << page->GetName();
        return true;
    });
    return names;
}

const char* const USER_FILE = R"({
    "version": "1.2.3.4", "product": "Fake", "counter": 41,
    "layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "home"}, {"id": "mine"}]}}}],
    "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "home"}]}}}]}})";

} // namespace

class ProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewProfileIsEmpty()
    {
        UiProfile profile;
        QCOMPARE(profile.GetName(), QStringLiteral("profile"));
        QVERIFY(profile.IsEmpty());
        QVERIFY(!profile.GetBase());
        QVERIFY(!profile.GetVersion().IsValid());
        QCOMPARE(profile.GetProduct(), QString());
        QCOMPARE(profile.GetCount(), 0);
        QVERIFY(!profile.GetItem(0));
        QVERIFY(!profile.GetLayout(QStringLiteral("Model")));
        QVERIFY(!profile.GetLayout());
    }

    void generatedNumbersGoUpFromTheStoredOne()
    {
        UiProfile profile;
        QCOMPARE(profile.NextId(), 1);
        QVERIFY(profile.FromJson(Object(USER_FILE)));
        QCOMPARE(profile.NextId(), 42);
        QCOMPARE(profile.NextId(), 43);
    }

    void aNamelessNodeGetsANameThatIsUniqueInTheProfile()
    {
        UiProfile profile;
        QVERIFY(profile.FromJson(Object(USER_FILE)));
        const auto page = new UiStateRibbonPage(QString());
        Ribbon(profile, "Model").InsertPage(page, -1);
        QCOMPARE(page->GetName(), QStringLiteral("__UiStateRibbonPage.2a"));
        const auto group = new UiStateRibbonGroup(QString());
        page->InsertGroup(group, -1);
        QCOMPARE(group->GetName(), QStringLiteral("__UiStateRibbonGroup.2b"));
    }

    void aNamelessNodeInAFileIsNamedWhileItIsRead()
    {
        UiProfile profile;
        QVERIFY(profile.FromJson(Object(R"({"counter": 15, "layouts": [{"id": "Model", "states":
            {"ribbon": {"pages": [{"groups": [{}]}]}}}]})")));
        QCOMPARE(Pages(profile, "Model"), QStringList{QStringLiteral("__UiStateRibbonPage.10")});
        QCOMPARE(Ribbon(profile, "Model").GetItem(0)->GetTypeName(),
                 QStringLiteral("UiStateRibbonPage"));
    }

    void aLayoutOutsideAProfileNamesNothing()
    {
        UiLayout layout(QStringLiteral("Model"));
        const auto page = new UiStateRibbonPage(QString());
        static_cast<UiStateRibbon*>(layout.GetState(QStringLiteral("ribbon")))
            ->InsertPage(page, -1);
        QCOMPARE(page->GetName(), QString());
    }

    void layoutsAreFoundOrMade()
    {
        UiProfile profile;
        UiLayout* const layout = profile.GetOrCreateLayout(QStringLiteral("Model"));
        QCOMPARE(profile.GetOrCreateLayout(QStringLiteral("Model")), layout);
        QCOMPARE(profile.GetLayout(QStringLiteral("Model")), layout);
        QCOMPARE(qAsConst(profile).GetLayout(QStringLiteral("Model")), layout);
        QVERIFY(!profile.GetLayout(QStringLiteral("model")));
        QCOMPARE(layout->GetProfile(), &profile);
        QVERIFY(!layout->GetFeatureLayout());
        QCOMPARE(profile.GetItem(0), layout);
        QCOMPARE(profile.ForEach([](UiLayout*) { return false; }), layout);
    }

    void aLayoutOfTheProductKnowsItsDefinition()
    {
        ovk_test::FakeHost host;
        UiProfile profile;
        const UiLayout* const known = profile.GetOrCreateLayout(QStringLiteral("Model"));
        QVERIFY(known->GetFeatureLayout());
        QCOMPARE(known->GetFeatureLayout()->GetName(), QStringLiteral("Model"));
        const UiLayout* const unknown = profile.GetOrCreateLayout(QStringLiteral("Unknown"));
        QVERIFY(!unknown->GetFeatureLayout());
        QCOMPARE(UiLayout(*known).GetFeatureLayout(), known->GetFeatureLayout());
    }

    void theHeaderReadsWithDefaults_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("product");
        QTest::addColumn<int>("next");
        QTest::newRow("whole") << QByteArray(
                                      R"({"version": "1.2.3.4", "product": "P", "counter": 7})")
                               << "1.2.3.4"
                               << "P" << 8;
        QTest::newRow("empty") << QByteArray("{}") << "0.0.0.0"
                               << "" << 1;
        QTest::newRow("three parts") << QByteArray(R"({"version": "1.2.3"})") << "0.0.0.0"
                                     << "" << 1;
        QTest::newRow("wrong types")
            << QByteArray(R"({"version": 1.2, "product": [], "counter": "7"})") << "0.0.0.0"
            << "" << 1;
    }

    void theHeaderReadsWithDefaults()
    {
        QFETCH(QByteArray, json);
        UiProfile profile;
        profile.ReadHeader(Object(R"({"version": "9.9.9.9", "product": "old", "counter": 99})"));
        profile.ReadHeader(QJsonDocument::fromJson(json).object());
        QTEST(profile.GetVersion().ToString(), "version");
        QTEST(profile.GetProduct(), "product");
        QTEST(profile.NextId(), "next");
        QVERIFY(profile.IsEmpty());
    }

    void aProfileWithoutABaseTakesItselfAsItStands()
    {
        UiProfile profile;
        QVERIFY(profile.FromJson(Object(R"({"product": "P", "layouts": [{"id": "Model", "states":
            {"ribbon": {"pages": [{"id": "home"}]}}}]})")));
        UiProfile* const base = profile.GetBase();
        QVERIFY(base);
        QVERIFY(base != &profile);
        QCOMPARE(base->GetParent(), static_cast<ITreeItem*>(&profile));
        QVERIFY(!base->GetBase());
        AddPage(profile, "Model", "mine");
        QCOMPARE(Pages(*base, "Model"), QStringList{QStringLiteral("home")});
        QCOMPARE(Pages(profile, "Model"), (QStringList{"home", "mine"}));
    }

    void aProfileWithABaseReadsIt()
    {
        UiProfile profile;
        QVERIFY(profile.FromJson(Object(USER_FILE)));
        QCOMPARE(Pages(profile, "Model"), (QStringList{"home", "mine"}));
        QCOMPARE(Pages(*profile.GetBase(), "Model"), QStringList{QStringLiteral("home")});
        QCOMPARE(profile.GetBase()->GetParent(), static_cast<ITreeItem*>(&profile));
        QVERIFY(!profile.GetBase()->GetVersion().IsValid());
        QVERIFY(!profile.GetBase()->GetBase());
    }

    void aSecondReadingKeepsTheBase()
    {
        UiProfile profile;
        QVERIFY(profile.FromJson(Object(USER_FILE)));
        const UiProfile* const base = profile.GetBase();
        QVERIFY(
            profile.FromJson(Object(R"({"layouts": [{"id": "Slice"}], "base": {"layouts": []}})")));
        QCOMPARE(profile.GetBase(), base);
        QCOMPARE(profile.GetCount(), 2);
    }

    void layoutsThatAreNoObjectsAndAnythingElseDoNoHarm_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("layouts");
        QTest::newRow("empty") << QByteArray("{}") << 0;
        QTest::newRow("number") << QByteArray(R"({"layouts": 5})") << 0;
        QTest::newRow("object") << QByteArray(R"({"layouts": {"id": "a"}})") << 0;
        QTest::newRow("no object inside") << QByteArray(R"({"layouts": [5]})") << 1;
        QTest::newRow("same id twice")
            << QByteArray(R"({"layouts": [{"id": "a"}, {"id": "a"}]})") << 1;
        QTest::newRow("base of the wrong type") << QByteArray(R"({"base": [1, 2]})") << 0;
    }

    void layoutsThatAreNoObjectsAndAnythingElseDoNoHarm()
    {
        QFETCH(QByteArray, json);
        UiProfile profile;
        QVERIFY(profile.FromJson(QJsonDocument::fromJson(json).object()));
        QTEST(profile.GetCount(), "layouts");
        QVERIFY(profile.GetBase());
    }

    void aDeeplyNestedBaseDoesNoHarm()
    {
        QByteArray json("{\"layouts\": []");
        for (int i = 0; i < 1000; ++i)
            json += ",\"base\": {\"layouts\": []";
        json += QByteArray(1001, '}');
        const QJsonObject object = QJsonDocument::fromJson(json).object();
        QVERIFY(!object.isEmpty());
        UiProfile profile;
        QVERIFY(profile.FromJson(object));
        QVERIFY(profile.GetBase()->GetBase());
    }

    void onlyATopLevelProfileWritesAHeader()
    {
        const TestApplication application;
        UiProfile profile;
        QVERIFY(profile.FromJson(Object(USER_FILE)));
        const QJsonObject object = profile.ToJson();
        QCOMPARE(object.keys(),
                 (QStringList{"base", "counter", "description", "layouts", "product", "version"}));
        QCOMPARE(object.value(QStringLiteral("description")).toString(),
                 QStringLiteral("Corvantique (c) multi-layout UI profile"));
        QCOMPARE(object.value(QStringLiteral("version")).toString(),
                 application.GetVersionInfo().ToString());
        QCOMPARE(object.value(QStringLiteral("product")).toString(), QStringLiteral("Fake"));
        QCOMPARE(object.value(QStringLiteral("counter")).toInt(), 41);
        QCOMPARE(object.value(QStringLiteral("base")).toObject().keys(),
                 QStringList{QStringLiteral("layouts")});

        UiProfile read;
        QVERIFY(read.FromJson(object));
        QCOMPARE(read.ToJson(), object);
    }

    void aCopyHasItsOwnLayoutsAndTheSameBase()
    {
        const TestApplication application;
        auto profile = std::make_unique<UiProfile>();
        QVERIFY(profile->FromJson(Object(USER_FILE)));
        UiProfile copy(*profile);
        QCOMPARE(copy.GetBase(), profile->GetBase());
        QCOMPARE(copy.GetProduct(), QStringLiteral("Fake"));
        QVERIFY(!copy.GetVersion().IsValid());
        QCOMPARE(copy.NextId(), 42);
        const std::unique_ptr<UiProfileItem> clone(copy.Clone());
        AddPage(*profile, "Model", "later");
        profile.reset();
        QCOMPARE(Pages(copy, "Model"), (QStringList{"home", "mine"}));
        QCOMPARE(Pages(static_cast<UiProfile&>(*clone), "Model"), (QStringList{"home", "mine"}));
        QCOMPARE(copy.ToJson().value(QStringLiteral("base")).toObject().keys(),
                 QStringList{QStringLiteral("layouts")});
        QVERIFY(!copy.GetBase()->GetLayout());
    }

    void aRebaseBringsTheNewDefaultAndKeepsTheUsersOwn()
    {
        const TestApplication application;
        UiProfile user;
        QVERIFY(user.FromJson(Object(R"({
            "version": "1.0.0.0", "product": "Fake", "counter": 9,
            "layouts": [{"id": "Model", "states": {"ribbon": {"pages": [
                {"id": "home", "visible": false}, {"id": "mine"}, {"id": "dropped"}]}}}],
            "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": [
                {"id": "home"}, {"id": "deleted"}, {"id": "dropped"}]}}}]}})")));
        UiProfile fresh;
        QVERIFY(fresh.FromJson(Object(R"({
            "version": "2.0.0.0", "product": "Fake 2", "counter": 5,
            "layouts": [
                {"id": "Model", "states": {"ribbon": {"pages": [
                    {"id": "home"}, {"id": "deleted"}, {"id": "new"}]}}},
                {"id": "Slice", "states": {"ribbon": {"pages": [{"id": "slice"}]}}}]})")));
        QVERIFY(fresh.GetBase());
        user.Rebase(fresh);

        QCOMPARE(Pages(user, "Model"), (QStringList{"home", "mine", "new"}));
        QVERIFY(!Ribbon(user, "Model").GetItem(0)->IsVisible());
        QCOMPARE(Pages(user, "Slice"), QStringList{QStringLiteral("slice")});
        QVERIFY(!fresh.GetBase());
        QVERIFY(user.GetBase() != &fresh);
        QCOMPARE(user.GetBase()->GetParent(), static_cast<ITreeItem*>(&user));
        QVERIFY(!user.GetBase()->GetBase());
        QCOMPARE(Pages(*user.GetBase(), "Model"), (QStringList{"home", "deleted", "new"}));
        QCOMPARE(user.GetVersion().ToString(), QStringLiteral("2.0.0.0"));
        QCOMPARE(user.GetProduct(), QStringLiteral("Fake 2"));
        QCOMPARE(user.NextId(), 10);
        QCOMPARE(user.ToJson().value(QStringLiteral("base")).toObject().keys(),
                 QStringList{QStringLiteral("layouts")});
    }

    void theCounterIsTheGreaterOfTheTwo()
    {
        UiProfile user;
        user.ReadHeader(Object(R"({"counter": 3})"));
        UiProfile fresh;
        fresh.ReadHeader(Object(R"({"counter": 8})"));
        user.Merge(fresh, nullptr);
        QCOMPARE(user.NextId(), 9);
        QCOMPARE(fresh.NextId(), 9);
    }

    void aSpotIsReadFromAnyObject_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("command with a style")
            << QByteArray(R"({"id": "a", "style": 3})") << QByteArray(R"({"id": "a", "style": 3})");
        QTest::newRow("style 0") << QByteArray(R"({"id": "a", "style": 0})")
                                 << QByteArray(R"({"id": "a"})");
        QTest::newRow("id alone") << QByteArray(R"({"id": "a"})") << QByteArray(R"({"id": "a"})");
        QTest::newRow("hidden, without a name")
            << QByteArray(R"({"style": 1, "visible": false})")
            << QByteArray(R"({"id": "", "style": 1, "visible": false})");
        QTest::newRow("name of another type")
            << QByteArray(R"({"id": 5, "style": 1})") << QByteArray(R"({"id": "", "style": 1})");
        QTest::newRow("style of another type")
            << QByteArray(R"({"id": "a", "style": "1"})") << QByteArray(R"({"id": "a"})");
        QTest::newRow("type given") << QByteArray(R"({"id": "a", "type": "command", "style": 2})")
                                    << QByteArray(R"({"id": "a", "style": 2})");
        QTest::newRow("separator") << QByteArray(R"({"id": "a", "type": "separator"})")
                                   << QByteArray(R"({"id": "a", "type": "separator"})");
        QTest::newRow("all") << QByteArray(R"({"id": "a", "style": 2, "visible": false,
                                               "persistence": 3, "is_changed_by_user": true})")
                             << QByteArray(R"({"id": "a", "style": 2, "visible": false,
                                               "persistence": 3, "is_changed_by_user": true})");
    }

    void aSpotIsReadFromAnyObject()
    {
        QFETCH(QByteArray, json);
        QFETCH(QByteArray, written);
        UiStateCommandSpots site(QStringLiteral("site"));
        QVERIFY(site.FromJson(QJsonDocument::fromJson("{\"spots\": [" + json + "]}").object()));
        QCOMPARE(site.GetCount(), 1);
        QCOMPARE(site.GetItem(0)->GetParent(), static_cast<ITreeItem*>(&site));
        QCOMPARE(site.GetItem(0)->ToJson(), QJsonDocument::fromJson(written).object());
    }

    void userMenusTakeNoPartInAMerge()
    {
        UiProfile user;
        UiProfile fresh;
        const auto menus = [](UiProfile& profile) {
            return static_cast<UiStateMenus*>(profile.GetOrCreateLayout(QStringLiteral("Model"))
                                                  ->GetState(QStringLiteral("menus")));
        };
        menus(user)->InsertMenu(new UiStateMenu(QStringLiteral("mine")), -1);
        menus(fresh)->InsertMenu(new UiStateMenu(QStringLiteral("new")), -1);
        user.GetOrCreateLayout(QStringLiteral("Model"))
            ->Merge(*fresh.GetLayout(QStringLiteral("Model")),
                    user.GetLayout(QStringLiteral("Model")));
        QCOMPARE(menus(user)->GetCount(), 1);
        QCOMPARE(menus(user)->GetItem(0)->GetName(), QStringLiteral("mine"));
    }

    void layoutsAreTakenOutAndPutBack()
    {
        UiProfile profile;
        profile.GetOrCreateLayout(QStringLiteral("a"));
        profile.GetOrCreateLayout(QStringLiteral("b"));
        QVERIFY(!profile.RemoveChild(2));
        QVERIFY(!profile.RemoveChild(-1));
        ITreeItem* const layout = profile.RemoveChild(0);
        QVERIFY(!layout->GetParent());
        profile.InsertChild(7, layout);
        QCOMPARE(profile.GetIndexOf(layout), 1);
        QCOMPARE(profile.GetChildCount(), 2);
    }
};

OVK_TEST_CLASS(ProfileTest)

#include "profile_test.moc"
