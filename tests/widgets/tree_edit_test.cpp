#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRandomGenerator>
#include <QVBoxLayout>

using namespace ovk;
using ovk_test::Form;
using ovk_test::Value;

namespace {

QStringList Titles(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList titles;
    for (int row = 0; row < model.rowCount(parent); ++row)
        titles << model.index(row, 0, parent).data().toString();
    return titles;
}

} // namespace

class TreeEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theViewIsSetUp();
    void rowsHaveTitlesHintsAndValues();
    void sectionsAreNoValues();
    void theFlagsOfACell_data();
    void theFlagsOfACell();
    void writingAnswersFalse();
    void aHiddenRowComesBackInItsPlace();
    void positionsCountVisibleRows();
    void aRowBelowAHiddenSectionIsNotAnnounced();
    void aHiddenRowIsDeletedAlone();
    void rowsComeAndGoAsAnnounced();
    void aDisabledSectionDisablesItsRows();
    void aRowDisabledBeforeItsEditorStaysSo();
    void editorsOpenForRowsOnly();
    void aRowThatComesBackHasItsEditor();
    void theFirstRowThatCanBeEdited();
    void theCursorStaysAmongTheEditors();
    void tabLeavesAtTheEnds();
    void enterReachesTheDialog();
    void theTitleIsSelectedAtTheTopLevel();
};

void TreeEditTest::theViewIsSetUp()
{
    TreeEdit edit;
    QCOMPARE(edit.selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(edit.selectionBehavior(), QAbstractItemView::SelectItems);
    QCOMPARE(edit.header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
    QVERIFY(edit.header()->stretchLastSection() && edit.header()->isHidden());
    QCOMPARE(edit.editTriggers(),
             QAbstractItemView::EditTriggers(QAbstractItemView::AllEditTriggers));
    QCOMPARE(edit.frameStyle(), 0);
    QVERIFY(edit.allColumnsShowFocus() && edit.tabKeyNavigation());
    QVERIFY(qobject_cast<SettingsItemsModel*>(edit.model()));
    QCOMPARE(edit.model()->columnCount(), 2);
    QVERIFY(!TreeEdit::GetItem(QModelIndex()));
}

void TreeEditTest::rowsHaveTitlesHintsAndValues()
{
    Form form;
    Value value(7);
    TreeEditItem* const plain = form.AddItem("Plain", TreeItemDelegateWrapper());
    TreeEditItem* const checked = form.AddItem("Checked", CheckBoxDelegate::GetInstance());
    QVERIFY(!plain->GetData().isValid());
    QVERIFY(!plain->SetData(3));
    plain->SetDataProvider(&value);
    checked->SetDataProvider(&value);
    plain->SetHint("hint");
    QCOMPARE(TreeEdit::GetItem(form.Cell(0)), static_cast<TreeEditItemBase*>(plain));
    QCOMPARE(form.Cell(0, 0).data(), QVariant("Plain"));
    QCOMPARE(form.Cell(0, 1).data(), QVariant(7));
    QCOMPARE(form.Cell(0, 1).data(Qt::EditRole), QVariant(7));
    QVERIFY(!form.Cell(0, 0).data(Qt::EditRole).isValid());
    QCOMPARE(form.Cell(0, 0).data(Qt::ToolTipRole), QVariant("hint"));
    QCOMPARE(form.Cell(0, 1).data(Qt::ToolTipRole), QVariant("hint"));
    QVERIFY(!form.Cell(0, 0).data(Qt::DecorationRole).isValid());
    QVERIFY(!form.Cell(1, 1).data().isValid());
    QCOMPARE(form.Cell(1, 1).data(Qt::EditRole), QVariant(7));
    QSignalSpy spy(form.model(), &QAbstractItemModel::dataChanged);
    checked->SetTitle("New");
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toModelIndex(), form.Cell(1, 0));
    QCOMPARE(spy.at(0).at(1).toModelIndex(), form.Cell(1, 1));
    QCOMPARE(checked->GetTitle(), QString("New"));
}

void TreeEditTest::sectionsAreNoValues()
{
    Form form;
    TreeEditSectionItem* const section = form.AddSection("Section", "hint");
    QVERIFY(section->IsSection() && !section->IsEditable());
    QCOMPARE(section->GetHint(), QString("hint"));
    QVERIFY(!section->GetData().isValid() && !section->SetData(1));
    TreeEditItem* const item = section->AddItem("Item", CheckBoxDelegate::GetInstance());
    QVERIFY(!item->IsSection() && item->IsEditable());
    QCOMPARE(item->GetHint(), QString());
    TreeEditSectionItem* const inner = section->AddSection("Inner", QString());
    QCOMPARE(inner->GetParent(), static_cast<ITreeItem*>(section));
    QCOMPARE(Titles(*form.model(), form.Cell(0, 0)), (QStringList{"Item", "Inner"}));
    QCOMPARE(form.model()->rowCount(form.Cell(0, 1)), 0);
    QCOMPARE(form.Cell(0, 1, form.Cell(0, 0)).parent(), form.Cell(0, 0));
    QVERIFY(!form.Cell(0, 0).parent().isValid());
}

void TreeEditTest::theFlagsOfACell_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("flags");
    const int value = Qt::ItemIsSelectable | Qt::ItemIsEditable;
    QTest::newRow("title") << 0 << true << int(Qt::ItemIsEnabled);
    QTest::newRow("disabled title") << 0 << false << int(Qt::NoItemFlags);
    QTest::newRow("value") << 1 << true << (value | Qt::ItemIsEnabled);
    QTest::newRow("disabled value") << 1 << false << value;
}

void TreeEditTest::theFlagsOfACell()
{
    QFETCH(int, column);
    QFETCH(bool, enabled);
    QFETCH(int, flags);
    Form form;
    form.AddItem("Row", TreeItemDelegateWrapper())->SetEnabled(enabled);
    QCOMPARE(int(form.model()->flags(form.Cell(0, column))), flags);
    QCOMPARE(int(form.model()->flags(QModelIndex())), int(Qt::NoItemFlags));
}

void TreeEditTest::writingAnswersFalse()
{
    Form form;
    Value value(1);
    form.AddItem("Row", TreeItemDelegateWrapper())->SetDataProvider(&value);
    QSignalSpy spy(form.model(), &QAbstractItemModel::dataChanged);
    QVERIFY(!form.model()->setData(form.Cell(0), 5));
    QCOMPARE(value.value, QVariant(5));
    QCOMPARE(spy.size(), 1);
    QVERIFY(!form.model()->setData(form.Cell(0), 6, Qt::DisplayRole));
    QVERIFY(!form.model()->setData(QModelIndex(), 6));
    QCOMPARE(value.writes.size(), 1);
    QCOMPARE(spy.size(), 1);
}

void TreeEditTest::aHiddenRowComesBackInItsPlace()
{
    Form form;
    Value value(4);
    form.AddItem("A", TreeItemDelegateWrapper());
    TreeEditItem* const b = form.AddItem("B", TreeItemDelegateWrapper());
    b->SetDataProvider(&value);
    form.AddItem("C", TreeItemDelegateWrapper());
    QSignalSpy removed(form.model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(form.model(), &QAbstractItemModel::rowsInserted);
    b->SetVisible(false);
    b->SetVisible(false);
    QVERIFY(!b->IsVisible());
    QCOMPARE(Titles(*form.model()), (QStringList{"A", "C"}));
    QCOMPARE(removed.size(), 1);
    QCOMPARE(removed.at(0).at(1).toInt(), 1);
    form.AddItem("D", TreeItemDelegateWrapper());
    QCOMPARE(Titles(*form.model()), (QStringList{"A", "C", "D"}));
    b->SetVisible(true);
    QCOMPARE(Titles(*form.model()), (QStringList{"A", "B", "C", "D"}));
    QCOMPARE(inserted.last().at(1).toInt(), 1);
    QCOMPARE(form.Cell(1).data(), QVariant(4));
}

void TreeEditTest::positionsCountVisibleRows()
{
    SettingsItemsModel model;
    TreeEditItemBase& root = model.GetRoot();
    QCOMPARE(root.GetIndexOf(&root), -1);
    TreeEditItem* const a = root.AddItem("A", TreeItemDelegateWrapper());
    TreeEditItem* const b = root.AddItem("B", TreeItemDelegateWrapper());
    TreeEditItem* const c = root.AddItem("C", TreeItemDelegateWrapper());
    a->SetVisible(false);
    QCOMPARE(root.GetChildCount(), 2);
    QCOMPARE(root.GetChild(0), static_cast<ITreeItem*>(b));
    QCOMPARE(root.GetChild(1), static_cast<ITreeItem*>(c));
    QVERIFY(!root.GetChild(2) && !root.GetChild(-1));
    QCOMPARE(b->ITreeItem::GetIndexOf(), 0);
    QCOMPARE(root.GetIndexOf(c), 1);
    QCOMPARE(root.GetIndexOf(a), 1);
    QCOMPARE(root.ITreeItem::GetIndexOf(), -1);
    const std::unique_ptr<ITreeItem> taken(root.RemoveChild(0));
    QCOMPARE(taken.get(), static_cast<ITreeItem*>(b));
    QCOMPARE(Titles(model), QStringList{"C"});
    a->SetVisible(true);
    QCOMPARE(Titles(model), (QStringList{"A", "C"}));
}

void TreeEditTest::aRowBelowAHiddenSectionIsNotAnnounced()
{
    Form form;
    TreeEditSectionItem* const section = form.AddSection("S", QString());
    TreeEditItem* const item = section->AddItem("I", TreeItemDelegateWrapper());
    section->SetVisible(false);
    QSignalSpy removed(form.model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy inserted(form.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(form.model(), &QAbstractItemModel::dataChanged);
    item->SetVisible(false);
    section->AddItem("J", TreeItemDelegateWrapper());
    item->SetTitle("K");
    QCOMPARE(removed.size() + inserted.size() + changed.size(), 0);
    section->SetVisible(true);
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(Titles(*form.model(), form.Cell(0, 0)), QStringList{"J"});
    item->SetVisible(true);
    QCOMPARE(Titles(*form.model(), form.Cell(0, 0)), (QStringList{"K", "J"}));
}

void TreeEditTest::aHiddenRowIsDeletedAlone()
{
    SettingsItemsModel model;
    TreeEditItemBase& root = model.GetRoot();
    TreeEditItem* const a = root.AddItem("A", TreeItemDelegateWrapper());
    root.AddItem("B", TreeItemDelegateWrapper());
    TreeEditItem* const c = root.AddItem("C", TreeItemDelegateWrapper());
    a->SetVisible(false);
    c->SetVisible(false);
    delete a;
    QCOMPARE(Titles(model), QStringList{"B"});
    delete c;
    QCOMPARE(Titles(model), QStringList{"B"});
}

void TreeEditTest::rowsComeAndGoAsAnnounced()
{
    constexpr quint32 seed = 20110;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    Form form;
    QAbstractItemModelTester tester(form.model(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal);
    QVector<TreeEditItemBase*> items;
    for (int step = 0; step < 400; ++step) {
        const int kind = random.bounded(4);
        TreeEditItemBase* const any =
            items.isEmpty() ? nullptr : items[random.bounded(items.size())];
        if (kind == 0 && items.size() < 60) {
            const QString name = QString::number(step);
            if (!any || random.bounded(3) == 0)
                items << form.AddSection(name, QString());
            else
                items << any->AddItem(name, CheckBoxDelegate::GetInstance());
        } else if (any && kind == 1) {
            any->SetEnabled(!any->IsEnabled());
        } else if (any) {
            any->SetVisible(!any->IsVisible());
        }
    }
    form.expandAll();
    for (TreeEditItemBase* const item : qAsConst(items))
        item->SetVisible(true);
    int rows = 0;
    Utilities::ForEach(*form.model(), [&rows](const QModelIndex&) {
        ++rows;
        return true;
    });
    QCOMPARE(rows, items.size());
}

void TreeEditTest::aDisabledSectionDisablesItsRows()
{
    Form form;
    Value value(true);
    TreeEditSectionItem* const section = form.AddSection("S", QString());
    TreeEditItem* const item = section->AddItem("I", CheckBoxDelegate::GetInstance());
    item->SetDataProvider(&value);
    form.expandAll();
    form.CreateEditors();
    QVERIFY(item->IsEnabled() && item->GetEditor()->isEnabled());
    section->SetEnabled(false);
    QVERIFY(!item->IsEnabled());
    QVERIFY(item->GetEditor()->isEnabled());
    item->SetEnabled(false);
    QVERIFY(!item->GetEditor()->isEnabled());
    section->SetEnabled(true);
    QVERIFY(!item->IsEnabled());
    item->SetEnabled(true);
    QVERIFY(item->IsEnabled() && item->GetEditor()->isEnabled());
}

void TreeEditTest::aRowDisabledBeforeItsEditorStaysSo()
{
    Form form;
    TreeEditItem* const item = form.AddItem("I", CheckBoxDelegate::GetInstance());
    item->SetEnabled(false);
    form.CreateEditors();
    QVERIFY(!item->GetEditor()->isEnabled());
}

void TreeEditTest::editorsOpenForRowsOnly()
{
    Form form;
    Value value(QString("text"));
    TreeEditSectionItem* const section = form.AddSection("S", QString());
    TreeEditItem* const inner = section->AddItem("I", CheckBoxDelegate::GetInstance());
    TreeEditItem* const plain = form.AddItem("P", TreeItemDelegateWrapper());
    plain->SetDataProvider(&value);
    QVERIFY(!inner->GetEditor());
    form.CreateEditors();
    QVERIFY(!section->GetEditor());
    QVERIFY(qobject_cast<QCheckBox*>(inner->GetEditor()));
    QCOMPARE(inner->GetEditor()->focusPolicy(), Qt::ClickFocus);
    QVERIFY(qobject_cast<QLineEdit*>(plain->GetEditor()));
    QVERIFY(plain->GetEditor()->focusPolicy() != Qt::ClickFocus);
    QVERIFY(form.isPersistentEditorOpen(form.Cell(1)));
    QVERIFY(!form.isPersistentEditorOpen(form.Cell(0)));
}

void TreeEditTest::aRowThatComesBackHasItsEditor()
{
    Form form;
    Value value(true);
    TreeEditSectionItem* const section = form.AddSection("S", QString());
    TreeEditItem* const item = section->AddItem("I", CheckBoxDelegate::GetInstance());
    item->SetDataProvider(&value);
    form.expandAll();
    form.CreateEditors();
    form.show();
    section->SetVisible(false);
    QTRY_VERIFY(!item->GetEditor());
    item->SetEnabled(false);
    section->SetVisible(true);
    QVERIFY(item->GetEditor() && !item->GetEditor()->isEnabled());
    TreeEditItem* const late = form.AddItem("Late", CheckBoxDelegate::GetInstance());
    QVERIFY(late->GetEditor());
}

void TreeEditTest::theFirstRowThatCanBeEdited()
{
    Form form;
    TreeEditSectionItem* const section = form.AddSection("S", QString());
    section->AddItem("disabled", CheckBoxDelegate::GetInstance())->SetEnabled(false);
    TreeEditItem* const first = section->AddItem("first", CheckBoxDelegate::GetInstance());
    form.AddItem("second", CheckBoxDelegate::GetInstance());
    form.expandAll();
    form.CreateEditors();
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.SetFirstActive();
    QCOMPARE(TreeEdit::GetItem(form.currentIndex()), static_cast<TreeEditItemBase*>(first));
    QCOMPARE(form.currentIndex().column(), 1);
    QCOMPARE(QApplication::focusWidget(), first->GetEditor());
    Form empty;
    empty.AddSection("only", QString());
    empty.SetFirstActive();
    QVERIFY(!empty.currentIndex().isValid());
}

void TreeEditTest::theCursorStaysAmongTheEditors()
{
    Form form;
    for (const char* const title : {"A", "B", "C"})
        form.AddItem(title, TreeItemDelegateWrapper());
    form.setCurrentIndex(form.Cell(0));
    QCOMPARE(form.Move(Form::MoveDown), form.Cell(1));
    QCOMPARE(form.Move(Form::MoveEnd), form.Cell(2));
    QCOMPARE(form.Move(Form::MoveNext), form.Cell(1));
    form.setCurrentIndex(form.Cell(2));
    QCOMPARE(form.Move(Form::MovePrevious), form.Cell(1));
    QCOMPARE(form.Move(Form::MoveDown), form.Cell(2));
}

void TreeEditTest::tabLeavesAtTheEnds()
{
    QDialog dialog;
    QPushButton before("before"), after("after");
    Form form;
    Value value(5);
    form.AddItem("A", new SpinBoxDelegate(0, 9))->SetDataProvider(&value);
    form.AddItem("B", new SpinBoxDelegate(0, 9))->SetDataProvider(&value);
    QVBoxLayout layout(&dialog);
    layout.addWidget(&before);
    layout.addWidget(&form);
    layout.addWidget(&after);
    QWidget::setTabOrder(&before, &form);
    QWidget::setTabOrder(&form, &after);
    form.CreateEditors();
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    form.SetFirstActive();
    QCOMPARE(QApplication::focusWidget(), form.Editor(0));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTRY_COMPARE(QApplication::focusWidget(), form.Editor(1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&after));
    form.SetFirstActive();
    QCOMPARE(QApplication::focusWidget(), form.Editor(0));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget*>(&before));
}

void TreeEditTest::enterReachesTheDialog()
{
    QDialog dialog;
    QPushButton ok("ok");
    ok.setDefault(true);
    connect(&ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    Form form;
    Value value(5);
    form.AddItem("A", new SpinBoxDelegate(0, 9))->SetDataProvider(&value);
    QVBoxLayout layout(&dialog);
    layout.addWidget(&form);
    layout.addWidget(&ok);
    form.CreateEditors();
    for (const int key : {int(Qt::Key_Return), int(Qt::Key_Enter)}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QVERIFY(!form.event(&event));
        dialog.setResult(QDialog::Rejected);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        form.SetFirstActive();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
    }
}

void TreeEditTest::theTitleIsSelectedAtTheTopLevel()
{
    Form form;
    form.AddItem("A", TreeItemDelegateWrapper());
    TreeEditSectionItem* const section = form.AddSection("S", QString());
    section->AddItem("I", TreeItemDelegateWrapper());
    form.expandAll();
    QSignalSpy spy(form.selectionModel(), &QItemSelectionModel::selectionChanged);
    form.selectionModel()->setCurrentIndex(form.Cell(0), QItemSelectionModel::NoUpdate);
    const int topLevel = spy.size();
    form.selectionModel()->setCurrentIndex(form.Cell(0, 1, form.Cell(1, 0)),
                                           QItemSelectionModel::NoUpdate);
    QCOMPARE(spy.size(), topLevel);
    QVERIFY(form.currentIndex().isValid());
}

OVK_TEST_CLASS(TreeEditTest)

#include "tree_edit_test.moc"
