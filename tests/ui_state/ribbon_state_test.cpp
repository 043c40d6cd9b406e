#include "suites_support.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/ui_state/ui_state_ribbon.h>

#include <QTranslator>

using namespace ovk;
using namespace ovk_test;

namespace {

const QString long_title = QStringLiteral("A title of thirty-three letters!!"); // 33

/// Puts "<context>:" before every text.
class PrefixTranslator : public QTranslator
{
public:
    PrefixTranslator() { QCoreApplication::installTranslator(this); }
    ~PrefixTranslator() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QLatin1String(context) + QLatin1Char(':') + QString::fromUtf8(text);
    }
    bool isEmpty() const override { return false; }
};

/// A page or a group from a file.
template <class Node> std::unique_ptr<Node> Read(const QByteArray& text)
{
    const QJsonObject json = Json(text);
    auto node = std::make_unique<Node>(json);
    node->FromJson(json);
    return node;
}

} // namespace

class RibbonStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nodeReadsAndWrites_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QByteArray>("group");
        QTest::newRow("title only") << QByteArray("{'id': 'a', 'title': 'T'}")
                                    << QByteArray("{'id': 'a', 'title': 'T', 'groups': []}")
                                    << QByteArray("{'id': 'a', 'title': 'T', 'spots': []}");
        QTest::newRow("no title") << QByteArray("{'id': 'a'}")
                                  << QByteArray("{'id': 'a', 'title': '', 'groups': []}")
                                  << QByteArray("{'id': 'a', 'title': '', 'spots': []}");
        QTest::newRow("a title is no number")
            << QByteArray("{'id': 'a', 'title': 7}")
            << QByteArray("{'id': 'a', 'title': '', 'groups': []}")
            << QByteArray("{'id': 'a', 'title': '', 'spots': []}");
        QTest::newRow("hidden and built in")
            << QByteArray("{'id': 'a', 'title': 'T', 'visible': false, 'persistence': 4}")
            << QByteArray(
                   "{'id': 'a', 'title': 'T', 'visible': false, 'persistence': 4, 'groups': []}")
            << QByteArray(
                   "{'id': 'a', 'title': 'T', 'visible': false, 'persistence': 4, 'spots': []}");
    }
    void nodeReadsAndWrites()
    {
        QFETCH(QByteArray, read);
        QFETCH(QByteArray, page);
        QFETCH(QByteArray, group);
        QCOMPARE(Read<UiStateRibbonPage>(read)->ToJson(), Json(page));
        QCOMPARE(Read<UiStateRibbonGroup>(read)->ToJson(), Json(group));
    }

    void unwantedPageAndGroupAreWrittenAsSuch()
    {
        UiStateRibbonPage page(QStringLiteral("p"));
        page.SetRibbonPageAvailableByUser(false);
        QCOMPARE(page.ToJson().value("page_available_by_user"), QJsonValue(false));
        QVERIFY(!page.IsVisible());
        QVERIFY(!page.ToJson().contains("visible")); // the stored visibility is another matter
        UiStateRibbonGroup group(QStringLiteral("g"));
        group.SetRibbonGroupAvailableByUser(false);
        QCOMPARE(group.ToJson().value("group_available_by_user"), QJsonValue(false));
        QVERIFY(!group.IsVisible());

        QVERIFY(!Read<UiStateRibbonPage>("{'page_available_by_user': false}")
                     ->IsRibbonPageAvailableByUser());
        QVERIFY(Read<UiStateRibbonPage>("{}")->IsRibbonPageAvailableByUser());
        QVERIFY(!Read<UiStateRibbonGroup>("{'group_available_by_user': false}")
                     ->IsRibbonGroupAvailableByUser());
        QVERIFY(Read<UiStateRibbonGroup>("{}")->IsRibbonGroupAvailableByUser());
    }

    void ribbonKeepsItsTreeThroughAFile()
    {
        const QJsonObject json = Json(
            "{'id': 'ribbon', 'pages': [{'id': 'p1', 'title': 'One', 'groups': [{'id': 'g1', "
            "'title': 'G', 'spots': [{'id': 'A', 'style': 3}, {'id': '2', 'type': 'separator'}]}, "
            "{'id': 'g2', 'title': 'H', 'spots': []}]}, {'id': 'p2', 'title': 'Two', 'groups': "
            "[]}]}");
        UiStateRibbon ribbon;
        QVERIFY(ribbon.FromJson(json));
        QCOMPARE(ribbon.ToJson(), json);
        QCOMPARE(ribbon.GetPage("p2"), ribbon.GetPage(1));
        QVERIFY(!ribbon.GetPage("p3"));
        QVERIFY(ribbon.GetPage(0)->GetGroup("g2"));
        QVERIFY(!ribbon.GetPage(0)->GetGroup("g3"));
        QVERIFY(ribbon.CheckConsistency());
        const UiStateRibbon copy(ribbon);
        QCOMPARE(copy.ToJson(), json);
        QVERIFY(copy.CheckConsistency());
    }

    void pageTitleOfTheUserIsCutTo32Characters()
    {
        UiStateRibbonPage page(QStringLiteral("p"));
        page.SetTitle(long_title);
        QCOMPARE(page.GetTitle(), long_title.left(32));
        page.SetTitle(long_title.left(32));
        QCOMPARE(page.GetTitle().size(), 32);
    }
    void groupTitleIsNotCut()
    {
        UiStateRibbonGroup group(QStringLiteral("g"));
        group.SetTitle(long_title);
        QCOMPARE(group.GetTitle(), long_title);
    }
    void titleOfAFileIsNotCut()
    {
        const QByteArray json = "{'id': 'a', 'title': '" + long_title.toUtf8() + "'}";
        QCOMPARE(Read<UiStateRibbonPage>(json)->GetTitle(), long_title);
        QCOMPARE(Read<UiStateRibbonGroup>(json)->GetTitle(), long_title);
    }

    void titleIsTranslatedUntilTheUserGivesOne()
    {
        const PrefixTranslator translator;
        const auto page = Read<UiStateRibbonPage>("{'id': 'a', 'title': 'T'}");
        const auto group = Read<UiStateRibbonGroup>("{'id': 'a', 'title': 'T'}");
        QCOMPARE(page->GetTitle(), QStringLiteral("ribbon.pages:T"));
        QCOMPARE(group->GetTitle(), QStringLiteral("ribbon.groups:T"));
        page->SetTitle("T"); // what is stored already
        group->SetTitle("T");
        QVERIFY(!page->_IsChangedByUser());
        QCOMPARE(page->GetTitle(), QStringLiteral("ribbon.pages:T"));
        page->SetTitle("Mine");
        group->SetTitle("Mine");
        QVERIFY(page->_IsChangedByUser());
        QVERIFY(group->_IsChangedByUser());
        QCOMPARE(page->GetTitle(), QStringLiteral("Mine"));
        QCOMPARE(group->GetTitle(), QStringLiteral("Mine"));
    }

    void builtInNodeWritesTheTitleOfTheDefault()
    {
        const auto page = Read<UiStateRibbonPage>("{'id': 'a', 'title': 'T', 'persistence': 3}");
        page->SetTitle("Mine");
        QCOMPARE(page->ToJson().value("title").toString(), QStringLiteral("T"));
        page->SetPersistence(UiStateItem::ipOrdinary);
        QCOMPARE(page->ToJson().value("title").toString(), QStringLiteral("Mine"));
        const auto group = Read<UiStateRibbonGroup>("{'id': 'a', 'title': 'T', 'persistence': 4}");
        group->SetTitle("Mine");
        QCOMPARE(group->ToJson().value("title").toString(), QStringLiteral("T"));
    }

    void copyTakesTitlesAndChoice()
    {
        const auto page = Read<UiStateRibbonPage>(
            "{'id': 'a', 'title': 'T', 'persistence': 3, 'page_available_by_user': false}");
        page->SetTitle("Mine");
        const UiStateRibbonPage copy(*page);
        QCOMPARE(copy.GetTitle(), QStringLiteral("Mine"));
        QCOMPARE(copy.ToJson(), page->ToJson());
        QVERIFY(!copy.IsRibbonPageAvailableByUser());
        QVERIFY(!copy.IsActive());
    }

    void mergeOfTitles_data()
    {
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("merged");
        QTest::newRow("untouched follows the new default") << "A"
                                                           << "A"
                                                           << "B"
                                                           << "B";
        QTest::newRow("the user's stays") << "Mine"
                                          << "A"
                                          << "B"
                                          << "Mine";
        QTest::newRow("nothing new") << "A"
                                     << "A"
                                     << "A"
                                     << "A";
    }
    void mergeOfTitles()
    {
        QFETCH(QString, own);
        QFETCH(QString, base);
        QFETCH(QString, source);
        QFETCH(QString, merged);
        const auto check = [&](auto node, auto old_default, auto new_default) {
            if (own != base)
                node->SetTitle(own);
            node->Merge(*new_default, old_default.get());
            QCOMPARE(node->GetTitle(), merged);
            // The source title came along, or stayed.
            node->SetPersistence(UiStateItem::ipBuiltIn);
            QCOMPARE(node->ToJson().value("title").toString(), own == base ? source : base);
        };
        const QByteArray before = "{'id': 'a', 'title': '" + base.toUtf8() + "'}";
        const QByteArray after = "{'id': 'a', 'title': '" + source.toUtf8() + "'}";
        check(Read<UiStateRibbonPage>(before), Read<UiStateRibbonPage>(before),
              Read<UiStateRibbonPage>(after));
        check(Read<UiStateRibbonGroup>(before), Read<UiStateRibbonGroup>(before),
              Read<UiStateRibbonGroup>(after));
    }

    void mergeWithoutBaseLeavesTheTitle()
    {
        const auto page = Read<UiStateRibbonPage>("{'id': 'a', 'title': 'A'}");
        page->Merge(*Read<UiStateRibbonPage>("{'id': 'a', 'title': 'B'}"), nullptr);
        QCOMPARE(page->GetTitle(), QStringLiteral("A"));
    }

    void newDefaultGroupComesAfterTheUsers()
    {
        const QByteArray base =
            "{'pages': [{'id': 'p', 'groups': [{'id': 'g1'}, {'id': 'gone'}]}]}";
        UiStateRibbon own;
        own.FromJson(Json(base));
        own.GetPage("p")->InsertGroup(new UiStateRibbonGroup(QStringLiteral("mine")), 0);
        own.GetPage("p")->GetGroup("gone")->SetVisible(false);
        UiStateRibbon old_default;
        old_default.FromJson(Json(base));
        UiStateRibbon new_default;
        new_default.FromJson(
            Json("{'pages': [{'id': 'p', 'groups': [{'id': 'new'}, {'id': 'g1'}]}]}"));
        own.Merge(new_default, &old_default);
        QCOMPARE(ChildNames(*own.GetPage("p")), QStringList({"mine", "g1", "new"}));
        QVERIFY(own.CheckConsistency());
    }

    void pageThatIsAlreadyThereIsNotInsertedAgain()
    {
        UiStateRibbon ribbon;
        auto* page = new UiStateRibbonPage(QStringLiteral("a"));
        ribbon.InsertPage(page, -1);
        ribbon.InsertPage(new UiStateRibbonPage(QStringLiteral("b")), 0);
        QCOMPARE(ChildNames(ribbon), QStringList({"b", "a"}));
        ribbon.InsertPage(page, 0);
        QCOMPARE(ChildNames(ribbon), QStringList({"b", "a"}));
        auto* group = new UiStateRibbonGroup(QStringLiteral("g"));
        page->InsertGroup(group, -1);
        page->InsertGroup(group, 0);
        QCOMPARE(page->GetChildCount(), 1);
        ribbon.InsertPage(nullptr, 0);
        page->InsertGroup(nullptr, 0);
        QCOMPARE(ribbon.GetChildCount(), 2);
    }

    void indexOutOfRangeChangesNothing()
    {
        UiStateRibbon ribbon;
        ribbon.InsertPage(new UiStateRibbonPage(QStringLiteral("a")), -1);
        QVERIFY(!ribbon.RemovePage(-1));
        QVERIFY(!ribbon.RemovePage(1));
        ribbon.DeletePage(5);
        ribbon.MovePage(0, 3);
        ribbon.MovePage(-1, 0);
        QCOMPARE(ribbon.GetChildCount(), 1);
        QVERIFY(!ribbon.GetPage(0)->RemoveGroup(0));
        ribbon.GetPage(0)->DeleteGroup(-1);
    }

    void newNodesGetIdentifiersOfTheProfile()
    {
        FakeHost host;
        host.Start();
        auto& ribbon = SuiteOf<UiStateRibbon>(*host.Layout("Model"));
        auto* page = new UiStateRibbonPage;
        auto* group = new UiStateRibbonGroup;
        QVERIFY(page->GetName().isEmpty());
        ribbon.InsertPage(page, -1);
        page->InsertGroup(group, -1);
        QVERIFY(page->GetName().startsWith("__UiStateRibbonPage."));
        QVERIFY(group->GetName().startsWith("__UiStateRibbonGroup."));
        QVERIFY(page->GetName().section('.', 1) != group->GetName().section('.', 1));
    }

    void groupThatIsNotOnScreenIsNotShown()
    {
        FakeHost host;
        host.Start();
        const UiStateRibbonPage* page =
            SuiteOf<UiStateRibbon>(*host.Layout("Model")).GetPage("page.home");
        QVERIFY(!page->GetGroup("group.file")->IsAvailable());
        QVERIFY(!page->IsShown());
    }

    void unwantedPageThatIsNotOnScreenStaysUnwantedWhenShown()
    {
        UiStateRibbonPage page(QStringLiteral("p"));
        page.SetRibbonPageAvailableByUser(false);
        page.SetVisible(false);
        page.SetVisible(true);
        QVERIFY(!page.IsRibbonPageAvailableByUser());
        QVERIFY(!page.ToJson().contains("visible"));
    }

    void layoutOutlivesTheLackOfAWindow()
    {
        FakeHost host;
        host.Start();
        auto& ribbon = SuiteOf<UiStateRibbon>(*host.Activate("Model"));
        QVERIFY(ribbon.IsActive());
        QVERIFY(!ribbon.GetPage(0)->GetWidget());
        ribbon.InsertPage(new UiStateRibbonPage, 0);
        ribbon.GetPage(0)->InsertGroup(new UiStateRibbonGroup, 0);
        ribbon.MovePage(0, 1);
        ribbon.GetPage(1)->SetTitle("New");
        ribbon.GetPage(1)->DeleteGroup(0);
        ribbon.DeletePage(1);
        host.Controller().SetActiveLayout(nullptr);
        QVERIFY(!ribbon.IsActive());
    }
};
OVK_TEST_CLASS(RibbonStateTest)

#include "ribbon_state_test.moc"
