#include "live_host.h"
#include "tests/support/test_main.h"

#include <ovk/ui_state/storable_ui.h>
#include <ovk/ui_state/ui_state_dialogs.h>
#include <ovk/ui_state/ui_state_shortcuts.h>

#include <QDialog>
#include <QLineEdit>
#include <QScreen>

using namespace ovk;
using namespace ovk_test;

/// Shortcuts and dialogs with a main window on screen.
class WindowSuitesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<LiveHost>();
        mp_layout = mp_host->Activate("Model");
        mp_host->window->show();
        QApplication::setActiveWindow(mp_host->window.get());
        QVERIFY(QTest::qWaitForWindowExposed(mp_host->window.get()));
    }
    void cleanup() { mp_host.reset(); }

    void keyRunsItsCommand()
    {
        FakeCommand* open = mp_host->Command("File.Open");
        QVERIFY(mp_host->window->actions().contains(open));
        QTest::keyClick(mp_host->window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(open->executed, 1);
    }

    void changedKeyRunsItsCommandAndTheOldOneNothing()
    {
        FakeCommand* open = mp_host->Command("File.Open");
        Shortcuts().Find(open)->SetShortcut(QKeySequence("F7"));
        QTest::keyClick(mp_host->window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(open->executed, 0);
        QTest::keyClick(mp_host->window.get(), Qt::Key_F7);
        QCOMPARE(open->executed, 1);
    }

    void keyOfALayoutThatLeftRunsNothing()
    {
        FakeCommand* open = mp_host->Command("File.Open");
        mp_host->Activate("Slice");
        QVERIFY(!mp_host->window->actions().contains(open));
        QTest::keyClick(mp_host->window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(open->executed, 0);
    }

    void suspendedSuiteRunsNothingAndComesBack()
    {
        // As while the customise dialog is open.
        FakeCommand* open = mp_host->Command("File.Open");
        Shortcuts().Deactivate(UiProfileItem::amOrdinary);
        QTest::keyClick(mp_host->window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(open->executed, 0);
        Shortcuts().Activate(UiProfileItem::amOrdinary);
        QTest::keyClick(mp_host->window.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(open->executed, 1);
    }

    void editingKeyGoesToTheFieldWhileDisabled()
    {
        FakeCommand* copy = mp_host->Command("Edit.Copy");
        Shortcuts().CreateBinding("Edit.Copy", QKeySequence(QKeySequence::Copy));
        QTest::keyClick(mp_host->window.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(copy->executed, 1);
        Shortcuts().Disable();
        QTest::keyClick(mp_host->window.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(copy->executed, 1);
        Shortcuts().Enable();
        QTest::keyClick(mp_host->window.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(copy->executed, 2);
    }

    void bindingsOutliveTheWindow()
    {
        mp_host->window.reset();
        Shortcuts().CreateBinding("Edit.Copy", QKeySequence("F7"));
        mp_host->Activate("Slice");
        QVERIFY(mp_host->Command("Edit.Copy")->shortcut().isEmpty());
    }

    void newDialogComesUpAtTheCornerOfTheView()
    {
        QDialog dialog;
        dialog.setGeometry(300, 300, 200, 100);
        const StorableUI storable(&dialog, QStringLiteral("d"));
        dialog.show();
        QCOMPARE(dialog.pos(), Corner());
        dialog.hide();
    }

    void dialogThatLeftTheScreensComesUpAtTheCorner()
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        SuiteOf<UiStateDialogs>(*mp_layout)
            .GetDialogItem("d")
            .SetGeometry(QRect(screen.right() - 10, 10, 200, 100));
        QDialog dialog;
        dialog.setGeometry(300, 300, 200, 100);
        StorableUI::RestoreGeometry(&dialog, "d");
        QCOMPARE(dialog.pos(), Corner());
        QCOMPARE(dialog.size(), QSize(200, 100));
    }

    void dialogThatIsTooLargeForTheViewStaysWhereItIs_data()
    {
        QTest::addColumn<int>("wider");
        QTest::addColumn<int>("higher");
        QTest::addColumn<bool>("moves");
        QTest::newRow("smaller") << -1 << -1 << true;
        QTest::newRow("as wide") << 0 << -1 << false;
        QTest::newRow("as high") << -1 << 0 << false;
        QTest::newRow("wider") << 1 << -1 << false;
        QTest::newRow("higher") << -1 << 1 << false;
    }
    void dialogThatIsTooLargeForTheViewStaysWhereItIs()
    {
        QFETCH(int, wider);
        QFETCH(int, higher);
        QFETCH(bool, moves);
        const QSize view = mp_host->window->GetCentralViewWidget()->size();
        QDialog dialog;
        dialog.setGeometry(3, 3, view.width() + wider, view.height() + higher);
        const QPoint before = dialog.pos();
        StorableUI::RestoreGeometry(&dialog, "d");
        QCOMPARE(dialog.pos(), moves ? Corner() : before);
    }

private:
    UiStateShortcuts& Shortcuts() const { return SuiteOf<UiStateShortcuts>(*mp_layout); }
    QPoint Corner() const
    {
        return mp_host->window->GetCentralViewWidget()->mapToGlobal(QPoint(0, 0));
    }

    std::unique_ptr<LiveHost> mp_host;
    UiLayout* mp_layout = nullptr;
};
OVK_TEST_CLASS(WindowSuitesTest)

#include "window_suites_test.moc"
