#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QCalendarWidget>
#include <QDial>
#include <QListWidget>
#include <QMdiArea>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleOption>
#include <QTabBar>
#include <QToolBox>
#include <QToolButton>
#include <qtitan/draw_helpers.h>

using namespace Qtitan;

namespace {

/// A tab bar whose options a test may ask for.
class OpenTabBar : public QTabBar
{
public:
    QRect TextRect(int index) const
    {
        QStyleOptionTab option;
        initStyleOption(&option, index);
        return style()->subElementRect(QStyle::SE_TabBarTabText, &option, this);
    }
};

QImage Painted(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The part of all pixels in which two pictures differ.
qreal Difference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 1.0;
    int different = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            different += a.pixel(x, y) != b.pixel(x, y);
    return different / static_cast<qreal>(a.width() * a.height());
}

QImage PaintedControl(QStyle& style, QStyle::ControlElement element, QStyleOption& option)
{
    return style_test::Picture(
        option.rect.size(), 1, QApplication::palette().color(QPalette::Window),
        [&](QPainter& painter) { style.drawControl(element, &option, &painter); });
}

} // namespace

/// Controls that the style draws all by itself.
class RibbonStyleControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closeButtonsOfTabsStayBesideTheText_data();
    void closeButtonsOfTabsStayBesideTheText();
    void aFlatButtonShowsThePointerAndTheFocus();
    void buttonsShowTheFocusOnceTheKeyboardIsUsed();
    void aButtonWithAMenuIsItsMirrorImageFromRightToLeft();
    void rowsWithAndWithoutAPictureAreEquallyHigh();
    void aDialShowsItsValueAndItsState();
    void aDialOfAnyRangeIsDrawn_data();
    void aDialOfAnyRangeIsDrawn();
    void theOpenPageOfAToolBoxIsMarked();
    void signsOfMessagesAreSharpAtEverySize();
    void arrowsOfACalendarReadOnItsBar();
    void anArrowStaysNearTheTextOfASplitButton();
    void anAreaOfWindowsFollowsTheTheme();
    void windowsInsideHaveTheCaptionOfTheTheme();
    void aSortArrowStaysOffTheTitle();
};

void RibbonStyleControlsTest::closeButtonsOfTabsStayBesideTheText_data()
{
    QTest::addColumn<bool>("mirrored");
    QTest::addColumn<bool>("late");
    QTest::addColumn<bool>("icons");
    for (const bool icons : {false, true}) {
        QTest::addRow("left to right%s", icons ? ", icons" : "") << false << false << icons;
        QTest::addRow("right to left%s", icons ? ", icons" : "") << true << false << icons;
        QTest::addRow("right to left, once shown%s", icons ? ", icons" : "")
            << true << true << icons;
    }
}

void RibbonStyleControlsTest::closeButtonsOfTabsStayBesideTheText()
{
    QFETCH(bool, mirrored);
    QFETCH(bool, late);
    QFETCH(bool, icons);
    style_test::ApplicationStyle style;
    OpenTabBar bar;
    bar.setTabsClosable(true);
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    for (const char* title : {"First", "The second", "Third"})
        bar.addTab(icons ? QIcon(picture) : QIcon(), QLatin1String(title));
    bar.setUsesScrollButtons(false);
    if (mirrored && !late)
        bar.setLayoutDirection(Qt::RightToLeft);
    bar.resize(bar.sizeHint());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    if (late)
        bar.setLayoutDirection(Qt::RightToLeft);
    for (int i = 0; i < bar.count(); ++i) {
        QWidget* close = bar.tabButton(i, QTabBar::RightSide);
        if (!close)
            close = bar.tabButton(i, QTabBar::LeftSide);
        QVERIFY(close);
        QTRY_VERIFY2(bar.tabRect(i).contains(close->geometry()), qPrintable(bar.tabText(i)));
        const QRect text = bar.TextRect(i);
        QTRY_VERIFY2(!text.intersects(close->geometry()), qPrintable(bar.tabText(i)));
        if (mirrored)
            QVERIFY(close->geometry().right() < text.left());
        else
            QVERIFY(close->geometry().left() > text.right());
    }
}

void RibbonStyleControlsTest::aFlatButtonShowsThePointerAndTheFocus()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 80, 24);
        option.features = QStyleOptionButton::Flat;
        option.palette = QApplication::palette();
        option.text = QStringLiteral("Flat");
        option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Raised;
        const QImage still = PaintedControl(*style.get(), QStyle::CE_PushButton, option);
        QCOMPARE(still.pixelColor(3, 12), QApplication::palette().color(QPalette::Window));
        option.state |= QStyle::State_MouseOver;
        QVERIFY(Difference(still, PaintedControl(*style.get(), QStyle::CE_PushButton, option)) >
                0.5);
        option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_HasFocus |
                       QStyle::State_KeyboardFocusChange;
        QVERIFY(Difference(still, PaintedControl(*style.get(), QStyle::CE_PushButton, option)) >
                0.02);
    }
}

void RibbonStyleControlsTest::buttonsShowTheFocusOnceTheKeyboardIsUsed()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 80, 24);
        option.features = QStyleOptionButton::DefaultButton;
        option.palette = QApplication::palette();
        option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Raised |
                       QStyle::State_HasFocus;
        const QImage clicked = PaintedControl(*style.get(), QStyle::CE_PushButton, option);
        option.state |= QStyle::State_KeyboardFocusChange;
        QVERIFY(Difference(clicked, PaintedControl(*style.get(), QStyle::CE_PushButton, option)) >
                0.02);
    }
}

void RibbonStyleControlsTest::aButtonWithAMenuIsItsMirrorImageFromRightToLeft()
{
    style_test::ApplicationStyle style;
    QMenu menu;
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QPushButton button(QIcon(picture), QStringLiteral("\u2588\u2588"));
    button.setFont(style_test::TestFont());
    button.setMenu(&menu);
    button.resize(101, 24);
    const QImage plain = Painted(button);
    button.setLayoutDirection(Qt::RightToLeft);
    const QImage mirrored = Painted(button);
    const qreal difference = Difference(plain.mirrored(true, false), mirrored);
    QVERIFY2(difference < 0.02, qPrintable(QString::number(difference)));
}

void RibbonStyleControlsTest::rowsWithAndWithoutAPictureAreEquallyHigh()
{
    style_test::ApplicationStyle style;
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QListWidget list;
    list.setFont(style_test::TestFont());
    list.addItem(QStringLiteral("Plain"));
    list.addItem(new QListWidgetItem(QIcon(picture), QStringLiteral("With a picture")));
    QCOMPARE(list.sizeHintForRow(0), list.sizeHintForRow(1));
}

void RibbonStyleControlsTest::aDialShowsItsValueAndItsState()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QDial dial;
        dial.setNotchesVisible(true);
        dial.resize(60, 60);
        QVector<QImage> pictures;
        for (const int value : {0, 50, 99}) {
            dial.setValue(value);
            pictures.append(Painted(dial));
        }
        dial.setWrapping(true);
        pictures.append(Painted(dial));
        dial.setEnabled(false);
        pictures.append(Painted(dial));
        for (int a = 0; a < pictures.size(); ++a)
            for (int b = a + 1; b < pictures.size(); ++b)
                QVERIFY2(Difference(pictures[a], pictures[b]) > 0.005,
                         qPrintable(QStringLiteral("%1 %2").arg(a).arg(b)));
    }
}

void RibbonStyleControlsTest::aDialOfAnyRangeIsDrawn_data()
{
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("nothing") << 5 << 5;
    QTest::newRow("the wrong way round") << 9 << 3;
    QTest::newRow("all there is") << INT_MIN << INT_MAX;
}

void RibbonStyleControlsTest::aDialOfAnyRangeIsDrawn()
{
    QFETCH(int, least);
    QFETCH(int, most);
    style_test::ApplicationStyle style;
    for (const bool wrapping : {false, true}) {
        QStyleOptionSlider option;
        option.rect = QRect(0, 0, 60, 60);
        option.state = QStyle::State_Enabled;
        option.palette = QApplication::palette();
        option.minimum = least;
        option.maximum = most;
        option.sliderPosition = option.sliderValue = 5;
        option.tickInterval = 1;
        option.dialWrapping = wrapping;
        option.subControls =
            QStyle::SC_DialGroove | QStyle::SC_DialHandle | QStyle::SC_DialTickmarks;
        const QImage picture =
            style_test::Picture(QSize(60, 60), 1, Qt::magenta, [&](QPainter& painter) {
                style->drawComplexControl(QStyle::CC_Dial, &option, &painter);
            });
        QVERIFY(picture.pixelColor(30, 30) != QColor(Qt::magenta));
    }
}

void RibbonStyleControlsTest::theOpenPageOfAToolBoxIsMarked()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2013White);
    QToolBox box;
    box.addItem(new QWidget, QStringLiteral("First"));
    box.addItem(new QWidget, QStringLiteral("Second"));
    box.resize(120, 160);
    const QImage first = Painted(box);
    const QColor marked = style->ribbonTheme()[Element::ButtonChecked].middle;
    const QColor plain = style->ribbonTheme()[Element::DockTitle].middle;
    const int x = 110;
    QCOMPARE(first.pixelColor(x, 8), marked);
    QCOMPARE(first.pixelColor(x, 150), plain);
    box.setCurrentIndex(1);
    const QImage second = Painted(box);
    QCOMPARE(second.pixelColor(x, 8), plain);
}

void RibbonStyleControlsTest::signsOfMessagesAreSharpAtEverySize()
{
    style_test::ApplicationStyle style;
    QVector<QImage> pictures;
    for (const QStyle::StandardPixmap sign :
         {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
          QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical, QStyle::SP_FileIcon,
          QStyle::SP_DirIcon}) {
        for (const int extent : {16, 32, 48, 64}) {
            const QImage picture = style->standardIcon(sign).pixmap(extent, extent).toImage();
            QCOMPARE(picture.size(), QSize(extent, extent));
            QVERIFY(picture.pixelColor(extent / 2, extent / 2).alpha() > 200);
            QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
            if (extent == 32)
                pictures.append(picture);
        }
    }
    for (int a = 0; a < pictures.size(); ++a)
        for (int b = a + 1; b < pictures.size(); ++b)
            QVERIFY(Difference(pictures[a], pictures[b]) > 0.01);
}

void RibbonStyleControlsTest::arrowsOfACalendarReadOnItsBar()
{
    style_test::ApplicationStyle style;
    QCalendarWidget calendar;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        const QPalette palette = QApplication::palette();
        const QImage arrow =
            style->standardIcon(QStyle::SP_ArrowLeft, nullptr, &calendar).pixmap(16, 16).toImage();
        int inked = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                inked += arrow.pixelColor(x, y).alpha() > 200 &&
                         DrawHelpers::contrast(arrow.pixelColor(x, y),
                                               palette.color(QPalette::Highlight)) >= 4.0;
        QVERIFY2(inked >= 4, qPrintable(QString::number(i)));
    }
}

void RibbonStyleControlsTest::anArrowStaysNearTheTextOfASplitButton()
{
    style_test::ApplicationStyle style;
    QMenu menu;
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QToolButton button;
    button.setFont(style_test::TestFont());
    button.setIcon(QIcon(picture));
    button.setText(QStringLiteral("Split"));
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.setAutoRaise(true);
    button.setMenu(&menu);
    button.setPopupMode(QToolButton::MenuButtonPopup);
    const int arrow = style->pixelMetric(QStyle::PM_MenuButtonIndicator, nullptr, &button);
    const int parts =
        16 + QFontMetrics(style_test::TestFont()).horizontalAdvance(button.text()) + arrow;
    QVERIFY(button.sizeHint().width() >= parts);
    QVERIFY2(button.sizeHint().width() <= parts + 20,
             qPrintable(QString::number(button.sizeHint().width() - parts)));
}

void RibbonStyleControlsTest::anAreaOfWindowsFollowsTheTheme()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2007Blue);
    QMdiArea area;
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    const QColor blue = area.background().color();
    style->setTheme(OfficeStyle::Office2013Dark);
    QVERIFY(area.background().color() != blue);
    QVERIFY(DrawHelpers::luminance(area.background().color()) < 0.2);
    area.setBackground(QColor(10, 200, 30));
    style->setTheme(OfficeStyle::Office2010Silver);
    QCOMPARE(area.background().color(), QColor(10, 200, 30));
}

void RibbonStyleControlsTest::windowsInsideHaveTheCaptionOfTheTheme()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QStyleOptionTitleBar bar;
        bar.rect = QRect(0, 0, 200, 24);
        bar.palette = QApplication::palette();
        bar.state = QStyle::State_Enabled | QStyle::State_Active;
        bar.titleBarState = int(QStyle::State_Active);
        bar.titleBarFlags = Qt::SubWindow | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                            Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
        bar.subControls = QStyle::SC_All;
        const auto picture = [&] {
            return style_test::Picture(bar.rect.size(), 1, Qt::magenta, [&](QPainter& painter) {
                style->drawComplexControl(QStyle::CC_TitleBar, &bar, &painter);
            });
        };
        const RibbonTheme& theme = style->ribbonTheme();
        const QImage active = picture();
        QVERIFY(qAbs(active.pixelColor(100, 12).lightness() -
                     theme[Element::Caption].middle.lightness()) < 8);
        bar.titleBarState = 0;
        QVERIFY(qAbs(picture().pixelColor(100, 12).lightness() -
                     theme[Element::CaptionInactive].middle.lightness()) < 8);
        bar.titleBarState = int(QStyle::State_Active);
        bar.activeSubControls = QStyle::SC_TitleBarCloseButton;
        bar.state |= QStyle::State_MouseOver;
        const QRect close =
            style->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarCloseButton);
        QVERIFY(!close.isEmpty());
        QVERIFY(active.copy(close) != picture().copy(close));
        const QRect minimize =
            style->subControlRect(QStyle::CC_TitleBar, &bar, QStyle::SC_TitleBarMinButton);
        QVERIFY(active.copy(minimize) == picture().copy(minimize));
    }
}

void RibbonStyleControlsTest::aSortArrowStaysOffTheTitle()
{
    style_test::ApplicationStyle style;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QStyleOptionHeader option;
        option.rect = QRect(30, 0, 80, 24);
        option.direction = direction;
        option.sortIndicator = QStyleOptionHeader::SortDown;
        const QRect arrow = style->subElementRect(QStyle::SE_HeaderArrow, &option);
        const QRect label = style->subElementRect(QStyle::SE_HeaderLabel, &option);
        QVERIFY(option.rect.contains(arrow.intersected(option.rect)) && !arrow.isEmpty());
        QVERIFY(!arrow.intersects(label));
        QCOMPARE(arrow.left() < label.left(), direction == Qt::RightToLeft);
        // Without an arrow the title has the room.
        option.sortIndicator = QStyleOptionHeader::None;
        QVERIFY(style->subElementRect(QStyle::SE_HeaderLabel, &option).width() > label.width());
    }
}

OVK_TEST_CLASS(RibbonStyleControlsTest)

#include "ribbon_style_controls_test.moc"
