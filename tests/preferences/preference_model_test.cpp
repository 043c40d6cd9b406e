#include "preference_test_support.h"

#include "tests/support/fake_application.h"

#include <ovk/core/root_controller.h>
#include <ovk/preferences/legacy_preferences_p.h>
#include <ovk/preferences/preference_conversion_p.h>

#include <QRandomGenerator>
#include <QTextStream>

using namespace ovk;
using namespace ovk_test;

namespace {

constexpr quint32 Seed = 20240607;

/// Random numbers of a fixed seed, which is printed so that a failure can be looked into.
class Random
{
public:
    explicit Random(quint32 seed) : m_generator(seed) { qInfo("seed %u", seed); }

    int Below(int bound) { return int(m_generator.bounded(quint32(bound))); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <class List>
    auto One(const List& list)
    {
        return list[Below(int(list.size()))];
    }
    QString Text(int longest)
    {
        static const QStringList s_pieces{
            "a", "Z", "0", " ", "  ", "\n", "\t", "\r", "\r\n", "<", ">", "&", "\"", "'", "]]>", "<!--", "&amp;", "&#13;",
            "<item>", "</", "true", ";", "/", "%1", QString(QChar(0x00e4)), QString(QChar(0x4e2d)), QString(QChar(0x200f)),
            QString(QChar(0x2028)), QString(QChar(0x00a0)), QString(QChar(0xfeff)), QString(QChar(0xfffd)),
            QString::fromUtf8("\xf0\x9f\x98\x80")};
        QString text;
        for (int i = Below(longest + 1); i > 0; --i)
            text += One(s_pieces);
        return text;
    }
    QByteArray Bytes(int longest)
    {
        QByteArray bytes;
        for (int i = Below(longest + 1); i > 0; --i)
            bytes += char(Below(256));
        return bytes;
    }

private:
    QRandomGenerator m_generator;
};

/// A tree of chapters with preferences of all kinds, the same for the same random numbers.
class RandomTree
{
public:
    explicit RandomTree(quint32 seed) : m_generator(seed) { Fill(root, 0); }

    QByteArray Save()
    {
        QByteArray document;
        QXmlStreamWriter writer(&document);
        writer.writeStartDocument();
        root.Save(writer);
        writer.writeEndDocument();
        return document;
    }

    bool Load(const QByteArray& document)
    {
        QXmlStreamReader reader(document);
        root.Load(reader);
        return !reader.hasError();
    }

    /// New values, which come from \a random.
    void Change(Random& random)
    {
        for (auto& flag : flags)
            *flag = random.Chance(50);
        for (auto& number : numbers)
            number->SetData(random.Below(1 << 30) - (1 << 29));
        for (auto& text : texts)
            text->SetData(random.Text(12));
        for (auto& data : bytes)
            *data = random.Bytes(40);
        for (auto& list : lists) {
            QStringList items;
            for (int i = random.Below(5); i > 0; --i)
                items << random.Text(6);
            *list = items;
        }
        for (auto& collection : collections) {
            collection->Clear();
            for (int i = random.Below(4); i > 0; --i)
                collection->Add(random.Text(6));
        }
    }

    QVariantList Values() const
    {
        QVariantList values;
        for (const auto& flag : flags)
            values << flag->GetData();
        for (const auto& number : numbers)
            values << number->GetData();
        for (const auto& text : texts)
            values << text->GetData();
        for (const auto& data : bytes)
            values << data->GetData();
        for (const auto& list : lists)
            values << list->GetData();
        for (const auto& collection : collections)
            values << collection->Values();
        return values;
    }

    Chapter root{nullptr, "Tree"};
    std::vector<std::unique_ptr<Chapter>> chapters;
    std::vector<std::unique_ptr<Preference<bool>>> flags;
    std::vector<std::unique_ptr<NumberPreference>> numbers;
    std::vector<std::unique_ptr<TextPreference>> texts;
    std::vector<std::unique_ptr<Preference<QByteArray>>> bytes;
    std::vector<std::unique_ptr<Preference<QStringList>>> lists;
    std::vector<std::unique_ptr<TextCollection>> collections;

private:
    void Fill(Chapter& chapter, int depth)
    {
        const int count = int(m_generator.bounded(8u)) + (depth == 0 ? 4 : 0);
        for (int i = 0; i < count; ++i) {
            const QString name = QString("Item.%1-%2").arg(depth).arg(i);
            switch (m_generator.bounded(depth < 5 ? 8u : 6u)) {
            case 0: flags.push_back(std::make_unique<Preference<bool>>(chapter, name)); break;
            case 1: numbers.push_back(std::make_unique<NumberPreference>(chapter, name, 0)); break;
            case 2: texts.push_back(std::make_unique<TextPreference>(chapter, name)); break;
            case 3: bytes.push_back(std::make_unique<Preference<QByteArray>>(chapter, name)); break;
            case 4: lists.push_back(std::make_unique<Preference<QStringList>>(chapter, name)); break;
            case 5: collections.push_back(std::make_unique<TextCollection>(chapter, name)); break;
            default:
                chapters.push_back(std::make_unique<Chapter>(&chapter, name));
                Fill(*chapters.back(), depth + 1);
            }
        }
    }

    QRandomGenerator m_generator;
};

/// A legacy document in the making, and the map that is to come out of it.
class LegacyDocument
{
public:
    explicit LegacyDocument(Random& random) : m_random(random)
    {
        document = "<Preferences>";
        Content({"preferences"}, 0);
        document += "</Preferences>";
    }

    QByteArray document;
    QMap<QString, QString> values;

private:
    void Content(const QStringList& path, int depth)
    {
        static const QStringList s_names{"A", "a", "B", "Mouse_Shortcut", "mouse_shortcut", "mouse_shortcuts",
                                         "MOUSE_SHORTCUTS", "Key"};
        for (int i = m_random.Below(6); i > 0; --i) {
            if (m_random.Chance(40)) {
                Text(path);
                document += "<!-- between -->"; // two texts side by side are one
                continue;
            }
            const QString name = m_random.One(s_names);
            document += '<' + name.toLatin1() + '>';
            m_in_block = m_in_block || name == "mouse_shortcuts";
            if (depth < 5)
                Content(path + QStringList(name.toLower()), depth + 1);
            document += "</" + name.toLatin1() + '>';
            if (name == "Mouse_Shortcut")
                m_separator = ";";
            if (name == "mouse_shortcuts") {
                m_separator = ";;";
                m_in_block = false;
            }
        }
    }

    void Text(const QStringList& path)
    {
        const QString text = m_random.One(QStringList{"1", "ctrl", " ", "\n", "x y"});
        document += text.toLatin1();
        QString key = path.join('/');
        values[key] = values.contains(key) ? values[key] + (m_in_block ? m_separator : QString(";")) + text : text;
    }

    Random& m_random;
    QString m_separator;
    bool m_in_block = false;
};

/// The rule for one path as it is told, without any haste.
void MapSlowly(QString& path, int& converter, PathDirection direction)
{
    const auto& rows = PreferenceConversions();
    for (int i = 0; i < int(rows.size()); ++i) {
        const PreferenceConversion& row = rows[size_t(i)];
        const bool to_old = direction == PathDirection::NewToOld;
        const QString key = (to_old ? row.newPath : row.oldPath).toLower();
        const QString other = (to_old ? row.oldPath : row.newPath).toLower();
        const int position = path.indexOf(key, 0, Qt::CaseSensitive);
        if (position < 0)
            continue;
        const int end = position + key.size();
        if (end == path.size()) {
            converter = i;
            path = path.left(position) + other;
        } else if ((position == 0 || path.at(position - 1) == '/') && path.at(end) == '/') {
            path = path.left(position) + other + path.mid(end);
        }
    }
}

} // namespace

/// Random trees, documents, paths and folders beside plain models of what is to come out.
class PreferenceModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTreeIsReadBackAsItWas();
    void legacyDocumentsAreFlattened();
    void pathsAreMappedByTheWholeHistory();
    void theNewestOlderFolderIsTaken();
};

void PreferenceModelTest::everyTreeIsReadBackAsItWas()
{
    Random random(Seed);
    for (quint32 shape = 0; shape < 200; ++shape) {
        RandomTree tree(shape);
        tree.Change(random);
        const QByteArray document = tree.Save();
        RandomTree other(shape);
        other.Change(random); // values that must go
        QVERIFY(other.Load(document));
        QVERIFY2(other.Values() == tree.Values(), QByteArray::number(shape));
        QCOMPARE(other.Save(), document);
        // A tree of another shape takes from it what it knows, and no harm.
        RandomTree stranger(shape + 1000);
        stranger.Load(document);
        const QByteArray stranger_document = stranger.Save();
        QVERIFY(stranger.Load(stranger_document));
        QCOMPARE(stranger.Save(), stranger_document);
    }
}

void PreferenceModelTest::legacyDocumentsAreFlattened()
{
    Random random(Seed + 1);
    for (int i = 0; i < 500; ++i) {
        const LegacyDocument legacy(random);
        QXmlStreamReader reader(legacy.document);
        QMap<QString, QString> values;
        QString lines;
        QTextStream stream(&lines);
        FlattenLegacyDocument(reader, values, &stream);
        QVERIFY(!reader.hasError());
        QVERIFY2(values == legacy.values, legacy.document);
        QString expected;
        for (auto value = legacy.values.begin(); value != legacy.values.end(); ++value)
            expected += value.key() + '=' + value.value() + '\n';
        QCOMPARE(lines, expected);
    }
}

void PreferenceModelTest::pathsAreMappedByTheWholeHistory()
{
    Random random(Seed + 2);
    QStringList pieces{"general", "x", "ui", "my", "", "a"};
    for (const PreferenceConversion& row : PreferenceConversions())
        pieces << row.oldPath.toLower() << row.newPath.toLower() << row.newPath << row.oldPath.section('/', -1).toLower()
               << row.newPath.section('/', 0, 0).toLower();
    int changed = 0;
    for (int i = 0; i < 5000; ++i) {
        QString path = random.Chance(50) ? "preferencesroot/" : "preferences/";
        for (int step = random.Below(4); step >= 0; --step) {
            path += random.One(pieces);
            // Steps that touch each other make words that hold a key.
            path += random.Chance(70) ? QString("/") : random.One(QStringList{"", "_", "m_", "s"});
        }
        if (random.Chance(80) && path.endsWith('/'))
            path.chop(1);
        for (const PathDirection direction : {PathDirection::NewToOld, PathDirection::OldToNew}) {
            QString slow = path;
            int row = -1;
            MapSlowly(slow, row, direction);
            QString mapped = path;
            PreferenceConverter converter = preference_converters::KeepText;
            MapPreferencePath(mapped, converter, direction);
            QCOMPARE(mapped, slow);
            changed += mapped != path;
            for (const char* probe : {"true", "1.5", "1 2", "1", "0 0 0 0", "0 1 0 0 0"}) {
                const QString value = row < 0 ? QString(probe) : PreferenceConversions()[size_t(row)].converter(probe);
                QCOMPARE(converter(probe), value);
            }
        }
    }
    QVERIFY(changed > 1000); // or the paths are no test
}

void PreferenceModelTest::theNewestOlderFolderIsTaken()
{
    const FakeApplication application;
    Random random(Seed + 3);
    const QStringList words{"backup", "1.0.0", "1.0.0.0.0", "a.b.c.d", "1.2.3.x", "0.0.0.0", "v1.0.0.0", "...", "1..0.0"};
    const QStringList files{"preferences.xml", "xpf_defaults.xml", "other.xml", "notes.txt", "xml", "preferences.xml.bak"};
    for (int round = 0; round < 60; ++round) {
        FakeApplication::RemoveData();
        VersionInfo best;
        QString best_file;
        for (int i = random.Below(8); i > 0; --i) {
            // Folders of this application's neighbourhood, of long ago, of the future, and of no version.
            const int difference = random.Below(9) - 6;
            const VersionInfo version = random.Chance(70) ? application.Version(difference)
                                                          : VersionInfo(random.Below(3), random.Below(12), random.Below(3), 1);
            const bool is_version = random.Chance(75);
            const QString folder = (random.Chance(20) ? QString("inner/") : QString())
                                   + (is_version ? version.ToString() : random.One(words));
            const QString file = random.One(files);
            QVERIFY(WriteFile(application.GetPreferencesPath() + folder + '/' + file, "<PreferencesRoot/>"));
            if (!is_version || !file.endsWith(".xml") || !(version < application.GetVersionInfo()) || !(version > best))
                continue;
            best = version;
        }
        PreferencesController& controller = *PreferencesController::GetInstance();
        int questions = 0;
        controller.SetUserQuery([&questions] { return ++questions, 2; });
        QStringList log;
        controller.SetLogger([&log](const QString& line) { log << line; });
        const bool is_current = QFile::exists(application.GetPreferencesPath(false) + "/preferences.xml");
        controller.OnAppStart();
        const bool expected = !is_current && best > VersionInfo();
        QCOMPARE(questions, expected ? 1 : 0);
        for (const QString& line : qAsConst(log))
            QCOMPARE(line, "Update preferences from version: " + best.ToString());
        QVERIFY(log.size() <= questions);
        delete RootController::GetInstance();
    }
}

OVK_TEST_CLASS(PreferenceModelTest)

#include "preference_model_test.moc"
