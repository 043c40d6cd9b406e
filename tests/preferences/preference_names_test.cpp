#include "preference_test_support.h"

using namespace ovk;
using namespace ovk_test;

namespace {

/// A chapter whose finding is seen, and which may refuse to take items.
class OpenChapter : public PreferenceChapter
{
public:
    OpenChapter(PreferenceChapter* parent, const QString& name) : PreferenceChapter(parent, name) {}
    using PreferenceChapter::_Find;
    using PreferenceChapter::Load;

    bool refuse = false;

protected:
    void _RegisterItem(PreferenceBasics* item) override
    {
        if (!refuse)
            PreferenceChapter::_RegisterItem(item);
    }
};

/// Takes another name when it is asked to.
class RenamedPreference : public TextPreference
{
public:
    RenamedPreference(PreferenceChapter& parent, const QString& name) : TextPreference(parent, name) {}
    using TextPreference::_SetName;
};

/// Changes its chapter when it takes its value.
class BusyPreference : public TextPreference
{
public:
    BusyPreference(PreferenceChapter& parent, const QString& name) : TextPreference(parent, name) {}

    std::function<void()> busy;

protected:
    void _FromString(const QString& text) override
    {
        TextPreference::_FromString(text);
        busy();
    }
};

void Read(OpenChapter& chapter, const QByteArray& document)
{
    QXmlStreamReader reader(document);
    chapter.Load(reader);
}

} // namespace

/// How a chapter finds its items by their names.
class PreferenceNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theChapterItselfComesFirst();
    void theFirstOfANameIsFound();
    void caseCounts();
    void aThousandNamesAreFound();
    void itemsThatJoinLaterAreFound();
    void itemsThatJoinWhileTheChapterIsReadAreFound();
    void whatWasNotTakenIsNotFound();
    void aRenamedItemIsFoundByItsNewName();
    void anItemThatIsRenamedWhileTheChapterIsReadIsFound();
    void aNameThatIsAssignedIsFound();
    void anEmptyNameIsAName();
};

void PreferenceNamesTest::theChapterItselfComesFirst()
{
    OpenChapter chapter(nullptr, "Same");
    TextPreference hidden(chapter, "Same");
    QVERIFY(chapter._Find("Same") == &chapter);
    Read(chapter, "<Same><Same>x</Same></Same>");
    QCOMPARE(hidden.GetData(), QString());
    QVERIFY(!hidden.IsLoaded());
}

void PreferenceNamesTest::theFirstOfANameIsFound()
{
    OpenChapter chapter(nullptr, "Tree");
    TextPreference first(chapter, "a");
    TextPreference other(chapter, "b");
    TextPreference second(chapter, "a");
    QVERIFY(chapter._Find("a") == &first);
    Read(chapter, "<Tree><a>1</a><b>2</b><a>3</a></Tree>");
    QCOMPARE(first.GetData(), QString("3"));
    QCOMPARE(other.GetData(), QString("2"));
    QVERIFY(!second.IsLoaded());
}

void PreferenceNamesTest::caseCounts()
{
    OpenChapter chapter(nullptr, "Tree");
    TextPreference item(chapter, "Item");
    QVERIFY(chapter._Find("Item") == &item);
    QVERIFY(!chapter._Find("item"));
    QVERIFY(!chapter._Find("tree"));
    QVERIFY(!chapter._Find("Ite"));
    QVERIFY(!chapter._Find("Item "));
}

void PreferenceNamesTest::aThousandNamesAreFound()
{
    OpenChapter chapter(nullptr, "Tree");
    std::vector<std::unique_ptr<TextPreference>> items;
    QByteArray document = "<Tree>";
    for (int i = 0; i < 1000; ++i) {
        items.push_back(std::make_unique<TextPreference>(chapter, QString("n%1").arg(i)));
        const QByteArray number = QByteArray::number(999 - i);
        document += "<n" + number + '>' + number + "</n" + number + "><unknown" + number + "/>";
    }
    Read(chapter, document + "</Tree>");
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(items[size_t(i)]->GetData(), QString::number(i));
}

void PreferenceNamesTest::itemsThatJoinLaterAreFound()
{
    OpenChapter chapter(nullptr, "Tree");
    QVERIFY(!chapter._Find("a"));
    TextPreference a(chapter, "a");
    QVERIFY(chapter._Find("a") == &a);
    Read(chapter, "<Tree><a>1</a><b>2</b></Tree>");
    TextPreference b(chapter, "b");
    Read(chapter, "<Tree><a>3</a><b>4</b></Tree>");
    QCOMPARE(a.GetData(), QString("3"));
    QCOMPARE(b.GetData(), QString("4"));
}

void PreferenceNamesTest::itemsThatJoinWhileTheChapterIsReadAreFound()
{
    OpenChapter chapter(nullptr, "Tree");
    BusyPreference busy(chapter, "busy");
    std::unique_ptr<TextPreference> late;
    busy.busy = [&] { late = std::make_unique<TextPreference>(chapter, "late"); };
    Read(chapter, "<Tree><late>1</late><busy/><late>2</late></Tree>");
    QCOMPARE(late->GetData(), QString("2"));
}

void PreferenceNamesTest::whatWasNotTakenIsNotFound()
{
    OpenChapter chapter(nullptr, "Tree");
    chapter.refuse = true;
    TextPreference item(chapter, "a");
    QVERIFY(chapter.Items().isEmpty());
    QVERIFY(!chapter._Find("a"));
    Read(chapter, "<Tree><a>1</a></Tree>");
    QVERIFY(!item.IsLoaded());
}

void PreferenceNamesTest::aRenamedItemIsFoundByItsNewName()
{
    OpenChapter chapter(nullptr, "Tree");
    RenamedPreference first(chapter, "a");
    TextPreference second(chapter, "b");
    QVERIFY(chapter._Find("a") == &first);
    first._SetName("b");
    QVERIFY(!chapter._Find("a"));
    QVERIFY(chapter._Find("b") == &first);
    Read(chapter, "<Tree><b>1</b></Tree>");
    QCOMPARE(first.GetData(), QString("1"));
    QVERIFY(!second.IsLoaded());
}

void PreferenceNamesTest::anItemThatIsRenamedWhileTheChapterIsReadIsFound()
{
    OpenChapter chapter(nullptr, "Tree");
    BusyPreference busy(chapter, "busy");
    RenamedPreference renamed(chapter, "a");
    busy.busy = [&] { renamed._SetName("b"); };
    Read(chapter, "<Tree><busy/><a>1</a><b>2</b><a>3</a></Tree>");
    QCOMPARE(renamed.GetData(), QString("2"));
}

void PreferenceNamesTest::aNameThatIsAssignedIsFound()
{
    OpenChapter chapter(nullptr, "Tree");
    TextPreference item(chapter, "a");
    TextPreference other(chapter, "b");
    QVERIFY(chapter._Find("b") == &other);
    static_cast<Named&>(item) = static_cast<const Named&>(other);
    QVERIFY(chapter._Find("b") == &item);
    QVERIFY(!chapter._Find("a"));
}

void PreferenceNamesTest::anEmptyNameIsAName()
{
    OpenChapter chapter(nullptr, "Tree");
    TextPreference nameless(chapter, QString());
    QVERIFY(chapter._Find(QString("")) == &nameless);
    QVERIFY(!chapter._Find("x"));
}

OVK_TEST_CLASS(PreferenceNamesTest)

#include "preference_names_test.moc"
