#include "dock_fixture.h"
#include "tests/support/test_main.h"
#include "tests/ui_state/live_host.h"

#include <ovk/docking/ui_state_docking.h>

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTranslator>

using namespace ovk;
using ovk_test::DockFixture;
using ovk_test::FakePage;
using ovk_test::LiveHost;

namespace {

/// Makes a page for every identifier that does not begin with "Unknown".
class PageFactory : public IWidgetFactory
{
public:
    QWidget* CreatePageWidget(const QString& id) override
    {
        if (id.startsWith(QLatin1String("Unknown")))
            return nullptr;
        made.append(id);
        // The first one of an identifier stays the host's page, as hosts do it.
        if (QWidget* const kept = keep.value(id))
            return kept;
        auto* const page = new FakePage(id, QSize(80, 50));
        page->setWindowTitle(QString());
        page->available = !id.startsWith(QLatin1String("Away"));
        keep.insert(id, page);
        return page;
    }
    QStringList GetPageIds() const override { return {}; }

    QStringList made;
    QHash<QString, QPointer<FakePage>> keep;
};

/// A shown window of a host with its docking state.
class DockHost
{
public:
    DockHost()
    {
        DockSettings::Animated().SetData(false);
        host.window->resize(1000, 800);
        host.window->show();
        DockFixture::Settle();
        layout = host.Activate(QStringLiteral("Model"));
        DockFixture::Settle();
    }
    ~DockHost()
    {
        host.Controller().SetActiveLayout(nullptr);
        DockSettings::Animated().SetData(true);
    }

    DockManager& Manager() const { return *host.window->GetDockManager(); }
    UiStateDocking& State() const { return ovk_test::SuiteOf<UiStateDocking>(*layout); }
    DockToolboxSite& Site(DockLayout::Side side) const
    {
        return *Manager().GetLayout()->GetSite(side)->GetToolboxSite();
    }
    DockWidget* Find(const QString& name) const
    {
        for (DockWidget* panel : Manager().GetWidgetsList()) {
            if (panel->GetName() == name)
                return panel;
        }
        return nullptr;
    }

    /// Puts a state that was read from JSON into the active layout.
    void Load(const QJsonObject& json)
    {
        auto state = std::make_unique<UiStateDocking>();
        state->FromJson(json);
        layout->ReplaceState(&State(), state.release());
        DockFixture::Settle();
    }

    /// What would be written now.
    QJsonObject Captured() const
    {
        State().Store();
        return State().ToJson();
    }

    PageFactory& Pages() { return *mp_pages; }

    LiveHost host;
    UiLayout* layout = nullptr;

private:
    std::unique_ptr<PageFactory> mp_pages = std::make_unique<PageFactory>();
};

QJsonObject Page(const QString& id, const QString& title = {})
{
    return {{"id", id}, {"title", title}};
}

QJsonObject Panel(const QString& id, const QStringList& pages, const QRect& rect = {})
{
    QJsonArray list;
    for (const QString& page : pages)
        list.append(Page(page, page));
    return {{"id", id},
            {"width", rect.width()},
            {"height", rect.height()},
            {"left", rect.left()},
            {"top", rect.top()},
            {"title", id},
            {"pages", list}};
}

const QJsonObject c_spacer{{"id", "vor.spacer"}, {"is_spacer", true}, {"pages", QJsonArray()}};

QJsonObject Docking(const QMap<QString, QJsonArray>& docked, const QJsonArray& floated = {},
                    int size = 0, const QString& area = QStringLiteral("manager.area"))
{
    QJsonArray sites;
    for (const char* side : {"left", "right", "top", "bottom"}) {
        QJsonArray panels = docked.value(QString::fromLatin1(side));
        if (!panels.contains(c_spacer))
            panels.append(c_spacer);
        QJsonObject toolbox{{"id", "toolboxes.site"}, {"subitems", panels}};
        if (size && panels.size() > 1)
            toolbox.insert("size", size);
        sites.append(QJsonObject{
            {"id", QString::fromLatin1(side)},
            {"subitems",
             QJsonArray{toolbox,
                        QJsonObject{{"id", "toolbars.inner"}, {"subitems", QJsonArray()}},
                        QJsonObject{{"id", "toolbars.outter"}, {"subitems", QJsonArray()}}}}});
    }
    return {{"id", "docking"},
            {"subitems",
             QJsonArray{QJsonObject{{"id", "areas"},
                                    {"subitems", QJsonArray{QJsonObject{{"id", area},
                                                                        {"sites", sites}}}}},
                        QJsonObject{{"id", "floated"}, {"subitems", floated}}}}};
}

QByteArray Text(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace

class DockStateLiveTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anArrangementIsBuiltFromTheState();
    void theSpacerDividesASite();
    void aPanelTakesItsProperties();
    void aFloatingPanelTakesItsPlace();
    void aFloatingPanelOfNoSizeKeepsItsOwn();
    void aPageThatTheHostDoesNotKnowIsSkipped();
    void aPanelWithoutAnAvailablePageComesLater();
    void titlesAreTranslated();
    void pagesSurviveASwitchOfTheLayout();
    void aCaptureIsEqualToWhatWasBuilt();
    void aCaptureForgetsToolbarsAndCloseButtons();
    void aForcedFoldIsNotStored();
    void aPanelThatIsAwayForTheBackstageIsStoredAsShown();
    void buildingAHundredTimesChangesNothing();
    void anUnknownAreaIsSkippedWithAllItHolds();
    void restoringACopyLeavesThePanels();
    void aSwitchFromInsideAPageIsSafe();
    void aFoldedSiteIsRestored();
    void randomArrangementsComeBackEqual_data();
    void randomArrangementsComeBackEqual();
    void aHundredPanelsAreRestoredAtOnce();
};

void DockStateLiveTest::anArrangementIsBuiltFromTheState()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), Panel("b", {"B"})}},
                       {"right", {Panel("c", {"C"})}},
                       {"bottom", {Panel("d", {"D"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180))}, 170));
    QCOMPARE(DockFixture::Order(host.Site(DockLayout::Left)), (QStringList{"a", "b", "|"}));
    QCOMPARE(DockFixture::Order(host.Site(DockLayout::Right)), (QStringList{"c", "|"}));
    QCOMPARE(DockFixture::Order(host.Site(DockLayout::Bottom)), (QStringList{"d", "|"}));
    QCOMPARE(host.Manager().GetFloatedWidgets().size(), 1);
    QCOMPARE(host.Site(DockLayout::Left).geometry().width(), 170);
    for (const DockWidget* panel : host.Manager().GetWidgetsList())
        QVERIFY2(panel->isVisible(), qPrintable(panel->GetName()));
    QCOMPARE(host.Pages().made, (QStringList{"A1", "A2", "B", "C", "D", "F"}));
    QCOMPARE(host.Find("a")->GetCount(DockWidget::Visible), 2);
    QVERIFY(host.Manager().isVisible());
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockStateLiveTest::theSpacerDividesASite()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), c_spacer, Panel("b", {"B"}), Panel("c", {"C"})}}}));
    QCOMPARE(DockFixture::Order(host.Site(DockLayout::Left)), (QStringList{"a", "|", "b", "c"}));
    DockWidget* const last = host.Find("c");
    QCOMPARE(last->geometry().bottom(), host.Manager().height() - 1);
    const QJsonObject captured = host.Captured();
    host.Load(captured);
    QCOMPARE(DockFixture::Order(host.Site(DockLayout::Left)), (QStringList{"a", "|", "b", "c"}));
}

void DockStateLiveTest::aPanelTakesItsProperties()
{
    DockHost host;
    QJsonObject closed = Panel("a", {"A"});
    closed.insert("title_visible", false);
    closed.insert("closeable", false);
    closed.insert("movable", false);
    QJsonObject folded = Panel("b", {"B", "Away"});
    folded.insert("minimized", true);
    folded.insert("persistence", 4);
    QJsonObject hidden = Panel("c", {"C", "C2"});
    hidden.insert("visible", false);
    QJsonArray pages = hidden.value("pages").toArray();
    QJsonObject page = pages.at(1).toObject();
    page.insert("visible", false);
    pages.replace(1, page);
    hidden.insert("pages", pages);
    host.Load(Docking({{"left", {closed, folded, hidden}}}));
    const DockWidget* const a = host.Find("a");
    QVERIFY(!a->IsTitleEnabled() && !a->IsClosable() && !a->IsMovable());
    QVERIFY(!a->IsDeleteOnClose() && a->IsDeleteOnEmpty() && !a->IsOwnWidgets());
    QVERIFY(a->IsFitToCurrent());
    const DockWidget* const b = host.Find("b");
    QVERIFY(b->IsCollapsed() && !b->IsForcedCollapsed());
    QVERIFY(!b->IsDeleteOnEmpty());
    QCOMPARE(b->GetForcedTitle(), QStringLiteral("b"));
    QCOMPARE(b->GetCount(DockWidget::All), 2);
    QCOMPARE(b->GetCount(DockWidget::Visible), 1);
    const DockWidget* const c = host.Find("c");
    QVERIFY(!c->IsVisible());
    QVERIFY(c->IsExplicitlyHidden(c->GetPageAt(1, DockWidget::All)));
    QCOMPARE(host.Pages().keep.value("A")->windowTitle(), QStringLiteral("A"));
}

void DockStateLiveTest::aFloatingPanelTakesItsPlace()
{
    DockHost host;
    QJsonObject hidden = Panel("h", {"H"}, QRect(50, 60, 200, 190));
    hidden.insert("visible", false);
    host.Load(Docking({}, {Panel("f", {"F"}, QRect(300, 200, 250, 180)), hidden}));
    const DockWidget* const panel = host.Find("f");
    QVERIFY(panel->IsFloated());
    QCOMPARE(panel->geometry(), QRect(300, 200, 250, 180));
    QVERIFY(panel->isVisible());
    QVERIFY(host.Find("h")->IsFloated());
    QVERIFY(!host.Find("h")->isVisible());
}

void DockStateLiveTest::aFloatingPanelOfNoSizeKeepsItsOwn()
{
    DockHost host;
    host.Load(Docking({}, {Panel("f", {"F"}, QRect(30, 40, 0, 100))}));
    QCOMPARE(host.Find("f")->pos(), QPoint(30, 40));
    QVERIFY(host.Find("f")->width() >= 80);
}

void DockStateLiveTest::aPageThatTheHostDoesNotKnowIsSkipped()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"Unknown.1", "A"}), Panel("b", {"Unknown.2"})}}}));
    QCOMPARE(host.Find("a")->GetCount(DockWidget::All), 1);
    QCOMPARE(host.Find("b")->GetCount(DockWidget::All), 0);
    QVERIFY(!host.Find("b")->IsVisible());
}

void DockStateLiveTest::aPanelWithoutAnAvailablePageComesLater()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"Away"})}}}));
    QVERIFY(!host.Find("a")->IsVisible());
    host.Pages().keep.value("Away")->available = true;
    host.host.Revalidate();
    DockFixture::Settle();
    QVERIFY(host.Find("a")->isVisible());
}

void DockStateLiveTest::titlesAreTranslated()
{
    class Upper : public QTranslator
    {
    public:
        QString translate(const char* context, const char* text, const char* hint,
                          int) const override
        {
            if (qstrcmp(context, "toolsheets") == 0)
                return QString::fromUtf8(text).toUpper();
            if (qstrcmp(context, "toolpages") == 0)
                return QStringLiteral("%1/%2").arg(QString::fromUtf8(text), QString::fromUtf8(hint));
            return {};
        }
        bool isEmpty() const override { return false; }
    } upper;
    QCoreApplication::installTranslator(&upper);
    {
        DockHost host;
        host.Load(Docking({{"left", {Panel("panel", {"page"})}}}));
        QCOMPARE(host.Find("panel")->GetForcedTitle(), QStringLiteral("PANEL"));
        QCOMPARE(host.Pages().keep.value("page")->windowTitle(), QStringLiteral("page/page"));
        QCOMPARE(host.State().GetTitle("page"), QStringLiteral("page"));
    }
    QCoreApplication::removeTranslator(&upper);
}

void DockStateLiveTest::pagesSurviveASwitchOfTheLayout()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"})}}}, {Panel("f", {"F"}, QRect(60, 70, 200, 150))}));
    const QPointer<FakePage> page = host.Pages().keep.value("A");
    host.host.Activate(QStringLiteral("Slice"));
    DockFixture::Settle();
    QVERIFY(page);
    QVERIFY(!page->isVisible());
    QVERIFY(host.Manager().GetWidgetsList().isEmpty());
    host.host.Activate(QStringLiteral("Model"));
    DockFixture::Settle();
    QCOMPARE(host.Find("a")->GetCurrentPage()->GetWidget(), static_cast<QWidget*>(page.data()));
    QVERIFY(page->isVisible());
    QCOMPARE(host.Find("f")->geometry(), QRect(60, 70, 200, 150));
}

void DockStateLiveTest::aCaptureIsEqualToWhatWasBuilt()
{
    DockHost host;
    QJsonObject folded = Panel("b", {"B"});
    folded.insert("minimized", true);
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), folded}}, {"top", {Panel("c", {"C"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180))}, 150));
    const QByteArray first = Text(host.Captured());
    host.Load(host.Captured());
    QCOMPARE(Text(host.Captured()), first);
}

void DockStateLiveTest::aCaptureForgetsToolbarsAndCloseButtons()
{
    DockHost host;
    QJsonObject json = Panel("a", {"A"});
    json.insert("closeable", false);
    host.Load(Docking({{"left", {json}}}));
    QList<UiStateDockWidget*> items;
    host.State().GetItems(items);
    QVERIFY(!items.first()->IsCloseable());
    QVERIFY(!Text(host.Captured()).contains("closeable"));
    auto* const area = dynamic_cast<UiStateAreas*>(host.State().GetItem(0))->GetItem(0);
    QCOMPARE(area->GetName(), QStringLiteral("manager.area"));
    QCOMPARE(ovk_test::ChildNames(*area), (QStringList{"left", "right", "top", "bottom"}));
    QCOMPARE(ovk_test::ChildNames(*static_cast<ITreeItem*>(area)->GetChild(0)),
             (QStringList{"toolboxes.site", "toolbars.inner", "toolbars.outter"}));
}

void DockStateLiveTest::aForcedFoldIsNotStored()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), Panel("b", {"B"})}}}));
    host.Find("a")->SetCollapsed(true, false);
    host.Find("b")->SetCollapsed(true, true);
    host.State().Store();
    QList<UiStateDockWidget*> items;
    host.State().GetItems(items);
    QVERIFY(items.at(0)->IsMinimized());
    QVERIFY(!items.at(1)->IsMinimized());
}

void DockStateLiveTest::aPanelThatIsAwayForTheBackstageIsStoredAsShown()
{
    DockHost host;
    host.Load(Docking({}, {Panel("f", {"F"}, QRect(300, 200, 250, 180)),
                           Panel("g", {"G"}, QRect(30, 200, 250, 180))}));
    host.Find("g")->setVisible(false);
    host.Manager().HideFloating();
    const QJsonObject captured = host.Captured();
    host.Load(captured);
    QVERIFY(host.Find("f")->isVisible());
    QVERIFY(!host.Find("g")->isVisible());
}

void DockStateLiveTest::buildingAHundredTimesChangesNothing()
{
    DockHost host;
    QJsonObject folded = Panel("g", {"G1", "G2"}, QRect(80, 90, 240, 300));
    folded.insert("minimized", true);
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), c_spacer, Panel("b", {"B"})}},
                       {"bottom", {Panel("c", {"C"}), Panel("d", {"D"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180)), folded}, 160));
    const QByteArray first = Text(host.Captured());
    for (int i = 0; i < 100; ++i) {
        host.Load(host.Captured());
        if (i % 10 == 0)
            QCOMPARE(Text(host.Captured()), first);
    }
    QCOMPARE(Text(host.Captured()), first);
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockStateLiveTest::anUnknownAreaIsSkippedWithAllItHolds()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"})}}}, {Panel("f", {"F"}, QRect(9, 9, 200, 150))}, 0,
                      QStringLiteral("other.area")));
    QVERIFY(!host.Find("a"));
    QVERIFY(host.Find("f"));
    QCOMPARE(host.Pages().made, QStringList{"F"});
}

void DockStateLiveTest::restoringACopyLeavesThePanels()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"})}}}, {Panel("f", {"F"}, QRect(90, 90, 200, 150))}));
    // What the customise dialog does: a deep copy at open, which Cancel puts back.
    UiProfile* const backup = new UiProfile(*host.host.Controller().GetActualProfile());
    const QPointer<DockWidget> docked = host.Find("a");
    const QPointer<DockWidget> floating = host.Find("f");
    floating->setVisible(false);
    UiProfile* const live = host.host.Controller().GetProfile();
    host.host.Controller().RestoreProfile(backup);
    delete live;
    host.layout = host.host.Controller().GetActiveLayout();
    DockFixture::Settle();
    QVERIFY(docked && floating);
    QCOMPARE(host.Manager().GetWidgetsList().size(), 2);
    QVERIFY(docked->isVisible());
    QVERIFY(floating->isVisible());
    QVERIFY(host.Manager().isVisible());
}

void DockStateLiveTest::aSwitchFromInsideAPageIsSafe()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"})}}}));
    const QPointer<DockWidget> panel = host.Find("a");
    host.Pages().keep.value("A2")->on_activated = [&] { host.host.Activate(QStringLiteral("Slice")); };
    QTabBar* const tabs = panel->_Impl()->tab_bar;
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    QVERIFY(host.Manager().GetWidgetsList().isEmpty());
    DockFixture::Settle();
    QVERIFY(panel.isNull());
    host.Pages().keep.value("A2")->on_activated = [&] {};
    // And there and back again inside of one callback.
    host.host.Activate(QStringLiteral("Model"));
    DockFixture::Settle();
    host.Pages().keep.value("A2")->on_activated = [&] {
        host.host.Activate(QStringLiteral("Slice"));
        host.host.Activate(QStringLiteral("Model"));
        host.Pages().keep.value("A2")->on_activated = [] {};
    };
    host.Find("a")->_Impl()->tab_bar->setCurrentIndex(1);
    DockFixture::Settle();
    QCOMPARE(host.Find("a")->GetCount(DockWidget::All), 2);
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockStateLiveTest::aFoldedSiteIsRestored()
{
    DockHost host;
    host.Load(Docking({{"right", {Panel("a", {"A"})}}}, {}, 140));
    host.Site(DockLayout::Right).SetMinimized(true);
    DockFixture::Settle();
    const QJsonObject captured = host.Captured();
    host.Load(Docking({}));
    QVERIFY(!host.Site(DockLayout::Right).IsMinimized());
    host.Load(captured);
    QVERIFY(host.Site(DockLayout::Right).IsMinimized());
    QCOMPARE(host.Site(DockLayout::Right).geometry().width(), 0);
    host.Site(DockLayout::Right).SetMinimized(false);
    DockFixture::Settle();
    QCOMPARE(host.Site(DockLayout::Right).geometry().width(), 140);
}

void DockStateLiveTest::randomArrangementsComeBackEqual_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void DockStateLiveTest::randomArrangementsComeBackEqual()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    DockHost host;
    int counter = 0;
    const auto panel = [&](const QRect& rect) {
        QStringList pages;
        for (int i = 1 + random.bounded(3); i > 0; --i)
            pages.append(QStringLiteral("page%1").arg(++counter));
        QJsonObject json = Panel(QStringLiteral("panel%1").arg(++counter), pages, rect);
        if (random.bounded(3) == 0)
            json.insert("movable", false);
        if (random.bounded(3) == 0)
            json.insert("minimized", true);
        if (random.bounded(4) == 0)
            json.insert("visible", false);
        if (random.bounded(4) == 0)
            json.insert("persistence", 4);
        return json;
    };
    QMap<QString, QJsonArray> docked;
    for (const char* side : {"left", "right", "top", "bottom"}) {
        QJsonArray panels;
        for (int i = random.bounded(3); i > 0; --i)
            panels.append(panel({}));
        panels.append(c_spacer);
        for (int i = random.bounded(3); i > 0; --i)
            panels.append(panel({}));
        docked.insert(QString::fromLatin1(side), panels);
    }
    QJsonArray floated;
    for (int i = random.bounded(4); i > 0; --i)
        floated.append(panel(QRect(random.bounded(400), random.bounded(300), 200 + random.bounded(200),
                                   200 + random.bounded(200))));
    host.Load(Docking(docked, floated, 120 + random.bounded(60)));
    const QByteArray first = Text(host.Captured());
    for (int i = 0; i < 3; ++i) {
        host.Load(host.Captured());
        QCOMPARE(Text(host.Captured()), first);
    }
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockStateLiveTest::aHundredPanelsAreRestoredAtOnce()
{
    DockHost host;
    QMap<QString, QJsonArray> docked;
    int counter = 0;
    for (const char* side : {"left", "right", "top", "bottom"}) {
        QJsonArray panels;
        for (int i = 0; i < 25; ++i, ++counter)
            panels.append(Panel(QStringLiteral("panel%1").arg(counter),
                                {QStringLiteral("page%1").arg(counter)}));
        docked.insert(QString::fromLatin1(side), panels);
    }
    const QJsonObject json = Docking(docked);
    host.Load(json);
    auto state = std::make_unique<UiStateDocking>();
    state->FromJson(json);
    QElapsedTimer timer;
    timer.start();
    host.layout->ReplaceState(&host.State(), state.release());
    const qint64 built = timer.nsecsElapsed();
    QCoreApplication::sendPostedEvents();
    const qint64 settled = timer.nsecsElapsed();
    QCOMPARE(host.Manager().GetWidgetsList().size(), 100);
    timer.restart();
    constexpr int steps = 50;
    for (int i = 0; i < steps; ++i)
        host.host.window->resize(1000 + i, 800 + i);
    QCoreApplication::sendPostedEvents();
    const qint64 resized = timer.nsecsElapsed() / steps;
    qInfo("100 panels: built in %.1f ms, at rest after %.1f ms; a resize step %.2f ms",
          double(built) / 1e6, double(settled) / 1e6, double(resized) / 1e6);
}

OVK_TEST_CLASS(DockStateLiveTest)

#include "dock_state_live_test.moc"
