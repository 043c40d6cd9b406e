#include "tests/support/test_main.h"

#include <ovk/core/named.h>
#include <ovk/core/pimpl_basics.h>
#include <ovk/core/tree_item.h>

using namespace ovk;

namespace {

class Node : public TreeItem<Node>
{
public:
    explicit Node(const QString& name = QString(), QStringList* deaths = nullptr, Node* parent = nullptr)
        : TreeItem<Node>(parent), m_name(name), m_deaths(deaths)
    {
    }
    ~Node() override
    {
        if (m_deaths)
            m_deaths->append(m_name);
    }
    using TreeItem<Node>::_GetParent;

private:
    QString m_name;
    QStringList* m_deaths;
};

class Label : public Named
{
public:
    explicit Label(const QString& name) : Named(name) {}
    void SetName(const QString& name) { _SetName(name); }
};

class Owner
{
public:
    class Impl : public PimplBasics<Owner>
    {
    public:
        explicit Impl(Owner& owner) : PimplBasics<Owner>(owner) {}
        using PimplBasics<Owner>::ResetOwner;
    };
};

} // namespace

class TreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNegativeIndexAppends();
    void anIndexPastTheEndAppends();
    void anIndexOutsideGivesNull();
    void childrenAreFoundByTheirPlace();
    void aRootHasNoPlace();
    void aRemovedChildLivesOnAlone();
    void removingOutsideTheRangeDoesNothing();
    void deletingANodeTakesItsBranchWithIt();
    void aParentGivenAtConstructionIsABackLinkOnly();
    void nullIsNotInserted();
    void namesAreCopiedAndCompared();
    void anImplementationKnowsItsOwner();
};

void TreeTest::aNegativeIndexAppends()
{
    Node root;
    auto* const first = new Node;
    auto* const second = new Node;
    root.InsertChild(0, first);
    root.InsertChild(-5, second);
    QVERIFY(root.GetChild(1) == second);
    QVERIFY(second->GetParent() == &root);
    QVERIFY(second->_GetParent() == &root);
}

void TreeTest::anIndexPastTheEndAppends()
{
    Node root;
    root.InsertChild(7, new Node);
    QCOMPARE(root.GetChildCount(), 1);
}

void TreeTest::anIndexOutsideGivesNull()
{
    Node root;
    root.AppendChild(new Node);
    QVERIFY(!root.GetChild(-1));
    QVERIFY(!root.GetChild(1));
    QVERIFY(!static_cast<const Node&>(root).GetChild(1));
    QVERIFY(root.GetChild(0));
    QVERIFY(root.IsValidIndex(0));
    QVERIFY(!root.IsValidIndex(-1));
    QVERIFY(!root.IsValidIndex(1));
}

void TreeTest::childrenAreFoundByTheirPlace()
{
    Node root;
    auto* const a = new Node;
    auto* const b = new Node;
    auto* const c = new Node;
    root.AppendChild(a);
    root.AppendChild(c);
    root.InsertChild(1, b);
    QCOMPARE(a->GetIndexOf(), 0);
    QCOMPARE(b->GetIndexOf(), 1);
    QCOMPARE(root.GetIndexOf(c), 2);
    Node stranger;
    QCOMPARE(root.GetIndexOf(&stranger), -1);
    QCOMPARE(root.GetIndexOf(nullptr), -1);
    QVERIFY(root.GetChildUnsafe(1) == b);
    QVERIFY(static_cast<const Node&>(root).GetChildUnsafe(2) == c);
}

void TreeTest::aRootHasNoPlace()
{
    QCOMPARE(Node().GetIndexOf(), -1);
}

void TreeTest::aRemovedChildLivesOnAlone()
{
    QStringList deaths;
    Node root;
    root.AppendChild(new Node("child", &deaths));
    const std::unique_ptr<ITreeItem> child(root.RemoveChild(0));
    QVERIFY(child);
    QVERIFY(!child->GetParent());
    QVERIFY(deaths.isEmpty());
    QCOMPARE(root.GetChildCount(), 0);
}

void TreeTest::removingOutsideTheRangeDoesNothing()
{
    Node root;
    root.AppendChild(new Node);
    QVERIFY(!root.RemoveChild(-1));
    QVERIFY(!root.RemoveChild(1));
    QCOMPARE(root.GetChildCount(), 1);
}

void TreeTest::deletingANodeTakesItsBranchWithIt()
{
    QStringList deaths;
    Node root("root", &deaths);
    auto* const branch = new Node("branch", &deaths);
    auto* const first = new Node("first", &deaths);
    root.AppendChild(new Node("before", &deaths));
    root.AppendChild(branch);
    root.AppendChild(new Node("after", &deaths));
    branch->AppendChild(first);
    branch->AppendChild(new Node("second", &deaths));
    first->AppendChild(new Node("leaf", &deaths));
    delete branch;
    QCOMPARE(deaths, (QStringList{"branch", "first", "leaf", "second"}));
    QCOMPARE(root.GetChildCount(), 2);
    QCOMPARE(root.GetIndexOf(branch), -1);
}

void TreeTest::aParentGivenAtConstructionIsABackLinkOnly()
{
    Node root;
    {
        Node child("child", nullptr, &root);
        QVERIFY(child.GetParent() == &root);
        QCOMPARE(child.GetIndexOf(), -1);
        QCOMPARE(root.GetChildCount(), 0);
    }
    QCOMPARE(root.GetChildCount(), 0);
}

void TreeTest::nullIsNotInserted()
{
    Node root;
    root.AppendChild(nullptr);
    QCOMPARE(root.GetChildCount(), 0);
}

void TreeTest::namesAreCopiedAndCompared()
{
    Label a("name");
    Label b(a);
    QVERIFY(a == b);
    b.SetName("Name");
    QVERIFY(!(a == b));
    QCOMPARE(a.GetName(), QString("name"));
    const Label& self = b;
    b = self;
    QCOMPARE(b.GetName(), QString("Name"));
    a = b;
    QCOMPARE(a.GetName(), QString("Name"));
}

void TreeTest::anImplementationKnowsItsOwner()
{
    Owner first, second;
    Owner::Impl impl(first);
    QVERIFY(impl._pp() == &first);
    QVERIFY(&impl._pr() == &first);
    QVERIFY(&impl.owner() == &first);
    Owner::Impl copy(impl);
    copy.ResetOwner(second);
    const Owner::Impl& constant = copy;
    QVERIFY(constant._pp() == &second);
    QVERIFY(&constant._pr() == &second);
    QVERIFY(&constant.owner() == &second);
    copy = impl;
    QVERIFY(copy._pp() == &first);
}

OVK_TEST_CLASS(TreeTest)

#include "tree_test.moc"
