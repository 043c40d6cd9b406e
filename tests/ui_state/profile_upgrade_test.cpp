#include "profile_files.h"

#include "tests/support/test_main.h"

#include <QTemporaryDir>
#include <QtTest/QtTest>

using namespace ovk;
using namespace ui_state_test;

/// The load at the start.
class ProfileUpgradeTest : public QObject, protected ProfileFiles
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { mp_host.reset(); }

    void withoutAnyFileNothingIsLoadedOrSaved()
    {
        StartWithoutDefault();
        UiProfile profile;
        QVERIFY(!Profiles().Load(profile));
        QVERIFY(profile.IsEmpty());
        QVERIFY(!QFileInfo::exists(ProfilesFolder()));
    }

    void theFirstStartSavesTheDefaultAsBinary()
    {
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("page.home")});
        UiProfile saved;
        QVERIFY(Profiles().Load(saved, CurrentFile(), UiProfileController::ffBinary));
        QCOMPARE(saved.ToJson(), profile.ToJson());
        QVERIFY(!QFile::exists(CurrentFile("json")));
    }

    void theTextOfThisVersionIsReadBeforeTheBinary()
    {
        PutProfile(CurrentFile(), ProfileFile(Current().ToString(), QStringLiteral("binary")));
        UiProfile first;
        QVERIFY(Profiles().Load(first));
        QCOMPARE(Pages(first), QStringList{QStringLiteral("binary")});
        PutProfile(CurrentFile("json"), ProfileFile(Current().ToString(), QStringLiteral("text")));
        const QByteArray before = Contents(CurrentFile());
        UiProfile second;
        QVERIFY(Profiles().Load(second));
        QCOMPARE(Pages(second), QStringList{QStringLiteral("text")});
        QCOMPARE(Contents(CurrentFile()), before); // nothing is saved
    }

    void aDamagedTextFallsThroughToTheBinary()
    {
        PutProfile(CurrentFile(), ProfileFile(Current().ToString(), QStringLiteral("binary")));
        PutFile(CurrentFile("json"), "{\"profile\": {\"layouts\": [");
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("binary")});
    }

    void aDamagedFileOfThisVersionIsKeptAsideWhenTheDefaultTakesItsPlace()
    {
        for (const QByteArray& damaged :
             {QByteArray("first"), QByteArray("second"), QByteArray()}) {
            PutFile(CurrentFile(), damaged);
            UiProfile profile;
            QVERIFY(Profiles().Load(profile));
            QCOMPARE(Pages(profile), QStringList{QStringLiteral("page.home")});
        }
        QCOMPARE(Contents(CurrentFile() + QStringLiteral(".damaged")), QByteArray("first"));
        QCOMPARE(Contents(CurrentFile() + QStringLiteral(".damaged.1")), QByteArray("second"));
        QVERIFY(ReadDocument(CurrentFile(), DocumentFormat::Binary));
    }

    void theNewestOlderVersionIsCarriedOver()
    {
        // The newest is neither the first nor the last that the search can meet.
        PutProfile(OlderFile("a"), ProfileFile(VersionBefore(3), QStringLiteral("oldest")));
        PutProfile(OlderFile("b/c"), ProfileFile(VersionBefore(1), QStringLiteral("newest")));
        PutProfile(OlderFile("d"), ProfileFile(VersionBefore(2), QStringLiteral("older")));
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(m_asked, 1);
        QCOMPARE(Pages(profile), (QStringList{"newest", "page.home"}));
        QCOMPARE(m_log, QStringList{QStringLiteral("Update Gui profile from version: ") +
                                    VersionBefore(1)});
        QCOMPARE(profile.GetBase()->ToJson().keys(), QStringList{QStringLiteral("layouts")});
        QCOMPARE(Pages(*profile.GetBase()), QStringList{QStringLiteral("page.home")});
        QCOMPARE(profile.NextId(), 101); // the default has counted to 100

        UiProfile saved;
        QVERIFY(Profiles().Load(saved, CurrentFile(), UiProfileController::ffBinary));
        QCOMPARE(Pages(saved), (QStringList{"newest", "page.home"}));
        QVERIFY(QFile::exists(OlderFile("b/c")));
    }

    void whatIsNoOlderProfileOfTheProductIsNoCandidate_data()
    {
        QTest::addColumn<int>("steps");
        QTest::addColumn<QString>("product");
        QTest::addColumn<QString>("name");
        QTest::newRow("the same version in another folder") << 0 << "Fake"
                                                            << "x/uiprofile.fake.bin";
        QTest::newRow("newer") << -1 << "Fake"
                               << "x/uiprofile.fake.bin";
        QTest::newRow("another product") << 1 << "Other"
                                         << "x/uiprofile.fake.bin";
        QTest::newRow("the product in another case") << 1 << "fake"
                                                     << "x/uiprofile.fake.bin";
        QTest::newRow("text") << 1 << "Fake"
                              << "x/uiprofile.fake.json";
        QTest::newRow("another extension") << 1 << "Fake"
                                           << "x/uiprofile.fake.bin.damaged";
        QTest::newRow("extension in capitals") << 1 << "Fake"
                                               << "x/uiprofile.fake.BIN";
        QTest::newRow("old format without a loader") << 1 << "Fake"
                                                     << "x/uiprofile.fake.uip";
    }

    void whatIsNoOlderProfileOfTheProductIsNoCandidate()
    {
        QFETCH(int, steps);
        QFETCH(QString, product);
        QFETCH(QString, name);
        PutProfile(ProfilesFolder() + name,
                   ProfileFile(VersionBefore(steps), QStringLiteral("old"), product));
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(m_asked, 0);
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("page.home")});
    }

    void aFileWithoutAVersionIsNoCandidate()
    {
        PutProfile(OlderFile("x"), ProfileFile(QString(), QStringLiteral("old")));
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(m_asked, 0);
    }

    void anotherFileNameInAnyFolderIsACandidate()
    {
        PutProfile(ProfilesFolder() + QStringLiteral("deep/er/any name.bin"),
                   ProfileFile(VersionBefore(1), QStringLiteral("old")));
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), (QStringList{"old", "page.home"}));
    }

    void aRefusedUpgradeLoadsTheDefaultAndLeavesTheOldFile()
    {
        PutProfile(OlderFile("old"), ProfileFile(VersionBefore(1), QStringLiteral("old")));
        const QByteArray before = Contents(OlderFile("old"));
        Answer(false);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(m_asked, 1);
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("page.home")});
        QCOMPARE(Contents(OlderFile("old")), before);
        QVERIFY(QFile::exists(CurrentFile()));
        QVERIFY(m_log.isEmpty());
    }

    void withoutAQueryNothingIsCarriedOver()
    {
        PutProfile(OlderFile("old"), ProfileFile(VersionBefore(1), QStringLiteral("old")));
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("page.home")});
    }

    void anUpgradeWithoutADefaultKeepsWhatTheUserHad()
    {
        StartWithoutDefault();
        PutProfile(OlderFile("old"), ProfileFile(VersionBefore(1), QStringLiteral("old")));
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("old")});
        QVERIFY(QFile::exists(CurrentFile()));
    }

    void aWholeUpgradeKeepsTheUsersAndBringsTheNew()
    {
        const QString json =
            QStringLiteral(R"({"profile": {"version": "%1", "product": "Fake", "layouts":
            [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "page.home", "visible": false,
                "groups": [{"id": "group.mine"}, {"id": "group.file"}]}, {"id": "page.gone"}, {"id": "page.mine"}]}}}],
            "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "page.home",
                "groups": [{"id": "group.file"}]}, {"id": "page.gone"}]}}}]}}})");
        PutProfile(OlderFile("old"),
                   QJsonDocument::fromJson(json.arg(VersionBefore(1)).toUtf8()).object());
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), (QStringList{"page.home", "page.mine"}));
        UiProfileItem* const home = profile.GetLayout(QStringLiteral("Model"))
                                        ->GetState(QStringLiteral("ribbon"))
                                        ->GetItem(0);
        QVERIFY(!home->IsVisible());
        QStringList groups;
        static_cast<UiState*>(home)->ForEach([&groups](UiProfileItem* group) {
            groups << group->GetName();
            return true;
        });
        QCOMPARE(groups, (QStringList{"group.mine", "group.file", "group.edit"}));
        QVERIFY(profile.GetLayout(QStringLiteral("Slice")));
    }

    void anOldFormatIsACandidateThroughTheLoader()
    {
        PutFile(OlderFile("old", "uip"), "closed");
        Profiles().SetLoader(LegacyLoader(VersionBefore(1), QStringLiteral("Fake")));
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(m_asked, 1);
        QCOMPARE(m_log, QStringList{QStringLiteral("Update Gui profile from old format version: ") +
                                    VersionBefore(1)});
        QCOMPARE(Pages(profile), QStringList{QStringLiteral("page.home")});
        QVERIFY(QFile::exists(CurrentFile()));
    }

    void theHeaderOfAnOldFormatIsAskedForAlone()
    {
        PutFile(OlderFile("old", "uip"), "closed");
        QList<bool> header_only;
        Profiles().SetLoader([&header_only](const QString&, legacy_profile::Profile& profile) {
            header_only << profile.headerOnly;
            profile.version = VersionInfo(9999, 0, 0, 0);
            return true;
        });
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(header_only, QList<bool>{true});
    }
};

OVK_TEST_CLASS(ProfileUpgradeTest)

#include "profile_upgrade_test.moc"
