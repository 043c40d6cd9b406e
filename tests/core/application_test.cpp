#include "tests/support/fake_application.h"

#include <ovk/core/application.h>

#include <QCoreApplication>

using namespace ovk;
using namespace ovk_test;

/// Where files live and which version runs. The host's executable is beside the tests.
class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theHostsObjectIsTheInstance();
    void theVersionIsThatOfTheHostsExecutable();
    void foldersBearTheVersion();
    void askingForAPathTouchesNothing();
    void foldersAreMadeOnDemand();
    void aFileInTheWayGivesNoPath();
    void theUserFolderIsMadeAndAFailureTriedAgain();

private:
    FakeApplication m_application;
};

void ApplicationTest::init()
{
    FakeApplication::RemoveData();
}

void ApplicationTest::theHostsObjectIsTheInstance()
{
    QVERIFY(&Application::GetInstance() == &m_application);
    QCOMPARE(m_application.GetAppPath(), QCoreApplication::applicationDirPath());
}

void ApplicationTest::theVersionIsThatOfTheHostsExecutable()
{
    QVERIFY(m_application.GetVersionInfo().IsValid());
}

void ApplicationTest::foldersBearTheVersion()
{
    const QString data = FakeApplication::DataFolder();
    const QString version = m_application.GetVersionInfo().ToString();
    QVERIFY(data.startsWith(DataHome()));
    QCOMPARE(m_application.GetPreferencesPath(), data + "/Preferences/");
    QCOMPARE(m_application.GetUiProfilesPath(), data + "/GuiProfiles/");
    QCOMPARE(m_application.GetPreferencesPath(false), data + "/Preferences/" + version);
    QCOMPARE(m_application.GetUiProfilePath(false), data + "/GuiProfiles/" + version);
}

void ApplicationTest::askingForAPathTouchesNothing()
{
    m_application.GetPreferencesPath();
    m_application.GetPreferencesPath(false);
    m_application.GetUiProfilesPath();
    m_application.GetUiProfilePath(false);
    QVERIFY(!QFileInfo::exists(FakeApplication::DataFolder()));
}

void ApplicationTest::foldersAreMadeOnDemand()
{
    const QString preferences = m_application.GetPreferencesPath(true);
    QVERIFY(QFileInfo(preferences).isDir());
    const QString profiles = m_application.GetUiProfilePath(true);
    QVERIFY(QFileInfo(profiles).isDir());
    QCOMPARE(m_application.GetUiProfilePath(true), profiles); // exists already
}

void ApplicationTest::aFileInTheWayGivesNoPath()
{
    QVERIFY(WriteFile(m_application.GetPreferencesPath(false), "in the way"));
    QCOMPARE(m_application.GetPreferencesPath(true), QString());
    QVERIFY(WriteFile(m_application.GetUiProfilePath(false), "in the way"));
    QCOMPARE(m_application.GetUiProfilePath(true), QString());
}

void ApplicationTest::theUserFolderIsMadeAndAFailureTriedAgain()
{
    const QString data = FakeApplication::DataFolder();
    QVERIFY(WriteFile(data, "in the way"));
    QCOMPARE(m_application.GetUserPath(), data);
    QVERIFY(QFileInfo(data).isFile());
    QVERIFY(QFile::remove(data));
    QCOMPARE(m_application.GetUserPath(), data);
    QVERIFY(QFileInfo(data).isDir());
    // Once it was made, nobody looks again.
    QVERIFY(QDir(data).removeRecursively());
    m_application.GetUserPath();
    QVERIFY(!QFileInfo::exists(data));
}

OVK_TEST_CLASS(ApplicationTest)

#include "application_test.moc"
