#include "dock_state_support.h"
#include "tests/support/test_main.h"

#include <QMenu>

using namespace ovk;
using namespace ovk_test;

namespace {

/// A page that does something in the middle of everything that docking asks and tells it.
class BusyPage : public FakePage
{
public:
    using FakePage::FakePage;

    bool IsAvailable() const override
    {
        Do(QStringLiteral("availability"));
        return FakePage::IsAvailable();
    }
    void OnActivated() override { Do(QStringLiteral("activated")); }
    void OnVisibilityToggled(bool) override { Do(QStringLiteral("toggled")); }
    QSizePolicy GetSizePolicy() const override
    {
        Do(QStringLiteral("policy"));
        return FakePage::GetSizePolicy();
    }
    QString GetSizeGroupId() const override
    {
        Do(QStringLiteral("group"));
        return FakePage::GetSizeGroupId();
    }

    QString when;
    std::function<void()> act;

protected:
    void showEvent(QShowEvent*) override { Do(QStringLiteral("shown")); }
    void hideEvent(QHideEvent*) override { Do(QStringLiteral("hidden")); }
    void resizeEvent(QResizeEvent*) override { Do(QStringLiteral("resized")); }

private:
    void Do(const QString& what) const
    {
        if (what != when || !act)
            return;
        // Once: what is done asks the page again.
        auto* const self = const_cast<BusyPage*>(this);
        const std::function<void()> once = std::exchange(self->act, nullptr);
        once();
    }
};

/// Makes busy pages, and keeps the first one of an identifier.
class BusyFactory : public IWidgetFactory
{
public:
    QWidget* CreatePageWidget(const QString& id) override
    {
        QPointer<BusyPage>& page = pages[id];
        if (!page)
            page = new BusyPage(id, QSize(80, 50));
        return page;
    }
    QStringList GetPageIds() const override { return {}; }

    QHash<QString, QPointer<BusyPage>> pages;
};

} // namespace

class DockCallbackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anythingMayBeDoneFromInside_data();
    void anythingMayBeDoneFromInside();
    void layoutsMaySwitchWhileOneIsBuilt_data();
    void layoutsMaySwitchWhileOneIsBuilt();
};

void DockCallbackTest::anythingMayBeDoneFromInside_data()
{
    QTest::addColumn<QString>("when");
    QTest::addColumn<QString>("deed");
    for (const char* when : {"availability", "activated", "toggled", "policy", "group", "shown",
                             "hidden", "resized"}) {
        for (const char* deed : {"switch", "there and back", "restore", "clear", "close the panel",
                                 "delete the page"}) {
            // Qt shows, hides and resizes children in the middle of its own work, in which no
            // widget may go.
            const bool of_qt = qstrcmp(when, "shown") == 0 || qstrcmp(when, "hidden") == 0 ||
                               qstrcmp(when, "resized") == 0;
            if (of_qt && qstrncmp(deed, "close", 5) != 0 && qstrncmp(deed, "delete", 6) != 0)
                continue;
            QTest::addRow("%s: %s", when, deed)
                << QString::fromLatin1(when) << QString::fromLatin1(deed);
        }
    }
}

void DockCallbackTest::anythingMayBeDoneFromInside()
{
    QFETCH(QString, when);
    QFETCH(QString, deed);
    DockHost host;
    BusyFactory factory;
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), Panel("b", {"B"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180))}, 160));
    UiProfile* backup = nullptr;
    int done = 0;
    const QHash<QString, std::function<void()>> deeds{
        {"switch", [&] { host.host.Activate(QStringLiteral("Slice")); }},
        {"there and back",
         [&] {
             host.host.Activate(QStringLiteral("Slice"));
             host.host.Activate(QStringLiteral("Model"));
         }},
        {"restore",
         [&] {
             backup = new UiProfile(*host.host.Controller().GetActualProfile());
             UiProfile* const live = host.host.Controller().GetProfile();
             host.host.Controller().RestoreProfile(backup);
             host.layout = host.host.Controller().GetActiveLayout();
             delete live;
         }},
        {"clear", [&] { host.Manager().Clear(); }},
        {"close the panel",
         [&] {
             if (DockWidget* const panel = host.Find("a"))
                 panel->Close();
         }},
        {"delete the page", [&] { factory.pages.value("A1")->deleteLater(); }},
    };
    for (const char* id : {"A1", "A2", "B", "F"}) {
        BusyPage* const page = factory.pages.value(QString::fromLatin1(id));
        page->when = when;
        page->act = [&] {
            if (done++ == 0)
                deeds.value(deed)();
        };
    }

    // Something of everything that a user does.
    const auto panel = [&host] { return QPointer<DockWidget>(host.Find("a")); };
    if (panel())
        panel()->SetCurrentIndex(1);
    DockFixture::Settle();
    if (panel() && panel()->_Impl()->title) {
        Q_EMIT panel()->_Impl()->title->customContextMenuRequested(QPoint(5, 5));
        QMenu* const menu = panel() ? panel()->findChild<QMenu*>() : nullptr;
        if (menu) {
            const QPointer<QMenu> guard(menu);
            menu->actions().at(0)->trigger();
            if (guard)
                menu->close();
        }
    }
    DockFixture::Settle();
    if (panel())
        panel()->SetCollapsed(true, false);
    DockFixture::Settle();
    if (panel())
        panel()->SetCollapsed(false, false);
    host.host.window->resize(900, 700);
    DockFixture::Settle();
    if (panel())
        panel()->SetFloated(QPoint(100, 100));
    DockFixture::Settle();
    host.host.Revalidate();
    DockFixture::Settle();

    QVERIFY2(done > 0, "nothing was done");
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
    QCOMPARE(host.Manager()._Impl()->callback_depth, 0);
    // And all is well afterwards.
    host.layout = host.host.Activate(QStringLiteral("Model"));
    host.Load(Docking({{"left", {Panel("c", {"C"})}}}));
    QVERIFY(host.Find("c")->isVisible());
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
}

void DockCallbackTest::layoutsMaySwitchWhileOneIsBuilt_data()
{
    QTest::addColumn<QString>("when");
    QTest::addColumn<QString>("deed");
    for (const char* when : {"availability", "activated", "policy", "group"}) {
        for (const char* deed : {"another", "none", "the same", "two", "reset"})
            QTest::addRow("%s: %s", when, deed)
                << QString::fromLatin1(when) << QString::fromLatin1(deed);
    }
}

void DockCallbackTest::layoutsMaySwitchWhileOneIsBuilt()
{
    QFETCH(QString, when);
    QFETCH(QString, deed);
    DockHost host;
    BusyFactory factory;
    host.Load(Docking({{"left", {Panel("a", {"A1", "A2"}), Panel("b", {"B"})}}},
                      {Panel("f", {"F"}, QRect(300, 200, 250, 180))}, 160));
    host.host.Activate(QStringLiteral("Slice"));
    DockFixture::Settle();
    UiController& controller = host.host.Controller();
    const auto layout = [&](const char* name) {
        return controller.GetProfile()->GetLayout(QString::fromLatin1(name));
    };
    const QHash<QString, std::function<void()>> deeds{
        {"another", [&] { controller.SetActiveLayout(layout("Slice")); }},
        {"none", [&] { controller.SetActiveLayout(nullptr); }},
        {"the same", [&] { controller.SetActiveLayout(layout("Model")); }},
        {"two",
         [&] {
             controller.SetActiveLayout(nullptr);
             controller.SetActiveLayout(layout("Slice"));
         }},
        {"reset", [&] { controller.ResetProfile(new UiProfile(*controller.GetProfile())); }},
    };
    int done = 0;
    for (BusyPage* page : qAsConst(factory.pages)) {
        page->when = when;
        page->act = [&] {
            if (done++ == 0)
                deeds.value(deed)();
        };
    }
    controller.SetActiveLayout(layout("Model"));
    DockFixture::Settle();
    QVERIFY2(done > 0, "nothing was done");
    QCOMPARE(host.Manager()._Impl()->CheckConsistency(), QString());
    QVERIFY(host.Manager().isVisible());
    // What was asked for last is on the screen, and nothing else.
    const QHash<QString, QString> active{{"another", "Slice"},
                                         {"none", {}},
                                         {"the same", "Model"},
                                         {"two", "Slice"},
                                         {"reset", "Model"}};
    const UiLayout* const now = controller.GetActiveLayout();
    QCOMPARE(now ? now->GetName() : QString(), active.value(deed));
    QCOMPARE(host.Manager().GetWidgetsList().size(), active.value(deed) == "Model" ? 3 : 0);
    host.layout = host.host.Activate(QStringLiteral("Model"));
    DockFixture::Settle();
    QCOMPARE(host.Manager().GetWidgetsList().size(), 3);
}

OVK_TEST_CLASS(DockCallbackTest)

#include "dock_callback_test.moc"
