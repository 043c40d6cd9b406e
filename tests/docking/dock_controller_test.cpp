#include "dock_drag_support.h"
#include "tests/support/test_main.h"

using namespace ovk;
using namespace ovk_test;

class DockControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeOfTargetGoesLeaveEnterOver();
    void aDropGoesToWhatIsUnderTheCursor();
    void aTargetThatDiesIsForgotten();
    void aTargetThatDiesInTheLeaveOfAnotherIsForgotten();
    void aPanelIsNoTargetOfItself();
};

void DockControllerTest::aChangeOfTargetGoesLeaveEnterOver()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    LogTarget a("a", log);
    LogTarget b("b", log);
    QWidget* under = &a;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });

    controller.Begin(*panel, QPoint(0, 0));
    QVERIFY(controller.IsDragging());
    QCOMPARE(log, (QStringList{"a enter", "a over"}));
    log.clear();
    controller.Update(QPoint(1, 1));
    QCOMPARE(log, QStringList{"a over"});
    log.clear();
    under = &b;
    controller.Update(QPoint(2, 2));
    QCOMPARE(log, (QStringList{"a leave to b", "b enter", "b over"}));
    log.clear();
    under = nullptr;
    controller.Update(QPoint(3, 3));
    QCOMPARE(log, QStringList{"b leave to none"});
    QCOMPARE(controller.GetCurrent(), nullptr);
    log.clear();
    controller.Update(QPoint(4, 4));
    QCOMPARE(log, QStringList());
    // A child of a target belongs to the target.
    QWidget child(&a);
    under = &child;
    controller.Update(QPoint(5, 5));
    QCOMPARE(log, (QStringList{"a enter", "a over"}));
    controller.Cancel();
    QCOMPARE(log.last(), QStringLiteral("a cancel"));
    QVERIFY(!controller.IsDragging());
}

void DockControllerTest::aDropGoesToWhatIsUnderTheCursor()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    LogTarget a("a", log);
    LogTarget b("b", log);
    QWidget* under = &a;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });
    controller.Begin(*panel, QPoint(0, 0));
    log.clear();
    under = &b;
    controller.End(QPoint(1, 1));
    QCOMPARE(log, QStringList{"b drop"});
    QVERIFY(!controller.IsDragging());
    QCOMPARE(controller.GetCurrent(), nullptr);
    controller.End(QPoint(1, 1));
    controller.Update(QPoint(1, 1));
    QCOMPARE(log, QStringList{"b drop"});
}

void DockControllerTest::aTargetThatDiesIsForgotten()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    auto target = std::make_unique<LogTarget>("a", log);
    QWidget* under = target.get();
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });
    controller.Begin(*panel, QPoint(0, 0));
    QCOMPARE(controller.GetCurrent(), static_cast<IDockDragTarget*>(target.get()));
    under = nullptr;
    target.reset();
    QCOMPARE(controller.GetCurrent(), nullptr);
    controller.Update(QPoint(1, 1));
    controller.End(QPoint(1, 1));
}

void DockControllerTest::aTargetThatDiesInTheLeaveOfAnotherIsForgotten()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    QStringList log;
    LogTarget a("a", log);
    auto b = std::make_unique<LogTarget>("b", log);
    QWidget* under = &a;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return under; });
    controller.Begin(*panel, QPoint(0, 0));
    a.on_leave = [&] { b.reset(); };
    under = b.get();
    controller.Update(QPoint(1, 1));
    QCOMPARE(controller.GetCurrent(), nullptr);
    controller.Cancel();
}

void DockControllerTest::aPanelIsNoTargetOfItself()
{
    DockFixture fixture;
    DockWidget* const panel = fixture.Panel("p");
    panel->SetFloated(QPoint(2000, 2000));
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    controller.SetWidgetAt([&](const QPoint&) { return panel->_Impl()->title.data(); });
    controller.Begin(*panel, QPoint(0, 0));
    // The manager is the panel's parent, and a target.
    QCOMPARE(controller.GetCurrent(), static_cast<IDockDragTarget*>(fixture.manager));
    QVERIFY(!panel->testAttribute(Qt::WA_TransparentForMouseEvents));
    controller.Cancel();
}

OVK_TEST_CLASS(DockControllerTest)

#include "dock_controller_test.moc"
