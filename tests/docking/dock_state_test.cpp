#include "tests/support/test_main.h"

#include <ovk/docking.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>

using namespace ovk;

namespace {

QJsonObject Parse(const char* text)
{
    return QJsonDocument::fromJson(QByteArray(text).replace('\'', '"')).object();
}

QByteArray Text(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject Page(const QString& id, const QString& title = {})
{
    return {{"id", id}, {"title", title}};
}

QJsonObject Panel(const QString& id, const QJsonArray& pages, const QString& title = {})
{
    return {{"id", id},   {"width", 200},   {"height", 300}, {"top", 10},
            {"left", 20}, {"title", title}, {"pages", pages}};
}

QJsonObject Docking(const QJsonArray& left, const QJsonArray& floated)
{
    const auto site = [](const QString& id, const QJsonArray& panels) {
        return QJsonObject{
            {"id", id},
            {"subitems",
             QJsonArray{QJsonObject{{"id", "toolboxes.site"}, {"subitems", panels}},
                        QJsonObject{{"id", "toolbars.inner"}, {"subitems", QJsonArray()}},
                        QJsonObject{{"id", "toolbars.outter"}, {"subitems", QJsonArray()}}}}};
    };
    const QJsonArray sites{site("left", left), site("right", {}), site("top", {}),
                           site("bottom", {})};
    return {{"id", "docking"},
            {"subitems",
             QJsonArray{QJsonObject{{"id", "areas"},
                                    {"subitems", QJsonArray{QJsonObject{{"id", "manager.area"},
                                                                        {"sites", sites}}}}},
                        QJsonObject{{"id", "floated"}, {"subitems", floated}}}}};
}

QStringList Names(const UiStateDocking& state)
{
    QStringList names;
    QList<UiStateDockWidget*> items;
    state.GetItems(items);
    for (const UiStateDockWidget* item : items)
        names.append(item->GetName());
    return names;
}

} // namespace

class DockStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSuiteIsMadeByItsName();
    void aPanelReadsItsKeys();
    void missingKeysReadAsTheirDefaults();
    void onlyWhatDiffersIsWritten();
    void aSpacerHasNoOtherKeys();
    void aPanelOfNoWidthHasNoValidPlace();
    void titlesAreKeptAtTheRoot();
    void unknownChildrenOfTheRootAreDropped();
    void aSiteReadsItsKeys();
    void storedToolbarsAreKept();
    void theItemsGoDockedThenFloating();
    void aCopyHasItsOwnNodesAndTitles();
    void aMergeTakesOverTheTitles();
    void aMergeKeepsTheUsersPanels();
    void withoutAWindowNothingIsBuiltOrCaptured();
    void writingAndReadingIsEqual_data();
    void writingAndReadingIsEqual();
};

void DockStateTest::theSuiteIsMadeByItsName()
{
    const std::unique_ptr<UiState> state(UiState::Create(QStringLiteral("docking")));
    QVERIFY(dynamic_cast<UiStateDocking*>(state.get()));
    QCOMPARE(state->GetName(), QStringLiteral("docking"));
    QCOMPARE(UiStateDocking::GetSuiteName(), QStringLiteral("docking"));
    QCOMPARE(Text(state->ToJson()), QByteArray(R"({"id":"docking","subitems":[]})"));
}

void DockStateTest::aPanelReadsItsKeys()
{
    UiStateDocking root;
    QVERIFY(root.FromJson(Docking({Parse("{'id':'p','width':30,'height':40,'top':5,'left':6,"
                                         "'title':'T','title_visible':false,'minimized':true,"
                                         "'minimizable':false,'closeable':false,'movable':false,"
                                         "'visible':false,'persistence':4,'pages':[]}")},
                                  {})));
    QList<UiStateDockWidget*> items;
    root.GetItems(items);
    QCOMPARE(items.size(), 1);
    const UiStateDockWidget& panel = *items.first();
    QCOMPARE(panel.GetGeometry(), QRect(6, 5, 30, 40));
    QCOMPARE(panel.GetTitle(), QStringLiteral("T"));
    QVERIFY(!panel.IsTitleVisible());
    QVERIFY(panel.IsMinimized());
    QVERIFY(!panel.IsMinimizable());
    QVERIFY(!panel.IsCloseable());
    QVERIFY(!panel.IsMovable());
    QVERIFY(!panel.IsVisible());
    QVERIFY(panel.IsPersistent());
}

void DockStateTest::missingKeysReadAsTheirDefaults()
{
    UiStateDocking root;
    root.FromJson(Docking({Parse("{'id':'p'}")}, {}));
    QList<UiStateDockWidget*> items;
    root.GetItems(items);
    const UiStateDockWidget& panel = *items.first();
    QVERIFY(panel.IsTitleVisible());
    QVERIFY(!panel.IsMinimized());
    QVERIFY(panel.IsMinimizable());
    QVERIFY(panel.IsCloseable());
    QVERIFY(panel.IsMovable());
    QVERIFY(panel.IsVisible());
    QVERIFY(!panel.IsSpacer());
    QCOMPARE(panel.GetTitle(), QString());
    QCOMPARE(panel.GetWidget(), nullptr);
}

void DockStateTest::onlyWhatDiffersIsWritten()
{
    UiStateDockWidget panel(QStringLiteral("p"));
    QCOMPARE(
        Text(panel.ToJson()),
        QByteArray(R"({"height":0,"id":"p","left":0,"pages":[],"title":"","top":0,"width":0})"));
    const QJsonObject all = Parse("{'id':'p','width':30,'height':40,'top':5,'left':6,'title':'',"
                                  "'title_visible':false,'minimized':true,'minimizable':false,"
                                  "'closeable':false,'movable':false,'pages':[]}");
    panel.FromJson(all);
    QCOMPARE(Text(panel.ToJson()), Text(all));
}

void DockStateTest::aSpacerHasNoOtherKeys()
{
    QWidget plain;
    const UiStateDockWidget spacer(&plain);
    QVERIFY(spacer.IsSpacer());
    QCOMPARE(spacer.GetName(), QStringLiteral("vor.spacer"));
    QCOMPARE(Text(spacer.ToJson()),
             QByteArray(R"({"id":"vor.spacer","is_spacer":true,"pages":[]})"));
    UiStateDockWidget read(QStringLiteral("x"));
    read.FromJson(Parse("{'id':'x','is_spacer':true,'width':30,'movable':false}"));
    QVERIFY(read.IsSpacer());
    QVERIFY(read.IsMovable());
    QCOMPARE(read.GetGeometry(), QRect());
    QCOMPARE(read.Materialize(), nullptr);
}

void DockStateTest::aPanelOfNoWidthHasNoValidPlace()
{
    UiStateDockWidget panel(QStringLiteral("p"));
    panel.FromJson(Parse("{'id':'p','height':40}"));
    QCOMPARE(panel.GetGeometry().right(), -1);
    QVERIFY(!panel.GetGeometry().isValid());
}

void DockStateTest::titlesAreKeptAtTheRoot()
{
    UiStateDocking root;
    root.FromJson(Docking({Panel("p", {Page("a", "Page A")}, "Panel")}, {}));
    QCOMPARE(root.GetTitle("p"), QStringLiteral("Panel"));
    QCOMPARE(root.GetTitle("a"), QStringLiteral("Page A"));
    QCOMPARE(root.GetTitle("none"), QString());
    QList<UiStateDockWidget*> items;
    root.GetItems(items);
    auto* const page = dynamic_cast<UiStateDockPage*>(items.first()->GetItem(0));
    QCOMPARE(page->GetTitle(), QStringLiteral("Page A"));
    QCOMPARE(page->GetDisplayTitle(), QStringLiteral("Page A"));
    QCOMPARE(UiStateDocking::FindRoot(static_cast<ITreeItem*>(page)), &root);
    root.SetTitle("a", "other");
    QCOMPARE(page->ToJson().value("title").toString(), QStringLiteral("other"));
    UiStateDockPage alone(QStringLiteral("a"));
    QCOMPARE(alone.GetTitle(), QString());
}

void DockStateTest::unknownChildrenOfTheRootAreDropped()
{
    UiStateDocking root;
    root.FromJson(Parse("{'id':'docking','subitems':[{'id':'other'},{'id':'areas'},3]}"));
    QCOMPARE(root.GetChildCount(), 1);
    QVERIFY(dynamic_cast<UiStateAreas*>(root.GetItem(0)));
}

void DockStateTest::aSiteReadsItsKeys()
{
    UiStateDockToolboxSite site;
    QCOMPARE(Text(site.ToJson()), QByteArray(R"({"id":"toolboxes.site","subitems":[]})"));
    const QJsonObject json =
        Parse("{'id':'toolboxes.site','minimized':true,'size':210,'subitems':[]}");
    site.FromJson(json);
    QCOMPARE(site.GetCrossSize(), 210);
    QVERIFY(site.IsMinimized());
    QCOMPARE(Text(site.ToJson()), Text(json));
}

void DockStateTest::storedToolbarsAreKept()
{
    UiStateDockSite site(QStringLiteral("left"));
    const QJsonObject json = Parse("{'id':'left','subitems':[{'id':'toolbars.inner','subitems':"
                                   "[{'id':'bar','spots':[]}]},{'id':'anything','subitems':[]}]}");
    site.FromJson(json);
    QCOMPARE(site.GetChildCount(), 2);
    auto* const toolbars = dynamic_cast<UiStateDockToolbarSite*>(site.GetItem(0));
    QVERIFY(toolbars);
    QVERIFY(dynamic_cast<UiStateDockToolbarSite*>(site.GetItem(1)));
    QCOMPARE(site.GetToolboxSite(), nullptr);
    QCOMPARE(Text(site.ToJson()), Text(json));
    const std::unique_ptr<UiProfileItem> copy(site.Clone());
    auto* const copied =
        dynamic_cast<UiStateDockToolbarSite*>(static_cast<UiStateDockSite&>(*copy).GetItem(0));
    QVERIFY(dynamic_cast<UiStateDockToolbar*>(copied->GetItem(0)));
}

void DockStateTest::theItemsGoDockedThenFloating()
{
    UiStateDocking root;
    root.FromJson(
        Docking({Panel("a", {}), Parse("{'id':'vor.spacer','is_spacer':true}"), Panel("b", {})},
                {Panel("f", {})}));
    QCOMPARE(Names(root), (QStringList{"a", "b", "f"}));
}

void DockStateTest::aCopyHasItsOwnNodesAndTitles()
{
    UiStateDocking root;
    root.FromJson(Docking({Panel("a", {Page("p", "t")}, "A")}, {}));
    UiStateDocking copy(root);
    root.SetTitle("a", "changed");
    QCOMPARE(copy.GetTitle("a"), QStringLiteral("A"));
    QCOMPARE(Names(copy), QStringList{"a"});
    QList<UiStateDockWidget*> items;
    copy.GetItems(items);
    QCOMPARE(UiStateDocking::FindRoot(static_cast<ITreeItem*>(items.first())), &copy);
    QVERIFY(!copy.IsActive());
}

void DockStateTest::aMergeTakesOverTheTitles()
{
    UiStateDocking mine;
    mine.FromJson(Docking({Panel("a", {}, "mine")}, {}));
    mine.SetTitle("own", "own");
    UiStateDocking base(mine);
    UiStateDocking source;
    source.FromJson(Docking({Panel("a", {}, "new"), Panel("b", {}, "B")}, {}));
    mine.Merge(source, &base);
    QCOMPARE(mine.GetTitle("a"), QStringLiteral("new"));
    QCOMPARE(mine.GetTitle("b"), QStringLiteral("B"));
    QCOMPARE(mine.GetTitle("own"), QStringLiteral("own"));
    QCOMPARE(Names(mine), (QStringList{"a", "b"}));
}

void DockStateTest::aMergeKeepsTheUsersPanels()
{
    UiStateDocking base;
    base.FromJson(Docking({Panel("a", {}), Panel("gone", {})}, {}));
    UiStateDocking mine;
    mine.FromJson(Docking({Panel("torn", {}), Panel("gone", {}), Panel("a", {})}, {}));
    UiStateDocking source;
    source.FromJson(Docking({Panel("a", {}), Panel("fresh", {})}, {}));
    mine.Merge(source, &base);
    QCOMPARE(Names(mine), (QStringList{"torn", "a", "fresh"}));
}

void DockStateTest::withoutAWindowNothingIsBuiltOrCaptured()
{
    UiStateDocking root;
    root.FromJson(Docking({Panel("a", {Page("p")})}, {Panel("f", {})}));
    root.Activate(UiProfileItem::amOrdinary);
    root.Activate(UiProfileItem::amRestore);
    QSet<QString> changed;
    root.Validate(changed);
    root.Deactivate(UiProfileItem::amOrdinary);
    UiStateDocking empty;
    empty.Store();
    QCOMPARE(empty.GetChildCount(), 2);
    QCOMPARE(empty.GetItem(0)->GetName(), QStringLiteral("areas"));
    QCOMPARE(empty.GetItem(1)->GetName(), QStringLiteral("floated"));
}

void DockStateTest::writingAndReadingIsEqual_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void DockStateTest::writingAndReadingIsEqual()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    int counter = 0;
    const auto flip = [&random] { return random.bounded(2) != 0; };
    const auto panel = [&] {
        QJsonObject json{{"id", QStringLiteral("p%1").arg(++counter)},
                         {"title", QString::number(random.generate())}};
        for (const char* key : {"width", "height", "top", "left"})
            json.insert(QString::fromLatin1(key), random.bounded(4000) - 1000);
        for (const char* key :
             {"title_visible", "minimizable", "closeable", "movable", "visible"}) {
            if (flip())
                json.insert(QString::fromLatin1(key), false);
        }
        if (flip())
            json.insert("minimized", true);
        if (flip())
            json.insert("persistence", 4);
        QJsonArray pages;
        const int count = random.bounded(4);
        for (int i = 0; i < count; ++i) {
            QJsonObject page = Page(QStringLiteral("g%1").arg(++counter), "t");
            if (flip())
                page.insert("visible", false);
            pages.append(page);
        }
        json.insert("pages", pages);
        return json;
    };
    QJsonArray docked;
    QJsonArray floated;
    for (int i = random.bounded(6); i > 0; --i)
        docked.append(panel());
    docked.append(QJsonObject{{"id", "vor.spacer"}, {"is_spacer", true}, {"pages", QJsonArray()}});
    for (int i = random.bounded(6); i > 0; --i)
        docked.append(panel());
    for (int i = random.bounded(4); i > 0; --i)
        floated.append(panel());
    const QJsonObject json = Docking(docked, floated);

    UiStateDocking root;
    root.FromJson(json);
    QCOMPARE(Text(root.ToJson()), Text(json));
    const std::unique_ptr<UiProfileItem> copy(root.Clone());
    QCOMPARE(Text(copy->ToJson()), Text(json));
}

OVK_TEST_CLASS(DockStateTest)

#include "dock_state_test.moc"
