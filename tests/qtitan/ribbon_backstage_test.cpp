#include "platform/qtitan/ribbon_backstage_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QLineEdit>
#include <QSignalSpy>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

struct Stage : Window
{
    Stage() : Window(2, 1)
    {
        bar->addSystemButton(QIcon(), QStringLiteral("File"));
        view = new RibbonBackstageView(bar);
        bar->getSystemButton()->setBackstage(view);
        for (const char* title : {"Info", "Print"}) {
            auto* page = new RibbonBackstagePage;
            page->setWindowTitle(QString::fromLatin1(title));
            view->addPage(page);
        }
        Settle();
    }

    QAbstractButton* Row(int index) const
    {
        return RibbonBackstageViewPrivate::get(view)->rowButtons().at(index);
    }

    RibbonBackstageView* view;
};

} // namespace

class RibbonBackstageTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itIsClosedUntilItsButtonIsClicked()
    {
        Stage w;
        QVERIFY(!w.view->isVisible());
        QTest::mouseClick(w.bar->getSystemButton(), Qt::LeftButton);
        QVERIFY(w.view->isVisible());
        QCOMPARE(w.bar->getSystemButton()->backstage(), w.view);
    }

    void eachSignalComesOnce()
    {
        Stage w;
        QSignalSpy show(w.view, &RibbonBackstageView::aboutToShow);
        QSignalSpy hide(w.view, &RibbonBackstageView::aboutToHide);
        w.view->setVisible(false);
        QCOMPARE(hide.count(), 0);
        w.view->setVisible(true);
        w.view->setVisible(true);
        w.view->show();
        QCOMPARE(show.count(), 1);
        w.view->setVisible(false);
        w.view->hide();
        QCOMPARE(hide.count(), 1);
        QCOMPARE(show.count(), 1);
    }

    void itOpensInAWindowThatIsNotShownYet()
    {
        RibbonMainWindow window;
        auto* view = new RibbonBackstageView(window.ribbonBar());
        QSignalSpy show(view, &RibbonBackstageView::aboutToShow);
        view->setVisible(true);
        QCOMPARE(show.count(), 1);
        QVERIFY(!view->isHidden());
        view->setVisible(false);
        QVERIFY(view->isHidden());
    }

    void itDoesNotOpenWithTheWindow()
    {
        RibbonMainWindow window;
        auto* view = new RibbonBackstageView(window.ribbonBar());
        window.show();
        Window::Settle();
        QVERIFY(!view->isVisible());
    }

    void itCoversTheClientAreaBelowTheCaption()
    {
        Stage w;
        w.bar->showQuickAccess(true);
        Window::Settle();
        w.view->setVisible(true);
        QCOMPARE(w.view->geometry().left(), 0);
        QCOMPARE(w.view->width(), w.window.width());
        QCOMPARE(w.view->geometry().bottom(), w.window.height() - 1);
        QVERIFY(w.view->y() > 0);
        w.window.resize(700, 450);
        Window::Settle();
        QCOMPARE(w.view->size(), QSize(700, 450 - w.view->y()));
    }

    void itIsClosed_data()
    {
        QTest::addColumn<QString>("by");
        for (const char* by : {"Escape", "the back arrow", "a tab", "a command row"})
            QTest::newRow(by) << QString::fromLatin1(by);
    }

    void itIsClosed()
    {
        QFETCH(QString, by);
        Stage w;
        QAction* command = w.view->addAction(QIcon(), QStringLiteral("Exit"));
        bool was_open = true;
        connect(command, &QAction::triggered, this, [&] { was_open = w.view->isVisible(); });
        QSignalSpy hide(w.view, &RibbonBackstageView::aboutToHide);
        w.view->setVisible(true);
        if (by == QLatin1String("Escape"))
            QTest::keyClick(w.view, Qt::Key_Escape);
        else if (by == QLatin1String("the back arrow"))
            QTest::mouseClick(w.Row(0), Qt::LeftButton);
        else if (by == QLatin1String("a tab"))
            QTest::mouseClick(w.TabBar(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
        else
            QTest::mouseClick(w.Row(3), Qt::LeftButton);
        QVERIFY(!w.view->isVisible());
        QCOMPARE(hide.count(), 1);
        QCOMPARE(was_open, by != QLatin1String("a command row"));
    }

    void theFirstPageIsOpenAndRowsOpenTheirs()
    {
        Stage w;
        w.view->setVisible(true);
        QCOMPARE(w.view->activePage(), w.view->pages().first());
        QSignalSpy spy(w.view, &RibbonBackstageView::activePageChanged);
        QTest::mouseClick(w.Row(2), Qt::LeftButton);
        QCOMPARE(w.view->activePage(), w.view->pages().last());
        QVERIFY(w.view->pages().last()->isVisible());
        QVERIFY(!w.view->pages().first()->isVisible());
        QCOMPARE(spy.count(), 1);
        w.view->setActivePage(nullptr);
        QCOMPARE(w.view->activePage(), w.view->pages().last());
    }

    void aRowFollowsTheTitleOfItsPage()
    {
        Stage w;
        w.view->pages().first()->setWindowTitle(QStringLiteral("Renamed"));
        QCOMPARE(w.Row(1)->text(), QStringLiteral("Renamed"));
    }

    void aDeletedPageTakesItsRow()
    {
        Stage w;
        w.view->setVisible(true);
        delete w.view->pages().first();
        QCOMPARE(w.view->pages().size(), 1);
        QCOMPARE(w.view->actions().size(), 1);
        QCOMPARE(w.view->activePage(), w.view->pages().first());
        RibbonBackstagePage* page = w.view->pages().first();
        w.view->removePage(page);
        QVERIFY(!w.view->activePage());
        QVERIFY(!page->parentWidget());
        delete page;
    }

    void pagesStandWhereTheyWereInserted()
    {
        Stage w;
        auto* page = new RibbonBackstagePage;
        page->setWindowTitle(QStringLiteral("New"));
        w.view->addSeparator();
        w.view->insertPage(w.view->pageAction(w.view->pages().last()), page);
        QCOMPARE(w.view->pages().at(1), page);
        w.view->addPage(nullptr);
        w.view->addPage(page);
        QCOMPARE(w.view->pages().size(), 3);
    }

    void arrowsAndEnterWalkTheRows()
    {
        Stage w;
        w.window.activateWindow();
        w.view->setVisible(true);
        QTest::keyClick(w.view, Qt::Key_Down);
        QTest::keyClick(w.view, Qt::Key_Down);
        QTest::keyClick(w.view, Qt::Key_Down);
        QVERIFY(w.Row(2)->hasFocus());
        QTest::keyClick(w.Row(2), Qt::Key_Return);
        QCOMPARE(w.view->activePage(), w.view->pages().last());
        QTest::keyClick(w.Row(2), Qt::Key_Up);
        QVERIFY(w.Row(1)->hasFocus());
    }

    void tabStaysInside()
    {
        Stage w;
        auto* edit = new QLineEdit(w.view->pages().first());
        edit->show();
        w.window.activateWindow();
        w.view->setVisible(true);
        for (int i = 0; i < 10; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(w.view->isAncestorOf(QApplication::focusWidget()));
        }
    }

    void theFocusGoesBackWhereItWas()
    {
        Stage w;
        w.window.activateWindow();
        w.content->setFocus();
        w.view->setVisible(true);
        QVERIFY(!w.content->hasFocus());
        w.view->setVisible(false);
        QVERIFY(w.content->hasFocus());
    }

    void openingEndsAPeek()
    {
        Stage w;
        w.bar->setMinimized(true);
        QTest::mouseClick(w.TabBar(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
        QVERIFY(w.bar->isPeeking());
        w.view->setVisible(true);
        QVERIFY(!w.bar->isPeeking());
    }

    void aButtonOfAPageRunsItsAction()
    {
        RibbonBackstageButton button;
        QAction action(ribbon_test::MakeIcon(), QStringLiteral("Protect"), nullptr);
        button.setDefaultAction(&action);
        QVERIFY(!button.isFlatStyle());
        button.setFlatStyle(true);
        QVERIFY(button.isFlatStyle());
        QVERIFY(button.sizeHint().height() > button.iconSize().height());
        int runs = 0;
        connect(&action, &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(runs, 1);
    }

    void aSystemButtonWithoutABackstageDoesNothing()
    {
        Window w(1, 1);
        w.bar->addSystemButton(QIcon(), QStringLiteral("File"));
        QTest::mouseClick(w.bar->getSystemButton(), Qt::LeftButton);
        QVERIFY(!w.bar->getSystemButton()->backstage());
    }

    void theWindowMayGoWhileItIsOpen()
    {
        auto w = std::make_unique<Stage>();
        w->view->setVisible(true);
        w.reset();
    }
};

OVK_TEST_CLASS(RibbonBackstageTest)

#include "ribbon_backstage_test.moc"
