#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QAction>
#include <QBuffer>
#include <QHBoxLayout>
#include <QToolTip>

using namespace ovk;
using ovk_test::Picture;

namespace {

class ExposedTooltip : public Tooltip
{
public:
    using Tooltip::_FormHtmlTooltipString;
};

} // namespace

class SmallWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aButtonLooksLikeItsAction();
    void aClickTriggersTheAction();
    void anotherActionTakesTheButtonOver();
    void theSameActionTwiceIsTriggeredTwice();
    void aButtonOutlivesItsAction();
    void aCheckableActionAndItsButtonAgree();
    void aClickSkipsThePartialState();
    void theExpanderShowsItsState();
    void anExpandedButtonIsNotDrawnPressed();
    void theExpandersArrowIsBesideItsText_data();
    void theExpandersArrowIsBesideItsText();
    void uncheckingHidesTheContents();
    void aFlatBoxIsFlatAgain();
    void aBoxThatDoesNotCollapseKeepsItsContents();
    void collapsivenessComesAndGoes();
    void aChildOfACollapsedBoxIsHidden_data();
    void aChildOfACollapsedBoxIsHidden();
    void theToolTipHasItsCells_data();
    void theToolTipHasItsCells();
    void theToolTipKeepsWhatLooksLikeAMark();
    void theToolTipComesWithThePointer();
    void theIconIsNoPartOfTheToolTip();
};

void SmallWidgetsTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void SmallWidgetsTest::aButtonLooksLikeItsAction()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    QAction action(QIcon(pixmap), "Slice");
    action.setStatusTip("status");
    action.setToolTip("tip");
    action.setEnabled(false);
    ActionButton button;
    button.SetAction(&action);
    QCOMPARE(button.text(), QString("Slice"));
    QCOMPARE(button.statusTip(), QString("status"));
    QCOMPARE(button.toolTip(), QString("tip"));
    QCOMPARE(button.icon().cacheKey(), action.icon().cacheKey());
    QVERIFY(!button.isEnabled());
    QVERIFY(!button.isCheckable());
    action.setEnabled(true);
    action.setText("Stop");
    action.setCheckable(true);
    action.setChecked(true);
    QCOMPARE(button.text(), QString("Stop"));
    QVERIFY(button.isEnabled() && button.isCheckable() && button.isChecked());
}

void SmallWidgetsTest::aClickTriggersTheAction()
{
    QAction action;
    ActionButton button;
    button.setDefaultAction(&action);
    QSignalSpy spy(&action, &QAction::triggered);
    button.click();
    QCOMPARE(spy.size(), 1);
}

void SmallWidgetsTest::anotherActionTakesTheButtonOver()
{
    QAction first("first"), second("second");
    ActionButton button;
    button.SetAction(&first);
    button.SetAction(&second);
    QSignalSpy firstSpy(&first, &QAction::triggered), secondSpy(&second, &QAction::triggered);
    button.click();
    QCOMPARE(firstSpy.size(), 0);
    QCOMPARE(secondSpy.size(), 1);
    first.setText("changed");
    QCOMPARE(button.text(), QString("second"));
}

void SmallWidgetsTest::theSameActionTwiceIsTriggeredTwice()
{
    QAction action;
    ActionButton button;
    button.SetAction(&action);
    button.SetAction(&action);
    QSignalSpy spy(&action, &QAction::triggered);
    button.click();
    QCOMPARE(spy.size(), 2);
}

void SmallWidgetsTest::aButtonOutlivesItsAction()
{
    ActionButton button;
    {
        QAction gone("gone");
        button.SetAction(&gone);
    }
    button.click();
    QAction next("next");
    button.SetAction(&next);
    QCOMPARE(button.text(), QString("next"));
    button.SetAction(nullptr);
    QSignalSpy spy(&next, &QAction::triggered);
    button.click();
    QCOMPARE(spy.size(), 0);
}

void SmallWidgetsTest::aCheckableActionAndItsButtonAgree()
{
    QAction action;
    action.setCheckable(true);
    ActionButton button;
    button.SetAction(&action);
    for (const bool checked : {true, false, true}) {
        button.click();
        QCOMPARE(action.isChecked(), checked);
        QCOMPARE(button.isChecked(), checked);
    }
}

void SmallWidgetsTest::aClickSkipsThePartialState()
{
    CheckBox box;
    box.setTristate(true);
    box.click();
    QCOMPARE(box.checkState(), Qt::Checked);
    box.click();
    QCOMPARE(box.checkState(), Qt::Unchecked);
    box.setCheckState(Qt::PartiallyChecked);
    QSignalSpy spy(&box, &QCheckBox::stateChanged);
    box.click();
    QCOMPARE(box.checkState(), Qt::Unchecked);
    box.click();
    QCOMPARE(box.checkState(), Qt::Checked);
    QCOMPARE(spy.size(), 2);
}

void SmallWidgetsTest::theExpanderShowsItsState()
{
    ExpanderButton button("Details");
    QCOMPARE(button.text(), QString("Details"));
    QVERIFY(button.autoRaise() && button.isCheckable());
    QCOMPARE(button.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button.arrowType(), Qt::RightArrow);
    button.click();
    QVERIFY(button.isExpanded());
    QCOMPARE(button.arrowType(), Qt::DownArrow);
    button.setExpanded(false);
    QCOMPARE(button.arrowType(), Qt::RightArrow);
    QVERIFY(button.setProperty("isExpanded", true));
    QVERIFY(button.isChecked());
    QCOMPARE(ExpanderButton().text(), QString());
}

void SmallWidgetsTest::anExpandedButtonIsNotDrawnPressed()
{
    ExpanderButton button(QString(6, QLatin1Char(' ')));
    button.resize(100, 30);
    const QImage collapsed = Picture(button);
    button.setExpanded(true);
    const QImage expanded = Picture(button);
    // The arrows differ, the ground beside them does not.
    QVERIFY(collapsed != expanded);
    QCOMPARE(expanded.copy(50, 0, 50, 30), collapsed.copy(50, 0, 50, 30));
}

void SmallWidgetsTest::theExpandersArrowIsBesideItsText_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("expanded");
    for (const bool expanded : {false, true}) {
        QTest::addRow("left to right, %d", expanded) << int(Qt::LeftToRight) << expanded;
        QTest::addRow("right to left, %d", expanded) << int(Qt::RightToLeft) << expanded;
    }
}

void SmallWidgetsTest::theExpandersArrowIsBesideItsText()
{
    QFETCH(int, direction);
    QFETCH(bool, expanded);
    const auto ink = [&](const QString& text) {
        ExpanderButton button(text);
        button.setLayoutDirection(Qt::LayoutDirection(direction));
        button.setExpanded(expanded);
        button.resize(200, 30);
        const QImage picture = Picture(button);
        const QRgb ground = picture.pixel(100, 2);
        QVector<int> columns;
        for (int x = 4; x < 196; ++x) {
            for (int y = 4; y < 26; ++y) {
                if (picture.pixel(x, y) != ground) {
                    columns << x;
                    break;
                }
            }
        }
        return columns;
    };
    const QVector<int> arrow = ink(QString());
    const QVector<int> both = ink("Details");
    QVERIFY(!arrow.isEmpty() && both.size() > arrow.size() + 10);
    // The arrow is where it is without a text, at its side; the text does not touch it.
    if (direction == Qt::RightToLeft) {
        QVERIFY(arrow.first() > 150);
        QCOMPARE(both.last(), arrow.last());
        QVERIFY(!both.contains(arrow.first() - 1));
    } else {
        QVERIFY(arrow.last() < 50);
        QCOMPARE(both.first(), arrow.first());
        QVERIFY(!both.contains(arrow.last() + 1));
    }
}

void SmallWidgetsTest::uncheckingHidesTheContents()
{
    GroupBox box("Supports");
    QCOMPARE(box.title(), QString("Supports"));
    auto* const layout = new QHBoxLayout(&box);
    auto* const child = new QWidget;
    layout->addWidget(child);
    QVERIFY(box.isCheckable() && box.isChecked() && box.isCollapsive());
    box.setChecked(false);
    QVERIFY(child->isHidden());
    QVERIFY(box.isFlat());
    box.setChecked(true);
    QVERIFY(!child->isHidden());
    QVERIFY(!box.isFlat());
    box.setCollapsed(true);
    QVERIFY(child->isHidden());
    QVERIFY(box.isChecked());
    box.setExpanded(true);
    QVERIFY(!child->isHidden());
}

void SmallWidgetsTest::aFlatBoxIsFlatAgain()
{
    GroupBox box;
    box.setFlat(true);
    box.setChecked(false);
    box.setChecked(true);
    QVERIFY(box.isFlat());
    box.setFlat(false);
    box.setChecked(false);
    QVERIFY(box.isFlat());
    box.setChecked(true);
    QVERIFY(!box.isFlat());
}

void SmallWidgetsTest::aBoxThatDoesNotCollapseKeepsItsContents()
{
    GroupBox box;
    auto* const child = new QWidget(&box);
    box.setCollapsive(false);
    box.setChecked(false);
    QVERIFY(!child->isHidden());
    QVERIFY(!box.isFlat());
    box.setCollapsed(true);
    QVERIFY(!child->isHidden());
}

void SmallWidgetsTest::collapsivenessComesAndGoes()
{
    GroupBox box;
    auto* const child = new QWidget(&box);
    box.setChecked(false);
    QVERIFY(child->isHidden());
    QVERIFY(box.setProperty("collapsive", false));
    QVERIFY(!child->isHidden());
    QVERIFY(!box.isFlat());
    QVERIFY(!box.isChecked());
    box.setCollapsive(true);
    QVERIFY(child->isHidden());
    QVERIFY(box.isFlat());
}

void SmallWidgetsTest::aChildOfACollapsedBoxIsHidden_data()
{
    QTest::addColumn<bool>("collapsive");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("hidden");
    QTest::newRow("collapsed") << true << false << true;
    QTest::newRow("expanded") << true << true << false;
    QTest::newRow("not collapsive") << false << false << false;
}

void SmallWidgetsTest::aChildOfACollapsedBoxIsHidden()
{
    QFETCH(bool, collapsive);
    QFETCH(bool, checked);
    QFETCH(bool, hidden);
    GroupBox box;
    box.setCollapsive(collapsive);
    box.setChecked(checked);
    auto* const child = new QWidget(&box);
    auto* const other = new QWidget;
    other->setParent(&box);
    box.show();
    QCOMPARE(child->isHidden(), hidden);
    QCOMPARE(child->isEnabled(), true);
    other->show();
    new QObject(&box);
    QCOMPARE(other->isVisible(), true);
}

void SmallWidgetsTest::theToolTipHasItsCells_data()
{
    QTest::addColumn<bool>("image");
    QTest::addColumn<QString>("message");
    QTest::newRow("both") << true << "Text";
    QTest::newRow("image alone") << true << "";
    QTest::newRow("message alone") << false << "Text";
    QTest::newRow("none") << false << "";
}

void SmallWidgetsTest::theToolTipHasItsCells()
{
    QFETCH(bool, image);
    QFETCH(QString, message);
    QPixmap pixmap(4, 4);
    pixmap.fill(Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    pixmap.save(&buffer, "PNG", 100);
    ExposedTooltip tooltip;
    if (image)
        tooltip.setImage(pixmap);
    tooltip.setProperty("tooltip", message);
    QString expected = "<table cellspacing=16><tr>";
    if (image)
        expected += "<td valign=\"middle\"><img src='data:/image/png;base64, " + bytes.toBase64() +
                    "'></img></td>";
    if (!message.isEmpty())
        expected += "<td align=\"left\" valign=\"top\">" + message + "</td>";
    expected += "</tr></table>";
    QCOMPARE(tooltip._FormHtmlTooltipString(), expected);
    QCOMPARE(tooltip.getMessage(), message);
    QCOMPARE(tooltip.property("image").value<QPixmap>().isNull(), !image);
    tooltip.setImage(QPixmap());
    QVERIFY(!tooltip._FormHtmlTooltipString().contains("img"));
}

void SmallWidgetsTest::theToolTipKeepsWhatLooksLikeAMark()
{
    ExposedTooltip tooltip;
    tooltip.setMessage("100 %1 %2");
    QCOMPARE(tooltip._FormHtmlTooltipString(),
             QString("<table cellspacing=16><tr><td align=\"left\" valign=\"top\">100 %1 "
                     "%2</td></tr></table>"));
}

void SmallWidgetsTest::theToolTipComesWithThePointer()
{
    ExposedTooltip tooltip;
    QEnterEvent enter(QPointF(0, 0), QPointF(0, 0), QPointF(0, 0));
    QEvent leave(QEvent::Leave);
    QVERIFY(!tooltip.eventFilter(&tooltip, &enter));
    QVERIFY(!QToolTip::isVisible());
    tooltip.setMessage("Text");
    QApplication::sendEvent(&tooltip, &enter);
    QCOMPARE(QToolTip::text(), tooltip._FormHtmlTooltipString());
    QVERIFY(!tooltip.eventFilter(&tooltip, &leave));
    QTRY_VERIFY(!QToolTip::isVisible());
}

void SmallWidgetsTest::theIconIsNoPartOfTheToolTip()
{
    ExposedTooltip tooltip;
    QPixmap pixmap(5, 5);
    pixmap.fill(Qt::red);
    tooltip.setIcon(pixmap);
    QCOMPARE(tooltip.pixmap(Qt::ReturnByValue).toImage(), pixmap.toImage());
    QCOMPARE(tooltip.property("icon").value<QPixmap>().toImage(), pixmap.toImage());
    QVERIFY(!tooltip._FormHtmlTooltipString().contains("td"));
}

OVK_TEST_CLASS(SmallWidgetsTest)

#include "small_widgets_test.moc"
