#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"
#include "tests/widgets/widget_picture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QToolTip>

#include <limits>

using namespace ovk;
using ovk_test::Form;
using ovk_test::Picture;
using ovk_test::Value;

namespace {

constexpr double g_inf = std::numeric_limits<double>::infinity();
constexpr double g_nan = std::numeric_limits<double>::quiet_NaN();
constexpr float g_inf_f = std::numeric_limits<float>::infinity();
constexpr float g_nan_f = std::numeric_limits<float>::quiet_NaN();

using Entries = std::map<double, QColor>;

class Legend : public ColorLegend
{
public:
    using ColorLegend::_GetCurrentValue;
    using ColorLegend::m_colors_and_labels;
};

/// A picture, where there is anything to draw on.
void Paint(QWidget& widget)
{
    if (!widget.size().isEmpty())
        Picture(widget);
}

/// Paints the legend, and reads it with the pointer and the keys.
void ReadAll(Legend& legend)
{
    for (const auto orientation : {ColorMap::Horizontal, ColorMap::Vertical}) {
        legend.SetOrientation(orientation);
        for (const QSize size : {QSize(120, 60), QSize(1, 1), QSize(0, 40)}) {
            legend.resize(size);
            Paint(legend);
            legend._GetCurrentValue(QPointF(3, 3));
            for (const int key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_End}) {
                QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
                QApplication::sendEvent(&legend, &press);
                QVERIFY(!legend.GetReadingText().isEmpty());
            }
        }
    }
}

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

Q_DECLARE_METATYPE(Entries)

class BadInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aLegendTakesAnyMap_data();
    void aLegendTakesAnyMap();
    void equalKeysAreOne();
    void theHeldMapMayBeGivenAgain();
    void aScaleTakesAnyRange_data();
    void aScaleTakesAnyRange();
    void aScaleTakesAnyColours();
    void aLegendTakesAnyThickness_data();
    void aLegendTakesAnyThickness();
    void aComboWithoutRowsTakesEverything();
    void aComboTakesAForeignModel();
    void aSwitchTakesAnySize();

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

void BadInputTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void BadInputTest::aLegendTakesAnyMap_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::newRow("empty") << Entries{};
    QTest::newRow("one entry") << Entries{{3.0, Qt::green}};
    QTest::newRow("one entry at infinity") << Entries{{g_inf, Qt::green}};
    QTest::newRow("one entry that is no number") << Entries{{g_nan, Qt::green}};
    QTest::newRow("up to infinity") << Entries{{0.0, Qt::green}, {g_inf, Qt::red}};
    QTest::newRow("from minus infinity") << Entries{{-g_inf, Qt::green}, {0.0, Qt::red}};
    QTest::newRow("all numbers") << Entries{{-g_inf, Qt::green}, {g_inf, Qt::red}};
    QTest::newRow("larger than a float") << Entries{{-3e38, Qt::green}, {3e38, Qt::red}};
    QTest::newRow("too close for a float") << Entries{{1.0, Qt::green}, {1.0 + 1e-15, Qt::red}};
    QTest::newRow("colours that are none") << Entries{{0.0, QColor()}, {1.0, QColor()}};
    Entries many;
    for (int i = 0; i < 5000; ++i)
        many[i] = QColor::fromHsv(i % 360, 255, 255);
    QTest::newRow("more colours than pixels") << many;
}

void BadInputTest::aLegendTakesAnyMap()
{
    QFETCH(Entries, entries);
    Legend legend;
    legend.SetDrawMarks(true);
    legend.SetColorsAndLabels(entries);
    ReadAll(legend);
}

void BadInputTest::equalKeysAreOne()
{
    Legend legend;
    Entries entries{{0.0, Qt::white}, {1.0, Qt::red}};
    entries.insert({1.0, Qt::blue});
    entries.insert({-0.0, Qt::black});
    legend.SetColorsAndLabels(entries);
    QCOMPARE(legend.startColor(), QColor(Qt::white));
    QCOMPARE(legend.endColor(), QColor(Qt::red));
    ReadAll(legend);
}

void BadInputTest::theHeldMapMayBeGivenAgain()
{
    Legend legend;
    legend.setStartColor(Qt::green);
    legend.SetColorsAndLabels(legend.m_colors_and_labels);
    QCOMPARE(legend.m_colors_and_labels.size(), std::size_t(3));
    QCOMPARE(legend.startColor(), QColor(Qt::white));
}

void BadInputTest::aScaleTakesAnyRange_data()
{
    QTest::addColumn<float>("min");
    QTest::addColumn<float>("max");
    QTest::addColumn<float>("step");
    QTest::newRow("upside down") << 10.0f << 0.0f << 1.0f;
    QTest::newRow("empty") << 5.0f << 5.0f << 1.0f;
    QTest::newRow("step of zero") << 0.0f << 10.0f << 0.0f;
    QTest::newRow("step of minus zero") << 0.0f << 10.0f << -0.0f;
    QTest::newRow("step below zero") << 0.0f << 10.0f << -1.0f;
    QTest::newRow("step that is no number") << 0.0f << 10.0f << g_nan_f;
    QTest::newRow("infinite step") << 0.0f << 10.0f << g_inf_f;
    QTest::newRow("least step") << 0.0f << 10.0f << std::numeric_limits<float>::denorm_min();
    QTest::newRow("step lost in the range") << 1e30f << 1.1e30f << 1e-3f;
    QTest::newRow("infinite range") << -g_inf_f << g_inf_f << 1.0f;
    QTest::newRow("infinite end") << 0.0f << g_inf_f << 1.0f;
    QTest::newRow("start that is no number") << g_nan_f << 10.0f << 1.0f;
    QTest::newRow("whole range of floats") << std::numeric_limits<float>::lowest()
                                           << std::numeric_limits<float>::max() << 1.0f;
}

void BadInputTest::aScaleTakesAnyRange()
{
    QFETCH(float, min);
    QFETCH(float, max);
    QFETCH(float, step);
    ColorMap plain;
    ColorMapHue hue;
    ColorMapHueWithLabels labels;
    for (ColorMap* const map : {&plain, static_cast<ColorMap*>(&hue), static_cast<ColorMap*>(&labels)}) {
        map->resize(60, 90);
        map->setRange(min, max, step);
        Picture(*map);
        map->setRange(max, step);
        Picture(*map);
    }
    labels.ShowUserUnits(true);
    Picture(labels);
}

void BadInputTest::aScaleTakesAnyColours()
{
    ColorMap plain;
    ColorMapHue hue;
    for (ColorMap* const map : {&plain, static_cast<ColorMap*>(&hue)}) {
        map->resize(30, 60);
        for (const std::vector<QColor>& colors :
             {std::vector<QColor>{}, {QColor()}, {Qt::black}, {QColor(), Qt::white}, {Qt::gray, Qt::gray},
              std::vector<QColor>(10000, Qt::red)}) {
            map->setColors(colors);
            Picture(*map);
        }
        map->setStartColor(QColor());
        map->setEndColor(QColor());
        Picture(*map);
    }
    hue.setInterpolateLS(true);
    Picture(hue);
}

void BadInputTest::aLegendTakesAnyThickness_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("offset");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("below zero") << -5 << -5;
    QTest::newRow("more than there is") << 5000 << 2;
}

void BadInputTest::aLegendTakesAnyThickness()
{
    QFETCH(int, size);
    QFETCH(int, offset);
    Legend legend;
    legend.setProperty("colorSize", size);
    legend.setProperty("offset", offset);
    ReadAll(legend);
}

void BadInputTest::aComboWithoutRowsTakesEverything()
{
    CheckComboBox combo;
    combo.setCheckedItems({"x", QString()});
    combo.setSeparator(QString());
    combo.setChecked(std::numeric_limits<int>::max(), true);
    combo.setItemCheckState(std::numeric_limits<int>::min(), Qt::Checked);
    combo.setCurrentIndex(5);
    combo.showPopup();
    combo.hidePopup();
    QCOMPARE(combo.checkedItems(), QStringList());
    QCOMPARE(combo.currentText(), QString());
}

void BadInputTest::aComboTakesAForeignModel()
{
    CheckComboBox combo;
    QStandardItemModel model(2, 1);
    model.setItem(0, new QStandardItem("one"));
    model.setItem(1, new QStandardItem("two"));
    combo.setModel(&model);
    Q_EMIT combo.activated(0);
    QCOMPARE(combo.checkedItems(), QStringList());
    combo.setChecked(1, true);
    QCOMPARE(combo.checkedItems(), QStringList{"two"});
}

void BadInputTest::aSwitchTakesAnySize()
{
    MSwitcher switcher{QColor()};
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(5, 300), QSize(3000, 4)}) {
        switcher.resize(size);
        switcher.setToggle(!switcher.isToggled());
        for (int i = 0; i < 20; ++i)
            switcher.timercall();
        Paint(switcher);
    }
}

void BadInputTest::aRefusedValueIsNotStored_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("check box") << 0;
    QTest::newRow("combo box") << 1;
    QTest::newRow("colour") << 2;
    QTest::newRow("integer") << 3;
    QTest::newRow("number") << 4;
}

void BadInputTest::aRefusedValueIsNotStored()
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

void BadInputTest::rangesUpsideDown()
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

void BadInputTest::valuesThatAreNoNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("text") << QVariant("text");
    QTest::newRow("not a number") << QVariant(g_nan);
    QTest::newRow("infinity") << QVariant(g_inf);
    QTest::newRow("list") << QVariant(QVariantList{1, 2});
    QTest::newRow("huge") << QVariant(1e300);
}

void BadInputTest::valuesThatAreNoNumbers()
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

void BadInputTest::aDelegateMayDieBeforeItsEditor_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("check box") << 0;
    QTest::newRow("combo box") << 1;
    QTest::newRow("colour") << 2;
    QTest::newRow("integer") << 3;
    QTest::newRow("number") << 4;
}

void BadInputTest::aDelegateMayDieBeforeItsEditor()
{
    QFETCH(int, kind);
    std::unique_ptr<TreeItemDelegateBase> delegate;
    switch (kind) {
    case 0: delegate = std::make_unique<CheckBoxDelegate>(); break;
    case 1: delegate = std::make_unique<ComboBoxDelegate>(QStringList{"a", "b"}); break;
    case 2: delegate = std::make_unique<ColorEditDelegate>(); break;
    case 3: delegate = std::make_unique<SpinBoxDelegate>(0, 9); break;
    default: delegate = std::make_unique<DoubleSpinBoxDelegate>(0.0, 9.0); break;
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

void BadInputTest::aDelegateWithoutAnEditorOfItsOwn()
{
    class Bare : public TreeItemDelegateBase
    {
    public:
        QWidget* createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const override
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

void BadInputTest::aResetWhileEditing()
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

void BadInputTest::aRowDeletedWhileItIsEdited()
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

void BadInputTest::aRowTakenOutByItsOwnEditor()
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

void BadInputTest::aSectionDeletedWithItsEditors()
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

void BadInputTest::allRowsGoAndComeAgain()
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

void BadInputTest::aTreeOfAnotherModelIsLeftAlone()
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

OVK_TEST_CLASS(BadInputTest)

#include "bad_input_test.moc"
