#include "platform/qtitan/ribbon_quick_access_bar_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QLineEdit>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

struct Quick : Window
{
    explicit Quick(int actions, int width = 900) : Window(1, 1, QSize(width, 400))
    {
        bar->showQuickAccess(true);
        quick = bar->quickAccessBar();
        for (int i = 0; i < actions; ++i)
            quick->addAction(ribbon_test::MakeIcon(), QStringLiteral("Quick %1").arg(i));
        Settle();
        overflow = bar->findChild<RibbonOverflowButton*>();
    }

    bool IsSeen(QAction* action) const
    {
        const QWidget* widget = quick->widgetForAction(action);
        return widget && widget->isVisible() && !widget->visibleRegion().isEmpty();
    }

    RibbonQuickAccessBar* quick;
    RibbonOverflowButton* overflow;
};

} // namespace

class RibbonQuickAccessTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theArithmeticOfWhatFits_data()
    {
        QTest::addColumn<QVector<int>>("edges");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("count");
        const QVector<int> edges{22, 44, 66};
        QTest::newRow("all, exactly") << edges << 66 << 3;
        QTest::newRow("one pixel less needs the button's room too") << edges << 65 << 2;
        QTest::newRow("only one beside the button") << edges << 40 << 1;
        QTest::newRow("none") << edges << 20 << 0;
        QTest::newRow("nothing to fit") << QVector<int>() << 0 << 0;
    }

    void theArithmeticOfWhatFits()
    {
        QFETCH(QVector<int>, edges);
        QFETCH(int, width);
        QFETCH(int, count);
        QCOMPARE(quickAccessFit(edges, width, 13), count);
    }

    void itIsHiddenUntilItIsWanted()
    {
        Window w(1, 1);
        QVERIFY(!w.bar->isQuickAccessVisible());
        QVERIFY(!w.bar->quickAccessBar()->isVisible());
        const int height = w.bar->height();
        w.bar->showQuickAccess(true);
        Window::Settle();
        QVERIFY(w.bar->quickAccessBar()->isVisible());
        QVERIFY(w.bar->height() > height);
        w.bar->showQuickAccess(false);
        Window::Settle();
        QCOMPARE(w.bar->height(), height);
    }

    void itIsAToolBarWithSmallIcons()
    {
        Quick w(3);
        QVERIFY(qobject_cast<QToolBar*>(w.quick));
        QCOMPARE(w.quick->iconSize(), QSize(16, 16));
        QVERIFY(qobject_cast<QToolButton*>(w.quick->widgetForAction(w.quick->actions().first())));
    }

    void whatDoesNotFitIsBehindTheButton()
    {
        Quick w(40, 400);
        QVERIFY(w.quick->hasOverflow());
        QVERIFY(w.overflow->isVisible());
        const QList<QAction*> hidden = w.quick->overflowActions();
        QVERIFY(!hidden.isEmpty() && hidden.size() < 40);
        QVERIFY(w.IsSeen(w.quick->actions().first()));
        QVERIFY(!w.IsSeen(hidden.first()));
        w.window.resize(3000, 400);
        Window::Settle();
        QVERIFY(!w.quick->hasOverflow());
        QVERIFY(!w.overflow->isVisible());
        QVERIFY(w.IsSeen(w.quick->actions().last()));
    }

    void theButtonOpensTheRestAndACommandClosesIt()
    {
        Quick w(40, 400);
        QAction* last = w.quick->actions().last();
        QTest::mouseClick(w.overflow, Qt::LeftButton);
        QVERIFY(w.overflow->isPopupVisible());
        QWidget* button = w.quick->widgetForAction(last);
        QVERIFY(button->isVisible());
        QVERIFY(button->window() != &w.window);
        int runs = 0;
        connect(last, &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(runs, 1);
        QTRY_VERIFY(!w.overflow->isPopupVisible());
        QCOMPARE(w.quick->window(), &w.window);
        QVERIFY(w.IsSeen(w.quick->actions().first()));
    }

    void escapeClosesTheRest()
    {
        Quick w(40, 400);
        w.overflow->openPopup();
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QVERIFY(!w.overflow->isPopupVisible());
        QCOMPARE(w.quick->window(), &w.window);
    }

    void aSearchEditThatDoesNotFitIsReachedByItsShortcut()
    {
        Quick w(30, 400);
        auto* edit = new QLineEdit;
        edit->setFixedWidth(200);
        edit->setFocusPolicy(Qt::ClickFocus);
        w.quick->addWidget(edit);
        Window::Settle();
        w.window.activateWindow();
        edit->setFocus();
        QTRY_VERIFY(w.overflow->isPopupVisible());
        QTRY_VERIFY(edit->hasFocus());
        QVERIFY(!edit->visibleRegion().isEmpty());
    }

    void clearingTakesTheWidgetsOfTheHostAlong()
    {
        Quick w(3);
        const QPointer<QWidget> edit = new QLineEdit;
        QPointer<QAction> action = w.quick->addWidget(edit);
        w.quick->clear();
        delete action;
        QVERIFY(!edit);
        Window::Settle();
        QVERIFY(!w.quick->hasOverflow());
    }

    void aHiddenActionTakesNoRoom()
    {
        Quick w(40, 400);
        for (int i = 2; i < 40; ++i)
            w.quick->actions().at(i)->setVisible(false);
        Window::Settle();
        QVERIFY(!w.quick->hasOverflow());
    }
};

OVK_TEST_CLASS(RibbonQuickAccessTest)

#include "ribbon_quick_access_test.moc"
