#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/core.h>
#include <ovk/main_window.h>

#include <QSignalSpy>

/// The code of docs/theming.md.
class ThemingGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aThemeIsChosen()
    {
        QApplication::setStyle(new Qtitan::RibbonStyle); // the application's
        ovk_test::FakeHost host;
        host.Start();
        ovk::RibbonWindow window;

        ovk::RibbonWindowSettings::OfficeTheme() = Qtitan::OfficeStyle::Office2013Dark;
        ovk::RibbonWindowSettings::AccentColor() = Qtitan::OfficeStyle::AccentColorTeal;
        ovk::RibbonWindowSettings::GroupTitleVisible() = true;
        QCOMPARE(window.GetTheme(), Qtitan::OfficeStyle::Office2013Dark);
        QCOMPARE(window.GetStyle()->accentColor(), QColor(0x00, 0xab, 0xa9));

        window.GetStyle()->setAccentColor(QColor(200, 60, 20)); // any opaque colour
        QCOMPARE(window.GetStyle()->accentColor(), QColor(200, 60, 20));

        window.setFrameTheme(true); // a caption of its own, with title and quick access bar

        const QColor text = QApplication::palette().color(QPalette::Text);
        QVERIFY(text.lightness() > 128);

        QSignalSpy changes(window.GetStyle(), &Qtitan::OfficeStyle::themeChanged);
        ovk::RibbonWindowSettings::OfficeTheme() = Qtitan::OfficeStyle::Office2007Blue;
        QCOMPARE(changes.size(), 1);
        ovk::RibbonWindowSettings::AccentColor() = Qtitan::OfficeStyle::AccentColorBlue;
        ovk::RibbonWindowSettings::GroupTitleVisible() = false;
    }
};

OVK_TEST_CLASS(ThemingGuideTest)

#include "theming_guide.moc"
