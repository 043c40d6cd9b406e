#include "dock_state_support.h"
#include "tests/support/test_main.h"

#include <QRandomGenerator>

using namespace ovk;
using namespace ovk_test;

namespace {

/// What must hold after any file: the rules, and a window that a screen can show.
QString Trouble(const DockHost& host)
{
    const QString error = host.Manager()._Impl()->CheckConsistency();
    if (!error.isEmpty())
        return error;
    if (!host.Manager().isVisible())
        return QStringLiteral("the manager stays hidden");
    for (const DockWidget* panel : host.Manager().GetWidgetsList()) {
        if (panel->IsFloated() && panel->isVisible() &&
            (panel->width() > 4096 || panel->height() > 4096))
            return QStringLiteral("a floating panel of %1").arg(panel->width());
        for (int i = 0; i < panel->GetCount(DockWidget::All); ++i) {
            const QWidget* const page = panel->GetPageAt(i, DockWidget::All)->GetWidget();
            if (page->parentWidget() != panel)
                return QStringLiteral("a page is not in its panel");
        }
    }
    return {};
}

QJsonObject With(QJsonObject object, const QString& key, const QJsonValue& value)
{
    object.insert(key, value);
    return object;
}

/// Puts something else into a random place of a value.
QJsonValue Damaged(const QJsonValue& value, QRandomGenerator& random)
{
    if (random.bounded(60) == 0) {
        const QJsonValue other[] = {QJsonValue(),
                                    true,
                                    -1,
                                    0x7FFFFFFF,
                                    -0x7FFFFFFF,
                                    1e300,
                                    0.5,
                                    QString(),
                                    QStringLiteral("left"),
                                    QStringLiteral("vor.spacer"),
                                    QStringLiteral("manager.area"),
                                    QJsonArray{1, QJsonObject()},
                                    QJsonObject{{"id", 3}}};
        return other[random.bounded(int(std::size(other)))];
    }
    if (value.isArray()) {
        QJsonArray result;
        for (const QJsonValue& item : value.toArray()) {
            if (random.bounded(40) == 0)
                continue;
            result.append(Damaged(item, random));
            if (random.bounded(40) == 0)
                result.append(result.last());
        }
        return result;
    }
    if (value.isObject()) {
        QJsonObject result;
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (random.bounded(60) != 0)
                result.insert(it.key(), Damaged(it.value(), random));
        }
        return result;
    }
    return value;
}

} // namespace

class DockBadInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strangersAreSkipped();
    void aSideThatIsThereTwiceTakesBoth();
    void sizesOfNoSenseDoNoHarm_data();
    void sizesOfNoSenseDoNoHarm();
    void sidesOfALargerScreenLeaveRoomForEachOther();
    void placesOfNoSenseDoNoHarm_data();
    void placesOfNoSenseDoNoHarm();
    void pagesThatNobodyMakesLeaveTheRest();
    void aPageOfTwoPanelsIsInOne();
    void aPageThatDiesInItsDragEndsIt();
    void thePreviewOfADragIsNotStored();
    void damagedFilesDoNoHarm_data();
    void damagedFilesDoNoHarm();
};

void DockBadInputTest::strangersAreSkipped()
{
    DockHost host;
    QJsonObject json = Docking({{"left", {Panel("a", {"A"})}}});
    QJsonArray children = json.value("subitems").toArray();
    children.prepend(QJsonObject{{"id", "stranger"}, {"subitems", QJsonArray{3, "x"}}});
    QJsonObject areas = children.at(1).toObject();
    QJsonArray list = areas.value("subitems").toArray();
    QJsonObject area = list.at(0).toObject();
    QJsonArray sites = area.value("sites").toArray();
    sites.prepend(QJsonObject{
        {"id", "middle"},
        {"subitems", QJsonArray{QJsonObject{{"id", "toolboxes.site"},
                                            {"subitems", QJsonArray{Panel("m", {"M"})}}}}}});
    sites.prepend(QJsonObject{{"id", "left"}, {"subitems", QJsonArray{QJsonObject{{"id", "?"}}}}});
    area.insert("sites", sites);
    list.replace(0, area);
    list.prepend(QJsonObject{{"id", "no.area"}, {"sites", sites}});
    areas.insert("subitems", list);
    children.replace(1, areas);
    json.insert("subitems", children);
    host.Load(json);
    QCOMPARE(Trouble(host), QString());
    QVERIFY(host.Find("a")->isVisible());
    // What lies in a place that does not exist is not built.
    QVERIFY(!host.Find("m"));
    QCOMPARE(host.Pages().made, QStringList{"A"});
}

void DockBadInputTest::aSideThatIsThereTwiceTakesBoth()
{
    DockHost host;
    QJsonObject json = Docking({{"left", {Panel("a", {"A"})}}});
    const QJsonObject second = Docking({{"left", {Panel("b", {"B"})}}});
    const auto sites_of = [](const QJsonObject& docking) {
        return docking.value("subitems")[0]["subitems"][0]["sites"].toArray();
    };
    QJsonArray sites = sites_of(json);
    for (const QJsonValue& site : sites_of(second))
        sites.append(site);
    json.insert("subitems",
                QJsonArray{QJsonObject{{"id", "areas"},
                                       {"subitems", QJsonArray{QJsonObject{{"id", "manager.area"},
                                                                           {"sites", sites}}}}},
                           QJsonObject{{"id", "floated"}, {"subitems", QJsonArray()}}});
    host.Load(json);
    QCOMPARE(Trouble(host), QString());
    QVERIFY(host.Find("a")->isVisible());
    QVERIFY(host.Find("b")->isVisible());
    QCOMPARE(DockFixture::Order(host.Site(DockLayout::Left)), (QStringList{"a", "b", "|"}));
    // Stored again, there is one of each.
    QCOMPARE(sites_of(host.Captured()).size(), 4);
}

void DockBadInputTest::sizesOfNoSenseDoNoHarm_data()
{
    QTest::addColumn<QJsonValue>("size");
    QTest::newRow("negative") << QJsonValue(-50);
    QTest::newRow("huge") << QJsonValue(100000000);
    QTest::newRow("the largest number") << QJsonValue(0x7FFFFFFF);
    QTest::newRow("no whole number") << QJsonValue(120.5);
    QTest::newRow("more than a number") << QJsonValue(1e300);
    QTest::newRow("a text") << QJsonValue("wide");
}

void DockBadInputTest::sizesOfNoSenseDoNoHarm()
{
    QFETCH(QJsonValue, size);
    DockHost host;
    QJsonObject json =
        Docking({{"left", {Panel("a", {"A"})}}, {"top", {Panel("b", {"B"})}}}, {}, 7);
    QByteArray text = QJsonDocument(json).toJson(QJsonDocument::Compact);
    QJsonArray wrapped{size};
    QByteArray value = QJsonDocument(wrapped).toJson(QJsonDocument::Compact);
    text.replace("\"size\":7", "\"size\":" + value.mid(1, value.size() - 2));
    host.Load(QJsonDocument::fromJson(text).object());
    QCOMPARE(Trouble(host), QString());
    const QSize room = QGuiApplication::primaryScreen()->virtualSize();
    for (const DockLayout::Side side : {DockLayout::Left, DockLayout::Top}) {
        QVERIFY(host.Site(side).GetCrossSize() >= 0);
        QVERIFY(host.Site(side).GetCrossSize() <= qMax(room.width(), room.height()));
    }
    QVERIFY(host.Find("a")->isVisible());
    QVERIFY(host.Find("b")->isVisible());
}

void DockBadInputTest::sidesOfALargerScreenLeaveRoomForEachOther()
{
    DockHost host;
    host.host.window->resize(700, 600);
    DockFixture::Settle();
    const QMap<QString, QJsonArray> docked{{"left", {Panel("a", {"A"})}},
                                           {"right", {Panel("b", {"B"})}},
                                           {"top", {Panel("c", {"C"})}}};
    const QSize screen = QGuiApplication::primaryScreen()->availableVirtualSize();
    host.Load(Docking(docked, {}, screen.width() * 3 / 4));
    // Neither is lost, and the window can still be as small as the screen.
    QCOMPARE(host.Site(DockLayout::Left).GetCrossSize(), screen.width() * 3 / 8);
    QCOMPARE(host.Site(DockLayout::Right).GetCrossSize(), screen.width() * 3 / 8);
    QVERIFY(host.Manager().GetLayout()->minimumSize().width() <= screen.width());
    for (const char* name : {"a", "b", "c"})
        QVERIFY(host.Find(name)->isVisible());
    // What fits is as it was stored.
    host.Load(Docking(docked, {}, screen.width() / 2));
    QCOMPARE(host.Site(DockLayout::Left).GetCrossSize(), screen.width() / 2);
}

void DockBadInputTest::placesOfNoSenseDoNoHarm_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("sized");
    QTest::newRow("off every screen") << QRect(-9000, -9000, 250, 180) << true;
    QTest::newRow("far below") << QRect(100, 1000000, 250, 180) << true;
    QTest::newRow("no width") << QRect(100, 100, 0, 180) << false;
    QTest::newRow("negative size") << QRect(100, 100, -40, -40) << false;
    QTest::newRow("larger than any screen") << QRect(50, 50, 200000, 100000) << false;
}

void DockBadInputTest::placesOfNoSenseDoNoHarm()
{
    QFETCH(QRect, place);
    QFETCH(bool, sized);
    DockHost host;
    QJsonObject panel = Panel("f", {"F"});
    panel.insert("left", place.left());
    panel.insert("top", place.top());
    panel.insert("width", place.width());
    panel.insert("height", place.height());
    host.Load(Docking({}, {panel}));
    QCOMPARE(Trouble(host), QString());
    const DockWidget* const live = host.Find("f");
    QVERIFY(live->isVisible());
    QVERIFY(QGuiApplication::primaryScreen()->geometry().contains(live->pos()));
    QVERIFY(live->width() >= live->minimumWidth() && live->height() >= live->minimumHeight());
    if (sized)
        QCOMPARE(live->size(), place.size());
    // The far corner of the largest numbers is a number too.
    host.Load(Docking({}, {With(With(panel, "left", 0x7FFFFFFF), "width", 0x7FFFFFFF)}));
    QCOMPARE(Trouble(host), QString());
}

void DockBadInputTest::pagesThatNobodyMakesLeaveTheRest()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"Unknown.1", "A", "Unknown.2"})}},
                       {"right", {Panel("b", {"Unknown.3"})}}},
                      {Panel("f", {"Unknown.4"}, QRect(10, 10, 200, 200))}));
    QCOMPARE(Trouble(host), QString());
    QCOMPARE(host.Find("a")->GetCount(DockWidget::All), 1);
    QVERIFY(host.Find("a")->isVisible());
    QVERIFY(!host.Find("b")->isVisible());
    QVERIFY(!host.Find("f")->isVisible());
    // And what nobody makes is not there when the arrangement is stored again.
    QVERIFY(!Text(host.Captured()).contains("Unknown"));
}

void DockBadInputTest::aPageOfTwoPanelsIsInOne()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A", "B", "A"}), Panel("b", {"A"})}}},
                      {Panel("f", {"A"}, QRect(10, 10, 200, 200))}));
    QCOMPARE(Trouble(host), QString());
    QWidget* const page = host.Pages().keep.value("A");
    int owners = 0;
    for (const DockWidget* panel : host.Manager().GetWidgetsList()) {
        for (int i = 0; i < panel->GetCount(DockWidget::All); ++i)
            owners += panel->GetPageAt(i, DockWidget::All)->GetWidget() == page ? 1 : 0;
    }
    QCOMPARE(owners, 1);
    QVERIFY(page->isVisible());
    QVERIFY(host.Pages().keep.value("B")->isVisible());
}

void DockBadInputTest::aPageThatDiesInItsDragEndsIt()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), Panel("b", {"B"})}}}));
    DockWidget* const panel = host.Find("b");
    panel->SetFloated(QPoint(300, 300));
    DockDragController& controller = *host.Manager()._Impl()->controller;
    controller.Begin(*panel, QPoint(0, 0));
    DockWidget* const target = host.Find("a");
    controller.Update(target->mapToGlobal(QPoint(target->width() / 2, 5)));
    QVERIFY(host.Site(DockLayout::Left)._pp()->estimator);
    delete host.Pages().keep.value("B").data();
    QVERIFY(!controller.IsDragging());
    QVERIFY(!host.Site(DockLayout::Left)._pp()->estimator);
    QVERIFY(!target->_Impl()->overlay);
    QCOMPARE(Trouble(host), QString());
}

void DockBadInputTest::thePreviewOfADragIsNotStored()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), Panel("b", {"B"})}}}));
    DockWidget* const panel = host.Find("b");
    panel->SetFloated(QPoint(300, 300));
    const int spacers = Text(host.Captured()).count("vor.spacer");
    DockDragController& controller = *host.Manager()._Impl()->controller;
    controller.Begin(*panel, QPoint(0, 0));
    DockWidget* const target = host.Find("a");
    controller.Update(target->mapToGlobal(QPoint(target->width() / 2, 5)));
    QVERIFY(host.Site(DockLayout::Left)._pp()->estimator);
    QCOMPARE(Text(host.Captured()).count("vor.spacer"), spacers);
    // A switch of the layout takes the drag with it.
    host.host.Activate(QStringLiteral("Slice"));
    QVERIFY(!controller.IsDragging());
    QCOMPARE(Trouble(host), QString());
}

void DockBadInputTest::damagedFilesDoNoHarm_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1u, 2u, 3u, 20260301u})
        QTest::addRow("seed %u", seed) << seed;
}

void DockBadInputTest::damagedFilesDoNoHarm()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    DockHost host;
    const QJsonObject whole = Docking(
        {{"left", {Panel("a", {"A1", "A2"}), c_spacer, With(Panel("b", {"B"}), "minimized", true)}},
         {"right", {Panel("c", {"C"})}},
         {"top", {Panel("d", {"D"})}},
         {"bottom", {With(Panel("e", {"E"}), "title_visible", false)}}},
        {Panel("f", {"F"}, QRect(300, 200, 250, 180)), Panel("g", {"G"}, QRect(9, 9, 250, 180))},
        150);
    for (int round = 0; round < 40; ++round) {
        const QJsonValue damaged = Damaged(whole, random);
        const QByteArray text = QJsonDocument(damaged.toObject()).toJson(QJsonDocument::Compact);
        host.Load(QJsonDocument::fromJson(text).object());
        const QString error = Trouble(host);
        QVERIFY2(error.isEmpty(), qPrintable(error + '\n' + QString::fromUtf8(text)));
        // What is stored of it is sound.
        host.Load(host.Captured());
        const QByteArray first = Text(host.Captured());
        host.Load(host.Captured());
        const QString difference = Difference(Text(host.Captured()), first);
        QVERIFY2(difference.isEmpty(), qPrintable(difference + '\n' + QString::fromUtf8(text)));
    }
}

OVK_TEST_CLASS(DockBadInputTest)

#include "dock_bad_input_test.moc"
