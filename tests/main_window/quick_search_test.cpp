#include "tests/main_window/window_host.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/main_window/quick_search_p.h>
#include <ovk/main_window/ribbon_window.h>
#include <ovk/ui_state/ui_layout.h>
#include <ovk/ui_state/ui_state_quick_access_bar.h>

#include <qtitan/ribbon.h>

#include <QScreen>
#include <QAbstractItemModelTester>
#include <QAbstractItemView>

using namespace ovk;
using namespace ovk_test;

namespace {

struct Window
{
    Window()
        : host(CatalogueWith({QStringLiteral("View.QuickSearch")}))
    {
        host.Start();
        window = std::make_unique<RibbonWindow>();
        window->show();
        host.Activate(QStringLiteral("Model"));
        host.Controller().UpdateUi();
        QApplication::setActiveWindow(window.get());
    }
    ~Window()
    {
        host.Activate(QString());
        window.reset();
    }

    QuickSearchWidget* Edit() const
    {
        const QList<QuickSearchWidget*> edits =
            window->ribbonBar()->quickAccessBar()->findChildren<QuickSearchWidget*>();
        return edits.size() == 1 ? edits.first() : nullptr;
    }

    /// Types into the edit as a user does.
    void Type(const QString& text) const
    {
        Edit()->setFocus();
        QTest::keyClicks(Edit(), text);
    }

    FakeHost host;
    std::unique_ptr<RibbonWindow> window;
};

} // namespace

class QuickSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theModelKeepsTheContract();
    void theModelShowsTitleAndShortcut();
    void aDisabledCommandHasADisabledRow();
    void thereIsNoEditWithoutTheCommand();
    void theEditIsSetUp();
    void returnRunsTheFirstMatch();
    void aSecondReturnRunsItAgain();
    void editingForgetsTheLastRun();
    void returnSkipsDisabledRows();
    void returnWithoutAMatchRunsNothing();
    void keysAreFoundToo();
    void escapeLeavesTheEditAndKeepsTheText();
    void theShortcutSelectsTheText();
    void theEditSurvivesARebuildOfTheBar();
    void aCommandThatSwitchesTheLayoutMayRunFromTheEdit();
    void theListIsFilledAnewAfterFocusWasLost();
    void theListIsWideEnoughForTitlesAndKeysAndStartsAtTheEdit();
};

void QuickSearchTest::theListIsWideEnoughForTitlesAndKeysAndStartsAtTheEdit()
{
    Window window;
    const QuickSearchWidget* edit = window.Edit();
    window.Type(QStringLiteral("e"));
    const QWidget* list = edit->completer()->popup();
    QTRY_VERIFY(list->isVisible());
    QVERIFY(list->width() > edit->width());
    const QPoint origin = edit->mapToGlobal(QPoint(0, 0));
    QCOMPARE(list->x(), origin.x());
    window.window->setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    window.Type(QStringLiteral("x"));
    window.Type(QStringLiteral("\b"));
    QTRY_VERIFY(list->isVisible());
    const QRect room = edit->screen()->availableGeometry();
    QVERIFY(list->x() >= room.left() && list->x() + list->width() <= room.right() + 1);
}

void QuickSearchTest::theModelKeepsTheContract()
{
    FakeHost host;
    host.Start();
    QSCommandModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.SetLayout(host.Layout(QStringLiteral("Model")));
    QVERIFY(model.rowCount() > 0);
    QCOMPARE(model.columnCount(), 1);
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
    model.SetLayout(nullptr);
    QCOMPARE(model.rowCount(), 0);
}

void QuickSearchTest::theModelShowsTitleAndShortcut()
{
    FakeHost host;
    FakeCommand* command = host.Command(QStringLiteral("File.Save"));
    command->SetStrings(QStringLiteral("Save & keep"), QStringLiteral("tip"), QStringLiteral("status"),
                        false, false, false);
    QSCommandModel model;
    model.append(command);
    const QModelIndex index = model.index(0, 0);
    QCOMPARE(index.data().toString(), QStringLiteral("Save & keep"));
    command->setShortcuts({QKeySequence(QStringLiteral("Ctrl+S")), QKeySequence(QStringLiteral("F7"))});
    QCOMPARE(index.data().toString(), QStringLiteral("Save & keep (Ctrl+S)"));
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), QStringLiteral("tip"));
    QCOMPARE(index.data(Qt::StatusTipRole).toString(), QStringLiteral("status"));
    QCOMPARE(index.data(Qt::UserRole).value<void*>(), static_cast<void*>(static_cast<UiCommand*>(command)));
}

void QuickSearchTest::aDisabledCommandHasADisabledRow()
{
    FakeHost host;
    FakeCommand* command = host.Command(QStringLiteral("File.Save"));
    QSCommandModel model;
    model.append(command);
    command->setEnabled(true);
    QVERIFY(model.flags(model.index(0, 0)) & Qt::ItemIsEnabled);
    command->setEnabled(false);
    QVERIFY(!(model.flags(model.index(0, 0)) & Qt::ItemIsEnabled));
}

void QuickSearchTest::thereIsNoEditWithoutTheCommand()
{
    FakeHost host;
    host.Start();
    RibbonWindow window;
    host.Activate(QStringLiteral("Model"));
    QVERIFY(window.findChildren<QuickSearchWidget*>().isEmpty());
    host.Activate(QString());
}

void QuickSearchTest::theEditIsSetUp()
{
    Window w;
    QuickSearchWidget* edit = w.Edit();
    QVERIFY(edit);
    QCOMPARE(edit->accessibleName(), QStringLiteral("QuickSearchWidget"));
    QCOMPARE(edit->placeholderText(), QStringLiteral("Quick search (Shift+Q)"));
    QCOMPARE(edit->width(), 200);
    QCOMPARE(edit->focusPolicy(), Qt::ClickFocus);
    QVERIFY(edit->isClearButtonEnabled());
    QCOMPARE(edit->completer()->filterMode(), Qt::MatchContains);
    QCOMPARE(edit->completer()->maxVisibleItems(), 20);
}

void QuickSearchTest::returnRunsTheFirstMatch()
{
    Window w;
    w.host.Command(QStringLiteral("File.Save"))
        ->SetStrings(QStringLiteral("Store it"), QString(), QString(), false, false, false);
    w.Type(QStringLiteral("tore"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(w.host.Command(QStringLiteral("File.Save"))->executed, 1);
    QCOMPARE(w.Edit()->text(), QStringLiteral("Store it"));
    QVERIFY(!w.Edit()->hasFocus());
}

void QuickSearchTest::aSecondReturnRunsItAgain()
{
    Window w;
    w.host.Command(QStringLiteral("File.Save"))
        ->SetStrings(QStringLiteral("Store it"), QString(), QString(), false, false, false);
    w.Type(QStringLiteral("tore"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(w.host.Command(QStringLiteral("File.Save"))->executed, 2);
}

void QuickSearchTest::editingForgetsTheLastRun()
{
    Window w;
    w.host.Command(QStringLiteral("File.Save"))
        ->SetStrings(QStringLiteral("Store it"), QString(), QString(), false, false, false);
    w.Type(QStringLiteral("tore"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    w.Edit()->clear();
    w.Type(QStringLiteral("no such thing"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(w.host.Command(QStringLiteral("File.Save"))->executed, 1);
}

void QuickSearchTest::returnSkipsDisabledRows()
{
    Window w;
    FakeCommand* first = w.host.Command(QStringLiteral("File.Open"));
    FakeCommand* second = w.host.Command(QStringLiteral("File.Save"));
    first->SetStrings(QStringLiteral("Match a"), QString(), QString(), false, false, false);
    second->SetStrings(QStringLiteral("Match b"), QString(), QString(), false, false, false);
    first->enabled = false;
    w.host.Controller().UpdateUi();
    w.Type(QStringLiteral("match"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(first->executed, 0);
    QCOMPARE(second->executed, 1);
}

void QuickSearchTest::returnWithoutAMatchRunsNothing()
{
    Window w;
    w.Type(QStringLiteral("no such thing"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    for (const char* id : {"File.Open", "File.Save", "Edit.Copy", "Edit.Paste", "View.Zoom"})
        QCOMPARE(w.host.Command(QString::fromLatin1(id))->executed, 0);
}

void QuickSearchTest::keysAreFoundToo()
{
    Window w;
    FakeCommand* command = w.host.Command(QStringLiteral("File.Save"));
    command->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+F9")));
    w.Type(QStringLiteral("shift+f9"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(command->executed, 1);
}

void QuickSearchTest::escapeLeavesTheEditAndKeepsTheText()
{
    Window w;
    w.Type(QStringLiteral("abc"));
    QVERIFY(w.Edit()->hasFocus());
    w.Edit()->completer()->popup()->hide();
    QTest::keyClick(w.Edit(), Qt::Key_Escape);
    QVERIFY(!w.Edit()->hasFocus());
    QCOMPARE(w.Edit()->text(), QStringLiteral("abc"));
}

void QuickSearchTest::theShortcutSelectsTheText()
{
    Window w;
    w.Edit()->setText(QStringLiteral("abc"));
    QAction* show = nullptr;
    for (QAction* action : w.window->actions()) {
        if (action->shortcut() == QKeySequence(Qt::SHIFT + Qt::Key_Q))
            show = action;
    }
    QVERIFY(show);
    for (QAction* action : w.window->ribbonBar()->quickAccessBar()->actions()) {
        if (action->text() == QStringLiteral("Quick search"))
            action->setVisible(false);
    }
    show->trigger();
    QVERIFY(w.Edit()->hasFocus());
    QCOMPARE(w.Edit()->selectedText(), QStringLiteral("abc"));
    QVERIFY(w.Edit()->isVisible());
}

void QuickSearchTest::theEditSurvivesARebuildOfTheBar()
{
    Window w;
    auto* bar = dynamic_cast<UiStateQAB*>(
        w.host.Layout(QStringLiteral("Model"))->GetState(UiStateQAB::GetSuiteName()));
    bar->SpotsChanged();
    QVERIFY(w.Edit());
    bar->SpotsChanged();
    QVERIFY(w.Edit());
    int shortcuts = 0;
    for (const QAction* action : w.window->actions())
        shortcuts += action->shortcut() == QKeySequence(Qt::SHIFT + Qt::Key_Q);
    QCOMPARE(shortcuts, 1);
}

void QuickSearchTest::aCommandThatSwitchesTheLayoutMayRunFromTheEdit()
{
    Window w;
    FakeCommand* command = w.host.Command(QStringLiteral("File.Save"));
    command->SetStrings(QStringLiteral("Switch"), QString(), QString(), false, false, false);
    command->on_execute = [&w] { w.host.Activate(QStringLiteral("Slice")); };
    w.Type(QStringLiteral("switch"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(command->executed, 1);
    QCOMPARE(w.host.Controller().GetActiveLayout(), w.host.Layout(QStringLiteral("Slice")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(w.Edit());
    int shortcuts = 0;
    for (const QAction* action : w.window->actions())
        shortcuts += action->shortcut() == QKeySequence(Qt::SHIFT + Qt::Key_Q);
    QCOMPARE(shortcuts, 1);
}

void QuickSearchTest::theListIsFilledAnewAfterFocusWasLost()
{
    Window w;
    FakeCommand* command = w.host.Command(QStringLiteral("File.Save"));
    w.Type(QStringLiteral("renamed"));
    QCOMPARE(w.Edit()->completer()->completionModel()->rowCount(), 0);
    w.Edit()->clearFocus();
    w.Edit()->clear();
    command->SetStrings(QStringLiteral("Renamed"), QString(), QString(), false, false, false);
    w.Type(QStringLiteral("renamed"));
    QTest::keyClick(w.Edit(), Qt::Key_Return);
    QCOMPARE(command->executed, 1);
}

OVK_TEST_CLASS(QuickSearchTest)

#include "quick_search_test.moc"
