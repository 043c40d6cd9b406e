#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_toolbars.h>

using namespace ovk;
using namespace ovk_test;

/// How much is built anew for how small a change, on a layout of 20 groups, 4 tool bars and the
/// quick access bar with 10 commands each. One composite is on a group, a tool bar and the quick
/// access bar.
class RebuildTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<LiveHost>(BigCatalogue(250), BigProfile());
        UiLayout& layout = *mp_host->Layout("Big");
        mp_composites = &SuiteOf<UiStateComposites>(layout);
        mp_composite = new UiStateCompositeMenu(QStringLiteral("composite"));
        mp_composites->InsertComposite(mp_composite, -1);
        for (const char* id : {"Big.0", "Big.1"})
            mp_composite->InsertItem(new UiStateCompositeItem(QString(id)), -1);
        int next = 0;
        auto& ribbon = SuiteOf<UiStateRibbon>(layout);
        for (int p = 0; p < 4; ++p) {
            auto* page = new UiStateRibbonPage(QStringLiteral("page%1").arg(p));
            for (int g = 0; g < 5; ++g) {
                auto* group = new UiStateRibbonGroup(QStringLiteral("group%1.%2").arg(p).arg(g));
                Fill(*group, next);
                page->InsertGroup(group, -1);
                m_groups << group;
            }
            ribbon.InsertPage(page, -1);
        }
        for (int b = 0; b < 4; ++b) {
            auto* bar = new UiStateToolbar(QStringLiteral("bar%1").arg(b));
            Fill(*bar, next);
            SuiteOf<UiStateToolbars>(layout).AppendChild(bar);
            m_bars << bar;
        }
        mp_quick = &SuiteOf<UiStateQAB>(layout);
        Fill(*mp_quick, next);
        for (UiStateCommandSpots* site :
             QList<UiStateCommandSpots*>{m_groups.first(), m_bars.first(), mp_quick})
            site->AddSpot(Spot("composite"));
        mp_host->Activate("Big");
        // The first validation after a load reports everything once.
        mp_host->Revalidate();
        for (UiStateRibbonGroup* group : qAsConst(m_groups))
            m_counter.Watch(group->GetWidget());
        for (UiStateToolbar* bar : qAsConst(m_bars))
            m_counter.Watch(bar->GetWidget());
        m_counter.Watch(&mp_host->QuickAccess());
        m_counter.Reset();
    }
    void cleanup()
    {
        mp_host.reset();
        m_groups.clear();
        m_bars.clear();
    }

    void validationOfWhatDidNotChangeBuildsNothing()
    {
        mp_host->Revalidate();
        QCOMPARE(m_counter.AllBuilds(), 0);
    }

    void changeOfOneSpotBuildsOneSite()
    {
        static_cast<UiSpotCommand*>(m_groups.at(7)->GetSpot(3))->SetStyle(Qt::ToolButtonTextOnly);
        QCOMPARE(m_counter.AllBuilds(), 1);
        QCOMPARE(m_counter.Builds(m_groups.at(7)->GetWidget()), 1);
        m_counter.Reset();
        m_bars.at(2)->GetSpot(0)->SetVisible(false);
        QCOMPARE(m_counter.AllBuilds(), 1);
        QCOMPARE(m_counter.Builds(m_bars.at(2)->GetWidget()), 1);
        m_counter.Reset();
        mp_quick->DeleteSpot(0);
        QCOMPARE(m_counter.AllBuilds(), 1);
        QCOMPARE(m_counter.Builds(&mp_host->QuickAccess()), 1);
    }

    void changeOfOneCommandBuildsTheSitesThatShowIt()
    {
        // "Big.35" is in the fourth group alone.
        mp_host->factory.Add("Big.35");
        mp_host->Revalidate();
        QCOMPARE(m_counter.AllBuilds(), 1);
        QCOMPARE(m_counter.Builds(m_groups.at(3)->GetWidget()), 1);
    }

    void changeOfACommandInACompositeBuildsTheSitesOfBoth()
    {
        // In the composite, and in the first group beside it.
        mp_host->factory.Add("Big.1");
        mp_host->Revalidate();
        QCOMPARE(m_counter.BuiltSites(), 3);
        QCOMPARE(m_counter.AllBuilds(), 3);
    }

    void changeOfACompositeBuildsItsSites()
    {
        mp_composite->InsertItem(new UiStateCompositeItem(QStringLiteral("Big.2")), -1);
        QCOMPARE(m_counter.AllBuilds(), 3);
        QCOMPARE(m_counter.BuiltSites(), 3);
        m_counter.Reset();
        mp_composite->SetTitle("Mine");
        QCOMPARE(m_counter.AllBuilds(), 3);
        m_counter.Reset();
        mp_composites->DeleteComposite(0);
        QCOMPARE(m_counter.AllBuilds(), 3);
    }

    void languageChangeBuildsNothingButTheSitesOfComposites()
    {
        mp_composite->FromJson(Json("{'title': 'Title'}")); // a title of the default
        mp_host->Revalidate();
        m_counter.Reset();
        const PrefixTranslator translator("x");
        mp_host->Features().TranslateCommands();
        mp_host->Controller().ValidateActiveLayout();
        QCOMPARE(m_counter.BuiltSites(), 3);
        QCOMPARE(m_counter.AllBuilds(), 3);
        QCOMPARE(Shown(mp_host->QuickAccess()).last(), QStringLiteral("xTitle"));
    }

    void layoutSwitchBuildsNoRibbonGroupAnew()
    {
        mp_host->Controller().SetActiveLayout(nullptr);
        mp_host->Activate("Big");
        for (UiStateRibbonGroup* group : qAsConst(m_groups))
            QCOMPARE(m_counter.Builds(group->GetWidget()), 0);
        for (UiStateToolbar* bar : qAsConst(m_bars))
            QCOMPARE(m_counter.Builds(bar->GetWidget()), 0);
        QCOMPARE(m_counter.Builds(&mp_host->QuickAccess()), 1); // one bar for all layouts
    }

    void activationAsksForEachIdentifierOnce()
    {
        // Nothing is remembered in a fresh copy.
        auto* profile = new UiProfile(mp_host->Profile());
        mp_host->Controller().ResetProfile(nullptr);
        m_groups.clear();
        m_bars.clear();
        mp_host->factory.variants.clear();
        mp_host->Controller().ResetProfile(profile);
        mp_host->factory.variants.clear();
        profile->GetLayout("Big")->Activate(UiProfileItem::amOrdinary);
        // 250 commands, the two of the composite, and the composite's name at each of its three
        // sites; then the switch of the quick search.
        QCOMPARE(mp_host->factory.variants.size(), 250 + 2 + 3 + 1);
        profile->GetLayout("Big")->Deactivate(UiProfileItem::amOrdinary);
    }

private:
    static UiSpotCommand* Spot(const QString& id)
    {
        UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(id);
        spot->SetStyle(Qt::ToolButtonTextBesideIcon);
        return spot;
    }
    static void Fill(UiStateCommandSpots& site, int& next)
    {
        for (int i = 0; i < 10; ++i)
            site.AddSpot(Spot(QStringLiteral("Big.%1").arg(next++)));
    }

    std::unique_ptr<LiveHost> mp_host;
    UiStateComposites* mp_composites = nullptr;
    UiStateComposite* mp_composite = nullptr;
    UiStateQAB* mp_quick = nullptr;
    QList<UiStateRibbonGroup*> m_groups;
    QList<UiStateToolbar*> m_bars;
    BuildCounter m_counter;
};
OVK_TEST_CLASS(RebuildTest)

#include "rebuild_test.moc"
