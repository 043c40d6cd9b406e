#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolButton>

using namespace ovk;
using namespace ovk_test;

/// What a screen reader is told about panels, and what the keyboard does with them.
class DockAccessibleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPanelIsCalledByItsTitle();
    void aPanelTellsWhetherItIsFolded();
    void aNewTitleIsTheNewName();
    void aScreenReaderFoldsAPanelAndOpensItsMenu();
    void theTitleAndItsButtonsHaveNames();
    void theButtonsArePressedByAScreenReader();
    void theButtonsAreReachedAndPressedByKeys();
    void aHandleTellsItsSide_data();
    void aHandleTellsItsSide();
    void theMenuKeyOpensTheMenuFromAPage();
    void aRestrictedPanelHasNoMenu();
};

namespace {

QAccessibleInterface* Interface(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString NameOf(QObject* object)
{
    const QAccessibleInterface* const interface = Interface(object);
    return interface ? interface->text(QAccessible::Name) : QString();
}

DockWidgetTitle* TitleOf(const DockWidget& panel)
{
    return qobject_cast<DockWidgetTitle*>(panel._Impl()->title.data());
}

void SendMenuKey(QWidget& widget)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, widget.rect().center(),
                            widget.mapToGlobal(widget.rect().center()));
    QApplication::sendEvent(&widget, &event);
}

} // namespace

void DockAccessibleTest::aPanelIsCalledByItsTitle()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QCOMPARE(NameOf(panel), QString("a.page"));
    QCOMPARE(Interface(panel)->role(), QAccessible::Pane);
    panel->AddPage(new FakePage("second"));
    panel->SetForcedTitle("Both");
    DockFixture::Settle();
    QCOMPARE(NameOf(panel), QString("Both"));
    // Also where no title is seen.
    panel->SetTitleEnabled(false);
    DockFixture::Settle();
    QCOMPARE(NameOf(panel), QString("Both"));
    // A name that the host gave comes first.
    panel->setAccessibleName("Named");
    QCOMPARE(NameOf(panel), QString("Named"));
    panel->SetFloated(QPoint(200, 100));
    DockFixture::Settle();
    QCOMPARE(Interface(panel)->role(), QAccessible::Window);
    QCOMPARE(Interface(panel)->isValid(), true);
}

void DockAccessibleTest::aPanelTellsWhetherItIsFolded()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QAccessible::State state = Interface(panel)->state();
    QVERIFY(state.expandable && state.expanded && !state.collapsed && state.movable);
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    state = Interface(panel)->state();
    QVERIFY(state.expandable && !state.expanded && state.collapsed);
    panel->SetCollapsible(false);
    panel->SetMovable(false);
    DockFixture::Settle();
    state = Interface(panel)->state();
    QVERIFY(!state.expandable && !state.expanded && !state.collapsed && !state.movable);
    QVERIFY(!state.disabled);
    panel->SetEnabled(false);
    QVERIFY(Interface(panel)->state().disabled);
    panel->SetEnabled(true);
}

void DockAccessibleTest::aNewTitleIsTheNewName()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    DockFixture::Page(*panel)->setWindowTitle("New");
    DockFixture::Settle();
    QCOMPARE(NameOf(panel), QString("New"));
    QCOMPARE(panel->windowTitle(), QString("New"));
}

void DockAccessibleTest::aScreenReaderFoldsAPanelAndOpensItsMenu()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QAccessibleActionInterface* const actions = Interface(panel)->actionInterface();
    QVERIFY(actions);
    const QString toggle = QAccessibleActionInterface::toggleAction();
    const QString menu = QAccessibleActionInterface::showMenuAction();
    QVERIFY(actions->actionNames().contains(toggle));
    actions->doAction(toggle);
    QVERIFY(panel->IsCollapsed());
    actions->doAction(toggle);
    QVERIFY(!panel->IsCollapsed());
    actions->doAction(menu);
    QVERIFY(panel->findChild<QMenu*>());
    QCOMPARE(NameOf(panel->findChild<QMenu*>()), QString("a.page"));
    panel->findChild<QMenu*>()->close();
    DockFixture::Settle();
    panel->SetCollapsible(false);
    panel->HideContextMenu(true);
    QVERIFY(!actions->actionNames().contains(toggle));
    QVERIFY(!actions->actionNames().contains(menu));
    actions->doAction(toggle);
    actions->doAction(menu);
    QVERIFY(!panel->IsCollapsed());
    QVERIFY(!panel->findChild<QMenu*>());
}

void DockAccessibleTest::theTitleAndItsButtonsHaveNames()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    DockWidgetTitle* const title = TitleOf(*panel);
    QCOMPARE(Interface(title)->role(), QAccessible::TitleBar);
    QCOMPARE(NameOf(title), QString("a.page"));
    QCOMPARE(Interface(title)->childCount(), 3);
    QCOMPARE(NameOf(title->GetMinimizeButton()), QString("Fold"));
    QCOMPARE(NameOf(title->GetCollapsibleButton()), QString("Keep open"));
    QCOMPARE(NameOf(title->GetCloseButton()), QString("Close"));
    panel->SetCollapsed(true, false);
    DockFixture::Settle();
    QCOMPARE(NameOf(title->GetMinimizeButton()), QString("Unfold"));
    panel->SetCollapsible(false);
    DockFixture::Settle();
    QCOMPARE(NameOf(title->GetCollapsibleButton()), QString("Allow folding"));
    QWidget window;
    auto* const area = new DockSiteTitle(&window); // a child of the window
    QCOMPARE(NameOf(area->GetMinimizeButton()), QString("Minimize"));
    QCOMPARE(NameOf(area->GetMaximizeButton()), QString("Maximize"));
    QCOMPARE(NameOf(area->GetCloseButton()), QString("Close"));
    area->GetMaximizeButton()->SetMaximized(true);
    QCOMPARE(NameOf(area->GetMaximizeButton()), QString("Restore"));
}

void DockAccessibleTest::theButtonsArePressedByAScreenReader()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    QAccessibleInterface* const button = Interface(TitleOf(*panel)->GetMinimizeButton());
    QCOMPARE(button->role(), QAccessible::Button);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(panel->IsCollapsed());
}

void DockAccessibleTest::theButtonsAreReachedAndPressedByKeys()
{
    DockFixture fixture;
    const QPointer<DockWidget> panel = fixture.Panel("a");
    DockFixture::Page(*panel)->setFocusPolicy(Qt::StrongFocus);
    fixture.Left()->AddWidget(panel);
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    DockFixture::Settle();
    DockWidgetTitle* const title = TitleOf(*panel);
    DockFixture::Page(*panel)->setFocus();
    QSet<QWidget*> reached;
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget());
    }
    QVERIFY(reached.contains(title->GetMinimizeButton()));
    QVERIFY(reached.contains(title->GetCollapsibleButton()));
    QVERIFY(reached.contains(title->GetCloseButton()));
    QVERIFY(reached.contains(fixture.Left()->GetDockSite()->_pp()->handle->GetButton()));

    // A click, in contrast, leaves the focus in the page.
    DockFixture::Page(*panel)->setFocus();
    QTest::mouseClick(title->GetCollapsibleButton(), Qt::LeftButton);
    QVERIFY(!panel->IsCollapsible());
    QVERIFY(DockFixture::Page(*panel)->hasFocus());

    title->GetCollapsibleButton()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(panel->IsCollapsible());
    DockFixture::Settle();
    title->GetMinimizeButton()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QVERIFY(panel->IsCollapsed());
    DockFixture::Settle();
    QVERIFY(title->GetMinimizeButton()->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    QVERIFY(!panel->IsCollapsed());
    DockFixture::Settle();
    title->GetCloseButton()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    DockFixture::Settle();
    QVERIFY(panel.isNull());
}

void DockAccessibleTest::aHandleTellsItsSide_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("hide");
    QTest::addColumn<QString>("show");
    const auto row = [](DockLayout::Side side, const QString& where) {
        QTest::newRow(qPrintable(where))
            << int(side) << where.left(1).toUpper() + where.mid(1) + " panels"
            << "Hide the panels at the " + where << "Show the panels at the " + where;
    };
    row(DockLayout::Left, "left");
    row(DockLayout::Right, "right");
    row(DockLayout::Top, "top");
    row(DockLayout::Bottom, "bottom");
}

void DockAccessibleTest::aHandleTellsItsSide()
{
    QFETCH(int, side);
    QFETCH(QString, name);
    QFETCH(QString, hide);
    QFETCH(QString, show);
    DockFixture fixture;
    DockToolboxSite* const site = fixture.Site(static_cast<DockLayout::Side>(side));
    site->AddWidget(fixture.Panel("a"));
    DockFixture::Settle();
    DockToolboxSiteHandle* const handle = site->GetDockSite()->_pp()->handle;
    QCOMPARE(Interface(handle)->role(), QAccessible::Splitter);
    QCOMPARE(NameOf(handle), name);
    QCOMPARE(NameOf(handle->GetButton()), hide);
    handle->GetButton()->setFocus();
    QTest::keyClick(handle->GetButton(), Qt::Key_Space);
    QVERIFY(site->IsMinimized());
    QCOMPARE(NameOf(handle->GetButton()), show);
    QCOMPARE(handle->GetButton()->toolTip(), show);
}

void DockAccessibleTest::theMenuKeyOpensTheMenuFromAPage()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    SendMenuKey(*DockFixture::Page(*panel));
    auto* menu = panel->findChild<QMenu*>();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
    // Below the title, where the eye looks for it.
    QCOMPARE(menu->pos(), panel->mapToGlobal(QPoint(0, TitleOf(*panel)->height())));
    menu->close();
    DockFixture::Settle();
    SendMenuKey(*TitleOf(*panel)->GetCloseButton());
    QVERIFY(panel->findChild<QMenu*>());
    panel->findChild<QMenu*>()->close();
    DockFixture::Settle();
    SendMenuKey(*panel->_Impl()->tab_bar);
    QVERIFY(panel->findChild<QMenu*>());
    panel->findChild<QMenu*>()->close();
    DockFixture::Settle();
    // A right click into a page is the page's own.
    QWidget* const page = DockFixture::Page(*panel);
    QContextMenuEvent mouse(QContextMenuEvent::Mouse, QPoint(5, 5), page->mapToGlobal({5, 5}));
    QApplication::sendEvent(page, &mouse);
    QVERIFY(!panel->findChild<QMenu*>());
}

void DockAccessibleTest::aRestrictedPanelHasNoMenu()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->HideContextMenu(true);
    fixture.Left()->AddWidget(panel);
    DockFixture::Settle();
    SendMenuKey(*DockFixture::Page(*panel));
    QVERIFY(!panel->findChild<QMenu*>());
}

OVK_TEST_CLASS(DockAccessibleTest)

#include "dock_accessible_test.moc"
