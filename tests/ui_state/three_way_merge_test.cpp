#include "test_nodes.h"

#include "tests/support/test_main.h"

#include <ovk/ui_state/three_way_merge_p.h>

#include <QElapsedTimer>
#include <QtTest/QtTest>

#include <optional>
#include <random>

using namespace ovk;
using namespace ui_state_test;

namespace {

/// A node as plain data, and the merge spelled out step by step, with lists that are searched.
struct Model
{
    QString name;
    bool visible = true;
    int persistence = 1;
    std::vector<Model> children;
};

using Lookup = std::vector<std::optional<const Model*>>;

int FindFromEnd(const Lookup& list, const QString& name)
{
    for (int i = int(list.size()) - 1; i >= 0; --i) {
        if (list[std::size_t(i)] && (*list[std::size_t(i)])->name == name)
            return i;
    }
    return -1;
}

Lookup ListOf(const Model* model)
{
    Lookup list;
    if (model) {
        for (const Model& child : model->children)
            list.emplace_back(&child);
    }
    return list;
}

void MergeModel(Model& own, const Model& source, const Model* base)
{
    if (base) {
        if (own.visible == base->visible)
            own.visible = source.visible;
        own.persistence = source.persistence;
    }
    Lookup sources = ListOf(&source);
    const Lookup bases = ListOf(base);
    for (int i = int(own.children.size()) - 1; i >= 0; --i) {
        const int s = FindFromEnd(sources, own.children[std::size_t(i)].name);
        const int b = FindFromEnd(bases, own.children[std::size_t(i)].name);
        if (s >= 0 && b >= 0) {
            MergeModel(own.children[std::size_t(i)], **sources[std::size_t(s)],
                       *bases[std::size_t(b)]);
            sources[std::size_t(s)].reset();
        } else if (b >= 0) {
            own.children.erase(own.children.begin() + i);
        }
    }
    for (const auto& entry : sources) {
        if (entry && FindFromEnd(bases, (*entry)->name) < 0)
            own.children.push_back(**entry);
    }
}

Model RandomModel(std::mt19937& random, const QString& name, int depth, int alphabet)
{
    Model model;
    model.name = name;
    model.visible = random() % 3 != 0;
    model.persistence = int(random() % 5);
    const int count = depth > 0 ? int(random() % 7) : 0;
    for (int i = 0; i < count; ++i) {
        const QString child(QLatin1Char(char('a' + random() % unsigned(alphabet))));
        model.children.push_back(RandomModel(random, child, depth - 1, alphabet));
    }
    return model;
}

std::unique_ptr<Branch> TreeOf(const Model& model)
{
    auto branch = std::make_unique<Branch>(model.name);
    branch->SetVisible(model.visible);
    branch->SetPersistence(UiStateItem::ItemPersitence(model.persistence));
    for (const Model& child : model.children)
        branch->AppendChild(TreeOf(child).release());
    return branch;
}

QString TextOf(const Model& model)
{
    QStringList children;
    for (const Model& child : model.children)
        children << TextOf(child);
    return QStringLiteral("%1%2%3(%4)")
        .arg(model.name, model.visible ? QString() : QStringLiteral("-"))
        .arg(model.persistence)
        .arg(children.join(QLatin1Char(' ')));
}

QString TextOf(const Branch& branch)
{
    QStringList children;
    branch.ForEach([&children, &branch](const UiProfileItem* child) {
        if (child->GetParent() != &branch)
            children << QStringLiteral("ORPHAN");
        children << TextOf(static_cast<const Branch&>(*child));
        return true;
    });
    return QStringLiteral("%1%2%3(%4)")
        .arg(branch.GetName(), branch.IsVisible() ? QString() : QStringLiteral("-"))
        .arg(int(branch.GetPersistence()))
        .arg(children.join(QLatin1Char(' ')));
}

std::unique_ptr<Branch> Flat(const QStringList& names)
{
    auto branch = std::make_unique<Branch>(QStringLiteral("root"));
    for (const QString& name : names)
        branch->AddLeaf(name);
    return branch;
}

QStringList Split(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class ThreeWayMergeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void childrenAreMergedByName_data()
    {
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("merged");

        const auto row = [](const char* title, const char* own, const char* source,
                            const char* base, const char* merged) {
            QTest::newRow(title) << QString(own) << QString(source) << QString(base)
                                 << QString(merged);
        };
        row("nothing anywhere", "", "", "", "");
        row("nothing changed", "a b c", "a b c", "a b c", "a b c");
        row("the user's order stays", "c a b", "a b c", "a b c", "c a b");
        row("the user's own item keeps its place", "a mine b", "a b", "a b", "a mine b");
        row("new defaults come after the user's own", "a mine", "new a newer", "a",
            "a mine new newer");
        row("what the default dropped goes", "a b c", "a c", "a b c", "a c");
        row("all that the default dropped goes", "a b c", "", "a b c", "");
        row("the user's own survive a default that drops all", "x a y b z", "", "a b", "x y z");
        row("what the user deleted stays deleted", "a c", "a b c", "a b c", "a c");
        row("without a base all comes twice", "a b", "a b", "", "a b a b");
        row("both invented the same name", "mine a", "a mine", "a", "mine a mine");
        row("one of the user's two goes when the default has one", "a a", "a", "a", "a");
        row("the default's second of a name is not new", "a", "a a", "a", "a");
        row("each of two finds its own", "a a", "a a", "a", "a a");
        row("a user's third goes", "a a a", "a a", "a a", "a a");
        row("a new name twice comes twice", "", "n n", "", "n n");
        row("names differ by case", "a A", "a", "a A", "a");
    }

    void childrenAreMergedByName()
    {
        QFETCH(QString, own);
        QFETCH(QString, source);
        QFETCH(QString, base);
        QFETCH(QString, merged);

        const auto tree = Flat(own.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        const auto new_default = Flat(source.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        const auto old_default = Flat(base.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        tree->Merge(*new_default, old_default.get());
        QCOMPARE(tree->Names().join(QLatin1Char(' ')), merged);
    }

    void aMissingBaseCountsAsEmpty()
    {
        const auto tree = Flat(Split("a mine"));
        const auto new_default = Flat(Split("a new"));
        new_default->SetVisible(false);
        tree->Merge(*new_default, nullptr);
        QCOMPARE(tree->Names(), Split("a mine a new"));
        QVERIFY(tree->IsVisible());
    }

    void visibilityFollowsTheDefaultUntilTheUserChangesIt_data()
    {
        QTest::addColumn<bool>("own");
        QTest::addColumn<bool>("source");
        QTest::addColumn<bool>("base");
        QTest::addColumn<bool>("merged");

        QTest::newRow("aHiddenItemStaysHiddenWhenTheDefaultShowsIt")
            << false << true << true << false;
        QTest::newRow("an untouched item is hidden by the default")
            << true << false << true << false;
        QTest::newRow("an untouched hidden item is shown by the default")
            << false << true << false << true;
        QTest::newRow("a shown item stays shown") << true << false << false << true;
        QTest::newRow("all hidden") << false << false << false << false;
        QTest::newRow("all shown") << true << true << true << true;
        QTest::newRow("both hid it") << false << false << true << false;
        QTest::newRow("both showed it") << true << true << false << true;
    }

    void visibilityFollowsTheDefaultUntilTheUserChangesIt()
    {
        QFETCH(bool, own);
        QFETCH(bool, source);
        QFETCH(bool, base);
        Leaf item(QStringLiteral("item"));
        Leaf new_default(QStringLiteral("item"));
        Leaf old_default(QStringLiteral("item"));
        item.SetVisible(own);
        new_default.SetVisible(source);
        old_default.SetVisible(base);
        new_default.SetPersistence(UiStateItem::ipBuiltIn);
        item.Merge(new_default, &old_default);
        QTEST(item.IsVisible(), "merged");
        QCOMPARE(item.GetPersistence(), UiStateItem::ipBuiltIn);
    }

    void aMergeTellsNobodyThatTheVisibilityChanged()
    {
        Leaf item(QStringLiteral("item"));
        Leaf new_default(QStringLiteral("item"));
        const Leaf old_default(QStringLiteral("item"));
        new_default.SetVisible(false);
        item.Merge(new_default, &old_default);
        QVERIFY(!item.IsVisible());
        QVERIFY(item.calls.isEmpty());
    }

    void aDefaultThatDropsAGroupDropsItWithTheUsersChange()
    {
        Branch page(QStringLiteral("page"));
        page.AddBranch(QStringLiteral("group"))->SetVisible(false);
        page.AddBranch(QStringLiteral("other"));
        Branch old_default(QStringLiteral("page"));
        old_default.AddBranch(QStringLiteral("group"));
        old_default.AddBranch(QStringLiteral("other"));
        Branch new_default(QStringLiteral("page"));
        new_default.AddBranch(QStringLiteral("other"));
        page.Merge(new_default, &old_default);
        QCOMPARE(page.Names(), Split("other"));
    }

    void aSuiteThatIsNotMergeableStaysAsItIs()
    {
        const auto tree = Flat(Split("a b"));
        tree->mergeable = false;
        const auto new_default = Flat(Split("c"));
        const auto old_default = Flat(Split("a b"));
        new_default->SetVisible(false);
        tree->Merge(*new_default, old_default.get());
        QCOMPARE(tree->Names(), Split("a b"));
        QVERIFY(tree->IsVisible());
    }

    void whatTheDefaultAddsIsACopy()
    {
        const auto tree = Flat({});
        auto new_default = Flat(Split("a"));
        tree->Merge(*new_default, nullptr);
        QVERIFY(tree->GetItem(0) != new_default->GetItem(0));
        QCOMPARE(tree->GetItem(0)->GetParent(), static_cast<ITreeItem*>(tree.get()));
        new_default.reset();
        QCOMPARE(tree->Names(), Split("a"));
    }

    void aTreeMergedWithItselfIsUnchanged()
    {
        const auto tree = Flat(Split("a b c"));
        tree->Merge(*tree, tree.get());
        QCOMPARE(tree->Names(), Split("a b c"));
    }

    void aThousandRandomTreesMergeLikeTheModel()
    {
        constexpr unsigned seed = 20240613;
        qInfo("seed %u", seed);
        std::mt19937 random(seed);
        for (int round = 0; round < 3000; ++round) {
            const int alphabet = 2 + int(random() % 8);
            const QString root = QStringLiteral("root");
            Model own = RandomModel(random, root, 3, alphabet);
            const Model source = RandomModel(random, root, 3, alphabet);
            const Model base = RandomModel(random, root, 3, alphabet);
            const bool has_base = random() % 5 != 0;

            const auto tree = TreeOf(own);
            const auto new_default = TreeOf(source);
            const auto old_default = TreeOf(base);
            tree->Merge(*new_default, has_base ? old_default.get() : nullptr);
            MergeModel(own, source, has_base ? &base : nullptr);

            if (TextOf(*tree) != TextOf(own))
                qWarning("round %d", round);
            QCOMPARE(TextOf(*tree), TextOf(own));
            QCOMPARE(TextOf(*new_default), TextOf(source));
            QCOMPARE(TextOf(*old_default), TextOf(base));
        }
    }

    void thePlanTakesTimeInProportion()
    {
        // Half of the user's children were dropped, and a quarter of the default's is new: with any
        // search or move for each child 200,000 of them take minutes.
        constexpr int count = 200000;
        std::vector<QString> texts(count * 2);
        for (int i = 0; i < count * 2; ++i)
            texts[std::size_t(i)] = QStringLiteral("item %1").arg(i);
        const auto tree = std::make_unique<Branch>(QStringLiteral("root"));
        const auto new_default = std::make_unique<Branch>(QStringLiteral("root"));
        const auto old_default = std::make_unique<Branch>(QStringLiteral("root"));
        for (int i = 0; i < count; ++i) {
            tree->AddLeaf(texts[std::size_t(i)]);
            old_default->AddLeaf(texts[std::size_t(i)]);
            if (i % 2)
                new_default->AddLeaf(texts[std::size_t(i)]);
            if (i % 4 == 0)
                new_default->AddLeaf(texts[std::size_t(count + i)]);
        }
        QElapsedTimer timer;
        timer.start();
        tree->Merge(*new_default, old_default.get());
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(tree->GetCount(), count / 2 + count / 4);
    }
};

OVK_TEST_CLASS(ThreeWayMergeTest)

#include "three_way_merge_test.moc"
