#include "preference_test_support.h"

#include "tests/support/fake_application.h"

#include <ovk/core/root_controller.h>

#ifdef Q_OS_LINUX
#    include <linux/capability.h>
#    include <sys/syscall.h>
#    include <unistd.h>
#endif
#ifdef Q_OS_UNIX
#    include <csignal>
#    include <sys/resource.h>
#endif

#if defined(__SANITIZE_ADDRESS__)
#    define OVK_MEMORY_IS_WATCHED
#endif

using namespace ovk;
using namespace ovk_test;

namespace {

/// A value of the sample and where its element stands in the document.
struct Place
{
    int begin;
    int end;
};

/// Makes an administrator obey the permissions of files while it lives.
class ObeyPermissions
{
public:
#ifdef Q_OS_LINUX
    ObeyPermissions()
    {
        syscall(SYS_capget, &m_header, m_before);
        __user_cap_data_struct obeying[2] = {m_before[0], m_before[1]};
        obeying[0].effective &= ~((1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH));
        syscall(SYS_capset, &m_header, obeying);
    }
    ~ObeyPermissions() { syscall(SYS_capset, &m_header, m_before); }

private:
    __user_cap_header_struct m_header = {_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct m_before[2] = {};
#endif
};

/// A disk that has no room for more than \a bytes of a file while this lives.
class FullDisk
{
public:
#ifdef Q_OS_UNIX
    explicit FullDisk(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limited = m_before;
        limited.rlim_cur = bytes;
        m_handler = signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int) = nullptr;
#else
    explicit FullDisk(int) {}
#endif
};

/// Folders in folders, as many as the file says.
class FolderCollection : public PreferenceCollectionBasics
{
public:
    using PreferenceCollectionBasics::Load;

    FolderCollection(PreferenceChapter& parent, const QString& name) : PreferenceCollectionBasics(parent, name) {}
    ~FolderCollection() override { Clear(); }

    int Depth() const
    {
        int depth = 0;
        for (const FolderCollection* folder = this; !folder->Items().isEmpty(); ++depth)
            folder = static_cast<const FolderCollection*>(folder->Items().first());
        return depth;
    }

protected:
    PreferenceBasics* _CreateItem() override { return new FolderCollection(*this, "Folder"); } // the collection's
};

/// The most memory that the process had so far, in bytes; 0 where nobody says.
qint64 PeakMemory()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').at(1).toLongLong() * 1024;
    }
    return 0;
}

} // namespace

/// What becomes of files that were cut off, overwritten, made elsewhere or made to do harm.
class DamagedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cutOffAnywhereTheValuesInFrontStay();
    void withAnyByteChangedTheValuesInFrontStay();
    void encodings_data();
    void encodings();
    void entitiesDoNotMultiply_data();
    void entitiesDoNotMultiply();
    void entitiesReadNoFiles();
    void foldersInFoldersEndSomewhere_data();
    void foldersInFoldersEndSomewhere();
    void largeFilesTakeMemoryInProportion_data();
    void largeFilesTakeMemoryInProportion();
    void aFolderInPlaceOfTheFileIsNoFile();
    void aFileInPlaceOfTheFolderIsLeft();
    void inAReadOnlyFolderTheFileItselfIsWritten();
    void aReadOnlyFileIsLeft();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();

private:
    PreferencesController& Controller() const { return *PreferencesController::GetInstance(); }
    QString File() const { return m_application->GetPreferencesPath(true) + "/preferences.xml"; }

    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<TestTree> m_sample;
    QByteArray m_document;
    QList<Place> m_places;
};

void DamagedFileTest::initTestCase()
{
    m_application = std::make_unique<FakeApplication>();
    m_sample = std::make_unique<TestTree>();
    m_sample->flag = true;
    m_sample->bytes = QByteArray("\0\xff<&>", 5);
    m_sample->list = QStringList{"a & b", QString::fromUtf8("gr\xc3\xb6\xc3\x9f" "e"), "]]>"};
    m_sample->number = 7;
    m_sample->inner_flag = true;
    m_sample->collection.Add("one");
    m_sample->collection.Add("two");
    m_document = m_sample->Save();
    for (const char* name : {"Flag", "Bytes", "List", "Number", "InnerFlag", "Collection"}) {
        const QByteArray close = QByteArray("</") + name + '>';
        m_places.append({m_document.indexOf(QByteArray("<") + name + '>'), m_document.indexOf(close) + close.size()});
    }
}

void DamagedFileTest::init()
{
    FakeApplication::RemoveData();
}

void DamagedFileTest::cleanup()
{
    delete RootController::GetInstance();
}

void DamagedFileTest::cutOffAnywhereTheValuesInFrontStay()
{
    for (int cut = 0; cut <= m_document.size(); ++cut) {
        TestTree tree;
        tree.list.ForceSetData({"old"});
        tree.Load(m_document.left(cut));
        tree.AfterLoad();
        const auto in_front = [&](int value) { return m_places.at(value).end <= cut; };
        const auto behind = [&](int value) { return m_places.at(value).begin >= cut; };
        const QByteArray where = "cut off at " + QByteArray::number(cut);
        if (in_front(0) || behind(0))
            QVERIFY2(tree.flag.GetData() == in_front(0), where);
        if (in_front(1) || behind(1))
            QVERIFY2(tree.bytes.GetData() == (in_front(1) ? m_sample->bytes.GetData() : QByteArray()), where);
        // A list is whole or not at all.
        QVERIFY2(tree.list.GetData() == (in_front(2) ? m_sample->list.GetData() : QStringList{"old"}), where);
        if (in_front(3) || behind(3))
            QVERIFY2(tree.number.GetData() == (in_front(3) ? 7 : 42), where);
        if (in_front(4) || behind(4))
            QVERIFY2(tree.inner_flag.GetData() == in_front(4), where);
        const QStringList items = tree.collection.Values();
        if (in_front(5))
            QVERIFY2(items == m_sample->collection.Values(), where);
        else if (behind(5))
            QVERIFY2(items.isEmpty(), where);
        QVERIFY2(items.size() <= 2, where);
    }
}

void DamagedFileTest::withAnyByteChangedTheValuesInFrontStay()
{
    const QByteArray replacements("\0<>&/]\"A\xc3\xff", 10);
    for (int place = 0; place < m_document.size(); ++place) {
        for (int change = 0; change < 8 + replacements.size(); ++change) {
            QByteArray document = m_document;
            const char byte = document.at(place);
            document[place] = change < 8 ? char(byte ^ (1 << change)) : replacements.at(change - 8);
            TestTree tree;
            tree.Load(document);
            tree.AfterLoad();
            // A piece of a file that is no text of its encoding is refused as a whole.
            const bool is_text = !document.contains('\0')
                                 && !QString::fromUtf8(document).contains(QChar::ReplacementCharacter);
            const auto in_front = [&](int value) { return is_text && m_places.at(value).end <= place; };
            const QByteArray where = "change " + QByteArray::number(change) + " at " + QByteArray::number(place);
            QVERIFY2(!in_front(0) || tree.flag.GetData(), where);
            QVERIFY2(!in_front(1) || tree.bytes.GetData() == m_sample->bytes.GetData(), where);
            QVERIFY2(!in_front(2) || tree.list.GetData() == m_sample->list.GetData(), where);
            QVERIFY2(!in_front(3) || tree.number.GetData() == 7, where);
            QVERIFY2(!in_front(4) || tree.inner_flag.GetData(), where);
            QVERIFY2(!in_front(5) || tree.collection.Values() == m_sample->collection.Values(), where);
        }
    }
}

void DamagedFileTest::encodings_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("text");
    const QString content = QString::fromUtf8("<Tree><List><item>gr\xc3\xb6\xc3\x9f" "e</item></List></Tree>");
    const QString text = QString::fromUtf8("gr\xc3\xb6\xc3\x9f" "e");
    const QByteArray utf8 = content.toUtf8();
    const QByteArray latin1 = content.toLatin1();
    const auto utf16 = [&](bool big) {
        QByteArray bytes = big ? QByteArray("\xfe\xff") : QByteArray("\xff\xfe");
        for (const QChar c : content) {
            bytes += big ? char(c.row()) : char(c.cell());
            bytes += big ? char(c.cell()) : char(c.row());
        }
        return bytes;
    };
    QTest::newRow("UTF-8 undeclared") << utf8 << text;
    QTest::newRow("UTF-8 with its mark") << "\xef\xbb\xbf" + utf8 << text;
    QTest::newRow("UTF-16, low bytes first") << utf16(false) << text;
    QTest::newRow("UTF-16, high bytes first") << utf16(true) << text;
    QTest::newRow("Latin-1 declared") << "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + latin1 << text;
    QTest::newRow("Latin-1 undeclared") << latin1 << QString();
    QTest::newRow("Latin-1 that says UTF-8") << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + latin1 << QString();
    QTest::newRow("an encoding that nobody knows")
        << "<?xml version=\"1.0\" encoding=\"x-nobody\"?>" + utf8 << QString();
    QTest::newRow("half of a character at the end") << QByteArray("<Tree><List><item>\xc3") << QString();
    QTest::newRow("an overlong form") << QByteArray("<Tree><List><item>\xc0\xbc</item></List></Tree>") << QString();
    QTest::newRow("a surrogate in UTF-8") << QByteArray("<Tree><List><item>\xed\xa0\x80</item></List></Tree>") << QString();
}

void DamagedFileTest::encodings()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, text);
    TestTree tree;
    tree.list.ForceSetData({QString()});
    tree.Load(document);
    QCOMPARE(tree.list.GetData(), QStringList{text});
}

void DamagedFileTest::entitiesDoNotMultiply_data()
{
    QTest::addColumn<QByteArray>("document");
    QByteArray levels = "<!ENTITY a0 \"ha\">";
    for (int i = 1; i <= 40; ++i)
        levels += "<!ENTITY a" + QByteArray::number(i) + " \""
                  + ("&a" + QByteArray::number(i - 1) + ';').repeated(10) + "\">";
    QTest::newRow("each ten times the last")
        << "<!DOCTYPE Tree [" + levels + "]><Tree><Flag>true</Flag><List><item>&a40;</item></List></Tree>";
    QTest::newRow("one large one often")
        << "<!DOCTYPE Tree [<!ENTITY a \"" + QByteArray(100000, 'x') + "\">]><Tree><Flag>true</Flag><List><item>"
               + QByteArray("&a;").repeated(100000) + "</item></List></Tree>";
    QTest::newRow("in a circle")
        << QByteArray("<!DOCTYPE Tree [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><Tree><Flag>true</Flag>"
                      "<List><item>&a;</item></List></Tree>");
}

void DamagedFileTest::entitiesDoNotMultiply()
{
    QFETCH(QByteArray, document);
    TestTree tree;
    tree.list.ForceSetData({"old"});
    QElapsedTimer timer;
    timer.start();
    tree.Load(document);
    QVERIFY(tree.flag.GetData());
    QCOMPARE(tree.list.GetData(), QStringList{"old"});
    QVERIFY2(timer.elapsed() < 10000, "the entities were unfolded");
}

void DamagedFileTest::entitiesReadNoFiles()
{
    const QString secret = DataHome() + "/secret.txt";
    QVERIFY(WriteFile(secret, "secret"));
    TestTree tree;
    tree.Load("<!DOCTYPE Tree [<!ENTITY x SYSTEM \"" + QUrl::fromLocalFile(secret).toEncoded()
              + "\">]><Tree><List><item>&x;</item></List><Number>7</Number></Tree>");
    QVERIFY(!tree.list.GetData().join(QString()).contains("secret"));
}

void DamagedFileTest::foldersInFoldersEndSomewhere_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<int>("read");
    QTest::newRow("as deep as a host may want") << 500 << true << 500;
    QTest::newRow("far too deep") << 10000 << true << 1000;
    QTest::newRow("far too deep and cut off") << 10000 << false << 1000;
}

void DamagedFileTest::foldersInFoldersEndSomewhere()
{
    QFETCH(int, depth);
    QFETCH(bool, closed);
    QFETCH(int, read);
    Chapter root(nullptr, "Tree");
    FolderCollection folders(root, "Folders");
    Preference<bool> flag(root, "Flag");
    QByteArray document = "<Tree><Folders>" + QByteArray("<f>").repeated(depth);
    if (closed)
        document += QByteArray("</f>").repeated(depth) + "</Folders><Flag>true</Flag></Tree>";
    QXmlStreamReader reader(document);
    root.Load(reader);
    QCOMPARE(folders.Depth(), read);
    QCOMPARE(flag.GetData(), closed);
}

void DamagedFileTest::largeFilesTakeMemoryInProportion_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<QByteArray>("behind");
    QTest::newRow("one text") << QByteArray("<Tree><List><item>") << QByteArray("some text ")
                              << QByteArray("</item></List><Flag>true</Flag></Tree>");
    QTest::newRow("data") << QByteArray("<Tree><Bytes>") << QByteArray("YWJj")
                          << QByteArray("</Bytes><Flag>true</Flag></Tree>");
    QTest::newRow("an unknown element") << QByteArray("<Tree><New>") << QByteArray("some text ")
                                        << QByteArray("</New><Flag>true</Flag></Tree>");
    QTest::newRow("a comment") << QByteArray("<Tree><!--") << QByteArray("some text ")
                               << QByteArray("--><Flag>true</Flag></Tree>");
    QTest::newRow("an attribute") << QByteArray("<Tree a=\"") << QByteArray("some text ")
                                  << QByteArray("\"><Flag>true</Flag></Tree>");
    QTest::newRow("a name") << QByteArray("<Tree><Flag>true</Flag><") << QByteArray("n") << QByteArray("/></Tree>");
    QTest::newRow("blanks") << QByteArray("<Tree>") << QByteArray(" \n") << QByteArray("<Flag>true</Flag></Tree>");
    QTest::newRow("unknown elements") << QByteArray("<Tree>") << QByteArray("<x><y/>z</x>")
                                      << QByteArray("<Flag>true</Flag></Tree>");
    QTest::newRow("items of a list") << QByteArray("<Tree><List>") << QByteArray("<item>some text of an item</item>")
                                     << QByteArray("</List><Flag>true</Flag></Tree>");
}

void DamagedFileTest::largeFilesTakeMemoryInProportion()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, behind);
    constexpr int size = 4 << 20;
    const QString path = DataHome() + "/large.xml";
    QVERIFY(WriteFile(path, before + piece.repeated(size / piece.size()) + behind));
    const qint64 peak = PeakMemory();
    TestTree tree;
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    tree.root.Load(reader);
    QVERIFY(tree.flag.GetData());
#ifndef OVK_MEMORY_IS_WATCHED
    QVERIFY2(PeakMemory() - peak < 16 * qint64(size), QByteArray::number((PeakMemory() - peak) / double(size)));
#else
    Q_UNUSED(peak)
#endif
}

void DamagedFileTest::aFolderInPlaceOfTheFileIsNoFile()
{
    const QString file = File();
    QVERIFY(QDir().mkpath(file));
    Chapter general(&Controller().GetRootChapter(), "General");
    Preference<bool> flag(general, "Flag");
    int calls = 0;
    flag.Attach([&calls] { ++calls; });
    int questions = 0;
    const QString older = m_application->GetPreferencesPath() + m_application->Version(-1).ToString();
    QVERIFY(WriteFile(older + "/preferences.xml", "<PreferencesRoot><General><Flag>true</Flag></General></PreferencesRoot>"));
    Controller().SetUserQuery([&questions] { return ++questions, 1; });
    Controller().OnAppStart();
    QCOMPARE(questions, 1); // there is no file of this version
    QCOMPARE(calls, 1);
    Controller().OnAppShutdown();
    QVERIFY(QFileInfo(file).isDir());
    QCOMPARE(QDir(QFileInfo(file).path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"preferences.xml"});
}

void DamagedFileTest::aFileInPlaceOfTheFolderIsLeft()
{
    QVERIFY(WriteFile(FakeApplication::DataFolder() + "/Preferences", "none"));
    const QString folder = QDir::currentPath();
    QDir::setCurrent(DataHome()); // where a file without a folder would go
    Controller().Save();
    Controller().Reload();
    QDir::setCurrent(folder);
}

void DamagedFileTest::inAReadOnlyFolderTheFileItselfIsWritten()
{
#ifdef Q_OS_LINUX
    const QString file = File();
    const QString folder = QFileInfo(file).path();
    QVERIFY(WriteFile(file, QByteArray(100000, 'x'))); // longer than what comes
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        const ObeyPermissions obey;
        Controller().Save();
    }
    const QByteArray content = ReadFile(file);
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(content.startsWith("<?xml"));
    QVERIFY(content.endsWith(">\n"));
    QVERIFY(!content.contains("xxx"));
    // Without a file there is none to write.
    QVERIFY(QFile::remove(file));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        const ObeyPermissions obey;
        Controller().Save();
        Controller().Reload();
    }
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
#endif
}

void DamagedFileTest::aReadOnlyFileIsLeft()
{
#ifdef Q_OS_LINUX
    const QString file = File();
    const QString folder = QFileInfo(file).path();
    QVERIFY(WriteFile(file, "old"));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        const ObeyPermissions obey;
        Controller().Save();
    }
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(ReadFile(file), QByteArray("old"));
#endif
}

void DamagedFileTest::aFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<bool>("readOnlyFolder");
    for (const bool read_only : {false, true}) {
        for (const int room : {0, 1, 5000, 60000})
            QTest::addRow("room for %d bytes%s", room, read_only ? " in a read-only folder" : "") << room << read_only;
    }
}

void DamagedFileTest::aFullDiskLeavesTheOldFile()
{
#ifdef Q_OS_LINUX
    QFETCH(int, room);
    QFETCH(bool, readOnlyFolder);
    Chapter general(&Controller().GetRootChapter(), "General");
    TextPreference text(general, "text");
    text.SetData(QString(100000, 'x'));
    const QString file = File();
    const QString folder = QFileInfo(file).path();
    const QByteArray old(room, 'o'); // what is on the disk has its room there
    QVERIFY(WriteFile(file, old));
    if (readOnlyFolder)
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    {
        const ObeyPermissions obey;
        const FullDisk full(static_cast<rlim_t>(room));
        Controller().Save();
    }
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(ReadFile(file) == old);
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList{"preferences.xml"});
    // With room again it is written.
    Controller().Save();
    QVERIFY(ReadFile(file).size() > 100000);
#endif
}

OVK_TEST_CLASS(DamagedFileTest)

#include "damaged_file_test.moc"
