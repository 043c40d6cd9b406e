#include "tests/customize/dialog_host.h"
#include "tests/support/test_main.h"

#include <ovk/core/observer.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <QTranslator>

using namespace ovk;
using namespace ovk_test;

namespace {

using Theme = Qtitan::OfficeStyle::Theme;
using Accent = Qtitan::OfficeStyle::AccentColor;

/// Every text of the page's context in brackets.
class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QLatin1String(context) == QLatin1String("ovk::UiCustomizeStyleWidget::Impl")
                   ? '[' + QLatin1String(source) + ']'
                   : QString();
    }
};

/// The page by itself, over settings that are put back afterwards.
struct StylePage
{
    StylePage()
    {
        Set(Theme(0), Accent(0));
        page->BeginEdit();
        page->Attach(observer);
    }
    ~StylePage()
    {
        delete page;
        Set(Theme(0), Accent(0));
    }

    static void Set(Theme theme, Accent accent)
    {
        RibbonWindowSettings::OfficeTheme().SetData(theme);
        RibbonWindowSettings::AccentColor().SetData(accent);
    }
    static int CurrentTheme() { return int(RibbonWindowSettings::OfficeTheme().GetData()); }
    static int CurrentAccent() { return int(RibbonWindowSettings::AccentColor().GetData()); }
    QComboBox& Skin() const { return *page->GetWidget()->findChild<QComboBox*>("mp_cb_skin"); }
    QComboBox& Color() const
    {
        return *page->GetWidget()->findChild<QComboBox*>("mp_cb_color_accent");
    }
    static QStringList Rows(const QComboBox& combo)
    {
        QStringList rows;
        for (int i = 0; i < combo.count(); ++i)
            rows.append(combo.itemText(i));
        return rows;
    }

    int notified = 0;
    ObserverFunctor observer{[this] { ++notified; }, false};
    UiCustomizeStyleWidget* page = UiCustomizeStyleWidget::GetInstance();
};

} // namespace

class StylePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QDir(DataHome()).removeRecursively(); }

    void theFormHasItsWidgets();
    void theRowsAreTheThemesAndAccents();
    void thereIsOnePage();
    void openingShowsTheSettings_data();
    void openingShowsTheSettings();
    void aSkinIsSeenAtOnce();
    void onlyTheThemesOf2013HaveAnAccent_data();
    void onlyTheThemesOf2013HaveAnAccent();
    void anAccentIsSeenAtOnce();
    void theLastAccentIsAPackedColour();
    void restoreGoesBackToTheOpening();
    void acceptKeepsWhatWasChosen();
    void aLanguageChangeKeepsTheChoice();
    void cancelOfTheDialogRestoresBoth();
    void discardOfTheDialogRestoresBothAndStaysOpen();
    void okOfTheDialogKeepsBoth();
};

void StylePageTest::theFormHasItsWidgets()
{
    StylePage style;
    const QWidget& page = *style.page->GetWidget();
    QCOMPARE(page.findChild<QLabel*>("mp_l_skin")->text(), QStringLiteral("Skin"));
    QCOMPARE(page.findChild<QLabel*>("mp_l_accent_color")->text(), QStringLiteral("Color accent"));
    QVERIFY(page.findChild<QLayout*>("gridLayout"));
}

void StylePageTest::theRowsAreTheThemesAndAccents()
{
    StylePage style;
    QCOMPARE(StylePage::Rows(style.Skin()),
             (QStringList{"Office 2007 Blue", "Office 2007 Black", "Office 2007 Silver",
                          "Office 2007 Aqua", "Windows 7 Scenic", "Office 2010 Silver",
                          "Office 2010 Blue", "Office 2010 Black", "Office 2013 White",
                          "Office 2013 Gray", "Office 2013 Dark"}));
    QCOMPARE(StylePage::Rows(style.Color()),
             (QStringList{"Blue", "Brown", "Green", "Lime", "Magenta", "Orange", "Pink", "Purple",
                          "Red", "Teal", "Corvantique (c)"}));
}

void StylePageTest::thereIsOnePage()
{
    QVERIFY(!UiCustomizeStyleWidget::Existing());
    {
        StylePage style;
        QCOMPARE(UiCustomizeStyleWidget::GetInstance(), style.page);
        QCOMPARE(UiCustomizeStyleWidget::Existing(), style.page);
    }
    QVERIFY(!UiCustomizeStyleWidget::Existing());
}

void StylePageTest::openingShowsTheSettings_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("accent");
    QTest::addColumn<int>("theme_row");
    QTest::addColumn<int>("accent_row");
    QTest::newRow("the first") << 0 << 0 << 0 << 0;
    QTest::newRow("the last") << 10 << 9 << 10 << 9;
    QTest::newRow("the packed colour 10") << 8 << 10 << 8 << 10;
    QTest::newRow("the default colour") << 8 << -1 << 8 << -1;
    QTest::newRow("a colour of the host") << 9 << int(0x00336699) << 9 << -1;
    QTest::newRow("a theme left alone") << -1 << 2 << -1 << 2;
}

void StylePageTest::openingShowsTheSettings()
{
    QFETCH(int, theme);
    QFETCH(int, accent);
    QFETCH(int, theme_row);
    QFETCH(int, accent_row);
    StylePage style;
    StylePage::Set(Theme(theme), Accent(accent));
    style.page->BeginEdit();
    QCOMPARE(style.Skin().currentIndex(), theme_row);
    QCOMPARE(style.Color().currentIndex(), accent_row);
    // Showing a setting that has no row changes nothing.
    QCOMPARE(StylePage::CurrentTheme(), theme);
    QCOMPARE(StylePage::CurrentAccent(), accent);
    QVERIFY(!style.page->HasChanges());
}

void StylePageTest::aSkinIsSeenAtOnce()
{
    RibbonStyleScope scope;
    FakeHost host;
    host.Start();
    StylePage style;
    RibbonWindow window;
    const int notified = style.notified;
    style.Skin().setCurrentIndex(9);
    QCOMPARE(StylePage::CurrentTheme(), 9);
    QCOMPARE(int(scope.Style().getTheme()), 9);
    QCOMPARE(int(window.GetTheme()), 9);
    QVERIFY(style.notified > notified);
    QVERIFY(style.page->HasChanges());
    style.Skin().setCurrentIndex(0);
    QVERIFY(!style.page->HasChanges());
}

void StylePageTest::onlyTheThemesOf2013HaveAnAccent_data()
{
    QTest::addColumn<int>("theme");
    for (int theme = 0; theme <= 10; ++theme)
        QTest::addRow("theme %d", theme) << theme;
}

void StylePageTest::onlyTheThemesOf2013HaveAnAccent()
{
    QFETCH(int, theme);
    StylePage style;
    style.Skin().setCurrentIndex(theme == 8 ? 6 : 8);
    QCOMPARE(style.Color().isEnabled(), theme != 8);
    style.Skin().setCurrentIndex(theme);
    QCOMPARE(style.Color().isEnabled(), theme >= 8);
    // Also when the page is opened with it.
    style.page->BeginEdit();
    QCOMPARE(style.Color().isEnabled(), theme >= 8);
}

void StylePageTest::anAccentIsSeenAtOnce()
{
    RibbonStyleScope scope;
    FakeHost host;
    host.Start();
    StylePage style;
    RibbonWindow window;
    style.Skin().setCurrentIndex(8);
    const int notified = style.notified;
    const QColor before = scope.Style().accentColor();
    style.Color().setCurrentIndex(8);
    QCOMPARE(StylePage::CurrentAccent(), 8);
    QVERIFY(scope.Style().accentColor() != before);
    QVERIFY(style.notified > notified);
    QVERIFY(style.page->HasChanges());
}

void StylePageTest::theLastAccentIsAPackedColour()
{
    RibbonStyleScope scope;
    FakeHost host;
    host.Start();
    StylePage style;
    RibbonWindow window;
    style.Skin().setCurrentIndex(8);
    style.Color().setCurrentIndex(10);
    QCOMPARE(StylePage::CurrentAccent(), 10);
    QCOMPARE(scope.Style().accentColor(), QColor::fromRgb(10));
}

void StylePageTest::restoreGoesBackToTheOpening()
{
    StylePage style;
    StylePage::Set(Theme(9), Accent(3));
    style.page->BeginEdit();
    style.Skin().setCurrentIndex(2);
    style.Color().setCurrentIndex(7);
    QVERIFY(style.page->HasChanges());
    const int notified = style.notified;
    style.page->Restore();
    QCOMPARE(StylePage::CurrentTheme(), 9);
    QCOMPARE(StylePage::CurrentAccent(), 3);
    QCOMPARE(style.Skin().currentIndex(), 9);
    QCOMPARE(style.Color().currentIndex(), 3);
    QVERIFY(style.Color().isEnabled());
    QVERIFY(style.notified > notified);
    QVERIFY(!style.page->HasChanges());
}

void StylePageTest::acceptKeepsWhatWasChosen()
{
    StylePage style;
    style.Skin().setCurrentIndex(10);
    style.Color().setCurrentIndex(4);
    style.page->Accept();
    QCOMPARE(StylePage::CurrentTheme(), 10);
    QCOMPARE(StylePage::CurrentAccent(), 4);
}

void StylePageTest::aLanguageChangeKeepsTheChoice()
{
    StylePage style;
    style.Skin().setCurrentIndex(8);
    style.Color().setCurrentIndex(10);
    const int notified = style.notified;
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(style.page->GetWidget(), &change);
    QCOMPARE(style.Skin().currentText(), QStringLiteral("[Office 2013 White]"));
    // A name, which no language changes.
    QCOMPARE(style.Color().currentText(), QStringLiteral("Corvantique (c)"));
    QCOMPARE(style.Color().itemText(0), QStringLiteral("[Blue]"));
    QCOMPARE(StylePage::CurrentTheme(), 8);
    QCOMPARE(StylePage::CurrentAccent(), 10);
    QCOMPARE(style.notified, notified);
    QCoreApplication::removeTranslator(&brackets);
}

void StylePageTest::cancelOfTheDialogRestoresBoth()
{
    RibbonStyleScope scope;
    StylePage::Set(Theme(8), Accent(2));
    Dialog dialog({QStringLiteral("Edit.CustomizeUI.Style")});
    QCOMPARE(dialog.Get().findChild<QStackedWidget*>()->count(), 3);
    dialog.Find<QToolButton>("mp_btn_style")->click();
    dialog.Find<QComboBox>("mp_cb_skin")->setCurrentIndex(10);
    dialog.Find<QComboBox>("mp_cb_color_accent")->setCurrentIndex(5);
    QCOMPARE(int(dialog.window->GetTheme()), 10);
    QVERIFY(dialog.Button(QDialogButtonBox::Discard)->isEnabled());
    dialog.Get().reject();
    QCOMPARE(int(dialog.window->GetTheme()), 8);
    QCOMPARE(StylePage::CurrentAccent(), 2);
    StylePage::Set(Theme(0), Accent(0));
}

void StylePageTest::discardOfTheDialogRestoresBothAndStaysOpen()
{
    Dialog dialog({QStringLiteral("Edit.CustomizeUI.Style")});
    dialog.Find<QToolButton>("mp_btn_style")->click();
    dialog.Find<QComboBox>("mp_cb_skin")->setCurrentIndex(10);
    dialog.Button(QDialogButtonBox::Discard)->click();
    QVERIFY(dialog.Get().isVisible());
    QCOMPARE(StylePage::CurrentTheme(), 0);
    QCOMPARE(dialog.Find<QComboBox>("mp_cb_skin")->currentIndex(), 0);
    QVERIFY(!dialog.Button(QDialogButtonBox::Discard)->isEnabled());
}

void StylePageTest::okOfTheDialogKeepsBoth()
{
    {
        Dialog dialog({QStringLiteral("Edit.CustomizeUI.Style")});
        dialog.Find<QToolButton>("mp_btn_style")->click();
        dialog.Find<QComboBox>("mp_cb_skin")->setCurrentIndex(8);
        dialog.Find<QComboBox>("mp_cb_color_accent")->setCurrentIndex(5);
        dialog.Button(QDialogButtonBox::Ok)->click();
    }
    QCOMPARE(StylePage::CurrentTheme(), 8);
    QCOMPARE(StylePage::CurrentAccent(), 5);
    StylePage::Set(Theme(0), Accent(0));
}

OVK_TEST_CLASS(StylePageTest)

#include "style_page_test.moc"
