#include "../support/test_main.h"

#include "host_fixture.h"

#include <ovk/units.h>
#include <ovk/widgets.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QToolTip>

using namespace tarnix;
using tarnix_test::HostFixture;

/// The panel in which the selected part is edited as a tree of its properties.
class PartTreePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTreeShowsTheSelectedPart();
    void aColourIsOneStep();
    void whatIsTypedIsOneStep();
    void proportionsAreKeptByTheSwitch_data();
    void proportionsAreKeptByTheSwitch();
    void sectionsAreLeftOutByTheCombo();
    void theUnitsAreFollowed();
    void withoutASelectionNothingIsEdited();
    void aLockedPartCanOnlyBeUnlocked();

private:
    ovk::TreeEditItemBase* Row(int section, int row) const;
    QWidget* Editor(int section, int row) const { return Row(section, row)->GetEditor(); }
    const Part& Selected() const { return *mp_fixture->GetHost().GetScene().Selected().front(); }

    std::unique_ptr<HostFixture> mp_fixture;
    HostPage* mp_page = nullptr;
    ovk::TreeEdit* mp_tree = nullptr;
};

void PartTreePageTest::init()
{
    mp_fixture = std::make_unique<HostFixture>("Tarnix");
    mp_fixture->PrepareScene();
    Scene& scene = mp_fixture->GetHost().GetScene();
    scene.SetLocked([](const Part&) { return false; });
    scene.SelectOnly(scene.Parts().front().id);
    mp_page = MakePartTreePage(mp_fixture->GetHost());
    mp_page->resize(260, 600);
    mp_page->show();
    mp_tree = mp_page->findChild<ovk::TreeEdit*>("partTree");
    QVERIFY(mp_tree);
}

void PartTreePageTest::cleanup()
{
    delete mp_page;
    mp_fixture.reset();
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

ovk::TreeEditItemBase* PartTreePageTest::Row(int section, int row) const
{
    const QAbstractItemModel& model = *mp_tree->model();
    return ovk::TreeEdit::GetItem(model.index(row, 0, model.index(section, 0)));
}

void PartTreePageTest::theTreeShowsTheSelectedPart()
{
    QCOMPARE(mp_tree->model()->rowCount(), 4);
    QCOMPARE(qobject_cast<QLineEdit*>(Editor(0, 0))->text(), Selected().name);
    QCOMPARE(qobject_cast<ovk::ColorEdit*>(Editor(0, 1))->color().rgb(), Selected().color);
    QVERIFY(!qobject_cast<QCheckBox*>(Editor(0, 2))->isChecked());
    const Vec3 size = Selected().Bounds().Size();
    for (int axis = 0; axis < 3; ++axis) {
        const auto* const editor = qobject_cast<ovk::EditDblSuffix*>(Editor(2, axis));
        QVERIFY(std::abs(editor->value() - size[axis]) < 0.01);
        QCOMPARE(editor->suffix(), QString(" mm"));
    }
    // Figures are read, not edited, and have texts.
    const QAbstractItemModel& model = *mp_tree->model();
    QVERIFY(model.rowCount(model.index(3, 0)) > 5);
    QVERIFY(!Editor(3, 0));
    QVERIFY(!Row(3, 0)->GetData().toString().isEmpty());
    // Another part takes the rows over.
    Scene& scene = mp_fixture->GetHost().GetScene();
    scene.SelectOnly(scene.Parts().back().id);
    QCOMPARE(qobject_cast<QLineEdit*>(Editor(0, 0))->text(), Selected().name);
}

void PartTreePageTest::aColourIsOneStep()
{
    const int steps = mp_fixture->GetHost().GetScene().UndoTitles().size();
    qobject_cast<ovk::ColorEdit*>(Editor(0, 1))->setColor(QColor(1, 2, 3));
    QCOMPARE(Selected().color, qRgb(1, 2, 3));
    QCOMPARE(mp_fixture->GetHost().GetScene().UndoTitles().size(), steps + 1);
    mp_fixture->GetHost().GetScene().Undo();
    QVERIFY(qobject_cast<ovk::ColorEdit*>(Editor(0, 1))->color().rgb() != qRgb(1, 2, 3));
}

void PartTreePageTest::whatIsTypedIsOneStep()
{
    Scene& scene = mp_fixture->GetHost().GetScene();
    const int steps = scene.UndoTitles().size();
    auto* const line = Editor(1, 0)->findChild<QLineEdit*>();
    line->selectAll();
    QTest::keyClicks(line, "12.5");
    QVERIFY(std::abs(Selected().Bounds().Center().x - 12.5) < 1e-6);
    QCOMPARE(scene.UndoTitles().size(), steps + 1);
}

void PartTreePageTest::proportionsAreKeptByTheSwitch_data()
{
    QTest::addColumn<bool>("keep");
    QTest::newRow("one direction") << false;
    QTest::newRow("all directions") << true;
}

void PartTreePageTest::proportionsAreKeptByTheSwitch()
{
    QFETCH(bool, keep);
    auto* const keeper = mp_page->findChild<ovk::MSwitcher*>("keepProportions");
    if (keep)
        QTest::keyClick(keeper, Qt::Key_Space);
    const Vec3 before = Selected().Bounds().Size();
    qobject_cast<ovk::EditDblSuffix*>(Editor(2, 0))->setValue(before.x * 2);
    const Vec3 after = Selected().Bounds().Size();
    const double factor = after.x / before.x;
    QVERIFY(std::abs(factor - 2.0) < 0.01);
    QVERIFY(std::abs(after.y - before.y * (keep ? factor : 1.0)) < 1e-6);
    QVERIFY(std::abs(after.z - before.z * (keep ? factor : 1.0)) < 1e-6);
}

void PartTreePageTest::sectionsAreLeftOutByTheCombo()
{
    auto* const combo = mp_page->findChild<ovk::CheckComboBox*>("partSections");
    QCOMPARE(combo->checkedItems().size(), 4);
    combo->setChecked(1, false);
    combo->setChecked(3, false);
    QCOMPARE(mp_tree->model()->rowCount(), 2);
    QCOMPARE(Row(1, 0)->GetParent(), static_cast<ovk::ITreeItem*>(ovk::TreeEdit::GetItem(mp_tree->model()->index(1, 0))));
    combo->setChecked(1, true);
    QCOMPARE(mp_tree->model()->rowCount(), 3);
    QVERIFY(mp_tree->isExpanded(mp_tree->model()->index(1, 0)));
    QVERIFY(Editor(1, 2));
}

void PartTreePageTest::theUnitsAreFollowed()
{
    const double mm = Selected().Bounds().Size().x;
    Workspace& workspace = mp_fixture->GetWorkspace();
    workspace.SetFormat(Formatter(LengthUnit::Inch, 3));
    const auto* const editor = qobject_cast<ovk::EditDblSuffix*>(Editor(2, 0));
    QVERIFY(editor->suffix().contains("inch"));
    QVERIFY(std::abs(editor->value() - mm / 25.4) < 0.001);
    QCOMPARE(mp_tree->model()->rowCount(), 4);
}

void PartTreePageTest::withoutASelectionNothingIsEdited()
{
    mp_fixture->GetHost().GetScene().Select([](const Part&) { return false; });
    for (int row = 0; row < 3; ++row) {
        QVERIFY(!Editor(0, row)->isEnabled());
        QVERIFY(!Editor(1, row)->isEnabled());
    }
    const QAbstractItemModel& model = *mp_tree->model();
    QCOMPARE(model.rowCount(model.index(3, 0)), 0);
}

void PartTreePageTest::aLockedPartCanOnlyBeUnlocked()
{
    qobject_cast<QCheckBox*>(Editor(0, 2))->click();
    QVERIFY(Selected().locked);
    QVERIFY(!Editor(1, 0)->isEnabled() && !Editor(0, 1)->isEnabled());
    QVERIFY(Editor(0, 2)->isEnabled());
    qobject_cast<QCheckBox*>(Editor(0, 2))->click();
    QVERIFY(!Selected().locked && Editor(1, 0)->isEnabled());
}

OVK_TEST_CLASS(PartTreePageTest)

#include "part_tree_page_test.moc"
