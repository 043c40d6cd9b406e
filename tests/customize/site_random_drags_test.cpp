#include "tests/customize/reference_site.h"
#include "tests/customize/sites_host.h"
#include "tests/support/test_main.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QRandomGenerator>

#include <memory>
#include <vector>

using namespace ovk;
using namespace ovk_test;

namespace {

/// Random trees in all sites of a layout, and random drags between them.
class Player
{
public:
    explicit Player(quint32 seed) : m_random(seed) { GrowTrees(); }

    SitesHost& Sites() { return m_sites; }
    int Bounded(int end) { return m_random.bounded(end); }

    /// A container or a row of a model, the root now and then.
    QModelIndex AnyIndex(const SiteTreeModel& model)
    {
        QModelIndex index;
        while (model.rowCount(index) > 0 && (!index.isValid() || Bounded(4) > 0)) {
            if (!index.isValid() && Bounded(12) == 0)
                break;
            index = model.index(Bounded(model.rowCount(index)), 0, index);
        }
        return index;
    }

    /// Lifts commands, composites or rows of the model. Answers what it was in plain words.
    RefDrag Lift(SiteTreeModel& model, SiteTreeModel*& source)
    {
        RefDrag drag;
        source = &model;
        const int kind = Bounded(8);
        if (kind == 0) {
            QList<int> rows;
            for (int i = Bounded(3); i >= 0; --i)
                rows.append(Bounded(m_sites.commands.rowCount()));
            std::sort(rows.begin(), rows.end());
            rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
            m_sites.DragCommands(rows);
            drag.is_commands = true;
            for (int row : rows)
                drag.commands.append(m_sites.commands.at(row)->GetId());
            return drag;
        }
        if (kind == 1)
            source = &m_sites.composites;
        QModelIndexList rows;
        // Mostly of one kind: rows of one parent, or of two.
        const QModelIndex first = AnyIndex(*source);
        if (first.isValid())
            rows.append(first);
        for (int i = Bounded(3); first.isValid() && i > 0; --i) {
            const QModelIndex more =
                Bounded(2) == 0
                    ? AnyIndex(*source)
                    : source->index(Bounded(source->rowCount(first.parent())), 0, first.parent());
            if (more.isValid() && !rows.contains(more))
                rows.append(more);
        }
        m_sites.Drag(*source, rows);
        auto* dragged = dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource());
        for (const QModelIndex& index : *dragged->GetPayload())
            drag.nodes.prepend(source->GetItem(index));
        // Composites are read by the first of the list alone.
        if (source == &m_sites.composites && !drag.nodes.isEmpty())
            std::reverse(drag.nodes.begin(), drag.nodes.end());
        return drag;
    }

    /// Now and then something else happens between two drags.
    void Disturb()
    {
        const int page = Bounded(qMax(1, m_sites.ribbon.rowCount()));
        switch (Bounded(6)) {
        case 0:
            m_sites.ribbon.AddPage(Bounded(m_sites.ribbon.rowCount() + 1));
            break;
        case 1:
            m_sites.ribbon.AddGroup(m_sites.Page(page), -1);
            break;
        case 2:
            m_sites.toolbars.AddToolbar(-1);
            break;
        case 3:
            if (m_sites.menus.rowCount() < 6)
                m_sites.menus.AddMenu(0);
            break;
        case 4:
            if (m_sites.composites.rowCount() < 6)
                m_sites.composites.AddMenu(-1);
            break;
        default: {
            SiteTreeModel& model = *m_sites.Models().at(Bounded(4));
            model.AddSeparator(AnyIndex(model), Bounded(4) - 1);
        }
        }
    }

private:
    void AddSpots(UiStateCommandSpots& spots, int count)
    {
        for (int i = 0; i < count; ++i) {
            switch (Bounded(4)) {
            case 0:
                spots.AddSpot(spots.CreateSeparatorSpot());
                break;
            case 1: {
                UiSpotCommand* spot = UiStateCommandSpots::CreateCommandSpot(
                    QStringLiteral("Unknown.%1").arg(++m_unknown));
                spot->SetStyle(Qt::ToolButtonIconOnly);
                spots.AddSpot(spot);
                break;
            }
            default: {
                UiCommand* command = m_sites.commands.at(Bounded(m_sites.commands.rowCount()));
                if (!spots.IsContains(command))
                    spots.AddSpot(UiStateCommandSpots::CreateCommandSpot(*command));
            }
            }
        }
        if (Bounded(3) == 0 && spots.GetCount() > 0)
            dynamic_cast<UiStateItem*>(spots.GetItem(Bounded(spots.GetCount())))
                ->SetPersistence(UiStateItem::ipBuiltIn);
    }

    void GrowTrees()
    {
        for (int page = 0; page < 4; ++page) {
            m_sites.ribbon.AddPage(-1);
            for (int group = Bounded(4); group >= 0; --group)
                m_sites.ribbon.AddGroup(m_sites.Page(m_sites.ribbon.rowCount() - 1), -1);
        }
        for (int i = 0; i < 3; ++i) {
            m_sites.toolbars.AddToolbar(-1);
            m_sites.menus.AddMenu(-1);
            m_sites.composites.AddCommand(-1);
        }
        for (SiteTreeModel* model : m_sites.Models())
            FillBelow(*model->GetRootItem());
        // Two containers are full but for a place.
        auto* full = dynamic_cast<UiStateCommandSpots*>(m_sites.GroupNode(0, 0));
        while (full->GetCount() < 127)
            full->AddSpot(full->CreateSeparatorSpot());
        auto* menu = dynamic_cast<UiStateCommandSpots*>(m_sites.menus.GetMenus()->GetChild(0));
        while (menu->GetCount() < 11)
            menu->AddSpot(menu->CreateSeparatorSpot());
        for (SiteTreeModel* model : m_sites.Models())
            model->Refresh();
    }

    void FillBelow(ITreeItem& node)
    {
        if (auto* spots = dynamic_cast<UiStateCommandSpots*>(&node)) {
            AddSpots(*spots, Bounded(7));
        } else {
            for (int i = 0; i < node.GetChildCount(); ++i)
                FillBelow(*node.GetChild(i));
        }
        const NodeKind kind = SiteTreeModel::KindOf(&node);
        if ((kind == NodeKind::Page || kind == NodeKind::Group) && Bounded(4) == 0)
            dynamic_cast<UiStateItem&>(node).SetPersistence(UiStateItem::ipBuiltIn);
        if (kind != NodeKind::Composite)
            return;
        auto& composite = dynamic_cast<UiStateComposite&>(node);
        for (int i = Bounded(4); i > 0; --i) {
            composite.AppendChild(
                new UiStateCompositeItem(QStringLiteral("Unknown.%1").arg(++m_unknown)));
            UiCommand* command = m_sites.commands.at(Bounded(m_sites.commands.rowCount()));
            if (!composite.IsContains(command))
                composite.AppendChild(new UiStateCompositeItem(*command));
        }
    }

    QRandomGenerator m_random;
    SitesHost m_sites;
    int m_unknown = 0;
};

} // namespace

/// Thousands of drags, each compared with what plain lists make of it.
class SiteRandomDragsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDragDoesWhatPlainListsDo_data();
    void everyDragDoesWhatPlainListsDo();
    void swapsOfCompositesDoWhatPlainListsDo();

private:
    static QString Difference(const ReferenceSite& before, const ReferenceSite& expected,
                              const ReferenceSite& found)
    {
        // From the first line that differs on, a few of each.
        const QStringList wanted = expected.Lines();
        const QStringList got = found.Lines();
        int from = 0;
        while (from < wanted.size() && from < got.size() && wanted.at(from) == got.at(from))
            ++from;
        const auto part = [from](const QStringList& lines) {
            return lines.mid(qMax(0, from - 4), 12).join(QStringLiteral("; "));
        };
        return QStringLiteral("\nbefore:   %1\nexpected: %2\nfound:    %3")
            .arg(part(before.Lines()), part(wanted), part(got));
    }
    static ReferenceSite Reference(const SiteTreeModel& model)
    {
        return ReferenceSite(*model.GetRootItem(), model.GetMaxItems());
    }
};

void SiteRandomDragsTest::everyDragDoesWhatPlainListsDo_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed : {20261121u, 7u, 424242u, 99u})
        QTest::addRow("seed %u", seed) << seed;
}

void SiteRandomDragsTest::everyDragDoesWhatPlainListsDo()
{
    QFETCH(quint32, seed);
    Player player(seed);
    SitesHost& sites = player.Sites();
    std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
    for (SiteTreeModel* model : sites.Models())
        testers.push_back(std::make_unique<QAbstractItemModelTester>(
            model, QAbstractItemModelTester::FailureReportingMode::QtTest));
    int accepted = 0;
    int refused = 0;
    for (int step = 0; step < 1000; ++step) {
        if (step % 25 == 0)
            player.Disturb();
        SiteTreeModel& model = *sites.Models().at(player.Bounded(sites.Models().size()));
        SiteTreeModel* source = nullptr;
        const RefDrag drag = player.Lift(model, source);
        const QModelIndex target = player.AnyIndex(model);
        const int row = player.Bounded(model.rowCount(target) + 2) - 1;
        ITreeItem* node = model.GetItem(target);
        // A swap is announced as a move, which no tester lets pass: it has a test of its own.
        if (&model == &sites.composites && SiteTreeModel::KindOf(node) == NodeKind::Composite &&
            !drag.nodes.isEmpty() && source == &model &&
            model.GetItem(dynamic_cast<DragSource<QModelIndexList>*>(GetDragSource())
                              ->GetPayload()
                              ->first())
                    ->GetParent() == model.GetRootItem())
            continue;
        ReferenceSite expected = Reference(model);
        const ReferenceSite from = Reference(*source);
        const ReferenceSite* origin = source == &model ? &expected : &from;
        const bool allowed = expected.MayDrop(drag, node, row, origin);
        QStringList dragged = drag.commands;
        for (const void* id : drag.nodes)
            dragged.append(origin->Find(id)->name);
        const QString context =
            QStringLiteral("step %1 of seed %2: %3 on %4 at %5")
                .arg(step)
                .arg(seed)
                .arg(dragged.join(QStringLiteral(", ")), expected.Find(node)->name)
                .arg(row);
        QVERIFY2(sites.CanDrop(model, target, row) == allowed, qPrintable(context));
        if (!allowed) {
            ++refused;
            continue;
        }
        ++accepted;
        const ReferenceSite before = expected;
        expected.Drop(drag, node, row, source == &model ? &before : &from);
        QVERIFY(sites.Drop(model, target, row));
        QVERIFY2(Reference(model).Lines() == expected.Lines(),
                 qPrintable(context + Difference(before, expected, Reference(model))));
        QVERIFY(sites.Root()->CheckConsistency());
    }
    QVERIFY2(accepted > 150 && refused > 150,
             qPrintable(QStringLiteral("%1 accepted, %2 refused").arg(accepted).arg(refused)));
}

void SiteRandomDragsTest::swapsOfCompositesDoWhatPlainListsDo()
{
    Player player(5);
    SitesHost& sites = player.Sites();
    for (int step = 0; step < 300; ++step) {
        const int count = sites.composites.rowCount();
        const QModelIndex dragged = sites.composites.index(player.Bounded(count), 0);
        const QModelIndex target = sites.composites.index(player.Bounded(count), 0);
        sites.Drag(sites.composites, {dragged});
        const bool allowed = dragged != target;
        QCOMPARE(sites.CanDrop(sites.composites, target, -1), allowed);
        ReferenceSite expected = Reference(sites.composites);
        const ReferenceSite before = expected;
        RefDrag drag;
        drag.nodes = {sites.composites.GetItem(dragged)};
        if (allowed)
            expected.Drop(drag, sites.composites.GetItem(target), -1, &before);
        QCOMPARE(sites.Drop(sites.composites, target, -1), allowed);
        QCOMPARE(Reference(sites.composites).Lines(), expected.Lines());
    }
}

OVK_TEST_CLASS(SiteRandomDragsTest)

#include "site_random_drags_test.moc"
