#include "dock_fixture.h"
#include "tests/support/test_main.h"

#include <QRandomGenerator>

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

    /// What holds once the layout has come to rest: nobody is squeezed below his least size while
    /// he could fold, and folded panels are as low as their titles.
    QString CheckSettled()
    {
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
        delete panel;
    }

    void Fold()
    {
        DockWidget* const panel = Any();
        if (!panel)
            return;
        m_what = QStringLiteral("fold %1").arg(panel->GetName());
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
};

} // namespace

class DockModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelsStayWhereTheyWerePut_data();
    void panelsStayWhereTheyWerePut();
    void dragsEndClean_data();
    void dragsEndClean();
};

void DockModelTest::panelsStayWhereTheyWerePut_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 2u, 3u, 77u, 20260301u})
        QTest::addRow("seed %u", seed) << seed;
}

void DockModelTest::panelsStayWhereTheyWerePut()
{
    QFETCH(quint32, seed);
    SiteModel model(seed);
    for (int step = 0; step < 800; ++step) {
        model.Step();
        const QString error = model.Check();
        QVERIFY2(error.isEmpty(),
                 qPrintable(QStringLiteral("step %1, %2: %3").arg(step).arg(model.What(), error)));
        if (step % 25 != 24)
            continue;
        model.Settle();
        const QString settled = model.CheckSettled();
        QVERIFY2(settled.isEmpty(),
                 qPrintable(QStringLiteral("step %1: %2").arg(step).arg(settled)));
    }
}

void DockModelTest::dragsEndClean_data()
{
    panelsStayWhereTheyWerePut_data();
}

void DockModelTest::dragsEndClean()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    DockFixture fixture;
    DockDragController& controller = *fixture.manager->_Impl()->controller;
    QList<QPointer<DockWidget>> panels;
    for (int i = 0; i < 6; ++i) {
        panels.append(fixture.Panel(QStringLiteral("p%1").arg(i),
                                    QSize(80 + random.bounded(100), 70 + random.bounded(120))));
        fixture.Site(DockLayout::Side(i % 4))->AddWidget(panels.last());
    }
    DockFixture::Settle();
    int pages = 6;
    for (int round = 0; round < 60; ++round) {
        DockSettings::Animated().SetData(random.bounded(4) == 0);
        panels.erase(std::remove_if(panels.begin(), panels.end(),
                                    [](const QPointer<DockWidget>& p) { return p.isNull(); }),
                     panels.end());
        QVERIFY(!panels.isEmpty());
        const QPointer<DockWidget> dragged = panels.at(random.bounded(panels.size()));
        if (!dragged->IsVisible())
            continue;
        dragged->SetFloated(QPoint(random.bounded(600), random.bounded(500)));
        controller.Begin(*dragged, QPoint(0, 0));
        const int steps = 1 + random.bounded(12);
        for (int i = 0; i < steps; ++i) {
            const QPoint pos(random.bounded(820) - 10, random.bounded(620) - 10);
            controller.Update(pos);
            if (random.bounded(2))
                DockFixture::Settle();
            const QString error = fixture.Inconsistency();
            QVERIFY2(error.isEmpty(),
                     qPrintable(QStringLiteral("round %1: %2").arg(round).arg(error)));
        }
        switch (random.bounded(8)) {
        case 0:
            controller.Cancel();
            break;
        case 1:
            delete panels.takeAt(random.bounded(panels.size()));
            controller.Cancel();
            pages = -1; // counted anew below
            break;
        default:
            controller.End(QPoint(random.bounded(820) - 10, random.bounded(620) - 10));
            break;
        }
        DockFixture::Settle();
        QVERIFY(!controller.IsDragging());
        const QString error = fixture.Inconsistency();
        QVERIFY2(error.isEmpty(), qPrintable(QStringLiteral("round %1: %2").arg(round).arg(error)));
        // No page is lost and none is in two panels.
        int count = 0;
        for (const DockWidget* panel : fixture.manager->GetWidgetsList()) {
            count += panel->GetCount(DockWidget::All);
            QVERIFY(!panel->_Impl()->overlay);
        }
        if (pages >= 0)
            QCOMPARE(count, pages);
        pages = count;
        if (panels.size() < 4) {
            panels.append(fixture.Panel(QStringLiteral("n%1").arg(round)));
            fixture.Left()->AddWidget(panels.last());
            ++pages;
        }
        DockFixture::Settle();
    }
}

OVK_TEST_CLASS(DockModelTest)

#include "dock_model_test.moc"
