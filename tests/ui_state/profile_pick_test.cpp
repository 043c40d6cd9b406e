#include "profile_files.h"

#include "tests/support/test_main.h"

#include <QTemporaryDir>
#include <QtTest/QtTest>

using namespace ovk;
using namespace ui_state_test;

/// A file that the user picked.
class ProfilePickTest : public QObject, protected ProfileFiles
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { mp_host.reset(); }

    void aPickedFileIsBroughtOntoTheCurrentProfileAndSaved()
    {
        mp_host->Start();
        mp_host->Activate(QStringLiteral("Model"));
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picked.json"));
        PutProfile(
            path, ProfileFile(VersionBefore(1), QStringLiteral("picked"), QStringLiteral("Other")));
        QVERIFY(Profiles().LoadFromFile(path));
        UiProfile& profile = mp_host->Profile();
        QCOMPARE(Pages(profile), (QStringList{"picked", "page.home"}));
        QCOMPARE(mp_host->Controller().GetActiveLayout(),
                 profile.GetLayout(QStringLiteral("Model")));
        UiProfile saved;
        QVERIFY(Profiles().Load(saved, CurrentFile(), UiProfileController::ffBinary));
        QCOMPARE(Pages(saved), (QStringList{"picked", "page.home"}));
        QCOMPARE(m_log.last(),
                 QStringLiteral("Update Gui profile from version: ") + VersionBefore(1));
    }

    void aPickedFileOfThisVersionIsTaken()
    {
        mp_host->Start();
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picked.bin"));
        PutProfile(path, ProfileFile(Current().ToString(), QStringLiteral("picked")));
        QVERIFY(Profiles().LoadFromFile(path));
        QCOMPARE(Pages(mp_host->Profile()), (QStringList{"picked", "page.home"}));
    }

    void aPickedFileIsNotSavedWhenThatIsOff()
    {
        mp_host->Start();
        const QByteArray before = Contents(CurrentFile());
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picked.json"));
        PutProfile(path, ProfileFile(VersionBefore(1), QStringLiteral("picked")));
        Profiles().SetSaveWhileLoading(false);
        QVERIFY(Profiles().LoadFromFile(path));
        QCOMPARE(Contents(CurrentFile()), before);
    }

    void aPickedFileThatCannotBeUsedChangesNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("steps");
        QTest::addColumn<bool>("has_version");
        QTest::newRow("newer") << "a.json" << -1 << true;
        QTest::newRow("no version") << "a.json" << 1 << false;
        QTest::newRow("old format without a loader") << "a.uip" << 1 << true;
        QTest::newRow("unknown extension") << "a.xml" << 1 << true;
        QTest::newRow("no extension") << "a" << 1 << true;
        QTest::newRow("text of binary's name") << "a.JSON" << 1 << true;
    }

    void aPickedFileThatCannotBeUsedChangesNothing()
    {
        QFETCH(QString, name);
        QFETCH(int, steps);
        QFETCH(bool, has_version);
        mp_host->Start();
        UiProfile* const before = &mp_host->Profile();
        const QTemporaryDir folder;
        PutFile(folder.filePath(name),
                FormatDocument(ProfileFile(has_version ? VersionBefore(steps) : QString(),
                                           QStringLiteral("picked")),
                               DocumentFormat::Json));
        QVERIFY(!Profiles().LoadFromFile(folder.filePath(name)));
        QVERIFY(!Profiles().LoadFromFile(folder.filePath(QStringLiteral("none.json"))));
        QCOMPARE(&mp_host->Profile(), before);
        QCOMPARE(Pages(*before), QStringList{QStringLiteral("page.home")});
        QVERIFY(m_log.isEmpty());
    }

    void anOldFormatIsPickedThroughTheLoader()
    {
        mp_host->Start();
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picked.uip"));
        PutFile(path, "closed");
        Profiles().SetLoader(LegacyLoader(VersionBefore(1), QStringLiteral("anything")));
        QVERIFY(Profiles().LoadFromFile(path));
        QCOMPARE(Pages(mp_host->Profile()), QStringList{QStringLiteral("page.home")});
        QCOMPARE(m_log, QStringList{QStringLiteral("Update Gui profile from old format version: ") +
                                    VersionBefore(1)});
    }

    void anOldFormatThatFailsAfterItsHeaderLeavesTheDefaults()
    {
        mp_host->Start();
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picked.uip"));
        PutFile(path, "closed");
        const QString version = VersionBefore(1);
        Profiles().SetLoader([version](const QString&, legacy_profile::Profile& profile) {
            profile.version.FromString(version);
            return profile.headerOnly;
        });
        QVERIFY(Profiles().LoadFromFile(path));
        QCOMPARE(Pages(mp_host->Profile()), QStringList{QStringLiteral("page.home")});
        QVERIFY(m_log.isEmpty());
    }
};

OVK_TEST_CLASS(ProfilePickTest)

#include "profile_pick_test.moc"
