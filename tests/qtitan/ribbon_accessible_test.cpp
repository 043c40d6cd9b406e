#include "platform/qtitan/ribbon_accessible_p.h"
#include "platform/qtitan/ribbon_group_panel_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QAccessible>

using namespace Qtitan;
using ribbon_test::Window;

namespace {

QAccessibleInterface* Interface(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString Name(QObject* object)
{
    return Interface(object)->text(QAccessible::Name);
}

/// What assistive programs are told.
class EventLog
{
public:
    EventLog()
    {
        Events().clear();
        setRibbonAnnouncer([](QAccessibleEvent* event) {
            Events().append({event->object(), event->type(), event->child()});
        });
    }
    ~EventLog() { setRibbonAnnouncer(nullptr); }
    bool Has(const QObject* object, QAccessible::Event type, int child) const
    {
        for (const Entry& entry : Events())
            if (entry.object == object && entry.type == type && entry.child == child)
                return true;
        return false;
    }

private:
    struct Entry
    {
        const QObject* object;
        QAccessible::Event type;
        int child;
    };
    static QList<Entry>& Events()
    {
        static QList<Entry> events;
        return events;
    }
};

} // namespace

class RibbonAccessibleTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tabsAreATabListWithTabs()
    {
        Window w(3, 1);
        QAccessibleInterface* tabs = Interface(w.TabBar());
        QCOMPARE(tabs->role(), QAccessible::PageTabList);
        QCOMPARE(tabs->childCount(), 3);
        QCOMPARE(tabs->child(1)->role(), QAccessible::PageTab);
        QCOMPARE(tabs->child(1)->text(QAccessible::Name), QStringLiteral("Page B"));
        QVERIFY(tabs->child(0)->state().selected);
        QVERIFY(!tabs->child(1)->state().selected);
        QCOMPARE(tabs->indexOfChild(tabs->child(2)), 2);
        QCOMPARE(tabs->child(2)->parent(), tabs);
        QVERIFY(!tabs->child(3));
        QVERIFY(!tabs->child(-1));
        const QPoint middle = tabs->child(2)->rect().center();
        QCOMPARE(tabs->childAt(middle.x(), middle.y()), tabs->child(2));
        QAccessibleActionInterface* action = tabs->child(2)->actionInterface();
        QVERIFY(action);
        action->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(w.bar->currentPageIndex(), 2);
    }

    void aTabOfADeletedPageIsInvalid()
    {
        Window w(2, 1);
        QAccessibleInterface* tab = Interface(w.TabBar())->child(1);
        delete w.bar->getPage(1);
        QVERIFY(!tab->isValid());
        QCOMPARE(Interface(w.TabBar())->childCount(), 1);
    }

    void aMinimisedBarSaysCollapsed()
    {
        Window w(1, 1);
        QVERIFY(!Interface(w.bar)->state().collapsed);
        QVERIFY(Interface(w.bar)->state().expanded);
        w.bar->setMinimized(true);
        QVERIFY(Interface(w.bar)->state().collapsed);
        QVERIFY(Interface(w.TabBar())->state().collapsed);
        QCOMPARE(Interface(w.bar)->role(), QAccessible::MenuBar);
    }

    void aGroupIsAGroupingNamedByItsTitle()
    {
        Window w(1, 5, QSize(300, 400));
        RibbonGroup* group = w.Group(4);
        QCOMPARE(Interface(group)->role(), QAccessible::Grouping);
        QCOMPARE(Name(group), QStringLiteral("Group 4"));
        group->setTitle(QStringLiteral("A && B"));
        QCOMPARE(Name(group), QStringLiteral("A & B"));
        QVERIFY(Interface(group)->state().collapsed);
        QAccessibleActionInterface* action = Interface(group)->actionInterface();
        QVERIFY(action->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
        action->doAction(QAccessibleActionInterface::showMenuAction());
        QVERIFY(group->isPopupVisible());
        QVERIFY(Interface(group)->state().expanded);
    }

    void buttonsHaveNamesEvenWhenTheyShowOnlyAnIcon()
    {
        Window w(1, 1);
        QCOMPARE(Name(w.Button(10)), QStringLiteral("Icon 2"));
        QAction* corner = w.bar->addAction(ribbon_test::MakeIcon(), QStringLiteral("&Help"),
                                           Qt::ToolButtonIconOnly);
        QCOMPARE(Name(w.bar->buttonForAction(corner)), QStringLiteral("Help"));
        w.Group()->setOptionButtonVisible(true);
        QCOMPARE(Name(w.Group()->findChild<RibbonLauncher*>()), QStringLiteral("Group 0"));
    }

    void aButtonWithoutATextIsNamedByItsToolTip()
    {
        Window w(1, 1);
        QAction action(ribbon_test::MakeIcon(), QString(), nullptr);
        action.setToolTip(QStringLiteral("Rotates the part"));
        w.Group()->addAction(&action, Qt::ToolButtonIconOnly);
        QCOMPARE(Name(w.Group()->buttonForAction(&action)), QStringLiteral("Rotates the part"));
    }

    void assistiveProgramsHearOfTabsAndOfWhatOpens()
    {
        Window w(3, 5, QSize(300, 400));
        const EventLog log;
        w.bar->setCurrentPage(2);
        QVERIFY(log.Has(w.TabBar(), QAccessible::Selection, 2));
        QVERIFY(!log.Has(w.TabBar(), QAccessible::Focus, 2));
        w.window.activateWindow();
        w.TabBar()->setFocus();
        QVERIFY(log.Has(w.TabBar(), QAccessible::Focus, 2));
        QTest::keyClick(w.TabBar(), Qt::Key_Left);
        QVERIFY(log.Has(w.TabBar(), QAccessible::Focus, 1));
        w.Group(4)->showPopup();
        QVERIFY(log.Has(w.Group(4), QAccessible::StateChanged, -1));
        w.Group(4)->hidePopup();
        w.bar->setMinimized(true);
        QVERIFY(log.Has(w.bar, QAccessible::StateChanged, -1));
        QVERIFY(log.Has(w.TabBar(), QAccessible::StateChanged, -1));
    }

    void aPageIsNamedByItsTitle()
    {
        Window w(1, 1);
        QCOMPARE(Name(w.bar->getPage(0)), QStringLiteral("Page A"));
    }
};

OVK_TEST_CLASS(RibbonAccessibleTest)

#include "ribbon_accessible_test.moc"
