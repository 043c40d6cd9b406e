#include "dock_fixture.h"
#include "tests/support/test_main.h"

using namespace ovk;
using ovk_test::DockFixture;

namespace {

/// A window that counts what its machine tells it.
class PlainWindow : public DockWindow
{
public:
    class Machine : public DockWindow::Impl
    {
    public:
        void OnTitleDoubleClick() override { log.append("double"); }
        DockTitle* CreateTitle() override { return new DockTitle(window); }
        void BeginDrag(const QPoint&, const QPoint& press) override
        {
            log.append(QStringLiteral("begin %1,%2").arg(press.x()).arg(press.y()));
        }
        bool CanDrag() const override { return can_drag; }
        bool CanResize() const override { return can_resize; }
        int GetDragThreshold() const override { return threshold; }
        void EndDrag(const QPoint&) override { log.append("end"); }
        void DragTo(const QPoint&) override { log.append("to"); }
        void CancelDrag() override { log.append("cancel"); }

        QStringList log;
        bool can_drag = true;
        bool can_resize = true;
        int threshold = 10;
    };

    PlainWindow() : DockWindow(new Machine, nullptr), machine(static_cast<Machine*>(_pp()))
    {
        setMouseTracking(true);
    }

    Machine* machine;
};

void Send(QWidget& widget, QEvent::Type type, const QPoint& pos, Qt::MouseButtons buttons)
{
    const bool move = type == QEvent::MouseMove;
    QMouseEvent event(type, pos, widget.mapToGlobal(pos), move ? Qt::NoButton : Qt::LeftButton,
                      buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class DockWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTitleSpansTheWindow();
    void aDragBeginsAtTheThreshold();
    void theWindowFollowsTheCursor();
    void aClickWithoutMovementStaysArmed();
    void whatMayNotBeDraggedStays();
    void aDisabledWindowSwallowsTheMoves();
    void aNarrowedTitleStaysUnderTheCursor();
    void aLostReleaseEndsTheDrag();
    void theTitleHandsMovesToTheEdges();
    void aPressOnAnEdgeIsNotForTheTitle();
    void anEdgeResizesTheWindow();
    void theCursorTellsTheEdge();
    void aWindowThatMayNotBeResizedHasNoEdges();
    void theTitleOfAnAreaMaximisesIt();

private:
    DockTitle& Title() const { return *mp_window->machine->title; }
    QStringList Log() const { return std::exchange(mp_window->machine->log, {}); }

    std::unique_ptr<PlainWindow> mp_window;
};

void DockWindowTest::init()
{
    mp_window = std::make_unique<PlainWindow>();
    mp_window->setGeometry(200, 150, 300, 200);
    mp_window->SetTitleVisible(true);
    Title().setMouseTracking(true);
    mp_window->show();
}

void DockWindowTest::cleanup()
{
    mp_window.reset();
}

void DockWindowTest::theTitleSpansTheWindow()
{
    QVERIFY(mp_window->IsTitleVisible());
    QCOMPARE(Title().geometry(), QRect(0, 0, 300, Title().sizeHint().height()));
    mp_window->resize(250, 200);
    QCOMPARE(Title().width(), 250);
    mp_window->SetTitleVisible(false);
    QVERIFY(!mp_window->IsTitleVisible());
    QVERIFY(mp_window->windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(mp_window->windowFlags() & Qt::CustomizeWindowHint);
}

void DockWindowTest::aDragBeginsAtTheThreshold()
{
    Send(Title(), QEvent::MouseButtonPress, {50, 8}, Qt::LeftButton);
    Send(Title(), QEvent::MouseMove, {55, 12}, Qt::LeftButton);
    QCOMPARE(Log(), QStringList());
    Send(Title(), QEvent::MouseMove, {55, 13}, Qt::LeftButton);
    QCOMPARE(Log(), QStringList{"begin 50,8"});
    Send(Title(), QEvent::MouseMove, {56, 13}, Qt::LeftButton);
    Send(Title(), QEvent::MouseButtonRelease, {56, 13}, Qt::NoButton);
    QCOMPARE(Log(), (QStringList{"to", "end"}));
    QVERIFY(!mp_window->machine->armed && !mp_window->machine->dragging);
}

void DockWindowTest::theWindowFollowsTheCursor()
{
    mp_window->machine->threshold = 0;
    Send(Title(), QEvent::MouseButtonPress, {50, 8}, Qt::LeftButton);
    Send(Title(), QEvent::MouseMove, {50, 8}, Qt::LeftButton);
    QMouseEvent move(QEvent::MouseMove, QPoint(0, 0), QPoint(500, 400), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Title(), &move);
    QCOMPARE(mp_window->pos(), QPoint(450, 392));
    Send(Title(), QEvent::MouseButtonRelease, {50, 8}, Qt::NoButton);
}

void DockWindowTest::aClickWithoutMovementStaysArmed()
{
    Send(Title(), QEvent::MouseButtonPress, {50, 8}, Qt::LeftButton);
    Send(Title(), QEvent::MouseButtonRelease, {50, 8}, Qt::NoButton);
    QVERIFY(mp_window->machine->armed);
    QCOMPARE(Log(), QStringList());
    Send(Title(), QEvent::MouseButtonPress, {70, 9}, Qt::LeftButton);
    QCOMPARE(mp_window->machine->title_press, QPoint(70, 9));
    Send(Title(), QEvent::MouseButtonDblClick, {70, 9}, Qt::LeftButton);
    QCOMPARE(Log(), QStringList{"double"});
}

void DockWindowTest::whatMayNotBeDraggedStays()
{
    mp_window->machine->can_drag = false;
    Send(Title(), QEvent::MouseButtonPress, {50, 8}, Qt::LeftButton);
    Send(Title(), QEvent::MouseMove, {150, 80}, Qt::LeftButton);
    QCOMPARE(Log(), QStringList());
    QVERIFY(!mp_window->machine->dragging);
}

void DockWindowTest::aDisabledWindowSwallowsTheMoves()
{
    Send(Title(), QEvent::MouseButtonPress, {50, 8}, Qt::LeftButton);
    mp_window->setEnabled(false);
    Send(Title(), QEvent::MouseMove, {150, 80}, Qt::LeftButton);
    QCOMPARE(Log(), QStringList());
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 50), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(static_cast<QObject*>(mp_window.get())->event(&press));
}

void DockWindowTest::aNarrowedTitleStaysUnderTheCursor()
{
    mp_window->machine->threshold = 0;
    Send(Title(), QEvent::MouseButtonPress, {250, 8}, Qt::LeftButton);
    Send(Title(), QEvent::MouseMove, {250, 8}, Qt::LeftButton);
    QVERIFY(mp_window->machine->dragging);
    mp_window->resize(120, 200);
    QCOMPARE(mp_window->machine->title_press, QPoint(119, 8));
    mp_window->resize(119, 200);
    QCOMPARE(mp_window->machine->title_press, QPoint(119, 8));
    Send(Title(), QEvent::MouseButtonRelease, {50, 8}, Qt::NoButton);
}

void DockWindowTest::aLostReleaseEndsTheDrag()
{
    mp_window->machine->threshold = 0;
    Send(Title(), QEvent::MouseButtonPress, {50, 8}, Qt::LeftButton);
    Send(Title(), QEvent::MouseMove, {51, 8}, Qt::LeftButton);
    QVERIFY(mp_window->machine->dragging);
    Send(Title(), QEvent::MouseMove, {60, 8}, Qt::NoButton);
    QCOMPARE(Log(), (QStringList{"begin 50,8", "cancel"}));
    QVERIFY(!mp_window->machine->armed && !mp_window->machine->dragging);
}

void DockWindowTest::theTitleHandsMovesToTheEdges()
{
    // Not armed: the title lies over the border, which must still be found.
    Send(*mp_window, QEvent::MouseMove, {1, 100}, Qt::NoButton);
    QCOMPARE(mp_window->machine->resize_edge, ResizeEdge::Left);
    Send(*mp_window, QEvent::MouseButtonPress, {1, 100}, Qt::LeftButton);
    Send(Title(), QEvent::MouseMove, {-9, 20}, Qt::LeftButton);
    QCOMPARE(mp_window->geometry(), QRect(190, 150, 310, 200));
    mp_window->releaseMouse();
}

void DockWindowTest::aPressOnAnEdgeIsNotForTheTitle()
{
    Send(*mp_window, QEvent::MouseMove, {1, 1}, Qt::NoButton);
    QCOMPARE(mp_window->machine->resize_edge, ResizeEdge::TopLeft);
    Send(Title(), QEvent::MouseButtonPress, {1, 1}, Qt::LeftButton);
    QVERIFY(!mp_window->machine->armed);
    mp_window->releaseMouse();
}

void DockWindowTest::anEdgeResizesTheWindow()
{
    Send(*mp_window, QEvent::MouseMove, {299, 199}, Qt::NoButton);
    QCOMPARE(mp_window->machine->resize_edge, ResizeEdge::BottomRight);
    Send(*mp_window, QEvent::MouseButtonPress, {299, 199}, Qt::LeftButton);
    Send(*mp_window, QEvent::MouseMove, {350, 260}, Qt::LeftButton);
    QCOMPARE(mp_window->geometry(), QRect(200, 150, 350, 260));
    Send(*mp_window, QEvent::MouseMove, {320, 240}, Qt::LeftButton);
    QCOMPARE(mp_window->geometry(), QRect(200, 150, 320, 240));

    // Moves of the left edge move the coordinates; many steps must not drift.
    Send(*mp_window, QEvent::MouseMove, {1, 100}, Qt::NoButton);
    Send(*mp_window, QEvent::MouseButtonPress, {1, 100}, Qt::LeftButton);
    for (int i = 0; i < 20; ++i)
        Send(*mp_window, QEvent::MouseMove, {-4, 100}, Qt::LeftButton);
    QCOMPARE(mp_window->geometry(), QRect(100, 150, 420, 240));
    mp_window->releaseMouse();
}

void DockWindowTest::theCursorTellsTheEdge()
{
    Send(*mp_window, QEvent::MouseMove, {1, 100}, Qt::NoButton);
    QCOMPARE(mp_window->cursor().shape(), Qt::SizeHorCursor);
    QCOMPARE(QWidget::mouseGrabber(), static_cast<QWidget*>(mp_window.get()));
    Send(*mp_window, QEvent::MouseMove, {150, 100}, Qt::NoButton);
    QCOMPARE(mp_window->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
    QCOMPARE(mp_window->machine->resize_edge, ResizeEdge::None);
}

void DockWindowTest::aWindowThatMayNotBeResizedHasNoEdges()
{
    mp_window->machine->can_resize = false;
    Send(*mp_window, QEvent::MouseMove, {1, 100}, Qt::NoButton);
    QCOMPARE(mp_window->machine->resize_edge, ResizeEdge::None);
    QCOMPARE(QWidget::mouseGrabber(), nullptr);
}

void DockWindowTest::theTitleOfAnAreaMaximisesIt()
{
    DockManager manager;
    manager.SetTitleVisible(true);
    auto* const title = qobject_cast<DockSiteTitle*>(manager._pp()->title.data());
    QVERIFY(title);
    QCOMPARE(title->GetRight().size(), 3);
    QVERIFY(manager._pp()->CanDrag() && manager._pp()->CanResize());
    QCOMPARE(manager._pp()->GetDragThreshold(), 0);
    manager._pp()->OnTitleDoubleClick();
    QCOMPARE(manager.windowState(), Qt::WindowStates(Qt::WindowMaximized));
    title->GetMaximizeButton()->click();
    QCOMPARE(manager.windowState(), Qt::WindowStates(Qt::WindowNoState));
    title->GetMinimizeButton()->click();
    QCOMPARE(manager.windowState(), Qt::WindowStates(Qt::WindowMinimized));
}

OVK_TEST_CLASS(DockWindowTest)

class DockManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hidingTwiceHidesOnce();
    void onlyPanelsThatTouchAreHidden();
    void aPanelThatWasDockedMeanwhileStaysAsItIs();
    void blockedPanelsAreFreedOnce();
    void aDeletedPanelLeavesAllLists();
    void noCustomisationMeansNoMenuNoCloseNoMove();
    void clearLeavesNothing();
    void listsGoFloatedFirstThenSiteBySite();
    void tornNamesAreUnique();
    void aPanelThatWasNeverPlacedDiesWithTheManager();
    void dyingInAnyOrderIsClean();
};

void DockManagerTest::hidingTwiceHidesOnce()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a");
    DockWidget* const b = fixture.Panel("b");
    a->SetFloated(QPoint(20, 20));
    b->SetFloated(QPoint(60, 60));
    b->setVisible(false);
    fixture.manager->HideFloating();
    fixture.manager->HideFloating();
    QCOMPARE(fixture.manager->_Impl()->hidden, QList<DockWindow*>{a});
    QVERIFY(!a->isVisible());
    fixture.manager->ShowHidden();
    QVERIFY(a->isVisible());
    QVERIFY(!b->isVisible());
    QVERIFY(fixture.manager->_Impl()->hidden.isEmpty());
}

void DockManagerTest::onlyPanelsThatTouchAreHidden()
{
    DockFixture fixture;
    DockWidget* const near = fixture.Panel("near");
    DockWidget* const far = fixture.Panel("far");
    near->SetFloated(QPoint(20, 20));
    far->SetFloated(QPoint(500, 400));
    fixture.manager->HideFloating(QRect(0, 0, 100, 100));
    QVERIFY(!near->isVisible());
    QVERIFY(far->isVisible());
    fixture.manager->ShowHidden();
    QVERIFY(near->isVisible());
}

void DockManagerTest::aPanelThatWasDockedMeanwhileStaysAsItIs()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->SetFloated(QPoint(20, 20));
    fixture.manager->HideFloating();
    fixture.Left()->AddWidget(panel);
    fixture.manager->ShowHidden();
    DockFixture::Settle();
    QVERIFY(!panel->isVisible());
    QVERIFY(fixture.manager->_Impl()->hidden.isEmpty());
}

void DockManagerTest::blockedPanelsAreFreedOnce()
{
    DockFixture fixture;
    DockWidget* const a = fixture.Panel("a");
    DockWidget* const hidden = fixture.Panel("hidden");
    a->SetFloated(QPoint(20, 20));
    hidden->SetFloated(QPoint(20, 20));
    hidden->setVisible(false);
    fixture.manager->DisableFloating();
    fixture.manager->DisableFloating();
    QCOMPARE(fixture.manager->_Impl()->disabled, QList<DockWindow*>{a});
    QVERIFY(!a->IsEnabled());
    QVERIFY(hidden->IsEnabled());
    fixture.manager->EnableFloating();
    QVERIFY(a->IsEnabled());
    QVERIFY(fixture.manager->_Impl()->disabled.isEmpty());
}

void DockManagerTest::aDeletedPanelLeavesAllLists()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("a");
    panel->SetFloated(QPoint(20, 20));
    fixture.manager->DisableFloating();
    fixture.manager->HideFloating();
    delete panel;
    fixture.manager->ShowHidden();
    fixture.manager->EnableFloating();
    QVERIFY(fixture.manager->GetFloatedWidgets().isEmpty());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockManagerTest::noCustomisationMeansNoMenuNoCloseNoMove()
{
    DockFixture fixture;
    DockWidget* const before = fixture.Panel("before");
    fixture.Left()->AddWidget(before);
    fixture.manager->AfterActivate();
    QVERIFY(before->IsMovable());
    fixture.manager->DisableCustomization();
    DockWidget* const made = fixture.manager->CreateDockWidget();
    QVERIFY(!made->IsMovable() && !made->IsClosable());
    QVERIFY(made->_Impl()->context_menu_hidden);
    QVERIFY(before->IsMovable());
    fixture.manager->AfterActivate();
    QVERIFY(!before->IsMovable() && !before->IsClosable());
    QVERIFY(before->_Impl()->context_menu_hidden);
    fixture.manager->EnableCustomization();
    QVERIFY(fixture.manager->CreateDockWidget()->IsMovable());
}

void DockManagerTest::clearLeavesNothing()
{
    DockFixture fixture;
    const QPointer<DockWidget> a = fixture.Panel("a");
    const QPointer<DockWidget> b = fixture.Panel("b");
    const QPointer<DockWidget> c = fixture.Panel("c");
    a->SetFloated(QPoint(20, 20));
    b->SetFloated(QPoint(20, 20));
    fixture.Bottom()->AddWidget(c);
    fixture.manager->Clear();
    QVERIFY(a.isNull() && b.isNull() && c.isNull());
    QVERIFY(fixture.manager->GetWidgetsList().isEmpty());
    QCOMPARE(fixture.Inconsistency(), QString());
}

void DockManagerTest::listsGoFloatedFirstThenSiteBySite()
{
    DockFixture fixture;
    DockWidget* const bottom = fixture.Panel("bottom");
    DockWidget* const right = fixture.Panel("right");
    DockWidget* const left = fixture.Panel("left");
    DockWidget* const top = fixture.Panel("top");
    DockWidget* const floating = fixture.Panel("floating");
    fixture.Bottom()->AddWidget(bottom);
    fixture.Right()->AddWidget(right);
    fixture.Left()->AddWidget(left);
    fixture.Top()->AddWidget(top);
    floating->SetFloated(QPoint(5, 5));
    QCOMPARE(fixture.manager->GetWidgetsList(),
             (QList<DockWidget*>{floating, left, right, top, bottom}));
}

void DockManagerTest::tornNamesAreUnique()
{
    DockFixture fixture;
    QSet<QString> names;
    for (int i = 0; i < 20; ++i) {
        DockWidget* const panel = fixture.Panel("x");
        panel->SetName(fixture.manager->_Impl()->UniqueName());
        fixture.Left()->AddWidget(panel);
        names.insert(panel->GetName());
    }
    QCOMPARE(names.size(), 20);
}

void DockManagerTest::aPanelThatWasNeverPlacedDiesWithTheManager()
{
    const QPointer<DockWidget> panel = [] {
        DockManager manager;
        DockWidget* const made = manager.CreateDockWidget();
        made->AddPage(new ovk_test::FakePage("page"));
        return QPointer<DockWidget>(made);
    }();
    QVERIFY(panel.isNull());
}

void DockManagerTest::dyingInAnyOrderIsClean()
{
    for (int order = 0; order < 3; ++order) {
        auto fixture = std::make_unique<DockFixture>();
        DockWidget* const docked = fixture->Panel("docked");
        DockWidget* const floating = fixture->Panel("floating");
        fixture->Left()->AddWidget(docked);
        floating->SetFloated(QPoint(9, 9));
        if (order == 0)
            DockFixture::Settle();
        if (order == 1)
            floating->deleteLater();
        if (order == 2)
            delete fixture->central;
    }
}

OVK_TEST_CLASS(DockManagerTest)

#include "dock_window_test.moc"
