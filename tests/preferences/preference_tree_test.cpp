#include "preference_test_support.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace ovk;
using namespace ovk_test;

/// Values, chapters and collections, saved and loaded without a file.
class PreferenceTreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pathsRunFromTheRoot();
    void theLibrarysOwnPreference();
    void itemsStandInTheOrderOfTheirConstruction();
    void settingTheSameValueNotifiesAndMarksAsLoaded();
    void forcingDoesNotMarkAsLoaded();
    void aNewDefaultIsUsedByTheNextRestore();
    void restoringLeavesBytesAndListsAlone();
    void restoringAValueOfTheHostsOwnType();
    void everyKindIsWrittenAndReadBack();
    void theFormOfTheFile();
    void onlyTheExactWordIsTrue_data();
    void onlyTheExactWordIsTrue();
    void afterLoadNotifiesWhatKeptItsDefault();
    void anUnknownElementIsSkippedWhole();
    void knownNamesInsideAnUnknownElementAreSkipped();
    void aChaptersOwnNameInsideItIsTheSameChapter();
    void theOrderOfElementsDoesNotMatter();
    void listsAreRead_data();
    void listsAreRead();
    void aListThatIsCutOffKeepsItsValue();
    void listsAreReadOverOthers_data();
    void listsAreReadOverOthers();
    void textsAreEachPreferencesOwn();
    void aTextThatStandsThereKeepsItsMemoryAndNotifies();
    void aLoadInsideALoadDisturbsNothing();
    void bytesAreReadFromBase64();
    void aCollectionReadsBackItsItemsInOrder();
    void clearingNotifiesEvenIfEmpty();
    void aCollectionSkipsWhatItCannotMake();
    void aRefusedPreferenceConsumesItsElement();
    void whatNoXmlCanHoldDoesNotSpoilTheFile();
    void hostileDocumentsAreHarmless_data();
    void hostileDocumentsAreHarmless();
    void aVeryDeepDocumentIsHarmless_data();
    void aVeryDeepDocumentIsHarmless();

private:
    std::unique_ptr<TestTree> m_tree;
};

void PreferenceTreeTest::init()
{
    m_tree = std::make_unique<TestTree>();
}

void PreferenceTreeTest::cleanup()
{
    PreferencesController::GetInstance()->SetIgnoreLoadMethod(nullptr);
    m_tree.reset();
}

void PreferenceTreeTest::pathsRunFromTheRoot()
{
    QCOMPARE(m_tree->flag.GetAbsolutePath(), QString("Tree/Flag"));
    QCOMPARE(m_tree->inner_flag.GetAbsolutePath(), QString("Tree/Inner/InnerFlag"));
    QVERIFY(m_tree->inner_flag.GetParent() == &m_tree->inner);
    QVERIFY(!m_tree->root.GetParent());
}

void PreferenceTreeTest::theLibrarysOwnPreference()
{
    QCOMPARE(g_pref_suffix_in_editor.GetAbsolutePath(), QString("PreferencesRoot/UI/SuffixInEditor"));
    QCOMPARE(PrefUi().GetName(), QString("UI"));
    QVERIFY(&::PrefUi() == g_pref_suffix_in_editor.GetParent());
    QCOMPARE(g_pref_suffix_in_editor.GetData(), false);
    QVERIFY(PreferencesController::GetInstance()->GetRootChapter().Items().contains(&PrefUi()));
}

void PreferenceTreeTest::itemsStandInTheOrderOfTheirConstruction()
{
    QStringList names;
    for (const PreferenceBasics* item : m_tree->root.Items())
        names << item->GetName();
    QCOMPARE(names, (QStringList{"Flag", "Bytes", "List", "Number", "Inner", "Collection"}));
}

void PreferenceTreeTest::settingTheSameValueNotifiesAndMarksAsLoaded()
{
    int calls = 0;
    m_tree->flag.Attach([&] { ++calls; });
    QVERIFY(!m_tree->flag.IsLoaded());
    m_tree->flag.SetData(false);
    QCOMPARE(calls, 1);
    QVERIFY(m_tree->flag.IsLoaded());
    m_tree->flag = true;
    QCOMPARE(calls, 2);
    QVERIFY(m_tree->flag.GetData());
}

void PreferenceTreeTest::forcingDoesNotMarkAsLoaded()
{
    int calls = 0;
    m_tree->flag.Attach([&] { ++calls; });
    m_tree->flag.ForceSetData(true);
    QCOMPARE(calls, 1);
    QVERIFY(!m_tree->flag.IsLoaded());
}

void PreferenceTreeTest::aNewDefaultIsUsedByTheNextRestore()
{
    int calls = 0;
    m_tree->flag.Attach([&] { ++calls; });
    m_tree->flag.SetDefault(true);
    QCOMPARE(calls, 0);
    QVERIFY(!m_tree->flag.GetData());
    m_tree->flag.RestoreDefault();
    QCOMPARE(calls, 1);
    QVERIFY(m_tree->flag.GetData());
    QVERIFY(m_tree->flag.IsLoaded());
}

void PreferenceTreeTest::restoringLeavesBytesAndListsAlone()
{
    m_tree->flag = true;
    m_tree->inner_flag = true;
    m_tree->bytes = QByteArray("bytes");
    m_tree->list = QStringList{"a"};
    m_tree->number = 3;
    m_tree->collection.Add("one");
    m_tree->root.RestoreDefault();
    QVERIFY(!m_tree->flag.GetData());
    QVERIFY(!m_tree->inner_flag.GetData());
    QCOMPARE(m_tree->bytes.GetData(), QByteArray("bytes"));
    QCOMPARE(m_tree->list.GetData(), QStringList{"a"});
    QCOMPARE(m_tree->number.GetData(), 42);
    QVERIFY(m_tree->collection.Items().isEmpty());
}

void PreferenceTreeTest::restoringAValueOfTheHostsOwnType()
{
    m_tree->number.SetData(3);
    m_tree->number.SetDefault(7);
    m_tree->number.RestoreDefault();
    QCOMPARE(m_tree->number.GetData(), 7);
}

void PreferenceTreeTest::everyKindIsWrittenAndReadBack()
{
    m_tree->flag = true;
    m_tree->bytes = QByteArray("\0\xff<&>", 5);
    m_tree->list = QStringList{"a & b", "", "<c>", QString::fromUtf8("gr\xc3\xb6\xc3\x9f" "e")};
    m_tree->number = -5;
    m_tree->inner_flag = true;
    m_tree->collection.Add("one");
    m_tree->collection.Add("two");
    const QByteArray document = m_tree->Save();

    TestTree other;
    other.Load(document);
    QVERIFY(other.flag.GetData());
    QCOMPARE(other.bytes.GetData(), m_tree->bytes.GetData());
    QCOMPARE(other.list.GetData(), m_tree->list.GetData());
    QCOMPARE(other.number.GetData(), -5);
    QVERIFY(other.inner_flag.GetData());
    QCOMPARE(other.collection.Values(), (QStringList{"one", "two"}));
    for (const PreferenceBasics* item : other.root.Items())
        QVERIFY(item->IsLoaded());
    QCOMPARE(other.Save(), document);
}

void PreferenceTreeTest::theFormOfTheFile()
{
    m_tree->list = QStringList{"x", "y"};
    m_tree->bytes = QByteArray("abc");
    m_tree->collection.Add("one");
    QCOMPARE(m_tree->Save(),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                        "<Tree><Flag>false</Flag><Bytes>YWJj</Bytes>"
                        "<List><item>x</item><item>y</item></List><Number>42</Number>"
                        "<Inner><InnerFlag>false</InnerFlag></Inner>"
                        "<Collection><Entry>one</Entry></Collection></Tree>\n"));
}

void PreferenceTreeTest::onlyTheExactWordIsTrue_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("value");
    QTest::newRow("true") << "true" << true;
    QTest::newRow("upper case") << "TRUE" << false;
    QTest::newRow("blank") << " true" << false;
    QTest::newRow("digit") << "1" << false;
    QTest::newRow("empty") << "" << false;
}

void PreferenceTreeTest::onlyTheExactWordIsTrue()
{
    QFETCH(QString, text);
    QFETCH(bool, value);
    m_tree->flag.ForceSetData(!value);
    m_tree->Load("<Tree><Flag>" + text.toUtf8() + "</Flag></Tree>");
    QCOMPARE(m_tree->flag.GetData(), value);
    QVERIFY(m_tree->flag.IsLoaded());
}

void PreferenceTreeTest::afterLoadNotifiesWhatKeptItsDefault()
{
    int flag = 0, inner = 0, number = 0;
    m_tree->flag.Attach([&] { ++flag; });
    m_tree->inner_flag.Attach([&] { ++inner; });
    m_tree->number.Attach([&] { ++number; });
    m_tree->Load("<Tree><Flag>true</Flag></Tree>");
    QCOMPARE(flag, 1);
    QCOMPARE(inner, 0);
    m_tree->AfterLoad();
    QCOMPARE(flag, 1);
    QCOMPARE(inner, 1);
    QCOMPARE(number, 1);
    QVERIFY(!m_tree->inner_flag.IsLoaded());
    QVERIFY(!m_tree->inner_flag.GetData());
}

void PreferenceTreeTest::anUnknownElementIsSkippedWhole()
{
    m_tree->Load("<Tree><New><Deep><Deeper>x</Deeper></Deep></New><Flag>true</Flag></Tree>");
    QVERIFY(m_tree->flag.GetData());
}

void PreferenceTreeTest::knownNamesInsideAnUnknownElementAreSkipped()
{
    m_tree->Load("<Tree><New><Flag>true</Flag><Tree><Flag>true</Flag></Tree></New><Number>7</Number></Tree>");
    QVERIFY(!m_tree->flag.GetData());
    QCOMPARE(m_tree->number.GetData(), 7);
}

void PreferenceTreeTest::aChaptersOwnNameInsideItIsTheSameChapter()
{
    m_tree->Load("<Tree><Tree><Flag>true</Flag><Inner><Inner><InnerFlag>true</InnerFlag></Inner></Inner></Tree>"
                 "<Number>7</Number></Tree>");
    QVERIFY(m_tree->flag.GetData());
    QVERIFY(m_tree->inner_flag.GetData());
    QCOMPARE(m_tree->number.GetData(), 7);
}

void PreferenceTreeTest::theOrderOfElementsDoesNotMatter()
{
    m_tree->Load("<Tree><Inner><InnerFlag>true</InnerFlag></Inner>text<!-- comment --><Number>7</Number>"
                 "<Flag>true</Flag></Tree>");
    QVERIFY(m_tree->flag.GetData());
    QVERIFY(m_tree->inner_flag.GetData());
    QCOMPARE(m_tree->number.GetData(), 7);
}

void PreferenceTreeTest::listsAreRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("list");
    QTest::newRow("two") << QByteArray("<item>a</item><item>b</item>") << QStringList{"a", "b"};
    QTest::newRow("none overwrites") << QByteArray() << QStringList();
    QTest::newRow("an empty one") << QByteArray("<item/>") << QStringList{""};
    QTest::newRow("text and comments between")
        << QByteArray("x<item>a</item><!-- c -->y<item>b</item>") << QStringList{"a", "b"};
    QTest::newRow("items inside an unknown element, whose end ends the list")
        << QByteArray("<other><item>a</item></other><item>b</item>") << QStringList{"a"};
    QTest::newRow("other case") << QByteArray("<Item>a</Item>") << QStringList();
}

void PreferenceTreeTest::listsAreRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, list);
    m_tree->list.ForceSetData({"old"});
    m_tree->Load("<Tree><List>" + content + "</List></Tree>");
    QCOMPARE(m_tree->list.GetData(), list);
}

void PreferenceTreeTest::aListThatIsCutOffKeepsItsValue()
{
    m_tree->list.ForceSetData({"old"});
    m_tree->Load("<Tree><Flag>true</Flag><List><item>a</item><item>b");
    QCOMPARE(m_tree->list.GetData(), QStringList{"old"});
    QVERIFY(m_tree->flag.GetData());
}

void PreferenceTreeTest::listsAreReadOverOthers_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QStringList>("read");
    const QStringList abc{"a", "b", "c"};
    QTest::newRow("the same") << abc << abc;
    QTest::newRow("one more") << abc << QStringList{"a", "b", "c", "d"};
    QTest::newRow("one less") << abc << QStringList{"a", "b"};
    QTest::newRow("another first") << abc << QStringList{"x", "b", "c"};
    QTest::newRow("another last") << abc << QStringList{"a", "b", "x"};
    QTest::newRow("another, then the same again") << abc << QStringList{"a", "x", "c"};
    QTest::newRow("empty items") << QStringList{"", ""} << QStringList{"", "", ""};
    QTest::newRow("over none") << QStringList() << abc;
    QTest::newRow("none over some") << abc << QStringList();
}

void PreferenceTreeTest::listsAreReadOverOthers()
{
    QFETCH(QStringList, present);
    QFETCH(QStringList, read);
    m_tree->list = read;
    const QByteArray document = m_tree->Save();
    m_tree->list = present;
    int calls = 0;
    m_tree->list.Attach([&] { ++calls; });
    m_tree->Load(document);
    QCOMPARE(m_tree->list.GetData(), read);
    QCOMPARE(calls, 1);
}

void PreferenceTreeTest::textsAreEachPreferencesOwn()
{
    TextPreference first(m_tree->root, "First");
    TextPreference second(m_tree->root, "Second");
    TextPreference third(m_tree->root, "Third");
    const QString longer(1000, 'x');
    m_tree->Load("<Tree><First>one</First><Second>two and more</Second><Third/></Tree>");
    QCOMPARE(first.GetData(), QString("one"));
    QCOMPARE(second.GetData(), QString("two and more"));
    QCOMPARE(third.GetData(), QString());
    m_tree->Load("<Tree><First>" + longer.toUtf8() + "</First><Second>t<!-- -->w<![CDATA[o]]></Second><Third>3</Third>"
                 "<Flag>true</Flag><Number>7</Number></Tree>");
    QCOMPARE(first.GetData(), longer);
    QCOMPARE(second.GetData(), QString("two"));
    QCOMPARE(third.GetData(), QString("3"));
    QCOMPARE(m_tree->number.GetData(), 7);
    QVERIFY(m_tree->flag.GetData());
}

void PreferenceTreeTest::aTextThatStandsThereKeepsItsMemoryAndNotifies()
{
    TextPreference text(m_tree->root, "Text");
    int calls = 0;
    text.Attach([&] { ++calls; });
    m_tree->Load("<Tree><Text>as it is</Text></Tree>");
    const QChar* const memory = text.GetData().constData();
    m_tree->Load("<Tree><Text>as it is</Text></Tree>");
    QCOMPARE(calls, 2);
    QVERIFY(text.GetData().constData() == memory);
    text.SetData("");
    QVERIFY(!text.GetData().isNull());
    text.SetData(QString());
    QVERIFY(text.GetData().isNull());
    QCOMPARE(calls, 4);
}

void PreferenceTreeTest::aLoadInsideALoadDisturbsNothing()
{
    TestTree other;
    TextPreference outer(m_tree->root, "Text");
    TextPreference inner(other.root, "Text");
    outer.Attach([&] { other.Load("<Tree><Text>inner</Text><Number>5</Number></Tree>"); });
    m_tree->Load("<Tree><Text>outer</Text><Number>6</Number><Flag>true</Flag></Tree>");
    QCOMPARE(outer.GetData(), QString("outer"));
    QCOMPARE(inner.GetData(), QString("inner"));
    QCOMPARE(m_tree->number.GetData(), 6);
    QCOMPARE(other.number.GetData(), 5);
    QVERIFY(m_tree->flag.GetData());
}

void PreferenceTreeTest::bytesAreReadFromBase64()
{
    m_tree->Load("<Tree><Bytes>YWJj</Bytes></Tree>");
    QCOMPARE(m_tree->bytes.GetData(), QByteArray("abc"));
    m_tree->Load("<Tree><Bytes/></Tree>");
    QCOMPARE(m_tree->bytes.GetData(), QByteArray());
}

void PreferenceTreeTest::aCollectionReadsBackItsItemsInOrder()
{
    for (const char* text : {"one", "two", "three"})
        m_tree->collection.Add(text);
    const QByteArray document = m_tree->Save();
    int calls = 0;
    Observer* const observer = m_tree->collection.Attach([&] { ++calls; });
    m_tree->Load(document);
    QCOMPARE(calls, 4);
    QCOMPARE(m_tree->collection.Values(), (QStringList{"one", "two", "three"}));
    QCOMPARE(m_tree->collection.alive, 3);
    m_tree->collection.Detach(*observer); // or the end of the collection notifies it
}

void PreferenceTreeTest::clearingNotifiesEvenIfEmpty()
{
    int calls = 0;
    Observer* const observer = m_tree->collection.Attach([&] { ++calls; });
    m_tree->collection.Clear();
    QCOMPARE(calls, 1);
    m_tree->collection.Add("one");
    QCOMPARE(calls, 2);
    m_tree->collection.Clear();
    QCOMPARE(calls, 3);
    QCOMPARE(m_tree->collection.alive, 0);
    m_tree->collection.Detach(*observer);
}

void PreferenceTreeTest::aCollectionSkipsWhatItCannotMake()
{
    m_tree->collection.refuse = true;
    m_tree->Load("<Tree><Collection><a><b/></a><c/></Collection><Flag>true</Flag></Tree>");
    QVERIFY(m_tree->collection.Items().isEmpty());
    QVERIFY(m_tree->flag.GetData());
}

void PreferenceTreeTest::aRefusedPreferenceConsumesItsElement()
{
    PreferenceBasics* const refused = &m_tree->flag;
    PreferencesController::GetInstance()->SetIgnoreLoadMethod(
        [refused](PreferenceBasics* preference) { return preference != refused; });
    m_tree->Load("<Tree><Flag>true</Flag><Bytes>YWJj</Bytes><Number>7</Number></Tree>");
    QVERIFY(!m_tree->flag.GetData());
    QCOMPARE(m_tree->number.GetData(), 7);
    // Bytes and lists never ask.
    PreferencesController::GetInstance()->SetIgnoreLoadMethod([](PreferenceBasics*) { return false; });
    m_tree->Load("<Tree><Bytes>eHl6</Bytes><List><item>a</item></List><Number>8</Number></Tree>");
    QCOMPARE(m_tree->bytes.GetData(), QByteArray("xyz"));
    QCOMPARE(m_tree->list.GetData(), QStringList{"a"});
    QCOMPARE(m_tree->number.GetData(), 7);
}

void PreferenceTreeTest::whatNoXmlCanHoldDoesNotSpoilTheFile()
{
    m_tree->list = QStringList{QString("a") + QChar(1) + "b", QString(QChar(0xd800)), QString(QChar(0xffff)),
                               QString::fromUtf8("\xf0\x9f\x98\x80")};
    m_tree->number = 9;
    TestTree other;
    other.Load(m_tree->Save());
    QCOMPARE(other.list.GetData(), (QStringList{"ab", "", "", QString::fromUtf8("\xf0\x9f\x98\x80")}));
    QCOMPARE(other.number.GetData(), 9);
}

void PreferenceTreeTest::hostileDocumentsAreHarmless_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("flag");
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no XML") << QByteArray("\0\1\2binary\xff", 10) << false;
    QTest::newRow("another document") << QByteArray("<Other><Flag>true</Flag></Other>") << false;
    QTest::newRow("the element alone") << QByteArray("<Flag>true</Flag>") << true;
    QTest::newRow("cut off behind a value") << QByteArray("<Tree><Flag>true</Flag><Num") << true;
    QTest::newRow("cut off before a value") << QByteArray("<Tree><Fla") << false;
    QTest::newRow("crossed elements") << QByteArray("<Tree><Flag>true</Flag><Inner></Tree></Inner>") << true;
    QTest::newRow("wrong encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?><Tree><Flag>true</Flag><List><item>\xff\xfe\xe4</item></List></Tree>")
        << false;
    QTest::newRow("unknown encoding")
        << QByteArray("<?xml version=\"1.0\" encoding=\"klingon\"?><Tree><Flag>true</Flag></Tree>") << false;
    QTest::newRow("UTF-16")
        << QByteArray(reinterpret_cast<const char*>(u"\ufeff<Tree><Flag>true</Flag></Tree>"), 2 * 31) << true;
    QTest::newRow("a chapter where a value is expected")
        << QByteArray("<Tree><Number>true</Number><Flag>true<Flag>x</Flag></Flag></Tree>") << true;
    QTest::newRow("a value where a chapter is expected") << QByteArray("<Tree><Inner>true</Inner><Flag>true</Flag></Tree>") << true;
    QTest::newRow("entities that multiply")
        << QByteArray("<!DOCTYPE Tree [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
                      "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
                      "<Tree><Flag>true</Flag><List><item>&d;&d;&d;</item></List></Tree>")
        << true;
}

void PreferenceTreeTest::hostileDocumentsAreHarmless()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, flag);
    m_tree->Load(document);
    m_tree->AfterLoad();
    QCOMPARE(m_tree->flag.GetData(), flag);
}

void PreferenceTreeTest::aVeryDeepDocumentIsHarmless_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::newRow("the root's name") << QByteArray("Tree");
    QTest::newRow("an unknown name") << QByteArray("Unknown");
    QTest::newRow("a chapter's name") << QByteArray("Inner");
    QTest::newRow("a list") << QByteArray("List");
    QTest::newRow("a collection") << QByteArray("Collection");
    QTest::newRow("a value") << QByteArray("Flag");
}

void PreferenceTreeTest::aVeryDeepDocumentIsHarmless()
{
    QFETCH(QByteArray, element);
    constexpr int depth = 200000;
    QByteArray document = "<Tree>";
    for (int i = 0; i < depth; ++i)
        document += '<' + element + '>';
    for (int i = 0; i < depth; ++i)
        document += "</" + element + '>';
    document += "<Number>7</Number></Tree>";
    m_tree->Load(document);
    m_tree->Load(document.left(document.size() / 2));
}

OVK_TEST_CLASS(PreferenceTreeTest)

#include "preference_tree_test.moc"
