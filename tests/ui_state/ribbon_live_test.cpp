#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>

#include <QPixmap>

using namespace ovk;
using namespace ovk_test;

class RibbonLiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<LiveHost>();
        mp_ribbon = &SuiteOf<UiStateRibbon>(*mp_host->Activate("Model"));
        mp_home = mp_ribbon->GetPage("page.home");
    }
    void cleanup() { mp_host.reset(); }

    void activeLayoutShowsItsRibbon()
    {
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.home"});
        const Qtitan::RibbonPage* page = mp_home->GetWidget();
        QCOMPARE(mp_host->Bar().currentPage(), page);
        QCOMPARE(page->title(), QStringLiteral("Home"));
        QCOMPARE(LiveGroups(*page), QStringList({"group.file", "group.edit"}));
        const Qtitan::RibbonGroup* file = page->getGroup(0);
        QCOMPARE(file->title(), QStringLiteral("File"));
        QCOMPARE(Shown(*file), QStringList({"File.Open", "|", "File.Save"}));
        QCOMPARE(file->styleForAction(mp_host->Command("File.Open")), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(file->styleForAction(mp_host->Command("File.Save")), Qt::ToolButtonTextBesideIcon);
        QCOMPARE(Shown(*page->getGroup(1)), QStringList{"Clipboard"});
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void layoutSwitchChangesThePages()
    {
        Qtitan::RibbonPage* home = mp_home->GetWidget();
        Qtitan::RibbonGroup* file = Group("group.file")->GetWidget();
        mp_host->Activate("Slice");
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.slice"});
        QVERIFY(mp_host->Bar().indexOfPage(home) < 0);
        QVERIFY(!mp_ribbon->IsActive());
        mp_host->Activate("Model");
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.home"});
        QCOMPARE(mp_home->GetWidget(), home);
        QCOMPARE(Group("group.file")->GetWidget(), file);
        QVERIFY(!file->isHidden());
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void firstShownPageBecomesCurrent()
    {
        mp_host->Controller().SetActiveLayout(nullptr);
        for (const char* id : {"first", "second"})
            AddPage(id, 0, {"File.Open"}); // "second" comes before "first"
        mp_ribbon->GetPage("second")->SetVisible(false);
        mp_host->Activate("Model");
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"(second)", "first", "page.home"}));
        QCOMPARE(mp_host->Bar().currentPage(), mp_ribbon->GetPage("first")->GetWidget());
    }

    void groupOfUnresolvedSpotsIsNotShownNorLost()
    {
        UiStateRibbonPage* page = AddPage("lost", -1, {"No.Such", "View.Hidden"});
        QVERIFY(page->GetItem(0)->IsVisible());
        QVERIFY(!page->GetItem(0)->IsAvailable());
        QVERIFY(!page->IsShown());
        QVERIFY(page->GetWidget()->isHidden());
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"page.home", "(lost)"}));
        QCOMPARE(page->ToJson()
                     .value("groups")
                     .toArray()
                     .at(0)
                     .toObject()
                     .value("spots")
                     .toArray()
                     .size(),
                 2);
    }

    void separatorsAloneShowNoGroup()
    {
        UiStateRibbonPage* page = AddPage("lines", -1, {});
        auto* group = static_cast<UiStateRibbonGroup*>(page->GetItem(0));
        group->AddSpot(group->CreateSeparatorSpot());
        QCOMPARE(Shown(*group->GetWidget()), QStringList{"|"});
        QVERIFY(!group->IsAvailable());
        QVERIFY(page->GetWidget()->isHidden());
    }

    void pageVanishesWithItsLastCommand()
    {
        UiStateRibbonPage* page = AddPage("one", -1, {"Edit.Copy"});
        QVERIFY(!page->GetWidget()->isHidden());
        mp_host->factory.Remove("Edit.Copy");
        mp_host->Revalidate();
        QVERIFY(page->GetWidget()->isHidden());
        mp_host->factory.Add("Edit.Copy");
        mp_host->Revalidate();
        QVERIFY(!page->GetWidget()->isHidden());
        static_cast<UiStateRibbonGroup*>(page->GetItem(0))->DeleteSpot(0);
        QVERIFY(page->GetWidget()->isHidden());
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void ampersandOfATitleIsNoMnemonic()
    {
        mp_home->SetTitle("Cut & Paste");
        QCOMPARE(mp_home->GetTitle(), QStringLiteral("Cut & Paste"));
        QCOMPARE(mp_home->GetWidget()->title(), QStringLiteral("Cut && Paste"));
        Group("group.file")->SetTitle("R&D");
        QCOMPARE(Group("group.file")->GetWidget()->title(), QStringLiteral("R&&D"));
        UiStateRibbonPage* page = AddPage("amp", -1, {"File.Open"}, "A&B");
        QCOMPARE(page->GetWidget()->title(), QStringLiteral("A&&B"));
    }

    void languageChangeReachesTheTitles()
    {
        mp_home->SetTitle("Mine");
        const PrefixTranslator translator("x");
        mp_host->Revalidate();
        QCOMPARE(mp_home->GetWidget()->title(), QStringLiteral("Mine"));
        QCOMPARE(Group("group.file")->GetWidget()->title(), QStringLiteral("xFile"));
    }

    void collapsedGroupShowsTheIconOfItsFirstCommand()
    {
        QPixmap red(16, 16);
        red.fill(Qt::red);
        mp_host->Command("File.Save")->setIcon(QIcon(red));
        UiStateRibbonGroup* group = Group("group.file");
        QVERIFY(group->GetWidget()->icon().isNull());
        group->InsertSpot(0,
                          UiStateCommandSpots::CreateCommandSpot(*mp_host->Command("File.Save")));
        QCOMPARE(group->GetWidget()->icon().cacheKey(),
                 mp_host->Command("File.Save")->icon().cacheKey());
    }

    void editOfASpotIsSeenAtOnce()
    {
        UiStateRibbonGroup* group = Group("group.file");
        auto* open = static_cast<UiSpotCommand*>(group->GetSpot(0));
        open->SetStyle(Qt::ToolButtonIconOnly);
        QCOMPARE(group->GetWidget()->styleForAction(mp_host->Command("File.Open")),
                 Qt::ToolButtonIconOnly);
        open->SetVisible(false);
        QCOMPARE(Shown(*group->GetWidget()), QStringList({"|", "File.Save"}));
        group->GetSpot(1)->SetVisible(false);
        QCOMPARE(Shown(*group->GetWidget()), QStringList{"File.Save"});
        open->SetVisible(true);
        QCOMPARE(Shown(*group->GetWidget()), QStringList({"File.Open", "File.Save"}));
        group->Clear();
        QVERIFY(group->GetWidget()->isHidden());
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void hiddenPageIsHiddenOnScreen()
    {
        AddPage("other", -1, {"Edit.Copy"});
        mp_home->SetVisible(false);
        QVERIFY(!mp_home->IsVisible());
        QVERIFY(mp_home->GetWidget()->isHidden());
        QCOMPARE(mp_host->Bar().currentPage(), mp_ribbon->GetPage("other")->GetWidget());
        mp_home->SetVisible(true);
        QVERIFY(mp_home->IsVisible());
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"page.home", "other"}));
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void showingAnUnwantedPageBringsItBack()
    {
        mp_home->SetRibbonPageAvailableByUser(false);
        QVERIFY(!mp_home->IsShown());
        QVERIFY(mp_home->GetWidget()->isHidden());
        mp_home->SetVisible(true);
        QVERIFY(mp_home->IsRibbonPageAvailableByUser());
        QVERIFY(mp_ribbon->CheckConsistency());
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.home"});
    }

    void hiddenAndUnwantedPageComesBackInOneStep()
    {
        mp_home->SetVisible(false);
        mp_home->SetRibbonPageAvailableByUser(false);
        mp_home->SetVisible(true);
        QVERIFY(mp_home->IsShown());
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void unwantedGroupsTakeTheirPageWithThem()
    {
        Group("group.file")->SetRibbonGroupAvailableByUser(false);
        QVERIFY(Group("group.file")->GetWidget()->isHidden());
        QVERIFY(mp_home->IsShown());
        Group("group.edit")->SetVisible(false);
        QVERIFY(mp_home->GetWidget()->isHidden());
        Group("group.file")->SetVisible(true);
        QVERIFY(Group("group.file")->IsRibbonGroupAvailableByUser());
        QVERIFY(!Group("group.file")->GetWidget()->isHidden());
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.home"});
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void groupsComeAndGoOnAnActivePage()
    {
        auto* group = new UiStateRibbonGroup(QStringLiteral("new"));
        group->AddSpot(Spot("Edit.Copy"));
        mp_home->InsertGroup(group, 1);
        QCOMPARE(LiveGroups(*mp_home->GetWidget()),
                 QStringList({"group.file", "new", "group.edit"}));
        QVERIFY(group->IsActive());
        std::unique_ptr<UiStateRibbonGroup> removed(mp_home->RemoveGroup(0));
        QCOMPARE(removed->GetName(), QStringLiteral("group.file"));
        QVERIFY(!removed->IsActive());
        QCOMPARE(LiveGroups(*mp_home->GetWidget()), QStringList({"new", "group.edit"}));
        mp_home->DeleteGroup(1);
        QCOMPARE(LiveGroups(*mp_home->GetWidget()), QStringList{"new"});
        mp_home->DeleteGroup(0);
        QVERIFY(mp_home->GetWidget()->isHidden());
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void removedGroupComesBackWithItsWidget()
    {
        UiStateRibbonGroup* file = Group("group.file");
        Qtitan::RibbonGroup* widget = file->GetWidget();
        mp_home->InsertGroup(mp_home->RemoveGroup(0), 1);
        QCOMPARE(file->GetWidget(), widget);
        QCOMPARE(LiveGroups(*mp_home->GetWidget()), QStringList({"group.edit", "group.file"}));
        QVERIFY(!widget->isHidden());
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void groupMovesToAnotherPage()
    {
        UiStateRibbonPage* other = AddPage("other", -1, {"Edit.Copy"});
        Qtitan::RibbonGroup* widget = Group("group.file")->GetWidget();
        other->InsertGroup(mp_home->RemoveGroup(0), 0);
        QCOMPARE(LiveGroups(*other->GetWidget()).first(), QStringLiteral("group.file"));
        QCOMPARE(LiveGroups(*mp_home->GetWidget()), QStringList{"group.edit"});
        QCOMPARE(other->GetWidget()->getGroup(0), widget);
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void pagesComeMoveAndGo()
    {
        AddPage("a", 0, {"Edit.Copy"});
        AddPage("b", -1, {"Edit.Copy"});
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"a", "page.home", "b"}));
        mp_ribbon->MovePage(0, 2);
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"page.home", "b", "a"}));
        QCOMPARE(ChildNames(*mp_ribbon), LivePages(mp_host->Bar()));
        std::unique_ptr<UiStateRibbonPage> b(mp_ribbon->RemovePage(1));
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"page.home", "a"}));
        mp_ribbon->InsertPage(b.release(), 0);
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"b", "page.home", "a"}));
        mp_ribbon->DeletePage(1);
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"b", "a"}));
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void editsOffScreenShowAtTheNextActivation()
    {
        AddPage("other", -1, {"Edit.Copy"});
        mp_host->Activate("Slice");
        Group("group.file")->DeleteSpot(0);
        mp_home->InsertGroup(mp_home->RemoveGroup(0), 1);
        auto* group = new UiStateRibbonGroup(QStringLiteral("new"));
        group->AddSpot(Spot("Edit.Paste"));
        mp_home->InsertGroup(group, 0);
        mp_home->SetTitle("Changed");
        mp_ribbon->MovePage(0, 1);
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.slice"});
        mp_host->Activate("Model");
        QCOMPARE(LivePages(mp_host->Bar()), QStringList({"other", "page.home"}));
        QCOMPARE(mp_home->GetWidget()->title(), QStringLiteral("Changed"));
        QCOMPARE(LiveGroups(*mp_home->GetWidget()),
                 QStringList({"new", "group.edit", "group.file"}));
        QCOMPARE(Shown(*Group("group.file")->GetWidget()), QStringList({"|", "File.Save"}));
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void groupDeletedOffScreenLeavesNoGhost()
    {
        mp_host->Activate("Slice");
        mp_home->DeleteGroup(0);
        mp_host->Activate("Model");
        QCOMPARE(LiveGroups(*mp_home->GetWidget()), QStringList{"group.edit"});
    }

    void copyOfALiveRibbonHasNoWidgets()
    {
        const UiStateRibbon copy(*mp_ribbon);
        QVERIFY(!copy.IsActive());
        QVERIFY(!copy.GetPage(0)->IsActive());
        QVERIFY(!copy.GetPage(0)->GetGroup("group.file")->GetWidget());
        QVERIFY(!copy.GetPage(0)->GetGroup("group.file")->IsActive());
    }

    void widgetOnDemandMakesThePageActive()
    {
        mp_host->Activate("Slice");
        UiStateRibbon ribbon;
        auto* page = new UiStateRibbonPage(QStringLiteral("p"));
        ribbon.InsertPage(page, -1);
        QVERIFY(!page->IsActive());
        QVERIFY(page->GetWidget());
        QCOMPARE(page->GetWidget()->objectName(), QStringLiteral("p"));
        QVERIFY(page->IsActive());
        QVERIFY(mp_host->Bar().indexOfPage(page->GetWidget()) < 0);
    }

    void layoutOutlivesTheWindow()
    {
        mp_host->window.reset();
        QVERIFY(!Group("group.file")->GetWidget());
        Group("group.file")->DeleteSpot(0);
        mp_home->SetTitle("Still there");
        mp_home->SetVisible(false);
        mp_ribbon->MovePage(0, 0);
        mp_host->Revalidate();
        mp_host->Activate("Slice");
        QVERIFY(!mp_ribbon->IsActive());
    }

    void layoutComesUpInANewWindow()
    {
        mp_host->Activate("Slice");
        mp_host->window.reset();
        mp_host->window = std::make_unique<RibbonWindow>();
        mp_host->Activate("Model");
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.home"});
        QCOMPARE(LiveGroups(*mp_home->GetWidget()), QStringList({"group.file", "group.edit"}));
        QVERIFY(mp_ribbon->CheckConsistency());
    }

    void commandOfAButtonMayChangeTheButtonsGroup()
    {
        UiStateRibbonGroup* group = Group("group.file");
        mp_host->Command("File.Open")->on_execute = [group] { group->DeleteSpot(0); };
        QToolButton* button = group->GetWidget()->buttonForAction(mp_host->Command("File.Open"));
        QVERIFY(button);
        button->click();
        QCOMPARE(Shown(*group->GetWidget()), QStringList({"|", "File.Save"}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void commandOfAButtonMaySwitchTheLayout()
    {
        mp_host->Command("File.Open")->on_execute = [this] { mp_host->Activate("Slice"); };
        Group("group.file")->GetWidget()->buttonForAction(mp_host->Command("File.Open"))->click();
        QCOMPARE(LivePages(mp_host->Bar()), QStringList{"page.slice"});
    }

    void compositeOnTheRibbonIsReplacedAtOnce()
    {
        UiStateComposite* clip =
            SuiteOf<UiStateComposites>(*mp_home->GetLayout()).Find("composite.clip");
        UiStateRibbonGroup* edit = Group("group.edit");
        QAction* before = edit->GetWidget()->actions().first();
        clip->InsertItem(new UiStateCompositeItem(QStringLiteral("File.Open")), -1);
        QCOMPARE(Shown(*edit->GetWidget()), QStringList{"Clipboard"});
        QVERIFY(edit->GetWidget()->actions().first() != before);
        clip->SetTitle("Mine");
        QCOMPARE(Shown(*edit->GetWidget()), QStringList{"Mine"});
        auto& suite = SuiteOf<UiStateComposites>(*mp_home->GetLayout());
        suite.DeleteComposite(suite.GetIndexOf(clip));
        QVERIFY(edit->GetWidget()->isHidden());
    }

private:
    static UiSpotCommand* Spot(const QString& id)
    {
        UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(id);
        spot->SetStyle(Qt::ToolButtonTextBesideIcon);
        return spot;
    }
    UiStateRibbonGroup* Group(const char* id) const { return mp_home->GetGroup(id); }
    /// A page with one group of these commands.
    UiStateRibbonPage* AddPage(const QString& id, int index, const QStringList& commands,
                               const QString& title = QStringLiteral("Page"))
    {
        auto* page = new UiStateRibbonPage(id);
        page->SetTitle(title);
        auto* group = new UiStateRibbonGroup(id + ".group");
        for (const QString& command : commands)
            group->AddSpot(Spot(command));
        page->InsertGroup(group, -1);
        mp_ribbon->InsertPage(page, index);
        return page;
    }

    std::unique_ptr<LiveHost> mp_host;
    UiStateRibbon* mp_ribbon = nullptr;
    UiStateRibbonPage* mp_home = nullptr;
};
OVK_TEST_CLASS(RibbonLiveTest)

#include "ribbon_live_test.moc"
