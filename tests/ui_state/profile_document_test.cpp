#include "tests/support/test_main.h"

#include <ovk/ui_state/profile_document_p.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest/QtTest>

#include <random>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

Q_DECLARE_METATYPE(ovk::DocumentFormat)

using namespace ovk;

namespace {

QJsonObject Sample()
{
    return QJsonDocument::fromJson(R"({
        "profile": {
            "empty array": [], "empty object": {}, "latin": "text", "wide": "текст ✓",
            "numbers": [0, 1, -1, 2.5, 1e300, 123456789012], "bools": [true, false, null],
            "nested": [[[{"a": [{"b": []}]}]], [[]], {}],
            "layouts": [{"id": "a", "states": {"ribbon": {"pages": [{"id": "p"}]}}}]
        }})")
        .object();
}

void AppendWord(QByteArray& data, quint32 word)
{
    char bytes[4];
    qToLittleEndian(word, bytes);
    data.append(bytes, 4);
}

/// Nested arrays, the innermost empty, as the binary form has them.
QByteArray NestedArrays(int depth)
{
    QByteArray inner;
    AppendWord(inner, 12);
    AppendWord(inner, 0);
    AppendWord(inner, 12);
    std::vector<QByteArray> heads;
    int size = 12;
    QByteArray tail;
    QByteArray data("qbjs", 4);
    AppendWord(data, 1);
    // Each level: its head, the array inside, then the table of one value.
    std::vector<int> sizes;
    for (int i = 1; i < depth; ++i) {
        size += 16;
        sizes.push_back(size);
    }
    for (auto level = sizes.rbegin(); level != sizes.rend(); ++level) {
        AppendWord(data, quint32(*level));
        AppendWord(data, 1 << 1);
        AppendWord(data, quint32(*level - 4));
    }
    data += inner;
    for (int i = 1; i < depth; ++i)
        AppendWord(data, 4u | (12u << 5));
    return data;
}

/// Arrays of which each holds the next twice: small, and as a tree two to the power of its levels.
QByteArray SharedArrays(int levels)
{
    QByteArray data("qbjs", 4);
    AppendWord(data, 1);
    std::vector<quint32> sizes{12};
    for (int i = 1; i < levels; ++i)
        sizes.push_back(sizes.back() + 20);
    for (auto size = sizes.rbegin(); size != sizes.rend(); ++size) {
        AppendWord(data, *size);
        AppendWord(data, *size == 12 ? 0 : 2 << 1);
        AppendWord(data, *size == 12 ? 12 : *size - 8);
    }
    for (int i = 1; i < levels; ++i) {
        AppendWord(data, 4u | (12u << 5));
        AppendWord(data, 4u | (12u << 5));
    }
    return data;
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ProfileDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothFormsReadBackWhatTheyWrote()
    {
        for (const auto format : {DocumentFormat::Binary, DocumentFormat::Json}) {
            const QByteArray data = FormatDocument(Sample(), format);
            QVERIFY(!data.isEmpty());
            const auto root = ParseDocument(data, format);
            QVERIFY(root);
            QCOMPARE(*root, Sample());
        }
    }

    void theTextIsIndentedUtf8()
    {
        const QByteArray text = FormatDocument(Sample(), DocumentFormat::Json);
        QCOMPARE(text, QJsonDocument(Sample()).toJson(QJsonDocument::Indented));
        QVERIFY(text.contains(QStringLiteral("текст ✓").toUtf8()));
    }

    void eachFormRefusesTheOther()
    {
        QVERIFY(
            !ParseDocument(FormatDocument(Sample(), DocumentFormat::Json), DocumentFormat::Binary));
        QVERIFY(
            !ParseDocument(FormatDocument(Sample(), DocumentFormat::Binary), DocumentFormat::Json));
    }

    void badDataIsNoDocument_data()
    {
        QTest::addColumn<QByteArray>("data");
        const QByteArray text = FormatDocument(Sample(), DocumentFormat::Json);
        const QString wide = QString::fromUtf8(text);
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("blank") << QByteArray("  \n");
        QTest::newRow("one byte") << QByteArray("{");
        QTest::newRow("null") << QByteArray("null");
        QTest::newRow("array") << QByteArray("[{\"profile\": {}}]");
        QTest::newRow("text behind") << text + "x";
        QTest::newRow("half") << text.left(text.size() / 2);
        QTest::newRow("utf-16") << QByteArray(reinterpret_cast<const char*>(wide.utf16()),
                                              wide.size() * 2);
        QTest::newRow("latin-1") << QByteArray("{\"profile\": \"\xe4\xf6\xfc\"}");
        QTest::newRow("too deep") << QByteArray(100000, '[');
        QTest::newRow("too deep, closed")
            << "{\"a\":" + QByteArray(2000, '[') + QByteArray(2000, ']') + "}";
        QTest::newRow("zeros") << QByteArray(4096, '\0');
        QTest::newRow("magic alone") << QByteArray("qbjs");
        QTest::newRow("magic and zeros") << "qbjs" + QByteArray(4096, '\0');
        QTest::newRow("magic and ones")
            << "qbjs" + QByteArray("\1\0\0\0", 4) + QByteArray(4096, '\xff');
        QTest::newRow("binary, too deep") << NestedArrays(200000);
        QTest::newRow("binary, shared parts") << SharedArrays(64);
    }

    void badDataIsNoDocument()
    {
        QFETCH(QByteArray, data);
        QVERIFY(!ParseDocument(data, DocumentFormat::Json));
        QVERIFY(!ParseDocument(data, DocumentFormat::Binary));
    }

    void theDepthOfABinaryIsThatOfAText()
    {
        QVERIFY(IsSoundBinaryJson(NestedArrays(1)));
        QVERIFY(IsSoundBinaryJson(NestedArrays(1024)));
        QVERIFY(!IsSoundBinaryJson(NestedArrays(1025)));
        QVERIFY(!IsSoundBinaryJson(SharedArrays(64)));
    }

    void everyBinaryOfQtIsSound()
    {
        constexpr unsigned seed = 77;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const std::function<QJsonValue(int)> value = [&](int depth) -> QJsonValue {
            switch (depth > 0 ? random() % 7 : random() % 5) {
            case 0:
                return QJsonValue();
            case 1:
                return random() % 2 == 0;
            case 2:
                return double(random()) / 7;
            case 3:
                return int(random() % 100000);
            case 4:
                return QString(int(random() % 20), random() % 2 ? QLatin1Char('a') : QChar(0x416));
            case 5: {
                QJsonArray array;
                for (int i = int(random() % 6); i > 0; --i)
                    array.append(value(depth - 1));
                return array;
            }
            default: {
                QJsonObject object;
                for (int i = int(random() % 6); i > 0; --i)
                    object.insert(QString::number(random() % 50), value(depth - 1));
                return object;
            }
            }
        };
        for (int round = 0; round < 500; ++round) {
            QJsonObject root;
            root.insert(QStringLiteral("a"), value(6));
            root.insert(QStringLiteral("b"), value(6));
            const QByteArray data = FormatDocument(root, DocumentFormat::Binary);
            QVERIFY(IsSoundBinaryJson(data));
            const auto read = ParseDocument(data, DocumentFormat::Binary);
            QVERIFY(read);
            QCOMPARE(*read, root);
        }
    }

    void aDamagedBinaryDoesNoHarm()
    {
        constexpr unsigned seed = 4711;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const QByteArray whole = FormatDocument(Sample(), DocumentFormat::Binary);
        for (int size = 0; size < whole.size(); ++size)
            QVERIFY(!ParseDocument(whole.left(size), DocumentFormat::Binary));
        for (int round = 0; round < 20000; ++round) {
            QByteArray data = whole;
            for (int i = int(random() % 4); i >= 0; --i)
                data[int(random() % unsigned(data.size()))] = char(random());
            if (const auto root = ParseDocument(data, DocumentFormat::Binary))
                QJsonDocument(*root).toJson();
        }
    }

    void aDamagedTextDoesNoHarm()
    {
        constexpr unsigned seed = 4712;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const QByteArray whole = FormatDocument(Sample(), DocumentFormat::Json);
        for (int round = 0; round < 5000; ++round) {
            QByteArray data = whole;
            for (int i = int(random() % 4); i >= 0; --i)
                data[int(random() % unsigned(data.size()))] = char(random());
            if (const auto root = ParseDocument(data, DocumentFormat::Json))
                QJsonDocument(*root).toJson();
        }
    }

    void aFileThatIsMissingOrAFolderIsNoDocument()
    {
        const QTemporaryDir folder;
        QVERIFY(!ReadDocument(folder.filePath(QStringLiteral("none.json")), DocumentFormat::Json));
        QVERIFY(!ReadDocument(folder.path(), DocumentFormat::Json));
        QVERIFY(!ReadDocument(QString(), DocumentFormat::Binary));
    }

    void aWriteReplacesTheFileWhole()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.json"));
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(WriteDocument(path, Sample(), DocumentFormat::Json), WriteResult::Written);
            QCOMPARE(*ReadDocument(path, DocumentFormat::Json), Sample());
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("a.json")});
    }

    void aFolderInTheWayIsNotOpened()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("a.json")));
        QCOMPARE(WriteDocument(folder.filePath(QStringLiteral("a.json")), Sample(),
                               DocumentFormat::Json),
                 WriteResult::NotOpened);
        QCOMPARE(WriteDocument(folder.filePath(QStringLiteral("no/a.json")), Sample(),
                               DocumentFormat::Json),
                 WriteResult::NotOpened);
    }

#ifdef Q_OS_UNIX
    void aFullDiskLeavesTheOldFileWhole_data()
    {
        FormatRows();
    }
    void aFullDiskLeavesTheOldFileWhole()
    {
        QFETCH(DocumentFormat, format);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("profile"));
        QCOMPARE(WriteDocument(path, Sample(), format), WriteResult::Written);
        const QByteArray old = Contents(path);
        {
            const FileSizeLimit limit(64 * 1024);
            QCOMPARE(WriteDocument(path, Large(), format), WriteResult::Failed);
        }
        QCOMPARE(Contents(path), old);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList{QStringLiteral("profile")});
    }

    void aKillInTheMiddleLeavesAWholeFile_data()
    {
        FormatRows();
    }
    void aKillInTheMiddleLeavesAWholeFile()
    {
        QFETCH(DocumentFormat, format);
        constexpr unsigned seed = 9;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("profile"));
        const QJsonObject large = Large();
        QCOMPARE(WriteDocument(path, Sample(), format), WriteResult::Written);
        for (int round = 0; round < 20; ++round) {
            int ready[2];
            QCOMPARE(pipe(ready), 0);
            const pid_t child = fork();
            if (child == 0) {
                const bool told = write(ready[1], "x", 1) == 1;
                while (told) {
                    WriteDocument(path, large, format);
                    WriteDocument(path, Sample(), format);
                }
                _exit(1);
            }
            char byte = 0;
            QCOMPARE(read(ready[0], &byte, 1), ssize_t(1));
            QElapsedTimer timer;
            timer.start();
            while (timer.nsecsElapsed() < qint64(random() % 8000000)) {
            }
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            close(ready[0]);
            close(ready[1]);
            const auto root = ReadDocument(path, format);
            QVERIFY(root);
            QVERIFY(*root == Sample() || *root == large);
        }
    }

private:
    static void FormatRows()
    {
        QTest::addColumn<DocumentFormat>("format");
        QTest::newRow("text") << DocumentFormat::Json;
        QTest::newRow("binary") << DocumentFormat::Binary;
    }

    static QJsonObject Large()
    {
        QJsonObject large = Sample();
        large.insert(QStringLiteral("large"), QString(300000, QLatin1Char('x')));
        return large;
    }

    /// Stands for the full disk: a write beyond the limit fails in the middle.
    class FileSizeLimit
    {
    public:
        explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
        {
            getrlimit(RLIMIT_FSIZE, &m_former);
            rlimit limit = m_former;
            limit.rlim_cur = bytes;
            setrlimit(RLIMIT_FSIZE, &limit);
        }
        ~FileSizeLimit()
        {
            setrlimit(RLIMIT_FSIZE, &m_former);
            std::signal(SIGXFSZ, m_handler);
        }
        Q_DISABLE_COPY(FileSizeLimit)

    private:
        rlimit m_former{};
        void (*m_handler)(int);
    };
#endif
};

OVK_TEST_CLASS(ProfileDocumentTest)

#include "profile_document_test.moc"
