#include "tests/customize/dialog_host.h"
#include "tests/support/test_main.h"

#include <ovk/customize/key_sequence_edits_p.h>
#include <ovk/ui_state/ui_shortcut_binding.h>
#include <ovk/ui_state/ui_spot_command.h>
#include <ovk/ui_state/ui_state_composite.h>
#include <ovk/ui_state/ui_state_menu.h>
#include <ovk/ui_state/ui_state_ribbon_group.h>
#include <ovk/ui_state/ui_state_ribbon_page.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>

using namespace ovk;
using namespace ovk_test;

namespace {

/// A dialog that is worked by keys alone.
struct KeyDialog : Dialog
{
    KeyDialog() : Dialog({QStringLiteral("Edit.CustomizeUI.Style")})
    {
        // What the two windows have under way about who is active comes to its end first.
        QCoreApplication::processEvents();
        QApplication::setActiveWindow(&Get());
        if (!QTest::qWaitForWindowActive(&Get()))
            qFatal("The dialog does not become active");
        for (int page = 0; page < Ribbon()->GetChildCount(); ++page) {
            Ribbon()->GetPage(page)->SetPersistence(UiStateItem::ipOrdinary);
            for (int i = 0; i < Ribbon()->GetPage(page)->GetChildCount(); ++i)
                dynamic_cast<UiStateItem*>(Ribbon()->GetPage(page)->GetItem(i))
                    ->SetPersistence(UiStateItem::ipOrdinary);
        }
    }

    template <class Widget> Widget& Focus(const char* name)
    {
        auto* widget = Find<Widget>(name);
        widget->setFocus();
        return *widget;
    }
    /// A key to whatever has the focus.
    static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    /// The spots of a group, by name.
    QStringList Spots(int page, int group) const
    {
        QStringList names;
        auto* node = dynamic_cast<UiStateRibbonGroup*>(Ribbon()->GetPage(page)->GetItem(group));
        for (int i = 0; i < node->GetCount(); ++i)
            names.append(node->GetItem(i)->GetName());
        return names;
    }
    QStringList Pages() const
    {
        QStringList names;
        for (int i = 0; i < Ribbon()->GetChildCount(); ++i)
            names.append(Ribbon()->GetPage(i)->GetTitle());
        return names;
    }
    /// Whatever keys are held.
    static void Select(QAbstractItemView& view, const QModelIndex& index)
    {
        view.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                          QItemSelectionModel::Rows);
    }
    void SelectInRibbon(const QList<int>& path)
    {
        QModelIndex index;
        for (int row : path)
            index = Model()->index(row, 0, index);
        Select(Focus<QTreeView>("mp_view_ribbon"), index);
    }
    int CommandRow(const QString& title) const
    {
        const QAbstractItemModel& model = *Find<QTableView>("mp_view_commands")->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, 0).data().toString() == title)
                return row;
        }
        return -1;
    }
    void SelectCommand(const QString& id)
    {
        auto& view = Focus<QTableView>("mp_view_commands");
        Select(view, view.model()->index(CommandRow(host.Command(id)->GetTitle()), 0));
    }
};

} // namespace

/// Everything that the dialog does is done by the keyboard alone.
class DialogKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QDir(DataHome()).removeRecursively(); }

    void tabReachesEveryControl();
    void tabLeavesEveryList();
    void arrowsSwitchTabs();
    void spaceSwitchesPages();
    void aPageIsAddedAndNamed();
    void f2RenamesAGroup();
    void f2OpensTheStyleOfASpot();
    void deleteTakesWhatIsSelected();
    void deleteLeavesWhatIsFixed();
    void spaceHidesAndShows();
    void aCheckOnTheQuickAccessBarIsSeenAtOnce();
    void altArrowsMoveAPage();
    void altArrowsMoveSpotsAsABlock();
    void altArrowsMoveCompositesAndTheirItems();
    void aLiftedCommandIsDroppedOnAGroup();
    void aLiftedSpotGoesToAnotherGroup();
    void aLiftedCompositeGoesOnTheQuickAccessBar();
    void aLiftedGroupIsNotDroppedOnItself();
    void commandsAreAddedByTheButton();
    void aShortcutIsAssignedAndDeleted();
    void theKeyOfAMenuIsAssigned();
    void aCompositeIsRenamedAndDeleted();
    void escapeEndsTheEditFirst();
};

void DialogKeysTest::tabReachesEveryControl()
{
    KeyDialog dialog;
    dialog.Model()->AddPage(-1); // so that Discard can be reached
    dialog.Focus<QLineEdit>("mp_ed_search_basic");
    QSet<QWidget*> reached;
    for (int i = 0; i < 60; ++i) {
        reached.insert(QApplication::focusWidget());
        KeyDialog::Press(Qt::Key_Tab);
    }
    for (const char* name :
         {"mp_combo_layout", "mp_ed_search_basic", "mp_view_commands", "mp_ed_search_composite",
          "mp_view_composite", "mp_view_ribbon", "mp_cb_group_title",
          "mp_ribbon_button_page_insert_before", "mp_ribbon_button_page_delete"})
        QVERIFY2(reached.contains(dialog.Find<QWidget>(name)), name);
    // Of buttons that exclude each other one is reached, and the others by arrows.
    QVERIFY(reached.contains(dialog.Find<QWidget>("mp_btn_sites")) ||
            reached.contains(dialog.Find<QWidget>("mp_btn_toolpages")) ||
            reached.contains(dialog.Find<QWidget>("mp_btn_style")));
    QVERIFY(reached.contains(dialog.Find<QTabWidget>("mp_tabs_sites")->tabBar()));
    for (QDialogButtonBox::StandardButton which :
         {QDialogButtonBox::Ok, QDialogButtonBox::Discard, QDialogButtonBox::RestoreDefaults})
        QVERIFY(reached.contains(dialog.Button(which)));
}

void DialogKeysTest::tabLeavesEveryList()
{
    KeyDialog dialog;
    for (const char* name : {"mp_view_commands", "mp_view_composite", "mp_view_ribbon"}) {
        auto& view = dialog.Focus<QAbstractItemView>(name);
        KeyDialog::Select(view, view.model()->index(0, 0));
        KeyDialog::Press(Qt::Key_Tab);
        QVERIFY2(QApplication::focusWidget() != &view, name);
    }
}

void DialogKeysTest::arrowsSwitchTabs()
{
    KeyDialog dialog;
    auto* tabs = dialog.Find<QTabWidget>("mp_tabs_sites");
    tabs->tabBar()->setFocus();
    for (int tab : {1, 2, 3}) {
        KeyDialog::Press(Qt::Key_Right);
        QCOMPARE(tabs->currentIndex(), tab);
    }
}

void DialogKeysTest::spaceSwitchesPages()
{
    KeyDialog dialog;
    auto* stack = dialog.Get().findChild<QStackedWidget*>();
    dialog.Focus<QToolButton>("mp_btn_toolpages");
    KeyDialog::Press(Qt::Key_Space);
    QCOMPARE(stack->currentIndex(), 1);
    KeyDialog::Press(Qt::Key_Down);
    QCOMPARE(QApplication::focusWidget(), dialog.Find<QWidget>("mp_btn_style"));
    QCOMPARE(stack->currentIndex(), 2);
    KeyDialog::Press(Qt::Key_Up);
    KeyDialog::Press(Qt::Key_Up);
    QCOMPARE(stack->currentIndex(), 0);
}

void DialogKeysTest::aPageIsAddedAndNamed()
{
    KeyDialog dialog;
    dialog.Find<QTreeView>("mp_view_ribbon")->clearSelection();
    dialog.Focus<QToolButton>("mp_ribbon_button_page_add");
    KeyDialog::Press(Qt::Key_Space);
    KeyDialog::Type(QStringLiteral("Mine"));
    KeyDialog::Press(Qt::Key_Return);
    QTRY_COMPARE(dialog.Pages().last(), QStringLiteral("Mine"));
    QVERIFY(dialog.Get().isVisible());
}

void DialogKeysTest::f2RenamesAGroup()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 1});
    KeyDialog::Press(Qt::Key_F2);
    KeyDialog::Type(QStringLiteral("Renamed"));
    KeyDialog::Press(Qt::Key_Return);
    QTRY_COMPARE(
        dynamic_cast<UiStateRibbonGroup*>(dialog.Ribbon()->GetPage(0)->GetItem(1))->GetTitle(),
        QStringLiteral("Renamed"));
}

void DialogKeysTest::f2OpensTheStyleOfASpot()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 0, 0});
    KeyDialog::Press(Qt::Key_F2);
    auto* combo = dialog.Find<QTreeView>("mp_view_ribbon")->viewport()->findChild<QComboBox*>();
    QVERIFY(combo);
    // The list drops down at once; it takes the keys.
    QTRY_VERIFY(combo->view()->isVisible());
    QTest::keyClick(combo->view(), Qt::Key_Home);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    const auto* spot = dynamic_cast<UiSpotCommand*>(
        dynamic_cast<UiStateRibbonGroup*>(dialog.Ribbon()->GetPage(0)->GetItem(0))->GetSpot(0));
    // What was chosen is seen at once, and the edit is over.
    QCOMPARE(spot->GetStyle(), Qt::ToolButtonIconOnly);
    QTRY_VERIFY(!dialog.Find<QTreeView>("mp_view_ribbon")->viewport()->findChild<QComboBox*>());
}

void DialogKeysTest::deleteTakesWhatIsSelected()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 0, 0});
    KeyDialog::Press(Qt::Key_Down, Qt::ShiftModifier);
    KeyDialog::Press(Qt::Key_Delete);
    QCOMPARE(dialog.Spots(0, 0), QStringList{QStringLiteral("File.Save")});
    dialog.SelectInRibbon({0, 1});
    KeyDialog::Press(Qt::Key_Delete);
    QCOMPARE(dialog.Ribbon()->GetPage(0)->GetChildCount(), 1);
}

void DialogKeysTest::deleteLeavesWhatIsFixed()
{
    KeyDialog dialog;
    dialog.Ribbon()->GetPage(0)->SetPersistence(UiStateItem::ipBuiltIn);
    dialog.SelectInRibbon({0});
    KeyDialog::Press(Qt::Key_Delete);
    QCOMPARE(dialog.Ribbon()->GetChildCount(), 1);
}

void DialogKeysTest::spaceHidesAndShows()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 1});
    KeyDialog::Press(Qt::Key_Space);
    QVERIFY(!dialog.Ribbon()->GetPage(0)->GetItem(1)->IsVisible());
    KeyDialog::Press(Qt::Key_Space);
    QVERIFY(dialog.Ribbon()->GetPage(0)->GetItem(1)->IsVisible());
}

void DialogKeysTest::aCheckOnTheQuickAccessBarIsSeenAtOnce()
{
    KeyDialog dialog;
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(1);
    auto& view = dialog.Focus<QTreeView>("mp_view_qab");
    KeyDialog::Select(view, view.model()->index(0, 0));
    QCoreApplication::processEvents();
    struct Counter : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            painted += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int painted = 0;
    };
    Counter counter;
    view.viewport()->installEventFilter(&counter);
    KeyDialog::Press(Qt::Key_Space);
    QCOMPARE(view.model()->index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    QTRY_VERIFY(counter.painted > 0);
}

void DialogKeysTest::altArrowsMoveAPage()
{
    KeyDialog dialog;
    dialog.Model()->AddPage(-1);
    dialog.Model()->setData(dialog.Model()->index(1, 0), QStringLiteral("Two"));
    auto* view = dialog.Find<QTreeView>("mp_view_ribbon");
    dialog.SelectInRibbon({0});
    QVERIFY(view->isExpanded(view->currentIndex()));
    const QString home = dialog.Pages().first();
    KeyDialog::Press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(dialog.Pages(), (QStringList{QStringLiteral("Two"), home}));
    // The page stays selected and open, and goes on from where it is.
    QCOMPARE(view->currentIndex().data().toString(), home);
    QVERIFY(view->isExpanded(view->currentIndex()));
    QVERIFY(view->isExpanded(dialog.Model()->index(0, 0, view->currentIndex())));
    KeyDialog::Press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(dialog.Pages(), (QStringList{QStringLiteral("Two"), home}));
    KeyDialog::Press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(dialog.Pages(), (QStringList{home, QStringLiteral("Two")}));
    QCOMPARE(dialog.window->ribbonBar()->pageCount(), 2);
}

void DialogKeysTest::altArrowsMoveSpotsAsABlock()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 0, 0});
    KeyDialog::Press(Qt::Key_Down, Qt::ShiftModifier);
    KeyDialog::Press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(dialog.Spots(0, 0), (QStringList{"File.Save", "File.Open", "separator.file"}));
    QCOMPARE(dialog.Find<QTreeView>("mp_view_ribbon")->selectionModel()->selectedRows().size(), 2);
    KeyDialog::Press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(dialog.Spots(0, 0), (QStringList{"File.Open", "separator.file", "File.Save"}));
}

void DialogKeysTest::altArrowsMoveCompositesAndTheirItems()
{
    KeyDialog dialog;
    auto& view = dialog.Focus<QTreeView>("mp_view_composite");
    const QString first = view.model()->index(0, 0).data().toString();
    KeyDialog::Select(view, view.model()->index(0, 0));
    KeyDialog::Press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(view.model()->index(1, 0).data().toString(), first);
    QCOMPARE(view.currentIndex().row(), 1);
    const QModelIndex composite = view.model()->index(1, 0);
    view.expand(composite);
    const QString item = view.model()->index(0, 0, composite).data().toString();
    KeyDialog::Select(view, view.model()->index(0, 0, composite));
    KeyDialog::Press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(view.model()->index(1, 0, view.model()->index(1, 0)).data().toString(), item);
    KeyDialog::Press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(view.model()->index(0, 0, view.model()->index(1, 0)).data().toString(), item);
}

void DialogKeysTest::aLiftedCommandIsDroppedOnAGroup()
{
    KeyDialog dialog;
    dialog.SelectCommand(QStringLiteral("Edit.Copy"));
    KeyDialog::Press(Qt::Key_C, Qt::ControlModifier);
    dialog.SelectInRibbon({0, 0});
    KeyDialog::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog.Spots(0, 0).last(), QStringLiteral("Edit.Copy"));
    dialog.SelectInRibbon({0, 0, 0});
    dialog.SelectCommand(QStringLiteral("View.Zoom"));
    KeyDialog::Press(Qt::Key_X, Qt::ControlModifier);
    dialog.SelectInRibbon({0, 0, 0});
    KeyDialog::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog.Spots(0, 0).at(1), QStringLiteral("View.Zoom"));
}

void DialogKeysTest::aLiftedSpotGoesToAnotherGroup()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 0, 0});
    KeyDialog::Press(Qt::Key_X, Qt::ControlModifier);
    // Nothing goes before it has a place to go to.
    QCOMPARE(dialog.Spots(0, 0).size(), 3);
    dialog.SelectInRibbon({0, 1});
    KeyDialog::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog.Spots(0, 0), (QStringList{"separator.file", "File.Save"}));
    QCOMPARE(dialog.Spots(0, 1), (QStringList{"composite.clip", "File.Open"}));
}

void DialogKeysTest::aLiftedCompositeGoesOnTheQuickAccessBar()
{
    KeyDialog dialog;
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(1);
    auto& composites = dialog.Focus<QTreeView>("mp_view_composite");
    KeyDialog::Select(composites, composites.model()->index(1, 0));
    KeyDialog::Press(Qt::Key_C, Qt::ControlModifier);
    auto& qab = dialog.Focus<QTreeView>("mp_view_qab");
    const int before = qab.model()->rowCount();
    KeyDialog::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(qab.model()->rowCount(), before + 1);
}

void DialogKeysTest::aLiftedGroupIsNotDroppedOnItself()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 0});
    KeyDialog::Press(Qt::Key_X, Qt::ControlModifier);
    const QByteArray before = dialog.Json();
    dialog.SelectInRibbon({0, 0, 0});
    KeyDialog::Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(dialog.Json(), before);
}

void DialogKeysTest::commandsAreAddedByTheButton()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 1});
    dialog.SelectCommand(QStringLiteral("View.Zoom"));
    dialog.Focus<QToolButton>("mp_btn_add_command");
    KeyDialog::Press(Qt::Key_Space);
    QCOMPARE(dialog.Spots(0, 1), (QStringList{"composite.clip", "View.Zoom"}));
}

void DialogKeysTest::aShortcutIsAssignedAndDeleted()
{
    KeyDialog dialog;
    dialog.SelectCommand(QStringLiteral("View.Zoom"));
    KeyDialog::Press(Qt::Key_F2);
    auto* edit =
        dialog.Find<QTableView>("mp_view_commands")->viewport()->findChild<KeySequenceEdit*>();
    QVERIFY(edit);
    QTest::keyClick(edit, Qt::Key_F9);
    QTest::keyClick(edit, Qt::Key_Return);
    const auto* shortcuts = dynamic_cast<UiStateShortcuts*>(
        dialog.Layout()->GetState(UiStateShortcuts::GetSuiteName()));
    UiCommand* zoom = dialog.host.Command(QStringLiteral("View.Zoom"));
    QTRY_VERIFY(shortcuts->Find(zoom));
    QCOMPARE(shortcuts->Find(zoom)->GetShortcut().toString(), QStringLiteral("F9"));
    QVERIFY(dialog.Get().isVisible());
    dialog.SelectCommand(QStringLiteral("View.Zoom"));
    KeyDialog::Press(Qt::Key_Delete);
    QVERIFY(!shortcuts->Find(zoom));
}

void DialogKeysTest::theKeyOfAMenuIsAssigned()
{
    KeyDialog dialog;
    dialog.Find<QTabWidget>("mp_tabs_sites")->setCurrentIndex(3);
    auto& view = dialog.Focus<QTreeView>("mp_view_menus");
    KeyDialog::Select(view, view.model()->index(0, 0));
    KeyDialog::Press(Qt::Key_F2, Qt::ShiftModifier);
    auto* edit = view.viewport()->findChild<SingleKeySequenceEdit*>();
    QVERIFY(edit);
    QTest::keyClick(edit, Qt::Key_K);
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_COMPARE(view.model()->index(0, 1).data().toString(), QStringLiteral("K + RMB"));
    view.setFocus();
    KeyDialog::Press(Qt::Key_F2);
    KeyDialog::Type(QStringLiteral("Main menu"));
    KeyDialog::Press(Qt::Key_Return);
    QTRY_COMPARE(view.model()->index(0, 0).data().toString(), QStringLiteral("Main menu"));
}

void DialogKeysTest::aCompositeIsRenamedAndDeleted()
{
    KeyDialog dialog;
    auto& view = dialog.Focus<QTreeView>("mp_view_composite");
    KeyDialog::Select(view, view.model()->index(0, 0));
    KeyDialog::Press(Qt::Key_F2);
    KeyDialog::Type(QStringLiteral("Clip"));
    KeyDialog::Press(Qt::Key_Return);
    QTRY_COMPARE(view.model()->index(0, 0).data().toString(), QStringLiteral("Clip"));
    view.setFocus();
    KeyDialog::Press(Qt::Key_Delete);
    QCOMPARE(view.model()->rowCount(), 1);
    // Its button went with it, and what was open in the tree of the ribbon still is.
    QCOMPARE(dialog.Spots(0, 1), QStringList());
    QVERIFY(dialog.Find<QTreeView>("mp_view_ribbon")->isExpanded(dialog.Model()->index(0, 0)));
}

void DialogKeysTest::escapeEndsTheEditFirst()
{
    KeyDialog dialog;
    dialog.SelectInRibbon({0, 1});
    KeyDialog::Press(Qt::Key_F2);
    KeyDialog::Type(QStringLiteral("x"));
    KeyDialog::Press(Qt::Key_Escape);
    QVERIFY(dialog.Get().isVisible());
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    KeyDialog::Press(Qt::Key_Escape);
    QVERIFY(!dialog.Get().isVisible());
}

OVK_TEST_CLASS(DialogKeysTest)

#include "dialog_keys_test.moc"
