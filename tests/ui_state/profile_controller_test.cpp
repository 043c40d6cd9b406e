#include "tests/support/fake_host.h"
#include "tests/support/resource_files.h"
#include "tests/support/test_main.h"

#include <ovk/commands/ui_controller.h>
#include <ovk/core/application.h>
#include <ovk/core/version_info.h>
#include <ovk/ui_state.h>
#include <ovk/ui_state/profile_document_p.h>

#include <QJsonArray>
#include <QTemporaryDir>
#include <QtTest/QtTest>

#include <random>

Q_DECLARE_METATYPE(ovk::UiProfileController::FileFormat)

using namespace ovk;
using ovk_test::FakeHost;

namespace {

VersionInfo Current()
{
    return Application::GetInstance().GetVersionInfo();
}

/// A version that is that many steps before this program's (after it, if negative).
QString VersionBefore(int steps)
{
    int major = 0;
    int minor = 0;
    int patch = 0;
    int build = 0;
    Current().GetVersionInfo(major, minor, patch, build);
    return VersionInfo(major, minor, patch, build - steps).ToString();
}

/// A profile file's root, with one page in the ribbon of "Model".
QJsonObject ProfileFile(const QString& version, const QString& page,
                        const QString& product = QStringLiteral("Fake"))
{
    const QString json = QStringLiteral(R"({"profile": {"version": "%1", "product": "%2", "counter": 7,
        "layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "%3"}]}}}],
        "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": []}}}]}}})");
    return QJsonDocument::fromJson(json.arg(version, product, page).toUtf8()).object();
}

void PutFile(const QString& path, const QByteArray& data)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(data);
}

void PutProfile(const QString& path, const QJsonObject& root)
{
    PutFile(path, FormatDocument(root, path.endsWith(QLatin1String("json")) ? DocumentFormat::Json
                                                                            : DocumentFormat::Binary));
}

QString ProfilesFolder()
{
    return Application::GetInstance().GetUiProfilesPath();
}

QString CurrentFile(const char* extension = "bin")
{
    return Application::GetInstance().GetUiProfilePath(false) + QStringLiteral("/uiprofile.fake.")
           + QLatin1String(extension);
}

QString OlderFile(const QString& version, const char* extension = "bin")
{
    return ProfilesFolder() + version + QStringLiteral("/uiprofile.fake.") + QLatin1String(extension);
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList Pages(UiProfile& profile)
{
    QStringList names;
    UiLayout* const layout = profile.GetLayout(QStringLiteral("Model"));
    if (!layout)
        return {QStringLiteral("no layout")};
    layout->GetState(QStringLiteral("ribbon"))->ForEach([&names](UiProfileItem* page) {
        names << page->GetName();
        return true;
    });
    return names;
}

/// Fills the header of the old format, as a host's loader would.
auto LegacyLoader(const QString& version, const QString& product)
{
    return [version, product](const QString&, legacy_profile::Profile& profile) {
        profile.version.FromString(version);
        profile.product = product.toStdWString();
        return true;
    };
}

} // namespace

class ProfileControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mp_host = std::make_unique<FakeHost>();
        QVERIFY2(Current().IsValid(), "the host's executable beside the tests has no version");
        QVERIFY(QDir(ProfilesFolder()).removeRecursively());
        m_log.clear();
        m_asked = 0;
        Profiles().SetLogger([this](const QString& line) { m_log << line; });
    }
    void cleanup() { mp_host.reset(); }

    // Single files.

    void aSavedProfileLoadsEqual_data() { FormatRows(); }
    void aSavedProfileLoadsEqual()
    {
        QFETCH(UiProfileController::FileFormat, format);
        QFETCH(QString, name);
        const QTemporaryDir folder;
        UiProfile profile;
        QVERIFY(Profiles().LoadDefault(profile));
        Profiles().Save(profile, folder.path(), format);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{name});
        UiProfile read;
        QVERIFY(Profiles().Load(read, folder.filePath(name), format));
        QCOMPARE(read.ToJson(), profile.ToJson());
        QCOMPARE(read.GetVersion().ToString(), Current().ToString());
    }

    void aFileHoldsOneKey()
    {
        const QTemporaryDir folder;
        UiProfile profile;
        QVERIFY(Profiles().LoadDefault(profile));
        Profiles().Save(profile, folder.path(), UiProfileController::ffJson);
        const QByteArray text = Contents(folder.filePath(QStringLiteral("uiprofile.fake.json")));
        const QJsonObject root = QJsonDocument::fromJson(text).object();
        QCOMPARE(root.keys(), QStringList{QStringLiteral("profile")});
        QCOMPARE(root.value(QStringLiteral("profile")).toObject(), profile.ToJson());
        QCOMPARE(text, QJsonDocument(root).toJson());
    }

    void anUnknownFormatNumberWritesBinary()
    {
        const QTemporaryDir folder;
        Profiles().Save(UiProfile(), folder.path(), UiProfileController::FileFormat(0));
        QVERIFY(ReadDocument(folder.filePath(QStringLiteral("uiprofile.fake.bin")), DocumentFormat::Binary));
    }

    void aFileThatHoldsNoProfileLeavesTheProfileAsItWas_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("array") << QByteArray("[]");
        QTest::newRow("no profile") << QByteArray("{}");
        QTest::newRow("profile of the wrong type") << QByteArray("{\"profile\": []}");
        QTest::newRow("truncated") << QByteArray("{\"profile\": {\"layouts\": [");
        QTest::newRow("too deep") << QByteArray(100000, '[');
    }

    void aFileThatHoldsNoProfileLeavesTheProfileAsItWas()
    {
        QFETCH(QByteArray, data);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        PutFile(path, data);
        UiProfile profile;
        QVERIFY(Profiles().LoadDefault(profile));
        const QJsonObject before = profile.ToJson();
        QVERIFY(!Profiles().Load(profile, path, UiProfileController::ffJson));
        QVERIFY(!Profiles().Load(profile, path, UiProfileController::ffBinary));
        QVERIFY(!Profiles().Load(profile, folder.filePath(QStringLiteral("none")), UiProfileController::ffJson));
        QCOMPARE(profile.ToJson(), before);
    }

    void aFileThatCannotBeOpenedCostsAWarning()
    {
        const QTemporaryDir folder;
        QTest::ignoreMessage(QtWarningMsg, "Unable to open profile file for writing");
        Profiles().Save(UiProfile(), folder.filePath(QStringLiteral("no such folder")), UiProfileController::ffJson);
        QTest::ignoreMessage(QtWarningMsg, "Unable to open profile file for writing");
        Profiles().Save(UiProfile(), QString(), UiProfileController::ffJson);
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void aFolderThatCannotBeMadeCostsAWarningAndTheProgramRunsOn()
    {
        PutFile(ProfilesFolder().chopped(1), "a file where the folder should be");
        UiProfile profile;
        QTest::ignoreMessage(QtWarningMsg, "Unable to open profile file for writing");
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(profile.GetCount(), 2);
        QVERIFY(QFile::remove(ProfilesFolder().chopped(1)));
    }

    void theDefaultMayBeBinaryInAFileOfTextsName()
    {
        // The fake host writes text; here the resource holds the other form.
        StartWithoutDefault();
        UiProfile profile;
        QVERIFY(!Profiles().LoadDefault(profile));
        const QByteArray data = FormatDocument(ovk_test::SmallProfile(), DocumentFormat::Binary);
        const ovk_test::ResourceFiles files({{"uiprofile.fake.json", data}});
        QVERIFY(Profiles().LoadDefault(profile));
        QCOMPARE(profile.GetCount(), 2);
    }

    void aSpotOfUnknownTypeIsSkippedAndReported()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        PutFile(path, R"({"profile": {"layouts": [{"id": "Model", "states": {"quick access bar": {"spots": [
            {"id": "a"}, {"id": "b", "type": "gizmo"}, {"id": "c", "type": "separator"}]}}}]}})");
        UiProfile profile;
        QVERIFY(Profiles().Load(profile, path, UiProfileController::ffJson));
        QCOMPARE(profile.GetLayout(QStringLiteral("Model"))
                     ->GetState(QStringLiteral("quick access bar"))->GetCount(), 2);
        QCOMPARE(m_log.size(), 1);
        QVERIFY2(m_log.first().contains(QLatin1String("gizmo")), qPrintable(m_log.first()));
    }

    // The load at the start.

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
        for (const QByteArray& damaged : {QByteArray("first"), QByteArray("second"), QByteArray()}) {
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
        QCOMPARE(m_log, QStringList{QStringLiteral("Update Gui profile from version: ") + VersionBefore(1)});
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
        QTest::newRow("the same version in another folder") << 0 << "Fake" << "x/uiprofile.fake.bin";
        QTest::newRow("newer") << -1 << "Fake" << "x/uiprofile.fake.bin";
        QTest::newRow("another product") << 1 << "Other" << "x/uiprofile.fake.bin";
        QTest::newRow("the product in another case") << 1 << "fake" << "x/uiprofile.fake.bin";
        QTest::newRow("text") << 1 << "Fake" << "x/uiprofile.fake.json";
        QTest::newRow("another extension") << 1 << "Fake" << "x/uiprofile.fake.bin.damaged";
        QTest::newRow("extension in capitals") << 1 << "Fake" << "x/uiprofile.fake.BIN";
        QTest::newRow("old format without a loader") << 1 << "Fake" << "x/uiprofile.fake.uip";
    }

    void whatIsNoOlderProfileOfTheProductIsNoCandidate()
    {
        QFETCH(int, steps);
        QFETCH(QString, product);
        QFETCH(QString, name);
        PutProfile(ProfilesFolder() + name, ProfileFile(VersionBefore(steps), QStringLiteral("old"), product));
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
        const QString json = QStringLiteral(R"({"profile": {"version": "%1", "product": "Fake", "layouts":
            [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "page.home", "visible": false,
                "groups": [{"id": "group.mine"}, {"id": "group.file"}]}, {"id": "page.gone"}, {"id": "page.mine"}]}}}],
            "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "page.home",
                "groups": [{"id": "group.file"}]}, {"id": "page.gone"}]}}}]}}})");
        PutProfile(OlderFile("old"), QJsonDocument::fromJson(json.arg(VersionBefore(1)).toUtf8()).object());
        Answer(true);
        UiProfile profile;
        QVERIFY(Profiles().Load(profile));
        QCOMPARE(Pages(profile), (QStringList{"page.home", "page.mine"}));
        UiProfileItem* const home = profile.GetLayout(QStringLiteral("Model"))
                                        ->GetState(QStringLiteral("ribbon"))->GetItem(0);
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
        QCOMPARE(m_log, QStringList{QStringLiteral("Update Gui profile from old format version: ")
                                    + VersionBefore(1)});
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

    // A file that the user picked.

    void aPickedFileIsBroughtOntoTheCurrentProfileAndSaved()
    {
        mp_host->Start();
        mp_host->Activate(QStringLiteral("Model"));
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("picked.json"));
        PutProfile(path, ProfileFile(VersionBefore(1), QStringLiteral("picked"), QStringLiteral("Other")));
        QVERIFY(Profiles().LoadFromFile(path));
        UiProfile& profile = mp_host->Profile();
        QCOMPARE(Pages(profile), (QStringList{"picked", "page.home"}));
        QCOMPARE(mp_host->Controller().GetActiveLayout(), profile.GetLayout(QStringLiteral("Model")));
        UiProfile saved;
        QVERIFY(Profiles().Load(saved, CurrentFile(), UiProfileController::ffBinary));
        QCOMPARE(Pages(saved), (QStringList{"picked", "page.home"}));
        QCOMPARE(m_log.last(), QStringLiteral("Update Gui profile from version: ") + VersionBefore(1));
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
        QCOMPARE(m_log, QStringList{QStringLiteral("Update Gui profile from old format version: ")
                                    + VersionBefore(1)});
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

    void damagedProfilesDoNoHarm()
    {
        constexpr unsigned seed = 31337;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        const QByteArray whole = FormatDocument(ovk_test::SmallProfile(), DocumentFormat::Json);
        const QByteArrayList pieces{"{}", "[]", "null", "5", "\"\"", "-1", "true", "{\"id\":[]}", "1e99"};
        int loaded = 0;
        for (int round = 0; round < 400; ++round) {
            // A value becomes one of another type, so that the text stays a document.
            QByteArray data = whole;
            for (int i = int(random() % 3); i >= 0; --i) {
                const int colon = data.indexOf(": ", int(random() % unsigned(data.size())));
                if (colon < 0)
                    continue;
                const int end = data.indexOf('\n', colon);
                const QByteArray value = data.mid(colon + 2, end - colon - 2);
                if (value.startsWith('[') || value.startsWith('{'))
                    continue;
                const QByteArray piece = pieces.at(int(random() % unsigned(pieces.size())));
                data.replace(colon + 2, value.size(), piece + (value.endsWith(',') ? "," : ""));
            }
            PutFile(path, data);
            UiProfile profile;
            loaded += Profiles().Load(profile, path, UiProfileController::ffJson);
            profile.ToJson();
            const UiProfile copy(profile);
        }
        QVERIFY2(loaded > 350, qPrintable(QString::number(loaded)));
    }

private:
    static void FormatRows()
    {
        QTest::addColumn<UiProfileController::FileFormat>("format");
        QTest::addColumn<QString>("name");
        QTest::newRow("binary") << UiProfileController::ffBinary << "uiprofile.fake.bin";
        QTest::newRow("text") << UiProfileController::ffJson << "uiprofile.fake.json";
    }

    void StartWithoutDefault()
    {
        mp_host.reset(); // one at a time
        mp_host = std::make_unique<FakeHost>(ovk_test::SmallCatalogue(), QJsonObject());
    }

    UiProfileController& Profiles() { return mp_host->Profiles(); }

    void Answer(bool answer)
    {
        Profiles().SetUserQuery([this, answer] {
            ++m_asked;
            return answer;
        });
    }

    std::unique_ptr<FakeHost> mp_host;
    QStringList m_log;
    int m_asked = 0;
};

OVK_TEST_CLASS(ProfileControllerTest)

#include "profile_controller_test.moc"
