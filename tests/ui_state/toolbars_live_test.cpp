#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composites.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>
#include <ovk/ui_state/ui_state_toolbars.h>

#include <QLineEdit>
#include <QToolButton>

using namespace ovk;
using namespace ovk_test;

namespace {

/// The small catalogue with the command that switches quick search on.
QJsonObject CatalogueWithQuickSearch()
{
    QJsonObject root = SmallCatalogue();
    QJsonObject commands = root["commands"].toObject();
    QJsonArray list = commands["command"].toArray();
    list.append(QJsonObject{{"id", "View.QuickSearch"}, {"title", "Search"}, {"visual", true}});
    commands["command"] = list;
    root["commands"] = commands;
    QJsonObject products = root["products"].toObject();
    QJsonArray product_list = products["product"].toArray();
    QJsonObject fake = product_list.at(1).toObject();
    fake["functions"] = Json("{'function_ids': ['View.QuickSearch']}");
    product_list.replace(1, fake);
    products["product"] = product_list;
    root["products"] = products;
    return root;
}

UiSpotCommand* Spot(const QString& id, Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly)
{
    UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(id);
    spot->SetStyle(style);
    return spot;
}

} // namespace

class QuickAccessLiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<LiveHost>(CatalogueWithQuickSearch());
        mp_bar = &SuiteOf<UiStateQAB>(*mp_host->Activate("Model"));
    }
    void cleanup() { mp_host.reset(); }

    void barShowsTheSpotsAndTheSearchEdit()
    {
        QCOMPARE(Shown(mp_host->QuickAccess()), QStringList({"File.Save", "Quick search"}));
        QVERIFY(mp_host->QuickAccess().findChild<QLineEdit*>());
    }

    void searchEditSurvivesEveryChange()
    {
        mp_bar->AddSpot(Spot("Edit.Copy"));
        mp_bar->InsertSpot(0, mp_bar->CreateSeparatorSpot());
        QCOMPARE(Shown(mp_host->QuickAccess()),
                 QStringList({"|", "File.Save", "Edit.Copy", "Quick search"}));
        QCOMPARE(mp_host->QuickAccess().findChildren<QLineEdit*>().size(), 1);
    }

    void barOwnsNoMoreThanItShows()
    {
        UiSpotSeparator* line = mp_bar->CreateSeparatorSpot();
        mp_bar->AddSpot(line);
        mp_bar->AddSpot(Spot("composite.clip"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int before = mp_host->QuickAccess().findChildren<QObject*>().size();
        for (int i = 0; i < 20; ++i)
            mp_bar->SpotsChanged();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(mp_host->QuickAccess().findChildren<QObject*>().size(), before);
    }

    void otherLayoutHasABarOfItsOwn()
    {
        mp_host->Activate("Slice");
        QCOMPARE(Shown(mp_host->QuickAccess()), QStringList{"Quick search"});
        mp_bar->AddSpot(Spot("Edit.Copy")); // off screen
        QCOMPARE(Shown(mp_host->QuickAccess()), QStringList{"Quick search"});
        mp_host->Activate("Model");
        QCOMPARE(Shown(mp_host->QuickAccess()),
                 QStringList({"File.Save", "Edit.Copy", "Quick search"}));
        mp_host->Controller().SetActiveLayout(nullptr);
        QVERIFY(mp_host->QuickAccess().actions().isEmpty());
    }

    void compositeOnTheBarIsReplacedAtOnce()
    {
        mp_bar->AddSpot(Spot("composite.clip"));
        UiStateComposite* clip =
            SuiteOf<UiStateComposites>(*mp_bar->GetLayout()).Find("composite.clip");
        QAction* before = mp_host->QuickAccess().actions().at(1);
        QCOMPARE(before->text(), QStringLiteral("Clipboard"));
        clip->DeleteItem(1);
        QAction* after = mp_host->QuickAccess().actions().at(1);
        QVERIFY(after != before);
        auto* button = qobject_cast<QToolButton*>(mp_host->QuickAccess().widgetForAction(after));
        QCOMPARE(Shown(*button->menu()), QStringList{"Edit.Copy"});
    }

    void hiddenSpotsAreNotOnTheBar()
    {
        mp_bar->AddSpot(mp_bar->CreateSeparatorSpot());
        mp_bar->GetSpot(0)->SetVisible(false);
        mp_bar->GetSpot(1)->SetVisible(false);
        QCOMPARE(Shown(mp_host->QuickAccess()), QStringList{"Quick search"});
    }

    void barOutlivesTheWindow()
    {
        mp_host->window.reset();
        mp_bar->AddSpot(Spot("Edit.Copy"));
        mp_host->Activate("Slice");
    }

private:
    std::unique_ptr<LiveHost> mp_host;
    UiStateQAB* mp_bar = nullptr;
};
OVK_TEST_CLASS(QuickAccessLiveTest)

class ToolbarsLiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<LiveHost>();
        mp_bars = &SuiteOf<UiStateToolbars>(*mp_host->Activate("Model"));
        mp_view = static_cast<UiStateToolbar*>(mp_bars->GetItem(0));
    }
    void cleanup() { mp_host.reset(); }

    void activeLayoutShowsItsBars()
    {
        QToolBar* bar = mp_view->GetWidget();
        QCOMPARE(bar->objectName(), QStringLiteral("toolbar.view"));
        QCOMPARE(bar->windowTitle(), QStringLiteral("View"));
        QCOMPARE(Shown(*bar), QStringList{"View.Zoom"});
        QCOMPARE(Area().toolBarArea(bar), Qt::TopToolBarArea);
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(bar->actions().first()));
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
        QVERIFY(!bar->isHidden());
        mp_host->Activate("Slice");
        QVERIFY(bar->isHidden());
        QCOMPARE(mp_view->GetWidget(), bar);
        mp_host->Activate("Model");
        QCOMPARE(mp_view->GetWidget(), bar);
        QVERIFY(!bar->isHidden());
    }

    void barGoesWhereItsFieldsSay_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("area");
        QTest::addColumn<bool>("with_break");
        QTest::newRow("left") << QByteArray("{'id': 't', 'area': 1}") << 1 << false;
        QTest::newRow("bottom with a break")
            << QByteArray("{'id': 't', 'area': 8, 'break': true}") << 8 << true;
        QTest::newRow("floating and not movable docks")
            << QByteArray("{'id': 't', 'area': 2, 'floating': true, 'movable': false}") << 2
            << false;
        QTest::newRow("no area means the top") << QByteArray("{'id': 't'}") << 4 << false;
    }
    void barGoesWhereItsFieldsSay()
    {
        QFETCH(QByteArray, json);
        // A break stands before a bar only if another one stands before the break.
        AddBar("{'id': 'first', 'area': 8}");
        UiStateToolbar* bar = AddBar(json);
        QTEST(static_cast<int>(Area().toolBarArea(bar->GetWidget())), "area");
        QTEST(Area().toolBarBreak(bar->GetWidget()), "with_break");
        QVERIFY(!bar->GetWidget()->isFloating());
        QCOMPARE(bar->GetWidget()->isMovable(), bar->IsMovable());
    }

    void hiddenBarStaysHidden()
    {
        UiStateToolbar* bar = AddBar("{'id': 't', 'visible': false}");
        QVERIFY(bar->GetWidget()->isHidden());
        bar->SetVisible(true);
        QVERIFY(!bar->GetWidget()->isHidden());
        mp_host->Activate("Slice");
        bar->SetVisible(false);
        bar->SetVisible(true);
        QVERIFY(bar->GetWidget()->isHidden()); // its layout is not on screen
    }

    void spotsAreSeenAtOnce()
    {
        mp_view->AddSpot(mp_view->CreateSeparatorSpot());
        mp_view->AddSpot(Spot("Edit.Copy"));
        QCOMPARE(Shown(*mp_view->GetWidget()), QStringList({"View.Zoom", "|", "Edit.Copy"}));
        mp_view->GetSpot(1)->SetVisible(false);
        QCOMPARE(Shown(*mp_view->GetWidget()), QStringList({"View.Zoom", "Edit.Copy"}));
        mp_view->GetSpot(0)->SetVisible(false);
        QCOMPARE(Shown(*mp_view->GetWidget()), QStringList{"Edit.Copy"});
        mp_host->Activate("Slice");
        mp_view->DeleteSpot(2);
        mp_host->Activate("Model");
        QVERIFY(mp_view->GetWidget()->actions().isEmpty());
    }

    void titleOfTheUserIsSeenAtOnce()
    {
        mp_view->SetTitle("Mine");
        QCOMPARE(mp_view->GetWidget()->windowTitle(), QStringLiteral("Mine"));
    }

    void placementIsStoredFromTheLiveBar()
    {
        QToolBar* bar = mp_view->GetWidget();
        AddBar("{'id': 'first', 'area': 8}");
        Area().addToolBar(Qt::BottomToolBarArea, bar);
        Area().insertToolBarBreak(bar);
        bar->setMovable(false);
        bar->setWindowTitle("Renamed");
        mp_host->Layout("Model")->Store();
        QCOMPARE(mp_view->GetArea(), static_cast<int>(Qt::BottomToolBarArea));
        QVERIFY(mp_view->HasBreak());
        QVERIFY(!mp_view->IsMovable());
        QVERIFY(!mp_view->IsFloating());
        QCOMPARE(mp_view->GetTitle(), QStringLiteral("Renamed"));
        QVERIFY(!mp_bars->ToJson().value("state").toString().isEmpty());
    }

    void translationIsNotStoredAsTheTitle()
    {
        const PrefixTranslator translator("x");
        UiStateToolbar* bar = AddBar("{'id': 't', 'title': 'T'}");
        QCOMPARE(bar->GetWidget()->windowTitle(), QStringLiteral("xT"));
        mp_host->Layout("Model")->Store();
        QCOMPARE(bar->ToJson().value("title").toString(), QStringLiteral("T"));
    }

    void draggedBarComesBackWithItsLayout()
    {
        mp_host->window->show();
        Area().addToolBar(Qt::LeftToolBarArea, mp_view->GetWidget());
        mp_host->Activate("Slice");
        Area().addToolBar(Qt::RightToolBarArea, mp_view->GetWidget());
        mp_host->Activate("Model");
        QCOMPARE(Area().toolBarArea(mp_view->GetWidget()), Qt::LeftToolBarArea);
    }

    void placementComesBackInANewRun()
    {
        Area().addToolBar(Qt::BottomToolBarArea, mp_view->GetWidget());
        mp_host->Layout("Model")->Store();
        const QJsonObject stored = mp_bars->ToJson();
        mp_host->Controller().SetActiveLayout(nullptr);
        auto* bars = new UiStateToolbars;
        bars->FromJson(stored);
        mp_host->Layout("Model")->ReplaceState(mp_bars, bars);
        mp_host->Activate("Model");
        auto* view = static_cast<UiStateToolbar*>(bars->GetItem(0));
        QCOMPARE(Area().toolBarArea(view->GetWidget()), Qt::BottomToolBarArea);
        QCOMPARE(Area().findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    }

    void barThatMayNoLongerMoveComesBackIntoItsArea()
    {
        mp_host->window->show();
        QToolBar* bar = mp_view->GetWidget();
        // What a drag out of the window does.
        bar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
        bar->show();
        QVERIFY(bar->isFloating());
        mp_view->SetMovable(false);
        QVERIFY(!bar->isFloating());
        QCOMPARE(Area().toolBarArea(bar), Qt::TopToolBarArea);
        QVERIFY(!bar->isMovable());
        QVERIFY(!bar->isHidden());
    }

    void areaAndBreakOfAnUpgrade()
    {
        UiStateToolbar* bar = AddBar("{'id': 't', 'area': 4, 'break': true}");
        bar->SetArea(Qt::LeftToolBarArea);
        QCOMPARE(Area().toolBarArea(bar->GetWidget()), Qt::LeftToolBarArea);
        bar->SetArea(Qt::TopToolBarArea); // behind the other bar
        Area().insertToolBarBreak(bar->GetWidget());
        QVERIFY(Area().toolBarBreak(bar->GetWidget()));
        bar->ClearBreak();
        QVERIFY(!bar->HasBreak());
        QVERIFY(!Area().toolBarBreak(bar->GetWidget()));
        bar->ClearBreak();
    }

    void twoLayoutsMayHaveABarOfOneName()
    {
        auto& slice = SuiteOf<UiStateToolbars>(*mp_host->Layout("Slice"));
        auto* twin = new UiStateToolbar(QStringLiteral("toolbar.view"));
        twin->AddSpot(Spot("Slice.Run"));
        slice.AppendChild(twin);
        mp_host->window->show();
        mp_host->Activate("Slice");
        Area().addToolBar(Qt::LeftToolBarArea, twin->GetWidget());
        mp_host->Activate("Model");
        QVERIFY(!mp_view->GetWidget()->isHidden());
        QVERIFY(twin->GetWidget()->isHidden());
        QCOMPARE(Area().toolBarArea(mp_view->GetWidget()), Qt::TopToolBarArea);
        mp_host->Activate("Slice");
        QVERIFY(mp_view->GetWidget()->isHidden());
        QVERIFY(!twin->GetWidget()->isHidden());
        QCOMPARE(Area().toolBarArea(twin->GetWidget()), Qt::LeftToolBarArea);
    }

    void deletedBarLeavesTheWindow()
    {
        const QPointer<QToolBar> bar = mp_view->GetWidget();
        mp_bars->DeleteItem(0);
        QVERIFY(!bar);
    }

    void buttonsShowTheTipsOfTheWorkArea()
    {
        // The work area answers the tool tip event of a button of the bar.
        QToolBar* bar = mp_view->GetWidget();
        QWidget* button = bar->widgetForAction(bar->actions().first());
        mp_host->window->show();
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), button->mapToGlobal(QPoint(1, 1)));
        QVERIFY(Area().eventFilter(button, &event));
        Qtitan::RibbonToolTip::hideToolTip();
    }

    void barsOutliveTheWindow()
    {
        mp_host->window.reset();
        QVERIFY(!mp_view->GetWidget());
        mp_view->AddSpot(Spot("Edit.Copy"));
        mp_view->SetVisible(false);
        mp_view->SetMovable(false);
        mp_host->Activate("Slice");
        QCOMPARE(mp_view->GetTitle(), QStringLiteral("View"));
    }

private:
    QMainWindow& Area() const { return mp_host->Area(); }
    UiStateToolbar* AddBar(const QByteArray& text)
    {
        const QJsonObject json = Json(text);
        auto* bar = new UiStateToolbar(json);
        bar->FromJson(json);
        bar->AddSpot(Spot("Edit.Copy"));
        mp_bars->AppendChild(bar);
        bar->Activate(UiProfileItem::amOrdinary);
        return bar;
    }

    std::unique_ptr<LiveHost> mp_host;
    UiStateToolbars* mp_bars = nullptr;
    UiStateToolbar* mp_view = nullptr;
};
OVK_TEST_CLASS(ToolbarsLiveTest)

#include "toolbars_live_test.moc"
