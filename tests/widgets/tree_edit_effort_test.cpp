#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"

#include <QHash>
#include <QLineEdit>
#include <QSet>

using namespace ovk;
using ovk_test::Form;
using ovk_test::Value;

namespace {

/// What was done for a row.
struct Effort
{
    int made = 0;
    int loaded = 0;
    int read = 0;
    int moved = 0;
    int others = 0; ///< any other event that changes the editor

    int Sum() const { return made + loaded + read + others; }
};

class CountedValue : public Value
{
public:
    CountedValue(Effort& effort, int value) : Value(value), m_effort(effort) {}
    QVariant GetData() override
    {
        ++m_effort.read;
        return Value::GetData();
    }

private:
    Effort& m_effort;
};

/// Counts for its row, and watches the editor.
class CountedDelegate : public SpinBoxDelegate
{
public:
    explicit CountedDelegate(Effort& effort) : SpinBoxDelegate(0, 9), m_effort(effort) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        ++m_effort.made;
        QWidget* const editor = SpinBoxDelegate::createEditor(parent, option, index);
        editor->installEventFilter(const_cast<CountedDelegate*>(this));
        return editor;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        ++m_effort.loaded;
        SpinBoxDelegate::setEditorData(editor, index);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        // Not that the pointer is now above another editor, or the focus in it.
        static const QSet<int> touching = {QEvent::Show,           QEvent::Hide,
                                           QEvent::Resize,         QEvent::Destroy,
                                           QEvent::DeferredDelete, QEvent::EnabledChange,
                                           QEvent::StyleChange,    QEvent::LayoutRequest};
        if (event->type() == QEvent::Move)
            ++m_effort.moved;
        else if (touching.contains(event->type()))
            ++m_effort.others;
        return false;
    }

private:
    Effort& m_effort;
};

class CountedForm
{
public:
    explicit CountedForm(int rows) : efforts(std::size_t(rows))
    {
        for (int row = 0; row < rows; ++row) {
            Effort& effort = efforts[std::size_t(row)];
            items.push_back(form.AddItem(QString::number(row), new CountedDelegate(effort)));
            values.push_back(std::make_unique<CountedValue>(effort, row % 10));
            items.back()->SetDataProvider(values.back().get());
        }
        form.CreateEditors();
        form.resize(300, 400);
        form.show();
        Settle();
    }

    void Settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    void Forget()
    {
        for (Effort& effort : efforts)
            effort = Effort();
    }

    /// What was done for all rows but one.
    int SumOfOthers(int row) const
    {
        int sum = 0;
        for (std::size_t i = 0; i < efforts.size(); ++i)
            sum += int(i) == row ? 0 : efforts[i].Sum();
        return sum;
    }

    std::vector<Effort> efforts;
    std::vector<std::unique_ptr<CountedValue>> values;
    std::vector<TreeEditItem*> items;
    Form form;
};

class CountedLegend : public ColorLegend
{
public:
    int renders = 0;

protected:
    void _renderColors(QImage& image) override
    {
        ++renders;
        ColorLegend::_renderColors(image);
    }
};

} // namespace

/// Work is done where something changed, and there alone.
class TreeEditEffortTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEditorIsMadeAndLoadedOnce();
    void aRowThatHidesOrShowsLeavesTheOthersAlone_data();
    void aRowThatHidesOrShowsLeavesTheOthersAlone();
    void hidingTheFocusedRowOpensNoOtherEditor_data();
    void hidingTheFocusedRowOpensNoOtherEditor();
    void aRowThatIsAddedLeavesTheOthersAlone();
    void aRowThatIsDisabledLeavesTheOthersAlone();
    void aValueThatIsWrittenLeavesTheOthersAlone();
    void positionsAreRightAfterAnyChange();
    void aLegendIsPaintedFromItsImage();
};

void TreeEditEffortTest::anEditorIsMadeAndLoadedOnce()
{
    CountedForm counted(50);
    for (const Effort& effort : counted.efforts) {
        QCOMPARE(effort.made, 1);
        QCOMPARE(effort.loaded, 1);
        QCOMPARE(effort.read, 1);
    }
}

void TreeEditEffortTest::aRowThatHidesOrShowsLeavesTheOthersAlone_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("seen") << 5;
    QTest::newRow("out of sight") << 60;
    QTest::newRow("last") << 99;
}

void TreeEditEffortTest::aRowThatHidesOrShowsLeavesTheOthersAlone()
{
    QFETCH(int, row);
    CountedForm counted(100);
    // The current row would hand that on to its neighbour.
    counted.form.setCurrentIndex(QModelIndex());
    TreeEditItem* const item = counted.items[std::size_t(row)];
    std::vector<QWidget*> editors;
    for (const TreeEditItem* const each : counted.items)
        editors.push_back(each->GetEditor());

    counted.Forget();
    item->SetVisible(false);
    counted.Settle();
    QCOMPARE(counted.SumOfOthers(row), 0);
    item->SetVisible(true);
    counted.Settle();
    QCOMPARE(counted.SumOfOthers(row), 0);
    QCOMPARE(counted.efforts[std::size_t(row)].made, 1);
    QCOMPARE(counted.efforts[std::size_t(row)].loaded, 1);

    for (std::size_t i = 0; i < editors.size(); ++i) {
        if (int(i) != row)
            QCOMPARE(counted.items[i]->GetEditor(), editors[i]);
        // Rows above do not even move.
        if (int(i) < row)
            QCOMPARE(counted.efforts[i].moved, 0);
    }
}

void TreeEditEffortTest::hidingTheFocusedRowOpensNoOtherEditor_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("middle") << 5;
    QTest::newRow("last") << 9;
}

void TreeEditEffortTest::hidingTheFocusedRowOpensNoOtherEditor()
{
    QFETCH(int, row);
    CountedForm counted(10);
    counted.form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&counted.form));
    TreeEditItem* const item = counted.items[std::size_t(row)];
    counted.form.setCurrentIndex(counted.form.Cell(row));
    item->GetEditor()->setFocus();
    QCOMPARE(QApplication::focusWidget(), item->GetEditor());
    counted.Forget();
    item->SetVisible(false);
    counted.Settle();
    for (const Effort& effort : counted.efforts)
        QCOMPARE(effort.made, 0);
    QVERIFY(!item->GetEditor());
    // The work goes on beside it.
    QVERIFY(counted.form.currentIndex().isValid());
    QVERIFY(QApplication::focusWidget() && counted.form.isAncestorOf(QApplication::focusWidget()));
    item->SetVisible(true);
    counted.Settle();
    QCOMPARE(counted.efforts[std::size_t(row)].made, 1);
}

void TreeEditEffortTest::aRowThatIsAddedLeavesTheOthersAlone()
{
    CountedForm counted(40);
    counted.Forget();
    Value value(3);
    counted.form.AddItem("new", new SpinBoxDelegate(0, 9))->SetDataProvider(&value);
    counted.Settle();
    QCOMPARE(counted.SumOfOthers(-1), 0);
}

void TreeEditEffortTest::aRowThatIsDisabledLeavesTheOthersAlone()
{
    CountedForm counted(40);
    counted.Forget();
    counted.items[3]->SetEnabled(false);
    counted.Settle();
    QCOMPARE(counted.SumOfOthers(3), 0);
}

void TreeEditEffortTest::aValueThatIsWrittenLeavesTheOthersAlone()
{
    CountedForm counted(40);
    auto* const line = counted.items[3]->GetEditor()->findChild<QLineEdit*>();
    line->selectAll();
    counted.Forget();
    QTest::keyClicks(line, "7");
    counted.Settle();
    QCOMPARE(counted.values[3]->value, QVariant(7));
    QCOMPARE(counted.SumOfOthers(3), 0);
}

void TreeEditEffortTest::positionsAreRightAfterAnyChange()
{
    constexpr quint32 seed = 90210;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    SettingsItemsModel model;
    TreeEditItemBase& root = model.GetRoot();
    QVector<TreeEditItemBase*> items;
    for (int step = 0; step < 600; ++step) {
        const int kind = random.bounded(5);
        if (kind == 0 || items.isEmpty()) {
            items << root.AddItem(QString::number(step), TreeItemDelegateWrapper());
        } else if (kind == 1) {
            auto* const item =
                new TreeEditItem(QString::number(step), TreeItemDelegateWrapper(), model);
            const int at = random.bounded(root.GetChildCount() + 1);
            const ITreeItem* const next = root.GetChild(at);
            root.InsertChild(at, item);
            const int place = next ? items.indexOf(const_cast<TreeEditItemBase*>(
                                         static_cast<const TreeEditItemBase*>(next)))
                                   : items.size();
            items.insert(place, item);
        } else if (kind == 2 && items.size() > 10) {
            delete items.takeAt(random.bounded(items.size()));
        } else {
            TreeEditItemBase* const item = items[random.bounded(items.size())];
            item->SetVisible(!item->IsVisible());
        }
        QVector<TreeEditItemBase*> shown;
        for (TreeEditItemBase* const item : qAsConst(items)) {
            if (item->IsVisible())
                shown << item;
        }
        QCOMPARE(root.GetChildCount(), shown.size());
        for (int i = 0; i < shown.size(); ++i) {
            QCOMPARE(root.GetChild(i), static_cast<ITreeItem*>(shown[i]));
            QCOMPARE(root.GetIndexOf(shown[i]), i);
        }
        for (TreeEditItemBase* const item : qAsConst(items)) {
            if (!item->IsVisible())
                QCOMPARE(root.GetIndexOf(item), shown.size() - 1);
        }
    }
}

void TreeEditEffortTest::aLegendIsPaintedFromItsImage()
{
    CountedLegend legend;
    legend.setProperty("colorSize", 1000);
    legend.resize(1000, 1000);
    legend.show();
    QVERIFY(QTest::qWaitForWindowExposed(&legend));
    QImage picture(1000, 1000, QImage::Format_RGB32);
    legend.renders = 0;
    for (int i = 0; i < 20; ++i) {
        legend.render(&picture);
        legend.repaint();
    }
    QTest::keyClick(&legend, Qt::Key_Right);
    legend.repaint();
    QCOMPARE(legend.renders, 0);
    QCOMPARE(picture.pixelColor(0, 500), QColor(Qt::white));
    legend.setStartColor(Qt::green);
    QCOMPARE(legend.renders, 1);
}

OVK_TEST_CLASS(TreeEditEffortTest)

#include "tree_edit_effort_test.moc"
