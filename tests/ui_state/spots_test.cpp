#include "suites_support.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/ui_profile_controller.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_command_spots.h>
#include <ovk/ui_state/ui_state_ribbon.h>

using namespace ovk;
using namespace ovk_test;

namespace {

/// Counts how often the site was told to build itself anew.
class CountingSite : public UiStateCommandSpots
{
public:
    using UiStateCommandSpots::UiStateCommandSpots;
    void SpotsChanged() override { ++changes; }
    using UiStateCommandSpots::_SetActive;

    int changes = 0;
};

class TitledSpot : public UiSpotCommand
{
public:
    using UiSpotCommand::_MergeContent;
    using UiSpotCommand::UiSpotCommand;
};

/// A site in the layout "Model", which deletes it.
CountingSite* SiteIn(UiLayout& layout)
{
    auto* site = new CountingSite(QStringLiteral("site"));
    layout.AppendChild(site);
    return site;
}

UiSpotCommand* CommandSpot(const QString& id, Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly)
{
    UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(id);
    spot->SetStyle(style);
    return spot;
}

} // namespace

class SpotJsonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spotWritesOnlyWhatIsNotDefault_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("style 0") << QByteArray("{'id': 'A'}");
        QTest::newRow("style 1") << QByteArray("{'id': 'A', 'style': 1}");
        QTest::newRow("style 3") << QByteArray("{'id': 'A', 'style': 3}");
        QTest::newRow("hidden") << QByteArray("{'id': 'A', 'style': 2, 'visible': false}");
        QTest::newRow("separator") << QByteArray("{'id': '1f', 'type': 'separator'}");
    }
    void spotWritesOnlyWhatIsNotDefault()
    {
        QFETCH(QByteArray, json);
        UiStateCommandSpots site(QStringLiteral("site"));
        const QJsonObject spot = Json(json);
        QVERIFY(site.FromJson({{"spots", QJsonArray{spot}}}));
        QCOMPARE(site.GetChildCount(), 1);
        QCOMPARE(site.ToJson().value("spots").toArray().at(0).toObject(), spot);
    }

    void spotOfTypeCommandHasNoTypeInTheFile()
    {
        UiStateCommandSpots site(QStringLiteral("site"));
        site.FromJson(Json("{'spots': [{'id': 'A', 'type': 'command', 'style': 0}]}"));
        QCOMPARE(site.ToJson().value("spots").toArray().at(0).toObject(), Json("{'id': 'A'}"));
    }

    void styleThatIsNoneMeansTheIconAlone()
    {
        for (const int style : {-1, 5, 99}) {
            const UiSpotCommand spot(QJsonObject{{"id", "A"}, {"style", style}});
            QCOMPARE(spot.GetStyle(), Qt::ToolButtonIconOnly);
            UiStateCommandSpots site(QStringLiteral("site"));
            site.FromJson({{"spots", QJsonArray{QJsonObject{{"id", "A"}, {"style", style}}}}});
            QCOMPARE(static_cast<UiSpotCommand*>(site.GetItem(0))->GetStyle(), Qt::ToolButtonIconOnly);
        }
    }

    void spotOfUnknownTypeIsSkippedAndReported()
    {
        FakeHost host;
        QStringList lines;
        host.Profiles().SetLogger([&lines](const QString& line) { lines << line; });
        UiStateCommandSpots site(QStringLiteral("site"));
        QVERIFY(site.FromJson(
            Json("{'spots': [{'id': 'A'}, {'id': 'B', 'type': 'gallery'}, {'id': 'C'}]}")));
        QCOMPARE(ChildNames(site), QStringList({"A", "C"}));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().contains("gallery"));
    }

    void separatorIsNamedAfterItsNumberInBase16()
    {
        QCOMPARE(UiSpotSeparator(31).GetName(), QStringLiteral("1f"));
    }

    void separatorGetsAnIdentifierOfItsProfile()
    {
        FakeHost host;
        host.Start();
        CountingSite* site = SiteIn(*host.Layout("Model"));
        const int next = host.Profile().NextId();
        const std::unique_ptr<UiSpotSeparator> spot(site->CreateSeparatorSpot());
        QCOMPARE(spot->GetName(), QString::number(next + 1, 16));
    }

    void separatorOutsideAProfileDoesNotCrash()
    {
        UiStateCommandSpots site(QStringLiteral("site"));
        const std::unique_ptr<UiSpotSeparator> spot(site.CreateSeparatorSpot());
        QVERIFY(!spot->GetName().isEmpty());
    }

    void copyKeepsTheStyleAndLosesTitleAndItem()
    {
        FakeHost host;
        UiSpotCommand spot(*host.Command("File.Open"), Qt::ToolButtonTextUnderIcon);
        spot.SetTitle("My title");
        QCOMPARE(spot.GetUiItem(), host.Command("File.Open"));
        const UiSpotCommand copy(spot);
        QCOMPARE(copy.GetStyle(), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(copy.GetTitle(), QString());
        QCOMPARE(copy.GetName(), QStringLiteral("File.Open"));
        QVERIFY(!copy.GetUiItem()); // outside a layout nothing resolves
    }

    void spotForAnItemShowsTheTextBesideTheIcon()
    {
        FakeHost host;
        const std::unique_ptr<UiSpotCommand> spot(
            UiStateCommandSpots::CreateCommandSpot(*host.Command("File.Open")));
        QCOMPARE(spot->GetStyle(), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(spot->GetUiItem(), host.Command("File.Open"));
    }

    void mergeOfASpot_data()
    {
        QTest::addColumn<int>("own");
        QTest::addColumn<int>("base");
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("merged");
        QTest::newRow("untouched follows the new default") << 0 << 0 << 3 << 3;
        QTest::newRow("the user's style stays") << 2 << 0 << 3 << 2;
        QTest::newRow("nothing new") << 1 << 1 << 1 << 1;
    }
    void mergeOfASpot()
    {
        QFETCH(int, own);
        QFETCH(int, base);
        QFETCH(int, source);
        const auto make = [](int style) {
            auto spot = std::make_unique<TitledSpot>(QStringLiteral("A"));
            spot->SetStyle(static_cast<Qt::ToolButtonStyle>(style));
            spot->SetTitle(QString::number(style));
            return spot;
        };
        const auto own_spot = make(own);
        const auto base_spot = make(base);
        const auto source_spot = make(source);
        own_spot->Merge(*source_spot, base_spot.get());
        QTEST(static_cast<int>(own_spot->GetStyle()), "merged");
        QTEST(own_spot->GetTitle().toInt(), "merged");
    }

    void mergeOfASpotWithoutBaseChangesNothing()
    {
        TitledSpot own(QStringLiteral("A"));
        own.SetStyle(Qt::ToolButtonIconOnly);
        TitledSpot source(QStringLiteral("A"));
        source.SetStyle(Qt::ToolButtonTextOnly);
        own.Merge(source, nullptr);
        QCOMPARE(own.GetStyle(), Qt::ToolButtonIconOnly);
    }
};
OVK_TEST_CLASS(SpotJsonTest)

class CommandSpotsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<FakeHost>();
        mp_host->Start();
        mp_site = SiteIn(*mp_host->Layout("Model"));
        // "?" does not resolve.
        for (const char* id : {"?1", "File.Open", "?2", "File.Save", "?3"})
            mp_site->AddSpot(CommandSpot(id));
        mp_site->changes = 0;
    }
    void cleanup()
    {
        mp_site = nullptr;
        mp_host.reset();
    }

    void unresolvedSpotsAreKeptAndNotCounted()
    {
        QCOMPARE(mp_site->GetChildCount(), 5);
        QCOMPARE(mp_site->GetAvailableCount(), 2);
        QCOMPARE(mp_site->GetSpot(0)->GetName(), QStringLiteral("File.Open"));
        QCOMPARE(mp_site->GetSpot(1)->GetName(), QStringLiteral("File.Save"));
        QVERIFY(!mp_site->GetSpot(2));
        QVERIFY(!mp_site->GetSpot(-1));
        QVERIFY(!mp_site->GetAvailableChild(2));
        QCOMPARE(mp_site->ToJson().value("spots").toArray().size(), 5);
    }

    void separatorIsAlwaysAvailable()
    {
        mp_site->InsertSpot(1, mp_site->CreateSeparatorSpot());
        QCOMPARE(mp_site->GetAvailableCount(), 3);
        QCOMPARE(mp_site->IndexOf(mp_host->Command("File.Save")), 2);
    }

    void indexOfCountsAvailableSpots()
    {
        QCOMPARE(mp_site->IndexOf(mp_host->Command("File.Open")), 0);
        QCOMPARE(mp_site->IndexOf(mp_host->Command("File.Save")), 1);
        QCOMPARE(mp_site->IndexOf(mp_host->Command("Edit.Copy")), -1);
        QCOMPARE(mp_site->IndexOf(nullptr), -1);
        QVERIFY(mp_site->IsContains(mp_host->Command("File.Save")));
        QVERIFY(!mp_site->IsContains(mp_host->Command("Edit.Copy")));
    }

    void findSearchesAllSpots()
    {
        QVERIFY(mp_site->Find("?2"));
        QVERIFY(mp_site->Find("File.Save"));
        QVERIFY(!mp_site->Find("Edit.Copy"));
    }

    void insertedSpotLands_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("names");
        const QStringList last{"?1", "File.Open", "?2", "File.Save", "?3", "Edit.Copy"};
        QTest::newRow("before the first")
            << 0 << QStringList{"?1", "Edit.Copy", "File.Open", "?2", "File.Save", "?3"};
        QTest::newRow("before the second")
            << 1 << QStringList{"?1", "File.Open", "?2", "Edit.Copy", "File.Save", "?3"};
        QTest::newRow("behind trailing unresolved spots") << 2 << last;
        QTest::newRow("past the end") << 77 << last;
        QTest::newRow("negative") << -1 << last;
    }
    void insertedSpotLands()
    {
        QFETCH(int, index);
        mp_site->InsertSpot(index, CommandSpot("Edit.Copy"));
        QTEST(ChildNames(*mp_site), "names");
        QCOMPARE(mp_site->changes, 1);
    }

    void nullSpotIsIgnored()
    {
        mp_site->InsertSpot(0, nullptr);
        mp_site->AddSpot(nullptr);
        QCOMPARE(mp_site->GetChildCount(), 5);
        QCOMPARE(mp_site->changes, 0);
    }

    void removedSpotIsTheCallers()
    {
        const std::unique_ptr<UiSpot> spot(mp_site->RemoveSpot(1));
        QCOMPARE(spot->GetName(), QStringLiteral("File.Save"));
        QVERIFY(!spot->GetParent());
        QCOMPARE(mp_site->changes, 1);
        QVERIFY(!mp_site->RemoveSpot(1));
        QVERIFY(!mp_site->RemoveSpot(-1));
        QCOMPARE(mp_site->changes, 1); // nothing removed, nothing told
    }

    void deletedSpotLeavesTheUnresolvedOnes()
    {
        mp_site->DeleteSpot(0);
        QCOMPARE(ChildNames(*mp_site), QStringList({"?1", "?2", "File.Save", "?3"}));
        QCOMPARE(mp_site->changes, 1);
    }

    void clearDeletesUnresolvedSpotsToo()
    {
        mp_site->Clear();
        QCOMPARE(mp_site->GetChildCount(), 0);
        QCOMPARE(mp_site->changes, 1);
    }

    void everySetterOfASpotTellsItsSite()
    {
        auto* spot = static_cast<UiSpotCommand*>(mp_site->GetSpot(0));
        spot->SetStyle(Qt::ToolButtonTextOnly);
        QCOMPARE(mp_site->changes, 1);
        spot->SetTitle("title");
        QCOMPARE(mp_site->changes, 2);
        spot->SetVisible(false);
        QCOMPARE(mp_site->changes, 3);
        spot->SetVisible(false); // no change
        QCOMPARE(mp_site->changes, 3);
    }

    void spotLooksItsItemUpOnce()
    {
        auto* spot = static_cast<UiSpotCommand*>(mp_site->GetSpot(0));
        QVERIFY(spot->GetUiItem());
        mp_host->factory.variants.clear();
        QCOMPARE(spot->GetUiItem(), mp_host->Command("File.Open"));
        QVERIFY(mp_host->factory.variants.isEmpty());
    }

    void setUiItemReplacesTheItem()
    {
        auto* spot = static_cast<UiSpotCommand*>(mp_site->GetSpot(0));
        spot->SetUiItem(mp_host->Command("Edit.Copy"));
        QCOMPARE(spot->GetUiItem(), mp_host->Command("Edit.Copy"));
        QCOMPARE(spot->GetName(), QStringLiteral("File.Open"));
    }

    void commandThatIsNotVisualDoesNotResolve()
    {
        mp_site->AddSpot(CommandSpot("View.Hidden"));
        QCOMPARE(mp_site->GetAvailableCount(), 2);
    }

    void firstValidationReportsEverySpotAndRebuildsOnce()
    {
        mp_site->_SetActive();
        QSet<QString> changed;
        mp_site->Validate(changed);
        QCOMPARE(changed, QSet<QString>({"?1", "File.Open", "?2", "File.Save", "?3"}));
        QCOMPARE(mp_site->changes, 1);
        changed.clear();
        mp_site->Validate(changed);
        QVERIFY(changed.isEmpty());
        QCOMPARE(mp_site->changes, 1);
    }

    void inactiveSiteIsNotValidated()
    {
        QSet<QString> changed;
        mp_site->Validate(changed);
        QVERIFY(changed.isEmpty());
    }

    void nameThatAnotherSiteReportedRebuildsThisOne()
    {
        mp_site->_SetActive();
        QSet<QString> changed;
        mp_site->Validate(changed);
        changed = {"File.Save"};
        mp_site->Validate(changed);
        QCOMPARE(mp_site->changes, 2);
        changed = {"Edit.Copy"};
        mp_site->Validate(changed);
        QCOMPARE(mp_site->changes, 2);
    }

    void spotComesToLifeWithItsCommand()
    {
        mp_site->_SetActive();
        QSet<QString> changed;
        mp_site->Validate(changed);
        mp_host->factory.Remove("File.Open");
        changed.clear();
        mp_site->Validate(changed);
        QCOMPARE(changed, QSet<QString>{"File.Open"});
        QCOMPARE(mp_site->GetAvailableCount(), 1);
        FakeCommand* command = mp_host->factory.Add("File.Open");
        command->SetIsVisual(true);
        changed.clear();
        mp_site->Validate(changed);
        // Counting asked for the unresolved spots anew, which reports them once more.
        QCOMPARE(changed, QSet<QString>({"?1", "File.Open", "?2", "?3"}));
        QCOMPARE(mp_site->IndexOf(command), 0);
        QCOMPARE(mp_site->changes, 3);
    }

private:
    std::unique_ptr<FakeHost> mp_host;
    CountingSite* mp_site = nullptr;
};
OVK_TEST_CLASS(CommandSpotsTest)

#include "spots_test.moc"
