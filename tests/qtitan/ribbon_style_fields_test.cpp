#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QStyleOption>
#include <QStyledItemDelegate>

using namespace Qtitan;

/// Fields to write in and to choose from.
class RibbonStyleFieldsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldThatCanOnlyBeReadLooksSo();
    void theTextOfAComboBoxStandsStill();
    void theListOfAComboBoxLooksLikeOtherLists();
    void buttonsOfASpinBoxFillItsEnd_data();
    void buttonsOfASpinBoxFillItsEnd();
};

void RibbonStyleFieldsTest::aFieldThatCanOnlyBeReadLooksSo()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QLineEdit edit;
        edit.setReadOnly(true);
        edit.resize(80, 24);
        const RibbonTheme& theme = style->ribbonTheme();
        QCOMPARE(edit.grab().toImage().pixelColor(40, 12), theme[Element::EditDisabled].middle);
        // A host's own colour stays.
        QPalette own = edit.palette();
        own.setColor(QPalette::Base, QColor(250, 180, 180));
        edit.setPalette(own);
        QCOMPARE(edit.grab().toImage().pixelColor(40, 12), QColor(250, 180, 180));
        edit.setPalette(QPalette());
        edit.setReadOnly(false);
        QCOMPARE(edit.grab().toImage().pixelColor(40, 12), theme.palette().color(QPalette::Base));
    }
}

void RibbonStyleFieldsTest::theTextOfAComboBoxStandsStill()
{
    style_test::ApplicationStyle style;
    QStyleOptionComboBox option;
    option.rect = QRect(0, 0, 100, 24);
    option.state = QStyle::State_Enabled;
    const QRect still =
        style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField);
    option.state |= QStyle::State_Sunken | QStyle::State_On;
    QCOMPARE(style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField),
             still);
}

void RibbonStyleFieldsTest::theListOfAComboBoxLooksLikeOtherLists()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2013White);
    QComboBox combo;
    combo.setFont(style_test::TestFont());
    combo.addItems({QStringLiteral("First"), QStringLiteral("Second")});
    combo.insertSeparator(1);
    combo.setCurrentIndex(2);
    combo.show();
    QVERIFY(QTest::qWaitForWindowExposed(&combo));
    combo.showPopup();
    QAbstractItemView* view = combo.view();
    QTRY_VERIFY(view->isVisible());
    QListWidget list;
    list.setFont(style_test::TestFont());
    list.addItem(QStringLiteral("First"));
    QCOMPARE(view->visualRect(combo.model()->index(0, 0)).height(), list.sizeHintForRow(0));
    QVERIFY(view->visualRect(combo.model()->index(1, 0)).height() < 10);
    // The first time too, all rows have their place.
    QVERIFY(view->viewport()->rect().contains(view->visualRect(combo.model()->index(2, 0))));
    const QRect current = view->visualRect(combo.model()->index(2, 0));
    const QImage picture = view->viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(current.right() - 3, current.center().y()),
             style->ribbonTheme()[Element::ItemSelected].middle);
    combo.hidePopup();

    // A delegate of the host's stays.
    QComboBox other;
    auto* own = new QStyledItemDelegate(&other);
    other.setItemDelegate(own);
    other.addItem(QStringLiteral("First"));
    other.show();
    other.showPopup();
    QCOMPARE(other.itemDelegate(), own);
    other.hidePopup();
}

void RibbonStyleFieldsTest::buttonsOfASpinBoxFillItsEnd_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<int>("height");
    for (const int height : {18, 23, 24, 40}) {
        QTest::addRow("left to right, %d high", height) << false << height;
        QTest::addRow("right to left, %d high", height) << true << height;
    }
}

void RibbonStyleFieldsTest::buttonsOfASpinBoxFillItsEnd()
{
    QFETCH(bool, mirrored);
    QFETCH(int, height);
    style_test::ApplicationStyle style;
    QStyleOptionSpinBox option;
    option.rect = QRect(0, 0, 90, height);
    option.direction = mirrored ? Qt::RightToLeft : Qt::LeftToRight;
    option.frame = true;
    option.subControls = QStyle::SC_All;
    const auto rect = [&](QStyle::SubControl control) {
        return style->subControlRect(QStyle::CC_SpinBox, &option, control);
    };
    const QRect up = rect(QStyle::SC_SpinBoxUp);
    const QRect down = rect(QStyle::SC_SpinBoxDown);
    const QRect text = rect(QStyle::SC_SpinBoxEditField);
    QCOMPARE(up.top(), 1);
    QCOMPARE(down.bottom(), height - 2);
    QCOMPARE(up.bottom() + 1, down.top());
    QVERIFY(qAbs(up.height() - down.height()) <= 1);
    QCOMPARE(mirrored ? up.left() : up.right(), mirrored ? 1 : 88);
    QVERIFY(!text.intersects(up) && !text.intersects(down));
}

OVK_TEST_CLASS(RibbonStyleFieldsTest)

#include "ribbon_style_fields_test.moc"
