#include "tests/support/test_main.h"

#include <QDir>
#include <QFile>

namespace {

QStringList ReadLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return QStringList();
    QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (QString& line : lines) {
        while (line.endsWith(' '))
            line.chop(1);
    }
    return lines;
}

/// The blocks of code of a guide: C++, JSON and CMake.
QList<QStringList> Blocks(const QStringList& guide)
{
    QList<QStringList> blocks;
    bool inside = false;
    for (const QString& line : guide) {
        if (line == "```cpp" || line == "```json" || line == "```cmake") {
            blocks << QStringList();
            inside = true;
        } else if (line == "```") {
            inside = false;
        } else if (inside) {
            blocks.last() << line;
        }
    }
    return blocks;
}

/// True if \a block stands in \a source, line by line, however far it is indented there.
bool StandsIn(const QStringList& block, const QStringList& source)
{
    for (int start = 0; start + block.size() <= source.size(); ++start) {
        const QString& first = source.at(start);
        if (!first.endsWith(block.first()))
            continue;
        const QString indent = first.left(first.size() - block.first().size());
        if (!indent.trimmed().isEmpty())
            continue;
        int line = 0;
        while (line < block.size() &&
               source.at(start + line) == (block.at(line).isEmpty() ? QString() : indent + block.at(line)))
            ++line;
        if (line == block.size())
            return true;
    }
    return false;
}

} // namespace

/// What a guide shows is what was compiled and run.
class GuidesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBlockStandsInItsSource_data();
    void everyBlockStandsInItsSource();
    void aBlockThatDiffersIsSeen();
};

void GuidesTest::everyBlockStandsInItsSource_data()
{
    QTest::addColumn<QString>("guide");
    QTest::addColumn<QStringList>("sources");
    // A guide is checked as soon as it has a source here.
    for (const QString& source : QDir(OVK_GUIDE_SOURCES).entryList({"*_guide.cpp"})) {
        QTest::newRow(qPrintable(source)) << QString(source).replace("_guide.cpp", ".md")
                                          << QStringList{QStringLiteral(OVK_GUIDE_SOURCES "/") + source};
    }
    // The first window is an example that is built and run against the installed library.
    QStringList minimal;
    for (const QFileInfo& file : QDir(OVK_MINIMAL).entryInfoList(QDir::Files))
        minimal << file.filePath();
    QTest::newRow("minimal") << QStringLiteral("first_window.md") << minimal;
    QTest::newRow("README") << QStringLiteral("../README.md") << minimal;
}

void GuidesTest::everyBlockStandsInItsSource()
{
    QFETCH(QString, guide);
    QFETCH(QStringList, sources);
    QStringList lines;
    for (const QString& source : sources)
        lines << ReadLines(source);
    const QList<QStringList> blocks = Blocks(ReadLines(QStringLiteral(OVK_DOCS "/") + guide));
    QVERIFY(!blocks.isEmpty());
    for (const QStringList& block : blocks) {
        QVERIFY(!block.isEmpty());
        QVERIFY2(StandsIn(block, lines), qPrintable("nowhere in " + sources.join(", ") + ":\n" + block.join('\n')));
    }
}

void GuidesTest::aBlockThatDiffersIsSeen()
{
    const QStringList source{"{", "    int a;", "", "    int b;", "}"};
    QVERIFY(StandsIn({"int a;", "", "int b;"}, source));
    QVERIFY(!StandsIn({"int a;", "int b;"}, source));
    QVERIFY(!StandsIn({"int a;", "", "int c;"}, source));
    QVERIFY(!StandsIn({"nt a;"}, source));
}

OVK_TEST_CLASS(GuidesTest)

#include "guides_test.moc"
