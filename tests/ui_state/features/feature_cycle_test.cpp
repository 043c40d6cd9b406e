#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/ui_state/features/ui_feature_products.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_profile.h>

using namespace ovk_test;

namespace {

const QString g_family = QStringLiteral("DynamicCommands.Recent");

} // namespace

class FeatureCycleTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<FakeHost> mp_host;

    ovk::UiFeaturesController& features() { return mp_host->Features(); }

private Q_SLOTS:
    void init() { mp_host = FakeHost::WithBareLayouts(); }
    void cleanup() { mp_host.reset(); }

    void aCycleUpdatesTheActiveLayoutOnly()
    {
        mp_host->Controller().UpdateUi();
        QCOMPARE(mp_host->Command("File.Open")->updated, 0);
        mp_host->Activate("Model");
        QCOMPARE(mp_host->Command("File.Open")->updated, 1);
        mp_host->Controller().UpdateUi();
        QCOMPARE(mp_host->Command("File.Open")->updated, 2);
        QCOMPARE(mp_host->Command("File.Open")->last_context, &mp_host->Context());
        QCOMPARE(mp_host->Command("Slice.Run")->updated, 0);
        QCOMPARE(mp_host->Command("Help.About")->updated, 0);
    }

    void aCommandOfTheFormerLayoutIsDisabled()
    {
        mp_host->Activate("Slice");
        FakeCommand* const run = mp_host->Command("Slice.Run");
        QVERIFY(run->isEnabled());
        QVERIFY(!mp_host->Command("Edit.Copy")->isEnabled());
        QVERIFY(!mp_host->Command("Help.About")->isEnabled());
        const int refreshed = mp_host->Context().refreshed;
        mp_host->Activate("Model");
        QVERIFY(!run->isEnabled());
        QVERIFY(mp_host->Command("Edit.Copy")->isEnabled());
        QVERIFY(mp_host->Command("File.Open")->isEnabled());
        QCOMPARE(mp_host->Context().refreshed, refreshed + 1);
        mp_host->Controller().SetActiveLayout(nullptr);
        QVERIFY(!mp_host->Command("File.Open")->isEnabled());
    }

    void aLayoutThatTheProductLacksUpdatesNothing()
    {
        QVERIFY(mp_host->Activate("Foreign"));
        mp_host->Controller().UpdateUi();
        QCOMPARE(mp_host->Command("File.Open")->updated, 0);
        QVERIFY(!features().GetActiveProductDef()->Find("Foreign"));
    }

    void withoutAContextNoCommandIsAsked()
    {
        mp_host->Controller().SetUpdatableContext(nullptr);
        mp_host->Activate("Model");
        mp_host->Controller().UpdateUi();
        QCOMPARE(mp_host->Command("File.Open")->updated, 0);
        QVERIFY(!mp_host->Command("File.Open")->isEnabled());
    }

    void aCycleDoesNotAskTheFactoriesAgain()
    {
        mp_host->Activate("Model");
        mp_host->Controller().UpdateUi();
        mp_host->factory.variants.clear();
        for (int i = 0; i < 10; ++i)
            mp_host->Controller().UpdateUi();
        QCOMPARE(mp_host->factory.variants.size(), 0);
        QCOMPARE(mp_host->Command("View.Zoom")->updated, 12);
    }

    void aCycleFollowsWhatChangesBetweenCycles_data()
    {
        QTest::addColumn<int>("change");
        QTest::newRow("a command is made") << 0;
        QTest::newRow("a command is destroyed") << 1;
        QTest::newRow("a factory comes") << 2;
        QTest::newRow("a factory goes") << 3;
        QTest::newRow("the list of the layout changes") << 4;
        QTest::newRow("a family grows") << 5;
        QTest::newRow("a family shrinks") << 6;
        QTest::newRow("a command is replaced") << 7;
    }
    void aCycleFollowsWhatChangesBetweenCycles()
    {
        QFETCH(int, change);
        mp_host->factory.Remove("Edit.Paste");
        mp_host->factory.AddToFamily(g_family, "Recent.1");
        mp_host->Activate("Model");
        mp_host->Controller().UpdateUi();
        FakeFactory second;
        second.unknown = mp_host->factory.created.first();
        FakeCommand* updated = mp_host->Command("File.Open");
        int expected = updated->updated + 1;
        switch (change) {
        case 0:
            updated = mp_host->factory.Add("Edit.Paste");
            expected = 1;
            break;
        case 1: mp_host->factory.Remove("File.Save"); break;
        case 2:
            features().AddSubFactory(&second);
            updated = second.Add("Edit.Paste");
            expected = 1;
            break;
        case 3:
            features().RemoveSubFactory(&mp_host->factory);
            --expected;
            break;
        case 4:
            features().GetActiveProductDef()->GetLayout("Model")->SetCommandIds({"Slice.Run"});
            updated = mp_host->Command("Slice.Run");
            expected = 1;
            break;
        case 5:
            updated = mp_host->factory.AddToFamily(g_family, "Recent.2");
            expected = 1;
            break;
        case 6:
            mp_host->factory.Remove("Recent.1");
            break;
        default:
            updated = mp_host->factory.Add("File.Open");
            expected = 1;
        }
        mp_host->Controller().UpdateUi();
        QCOMPARE(updated->updated, expected);
        features().RemoveSubFactory(&second);
    }

    void whatAFactoryFindsLaterIsUpdatedFromThenOn()
    {
        // A command that was made long before its factory gives it away.
        class LateFactory : public ovk::ICommandsFactory
        {
        public:
            ovk::UiCommand* GetCommand(const QString& id, int) override
            {
                return id == late.GetId() && known ? &late : nullptr;
            }
            void CreateCommands(const QSet<QString>&) override {}
            bool ResolveDynamicCommand(const QString&, QList<ovk::UiCommand*>&) override
            {
                return false;
            }
            FakeCommand late{"Edit.Paste"};
            bool known = false;
        } factory;
        mp_host->factory.Remove("Edit.Paste");
        features().AddSubFactory(&factory);
        mp_host->Activate("Model");
        mp_host->Controller().UpdateUi();
        QCOMPARE(factory.late.updated, 0);
        factory.known = true;
        mp_host->Controller().UpdateUi();
        QCOMPARE(factory.late.updated, 1);
        factory.known = false;
        mp_host->Controller().InvalidateLayouts();
        mp_host->Controller().UpdateUi();
        QCOMPARE(factory.late.updated, 1);
        features().RemoveSubFactory(&factory);
    }

    void aFamilyThatIsMadeAnewInEveryCycleIsNeverVisitedDead()
    {
        class Renewing : public ovk::ICommandsFactory
        {
        public:
            ovk::UiCommand* GetCommand(const QString& id, int) override
            {
                return command && id == "Renewed" ? command.get() : nullptr;
            }
            void CreateCommands(const QSet<QString>&) override {}
            bool ResolveDynamicCommand(const QString& id, QList<ovk::UiCommand*>& out) override
            {
                if (id != "DynamicCommands.Renewed")
                    return false;
                command = std::make_unique<FakeCommand>("Renewed");
                out.append(command.get());
                return true;
            }
            std::unique_ptr<FakeCommand> command;
        } factory;
        features().AddSubFactory(&factory);
        features().GetActiveProductDef()->GetLayout("Slice")->SetCommandIds(
            {"Slice.Run", "DynamicCommands.Renewed", "File.Open"});
        mp_host->Activate("Slice");
        mp_host->Controller().UpdateUi();
        mp_host->Controller().UpdateUi();
        QCOMPARE(factory.command->updated, 1);
        QCOMPARE(mp_host->Command("Slice.Run")->updated, 3);
        QCOMPARE(mp_host->Command("File.Open")->updated, 3);
        features().RemoveSubFactory(&factory);
    }

    void aBlockedCommandStaysDisabledInItsLayout()
    {
        mp_host->Command("File.Open")->SetIsBlocked(true);
        mp_host->Activate("Model");
        QVERIFY(!mp_host->Command("File.Open")->isEnabled());
        QCOMPARE(mp_host->Command("File.Open")->updated, 0);
    }

    void aCycleWithinACycleIsCarriedOut()
    {
        mp_host->Activate("Model");
        FakeCommand* const open = mp_host->Command("File.Open");
        bool nested = false;
        open->on_update = [&](const ovk::UpdatableContext&) {
            if (nested)
                return;
            nested = true;
            mp_host->factory.Add("Brand.New"); // the list of the running cycle is now outdated
            mp_host->Controller().UpdateUi();
        };
        mp_host->Controller().UpdateUi();
        QCOMPARE(open->updated, 3);
        QCOMPARE(mp_host->Command("View.Zoom")->updated, 3);
    }
};

OVK_TEST_CLASS(FeatureCycleTest)

#include "feature_cycle_test.moc"
