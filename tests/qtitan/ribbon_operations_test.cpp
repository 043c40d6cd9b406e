#include "tests/qtitan/ribbon_test_window.h"
#include "tests/qtitan/style_test_support.h"

#include <qtitan/style.h>

#include <QGridLayout>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QStyleOption>

using namespace Qtitan;
using ribbon_test::MakeIcon;
using ribbon_test::Window;

/// Each operation that the rest of the system calls, as it calls it, and what it then counts on.
/// What the operations do beyond that is tested class by class.
class RibbonOperationsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The window ------------------------------------------------------------------------------

    void theMainWindowTakesParentAndFlagsAndHasItsBar()
    {
        QWidget parent;
        RibbonMainWindow window(&parent, Qt::Tool);
        QCOMPARE(window.parentWidget(), &parent);
        QVERIFY(window.windowFlags() & Qt::Tool);
        const RibbonMainWindow plain;
        QVERIFY(plain.ribbonBar());
        QVERIFY(!plain.parentWidget());
        QCOMPARE(plain.ribbonBar()->pageCount(), 0);
    }

    void aBarCanStandAlone()
    {
        RibbonBar bar;
        bar.addPage(QStringLiteral("Page"))->addGroup(QStringLiteral("Group"));
        bar.resize(600, bar.sizeHint().height());
        bar.show();
        Window::Settle();
        QVERIFY(bar.currentPage()->isVisible());
        bar.setMinimized(true);
        bar.setMinimized(false);
    }

    // The bar's corner and system button ------------------------------------------------------

    void anActionOfTheBarsOwn()
    {
        Window w(1, 1);
        QMenu menu;
        QAction* action =
            w.bar->addAction(MakeIcon(), QStringLiteral("Minimize the Ribbon"),
                             static_cast<Qt::ToolButtonStyle>(0), static_cast<QMenu*>(nullptr));
        QVERIFY(action);
        QCOMPARE(action->text(), QStringLiteral("Minimize the Ribbon"));
        QCOMPARE(action->parent(), w.bar);
        QVERIFY(w.bar->actions().contains(action));
        QCOMPARE(w.bar->buttonForAction(action)->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QAction* with_menu =
            w.bar->addAction(QIcon(), QStringLiteral("More"), Qt::ToolButtonTextOnly, &menu);
        QCOMPARE(w.bar->buttonForAction(with_menu)->menu(), &menu);
        QCOMPARE(w.bar->buttonForAction(with_menu)->popupMode(), QToolButton::InstantPopup);
    }

    void anActionOfTheHostsInTheCorner()
    {
        Window w(1, 1);
        QAction action(QStringLiteral("Help"));
        QCOMPARE(w.bar->addAction(&action, static_cast<Qt::ToolButtonStyle>(0)), &action);
        QVERIFY(action.parent() != w.bar);
        QCOMPARE(w.bar->buttonForAction(&action)->defaultAction(), &action);
        action.setEnabled(false);
        QVERIFY(!w.bar->buttonForAction(&action)->isEnabled());
    }

    void theShortcutOfACornerActionWorks()
    {
        Window w(1, 1);
        QAction* action = w.bar->addAction(QIcon(), QStringLiteral("Minimize the Ribbon"),
                                           Qt::ToolButtonIconOnly, nullptr);
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+F1")));
        int runs = 0;
        connect(action, &QAction::triggered, this, [&runs] { ++runs; });
        w.window.activateWindow();
        w.content->setFocus();
        QTest::keyClick(w.content, Qt::Key_F1, Qt::ControlModifier);
        QCOMPARE(runs, 1);
    }

    void theSystemButtonOpensItsBackstage()
    {
        Window w(1, 1);
        QVERIFY(!w.bar->getSystemButton());
        QAction* action = w.bar->addSystemButton(QIcon(), QStringLiteral("File"));
        QVERIFY(action);
        RibbonSystemButton* button = w.bar->getSystemButton();
        QVERIFY(qobject_cast<QToolButton*>(button));
        QCOMPARE(button->defaultAction(), action);
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonFollowStyle);
        auto* view = new RibbonBackstageView(w.bar);
        QCOMPARE(view->ribbonBar(), w.bar);
        QCOMPARE(view->window(), &w.window);
        button->setBackstage(view);
        QCOMPARE(button->backstage(), view);
        QSignalSpy shown(view, &RibbonBackstageView::aboutToShow);
        QSignalSpy hidden(view, &RibbonBackstageView::aboutToHide);
        button->click();
        QVERIFY(view->isVisible());
        QCOMPARE(shown.count(), 1);
        view->setVisible(false);
        QVERIFY(!view->isVisible());
        QCOMPARE(hidden.count(), 1);
        delete view;
        QVERIFY(!button->backstage());
        w.bar->removeSystemButton();
        QVERIFY(!w.bar->getSystemButton());
    }

    void theQuickAccessBarIsShownAndHidden()
    {
        Window w(1, 1);
        RibbonQuickAccessBar* quick = w.bar->quickAccessBar();
        QVERIFY(qobject_cast<QToolBar*>(quick));
        QVERIFY(!w.bar->isQuickAccessVisible());
        w.bar->showQuickAccess(true);
        Window::Settle();
        QVERIFY(w.bar->isQuickAccessVisible());
        QVERIFY(quick->isVisible());
        QVERIFY(!quick->hasOverflow());
        QVERIFY(quick->overflowActions().isEmpty());
        QAction action(QStringLiteral("Save"));
        quick->addAction(&action);
        QVERIFY(quick->widgetForAction(&action));
        quick->setEnabled(false);
        QVERIFY(!quick->isEnabled());
        w.bar->showQuickAccess(false);
        QVERIFY(!quick->isVisible());
    }

    void minimisingTellsOnceAChange()
    {
        Window w(1, 1);
        QSignalSpy spy(w.bar, &RibbonBar::minimizationChanged);
        w.bar->setMinimized(true);
        w.bar->setMinimized(true);
        QVERIFY(w.bar->isMinimized());
        QVERIFY(!w.bar->isMaximized());
        w.bar->setMaximized(true);
        QCOMPARE(spy.count(), 2);
        QCOMPARE(spy.at(0).first().toBool(), true);
        QCOMPARE(spy.at(1).first().toBool(), false);
        w.bar->endPeek();
        QVERIFY(!w.bar->isPeeking());
    }

    void titlesOfGroupsAndFrame()
    {
        Window w(1, 1);
        QVERIFY(w.bar->isTitleGroupsVisible());
        w.bar->setTitleGroupsVisible(false);
        QVERIFY(!w.bar->isTitleGroupsVisible());
        QVERIFY(!w.bar->isFrameThemeEnabled());
        w.bar->setFrameThemeEnabled();
        QVERIFY(w.bar->isFrameThemeEnabled());
        w.bar->setFrameThemeEnabled(false);
        QVERIFY(!w.bar->isFrameThemeEnabled());
    }

    // Pages and groups, as the profile builds them --------------------------------------------

    void aPageIsMadeHiddenAndComesInWithItsGroups()
    {
        Window w(1, 1);
        auto* page = new RibbonPage(w.bar, QStringLiteral("Made"));
        QVERIFY(!page->isVisible());
        QVERIFY(!page->ribbonBar());
        auto* group = new RibbonGroup(nullptr, QStringLiteral("Group"));
        page->insertGroup(0, group);
        QCOMPARE(group->page(), page);
        w.bar->insertPage(0, page);
        QCOMPARE(page->ribbonBar(), w.bar);
        QCOMPARE(w.bar->getPage(0), page);
        QCOMPARE(w.bar->indexOfPage(page), 0);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        w.bar->setCurrentPage(0);
        Window::Settle();
        QVERIFY(group->isVisible());
        QCOMPARE(w.bar->currentPage(), page);
        QSignalSpy title(page, &RibbonPage::titleChanged);
        page->setTitle(QStringLiteral("A && B"));
        QCOMPARE(page->title(), QStringLiteral("A && B"));
        QCOMPARE(title.count(), 1);
        QSignalSpy group_title(group, &RibbonGroup::titleChanged);
        group->setTitle(QStringLiteral("C && D"));
        QCOMPARE(group->title(), QStringLiteral("C && D"));
        QCOMPARE(group_title.count(), 1);
        page->setVisible(false);
        QCOMPARE(w.bar->currentPageIndex(), 1);
        w.bar->detachPage(page);
        QCOMPARE(w.bar->indexOfPage(page), -1);
        // The bar deletes it with itself.
    }

    void removedPagesAreDeletedDetachedOnesAreNot()
    {
        Window w(3, 1);
        const QPointer<RibbonPage> removed = w.bar->getPage(2);
        const QPointer<RibbonPage> detached = w.bar->getPage(1);
        w.bar->removePage(removed);
        w.bar->detachPage(detached);
        QVERIFY(!removed);
        QVERIFY(detached);
        QCOMPARE(w.bar->pages(), QList<RibbonPage*>{w.bar->currentPage()});
        w.bar->movePage(0, 0);
        w.bar->clearPages();
        QVERIFY(w.bar->pages().isEmpty());
        QVERIFY(detached);
    }

    void aContextualPageStandsBehindTheOthers()
    {
        Window w(1, 1);
        RibbonPage* page =
            w.bar->addContextualPage(QStringLiteral("Format"), QStringLiteral("Tools"), Qt::red);
        QVERIFY(page->isContextual());
        QCOMPARE(page->contextTitle(), QStringLiteral("Tools"));
        QCOMPARE(page->contextColor(), QColor(Qt::red));
        RibbonPage* later = w.bar->addPage(QStringLiteral("Later"));
        QCOMPARE(w.bar->indexOfPage(page), 1);
        QCOMPARE(w.bar->indexOfPage(later), 2);
        w.bar->setCurrentPage(page);
        ribbon_test::Wheel(w.TabBar(), 120);
        QCOMPARE(w.bar->currentPage(), later);
        page->setContext(QString(), QColor());
        ribbon_test::Wheel(w.TabBar(), 120);
        QCOMPARE(w.bar->currentPage(), page);
    }

    void groupsAreFilledAsTheProfileFillsThem()
    {
        Window w(1, 0);
        RibbonPage* page = w.bar->currentPage();
        RibbonGroup* group = page->insertGroup(0, QStringLiteral("Group"));
        QCOMPARE(page->groups(), QList<RibbonGroup*>{group});
        QCOMPARE(page->groupCount(), 1);
        QCOMPARE(page->getGroup(0), group);
        QCOMPARE(page->indexOfGroup(group), 0);
        group->clear();
        QAction command(MakeIcon(), QStringLiteral("Open"), nullptr);
        group->addAction(&command, static_cast<Qt::ToolButtonStyle>(3), nullptr,
                         static_cast<QToolButton::ToolButtonPopupMode>(1));
        QVERIFY(group->addSeparator()->isSeparator());
        QMenu menu;
        QAction* drop_down = group->addAction(MakeIcon(), QStringLiteral("Menu"),
                                              static_cast<Qt::ToolButtonStyle>(4), &menu,
                                              static_cast<QToolButton::ToolButtonPopupMode>(2));
        group->setIcon(command.icon());
        QCOMPARE(group->icon().cacheKey(), command.icon().cacheKey());
        QCOMPARE(group->actions().size(), 3);
        QCOMPARE(group->buttonForAction(&command)->popupMode(), QToolButton::MenuButtonPopup);
        QCOMPARE(group->buttonForAction(drop_down)->popupMode(), QToolButton::InstantPopup);
        QCOMPARE(group->buttonForAction(drop_down)->menu(), &menu);
        QCOMPARE(group->styleForAction(drop_down), Qt::ToolButtonFollowStyle);
        QVERIFY(!group->isOptionButtonVisible());
        group->setOptionButtonVisible(true);
        QVERIFY(group->optionButtonAction());
        // A command that is asked for without a spot comes the Qt way.
        QAction plain(QStringLiteral("Plain"));
        static_cast<QWidget*>(group)->addAction(&plain);
        QVERIFY(group->widgetForAction(&plain));
        page->removeGroup(group);
        QVERIFY(!group->page());
        page->insertGroup(5, group);
        QCOMPARE(page->indexOfGroup(group), 0);
        group->setVisible(true);
        Window::Settle();
        QVERIFY(group->isVisible());
        page->clearGroups();
        QCOMPARE(page->groupCount(), 0);
        QCOMPARE(command.text(), QStringLiteral("Open"));
    }

    void aGalleryOnAGroup()
    {
        Window w(1, 1);
        auto* gallery = new RibbonGallery;
        QAction* action = w.Group()->addGallery(gallery);
        QCOMPARE(w.Group()->widgetForAction(action), gallery);
        Window::Settle();
        QVERIFY(gallery->isVisible());
    }

    // Backstage -------------------------------------------------------------------------------

    void pagesAndButtonsOfTheBackstage()
    {
        Window w(1, 1);
        auto* view = new RibbonBackstageView(w.bar);
        auto* page = new RibbonBackstagePage(nullptr);
        page->setWindowTitle(QStringLiteral("Open"));
        auto* button = new RibbonBackstageButton(page);
        auto* layout = new QGridLayout(page);
        layout->addWidget(button);
        QAction command(MakeIcon(), QStringLiteral("Browse"), nullptr);
        button->setDefaultAction(&command);
        QVERIFY(qobject_cast<QToolButton*>(button));
        QVERIFY(!button->isFlatStyle());
        button->setFlatStyle(true);
        QVERIFY(button->isFlatStyle());
        view->addPage(page);
        QCOMPARE(view->pages(), QList<RibbonBackstagePage*>{page});
        QCOMPARE(view->pageAction(page)->text(), QStringLiteral("Open"));
        view->addSeparator();
        QAction* quit = view->addAction(QIcon(), QStringLiteral("Exit"));
        auto* first = new RibbonBackstagePage;
        view->insertPage(view->pageAction(page), first);
        QCOMPARE(view->pages().first(), first);
        QSignalSpy active(view, &RibbonBackstageView::activePageChanged);
        view->setVisible(true);
        QCOMPARE(view->activePage(), first);
        view->setActivePage(page);
        QCOMPARE(view->activePage(), page);
        QCOMPARE(active.count(), 2);
        QSignalSpy ran(&command, &QAction::triggered);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(ran.count(), 1);
        view->removePage(first);
        QVERIFY(!first->parentWidget());
        delete first;
        QVERIFY(quit->parent());
        view->setVisible(false);
    }

    // Galleries and menus ---------------------------------------------------------------------

    void aGalleryAsTheColourEditUsesIt()
    {
        class Item : public RibbonGalleryItem
        {
        public:
            QSize sizeHint() const override { return QSize(17, 17); }
            void draw(QPainter* painter, const QStyleOption& option) const override
            {
                painter->fillRect(option.rect.adjusted(2, 2, -2, -2), Qt::red);
            }
        };
        QWidget owner;
        OfficePopupMenu* menu = OfficePopupMenu::createPopupMenu(&owner);
        QCOMPARE(menu->parentWidget(), &owner);
        RibbonGalleryGroup group;
        group.setSize(QSize(17, 17));
        QCOMPARE(group.size(), QSize(17, 17));
        QSignalSpy changed(&group, &RibbonGalleryGroup::changed);
        RibbonGalleryItem* heading = group.addSeparator(QStringLiteral("Standard Colors"));
        QVERIFY(heading->isSeparator());
        QCOMPARE(heading->caption(), QStringLiteral("Standard Colors"));
        for (int i = 0; i < 48; ++i)
            group.addItem(new Item);
        QCOMPARE(group.itemCount(), 49);
        QCOMPARE(group.items().first(), heading);
        QCOMPARE(group.indexOf(group.item(7)), 7);
        QCOMPARE(group.item(7)->group(), &group);
        QVERIFY(changed.count() >= 49);
        RibbonGallery gallery;
        gallery.setGalleryGroup(&group);
        gallery.setMinimumItemCount(2);
        gallery.setMaximumItemCount(8);
        gallery.setLabelsVisible(true);
        gallery.setScrollBarPolicy(static_cast<Qt::ScrollBarPolicy>(1));
        QCOMPARE(gallery.galleryGroup(), &group);
        QCOMPARE(gallery.minimumItemCount(), 2);
        QCOMPARE(gallery.maximumItemCount(), 8);
        QVERIFY(gallery.isLabelsVisible());
        QCOMPARE(gallery.scrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        gallery.setMaximumRowCount(0);
        QCOMPARE(gallery.maximumRowCount(), 0);
        QAction* none = menu->addAction(QStringLiteral("No color"));
        menu->addGallery(&gallery);
        menu->addSeparator();
        QAction* more = menu->addAction(QStringLiteral("More Colors..."));
        QCOMPARE(menu->actions().first(), none);
        QCOMPARE(menu->actions().last(), more);
        QSignalSpy clicked(&gallery, &RibbonGallery::itemClicked);
        QSignalSpy hovered(&gallery, &RibbonGallery::itemHovered);
        menu->popup(QPoint(20, 20));
        RibbonGalleryItem* wanted = group.item(20);
        gallery.ensureVisible(wanted);
        const QPoint place = gallery.itemRect(wanted).center();
        QCOMPARE(gallery.itemAt(place), wanted);
        QTest::mouseMove(&gallery, place);
        QTest::mouseClick(&gallery, Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().value<RibbonGalleryItem*>(), wanted);
        QCOMPARE(gallery.checkedItem(), wanted);
        QVERIFY(!menu->isVisible());
        gallery.setCheckedItem(nullptr);
        QVERIFY(!gallery.checkedItem());
        QVERIFY(!gallery.selectedItem());
        group.remove(0);
        QCOMPARE(group.itemCount(), 48);
        group.clear();
        QCOMPARE(group.itemCount(), 0);
        QVERIFY(hovered.isValid());
    }

    void anItemKeepsWhatItWasGiven()
    {
        RibbonGalleryGroup group;
        RibbonGalleryItem* item = group.addItem(QStringLiteral("Caption"), MakeIcon());
        QVERIFY(!item->icon().isNull());
        item->setCaption(QStringLiteral("Other"));
        item->setIcon(QIcon());
        item->setToolTip(QStringLiteral("Tip"));
        item->setData(42);
        item->setEnabled(false);
        item->setSizeHint(QSize(30, 20));
        QCOMPARE(item->caption(), QStringLiteral("Other"));
        QVERIFY(item->icon().isNull());
        QCOMPARE(item->toolTip(), QStringLiteral("Tip"));
        QCOMPARE(item->data().toInt(), 42);
        QVERIFY(!item->isEnabled());
        QCOMPARE(item->sizeHint(), QSize(30, 20));
    }

    void widgetsInAMenu()
    {
        OfficePopupMenu menu;
        QAction* last = menu.addAction(QStringLiteral("Last"));
        auto* widget = new QWidget;
        widget->setMinimumSize(50, 30);
        QAction* first = menu.insertWidget(last, widget);
        QCOMPARE(menu.actions().first(), first);
        menu.addWidget(new QWidget);
        QCOMPARE(menu.actions().size(), 3);
        RibbonGallery gallery;
        gallery.setPopupMenu(&menu);
        QCOMPARE(gallery.popupMenu(), &menu);
    }

    // Tool tips -------------------------------------------------------------------------------

    void aToolTipSaysWhatItWasGiven()
    {
        QWidget widget;
        widget.show();
        RibbonToolTip::setWrapMode(static_cast<RibbonToolTip::WrapMode>(0));
        QCOMPARE(RibbonToolTip::wrapMode(), RibbonToolTip::NativeWrap);
        RibbonToolTip::showToolTip(QPoint(50, 60), QStringLiteral("Title"), QStringLiteral("Body"),
                                   MakeIcon(), &widget);
        const RibbonToolTip* tip = RibbonToolTip::current();
        QVERIFY(tip);
        QCOMPARE(tip->title(), QStringLiteral("Title"));
        QCOMPARE(tip->body(), QStringLiteral("Body"));
        QVERIFY(!tip->icon().isNull());
        QCOMPARE(tip->pos(), QPoint(50, 60));
        RibbonToolTip::hideToolTip();
        QVERIFY(!RibbonToolTip::current());
    }

    // The style -------------------------------------------------------------------------------

    void themeAndBothFormsOfTheAccent()
    {
        style_test::ApplicationStyle style;
        QVERIFY(qobject_cast<OfficeStyle*>(QApplication::style()));
        QVERIFY(qobject_cast<RibbonStyle*>(QApplication::style()));
        QSignalSpy spy(style.operator->(), &OfficeStyle::themeChanged);
        style->setTheme(OfficeStyle::Office2013White);
        QCOMPARE(style->getTheme(), OfficeStyle::Office2013White);
        style->setTheme(static_cast<OfficeStyle::Theme>(-1));
        QCOMPARE(style->getTheme(), OfficeStyle::Office2013White);
        style->setAccentColor(OfficeStyle::AccentColorRed);
        QCOMPARE(style->accentColor(), OfficeStyle::accentColor(OfficeStyle::AccentColorRed));
        style->setAccentColor(QColor::fromRgb(41, 152, 255));
        QCOMPARE(style->accentColor(), QColor(41, 152, 255));
        QVERIFY(spy.count() >= 3);
        QVERIFY(&style->ribbonTheme());
    }

    void theFrameOfADockPanelIsAPrimitiveOfTheStyle()
    {
        style_test::ApplicationStyle style;
        style->setTheme(OfficeStyle::Office2010Blue);
        QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        QStyleOption option;
        option.rect = QRect(0, 0, 39, 39);
        style->drawPrimitive(static_cast<QStyle::PrimitiveElement>(0xFF00000Au), &option, &painter);
        painter.end();
        // The ground inside, and a border to the last column and row.
        for (const QPoint& place : {QPoint(20, 20), QPoint(0, 20), QPoint(39, 20), QPoint(20, 39)})
            QVERIFY(image.pixelColor(place) != QColor(Qt::magenta));
    }
};

OVK_TEST_CLASS(RibbonOperationsTest)

#include "ribbon_operations_test.moc"
