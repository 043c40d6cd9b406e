#include "platform/qtitan/ribbon_button_p.h"
#include "platform/qtitan/ribbon_group_p.h"
#include "platform/qtitan/ribbon_page_p.h"
#include "tests/qtitan/ribbon_test_window.h"

#include <QCheckBox>
#include <QMenu>
#include <QSpinBox>
#include <QWidgetAction>

using namespace Qtitan;
using ribbon_test::MakeIcon;
using ribbon_test::Window;

namespace {

RibbonButton* ButtonOf(const RibbonGroup* group, const QAction* action)
{
    return qobject_cast<RibbonButton*>(group->widgetForAction(action));
}

int CountButtons(const RibbonGroup* group)
{
    return group->findChildren<QToolButton*>().size();
}

} // namespace

class RibbonGroupTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anActionGetsAButtonWithItsStyle_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("size");
        QTest::newRow("icon only") << int(Qt::ToolButtonIconOnly) << int(RibbonItemSize::Icon);
        QTest::newRow("text only") << int(Qt::ToolButtonTextOnly) << int(RibbonItemSize::Text);
        QTest::newRow("beside") << int(Qt::ToolButtonTextBesideIcon) << int(RibbonItemSize::Text);
        QTest::newRow("under") << int(Qt::ToolButtonTextUnderIcon) << int(RibbonItemSize::Large);
        QTest::newRow("follow") << int(Qt::ToolButtonFollowStyle) << int(RibbonItemSize::Text);
    }

    void anActionGetsAButtonWithItsStyle()
    {
        QFETCH(int, style);
        QFETCH(int, size);
        RibbonGroup group(nullptr, QStringLiteral("Group"));
        QAction action(MakeIcon(), QStringLiteral("Run"), nullptr);
        QCOMPARE(group.addAction(&action, static_cast<Qt::ToolButtonStyle>(style), nullptr,
                                 static_cast<QToolButton::ToolButtonPopupMode>(1)),
                 &action);
        RibbonButton* button = ButtonOf(&group, &action);
        QVERIFY(button);
        QCOMPARE(int(button->toolButtonStyle()), style);
        QCOMPARE(int(group.styleForAction(&action)), style);
        QCOMPARE(int(button->wantedSize()), size);
        QCOMPARE(group.actions(), QList<QAction*>{&action});
        QCOMPARE(button->defaultAction(), &action);
    }

    void aGroupOfItsOwnTitleNeedsNoPage()
    {
        RibbonGroup group(nullptr, QStringLiteral("Group"));
        QCOMPARE(group.title(), QStringLiteral("Group"));
        QVERIFY(!group.page());
        QVERIFY(group.icon().isNull());
        group.setIcon(MakeIcon());
        QVERIFY(!group.icon().isNull());
    }

    void anActionAddedTheQtWayHasTextBesideItsIcon()
    {
        RibbonGroup group;
        QAction action(MakeIcon(), QStringLiteral("Run"), nullptr);
        static_cast<QWidget*>(&group)->addAction(&action);
        QCOMPARE(ButtonOf(&group, &action)->wantedSize(), RibbonItemSize::Text);
        group.removeAction(&action);
        QVERIFY(!group.widgetForAction(&action));
        QVERIFY(group.actions().isEmpty());
    }

    void theSameActionTwiceGetsOneButton()
    {
        RibbonGroup group;
        QAction action(QStringLiteral("Run"));
        group.addAction(&action, Qt::ToolButtonTextBesideIcon);
        group.addAction(&action, Qt::ToolButtonTextUnderIcon);
        QCOMPARE(group.actions().size(), 1);
        QCOMPARE(group.buttonForAction(&action)->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
        QCOMPARE(CountButtons(&group), 1);
        QCOMPARE(group.styleForAction(&action), Qt::ToolButtonTextUnderIcon);
    }

    void nullIsIgnored()
    {
        RibbonGroup group;
        QVERIFY(!group.addAction(nullptr, Qt::ToolButtonIconOnly));
        QVERIFY(!group.addWidget(nullptr));
        QVERIFY(!group.widgetForAction(nullptr));
    }

    void aButtonIsMadeWithAllThatWasSaidOfItBefore()
    {
        RibbonGroup group;
        QMenu menu;
        auto gone = std::make_unique<QMenu>();
        QAction first(MakeIcon(), QStringLiteral("First"), nullptr);
        QAction second(MakeIcon(), QStringLiteral("Second"), nullptr);
        group.addAction(&first, Qt::ToolButtonTextUnderIcon, &menu, QToolButton::InstantPopup);
        group.addAction(&second, Qt::ToolButtonTextUnderIcon, gone.get());
        QCOMPARE(CountButtons(&group), 0);
        group.setStyleForAction(&first, Qt::ToolButtonIconOnly);
        QCOMPARE(group.styleForAction(&first), Qt::ToolButtonIconOnly);
        QCOMPARE(CountButtons(&group), 0);
        gone.reset();
        QCOMPARE(group.buttonForAction(&first)->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QCOMPARE(group.buttonForAction(&first)->menu(), &menu);
        QCOMPARE(group.buttonForAction(&first)->popupMode(), QToolButton::InstantPopup);
        QCOMPARE(CountButtons(&group), 1);
        QVERIFY(!ButtonOf(&group, &second)->hasMenu());
        group.buttonForAction(&second)->setToolButtonStyle(Qt::ToolButtonTextOnly);
        QCOMPARE(group.styleForAction(&second), Qt::ToolButtonTextOnly);
        QVERIFY(group.sizeHint().width() > 0);
    }

    void clickingRunsTheAction()
    {
        Window w(1, 1);
        int runs = 0;
        connect(w.Group()->actions().first(), &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(w.Button(0), Qt::LeftButton);
        QCOMPARE(runs, 1);
    }

    void aButtonOfMenuModeWithoutAMenuIsPressedEverywhere()
    {
        Window w(1, 1);
        QAction action(MakeIcon(), QStringLiteral("Run"), nullptr);
        w.Group()->addAction(&action, Qt::ToolButtonTextBesideIcon, nullptr,
                             QToolButton::MenuButtonPopup);
        Window::Settle();
        int runs = 0;
        connect(&action, &QAction::triggered, this, [&runs] { ++runs; });
        QToolButton* button = w.Group()->buttonForAction(&action);
        for (const int x : {2, button->width() / 2, button->width() - 2})
            QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier,
                              QPoint(x, button->height() / 2));
        QCOMPARE(runs, 3);
    }

    void theHalvesOfASplitButtonDoTheirOwn_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<QPointF>("main");
        QTest::addColumn<QPointF>("menu");
        QTest::newRow("large") << int(Qt::ToolButtonTextUnderIcon) << QPointF(0.9, 0.2)
                               << QPointF(0.2, 0.9);
        QTest::newRow("small") << int(Qt::ToolButtonTextBesideIcon) << QPointF(0.2, 0.9)
                               << QPointF(0.95, 0.2);
        QTest::newRow("icon") << int(Qt::ToolButtonIconOnly) << QPointF(0.2, 0.5)
                              << QPointF(0.9, 0.5);
    }

    void theHalvesOfASplitButtonDoTheirOwn()
    {
        QFETCH(int, style);
        QFETCH(QPointF, main);
        QFETCH(QPointF, menu);
        Window w(1, 1);
        QMenu popup;
        popup.addAction(QStringLiteral("Other"));
        QAction action(MakeIcon(), QStringLiteral("Run"), nullptr);
        w.Group()->addAction(&action, static_cast<Qt::ToolButtonStyle>(style), &popup,
                             QToolButton::MenuButtonPopup);
        Window::Settle();
        int runs = 0;
        connect(&action, &QAction::triggered, this, [&runs] { ++runs; });
        int opened = 0;
        connect(&popup, &QMenu::aboutToShow, this, [&] {
            ++opened;
            QTimer::singleShot(0, &popup, &QMenu::close);
        });
        QToolButton* button = w.Group()->buttonForAction(&action);
        const auto at = [button](const QPointF& part) {
            return QPoint(int(part.x() * button->width()), int(part.y() * button->height()));
        };
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, at(main));
        QCOMPARE(runs, 1);
        QCOMPARE(opened, 0);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, at(menu));
        QCOMPARE(runs, 1);
        QCOMPARE(opened, 1);
        QTest::keyClick(button, Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(opened, 2);
    }

    void aMenuButtonOpensItsMenuAndDoesNothingElse()
    {
        Window w(1, 1);
        QMenu popup;
        popup.addAction(QStringLiteral("Other"));
        QAction* action =
            w.Group()->addAction(MakeIcon(), QStringLiteral("Menu"), Qt::ToolButtonFollowStyle,
                                 &popup, QToolButton::InstantPopup);
        Window::Settle();
        int opened = 0;
        connect(&popup, &QMenu::aboutToShow, this, [&] {
            ++opened;
            QTimer::singleShot(0, &popup, &QMenu::close);
        });
        int runs = 0;
        connect(action, &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(w.Group()->buttonForAction(action), Qt::LeftButton);
        QCOMPARE(opened, 1);
        QCOMPARE(runs, 0);
        QCOMPARE(w.Group()->buttonForAction(action)->popupMode(), QToolButton::InstantPopup);
    }

    void theMenuOfAnActionIsOfferedByItsButton()
    {
        RibbonGroup group;
        QMenu menu;
        menu.addAction(QStringLiteral("One"));
        QAction action(QStringLiteral("Run"));
        action.setMenu(&menu);
        group.addAction(&action, Qt::ToolButtonTextBesideIcon);
        QVERIFY(ButtonOf(&group, &action)->hasMenu());
    }

    void aButtonFollowsItsAction()
    {
        Window w(1, 1);
        QAction* action = w.Group()->actions().at(5);
        QToolButton* button = w.Group()->buttonForAction(action);
        const int width = button->width();
        action->setText(QStringLiteral("A much longer text than before"));
        Window::Settle();
        QVERIFY(button->width() > width);
        action->setEnabled(false);
        QVERIFY(!button->isEnabled());
        action->setVisible(false);
        Window::Settle();
        QVERIFY(!button->isVisible());
        action->setVisible(true);
        Window::Settle();
        QVERIFY(button->isVisible());
    }

    void anAmpersandOfACommandIsShownOnce()
    {
        RibbonGroup group;
        QAction action(QStringLiteral("Save && Close"));
        group.addAction(&action, Qt::ToolButtonTextBesideIcon);
        QCOMPARE(ButtonOf(&group, &action)->label(), QStringLiteral("Save & Close"));
    }

    void aSeparatorIsNoButton()
    {
        RibbonGroup group;
        QAction* separator = group.addSeparator();
        QVERIFY(separator->isSeparator());
        QCOMPARE(group.actions().size(), 1);
        QVERIFY(!group.widgetForAction(separator));
    }

    void clearTakesEverythingAndLeavesTheHostsActions()
    {
        RibbonGroup group;
        QAction own(QStringLiteral("Run"));
        group.addAction(&own, Qt::ToolButtonTextBesideIcon);
        const QPointer<QAction> made =
            group.addAction(QIcon(), QStringLiteral("Made"), Qt::ToolButtonTextBesideIcon);
        const QPointer<QAction> separator = group.addSeparator();
        const QPointer<QWidget> widget = new QSpinBox;
        group.addWidget(widget);
        group.clear();
        QVERIFY(group.actions().isEmpty());
        QVERIFY(!made && !separator && !widget);
        QCOMPARE(CountButtons(&group), 0);
        QCOMPARE(own.text(), QStringLiteral("Run"));
    }

    void aCommandMayRebuildItsGroup()
    {
        Window w(1, 1);
        RibbonGroup* group = w.Group();
        QAction again(MakeIcon(), QStringLiteral("Again"), nullptr);
        connect(group->actions().first(), &QAction::triggered, this, [&] {
            group->clear();
            group->addAction(&again, Qt::ToolButtonTextUnderIcon);
        });
        QTest::mouseClick(w.Button(0), Qt::LeftButton);
        Window::Settle();
        QCOMPARE(group->actions(), QList<QAction*>{&again});
        QVERIFY(w.Button(0)->isVisible());
    }

    void aCommandOfAMenuMayRebuildItsGroup()
    {
        Window w(1, 1);
        RibbonGroup* group = w.Group();
        QMenu menu;
        QAction* entry = menu.addAction(QStringLiteral("Rebuild"));
        QAction split(MakeIcon(), QStringLiteral("Split"), nullptr);
        group->addAction(&split, Qt::ToolButtonTextUnderIcon, &menu, QToolButton::MenuButtonPopup);
        Window::Settle();
        connect(entry, &QAction::triggered, this, [&] { group->clear(); });
        connect(&menu, &QMenu::aboutToShow, this, [&] {
            QTimer::singleShot(0, &menu, [&] {
                entry->trigger();
                menu.close();
            });
        });
        QToolButton* button = group->buttonForAction(&split);
        QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier,
                          QPoint(button->width() / 2, button->height() - 4));
        QVERIFY(group->actions().isEmpty());
    }

    void anActionThatDiesTakesItsButton()
    {
        Window w(1, 1);
        const int before = CountButtons(w.Group());
        auto action = std::make_unique<QAction>(QStringLiteral("Short"));
        w.Group()->addAction(action.get(), Qt::ToolButtonTextBesideIcon);
        Window::Settle();
        QCOMPARE(CountButtons(w.Group()), before + 1);
        action.reset();
        QCOMPARE(CountButtons(w.Group()), before);
        Window::Settle();
    }

    void aWidgetThatDiesLeavesItsPlace()
    {
        Window w(1, 1);
        auto* spin = new QSpinBox;
        w.Group()->addWidget(spin);
        Window::Settle();
        QVERIFY(spin->isVisible());
        delete spin;
        w.window.resize(700, 400);
        Window::Settle();
    }

    void aWidgetActionIsReleasedWithItsGroup()
    {
        auto* widget = new QCheckBox(QStringLiteral("Check"));
        QWidgetAction action(nullptr);
        action.setDefaultWidget(widget);
        {
            Window w(1, 1);
            w.Group()->QWidget::addAction(&action);
            Window::Settle();
            QVERIFY(widget->isVisible());
        }
        QCOMPARE(action.defaultWidget(), widget);
        QVERIFY(!widget->parentWidget());
    }

    void anInsertedActionStandsBeforeTheOther()
    {
        Window w(1, 1);
        QAction first(MakeIcon(), QStringLiteral("First"), nullptr);
        w.Group()->insertAction(w.Group()->actions().first(), &first);
        Window::Settle();
        QVERIFY(w.Group()->buttonForAction(&first)->x() < w.Button(1)->x());
        QCOMPARE(w.Group()->actions().first(), &first);
    }

    void theLauncherRunsItsAction()
    {
        Window w(1, 1);
        QVERIFY(!w.Group()->isOptionButtonVisible());
        w.Group()->setOptionButtonVisible(true);
        Window::Settle();
        auto* launcher = w.Group()->findChild<RibbonLauncher*>();
        QVERIFY(launcher && launcher->isVisible());
        int runs = 0;
        connect(w.Group()->optionButtonAction(), &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(launcher, Qt::LeftButton);
        QCOMPARE(runs, 1);
        w.bar->setTitleGroupsVisible(false);
        QVERIFY(!launcher->isVisible());
        w.Group()->setOptionButtonVisible(false);
        QVERIFY(!w.Group()->findChild<RibbonLauncher*>());
    }

    void aHiddenGroupLeavesItsRoomToTheOthers()
    {
        Window w(1, 3);
        const int x = w.Group(1)->x();
        w.Group(0)->setVisible(false);
        Window::Settle();
        QVERIFY(w.Group(1)->x() < x);
        w.Group(0)->setVisible(true);
        Window::Settle();
        QCOMPARE(w.Group(1)->x(), x);
    }

    void aRemovedGroupIsTheCallersAndComesBack()
    {
        Window w(1, 2);
        RibbonPage* page = w.bar->currentPage();
        RibbonGroup* group = page->getGroup(0);
        page->removeGroup(group);
        QVERIFY(!group->page());
        QVERIFY(!group->parentWidget());
        QVERIFY(!group->isVisible());
        QCOMPARE(page->groupCount(), 1);
        page->removeGroup(group);
        page->removeGroup(nullptr);
        page->insertGroup(1, group);
        group->setVisible(true);
        Window::Settle();
        QCOMPARE(page->indexOfGroup(group), 1);
        QVERIFY(group->isVisible());
        QVERIFY(group->x() > page->getGroup(0)->x());
        delete group;
        QCOMPARE(page->groupCount(), 1);
    }

    void narrowGroupsReduceAndComeBack()
    {
        Window w(1, 3);
        const Qt::ToolButtonStyle style = w.Button(0, 2)->toolButtonStyle();
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(4, 2))->displaySize(), RibbonItemSize::Large);
        const int wide = w.bar->currentPage()->sizeHint().width();
        w.window.resize(wide - 40, 500);
        Window::Settle();
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(4, 2))->displaySize(), RibbonItemSize::Text);
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(0, 0))->displaySize(), RibbonItemSize::Large);
        QCOMPARE(w.Button(0, 2)->toolButtonStyle(), style);
        w.window.resize(500, 500);
        Window::Settle();
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(5, 0))->displaySize(), RibbonItemSize::Icon);
        w.window.resize(wide + 40, 500);
        Window::Settle();
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(4, 2))->displaySize(), RibbonItemSize::Large);
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(5, 0))->displaySize(), RibbonItemSize::Text);
    }

    void aReducedGroupOpensInFullAsAPopup()
    {
        Window w(1, 5, QSize(300, 400));
        RibbonGroup* group = w.Group(4);
        QVERIFY(group->isReducedToPopup());
        QVERIFY(!w.Button(0, 4)->isVisible());
        w.Group(0)->showPopup();
        QTest::mouseClick(group, Qt::LeftButton);
        QVERIFY(group->isPopupVisible());
        QVERIFY(w.Button(0, 4)->isVisible());
        QCOMPARE(qobject_cast<RibbonButton*>(w.Button(0, 4))->displaySize(), RibbonItemSize::Large);
        int runs = 0;
        connect(group->actions().first(), &QAction::triggered, this, [&runs] { ++runs; });
        QTest::mouseClick(w.Button(0, 4), Qt::LeftButton);
        QCOMPARE(runs, 1);
        QTRY_VERIFY(!group->isPopupVisible());
        w.window.resize(3000, 400);
        Window::Settle();
        QVERIFY(!group->isReducedToPopup());
        QVERIFY(w.Button(0, 4)->isVisible());
        QCOMPARE(w.Button(0, 4)->window(), &w.window);
    }

    void escapeClosesThePopupOfAGroup()
    {
        Window w(1, 5, QSize(300, 400));
        RibbonGroup* group = w.Group(4);
        group->showPopup();
        QVERIFY(group->isPopupVisible());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QVERIFY(!group->isPopupVisible());
        group->showPopup();
        group->hidePopup();
        QVERIFY(!group->isPopupVisible());
    }

    void aGroupWithAnOpenPopupCanGo()
    {
        Window w(1, 5, QSize(300, 400));
        w.Group(4)->showPopup();
        delete w.Group(4);
        Window::Settle();
        w.Group(3)->showPopup();
        w.Group(3)->clear();
        Window::Settle();
    }

    void aGroupOfASingleButtonNeverBecomesAPopup()
    {
        Window w(1, 0, QSize(300, 400));
        for (int i = 0; i < 8; ++i)
            w.bar->currentPage()
                ->addGroup(QStringLiteral("A very long title"))
                ->addAction(MakeIcon(), QStringLiteral("Button"), Qt::ToolButtonTextUnderIcon);
        Window::Settle();
        for (RibbonGroup* group : w.bar->currentPage()->groups())
            QVERIFY(!group->isReducedToPopup());
    }

    void whatDoesNotFitAtAllScrolls()
    {
        Window w(1, 9, QSize(250, 400));
        RibbonGroup* last = w.Group(8);
        QVERIFY(last->mapTo(&w.window, QPoint()).x() > 250);
        QAbstractButton* forward = nullptr;
        for (QAbstractButton* button : w.Area()->findChildren<QAbstractButton*>())
            if (button->isVisible() && button->accessibleName() == QLatin1String("Scroll forward"))
                forward = button;
        QVERIFY(forward);
        for (int i = 0; i < 20 && forward->isVisible(); ++i)
            QTest::mouseClick(forward, Qt::LeftButton);
        QVERIFY(!forward->isVisible());
        QVERIFY(last->mapTo(&w.window, QPoint(last->width(), 0)).x() <= 250);
    }

    void reductionKeepsOffWhatTheHostStored()
    {
        Window w(1, 4, QSize(1600, 400));
        std::vector<Qt::ToolButtonStyle> before;
        for (int i = 0; i < w.Group()->actions().size(); ++i)
            before.push_back(w.Button(i)->toolButtonStyle());
        for (const int width : {900, 600, 300, 700, 1600}) {
            w.window.resize(width, 400);
            Window::Settle();
            for (int i = 0; i < w.Group()->actions().size(); ++i)
                QCOMPARE(w.Button(i)->toolButtonStyle(), before[static_cast<std::size_t>(i)]);
        }
    }
};

OVK_TEST_CLASS(RibbonGroupTest)

#include "ribbon_group_test.moc"
