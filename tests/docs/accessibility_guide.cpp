#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include <ovk/main_window.h>
#include <ovk/widgets.h>

#include <QAccessible>
#include <QLabel>

/// The code of docs/accessibility.md.
class AccessibilityGuideTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScreenReaderHearsNamesAndValues()
    {
        QApplication::setStyle(new Qtitan::RibbonStyle);
        ovk_test::FakeHost host;
        ovk::RibbonWindow window;

        ovk::ColorEdit* edit = new ovk::ColorEdit(&window);
        edit->setAccessibleName("Colour of the part");
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(edit);
        QCOMPARE(seen->text(QAccessible::Name), QStringLiteral("Colour of the part"));

        QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(window.ribbonBar());
        QVERIFY(bar);
        QVERIFY(bar->role() != QAccessible::NoRole);
    }
};

OVK_TEST_CLASS(AccessibilityGuideTest)

#include "accessibility_guide.moc"
