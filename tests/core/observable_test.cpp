#include "tests/support/test_main.h"

#include <ovk/core/observable.h>

#include <memory>
#include <stdexcept>
#include <vector>

using namespace ovk;

namespace {

using Log = std::vector<QString>;

/// Writes its name into a log, then does what it was told.
class Witness : public Observer
{
public:
    Witness(Log& log, const QString& name, bool deleteOnDetach = false)
        : Observer(deleteOnDetach), m_log(log), m_name(name)
    {
    }
    ~Witness() override
    {
        if (died)
            *died = true;
    }

    using Observer::_GetLocker;

    std::function<void()> action;
    bool* died = nullptr;

protected:
    void _DoOnNotify() override
    {
        m_log.push_back(m_name);
        if (action)
            action();
    }

private:
    Log& m_log;
    QString m_name;
};

class Target
{
public:
    void OnChanged() { ++calls; }
    int calls = 0;
};

} // namespace

class ObservableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void observersAreCalledInTheOrderOfTheirAttachment();
    void attachingAgainMovesToTheEnd();
    void anObserverMovesFromOneObservableToAnother();
    void detachingLeavesWhicheverObservableItIs();
    void aFunctionIsCalledAndBelongsToItself();
    void anEmptyFunctionIsAnError();
    void aMoveDoesNotDeleteAnObserverThatBelongsToItself();
    void anObservableThatDiesDetachesItsObservers();
    void anObserverThatDiesLeavesTheList();
    void anObserverOnTheWayOutIsNotDeletedTwice();
    void aProxyCallsTheMember();
    void anObserverAttachedDuringANotificationIsReached();
    void anObserverDetachedAheadOfTheWalkIsNotReached();
    void anObserverThatLeavesInItsOwnCallDoesNotStopTheOthers();
    void anObserverThatMovesInItsOwnCallIsCalledOnce();
    void anObserverMayDieInItsOwnCall();
    void theObservableMayDieInANotification();
    void aNestedNotificationSkipsTheRunningObserver();
    void theLockerDropsTheNotificationOfAnOwnWrite();
    void anExceptionReachesTheCallerAndFreesTheMarker();
    void suspendingHoldsNotificationsBack_data();
    void suspendingHoldsNotificationsBack();
    void resumingAnActiveObservableAnswersNo();
    void suspendingTwiceAnswersNoAndKeepsThePendingOne();
    void aSuspendedObservableDiesSilently();
    void nullIsNotAttached();
    void aMarkerOwnsTheLockOnce();
    void aMovedMarkerKeepsTheLock();
    void aCopiedLockHasTheFlag();
};

void ObservableTest::observersAreCalledInTheOrderOfTheirAttachment()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b"), c(log, "c");
    signal.Attach(b);
    signal.Attach(&a);
    signal.Attach(c);
    signal.Emit();
    QCOMPARE(log, (Log{"b", "a", "c"}));
    QVERIFY(a.GetObservable() == &signal);
    QVERIFY(static_cast<const Witness&>(a).GetObservable() == &signal);
}

void ObservableTest::attachingAgainMovesToTheEnd()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b");
    signal.Attach(a);
    signal.Attach(b);
    signal.Attach(a);
    signal.Emit();
    QCOMPARE(log, (Log{"b", "a"}));
}

void ObservableTest::anObserverMovesFromOneObservableToAnother()
{
    Log log;
    Signal first, second;
    Witness a(log, "a");
    first.Attach(a);
    second.Attach(a);
    first.Emit();
    QVERIFY(log.empty());
    second.Emit();
    QCOMPARE(log, Log{"a"});
}

void ObservableTest::detachingLeavesWhicheverObservableItIs()
{
    Log log;
    Signal first, second;
    Witness a(log, "a");
    first.Attach(a);
    second.Detach(a);
    QVERIFY(!a.GetObservable());
    first.Emit();
    QVERIFY(log.empty());
    first.Detach(a); // detached already
    QVERIFY(!a.GetObservable());
}

void ObservableTest::aFunctionIsCalledAndBelongsToItself()
{
    int calls = 0;
    const auto token = std::make_shared<int>(0);
    Signal signal;
    Observer* const observer = signal.Attach([&calls, token] { ++calls; });
    QVERIFY(observer->GetObservable() == &signal);
    signal.Emit();
    QCOMPARE(calls, 1);
    QVERIFY(token.use_count() > 1);
    signal.Detach(*observer);
    QCOMPARE(token.use_count(), 1L);
    signal.Emit();
    QCOMPARE(calls, 1);
}

void ObservableTest::anEmptyFunctionIsAnError()
{
    Signal signal;
    signal.Attach(std::function<void()>());
    QVERIFY_EXCEPTION_THROWN(signal.Emit(), std::bad_function_call);
}

void ObservableTest::aMoveDoesNotDeleteAnObserverThatBelongsToItself()
{
    Log log;
    bool died = false;
    Signal first, second;
    auto* const a = new Witness(log, "a", true);
    a->died = &died;
    first.Attach(a);
    second.Attach(a);
    QVERIFY(!died);
    second.Emit();
    QCOMPARE(log, Log{"a"});
    second.Detach(*a);
    QVERIFY(died);
}

void ObservableTest::anObservableThatDiesDetachesItsObservers()
{
    Log log;
    const auto token = std::make_shared<int>(0);
    Witness a(log, "a");
    {
        Signal signal;
        signal.Attach(a);
        signal.Attach([token] {});
        QVERIFY(token.use_count() > 1);
    }
    QVERIFY(!a.GetObservable());
    QCOMPARE(token.use_count(), 1L);
    QVERIFY(log.empty());
}

void ObservableTest::anObserverThatDiesLeavesTheList()
{
    Log log;
    Signal signal;
    Witness a(log, "a");
    signal.Attach(a);
    {
        Witness b(log, "b");
        signal.Attach(b);
    }
    signal.Emit();
    QCOMPARE(log, Log{"a"});
}

void ObservableTest::anObserverOnTheWayOutIsNotDeletedTwice()
{
    Log log;
    bool died = false;
    Signal signal;
    auto owner = std::make_unique<Witness>(log, "a", true);
    owner->died = &died;
    signal.Attach(*owner);
    owner.reset();
    QVERIFY(died);
    signal.Emit();
    QVERIFY(log.empty());
}

void ObservableTest::aProxyCallsTheMember()
{
    Target target;
    ObserverProxy<Target> proxy(&target, &Target::OnChanged);
    ObserverProxy<Target> nothing(nullptr, &Target::OnChanged);
    Signal signal;
    signal.Attach(proxy);
    signal.Attach(nothing);
    signal.Emit();
    signal.Emit();
    QCOMPARE(target.calls, 2);
}

void ObservableTest::anObserverAttachedDuringANotificationIsReached()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b");
    a.action = [&] { signal.Attach(b); };
    signal.Attach(a);
    signal.Emit();
    QCOMPARE(log, (Log{"a", "b"}));
}

void ObservableTest::anObserverDetachedAheadOfTheWalkIsNotReached()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b"), c(log, "c");
    a.action = [&] { signal.Detach(b); };
    for (Witness* witness : {&a, &b, &c})
        signal.Attach(witness);
    signal.Emit();
    QCOMPARE(log, (Log{"a", "c"}));
}

void ObservableTest::anObserverThatLeavesInItsOwnCallDoesNotStopTheOthers()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b"), c(log, "c");
    b.action = [&] { signal.Detach(b); };
    for (Witness* witness : {&a, &b, &c})
        signal.Attach(witness);
    signal.Emit();
    signal.Emit();
    QCOMPARE(log, (Log{"a", "b", "c", "a", "c"}));
}

void ObservableTest::anObserverThatMovesInItsOwnCallIsCalledOnce()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b"), c(log, "c");
    a.action = [&] { signal.Attach(a); };
    c.action = [&] { signal.Attach(c); };
    for (Witness* witness : {&a, &b, &c})
        signal.Attach(witness);
    signal.Emit();
    QCOMPARE(log, (Log{"a", "b", "c"}));
    log.clear();
    signal.Emit();
    QCOMPARE(log, (Log{"b", "a", "c"}));
}

void ObservableTest::anObserverMayDieInItsOwnCall()
{
    Log log;
    bool died = false;
    bool died_while_running = true;
    Signal signal;
    Witness before(log, "before"), after(log, "after");
    auto* const once = new Witness(log, "once", true);
    once->died = &died;
    once->action = [&] {
        signal.Detach(*once);
        died_while_running = died;
    };
    signal.Attach(before);
    signal.Attach(once);
    signal.Attach(after);
    signal.Emit();
    QVERIFY(!died_while_running);
    QVERIFY(died);
    signal.Emit();
    QCOMPARE(log, (Log{"before", "once", "after", "before", "after"}));
}

void ObservableTest::theObservableMayDieInANotification()
{
    Log log;
    auto signal = std::make_unique<Signal>();
    Witness a(log, "a"), b(log, "b");
    int depth = 0;
    a.action = [&] { signal.reset(); };
    b.action = [&] {
        if (++depth == 1)
            signal->Emit(); // the inner walk kills the observable under the outer one
    };
    signal->Attach(b);
    signal->Attach(a);
    int self_owned = 0;
    signal->Attach([&] { ++self_owned; });
    Signal* const raw = signal.get();
    raw->Emit();
    QCOMPARE(log, (Log{"b", "a"}));
    QCOMPARE(self_owned, 0);
    QVERIFY(!a.GetObservable());
    QVERIFY(!b.GetObservable());
}

void ObservableTest::aNestedNotificationSkipsTheRunningObserver()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b"), c(log, "c");
    int left = 1;
    b.action = [&] {
        if (left-- > 0)
            signal.Emit();
    };
    for (Witness* witness : {&a, &b, &c})
        signal.Attach(witness);
    signal.Emit();
    QCOMPARE(log, (Log{"a", "b", "a", "c", "c"}));
}

void ObservableTest::theLockerDropsTheNotificationOfAnOwnWrite()
{
    Log log;
    Signal signal;
    Witness a(log, "a");
    signal.Attach(a);
    {
        const auto marker = a._GetLocker().Acquire();
        QVERIFY(marker);
        signal.Emit();
    }
    QVERIFY(log.empty());
    signal.Emit();
    QCOMPARE(log, Log{"a"});
}

void ObservableTest::anExceptionReachesTheCallerAndFreesTheMarker()
{
    Log log;
    Signal signal;
    Witness a(log, "a"), b(log, "b");
    a.action = [] { throw std::runtime_error("no"); };
    signal.Attach(a);
    signal.Attach(b);
    QVERIFY_EXCEPTION_THROWN(signal.Emit(), std::runtime_error);
    QCOMPARE(log, Log{"a"});
    QVERIFY(!a._GetLocker().IsLocked());
    a.action = nullptr;
    signal.Emit();
    QCOMPARE(log, (Log{"a", "a", "b"}));
}

void ObservableTest::suspendingHoldsNotificationsBack_data()
{
    QTest::addColumn<int>("changes");
    QTest::addColumn<bool>("notifyIfPending");
    QTest::addColumn<int>("calls");
    QTest::newRow("three changes, one notification") << 3 << true << 1;
    QTest::newRow("three changes, lost") << 3 << false << 0;
    QTest::newRow("no change, no notification") << 0 << true << 0;
}

void ObservableTest::suspendingHoldsNotificationsBack()
{
    QFETCH(int, changes);
    QFETCH(bool, notifyIfPending);
    QFETCH(int, calls);
    int called = 0;
    Signal signal;
    signal.Attach([&called] { ++called; });
    QVERIFY(!signal.IsNotifySuspended());
    QVERIFY(signal.SuspendNotify());
    for (int i = 0; i < changes; ++i)
        signal.Emit();
    QCOMPARE(called, 0);
    QVERIFY(signal.IsNotifySuspended());
    QVERIFY(signal.ResumeNotify(notifyIfPending));
    QCOMPARE(called, calls);
    QVERIFY(!signal.IsNotifySuspended());
    signal.Emit();
    QCOMPARE(called, calls + 1);
}

void ObservableTest::resumingAnActiveObservableAnswersNo()
{
    Signal signal;
    QVERIFY(!signal.ResumeNotify(true));
    QVERIFY(signal.SuspendNotify());
    QVERIFY(signal.ResumeNotify(true));
    QVERIFY(!signal.ResumeNotify(true));
}

void ObservableTest::suspendingTwiceAnswersNoAndKeepsThePendingOne()
{
    int called = 0;
    Signal signal;
    signal.Attach([&called] { ++called; });
    QVERIFY(signal.SuspendNotify());
    QVERIFY(!signal.SuspendNotify());
    signal.Emit();
    QVERIFY(!signal.SuspendNotify());
    QVERIFY(signal.ResumeNotify(true));
    QCOMPARE(called, 1);
}

void ObservableTest::aSuspendedObservableDiesSilently()
{
    int called = 0;
    {
        Signal signal;
        signal.Attach([&called] { ++called; });
        signal.SuspendNotify();
        signal.Emit();
    }
    QCOMPARE(called, 0);
}

void ObservableTest::nullIsNotAttached()
{
    Signal signal;
    signal.Attach(static_cast<Observer*>(nullptr));
    signal.Emit();
}

void ObservableTest::aMarkerOwnsTheLockOnce()
{
    SimpleLock lock;
    QVERIFY(!lock.IsLocked());
    {
        const auto first = lock.Acquire();
        QVERIFY(first);
        QVERIFY(lock.IsLocked());
        {
            const auto second = lock.Acquire();
            QVERIFY(!second);
        }
        QVERIFY(lock.IsLocked());
    }
    QVERIFY(!lock.IsLocked());
}

void ObservableTest::aMovedMarkerKeepsTheLock()
{
    SimpleLock lock;
    {
        auto first = std::make_unique<SimpleLock::ScopedMarker>(lock.Acquire());
        const SimpleLock::ScopedMarker second(std::move(*first));
        QVERIFY(!*first);
        QVERIFY(second);
        first.reset();
        QVERIFY(lock.IsLocked());
    }
    QVERIFY(!lock.IsLocked());
}

void ObservableTest::aCopiedLockHasTheFlag()
{
    SimpleLock lock, copy;
    const auto marker = lock.Acquire();
    copy = lock;
    QVERIFY(copy.IsLocked());
}

OVK_TEST_CLASS(ObservableTest)

#include "observable_test.moc"
