#include "tests/main_window/window_host.h"
#include "tests/support/test_main.h"

#include <ovk/main_window/accessible_ribbon_bar_p.h>
#include <ovk/main_window/accessible_widgets.h>
#include <ovk/main_window/backstage_page_base.h>
#include <ovk/main_window/ribbon_window.h>

#include <qtitan/ribbon.h>

#include <QGridLayout>

using namespace ovk;
using namespace ovk_test;

namespace {

class Page : public BackstagePageBase
{
public:
    Page() : BackstagePageBase(nullptr), grid(new QGridLayout(this))
    {
        button = new Qtitan::RibbonBackstageButton(this);
        grid->addWidget(button);
    }
    void Bind(const QString& id) { AddPageButton(id, button, grid); }

    QGridLayout* grid;
    QPointer<QObject> Watch() { return QPointer<QObject>(button); }
    Qtitan::RibbonBackstageButton* button = nullptr;
};

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBarListsPagesThenTheQuickAccessBar();
    void strangersAreNotChildren();
    void theHostsCallNamesTheQuickAccessBar();
    void aBackstageButtonGetsItsCommand();
    void aBackstageButtonWithoutACommandGoes();
};

void AccessibilityTest::theBarListsPagesThenTheQuickAccessBar()
{
    FakeHost host;
    RibbonWindow window;
    Qtitan::RibbonBar* bar = window.ribbonBar();
    for (int i = 0; i < 4; ++i)
        bar->addPage(QString::number(i));
    AccessibleRibbonBar accessible(bar);
    QCOMPARE(accessible.role(), QAccessible::MenuBar);
    QCOMPARE(accessible.text(QAccessible::Name), QStringLiteral("RibbonBar"));
    QCOMPARE(accessible.childCount(), 5);
    for (int i = 0; i < 4; ++i) {
        QVERIFY(accessible.child(i));
        QCOMPARE(accessible.child(i)->object(), static_cast<QObject*>(bar->getPage(i)));
        QCOMPARE(accessible.indexOfChild(accessible.child(i)), i);
    }
    QAccessibleInterface* last = accessible.child(4);
    QVERIFY(last);
    QCOMPARE(last->object(), static_cast<QObject*>(bar->quickAccessBar()));
    QCOMPARE(last->role(), QAccessible::ToolBar);
    // One past the index that it is found at: clients are used to it.
    QCOMPARE(accessible.indexOfChild(last), 5);
}

void AccessibilityTest::strangersAreNotChildren()
{
    FakeHost host;
    RibbonWindow window;
    AccessibleRibbonBar accessible(window.ribbonBar());
    QVERIFY(!accessible.child(1));
    QVERIFY(!accessible.child(-1));
    QCOMPARE(accessible.indexOfChild(nullptr), -1);
    QWidget stranger;
    QCOMPARE(accessible.indexOfChild(QAccessible::queryAccessibleInterface(&stranger)), -1);
}

void AccessibilityTest::theHostsCallNamesTheQuickAccessBar()
{
    InitAccessibleWidgets();
    FakeHost host;
    RibbonWindow window;
    InitAccessibleWidgets();
    QCOMPARE(window.ribbonBar()->quickAccessBar()->accessibleName(), QStringLiteral("quickAccessBar"));
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(window.ribbonBar());
    QVERIFY(bar);
    QCOMPARE(bar->text(QAccessible::Name), QStringLiteral("RibbonBar"));
}

void AccessibilityTest::aBackstageButtonGetsItsCommand()
{
    FakeHost host;
    Page page;
    QVERIFY(!page.HasButtons());
    page.Bind(QStringLiteral("Help.About"));
    QVERIFY(page.HasButtons());
    QCOMPARE(page.button->defaultAction(), static_cast<QAction*>(host.Command(QStringLiteral("Help.About"))));
}

void AccessibilityTest::aBackstageButtonWithoutACommandGoes()
{
    FakeHost host;
    Page page;
    const QPointer<QObject> button = page.Watch();
    page.Bind(QStringLiteral("No.Such.Command"));
    QVERIFY(!button);
    QVERIFY(!page.button);
    QVERIFY(!page.HasButtons());
    QCOMPARE(page.grid->count(), 0);
    page.Bind(QStringLiteral("Help.About"));
    QVERIFY(!page.HasButtons());
}

OVK_TEST_CLASS(AccessibilityTest)

#include "accessibility_test.moc"
