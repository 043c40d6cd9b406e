#include "tests/support/test_main.h"
#include "tests/widgets/tree_edit_form.h"

#include <ovk/widgets/color_text_p.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

Q_DECLARE_METATYPE(std::function<QWidget*()>)

using namespace ovk;
using ovk_test::Form;
using ovk_test::Value;

namespace {

QAccessibleInterface* Interface(QObject& object)
{
    return QAccessible::queryAccessibleInterface(&object);
}

QString Text(QObject& object, QAccessible::Text type)
{
    return Interface(object)->text(type);
}

QAccessible::State State(QObject& object)
{
    return Interface(object)->state();
}

/// Any key, also those that have no letter.
void Click(QWidget& widget, int key)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

/// A widget with its label before it, as in a form.
template <class Widget> class Labelled : public QWidget
{
public:
    explicit Labelled(const QString& text)
    {
        auto* const layout = new QHBoxLayout(this);
        auto* const label = new QLabel(text);
        label->setBuddy(&widget);
        layout->addWidget(label);
        layout->addWidget(&widget);
    }

    Widget widget;
};

} // namespace

class WidgetAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyWidgetHasARoleAndAName_data();
    void everyWidgetHasARoleAndAName();
    void coloursAreToldInWords_data();
    void coloursAreToldInWords();

    void theSwitchIsACheckBox();
    void aClientTogglesTheSwitch();
    void spaceTogglesTheSwitch_data();
    void spaceTogglesTheSwitch();
    void spaceThatWasPressedElsewhereDoesNothing();
    void aSwitchThatIsOffIsToldAsDisabled();

    void theColourEditTellsItsColour();
    void aClientOpensTheColours();
    void theRangeNamesItsEdits();
    void theExpanderTellsItsState();
    void theComboTellsWhatIsChecked();
    void spaceChecksARowOfTheOpenCombo();
    void theToolTipIsTold();
    void theGroupBoxIsACheckBox();
    void editorsOfATreeBearTheirTitles();
};

void WidgetAccessibilityTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void WidgetAccessibilityTest::everyWidgetHasARoleAndAName_data()
{
    QTest::addColumn<std::function<QWidget*()>>("create");
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");
    const auto add = [](const char* row, const std::function<QWidget*()>& create,
                        QAccessible::Role role, const char* name) {
        QTest::newRow(row) << create << int(role) << QString(name);
    };
    using A = QAccessible;
    add(
        "action button",
        [] {
            auto* const button = new ActionButton;
            button->SetAction(new QAction("Slice", button));
            return button;
        },
        A::Button, "Slice");
    add(
        "check box",
        [] {
            auto* const box = new CheckBox;
            box->setText("Supports");
            return box;
        },
        A::CheckBox, "Supports");
    add(
        "expander", [] { return new ExpanderButton("Details"); }, A::Button, "Details");
    add(
        "group box", [] { return new GroupBox("Supports"); }, A::CheckBox, "Supports");
    add(
        "colour edit", [] { return new ColorEdit; }, A::ButtonMenu, "Color");
    add(
        "colour range", [] { return new ColorRangeSelection; }, A::Grouping, "Color Range");
    add(
        "colour map", [] { return new ColorMap; }, A::Graphic, "Color scale");
    add(
        "hue map", [] { return new ColorMapHue; }, A::Graphic, "Color scale");
    add(
        "hue map with labels", [] { return new ColorMapHueWithLabels; }, A::Graphic, "Color scale");
    add(
        "legend", [] { return new ColorLegend; }, A::Slider, "Color legend");
    add(
        "tool tip",
        [] {
            auto* const label = new Tooltip;
            label->setMessage("<b>Angle</b>");
            return label;
        },
        A::StaticText, "Angle");
    add(
        "tool tip of a picture",
        [] {
            auto* const label = new Tooltip;
            QPixmap pixmap(8, 8);
            pixmap.fill(Qt::red);
            label->setIcon(pixmap);
            label->setMessage("Angle");
            return label;
        },
        A::Graphic, "Angle");
    // Views and numbers have no texts of their own: the host, or a label, names them.
    add(
        "table", [] { return new MTableView; }, A::Table, "");
    add(
        "tree", [] { return new MTreeView; }, A::Tree, "");
    add(
        "property tree", [] { return new TreeEdit; }, A::Tree, "");
    add(
        "number", [] { return new EditDblSuffix; }, A::SpinBox, "");
    add(
        "length", [] { return new EditDblUnits; }, A::SpinBox, "");
    add(
        "units", [] { return new UnitsLabel; }, A::StaticText, "mm");
}

void WidgetAccessibilityTest::everyWidgetHasARoleAndAName()
{
    QFETCH(std::function<QWidget*()>, create);
    QFETCH(int, role);
    QFETCH(QString, name);
    // A window bears its title; the widget is none in its place.
    QWidget window;
    QWidget* const widget = create();
    widget->setParent(&window);
    QCOMPARE(int(Interface(*widget)->role()), role);
    QCOMPARE(Text(*widget, QAccessible::Name), name);
    widget->setAccessibleName("of the host");
    QCOMPARE(Text(*widget, QAccessible::Name), QString("of the host"));
}

void WidgetAccessibilityTest::coloursAreToldInWords_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QColor() << "no color";
    QTest::newRow("black") << QColor(0, 0, 0) << "black, #000000";
    QTest::newRow("white") << QColor(255, 255, 255) << "white, #FFFFFF";
    QTest::newRow("gray") << QColor(128, 128, 128) << "gray, #808080";
    QTest::newRow("light gray") << QColor(200, 200, 200) << "light gray, #C8C8C8";
    QTest::newRow("red") << QColor(255, 0, 0) << "red, #FF0000";
    QTest::newRow("red from the other side") << QColor::fromHsl(350, 255, 127) << "red, #FE002A";
    QTest::newRow("orange") << QColor(255, 128, 0) << "orange, #FF8000";
    QTest::newRow("yellow") << QColor(255, 255, 0) << "yellow, #FFFF00";
    QTest::newRow("dark green") << QColor(0, 85, 42) << "dark green, #00552A";
    QTest::newRow("cyan") << QColor(0, 255, 255) << "cyan, #00FFFF";
    QTest::newRow("light blue") << QColor(160, 190, 255) << "light blue, #A0BEFF";
    QTest::newRow("violet") << QColor(140, 0, 255) << "violet, #8C00FF";
    QTest::newRow("magenta") << QColor(255, 0, 255) << "magenta, #FF00FF";
}

void WidgetAccessibilityTest::coloursAreToldInWords()
{
    QFETCH(QColor, color);
    QFETCH(QString, text);
    QCOMPARE(ColorText(color), text);
}

void WidgetAccessibilityTest::theSwitchIsACheckBox()
{
    Labelled<MSwitcher> form("Supports");
    MSwitcher& switcher = form.widget;
    QCOMPARE(Interface(switcher)->role(), QAccessible::CheckBox);
    QCOMPARE(Text(switcher, QAccessible::Name), QString("Supports"));
    QVERIFY(State(switcher).checkable && !State(switcher).checked && State(switcher).focusable);
    switcher.setToggle(true);
    QVERIFY(State(switcher).checked);
    MSwitcher plain;
    plain.setText("Hatches");
    plain.setParent(&form);
    QCOMPARE(Text(plain, QAccessible::Name), QString("Hatches"));
}

void WidgetAccessibilityTest::aClientTogglesTheSwitch()
{
    MSwitcher switcher;
    QSignalSpy spy(&switcher, &MSwitcher::toggled);
    QAccessibleActionInterface* const actions = Interface(switcher)->actionInterface();
    QVERIFY(actions);
    QCOMPARE(actions->actionNames().first(), QAccessibleActionInterface::toggleAction());
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(switcher.isToggled());
    QCOMPARE(spy.size(), 1);
    switcher.setDisable(true);
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(switcher.isToggled());
    QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

void WidgetAccessibilityTest::spaceTogglesTheSwitch_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<bool>("toggled");
    QTest::newRow("space") << int(Qt::Key_Space) << false << true;
    QTest::newRow("select") << int(Qt::Key_Select) << false << true;
    QTest::newRow("another key") << int(Qt::Key_A) << false << false;
    QTest::newRow("disabled") << int(Qt::Key_Space) << true << false;
}

void WidgetAccessibilityTest::spaceTogglesTheSwitch()
{
    QFETCH(int, key);
    QFETCH(bool, disabled);
    QFETCH(bool, toggled);
    MSwitcher switcher;
    switcher.setDisable(disabled);
    QSignalSpy spy(&switcher, &MSwitcher::toggled), clicks(&switcher, &QAbstractButton::clicked);
    Click(switcher, key);
    QCOMPARE(switcher.isToggled(), toggled);
    QCOMPARE(spy.size(), toggled ? 1 : 0);
    // As with the mouse.
    QCOMPARE(clicks.size(), 0);
    Click(switcher, key);
    QCOMPARE(switcher.isToggled(), false);
}

void WidgetAccessibilityTest::spaceThatWasPressedElsewhereDoesNothing()
{
    MSwitcher switcher;
    QTest::keyRelease(&switcher, Qt::Key_Space);
    QVERIFY(!switcher.isToggled());
    QTest::keyPress(&switcher, Qt::Key_Space);
    QVERIFY(!switcher.isToggled());
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&switcher, &out);
    QTest::keyRelease(&switcher, Qt::Key_Space);
    QVERIFY(!switcher.isToggled());
}

void WidgetAccessibilityTest::aSwitchThatIsOffIsToldAsDisabled()
{
    MSwitcher switcher;
    QVERIFY(!State(switcher).disabled);
    switcher.setDisable(true);
    QVERIFY(State(switcher).disabled);
    switcher.setDisable(false);
    switcher.setEnabled(false);
    QVERIFY(State(switcher).disabled);
}

void WidgetAccessibilityTest::theColourEditTellsItsColour()
{
    Labelled<ColorEdit> form("Background");
    ColorEdit& edit = form.widget;
    QCOMPARE(Text(edit, QAccessible::Name), QString("Background"));
    QCOMPARE(Text(edit, QAccessible::Value), QString("no color"));
    edit.setColor(Qt::red);
    QCOMPARE(Text(edit, QAccessible::Value), QString("red, #FF0000"));
    QCOMPARE(Text(edit, QAccessible::Description), QString("red, #FF0000"));
    edit.setToolTip("Behind the parts");
    QCOMPARE(Text(edit, QAccessible::Description), QString("Behind the parts. red, #FF0000"));
    QVERIFY(State(edit).hasPopup);
}

void WidgetAccessibilityTest::aClientOpensTheColours()
{
    ColorEdit edit;
    edit.show();
    QAccessibleActionInterface* const actions = Interface(edit)->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    bool opened = false;
    // The client's call comes back before the popup is closed.
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QTimer closer;
    connect(&closer, &QTimer::timeout, &edit, [&] {
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            opened = popup == edit.menu();
            popup->close();
        }
    });
    closer.start(1);
    QTRY_VERIFY(opened);
}

void WidgetAccessibilityTest::theRangeNamesItsEdits()
{
    ColorRangeSelection range;
    QCOMPARE(Text(*range.getStartColorEdit(), QAccessible::Name), QString("Begin color range"));
    QCOMPARE(Text(*range.getEndColorEdit(), QAccessible::Name), QString("End color range"));
}

void WidgetAccessibilityTest::theExpanderTellsItsState()
{
    ExpanderButton button("Details");
    QVERIFY(State(button).expandable && State(button).collapsed && !State(button).expanded);
    Interface(button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(button.isExpanded());
    QVERIFY(State(button).expanded && !State(button).collapsed);
}

void WidgetAccessibilityTest::theComboTellsWhatIsChecked()
{
    Labelled<CheckComboBox> form("Content");
    CheckComboBox& combo = form.widget;
    combo.addItems({"Shells", "Hatches"});
    combo.setDefaultText("(none)");
    QCOMPARE(Interface(combo)->role(), QAccessible::ComboBox);
    QCOMPARE(Text(combo, QAccessible::Name), QString("Content"));
    QCOMPARE(Text(combo, QAccessible::Value), QString("(none)"));
    combo.setCheckedItems({"Shells", "Hatches"});
    QCOMPARE(Text(combo, QAccessible::Value), QString("Shells,Hatches"));
    QVERIFY(State(combo).collapsed && State(combo).hasPopup);
    form.show();
    QAccessibleActionInterface* const actions = Interface(combo)->actionInterface();
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(State(combo).expanded && combo.view()->isVisible());
    QCOMPARE(Interface(combo)->childCount(), 2);
    QAccessibleInterface* const list = Interface(combo)->child(0);
    QCOMPARE(list->object(), static_cast<QObject*>(combo.view()));
    QCOMPARE(Interface(combo)->indexOfChild(list), 0);
    QCOMPARE(Interface(combo)->indexOfChild(Interface(*combo.lineEdit())), 1);
    QVERIFY(!Interface(combo)->child(2));
    QVERIFY(list->childCount() >= 2);
    QVERIFY(list->child(1)->state().checkable && list->child(1)->state().checked);
    combo.setChecked(1, false);
    QVERIFY(!list->child(1)->state().checked);
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QTRY_VERIFY(!combo.view()->isVisible());
}

void WidgetAccessibilityTest::spaceChecksARowOfTheOpenCombo()
{
    CheckComboBox combo;
    combo.addItems({"Shells", "Hatches"});
    combo.show();
    combo.showPopup();
    combo.view()->setCurrentIndex(combo.model()->index(1, 0));
    QTest::keyClick(combo.view(), Qt::Key_Space);
    QCOMPARE(combo.checkedItems(), QStringList{"Hatches"});
    QCOMPARE(combo.currentText(), QString("Hatches"));
    QVERIFY(combo.view()->isVisible());
    QTest::keyClick(combo.view(), Qt::Key_Space);
    QCOMPARE(combo.checkedItems(), QStringList());
    combo.QComboBox::hidePopup();
}

void WidgetAccessibilityTest::theToolTipIsTold()
{
    QWidget window;
    Tooltip label(&window);
    label.setText("Angle");
    label.setMessage("<b>Overhang</b> angle");
    QCOMPARE(Text(label, QAccessible::Name), QString("Angle"));
    QCOMPARE(Text(label, QAccessible::Description), QString("Overhang angle"));
}

void WidgetAccessibilityTest::theGroupBoxIsACheckBox()
{
    GroupBox box("Supports");
    QVERIFY(State(box).checkable && State(box).checked);
    Interface(box)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!box.isChecked());
    QVERIFY(!State(box).checked);
}

void WidgetAccessibilityTest::editorsOfATreeBearTheirTitles()
{
    Form form;
    Value value(5);
    TreeEditItem* const item = form.AddItem("Copies", new SpinBoxDelegate(0, 9));
    item->SetHint("How often it is printed");
    item->SetDataProvider(&value);
    form.CreateEditors();
    QCOMPARE(Text(*item->GetEditor(), QAccessible::Name), QString("Copies"));
    QCOMPARE(Text(*item->GetEditor(), QAccessible::Description),
             QString("How often it is printed"));
    QCOMPARE(Text(*item->GetEditor(), QAccessible::Value), QString("5"));
    item->SetTitle("Pieces");
    QCOMPARE(Text(*item->GetEditor(), QAccessible::Name), QString("Pieces"));
}

OVK_TEST_CLASS(WidgetAccessibilityTest)

#include "widget_accessibility_test.moc"
