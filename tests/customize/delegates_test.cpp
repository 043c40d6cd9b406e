#include "tests/customize/sites_host.h"
#include "tests/support/test_main.h"

#include <ovk/customize/persistent_hint_p.h>
#include <ovk/customize/shortcut_delegates_p.h>
#include <ovk/ui_state/ui_shortcut_binding.h>
#include <ovk/ui_state/ui_state_shortcuts.h>

#include <QComboBox>
#include <QPainter>
#include <QTableView>
#include <QToolTip>
#include <QTreeView>

using namespace ovk;
using namespace ovk_test;

namespace {

/// A table of commands with an open editor for one of them.
struct CommandEditing
{
    explicit CommandEditing(const QString& id)
    {
        view.setModel(&sites.commands);
        view.setItemDelegateForColumn(1, &delegate);
        delegate.SetLayout(sites.layout);
        view.resize(400, 300);
        view.show();
        index = sites.commands.index(sites.commands.indexOf(sites.host.Command(id)), 1);
        view.setCurrentIndex(index);
        view.edit(index);
        editor = view.findChild<KeySequenceEdit*>();
    }
    /// What the hint on the screen says, empty when there is none.
    static QString Hint()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (auto* hint = qobject_cast<PersistentHint*>(widget))
                return hint->text();
        }
        return QString();
    }
    /// Ends the editing as a click elsewhere does.
    void Commit()
    {
        delegate.setModelData(editor, &sites.commands, index);
        view.closePersistentEditor(index);
        delegate.destroyEditor(editor, index);
    }

    SitesHost sites;
    QTableView view;
    CommandShortcutDelegate delegate;
    QModelIndex index;
    QPointer<KeySequenceEdit> editor;
};

} // namespace

class DelegatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeySequenceEditTakesOneChord();
    void backspaceClearsAKeySequence();
    void aSingleKeyIsTakenByName();
    void keysThatSwitchSomethingAreNotTaken_data();
    void keysThatSwitchSomethingAreNotTaken();
    void backspaceClearsASingleKey();
    void aFreeKeyIsStored();
    void theCommandsOwnKeyPasses();
    void aTakenKeyIsNotStoredAndTheHintSaysWhose();
    void aMenusKeyIsNotStoredAndTheHintSaysWhose();
    void aBindingWhoseCommandIsGoneGivesItsKey();
    void anEmptySequenceDeletesTheBinding();
    void theHintStaysOnTheScreen_data();
    void theHintStaysOnTheScreen();
    void aMenuKeyIsStoredWhenItIsFree();
    void aMenuKeyThatIsTakenIsNotStored();
    void aSelectedRowWithoutAKeyShowsAButton();
    void theComboListsTheStyles();
    void theComboOfTheQuickAccessBarHasThree();
    void aStyleGoesToAllSelectedRows();
};

void DelegatesTest::aKeySequenceEditTakesOneChord()
{
    KeySequenceEdit edit;
    edit.show();
    QSignalSpy changed(&edit, &QKeySequenceEdit::keySequenceChanged);
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(edit.keySequence(), QKeySequence(QStringLiteral("Ctrl+S")));
    QVERIFY(changed.count() >= 1);
    QTest::keyClick(&edit, Qt::Key_F5);
    QCOMPARE(edit.keySequence(), QKeySequence(QStringLiteral("F5")));
}

void DelegatesTest::backspaceClearsAKeySequence()
{
    KeySequenceEdit edit;
    edit.setKeySequence(QKeySequence(QStringLiteral("Ctrl+S")));
    edit.show();
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(edit.keySequence().isEmpty());
}

void DelegatesTest::aSingleKeyIsTakenByName()
{
    SingleKeySequenceEdit edit;
    QVERIFY(!edit.placeholderText().isEmpty());
    QTest::keyClick(&edit, Qt::Key_A);
    QCOMPARE(edit.GetKey() & 0xFFFF, int('A'));
    QCOMPARE(edit.text(), QStringLiteral("A"));
    QTest::keyClick(&edit, Qt::Key_F5);
    QCOMPARE(edit.text(), QStringLiteral("F5"));
}

void DelegatesTest::keysThatSwitchSomethingAreNotTaken_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Tab") << int(Qt::Key_Tab);
    QTest::newRow("Pause") << int(Qt::Key_Pause);
    QTest::newRow("Caps Lock") << int(Qt::Key_CapsLock);
    QTest::newRow("Print Screen") << int(Qt::Key_Print);
    QTest::newRow("Num Lock") << int(Qt::Key_NumLock);
    QTest::newRow("Scroll Lock") << int(Qt::Key_ScrollLock);
    QTest::newRow("F1") << int(Qt::Key_F1);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Return") << int(Qt::Key_Return);
}

void DelegatesTest::keysThatSwitchSomethingAreNotTaken()
{
    QFETCH(int, key);
    SingleKeySequenceEdit edit;
    edit.SetKey('B');
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&edit, &press);
    QCOMPARE(edit.GetKey(), int('B'));
    QCOMPARE(edit.text(), QStringLiteral("B"));
}

void DelegatesTest::backspaceClearsASingleKey()
{
    SingleKeySequenceEdit edit;
    edit.SetKey('B');
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(edit.GetKey(), 0);
    QVERIFY(edit.text().isEmpty());
}

void DelegatesTest::aFreeKeyIsStored()
{
    CommandEditing editing(QStringLiteral("File.Save"));
    QVERIFY(editing.editor);
    QTest::keyClick(editing.editor, Qt::Key_F9);
    QVERIFY(CommandEditing::Hint().isEmpty());
    editing.Commit();
    QCOMPARE(editing.index.data().toString(), QStringLiteral("F9"));
}

void DelegatesTest::theCommandsOwnKeyPasses()
{
    CommandEditing editing(QStringLiteral("File.Open"));
    QTest::keyClick(editing.editor, Qt::Key_O, Qt::ControlModifier);
    QVERIFY(CommandEditing::Hint().isEmpty());
    editing.Commit();
    QCOMPARE(editing.index.data().toString(), QStringLiteral("Ctrl+O"));
}

void DelegatesTest::aTakenKeyIsNotStoredAndTheHintSaysWhose()
{
    CommandEditing editing(QStringLiteral("File.Save"));
    QTest::keyClick(editing.editor, Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(CommandEditing::Hint(),
             QStringLiteral("Key sequence 'Ctrl+O' is already used for command '%1'")
                 .arg(editing.sites.host.Command(QStringLiteral("File.Open"))->GetTitle()));
    editing.Commit();
    QVERIFY(editing.index.data().toString().isEmpty());
    QVERIFY(CommandEditing::Hint().isEmpty());
}

void DelegatesTest::aMenusKeyIsNotStoredAndTheHintSaysWhose()
{
    CommandEditing editing(QStringLiteral("File.Save"));
    auto* menu = dynamic_cast<UiStateMenu*>(editing.sites.menus.GetMenus()->GetItem(0));
    menu->SetKey('M');
    QTest::keyClick(editing.editor, Qt::Key_M);
    QCOMPARE(
        CommandEditing::Hint(),
        QStringLiteral("Key sequence 'M' is already used for menu '%1'").arg(menu->GetTitle()));
    QTest::keyClick(editing.editor, Qt::Key_F9);
    QVERIFY(CommandEditing::Hint().isEmpty());
    editing.Commit();
    QCOMPARE(editing.index.data().toString(), QStringLiteral("F9"));
}

void DelegatesTest::aBindingWhoseCommandIsGoneGivesItsKey()
{
    CommandEditing editing(QStringLiteral("File.Save"));
    auto* shortcuts = dynamic_cast<UiStateShortcuts*>(
        editing.sites.layout->GetState(UiStateShortcuts::GetSuiteName()));
    shortcuts->CreateBinding(QStringLiteral("No.Such.Command"), QKeySequence(QStringLiteral("F6")));
    QTest::keyClick(editing.editor, Qt::Key_F6);
    QVERIFY(CommandEditing::Hint().isEmpty());
    QVERIFY(!shortcuts->Find(QKeySequence(QStringLiteral("F6"))));
    editing.Commit();
    QCOMPARE(editing.index.data().toString(), QStringLiteral("F6"));
}

void DelegatesTest::anEmptySequenceDeletesTheBinding()
{
    CommandEditing editing(QStringLiteral("File.Open"));
    QTest::keyClick(editing.editor, Qt::Key_Backspace);
    editing.Commit();
    QVERIFY(!editing.index.data().isValid());
}

void DelegatesTest::theHintStaysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("in the middle") << QPoint(100, 100) << QPoint(102, 116);
    QTest::newRow("at the right edge: to the left") << QPoint(950, 100) << QPoint(748, 116);
    QTest::newRow("at the bottom edge: above") << QPoint(100, 590) << QPoint(102, 552);
    QTest::newRow("left of the screen") << QPoint(-50, 100) << QPoint(0, 116);
    QTest::newRow("above the screen") << QPoint(100, -80) << QPoint(102, 0);
}

void DelegatesTest::theHintStaysOnTheScreen()
{
    QFETCH(QPoint, position);
    QFETCH(QPoint, expected);
    QCOMPARE(HintPosition(position, QSize(200, 30), QRect(0, 0, 1000, 600)), expected);
}

void DelegatesTest::aMenuKeyIsStoredWhenItIsFree()
{
    SitesHost sites;
    MenuShortcutDelegate delegate;
    delegate.SetLayout(sites.layout);
    QWidget parent;
    const QModelIndex index = sites.menus.index(0, 1);
    auto* editor = qobject_cast<SingleKeySequenceEdit*>(delegate.createEditor(&parent, {}, index));
    QVERIFY(editor);
    delegate.setEditorData(editor, index);
    QTest::keyClick(editor, Qt::Key_K);
    delegate.setModelData(editor, &sites.menus, index);
    QCOMPARE(index.data().toString(), QStringLiteral("K + RMB"));
    QTest::keyClick(editor, Qt::Key_Backspace);
    delegate.setModelData(editor, &sites.menus, index);
    QVERIFY(index.data().toString().isEmpty());
}

void DelegatesTest::aMenuKeyThatIsTakenIsNotStored()
{
    SitesHost sites;
    sites.menus.AddMenu(-1);
    dynamic_cast<UiStateMenu*>(sites.menus.GetMenus()->GetItem(0))->SetKey('K');
    auto* shortcuts =
        dynamic_cast<UiStateShortcuts*>(sites.layout->GetState(UiStateShortcuts::GetSuiteName()));
    shortcuts->CreateBinding(QStringLiteral("File.Save"), QKeySequence(QStringLiteral("F9")));
    MenuShortcutDelegate delegate;
    delegate.SetLayout(sites.layout);
    QWidget parent;
    const QModelIndex index = sites.menus.index(1, 1);
    auto* editor = qobject_cast<SingleKeySequenceEdit*>(delegate.createEditor(&parent, {}, index));
    delegate.setEditorData(editor, index);
    const auto* first = dynamic_cast<UiStateMenu*>(sites.menus.GetMenus()->GetItem(0));
    const struct
    {
        Qt::Key key;
        QString message;
    } rows[] = {
        {Qt::Key_K,
         QStringLiteral("Key sequence 'K' is already used for menu '%1'").arg(first->GetTitle())},
        {Qt::Key_F9, QStringLiteral("Key sequence 'F9' is already used for command '%1'")
                         .arg(sites.host.Command(QStringLiteral("File.Save"))->GetTitle())},
    };
    for (const auto& row : rows) {
        QTest::keyClick(editor, row.key);
        QCOMPARE(QToolTip::text(), row.message);
        delegate.setModelData(editor, &sites.menus, index);
        QVERIFY(index.data().toString().isEmpty());
    }
    QToolTip::hideText();
}

void DelegatesTest::aSelectedRowWithoutAKeyShowsAButton()
{
    SitesHost sites;
    CommandShortcutDelegate delegate;
    delegate.SetLayout(sites.layout);
    const auto paint = [&](const QModelIndex& index, bool selected) {
        QImage image(120, 24, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.palette = QApplication::palette();
        option.state = QStyle::State_Enabled;
        if (selected)
            option.state |= QStyle::State_Selected;
        delegate.paint(&painter, option, index);
        painter.end();
        return image;
    };
    const int bare = sites.commands.indexOf(sites.host.Command(QStringLiteral("File.Save")));
    const QImage idle = paint(sites.commands.index(bare, 1), false);
    const QImage button = paint(sites.commands.index(bare, 1), true);
    QVERIFY(idle != button);
    const int bound = sites.commands.indexOf(sites.host.Command(QStringLiteral("File.Open")));
    QVERIFY(paint(sites.commands.index(bound, 1), true) != button);
}

void DelegatesTest::theComboListsTheStyles()
{
    SitesHost sites;
    ComboDelegate delegate;
    QWidget parent;
    const QModelIndex index = sites.ribbon.index(0, 1, sites.Group(0, 0));
    std::unique_ptr<QWidget> editor(delegate.createEditor(&parent, {}, index));
    auto* combo = qobject_cast<QComboBox*>(editor.get());
    QVERIFY(combo);
    QCOMPARE(combo->count(), 4);
    QCOMPARE(combo->minimumWidth(), combo->sizeHint().width());
    delegate.setEditorData(combo, index);
    QCOMPARE(combo->currentText(), index.data().toString());
}

void DelegatesTest::theComboOfTheQuickAccessBarHasThree()
{
    ComboDelegateQab delegate;
    QWidget parent;
    std::unique_ptr<QWidget> editor(delegate.createEditor(&parent, {}, {}));
    QCOMPARE(qobject_cast<QComboBox*>(editor.get())->count(), 3);
}

void DelegatesTest::aStyleGoesToAllSelectedRows()
{
    SitesHost sites;
    const QModelIndex group = sites.AddGroup();
    for (int i : {2, 1, 0}) {
        sites.DragCommands({i});
        sites.Drop(sites.ribbon, group, 0);
    }
    QTreeView view;
    view.setSelectionMode(QAbstractItemView::ExtendedSelection);
    view.setModel(&sites.ribbon);
    ComboDelegate delegate;
    view.setItemDelegateForColumn(1, &delegate);
    view.expandAll();
    for (int row : {0, 1}) {
        view.selectionModel()->select(sites.ribbon.index(row, 0, group),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    const QModelIndex edited = sites.ribbon.index(0, 1, group);
    std::unique_ptr<QWidget> editor(delegate.createEditor(view.viewport(), {}, edited));
    auto* combo = qobject_cast<QComboBox*>(editor.get());
    combo->setCurrentIndex(Qt::ToolButtonTextOnly);
    delegate.setModelData(combo, &sites.ribbon, edited);
    for (int row : {0, 1})
        QCOMPARE(sites.ribbon.index(row, 1, group).data().toString(), QStringLiteral("Text Only"));
    QCOMPARE(sites.ribbon.index(2, 1, group).data().toString(), QStringLiteral("Text Under Icon"));
}

OVK_TEST_CLASS(DelegatesTest)

#include "delegates_test.moc"
