#include "tests/support/test_main.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

/// The operations that the public part of a header declares, each as Class::name, without those
/// that override what Qt or a base declares.
QStringList Operations(const QString& header)
{
    QString text = header;
    text.remove(QRegularExpression(QStringLiteral("//[^\n]*")));
    text.remove(QRegularExpression(QStringLiteral("Q_PROPERTY\\([^\n]*(\n[^\n]*)?\\)")));
    QStringList found;
    QString owner;
    bool is_public = false;
    QString statement;
    static const QRegularExpression call(QStringLiteral("([~\\w]+)\\("));
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QString trimmed = line.trimmed();
        const QRegularExpressionMatch named =
            QRegularExpression(QStringLiteral("^class OVK_EXPORT (\\w+)")).match(line);
        if (named.hasMatch()) {
            owner = named.captured(1);
            is_public = false;
            statement.clear();
            continue;
        }
        if (trimmed == QLatin1String("public:") || trimmed == QLatin1String("Q_SIGNALS:")) {
            is_public = true;
            statement.clear();
            continue;
        }
        if (trimmed == QLatin1String("protected:") || trimmed == QLatin1String("private:") ||
            line == QLatin1String("};")) {
            is_public = false;
            continue;
        }
        if (!is_public || owner.isEmpty() || trimmed.startsWith(QLatin1String("Q_")))
            continue;
        statement += QLatin1Char(' ') + trimmed;
        if (!trimmed.endsWith(QLatin1Char(';')) && !trimmed.endsWith(QLatin1Char('}')))
            continue;
        const QRegularExpressionMatch match = call.match(statement);
        const bool counts = match.hasMatch() && !statement.contains(QLatin1String("override")) &&
                            !statement.contains(QLatin1String("enum ")) &&
                            !match.captured(1).startsWith(QLatin1Char('~')) &&
                            !statement.contains(QLatin1String("= delete"));
        if (counts)
            found.append(owner + QLatin1String("::") + match.captured(1));
        statement.clear();
    }
    found.removeDuplicates();
    return found;
}

const QStringList& Headers()
{
    static const QStringList headers = [] {
        QStringList list;
        for (const QString& name : QDir(OVK_QTITAN_SOURCES).entryList({QStringLiteral("*.h")}))
            if (!name.endsWith(QLatin1String("_p.h")))
                list.append(name);
        return list;
    }();
    return headers;
}

/// A row of the guide: the operations that it names and the tests that it refers to.
struct Row
{
    QString section;
    QStringList operations;
    QStringList tests;
};

QList<Row> Rows()
{
    QList<Row> rows;
    QString section;
    static const QRegularExpression code(QStringLiteral("`([^`]+)`"));
    static const QRegularExpression name(QStringLiteral("^~?(\\w+)"));
    for (const QString& line :
         Read(QStringLiteral(OVK_DOCS "/ribbon.md")).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String("### ")))
            section = line.mid(4).trimmed();
        else if (line.startsWith(QLatin1String("## ")))
            section.clear();
        const QStringList cells = line.split(QLatin1Char('|'));
        if (section.isEmpty() || cells.size() != 6 ||
            cells.at(1).startsWith(QLatin1String("---")) ||
            cells.at(1).trimmed() == QLatin1String("Operation"))
            continue;
        Row row;
        row.section = section;
        for (auto it = code.globalMatch(cells.at(1)); it.hasNext();)
            row.operations.append(name.match(it.next().captured(1)).captured(1));
        for (auto it = code.globalMatch(cells.at(4)); it.hasNext();)
            row.tests.append(it.next().captured(1));
        rows.append(row);
    }
    return rows;
}

/// The source of a test class, from anywhere in the tests.
QString SourceOf(const QString& test_class)
{
    const QString registration = QStringLiteral("OVK_TEST_CLASS(%1)").arg(test_class);
    for (const QString& folder : QDir(OVK_TESTS).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (const QString& file :
             QDir(QStringLiteral(OVK_TESTS "/") + folder).entryList({QStringLiteral("*.cpp")})) {
            const QString text =
                Read(QStringLiteral(OVK_TESTS "/") + folder + QLatin1Char('/') + file);
            if (text.contains(registration))
                return text;
        }
    return QString();
}

} // namespace

/// The guide to the ribbon names every operation, and a test for each.
class RibbonGuideTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyOperationIsInTheGuide_data()
    {
        QTest::addColumn<QString>("header");
        for (const QString& header : Headers())
            QTest::newRow(qPrintable(header)) << header;
        QVERIFY(Headers().size() > 12);
    }

    void everyOperationIsInTheGuide()
    {
        QFETCH(QString, header);
        QHash<QString, QStringList> documented;
        for (const Row& row : Rows())
            documented[row.section] += row.operations;
        QStringList missing;
        for (const QString& operation :
             Operations(Read(QStringLiteral(OVK_QTITAN_SOURCES "/") + header))) {
            const QStringList parts = operation.split(QStringLiteral("::"));
            if (!documented.value(parts.first()).contains(parts.last()))
                missing.append(operation);
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QStringLiteral(", "))));
    }

    void everyOperationOfTheGuideHasATest_data()
    {
        QTest::addColumn<QString>("section");
        QSet<QString> seen;
        for (const Row& row : Rows()) {
            if (seen.contains(row.section))
                continue;
            seen.insert(row.section);
            QTest::newRow(qPrintable(row.section)) << row.section;
        }
        QVERIFY(seen.size() > 12);
    }

    void everyOperationOfTheGuideHasATest()
    {
        QFETCH(QString, section);
        QHash<QString, QString> sources;
        QStringList wrong;
        for (const Row& row : Rows()) {
            if (row.section != section)
                continue;
            if (row.operations.isEmpty() || row.tests.isEmpty())
                wrong.append(QStringLiteral("a row of %1 without operation or test").arg(section));
            QString all;
            for (const QString& test : row.tests) {
                if (!sources.contains(test))
                    sources.insert(test, SourceOf(test));
                if (sources.value(test).isEmpty())
                    wrong.append(QStringLiteral("there is no %1").arg(test));
                all += sources.value(test);
            }
            for (const QString& operation : row.operations)
                if (!all.contains(QRegularExpression(QStringLiteral("\\b%1\\b").arg(operation))))
                    wrong.append(QStringLiteral("%1 is not in %2")
                                     .arg(operation, row.tests.join(QStringLiteral(", "))));
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QStringLiteral("; "))));
    }
};

OVK_TEST_CLASS(RibbonGuideTest)

#include "ribbon_guide_test.moc"
