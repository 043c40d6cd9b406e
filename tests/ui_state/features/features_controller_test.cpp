#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/root_controller.h>
#include <ovk/ui_state/features/ui_feature_commands.h>
#include <ovk/ui_state/features/ui_feature_products.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>
#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_state.h>

#include <QTranslator>

#include <thread>

using namespace ovk_test;

namespace {

const QString g_family = QStringLiteral("DynamicCommands.Recent");

QStringList Ids(const QList<ovk::UiCommand*>& commands)
{
    QStringList ids;
    for (ovk::UiCommand* command : commands)
        ids.append(command->GetId());
    return ids;
}

class BangTranslator : public QTranslator
{
public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QString::fromUtf8(text) + QLatin1Char('!');
    }
    bool isEmpty() const override { return false; }
};

/// Takes note when its layout is validated.
class ValidationSpy : public ovk::UiState
{
public:
    explicit ValidationSpy(int& count) : UiState(QString("spy")), m_count(count) {}
    void Validate(QSet<QString>&) override { ++m_count; }
    ovk::UiProfileItem* Clone() const override { return new ValidationSpy(m_count); }
    ovk::UiProfileItem* ForEach(std::function<bool(ovk::UiProfileItem*)>) override { return nullptr; }
    const ovk::UiProfileItem*
    ForEach(std::function<bool(const ovk::UiProfileItem*)>) const override
    {
        return nullptr;
    }
    int GetCount() const override { return 0; }
    ovk::UiProfileItem* GetItem(int) const override { return nullptr; }

protected:
    ovk::UiProfileItem* _CreateSubItem(const QJsonObject&) override { return nullptr; }

private:
    int& m_count;
};

} // namespace

class FeaturesControllerTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeHost> mp_host;

    ovk::UiFeaturesController& features() { return mp_host->Features(); }

private Q_SLOTS:
    void init() { mp_host = FakeHost::WithBareLayouts(); }
    void cleanup() { mp_host.reset(); }

    void theInstanceLivesAsLongAsTheObject()
    {
        QCOMPARE(ovk::UiFeaturesController::GetInstance(), &features());
        mp_host.reset();
        QVERIFY(!ovk::UiFeaturesController::GetInstance());
    }

    void theProductOfThatNameIsActive()
    {
        QCOMPARE(features().GetProducts()->GetCount(), 2);
        QCOMPARE(features().GetCommandsDef()->GetCount(), 9);
        QCOMPARE(features().GetActiveProductDef()->GetName(), QString("Fake"));
        QCOMPARE(features().GetProductFunctionsIds(), QStringList{"Help.About"});
        // The suffix names the profile files.
        QCOMPARE(mp_host->Profiles().GetBinaryFilePath("/folder"),
                 QString("/folder/uiprofile.fake.bin"));
    }

    void aFactoryCreatesTheCommandsOfTheProductOnce()
    {
        const QSet<QString> expected{"File.Open",   "File.Save", "Edit.Copy", "Edit.Paste",
                                     "View.Zoom",   "View.Hidden", g_family,  "Slice.Run",
                                     "Help.About"};
        QCOMPARE(mp_host->factory.created, QList<QSet<QString>>{expected});
        features().AddSubFactory(&mp_host->factory);
        QCOMPARE(mp_host->factory.created.size(), 1);
        features().AddSubFactory(nullptr);
        features().RemoveSubFactory(&mp_host->factory);
        QVERIFY(!features().GetCommandFromActiveProduct("File.Open", 0));
        features().RemoveSubFactory(&mp_host->factory);
        features().AddSubFactory(&mp_host->factory);
        QCOMPARE(mp_host->factory.created.size(), 2);
        QVERIFY(features().GetCommandFromActiveProduct("File.Open", 0));
    }

    void factoriesAreAskedInTheOrderOfAdding()
    {
        FakeFactory second;
        second.unknown = mp_host->factory.created.first();
        features().AddSubFactory(&second);
        second.Add("File.Open");
        FakeCommand* const only_here = second.Add("Only.Here");
        QCOMPARE(features().GetCommandFromActiveProduct("File.Open", 0),
                 mp_host->Command("File.Open"));
        QCOMPARE(features().GetCommandFromActiveProduct("Only.Here", 0), only_here);
        QVERIFY(!features().GetCommandFromActiveProduct("No.Where", 0));
        features().RemoveSubFactory(&second);
    }

    void theVariantIsPassedThrough()
    {
        mp_host->factory.variants.clear();
        features().GetCommandFromActiveProduct("File.Open", 7);
        features().GetLayoutCommand("Model", "File.Open", -3);
        features().GetAvailableCommand("Model", "File.Open", 12);
        QCOMPARE(mp_host->factory.variants, (QList<int>{7, -3, 12}));
    }

    void whatALayoutOffers_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::addColumn<QString>("id");
        QTest::addColumn<bool>("inProduct");
        QTest::addColumn<bool>("inLayout");
        QTest::addColumn<bool>("available");
        QTest::newRow("listed") << "Model" << "File.Open" << true << true << true;
        QTest::newRow("not visual") << "Model" << "View.Hidden" << true << true << false;
        QTest::newRow("of another layout") << "Model" << "Slice.Run" << true << false << false;
        QTest::newRow("function") << "Model" << "Help.About" << true << false << false;
        QTest::newRow("unknown") << "Model" << "No.Such" << false << false << false;
        QTest::newRow("other case") << "Model" << "file.open" << false << false << false;
        QTest::newRow("member of a listed family") << "Model" << "Recent.1" << true << true << true;
        QTest::newRow("member of an unlisted family")
            << "Slice" << "Recent.1" << true << false << false;
        QTest::newRow("unknown layout") << "Nowhere" << "File.Open" << true << false << false;
        QTest::newRow("the family itself") << "Model" << g_family << false << false << false;
    }
    void whatALayoutOffers()
    {
        QFETCH(QString, layout);
        QFETCH(QString, id);
        QFETCH(bool, inProduct);
        QFETCH(bool, inLayout);
        QFETCH(bool, available);
        mp_host->factory.AddToFamily(g_family, "Recent.1");
        QCOMPARE(features().GetCommandFromActiveProduct(id, 0) != nullptr, inProduct);
        QCOMPARE(features().GetLayoutCommand(layout, id, 0) != nullptr, inLayout);
        QCOMPARE(features().GetAvailableCommand(layout, id, 0) != nullptr, available);
        // Nothing is active, or another layout is.
        QVERIFY(!features().GetLayoutCommandFromActiveLayout(id, 0));
        QVERIFY(!features().GetAvailableCommandFromActiveLayout(id, 0));
        if (mp_host->Activate(layout)) {
            QCOMPARE(features().GetLayoutCommandFromActiveLayout(id, 0) != nullptr, inLayout);
            QCOMPARE(features().GetAvailableCommandFromActiveLayout(id, 0) != nullptr, available);
        }
    }

    void onlyGetLayoutCommandCreatesTheLayout()
    {
        ovk::UiFeatureProduct* const product = features().GetActiveProductDef();
        QList<ovk::UiCommand*> list{mp_host->Command("File.Open")};
        features().GetLayoutCommands("Nowhere", list);
        features().GetAvailableLayoutCommands("Nowhere", list);
        QCOMPARE(list.size(), 1);
        QVERIFY(!product->Find("Nowhere"));
        QVERIFY(!features().GetLayoutCommand("Nowhere", "No.Such", 0));
        QVERIFY(!product->Find("Nowhere"));
        QVERIFY(!features().GetLayoutCommand("Nowhere", "File.Open", 0));
        QVERIFY(product->Find("Nowhere"));
    }

    void aLayoutListsItsCommandsInOrderWithItsFamilies()
    {
        mp_host->factory.AddToFamily(g_family, "Recent.2");
        mp_host->factory.AddToFamily(g_family, "Recent.1");
        mp_host->factory.Command("Recent.1")->SetIsVisual(false);
        QList<ovk::UiCommand*> list{mp_host->Command("Slice.Run")};
        features().GetLayoutCommands("Model", list);
        QCOMPARE(Ids(list),
                 (QStringList{"Slice.Run", "File.Open", "File.Save", "Edit.Copy", "Edit.Paste",
                              "View.Zoom", "View.Hidden", "Recent.2", "Recent.1"}));
        list.clear();
        features().GetAvailableLayoutCommands("Model", list);
        QCOMPARE(Ids(list), (QStringList{"File.Open", "File.Save", "Edit.Copy", "Edit.Paste",
                                         "View.Zoom", "Recent.2"}));
    }

    void theFirstFactoryThatKnowsAFamilyResolvesIt()
    {
        FakeFactory second;
        second.unknown = mp_host->factory.created.first();
        features().AddSubFactory(&second);
        second.AddToFamily(g_family, "Second.1");
        QList<ovk::UiCommand*> list;
        features().GetLayoutCommands("Model", list);
        QVERIFY(Ids(list).contains("Second.1"));
        mp_host->factory.AddToFamily(g_family, "First.1");
        list.clear();
        features().GetLayoutCommands("Model", list);
        QVERIFY(Ids(list).contains("First.1"));
        QVERIFY(!Ids(list).contains("Second.1"));
        features().RemoveSubFactory(&second);
    }

    void duplicatesOfAListStayDuplicates()
    {
        features().GetActiveProductDef()->GetLayout("Slice")->SetCommandIds(
            {"Slice.Run", "File.Open", "Slice.Run"});
        QList<ovk::UiCommand*> list;
        features().GetLayoutCommands("Slice", list);
        QCOMPARE(Ids(list), (QStringList{"Slice.Run", "File.Open", "Slice.Run"}));
        mp_host->Activate("Slice");
        FakeCommand* const run = mp_host->Command("Slice.Run");
        const int before = run->updated;
        mp_host->Controller().UpdateUi();
        QCOMPARE(run->updated, before + 2);
    }

    void theProductListsEveryCommandOnce()
    {
        QList<ovk::UiCommand*> list{mp_host->Command("Help.About")};
        features().GetProductCommands(list);
        QStringList ids = Ids(list);
        ids.sort();
        QCOMPARE(ids, (QStringList{"Edit.Copy", "Edit.Paste", "File.Open", "File.Save", "Slice.Run",
                                   "View.Hidden", "View.Zoom"}));
    }

    void translatingReachesEveryCommandAndInvalidatesTheLayouts()
    {
        mp_host->factory.AddToFamily(g_family, "Recent.1")
            ->SetStrings("Recent", "", "", true, true, true);
        int validated = 0;
        mp_host->Layout("Model")->AppendChild(new ValidationSpy(validated));
        mp_host->Controller().ValidateLayouts();
        QCOMPARE(validated, 0);
        BangTranslator translator;
        QCoreApplication::installTranslator(&translator);
        features().TranslateCommands();
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(mp_host->Command("File.Open")->text(), QString("Open!"));
        QCOMPARE(mp_host->Command("File.Open")->toolTip(), QString("Open a part!"));
        QCOMPARE(mp_host->Command("Help.About")->text(), QString("About!"));
        QCOMPARE(mp_host->Command("Recent.1")->text(), QString("Recent!"));
        mp_host->Controller().ValidateLayouts();
        QCOMPARE(validated, 1);
    }

    void theAlternateMarkIsTheHostsAlone()
    {
        QVERIFY(!features().IsAlternateProduct());
        features().SetAlternateProduct(true);
        QVERIFY(features().IsAlternateProduct());
        features().SetAlternateProduct(false);
        QVERIFY(!features().IsAlternateProduct());
    }

    void factoriesMayComeFromAnotherThread()
    {
        std::vector<std::unique_ptr<FakeFactory>> factories;
        for (int i = 0; i < 8; ++i) {
            factories.push_back(std::make_unique<FakeFactory>());
            factories.back()->unknown = mp_host->factory.created.first();
        }
        std::thread adding([&] {
            for (const auto& factory : factories)
                features().AddSubFactory(factory.get());
        });
        for (int i = 0; i < 1000; ++i)
            QVERIFY(features().GetCommandFromActiveProduct("File.Open", 0));
        adding.join();
        for (const auto& factory : factories) {
            QCOMPARE(factory->created.size(), 1);
            features().RemoveSubFactory(factory.get());
        }
    }

    void aSecondLoadChangesTheProduct()
    {
        features().LoadDefinitions("Other");
        QCOMPARE(features().GetActiveProductDef()->GetName(), QString("Other"));
        FakeFactory second;
        features().AddSubFactory(&second);
        QCOMPARE(second.created, QList<QSet<QString>>{QSet<QString>{"Tool.Unlisted"}});
        QVERIFY(features().GetAvailableCommand("Model", "Tool.Unlisted", 0));
        QVERIFY(!features().GetAvailableCommand("Model", "File.Open", 0));
        features().RemoveSubFactory(&second);
    }
};

OVK_TEST_CLASS(FeaturesControllerTest)

#include "features_controller_test.moc"
