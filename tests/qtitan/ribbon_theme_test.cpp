#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <qtitan/draw_helpers.h>

using Qtitan::DrawHelpers;
using Qtitan::Element;
using Qtitan::OfficeStyle;
using Qtitan::RibbonTheme;
using Qtitan::ThemeLook;

class RibbonThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextReadsOnItsGround_data();
    void everyTextReadsOnItsGround();
    void everyTextOfThePaletteReads_data();
    void everyTextOfThePaletteReads();
    void textsOnBarsReadInTheColourOfLabels_data();
    void textsOnBarsReadInTheColourOfLabels();
    void tintedTabsRead();
    void themesHaveTheirColours_data();
    void themesHaveTheirColours();
    void statesHaveTheirColours_data();
    void statesHaveTheirColours();
    void statesOf2013AreTheAccentOverThePage();
    void onlyTheDarkThemeIsDark();
    void noThemeIsTakenForHighContrast();
    void aHighContrastThemeUsesNothingButItsPalette();
    void contrastIsThatOfTheStandard_data();
    void contrastIsThatOfTheStandard();
    void aTextThatReadsIsLeftAlone();
    void everyElementHasAName();

private:
    static void AddThemes();
};

namespace {

void CheckLook(const RibbonTheme& theme, Element element)
{
    const ThemeLook& look = theme[element];
    const ThemeLook& under = theme[RibbonTheme::groundOf(element)];
    for (const QColor& ground : look.isTransparent() ? under.grounds() : look.grounds()) {
        QVERIFY2(ground.alpha() == 255, RibbonTheme::name(element));
        const qreal text = DrawHelpers::contrast(look.text, ground);
        const qreal disabled = DrawHelpers::contrast(look.disabled, ground);
        const QByteArray where = QByteArray(RibbonTheme::name(element)) + " accent "
                                 + theme.accent().name().toLatin1() + " text " + look.text.name().toLatin1()
                                 + " on " + ground.name().toLatin1();
        QVERIFY2(text >= 4.5, (where + ": " + QByteArray::number(text)).constData());
        QVERIFY2(disabled >= 2.0, (where + " disabled: " + QByteArray::number(disabled)).constData());
    }
}

} // namespace

void RibbonThemeTest::AddThemes()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < style_test::ThemeCount; ++i)
        QTest::addRow("theme %d", i) << i;
}

void RibbonThemeTest::everyTextReadsOnItsGround_data()
{
    AddThemes();
}

void RibbonThemeTest::everyTextReadsOnItsGround()
{
    QFETCH(int, number);
    for (const QColor& accent : style_test::Accents()) {
        const RibbonTheme theme(static_cast<OfficeStyle::Theme>(number), accent);
        for (int i = 0; i < Qtitan::ElementCount; ++i) {
            CheckLook(theme, static_cast<Element>(i));
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void RibbonThemeTest::everyTextOfThePaletteReads_data()
{
    AddThemes();
}

void RibbonThemeTest::everyTextOfThePaletteReads()
{
    QFETCH(int, number);
    struct Pair
    {
        QPalette::ColorRole text;
        QPalette::ColorRole ground;
    };
    const Pair pairs[] = {
        {QPalette::WindowText, QPalette::Window},   {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},  {QPalette::ButtonText, QPalette::Button},
        {QPalette::ButtonText, QPalette::Window},   {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::Link, QPalette::Base},
        {QPalette::Link, QPalette::Window},         {QPalette::LinkVisited, QPalette::Base},
        {QPalette::LinkVisited, QPalette::Window},
    };
    for (const QColor& accent : style_test::Accents()) {
        const QPalette palette = RibbonTheme(static_cast<OfficeStyle::Theme>(number), accent).palette();
        for (const Pair& pair : pairs) {
            for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                const qreal contrast = DrawHelpers::contrast(palette.color(group, pair.text),
                                                             palette.color(group, pair.ground));
                const qreal wanted = group == QPalette::Disabled ? 2.0 : 4.5;
                QVERIFY2(contrast >= wanted,
                         qPrintable(QStringLiteral("role %1 on %2 in group %3, accent %4: %5")
                                        .arg(pair.text)
                                        .arg(pair.ground)
                                        .arg(group)
                                        .arg(accent.name())
                                        .arg(contrast)));
            }
        }
        QVERIFY(DrawHelpers::contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base))
                >= 2.0);
    }
}

void RibbonThemeTest::textsOnBarsReadInTheColourOfLabels_data()
{
    AddThemes();
}

/// Labels and buttons of a host stand on these grounds and take the palette's colour.
void RibbonThemeTest::textsOnBarsReadInTheColourOfLabels()
{
    QFETCH(int, number);
    const RibbonTheme theme(static_cast<OfficeStyle::Theme>(number),
                            OfficeStyle::accentColor(OfficeStyle::AccentColorBlue));
    const QPalette palette = theme.palette();
    const QColor text = palette.color(QPalette::WindowText);
    const QColor disabled = palette.color(QPalette::Disabled, QPalette::WindowText);
    for (const Element element : {Element::StatusBar, Element::ToolBar, Element::DockTitle, Element::DockFrame,
                                  Element::TabPane, Element::BackstagePage}) {
        for (const QColor& ground : theme[element].grounds())
            QVERIFY2(DrawHelpers::contrast(text, ground) >= 4.5, RibbonTheme::name(element));
        if (element == Element::DockTitle || element == Element::BackstagePage)
            continue;
        for (const QColor& ground : theme[element].grounds())
            QVERIFY2(DrawHelpers::contrast(disabled, ground) >= 2.0, RibbonTheme::name(element));
    }
}

void RibbonThemeTest::tintedTabsRead()
{
    const QColor contexts[] = {Qt::red, Qt::yellow, Qt::blue, QColor(120, 120, 120), Qt::white, Qt::black};
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        const RibbonTheme theme(static_cast<OfficeStyle::Theme>(i),
                                OfficeStyle::accentColor(OfficeStyle::AccentColorBlue));
        for (const QColor& context : contexts) {
            for (const Element element : {Element::TabStrip, Element::TabHover, Element::TabSelected,
                                          Element::Caption}) {
                for (const qreal amount : {0.12, 0.2, 0.3}) {
                    const ThemeLook look = theme.tinted(element, context, amount);
                    for (const QColor& ground : look.grounds())
                        QVERIFY2(DrawHelpers::contrast(look.text, ground) >= 4.5, RibbonTheme::name(element));
                }
            }
        }
    }
}

void RibbonThemeTest::themesHaveTheirColours_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QVector<QRgb>>("colors"); // strip, tab text, selected text, page, page border
    using Colors = QVector<QRgb>;
    QTest::newRow("2007 blue") << 0 << Colors{0xBFDBFF, 0x15428B, 0x15428B, 0xDBE6F4, 0xE7F2FF, 0xC9D9ED, 0x8DB2E3};
    QTest::newRow("2007 black") << 1 << Colors{0x535353, 0xFFFFFF, 0x000000, 0xD7DBE0, 0xEBEBEB, 0xB4BBC5, 0xBEBEBE};
    QTest::newRow("2007 silver") << 2 << Colors{0xD0D4DD, 0x4C535C, 0x4C535C, 0xF3F5F9, 0xF9F9F9, 0xD5DBE7, 0xBEBEBE};
    QTest::newRow("2010 silver") << 5 << Colors{0xE3E6E8, 0x3B3B3B, 0x3B3B3B, 0xFFFFFF, 0xF2F4F7, 0xE5E9EE, 0xB6BABF};
    QTest::newRow("2010 blue") << 6 << Colors{0xBBCEE6, 0x1E395B, 0x1E395B, 0xEFF6FD, 0xDDEAF7, 0xD8E4F2, 0x9FB2C7};
    QTest::newRow("2013 white") << 8 << Colors{0xFFFFFF, 0x666666, 0, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xD4D4D4};
    QTest::newRow("2013 gray") << 9 << Colors{0xE6E6E6, 0x444444, 0, 0xF3F3F3, 0xF3F3F3, 0xF3F3F3, 0xC8C8C8};
    QTest::newRow("2013 dark") << 10 << Colors{0x333333, 0xFFFFFF, 0xFFFFFF, 0x464646, 0x464646, 0x464646, 0x666666};
}

void RibbonThemeTest::themesHaveTheirColours()
{
    QFETCH(int, number);
    QFETCH(QVector<QRgb>, colors);
    const RibbonTheme theme(static_cast<OfficeStyle::Theme>(number),
                            OfficeStyle::accentColor(OfficeStyle::AccentColorBlue));
    const auto rgb = [](const QColor& color) { return color.rgb() & 0xFFFFFF; };
    QCOMPARE(rgb(theme[Element::TabStrip].middle), colors[0]);
    QCOMPARE(rgb(theme[Element::TabStrip].text), colors[1]);
    if (colors[2] || number < 8)
        QCOMPARE(rgb(theme[Element::TabSelected].text), colors[2]);
    QCOMPARE(rgb(theme[Element::Page].top), colors[3]);
    QCOMPARE(rgb(theme[Element::Page].middle), colors[4]);
    QCOMPARE(rgb(theme[Element::Page].bottom), colors[5]);
    QCOMPARE(rgb(theme[Element::Page].border), colors[6]);
}

void RibbonThemeTest::statesHaveTheirColours_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("element");
    QTest::addColumn<QVector<QRgb>>("colors"); // top, bottom, border
    using Colors = QVector<QRgb>;
    for (const int number : {0, 1, 2, 3}) {
        QTest::addRow("2007 hover %d", number) << number << int(Element::ButtonHover)
                                               << Colors{0xFFD54D, 0xFFEFB1, 0xDDCF9B};
        QTest::addRow("2007 pressed %d", number) << number << int(Element::ButtonPressed)
                                                 << Colors{0xEB7A05, 0xFEC36C};
        QTest::addRow("2007 checked %d", number) << number << int(Element::ButtonChecked)
                                                 << Colors{0xFEAF4D, 0xFEE688};
    }
    for (const int number : {0, 1, 2})
        QTest::addRow("2007 tool tip %d", number) << number << int(Element::ToolTip)
                                                  << Colors{0xFFFFFF, 0xC9D9EF, 0x767676};
    QTest::newRow("2007 blue group title") << 0 << int(Element::GroupTitle) << Colors{0xC1D8F2, 0xC1D8F2};
    QTest::newRow("2007 black group title") << 1 << int(Element::GroupTitle) << Colors{0xB6B8B8, 0x9FA0A0};
    QTest::newRow("2007 silver group title") << 2 << int(Element::GroupTitle) << Colors{0xDFE3EF, 0xC3C7D1};
    QTest::newRow("scenic strip") << 4 << int(Element::TabStrip) << Colors{0xE3E6E8, 0xE3E6E8};
    QTest::newRow("scenic hover") << 4 << int(Element::ButtonHover) << Colors{0xFDEEB3, 0xFDEEB3, 0xFFD700};
    for (const int number : {5, 6, 7}) {
        QTest::addRow("2010 hover %d", number) << number << int(Element::ButtonHover)
                                               << Colors{0xF8E187, 0xFBF8E0, 0xEDC958};
        QTest::addRow("2010 pressed %d", number) << number << int(Element::ButtonPressed)
                                                 << Colors{0xFFE48A, 0xFFE48A, 0xC2762B};
        QTest::addRow("2010 checked %d", number) << number << int(Element::ButtonChecked)
                                                 << Colors{0xFFD86C, 0xFFF480};
    }
    QTest::newRow("2010 black page") << 7 << int(Element::Page) << Colors{0xBFBFBF, 0x919191, 0x5E5E5E};
    QTest::newRow("2013 dark caption") << 10 << int(Element::Caption) << Colors{0x262626, 0x262626};
}

void RibbonThemeTest::statesHaveTheirColours()
{
    QFETCH(int, number);
    QFETCH(int, element);
    QFETCH(QVector<QRgb>, colors);
    const RibbonTheme theme(static_cast<OfficeStyle::Theme>(number),
                            OfficeStyle::accentColor(OfficeStyle::AccentColorBlue));
    const ThemeLook& look = theme[static_cast<Element>(element)];
    QCOMPARE(look.top.rgb() & 0xFFFFFF, colors[0]);
    QCOMPARE(look.bottom.rgb() & 0xFFFFFF, colors[1]);
    if (colors.size() > 2)
        QCOMPARE(look.border.rgb() & 0xFFFFFF, colors[2]);
}

void RibbonThemeTest::statesOf2013AreTheAccentOverThePage()
{
    struct State
    {
        Element element;
        qreal part;
    };
    const State states[] = {{Element::ButtonHover, 0.2},
                            {Element::ButtonPressed, 0.4},
                            {Element::ButtonChecked, 0.6},
                            {Element::ButtonCheckedHover, 0.8}};
    for (const int number : {8, 9, 10}) {
        for (const QColor& accent : style_test::Accents()) {
            const RibbonTheme theme(static_cast<OfficeStyle::Theme>(number), accent);
            for (const State& state : states)
                QCOMPARE(theme[state.element].middle,
                         DrawHelpers::mix(theme[Element::Page].middle, accent, state.part));
        }
    }
}

void RibbonThemeTest::onlyTheDarkThemeIsDark()
{
    const QColor accent = OfficeStyle::accentColor(OfficeStyle::AccentColorBlue);
    for (int i = 0; i < style_test::ThemeCount; ++i)
        QCOMPARE(RibbonTheme(static_cast<OfficeStyle::Theme>(i), accent).isDark(), i == 10);
    // Grounds that hold text are dark without exception; badges that must stand out are not grounds.
    const RibbonTheme dark(OfficeStyle::Office2013Dark, accent);
    for (const Element element :
         {Element::Caption, Element::TabStrip, Element::Page, Element::Menu, Element::MenuColumn,
          Element::MenuHeading, Element::Window, Element::PushButton, Element::Edit, Element::View,
          Element::ViewAlternate, Element::Header, Element::ScrollGroove, Element::DocumentTab,
          Element::DocumentTabSelected, Element::TabPane, Element::ProgressGroove, Element::DockTitle,
          Element::DockFrame, Element::ToolBar, Element::StatusBar, Element::Splitter, Element::ToolTip,
          Element::Gallery, Element::GalleryHeading, Element::BackstagePage, Element::EditDisabled})
        QVERIFY2(DrawHelpers::luminance(dark[element].middle) < 0.12, RibbonTheme::name(element));
}

void RibbonThemeTest::noThemeIsTakenForHighContrast()
{
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        for (const QColor& accent : style_test::Accents())
            QVERIFY(!RibbonTheme::isHighContrast(
                RibbonTheme(static_cast<OfficeStyle::Theme>(i), accent).palette()));
    }
    QVERIFY(!RibbonTheme::isHighContrast(QPalette(Qt::lightGray)));
}

void RibbonThemeTest::aHighContrastThemeUsesNothingButItsPalette()
{
    QPalette palette(Qt::black);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::yellow);
    palette.setColor(QPalette::Highlight, Qt::green);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    QVERIFY(RibbonTheme::isHighContrast(palette));
    const RibbonTheme theme(palette);
    QVERIFY(theme.isHighContrast());
    const QVector<QColor> allowed{QColor(Qt::black), QColor(Qt::green)};
    for (int i = 0; i < Qtitan::ElementCount; ++i) {
        const auto element = static_cast<Element>(i);
        const ThemeLook& look = theme[element];
        if (!look.isTransparent())
            QVERIFY2(allowed.contains(look.middle), RibbonTheme::name(element));
        QVERIFY2(look.text == QColor(Qt::yellow) || look.text == QColor(Qt::black), RibbonTheme::name(element));
        CheckLook(theme, element);
    }
    QCOMPARE(theme.tinted(Element::TabSelected, Qt::red, 0.5).middle, theme[Element::TabSelected].middle);
}

void RibbonThemeTest::contrastIsThatOfTheStandard_data()
{
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("the same") << QColor(40, 50, 60) << QColor(40, 50, 60) << 1.0;
    QTest::newRow("the least grey on white") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("red on white") << QColor(Qt::red) << QColor(Qt::white) << 4.0;
}

void RibbonThemeTest::contrastIsThatOfTheStandard()
{
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QFETCH(double, ratio);
    QVERIFY(qAbs(DrawHelpers::contrast(a, b) - ratio) < 0.01);
    QVERIFY(qAbs(DrawHelpers::contrast(b, a) - ratio) < 0.01);
}

void RibbonThemeTest::aTextThatReadsIsLeftAlone()
{
    QCOMPARE(DrawHelpers::legible(QColor(0x15, 0x42, 0x8B), {QColor(Qt::white)}, 4.5), QColor(0x15, 0x42, 0x8B));
    const QColor lime(0xA2, 0xC1, 0x39);
    const QColor darker = DrawHelpers::legible(lime, {QColor(Qt::white)}, 4.5);
    QVERIFY(darker != lime);
    // The hue is still that of the lime.
    QVERIFY(qAbs(darker.hue() - lime.hue()) < 6);
}

void RibbonThemeTest::everyElementHasAName()
{
    QStringList names;
    for (int i = 0; i < Qtitan::ElementCount; ++i)
        names.append(QString::fromLatin1(RibbonTheme::name(static_cast<Element>(i))));
    QCOMPARE(names.removeDuplicates(), 0);
    QVERIFY(!names.contains(QString()));
    QCOMPARE(names[static_cast<int>(Element::Page)], QStringLiteral("Page"));
    QCOMPARE(names.last(), QStringLiteral("Splitter"));
}

OVK_TEST_CLASS(RibbonThemeTest)

#include "ribbon_theme_test.moc"
