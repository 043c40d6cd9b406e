#include "tests/support/test_main.h"
#include "tests/widgets/widget_picture.h"

#include <ovk/widgets.h>

#include <QPainter>
#include <QPainterPath>

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

class MSwitcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void MSwitcherTest::theSwitchHasItsSize()
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

void MSwitcherTest::theSwitchIsPainted_data()
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

void MSwitcherTest::theSwitchIsPainted()
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

void MSwitcherTest::aClickIsToldOnce()
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

void MSwitcherTest::onlyTheLeftButtonSwitches()
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

void MSwitcherTest::aDisabledSwitchStays()
{
    MSwitcher switcher;
    switcher.setDisable(true);
    QVERIFY(switcher.isDisable() && switcher.isEnabled());
    QSignalSpy spy(&switcher, &MSwitcher::toggled);
    QTest::mouseClick(&switcher, Qt::LeftButton);
    QVERIFY(!switcher.isToggled());
    QCOMPARE(spy.size(), 0);
}

void MSwitcherTest::theThumbMovesToTheEnd()
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

void MSwitcherTest::aResizedSwitchShowsItsThumbAtTheLeft()
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

void MSwitcherTest::thePointerIsAHandOverTheSwitch()
{
    Switcher switcher;
    switcher.Enter();
    QCOMPARE(switcher.cursor().shape(), Qt::PointingHandCursor);
}

void MSwitcherTest::aSwitchOfADisabledFormLooksDisabled()
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

void MSwitcherTest::aClickByTheProgramSwitches()
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

OVK_TEST_CLASS(MSwitcherTest)

#include "m_switcher_test.moc"
