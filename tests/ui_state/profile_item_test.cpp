#include "test_nodes.h"

#include "tests/support/test_main.h"

#include <QtTest/QtTest>

using namespace ovk;
using namespace ui_state_test;

namespace {

QJsonObject Object(const char* json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class ProfileItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNodeIsNamedByWhatItIsMadeFrom()
    {
        QCOMPARE(Leaf(QStringLiteral("name")).GetName(), QStringLiteral("name"));
        QCOMPARE(Leaf(Object(R"({"id": "from json"})")).GetName(), QStringLiteral("from json"));
        QCOMPARE(Leaf(Object(R"({"id": 5})")).GetName(), QString());
        QCOMPARE(Leaf(QJsonObject()).GetName(), QString());
        QCOMPARE(Leaf(0x1f).GetName(), QStringLiteral("1f"));
        QCOMPARE(Leaf(0).GetName(), QStringLiteral("0"));
    }

    void aDefaultNodeWritesItsIdAlone()
    {
        const QJsonObject object = Leaf(QStringLiteral("x")).ToJson();
        QCOMPARE(object.keys(), QStringList{QStringLiteral("id")});
        QCOMPARE(object.value(QStringLiteral("id")).toString(), QStringLiteral("x"));
    }

    void aNodeWritesWhatIsNotDefault()
    {
        Leaf leaf(QStringLiteral("x"));
        leaf.SetVisible(false);
        leaf.SetPersistence(UiStateItem::ipBuiltInHideable);
        leaf._SetChangedByUser(true);
        QCOMPARE(leaf.ToJson(), Object(R"({"id": "x", "visible": false, "persistence": 3,
                                           "is_changed_by_user": true})"));
    }

    void aNodeReadsBackWhatItWrote()
    {
        for (int persistence = 0; persistence <= 4; ++persistence) {
            Leaf leaf(QStringLiteral("x"));
            leaf.SetVisible(persistence % 2);
            leaf.SetPersistence(UiStateItem::ItemPersitence(persistence));
            leaf._SetChangedByUser(persistence > 2);
            Leaf read(leaf.ToJson());
            QVERIFY(read.FromJson(leaf.ToJson()));
            QCOMPARE(read.ToJson(), leaf.ToJson());
            QCOMPARE(read.IsVisible(), leaf.IsVisible());
            QCOMPARE(int(read.GetPersistence()), persistence);
            QCOMPARE(read._IsChangedByUser(), leaf._IsChangedByUser());
        }
    }

    void wrongTypesReadAsDefaults()
    {
        Leaf leaf(QStringLiteral("kept"));
        leaf.SetVisible(false);
        leaf.SetPersistence(UiStateItem::ipFixed);
        leaf._SetChangedByUser(true);
        QVERIFY(leaf.FromJson(Object(R"({"id": "other", "visible": "no", "persistence": "4",
                                         "is_changed_by_user": 1})")));
        QCOMPARE(leaf.ToJson(), Object(R"({"id": "kept"})"));
    }

    void persistenceSaysWhatTheUserMayDo_data()
    {
        QTest::addColumn<int>("persistence");
        QTest::addColumn<bool>("storable");
        QTest::addColumn<bool>("persistent");
        QTest::addColumn<bool>("hideable");
        QTest::addColumn<bool>("deleteable");
        QTest::newRow("fixed") << 0 << true << false << false << false;
        QTest::newRow("ordinary") << 1 << true << false << true << true;
        QTest::newRow("run time") << 2 << false << false << false << false;
        QTest::newRow("built in, hideable") << 3 << true << true << true << false;
        QTest::newRow("built in") << 4 << true << true << false << false;
        QTest::newRow("unknown") << 77 << true << false << false << false;
        QTest::newRow("negative") << -1 << true << false << false << false;
    }

    void persistenceSaysWhatTheUserMayDo()
    {
        QFETCH(int, persistence);
        Leaf leaf(QStringLiteral("x"));
        leaf.SetPersistence(UiStateItem::ItemPersitence(persistence));
        QTEST(leaf.IsStorable(), "storable");
        QTEST(leaf.IsPersistent(), "persistent");
        QTEST(leaf.IsHideable(), "hideable");
        QTEST(leaf.IsDeleteable(), "deleteable");
    }

    void aRunTimeChildIsNotWritten()
    {
        Branch branch(QStringLiteral("root"));
        branch.AddLeaf(QStringLiteral("a"));
        branch.AddLeaf(QStringLiteral("b"))->SetPersistence(UiStateItem::ipRunTime);
        branch.AddLeaf(QStringLiteral("c"));
        QCOMPARE(branch.ToJson(),
                 Object(R"({"id": "root", "subitems": [{"id": "a"}, {"id": "c"}]})"));
        Branch read(QStringLiteral("root"));
        QVERIFY(read.FromJson(branch.ToJson()));
        QCOMPARE(read.Names(), (QStringList{"a", "c"}));
    }

    void anEmptySuiteWritesAnEmptyArray()
    {
        QCOMPARE(Branch(QStringLiteral("root")).ToJson(),
                 Object(R"({"id": "root", "subitems": []})"));
    }

    void readingAddsToWhatIsThere()
    {
        Branch branch(QStringLiteral("root"));
        branch.AddLeaf(QStringLiteral("a"));
        const QJsonObject object =
            Object(R"({"subitems": [{"id": "b"}, {"id": "a", "visible": false}]})");
        QVERIFY(branch.FromJson(object));
        QVERIFY(branch.FromJson(object));
        QCOMPARE(branch.Names(), (QStringList{"a", "b", "a", "b", "a"}));
    }

    void anElementThatIsNoObjectReadsAsAnEmptyOne()
    {
        Branch branch(QStringLiteral("root"));
        QVERIFY(branch.FromJson(Object(R"({"subitems": [5, null, "x", [], {"id": "b"}]})")));
        QCOMPARE(branch.Names(), (QStringList{"", "", "", "", "b"}));
    }

    void anElementOfUnknownTypeIsSkippedAlone()
    {
        Branch branch(QStringLiteral("root"));
        QVERIFY(branch.FromJson(Object(R"({"visible": false, "subitems": [
            {"id": "a"}, {"id": "b", "type": "unknown"}, {"id": "c"}]})")));
        QCOMPARE(branch.Names(), (QStringList{"a", "c"}));
        QVERIFY(!branch.IsVisible());
    }

    void childrenThatAreNoArrayAreNone()
    {
        Branch branch(QStringLiteral("root"));
        QVERIFY(branch.FromJson(Object(R"({"subitems": {"id": "a"}})")));
        QVERIFY(branch.FromJson(Object(R"({"subitems": 7})")));
        QVERIFY(branch.FromJson(QJsonObject()));
        QCOMPARE(branch.GetCount(), 0);
    }

    void aTreeReadsBackWhatItWrote()
    {
        Branch branch(QStringLiteral("root"));
        branch.AddBranch(QStringLiteral("p"))->AddLeaf(QStringLiteral("l"))->SetVisible(false);
        branch.AddBranch(QStringLiteral("q"))->AddBranch(QStringLiteral("r"));
        Branch read(branch.ToJson());
        QVERIFY(read.FromJson(branch.ToJson()));
        QCOMPARE(read.ToJson(), branch.ToJson());
    }

    void visibilityIsToldOnlyWhenItChanges()
    {
        Leaf leaf(QStringLiteral("x"));
        leaf.SetVisible(true);
        QVERIFY(leaf.calls.isEmpty());
        leaf.SetVisible(false);
        leaf.SetVisible(false);
        leaf.SetVisible(true);
        QCOMPARE(leaf.calls, (QStringList{"visible 0", "visible 1"}));
    }

    void aSuiteActivatesOnce()
    {
        Branch branch(QStringLiteral("root"));
        Leaf* const leaf = branch.AddLeaf(QStringLiteral("a"));
        branch.Deactivate(UiProfileItem::amOrdinary);
        QVERIFY(leaf->calls.isEmpty());
        branch.Activate(UiProfileItem::amRestore);
        branch.Activate(UiProfileItem::amOrdinary);
        QVERIFY(branch.IsActive());
        branch.Deactivate(UiProfileItem::amRestore);
        branch.Deactivate(UiProfileItem::amOrdinary);
        QVERIFY(!branch.IsActive());
        QCOMPARE(leaf->calls, (QStringList{"activate 1", "deactivate 1"}));
    }

    void aSuiteIsActiveAfterItsActivationAndInactiveBeforeItsDeactivation()
    {
        class Watching : public Branch
        {
        public:
            using Branch::Branch;
            QList<bool> seen;

        protected:
            void _Activate(ActivationMode) override { seen << IsActive(); }
            void _Deactivate(ActivationMode) override { seen << IsActive(); }
        };
        Watching suite(QStringLiteral("root"));
        suite.Activate(UiProfileItem::amOrdinary);
        suite.Deactivate(UiProfileItem::amOrdinary);
        QCOMPARE(suite.seen, (QList<bool>{false, false}));
    }

    void onlyAnActiveSuiteValidates()
    {
        Branch branch(QStringLiteral("root"));
        branch.AddLeaf(QStringLiteral("a"));
        QSet<QString> changed;
        branch.Validate(changed);
        QVERIFY(changed.isEmpty());
        branch._SetActive();
        branch.Validate(changed);
        QCOMPARE(changed, QSet<QString>{QStringLiteral("a")});
    }

    void everySuiteStores()
    {
        Branch branch(QStringLiteral("root"));
        Leaf* const leaf = branch.AddLeaf(QStringLiteral("a"));
        branch.Store();
        QCOMPARE(leaf->calls, QStringList{QStringLiteral("store")});
    }

    void settingActiveBuildsNothing()
    {
        Branch branch(QStringLiteral("root"));
        Leaf* const leaf = branch.AddLeaf(QStringLiteral("a"));
        branch._SetActive();
        QVERIFY(branch.IsActive());
        QVERIFY(leaf->calls.isEmpty());
    }

    void onlyAnActiveNodeIsActivatedAgain()
    {
        Branch branch(QStringLiteral("root"));
        Leaf* const leaf = branch.AddLeaf(QStringLiteral("a"));
        branch.Reactivate();
        QVERIFY(leaf->calls.isEmpty());
        branch.Activate(UiProfileItem::amOrdinary);
        leaf->calls.clear();
        branch.Reactivate();
        QCOMPARE(leaf->calls, (QStringList{"deactivate 0", "activate 0"}));
        QVERIFY(branch.IsActive());
    }

    void aNodeIsShownWhenItIsVisibleAndAvailable()
    {
        class Unavailable : public Leaf
        {
        public:
            using Leaf::Leaf;
            bool IsAvailable() const override { return false; }
        };
        Leaf leaf(QStringLiteral("x"));
        QVERIFY(leaf.IsShown());
        leaf.SetVisible(false);
        QVERIFY(!leaf.IsShown());
        QVERIFY(!Unavailable(QStringLiteral("x")).IsShown());
    }

    void aPlainNodeHasNoStateOfItsOwn()
    {
        Dummy::Dummy node(Object(R"({"id": "x"})"));
        QSet<QString> changed;
        node.Activate(UiProfileItem::amOrdinary);
        node.Store();
        node.Validate(changed);
        QVERIFY(!node.IsActive());
        QVERIFY(!node.IsVisible());
        QVERIFY(node.IsAvailable());
        QVERIFY(node.IsStorable());
        QVERIFY(!node.GetLayout());
        QVERIFY(!node.GetChild(0));
        QCOMPARE(node.GetChildCount(), 0);
        QVERIFY(node.FromJson(Object(R"({"id": "y"})")));
        QCOMPARE(node.GetName(), QStringLiteral("x"));
        QCOMPARE(node.ToJson(), Object(R"({"id": "x"})"));
        const std::unique_ptr<UiProfileItem> clone(node.Clone());
        QCOMPARE(clone->GetName(), QStringLiteral("x"));
    }

    void theTypeNameIsTheLastComponentOfTheClass()
    {
        QCOMPARE(Leaf(QString()).GetTypeName(), QStringLiteral("Leaf"));
        QCOMPARE(UiStateMenus().GetTypeName(), QStringLiteral("UiStateMenus"));
        QCOMPARE(UiProfile().GetTypeName(), QStringLiteral("UiProfile"));
        QCOMPARE(Dummy::Dummy(QJsonObject()).GetTypeName(), QStringLiteral("Dummy"));
    }

    void aNamelessNodeOutsideALayoutStaysNameless()
    {
        Branch branch(QStringLiteral("root"));
        QCOMPARE(branch.AddLeaf(QString())->GetName(), QString());
    }

    void aDeepChainIsLoggedAndWalkedToItsEnd()
    {
        Branch root(QStringLiteral("root"));
        Branch* deepest = &root;
        for (int i = 1; i < 32; ++i)
            deepest = deepest->AddBranch(QStringLiteral("b"));
        QTest::ignoreMessage(QtDebugMsg, "Oops");
        QTest::ignoreMessage(QtDebugMsg, "Oops");
        QVERIFY(!deepest->GetLayout());
    }

    void aRingOfParentsEnds()
    {
        Leaf first(QStringLiteral("first"));
        Leaf second(QStringLiteral("second"));
        first.SetParent(&second);
        second.SetParent(&first);
        const auto silence =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        const UiLayout* const layout = first.GetLayout();
        qInstallMessageHandler(silence);
        QVERIFY(!layout);
    }
};

OVK_TEST_CLASS(ProfileItemTest)

class UiStateListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indexesOutOfRangeGiveNull()
    {
        Branch branch(QStringLiteral("root"));
        branch.AddLeaf(QStringLiteral("a"));
        QVERIFY(!branch.RemoveChild(-1));
        QVERIFY(!branch.RemoveChild(1));
        QVERIFY(!branch.GetChild(branch.GetChildCount()));
        QVERIFY(!branch.GetChild(-1));
        QVERIFY(!branch.GetItem(1));
        QCOMPARE(branch.GetCount(), 1);
        Leaf other(QStringLiteral("b"));
        QCOMPARE(branch.GetIndexOf(&other), -1);
        QCOMPARE(branch.GetIndexOf(nullptr), -1);
    }

    void childrenAreInsertedWhereToldAndElseAtTheEnd()
    {
        Branch branch(QStringLiteral("root"));
        branch.InsertChild(-1, new Leaf(QStringLiteral("a")));
        branch.InsertChild(0, new Leaf(QStringLiteral("b")));
        branch.InsertChild(1, new Leaf(QStringLiteral("c")));
        branch.InsertChild(99, new Leaf(QStringLiteral("d")));
        QCOMPARE(branch.Names(), (QStringList{"b", "c", "a", "d"}));
        QCOMPARE(branch.GetItem(3)->GetParent(), static_cast<ITreeItem*>(&branch));
    }

    void aChildOfAnotherClassIsNotTaken()
    {
        Branch branch(QStringLiteral("root"));
        const auto stranger = std::make_unique<Dummy::Dummy>(QJsonObject());
        branch.AppendChild(stranger.get());
        QCOMPARE(branch.GetCount(), 0);
    }

    void aRemovedChildBelongsToTheCaller()
    {
        Branch branch(QStringLiteral("root"));
        Leaf* const leaf = branch.AddLeaf(QStringLiteral("a"));
        const std::unique_ptr<ITreeItem> removed(branch.RemoveChild(0));
        QCOMPARE(removed.get(), static_cast<ITreeItem*>(leaf));
        QVERIFY(!removed->GetParent());
    }

    void theWalkStopsAtTheFirstRefusal()
    {
        Branch branch(QStringLiteral("root"));
        for (const char* name : {"a", "b", "c"})
            branch.AddLeaf(QString::fromLatin1(name));
        QStringList visited;
        const auto until_b = [&visited](const UiProfileItem* item) {
            visited << item->GetName();
            return item->GetName() != QLatin1String("b");
        };
        QCOMPARE(branch.ForEach(until_b)->GetName(), QStringLiteral("b"));
        QCOMPARE(qAsConst(branch).ForEach(until_b)->GetName(), QStringLiteral("b"));
        QCOMPARE(visited, (QStringList{"a", "b", "a", "b"}));
        QVERIFY(!branch.ForEach([](UiProfileItem*) { return true; }));
    }

    void anEmptyVisitorThrows()
    {
        Branch branch(QStringLiteral("root"));
        QVERIFY(!branch.ForEach(std::function<bool(UiProfileItem*)>()));
        branch.AddLeaf(QStringLiteral("a"));
        QVERIFY_EXCEPTION_THROWN(branch.ForEach(std::function<bool(UiProfileItem*)>()),
                                 std::bad_function_call);
    }

    void itemsAreSwappedAndDeleted()
    {
        Branch branch(QStringLiteral("root"));
        for (const char* name : {"a", "b", "c"})
            branch.AddLeaf(QString::fromLatin1(name));
        branch.Swap(0, 2);
        QCOMPARE(branch.Names(), (QStringList{"c", "b", "a"}));
        branch.Swap(0, 3);
        branch.Swap(-1, 1);
        QCOMPARE(branch.Names(), (QStringList{"c", "b", "a"}));
        branch.DeleteItem(1);
        branch.DeleteItem(5);
        branch.DeleteItem(-1);
        QCOMPARE(branch.Names(), (QStringList{"c", "a"}));
        branch._DeleteItems();
        QCOMPARE(branch.GetCount(), 0);
    }

    void allAreDeletedFromTheLastToTheFirst()
    {
        class Last : public Leaf
        {
        public:
            Last(const QString& name, QStringList& log) : Leaf(name), m_log(log) {}
            ~Last() override { m_log << GetName(); }

        private:
            QStringList& m_log;
        };
        QStringList log;
        Branch branch(QStringLiteral("root"));
        for (const char* name : {"a", "b", "c"})
            branch.AppendChild(new Last(QString::fromLatin1(name), log));
        branch._DeleteItems();
        QCOMPARE(log, (QStringList{"c", "b", "a"}));
    }

    void aCloneIsDeepAndInactive()
    {
        auto branch = std::make_unique<Branch>(QStringLiteral("root"));
        branch->AddBranch(QStringLiteral("p"))->AddLeaf(QStringLiteral("l"))->SetVisible(false);
        branch->SetPersistence(UiStateItem::ipBuiltIn);
        branch->_SetChangedByUser(true);
        branch->SetVisible(false);
        branch->Activate(UiProfileItem::amOrdinary);
        const QJsonObject written = branch->ToJson();
        const std::unique_ptr<UiProfileItem> clone(branch->Clone());
        QVERIFY(!clone->IsActive());
        QVERIFY(dynamic_cast<Branch*>(clone.get()));
        branch.reset();
        QCOMPARE(clone->ToJson(), written);
        QCOMPARE(clone->GetChild(0)->GetParent(), static_cast<ITreeItem*>(clone.get()));
    }

    void anAssignmentNamesTheSameChildren()
    {
        Branch source(QStringLiteral("source"));
        Leaf* const leaf = source.AddLeaf(QStringLiteral("a"));
        source.SetVisible(false);
        source.SetPersistence(UiStateItem::ipFixed);
        source._SetChangedByUser(true);
        source._SetActive();
        Branch parent(QStringLiteral("parent"));
        source.SetParent(&parent);
        {
            Branch target(QStringLiteral("target"));
            target.AddLeaf(QStringLiteral("gone"));
            target = source;
            QCOMPARE(target.GetName(), QStringLiteral("source"));
            QCOMPARE(target.GetParent(), static_cast<ITreeItem*>(&parent));
            QVERIFY(!target.IsVisible());
            QVERIFY(target.IsActive());
            QVERIFY(target._IsChangedByUser());
            QCOMPARE(target.GetPersistence(), UiStateItem::ipFixed);
            QCOMPARE(target.GetCount(), 1);
            QCOMPARE(target.GetItem(0), static_cast<UiProfileItem*>(leaf));
            target.AddLeaf(QStringLiteral("own"));
            QCOMPARE(source.GetCount(), 1);
        }
        QCOMPARE(source.Names(), QStringList{QStringLiteral("a")});
        QCOMPARE(source.GetItem(0)->GetName(), QStringLiteral("a"));
    }
};

OVK_TEST_CLASS(UiStateListTest)

#include "profile_item_test.moc"
