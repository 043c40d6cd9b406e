#include "platform/qtitan/ribbon_gallery_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

/// 48 standard and 16 custom cells under two headings, as a colour edit shows them.
struct Palette
{
    Palette()
    {
        group.setSize(QSize(17, 17));
        group.addSeparator(QStringLiteral("Standard Colors"));
        for (int i = 0; i < 48; ++i)
            group.addItem(new RibbonGalleryItem);
        group.addSeparator(QStringLiteral("Custom Colors"));
        for (int i = 0; i < 16; ++i)
            group.addItem(new RibbonGalleryItem);
    }

    RibbonGalleryGroup group;
};

struct Popup : Palette
{
    Popup()
    {
        gallery.setGalleryGroup(&group);
        gallery.setMinimumItemCount(2);
        gallery.setMaximumItemCount(8);
        gallery.setLabelsVisible(true);
        gallery.setScrollBarPolicy(static_cast<Qt::ScrollBarPolicy>(1));
        gallery.resize(gallery.sizeHint());
    }

    QPoint Center(int index) const { return gallery.itemRect(group.item(index)).center(); }

    RibbonGallery gallery;
};

} // namespace

class RibbonGalleryTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aGroupKeepsItsItemsInOrder()
    {
        Palette p;
        QCOMPARE(p.group.itemCount(), 66);
        QVERIFY(p.group.item(0)->isSeparator());
        QCOMPARE(p.group.item(0)->caption(), QStringLiteral("Standard Colors"));
        QVERIFY(!p.group.item(1)->isSeparator());
        QCOMPARE(p.group.item(1)->sizeHint(), QSize(17, 17));
        QVERIFY(!p.group.item(66) && !p.group.item(-1));
        QSignalSpy spy(&p.group, &RibbonGalleryGroup::changed);
        p.group.remove(1);
        p.group.remove(500);
        QCOMPARE(p.group.itemCount(), 65);
        QCOMPARE(spy.count(), 1);
        delete p.group.item(1);
        QCOMPARE(p.group.itemCount(), 64);
        p.group.clear();
        QCOMPARE(p.group.itemCount(), 0);
    }

    void anItemMovesToTheGroupThatTakesIt()
    {
        RibbonGalleryGroup first;
        RibbonGalleryGroup second;
        RibbonGalleryItem* item = first.addItem(QStringLiteral("A"), QIcon());
        second.addItem(item);
        second.addItem(nullptr);
        QCOMPARE(first.itemCount(), 0);
        QCOMPARE(second.itemCount(), 1);
        QCOMPARE(item->group(), &second);
    }

    void aSizeOfItsOwnBeatsThatOfTheGroup()
    {
        Palette p;
        p.group.item(1)->setSizeHint(QSize(30, 20));
        QCOMPARE(p.group.item(1)->sizeHint(), QSize(30, 20));
        QCOMPARE(p.group.item(2)->sizeHint(), QSize(17, 17));
    }

    void itAsksForRowsOfTheMostItems()
    {
        Popup p;
        QCOMPARE(p.gallery.sizeHint().width(), 8 * 17 + 4);
        QCOMPARE(p.gallery.minimumSizeHint().width(), 2 * 17 + 4);
        const int heading = p.gallery.fontMetrics().height() + 6;
        QCOMPARE(p.gallery.sizeHint().height(), 8 * 17 + 2 * heading + 4);
        p.gallery.setLabelsVisible(false);
        QCOMPARE(p.gallery.sizeHint().height(), 8 * 17 + 4);
        p.gallery.setMaximumItemCount(0);
        QCOMPARE(p.gallery.maximumItemCount(), 1);
    }

    void oneClickPicks()
    {
        Popup p;
        p.gallery.show();
        QSignalSpy spy(&p.gallery, &RibbonGallery::itemClicked);
        QTest::mouseClick(&p.gallery, Qt::LeftButton, Qt::NoModifier, p.Center(10));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(p.gallery.checkedItem(), p.group.item(10));
        QTest::mouseClick(&p.gallery, Qt::LeftButton, Qt::NoModifier, p.Center(0));
        QTest::mouseClick(&p.gallery, Qt::RightButton, Qt::NoModifier, p.Center(11));
        QCOMPARE(spy.count(), 1);
        p.group.item(12)->setEnabled(false);
        QTest::mouseClick(&p.gallery, Qt::LeftButton, Qt::NoModifier, p.Center(12));
        QCOMPARE(spy.count(), 1);
        QTest::mousePress(&p.gallery, Qt::LeftButton, Qt::NoModifier, p.Center(13));
        QTest::mouseRelease(&p.gallery, Qt::LeftButton, Qt::NoModifier, p.Center(14));
        QCOMPARE(spy.count(), 1);
    }

    void hoveringTellsTheItemAndLeavingTellsNone()
    {
        Popup p;
        p.gallery.show();
        QSignalSpy spy(&p.gallery, &RibbonGallery::itemHovered);
        QTest::mouseMove(&p.gallery, p.Center(5));
        QTRY_COMPARE(p.gallery.selectedItem(), p.group.item(5));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&p.gallery, &leave);
        QVERIFY(!p.gallery.selectedItem());
        QCOMPARE(spy.last().first().value<RibbonGalleryItem*>(), nullptr);
    }

    void keysWalkAndPick()
    {
        Popup p;
        QSignalSpy spy(&p.gallery, &RibbonGallery::itemClicked);
        QTest::keyClick(&p.gallery, Qt::Key_Right);
        QCOMPARE(p.gallery.selectedItem(), p.group.item(1));
        QTest::keyClick(&p.gallery, Qt::Key_Down);
        QCOMPARE(p.gallery.selectedItem(), p.group.item(9));
        QTest::keyClick(&p.gallery, Qt::Key_End);
        QCOMPARE(p.gallery.selectedItem(), p.group.item(65));
        QTest::keyClick(&p.gallery, Qt::Key_Home);
        QTest::keyClick(&p.gallery, Qt::Key_Return);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(p.gallery.checkedItem(), p.group.item(1));
    }

    void aCheckedItemThatDiesIsForgotten()
    {
        Popup p;
        p.gallery.setCheckedItem(p.group.item(3));
        delete p.group.item(3);
        QVERIFY(!p.gallery.checkedItem());
    }

    void aGroupThatDiesLeavesAnEmptyGallery()
    {
        RibbonGallery gallery;
        {
            Palette p;
            gallery.setGalleryGroup(&p.group);
        }
        QVERIFY(!gallery.galleryGroup());
        gallery.resize(100, 100);
        gallery.grab();
        QVERIFY(!gallery.itemAt(QPoint(10, 10)));
    }

    void scrollBarsFollowThePolicy()
    {
        Popup p;
        p.gallery.setMaximumRowCount(3);
        p.gallery.setScrollBarPolicy(Qt::ScrollBarAsNeeded);
        p.gallery.resize(p.gallery.sizeHint());
        p.gallery.show();
        auto* bar = p.gallery.findChild<QScrollBar*>();
        QVERIFY(bar && bar->isVisible());
        QVERIFY(bar->maximum() > 0);
        p.gallery.ensureVisible(p.group.item(65));
        QCOMPARE(bar->value(), bar->maximum());
        p.gallery.ensureVisible(p.group.item(1));
        QVERIFY(bar->value() < bar->maximum());
        p.gallery.setScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        QVERIFY(!bar->isVisible());
        ribbon_test::Wheel(&p.gallery, -120);
        QVERIFY(p.gallery.itemRect(p.group.item(1)).top() < 10);
    }

    void aMenuClosesWhenAnItemIsPicked()
    {
        QToolButton button;
        OfficePopupMenu* menu = OfficePopupMenu::createPopupMenu(&button);
        QCOMPARE(menu->parent(), &button);
        Palette p;
        auto* gallery = new RibbonGallery;
        gallery->setGalleryGroup(&p.group);
        menu->addAction(QStringLiteral("No color"));
        QAction* action = menu->addWidget(gallery);
        menu->addSeparator();
        menu->addAction(QStringLiteral("More Colors..."));
        QCOMPARE(menu->actions().indexOf(action), 1);
        QSignalSpy spy(gallery, &RibbonGallery::itemClicked);
        menu->popup(QPoint(50, 50));
        QVERIFY(gallery->isVisible());
        QTest::mouseClick(gallery, Qt::LeftButton, Qt::NoModifier,
                          gallery->itemRect(p.group.item(4)).center());
        QCOMPARE(spy.count(), 1);
        QVERIFY(!menu->isVisible());
    }

    void arrowsGoFromTheMenuIntoTheGalleryAndOut()
    {
        QToolButton button;
        OfficePopupMenu* menu = OfficePopupMenu::createPopupMenu(&button);
        Palette p;
        auto* gallery = new RibbonGallery;
        gallery->setGalleryGroup(&p.group);
        QAction* first = menu->addAction(QStringLiteral("No color"));
        menu->addWidget(gallery);
        QAction* last = menu->addAction(QStringLiteral("More Colors..."));
        menu->popup(QPoint(50, 50));
        menu->setActiveAction(first);
        const auto press = [menu](Qt::Key key) {
            QTest::keyClick(menu->focusWidget() ? menu->focusWidget() : menu, key);
        };
        press(Qt::Key_Down);
        QVERIFY(gallery->hasFocus() || gallery->selectedItem());
        QCOMPARE(gallery->selectedItem(), p.group.item(1));
        press(Qt::Key_End);
        press(Qt::Key_Down);
        QCOMPARE(menu->activeAction(), last);
        menu->close();
    }

    void aBorrowedGallerySurvivesItsMenu()
    {
        Palette p;
        RibbonGallery gallery;
        gallery.setGalleryGroup(&p.group);
        {
            QWidget owner;
            OfficePopupMenu* menu = OfficePopupMenu::createPopupMenu(&owner);
            QVERIFY(menu->addGallery(&gallery));
            QVERIFY(!menu->addGallery(nullptr));
            QVERIFY(!menu->addWidget(nullptr));
            QCOMPARE(gallery.parentWidget(), menu);
        }
        QVERIFY(!gallery.parentWidget());
        QCOMPARE(gallery.galleryGroup(), &p.group);
    }

    void onARibbonGroupItIsAStripWithButtons()
    {
        Window w(1, 1);
        RibbonGalleryGroup items;
        items.setSize(QSize(60, 54));
        for (int i = 0; i < 12; ++i)
            items.addItem(QStringLiteral("Style %1").arg(i), ribbon_test::MakeIcon());
        auto* gallery = new RibbonGallery;
        gallery->setGalleryGroup(&items);
        gallery->setMaximumItemCount(4);
        w.Group()->addGallery(gallery);
        Window::Settle();
        QCOMPARE(gallery->height(), w.Button(0)->height());
        const auto buttons = gallery->findChildren<RibbonGalleryButton*>();
        QCOMPARE(buttons.size(), 3);
        QVERIFY(!gallery->itemRect(items.item(0)).intersects(buttons.first()->geometry()));
        const int y = gallery->itemRect(items.item(4)).y();
        QTest::mouseClick(buttons.at(1), Qt::LeftButton);
        QCOMPARE(gallery->itemRect(items.item(4)).y(), y - 54);
        QSignalSpy spy(gallery, &RibbonGallery::itemClicked);
        QTest::mouseClick(buttons.at(2), Qt::LeftButton);
        auto* menu = qobject_cast<OfficePopupMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        auto* all = menu->findChild<RibbonGallery*>();
        QTest::mouseClick(all, Qt::LeftButton, Qt::NoModifier,
                          all->itemRect(items.item(11)).center());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(gallery->checkedItem(), items.item(11));
        QVERIFY(!menu->isVisible());
        // The choice was scrolled into view.
        QVERIFY(gallery->rect().contains(gallery->itemRect(items.item(11)).center()));
    }
};

OVK_TEST_CLASS(RibbonGalleryTest)

#include "ribbon_gallery_test.moc"
