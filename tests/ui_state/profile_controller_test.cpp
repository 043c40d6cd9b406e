#include "profile_files.h"

#include "tests/support/resource_files.h"
#include "tests/support/test_main.h"

#include <QTemporaryDir>
#include <QtTest/QtTest>

#include <random>

Q_DECLARE_METATYPE(ovk::UiProfileController::FileFormat)

using namespace ovk;
using namespace ui_state_test;

/// Single files: what is written, what is read back, and what a bad one does.
class ProfileControllerTest : public QObject, protected ProfileFiles
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { mp_host.reset(); }

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
        Profiles().Save(UiProfile(), folder.path(), UiProfileController::FileFormat(7));
        QVERIFY(ReadDocument(folder.filePath(QStringLiteral("uiprofile.fake.bin")),
                             DocumentFormat::Binary));
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
        QVERIFY(!Profiles().Load(profile, folder.filePath(QStringLiteral("none")),
                                 UiProfileController::ffJson));
        QCOMPARE(profile.ToJson(), before);
    }

    void aFileThatCannotBeOpenedCostsAWarning()
    {
        const QTemporaryDir folder;
        QTest::ignoreMessage(QtWarningMsg, "Unable to open profile file for writing");
        Profiles().Save(UiProfile(), folder.filePath(QStringLiteral("no such folder")),
                        UiProfileController::ffJson);
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
        PutFile(
            path,
            R"({"profile": {"layouts": [{"id": "Model", "states": {"quick access bar": {"spots": [
            {"id": "a"}, {"id": "b", "type": "gizmo"}, {"id": "c", "type": "separator"}]}}}]}})");
        UiProfile profile;
        QVERIFY(Profiles().Load(profile, path, UiProfileController::ffJson));
        QCOMPARE(profile.GetLayout(QStringLiteral("Model"))
                     ->GetState(QStringLiteral("quick access bar"))
                     ->GetCount(),
                 2);
        QCOMPARE(m_log.size(), 1);
        QVERIFY2(m_log.first().contains(QLatin1String("gizmo")), qPrintable(m_log.first()));
    }

    void damagedProfilesDoNoHarm()
    {
        constexpr unsigned seed = 31337;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        const QByteArray whole = FormatDocument(ovk_test::SmallProfile(), DocumentFormat::Json);
        const QByteArrayList pieces{"{}", "[]",   "null",        "5",   "\"\"",
                                    "-1", "true", "{\"id\":[]}", "1e99"};
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
};

OVK_TEST_CLASS(ProfileControllerTest)

#include "profile_controller_test.moc"
