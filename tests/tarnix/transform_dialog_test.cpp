#include "../support/test_main.h"

#include "app/transform_dialog.h"
#include "host_fixture.h"
#include "model/primitives.h"

#include <ovk/preferences/pref_ui.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>

using namespace tarnix;
using tarnix_test::HostFixture;

/// The dialog of moves, whose fields are bound to values.
class TransformDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_host = std::make_unique<HostFixture>("Tarnix"); }
    void cleanupTestCase() { m_host.reset(); }
    void init()
    {
        m_host->CloseDialogs();
        S().RestoreDefaults();
        Apply();
    }
    void theUnitGoesIntoTheFields();
    void theDialogOfMovesLoadsAndCommits();
    void theDialogOfMovesRefusesWhatLeavesTheVolume();
    void theDialogOfMovesKeepsChangesWhenTheUnitChanges();
    void anEmptyFieldIsNotCommitted();

private:
    Settings& S() { return m_host->GetHost().settings; }
    void Apply() { m_host->GetHost().ApplySettings(); }
    QDialog* OpenMoves()
    {
        m_host->CloseDialogs();
        Scene& scene = m_host->GetWorkspace().GetScene();
        scene.Reset({});
        scene.Add(QStringLiteral("Add"),
                  {Part("box", std::make_shared<const Mesh>(MakeBox({20, 10, 5})), PartColor(0))});
        m_host->GetWorkspace().last_move = MoveTurn();
        return m_host->Run("Move.By") ? m_host->Window().findChild<QDialog*>("transformDialog")
                                      : nullptr;
    }

    std::unique_ptr<HostFixture> m_host;
};

void TransformDialogTest::theUnitGoesIntoTheFields()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const editor = dialog->findChild<QDoubleSpinBox*>("moveX");
    QVERIFY(!editor->text().contains("mm"));
    g_pref_suffix_in_editor.SetData(true);
    Apply();
    QVERIFY(editor->text().endsWith("mm"));
    g_pref_suffix_in_editor.SetData(false);
    Apply();
    QVERIFY(!editor->text().contains("mm"));
}

void TransformDialogTest::theDialogOfMovesLoadsAndCommits()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    Scene& scene = m_host->GetWorkspace().GetScene();
    const int steps = scene.UndoTitles().size();
    auto* const buttons = dialog->findChild<QDialogButtonBox*>();
    QVERIFY(!buttons->button(QDialogButtonBox::Reset)->isEnabled());
    dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(30.0);
    dialog->findChild<QDoubleSpinBox*>("moveZ")->setValue(4.0);
    dialog->findChild<QDoubleSpinBox*>("turnZ")->setValue(90.0);
    QVERIFY(buttons->button(QDialogButtonBox::Reset)->isEnabled());
    QCOMPARE(scene.UndoTitles().size(), steps);
    buttons->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(scene.UndoTitles().size(), steps + 1);
    const Box box = scene.Parts()[0].Bounds();
    QVERIFY(std::abs(box.Center().x - 30.0) < 1e-6);
    QVERIFY(std::abs(box.low.z - 4.0) < 1e-6);
    QVERIFY(std::abs(box.Size().x - 10.0) < 1e-6);
    QVERIFY(std::abs(box.Size().y - 20.0) < 1e-6);
    QCOMPARE(m_host->GetWorkspace().last_move.shift.x, 30.0);

    // The next dialog starts with what the last one was told; Cancel tells nobody.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_host->Run("Move.By"));
    auto* const next = m_host->Window().findChild<QDialog*>("transformDialog");
    QCOMPARE(next->findChild<QDoubleSpinBox*>("moveX")->value(), 30.0);
    next->findChild<QDoubleSpinBox*>("moveX")->setValue(1.0);
    next->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Reset)->click();
    QCOMPARE(next->findChild<QDoubleSpinBox*>("moveX")->value(), 30.0);
    next->findChild<QDoubleSpinBox*>("moveX")->setValue(1.0);
    next->reject();
    QCOMPARE(m_host->GetWorkspace().last_move.shift.x, 30.0);
    QCOMPARE(scene.UndoTitles().size(), steps + 1);
}

void TransformDialogTest::theDialogOfMovesRefusesWhatLeavesTheVolume()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    QVERIFY(ok->isEnabled());
    dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(400.0);
    QVERIFY(!ok->isEnabled());
    dialog->findChild<QCheckBox*>("keepInside")->setChecked(false);
    QVERIFY(ok->isEnabled());
    dialog->findChild<QCheckBox*>("keepInside")->setChecked(true);
    QVERIFY(!ok->isEnabled());
    dialog->findChild<QDoubleSpinBox*>("moveX")->setValue(40.0);
    QVERIFY(ok->isEnabled());
}

void TransformDialogTest::theDialogOfMovesKeepsChangesWhenTheUnitChanges()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const editor = dialog->findChild<QDoubleSpinBox*>("moveY");
    editor->setValue(50.8);
    S().inches.SetData(true);
    Apply();
    QCOMPARE(editor->value(), 2.0);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->click();
    QVERIFY(std::abs(m_host->GetWorkspace().GetScene().Parts()[0].Bounds().Center().y - 50.8) <
            1e-6);
    QVERIFY(std::abs(m_host->GetWorkspace().last_move.shift.y - 50.8) < 1e-6);
}

void TransformDialogTest::anEmptyFieldIsNotCommitted()
{
    QDialog* const dialog = OpenMoves();
    QVERIFY(dialog);
    auto* const ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    auto* const line = dialog->findChild<QDoubleSpinBox*>("moveX")->findChild<QLineEdit*>();
    line->clear();
    QVERIFY(!ok->isEnabled());
    line->setText("12");
    QVERIFY(ok->isEnabled());
}

OVK_TEST_CLASS(TransformDialogTest)

#include "transform_dialog_test.moc"
