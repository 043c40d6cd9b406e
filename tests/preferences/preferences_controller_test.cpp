#include "preference_test_support.h"

#include "tests/support/fake_application.h"

#include <ovk/core/root_controller.h>
#include <vorsdk/units.h>

using namespace ovk;
using namespace ovk_test;

namespace {

/// Preferences of a host, in the real tree. They stay as long as the process, as a host's do.
struct HostPreferences
{
    Chapter general{&PreferencesController::GetInstance()->GetRootChapter(), "General"};
    Preference<bool> show{general, "show"};
    Preference<bool> edges{general, "dont_warn_about_bad_edges"};
    NumberPreference number{general, "number", 42};
    TextPreference text{general, "text"};
    Preference<QStringList> list{general, "list"};
    Preference<QByteArray> bytes{general, "bytes"};
    TextPreference spacing{general, "spacing_x"};
    TextPreference shortcuts{general, "keys"};
};

/// Takes its values from a legacy file itself.
class CustomPreference : public PreferenceCustomize
{
public:
    explicit CustomPreference(PreferenceChapter& parent) : PreferenceCustomize(parent, "custom") {}
    QString path;
    int loads = 0;
    int count = 0;

protected:
    void _AfterLoad() override {}
    void _DoSave(QXmlStreamWriter& writer) override { writer.writeTextElement(GetName(), "x"); }
    void _DoLoad(QXmlStreamReader& reader) override { reader.skipCurrentElement(); }
    void _DoRestoreDefault() override {}
    void _LoadFromLegacyMap(const QString& oldPath, QMap<QString, QString>& values) override
    {
        path = oldPath;
        ++loads;
        count = values.size();
    }
};

} // namespace

class PreferencesControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theFileBearsTheVersion();
    void whatIsSavedIsReadAgain();
    void theDocumentIsOneLineBehindItsDeclaration();
    void aFirstStartNotifiesDefaults();
    void reloadingTwiceReadsTwice();
    void aDamagedFileCountsAsRead();
    void aFileThatCannotBeWrittenIsLeft();
    void aFullDiskLeavesTheOldFileWhole();
    void anOlderVersionIsTakenOver();
    void theNextStartAsksNothing();
    void theNewestOlderVersionIsChosen();
    void foldersThatAreNoVersionAreIgnored_data();
    void foldersThatAreNoVersionAreIgnored();
    void anyXmlFileMakesACandidate();
    void theAnswerIsAMask_data();
    void theAnswerIsAMask();
    void withoutAQueryOlderVersionsAreIgnored();
    void aQueryWithoutALoggerIsAnErrorAfterTheUpdate();
    void legacyValuesComeOverTheCurrentOnes();
    void loadingAPathReadsBothForms();
    void aLegacyLoadBeforeTheStartBlocksTheCurrentFile();
    void theStartIsBlockedAfterAReload();
    void refusedPreferencesAreNotReadFromALegacyFile();
    void anEmptyElementKeepsTheValue();
    void theUnitsComeBeforeTheValues_data();
    void theUnitsComeBeforeTheValues();
    void aCustomPreferenceGetsTheWholeMap();
    void repeatedElementsCollect();
    void shortcutBlocksAreJoined();
    void aMapFileListsEveryValue();
    void aMissingSourceLeavesTheTarget();
    void hostileLegacyFilesAreHarmless_data();
    void hostileLegacyFilesAreHarmless();

private:
    /// The path of \a file in the folder of the version \a difference from the current one.
    QString VersionFile(int difference, const QString& file = "preferences.xml") const;
    QByteArray Document(const QByteArray& general) const;
    void Start() { Controller().OnAppStart(); }
    PreferencesController& Controller() const { return *PreferencesController::GetInstance(); }
    /// A fresh controller: loading is not blocked, nothing is loaded.
    void Renew();

    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<HostPreferences> m_host;
    QStringList m_log;
    int m_questions = 0;
};

QString PreferencesControllerTest::VersionFile(int difference, const QString& file) const
{
    return m_application->GetPreferencesPath() + m_application->Version(difference).ToString() + '/' + file;
}

QByteArray PreferencesControllerTest::Document(const QByteArray& general) const
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><PreferencesRoot><General>" + general
           + "</General></PreferencesRoot>";
}

void PreferencesControllerTest::Renew()
{
    delete RootController::GetInstance();
    m_host = std::make_unique<HostPreferences>();
}

void PreferencesControllerTest::initTestCase()
{
    m_application = std::make_unique<FakeApplication>();
    QVERIFY(m_application->Version(-3).IsValid());
}

void PreferencesControllerTest::init()
{
    FakeApplication::RemoveData();
    Renew();
    m_log.clear();
    m_questions = 0;
}

void PreferencesControllerTest::cleanup()
{
    MUserUnit::GetInstance().SetUnit(MUserUnit::utMillimetre);
    delete RootController::GetInstance();
    m_host.reset();
}

void PreferencesControllerTest::theFileBearsTheVersion()
{
    QCOMPARE(Controller().GetFileName(), QString("preferences.xml"));
    QCOMPARE(Controller().GetRootChapter().GetName(), QString("PreferencesRoot"));
    Controller().Save();
    QVERIFY(QFile::exists(VersionFile(0)));
}

void PreferencesControllerTest::whatIsSavedIsReadAgain()
{
    m_host->show = true;
    m_host->list = QStringList{"a", "b"};
    m_host->bytes = QByteArray("\1\2\3");
    Start();
    m_host->number.SetData(7);
    Controller().OnAppShutdown();
    Renew();
    Start();
    QCOMPARE(m_host->number.GetData(), 7);
    QVERIFY(m_host->number.IsLoaded());
    QVERIFY(m_host->show.GetData());
    QCOMPARE(m_host->list.GetData(), (QStringList{"a", "b"}));
    QCOMPARE(m_host->bytes.GetData(), QByteArray("\1\2\3"));
}

void PreferencesControllerTest::theDocumentIsOneLineBehindItsDeclaration()
{
    Controller().Save();
    const QByteArray file = ReadFile(VersionFile(0));
    QVERIFY(file.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?><PreferencesRoot><General><show>false</show>"));
    QVERIFY(file.endsWith("</General></PreferencesRoot>\n"));
    QCOMPARE(file.count('\n'), 1);
}

void PreferencesControllerTest::aFirstStartNotifiesDefaults()
{
    int calls = 0;
    m_host->show.Attach([&] { ++calls; });
    Start();
    QCOMPARE(calls, 1);
    QVERIFY(!m_host->show.IsLoaded());
}

void PreferencesControllerTest::reloadingTwiceReadsTwice()
{
    QVERIFY(WriteFile(VersionFile(0), Document("<number>1</number>")));
    Controller().Reload();
    QCOMPARE(m_host->number.GetData(), 1);
    QVERIFY(WriteFile(VersionFile(0), Document("<number>2</number>")));
    Controller().Reload();
    QCOMPARE(m_host->number.GetData(), 2);
    int calls = 0;
    m_host->number.Attach([&] { ++calls; });
    QVERIFY(WriteFile(VersionFile(0), Document("")));
    Controller().Reload();
    QCOMPARE(m_host->number.GetData(), 2);
    QCOMPARE(calls, 0); // it is loaded already
}

void PreferencesControllerTest::aDamagedFileCountsAsRead()
{
    QVERIFY(WriteFile(VersionFile(0), Document("<number>1</number>").left(90)));
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>9</number>")));
    Controller().SetUserQuery([this] { return ++m_questions, 4; });
    int calls = 0;
    m_host->show.Attach([&] { ++calls; });
    Start();
    QCOMPARE(m_questions, 0);
    QCOMPARE(calls, 1);
}

void PreferencesControllerTest::aFileThatCannotBeWrittenIsLeft()
{
    QVERIFY(QDir().mkpath(VersionFile(0))); // a folder of the file's name
    Controller().Save();
    QVERIFY(QFileInfo(VersionFile(0)).isDir());
}

void PreferencesControllerTest::aFullDiskLeavesTheOldFileWhole()
{
    Controller().Save();
    const QByteArray before = ReadFile(VersionFile(0));
    QVERIFY(!before.isEmpty());
    // A value that fails to be written in the middle of the file.
    struct Failing : PreferenceCustomize
    {
        using PreferenceCustomize::PreferenceCustomize;
        explicit Failing(PreferenceChapter& parent) : PreferenceCustomize(parent, "failing") {}
        void _AfterLoad() override {}
        void _DoSave(QXmlStreamWriter&) override { throw std::runtime_error("disk"); }
        void _DoLoad(QXmlStreamReader&) override {}
        void _DoRestoreDefault() override {}
        void _LoadFromLegacyMap(const QString&, QMap<QString, QString>&) override {}
    } failing(m_host->general);
    m_host->number.SetData(7);
    QVERIFY_EXCEPTION_THROWN(Controller().Save(), std::runtime_error);
    QCOMPARE(ReadFile(VersionFile(0)), before);
}

void PreferencesControllerTest::anOlderVersionIsTakenOver()
{
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>9</number>")));
    Controller().SetUserQuery([this] { return ++m_questions, 4; });
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Start();
    QCOMPARE(m_host->number.GetData(), 9);
    QCOMPARE(m_questions, 1);
    QCOMPARE(m_log, QStringList{"Update preferences from version: " + m_application->Version(-1).ToString()});
}

void PreferencesControllerTest::theNextStartAsksNothing()
{
    anOlderVersionIsTakenOver();
    Controller().OnAppShutdown();
    Renew();
    m_questions = 0;
    Controller().SetUserQuery([this] { return ++m_questions, 4; });
    Start();
    QCOMPARE(m_questions, 0);
    QCOMPARE(m_host->number.GetData(), 9);
}

void PreferencesControllerTest::theNewestOlderVersionIsChosen()
{
    for (const int difference : {-2, -1, -3, 0, 1}) {
        const QString name = difference == 0 ? "other.xml" : "preferences.xml";
        QVERIFY(WriteFile(VersionFile(difference, name),
                          Document("<number>" + QByteArray::number(100 + difference) + "</number>")));
    }
    Controller().SetUserQuery([] { return 2; });
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Start();
    QCOMPARE(m_host->number.GetData(), 99);
    QCOMPARE(m_log.size(), 1);
}

void PreferencesControllerTest::foldersThatAreNoVersionAreIgnored_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("a word") << "backup";
    QTest::newRow("three parts") << "1.0.0";
    QTest::newRow("five parts") << "1.0.0.0.0";
    QTest::newRow("zero") << "0.0.0.0";
    QTest::newRow("a later version") << "9999.0.0.0";
    QTest::newRow("the folder above") << "";
}

void PreferencesControllerTest::foldersThatAreNoVersionAreIgnored()
{
    QFETCH(QString, folder);
    QVERIFY(WriteFile(m_application->GetPreferencesPath() + folder + "/preferences.xml",
                      Document("<number>9</number>")));
    Controller().SetUserQuery([this] { return ++m_questions, 4; });
    Start();
    QCOMPARE(m_questions, 0);
    QCOMPARE(m_host->number.GetData(), 42);
}

void PreferencesControllerTest::anyXmlFileMakesACandidate()
{
    QVERIFY(WriteFile(VersionFile(-1, "something.xml"), "<x/>"));
    QVERIFY(WriteFile(VersionFile(-2), Document("<number>9</number>")));
    Controller().SetUserQuery([this] { return ++m_questions, 4; });
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Start();
    QCOMPARE(m_questions, 1);
    QCOMPARE(m_host->number.GetData(), 42);
    QVERIFY(m_log.isEmpty());
}

void PreferencesControllerTest::theAnswerIsAMask_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("yes");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("2") << 2 << true;
    QTest::newRow("4") << 4 << true;
    QTest::newRow("6") << 6 << true;
    QTest::newRow("8") << 8 << false;
    QTest::newRow("9") << 9 << false;
    QTest::newRow("-1") << -1 << true;
}

void PreferencesControllerTest::theAnswerIsAMask()
{
    QFETCH(int, answer);
    QFETCH(bool, yes);
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>9</number>")));
    Controller().SetUserQuery([answer] { return answer; });
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Start();
    QCOMPARE(m_host->number.GetData(), yes ? 9 : 42);
    QCOMPARE(m_log.size(), yes ? 1 : 0);
}

void PreferencesControllerTest::withoutAQueryOlderVersionsAreIgnored()
{
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>9</number>")));
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Start();
    QCOMPARE(m_host->number.GetData(), 42);
    QVERIFY(m_log.isEmpty());
}

void PreferencesControllerTest::aQueryWithoutALoggerIsAnErrorAfterTheUpdate()
{
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>9</number>")));
    Controller().SetUserQuery([] { return 4; });
    QVERIFY_EXCEPTION_THROWN(Start(), std::bad_function_call);
    QCOMPARE(m_host->number.GetData(), 9);
}

void PreferencesControllerTest::legacyValuesComeOverTheCurrentOnes()
{
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>9</number><text>kept</text>")));
    QVERIFY(WriteFile(VersionFile(-1, "xpf_defaults.xml"),
                      "<Preferences><General><NUMBER>11</NUMBER>"
                      "<warn_about_bad_edges>false</warn_about_bad_edges></General></Preferences>"));
    Controller().SetUserQuery([] { return 4; });
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Start();
    QCOMPARE(m_host->number.GetData(), 11);
    QCOMPARE(m_host->text.GetData(), QString("kept"));
    QVERIFY(m_host->edges.GetData());
    QCOMPARE(m_log.size(), 1);
}

void PreferencesControllerTest::loadingAPathReadsBothForms()
{
    const QString folder = DataHome() + "/elsewhere";
    QVERIFY(WriteFile(folder + "/preferences.xml", Document("<number>9</number>")));
    QVERIFY(WriteFile(folder + "/xpf_defaults.xml",
                      "<preferences><general><text>old</text></general></preferences>"));
    Controller().LoadFromPath(folder);
    QCOMPARE(m_host->number.GetData(), 9);
    QCOMPARE(m_host->text.GetData(), QString("old"));
    Controller().LoadFromPath(DataHome() + "/nowhere");
    QCOMPARE(m_host->number.GetData(), 9);
}

void PreferencesControllerTest::aLegacyLoadBeforeTheStartBlocksTheCurrentFile()
{
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><general><text>gui</text></general></preferences>"));
    QVERIFY(WriteFile(VersionFile(0), Document("<number>1</number>")));
    QVERIFY(WriteFile(VersionFile(-1), Document("<number>2</number>")));
    QVERIFY(WriteFile(VersionFile(-1, "xpf_defaults.xml"),
                      "<preferences><general><show>true</show></general></preferences>"));
    Controller().SetUserQuery([this] { return ++m_questions, 4; });
    Controller().SetLogger([this](const QString& line) { m_log << line; });
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(m_host->text.GetData(), QString("gui"));
    int calls = 0;
    m_host->number.Attach([&] { ++calls; });
    Start();
    QCOMPARE(m_questions, 1);
    QCOMPARE(m_host->number.GetData(), 42); // neither file of the current form was read
    QCOMPARE(calls, 0);                     // nor were defaults told of
    QVERIFY(m_host->show.GetData());
    QCOMPARE(m_log.size(), 1);
}

void PreferencesControllerTest::theStartIsBlockedAfterAReload()
{
    QVERIFY(WriteFile(VersionFile(0), Document("<number>1</number>")));
    Controller().Reload();
    QVERIFY(WriteFile(VersionFile(0), Document("<number>2</number>")));
    Start();
    QCOMPARE(m_host->number.GetData(), 1);
}

void PreferencesControllerTest::refusedPreferencesAreNotReadFromALegacyFile()
{
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><general><text>gui</text><number>5</number></general></preferences>"));
    const PreferenceBasics* const refused = &m_host->text;
    Controller().SetIgnoreLoadMethod([refused](PreferenceBasics* item) { return item != refused; });
    QVERIFY(Controller().IsPreferenceLoadable(&m_host->number));
    QVERIFY(!Controller().IsPreferenceLoadable(&m_host->text));
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(m_host->text.GetData(), QString());
    QCOMPARE(m_host->number.GetData(), 5);
    Controller().SetIgnoreLoadMethod(nullptr);
    QVERIFY(Controller().IsPreferenceLoadable(&m_host->text));
}

void PreferencesControllerTest::anEmptyElementKeepsTheValue()
{
    m_host->text.SetData("kept");
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><general><text></text><number/></general></preferences>"));
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(m_host->text.GetData(), QString("kept"));
    QCOMPARE(m_host->number.GetData(), 42);
}

void PreferencesControllerTest::theUnitsComeBeforeTheValues_data()
{
    QTest::addColumn<QByteArray>("units");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("spacing");
    QTest::newRow("inches") << QByteArray("Inches") << 1 << "508000";
    QTest::newRow("millimetres") << QByteArray("Millimeters") << 0 << "10000";
    QTest::newRow("other case") << QByteArray("inches") << 0 << "10000";
    QTest::newRow("none keep the unit") << QByteArray() << 1 << "508000";
}

void PreferencesControllerTest::theUnitsComeBeforeTheValues()
{
    QFETCH(QByteArray, units);
    QFETCH(int, unit);
    QFETCH(QString, spacing);
    MUserUnit::GetInstance().SetUnit(MUserUnit::utInch);
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><general><spacing_value_x>1 2</spacing_value_x>"
                              "<other><application_units>" + units
                                  + "</application_units></other></general></preferences>"));
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(int(MUserUnit::GetInstance().GetUnit()), unit);
    QCOMPARE(m_host->spacing.GetData(), spacing);
}

void PreferencesControllerTest::aCustomPreferenceGetsTheWholeMap()
{
    CustomPreference custom(m_host->general);
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<preferences><a>1</a><b>2</b></preferences>"));
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(custom.loads, 1);
    QCOMPARE(custom.path, QString("preferences/general/custom"));
    QCOMPARE(custom.count, 2);
}

void PreferencesControllerTest::repeatedElementsCollect()
{
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, "<Preferences><General><text>a</text><TEXT>b</TEXT></General></Preferences>"));
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(m_host->text.GetData(), QString("a;b"));
}

void PreferencesControllerTest::shortcutBlocksAreJoined()
{
    const QString source = DataHome() + "/keys.xml";
    const QString target = DataHome() + "/keys.txt";
    QVERIFY(WriteFile(source,
                      "<p><mouse_shortcuts><Mouse_Shortcut><k>1</k></Mouse_Shortcut>"
                      "<Mouse_Shortcut><k>2</k></Mouse_Shortcut></mouse_shortcuts>"
                      "<mouse_shortcuts><Mouse_Shortcut><k>3</k></Mouse_Shortcut>"
                      "<Mouse_Shortcut><k>4</k></Mouse_Shortcut></mouse_shortcuts></p>"));
    QVERIFY(Controller().SavePreferencesToMapFile(source, target));
    QCOMPARE(ReadFile(target), QByteArray("p/mouse_shortcuts/mouse_shortcut/k=1;2;;3;4\n"));
}

void PreferencesControllerTest::aMapFileListsEveryValue()
{
    const QString source = DataHome() + "/source.xml";
    const QString target = DataHome() + "/target.txt";
    QVERIFY(WriteFile(source, "<P><Z>1</Z><A>x<B>2</B>y</A><E/></P>"));
    QVERIFY(WriteFile(target, "a longer old content that has to go"));
    QVERIFY(Controller().SavePreferencesToMapFile(source, target));
    QCOMPARE(ReadFile(target), QByteArray("p/a=x;y\np/a/b=2\np/z=1\n"));
    QVERIFY(!Controller().SavePreferencesToMapFile(source, DataHome() + "/none/target.txt"));
}

void PreferencesControllerTest::aMissingSourceLeavesTheTarget()
{
    const QString target = DataHome() + "/target.txt";
    QVERIFY(WriteFile(target, "kept"));
    QVERIFY(!Controller().SavePreferencesToMapFile(DataHome() + "/none.xml", target));
    QCOMPARE(ReadFile(target), QByteArray("kept"));
}

void PreferencesControllerTest::hostileLegacyFilesAreHarmless_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray() << "";
    QTest::newRow("no XML") << QByteArray("\0\xff\xfe", 3) << "";
    QTest::newRow("cut off") << QByteArray("<preferences><general><text>a</text><num") << "a";
    QTest::newRow("too many ends") << QByteArray("<preferences></preferences></x></y>") << "";
    QByteArray deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<deeper>x";
    QTest::newRow("very deep") << "<preferences><general><text>a</text></general>" + deep << "a";
}

void PreferencesControllerTest::hostileLegacyFilesAreHarmless()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    const QString legacy = DataHome() + "/gui.xml";
    QVERIFY(WriteFile(legacy, content));
    Controller().LoadVisualisationFromGUIFile(legacy);
    QCOMPARE(m_host->text.GetData(), text);
}

OVK_TEST_CLASS(PreferencesControllerTest)

#include "preferences_controller_test.moc"
