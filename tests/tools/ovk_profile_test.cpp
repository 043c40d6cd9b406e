#include "tests/support/fake_host.h"
#include "tests/support/test_main.h"

#include "tool.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest/QtTest>

namespace {

QJsonObject Object(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(json, &error).object();
    if (error.error != QJsonParseError::NoError)
        qWarning("%s", qPrintable(error.errorString()));
    return object;
}

/// A profile with this ribbon in the layout "Model".
QByteArray Ribbon(const QByteArray& pages, const QByteArray& more = {})
{
    return "{\"profile\": {\"version\": \"1.0.0.0\", \"product\": \"Fake\", \"counter\": 1" + more +
           ", \"layouts\": [{\"id\": \"Model\", \"states\": {\"ribbon\": {\"id\": \"ribbon\", "
           "\"pages\": [" +
           pages + "]}}}]}}";
}

/// That many spots of different commands.
QByteArray Spots(int count)
{
    QByteArrayList spots;
    for (int i = 0; i < count; ++i)
        spots << "{\"id\": \"c" + QByteArray::number(i) + "\"}";
    return spots.join(", ");
}

} // namespace

class OvkProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mp_folder = std::make_unique<QTemporaryDir>(); }

    // The command line.

    void helpIsFineAndAnythingUnknownIsUnusable_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::newRow("nothing") << QStringList{} << 2;
        QTest::newRow("help") << QStringList{"--help"} << 0;
        QTest::newRow("short help") << QStringList{"-h"} << 0;
        QTest::newRow("unknown command") << QStringList{"burn"} << 2;
        QTest::newRow("unknown option") << QStringList{"show", "--burn", "x"} << 2;
        QTest::newRow("too few files") << QStringList{"diff", "x"} << 2;
        QTest::newRow("a file that is not named as output")
            << QStringList{"convert", "x", "y"} << 2;
        QTest::newRow("too many files") << QStringList{"show", "x", "y"} << 2;
        QTest::newRow("no such file") << QStringList{"show", "/no/such/file.json"} << 2;
        for (const char* command : {"show", "check", "diff", "convert", "merge", "catalogue"})
            QTest::newRow(command) << QStringList{command, "--help"} << 0;
    }

    void helpIsFineAndAnythingUnknownIsUnusable()
    {
        QFETCH(QStringList, arguments);
        QTEST(Run(arguments), "code");
        QCOMPARE(m_errors.isEmpty(), m_code == 0);
        QCOMPARE(m_out.isEmpty(), m_code != 0);
    }

    // validate

    void theSampleFilesOfTheHostAreFine()
    {
        const QString profile = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        const QString catalogue = Put("c.json", QJsonDocument(ovk_test::SmallCatalogue()).toJson());
        QCOMPARE(Run({"check", profile, catalogue}), 0);
        QVERIFY2(m_out.endsWith(QLatin1String("0 errors, 2 warnings\n")),
                 qPrintable(m_out)); // version 0, and a composite on no site
        QCOMPARE(Run({"check", "--strict", profile}), 1);
    }

    void everyProblemIsToldWithItsPlace_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("line");
        QTest::newRow("wrong type")
            << Ribbon(R"({"id": "p", "visible": 1})")
            << "error: profile/Model/ribbon/p: \"visible\" is not true or false";
        QTest::newRow("persistence")
            << Ribbon(R"({"id": "p", "persistence": 5})")
            << "error: profile/Model/ribbon/p: \"persistence\" is 5, not in 0 to 4";
        QTest::newRow("half a number")
            << Ribbon(R"({"id": "p", "persistence": 1.5})")
            << "error: profile/Model/ribbon/p: \"persistence\" is not an integer";
        QTest::newRow("unknown key")
            << Ribbon(R"({"id": "p", "colour": 1})")
            << "warning: profile/Model/ribbon/p: \"colour\" is unknown here";
        QTest::newRow("no id") << Ribbon(R"({"id": "p"}, {"title": "q"})")
                               << "warning: profile/Model/ribbon/[1]: has no \"id\"";
        QTest::newRow("id of another type")
            << Ribbon(R"({"id": 5})") << "error: profile/Model/ribbon/[0]: \"id\" is not a string";
        QTest::newRow("no object")
            << Ribbon("7") << "error: profile/Model/ribbon/[0]: is not an object";
        QTest::newRow("twice") << Ribbon(R"({"id": "p"}, {"id": "p"})")
                               << "warning: profile/Model/ribbon/p: stands here more than once";
        QTest::newRow("groups") << Ribbon(R"({"id": "p", "groups": {}})")
                                << "error: profile/Model/ribbon/p: \"groups\" has the wrong type";
        QTest::newRow("spot type")
            << Ribbon(
                   R"({"id": "p", "groups": [{"id": "g", "spots": [{"id": "s", "type": "x"}]}]})")
            << "error: profile/Model/ribbon/p/g/s: the type \"x\" is unknown; the spot is skipped";
        QTest::newRow("spot style")
            << Ribbon(R"({"id": "p", "groups": [{"id": "g", "spots": [{"id": "s", "style": 9}]}]})")
            << "error: profile/Model/ribbon/p/g/s: \"style\" is 9, not in 0 to 4";
        QTest::newRow("counter") << Ribbon(R"({"id": "__UiStateRibbonPage.1f"})")
                                 << "error: profile: \"counter\" is 1, but an identifier was made "
                                    "from 31; it would be made again";
        QTest::newRow("in the base")
            << Ribbon(
                   "",
                   R"(, "base": {"layouts": [{"id": "Model", "states": {"menus": {"subitems": 1}}}]})")
            << "error: profile/base/Model/menus: \"subitems\" has the wrong type";
        QTest::newRow("base of a base") << Ribbon("", R"(, "base": {"layouts": [], "base": {}})")
                                        << "warning: profile/base: has a base of its own";
        QTest::newRow("no version") << QByteArray(R"({"profile": {"layouts": []}})")
                                    << "warning: profile: \"version\" is missing or not valid; the "
                                       "file can be a default only";
        QTest::newRow("no states")
            << QByteArray(R"({"profile": {"layouts": [{"id": "M"}]}})")
            << "error: profile/M: \"states\" is missing; the layout is not read";
        QTest::newRow("unknown suite")
            << QByteArray(R"({"profile": {"layouts": [{"id": "M", "states": {"x": {}}}]}})")
            << "warning: profile/M/x: is unknown here and is ignored";
        QTest::newRow("keys")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"shortcuts": {"bindings": [{"id": "a", "key sequence": "Ctrl+Nonsense"}]}}}]}})")
            << "error: profile/M/shortcuts/a: \"Ctrl+Nonsense\" is no key sequence";
        QTest::newRow("keys twice")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"shortcuts": {"bindings": [{"id": "a", "key sequence": "F1"}, {"id": "b", "key sequence": "F1"}]}}}]}})")
            << "warning: profile/M/shortcuts/b: F1 is bound to \"a\" already";
        QTest::newRow("empty composite")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"composite": {"subitems": [{"id": "a", "type": "menu", "items": []}]}}}]}})")
            << "warning: profile/M/composite/a: has no commands, so it is never shown";
        QTest::newRow("composite on no site")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"composite": {"subitems": [{"id": "a", "type": "menu", "items": ["x"]}]}}}]}})")
            << "warning: profile/M/composite/a: stands on no site of its layout";
        QTest::newRow("composite type")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"composite": {"subitems": [{"id": "a", "type": "list", "items": ["x"]}]}}}]}})")
            << "warning: profile/M/composite/a: the type \"list\" is unknown and taken for "
               "\"command\"";
        QTest::newRow("too many commands")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"menus": {"subitems": [{"id": "m", "spots": [)") +
                   Spots(13) + "]}]}}}]}}"
            << "warning: profile/M/menus/m: holds 13 commands; the user can add none beyond 12";
        QTest::newRow("composite items")
            << QByteArray(
                   R"({"profile": {"layouts": [{"id": "M", "states": {"composite": {"subitems": [{"id": "a", "items": [1]}]}}}]}})")
            << "error: profile/M/composite/a: \"items\" is not an array of strings";
        QTest::newRow("profile") << QByteArray(R"({"profile": []})")
                                 << "error: profile: is not an object";
        QTest::newRow("undefined command")
            << QByteArray(
                   R"({"commands": {"command": []}, "products": {"product": [{"id": "P", "layout": [{"id": "L", "command_ids": ["a", "DynamicCommands.x"]}]}]}})")
            << "warning: products/P/L: the command \"a\" is not defined";
        QTest::newRow("half a catalogue") << QByteArray(R"({"commands": {"command": []}})")
                                          << "error: products: is missing or not an object";
        QTest::newRow("command")
            << QByteArray(
                   R"({"commands": {"command": [{"id": "a", "visual": "yes"}]}, "products": {"product": []}})")
            << "error: commands/a: \"visual\" is not true or false";
    }

    void everyProblemIsToldWithItsPlace()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, line);
        const QString path = Put("a.json", file);
        const int code = Run({"check", path});
        QVERIFY2(m_out.contains(path + QStringLiteral(": ") + line + QStringLiteral(" [$.")),
                 qPrintable(m_out));
        QCOMPARE(code, line.startsWith(QLatin1String("error")) ? 1 : 0);
    }

    void theJsonPathOfAProblemLeadsToItInTheFile()
    {
        const QString path = Put(
            "a.json",
            R"({"profile": {"version": "1.0.0.0", "layouts": [{"id": "M", "states": {"quick access bar": {"spots": [{"id": "a"}, {"id": "b", "style": 7}]}}}]}})");
        QCOMPARE(Run({"check", path}), 1);
        QCOMPARE(m_out,
                 path + QStringLiteral(
                            ": error: profile/M/quick access bar/b: \"style\" is 7, not in 0 to 4 "
                            "[$.profile.layouts[0].states['quick access bar'].spots[1]]\n"
                            "1 error, 0 warnings\n"));
        QCOMPARE(Run({"check", "--json", path}), 1);
        const QJsonObject report = Object(m_out.toUtf8());
        QCOMPARE(report.value("errors").toInt(), 1);
        QCOMPARE(report.value("warnings").toInt(), 0);
        const QJsonObject problem = report.value("problems").toArray().at(0).toObject();
        QCOMPARE(problem.value("file").toString(), path);
        QCOMPARE(problem.value("severity").toString(), QStringLiteral("error"));
        QCOMPARE(problem.value("node").toString(), QStringLiteral("profile/M/quick access bar/b"));
        QCOMPARE(problem.value("path").toString(),
                 QStringLiteral("$.profile.layouts[0].states['quick access bar'].spots[1]"));
        QCOMPARE(problem.value("message").toString(),
                 QStringLiteral("\"style\" is 7, not in 0 to 4"));
    }

    void aCompositeOfNothingThatIsOfferedIsTold()
    {
        const QString profile = Put(
            "a.json",
            R"({"profile": {"version": "1.0.0.0", "product": "P", "layouts": [{"id": "L", "states": {
            "composite": {"subitems": [{"id": "dead", "type": "menu", "items": ["Gone", "Gone2"]}]},
            "quick access bar": {"spots": [{"id": "dead"}]}}}]}})");
        const QString catalogue = Put(
            "c.json",
            R"({"commands": {"command": []}, "products": {"product": [{"id": "P", "layout": [{"id": "L", "command_ids": ["a"]}]}]}})");
        QCOMPARE(Run({"check", "--catalogue", catalogue, profile}), 0);
        QVERIFY2(m_out.contains(QLatin1String(
                     "profile/L/composite/dead: none of its commands is offered, so it is "
                     "never shown [$.profile.layouts[0].states.composite.subitems[0]]")),
                 qPrintable(m_out));
        QVERIFY(m_out.contains(
            QLatin1String("[$.profile.layouts[0].states.composite.subitems[0].items[1]]")));
    }

    void whereFamiliesOfCommandsAreOfferedAnUnknownOneMayBeOfThem()
    {
        const QString profile = Put(
            "a.json",
            R"({"profile": {"version": "1.0.0.0", "product": "P", "layouts": [{"id": "L", "states": {"quick access bar": {"spots": [{"id": "Recent.1"}]}}}]}})");
        const QString catalogue = Put(
            "c.json",
            R"({"commands": {"command": []}, "products": {"product": [{"id": "P", "layout": [{"id": "L", "command_ids": ["DynamicCommands.Recent"]}]}]}})");
        QCOMPARE(Run({"check", "--catalogue", catalogue, profile}), 0);
        QVERIFY2(m_out.contains(QLatin1String(
                     "nothing is shown, unless one of its families makes it at run time")),
                 qPrintable(m_out));
    }

    void whatTheProductDoesNotOfferIsTold()
    {
        const QString profile = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        const QString catalogue = Put("c.json", QJsonDocument(ovk_test::SmallCatalogue()).toJson());
        QCOMPARE(Run({"check", "--catalogue", catalogue, profile}), 0);
        QVERIFY(!m_out.contains(QLatin1String("offer")));
        QCOMPARE(Run({"check", "--catalogue", catalogue, "--product", "Other", profile}), 0);
        QVERIFY(m_out.contains(QLatin1String("profile/Model/ribbon/page.home/group.file/File.Open: "
                                             "the product does not offer it here")));
        QVERIFY(m_out.contains(
            QLatin1String("profile/Slice: the product \"Other\" has no such layout")));
        QVERIFY(!m_out.contains(QLatin1String("group.edit/composite.clip")));
        QCOMPARE(Run({"check", "--catalogue", catalogue, "--product", "None", profile}), 2);
    }

    void aFileThatIsNoDocumentIsUnusable_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QByteArray() << "a.json:1:";
        QTest::newRow("third line") << QByteArray("{\n\"a\": 1,\n]") << "a.json:3:";
        QTest::newRow("array") << QByteArray("[]") << "the root is not an object";
        QTest::newRow("neither") << QByteArray("{}") << "neither a profile";
        QTest::newRow("binary") << QByteArray("qbjs\1\0\0\0garbage", 15)
                                << "damaged binary document";
    }

    void aFileThatIsNoDocumentIsUnusable()
    {
        QFETCH(QByteArray, data);
        QFETCH(QString, message);
        QCOMPARE(Run({"check", Put("a.json", data)}), 2);
        QVERIFY2(m_errors.contains(message), qPrintable(m_errors));
    }

    // convert

    void aFileIsTheSameThereAndBack()
    {
        const QByteArray text = QJsonDocument(ovk_test::SmallProfile()).toJson();
        const QString source = Put("a.json", text);
        QCOMPARE(Run({"convert", "--output", Path("b.bin"), source}), 0);
        QVERIFY(Contents(Path("b.bin")).startsWith("qbjs"));
        QCOMPARE(Run({"convert", "--output", Path("c.json"), Path("b.bin")}), 0);
        QCOMPARE(Contents(Path("c.json")), text);
        QCOMPARE(Run({"convert", "--format", "bin", "--output", Path("d.json"), source}), 0);
        QCOMPARE(Contents(Path("d.json")), Contents(Path("b.bin")));
        QCOMPARE(Run({"convert", "--output", Path("e.json"), Path("d.json")}), 0);
        QCOMPARE(Contents(Path("e.json")), text);
        QCOMPARE(Run({"convert", "--format", "xml", "--output", Path("f.json"), source}), 2);
        QVERIFY(!QFile::exists(Path("f.json")));
    }

    void nothingIsWrittenWithoutAnOutput()
    {
        const QByteArray text = QJsonDocument(ovk_test::SmallProfile()).toJson();
        const QString source = Put("a.json", text);
        QCOMPARE(Run({"convert", source}), 0);
        QCOMPARE(m_out.toUtf8(), text);
        QCOMPARE(Run({"merge", source, source}), 0);
        QVERIFY(Object(m_out.toUtf8()).contains("profile"));
        QCOMPARE(mp_folder->filePath("a.json"), source);
        QCOMPARE(QDir(mp_folder->path()).entryList(QDir::Files), QStringList{"a.json"});
        QCOMPARE(Contents(source), text);
    }

    void aFileThatCannotBeWrittenIsUnusable()
    {
        const QString source = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        QCOMPARE(Run({"convert", "--output", Path("none/b.json"), source}), 2);
        QVERIFY(m_errors.contains(QLatin1String("cannot be written")));
    }

    // diff

    void equalFilesHaveNoDifferencesWhateverTheirForm()
    {
        const QString source = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        QCOMPARE(Run({"convert", "--output", Path("b.bin"), source}), 0);
        QCOMPARE(Run({"diff", source, Path("b.bin")}), 0);
        QCOMPARE(m_out, QString());
    }

    void differencesAreToldNodeByNode()
    {
        const QString first =
            Put("a.json",
                Ribbon(R"({"id": "a"}, {"id": "b", "title": "B"}, {"id": "c", "visible": false})"));
        const QString second =
            Put("b.json", Ribbon(R"({"id": "c"}, {"id": "b", "title": "Ä"}, {"id": "n"})",
                                 R"(, "base": {"layouts": [{"id": "Old"}]})"));
        QCOMPARE(Run({"diff", first, second}), 1);
        QCOMPARE(m_out, QString::fromUtf8("- profile/Model/ribbon/a\n"
                                          "~ profile/Model/ribbon/b: title: \"B\" -> \"Ä\"\n"
                                          "> profile/Model/ribbon/c\n"
                                          "~ profile/Model/ribbon/c: visible: false -> (default)\n"
                                          "+ profile/Model/ribbon/n\n"
                                          "+ profile/base/Old\n"));
    }

    void differencesAreToldToAMachine()
    {
        const QString first = Put("a.json", Ribbon(R"({"id": "a"}, {"id": "b", "title": "B"})"));
        const QString second =
            Put("b.json", Ribbon(R"({"id": "b", "title": "C", "visible": false})"));
        QCOMPARE(Run({"diff", "--json", first, second}), 1);
        const QJsonArray differences = Object(m_out.toUtf8()).value("differences").toArray();
        QCOMPARE(differences.size(), 3);
        QCOMPARE(differences.at(0).toObject(),
                 Object(R"({"kind": "removed", "node": "profile/Model/ribbon/a"})"));
        QCOMPARE(
            differences.at(1).toObject(),
            Object(
                R"({"kind": "changed", "node": "profile/Model/ribbon/b", "field": "title", "before": "B", "after": "C"})"));
        QCOMPARE(
            differences.at(2).toObject(),
            Object(
                R"({"kind": "changed", "node": "profile/Model/ribbon/b", "field": "visible", "after": false})"));
        QCOMPARE(Run({"diff", "--json", first, first}), 0);
        QCOMPARE(Object(m_out.toUtf8()), Object(R"({"differences": []})"));
    }

    void aProfileAndACatalogueAreNotCompared()
    {
        const QString profile = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        const QString catalogue = Put("c.json", QJsonDocument(ovk_test::SmallCatalogue()).toJson());
        QCOMPARE(Run({"diff", profile, catalogue}), 2);
        QCOMPARE(Run({"diff", catalogue, catalogue}), 0);
    }

    // list

    void aFileIsListedAsATree()
    {
        const QString path = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        QCOMPARE(Run({"show", path}), 0);
        QVERIFY2(m_out.startsWith(QLatin1String("product: \"Fake\"\nversion: \"0.0.0.0\"\ncounter: "
                                                "100\nbase: no\nModel (layout)\n")),
                 qPrintable(m_out));
        QVERIFY(m_out.contains(QLatin1String("\n      File.Save (spot)  style=2\n")) ||
                m_out.contains(QLatin1String("File.Save (spot)  style=2\n")));
        QVERIFY(m_out.contains(QLatin1String("Slice (layout)\n")));
        QCOMPARE(Run({"show", "--layout", "Slice", path}), 0);
        QVERIFY(!m_out.contains(QLatin1String("Model (layout)")));
        QCOMPARE(Run({"show", "--layout", "None", path}), 2);
        const QString catalogue = Put("c.json", QJsonDocument(ovk_test::SmallCatalogue()).toJson());
        QCOMPARE(Run({"show", "--layout", "commands", catalogue}), 0);
        QVERIFY(
            m_out.contains(QLatin1String("  Slice.Run (command)  title=\"Slice\"  visual=true\n")));
    }

    void aTreeIsShownToAMachine()
    {
        const QString path = Put("a.json", Ribbon(R"({"id": "p", "title": "P"})"));
        QCOMPARE(Run({"show", "--json", path}), 0);
        const QJsonObject layout =
            Object(m_out.toUtf8()).value("children").toArray().at(0).toObject();
        QCOMPARE(layout.value("type").toString(), QStringLiteral("layout"));
        const QJsonObject page = layout.value("children")
                                     .toArray()
                                     .at(0)
                                     .toObject()
                                     .value("children")
                                     .toArray()
                                     .at(0)
                                     .toObject();
        QCOMPARE(
            page,
            Object(
                R"({"id": "p", "type": "page", "path": "$.profile.layouts[0].states.ribbon.pages[0]", "fields": {"title": "P"}})"));
    }

    // catalogue

    void commandsAreListedWithWhoOffersAndUsesThem()
    {
        const QString catalogue = Put(
            "c.json",
            R"({"commands": {"command": [{"id": "a", "title": "A"}, {"id": "b", "title": "B"}, {"id": "c"}, {"id": "f", "visual": false}]},
            "products": {"product": [{"id": "P", "functions": {"function_ids": ["f"]}, "layout": [{"id": "L", "command_ids": ["a", "b"]}, {"id": "M", "command_ids": ["a"]}]},
            {"id": "Q", "layout": [{"id": "L", "command_ids": ["c"]}]}]}})");
        const QString profile = Put(
            "a.json",
            R"({"profile": {"layouts": [{"id": "L", "states": {"quick access bar": {"spots": [{"id": "a"}]}, "shortcuts": {"bindings": [{"id": "a"}]}}}]}})");
        QCOMPARE(Run({"catalogue", catalogue}), 0);
        QCOMPARE(m_out,
                 QStringLiteral(
                     "a  \"A\"  P/L, P/M\nb  \"B\"  P/L\nc  \"\"  Q/L\nf  \"\"  not visual  P\n"
                     "4 commands, 0 unused\n"));
        QCOMPARE(Run({"catalogue", "--product", "P", "--unused", catalogue}), 1);
        QCOMPARE(m_out, QStringLiteral("c  \"\"  offered nowhere\n4 commands, 1 unused\n"));
        QCOMPARE(Run({"catalogue", "--product", "X", catalogue}), 2);
        QCOMPARE(Run({"catalogue", catalogue, profile}), 0);
        QVERIFY2(m_out.startsWith(
                     QLatin1String("a  \"A\"  P/L, P/M  2 places\nb  \"B\"  P/L  0 places\n")),
                 qPrintable(m_out));
        QCOMPARE(Run({"catalogue", "--unused", "--json", catalogue, profile}), 1);
        const QJsonObject report = Object(m_out.toUtf8());
        QCOMPARE(report.value("unused").toInt(), 2);
        QCOMPARE(report.value("count").toInt(), 4);
        QCOMPARE(
            report.value("commands").toArray().at(0).toObject(),
            Object(
                R"({"id": "b", "title": "B", "visual": true, "offered": ["P/L"], "unused": true, "places": 0})"));
        QCOMPARE(Run({"catalogue", profile}), 2);
        QCOMPARE(Run({"catalogue", catalogue, catalogue}), 2);
    }

    void theBaseIsListedOnDemand()
    {
        const QString path = Put("a.json", Ribbon("", R"(, "base": {"layouts": [{"id": "Old"}]})"));
        QCOMPARE(Run({"show", "--base", path}), 0);
        QCOMPARE(m_out, QStringLiteral("Old (layout)\n"));
    }

    // merge

    void aMergeKeepsTheUsersAndBringsTheNew()
    {
        const QString user = Put(
            "user.json",
            Ribbon(
                R"({"id": "home", "visible": false}, {"id": "mine"}, {"id": "dropped"})",
                R"(, "base": {"layouts": [{"id": "Model", "states": {"ribbon": {"pages": [{"id": "home"}, {"id": "dropped"}, {"id": "deleted"}]}}}]})"));
        QByteArray fresh = Ribbon(R"({"id": "home"}, {"id": "deleted"}, {"id": "new"})");
        fresh.replace("1.0.0.0", "2.0.0.0");
        const QString next = Put("next.json", fresh);
        QCOMPARE(Run({"merge", "--output", Path("out.json"), user, next}), 0);
        const QJsonObject profile = Object(Contents(Path("out.json"))).value("profile").toObject();
        QCOMPARE(profile.value("version").toString(), QStringLiteral("2.0.0.0"));
        QCOMPARE(Pages(profile), (QStringList{"home-", "mine", "new"}));
        QCOMPARE(Pages(profile.value("base").toObject()), (QStringList{"home", "deleted", "new"}));
        QCOMPARE(Run({"check", Path("out.json")}), 0);

        // The same with the old default in a file of its own, and the result in the other form.
        const QString base = Put("base.json", Ribbon(R"({"id": "home"}, {"id": "mine"})"));
        QCOMPARE(Run({"merge", "--output", Path("out.bin"), "--base", base, user, next}), 0);
        QCOMPARE(Run({"convert", "--output", Path("out2.json"), Path("out.bin")}), 0);
        QCOMPARE(Pages(Object(Contents(Path("out2.json"))).value("profile").toObject()),
                 (QStringList{"home-", "dropped", "deleted", "new"}));
    }

    void shortcutsAreKeptUnlessTheCatalogueSaysOtherwise()
    {
        const QByteArray keys =
            R"({"profile": {"version": "1.0.0.0", "product": "Fake", "layouts": [{"id": "Model", "states": {
            "shortcuts": {"bindings": [{"id": "File.Open", "key sequence": "F1"}, {"id": "Gone", "key sequence": "F2"}]}}}]}})";
        const QString user = Put("user.json", keys);
        const QString next = Put(
            "next.json",
            R"({"profile": {"version": "2.0.0.0", "product": "Fake", "layouts": [{"id": "Model", "states": {
            "shortcuts": {"bindings": [{"id": "File.Save", "key sequence": "F3"}, {"id": "Edit.Copy", "key sequence": "F1"}]}}}]}})");
        QCOMPARE(Run({"merge", "--output", Path("out.json"), user, next}), 0);
        QCOMPARE(Bindings(Path("out.json")), (QStringList{"File.Open", "Gone", "File.Save"}));
        const QString catalogue = Put("c.json", QJsonDocument(ovk_test::SmallCatalogue()).toJson());
        QCOMPARE(Run({"merge", "--output", Path("out.json"), "--catalogue", catalogue, user, next}),
                 0);
        QCOMPARE(Bindings(Path("out.json")), (QStringList{"File.Open", "File.Save"}));
    }

    void onlyProfilesAreMerged()
    {
        const QString profile = Put("a.json", QJsonDocument(ovk_test::SmallProfile()).toJson());
        const QString catalogue = Put("c.json", QJsonDocument(ovk_test::SmallCatalogue()).toJson());
        QCOMPARE(Run({"merge", "--output", Path("out.json"), profile, catalogue}), 2);
        QVERIFY(!QFile::exists(Path("out.json")));
    }

private:
    int Run(const QStringList& arguments)
    {
        m_out.clear();
        m_errors.clear();
        QTextStream out(&m_out);
        QTextStream errors(&m_errors);
        m_code = ovk_profile::Run(arguments, out, errors);
        out.flush();
        errors.flush();
        return m_code;
    }

    QString Path(const char* name) const { return mp_folder->filePath(QLatin1String(name)); }

    QString Put(const char* name, const QByteArray& data) const
    {
        QFile file(Path(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(data);
        return file.fileName();
    }

    static QByteArray Contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QJsonObject Suite(const QJsonObject& profile, const char* suite)
    {
        return profile.value(QStringLiteral("layouts"))
            .toArray()
            .at(0)
            .toObject()
            .value(QStringLiteral("states"))
            .toObject()
            .value(QLatin1String(suite))
            .toObject();
    }

    static QStringList Pages(const QJsonObject& profile)
    {
        QStringList names;
        const QJsonArray pages = Suite(profile, "ribbon").value(QStringLiteral("pages")).toArray();
        for (const QJsonValue& page : pages) {
            const bool visible = page.toObject().value(QStringLiteral("visible")).toBool(true);
            names << page.toObject().value(QStringLiteral("id")).toString() + (visible ? "" : "-");
        }
        return names;
    }

    static QStringList Bindings(const QString& path)
    {
        QStringList names;
        const QJsonObject profile =
            Object(Contents(path)).value(QStringLiteral("profile")).toObject();
        const QJsonArray bindings =
            Suite(profile, "shortcuts").value(QStringLiteral("bindings")).toArray();
        for (const QJsonValue& binding : bindings)
            names << binding.toObject().value(QStringLiteral("id")).toString();
        return names;
    }

    std::unique_ptr<QTemporaryDir> mp_folder;
    QString m_out;
    QString m_errors;
    int m_code = 0;
};

OVK_TEST_CLASS(OvkProfileTest)

#include "ovk_profile_test.moc"
