#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/commands_drop_down.h>
#include <ovk/commands/commands_menu.h>
#include <ovk/ui_state/ui_spot_command.h>

#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QToolBar>
#include <QToolButton>

#include <qtitan/ribbon.h>

using namespace ovk_test;

namespace {

QIcon Blot(Qt::GlobalColor color)
{
    QPixmap pixmap(8, 8);
    pixmap.fill(color);
    return QIcon(pixmap);
}

std::unique_ptr<ovk::ICompositeCommand> Make(bool dropDown)
{
    if (dropDown)
        return std::make_unique<ovk::CommandsDropDown>("composite");
    return std::make_unique<ovk::CommandsMenu>("composite");
}

QToolButton* OnlyButton(QToolBar& bar)
{
    return bar.actions().size() == 1
               ? qobject_cast<QToolButton*>(bar.widgetForAction(bar.actions().first()))
               : nullptr;
}

QList<ovk::IUiItem*> Items(ovk::ICompositeCommand& composite)
{
    QList<ovk::IUiItem*> items;
    composite.ForEach([&items](ovk::IUiItem* item) {
        items.append(item);
        return true;
    });
    return items;
}

} // namespace

class CompositeCommandTest : public QObject
{
    Q_OBJECT

    void bothKinds()
    {
        QTest::addColumn<bool>("dropDown");
        QTest::newRow("menu") << false;
        QTest::newRow("drop-down") << true;
    }

private Q_SLOTS:
    void aCompositeHasItsOwnNameTitleAndIcon_data() { bothKinds(); }
    void aCompositeHasItsOwnNameTitleAndIcon()
    {
        QFETCH(bool, dropDown);
        const auto composite = Make(dropDown);
        QCOMPARE(composite->GetId(), QString("composite"));
        QCOMPARE(composite->GetTitle(), QString());
        QVERIFY(composite->GetIcon().isNull());
        composite->SetTitle("Title & more");
        const QIcon icon = Blot(Qt::red);
        composite->SetIcon(icon);
        QCOMPARE(composite->GetTitle(), QString("Title & more"));
        QCOMPARE(composite->GetIcon().cacheKey(), icon.cacheKey());
        QVERIFY(composite->IsCompatible(nullptr));
        QVERIFY(composite->RemoveFromSite(nullptr));
    }

    void itemsKeepTheirOrderAndNullIsNone_data() { bothKinds(); }
    void itemsKeepTheirOrderAndNullIsNone()
    {
        QFETCH(bool, dropDown);
        const auto composite = Make(dropDown);
        FakeCommand a("A");
        FakeCommand b("B");
        composite->Add(&b);
        composite->Add(nullptr);
        composite->Add(&a);
        composite->AddSeparator();
        QCOMPARE(Items(*composite), (QList<ovk::IUiItem*>{&b, &a, nullptr}));
        composite->Clear();
        QVERIFY(Items(*composite).isEmpty());
    }

    void aWalkStopsAtTheFirstRefusal()
    {
        ovk::CommandsMenu menu("menu");
        FakeCommand a("A");
        FakeCommand b("B");
        menu.Add(&a);
        menu.Add(&b);
        int visited = 0;
        ovk::IUiItem* const stop = menu.ForEach([&](ovk::IUiItem* item) {
            ++visited;
            return item != &a;
        });
        QCOMPARE(stop, static_cast<ovk::IUiItem*>(&a));
        QCOMPARE(visited, 1);
        const ovk::CommandsMenu& reader = menu;
        QVERIFY(!reader.ForEach([](const ovk::IUiItem*) { return true; }));
        QCOMPARE(reader.ForEach([&](const ovk::IUiItem* item) { return item != &b; }),
                 static_cast<const ovk::IUiItem*>(&b));
    }

    void anEmptyCompositeHasNoPopup_data() { bothKinds(); }
    void anEmptyCompositeHasNoPopup()
    {
        QFETCH(bool, dropDown);
        QVERIFY(!Make(dropDown)->GetMenu());
    }

    void thePopupShowsItemsAndSeparators_data() { bothKinds(); }
    void thePopupShowsItemsAndSeparators()
    {
        QFETCH(bool, dropDown);
        const auto composite = Make(dropDown);
        FakeCommand a("A");
        FakeCommand b("B");
        composite->Add(&a);
        composite->AddSeparator();
        composite->Add(&b);
        QMenu* const popup = composite->GetMenu();
        QVERIFY(popup);
        QCOMPARE(composite->GetMenu(), popup);
        QVERIFY(!popup->parent());
        const QList<QAction*> actions = popup->actions();
        QCOMPARE(actions.size(), 3);
        QCOMPARE(actions.at(0), &a);
        QVERIFY(actions.at(1)->isSeparator());
        QCOMPARE(actions.at(2), &b);
    }

    void aCompositeInsideACompositeIsNotInThePopup()
    {
        ovk::CommandsMenu inner("inner");
        ovk::CommandsMenu outer("outer");
        FakeCommand a("A");
        outer.Add(&inner);
        outer.Add(&a);
        QCOMPARE(outer.GetMenu()->actions(), QList<QAction*>{&a});
    }

    void aChangeOfTheListMakesANewPopup_data()
    {
        QTest::addColumn<int>("change");
        QTest::newRow("add") << 0;
        QTest::newRow("separator") << 1;
        QTest::newRow("clear") << 2;
    }
    void aChangeOfTheListMakesANewPopup()
    {
        QFETCH(int, change);
        ovk::CommandsMenu menu("menu");
        FakeCommand a("A");
        FakeCommand b("B");
        menu.Add(&a);
        const QPointer<QMenu> former = menu.GetMenu();
        switch (change) {
        case 0:
            menu.Add(&b);
            break;
        case 1:
            menu.AddSeparator();
            break;
        default:
            menu.Clear();
        }
        QVERIFY(!former);
        if (change == 2) {
            QVERIFY(!menu.GetMenu());
        } else {
            QCOMPARE(menu.GetMenu()->actions().size(), 2);
        }
    }

    void addingNullKeepsThePopup()
    {
        ovk::CommandsMenu menu("menu");
        FakeCommand a("A");
        menu.Add(&a);
        QMenu* const popup = menu.GetMenu();
        menu.Add(nullptr);
        QCOMPARE(menu.GetMenu(), popup);
    }

    void aCommandOfThePopupMayChangeTheList()
    {
        ovk::CommandsMenu menu("menu");
        FakeCommand a("A");
        a.SetStrings("Change", "", "", false, false, false);
        menu.Add(&a);
        a.on_execute = [&menu] { menu.Clear(); };
        const QPointer<QMenu> popup = menu.GetMenu();
        popup->popup(QPoint(10, 10));
        QVERIFY(QTest::qWaitForWindowExposed(popup));
        QTest::mouseClick(popup, Qt::LeftButton, {}, popup->actionGeometry(&a).center());
        QCOMPARE(a.executed, 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!popup);
        QVERIFY(!menu.GetMenu());
    }

    void aCommandOfThePopupMayDeleteTheComposite()
    {
        auto menu = std::make_unique<ovk::CommandsMenu>("menu");
        FakeCommand a("A");
        menu->Add(&a);
        a.on_execute = [&menu] { menu.reset(); };
        const QPointer<QMenu> popup = menu->GetMenu();
        popup->popup(QPoint(10, 10));
        QVERIFY(QTest::qWaitForWindowExposed(popup));
        popup->setActiveAction(&a);
        QTest::keyClick(popup, Qt::Key_Return);
        QCOMPARE(a.executed, 1);
        QVERIFY(!menu);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!popup);
    }

    void aCloneSharesItemsAndBuildsItsOwnPopup_data() { bothKinds(); }
    void aCloneSharesItemsAndBuildsItsOwnPopup()
    {
        QFETCH(bool, dropDown);
        const auto composite = Make(dropDown);
        FakeCommand a("A");
        FakeCommand b("B");
        composite->SetTitle("Title");
        const QIcon icon = Blot(Qt::green);
        composite->SetIcon(icon);
        composite->Add(&a);
        QMenu* const popup = composite->GetMenu();
        const std::unique_ptr<ovk::ICompositeCommand> clone(composite->Clone());
        QCOMPARE(clone->GetId(), QString("composite"));
        QCOMPARE(clone->GetTitle(), QString("Title"));
        QCOMPARE(clone->GetIcon().cacheKey(), icon.cacheKey());
        QCOMPARE(Items(*clone), QList<ovk::IUiItem*>{&a});
        QVERIFY(clone->GetMenu() != popup);
        QCOMPARE(composite->GetMenu(), popup);
        QCOMPARE(dynamic_cast<ovk::CommandsDropDown*>(clone.get()) != nullptr, dropDown);
        clone->Add(&b);
        QCOMPARE(Items(*composite), QList<ovk::IUiItem*>{&a});
    }

    void aMenuIsAButtonOfItsOwnOnAToolBar()
    {
        QToolBar bar;
        ovk::CommandsMenu menu("menu");
        FakeCommand a("A");
        menu.Add(&a);
        menu.SetTitle("Clipboard");
        const QIcon icon = Blot(Qt::red);
        menu.SetIcon(icon);
        ovk::UiSpotCommand spot("menu");
        spot.SetStyle(Qt::ToolButtonTextUnderIcon);
        QVERIFY(menu.AddToSite(&bar, &spot));
        QToolButton* const button = OnlyButton(bar);
        QVERIFY(button);
        QVERIFY(button->defaultAction() != &a);
        QCOMPARE(button->defaultAction()->text(), QString("Clipboard"));
        QCOMPARE(button->defaultAction()->icon().cacheKey(), icon.cacheKey());
        QCOMPARE(button->popupMode(), QToolButton::InstantPopup);
        QCOMPARE(button->menu(), menu.GetMenu());
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        button->defaultAction()->trigger();
        QCOMPARE(a.executed, 0);
    }

    void aMenuWithoutItemsHasAButtonWithoutPopup()
    {
        QToolBar bar;
        ovk::CommandsMenu menu("menu");
        QVERIFY(menu.AddToSite(&bar, nullptr));
        QVERIFY(OnlyButton(bar));
        QVERIFY(!OnlyButton(bar)->menu());

        Qtitan::RibbonGroup group;
        QVERIFY(menu.AddToSite(&group, nullptr));
        QCOMPARE(group.actions().size(), 1);
        QToolButton* const button = group.buttonForAction(group.actions().first());
        QVERIFY(button);
        QVERIFY(!button->menu());
    }

    void aDropDownIsTheFirstCommandsButtonOnAToolBar()
    {
        QToolBar bar;
        ovk::CommandsDropDown dropDown("dropDown");
        FakeCommand a("A");
        FakeCommand b("B");
        dropDown.Add(&a);
        dropDown.Add(&b);
        ovk::UiSpotCommand spot("dropDown");
        spot.SetStyle(Qt::ToolButtonTextOnly);
        QVERIFY(dropDown.AddToSite(&bar, &spot));
        QToolButton* const button = OnlyButton(bar);
        QVERIFY(button);
        QCOMPARE(button->defaultAction(), &a);
        QCOMPARE(button->popupMode(), QToolButton::MenuButtonPopup);
        QCOMPARE(button->menu(), dropDown.GetMenu());
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextOnly);
        a.setEnabled(false);
        QVERIFY(!button->isEnabled());
        a.setEnabled(true);
        button->defaultAction()->trigger();
        QCOMPARE(a.executed, 1);
    }

    void aToolBarWithoutASpotKeepsItsStyle_data() { bothKinds(); }
    void aToolBarWithoutASpotKeepsItsStyle()
    {
        QFETCH(bool, dropDown);
        QToolBar bar;
        bar.setToolButtonStyle(Qt::ToolButtonTextOnly);
        FakeCommand a("A");
        const auto composite = Make(dropDown);
        composite->Add(&a);
        QVERIFY(composite->AddToSite(&bar, nullptr));
        QCOMPARE(OnlyButton(bar)->toolButtonStyle(), Qt::ToolButtonTextOnly);
    }

    void aRibbonGroupShowsAComposite_data()
    {
        QTest::addColumn<bool>("dropDown");
        QTest::addColumn<bool>("withSpot");
        QTest::newRow("menu") << false << false;
        QTest::newRow("menu with a spot") << false << true;
        QTest::newRow("drop-down") << true << false;
        QTest::newRow("drop-down with a spot") << true << true;
    }
    void aRibbonGroupShowsAComposite()
    {
        QFETCH(bool, dropDown);
        QFETCH(bool, withSpot);
        Qtitan::RibbonGroup group;
        FakeCommand a("A");
        const auto composite = Make(dropDown);
        composite->SetTitle("Title");
        composite->Add(&a);
        ovk::UiSpotCommand spot("composite");
        spot.SetStyle(Qt::ToolButtonTextUnderIcon);
        QVERIFY(composite->AddToSite(&group, withSpot ? &spot : nullptr));
        QCOMPARE(group.actions().size(), 1);
        QAction* const action = group.actions().first();
        QCOMPARE(action == &a, dropDown);
        if (!dropDown) {
            QCOMPARE(action->text(), QString("Title"));
        }
        QCOMPARE(group.styleForAction(action),
                 withSpot ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonFollowStyle);
        QToolButton* const button = group.buttonForAction(action);
        QVERIFY(button);
        QCOMPARE(button->menu(), composite->GetMenu());
        QCOMPARE(button->popupMode(),
                 dropDown ? QToolButton::MenuButtonPopup : QToolButton::InstantPopup);
    }

    void otherSitesAreNoPlace_data() { bothKinds(); }
    void otherSitesAreNoPlace()
    {
        QFETCH(bool, dropDown);
        FakeCommand a("A");
        const auto composite = Make(dropDown);
        composite->Add(&a);
        QMenu menu;
        QWidget widget;
        QVERIFY(!composite->AddToSite(&menu, nullptr));
        QVERIFY(!composite->AddToSite(&widget, nullptr));
        QVERIFY(!composite->AddToSite(nullptr, nullptr));
        QVERIFY(menu.actions().isEmpty());
        QVERIFY(widget.actions().isEmpty());
    }

    void aDropDownNeedsACommandFirst_data()
    {
        QTest::addColumn<int>("first");
        QTest::newRow("nothing") << 0;
        QTest::newRow("separator") << 1;
        QTest::newRow("composite") << 2;
    }
    void aDropDownNeedsACommandFirst()
    {
        QFETCH(int, first);
        ovk::CommandsDropDown dropDown("dropDown");
        ovk::CommandsMenu inner("inner");
        inner.SetTitle("Inner");
        FakeCommand a("A");
        if (first == 1)
            dropDown.AddSeparator();
        if (first == 2)
            dropDown.Add(&inner);
        if (first != 0)
            dropDown.Add(&a);
        QToolBar bar;
        Qtitan::RibbonGroup group;
        QVERIFY(!dropDown.AddToSite(&bar, nullptr));
        QVERIFY(!dropDown.AddToSite(&group, nullptr));
        QVERIFY(bar.actions().isEmpty());
        QVERIFY(group.actions().isEmpty());
        QCOMPARE(dropDown.GetTitle(), QString());
        QVERIFY(dropDown.GetIcon().isNull());
    }

    void aHiddenSpotAddsNothing_data() { bothKinds(); }
    void aHiddenSpotAddsNothing()
    {
        QFETCH(bool, dropDown);
        FakeCommand a("A");
        const auto composite = Make(dropDown);
        composite->Add(&a);
        ovk::UiSpotCommand spot("composite");
        spot.SetStyle(Qt::ToolButtonIconOnly);
        spot.SetVisible(false);
        QToolBar bar;
        Qtitan::RibbonGroup group;
        QVERIFY(!composite->AddToSite(&bar, &spot));
        QVERIFY(!composite->AddToSite(&group, &spot));
        QVERIFY(bar.actions().isEmpty());
        QVERIFY(group.actions().isEmpty());
    }

    void removingReportsSuccessAndLeavesTheSite_data() { bothKinds(); }
    void removingReportsSuccessAndLeavesTheSite()
    {
        QFETCH(bool, dropDown);
        FakeCommand a("A");
        const auto composite = Make(dropDown);
        composite->Add(&a);
        QToolBar bar;
        QVERIFY(composite->AddToSite(&bar, nullptr));
        QVERIFY(composite->RemoveFromSite(&bar));
        QCOMPARE(bar.actions().size(), 1);
    }

    void aDropDownBorrowsTitleAndIconOfTheFirstCommand()
    {
        ovk::CommandsDropDown dropDown("dropDown");
        FakeCommand a("A");
        a.SetStrings("First & best", "", "", false, false, false);
        const QIcon icon = Blot(Qt::blue);
        a.SetIcon(icon);
        dropDown.Add(&a);
        QCOMPARE(dropDown.GetTitle(), QString("First & best"));
        QCOMPARE(dropDown.GetIcon().cacheKey(), icon.cacheKey());
        dropDown.SetTitle("Own");
        const QIcon own = Blot(Qt::green);
        dropDown.SetIcon(own);
        QCOMPARE(dropDown.GetTitle(), QString("Own"));
        QCOMPARE(dropDown.GetIcon().cacheKey(), own.cacheKey());
    }

    void aMenuBorrowsNothing()
    {
        ovk::CommandsMenu menu("menu");
        FakeCommand a("A");
        a.SetStrings("First", "", "", false, false, false);
        a.SetIcon(Blot(Qt::blue));
        menu.Add(&a);
        QCOMPARE(menu.GetTitle(), QString());
        QVERIFY(menu.GetIcon().isNull());
    }
};

OVK_TEST_CLASS(CompositeCommandTest)

#include "composite_command_test.moc"
