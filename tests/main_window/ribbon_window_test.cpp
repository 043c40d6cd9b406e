#include "tests/main_window/window_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/icons_controller.h>
#include <ovk/core/observable.h>
#include <ovk/docking/dock_layout.h>
#include <ovk/docking/dock_manager.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/main_window/ribbon_window_p.h>
#include <ovk/main_window/ribbon_window_settings.h>
#include <ovk/main_window/work_area.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_state_ribbon.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>

#include <qtitan/ribbon.h>

#include <QCloseEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTimer>

using namespace ovk;
using namespace ovk_test;
using Qtitan::OfficeStyle;

namespace {

/// Runs a function on the menu that opens next, then closes it.
void OnNextMenu(const std::function<void(QMenu&)>& look)
{
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, look] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        poll->deleteLater();
        poll->stop();
        look(*menu);
        menu->close();
    });
    poll->start(1);
}

QAction* FindAction(const QWidget& widget, const QString& text)
{
    for (QAction* action : widget.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

void ResetSettings()
{
    RibbonWindowSettings::GroupTitleVisible().SetData(false);
    RibbonWindowSettings::OfficeTheme().SetData(OfficeStyle::Office2007Blue);
    RibbonWindowSettings::AccentColor().SetData(OfficeStyle::AccentColorBlue);
}


} // namespace

class RibbonWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ResetSettings(); }
    void cleanup() { ResetSettings(); }

    void theSettingsStartAsPromised();
    void theDocksFillTheWindowAroundTheWorkArea();
    void withoutCommandsThereAreNoButtonsAndNoBackstage();
    void everyCommandGivesItsButton();
    void helpIsShownOnlyIfItIsVisual();
    void theSystemButtonOpensTheBackstage();
    void theBackstageDisablesWhatLiesBehindIt();
    void aCommandClosesTheBackstage();
    void theMinimiseButtonTogglesTheRibbon();
    void theMinimiseButtonFollowsTheRibbon();
    void aThemeIsAppliedAtOnce_data();
    void aThemeIsAppliedAtOnce();
    void theThemeMinusOneLeavesAnOpenWindowAlone();
    void aWindowThatIsMadeWhileTheThemeIsMinusOneChangesNothing();
    void withoutARibbonStyleNoThemeIsApplied();
    void anAccentIsNamedDefaultOrPacked_data();
    void anAccentIsNamedDefaultOrPacked();
    void groupTitlesFollowTheirSetting();
    void theContextMenuListsPages();
    void theContextMenuOpensWhereTheWindowPutsIt();
    void theContextMenuWorksWithoutButtons();
    void aDerivedWindowIsNotAskedDuringConstruction();
    void aDeadWindowIsNotCalledBySettings();
    void theDeadWindowStaysTheInstanceButNotTheLiveOne();
    void theBlockerIsCalledWhenThereIsOne();
    void theCustomizeButtonCanBeDisabled();
    void theWorkAreaMayDieFirst();
    void closingIsAccepted();
};

void RibbonWindowTest::theSettingsStartAsPromised()
{
    QCOMPARE(RibbonWindowSettings::GroupTitleVisible().GetData(), false);
    QCOMPARE(int(RibbonWindowSettings::OfficeTheme().GetData()), 0);
    QCOMPARE(int(RibbonWindowSettings::AccentColor().GetData()), 0);
    QCOMPARE(&RibbonWindowSettings::OfficeTheme(), &RibbonWindowSettings::OfficeTheme());
}

void RibbonWindowTest::theDocksFillTheWindowAroundTheWorkArea()
{
    FakeHost host;
    RibbonWindow window;
    QCOMPARE(RibbonWindow::GetInstance(), &window);
    QCOMPARE(window.minimumSize(), QSize(800, 600));
    QCOMPARE(window.centralWidget(), static_cast<QWidget*>(window.GetDockManager()));
    QVERIFY(window.GetWorkArea());
    QCOMPARE(window.GetDockManager()->GetLayout()->GetCentralWidget(),
             static_cast<QWidget*>(window.GetWorkArea()));
    QCOMPARE(window.GetCentralViewWidget(), static_cast<QWidget*>(window.GetWorkArea()));
    QVERIFY(!window.statusBar()->isHidden());
    QCOMPARE(window.ribbonBar()->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(window.ribbonBar()->isQuickAccessVisible());
    QVERIFY(window.UiCustomizedSignal());
}

void RibbonWindowTest::withoutCommandsThereAreNoButtonsAndNoBackstage()
{
    FakeHost host;
    host.Start();
    RibbonWindow window;
    QVERIFY(!window.GetBackstage());
    QVERIFY(!window.ribbonBar()->getSystemButton());
    QVERIFY(window.ribbonBar()->actions().isEmpty());
    host.Activate(QStringLiteral("Model"));
    host.Controller().UpdateUi();
    QVERIFY(static_cast<UiCommand*>(host.Command(QStringLiteral("File.Open")))->Execute());
    window.DisableCustomizeButton(true);
    host.Activate(QString());
}

void RibbonWindowTest::everyCommandGivesItsButton()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    Qtitan::RibbonBar* bar = window.ribbonBar();

    QAction* minimise = FindAction(*bar, QStringLiteral("Minimize the Ribbon"));
    QVERIFY(minimise);
    QCOMPARE(minimise->statusTip(), QStringLiteral("Show only the tab names on the Ribbon"));
    QCOMPARE(minimise->shortcut(), QKeySequence(QStringLiteral("Ctrl+F1")));
    QCOMPARE(minimise->icon().cacheKey(),
             IconsController::Load(QStringLiteral("ribbonMinimize")).cacheKey());
    QVERIFY(!bar->actions().contains(host.Command(QStringLiteral("Ui.Ribbon.Minimize.Button"))));

    QVERIFY(bar->actions().contains(host.Command(QStringLiteral("Edit.CustomizeUI"))));
    QVERIFY(bar->actions().contains(host.Command(QStringLiteral("Help.Service"))));
    QVERIFY(bar->getSystemButton());
    QVERIFY(window.GetBackstage());
}

void RibbonWindowTest::helpIsShownOnlyIfItIsVisual()
{
    FakeHost host(CatalogueWith({}, WindowCommands()));
    RibbonWindow window;
    Qtitan::RibbonBar* bar = window.ribbonBar();
    QVERIFY(!bar->actions().contains(host.Command(QStringLiteral("Help.Service"))));
    // The other three do not ask for it.
    QVERIFY(FindAction(*bar, QStringLiteral("Minimize the Ribbon")));
    QVERIFY(bar->actions().contains(host.Command(QStringLiteral("Edit.CustomizeUI"))));
    QVERIFY(bar->getSystemButton());
}

void RibbonWindowTest::theSystemButtonOpensTheBackstage()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    Qtitan::RibbonSystemButton* button = window.ribbonBar()->getSystemButton();
    QCOMPARE(button->backstage(), window.GetBackstage());
    QCOMPARE(button->text(), QStringLiteral("File"));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_VERIFY(window.GetBackstage()->isVisible());
    QTest::keyClick(window.GetBackstage(), Qt::Key_Escape);
    QTRY_VERIFY(!window.GetBackstage()->isVisible());
}

void RibbonWindowTest::theBackstageDisablesWhatLiesBehindIt()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QAction* minimise = FindAction(*window.ribbonBar(), QStringLiteral("Minimize the Ribbon"));
    window.GetBackstage()->setVisible(true);
    QVERIFY(!minimise->isEnabled());
    QVERIFY(!window.ribbonBar()->quickAccessBar()->isEnabled());
    window.GetBackstage()->setVisible(false);
    QVERIFY(minimise->isEnabled());
    QVERIFY(window.ribbonBar()->quickAccessBar()->isEnabled());
}

void RibbonWindowTest::aCommandClosesTheBackstage()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    host.Start();
    RibbonWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    host.Activate(QStringLiteral("Model"));
    window.GetBackstage()->setVisible(true);
    QVERIFY(static_cast<UiCommand*>(host.Command(QStringLiteral("File.Open")))->Execute());
    QVERIFY(!window.GetBackstage()->isVisible());
    host.Activate(QString());
}

void RibbonWindowTest::theMinimiseButtonTogglesTheRibbon()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    QAction* minimise = FindAction(*window.ribbonBar(), QStringLiteral("Minimize the Ribbon"));
    minimise->trigger();
    QVERIFY(window.ribbonBar()->isMinimized());
    minimise->trigger();
    QVERIFY(!window.ribbonBar()->isMinimized());
}

void RibbonWindowTest::theMinimiseButtonFollowsTheRibbon()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    QAction* minimise = FindAction(*window.ribbonBar(), QStringLiteral("Minimize the Ribbon"));
    window.ribbonBar()->setMinimized(true);
    QCOMPARE(minimise->text(), QStringLiteral("Restore the Ribbon"));
    QCOMPARE(minimise->icon().cacheKey(),
             IconsController::Load(QStringLiteral("ribbonMaximize")).cacheKey());
    QVERIFY(!minimise->isChecked());
    window.ribbonBar()->setMinimized(false);
    QCOMPARE(minimise->text(), QStringLiteral("Minimize the Ribbon"));
    QCOMPARE(minimise->icon().cacheKey(),
             IconsController::Load(QStringLiteral("ribbonMinimize")).cacheKey());
}

void RibbonWindowTest::aThemeIsAppliedAtOnce_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("style");
    for (int theme = 0; theme <= 10; ++theme) {
        QTest::addRow("theme %d", theme)
            << theme << int(theme >= 4 ? Qt::ToolButtonTextOnly : Qt::ToolButtonFollowStyle);
    }
}

void RibbonWindowTest::aThemeIsAppliedAtOnce()
{
    QFETCH(int, theme);
    QFETCH(int, style);
    RibbonStyleScope scope;
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    QCOMPARE(window.GetStyle(), &scope.Style());
    RibbonWindowSettings::OfficeTheme().SetData(static_cast<OfficeStyle::Theme>(theme));
    QCOMPARE(int(window.GetTheme()), theme);
    QCOMPARE(int(window.ribbonBar()->getSystemButton()->toolButtonStyle()), style);
}

void RibbonWindowTest::theThemeMinusOneLeavesAnOpenWindowAlone()
{
    RibbonStyleScope scope;
    FakeHost host;
    RibbonWindow window;
    RibbonWindowSettings::OfficeTheme().SetData(OfficeStyle::Office2013Dark);
    RibbonWindowSettings::OfficeTheme().SetData(static_cast<OfficeStyle::Theme>(-1));
    QCOMPARE(int(window.GetTheme()), int(OfficeStyle::Office2013Dark));
}

void RibbonWindowTest::aWindowThatIsMadeWhileTheThemeIsMinusOneChangesNothing()
{
    RibbonStyleScope scope;
    scope.Style().setTheme(OfficeStyle::Office2013Dark);
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindowSettings::OfficeTheme().SetData(static_cast<OfficeStyle::Theme>(-1));
    RibbonWindow window;
    QCOMPARE(int(window.GetTheme()), int(OfficeStyle::Office2013Dark));
    // The number is handed on all the same, and it is none of those whose button shows a word.
    QCOMPARE(window.ribbonBar()->getSystemButton()->toolButtonStyle(), Qt::ToolButtonFollowStyle);
}

void RibbonWindowTest::withoutARibbonStyleNoThemeIsApplied()
{
    FakeHost host;
    RibbonWindow window;
    QVERIFY(!window.GetStyle());
    QCOMPARE(int(window.GetTheme()), -1);
    window.SetTheme(OfficeStyle::Office2013Dark);
    window.SetAccentColor(OfficeStyle::AccentColorRed);
    RibbonWindowSettings::OfficeTheme().SetData(OfficeStyle::Office2010Blue);
    QCOMPARE(int(RibbonWindowSettings::OfficeTheme().GetData()), int(OfficeStyle::Office2010Blue));
}

void RibbonWindowTest::anAccentIsNamedDefaultOrPacked_data()
{
    QTest::addColumn<int>("accent");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("the first named") << 0 << QColor(0x1B, 0xA1, 0xE2);
    QTest::newRow("the last named") << 9 << QColor(0x00, 0xAB, 0xA9);
    QTest::newRow("ten is a packed colour") << 10 << QColor(0, 0, 10);
    QTest::newRow("the default") << -1 << QColor(41, 152, 255);
    QTest::newRow("any packed colour") << int(qRgb(200, 30, 90)) << QColor(200, 30, 90);
}

void RibbonWindowTest::anAccentIsNamedDefaultOrPacked()
{
    QFETCH(int, accent);
    QFETCH(QColor, colour);
    RibbonStyleScope scope;
    FakeHost host;
    RibbonWindow window;
    RibbonWindowSettings::AccentColor().SetData(OfficeStyle::AccentColorPink);
    RibbonWindowSettings::AccentColor().SetData(static_cast<OfficeStyle::AccentColor>(accent));
    QCOMPARE(scope.Style().accentColor(), colour);
}

void RibbonWindowTest::groupTitlesFollowTheirSetting()
{
    FakeHost host;
    RibbonWindow window;
    QVERIFY(!window.ribbonBar()->isTitleGroupsVisible());
    RibbonWindowSettings::GroupTitleVisible().SetData(true);
    QVERIFY(window.ribbonBar()->isTitleGroupsVisible());
}

void RibbonWindowTest::theContextMenuListsPages()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    host.Start();
    RibbonWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    UiLayout* layout = host.Activate(QStringLiteral("Model"));
    auto* ribbon = dynamic_cast<UiStateRibbon*>(layout->GetState(UiStateRibbon::GetSuiteName()));
    UiStateRibbonPage* page = ribbon->GetPage(0);
    page->SetTitle(QStringLiteral("Cut & Paste"));
    page->SetPersistence(UiStateItem::ipOrdinary);
    auto* fixed = new UiStateRibbonPage(QStringLiteral("page.fixed"));
    fixed->SetTitle(QStringLiteral("Fixed"));
    fixed->SetPersistence(UiStateItem::ipBuiltIn);
    ribbon->InsertPage(fixed, -1);
    auto* hidden = new UiStateRibbonPage(QStringLiteral("page.hidden"));
    hidden->SetTitle(QStringLiteral("Hidden"));
    hidden->SetVisible(false);
    ribbon->InsertPage(hidden, -1);

    bool seen = false;
    OnNextMenu([&](QMenu& menu) {
        seen = true;
        const QList<QAction*> actions = menu.actions();
        QCOMPARE(actions.at(0), static_cast<QAction*>(host.Command(QStringLiteral("Edit.CustomizeUI"))));
        QCOMPARE(actions.at(1)->text(), QStringLiteral("Minimize the Ribbon"));
        QVERIFY(actions.at(2)->isSeparator());
        QCOMPARE(actions.at(2)->text(), QStringLiteral("Pages"));
        QCOMPARE(actions.at(3)->text(), QStringLiteral("Cut && Paste"));
        QVERIFY(actions.at(3)->isCheckable() && actions.at(3)->isChecked() && actions.at(3)->isEnabled());
        QCOMPARE(actions.at(4)->text(), QStringLiteral("Fixed"));
        QVERIFY(actions.at(4)->isCheckable() && !actions.at(4)->isEnabled());
        QCOMPARE(actions.at(5)->text(), QStringLiteral("Hidden"));
        QVERIFY(!actions.at(5)->isChecked());
        actions.at(3)->trigger();
    });
    Q_EMIT window.ribbonBar()->customContextMenuRequested(QPoint(5, 5));
    QVERIFY(seen);
    QVERIFY(!page->IsVisible());
    host.Activate(QString());
}

void RibbonWindowTest::theContextMenuOpensWhereTheWindowPutsIt()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.setContentsMargins(30, 40, 0, 0);
    QTRY_VERIFY(window.ribbonBar()->pos() != QPoint(0, 0));
    QPoint place;
    OnNextMenu([&](QMenu& menu) { place = menu.pos(); });
    Q_EMIT window.ribbonBar()->customContextMenuRequested(QPoint(5, 7));
    // The position comes from the bar, and is taken for one of the window: that is how it was.
    QCOMPARE(place, window.mapToGlobal(QPoint(5, 7)));
}

void RibbonWindowTest::aDerivedWindowIsNotAskedDuringConstruction()
{
    class Derived : public RibbonWindow
    {
    public:
        QString fileMenuText() override { return QStringLiteral("Start"); }
        QWidget* GetCentralViewWidget() const override { return nullptr; }
    };
    FakeHost host(CatalogueWith(WindowCommands()));
    const Derived window;
    QCOMPARE(window.ribbonBar()->getSystemButton()->text(), QStringLiteral("File"));
    QVERIFY(!window.GetCentralViewWidget());
}

void RibbonWindowTest::theContextMenuWorksWithoutButtons()
{
    FakeHost host;
    RibbonWindow window;
    bool seen = false;
    OnNextMenu([&](QMenu& menu) {
        seen = true;
        QCOMPARE(menu.actions().size(), 1);
    });
    Q_EMIT window.ribbonBar()->customContextMenuRequested(QPoint(5, 5));
    QVERIFY(seen);
}

void RibbonWindowTest::aDeadWindowIsNotCalledBySettings()
{
    RibbonStyleScope scope;
    FakeHost host;
    {
        RibbonWindow window;
    }
    RibbonWindowSettings::OfficeTheme().SetData(OfficeStyle::Office2013White);
    RibbonWindowSettings::AccentColor().SetData(OfficeStyle::AccentColorRed);
    RibbonWindowSettings::GroupTitleVisible().SetData(true);
    QCOMPARE(int(scope.Style().getTheme()), int(OfficeStyle::Office2007Blue));
}

void RibbonWindowTest::theDeadWindowStaysTheInstanceButNotTheLiveOne()
{
    FakeHost host;
    const RibbonWindow* dead = nullptr;
    {
        RibbonWindow window;
        dead = &window;
        QCOMPARE(LiveRibbonWindow(), &window);
    }
    QCOMPARE(static_cast<const RibbonWindow*>(RibbonWindow::GetInstance()), dead);
    QVERIFY(!LiveRibbonWindow());
}

void RibbonWindowTest::theBlockerIsCalledWhenThereIsOne()
{
    FakeHost host;
    RibbonWindow window;
    window.DoBlockFunc(true);
    QList<bool> calls;
    window.SetCommandBlockerFunc([&](bool block) { calls.append(block); });
    window.DoBlockFunc(true);
    window.DoBlockFunc(false);
    QCOMPARE(calls, (QList<bool>{true, false}));
}

void RibbonWindowTest::theCustomizeButtonCanBeDisabled()
{
    FakeHost host(CatalogueWith(WindowCommands()));
    RibbonWindow window;
    QAction* command = host.Command(QStringLiteral("Edit.CustomizeUI"));
    window.DisableCustomizeButton(true);
    QVERIFY(!command->isEnabled());
    window.DisableCustomizeButton(false);
    QVERIFY(command->isEnabled());
}

void RibbonWindowTest::theWorkAreaMayDieFirst()
{
    FakeHost host;
    RibbonWindow window;
    delete window.GetWorkArea();
    QVERIFY(!window.GetWorkArea());
    QVERIFY(!window.GetCentralViewWidget());
}

void RibbonWindowTest::closingIsAccepted()
{
    FakeHost host;
    RibbonWindow window;
    window.show();
    QVERIFY(window.close());
}

OVK_TEST_CLASS(RibbonWindowTest)

#include "ribbon_window_test.moc"
