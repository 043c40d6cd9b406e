#include "dock_state_support.h"
#include "tests/support/test_main.h"

#include <QTranslator>

using namespace ovk;
using namespace ovk_test;

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
    void titlesFollowTheLanguageUnlessSomebodyChangedThem();
    void pagesSurviveASwitchOfTheLayout();
    void anUnknownAreaIsSkippedWithAllItHolds();
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
    host.Load(
        Docking({{"left", {Panel("a", {"A"}), c_spacer, Panel("b", {"B"}), Panel("c", {"C"})}}}));
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
                return QStringLiteral("%1/%2").arg(QString::fromUtf8(text),
                                                   QString::fromUtf8(hint));
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

void DockStateLiveTest::titlesFollowTheLanguageUnlessSomebodyChangedThem()
{
    class Prefix : public QTranslator
    {
    public:
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            return QStringLiteral("%1:%2").arg(QLatin1String(context), QString::fromUtf8(text));
        }
        bool isEmpty() const override { return false; }
    } prefix;
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"}), Panel("b", {"B"})}}}));
    host.Find("b")->SetForcedTitle(QStringLiteral("mine"));
    host.Pages().keep.value("B")->setWindowTitle(QStringLiteral("document"));
    QCoreApplication::installTranslator(&prefix);
    host.host.Revalidate();
    QCOMPARE(host.Find("a")->GetForcedTitle(), QStringLiteral("toolsheets:a"));
    QCOMPARE(host.Pages().keep.value("A")->windowTitle(), QStringLiteral("toolpages:A"));
    QCOMPARE(host.Find("b")->GetForcedTitle(), QStringLiteral("mine"));
    QCOMPARE(host.Pages().keep.value("B")->windowTitle(), QStringLiteral("document"));
    QCOMPARE(host.State().GetTitle("a"), QStringLiteral("a"));
    QCoreApplication::removeTranslator(&prefix);
    host.host.Revalidate();
    QCOMPARE(host.Find("a")->GetForcedTitle(), QStringLiteral("a"));
    QCOMPARE(host.Pages().keep.value("A")->windowTitle(), QStringLiteral("A"));
}

void DockStateLiveTest::pagesSurviveASwitchOfTheLayout()
{
    DockHost host;
    host.Load(
        Docking({{"left", {Panel("a", {"A"})}}}, {Panel("f", {"F"}, QRect(60, 70, 200, 150))}));
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

void DockStateLiveTest::anUnknownAreaIsSkippedWithAllItHolds()
{
    DockHost host;
    host.Load(Docking({{"left", {Panel("a", {"A"})}}}, {Panel("f", {"F"}, QRect(9, 9, 200, 150))},
                      0, QStringLiteral("other.area")));
    QVERIFY(!host.Find("a"));
    QVERIFY(host.Find("f"));
    QCOMPARE(host.Pages().made, QStringList{"F"});
}

OVK_TEST_CLASS(DockStateLiveTest)

#include "dock_state_live_test.moc"
