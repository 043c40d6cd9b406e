#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QAction>
#include <QBuffer>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

using namespace ovk;
using ovk_test::Picture;

namespace {

class Switcher : public MSwitcher
{
public:
    using MSwitcher::MSwitcher;
    void Enter()
    {
        QEvent event(QEvent::Enter);
        enterEvent(&event);
    }
};

class ExposedTooltip : public Tooltip
{
public:
    using Tooltip::_FormHtmlTooltipString;
};

/// The switch as it is told to look, with the thumb at \a thumbX.
QImage SwitchPicture(const QSize& size, int thumbX, bool disabled, bool on, const QColor& track)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRoundedRect(QRectF(3, 3, size.width() - 6, size.height() - 6), 6, 6, Qt::AbsoluteSize);
    painter.setOpacity(disabled ? 0.12 : on ? 0.5 : 0.38);
    painter.setBrush(!disabled && on ? track : QColor("#000000"));
    painter.drawPath(path.simplified());
    painter.setOpacity(1.0);
    painter.setBrush(disabled ? QColor("#BDBDBD") : on ? track : QColor("#C8C8C8"));
    painter.drawEllipse(thumbX - 6, 0, size.height(), size.height());
    return image;
}

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
    void theSwitchHasItsSize();
    void theSwitchIsPainted_data();
    void theSwitchIsPainted();
    void aClickIsToldOnce();
    void onlyTheLeftButtonSwitches();
    void aDisabledSwitchStays();
    void theThumbMovesToTheEnd();
    void aResizedSwitchShowsItsThumbAtTheLeft();
    void thePointerIsAHandOverTheSwitch();
    void aSwitchOfADisabledFormLooksDisabled();
    void aClickByTheProgramSwitches();
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

void SmallWidgetsTest::theSwitchHasItsSize()
{
    MSwitcher switcher;
    QCOMPARE(switcher.minimumSizeHint(), QSize(30, 18));
    QCOMPARE(switcher.sizeHint(), QSize(30, 18));
    class Wide : public MSwitcher
    {
        QSize minimumSizeHint() const override { return QSize(50, 20); }
    };
    QCOMPARE(Wide().sizeHint(), QSize(50, 20));
}

void SmallWidgetsTest::theSwitchIsPainted_data()
{
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QColor>("track");
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(30, 18), QSize(60, 24)}) {
        QTest::addRow("off, %d", size.width()) << false << false << QColor() << size;
        QTest::addRow("on, %d", size.width()) << false << true << QColor() << size;
        QTest::addRow("on in red, %d", size.width()) << false << true << QColor(Qt::red) << size;
        QTest::addRow("disabled, %d", size.width()) << true << false << QColor() << size;
        QTest::addRow("disabled while on, %d", size.width()) << true << true << QColor() << size;
    }
}

void SmallWidgetsTest::theSwitchIsPainted()
{
    QFETCH(bool, disabled);
    QFETCH(bool, on);
    QFETCH(QColor, track);
    QFETCH(QSize, size);
    const std::unique_ptr<MSwitcher> switcher(track.isValid() ? new MSwitcher(track)
                                                              : new MSwitcher);
    switcher->resize(size);
    Picture(*switcher);
    switcher->setToggle(on);
    switcher->setDisable(disabled);
    const QColor color = track.isValid() ? track : QColor("#2196F3");
    QCOMPARE(Picture(*switcher), SwitchPicture(size, 6, disabled, on, color));
}

void SmallWidgetsTest::aClickIsToldOnce()
{
    MSwitcher switcher;
    switcher.resize(30, 18);
    QSignalSpy spy(&switcher, &MSwitcher::toggled);
    switcher.setToggle(true);
    switcher.setToggle(false);
    QCOMPARE(spy.size(), 0);
    QTest::mouseClick(&switcher, Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QVERIFY(switcher.isToggled());
    QTest::mouseClick(&switcher, Qt::LeftButton);
    QCOMPARE(spy.size(), 2);
    QVERIFY(!switcher.isToggled());
}

void SmallWidgetsTest::onlyTheLeftButtonSwitches()
{
    MSwitcher switcher;
    switcher.resize(30, 18);
    const struct
    {
        QEvent::Type type;
        Qt::MouseButton button;
        bool accepted;
    } rows[] = {{QEvent::MouseButtonPress, Qt::LeftButton, true},
                {QEvent::MouseButtonPress, Qt::RightButton, false},
                {QEvent::MouseButtonRelease, Qt::RightButton, false},
                {QEvent::MouseButtonRelease, Qt::LeftButton, true}};
    for (const auto& row : rows) {
        const bool press = row.type == QEvent::MouseButtonPress;
        QMouseEvent event(row.type, QPoint(5, 5), row.button, press ? row.button : Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&switcher, &event);
        QCOMPARE(event.isAccepted(), row.accepted);
    }
    QVERIFY(switcher.isToggled());
}

void SmallWidgetsTest::aDisabledSwitchStays()
{
    MSwitcher switcher;
    switcher.setDisable(true);
    QVERIFY(switcher.isDisable() && switcher.isEnabled());
    QSignalSpy spy(&switcher, &MSwitcher::toggled);
    QTest::mouseClick(&switcher, Qt::LeftButton);
    QVERIFY(!switcher.isToggled());
    QCOMPARE(spy.size(), 0);
}

void SmallWidgetsTest::theThumbMovesToTheEnd()
{
    MSwitcher switcher;
    switcher.resize(30, 18);
    Picture(switcher);
    auto* const timer = switcher.findChild<QTimer*>();
    switcher.setToggle(true);
    const QColor track("#2196F3");
    QTRY_COMPARE(Picture(switcher), SwitchPicture(QSize(30, 18), 18, false, true, track));
    Q_UNUSED(timer);
    switcher.setToggle(false);
    QTRY_COMPARE(Picture(switcher), SwitchPicture(QSize(30, 18), 6, false, false, track));
    // It has stopped there: as many steps again change nothing.
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(clock.elapsed() > 40);
    QCOMPARE(Picture(switcher), SwitchPicture(QSize(30, 18), 6, false, false, track));
}

void SmallWidgetsTest::aResizedSwitchShowsItsThumbAtTheLeft()
{
    MSwitcher switcher;
    switcher.resize(30, 18);
    Picture(switcher);
    const QColor track("#2196F3");
    switcher.setToggle(true);
    QTRY_COMPARE(Picture(switcher), SwitchPicture(QSize(30, 18), 18, false, true, track));
    switcher.resize(40, 18);
    QCOMPARE(Picture(switcher), SwitchPicture(QSize(40, 18), 6, false, true, track));
    switcher.setToggle(true);
    QTest::qWait(0);
    QCOMPARE(Picture(switcher), SwitchPicture(QSize(40, 18), 6, false, true, track));
}

void SmallWidgetsTest::thePointerIsAHandOverTheSwitch()
{
    Switcher switcher;
    switcher.Enter();
    QCOMPARE(switcher.cursor().shape(), Qt::PointingHandCursor);
}

void SmallWidgetsTest::aSwitchOfADisabledFormLooksDisabled()
{
    QWidget form;
    MSwitcher switcher(&form);
    switcher.resize(30, 18);
    Picture(switcher);
    switcher.setToggle(true);
    form.setEnabled(false);
    QVERIFY(!switcher.isDisable());
    QCOMPARE(Picture(switcher), SwitchPicture(QSize(30, 18), 6, true, true, QColor()));
}

void SmallWidgetsTest::aClickByTheProgramSwitches()
{
    MSwitcher switcher;
    QSignalSpy spy(&switcher, &MSwitcher::toggled);
    switcher.click();
    QVERIFY(switcher.isToggled());
    QCOMPARE(spy.size(), 1);
    switcher.setDisable(true);
    switcher.click();
    QVERIFY(switcher.isToggled());
    QCOMPARE(spy.size(), 1);
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
