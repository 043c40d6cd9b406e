#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionToolButton>
#include <QTimer>

using namespace ovk;
using ovk_test::Form;
using ovk_test::Value;

namespace {

class Counted : public CheckBoxDelegate
{
public:
    explicit Counted(int& alive) : m_alive(alive) { ++m_alive; }
    ~Counted() override { --m_alive; }

private:
    int& m_alive;
};

class Mapped : public ComboBoxDelegate
{
public:
    using ComboBoxDelegate::ComboBoxDelegate;

protected:
    QVariant _ItemIndexToData(int index) const override { return QString("mode%1").arg(index); }
    int _DataToItemIndex(const QVariant& data) const override
    {
        return data.toString().mid(4).toInt();
    }
};

class Pending : public ColorEditDelegate
{
public:
    using ColorEditDelegate::m_indicator_width;
    using ColorEditDelegate::m_pending_action;
};

template <class Editor> Editor* EditorOf(const Form& form, int row)
{
    return qobject_cast<Editor*>(form.Editor(row));
}

void Type(QWidget* editor, const QString& keys)
{
    auto* const line = editor->findChild<QLineEdit*>();
    line->selectAll();
    QTest::keyClicks(line, keys);
}

} // namespace

class ItemDelegatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWrapperOwnsOrNot();
    void aDelegateGivesValuesOutAsTheyAre();
    void sharedDelegatesAreOne();
    void aCheckBoxWritesAtOnce_data();
    void aCheckBoxWritesAtOnce();
    void aClickBesideTheBoxToggles_data();
    void aClickBesideTheBoxToggles();
    void anInvertedBoxCommitsItsValue();
    void aComboBoxWritesAtOnce();
    void aComboBoxMayMapItsValues();
    void aColourWritesAtOnce();
    void aColourIsReadFromAnything_data();
    void aColourIsReadFromAnything();
    void aPendingActionOpensOnce_data();
    void aPendingActionOpensOnce();
    void typingWritesEachValidChange();
    void anIntegerIsCut();
    void theNumbersEditorIsSetUp();
    void theNumbersHaveTheirProperties();
    void shownValuesAreNotWrittenBack_data();
    void shownValuesAreNotWrittenBack();
    void aValueOutsideTheRangeIsOnlyShownClamped();
    void aCommitWritesNothingAgain();
    void anEditorIsAsWideAsItWishes();
    void anEditorWhoseRowIsGoneWritesNothing();
};

void ItemDelegatesTest::theWrapperOwnsOrNot()
{
    int alive = 0;
    {
        const TreeItemDelegateWrapper none;
        QVERIFY(!none.Get());
        auto* const owned = new Counted(alive);
        TreeItemDelegateWrapper first(owned);
        QCOMPARE(first.Get(), static_cast<TreeItemDelegateBase*>(owned));
        QCOMPARE(first->DecorateOutput(3), QVariant(3));
        const TreeItemDelegateWrapper second(std::move(first));
        QVERIFY(!first.Get());
        QCOMPARE(second.Get(), static_cast<TreeItemDelegateBase*>(owned));
        QCOMPARE(alive, 1);
    }
    QCOMPARE(alive, 0);
    const Counted shared(alive);
    {
        TreeItemDelegateWrapper borrowed(&shared);
        const TreeItemDelegateWrapper moved(std::move(borrowed));
        QCOMPARE(moved.Get(), static_cast<const TreeItemDelegateBase*>(&shared));
    }
    QCOMPARE(alive, 1);
    {
        Form form;
        form.AddItem("owned", new Counted(alive));
        form.AddItem("shared", &shared);
        form.AddItem("single", CheckBoxDelegate::GetInstance());
        QCOMPARE(alive, 2);
    }
    QCOMPARE(alive, 1);
}

void ItemDelegatesTest::aDelegateGivesValuesOutAsTheyAre()
{
    QCOMPARE(CheckBoxDelegate::GetInstance()->DecorateOutput("text"), QVariant("text"));
}

void ItemDelegatesTest::sharedDelegatesAreOne()
{
    QVERIFY(CheckBoxDelegate::GetInstance() == CheckBoxDelegate::GetInstance());
    QVERIFY(ColorEditDelegate::GetInstance() == ColorEditDelegate::GetInstance());
    const CheckBoxDelegate* const inverted = CheckBoxInvertedDelegate::GetInstance();
    QVERIFY(inverted == CheckBoxInvertedDelegate::GetInstance());
    QVERIFY(inverted != CheckBoxDelegate::GetInstance());
}

void ItemDelegatesTest::aCheckBoxWritesAtOnce_data()
{
    QTest::addColumn<bool>("inverted");
    QTest::newRow("straight") << false;
    QTest::newRow("inverted") << true;
}

void ItemDelegatesTest::aCheckBoxWritesAtOnce()
{
    QFETCH(bool, inverted);
    Value value(true);
    Form form;
    form.AddItem("Row", inverted ? CheckBoxInvertedDelegate::GetInstance()
                                 : CheckBoxDelegate::GetInstance())
        ->SetDataProvider(&value);
    form.CreateEditors();
    auto* const box = EditorOf<QCheckBox>(form, 0);
    QVERIFY(box);
    QCOMPARE(box->isChecked(), !inverted);
    QVERIFY(value.writes.isEmpty());
    box->click();
    QCOMPARE(value.writes, QVector<QVariant>{false});
    QCOMPARE(box->isChecked(), inverted);
    box->click();
    QCOMPARE(value.writes.last(), QVariant(true));
}

void ItemDelegatesTest::aClickBesideTheBoxToggles_data()
{
    aCheckBoxWritesAtOnce_data();
}

void ItemDelegatesTest::aClickBesideTheBoxToggles()
{
    QFETCH(bool, inverted);
    Value value(true);
    Form form;
    TreeEditItem* const item =
        form.AddItem("Row", inverted ? CheckBoxInvertedDelegate::GetInstance()
                                     : CheckBoxDelegate::GetInstance());
    item->SetDataProvider(&value);
    const auto send = [&form](int column, QEvent::Type type) {
        QMouseEvent event(type, QPoint(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QAbstractItemDelegate* const delegate = form.itemDelegate();
        return delegate->editorEvent(&event, form.model(), form.viewOptions(),
                                     form.Cell(0, column));
    };
    QVERIFY(!send(1, QEvent::MouseButtonPress));
    QVERIFY(!send(0, QEvent::MouseButtonRelease));
    QVERIFY(value.writes.isEmpty());
    QVERIFY(send(1, QEvent::MouseButtonRelease));
    QCOMPARE(value.writes, QVector<QVariant>{false});
    QVERIFY(send(1, QEvent::MouseButtonRelease));
    QCOMPARE(value.value, QVariant(true));
    item->SetEnabled(false);
    QVERIFY(!send(1, QEvent::MouseButtonRelease));
    QCOMPARE(value.writes.size(), 2);
}

void ItemDelegatesTest::anInvertedBoxCommitsItsValue()
{
    Value value(true);
    Form form;
    form.AddItem("Row", CheckBoxInvertedDelegate::GetInstance())->SetDataProvider(&value);
    form.CreateEditors();
    form.itemDelegate()->setModelData(form.Editor(0), form.model(), form.Cell(0));
    QCOMPARE(value.writes, QVector<QVariant>{true});
}

void ItemDelegatesTest::aComboBoxWritesAtOnce()
{
    Value value(1);
    Form form;
    form.AddItem("Row", new ComboBoxDelegate({"a", "b", "c"}))->SetDataProvider(&value);
    form.CreateEditors();
    auto* const box = EditorOf<QComboBox>(form, 0);
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->currentText(), QString("b"));
    QVERIFY(!box->hasFrame());
    QCOMPARE(box->focusPolicy(), Qt::ClickFocus);
    box->setCurrentIndex(2);
    QCOMPARE(value.writes, QVector<QVariant>{2});
    value.value = 17;
    form.itemDelegate()->setEditorData(box, form.Cell(0));
    QCOMPARE(box->currentIndex(), -1);
    QCOMPARE(value.writes.size(), 1);
}

void ItemDelegatesTest::aComboBoxMayMapItsValues()
{
    Value value("mode2");
    Form form;
    form.AddItem("Row", new Mapped({"a", "b", "c"}))->SetDataProvider(&value);
    form.CreateEditors();
    auto* const box = EditorOf<QComboBox>(form, 0);
    QCOMPARE(box->currentIndex(), 2);
    box->setCurrentIndex(0);
    QCOMPARE(value.value, QVariant("mode0"));
}

void ItemDelegatesTest::aColourWritesAtOnce()
{
    Value value(QColor(Qt::red));
    Form form;
    form.AddItem("Row", ColorEditDelegate::GetInstance())->SetDataProvider(&value);
    form.CreateEditors();
    auto* const edit = EditorOf<ColorEdit>(form, 0);
    QCOMPARE(edit->color(), QColor(Qt::red));
    QCOMPARE(edit->margins(), QMargins(0, 0, 1, 0));
    QVERIFY(edit->autoFillBackground());
    QVERIFY(value.writes.isEmpty());
    edit->setColor(Qt::blue);
    QCOMPARE(value.writes, QVector<QVariant>{QColor(Qt::blue)});
    Pending delegate;
    QStyleOptionToolButton option;
    QToolButton button;
    QCOMPARE(delegate.m_indicator_width,
             QApplication::style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, &button));
    QCOMPARE(delegate.m_pending_action, 0);
}

void ItemDelegatesTest::aColourIsReadFromAnything_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QColor>("color");
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3)) << QColor(1, 2, 3);
    QTest::newRow("text") << QVariant("#102030") << QColor(16, 32, 48);
    QTest::newRow("nothing") << QVariant() << QColor();
    QTest::newRow("no colour") << QVariant(QPointF(1, 2)) << QColor();
}

void ItemDelegatesTest::aColourIsReadFromAnything()
{
    QFETCH(QVariant, value);
    QFETCH(QColor, color);
    Value provider(value);
    Form form;
    form.AddItem("Row", ColorEditDelegate::GetInstance())->SetDataProvider(&provider);
    form.CreateEditors();
    QCOMPARE(EditorOf<ColorEdit>(form, 0)->color(), color);
}

void ItemDelegatesTest::aPendingActionOpensOnce_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("dialog") << 1;
    QTest::newRow("popup") << 2;
}

void ItemDelegatesTest::aPendingActionOpensOnce()
{
    QFETCH(int, action);
    Value value(QColor(Qt::red));
    Pending delegate;
    Form form;
    form.AddItem("Row", static_cast<const Pending*>(&delegate))->SetDataProvider(&value);
    form.show();
    delegate.m_pending_action = action;
    int opened = 0;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        QWidget* const popup = QApplication::activePopupWidget();
        QWidget* const open = popup ? popup : QApplication::activeModalWidget();
        if (!open)
            return;
        ++opened;
        QCOMPARE(qobject_cast<QMenu*>(open) != nullptr, action == 2);
        open->close();
    });
    watch.start(0);
    form.CreateEditors();
    QCOMPARE(opened, 1);
    QCOMPARE(delegate.m_pending_action, 0);
    QVERIFY(value.writes.isEmpty());
}

void ItemDelegatesTest::typingWritesEachValidChange()
{
    Value whole(1), real(0.5);
    Form form;
    form.AddItem("Whole", new SpinBoxDelegate("pcs", 0, 1000))->SetDataProvider(&whole);
    form.AddItem("Real", new DoubleSpinBoxDelegate("mm", 0.0, 100.0))->SetDataProvider(&real);
    form.CreateEditors();
    form.show();
    Type(form.Editor(0), "25");
    QCOMPARE(whole.writes, (QVector<QVariant>{2, 25}));
    QCOMPARE(whole.writes.last().userType(), int(QMetaType::Int));
    Type(form.Editor(1), "7.5");
    QCOMPARE(real.value, QVariant(7.5));
    QCOMPARE(real.writes.last().userType(), int(QMetaType::Double));
}

void ItemDelegatesTest::anIntegerIsCut()
{
    Value value("12.9");
    Form form;
    form.AddItem("Row", new SpinBoxDelegate(0, 100))->SetDataProvider(&value);
    form.CreateEditors();
    value.value = 12.0;
    form.itemDelegate()->setEditorData(form.Editor(0), form.Cell(0));
    QCOMPARE(EditorOf<EditDblSuffix>(form, 0)->value(), 12.0);
}

void ItemDelegatesTest::theNumbersEditorIsSetUp()
{
    Value value(5);
    Form form;
    auto* const whole = new SpinBoxDelegate("pcs", -3, 9);
    auto* const real = new DoubleSpinBoxDelegate("mm", -0.5, 9.25);
    form.AddItem("Whole", whole)->SetDataProvider(&value);
    form.AddItem("Real", real)->SetDataProvider(&value);
    form.CreateEditors();
    auto* const wholeEditor = EditorOf<EditDblSuffix>(form, 0);
    QCOMPARE(wholeEditor->minimum(), -3.0);
    QCOMPARE(wholeEditor->maximum(), 9.0);
    QCOMPARE(wholeEditor->decimals(), 0);
    QCOMPARE(wholeEditor->suffix(), QString("pcs"));
    QCOMPARE(wholeEditor->suffixVisible(), EditDblSuffix::spVisible);
    QVERIFY(!wholeEditor->hasFrame());
    auto* const line = wholeEditor->findChild<QLineEdit*>();
    line->selectAll();
    form.itemDelegate()->setEditorData(wholeEditor, form.Cell(0));
    QVERIFY(!line->hasSelectedText());
    auto* const realEditor = EditorOf<EditDblSuffix>(form, 1);
    QCOMPARE(realEditor->minimum(), -0.5);
    QCOMPARE(realEditor->maximum(), 9.25);
    QCOMPARE(realEditor->decimals(), 3);
    real->setMax(1.0);
    real->setDecimals(1);
    real->setSuffix("inch");
    QCOMPARE(realEditor->maximum(), 9.25);
    QCOMPARE(realEditor->decimals(), 3);
    QCOMPARE(realEditor->suffix(), QString("mm"));
}

void ItemDelegatesTest::theNumbersHaveTheirProperties()
{
    SpinBoxDelegate whole(1, 2);
    QCOMPARE(whole.getSuffix(), QString());
    whole.setMin(3);
    whole.setMax(4);
    whole.setSuffix("x");
    QCOMPARE(whole.getMin(), 3);
    QCOMPARE(whole.getMax(), 4);
    QCOMPARE(whole.getSuffix(), QString("x"));
    DoubleSpinBoxDelegate real(1.5, 2.5);
    QCOMPARE(real.getDecimals(), 3);
    real.setMin(3.5);
    real.setMax(4.5);
    real.setDecimals(5);
    QCOMPARE(real.getMin(), 3.5);
    QCOMPARE(real.getMax(), 4.5);
    QCOMPARE(real.getDecimals(), 5);
}

void ItemDelegatesTest::shownValuesAreNotWrittenBack_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVariant>("first");
    QTest::addColumn<QVariant>("second");
    QTest::newRow("check box") << 0 << QVariant(false) << QVariant(true);
    QTest::newRow("inverted") << 1 << QVariant(false) << QVariant(true);
    QTest::newRow("combo box") << 2 << QVariant(0) << QVariant(1);
    QTest::newRow("colour") << 3 << QVariant(QColor(Qt::red)) << QVariant(QColor(Qt::blue));
    QTest::newRow("integer") << 4 << QVariant(3) << QVariant(8);
    QTest::newRow("number") << 5 << QVariant(3.5) << QVariant(8.5);
}

void ItemDelegatesTest::shownValuesAreNotWrittenBack()
{
    QFETCH(int, kind);
    QFETCH(QVariant, first);
    QFETCH(QVariant, second);
    const std::function<TreeItemDelegateBase*()> makers[] = {
        [] { return new CheckBoxDelegate; },
        [] { return new CheckBoxInvertedDelegate; },
        [] {
            return new ComboBoxDelegate({"a", "b"});
        },
        [] { return new ColorEditDelegate; },
        [] { return new SpinBoxDelegate(0, 10); },
        [] { return new DoubleSpinBoxDelegate(0.0, 10.0); }};
    Value value(first);
    Form form;
    TreeEditItem* const item = form.AddItem("Row", makers[kind]());
    item->SetDataProvider(&value);
    form.CreateEditors();
    value.value = second;
    item->Updated();
    form.itemDelegate()->setEditorData(form.Editor(0), form.Cell(0));
    QVERIFY(value.writes.isEmpty());
    QCOMPARE(value.value, second);
}

void ItemDelegatesTest::aValueOutsideTheRangeIsOnlyShownClamped()
{
    Value value(5000);
    Form form;
    form.AddItem("Whole", new SpinBoxDelegate(0, 100))->SetDataProvider(&value);
    form.AddItem("Real", new DoubleSpinBoxDelegate(0.0, 10.0))->SetDataProvider(&value);
    form.CreateEditors();
    QCOMPARE(EditorOf<EditDblSuffix>(form, 0)->value(), 100.0);
    QCOMPARE(EditorOf<EditDblSuffix>(form, 1)->value(), 10.0);
    QVERIFY(value.writes.isEmpty());
}

void ItemDelegatesTest::aCommitWritesNothingAgain()
{
    Value value(5);
    Form form;
    form.AddItem("Whole", new SpinBoxDelegate(0, 100))->SetDataProvider(&value);
    form.AddItem("Real", new DoubleSpinBoxDelegate(0.0, 10.0))->SetDataProvider(&value);
    form.AddItem("Combo", new ComboBoxDelegate({"a", "b"}))->SetDataProvider(&value);
    form.AddItem("Colour", ColorEditDelegate::GetInstance())->SetDataProvider(&value);
    form.CreateEditors();
    for (int row = 0; row < 4; ++row)
        form.itemDelegate()->setModelData(form.Editor(row), form.model(), form.Cell(row));
    QVERIFY(value.writes.isEmpty());
}

void ItemDelegatesTest::anEditorIsAsWideAsItWishes()
{
    Value value(1);
    Form form;
    form.AddItem("Whole", new SpinBoxDelegate(0, 100))->SetDataProvider(&value);
    form.AddItem("Check", CheckBoxDelegate::GetInstance())->SetDataProvider(&value);
    form.CreateEditors();
    form.resize(700, 200);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    const QStyle* const style = form.style();
    for (int row = 0; row < 2; ++row) {
        QWidget* const editor = form.Editor(row);
        QStyleOptionViewItem option = form.viewOptions();
        option.rect = form.visualRect(form.Cell(row)).adjusted(1, 1, -1, -1);
        option.rect.setLeft(option.rect.left() + 2);
        option.rect.translate(row == 1 ? 1 : 0, 0);
        option.rect.setWidth(editor->sizeHint().width());
        option.showDecorationSelected = true;
        option.widget = &form;
        const QRect text = style->subElementRect(QStyle::SE_ItemViewItemText, &option, &form);
        QCOMPARE(editor->geometry().left(), text.left());
        QVERIFY(editor->width() < 200);
    }
}

void ItemDelegatesTest::anEditorWhoseRowIsGoneWritesNothing()
{
    Value value(true);
    Form form;
    TreeEditItem* const item = form.AddItem("Row", CheckBoxDelegate::GetInstance());
    item->SetDataProvider(&value);
    form.CreateEditors();
    QPointer<QCheckBox> box = EditorOf<QCheckBox>(form, 0);
    item->SetVisible(false);
    if (box)
        box->click();
    QVERIFY(value.writes.isEmpty());
}

OVK_TEST_CLASS(ItemDelegatesTest)

#include "item_delegates_test.moc"
