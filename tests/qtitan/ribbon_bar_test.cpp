#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_group_panel_p.h"
#include "platform/qtitan/ribbon_tab_bar_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QMenu>
#include <QSignalSpy>
#include <QStatusBar>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

QPoint TabCenter(const Window& w, int index)
{
    return static_cast<RibbonTabBar*>(w.TabBar())->tabRect(index).center();
}

void ClickTab(const Window& w, int index)
{
    QTest::mouseClick(w.TabBar(), Qt::LeftButton, Qt::NoModifier, TabCenter(w, index));
}

/// As the window system tells it: press, release, double click, release.
void DoubleClickTab(const Window& w, int index)
{
    const QPoint place = TabCenter(w, index);
    QTest::mousePress(w.TabBar(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseRelease(w.TabBar(), Qt::LeftButton, Qt::NoModifier, place);
    QMouseEvent second(QEvent::MouseButtonDblClick, place, w.TabBar()->mapToGlobal(place),
                       Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(w.TabBar(), &second);
    QTest::mouseRelease(w.TabBar(), Qt::LeftButton, Qt::NoModifier, place);
}

} // namespace

class RibbonBarTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theBarIsThereFromTheBeginning()
    {
        RibbonMainWindow window;
        QVERIFY(window.ribbonBar());
        QCOMPARE(window.menuWidget(), window.ribbonBar());
        QCOMPARE(window.ribbonBar()->currentPageIndex(), -1);
        QVERIFY(!window.ribbonBar()->currentPage());
        QVERIFY(window.ribbonBar()->quickAccessBar());
        QVERIFY(!window.ribbonBar()->getSystemButton());
        QVERIFY(!window.ribbonBar()->getPage(0));
    }

    void theFirstPageThatIsShownBecomesCurrent()
    {
        RibbonMainWindow window;
        auto* hidden = new RibbonPage(window.ribbonBar(), QStringLiteral("Hidden"));
        hidden->setVisible(false);
        window.ribbonBar()->insertPage(0, hidden);
        QCOMPARE(window.ribbonBar()->currentPageIndex(), -1);
        RibbonPage* shown = window.ribbonBar()->addPage(QStringLiteral("Shown"));
        QCOMPARE(window.ribbonBar()->currentPage(), shown);
        QVERIFY(hidden->isHidden());
        QVERIFY(!shown->isHidden());
    }

    void anIndexOutOfRangeAppends()
    {
        RibbonMainWindow window;
        RibbonBar* bar = window.ribbonBar();
        bar->addPage(QStringLiteral("A"));
        auto* b = new RibbonPage(bar, QStringLiteral("B"));
        bar->insertPage(-1, b);
        auto* c = new RibbonPage(bar, QStringLiteral("C"));
        bar->insertPage(50, c);
        auto* d = new RibbonPage(bar, QStringLiteral("D"));
        bar->insertPage(0, d);
        QStringList titles;
        for (const RibbonPage* page : bar->pages())
            titles += page->title();
        QCOMPARE(titles.join(QString()), QStringLiteral("DABC"));
        bar->insertPage(1, static_cast<RibbonPage*>(nullptr));
        QCOMPARE(bar->pageCount(), 4);
    }

    void movingAPageMovesItsTab()
    {
        Window w(3, 1);
        RibbonPage* first = w.bar->getPage(0);
        w.bar->movePage(0, 2);
        QCOMPARE(w.bar->indexOfPage(first), 2);
        QCOMPARE(static_cast<RibbonTabBar*>(w.TabBar())->pages().last(), first);
        QCOMPARE(w.bar->currentPage(), first);
        w.bar->movePage(0, 7);
        w.bar->movePage(-1, 0);
        QCOMPARE(w.bar->indexOfPage(first), 2);
    }

    void aDetachedPageComesBackWithItsGroups()
    {
        Window w(2, 2);
        RibbonPage* page = w.bar->getPage(0);
        QList<QWidget*> groups{page->getGroup(0), page->getGroup(1)};
        w.bar->detachPage(page);
        QCOMPARE(w.bar->pageCount(), 1);
        QVERIFY(!page->isVisible());
        QVERIFY(!page->ribbonBar());
        QCOMPARE(w.bar->currentPageIndex(), 0);
        w.bar->insertPage(0, page);
        w.bar->setCurrentPage(0);
        Window::Settle();
        QVERIFY(page->isVisible());
        QCOMPARE(page->getGroup(1), groups.at(1));
        QVERIFY(page->getGroup(0)->isVisible());
    }

    void aDetachedPageRemembersThatItWasHidden()
    {
        Window w(2, 1);
        RibbonPage* page = w.bar->getPage(1);
        page->setVisible(false);
        w.bar->detachPage(page);
        QVERIFY(page->isHidden());
        w.bar->insertPage(1, page);
        QVERIFY(page->isHidden());
        QCOMPARE(static_cast<RibbonTabBar*>(w.TabBar())->pages().size(), 1);
    }

    void aPageOfAnotherBarMovesOver()
    {
        Window w(1, 1);
        Window other(1, 1);
        RibbonPage* page = other.bar->getPage(0);
        w.bar->insertPage(1, page);
        QCOMPARE(other.bar->pageCount(), 0);
        QCOMPARE(page->ribbonBar(), w.bar);
        other.bar->detachPage(page);
        QCOMPARE(w.bar->pageCount(), 2);
    }

    void aDeletedPageLeavesNothingBehind()
    {
        Window w(3, 1);
        QSignalSpy spy(w.bar, &RibbonBar::currentPageChanged);
        delete w.bar->getPage(0);
        QCOMPARE(w.bar->pageCount(), 2);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        QCOMPARE(spy.count(), 1);
        w.bar->removePage(w.bar->getPage(0));
        QCOMPARE(spy.count(), 2);
        w.bar->clearPages();
        QCOMPARE(w.bar->currentPageIndex(), -1);
        // That none is left is told too.
        QCOMPARE(spy.count(), 3);
        QVERIFY(!spy.last().first().value<RibbonPage*>());
        Window::Settle();
    }

    void hidingTheCurrentPageShowsItsNeighbour()
    {
        Window w(3, 1);
        w.bar->setCurrentPage(1);
        w.bar->getPage(1)->setVisible(false);
        QCOMPARE(w.bar->currentPageIndex(), 2);
        w.bar->getPage(2)->setVisible(false);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        w.bar->getPage(0)->setVisible(false);
        QCOMPARE(w.bar->currentPageIndex(), -1);
        w.bar->getPage(2)->setVisible(true);
        QCOMPARE(w.bar->currentPageIndex(), 2);
        Window::Settle();
        QVERIFY(w.bar->getPage(2)->isVisible());
    }

    void aHiddenPageCannotBecomeCurrent()
    {
        Window w(2, 1);
        w.bar->getPage(1)->setVisible(false);
        w.bar->setCurrentPage(1);
        w.bar->setCurrentPage(-1);
        w.bar->setCurrentPage(99);
        QCOMPARE(w.bar->currentPageIndex(), 0);
    }

    void onlyTheCurrentPageIsSeen()
    {
        Window w(2, 1);
        QVERIFY(w.bar->getPage(0)->isVisible());
        QVERIFY(!w.bar->getPage(1)->isVisible());
        QVERIFY(!w.bar->getPage(1)->isHidden());
        ClickTab(w, 1);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        QVERIFY(!w.bar->getPage(0)->isVisible());
        QVERIFY(w.bar->getPage(1)->isVisible());
    }

    void theWheelChangesThePageAndStopsAtTheEnds()
    {
        Window w(3, 1);
        ribbon_test::Wheel(w.TabBar(), -120);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        ribbon_test::Wheel(w.Button(0), -120);
        QCOMPARE(w.bar->currentPageIndex(), 2);
        ribbon_test::Wheel(w.TabBar(), -120);
        QCOMPARE(w.bar->currentPageIndex(), 2);
        ribbon_test::Wheel(w.TabBar(), 360);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        // A touch pad sends small portions.
        ribbon_test::Wheel(w.TabBar(), -60);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        ribbon_test::Wheel(w.TabBar(), -60);
        QCOMPARE(w.bar->currentPageIndex(), 1);
    }

    void theWheelSkipsHiddenPages()
    {
        Window w(3, 1);
        w.bar->getPage(1)->setVisible(false);
        ribbon_test::Wheel(w.TabBar(), -120);
        QCOMPARE(w.bar->currentPageIndex(), 2);
    }

    void aDoubleClickMinimisesAndRestores()
    {
        Window w(2, 1);
        QSignalSpy spy(w.bar, &RibbonBar::minimizationChanged);
        const int height = w.bar->height();
        DoubleClickTab(w, 1);
        QVERIFY(w.bar->isMinimized());
        QCOMPARE(w.bar->currentPageIndex(), 1);
        Window::Settle();
        QVERIFY(w.bar->height() < height);
        DoubleClickTab(w, 1);
        QVERIFY(!w.bar->isMinimized());
        QVERIFY(!w.bar->isPeeking());
        Window::Settle();
        QCOMPARE(w.bar->height(), height);
        QCOMPARE(spy.count(), 2);
        QVERIFY(w.Area()->isVisible());
    }

    void maximisedIsTheOppositeOfMinimised()
    {
        Window w(1, 1);
        w.bar->setMinimized(true);
        w.bar->setMaximized(1);
        QVERIFY(!w.bar->isMinimized());
        QVERIFY(w.bar->isMaximized());
    }

    void aClickOnATabOfAMinimisedBarPeeks()
    {
        Window w(2, 1);
        w.bar->setMinimized(true);
        Window::Settle();
        const int content = w.content->y();
        ClickTab(w, 1);
        QVERIFY(w.bar->isPeeking());
        QVERIFY(w.bar->getPage(1)->isVisible());
        QCOMPARE(w.Area()->parentWidget(), &w.window);
        QCOMPARE(w.content->y(), content);
        ClickTab(w, 0);
        QVERIFY(w.bar->isPeeking());
        QCOMPARE(w.bar->currentPageIndex(), 0);
        ClickTab(w, 0);
        QVERIFY(!w.bar->isPeeking());
        QVERIFY(w.bar->isMinimized());
        QVERIFY(!w.Area()->isVisible());
    }

    void aPeekGoesAway_data()
    {
        QTest::addColumn<QString>("by");
        for (const char* by : {"a command", "a click outside", "Escape", "restoring",
                               "a command of the quick access bar", "a command of the corner",
                               "a launcher", "a pick from a gallery", "another window"})
            QTest::newRow(by) << QString::fromLatin1(by);
    }

    void aPeekGoesAway()
    {
        QFETCH(QString, by);
        Window w(1, 1);
        w.bar->showQuickAccess(true);
        QAction* quick =
            w.bar->quickAccessBar()->addAction(ribbon_test::MakeIcon(), QStringLiteral("Quick"));
        QAction* corner = w.bar->addAction(ribbon_test::MakeIcon(), QStringLiteral("Help"),
                                           Qt::ToolButtonIconOnly);
        w.Group()->setOptionButtonVisible(true);
        RibbonGalleryGroup items;
        items.addItem(QStringLiteral("Item"), ribbon_test::MakeIcon());
        auto* gallery = new RibbonGallery;
        gallery->setGalleryGroup(&items);
        w.Group()->addGallery(gallery);
        w.bar->setMinimized(true);
        Window::Settle();
        ClickTab(w, 0);
        Window::Settle();
        QVERIFY(w.bar->isPeeking());
        QWidget other;
        int runs = 0;
        connect(w.Group()->actions().first(), &QAction::triggered, this, [&runs] { ++runs; });
        if (by == QLatin1String("a command")) {
            QTest::mouseClick(w.Button(0), Qt::LeftButton);
            QCOMPARE(runs, 1);
        } else if (by == QLatin1String("a command of the quick access bar")) {
            QTest::mouseClick(w.bar->quickAccessBar()->widgetForAction(quick), Qt::LeftButton);
        } else if (by == QLatin1String("a command of the corner")) {
            QTest::mouseClick(w.bar->buttonForAction(corner), Qt::LeftButton);
        } else if (by == QLatin1String("a launcher")) {
            QTest::mouseClick(w.Group()->findChild<RibbonLauncher*>(), Qt::LeftButton);
        } else if (by == QLatin1String("a pick from a gallery")) {
            QTest::mouseClick(gallery, Qt::LeftButton, Qt::NoModifier,
                              gallery->itemRect(items.item(0)).center());
        } else if (by == QLatin1String("another window")) {
            other.show();
            QApplication::setActiveWindow(&other);
        } else if (by == QLatin1String("a click outside")) {
            QTest::mouseClick(w.content, Qt::LeftButton, Qt::NoModifier, QPoint(100, 300));
        } else if (by == QLatin1String("Escape")) {
            QTest::keyClick(w.content, Qt::Key_Escape);
        } else {
            w.bar->setMinimized(false);
        }
        QTRY_VERIFY(!w.bar->isPeeking());
        QCOMPARE(w.Area()->parentWidget(), w.bar);
    }

    void aClickOnThePageGroundDoesNotEndAPeek()
    {
        Window w(1, 1);
        w.bar->setMinimized(true);
        ClickTab(w, 0);
        QTest::mouseClick(w.Area(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(w.Area()->width() - 20, 20));
        QVERIFY(w.bar->isPeeking());
    }

    void aWindowCanGoWhileItsBarPeeks()
    {
        auto w = std::make_unique<Window>(2, 1);
        w->bar->setMinimized(true);
        ClickTab(*w, 0);
        QVERIFY(w->bar->isPeeking());
        w.reset();
    }

    void hiddenTitlesMakeTheBarLower()
    {
        Window w(2, 1);
        QVERIFY(w.bar->isTitleGroupsVisible());
        const int height = w.bar->height();
        w.bar->setTitleGroupsVisible(false);
        Window::Settle();
        QVERIFY(w.bar->height() < height);
        w.bar->setTitleGroupsVisible(true);
        Window::Settle();
        QCOMPARE(w.bar->height(), height);
    }

    void actionsOfTheBarStandInTheCorner()
    {
        Window w(1, 1);
        QAction* made = w.bar->addAction(ribbon_test::MakeIcon(), QStringLiteral("Minimize"),
                                         Qt::ToolButtonIconOnly, nullptr);
        QAction own(QStringLiteral("Help"));
        own.setIcon(ribbon_test::MakeIcon());
        QCOMPARE(w.bar->addAction(&own, Qt::ToolButtonIconOnly), &own);
        QToolButton* first = w.bar->buttonForAction(made);
        QToolButton* second = w.bar->buttonForAction(&own);
        QVERIFY(first && second);
        QVERIFY(second->geometry().left() > first->geometry().right());
        QVERIFY(first->isVisible());
        int runs = 0;
        connect(&own, &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(second, Qt::LeftButton);
        QCOMPARE(runs, 1);
        own.setVisible(false);
        QVERIFY(!second->isVisible());
        own.setVisible(true);
        QVERIFY(second->isVisible());
        w.bar->removeAction(&own);
        QVERIFY(!w.bar->buttonForAction(&own));
    }

    void aCornerActionThatDiesTakesItsButton()
    {
        Window w(1, 1);
        auto own = std::make_unique<QAction>(QStringLiteral("Help"));
        w.bar->addAction(own.get(), Qt::ToolButtonTextOnly);
        const QPointer<QToolButton> button = w.bar->buttonForAction(own.get());
        own.reset();
        QVERIFY(!button);
        Window::Settle();
    }

    void theSystemButtonIsMadeOnce()
    {
        Window w(1, 1);
        QAction* action = w.bar->addSystemButton(QIcon(), QStringLiteral("File"));
        RibbonSystemButton* button = w.bar->getSystemButton();
        QVERIFY(button);
        QCOMPARE(button->defaultAction(), action);
        QCOMPARE(w.bar->addSystemButton(QStringLiteral("Other")), action);
        QCOMPARE(w.bar->getSystemButton(), button);
        QCOMPARE(button->text(), QStringLiteral("Other"));
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        Window::Settle();
        QVERIFY(button->geometry().right() < w.TabBar()->geometry().left());
        w.bar->removeSystemButton();
        QVERIFY(!w.bar->getSystemButton());
    }

    void anAmpersandOfATitleIsShownOnce()
    {
        Window w(1, 1);
        auto* tabs = static_cast<RibbonTabBar*>(w.TabBar());
        w.bar->getPage(0)->setTitle(QStringLiteral("A & B"));
        const int single = tabs->tabRect(0).width();
        w.bar->getPage(0)->setTitle(QStringLiteral("A && B"));
        QVERIFY(tabs->tabRect(0).width() > single);
    }

    void theMnemonicOfATitleChoosesItsPage()
    {
        Window w(2, 1);
        w.bar->getPage(1)->setTitle(QStringLiteral("&View"));
        w.window.activateWindow();
        w.content->setFocus();
        QTest::keyClick(w.content, Qt::Key_V, Qt::AltModifier);
        QCOMPARE(w.bar->currentPageIndex(), 1);
    }

    void theMnemonicOfATitleClosesTheBackstage()
    {
        Window w(2, 1);
        w.bar->getPage(1)->setTitle(QStringLiteral("&View"));
        auto* view = new RibbonBackstageView(w.bar);
        view->setVisible(true);
        w.window.activateWindow();
        QTest::keyClick(view, Qt::Key_V, Qt::AltModifier);
        QVERIFY(!view->isVisible());
        QCOMPARE(w.bar->currentPageIndex(), 1);
    }

    void narrowTabsAreElidedAndThenScroll()
    {
        Window w(12, 1, QSize(900, 400));
        auto* tabs = static_cast<RibbonTabBar*>(w.TabBar());
        for (int i = 0; i < 12; ++i)
            w.bar->getPage(i)->setTitle(QStringLiteral("A rather long title %1").arg(i));
        QVERIFY(tabs->isElided(0));
        w.window.resize(300, 400);
        Window::Settle();
        QVERIFY(tabs->geometryOfTabs().scrolls);
        w.bar->setCurrentPage(11);
        QVERIFY(!tabs->tabRect(11).isEmpty());
        QVERIFY(tabs->tabRect(0).isEmpty());
    }

    void nothingOverlapsAtThreeHundredPixels_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<bool>("themed");
        for (const bool rtl : {false, true})
            for (const bool themed : {false, true})
                QTest::addRow("%s%s", rtl ? "right to left" : "left to right",
                              themed ? ", own frame" : "")
                    << rtl << themed;
    }

    void nothingOverlapsAtThreeHundredPixels()
    {
        QFETCH(bool, rightToLeft);
        QFETCH(bool, themed);
        Window w(8, 6, QSize(300, 400));
        w.window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        w.bar->setFrameThemeEnabled(themed);
        w.bar->addSystemButton(QIcon(), QStringLiteral("File"));
        w.bar->addAction(ribbon_test::MakeIcon(), QStringLiteral("Help"), Qt::ToolButtonIconOnly);
        w.bar->showQuickAccess(true);
        for (int i = 0; i < 12; ++i)
            w.bar->quickAccessBar()->addAction(ribbon_test::MakeIcon(), QStringLiteral("Quick"));
        Window::Settle();
        QList<QRect> rects;
        for (QWidget* child :
             w.bar->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!child->isVisible() || child->geometry().isEmpty())
                continue;
            for (const QRect& rect : qAsConst(rects))
                QVERIFY2(!rect.intersects(child->geometry()), qPrintable(child->objectName()));
            rects.append(child->geometry());
            QVERIFY2(w.bar->rect().contains(child->geometry()), qPrintable(child->objectName()));
        }
        QList<QRect> groups;
        for (RibbonGroup* group : w.bar->currentPage()->groups()) {
            for (const QRect& rect : qAsConst(groups))
                QVERIFY(!rect.intersects(group->geometry()));
            groups.append(group->geometry());
        }
    }

    void contextualTabsHaveTheirColour()
    {
        Window w(1, 1);
        RibbonPage* page = w.bar->addContextualPage(QStringLiteral("Format"),
                                                    QStringLiteral("Picture Tools"), Qt::red);
        QVERIFY(page->isContextual());
        QCOMPARE(page->contextTitle(), QStringLiteral("Picture Tools"));
        QVERIFY(!w.bar->getPage(0)->isContextual());
        page->setContext(QString(), QColor());
        QVERIFY(!page->isContextual());
    }

    void rightToLeftMirrorsTabsAndGroups()
    {
        Window w(3, 2);
        w.window.setLayoutDirection(Qt::RightToLeft);
        Window::Settle();
        auto* tabs = static_cast<RibbonTabBar*>(w.TabBar());
        QVERIFY(tabs->tabRect(0).left() > tabs->tabRect(1).right());
        QVERIFY(w.Group(0)->x() > w.Group(1)->geometry().right());
        QVERIFY(w.Button(0)->mapTo(&w.window, QPoint()).x() >
                w.Button(1)->mapTo(&w.window, QPoint()).x());
    }

    void theContextMenuMinimises()
    {
        Window w(1, 1);
        bool shown = false;
        QTimer::singleShot(0, this, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            shown = menu && !menu->actions().isEmpty();
            if (!menu)
                return;
            menu->actions().first()->trigger();
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                w.bar->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(w.bar, &event);
        QVERIFY(shown);
        QVERIFY(w.bar->isMinimized());
    }

    void aPlaceForTheContextMenuOfTheHostIsKept()
    {
        Window w(1, 1);
        w.bar->setContextMenuPolicy(Qt::CustomContextMenu);
        QSignalSpy spy(w.bar, &QWidget::customContextMenuRequested);
        QWidget* button = w.Button(0);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                button->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(button, &event);
        QCOMPARE(spy.count(), 1);
    }

    void aChangeOfFontLaysOutAnew()
    {
        Window w(2, 1);
        const int height = w.bar->height();
        QFont font = w.bar->font();
        font.setPointSizeF(font.pointSizeF() * 2);
        w.bar->setFont(font);
        Window::Settle();
        QVERIFY(w.bar->height() > height);
        const QToolButton* large = w.Button(0);
        QVERIFY(large->height() > 66);
    }
};

OVK_TEST_CLASS(RibbonBarTest)

#include "ribbon_bar_test.moc"
