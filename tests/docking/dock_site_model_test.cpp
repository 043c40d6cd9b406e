#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QRandomGenerator>
#include <QSet>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;

namespace {

/// Applies one random step after another to a live manager, and the same to a list model of who
/// lies where; then compares.
class SiteModel
{
public:
    explicit SiteModel(quint32 seed) : m_random(seed) {}

    void Step()
    {
        m_what.clear();
        mp_touched = nullptr;
        switch (m_random.bounded(14)) {
        case 0:
        case 1:
            Create();
            break;
        case 2:
        case 3:
        case 4:
            Dock();
            break;
        case 5:
            Float();
            break;
        case 6:
            Delete();
            break;
        case 7:
            Fold();
            break;
        case 8:
            Show();
            break;
        case 9:
            Resize();
            break;
        case 10:
            FoldSite();
            break;
        case 11:
            CrossSize();
            break;
        case 12:
            ChangePages();
            break;
        case 13:
            Settle();
            break;
        }
    }

    void Settle()
    {
        m_what = QStringLiteral("settle");
        DockFixture::Settle();
    }

    /// Lets the layout come to rest.
    void Rest() { DockFixture::Settle(); }

    /// Empty if all is as it should be.
    QString Check()
    {
        const QString error = m_fixture.Inconsistency();
        if (!error.isEmpty())
            return error;
        for (int side = 0; side < 4; ++side) {
            const QStringList order = DockFixture::Order(*m_fixture.Site(DockLayout::Side(side)));
            if (order != m_order[side])
                return QStringLiteral("%1 instead of %2")
                    .arg(order.join(','), m_order[side].join(','));
        }
        QStringList floating;
        for (const DockWidget* panel : m_fixture.manager->GetFloatedWidgets())
            floating.append(panel->GetName());
        if (floating != m_floating)
            return QStringLiteral("floating: ") + floating.join(',');
        return {};
    }

    /// Folding by hand and for want of room are told apart: what the user folded nobody opens, and
    /// what the user left open only folds because it must.
    QString CheckFolding()
    {
        for (DockWidget* panel : qAsConst(m_panels)) {
            const bool by_hand = panel->IsCollapsed() && !panel->IsForcedCollapsed();
            const bool for_room = panel->_Impl()->folded_for_room;
            if (panel != mp_touched) {
                if (m_by_hand.contains(panel) && !by_hand)
                    return panel->GetName() + QStringLiteral(", folded by hand, opened");
                if (!m_by_hand.contains(panel) && by_hand && !for_room)
                    return panel->GetName() + QStringLiteral(" folded and nobody did it");
            }
            if (by_hand)
                m_by_hand.insert(panel);
            else
                m_by_hand.remove(panel);
        }
        return {};
    }

    /// A site that cannot make the room that it is asked for leaves everything as it is.
    QString CheckRefusal()
    {
        DockToolboxSite::Impl& site = *m_fixture.Site(DockLayout::Side(m_random.bounded(4)))->_pp();
        const QList<DockWidget*> panels = site.GetPanels();
        DockWidget* const exclude =
            panels.isEmpty() ? nullptr : panels.at(m_random.bounded(panels.size()));
        const auto folded = [&panels] {
            QList<bool> result;
            for (const DockWidget* panel : panels)
                result << panel->IsCollapsed() << panel->IsForcedCollapsed();
            return result;
        };
        const QList<bool> before = folded();
        const int needed = m_random.bounded(1500);
        if (!site.EnsureSpace(exclude, needed) && folded() != before)
            return QStringLiteral("a refusal of %1 folded somebody").arg(needed);
        return {};
    }

    /// What holds once the layout has come to rest: nobody is squeezed below his least size while
    /// he could fold, and folded panels are as low as their titles.
    QString CheckSettled()
    {
        for (int side = 0; side < 4; ++side) {
            const QString error = m_fixture.Site(DockLayout::Side(side))->_pp()->CheckLaidOut();
            if (!error.isEmpty())
                return QStringLiteral("side %1: %2").arg(side).arg(error);
        }
        for (const DockLayout::Side side : {DockLayout::Left, DockLayout::Right}) {
            DockToolboxSite* const site = m_fixture.Site(side);
            const dock_space::Panels panels =
                DockToolboxSite::Impl::Describe(site->_pp()->GetPanels());
            const dock_space::Space space =
                dock_space::CalcFreeSpace(panels, site->geometry().height(), true);
            if (space.free < 0 && space.minimal >= 0)
                return QStringLiteral("a site of %1 is too full").arg(site->geometry().height());
            for (const DockWidget* panel : site->_pp()->GetPanels()) {
                if (panel->isVisible() && panel->IsCollapsed() &&
                    panel->height() != panel->_Impl()->GetCollapsedMin().height())
                    return QStringLiteral("a folded panel is not as low as its title");
            }
        }
        return {};
    }

    const QString& What() const { return m_what; }

private:
    DockWidget* Any()
    {
        if (m_panels.isEmpty())
            return nullptr;
        return m_panels.at(m_random.bounded(m_panels.size()));
    }

    void Forget(DockWidget* panel)
    {
        mp_touched = panel;
        for (QStringList& order : m_order)
            order.removeAll(panel->GetName());
        m_floating.removeAll(panel->GetName());
    }

    void Create()
    {
        if (m_panels.size() > 12)
            return;
        const QSize min(60 + m_random.bounded(150), 60 + m_random.bounded(200));
        DockWidget* const panel = m_fixture.Panel(QStringLiteral("p%1").arg(++m_counter), min);
        panel->SetCollapsible(m_random.bounded(5) != 0);
        m_panels.append(panel);
        m_what = QStringLiteral("create %1").arg(panel->GetName());
    }

    void Dock()
    {
        DockWidget* const panel = Any();
        if (!panel)
            return;
        const int side = m_random.bounded(4);
        DockToolboxSite* const site = m_fixture.Site(DockLayout::Side(side));
        if (panel->GetToolboxSite() == site)
            return;
        const int index = m_random.bounded(site->count() + 2) - 1;
        m_what = QStringLiteral("dock %1 at %2 in %3").arg(panel->GetName()).arg(index).arg(side);
        if (!site->InsertWidget(index, panel))
            return;
        Forget(panel);
        QStringList& order = m_order[side];
        order.insert(index < 0 || index > order.size() ? order.size() : index, panel->GetName());
    }

    void Float()
    {
        DockWidget* const panel = Any();
        if (!panel || panel->IsFloated())
            return;
        m_what = QStringLiteral("float %1").arg(panel->GetName());
        panel->SetFloated(QPoint(m_random.bounded(500), m_random.bounded(400)));
        Forget(panel);
        m_floating.append(panel->GetName());
    }

    void Delete()
    {
        DockWidget* const panel = Any();
        if (!panel)
            return;
        m_what = QStringLiteral("delete %1").arg(panel->GetName());
        Forget(panel);
        m_panels.removeAll(panel);
        m_by_hand.remove(panel);
        delete panel;
    }

    void Fold()
    {
        DockWidget* const panel = Any();
        if (!panel)
            return;
        m_what = QStringLiteral("fold %1").arg(panel->GetName());
        mp_touched = panel;
        panel->SetCollapsed(!panel->IsCollapsed(), false);
    }

    void Show()
    {
        DockWidget* const panel = Any();
        if (!panel)
            return;
        m_what = QStringLiteral("show %1").arg(panel->GetName());
        panel->setVisible(!panel->IsVisible());
    }

    void Resize()
    {
        const QSize size(300 + m_random.bounded(900), 200 + m_random.bounded(800));
        m_what = QStringLiteral("resize to %1").arg(size.height());
        m_fixture.manager->resize(size);
    }

    void FoldSite()
    {
        DockToolboxSite* const site = m_fixture.Site(DockLayout::Side(m_random.bounded(4)));
        m_what = QStringLiteral("fold a site");
        site->SetMinimized(!site->IsMinimized());
    }

    void CrossSize()
    {
        m_what = QStringLiteral("cross size");
        m_fixture.Site(DockLayout::Side(m_random.bounded(4)))->SetCrossSize(m_random.bounded(300));
    }

    void ChangePages()
    {
        DockWidget* const panel = Any();
        if (!panel)
            return;
        m_what = QStringLiteral("pages of %1").arg(panel->GetName());
        if (panel->GetCount(DockWidget::All) > 1 && m_random.bounded(2))
            delete panel->GetPageAt(m_random.bounded(2), DockWidget::All)->GetWidget();
        else if (panel->GetCount(DockWidget::All) < 4)
            panel->AddPage(new FakePage(QStringLiteral("page"), QSize(50, 50)));
        panel->SetCurrentIndex(0);
    }

    QRandomGenerator m_random;
    DockFixture m_fixture;
    QList<DockWidget*> m_panels;
    QStringList m_order[4] = {{"|"}, {"|"}, {"|"}, {"|"}};
    QStringList m_floating;
    int m_counter = 0;
    QString m_what;
    DockWidget* mp_touched = nullptr;
    QSet<DockWidget*> m_by_hand;
};

} // namespace

class DockSiteModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelsStayWhereTheyWerePut_data();
    void panelsStayWhereTheyWerePut();
};

void DockSiteModelTest::panelsStayWhereTheyWerePut_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 2u, 3u, 77u, 20260301u})
        QTest::addRow("seed %u", seed) << seed;
}

void DockSiteModelTest::panelsStayWhereTheyWerePut()
{
    QFETCH(quint32, seed);
    SiteModel model(seed);
    for (int step = 0; step < 800; ++step) {
        model.Step();
        QString error = model.Check();
        if (error.isEmpty())
            error = model.CheckFolding();
        if (error.isEmpty() && step % 3 == 0) {
            model.Rest();
            error = model.CheckSettled();
        }
        if (error.isEmpty())
            error = model.CheckFolding();
        if (error.isEmpty())
            error = model.CheckRefusal();
        QVERIFY2(error.isEmpty(),
                 qPrintable(QStringLiteral("step %1, %2: %3").arg(step).arg(model.What(), error)));
    }
}

OVK_TEST_CLASS(DockSiteModelTest)

#include "dock_site_model_test.moc"
