#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QStyle>
#include <qtitan/draw_helpers.h>
#include <qtitan/ribbon_painter_p.h>

using namespace Qtitan;
using style_test::TestFont;

namespace {

QIcon SquareIcon(const QColor& color = Qt::red)
{
    QIcon icon;
    for (const int side : {16, 20, 24, 32, 40, 48, 64}) {
        QPixmap pixmap(side, side);
        pixmap.fill(color);
        icon.addPixmap(pixmap);
    }
    return icon;
}

RibbonButtonOption ButtonOption(bool large, RibbonMenuKind menu, const QString& text)
{
    RibbonButtonOption option;
    option.font = TestFont();
    option.text = text;
    option.icon = SquareIcon();
    option.large = large;
    option.menu = menu;
    option.iconSize = large ? QSize(32, 32) : QSize(16, 16);
    option.style = large ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon;
    option.rect = QRect(0, 0, 0, large ? 66 : 22);
    option.rect.setWidth(RibbonPainter::buttonWidth(option));
    return option;
}

} // namespace

class RibbonPainterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSplitButtonHasTwoHalves_data();
    void aSplitButtonHasTwoHalves();
    void aButtonWithoutMenuIsOnePart();
    void theOtherHalfOfASplitButtonStaysSoft();
    void rightToLeftIsTheMirrorImage();
    void contentsStayInsideTheButton_data();
    void contentsStayInsideTheButton();
    void longTextsAreCutNotSpilled();
    void textsBreakWhereTheLinesAreShortest_data();
    void textsBreakWhereTheLinesAreShortest();
    void linesAreSharpAtEveryDevicePixelRatio_data();
    void linesAreSharpAtEveryDevicePixelRatio();
    void iconsGrowInTheirSteps_data();
    void iconsGrowInTheirSteps();
    void iconsAreNotBlurred();
    void disabledIconsShowOnDarkAndLight();
    void plainSignsTakeTheColourOfTheText_data();
    void plainSignsTakeTheColourOfTheText();
    void aSelectedTabOpensTheLineOfThePage();
    void statesLookDifferent_data();
    void statesLookDifferent();
    void everythingPaintsWithNothingInIt();
    void keyTipsAreAsWideAsTheirText();

private:
    static void AddThemes();
};

void RibbonPainterTest::AddThemes()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < style_test::ThemeCount; ++i)
        QTest::addRow("theme %d", i) << i;
}

void RibbonPainterTest::aSplitButtonHasTwoHalves_data()
{
    QTest::addColumn<bool>("large");
    QTest::newRow("large, one above the other") << true;
    QTest::newRow("small, side by side") << false;
}

void RibbonPainterTest::aSplitButtonHasTwoHalves()
{
    QFETCH(bool, large);
    const RibbonButtonOption option = ButtonOption(large, RibbonMenuKind::Split, QStringLiteral("Paste"));
    const RibbonButtonLayout layout = RibbonPainter::buttonLayout(option);
    QVERIFY(!layout.main.intersects(layout.menu));
    QCOMPARE(layout.main.united(layout.menu), option.rect);
    QCOMPARE(layout.main.width() * layout.main.height() + layout.menu.width() * layout.menu.height(),
             option.rect.width() * option.rect.height());
    QVERIFY(layout.main.contains(layout.icon));
    QVERIFY(layout.menu.contains(layout.arrow.center()));
    QCOMPARE(layout.menu.contains(layout.text.center()), large);
}

void RibbonPainterTest::aButtonWithoutMenuIsOnePart()
{
    const RibbonButtonLayout layout =
        RibbonPainter::buttonLayout(ButtonOption(true, RibbonMenuKind::None, QStringLiteral("Add part")));
    QVERIFY(layout.menu.isNull());
    QVERIFY(layout.arrow.isNull());
    QCOMPARE(layout.lines, QStringList({QStringLiteral("Add"), QStringLiteral("part")}));
    // A menu that the whole button opens has no half of its own.
    const RibbonButtonOption whole = ButtonOption(false, RibbonMenuKind::Whole, QStringLiteral("Add"));
    QCOMPARE(RibbonPainter::buttonLayout(whole).main, whole.rect);
    QCOMPARE(RibbonPainter::buttonLayout(whole).menu, whole.rect);
}

void RibbonPainterTest::theOtherHalfOfASplitButtonStaysSoft()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2013White);
    RibbonButtonOption option = ButtonOption(true, RibbonMenuKind::Split, QString());
    option.rect.setWidth(60);
    option.state = RibbonState::Hover;
    const RibbonButtonLayout layout = RibbonPainter::buttonLayout(option);
    const QPoint main(layout.main.left() + 4, layout.main.top() + 4);
    const QPoint menu(layout.menu.left() + 4, layout.menu.bottom() - 4);
    const RibbonTheme& theme = RibbonTheme::current();
    const auto draw = [&] {
        return style_test::Picture(option.rect.size(), 1, Qt::white,
                                   [&](QPainter& painter) { RibbonPainter::drawButton(painter, option); });
    };
    QImage picture = draw();
    QCOMPARE(picture.pixelColor(main), theme[Element::ButtonHover].middle);
    QCOMPARE(picture.pixelColor(menu), theme[Element::ButtonSplitHover].middle);
    option.menuHovered = true;
    picture = draw();
    QCOMPARE(picture.pixelColor(main), theme[Element::ButtonSplitHover].middle);
    QCOMPARE(picture.pixelColor(menu), theme[Element::ButtonHover].middle);
    option.menuPressed = true;
    picture = draw();
    QCOMPARE(picture.pixelColor(menu), theme[Element::ButtonPressed].middle);
    // A checked one keeps its check in the main half only.
    option = ButtonOption(true, RibbonMenuKind::Split, QString());
    option.rect.setWidth(60);
    option.state = RibbonState::Checked;
    picture = draw();
    QCOMPARE(picture.pixelColor(main), theme[Element::ButtonChecked].middle);
    QCOMPARE(picture.pixelColor(menu), QColor(Qt::white));
}

void RibbonPainterTest::rightToLeftIsTheMirrorImage()
{
    for (const bool large : {false, true}) {
        RibbonButtonOption option = ButtonOption(large, RibbonMenuKind::Split, QStringLiteral("Two words"));
        const RibbonButtonLayout left = RibbonPainter::buttonLayout(option);
        option.direction = Qt::RightToLeft;
        const RibbonButtonLayout right = RibbonPainter::buttonLayout(option);
        const auto mirrored = [&option](const QRect& rect) {
            return QStyle::visualRect(Qt::RightToLeft, option.rect, rect);
        };
        if (!large) {
            QCOMPARE(right.icon, mirrored(left.icon));
            QCOMPARE(right.text, mirrored(left.text));
            QCOMPARE(right.menu, mirrored(left.menu));
        }
        QCOMPARE(right.arrow, mirrored(left.arrow));
        QCOMPARE(right.main, mirrored(left.main));
    }
}

void RibbonPainterTest::contentsStayInsideTheButton_data()
{
    QTest::addColumn<bool>("large");
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("scale");
    const char* texts[] = {"Cut", "Add part to the platform", "A", "Two words"};
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const char* text : texts) {
            for (int menu = 0; menu < 3; ++menu) {
                for (const bool large : {false, true})
                    QTest::addRow("%s, menu %d, %s, at %d %%", text, menu, large ? "large" : "small",
                                  int(scale * 100))
                        << large << menu << QString::fromLatin1(text) << scale;
            }
        }
    }
}

void RibbonPainterTest::contentsStayInsideTheButton()
{
    QFETCH(bool, large);
    QFETCH(int, menu);
    QFETCH(QString, text);
    QFETCH(double, scale);
    RibbonButtonOption option = ButtonOption(large, static_cast<RibbonMenuKind>(menu), text);
    option.scale = scale;
    option.font.setPixelSize(qRound(12 * scale));
    const int icon = (large ? 2 : 1) * DrawHelpers::smallIconSize(96 * scale);
    option.iconSize = QSize(icon, icon);
    const QFontMetrics metrics(option.font);
    const int line = metrics.height() + qRound(7 * scale);
    option.rect = QRect(10, 20, 0, large ? 3 * line : line);
    option.rect.setWidth(RibbonPainter::buttonWidth(option));
    const RibbonButtonLayout layout = RibbonPainter::buttonLayout(option);
    QVERIFY(option.rect.contains(layout.icon));
    QVERIFY(option.rect.contains(layout.text));
    if (menu)
        QVERIFY(option.rect.contains(layout.arrow));
    QVERIFY(!layout.icon.intersects(layout.text));
    if (large) {
        QVERIFY(layout.text.top() + 2 * metrics.height() <= option.rect.bottom() + 1);
        for (const QString& shown : layout.lines)
            QVERIFY(metrics.horizontalAdvance(shown) <= layout.text.width());
    } else {
        QVERIFY(metrics.horizontalAdvance(text) <= layout.text.width());
        if (menu)
            QVERIFY(!layout.text.intersects(layout.arrow));
    }
}

void RibbonPainterTest::longTextsAreCutNotSpilled()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2013White);
    RibbonButtonOption option = ButtonOption(false, RibbonMenuKind::None, QString(60, QLatin1Char('M')));
    option.rect = QRect(0, 0, 60, 22);
    const QImage picture = style_test::Picture(QSize(120, 22), 1, Qt::white, [&](QPainter& painter) {
        RibbonPainter::drawButton(painter, option);
    });
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 60; x < 120; ++x)
            QCOMPARE(picture.pixelColor(x, y), QColor(Qt::white));
}

void RibbonPainterTest::textsBreakWhereTheLinesAreShortest_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("one word") << "Duplicate" << QStringList{"Duplicate"};
    QTest::newRow("two words") << "Add part" << QStringList{"Add", "part"};
    QTest::newRow("the longer half goes where it saves most")
        << "Fix all broken triangles" << QStringList{"Fix all broken", "triangles"};
    QTest::newRow("a long first word") << "Automatically fix" << QStringList{"Automatically", "fix"};
    QTest::newRow("a break of the host's") << "Fix\nall of them" << QStringList{"Fix", "all of them"};
    QTest::newRow("spaces at the ends") << "  Cut " << QStringList{"Cut"};
    QTest::newRow("nothing") << "" << QStringList{""};
}

void RibbonPainterTest::textsBreakWhereTheLinesAreShortest()
{
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    QCOMPARE(RibbonPainter::splitText(text, TestFont(), 9), lines);
}

void RibbonPainterTest::linesAreSharpAtEveryDevicePixelRatio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
    QTest::newRow("3") << 3.0;
}

void RibbonPainterTest::linesAreSharpAtEveryDevicePixelRatio()
{
    QFETCH(double, ratio);
    const QImage picture = style_test::Picture(QSize(20, 12), ratio, Qt::white, [](QPainter& painter) {
        DrawHelpers::drawFrame(painter, QRect(2, 2, 16, 8), Qt::black, QBrush(Qt::green));
    });
    // Every pixel is one of the three colours: nothing was smoothed.
    const int width = qRound(ratio);
    int black = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            QVERIFY(color == QColor(Qt::white) || color == QColor(Qt::black) || color == QColor(Qt::green));
            black += color == QColor(Qt::black);
        }
    }
    QCOMPARE(black, (2 * 16 + 2 * 6) * width * width);
}

void RibbonPainterTest::iconsGrowInTheirSteps_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<int>("small_size");
    QTest::newRow("72") << 72 << 16;
    QTest::newRow("96") << 96 << 16;
    QTest::newRow("119") << 119 << 16;
    QTest::newRow("120") << 120 << 20;
    QTest::newRow("143") << 143 << 20;
    QTest::newRow("144") << 144 << 24;
    QTest::newRow("191") << 191 << 24;
    QTest::newRow("192") << 192 << 32;
    QTest::newRow("288") << 288 << 32;
}

void RibbonPainterTest::iconsGrowInTheirSteps()
{
    QFETCH(int, dpi);
    QFETCH(int, small_size);
    QCOMPARE(DrawHelpers::smallIconSize(dpi), small_size);
    QCOMPARE(DrawHelpers::largeIconSize(dpi), 2 * small_size);
}

void RibbonPainterTest::iconsAreNotBlurred()
{
    // A picture of one pixel wide stripes survives whole at the size it was drawn for.
    QImage stripes(32, 32, QImage::Format_ARGB32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            stripes.setPixelColor(x, y, x % 2 ? Qt::black : Qt::red);
    const QIcon icon(QPixmap::fromImage(stripes));
    const QImage picture = style_test::Picture(QSize(31, 31), 2, Qt::white, [&icon](QPainter& painter) {
        DrawHelpers::drawIcon(painter, QRect(0, 0, 31, 31), icon, QSize(16, 16));
    });
    int stripe_pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            QVERIFY(color == QColor(Qt::white) || color == QColor(Qt::red) || color == QColor(Qt::black));
            stripe_pixels += color != QColor(Qt::white);
        }
    }
    QCOMPARE(stripe_pixels, 32 * 32);
    // A small picture is not blown up.
    const QPixmap small_one = DrawHelpers::iconPixmap(QIcon(QPixmap::fromImage(stripes)), QSize(64, 64), 1);
    QCOMPARE(small_one.size(), QSize(32, 32));
    QVERIFY(DrawHelpers::iconPixmap(QIcon(), QSize(16, 16), 1).isNull());
}

void RibbonPainterTest::disabledIconsShowOnDarkAndLight()
{
    for (const QColor& color : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::red), QColor(40, 90, 200)}) {
        const QImage image = DrawHelpers::iconPixmap(SquareIcon(color), QSize(16, 16), 1, QIcon::Disabled).toImage();
        const QColor pixel = image.pixelColor(8, 8);
        QCOMPARE(pixel.red(), pixel.green());
        QVERIFY(pixel.alpha() < 255);
        for (const QColor& ground : {QColor(Qt::white), QColor(0x46, 0x46, 0x46)}) {
            const QColor shown = DrawHelpers::mix(ground, QColor(pixel.red(), pixel.green(), pixel.blue()),
                                                  pixel.alphaF());
            QVERIFY(DrawHelpers::contrast(shown, ground) > 1.15);
        }
    }
}

void RibbonPainterTest::plainSignsTakeTheColourOfTheText_data()
{
    QTest::addColumn<QColor>("icon");
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<bool>("changes");
    QTest::newRow("a dark sign beside light text") << QColor(60, 60, 60) << QColor(240, 240, 240) << true;
    QTest::newRow("a dark sign beside dark text") << QColor(60, 60, 60) << QColor(30, 30, 30) << false;
    QTest::newRow("a light sign beside dark text") << QColor(245, 245, 245) << QColor(30, 30, 30) << true;
    QTest::newRow("a light sign beside light text") << QColor(245, 245, 245) << QColor(Qt::white) << false;
    QTest::newRow("a grey sign, seen on both") << QColor(140, 140, 140) << QColor(Qt::white) << false;
    QTest::newRow("a blue picture beside light text") << QColor(20, 40, 150) << QColor(Qt::white) << false;
    QTest::newRow("no text to go by") << QColor(60, 60, 60) << QColor() << false;
}

void RibbonPainterTest::plainSignsTakeTheColourOfTheText()
{
    QFETCH(QColor, icon);
    QFETCH(QColor, ink);
    QFETCH(bool, changes);
    const QIcon sign = SquareIcon(icon);
    const QPixmap pixmap = DrawHelpers::iconPixmap(sign, QSize(16, 16), 1, QIcon::Normal, QIcon::Off, ink);
    QCOMPARE(pixmap.toImage().pixelColor(8, 8), changes ? ink : icon);
    const QIcon visible = DrawHelpers::visibleIcon(sign, QSize(16, 16), 1, ink);
    QCOMPARE(visible.cacheKey() != sign.cacheKey(), changes);
    QCOMPARE(visible.pixmap(16, 16).toImage().pixelColor(8, 8), changes ? ink : icon);
}

void RibbonPainterTest::aSelectedTabOpensTheLineOfThePage()
{
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style_test::ApplicationStyle style;
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        RibbonPaintOption strip;
        strip.rect = QRect(0, 0, 200, 24);
        RibbonPaintOption tab = strip;
        tab.rect = QRect(50, 0, 60, 24);
        tab.state = RibbonState::Checked;
        const QImage picture = style_test::Picture(strip.rect.size(), 1, Qt::magenta, [&](QPainter& painter) {
            RibbonPainter::drawTabStrip(painter, strip);
            RibbonPainter::drawTab(painter, tab);
        });
        const RibbonTheme& theme = RibbonTheme::current();
        QCOMPARE(picture.pixelColor(10, 23), theme[Element::Page].border);
        QVERIFY(picture.pixelColor(80, 23) != theme[Element::Page].border);
        strip.state = RibbonState::Minimized;
        const QImage closed = style_test::Picture(strip.rect.size(), 1, Qt::magenta, [&](QPainter& painter) {
            RibbonPainter::drawTabStrip(painter, strip);
        });
        QVERIFY(closed.pixelColor(10, 23) != theme[Element::Page].border || i == 1);
    }
}

void RibbonPainterTest::statesLookDifferent_data()
{
    AddThemes();
}

/// Someone who looks at a button must see whether it is hovered, pressed, checked.
void RibbonPainterTest::statesLookDifferent()
{
    QFETCH(int, number);
    style_test::ApplicationStyle style;
    style->setTheme(static_cast<OfficeStyle::Theme>(number));
    using S = RibbonState;
    for (const RibbonGround ground : {RibbonGround::Page, RibbonGround::Strip, RibbonGround::Popup}) {
        QVector<QImage> pictures;
        for (const RibbonStates& state : {RibbonStates(S::Normal), RibbonStates(S::Hover), S::Hover | S::Pressed,
                                          RibbonStates(S::Checked), S::Checked | S::Hover,
                                          RibbonStates(S::Disabled), S::Normal | S::Focus}) {
            RibbonButtonOption option = ButtonOption(false, RibbonMenuKind::None, QStringLiteral("Text"));
            option.ground = ground;
            option.state = state;
            pictures.append(style_test::Picture(option.rect.size(), 1, RibbonTheme::current()[Element::Page].middle,
                                                [&](QPainter& painter) {
                                                    RibbonPainter::drawButton(painter, option);
                                                }));
        }
        for (int i = 0; i < pictures.size(); ++i)
            for (int j = 0; j < i; ++j)
                QVERIFY2(pictures[i] != pictures[j], qPrintable(QStringLiteral("states %1 and %2").arg(i).arg(j)));
    }
}

void RibbonPainterTest::everythingPaintsWithNothingInIt()
{
    QImage image(50, 50, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const QRect& rect : {QRect(), QRect(0, 0, 1, 1), QRect(5, 5, 40, 3)}) {
        RibbonPaintOption option;
        option.rect = rect;
        RibbonButtonOption button;
        button.rect = rect;
        RibbonPainter::drawCaption(painter, option);
        RibbonPainter::drawWindowFrame(painter, option);
        for (const RibbonCaptionButton kind :
             {RibbonCaptionButton::Minimize, RibbonCaptionButton::Maximize, RibbonCaptionButton::Restore,
              RibbonCaptionButton::Close, RibbonCaptionButton::Help})
            RibbonPainter::drawCaptionButton(painter, option, kind);
        RibbonPainter::drawTabStrip(painter, option);
        RibbonPainter::drawTab(painter, option);
        RibbonPainter::drawTabSeparator(painter, option);
        RibbonPainter::drawContextTitle(painter, option);
        RibbonPainter::drawScrollButton(painter, option, Qt::LeftArrow);
        RibbonPainter::drawMinimizeButton(painter, option);
        RibbonPainter::drawSystemButton(painter, option);
        RibbonPainter::drawQuickAccessBar(painter, option);
        RibbonPainter::drawQuickAccessOverflow(painter, option);
        RibbonPainter::drawPage(painter, option);
        RibbonPainter::drawGroup(painter, option);
        RibbonPainter::drawGroupTitle(painter, option);
        RibbonPainter::drawGroupSeparator(painter, option);
        RibbonPainter::drawSeparator(painter, option);
        RibbonPainter::drawLauncher(painter, option);
        RibbonPainter::drawCollapsedGroup(painter, option);
        RibbonPainter::drawPopup(painter, option);
        RibbonPainter::drawButton(painter, button);
        button.large = true;
        button.menu = RibbonMenuKind::Split;
        RibbonPainter::drawButton(painter, button);
        RibbonPainter::drawBackstage(painter, option);
        RibbonPainter::drawBackstageColumn(painter, option);
        RibbonPainter::drawBackstageBack(painter, option);
        RibbonPainter::drawBackstageRow(painter, option);
        RibbonPainter::drawBackstageSeparator(painter, option);
        RibbonPainter::drawKeyTip(painter, option);
        RibbonPainter::drawToolTipPanel(painter, option);
        RibbonPainter::drawGallery(painter, option);
        RibbonPainter::drawGalleryHeading(painter, option);
        RibbonPainter::drawGalleryCell(painter, option);
        RibbonPainter::drawGalleryButton(painter, option, Qt::DownArrow);
        RibbonPainter::drawFocus(painter, option);
    }
    // Painting leaves the painter as it was.
    QVERIFY(painter.transform().isIdentity());
    QVERIFY(!painter.hasClipping());
}

void RibbonPainterTest::keyTipsAreAsWideAsTheirText()
{
    const QFont font = TestFont();
    const QSize one = RibbonPainter::keyTipSize(QStringLiteral("F"), font);
    QCOMPARE(one.width(), one.height());
    const QSize three = RibbonPainter::keyTipSize(QStringLiteral("WWW"), font);
    QCOMPARE(three.height(), one.height());
    QVERIFY(three.width() >= QFontMetrics(font).horizontalAdvance(QStringLiteral("WWW")));
}

OVK_TEST_CLASS(RibbonPainterTest)

#include "ribbon_painter_test.moc"
