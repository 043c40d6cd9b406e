#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QToolTip>

#include <limits>

using namespace ovk;
using ovk_test::Form;
using ovk_test::Value;

namespace {

constexpr double g_inf = std::numeric_limits<double>::infinity();
constexpr double g_nan = std::numeric_limits<double>::quiet_NaN();

/// Refuses whatever is written, and keeps its own value.
class Refusing : public IItemDataProvider
{
public:
    explicit Refusing(const QVariant& value) : m_value(value) {}
    QVariant GetData() override { return m_value; }
    bool SetData(const QVariant&) override
    {
        ++refusals;
        return false;
    }

    int refusals = 0;

private:
    QVariant m_value;
};

/// Runs a function at each write, from inside of it.
class Meddling : public Value
{
public:
    using Value::Value;
    bool SetData(const QVariant& written) override
    {
        if (meddle)
            meddle();
        return Value::SetData(written);
    }

    std::function<void()> meddle;
};

void Type(QWidget* editor, const QString& keys)
{
    auto* const line = editor->findChild<QLineEdit*>();
    line->selectAll();
    QTest::keyClicks(line, keys);
}

} // namespace

/// A property tree with values, delegates and providers that misbehave, and with rows that go while
/// they are edited.
class TreeEditBadInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aRefusedValueIsNotStored_data();
    void aRefusedValueIsNotStored();
    void rangesUpsideDown();
    void valuesThatAreNoNumbers_data();
    void valuesThatAreNoNumbers();
    void aDelegateMayDieBeforeItsEditor_data();
    void aDelegateMayDieBeforeItsEditor();
    void aDelegateWithoutAnEditorOfItsOwn();
    void aResetWhileEditing();
    void aRowDeletedWhileItIsEdited();
    void aRowTakenOutByItsOwnEditor();
    void aSectionDeletedWithItsEditors();
    void allRowsGoAndComeAgain();
    void aTreeOfAnotherModelIsLeftAlone();
};

void TreeEditBadInputTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TreeEditBadInputTest::aRefusedValueIsNotStored_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("check box") << 0;
    QTest::newRow("combo box") << 1;
    QTest::newRow("colour") << 2;
    QTest::newRow("integer") << 3;
    QTest::newRow("number") << 4;
}

void TreeEditBadInputTest::aRefusedValueIsNotStored()
{
    QFETCH(int, row);
    Form form;
    const QVector<TreeItemDelegateBase*> delegates = {
        new CheckBoxDelegate, new ComboBoxDelegate({"a", "b"}), new ColorEditDelegate,
        new SpinBoxDelegate(0, 9), new DoubleSpinBoxDelegate(0.0, 9.0)};
    std::vector<std::unique_ptr<Refusing>> values;
    for (TreeItemDelegateBase* const delegate : delegates) {
        values.push_back(std::make_unique<Refusing>(QVariant(0)));
        form.AddItem("row", delegate)->SetDataProvider(values.back().get());
    }
    form.CreateEditors();
    QWidget* const editor = form.Editor(row);
    if (auto* const box = qobject_cast<QCheckBox*>(editor))
        box->click();
    else if (auto* const combo = qobject_cast<QComboBox*>(editor))
        combo->setCurrentIndex(1);
    else if (auto* const color = qobject_cast<ColorEdit*>(editor))
        color->setColor(Qt::red);
    else
        Type(editor, "5");
    QCOMPARE(values[std::size_t(row)]->refusals, 1);
    QCOMPARE(form.Cell(row).data(Qt::EditRole), QVariant(0));
    QVERIFY(!form.model()->setData(form.Cell(row), 7));
}

void TreeEditBadInputTest::rangesUpsideDown()
{
    Form form;
    Value integer(5), number(5.0);
    form.AddItem("integer", new SpinBoxDelegate(9, 0))->SetDataProvider(&integer);
    auto* const delegate = new DoubleSpinBoxDelegate(9.0, -9.0);
    delegate->setDecimals(-3);
    form.AddItem("number", delegate)->SetDataProvider(&number);
    form.CreateEditors();
    for (const int row : {0, 1}) {
        const auto* const editor = qobject_cast<EditDblSuffix*>(form.Editor(row));
        QVERIFY(editor->minimum() <= editor->maximum());
    }
    QVERIFY(integer.writes.isEmpty() && number.writes.isEmpty());
}

void TreeEditBadInputTest::valuesThatAreNoNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("text") << QVariant("text");
    QTest::newRow("not a number") << QVariant(g_nan);
    QTest::newRow("infinity") << QVariant(g_inf);
    QTest::newRow("list") << QVariant(QVariantList{1, 2});
    QTest::newRow("huge") << QVariant(1e300);
}

void TreeEditBadInputTest::valuesThatAreNoNumbers()
{
    QFETCH(QVariant, value);
    Form form;
    Value shared(value);
    form.AddItem("check", CheckBoxDelegate::GetInstance())->SetDataProvider(&shared);
    form.AddItem("inverted", CheckBoxInvertedDelegate::GetInstance())->SetDataProvider(&shared);
    form.AddItem("combo", new ComboBoxDelegate({"a", "b"}))->SetDataProvider(&shared);
    form.AddItem("no texts", new ComboBoxDelegate({}))->SetDataProvider(&shared);
    form.AddItem("colour", ColorEditDelegate::GetInstance())->SetDataProvider(&shared);
    form.AddItem("integer", new SpinBoxDelegate(0, 9))->SetDataProvider(&shared);
    form.AddItem("number", new DoubleSpinBoxDelegate(0.0, 9.0))->SetDataProvider(&shared);
    form.AddItem("plain", TreeItemDelegateWrapper())->SetDataProvider(&shared);
    form.AddItem("no provider", new SpinBoxDelegate(0, 9));
    form.CreateEditors();
    form.resize(300, 300);
    form.show();
    form.grab();
    QVERIFY(shared.writes.isEmpty());
}

void TreeEditBadInputTest::aDelegateMayDieBeforeItsEditor_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("check box") << 0;
    QTest::newRow("combo box") << 1;
    QTest::newRow("colour") << 2;
    QTest::newRow("integer") << 3;
    QTest::newRow("number") << 4;
}

void TreeEditBadInputTest::aDelegateMayDieBeforeItsEditor()
{
    QFETCH(int, kind);
    std::unique_ptr<TreeItemDelegateBase> delegate;
    switch (kind) {
    case 0:
        delegate = std::make_unique<CheckBoxDelegate>();
        break;
    case 1:
        delegate = std::make_unique<ComboBoxDelegate>(QStringList{"a", "b"});
        break;
    case 2:
        delegate = std::make_unique<ColorEditDelegate>();
        break;
    case 3:
        delegate = std::make_unique<SpinBoxDelegate>(0, 9);
        break;
    default:
        delegate = std::make_unique<DoubleSpinBoxDelegate>(0.0, 9.0);
        break;
    }
    Form form;
    Value value(0);
    form.AddItem("row", TreeItemDelegateWrapper())->SetDataProvider(&value);
    // An editor of its own making, which the view does not know.
    const std::unique_ptr<QWidget> editor(
        delegate->createEditor(&form, form.viewOptions(), form.Cell(0)));
    delegate.reset();
    if (auto* const box = qobject_cast<QCheckBox*>(editor.get()))
        box->click();
    else if (auto* const combo = qobject_cast<QComboBox*>(editor.get()))
        combo->setCurrentIndex(1);
    else if (auto* const color = qobject_cast<ColorEdit*>(editor.get()))
        color->setColor(Qt::red);
    else
        Type(editor.get(), "5");
    QVERIFY(value.writes.isEmpty());
}

void TreeEditBadInputTest::aDelegateWithoutAnEditorOfItsOwn()
{
    class Bare : public TreeItemDelegateBase
    {
    public:
        QWidget* createEditor(QWidget*, const QStyleOptionViewItem&,
                              const QModelIndex&) const override
        {
            return nullptr;
        }
    };
    Form form;
    TreeEditItem* const item = form.AddItem("row", new Bare);
    form.CreateEditors();
    form.SetFirstActive();
    QVERIFY(!item->GetEditor());
    item->SetEnabled(false);
    item->SetVisible(false);
    item->SetVisible(true);
}

void TreeEditBadInputTest::aResetWhileEditing()
{
    Form form;
    Value value(5);
    TreeEditItem* const item = form.AddItem("row", new SpinBoxDelegate(0, 9));
    item->SetDataProvider(&value);
    form.CreateEditors();
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.SetFirstActive();
    const QPointer<QWidget> before = item->GetEditor();
    Type(before, "7");
    form.reset();
    QTRY_VERIFY(!before);
    QVERIFY(item->GetEditor());
    QVERIFY(form.isPersistentEditorOpen(form.Cell(0)));
    Type(item->GetEditor(), "8");
    QCOMPARE(value.writes, (QVector<QVariant>{7, 8}));
}

void TreeEditBadInputTest::aRowDeletedWhileItIsEdited()
{
    Form form;
    Value value(5);
    TreeEditItem* const first = form.AddItem("first", new SpinBoxDelegate(0, 9));
    TreeEditItem* const second = form.AddItem("second", new SpinBoxDelegate(0, 9));
    first->SetDataProvider(&value);
    second->SetDataProvider(&value);
    form.CreateEditors();
    form.show();
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.SetFirstActive();
    const QPointer<QWidget> editor = first->GetEditor();
    QSignalSpy removed(form.model(), &QAbstractItemModel::rowsRemoved);
    delete first;
    QCOMPARE(removed.size(), 1);
    QCOMPARE(form.model()->rowCount(), 1);
    QTRY_VERIFY(!editor);
    form.grab();
    QVERIFY(second->GetEditor());
    QCOMPARE(TreeEdit::GetItem(form.Cell(0)), static_cast<TreeEditItemBase*>(second));
}

void TreeEditBadInputTest::aRowTakenOutByItsOwnEditor()
{
    Form form;
    Meddling value(5);
    Value other(6);
    TreeEditItem* const row = form.AddItem("row", new SpinBoxDelegate(0, 9));
    row->SetDataProvider(&value);
    form.AddItem("other", new SpinBoxDelegate(0, 9))->SetDataProvider(&other);
    form.CreateEditors();
    form.show();
    value.meddle = [row] { row->SetVisible(false); };
    Type(row->GetEditor(), "7");
    QCOMPARE(value.writes, QVector<QVariant>{7});
    QCOMPARE(form.model()->rowCount(), 1);
    value.meddle = {};
    row->SetVisible(true);
    QCOMPARE(qobject_cast<EditDblSuffix*>(row->GetEditor())->value(), 7.0);
}

void TreeEditBadInputTest::aSectionDeletedWithItsEditors()
{
    Form form;
    Value value(true);
    TreeEditSectionItem* const section = form.AddSection("section", QString());
    TreeEditSectionItem* const inner = section->AddSection("inner", QString());
    for (int i = 0; i < 5; ++i)
        inner->AddItem("row", CheckBoxDelegate::GetInstance())->SetDataProvider(&value);
    form.AddItem("last", CheckBoxDelegate::GetInstance())->SetDataProvider(&value);
    form.expandAll();
    form.CreateEditors();
    form.show();
    QSignalSpy removed(form.model(), &QAbstractItemModel::rowsRemoved);
    delete section;
    QCOMPARE(removed.size(), 1);
    QCOMPARE(form.model()->rowCount(), 1);
    form.grab();
    QTRY_COMPARE(form.findChildren<QCheckBox*>().size(), 1);
}

void TreeEditBadInputTest::allRowsGoAndComeAgain()
{
    Form form;
    Value value(true);
    form.CreateEditors();
    form.show();
    for (int round = 0; round < 3; ++round) {
        TreeEditItemBase* const root =
            static_cast<TreeEditItemBase*>(form.AddSection("s", QString())->GetParent());
        for (int i = 0; i < 4; ++i) {
            TreeEditItem* const item = form.AddItem("row", CheckBoxDelegate::GetInstance());
            item->SetDataProvider(&value);
            QVERIFY(item->GetEditor());
        }
        QCOMPARE(form.model()->rowCount(), 5);
        form.grab();
        while (root->GetChildCount() > 0)
            delete root->RemoveChild(0);
        QCOMPARE(form.model()->rowCount(), 0);
    }
}

void TreeEditBadInputTest::aTreeOfAnotherModelIsLeftAlone()
{
    Form form;
    form.SetFirstActive();
    QVERIFY(!TreeEdit::GetItem(QModelIndex()));
    QVERIFY(!form.model()->setData(QModelIndex(), 5));
    QCOMPARE(form.model()->flags(QModelIndex()), Qt::NoItemFlags);
    QVERIFY(!form.model()->data(QModelIndex(), Qt::DisplayRole).isValid());
    QVERIFY(!form.model()->parent(QModelIndex()).isValid());
    QVERIFY(!form.model()->index(0, 0).isValid());
    QVERIFY(!form.model()->index(0, 5).isValid());
    QCOMPARE(form.Move(Form::MoveNext), QModelIndex());
}

OVK_TEST_CLASS(TreeEditBadInputTest)

#include "tree_edit_bad_input_test.moc"
