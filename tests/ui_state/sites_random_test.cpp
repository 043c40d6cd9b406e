#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/commands_drop_down.h>
#include <ovk/commands/commands_menu.h>
#include <ovk/ui_state/features/ui_features_controller.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_menus.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_toolbars.h>

#include <QMenu>

#include <random>

using namespace ovk;
using namespace ovk_test;

namespace {

constexpr int commands_on_sites = 30;
constexpr int items_a_composite = 10;
constexpr int composites = 5;

/// Two layouts with all commands in each.
QJsonObject Catalogue()
{
    QJsonObject root = BigCatalogue(commands_on_sites + composites * items_a_composite);
    QJsonObject products = root["products"].toObject();
    QJsonObject product = products["product"].toArray().at(0).toObject();
    QJsonObject twin = product["layout"].toArray().at(0).toObject();
    QJsonArray layouts = product["layout"].toArray();
    twin["id"] = "Twin";
    layouts.append(twin);
    product["layout"] = layouts;
    products["product"] = QJsonArray{product};
    root["products"] = products;
    return root;
}

QJsonObject Profile()
{
    return Json("{'profile': {'product': 'Fake', 'layouts': [{'id': 'Big', 'states': {}}, "
                "{'id': 'Twin', 'states': {}}]}}");
}

} // namespace

/// Whatever the user edits in the sites and composites of two layouts, and whatever the host does
/// to its commands: each live site shows what the tree says, and nothing that is gone.
class SitesRandomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sitesShowWhatTheTreeSays_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed : {7u, 70u, 701u, 7012u})
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }
    void sitesShowWhatTheTreeSays()
    {
        QFETCH(unsigned, seed);
        LiveHost host(Catalogue(), Profile());
        mp_host = &host;
        m_random.seed(seed);
        for (const char* name : {"Big", "Twin"})
            SetUp(*host.Layout(name));
        host.Activate("Big");
        for (int step = 0; step < 400; ++step) {
            UiLayout& layout = *host.Layout(Random(4) == 0 ? "Twin" : "Big");
            const QByteArray done = Step(layout);
            const QString wrong = Difference();
            QVERIFY2(wrong.isEmpty(),
                     qPrintable(QStringLiteral("seed %1, step %2, %3 in %4: %5")
                                    .arg(seed)
                                    .arg(step)
                                    .arg(QString::fromLatin1(done), layout.GetName(), wrong)));
            if (step % 25 == 0)
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

private:
    int Random(int below) { return below <= 0 ? 0 : static_cast<int>(m_random() % below); }

    static void SetUp(UiLayout& layout)
    {
        auto* page = new UiStateRibbonPage(QStringLiteral("page"));
        page->InsertGroup(new UiStateRibbonGroup(QStringLiteral("group1")), -1);
        page->InsertGroup(new UiStateRibbonGroup(QStringLiteral("group2")), -1);
        SuiteOf<UiStateRibbon>(layout).InsertPage(page, -1);
        SuiteOf<UiStateToolbars>(layout).AppendChild(
            new UiStateToolbar(QStringLiteral("bar ") + layout.GetName()));
        // A bar of the same name in both.
        SuiteOf<UiStateToolbars>(layout).AppendChild(new UiStateToolbar(QStringLiteral("bar")));
        SuiteOf<UiStateMenus>(layout).InsertMenu(new UiStateMenu(QStringLiteral("menu")), -1);
    }

    static QList<UiStateCommandSpots*> Sites(UiLayout& layout)
    {
        const UiStateRibbonPage* page = SuiteOf<UiStateRibbon>(layout).GetPage(0);
        auto& bars = SuiteOf<UiStateToolbars>(layout);
        return {page->GetGroup("group1"),
                page->GetGroup("group2"),
                static_cast<UiStateToolbar*>(bars.GetItem(0)),
                static_cast<UiStateToolbar*>(bars.GetItem(1)),
                &SuiteOf<UiStateQAB>(layout),
                static_cast<UiStateMenu*>(SuiteOf<UiStateMenus>(layout).GetItem(0))};
    }

    static const QWidget* Live(const LiveHost& host, const UiStateCommandSpots* site)
    {
        if (const auto* group = dynamic_cast<const UiStateRibbonGroup*>(site))
            return group->GetWidget();
        if (const auto* bar = dynamic_cast<const UiStateToolbar*>(site))
            return bar->GetWidget();
        return dynamic_cast<const UiStateQAB*>(site) ? &host.QuickAccess() : nullptr;
    }

    QByteArray Step(UiLayout& layout)
    {
        auto& suite = SuiteOf<UiStateComposites>(layout);
        const QList<UiStateCommandSpots*> sites = Sites(layout);
        UiStateCommandSpots& site = *sites.at(Random(sites.size()));
        const int spot = Random(site.GetAvailableCount());
        auto* composite = static_cast<UiStateComposite*>(suite.GetItem(Random(suite.GetCount())));
        switch (Random(16)) {
        case 0:
            return InsertComposite(suite);
        case 1:
            if (!composite || Random(3) != 0)
                return "nothing";
            suite.DeleteComposite(suite.GetIndexOf(composite));
            return "delete composite";
        case 2:
            if (!composite || composite->GetChildCount() >= items_a_composite)
                return "nothing";
            AddItem(*composite);
            return "insert item";
        case 3:
            if (!composite)
                return "nothing";
            composite->DeleteItem(Random(composite->GetChildCount()));
            return "delete item";
        case 4:
            if (!composite)
                return "nothing";
            composite->SetTitle(QStringLiteral("title %1").arg(m_next++));
            return "composite title";
        case 5:
            mp_host->Activate(mp_host->Controller().GetActiveLayout()->GetName() == "Big" ? "Twin"
                                                                                          : "Big");
            return "switch layout";
        case 6: {
            const QString id = QStringLiteral("Big.%1").arg(
                Random(commands_on_sites + composites * items_a_composite));
            const bool gone = mp_host->Command(id);
            if (gone)
                mp_host->factory.Remove(id);
            else
                mp_host->factory.Add(id);
            RevalidateBoth();
            return gone ? "command goes" : "command comes";
        }
        case 7: {
            const PrefixTranslator translator(QString::number(m_next++));
            mp_host->Features().TranslateCommands();
            mp_host->Controller().ValidateActiveLayout();
        }
            RevalidateBoth();
            return "language";
        case 8:
            mp_host->Controller().GetActiveLayout()->Store();
            return "store";
        case 9:
            site.DeleteSpot(spot);
            return "delete spot";
        case 10:
            if (UiSpot* node = site.GetSpot(spot))
                node->SetVisible(!node->IsVisible());
            return "show or hide spot";
        case 11:
            if (auto* node = dynamic_cast<UiSpotCommand*>(site.GetSpot(spot)))
                node->SetStyle(static_cast<Qt::ToolButtonStyle>(Random(4)));
            return "style";
        case 12:
            site.InsertSpot(spot, site.CreateSeparatorSpot());
            return "insert separator";
        default:
            return InsertSpot(site, spot, composite);
        }
    }

    /// Both layouts, one after the other on screen, so that neither remembers a dead command.
    void RevalidateBoth()
    {
        const QString active = mp_host->Controller().GetActiveLayout()->GetName();
        for (const QString& name : {QStringLiteral("Big"), QStringLiteral("Twin"), active}) {
            mp_host->Activate(name);
            mp_host->Revalidate();
        }
    }

    QByteArray InsertComposite(UiStateComposites& suite)
    {
        const QString id = QStringLiteral("composite%1").arg(Random(composites));
        if (suite.Find(id))
            return "nothing";
        UiStateComposite* composite = nullptr;
        if (Random(2) == 0)
            composite = new UiStateCompositeMenu(id);
        else
            composite = new UiStateCompositeCommand(id);
        suite.InsertComposite(composite, Random(suite.GetCount() + 1));
        composite->SetTitle("title of " + id);
        AddItem(*composite);
        AddItem(*composite);
        return "insert composite";
    }

    /// Items of a composite are its own, so that no action stands on a site twice.
    void AddItem(UiStateComposite& composite)
    {
        const int number = composite.GetName().right(1).toInt();
        const QString id = QStringLiteral("Big.%1").arg(
            commands_on_sites + number * items_a_composite + Random(items_a_composite));
        if (!ChildNames(composite).contains(id)) {
            composite.InsertItem(new UiStateCompositeItem(id),
                                 Random(composite.GetAvailableCount() + 1));
        }
    }

    QByteArray InsertSpot(UiStateCommandSpots& site, int index, const UiStateComposite* composite)
    {
        const bool of_composite = composite && Random(2) == 0;
        const QString id = of_composite ? composite->GetName()
                                        : QStringLiteral("Big.%1").arg(Random(commands_on_sites));
        if (site.Find(id))
            return "nothing";
        UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(id);
        spot->SetStyle(Qt::ToolButtonIconOnly);
        site.InsertSpot(index, spot);
        return of_composite ? "insert spot of a composite" : "insert spot";
    }

    static QStringList Expected(const UiStateCommandSpots& site)
    {
        QStringList shown;
        for (int i = 0; i < site.GetCount(); ++i) {
            const UiProfileItem* spot = site.GetItem(i);
            if (!spot->IsVisible())
                continue;
            const auto* command = dynamic_cast<const UiSpotCommand*>(spot);
            if (!command) {
                shown << "|";
                continue;
            }
            IUiItem* item = command->GetUiItem();
            if (dynamic_cast<CommandsMenu*>(item)) {
                shown << item->GetTitle();
            } else if (auto* drop_down = dynamic_cast<CommandsDropDown*>(item)) {
                IUiItem* first = nullptr;
                drop_down->ForEach([&first](IUiItem* each) {
                    first = each;
                    return false;
                });
                if (first)
                    shown << first->GetId();
            } else if (item) {
                shown << item->GetId();
            }
        }
        return shown;
    }

    QString Difference() const
    {
        UiLayout& active = *mp_host->Controller().GetActiveLayout();
        if (!SuiteOf<UiStateRibbon>(active).CheckConsistency())
            return "ribbon inconsistent";
        for (const UiStateCommandSpots* site : Sites(active)) {
            const QWidget* live = Live(*mp_host, site);
            if (live && Shown(*live) != Expected(*site)) {
                return site->GetName() + " shows " + Shown(*live).join(' ') + " instead of " +
                       Expected(*site).join(' ');
            }
        }
        // What a menu of a composite offers is what its items stand for.
        auto& suite = SuiteOf<UiStateComposites>(active);
        for (int i = 0; i < suite.GetCount(); ++i) {
            const auto* composite = static_cast<UiStateComposite*>(suite.GetItem(i));
            if (!composite->GetCommand())
                continue;
            QStringList items;
            for (int j = 0; j < composite->GetAvailableCount(); ++j) {
                items << dynamic_cast<UiStateCompositeItem*>(composite->GetAvailableChild(j))
                             ->GetName();
            }
            QMenu* menu = composite->GetCommand()->GetMenu();
            if ((menu ? Shown(*menu) : QStringList()) != items)
                return composite->GetName() + " should offer " + items.join(' ');
        }
        return {};
    }

    LiveHost* mp_host = nullptr;
    std::mt19937 m_random;
    int m_next = 0;
};
OVK_TEST_CLASS(SitesRandomTest)

#include "sites_random_test.moc"
