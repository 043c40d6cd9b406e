#include "tests/support/test_main.h"

#include <ovk/widgets.h>
#include <ovk/widgets/check_combo_model_p.h>

#include <QAbstractItemView>
#include <QLineEdit>

using namespace ovk;

class CheckComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyRowHasABox();
    void theTextNamesWhatIsChecked();
    void theDefaultTextStandsForNothing();
    void everyChangeIsTold();
    void rowsByText();
    void rowsOutsideTheRange();
    void activatingARowTogglesIt();
    void theFieldIsOnlyShown();
    void theCurrentRowIsNotTheText();
    void theWheelChecksNothing();
    void anotherTextOfARowIsShown();
    void aResetModelChecksNothing();
    void theArrowsOpenThePopup_data();
    void theArrowsOpenThePopup();
    void aClickOnARowKeepsThePopupOpen();
    void theKeysThatCloseThePopup_data();
    void theKeysThatCloseThePopup();
    void aPressOutsideClosesThePopup();

private:
    std::unique_ptr<CheckComboBox> mp_box;
};

void CheckComboBoxTest::init()
{
    mp_box = std::make_unique<CheckComboBox>();
    mp_box->addItems({"Shells", "Hatches", "Supports"});
}

void CheckComboBoxTest::cleanup()
{
    mp_box.reset();
}

void CheckComboBoxTest::everyRowHasABox()
{
    QVERIFY(qobject_cast<CheckComboModel*>(mp_box->model()));
    for (int row = 0; row < 3; ++row) {
        const QModelIndex index = mp_box->model()->index(row, 0);
        QVERIFY(index.flags() & Qt::ItemIsUserCheckable);
        QCOMPARE(index.data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
        QCOMPARE(mp_box->itemCheckState(row), Qt::Unchecked);
        QVERIFY(!mp_box->checked(row));
    }
    mp_box->setItemCheckState(1, Qt::PartiallyChecked);
    QCOMPARE(mp_box->itemCheckState(1), Qt::PartiallyChecked);
    QVERIFY(!mp_box->checked(1));
    CheckComboModel empty;
    QCOMPARE(empty.rowCount(), 0);
    QCOMPARE(empty.columnCount(), 1);
    QVERIFY(!empty.data(QModelIndex(), Qt::CheckStateRole).isValid());
}

void CheckComboBoxTest::theTextNamesWhatIsChecked()
{
    QCOMPARE(mp_box->currentText(), QString());
    QCOMPARE(mp_box->separator(), QString(","));
    mp_box->setChecked(2, true);
    QCOMPARE(mp_box->currentText(), QString("Supports"));
    mp_box->setChecked(0, true);
    QCOMPARE(mp_box->currentText(), QString("Shells,Supports"));
    QVERIFY(mp_box->setProperty("separator", " + "));
    QCOMPARE(mp_box->lineEdit()->text(), QString("Shells + Supports"));
    mp_box->setChecked(0, false);
    QCOMPARE(mp_box->currentText(), QString("Supports"));
    mp_box->removeItem(2);
    QCOMPARE(mp_box->currentText(), QString());
    QCOMPARE(mp_box->property("checkedItems").toStringList(), QStringList());
}

void CheckComboBoxTest::theDefaultTextStandsForNothing()
{
    QVERIFY(mp_box->setProperty("defaultText", "(none)"));
    QCOMPARE(mp_box->currentText(), QString("(none)"));
    mp_box->setChecked(1, true);
    QCOMPARE(mp_box->currentText(), QString("Hatches"));
    mp_box->setChecked(1, false);
    QCOMPARE(mp_box->currentText(), QString("(none)"));
    mp_box->clear();
    mp_box->addItem("One");
    QCOMPARE(mp_box->currentText(), QString("(none)"));
}

void CheckComboBoxTest::everyChangeIsTold()
{
    QSignalSpy spy(mp_box.get(), &CheckComboBox::checkedItemsChanged);
    mp_box->setChecked(1, true);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.last().at(0).toStringList(), QStringList{"Hatches"});
    mp_box->setDefaultText("none");
    mp_box->setDefaultText("none");
    mp_box->setSeparator(";");
    mp_box->setSeparator(";");
    QCOMPARE(spy.size(), 3);
    mp_box->addItem("Base");
    QCOMPARE(spy.size(), 4);
    mp_box->removeItem(1);
    QCOMPARE(spy.size(), 5);
    QCOMPARE(spy.last().at(0).toStringList(), QStringList());
}

void CheckComboBoxTest::rowsByText()
{
    mp_box->setCheckedItems({"Hatches", "nothing of the kind", "shells"});
    QCOMPARE(mp_box->checkedItems(), QStringList{"Hatches"});
    mp_box->setCheckedItems({"Shells"});
    QCOMPARE(mp_box->checkedItems(), (QStringList{"Shells", "Hatches"}));
    QVERIFY(mp_box->setProperty("checkedItems", QStringList{"Supports"}));
    QCOMPARE(mp_box->checkedItems().size(), 3);
}

void CheckComboBoxTest::rowsOutsideTheRange()
{
    for (const int row : {-1, 3}) {
        mp_box->setChecked(row, true);
        QVERIFY(!mp_box->checked(row));
        QCOMPARE(mp_box->itemCheckState(row), Qt::Unchecked);
    }
    QCOMPARE(mp_box->checkedItems(), QStringList());
    mp_box->clear();
    QCOMPARE(mp_box->checkedItems(), QStringList());
}

void CheckComboBoxTest::activatingARowTogglesIt()
{
    Q_EMIT mp_box->activated(1);
    QCOMPARE(mp_box->checkedItems(), QStringList{"Hatches"});
    mp_box->setItemCheckState(0, Qt::PartiallyChecked);
    Q_EMIT mp_box->activated(0);
    QCOMPARE(mp_box->itemCheckState(0), Qt::Unchecked);
    Q_EMIT mp_box->activated(1);
    QCOMPARE(mp_box->checkedItems(), QStringList());
    Q_EMIT mp_box->activated(7);
    QCOMPARE(mp_box->checkedItems(), QStringList());
}

void CheckComboBoxTest::theFieldIsOnlyShown()
{
    QVERIFY(mp_box->isEditable());
    QVERIFY(mp_box->lineEdit()->isReadOnly());
    QCOMPARE(mp_box->insertPolicy(), QComboBox::NoInsert);
    QSignalSpy spy(mp_box.get(), &QComboBox::editTextChanged);
    mp_box->lineEdit()->setText("typed");
    QCOMPARE(spy.size(), 0);
}

void CheckComboBoxTest::theCurrentRowIsNotTheText()
{
    mp_box->setDefaultText("(none)");
    QSignalSpy spy(mp_box.get(), &CheckComboBox::checkedItemsChanged);
    mp_box->setCurrentIndex(2);
    QCOMPARE(mp_box->lineEdit()->text(), QString("(none)"));
    QCOMPARE(mp_box->checkedItems(), QStringList());
    QCOMPARE(spy.size(), 0);
}

void CheckComboBoxTest::theWheelChecksNothing()
{
    mp_box->show();
    for (const int delta : {-120, 120, -120}) {
        QWheelEvent wheel(QPointF(5, 5), mp_box->mapToGlobal(QPoint(5, 5)), QPoint(),
                          QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(mp_box.get(), &wheel);
        QVERIFY(!wheel.isAccepted());
    }
    QCOMPARE(mp_box->checkedItems(), QStringList());
}

void CheckComboBoxTest::anotherTextOfARowIsShown()
{
    mp_box->setCheckedItems({"Shells", "Supports"});
    QSignalSpy spy(mp_box.get(), &CheckComboBox::checkedItemsChanged);
    mp_box->setItemText(0, "Walls");
    QCOMPARE(mp_box->lineEdit()->text(), QString("Walls,Supports"));
    QCOMPARE(spy.size(), 0);
}

void CheckComboBoxTest::aResetModelChecksNothing()
{
    mp_box->setDefaultText("(none)");
    mp_box->setCheckedItems({"Shells"});
    mp_box->show();
    mp_box->showPopup();
    qobject_cast<QStandardItemModel*>(mp_box->model())->clear();
    QCOMPARE(mp_box->lineEdit()->text(), QString("(none)"));
    QCOMPARE(mp_box->checkedItems(), QStringList());
    mp_box->QComboBox::hidePopup();
}

void CheckComboBoxTest::theArrowsOpenThePopup_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("opens");
    QTest::newRow("down") << int(Qt::Key_Down) << true;
    QTest::newRow("up") << int(Qt::Key_Up) << true;
    QTest::newRow("a letter") << int(Qt::Key_A) << false;
}

void CheckComboBoxTest::theArrowsOpenThePopup()
{
    QFETCH(int, key);
    QFETCH(bool, opens);
    mp_box->show();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(mp_box.get(), &press);
    QCOMPARE(mp_box->view()->isVisible(), opens);
    QCOMPARE(mp_box->checkedItems(), QStringList());
}

void CheckComboBoxTest::aClickOnARowKeepsThePopupOpen()
{
    mp_box->show();
    mp_box->showPopup();
    QVERIFY(mp_box->view()->isVisible());
    // The combo box takes no release for a while after it opened.
    QTRY_VERIFY([this] {
        const QRect row = mp_box->view()->visualRect(mp_box->model()->index(1, 0));
        QTest::mouseMove(mp_box->view()->viewport(), row.center());
        QTest::mouseClick(mp_box->view()->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
        return mp_box->checked(1);
    }());
    QVERIFY(mp_box->view()->isVisible());
    const QRect row = mp_box->view()->visualRect(mp_box->model()->index(2, 0));
    QTest::mouseMove(mp_box->view()->viewport(), row.center());
    QTest::mouseClick(mp_box->view()->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QCOMPARE(mp_box->currentText(), QString("Hatches,Supports"));
    QVERIFY(mp_box->view()->isVisible());
}

void CheckComboBoxTest::theKeysThatCloseThePopup_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("toggles");
    QTest::newRow("return") << int(Qt::Key_Return) << true;
    QTest::newRow("enter") << int(Qt::Key_Enter) << true;
    QTest::newRow("escape") << int(Qt::Key_Escape) << false;
}

void CheckComboBoxTest::theKeysThatCloseThePopup()
{
    QFETCH(int, key);
    QFETCH(bool, toggles);
    mp_box->show();
    mp_box->showPopup();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(mp_box->view(), &press);
    QTRY_VERIFY(!mp_box->view()->isVisible());
    // The current row is chosen by the key's shortcut override, which comes before the press.
    QCOMPARE(mp_box->checked(0), toggles);
}

void CheckComboBoxTest::aPressOutsideClosesThePopup()
{
    mp_box->show();
    mp_box->showPopup();
    mp_box->hidePopup();
    QVERIFY(mp_box->view()->isVisible());
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(-50, -50), QPoint(-50, -50), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(mp_box->view()->window(), &press);
    QTRY_VERIFY(!mp_box->view()->isVisible());
}

OVK_TEST_CLASS(CheckComboBoxTest)

#include "check_combo_box_test.moc"
