#include "platform/qtitan/ribbon_backstage_p.h"
#include "platform/qtitan/ribbon_bar_p.h"
#include "platform/qtitan/ribbon_group_p.h"
#include "platform/qtitan/ribbon_key_tips_p.h"
#include "platform/qtitan/ribbon_metrics_p.h"
#include "platform/qtitan/ribbon_page_area_p.h"
#include "platform/qtitan/ribbon_page_p.h"
#include "platform/qtitan/ribbon_tab_bar_p.h"
#include "platform/qtitan/ribbon_util_p.h"
#include "tests/qtitan/ribbon_samples.h"

#include <QScreen>

using namespace Qtitan;
using ribbon_test::MakeIcon;
using ribbon_test::Window;

namespace {

QString Long(QChar letter = QLatin1Char('M'))
{
    return QString(10000, letter);
}

/// Ten thousand characters in words.
QString LongText()
{
    return QStringLiteral("word ").repeated(2000);
}

QString Text(const QRect& r)
{
    return QStringLiteral("(%1, %2, %3 x %4)").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

RibbonTabBar* Tabs(const Window& w)
{
    return static_cast<RibbonTabBar*>(w.TabBar());
}

RibbonKeyTips* Tips(const Window& w)
{
    return RibbonBarPrivate::get(w.bar)->keyTips.get();
}

/// Where two pictures of one size differ, in the coordinates of the widget that they are of.
QRect Difference(const QImage& a, const QImage& b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    const qreal ratio = a.devicePixelRatioF();
    return changed.isEmpty()
               ? changed
               : QRect(QPoint(int(changed.left() / ratio), int(changed.top() / ratio)),
                       QPoint(int(changed.right() / ratio), int(changed.bottom() / ratio)));
}

QImage Picture(QWidget* widget)
{
    return widget->grab().toImage();
}

} // namespace

/// What nobody should hand a ribbon, and somebody will.
class RibbonBadInputTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingAtAllIsIgnored()
    {
        Window w(1, 1);
        w.bar->setKeyTip(static_cast<QAction*>(nullptr), QStringLiteral("A"));
        w.bar->setKeyTip(static_cast<RibbonPage*>(nullptr), QStringLiteral("A"));
        QVERIFY(!w.bar->addAction(nullptr, Qt::ToolButtonIconOnly));
        w.bar->insertPage(0, static_cast<RibbonPage*>(nullptr));
        w.bar->detachPage(nullptr);
        w.bar->removePage(nullptr);
        w.bar->setCurrentPage(static_cast<RibbonPage*>(nullptr));
        w.bar->removeSystemButton();
        QVERIFY(!w.bar->buttonForAction(nullptr));
        QCOMPARE(w.bar->indexOfPage(nullptr), -1);
        w.bar->currentPage()->insertGroup(0, static_cast<RibbonGroup*>(nullptr));
        w.bar->currentPage()->removeGroup(nullptr);
        QCOMPARE(w.bar->currentPage()->indexOfGroup(nullptr), -1);
        QVERIFY(!w.Group()->addGallery(nullptr));
        w.Group()->setStyleForAction(nullptr, Qt::ToolButtonIconOnly);
        QCOMPARE(w.Group()->styleForAction(nullptr), Qt::ToolButtonTextBesideIcon);
        w.bar->addSystemButton(QString());
        w.bar->getSystemButton()->setBackstage(nullptr);
        QTest::mouseClick(w.bar->getSystemButton(), Qt::LeftButton);
        RibbonToolTip::showToolTip(QPoint(), QString(), QString(), QIcon(), nullptr);
        QVERIFY(!RibbonToolTip::current());
        RibbonGallery gallery;
        gallery.setGalleryGroup(nullptr);
        gallery.setCheckedItem(nullptr);
        gallery.ensureVisible(nullptr);
        QVERIFY(gallery.sizeHint().isValid());
        RibbonBackstageView view(nullptr);
        view.addPage(nullptr);
        view.removePage(nullptr);
        view.setActivePage(nullptr);
        QVERIFY(!view.pageAction(nullptr));
        OfficePopupMenu menu;
        QVERIFY(!menu.addWidget(nullptr));
        QVERIFY(!menu.addGallery(nullptr));
        QCOMPARE(w.bar->pageCount(), 1);
    }

    void whatHasNeitherIconNorTitleCanStillBeHit()
    {
        Window w(0, 0);
        w.bar->addSystemButton(QIcon(), QString());
        w.bar->showQuickAccess(true);
        w.bar->quickAccessBar()->addAction(QString());
        w.bar->addAction(QIcon(), QString(), Qt::ToolButtonIconOnly);
        for (int p = 0; p < 3; ++p) {
            RibbonGroup* group = w.bar->addPage(QString())->addGroup(QString());
            for (const Qt::ToolButtonStyle style :
                 {Qt::ToolButtonIconOnly, Qt::ToolButtonTextOnly, Qt::ToolButtonTextBesideIcon,
                  Qt::ToolButtonTextUnderIcon, Qt::ToolButtonFollowStyle})
                group->addAction(QIcon(), QString(), style);
        }
        Window::Settle();
        for (int i = 0; i < 3; ++i)
            QVERIFY(Tabs(w)->tabRect(i).width() > 4);
        int runs = 0;
        for (QAction* action : w.Group()->actions()) {
            connect(action, &QAction::triggered, this, [&runs] { ++runs; });
            QToolButton* button = w.Group()->buttonForAction(action);
            QVERIFY2(button->width() >= 8 && button->height() >= 8,
                     qPrintable(QString::number(button->width())));
            QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(runs, 5);
        w.bar->showKeyTips();
        for (const RibbonKeyTips::Tip& tip : Tips(w)->tips())
            QVERIFY(!tip.text.isEmpty());
        w.bar->hideKeyTips();
        w.window.resize(300, 400);
        Window::Settle();
        QVERIFY(!Picture(w.bar).isNull());
    }

    void aTextIsShortenedBetweenItsCharacters()
    {
        const QString text(100, QLatin1Char('x'));
        QCOMPARE(shortened(text), text);
        QCOMPARE(shortened(Long()).size(), 401);
        QCOMPARE(shortened(Long()).right(1), QString(QChar(0x2026)));
        const QString pairs = QString::fromUtf8("\xF0\x9F\x96\xA8").repeated(300);
        for (const QString& wide : {pairs, QLatin1Char('x') + pairs}) {
            const QString cut = shortened(wide);
            QVERIFY(cut.size() < wide.size());
            QVERIFY(!cut.at(cut.size() - 2).isHighSurrogate());
        }
    }

    void aTitleOfTenThousandCharactersIsElided_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("one word") << Long();
        QTest::newRow("words") << LongText();
    }

    void aTitleOfTenThousandCharactersIsElided()
    {
        QFETCH(QString, title);
        Window w(3, 2, QSize(900, 500));
        w.window.setWindowTitle(title);
        w.bar->showQuickAccess(true);
        w.bar->addSystemButton(QIcon(), QStringLiteral("File"));
        w.bar->getPage(0)->setTitle(title);
        w.Group(0)->setTitle(title);
        w.Group(0)->setOptionButtonVisible(true);
        QAction* large = w.Group(1)->addAction(MakeIcon(), title, Qt::ToolButtonTextUnderIcon);
        QAction* text = w.Group(1)->addAction(QIcon(), title, Qt::ToolButtonTextOnly);
        w.bar->addAction(MakeIcon(), title, Qt::ToolButtonTextOnly);
        w.bar->addContextualPage(title, title, Qt::red);
        for (const int width : {900, 2000, 300}) {
            w.window.resize(width, 500);
            Window::Settle();
            QCOMPARE(w.window.width(), width);
            for (const QWidget* child :
                 w.bar->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
                if (child->isVisible())
                    QVERIFY2(w.bar->rect().contains(child->geometry()),
                             qPrintable(child->objectName()));
            QVERIFY(Tabs(w)->isElided(0));
            // The other tabs are readable beside it.
            QVERIFY(Tabs(w)->geometryOfTabs().tabs.at(1).textWidth >=
                    qMin(20, w.bar->fontMetrics().averageCharWidth() * 3));
            QVERIFY(!Picture(w.bar).isNull());
        }
        w.window.resize(2000, 500);
        Window::Settle();
        // Neither group takes a screen for itself.
        const int most = RibbonMetrics::of(w.bar).px(500);
        QVERIFY(w.Group(0)->width() < 2 * most);
        QVERIFY(w.Group(1)->buttonForAction(large)->width() < most);
        QVERIFY(w.Group(1)->buttonForAction(text)->width() < most);
        QVERIFY(w.bar->sizeHint().width() <= QWIDGETSIZE_MAX);
        w.bar->showKeyTips();
        w.bar->hideKeyTips();
    }

    void aToolTipOfTenThousandCharactersStaysOnTheScreen_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("body");
        for (const int mode : {0, 1, 2}) {
            QTest::addRow("wrap mode %d, words", mode) << mode << LongText();
            QTest::addRow("wrap mode %d, one word", mode) << mode << Long();
            QTest::addRow("wrap mode %d, rich", mode)
                << mode << QStringLiteral("<b>%1</b>").arg(LongText());
        }
    }

    void aToolTipOfTenThousandCharactersStaysOnTheScreen()
    {
        QFETCH(int, mode);
        QFETCH(QString, body);
        Window w(1, 1);
        RibbonToolTip::setWrapMode(static_cast<RibbonToolTip::WrapMode>(mode));
        RibbonToolTip::showToolTip(QPoint(200, 200), LongText(), body, MakeIcon(), w.Button(0));
        QVERIFY(RibbonToolTip::current());
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const QRect tip(RibbonToolTip::current()->pos(), RibbonToolTip::current()->size());
        QVERIFY2(screen.contains(tip), qPrintable(Text(tip)));
        QVERIFY(!Picture(RibbonToolTip::current()).isNull());
        RibbonToolTip::hideToolTip();
        RibbonToolTip::setWrapMode(RibbonToolTip::NativeWrap);
    }

    void aLongBackstageKeepsHalfOfTheWindowForItsPages()
    {
        Window w(1, 1);
        auto* view = new RibbonBackstageView(w.bar);
        auto* page = new RibbonBackstagePage;
        page->setWindowTitle(Long());
        view->addPage(page);
        for (int i = 0; i < 300; ++i)
            view->addAction(QIcon(), i % 2 ? QString() : LongText());
        view->setVisible(true);
        Window::Settle();
        QVERIFY(page->width() >= view->width() / 2 - 1);
        // The last row is reached by the keyboard.
        const QList<QAbstractButton*> rows = RibbonBackstageViewPrivate::get(view)->rowButtons();
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Up);
        QVERIFY(rows.last()->hasFocus());
        QVERIFY(view->rect().contains(rows.last()->geometry()));
        view->setVisible(false);
    }

    void fiveHundredPages()
    {
        Window w(500, 1, QSize(1000, 400));
        QCOMPARE(w.bar->pageCount(), 500);
        QVERIFY(Tabs(w)->geometryOfTabs().scrolls);
        w.bar->setCurrentPage(499);
        Window::Settle();
        QVERIFY(w.bar->getPage(499)->isVisible());
        QVERIFY(Tabs(w)->rect().contains(Tabs(w)->tabRect(499)));
        QVERIFY(Tabs(w)->tabRect(0).isEmpty());
        ribbon_test::Wheel(w.TabBar(), 120);
        QCOMPARE(w.bar->currentPageIndex(), 498);
        w.bar->showKeyTips();
        QSet<QString> texts;
        for (const RibbonKeyTips::Tip& tip : Tips(w)->tips())
            texts.insert(tip.text);
        QCOMPARE(texts.size(), 500);
        QVERIFY(!texts.contains(QString()));
        w.bar->hideKeyTips();
        w.bar->clearPages();
        QCOMPARE(w.bar->currentPageIndex(), -1);
        Window::Settle();
    }

    void fiveHundredGroupsOnAPage()
    {
        Window w(1, 500, QSize(1000, 400));
        const RibbonPageHolder* holder = RibbonPagePrivate::get(w.bar->currentPage())->holder;
        QVERIFY(holder->maximumOffset() > 0);
        int right = 0;
        for (RibbonGroup* group : w.bar->currentPage()->groups()) {
            QVERIFY(group->isReducedToPopup());
            QVERIFY(group->x() >= right);
            right = group->x() + group->width();
        }
        // The keyboard scrolls there.
        QWidget* content = w.content;
        content->setFocus();
        QTest::keyClick(content, Qt::Key_F10);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
        QCOMPARE(QApplication::focusWidget(), w.Group(499));
        QCOMPARE(holder->offset(), holder->maximumOffset());
        w.Group(499)->showPopup();
        QVERIFY(w.Group(499)->isPopupVisible());
        w.bar->currentPage()->clearGroups();
        Window::Settle();
        QCOMPARE(holder->maximumOffset(), 0);
        for (int i = 0; i < 500; ++i)
            w.bar->currentPage()->addGroup(QStringLiteral("Empty"));
        Window::Settle();
    }

    void aMenuMayTakeItsOwnButtonAway_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("what");
        for (const int mode : {int(QToolButton::InstantPopup), int(QToolButton::MenuButtonPopup)})
            for (const char* what : {"the action", "the group", "the page", "the bar's pages"})
                QTest::addRow("%s, %s", mode == QToolButton::InstantPopup ? "menu" : "split", what)
                    << mode << QString::fromLatin1(what);
    }

    void aMenuMayTakeItsOwnButtonAway()
    {
        QFETCH(int, mode);
        QFETCH(QString, what);
        Window w(2, 2);
        QMenu menu;
        QAction* entry = menu.addAction(QStringLiteral("Away"));
        auto* action = new QAction(MakeIcon(), QStringLiteral("Menu"), this);
        w.Group()->addAction(action, Qt::ToolButtonTextUnderIcon, &menu,
                             static_cast<QToolButton::ToolButtonPopupMode>(mode));
        Window::Settle();
        RibbonPage* page = w.bar->currentPage();
        RibbonGroup* group = w.Group();
        connect(entry, &QAction::triggered, this, [&] {
            if (what == QLatin1String("the action"))
                delete action;
            else if (what == QLatin1String("the group"))
                delete group;
            else if (what == QLatin1String("the page"))
                w.bar->removePage(page);
            else
                w.bar->clearPages();
        });
        connect(&menu, &QMenu::aboutToShow, this, [&] {
            QTimer::singleShot(0, &menu, [&] {
                entry->trigger();
                menu.close();
            });
        });
        const QPointer<QToolButton> button = group->buttonForAction(action);
        QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier,
                          QPoint(button->width() / 2, button->height() - 4));
        QVERIFY(!button);
        Window::Settle();
        delete QPointer<QObject>(findChild<QAction*>());
    }

    void anActionMayDieWhileItsButtonIsPressed_data()
    {
        QTest::addColumn<QString>("when");
        for (const char* when : {"between press and release", "in pressed", "in triggered",
                                 "in triggered by the keyboard", "in triggered by its key tip"})
            QTest::newRow(when) << QString::fromLatin1(when);
    }

    void anActionMayDieWhileItsButtonIsPressed()
    {
        QFETCH(QString, when);
        Window w(1, 2);
        auto action = std::make_unique<QAction>(MakeIcon(), QStringLiteral("Short"), nullptr);
        w.Group()->addAction(action.get(), Qt::ToolButtonTextUnderIcon);
        Window::Settle();
        const QPointer<QToolButton> button = w.Group()->buttonForAction(action.get());
        if (when == QLatin1String("between press and release")) {
            QTest::mousePress(button, Qt::LeftButton);
            action.reset();
            QVERIFY(!button);
            QTest::mouseRelease(w.Area(), Qt::LeftButton);
        } else if (when == QLatin1String("in pressed")) {
            connect(button, &QAbstractButton::pressed, this, [&] { action.reset(); });
            QTest::mousePress(button, Qt::LeftButton);
        } else {
            connect(action.get(), &QAction::triggered, this, [&] { action.reset(); });
            if (when == QLatin1String("in triggered")) {
                QTest::mouseClick(button, Qt::LeftButton);
            } else if (when == QLatin1String("in triggered by the keyboard")) {
                button->setFocus();
                QTest::keyClick(button, Qt::Key_Return);
            } else {
                w.bar->setKeyTip(action.get(), QStringLiteral("X"));
                w.bar->showKeyTips();
                Tips(w)->type(Tips(w)->tips().first().text);
                Tips(w)->type(QStringLiteral("X"));
            }
        }
        QVERIFY(!button);
        QVERIFY(!action);
        Window::Settle();
        QVERIFY(!Picture(w.bar).isNull());
        QCOMPARE(w.Group()->actions().size(), 11);
    }

    void aButtonThatSomebodyDeletesComesBack()
    {
        Window w(1, 1);
        QAction* action = w.Group()->actions().first();
        connect(action, &QAction::triggered, this,
                [&] { delete w.Group()->buttonForAction(action); });
        QTest::mouseClick(w.Button(0), Qt::LeftButton);
        Window::Settle();
        QVERIFY(w.Button(0)->isVisible());
        QCOMPARE(w.Button(0)->defaultAction(), action);
        QAction* corner =
            w.bar->addAction(MakeIcon(), QStringLiteral("Help"), Qt::ToolButtonIconOnly);
        delete w.bar->buttonForAction(corner);
        QVERIFY(!w.bar->buttonForAction(corner));
        w.window.resize(500, 400);
        Window::Settle();
    }

    void pagesMayGoAtAnyMoment_data()
    {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("how");
        for (const char* moment :
             {"peek", "key tips of the bar", "key tips of the page", "key tips of a popup", "popup",
              "popup of a peek", "keyboard on the page"})
            for (const char* how : {"detached", "removed", "deleted", "hidden", "all removed",
                                    "its group deleted", "the window deleted"})
                QTest::addRow("%s, %s", moment, how)
                    << QString::fromLatin1(moment) << QString::fromLatin1(how);
    }

    void pagesMayGoAtAnyMoment()
    {
        QFETCH(QString, moment);
        QFETCH(QString, how);
        auto w = std::make_unique<Window>(3, 6, QSize(300, 400));
        RibbonPage* page = w->bar->currentPage();
        RibbonGroup* group = w->Group(5);
        QVERIFY(group->isReducedToPopup());
        const bool peek = moment.contains(QLatin1String("peek"));
        if (peek) {
            w->bar->setMinimized(true);
            Window::Settle();
            RibbonBarPrivate::get(w->bar)->tabPressed(page);
            QVERIFY(w->bar->isPeeking());
        }
        if (moment.startsWith(QLatin1String("popup"))) {
            group->showPopup();
            QVERIFY(group->isPopupVisible());
        }
        if (moment.startsWith(QLatin1String("key tips"))) {
            w->bar->showKeyTips();
            if (moment != QLatin1String("key tips of the bar"))
                Tips(*w)->type(Tips(*w)->tips().first().text);
            if (moment == QLatin1String("key tips of a popup")) {
                const QList<RibbonKeyTips::Tip> tips = Tips(*w)->tips();
                for (const RibbonKeyTips::Tip& tip : tips)
                    if (tip.widget == group)
                        for (const QChar c : tip.text)
                            Tips(*w)->type(c);
                QCOMPARE(Tips(*w)->level(), RibbonKeyTips::Level::Popup);
            }
        }
        if (moment == QLatin1String("keyboard on the page"))
            group->setFocus();

        if (how == QLatin1String("detached"))
            w->bar->detachPage(page);
        else if (how == QLatin1String("removed"))
            w->bar->removePage(page);
        else if (how == QLatin1String("deleted"))
            delete page;
        else if (how == QLatin1String("hidden"))
            page->setVisible(false);
        else if (how == QLatin1String("all removed"))
            w->bar->clearPages();
        else if (how == QLatin1String("its group deleted"))
            delete group;
        else
            w.reset();
        Window::Settle();

        // Whatever was open for what is gone is closed.
        QVERIFY(!QApplication::activePopupWidget());
        for (const QWidget* widget : QApplication::topLevelWidgets())
            QVERIFY(!qobject_cast<const RibbonGroupPopup*>(widget) || !widget->isVisible());
        if (!w)
            return;
        QVERIFY(!w->bar->isKeyTipsVisible());
        QVERIFY(!w->Find("ribbonKeyTips"));
        if (how == QLatin1String("all removed"))
            QVERIFY(!w->bar->isPeeking());
        else
            QVERIFY(w->bar->currentPage());
        // And everything works as before.
        w->bar->setMinimized(false);
        RibbonPage* fresh = w->bar->addPage(QStringLiteral("Fresh"));
        w->Fill(fresh->addGroup(QStringLiteral("Group")));
        w->bar->setCurrentPage(fresh);
        w->window.resize(1200, 400);
        Window::Settle();
        int runs = 0;
        connect(w->Group()->actions().first(), &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(w->Button(0), Qt::LeftButton);
        QCOMPARE(runs, 1);
        if (how == QLatin1String("detached")) {
            w->bar->insertPage(0, page);
            w->bar->setCurrentPage(page);
            Window::Settle();
            QVERIFY(page->isVisible());
        }
    }

    void aPageMayGoWhileItsTabIsChosen()
    {
        Window w(3, 1);
        connect(w.bar, &RibbonBar::currentPageChanged, this, [&w](RibbonPage* page) {
            if (page && w.bar->pageCount() > 1)
                w.bar->removePage(page);
        });
        w.bar->showKeyTips();
        Tips(w)->type(QStringLiteral("C"));
        for (const RibbonKeyTips::Tip& tip : Tips(w)->tips())
            if (tip.page && tip.page->title() == QLatin1String("Page C"))
                for (const QChar c : tip.text)
                    Tips(w)->type(c);
        Window::Settle();
        QCOMPARE(w.bar->pageCount(), 1);
        QCOMPARE(w.bar->currentPageIndex(), 0);
        QVERIFY(w.bar->currentPage()->isVisible());
    }

    void nothingIsDrawnOutsideItsPlace_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void nothingIsDrawnOutsideItsPlace()
    {
        QFETCH(bool, rightToLeft);
        Window w(2, 1, QSize(900, 500));
        w.window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        w.bar->showQuickAccess(true);
        w.bar->quickAccessBar()->addAction(MakeIcon(), QStringLiteral("Quick"));
        w.bar->addSystemButton(QIcon(), QStringLiteral("File"));
        RibbonPage* page = w.bar->addContextualPage(QStringLiteral("Format"), Long(), Qt::red);
        Window::Settle();
        const RibbonBarPrivate* bar = RibbonBarPrivate::get(w.bar);

        // The heading of a context.
        QCOMPARE(bar->contextHeadings().size(), 1);
        const QRect heading = bar->contextHeadings().first().rect;
        QImage before = Picture(w.bar);
        page->setContext(Long(QLatin1Char('i')), Qt::red);
        QRect changed = Difference(before, Picture(w.bar));
        QVERIFY(!changed.isEmpty());
        QVERIFY2(heading.contains(changed), qPrintable(Text(heading) + Text(changed)));

        // The title of the window.
        const QRect title = bar->titleRect();
        w.window.setWindowTitle(Long(QLatin1Char('W')));
        before = Picture(w.bar);
        w.window.setWindowTitle(Long(QLatin1Char('i')));
        changed = Difference(before, Picture(w.bar));
        QVERIFY(!changed.isEmpty());
        QVERIFY(title.contains(changed));

        // A tab whose title is elided either way.
        w.bar->getPage(1)->setTitle(Long(QLatin1Char('W')));
        Window::Settle();
        before = Picture(w.bar);
        w.bar->getPage(1)->setTitle(Long(QLatin1Char('i')));
        Window::Settle();
        changed = Difference(before, Picture(w.bar));
        QVERIFY(!changed.isEmpty());
        const QRect tab = Tabs(w)->tabRect(1).translated(w.TabBar()->pos());
        QVERIFY2(tab.contains(changed), qPrintable(Text(tab) + Text(changed)));

        // The title of a group lies below its buttons, beside its launcher.
        w.Group()->setOptionButtonVisible(true);
        w.Group()->setTitle(Long(QLatin1Char('W')));
        Window::Settle();
        before = Picture(w.Group());
        w.Group()->setTitle(Long(QLatin1Char('i')));
        Window::Settle();
        changed = Difference(before, Picture(w.Group()));
        QVERIFY(!changed.isEmpty());
        const RibbonGroupPanel* panel = RibbonGroupPrivate::get(w.Group())->panel;
        for (const RibbonGroupPanel::Item& item : panel->items())
            QVERIFY(!changed.intersects(item.widget->geometry()));
        QVERIFY(!changed.intersects(panel->launcher()->geometry()));
    }
};

OVK_TEST_CLASS(RibbonBadInputTest)

#include "ribbon_bad_input_test.moc"
