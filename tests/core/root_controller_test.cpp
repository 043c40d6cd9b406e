#include "tests/support/fake_application.h"

#include <ovk/core/root_controller.h>
#include <ovk/preferences.h>

using namespace ovk;
using namespace ovk_test;

namespace {

class Controller : public IApplicationController
{
public:
    Controller(QStringList& log, const QString& name) : m_log(log), m_name(name) {}
    ~Controller() override { m_log << "delete " + m_name; }

protected:
    void _DoOnAppStart() override { m_log << "start " + m_name; }
    void _DoOnAppShutdown() override { m_log << "stop " + m_name; }

private:
    QStringList& m_log;
    QString m_name;
};

class Unregistered : public IApplicationController
{
public:
    Unregistered() : IApplicationController(false) {}
    int starts = 0;

protected:
    void _DoOnAppStart() override { ++starts; }
    void _DoOnAppShutdown() override {}
};

} // namespace

class RootControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void controllersStartAndStopInTheOrderOfRegistrationAndDieInReverse();
    void stoppingWhatWasNotStartedDoesNothing();
    void startingAndStoppingTwiceRunsTheHooksTwice();
    void aControllerMadeLaterIsNotStarted();
    void aControllerThatIsDeletedLeaves();
    void theRootIsNotInItsOwnList();
    void aControllerMayStayUnregistered();

private:
    QStringList log; // the controllers write to it until cleanup
};

void RootControllerTest::initTestCase()
{
    // The library's own controller would write preferences.
    QVERIFY(PreferencesController::GetInstance());
    delete RootController::GetInstance();
}

void RootControllerTest::cleanup()
{
    delete RootController::GetInstance();
    log.clear();
}

void RootControllerTest::controllersStartAndStopInTheOrderOfRegistrationAndDieInReverse()
{
    new Controller(log, "a");
    new Controller(log, "b");
    RootController* const root = RootController::GetInstance();
    root->OnAppStart();
    root->OnAppShutdown();
    delete root;
    QCOMPARE(log, (QStringList{"start a", "start b", "stop a", "stop b", "delete b", "delete a"}));
    QVERIFY(RootController::GetInstance()); // a new one
}

void RootControllerTest::stoppingWhatWasNotStartedDoesNothing()
{
    auto* const a = new Controller(log, "a");
    RootController::GetInstance()->OnAppShutdown();
    a->OnAppShutdown();
    QVERIFY(log.isEmpty());
}

void RootControllerTest::startingAndStoppingTwiceRunsTheHooksTwice()
{
    new Controller(log, "a");
    RootController* const root = RootController::GetInstance();
    root->OnAppStart();
    root->OnAppStart();
    root->OnAppShutdown();
    root->OnAppShutdown();
    QCOMPARE(log, (QStringList{"start a", "start a", "stop a", "stop a"}));
}

void RootControllerTest::aControllerMadeLaterIsNotStarted()
{
    RootController* const root = RootController::GetInstance();
    root->OnAppStart();
    auto* const late = new Controller(log, "late");
    root->OnAppShutdown();
    QVERIFY(log.isEmpty());
    late->OnAppStart();
    root->OnAppShutdown();
    QCOMPARE(log, (QStringList{"start late", "stop late"}));
}

void RootControllerTest::aControllerThatIsDeletedLeaves()
{
    delete new Controller(log, "a");
    RootController::GetInstance()->OnAppStart();
    QCOMPARE(log, QStringList{"delete a"});
}

void RootControllerTest::theRootIsNotInItsOwnList()
{
    // It would start itself for ever otherwise.
    RootController::GetInstance()->OnAppStart();
    RootController::GetInstance()->OnAppShutdown();
}

void RootControllerTest::aControllerMayStayUnregistered()
{
    Unregistered controller;
    RootController::GetInstance()->OnAppStart();
    QCOMPARE(controller.starts, 0);
    controller.OnAppStart();
    QCOMPARE(controller.starts, 1);
}

/// At load of the library: the preferences' controller is there before the host runs a line.
class LoadOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void preferencesStartBeforeTheHostsControllers();
};

void LoadOrderTest::preferencesStartBeforeTheHostsControllers()
{
    FakeApplication application;
    QStringList log;
    new Controller(log, "host");
    Observer* const observer = g_pref_suffix_in_editor.Attach([&log] { log << "preferences are loaded"; });
    RootController* const root = RootController::GetInstance();
    root->OnAppStart();
    QCOMPARE(log, (QStringList{"preferences are loaded", "start host"}));
    // They are written first as well: the host's controller finds the file when it stops.
    root->OnAppShutdown();
    QVERIFY(QFile::exists(application.GetPreferencesPath(false) + "/preferences.xml"));
    g_pref_suffix_in_editor.Detach(*observer);
    delete root;
    QCOMPARE(log.last(), QString("delete host"));
    QVERIFY(PreferencesController::GetInstance()); // made anew: the old one died with its root
    delete RootController::GetInstance();
}

OVK_TEST_CLASS(RootControllerTest)
OVK_TEST_CLASS(LoadOrderTest)

#include "root_controller_test.moc"
