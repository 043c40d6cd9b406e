#include "tests/support/fake_host.h"
#include "tests/support/resource_files.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/features/ui_feature_commands.h>
#include <ovk/ui_state/features/ui_feature_products.h>
#include <ovk/ui_state/features/ui_features_controller.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace ovk_test;

namespace {

QJsonObject Json(const char* text)
{
    return QJsonDocument::fromJson(text).object();
}

class Renamable : public ovk::UiFeatureCommand
{
public:
    using ovk::UiFeatureCommand::UiFeatureCommand;
    using ovk::UiFeatureCommand::_SetName;
};

const QString g_definition = QStringLiteral("features.definition.default.json");

} // namespace

class FeatureCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { delete ovk::RootController::GetInstance(); }

    void aCommandReadsItsKeys_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<bool>("visual");
        QTest::newRow("empty") << QByteArray("{}") << QStringList{"", "", "", ""} << false;
        QTest::newRow("all")
            << QByteArray(R"({"id":"A","title":"T","tooltip":"TT","statustip":"ST","visual":true})")
            << QStringList{"A", "T", "TT", "ST"} << true;
        QTest::newRow("not visual unless it says so")
            << QByteArray(R"({"id":"A","title":"T"})") << QStringList{"A", "T", "", ""} << false;
        QTest::newRow("other types count as absent")
            << QByteArray(R"({"id":1,"title":[],"tooltip":{},"statustip":null,"visual":"true"})")
            << QStringList{"", "", "", ""} << false;
        QTest::newRow("other keys")
            << QByteArray(R"({"id":"A","Title":"no","status_tip":"no","visual":1})")
            << QStringList{"A", "", "", ""} << false;
    }
    void aCommandReadsItsKeys()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, texts);
        QFETCH(bool, visual);
        const QJsonObject object = Json(json.constData());
        ovk::UiFeatureCommand command(object);
        QVERIFY(command.FromJson(object));
        QCOMPARE((QStringList{command.GetName(), command.GetTitle(), command.GetTooltip(),
                              command.GetStatusTip()}),
                 texts);
        QCOMPARE(command.IsVisual(), visual);
    }

    void aCommandWritesWhatItReads()
    {
        ovk::UiFeatureCommand command("A");
        QVERIFY(!command.IsVisual());
        command.SetTitle("T");
        command.SetTooltip("TT");
        command.SetStatusTip("ST");
        command.SetIsVisual(true);
        const QJsonObject json = command.ToJson();
        QCOMPARE(json, Json(R"({"id":"A","title":"T","tooltip":"TT","statustip":"ST",
                                "visual":true})"));
        const std::unique_ptr<ovk::UiProfileItem> clone(command.Clone());
        QCOMPARE(clone->ToJson(), json);
    }

    void theListsBearTheirNames()
    {
        QCOMPARE(ovk::UiFeatureCommands().GetName(), QString("commands"));
        QCOMPARE(ovk::UiFeatureProducts().GetName(), QString("products"));
        QCOMPARE(ovk::UiFeatureFunctions().GetName(), QString("functions"));
    }

    void theFirstOfSeveralCommandsIsFound()
    {
        ovk::UiFeatureCommands commands;
        QVERIFY(commands.FromJson(Json(R"({"command":[{"id":"A","title":"1"},{"id":"B"},
                                            {"id":"A","title":"2"}]})")));
        QCOMPARE(commands.GetCount(), 3);
        QCOMPARE(commands.Find("A")->GetTitle(), QString("1"));
        QCOMPARE(commands.Find("B")->GetName(), QString("B"));
        QVERIFY(!commands.Find("a"));
        QVERIFY(!commands.Find(""));
    }

    void findingFollowsEveryChangeOfTheList()
    {
        ovk::UiFeatureCommands commands;
        QVERIFY(!commands.Find("A"));
        auto* const second = new ovk::UiFeatureCommand("A");
        commands.AppendChild(second);
        QCOMPARE(commands.Find("A"), second);
        auto* const first = new ovk::UiFeatureCommand("A");
        commands.InsertChild(0, first);
        QCOMPARE(commands.Find("A"), first);
        commands.Swap(0, 1);
        QCOMPARE(commands.Find("A"), second);
        commands.DeleteItem(0);
        QCOMPARE(commands.Find("A"), first);
        delete commands.RemoveChild(0);
        QVERIFY(!commands.Find("A"));
        auto* const renamed = new Renamable(QString("B"));
        commands.AppendChild(renamed);
        QCOMPARE(commands.Find("B"), renamed);
        renamed->_SetName("A");
        QCOMPARE(commands.Find("A"), renamed);
        QVERIFY(!commands.Find("B"));
    }

    void aCopiedListFindsItsOwnCommands()
    {
        ovk::UiFeatureCommands commands;
        commands.AppendChild(new ovk::UiFeatureCommand("A"));
        QVERIFY(commands.Find("A"));
        const std::unique_ptr<ovk::UiProfileItem> clone(commands.Clone());
        auto* const copy = dynamic_cast<ovk::UiFeatureCommands*>(clone.get());
        QVERIFY(copy);
        QVERIFY(copy->Find("A"));
        QVERIFY(copy->Find("A") != commands.Find("A"));
    }

    void aProductReadsFunctionsAndLayouts()
    {
        const QJsonObject json = Json(R"({
            "id":"P","profile_suffix":"s","visible":false,
            "functions":{"function_ids":["F2","F1"]},
            "layout":[{"id":"L1","command_ids":["B","A","B"]},{"id":"L2"}]})");
        ovk::UiFeatureProduct product(json);
        QVERIFY(product.FromJson(json));
        QCOMPARE(product.GetName(), QString("P"));
        QCOMPARE(product.GetProfileSuffix(), QString("s"));
        QVERIFY(!product.IsVisible());
        QCOMPARE(product.GetFunctions().GetFunctionIds(), (QStringList{"F2", "F1"}));
        QCOMPARE(product.GetCount(), 2);
        QCOMPARE(product.Find("L1")->GetCommandIds(), (QStringList{"B", "A", "B"}));
        QVERIFY(product.Find("L1")->HasCommand("A"));
        QVERIFY(!product.Find("L1")->HasCommand("a"));
        QVERIFY(product.Find("L2")->GetCommandIds().isEmpty());
    }

    void aProductWritesFunctionsAndNotTheSuffix()
    {
        const QJsonObject json = Json(R"({"id":"P","profile_suffix":"s",
            "functions":{"function_ids":["F"]},"layout":[{"id":"L","command_ids":["A"]}]})");
        ovk::UiFeatureProduct product(json);
        product.FromJson(json);
        const QJsonObject written = product.ToJson();
        QVERIFY(!written.contains("profile_suffix"));
        QCOMPARE(written.value("functions").toObject().value("function_ids").toArray(),
                 QJsonArray{"F"});
        QCOMPARE(written.value("layout").toArray().size(), 1);
        QCOMPARE(written.value("layout").toArray().first().toObject(),
                 Json(R"({"id":"L","command_ids":["A"]})"));
    }

    void aMissingLayoutIsCreatedOnlyByGetLayout()
    {
        ovk::UiFeatureProduct product("P");
        QVERIFY(!product.Find("L"));
        QCOMPARE(product.GetCount(), 0);
        ovk::UiFeatureLayout* const layout = product.GetLayout("L");
        QVERIFY(layout);
        QVERIFY(layout->GetCommandIds().isEmpty());
        QCOMPARE(product.Find("L"), layout);
        QCOMPARE(product.GetLayout("L"), layout);
        QCOMPARE(product.GetCount(), 1);
    }

    void copiesAreDeep()
    {
        ovk::UiFeatureProduct product("P");
        product.GetLayout("L")->SetCommandIds({"A"});
        product.GetFunctions().GetFunctionIds() = QStringList{"F"};
        const std::unique_ptr<ovk::UiProfileItem> clone(product.Clone());
        auto* const copy = dynamic_cast<ovk::UiFeatureProduct*>(clone.get());
        QVERIFY(copy);
        product.GetLayout("L")->SetCommandIds({"B"});
        product.GetFunctions().GetFunctionIds().clear();
        QVERIFY(copy->Find("L")->HasCommand("A"));
        QVERIFY(!copy->Find("L")->HasCommand("B"));
        QCOMPARE(copy->GetFunctions().GetFunctionIds(), QStringList{"F"});
    }

    void textsThatAreNoneAreSkipped()
    {
        const QJsonObject json = Json(R"({"id":"L","command_ids":["A",1,null,{},["B"],true,"C"]})");
        ovk::UiFeatureLayout layout(json);
        QVERIFY(layout.FromJson(json));
        QCOMPARE(layout.GetCommandIds(), (QStringList{"A", "C"}));
    }

    void aBrokenDefinitionLeavesTheCatalogueUsable_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("commands");
        QTest::addColumn<int>("products");
        const QByteArray whole = QJsonDocument(SmallCatalogue()).toJson();
        QTest::newRow("empty file") << QByteArray("") << 0 << 0;
        QTest::newRow("blanks") << QByteArray("  \n\t ") << 0 << 0;
        QTest::newRow("no JSON") << QByteArray("<xml/>") << 0 << 0;
        QTest::newRow("array as the root") << QByteArray("[{\"commands\":{}}]") << 0 << 0;
        QTest::newRow("null bytes") << QByteArray(64, '\0') << 0 << 0;
        for (const int percent : {1, 10, 50, 90, 99}) {
            QTest::addRow("cut off at %d %%", percent)
                << whole.left(whole.size() * percent / 100) << 0 << 0;
        }
        QTest::newRow("rubbish after the end") << whole + "}" << 0 << 0;
        QTest::newRow("UTF-16")
            << QByteArray(reinterpret_cast<const char*>(QString::fromUtf8(whole).utf16()),
                          QString::fromUtf8(whole).size() * 2)
            << 0 << 0;
        QTest::newRow("Latin-1 in a text")
            << QByteArray("{\"commands\":{\"command\":[{\"id\":\"\xe4\"}]}}") << 0 << 0;
        QTest::newRow("byte order mark") << "\xef\xbb\xbf" + whole << 9 << 2;
        QTest::newRow("too deep")
            << "{\"commands\":" + QByteArray(100000, '[') + QByteArray(100000, ']') + "}" << 0 << 0;
        QTest::newRow("deep but whole")
            << "{\"commands\":{\"command\":[{\"id\":\"A\",\"x\":" + QByteArray(500, '[')
                   + QByteArray(500, ']') + "}]}}"
            << 1 << 0;
        QTest::newRow("roots of other types")
            << QByteArray("{\"commands\":[1],\"products\":\"none\"}") << 0 << 0;
        QTest::newRow("lists of other types")
            << QByteArray("{\"commands\":{\"command\":{}},\"products\":{\"product\":7}}") << 0 << 0;
        QTest::newRow("elements of other types")
            << QByteArray("{\"commands\":{\"command\":[1,null,\"A\"]},"
                          "\"products\":{\"product\":[[],false]}}")
            << 3 << 2;
        QTest::newRow("inner types wrong")
            << QByteArray("{\"products\":{\"product\":[{\"id\":\"Fake\",\"functions\":[],"
                          "\"layout\":{\"id\":1},\"profile_suffix\":{}}]}}")
            << 0 << 1;
        QTest::newRow("only commands")
            << QByteArray("{\"commands\":{\"command\":[{\"id\":\"A\"}]}}") << 1 << 0;
    }
    void aBrokenDefinitionLeavesTheCatalogueUsable()
    {
        QFETCH(QByteArray, file);
        QFETCH(int, commands);
        QFETCH(int, products);
        const ResourceFiles files({{g_definition, file}});
        new ovk::UiController; // the RootController's
        ovk::UiFeaturesController features;
        features.LoadDefinitions("Fake");
        QCOMPARE(features.GetCommandsDef()->GetCount(), commands);
        QCOMPARE(features.GetProducts()->GetCount(), products);
        FakeFactory factory;
        features.AddSubFactory(&factory);
        QCOMPARE(factory.created.size(), 1);
        QList<ovk::UiCommand*> list;
        features.GetProductCommands(list);
        features.GetLayoutCommands("Model", list);
        features.TranslateCommands();
        QVERIFY(!features.GetAvailableCommandFromActiveLayout("File.Open", 0));
    }

    void withoutADefinitionThereIsNoProduct()
    {
        new ovk::UiController; // the RootController's
        ovk::UiFeaturesController features;
        QVERIFY(!features.GetActiveProductDef());
        features.LoadDefinitions("Fake");
        QVERIFY(!features.GetActiveProductDef());
        QCOMPARE(features.GetProducts()->GetCount(), 0);
        QCOMPARE(features.GetCommandsDef()->GetCount(), 0);
        FakeFactory factory;
        features.AddSubFactory(&factory);
        factory.Add("A");
        QCOMPARE(factory.created, QList<QSet<QString>>{{}});
        QVERIFY(features.GetCommandFromActiveProduct("A", 0));
        QVERIFY(!features.GetLayoutCommand("Model", "A", 0));
        QVERIFY(!features.GetAvailableCommand("Model", "A", 0));
        QList<ovk::UiCommand*> list;
        features.GetLayoutCommands("Model", list);
        features.GetAvailableLayoutCommands("Model", list);
        features.GetProductCommands(list);
        QVERIFY(list.isEmpty());
        features.GetProductFunctionsIds().append("lost");
        QVERIFY(features.GetProductFunctionsIds().isEmpty());
    }

    void anUnknownProductLeavesNoneActive()
    {
        const ResourceFiles files({{g_definition, QJsonDocument(SmallCatalogue()).toJson()}});
        new ovk::UiController; // the RootController's
        ovk::UiFeaturesController features;
        features.LoadDefinitions("fake");
        QVERIFY(!features.GetActiveProductDef());
        QCOMPARE(features.GetProducts()->GetCount(), 2);
    }
};

OVK_TEST_CLASS(FeatureCatalogueTest)

#include "feature_catalogue_test.moc"
