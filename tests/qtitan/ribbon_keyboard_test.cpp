#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_key_tips_p.h"
#include "platform/qtitan/ribbon_group_p.h"
#include "tests/qtitan/ribbon_test_window.h"
#include "tests/qtitan/style_test_support.h"

#include <QLineEdit>
#include <QSpinBox>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

struct Keys : Window
{
    explicit Keys(int pages = 3, int groups = 2, const QSize& size = QSize(1600, 500))
        : Window(pages, groups, size)
    {
        bar->addSystemButton(QIcon(), QStringLiteral("File"));
        bar->showQuickAccess(true);
        for (int i = 0; i < 11; ++i)
            bar->quickAccessBar()->addAction(ribbon_test::MakeIcon(),
                                             QStringLiteral("Quick %1").arg(i));
        bar->getPage(0)->setTitle(QStringLiteral("Home"));
        if (pages > 1)
            bar->getPage(1)->setTitle(QStringLiteral("View"));
        window.activateWindow();
        content->setFocus();
        Settle();
        tips = RibbonBarPrivate::get(bar)->keyTips.get();
    }

    void Alt() const
    {
        QTest::keyPress(Focus(), Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(Focus(), Qt::Key_Alt);
    }

    static QWidget* Focus()
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup->focusWidget() ? popup->focusWidget() : popup;
        return QApplication::focusWidget();
    }

    static void Type(char key) { QTest::keyClick(Focus(), key); }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(Focus(), key, modifiers);
    }

    QString TipOf(const QWidget* widget) const
    {
        for (const RibbonKeyTips::Tip& tip : tips->tips())
            if (tip.widget == widget && !tip.isTab)
                return tip.text;
        return QString();
    }

    RibbonKeyTips* tips;
};

using Level = RibbonKeyTips::Level;

} // namespace

class RibbonKeyboardTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void altAloneShowsTheTipsOnItsRelease()
    {
        Keys w;
        QTest::keyPress(w.content, Qt::Key_Alt, Qt::AltModifier);
        QVERIFY(!w.bar->isKeyTipsVisible());
        QTest::keyRelease(w.content, Qt::Key_Alt);
        QVERIFY(w.bar->isKeyTipsVisible());
        w.Alt();
        QVERIFY(!w.bar->isKeyTipsVisible());
    }

    void altWithAnotherKeyShowsNothing()
    {
        Keys w;
        QTest::keyPress(w.content, Qt::Key_Alt, Qt::AltModifier);
        QTest::keyClick(w.content, Qt::Key_F4, Qt::AltModifier);
        QTest::keyRelease(w.content, Qt::Key_Alt);
        QVERIFY(!w.bar->isKeyTipsVisible());
    }

    void altWithAClickShowsNothing()
    {
        Keys w;
        QTest::keyPress(w.content, Qt::Key_Alt, Qt::AltModifier);
        QTest::mouseClick(w.content, Qt::LeftButton, Qt::AltModifier);
        QTest::keyRelease(w.content, Qt::Key_Alt);
        QVERIFY(!w.bar->isKeyTipsVisible());
    }

    void f10ShowsThemToo()
    {
        Keys w;
        Keys::Press(Qt::Key_F10);
        QVERIFY(w.bar->isKeyTipsVisible());
        Keys::Press(Qt::Key_F10);
        QVERIFY(!w.bar->isKeyTipsVisible());
    }

    void altAndALetterAtOnceIsTheSameAsOneAfterTheOther()
    {
        Keys w;
        Keys::Press(Qt::Key_V, Qt::AltModifier);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        QCOMPARE(w.tips->level(), Level::Page);
    }

    void theTipsOfTheBarAreThoseThatPeopleKnow()
    {
        Keys w;
        w.bar->showKeyTips();
        QCOMPARE(w.TipOf(w.bar->getSystemButton()), QStringLiteral("F"));
        const QList<QAction*> quick = w.bar->quickAccessBar()->actions();
        const auto tip = [&](int i) {
            return w.TipOf(w.bar->quickAccessBar()->widgetForAction(quick.at(i)));
        };
        QCOMPARE(tip(0), QStringLiteral("1"));
        QCOMPARE(tip(8), QStringLiteral("9"));
        QCOMPARE(tip(9), QStringLiteral("09"));
        QCOMPARE(tip(10), QStringLiteral("08"));
    }

    void aLetterOpensAPageAndAnotherRunsACommand()
    {
        Keys w;
        w.bar->setKeyTip(w.bar->getPage(1)->getGroup(0)->actions().first(), QStringLiteral("XY"));
        int runs = 0;
        connect(w.bar->getPage(1)->getGroup(0)->actions().first(), &QAction::triggered, this,
                [&runs] { ++runs; });
        w.Alt();
        Keys::Type('v');
        QCOMPARE(w.bar->currentPageIndex(), 1);
        QCOMPARE(w.tips->level(), Level::Page);
        const int all = w.tips->overlay()->badges().size();
        Keys::Type('x');
        QCOMPARE(w.tips->typed(), QStringLiteral("X"));
        QCOMPARE(runs, 0);
        QVERIFY(w.tips->overlay()->badges().size() < all);
        Keys::Type('y');
        QCOMPARE(runs, 1);
        QVERIFY(!w.bar->isKeyTipsVisible());
        QVERIFY(w.content->hasFocus());
    }

    void aLetterThatBelongsToNothingIsSwallowed()
    {
        Keys w;
        auto* edit = new QLineEdit;
        w.window.setCentralWidget(edit);
        edit->setFocus();
        w.Alt();
        Keys::Type('q');
        QVERIFY(w.bar->isKeyTipsVisible());
        QVERIFY(edit->text().isEmpty());
    }

    void escapeGoesOneLevelUpThenAway()
    {
        Keys w;
        w.Alt();
        Keys::Type('h');
        QCOMPARE(w.tips->level(), Level::Page);
        Keys::Press(Qt::Key_Escape);
        QCOMPARE(w.tips->level(), Level::Bar);
        Keys::Press(Qt::Key_Escape);
        QCOMPARE(w.tips->level(), Level::Away);
        QVERIFY(w.content->hasFocus());
    }

    void aClickTakesTheTipsAway()
    {
        Keys w;
        w.bar->showKeyTips();
        QTest::mouseClick(w.content, Qt::LeftButton);
        QVERIFY(!w.bar->isKeyTipsVisible());
    }

    void aMinimisedBarPeeksForItsTips()
    {
        Keys w;
        w.bar->setMinimized(true);
        w.Alt();
        Keys::Type('v');
        QVERIFY(w.bar->isPeeking());
        QCOMPARE(w.tips->level(), Level::Page);
        QVERIFY(!w.tips->overlay()->badges().isEmpty());
        Keys::Press(Qt::Key_Escape);
        QVERIFY(!w.bar->isPeeking());
        QCOMPARE(w.tips->level(), Level::Bar);
    }

    void aCollapsedGroupShowsItsTipsInItsPopup()
    {
        Keys w(1, 6, QSize(320, 400));
        RibbonGroup* group = w.Group(5);
        QVERIFY(group->isReducedToPopup());
        int runs = 0;
        connect(group->actions().first(), &QAction::triggered, this, [&runs] { ++runs; });
        w.Alt();
        Keys::Type('h');
        const QString tip = w.TipOf(group);
        QVERIFY(!tip.isEmpty());
        for (const QChar c : tip)
            Keys::Type(c.toLatin1());
        QVERIFY(group->isPopupVisible());
        QCOMPARE(w.tips->level(), Level::Popup);
        Keys::Press(Qt::Key_Escape);
        QVERIFY(!group->isPopupVisible());
        QCOMPARE(w.tips->level(), Level::Page);
        for (const QChar c : tip)
            Keys::Type(c.toLatin1());
        for (const QChar c : w.TipOf(group->buttonForAction(group->actions().first())))
            Keys::Type(c.toLatin1());
        QCOMPARE(runs, 1);
        QTRY_VERIFY(!group->isPopupVisible());
    }

    void theSystemButtonOpensTheBackstageWithItsTips()
    {
        Keys w;
        auto* view = new RibbonBackstageView(w.bar);
        w.bar->getSystemButton()->setBackstage(view);
        auto* page = new RibbonBackstagePage;
        page->setWindowTitle(QStringLiteral("Info"));
        view->addPage(page);
        w.Alt();
        Keys::Type('f');
        QVERIFY(view->isVisible());
        QCOMPARE(w.tips->level(), Level::Backstage);
        Keys::Type('i');
        QCOMPARE(view->activePage(), page);
    }

    void aDisabledCommandIsNotRunByItsTip()
    {
        Keys w;
        QAction* action = w.Group()->actions().first();
        action->setEnabled(false);
        w.bar->setKeyTip(action, QStringLiteral("X"));
        w.Alt();
        Keys::Type('h');
        Keys::Type('x');
        QVERIFY(w.bar->isKeyTipsVisible());
        QCOMPARE(w.tips->typed(), QString());
    }

    void arrowsWalkTabsAndPage()
    {
        Keys w;
        Keys::Press(Qt::Key_F10);
        Keys::Press(Qt::Key_Right);
        QVERIFY(!w.bar->isKeyTipsVisible());
        QVERIFY(w.TabBar()->hasFocus());
        Keys::Press(Qt::Key_Right);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        Keys::Press(Qt::Key_End);
        QCOMPARE(w.bar->currentPageIndex(), 2);
        Keys::Press(Qt::Key_Home);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        Keys::Press(Qt::Key_Left);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        Keys::Press(Qt::Key_Down);
        QVERIFY(w.Button(0)->hasFocus());
        Keys::Press(Qt::Key_Right);
        QVERIFY(w.Button(1)->hasFocus());
        Keys::Press(Qt::Key_End);
        QVERIFY(w.Button(10, 1)->hasFocus());
        Keys::Press(Qt::Key_Home);
        QVERIFY(w.Button(0)->hasFocus());
        Keys::Press(Qt::Key_Up);
        QVERIFY(w.TabBar()->hasFocus());
        Keys::Press(Qt::Key_Up);
        QVERIFY(w.bar->getSystemButton()->hasFocus());
        Keys::Press(Qt::Key_Escape);
        QVERIFY(w.content->hasFocus());
    }

    void upAndDownStayInTheColumn()
    {
        Keys w;
        w.Button(5)->setFocus();
        Keys::Press(Qt::Key_Down);
        QVERIFY(w.Button(6)->hasFocus());
        Keys::Press(Qt::Key_Down);
        QVERIFY(w.Button(7)->hasFocus());
        Keys::Press(Qt::Key_Right);
        QVERIFY(w.Button(10)->hasFocus());
        Keys::Press(Qt::Key_Up);
        QVERIFY(w.Button(9)->hasFocus());
    }

    void controlAndAnArrowJumpBetweenGroups()
    {
        Keys w;
        w.Button(3)->setFocus();
        Keys::Press(Qt::Key_Right, Qt::ControlModifier);
        QVERIFY(w.Button(0, 1)->hasFocus());
        Keys::Press(Qt::Key_Left, Qt::ControlModifier);
        QVERIFY(w.Button(0, 0)->hasFocus());
        Keys::Press(Qt::Key_Left, Qt::ControlModifier);
        QVERIFY(w.Button(0, 0)->hasFocus());
    }

    void arrowsAreMirroredRightToLeft()
    {
        Keys w;
        w.window.setLayoutDirection(Qt::RightToLeft);
        Window::Settle();
        w.TabBar()->setFocus();
        Keys::Press(Qt::Key_Left);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        w.Button(0)->setFocus();
        Keys::Press(Qt::Key_Left);
        QVERIFY(w.Button(1)->hasFocus());
        Keys::Press(Qt::Key_Left, Qt::ControlModifier);
        QVERIFY(w.Button(0, 1)->hasFocus());
    }

    void tabWalksAllElementsAndComesRound()
    {
        Keys w(1, 1);
        w.TabBar()->setFocus();
        QSet<QWidget*> seen;
        QWidget* start = QApplication::focusWidget();
        int steps = 0;
        do {
            QVERIFY(!seen.contains(QApplication::focusWidget()));
            seen.insert(QApplication::focusWidget());
            Keys::Press(Qt::Key_Tab);
            ++steps;
        } while (QApplication::focusWidget() != start && steps < 100);
        // Tab bar, system button, quick access buttons, group buttons.
        QCOMPARE(steps, 1 + 1 + 11 + 11);
        Keys::Press(Qt::Key_Backtab);
        QVERIFY(QApplication::focusWidget() != start);
    }

    void tabFromTheContentDoesNotWalkTheRibbon()
    {
        Keys w(1, 1);
        auto* other = new QLineEdit(w.content);
        other->show();
        Keys::Press(Qt::Key_Tab);
        QVERIFY(!w.bar->isAncestorOf(QApplication::focusWidget()));
    }

    void enterAndSpacePress()
    {
        Keys w;
        int runs = 0;
        connect(w.Group()->actions().first(), &QAction::triggered, this, [&runs] { ++runs; });
        w.Button(0)->setFocus();
        Keys::Press(Qt::Key_Return);
        Keys::Press(Qt::Key_Space);
        QCOMPARE(runs, 2);
    }

    void aSpinBoxOfAGroupIsPartOfTheWalk()
    {
        Keys w(1, 1);
        auto* spin = new QSpinBox;
        w.Group()->addWidget(spin);
        Window::Settle();
        w.Button(10)->setFocus();
        Keys::Press(Qt::Key_Tab);
        QVERIFY(spin->hasFocus());
        Keys::Press(Qt::Key_Tab);
        QVERIFY(!spin->hasFocus());
        QVERIFY(w.bar->isAncestorOf(QApplication::focusWidget()));
    }

    void theFocusIsSeenWhereverItIs()
    {
        const style_test::ApplicationStyle style;
        Keys w(1, 6, QSize(320, 400));
        w.bar->addAction(ribbon_test::MakeIcon(), QStringLiteral("Help"), Qt::ToolButtonIconOnly);
        w.Group(0)->setOptionButtonVisible(true);
        Window::Settle();
        QList<QWidget*> elements{
            w.TabBar(), w.bar->getSystemButton(), w.Group(5),
            w.bar->buttonForAction(w.bar->actions().first()),
            w.bar->quickAccessBar()->widgetForAction(w.bar->quickAccessBar()->actions().first())};
        w.window.resize(1600, 400);
        Window::Settle();
        elements << w.Button(0) << w.Button(5) << w.Button(10);
        for (QWidget* element : qAsConst(elements)) {
            w.content->setFocus();
            w.window.resize(element == w.Group(5) ? 320 : 1600, 400);
            Window::Settle();
            const QImage before = element->grab().toImage();
            element->window()->setAttribute(Qt::WA_KeyboardFocusChange);
            element->setFocus(Qt::TabFocusReason);
            QVERIFY(element->hasFocus());
            QVERIFY2(element->grab().toImage() != before,
                     qPrintable(element->objectName() + QLatin1Char(' ') +
                                QString::fromLatin1(element->metaObject()->className())));
        }
    }

    void theFocusIsSeenWhereAnArrowHasLed()
    {
        const style_test::ApplicationStyle style;
        Keys w;
        w.window.setAttribute(Qt::WA_KeyboardFocusChange, false);
        QWidget* quick =
            w.bar->quickAccessBar()->widgetForAction(w.bar->quickAccessBar()->actions().first());
        const QImage before = quick->grab().toImage();
        Keys::Press(Qt::Key_F10);
        Keys::Press(Qt::Key_Up);
        Keys::Press(Qt::Key_Up);
        Keys::Press(Qt::Key_Right);
        QVERIFY(quick->hasFocus());
        QVERIFY(quick->grab().toImage() != before);
    }

    void theFocusGoesBackToTheContentWhenItsPageGoes_data()
    {
        QTest::addColumn<QString>("how");
        for (const char* how : {"detached", "removed", "deleted", "hidden"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void theFocusGoesBackToTheContentWhenItsPageGoes()
    {
        QFETCH(QString, how);
        Keys w;
        Keys::Press(Qt::Key_F10);
        Keys::Press(Qt::Key_Down);
        Keys::Press(Qt::Key_Down);
        QVERIFY(w.Button(0)->hasFocus());
        RibbonPage* page = w.bar->currentPage();
        if (how == QLatin1String("detached"))
            w.bar->detachPage(page);
        else if (how == QLatin1String("removed"))
            w.bar->removePage(page);
        else if (how == QLatin1String("deleted"))
            delete page;
        else
            page->setVisible(false);
        QVERIFY(w.content->hasFocus());
    }

    void theFocusStaysWithAGroupThatIsReduced()
    {
        Keys w(1, 6, QSize(2500, 400));
        auto* spin = new QSpinBox;
        w.Group(5)->addWidget(spin);
        Window::Settle();
        spin->setFocus();
        w.window.resize(320, 400);
        Window::Settle();
        QVERIFY(w.Group(5)->isReducedToPopup());
        QVERIFY(w.Group(5)->hasFocus());
        w.window.resize(2500, 400);
        Window::Settle();
        QVERIFY(!w.Group(5)->hasFocus());
    }

    void theWalkGoesOnFromTheTabWhenThePageChanges()
    {
        Keys w;
        w.Button(3)->setFocus();
        w.bar->setCurrentPage(1);
        QVERIFY(w.TabBar()->hasFocus());
        Keys::Press(Qt::Key_Down);
        QVERIFY(w.Button(0)->hasFocus());
    }

    void enterOpensACollapsedGroup()
    {
        Keys w(1, 6, QSize(320, 400));
        RibbonGroup* group = w.Group(5);
        group->setFocus();
        Keys::Press(Qt::Key_Return);
        QVERIFY(group->isPopupVisible());
        QVERIFY(w.Button(0, 5)->hasFocus());
        Keys::Press(Qt::Key_Right);
        QVERIFY(w.Button(1, 5)->hasFocus());
        Keys::Press(Qt::Key_Escape);
        QVERIFY(!group->isPopupVisible());
    }
};

OVK_TEST_CLASS(RibbonKeyboardTest)

#include "ribbon_keyboard_test.moc"
