#include "style_test_support.h"
#include "tests/support/test_main.h"

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWindow>
#include <qtitan/draw_helpers.h>
#include <qtitan/ribbon.h>
#include <qtitan/style.h>

using Qtitan::OfficeStyle;
using Qtitan::RibbonStyle;
using Qtitan::RibbonTheme;

namespace {

/// Counts what a change of style does to a widget.
class CountingWidget : public QWidget
{
public:
    using QWidget::QWidget;

    int style_changes = 0;
    int palette_changes = 0;
    int updates = 0; ///< rounds in which the window was painted

    void Reset() { style_changes = palette_changes = updates = 0; }

protected:
    bool event(QEvent* event) override
    {
        style_changes += event->type() == QEvent::StyleChange;
        palette_changes += event->type() == QEvent::PaletteChange;
        updates += event->type() == QEvent::UpdateRequest;
        return QWidget::event(event);
    }
};

/// Counts the passes that each widget of a window goes through.
class PassCounter : public QObject
{
public:
    explicit PassCounter(QWidget& window) : m_window(window) { qApp->installEventFilter(this); }

    /// The number for the widget that had most of it.
    int Most(QEvent::Type type) const
    {
        int most = 0;
        for (const auto& entry : m_counts)
            most = std::max(most, entry.value(type));
        return most;
    }
    QString Worst(QEvent::Type type) const
    {
        QStringList names;
        for (auto it = m_counts.begin(); it != m_counts.end(); ++it) {
            if (it->value(type) > 1)
                names.append(QStringLiteral("%1 %2 times").arg(QLatin1String(m_names.value(it.key()))).arg(it->value(type)));
        }
        return QStringLiteral("event %1: ").arg(int(type)) + names.join(QLatin1String(", "));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->window() == &m_window) {
            ++m_counts[watched][event->type()];
            m_names[watched] = watched->metaObject()->className();
        }
        return false;
    }

private:
    QWidget& m_window;
    QHash<const QObject*, QHash<int, int>> m_counts;
    QHash<const QObject*, QByteArray> m_names;
};

QPalette HighContrastBlack()
{
    QPalette palette(Qt::black);
    for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, Qt::black);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(26, 235, 255));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

} // namespace

class OfficeStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfThemesAndAccentsAreThoseThatApplicationsStore_data();
    void numbersOfThemesAndAccentsAreThoseThatApplicationsStore();
    void startsWithBlue2007AndTheBlueAccent();
    void aThemeIsKeptAndShownByThePalette();
    void aNumberThatIsNoThemeChangesNothing_data();
    void aNumberThatIsNoThemeChangesNothing();
    void namedAccentsHaveTheirColours_data();
    void namedAccentsHaveTheirColours();
    void anyColourCanBeTheAccent();
    void anAccentWaitsForAThemeThatHasOne();
    void openWindowsAreRestyledInOnePass();
    void aRibbonWindowIsPolishedAndPaintedOnce_data();
    void aRibbonWindowIsPolishedAndPaintedOnce();
    void theSameThemeAgainDoesNothing();
    void coloursThatTheApplicationSetStay();
    void aHighContrastPaletteStaysWhole();
    void linksTakeTheColourOfTheTheme();
    void theApplicationOwnsTheStyle();
    void aStyleThatIsNotInUseLeavesTheApplicationAlone();
    void aStyleSheetOnAWidgetDoesNotGetInTheWay();
};

void OfficeStyleTest::numbersOfThemesAndAccentsAreThoseThatApplicationsStore_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("2007 blue") << int(OfficeStyle::Office2007Blue) << 0;
    QTest::newRow("2007 black") << int(OfficeStyle::Office2007Black) << 1;
    QTest::newRow("2007 silver") << int(OfficeStyle::Office2007Silver) << 2;
    QTest::newRow("2007 aqua") << int(OfficeStyle::Office2007Aqua) << 3;
    QTest::newRow("scenic") << int(OfficeStyle::Windows7Scenic) << 4;
    QTest::newRow("2010 silver") << int(OfficeStyle::Office2010Silver) << 5;
    QTest::newRow("2010 blue") << int(OfficeStyle::Office2010Blue) << 6;
    QTest::newRow("2010 black") << int(OfficeStyle::Office2010Black) << 7;
    QTest::newRow("2013 white") << int(OfficeStyle::Office2013White) << 8;
    QTest::newRow("2013 gray") << int(OfficeStyle::Office2013Gray) << 9;
    QTest::newRow("2013 dark") << int(OfficeStyle::Office2013Dark) << 10;
    QTest::newRow("blue") << int(OfficeStyle::AccentColorBlue) << 0;
    QTest::newRow("brown") << int(OfficeStyle::AccentColorBrown) << 1;
    QTest::newRow("green") << int(OfficeStyle::AccentColorGreen) << 2;
    QTest::newRow("lime") << int(OfficeStyle::AccentColorLime) << 3;
    QTest::newRow("magenta") << int(OfficeStyle::AccentColorMagenta) << 4;
    QTest::newRow("orange") << int(OfficeStyle::AccentColorOrange) << 5;
    QTest::newRow("pink") << int(OfficeStyle::AccentColorPink) << 6;
    QTest::newRow("purple") << int(OfficeStyle::AccentColorPurple) << 7;
    QTest::newRow("red") << int(OfficeStyle::AccentColorRed) << 8;
    QTest::newRow("teal") << int(OfficeStyle::AccentColorTeal) << 9;
}

void OfficeStyleTest::numbersOfThemesAndAccentsAreThoseThatApplicationsStore()
{
    QFETCH(int, value);
    QFETCH(int, number);
    QCOMPARE(value, number);
}

void OfficeStyleTest::startsWithBlue2007AndTheBlueAccent()
{
    RibbonStyle style;
    QCOMPARE(style.getTheme(), OfficeStyle::Office2007Blue);
    QCOMPARE(style.accentColor(), QColor(0x1B, 0xA1, 0xE2));
}

void OfficeStyleTest::aThemeIsKeptAndShownByThePalette()
{
    style_test::ApplicationStyle style;
    for (int i = 0; i < style_test::ThemeCount; ++i) {
        style->setTheme(static_cast<OfficeStyle::Theme>(i));
        QCOMPARE(int(style->getTheme()), i);
        QCOMPARE(&RibbonTheme::current(), &style->ribbonTheme());
        const RibbonTheme theme(static_cast<OfficeStyle::Theme>(i), style->accentColor());
        QCOMPARE(QApplication::palette().color(QPalette::Window), theme.palette().color(QPalette::Window));
        QCOMPARE(QApplication::palette().color(QPalette::Text), theme.palette().color(QPalette::Text));
    }
}

void OfficeStyleTest::aNumberThatIsNoThemeChangesNothing_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("minus one, which asks for no change") << -1;
    QTest::newRow("one past the last") << 11;
    QTest::newRow("far off") << (1 << 20);
}

void OfficeStyleTest::aNumberThatIsNoThemeChangesNothing()
{
    QFETCH(int, number);
    RibbonStyle style;
    style.setTheme(OfficeStyle::Office2010Blue);
    QSignalSpy changes(&style, &OfficeStyle::themeChanged);
    style.setTheme(static_cast<OfficeStyle::Theme>(number));
    style.setAccentColor(static_cast<OfficeStyle::AccentColor>(number == (1 << 20) ? 10 : number));
    QCOMPARE(style.getTheme(), OfficeStyle::Office2010Blue);
    QCOMPARE(style.accentColor(), OfficeStyle::accentColor(OfficeStyle::AccentColorBlue));
    QCOMPARE(changes.count(), 0);
}

void OfficeStyleTest::namedAccentsHaveTheirColours_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QColor>("color");
    const QRgb colors[] = {0x1BA1E2, 0xA05000, 0x339933, 0xA2C139, 0xD80073,
                           0xF09609, 0xE671B8, 0xA200FF, 0xE51400, 0x00ABA9};
    const char* names[] = {"blue",   "brown", "green",  "lime", "magenta",
                           "orange", "pink",  "purple", "red",  "teal"};
    for (int i = 0; i < 10; ++i)
        QTest::newRow(names[i]) << i << QColor::fromRgb(colors[i]);
}

void OfficeStyleTest::namedAccentsHaveTheirColours()
{
    QFETCH(int, number);
    QFETCH(QColor, color);
    RibbonStyle style;
    style.setAccentColor(QColor(1, 2, 3));
    style.setAccentColor(static_cast<OfficeStyle::AccentColor>(number));
    QCOMPARE(style.accentColor(), color);
}

void OfficeStyleTest::anyColourCanBeTheAccent()
{
    RibbonStyle style;
    style.setTheme(OfficeStyle::Office2013White);
    QSignalSpy changes(&style, &OfficeStyle::themeChanged);
    style.setAccentColor(QColor(41, 152, 255));
    QCOMPARE(style.accentColor(), QColor(41, 152, 255));
    QCOMPARE(style.ribbonTheme()[Qtitan::Element::SystemButton].middle, QColor(41, 152, 255));
    QCOMPARE(changes.count(), 1);
    // A packed 10 has no alpha, and still is a colour.
    style.setAccentColor(QColor::fromRgb(10));
    QCOMPARE(style.accentColor(), QColor(0, 0, 10));
    style.setAccentColor(QColor());
    QCOMPARE(style.accentColor(), QColor(0, 0, 10));
    style.setAccentColor(QColor(9, 8, 7, 3));
    QCOMPARE(style.accentColor(), QColor(9, 8, 7));
    QCOMPARE(changes.count(), 3);
}

void OfficeStyleTest::anAccentWaitsForAThemeThatHasOne()
{
    RibbonStyle style;
    QSignalSpy changes(&style, &OfficeStyle::themeChanged);
    style.setAccentColor(OfficeStyle::AccentColorRed);
    QCOMPARE(changes.count(), 0);
    style.setTheme(OfficeStyle::Office2013Gray);
    QCOMPARE(style.ribbonTheme()[Qtitan::Element::SystemButton].middle, QColor(0xE5, 0x14, 0x00));
}

void OfficeStyleTest::openWindowsAreRestyledInOnePass()
{
    style_test::ApplicationStyle style;
    CountingWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* child = new CountingWidget;
    child->setMinimumSize(20, 20);
    window.resize(200, 100);
    layout->addWidget(child);
    auto* fixed = new CountingWidget;
    QPalette own;
    own.setColor(QPalette::Window, Qt::red);
    fixed->setPalette(own);
    layout->addWidget(fixed);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    for (CountingWidget* widget : {&window, child, fixed})
        widget->Reset();

    style->setTheme(OfficeStyle::Office2013Dark);
    QTRY_VERIFY(window.updates > 0);
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(window.updates, 1);
    for (const CountingWidget* widget : {&window, child, fixed}) {
        QCOMPARE(widget->style_changes, 1);
        QCOMPARE(widget->palette_changes, 1);
    }
    QVERIFY(Qtitan::DrawHelpers::luminance(window.palette().color(QPalette::Window)) < 0.1);
    QCOMPARE(fixed->palette().color(QPalette::Window), QColor(Qt::red));

    window.Reset();
    style->setAccentColor(OfficeStyle::AccentColorRed);
    QTRY_COMPARE(window.updates, 1);
    QCOMPARE(window.style_changes, 1);
}

void OfficeStyleTest::aRibbonWindowIsPolishedAndPaintedOnce_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<QColor>("accent");
    QTest::newRow("another family") << 0 << 8 << QColor();
    QTest::newRow("another theme of the family") << 5 << 6 << QColor();
    QTest::newRow("dark") << 9 << 10 << QColor();
    QTest::newRow("a named accent") << 8 << 8 << OfficeStyle::accentColor(OfficeStyle::AccentColorRed);
    QTest::newRow("any accent") << 10 << 10 << QColor(12, 200, 90);
}

void OfficeStyleTest::aRibbonWindowIsPolishedAndPaintedOnce()
{
    QFETCH(int, before);
    QFETCH(int, after);
    QFETCH(QColor, accent);
    style_test::ApplicationStyle style;
    style->setTheme(static_cast<OfficeStyle::Theme>(before));
    Qtitan::RibbonMainWindow window;
    for (const char* title : {"First", "Second"}) {
        Qtitan::RibbonGroup* group = window.ribbonBar()->addPage(QLatin1String(title))->addGroup(QStringLiteral("Group"));
        for (int i = 0; i < 6; ++i)
            group->addAction(QIcon(), QStringLiteral("Command %1").arg(i), Qt::ToolButtonTextBesideIcon);
    }
    window.setCentralWidget(new QPushButton(QStringLiteral("Button")));
    window.resize(500, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (int i = 0; i < 20; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }

    PassCounter counter(window);
    if (before != after)
        style->setTheme(static_cast<OfficeStyle::Theme>(after));
    else
        style->setAccentColor(accent);
    QTRY_VERIFY(counter.Most(QEvent::Paint) > 0);
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    // One round of painting; in it the window system's surface may ask a widget for two regions.
    for (const QEvent::Type pass : {QEvent::StyleChange, QEvent::PaletteChange, QEvent::UpdateRequest})
        QVERIFY2(counter.Most(pass) <= 1, qPrintable(counter.Worst(pass)));
    QVERIFY2(counter.Most(QEvent::Paint) <= 2, qPrintable(counter.Worst(QEvent::Paint)));
    QCOMPARE(counter.Most(QEvent::StyleChange), 1);
    QCOMPARE(counter.Most(QEvent::UpdateRequest), 1);
    QCOMPARE(counter.Most(QEvent::Polish), 0);
    // The page that is not shown has nothing to do with it.
    QVERIFY(!window.ribbonBar()->getPage(1)->isVisible());
}

void OfficeStyleTest::theSameThemeAgainDoesNothing()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2013Dark);
    CountingWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.Reset();
    style->setTheme(OfficeStyle::Office2013Dark);
    style->setAccentColor(OfficeStyle::AccentColorBlue);
    QCoreApplication::processEvents();
    QCOMPARE(window.style_changes, 0);
    QCOMPARE(window.palette_changes, 0);
}

void OfficeStyleTest::coloursThatTheApplicationSetStay()
{
    style_test::ApplicationStyle style;
    QPalette own;
    own.setColor(QPalette::Highlight, QColor(1, 200, 3));
    QApplication::setPalette(own);
    style->setTheme(OfficeStyle::Office2013Dark);
    QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(1, 200, 3));
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             style->ribbonTheme().palette().color(QPalette::Window));
    QApplication::setPalette(QPalette());
    QCOMPARE(QApplication::palette().color(QPalette::Highlight),
             style->ribbonTheme().palette().color(QPalette::Highlight));
}

void OfficeStyleTest::aHighContrastPaletteStaysWhole()
{
    style_test::ApplicationStyle style;
    style->setTheme(OfficeStyle::Office2010Silver);
    CountingWidget window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.Reset();
    QVERIFY(RibbonTheme::isHighContrast(HighContrastBlack()));
    QApplication::setPalette(HighContrastBlack());
    QVERIFY(style->ribbonTheme().isHighContrast());
    QCOMPARE(window.style_changes, 1);
    QCOMPARE(style->ribbonTheme()[Qtitan::Element::Page].middle, QColor(Qt::black));
    QCOMPARE(style->ribbonTheme()[Qtitan::Element::ButtonHover].middle, QColor(26, 235, 255));

    // The theme is remembered meanwhile, and comes when the contrast goes.
    style->setTheme(OfficeStyle::Office2013Dark);
    QVERIFY(style->ribbonTheme().isHighContrast());
    QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(Qt::black));
    QApplication::setPalette(QPalette());
    QVERIFY(!style->ribbonTheme().isHighContrast());
    QCOMPARE(style->ribbonTheme().theme(), OfficeStyle::Office2013Dark);
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             style->ribbonTheme().palette().color(QPalette::Window));
}

void OfficeStyleTest::linksTakeTheColourOfTheTheme()
{
    style_test::ApplicationStyle style;
    QLabel label(QStringLiteral("<a href=\"x\">MMMMMMMM</a>"));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    style->setTheme(OfficeStyle::Office2013Dark);
    const QImage picture = label.grab().toImage();
    const QColor link = style->ribbonTheme().palette().color(QPalette::Link);
    bool found = false;
    for (int y = 0; y < picture.height() && !found; ++y)
        for (int x = 0; x < picture.width() && !found; ++x)
            found = picture.pixelColor(x, y) == link;
    QVERIFY(found);
}

void OfficeStyleTest::theApplicationOwnsTheStyle()
{
    QPointer<RibbonStyle> style = new RibbonStyle;
    QApplication::setStyle(style);
    QCOMPARE(QApplication::style(), style.data());
    QCOMPARE(style->parent(), qApp);
    style->setTheme(OfficeStyle::Office2013Dark);
    QApplication::setStyle(QStringLiteral("fusion"));
    QVERIFY(!style);
    // What is drawn without the style has a theme all the same.
    QCOMPARE(RibbonTheme::current().theme(), OfficeStyle::Office2007Blue);
    QVERIFY(Qtitan::DrawHelpers::luminance(QApplication::palette().color(QPalette::Window)) > 0.5);
}

void OfficeStyleTest::aStyleThatIsNotInUseLeavesTheApplicationAlone()
{
    const QPalette before = QApplication::palette();
    RibbonStyle style;
    style.setTheme(OfficeStyle::Office2013Dark);
    QCOMPARE(QApplication::palette(), before);
    QVERIFY(&RibbonTheme::current() != &style.ribbonTheme());
    QVERIFY(style.standardPalette().color(QPalette::Window).lightness() < 100);
}

void OfficeStyleTest::aStyleSheetOnAWidgetDoesNotGetInTheWay()
{
    style_test::ApplicationStyle style;
    QPushButton button(QStringLiteral("Text"));
    button.setStyleSheet(QStringLiteral("font-weight: bold"));
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    style->setTheme(OfficeStyle::Office2013Dark);
    QVERIFY(Qtitan::DrawHelpers::luminance(button.palette().color(QPalette::Window)) < 0.1);
    QVERIFY(!button.grab().isNull());
}

OVK_TEST_CLASS(OfficeStyleTest)

#include "office_style_test.moc"
