#include "tests/support/fake_application.h"

#include <ovk/core/save_file_p.h>

#ifdef Q_OS_UNIX
#    include <csignal>
#    include <sys/resource.h>
#endif

using namespace ovk;
using namespace ovk_test;

/// A crash or a full disk never destroys the old file.
class SaveFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewFileIsWritten();
    void aFailureLeavesTheOldFileWhole();
    void theOldFileIsWholeWhileTheNewOneIsWritten();
    void anExceptionLeavesTheOldFileWhole();
    void aFullDiskLeavesTheOldFileWhole();
    void aFolderThatIsNotThereIsNoFile();

private:
    QString m_path;
};

void SaveFileTest::init()
{
    m_path = DataHome() + "/save/file.txt";
    QVERIFY(WriteFile(m_path, "old"));
}

void SaveFileTest::aNewFileIsWritten()
{
    QVERIFY(SaveFile(m_path, [](QIODevice& file) { return file.write("new") == 3; }));
    QCOMPARE(ReadFile(m_path), QByteArray("new"));
    QCOMPARE(QDir(DataHome() + "/save").entryList(QDir::Files | QDir::Hidden), QStringList{"file.txt"});
}

void SaveFileTest::aFailureLeavesTheOldFileWhole()
{
    QVERIFY(!SaveFile(m_path, [](QIODevice& file) {
        file.write("half");
        return false;
    }));
    QCOMPARE(ReadFile(m_path), QByteArray("old"));
    QCOMPARE(QDir(DataHome() + "/save").entryList(QDir::Files | QDir::Hidden), QStringList{"file.txt"});
}

void SaveFileTest::theOldFileIsWholeWhileTheNewOneIsWritten()
{
    // What a process that is killed here leaves behind.
    QByteArray meanwhile;
    QVERIFY(SaveFile(m_path, [&](QIODevice& file) {
        file.write(QByteArray(1 << 20, 'x'));
        meanwhile = ReadFile(m_path);
        return true;
    }));
    QCOMPARE(meanwhile, QByteArray("old"));
}

void SaveFileTest::anExceptionLeavesTheOldFileWhole()
{
    QVERIFY_EXCEPTION_THROWN(SaveFile(m_path,
                                      [](QIODevice& file) -> bool {
                                          file.write("half");
                                          throw std::runtime_error("no");
                                      }),
                             std::runtime_error);
    QCOMPARE(ReadFile(m_path), QByteArray("old"));
}

void SaveFileTest::aFullDiskLeavesTheOldFileWhole()
{
#ifdef Q_OS_UNIX
    // Past this size the system refuses to write, as a full disk does.
    rlimit before = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit limited = before;
    limited.rlim_cur = 64 * 1024;
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limited), 0);
    const bool saved = SaveFile(m_path, [](QIODevice& file) {
        file.write(QByteArray(1 << 20, 'x')); // that this fails is seen at the end at the latest
        return true;
    });
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    QVERIFY(!saved);
    QCOMPARE(ReadFile(m_path), QByteArray("old"));
    QCOMPARE(QDir(DataHome() + "/save").entryList(QDir::Files | QDir::Hidden), QStringList{"file.txt"});
#endif
}

void SaveFileTest::aFolderThatIsNotThereIsNoFile()
{
    QVERIFY(!SaveFile(DataHome() + "/none/file.txt", [](QIODevice&) { return true; }));
    QVERIFY(!SaveFile(DataHome() + "/save", [](QIODevice&) { return true; }));
}

OVK_TEST_CLASS(SaveFileTest)

#include "save_file_test.moc"
